#include "schermate/Installazione.h"

#include <algorithm>
#include <filesystem>

namespace kelvo::schermate {

namespace fs = std::filesystem;

Installazione::Installazione(const std::string& cartella) {
    const fs::path qui = programma();
    fs::create_directories(qui);
    for (const fs::directory_entry& voce : fs::directory_iterator(cartella)) {
        if (voce.is_directory() || voce.path().extension() == ".ini") {
            fs::copy(voce.path(), qui / voce.path().filename(), fs::copy_options::recursive);
        }
    }
    fs::copy(fs::path(cartella).parent_path() / "Progetti", qui.parent_path() / "Progetti");
    fs::create_directories(lavoro());
    fs::create_directories(recupero());
}

std::string Installazione::programma() const {
    return radice_.filePath(QStringLiteral("Prog/Kelvo")).toStdString();
}

std::string Installazione::lavoro() const {
    return radice_.filePath(QStringLiteral("lavoro")).toStdString();
}

std::string Installazione::recupero() const {
    return radice_.filePath(QStringLiteral("recupero")).toStdString();
}

std::vector<std::string> Installazione::esempi() const {
    std::vector<std::string> trovati;
    for (const fs::directory_entry& voce : fs::directory_iterator(fs::path(programma()).parent_path() / "Progetti")) {
        if (voce.path().extension() == ".klv") {
            trovati.push_back(voce.path().string());
        }
    }
    std::sort(trovati.begin(), trovati.end());
    return trovati;
}

}  // namespace kelvo::schermate
