#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Controllo.h"
#include "shell/servizi/CustodeCampi.h"

namespace kelvo {

/// Rules of a field, from its tag: pairs of a key, ":" and a value, separated by ";".
struct RegoleCampo {
    bool numerico = false;          ///< Type:Numeric
    std::optional<double> minimo;   ///< ValueMin
    std::optional<double> massimo;  ///< ValueMax

    /// Reads a tag; unknown keys and types count for nothing, an empty tag is no rule. Of a key that comes twice both
    /// rules hold.
    static RegoleCampo daTag(std::string_view tag);
    /// Why a text breaks the rules, in words for the user: the type is asked first, then the upper limit, then the
    /// lower one. Empty if it keeps them.
    std::string motivo(std::string_view testo) const;
    /// True if a text keeps the rules.
    bool ammette(std::string_view testo) const { return motivo(testo).empty(); }
};

/// The number that a text begins with, read with the point as decimal separator; 0 if there is none. A comma ends it:
/// "3,5" reads 3.
double numeroIniziale(std::string_view testo);

/// The input control of all windows, in its five faces.
class tBox final : public Controllo {
public:
    enum Faccia { textbox, combobox, maskedit, dtpicker, objSmartTextBox };

    tBox(std::string nome, Faccia faccia, std::string tag = {});

    Faccia faccia() const { return faccia_; }
    const RegoleCampo& regole() const { return regole_; }

    const std::string& testo() const { return testo_; }
    /// Puts a text there, as the program does: it counts as unmodified, no check runs.
    void testo(const std::string& valore);
    /// Puts a text there in the user's stead: no check runs, but it counts as modified where it differs.
    void modifica(const std::string& valore);
    /// The text differs from what the program put there last: only then it is worth writing back.
    bool modificato() const { return testo_ != messo_; }
    /// What stands there has been written back: it counts as unmodified from now on.
    void salvato() { messo_ = testo_; }

    /// combobox: the rows of the list.
    const std::vector<std::string>& voci() const { return voci_; }
    void voci(const std::vector<std::string>& valori);
    /// combobox: position of the text in the list, from 0; -1 if it is none of them.
    int scelta() const;
    /// combobox: puts the text of a row there, as the program does. Fault 9 outside the list.
    void scelta(int indice);
    /// combobox: any text may be typed; else only the rows of the list are taken.
    bool digitabile = false;
    /// dtpicker: a day "dd/mm/yyyy" in place of a time of day "HH:NN". A picker takes nothing else.
    bool giorno = false;

    /// maskedit: characters that may be typed, empty for all, and how many; 0 for no limit.
    std::string caratteriAmmessi;
    std::size_t lunghezzaMassima = 0;

    /// The user types the decimal comma: the rules of the tag read it as the point, and a typed point becomes one.
    bool virgola = false;
    /// The key of a second comma is passed over. A pasted text stays as it is: without one of its commas it would be
    /// another number.
    bool unaVirgola = false;
    /// A key or a pasted text with a character that the field does not take changes nothing, instead of falling out: no
    /// figure loses a sign in silence.
    bool tuttoONiente = false;
    /// Words of the box that comes up when the rules of the tag refuse the text; empty for none.
    std::string rifiuto;
    /// What the field is called in the status bar when it refuses; empty for nothing.
    std::string nomeCampo;

    /// What the tool tip of the field tells; empty for none.
    std::string suggerimento;

    /// The field shows its text and takes none.
    bool solaLettura() const { return solaLettura_; }
    void solaLettura(bool valore) { cambia(solaLettura_, valore); }
    /// The last check refused the text.
    bool fallito() const { return fallito_; }

    /// What the window asks of the text beyond the tag; it looks and changes nothing.
    std::function<EsitoUscita()> controllo;
    /// What the window does after a text was left that passed.
    std::function<void()> dopoUscita;
    /// What the window does after each change by the user.
    std::function<void()> dopoTasto;

    // The user's gestures.
    void entra() override;
    /// Types the text in place of what stands there. Characters that the field does not take fall out; a list and a
    /// picker take a whole text or nothing.
    void scrivi(std::string_view testo);
    /// Runs the checks; false keeps the focus.
    bool lascia() override;
    /// combobox: picks a row, from 0; nothing happens outside the list.
    void scegli(int indice);
    /// Escape: puts back what stood there when the focus came; false if there was nothing to put back.
    bool annulla();
    bool convalida() override;
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    EsitoUscita esamina();
    EsitoUscita rifiutato(std::string motivo) const;
    bool prende(const std::string& testo) const;
    std::string filtrato(std::string_view testo) const;
    void digita(const std::string& testo);
    void metti(const std::string& testo);

    Faccia faccia_;
    RegoleCampo regole_;
    std::string testo_;
    std::string messo_;
    std::string allEntrata_;
    std::vector<std::string> voci_;
    bool solaLettura_ = false;
    bool fallito_ = false;
};

}  // namespace kelvo
