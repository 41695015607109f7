#pragma once

#include <fmt/format.h>

#include "app/Applicazione.h"
#include "base/guasto.h"

namespace kelvo {

/// Runs a procedure of the main window or the tree in its handler: a fault is recorded under `metodo`, as
/// "<number> : <description>", and shown. False after a fault.
template <class Procedura>
bool gestisci(Applicazione& app, const char* metodo, Procedura procedura) {
    try {
        procedura();
        return true;
    } catch (const Guasto& guasto) {
        app.comune.erroreLog(guasto.codice(), metodo, fmt::format("{} : {}", guasto.codice(), guasto.descrizione()),
                             true);
        return false;
    }
}

}  // namespace kelvo
