#pragma once

#include <array>
#include <cstdint>

#include "input/frmImportaCSV.h"
#include "pianta/Pianta.h"
#include "shell/servizi/ControlloPianta.h"
#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/cartaDati.h"
#include "shell/servizi/scelte.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// The turning matrix: what enters at the leg of a row leaves at the leg of a column, in vehicles or in per cent of the
/// row, with the totals beside it.
class frmMatriceSvolte final : public FinestraDati, public CartaDati {
public:
    /// `dialogo` chooses the file of an import; `stampa`: null for none.
    frmMatriceSvolte(const Contorno& contorno, DialogoAnteprima& dialogo, StampaPagine* stampa = nullptr);

    std::array<Etichetta, 7> lblIngresso;  ///< "Ingresso A:" to "Ingresso G:"
    std::array<tBox, 7> txtIngresso;       ///< names of the legs, read only; those past the last leg are hidden
    Etichetta lblPercentualeROSSO;
    Griglia ctlGrid{"ctlGrid"};
    Riquadro frmTotaleEntrate;
    Griglia ctlGridEntrate{"ctlGridEntrate", 0, 0};  ///< one column: the total of each row
    std::array<Etichetta, 7> lblVeicoliEntrate;      ///< unit of a row's total, or what is missing to 100
    Riquadro frmTotaleUscite;
    Griglia ctlGridUscite{"ctlGridUscite", 0, 0};  ///< one row: the total of each column
    std::array<Etichetta, 7> lblVeicoliUscite;
    Immagine ctlPicture{"ctlPicture"};  ///< "RAMI3" to "RAMI7"
    Etichetta lblMovimento;             ///< the movement at hand in words, with its value
    Casella chkFlussi;                  ///< the plan shows the flows of the whole matrix
    ControlloPianta ctlPianta;          ///< the roundabout with the movement at hand
    Bottone cmdImportaCSV;              ///< takes the numbers of a CSV file into the cells

    /// Reads units, names and matrix of the project.
    void ReadData() override;
    /// Writes the matrix where a cell was changed: all its cells then, the diagonal as 0.
    void SaveData() override;
    /// Takes the numbers of another project's matrix, rounded to whole ones, into the cells.
    void CaricaDaProgetto();
    /// Adds up the figures of the grid, rows and columns, as the cells show them.
    void AggiornaTotali();
    /// Tells of each row in per cent what is missing to 100.
    void AggiornaEsitoRighe();

    /// The movement of the cell at hand, legs from 1; {-1, ...} for none.
    Posto movimento() const { return ctlGrid.corrente(); }
    /// Another movement is at hand, the figures are others, or what the plan is to show of them.
    sigc::signal<void()>& movimentoMutato() { return movimentoMutato_; }
    /// The roundabout of the project, and what of the matrix its plan shows: the movement at hand, the flows if they
    /// are asked for.
    pianta::DatiPianta piantaMostrata() const;
    pianta::OpzioniPianta opzioniPianta() const;
    /// Where the columns of a CSV file go: one column for each leg, rows by leg.
    BersaglioCSV bersaglioCSV();
    /// The figures shown, legs from 0; an empty cell counts as 0.
    Matrice mostrata() const;

    void entrato(Controllo& campo) override;

protected:
    void Archivio() override { CaricaDaProgetto(); }
    /// The plan, and the matrix with its totals.
    Blocchi blocchiSuCarta() const override;

private:
    void preparaGriglie();
    void mostraUnita();
    void mostraNomi();
    void mostraMatrice();
    EsitoUscita confermaCella(std::string& testo);
    EsitoUscita esaminaBlocco(std::vector<TestoCella>& celle) const;
    void ricalcola();
    void mostraMovimento();
    bool percentuale() const;
    DocumentoPagine::Pianta soggettoPianta() const;
    float valore(int riga, int colonna) const;

    DialogoAnteprima& dialogo_;
    Matrice Matrice_;
    sigc::signal<void()> movimentoMutato_;
};

}  // namespace kelvo
