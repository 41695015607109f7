#pragma once

#include <sigc++/sigc++.h>

#include <string>
#include <utility>

#include "base/Tabella.h"

namespace kelvo {

/// What a window looks at when one of its controls wants to be left, and tells when it may not be.
class CustodeCampi;

/// How the skin dresses a control.
struct Aspetto {
    std::string carattere;  ///< family of the font; empty before the skin ran
    Colore sfondo = colori::bianco;
    Colore inchiostro = colori::nero;
    friend bool operator==(const Aspetto&, const Aspetto&) = default;
};

/// Base of everything that stands in a window. A view shows it and hands the user's gestures to it; a test does the
/// same without a display.
///
/// Gestures on a control that is hidden or disabled do nothing.
class Controllo {
public:
    explicit Controllo(std::string nome, std::string tag = {}) : nome_(std::move(nome)), tag_(std::move(tag)) {}
    Controllo(const Controllo&) = delete;
    Controllo& operator=(const Controllo&) = delete;
    virtual ~Controllo() = default;

    const std::string& nome() const { return nome_; }
    /// Words for rules and skin that were given at design time.
    const std::string& tag() const { return tag_; }

    bool visibile() const { return visibile_; }
    void visibile(bool valore) { cambia(visibile_, valore); }
    bool abilitato() const { return abilitato_; }
    void abilitato(bool valore) { cambia(abilitato_, valore); }
    /// Page of the help, by its file name; empty for the page of the window.
    std::string paginaAiuto;
    const Aspetto& aspetto() const { return aspetto_; }
    void aspetto(const Aspetto& valore) { cambia(aspetto_, valore); }

    /// The user's focus comes here; the window is told.
    virtual void entra();
    /// The user's focus wants to leave; false keeps it.
    virtual bool lascia() { return true; }
    /// The checks of leaving, asked by the window: they look and change nothing but the failed state.
    virtual bool convalida() { return true; }
    /// The control takes the focus of the keyboard.
    virtual bool prendeFuoco() const { return false; }
    /// The focus of its window stands here; always true for a control that stands in none.
    bool haFuoco() const;

    /// Something to be shown has changed.
    sigc::signal<void()>& cambiato() { return cambiato_; }

    /// The window that the control stands in.
    void custode(CustodeCampi* custode) { custode_ = custode; }

protected:
    /// True if a gesture reaches the control.
    bool raggiungibile() const { return visibile_ && abilitato_; }
    /// Writes a property and tells if it changed.
    template <class T>
    void cambia(T& campo, const T& valore) {
        if (!(campo == valore)) {
            campo = valore;
            cambiato_.emit();
        }
    }
    CustodeCampi* custode() const { return custode_; }

private:
    std::string nome_;
    std::string tag_;
    bool visibile_ = true;
    bool abilitato_ = true;
    Aspetto aspetto_;
    CustodeCampi* custode_ = nullptr;
    sigc::signal<void()> cambiato_;
};

}  // namespace kelvo
