#pragma once

#include "app/automazione.h"

namespace kelvo {

/// HKEY_LOCAL_MACHINE, in both views of a system of 64 bits: what stands in the second one alone, where programs of 32
/// bits have their keys, is found as well. A view that cannot be read is a fault where the other one gives nothing
/// either.
class RegistroWindows final : public RegistroMacchina {
public:
    std::vector<std::string> sottochiavi(const std::string& chiave) const override;
    /// A text with names of environment variables comes with their values.
    std::string valore(const std::string& chiave, const std::string& nome) const override;
};

}  // namespace kelvo
