#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "input/sceltaCSV.h"
#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// The table that takes the figures of a file.
struct BersaglioCSV {
    std::string tipo;        ///< under which the choice of columns is remembered: "Matrice"
    std::string didascalia;  ///< of the dialogue: "Importa la matrice delle svolte da CSV"
    Griglia& griglia;
    std::vector<ColonnaCSV> colonne;  ///< `frmImportaCSV::massime` at most
    int primaRiga = 1;                ///< row of the grid that the first row of figures goes to
};

/// What the button of an import reads.
inline constexpr const char* bottoneImportaCSV = "Importa da CSV...";

/// Asks for a file and puts its figures into the grid of a window: one change that can be undone, judged by the grid's
/// own `allIncolla` and told by its `dopoModifica`, as a block that is pasted. True if cells were filled; after Cancel
/// nothing has changed.
///
/// All that a window needs is a button and this call:
///
///     cmdImportaCSV.allaPressione = [this] { importaCSV(contorno(), dialogo_, bersaglio()); };
///
/// with, for a table of counts under the heading "Flusso [veicoli]",
///
///     BersaglioCSV bersaglio() { return {.tipo = "DatiTraffico", .didascalia = "Importa i conteggi da CSV",
///                                        .griglia = ctlGrid, .colonne = {{"Flusso [veicoli]", 1, {"Flusso"}}}}; }
///
/// and for seven categories one entry of `colonne` each, with the columns 1 to 7 of the grid. Cells that may not be
/// typed into (a diagonal, a locked column) take nothing.
bool importaCSV(const Contorno& contorno, DialogoAnteprima& dialogo, const BersaglioCSV& bersaglio);

/// Shows the head of a text file beside the dialogue that chooses it, and asks which of its columns go where.
class frmImportaCSV final : public FinestraAnteprima {
public:
    static constexpr std::size_t massime = 7;      ///< columns that a table takes
    static constexpr std::size_t righeTesta = 40;  ///< rows that are shown
    static constexpr int righeTestate = 2;         ///< headings above them

    frmImportaCSV(const Contorno& contorno, const BersaglioCSV& bersaglio);

    Riquadro frFile;
    Etichetta lblSeparatore;
    tBox txtSeparatore{"txtSeparatore", tBox::combobox};  ///< what parts the cells
    Casella chkIntestazioni;                              ///< the first row holds headings
    Riquadro frAnteprima;
    /// The file: its row numbers from 1 beside, its headings above and below them where each column goes; wrong cells
    /// are marked. Empty while there is no file.
    Griglia ctlGrid{"ctlGrid", 2, 1};
    Riquadro frColonne;
    std::array<Etichetta, massime> lblColonna;  ///< columns of the table; those past the last are hidden
    std::array<tBox, massime> txtColonna;       ///< column of the file for each, "(nessuna)" among them
    Etichetta lblAvviso{"lblAvviso"};           ///< what is wrong with the file, or what of it will be taken
    PannelloAiuto ctlHelp{"ctlHelp"};
    PannelloAiuto* aiuto() override { return &ctlHelp; }

    /// Shows a file, with what was chosen for it where it has been shown before and still has those columns; a folder
    /// changes nothing.
    void selezionato(const std::string& percorso) override;
    /// Fills the grid of the window. False, with a word on why, where a cell is no number or could be read in two ways,
    /// no column or one twice is chosen, the user does not want the file clipped, or the grid refuses: then nothing has
    /// changed.
    ///
    /// What the grid refuses is told by the row and column of the file.
    bool conferma(const std::string& percorso) override;

    /// What would be taken as things stand.
    const SceltaCSV& scelta() const { return scelta_; }

private:
    /// A choice, and which of its columns the user made himself.
    struct Vista {
        SceltaCSV scelta;
        std::vector<bool> aMano;
    };

    void collega();
    void svuota(const std::string& motivo);
    void proponi();
    bool riprendi(const Vista& vista);
    void rileggi();
    void cambiaIntestazioni();
    void mostraScelta();
    void mostraAnteprima();
    void intesta(Tabella& tabella, int quante) const;
    void mostraAvviso();

    std::size_t primaDiDati() const { return scelta_.intestazioni ? 1 : 0; }
    std::size_t righeDati() const;
    std::size_t righeTabella() const;
    std::size_t righePrese() const { return std::min(righeDati(), righeTabella()); }
    std::string nomeColonna(int colonna) const;
    int bersaglioDi(int colonna) const;
    bool accolta(std::size_t colonna) const;
    std::string cella(std::size_t riga, int colonna) const;
    std::string luogo(std::size_t riga, int colonna, const std::string& motivo) const;
    std::string motivoCella(std::size_t riga, int colonna) const;
    std::string primoErrore() const;
    std::string parole() const;
    std::string motivoRifiuto() const;
    /// A cell of the table and that of the file which goes there.
    struct CellaScelta {
        TestoCella cella;
        std::size_t riga = 0;
        int colonna = 0;
    };
    std::vector<CellaScelta> celleScelte() const;
    std::string rifiutoTabella(const std::vector<CellaScelta>& scelte) const;

    BersaglioCSV bersaglio_;
    MemoriaCSV memoria_;
    std::string percorso_;
    std::map<std::string, Vista> viste_;  ///< files that were shown before, with what was chosen for them
    TestoCSV testo_;
    RigheCSV righe_;
    SceltaCSV scelta_;
    std::vector<bool> aMano_;  ///< of the columns of `scelta_`
};

}  // namespace kelvo
