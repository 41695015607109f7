#pragma once

#include <vector>

#include "shell/servizi/controlli.h"

namespace kelvo {

/// A window with keys of its own, beside those of its tool bar, that the status bar tells.
class TastiPropri {
public:
    TastiPropri() = default;
    TastiPropri(const TastiPropri&) = delete;
    TastiPropri& operator=(const TastiPropri&) = delete;
    virtual ~TastiPropri() = default;

    /// The keys as the user reads them, and what they do.
    virtual std::vector<SuggerimentoTasto> suggerimenti() const = 0;
};

}  // namespace kelvo
