#pragma once

#include "shell/servizi/clsResize.h"
#include "shell/servizi/modGestioneFinestre.h"

namespace kelvo {

/// Heights of the main window, in its units.
struct MetricheCornice {
    double altezzaCornice = 0.0;  ///< the whole frame
    double altezzaTitolo = 0.0;   ///< the system's caption
    double altezzaMenu = 0.0;     ///< the system's menu
    double altezzaBarra = 0.0;    ///< ctlToolbar
    double altezzaStato = 0.0;    ///< ctlStatusBar
};

/// What the main window asks of what is seen of it.
class Superficie : public AreaLavoro {
public:
    virtual void mostraCornice() = 0;
    virtual void mostraAlbero(bool visibile) = 0;
    virtual void collocaAlbero(const Rettangolo& posto) = 0;
    /// Moves the keyboard from the tree to the window at hand, or back.
    virtual void scambiaFuoco() = 0;
    virtual MetricheCornice metriche() const = 0;
    /// Size of the screen in twips.
    virtual Misura schermo() const = 0;
    /// Shows a window over the main one and returns when the user closed it.
    virtual void mostraModale(Finestra& finestra) = 0;
    /// Shows a window over the main one, which takes no gestures meanwhile, and returns at once.
    virtual void apriSopra(Finestra& finestra) = 0;
    virtual void chiudiSopra(Finestra& finestra) = 0;
    /// Shows the help window, beside which work goes on; one that is shown already comes to the front.
    virtual void mostraAiuto(Finestra& /*aiuto*/) {}
    /// The window that the keyboard stands in, where it is not the one of the work area; null else.
    virtual Finestra* finestraInFuoco() { return nullptr; }
    /// A window of the work area is about to be destroyed.
    virtual void dimentica(Finestra& finestra) = 0;
    /// Ends the event loop.
    virtual void termina() = 0;
};

}  // namespace kelvo
