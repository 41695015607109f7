#pragma once

#include "app/processi.h"

namespace kelvo {

/// Programs as children of this process, each in a job of its own, with which it is ended.
class ProcessiWindows final : public Processi {
public:
    /// In the folders of PATH, then below the folders of programs where the office program is installed.
    std::string trova(const std::string& nome) const override;
    EsitoProcesso esegui(const std::string& programma, const std::vector<std::string>& argomenti,
                         std::chrono::milliseconds limite, const std::function<void()>& intanto) override;
};

/// An argument as the system's rules for command lines want it: between quotes where it needs them.
std::wstring argomentoWindows(const std::wstring& argomento);

}  // namespace kelvo
