#pragma once

#include <functional>

#include "app/Applicazione.h"
#include "app/cornice.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/clsResize.h"

namespace kelvo {

/// What the window switcher asks of the main window's surface, in its units.
class AreaLavoro {
public:
    AreaLavoro() = default;
    AreaLavoro(const AreaLavoro&) = delete;
    AreaLavoro& operator=(const AreaLavoro&) = delete;
    virtual ~AreaLavoro() = default;

    /// Place of the tree.
    virtual Rettangolo albero() const = 0;
    /// Width of the inside of the frame.
    virtual double larghezzaInterna() const = 0;
    /// Shows a window where it stands.
    virtual void mostra(Finestra& finestra) = 0;
    /// Gives a window its place; it stays there from then on.
    virtual void colloca(Finestra& finestra, const Rettangolo& posto) = 0;
    virtual void nascondi(Finestra& finestra) = 0;
    /// Dresses the tool bar of a window in the main colour.
    virtual void vestiBarra(Finestra& finestra) = 0;
    /// Makes a resizer for a window and lets it place the panels in proportion to the window's size.
    virtual void ridimensiona(Finestra& finestra) = 0;
};

/// Place of a window in the work area: right of the tree, as high as it, as wide as what is left less 140.
Rettangolo postoFinestra(const Rettangolo& albero, double larghezzaInterna);

/// Switches the window in the work area.
class modGestioneFinestre {
public:
    modGestioneFinestre(Applicazione& app, StatoFinestre& stato, AreaLavoro& area)
        : app_(app), stato_(stato), area_(area) {}

    /// Brings a window to the work area; null does nothing and answers true. False: the window at hand refused to be
    /// left, and stays. A fault is recorded; the answer then tells whether the window has come up all the same.
    bool ShowForm(Finestra* finestra);
    /// The window at hand; null for none.
    Finestra* corrente() const { return corrente_; }
    /// Hides the window at hand without asking it.
    void chiudiCorrente();

private:
    bool lasciaCorrente();
    void avvisaOpzioni();

    Applicazione& app_;
    StatoFinestre& stato_;
    AreaLavoro& area_;
    Finestra* corrente_ = nullptr;
};

}  // namespace kelvo
