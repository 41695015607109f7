#pragma once

#include "shell/servizi/Finestra.h"

namespace kelvo {

/// Brings up windows that belong to another one and have no key of their own: beside it, over it, or in its place.
class FinestreCollegate {
public:
    FinestreCollegate() = default;
    FinestreCollegate(const FinestreCollegate&) = delete;
    FinestreCollegate& operator=(const FinestreCollegate&) = delete;
    virtual ~FinestreCollegate() = default;

    /// Brings a window to the work area, as ShowForm; the selected node stays. False if the one at hand refused to be
    /// left.
    virtual bool mostra(Finestra& finestra) = 0;
    /// Shows a small window at the right edge, beside which work goes on; one that is shown already comes to the front.
    virtual void affianca(Finestra& finestra) = 0;
    /// Shows a window over the main one, which takes no gestures meanwhile; returns when the user closed it.
    virtual void sovrapponi(Finestra& finestra) = 0;
    /// Takes a window away that was put beside or over; nothing happens where it is not shown.
    virtual void chiudi(Finestra& finestra) = 0;
    /// A window is about to be destroyed.
    virtual void dimentica(Finestra& finestra) = 0;
};

}  // namespace kelvo
