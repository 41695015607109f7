#include <fmt/format.h>

#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "modelli/scrittore.h"
#include "reports/zip.h"

namespace {

namespace fs = std::filesystem;

/// The parts beside the text: files of the folder "parti", their place in the template.
struct Parte {
    const char* file;
    const char* nome;
};
constexpr Parte parti[] = {{"tipi.xml", "[Content_Types].xml"},
                           {"pacchetto.rels", "_rels/.rels"},
                           {"documento.rels", "word/_rels/document.xml.rels"},
                           {"stili.xml", "word/styles.xml"},
                           {"numeri.xml", "word/numbering.xml"},
                           {"impostazioni.xml", "word/settings.xml"},
                           {"testa.xml", "word/header1.xml"},
                           {"piede.xml", "word/footer1.xml"},
                           {"nota.xml", "docProps/core.xml"}};

std::string leggi(const fs::path& percorso) {
    std::ifstream file(percorso, std::ios::binary);
    if (!file) {
        throw std::runtime_error(percorso.string() + ": il file non si apre");
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void componi(const fs::path& sorgente, const fs::path& uscita) {
    std::vector<kelvo::ooxml::Voce> voci;
    for (const Parte& parte : parti) {
        voci.push_back({parte.nome, leggi(sorgente.parent_path() / "parti" / parte.file)});
    }
    voci.push_back(
        {"word/document.xml", kelvo::modelli::scriviDocumento(kelvo::modelli::leggiModello(sorgente.string()))});
    std::string dati;
    const std::string errore = kelvo::ooxml::scriviArchivio(voci, dati);
    if (!errore.empty()) {
        throw std::runtime_error(errore);
    }
    fs::create_directories(uscita.parent_path());
    std::ofstream file(uscita, std::ios::binary);
    if (!(file << dati << std::flush)) {
        throw std::runtime_error(uscita.string() + ": il file non si scrive");
    }
}

}  // namespace

/// kelvo-modelli SOURCE TEMPLATE: makes a template of reports from its source.
int main(int argc, char** argv) {
    if (argc != 3) {
        fmt::print(stderr, "uso: kelvo-modelli SORGENTE MODELLO\n");
        return 2;
    }
    try {
        componi(argv[1], argv[2]);
        return 0;
    } catch (const std::exception& errore) {
        fmt::print(stderr, "kelvo-modelli: {}\n", errore.what());
        return 1;
    }
}
