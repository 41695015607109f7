#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Controllo.h"

namespace kelvo {

/// Text in a window.
class Etichetta final : public Controllo {
public:
    explicit Etichetta(std::string nome, std::string testo = {}, std::string tag = {})
        : Controllo(std::move(nome), std::move(tag)), testo_(std::move(testo)) {}
    const std::string& testo() const { return testo_; }
    void testo(const std::string& valore) { cambia(testo_, valore); }

private:
    std::string testo_;
};

/// Several lines of text that the user types.
class AreaTesto final : public Controllo {
public:
    explicit AreaTesto(std::string nome) : Controllo(std::move(nome)) {}
    const std::string& testo() const { return testo_; }
    void testo(const std::string& valore) {
        messo_ = valore;
        cambia(testo_, valore);
    }
    bool modificato() const { return testo_ != messo_; }
    std::function<void()> dopoUscita;

    void entra() override;
    void scrivi(std::string_view testo) {
        if (raggiungibile()) {
            cambia(testo_, std::string{testo});
        }
    }
    bool lascia() override {
        if (raggiungibile() && dopoUscita) {
            dopoUscita();
        }
        return true;
    }
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    std::string testo_;
    std::string messo_;
};

/// A button.
class Bottone final : public Controllo {
public:
    explicit Bottone(std::string nome, std::string testo = {}) : Controllo(std::move(nome)), testo_(std::move(testo)) {}
    const std::string& testo() const { return testo_; }
    void testo(const std::string& valore) { cambia(testo_, valore); }
    std::function<void()> allaPressione;

    void premi() {
        if (raggiungibile() && allaPressione) {
            allaPressione();
        }
    }
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    std::string testo_;
};

/// A check box, or a button that stays pressed.
class Casella final : public Controllo {
public:
    enum Forma { casella, bottone };
    explicit Casella(std::string nome, std::string testo = {}, Forma forma = casella)
        : Controllo(std::move(nome)), testo_(std::move(testo)), forma_(forma) {}
    Forma forma() const { return forma_; }
    const std::string& testo() const { return testo_; }
    bool spuntata() const { return spuntata_; }
    void spuntata(bool valore) { cambia(spuntata_, valore); }
    std::function<void()> alClic;

    void clicca() {
        if (!raggiungibile()) {
            return;
        }
        spuntata(!spuntata_);
        if (alClic) {
            alClic();
        }
    }
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    std::string testo_;
    Forma forma_;
    bool spuntata_ = false;
};

/// A number between two limits that is stepped up and down.
class Spin final : public Controllo {
public:
    Spin(std::string nome, int minimo, int massimo, int valore)
        : Controllo(std::move(nome)), minimo_(minimo), massimo_(massimo), valore_(valore) {}
    int minimo() const { return minimo_; }
    int massimo() const { return massimo_; }
    int valore() const { return valore_; }
    void valore(int nuovo);
    std::function<void()> alCambio;

    /// The user sets a number; outside the limits it goes to the nearer one.
    void imposta(int nuovo);
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    int minimo_;
    int massimo_;
    int valore_;
};

/// A frame that shows or enables a group of controls.
class Riquadro final : public Controllo {
public:
    Riquadro(std::string nome, std::string titolo, std::vector<Controllo*> contenuto)
        : Controllo(std::move(nome)), titolo_(std::move(titolo)), contenuto_(std::move(contenuto)) {}
    const std::string& titolo() const { return titolo_; }
    const std::vector<Controllo*>& contenuto() const { return contenuto_; }
    /// Enables or disables all that stands in the frame.
    void abilitaContenuto(bool valore) {
        abilitato(valore);
        for (Controllo* c : contenuto_) {
            c->abilitato(valore);
        }
    }
    void mostraContenuto(bool valore) {
        visibile(valore);
        for (Controllo* c : contenuto_) {
            c->visibile(valore);
        }
    }

private:
    std::string titolo_;
    std::vector<Controllo*> contenuto_;
};

/// A picture by its resource name.
class Immagine final : public Controllo {
public:
    explicit Immagine(std::string nome, std::string risorsa = {})
        : Controllo(std::move(nome)), risorsa_(std::move(risorsa)) {}
    const std::string& risorsa() const { return risorsa_; }
    void risorsa(const std::string& valore) { cambia(risorsa_, valore); }

private:
    std::string risorsa_;
};

/// How far a long job has come. It may be told each of many small steps: it signals a change only where it can be seen,
/// half a hundredth of the way or more.
class BarraProgresso final : public Controllo {
public:
    BarraProgresso(std::string nome, int minimo, int massimo)
        : Controllo(std::move(nome)), minimo_(minimo), massimo_(massimo), valore_(minimo) {}
    int minimo() const { return minimo_; }
    int massimo() const { return massimo_; }
    int valore() const { return valore_; }
    void valore(int nuovo) {
        const int prima = valore_;
        valore_ = nuovo < minimo_ ? minimo_ : nuovo > massimo_ ? massimo_ : nuovo;
        if (tacca(valore_) != tacca(prima)) {
            cambiato().emit();
        }
    }

private:
    /// Place on a scale of two hundred marks, or the value itself on a shorter way.
    int tacca(int valore) const {
        constexpr std::int64_t tacche = 200;
        const std::int64_t lunga = std::int64_t{massimo_} - minimo_;
        const std::int64_t fatta = std::int64_t{valore} - minimo_;
        return static_cast<int>(lunga <= tacche ? fatta : fatta * tacche / lunga);
    }
    int minimo_;
    int massimo_;
    int valore_;
};

/// The page of the help pane that says nothing.
inline constexpr std::string_view paginaAiutoVuota = "EmptyHelp.htm";

/// The help pane: a page below the folder of the help pages.
class PannelloAiuto final : public Controllo {
public:
    explicit PannelloAiuto(std::string nome) : Controllo(std::move(nome)) {}
    const std::string& pagina() const { return pagina_; }
    void pagina(const std::string& valore) { cambia(pagina_, valore); }

private:
    std::string pagina_{paginaAiutoVuota};
};

/// A page on rich text, whose links the user follows.
class VisorePagina final : public Controllo {
public:
    explicit VisorePagina(std::string nome) : Controllo(std::move(nome)) {}
    const std::string& html() const { return html_; }
    void html(const std::string& valore) { cambia(html_, valore); }
    /// What a link leads to, as it stands in the page.
    std::function<void(const std::string&)> alCollegamento;

    void segui(const std::string& collegamento) {
        if (raggiungibile() && alCollegamento) {
            alCollegamento(collegamento);
        }
    }
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    std::string html_;
};

/// A tool bar with keys.
class BarraStrumenti final : public Controllo {
public:
    struct Tasto {
        std::string chiave;
        std::string testo;
        std::string suggerimento;
        std::string icona;
        bool abilitato = true;
        std::string nota = {};         ///< why the button is closed; empty where there is nothing to tell
        std::string scorciatoia = {};  ///< where it is not the one that the button's key has in every window
        bool separatoreDopo = false;   ///< a line follows
        friend bool operator==(const Tasto&, const Tasto&) = default;
    };
    BarraStrumenti(std::string nome, std::vector<Tasto> tasti) : Controllo(std::move(nome)), tasti_(std::move(tasti)) {}
    const std::vector<Tasto>& tasti() const { return tasti_; }
    /// Puts a button of the window's own in front.
    void premetti(Tasto tasto) {
        tasti_.insert(tasti_.begin(), std::move(tasto));
        cambiato().emit();
    }
    /// Appends a button of the window's own.
    void aggiungi(Tasto tasto) {
        tasti_.push_back(std::move(tasto));
        cambiato().emit();
    }
    /// Fault 9 for a key that is not there.
    bool abilitato(std::string_view chiave) const;
    /// The same: a literal would otherwise be taken for a flag.
    bool abilitato(const char* chiave) { return abilitato(std::string_view{chiave}); }
    void abilita(std::string_view chiave, bool valore);
    /// Tells why a button is closed. Fault 9 for a key that is not there.
    void annota(std::string_view chiave, const std::string& nota);
    using Controllo::abilitato;
    /// What the mouse is told over a button: its tooltip, its shortcut in brackets, why it is closed. Fault 9 as above.
    std::string spiegazione(std::string_view chiave) const;
    /// Shortcut of a button; empty for none. Fault 9 as above.
    std::string scorciatoia(std::string_view chiave) const;
    std::function<void(const std::string&)> allaPressione;
    /// Told after each press, when all is done; may be empty.
    std::function<void()> dopoPressione;

    /// The user presses a button; nothing happens on a disabled one. Fault 9 for a key that is not there.
    void premi(std::string_view chiave);

private:
    std::vector<Tasto>::iterator cerca(std::string_view chiave);
    const Tasto& tasto(std::string_view chiave) const { return *const_cast<BarraStrumenti*>(this)->cerca(chiave); }
    std::vector<Tasto> tasti_;
};

/// A key of the keyboard that the status bar tells, and what it does.
struct SuggerimentoTasto {
    std::string tasto;
    std::string parola;
    friend bool operator==(const SuggerimentoTasto&, const SuggerimentoTasto&) = default;
};

/// One line at the foot of the main window.
class BarraStato final : public Controllo {
public:
    explicit BarraStato(std::string nome) : Controllo(std::move(nome)) {}
    const std::string& testo() const { return testo_; }
    void testo(const std::string& valore) { cambia(testo_, valore); }
    /// What was last told to the user, beside the text; empty for nothing.
    const std::string& avviso() const { return avviso_; }
    void avviso(const std::string& valore) { cambia(avviso_, valore); }
    /// Keys that are of use at this moment, four at most.
    static constexpr std::size_t suggerimentiMassimi = 4;
    const std::vector<SuggerimentoTasto>& suggerimenti() const { return suggerimenti_; }
    void suggerimenti(const std::vector<SuggerimentoTasto>& valore) { cambia(suggerimenti_, valore); }

private:
    std::string testo_;
    std::string avviso_;
    std::vector<SuggerimentoTasto> suggerimenti_;
};

}  // namespace kelvo
