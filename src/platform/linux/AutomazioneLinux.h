#pragma once

#include "app/automazione.h"

namespace kelvo {

/// This system has no registry: no key stands in it.
class RegistroLinux final : public RegistroMacchina {
public:
    std::vector<std::string> sottochiavi(const std::string& /*chiave*/) const override { return {}; }
    std::string valore(const std::string& /*chiave*/, const std::string& /*nome*/) const override { return {}; }
};

/// Nor programs that are driven by their automation names.
class AutomazioneLinux final : public AutomazioneCAD {
public:
    std::string impedimento() const override;
    std::unique_ptr<ProgrammaCAD> inCorso(const std::string& /*nome*/) override { return nullptr; }
    /// Always fault 429.
    std::unique_ptr<ProgrammaCAD> crea(const std::string& nome) override;
};

}  // namespace kelvo
