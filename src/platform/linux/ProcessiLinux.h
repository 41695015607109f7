#pragma once

#include "app/processi.h"

namespace kelvo {

/// Programs as children of this process, each with a group of processes of its own, by which it is ended.
class ProcessiLinux final : public Processi {
public:
    /// In the folders of PATH.
    std::string trova(const std::string& nome) const override;
    EsitoProcesso esegui(const std::string& programma, const std::vector<std::string>& argomenti,
                         std::chrono::milliseconds limite, const std::function<void()>& intanto) override;
};

}  // namespace kelvo
