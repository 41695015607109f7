#include "platform/linux/cartelle.h"

#include <filesystem>

namespace kelvo {

std::string cartellaEseguibile() {
    std::error_code errore;
    const std::filesystem::path programma = std::filesystem::read_symlink("/proc/self/exe", errore);
    return errore ? std::string{"."} : programma.parent_path().string();
}

std::string cartellaTemporanea() {
    std::error_code errore;
    const std::filesystem::path cartella = std::filesystem::temp_directory_path(errore);
    return errore ? std::string{"."} : cartella.string();
}

}  // namespace kelvo
