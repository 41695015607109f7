#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/Rotonda.h"

namespace kelvo {

/// How far a datum of the project has come.
enum class StatoDato : std::uint8_t {
    presente,
    predefinito,  ///< still as a new project has it
    mancante,
};

/// One datum of the project.
struct VoceContenuto {
    std::string chiave;  ///< key of the window where it is given
    std::string dato;
    std::string ramo;  ///< name of the leg; empty for the whole project
    StatoDato stato = StatoDato::presente;
    std::string dettaglio;
};

/// What a project holds and what it lacks, in the order in which it is given. Data that the kind of analysis does not
/// ask for are left out.
std::vector<VoceContenuto> contenutoProgetto(const Rotonda& rotonda);

}  // namespace kelvo
