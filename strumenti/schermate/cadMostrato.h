#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/automazione.h"
#include "base/guasto.h"

namespace kelvo::schermate {

/// A machine with two versions of the CAD program.
class RegistroMostrato final : public RegistroMacchina {
public:
    std::vector<std::string> sottochiavi(const std::string& chiave) const override {
        if (chiave.ends_with("\\AutoCAD")) {
            return {"R16.2", "R17.2"};
        }
        return {"ACAD-7001:410"};
    }
    std::string valore(const std::string& chiave, const std::string& nome) const override {
        if (nome == "Language") {
            return "Italiano";
        }
        return chiave.find("R16.2") != std::string::npos ? "C:\\Programmi\\AutoCAD 2006\\"
                                                         : "C:\\Programmi\\AutoCAD 2009\\";
    }
};

/// It could be driven; here it never is.
class AutomazioneMostrata final : public AutomazioneCAD {
public:
    std::string impedimento() const override { return {}; }
    std::unique_ptr<ProgrammaCAD> inCorso(const std::string& /*nome*/) override { return nullptr; }
    std::unique_ptr<ProgrammaCAD> crea(const std::string& nome) override {
        throw guastoAutomazione(componenteActiveX, nome);
    }
};

}  // namespace kelvo::schermate
