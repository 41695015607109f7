#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabella.h"
#include "shell/servizi/CellaGriglia.h"
#include "shell/servizi/Controllo.h"
#include "shell/servizi/CustodeCampi.h"

namespace kelvo {

class MenuChiavi;

/// The cells of a text that was copied from a table: cells parted by tabs, rows by CR LF, LF or CR; the end of the last
/// row may be there or not. Blanks around a cell fall away. An empty text has no rows.
std::vector<std::vector<std::string>> righeIncollate(std::string_view testo);

/// A table on which a cursor walks, with an editor for the cells that may be typed into.
///
/// The texts of the cells are the only store of the figures. Rows and columns count from 0, fixed ones included; the
/// cursor never stops on a fixed cell, in a hidden column or where `salta` says so.
class Griglia final : public Controllo {
public:
    enum class Tasto {
        invio,
        tab,
        tabIndietro,
        su,
        giu,
        sinistra,
        destra,
        inizio,         ///< first cell of the row
        fine,           ///< last cell of the row
        inizioTabella,  ///< first cell of all
        fineTabella,    ///< last cell of all
        paginaSu,
        paginaGiu,
        esc,
        f2,
        indietro,  ///< Backspace
        canc,
        copia,
        copiaConIntestazioni,
        incolla,
        tutto,
        annulla,
        ripeti,
    };
    /// Where Enter goes: down the column and on to the next one, or along the row and on to the next one. At the end of
    /// the table it stays.
    enum class Verso { giu, destra };

    explicit Griglia(std::string nome, int righeFisse = 1, int colonneFisse = 1)
        : Controllo(std::move(nome)), righeFisse_(righeFisse), colonneFisse_(colonneFisse) {}

    using Controllo::visibile;

    // What the program puts there.
    const Tabella& tabella() const { return tabella_; }
    /// Puts a table there: its texts count as unmodified, the editor closes without a word, what could be undone is
    /// forgotten. The cursor stays where it is if it may stop there, else it goes to the first cell where it may.
    void tabella(Tabella nuova);
    /// Changes cells; their texts count as modified where they differ from those of the table that was put there.
    void modifica(const std::function<void(Tabella&)>& come);
    const std::string& testo(int riga, int colonna) const { return tabella_.testo(riga, colonna); }
    void testo(Posto posto, const std::string& valore);
    int righeFisse() const { return righeFisse_; }
    int colonneFisse() const { return colonneFisse_; }
    /// The column's own; the common one where none was told.
    const ColonnaGriglia& colonna(int indice) const;
    void colonna(int indice, const ColonnaGriglia& valore);
    /// Texts differ from those of the table that was put there: only then they are worth writing back.
    bool modificata() const;
    bool modificata(Posto posto) const;
    /// What stands there has been written back.
    void salvata();
    /// Puts texts there in the user's stead, in closed cells too: nothing is asked, the owner is told, and it can be
    /// undone.
    void inserisci(const std::vector<TestoCella>& celle) { scriviCelle(celle); }
    /// `dopoModifica` is told of something undone or redone: all cells stand as they stood then.
    bool inRevisione() const { return inRevisione_; }

    // How the grid behaves: data and hooks of its owner.
    Verso versoInvio = Verso::giu;
    /// True for a cell that may be typed into; none if not set. A fixed cell never may.
    std::function<bool(Posto)> modificabile;
    /// True for a cell that is no stopping place; none if not set.
    std::function<bool(Posto)> salta;
    /// What stands in a cell beside its text.
    std::function<OrnamentoCella(Posto)> ornamento;
    /// What a cell reads like outside of the grid where that is not its text: to who copies or saves it and to who is
    /// read to. Nothing for a cell that reads like its text.
    std::function<std::optional<std::string>(Posto)> letturaFuori;
    /// A typed text is to go into a cell, which may mend or refuse it; refused, the editor stays open, with what the
    /// outcome puts in the place of the text.
    std::function<EsitoUscita(Posto, std::string&)> allaConferma;
    /// A block is to go into cells, all of which may be typed into; they are mended or refused as a whole, before any
    /// of them changes. Where it is not set, every text must keep the rules of its column.
    std::function<EsitoUscita(std::vector<TestoCella>&)> allIncolla;
    /// The user changed the texts of cells; once for all cells of a block.
    std::function<void(const std::vector<Posto>&)> dopoModifica;
    /// The cursor stands on another cell.
    std::function<void(Posto)> alMovimento;
    /// The user clicked a cell, a fixed one too, or pressed the space bar on a cell that takes no text.
    std::function<void(Posto)> alClic;
    /// The user pressed the right button on a cell.
    std::function<void(Posto)> alTastoDestro;
    /// The user scrolled: another row stands on top.
    std::function<void(int)> alloScorrimento;
    /// What the menu key brings up, and the right button where nothing else is told of it; null for nothing of its own.
    MenuChiavi* menuContesto = nullptr;
    /// The window's: appends what it has for every table.
    std::function<MenuChiavi&()> menuCompleto;
    /// What is brought up: the entries of its own and behind them those of the window; null for nothing.
    MenuChiavi* menu() const { return menuCompleto ? &menuCompleto() : menuContesto; }

    // Where things stand.
    /// The cell of the cursor; row -1 where it can stop nowhere.
    Posto corrente() const { return corrente_; }
    /// Moves the cursor in the program's stead; an open editor closes without a word. False if it may not stop there.
    bool corrente(Posto posto);
    AreaCelle selezione() const;
    /// The corner of the selection that moves.
    Posto estremo() const { return estremo_; }
    bool puoModificare(Posto posto) const;
    /// First row below the fixed ones that is shown.
    int rigaAlta() const;
    void rigaAlta(int riga);
    /// Rows that the view shows at a time, for the page keys.
    int righeVisibili = 10;
    bool inModifica() const { return editor_.has_value(); }
    /// The text in the editor; empty while it is closed.
    std::string testoEditor() const { return editor_ ? editor_->testo : std::string{}; }
    /// The next character typed takes the place of the whole text.
    bool tuttoScelto() const { return editor_ && editor_->tutto; }
    /// The column of the cursor takes the character.
    bool ammette(std::string_view carattere) const;
    /// Characters that the text in the editor may have: those of the rules of the column, more where the cell already
    /// has more; 0 for no limit.
    std::size_t lunghezzaAmmessa() const;
    /// The last text was refused.
    bool fallita() const { return fallita_; }
    /// What a cell reads like outside of the grid.
    std::string testoFuori(Posto posto) const;
    /// A row that tells nothing outside: no text in it and no cell that may be typed into.
    bool muta(int riga) const;
    /// The selected cells as text: tabs between cells, CR LF between rows; with the fixed ones that belong to them.
    /// Mute rows at the end stay out.
    std::string testoSelezione(bool conIntestazioni) const;
    /// Counts the changes of texts, colours and columns.
    unsigned versione() const { return versione_; }

    // The user's gestures.
    /// A key; false if the grid has no use for it and it goes on to whoever has. `estendi`: with the shift key.
    bool premiTasto(Tasto tasto, bool estendi = false);
    /// Types characters one after the other; the first opens the editor, in place of what stands in the cell.
    void scrivi(std::string_view testo);
    /// The text in the open editor is another one. What its column does not take, and did not stand in the cell, is
    /// judged as a block that is pasted if it takes the place of the whole text; else, and where that is refused, the
    /// text stays as it was.
    void correggi(std::string_view testo);
    /// A click on a cell; with the shift key the selection reaches as far as it. False if the cursor could not leave
    /// its cell or there is no such cell.
    bool clic(int riga, int colonna, bool estendi = false);
    void doppioClic(int riga, int colonna);
    /// The right button: the cursor goes to a cell outside the selection, which stays where the cell lies in it. True
    /// if the button was taken; else the context menu is its business.
    bool tastoDestro(int riga, int colonna);
    void scorri(int riga);
    /// Puts a block there, from the top left cell of the selection on; what reaches beyond the table falls away. A
    /// single cell fills the whole selection. False if it was refused or no cell takes it.
    bool incolla(std::string_view testo);
    /// Puts texts into cells as a block that is pasted: those that may not be typed into fall away, the others are
    /// judged as a whole and undone in one step. False if they were refused or none is left.
    bool riempi(std::vector<TestoCella> celle);
    bool lascia() override;
    bool convalida() override;
    /// A grid in which the cursor can stop nowhere takes no focus.
    bool prendeFuoco() const override { return raggiungibile() && (tabella_.righe() == 0 || corrente_.riga >= 0); }

private:
    struct Editor {
        std::string testo;
        bool tutto = false;    ///< the whole text is selected
        bool cursore = false;  ///< left and right move in the text
    };
    struct Passo {
        std::vector<TestoCella> prima;
        std::vector<TestoCella> dopo;
    };

    /// Where a movement may end: anywhere below the fixed cells, where the cursor stops, where text may be typed.
    enum class Meta { selezione, cursore, modifica };

    bool dentro(Posto posto) const;
    bool buona(Posto posto, Meta meta) const;
    bool fermata(Posto posto) const { return buona(posto, Meta::cursore); }
    bool visibile(int colonna) const { return !this->colonna(colonna).nascosta; }
    void segna();
    void vai(Posto posto);
    void seleziona(Posto da, Posto a);
    std::optional<Posto> cerca(Posto da, Verso verso, bool avanti, Meta meta) const;
    std::optional<Posto> accanto(Posto da, int righe, int colonne, Meta meta) const;
    Posto primo(Meta meta) const;
    Posto ultimo(Meta meta) const;
    Posto meta(Tasto tasto, Posto da, Meta meta) const;

    bool premiConEditor(Tasto tasto, bool estendi);
    bool premiSulleCelle(Tasto tasto, bool estendi);
    bool muovi(Tasto tasto, bool estendi);
    bool avanza(Verso verso, bool avanti, bool lasciaAllaFine);
    bool comanda(Tasto tasto);

    void apri(Editor editor);
    void chiudi();
    bool conferma();
    void batti(const std::string& carattere);
    bool traduci(std::string& testo);
    void giudica(const EsitoUscita& esito);
    void rimetti(const EsitoUscita& esito);

    void cancella();
    void copia(bool conIntestazioni);
    std::vector<TestoCella> celleDa(const std::vector<std::vector<std::string>>& righe) const;
    EsitoUscita esaminaBlocco(std::vector<TestoCella>& celle) const;
    void scriviCelle(const std::vector<TestoCella>& celle);
    void rivedi(const std::vector<TestoCella>& celle);
    std::vector<std::string> testi() const;
    Appunti* appunti() const { return custode() == nullptr ? nullptr : custode()->appunti(); }

    Tabella tabella_;
    int righeFisse_;
    int colonneFisse_;
    std::vector<ColonnaGriglia> colonne_;
    std::vector<std::string> messi_;
    Posto corrente_;
    Posto ancora_;
    Posto estremo_;
    int rigaAlta_ = 0;
    std::optional<Editor> editor_;
    bool fallita_ = false;
    bool inConferma_ = false;
    bool inRevisione_ = false;
    unsigned versione_ = 0;
    std::vector<Passo> fatti_;
    std::vector<Passo> disfatti_;
};

}  // namespace kelvo
