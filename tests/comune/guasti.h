#pragma once

#include "base/guasto.h"

namespace kelvo::prove {

/// Number of the fault that `f` raises; 0 if it raises none.
template <class F>
int numeroGuasto(F f) {
    try {
        f();
    } catch (const Guasto& guasto) {
        return guasto.codice();
    }
    return 0;
}

}  // namespace kelvo::prove
