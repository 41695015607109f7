#pragma once

#include "app/automazione.h"

namespace kelvo {

/// CAD programs as automation objects of the system, driven by the names of their operations alone, so that one build
/// serves every version of theirs. Used by the thread that made it.
class AutomazioneWindows final : public AutomazioneCAD {
public:
    AutomazioneWindows() = default;
    AutomazioneWindows(const AutomazioneWindows&) = delete;
    AutomazioneWindows& operator=(const AutomazioneWindows&) = delete;
    ~AutomazioneWindows() override;

    std::string impedimento() const override { return {}; }
    std::unique_ptr<ProgrammaCAD> inCorso(const std::string& nome) override;
    std::unique_ptr<ProgrammaCAD> crea(const std::string& nome) override;

private:
    void prepara();
    bool preparata_ = false;
    bool daChiudere_ = false;
};

}  // namespace kelvo
