#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "base/guasto.h"
#include "base/testo.h"
#include "reports/DocumentoOoxml.h"
#include "reports/DocumentoRelazione.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t massimoModello = std::uint64_t{32} * 1024 * 1024;
constexpr std::array<std::string_view, 2> nuove{".DOTX", ".DOCX"};
constexpr std::array<std::string_view, 4> note{".DOTX", ".DOCX", ".DOT", ".DOC"};

bool finisce(std::string_view nome, std::string_view estensione) {
    return nome.size() > estensione.size() &&
           maiuscoleAscii(nome.substr(nome.size() - estensione.size())) == estensione;
}

bool eFile(const std::string& percorso) {
    std::error_code errore;
    return fs::is_regular_file(percorsoDaTesto(percorso), errore);
}

std::string radiceDi(std::string_view nome) {
    for (const std::string_view estensione : note) {
        if (finisce(nome, estensione)) {
            return std::string(nome.substr(0, nome.size() - estensione.size()));
        }
    }
    return std::string(nome);
}

/// The first file of the folder of `percorso`, in alphabetical order, of its stem and any extension.
std::string conAltraEstensione(const std::string& percorso) {
    const fs::path cercato = percorsoDaTesto(percorso);
    const std::string stelo = maiuscoleAscii(testoDaPercorso(cercato.filename()));
    std::string trovato;
    std::error_code errore;
    for (auto voce = fs::directory_iterator(cercato.parent_path(), errore); !errore && voce != fs::directory_iterator();
         voce.increment(errore)) {
        const bool suo = maiuscoleAscii(testoDaPercorso(voce->path().stem())) == stelo;
        const std::string intero = testoDaPercorso(voce->path());
        if (suo && eFile(intero) && (trovato.empty() || intero < trovato)) {
            trovato = intero;
        }
    }
    return trovato;
}

}  // namespace

std::string trovaModello(const std::string& cartella, std::string_view nome) {
    const std::string comeSta = percorsoSenzaMaiuscole(cartella, nome);
    if (finisce(nome, nuove[0]) || finisce(nome, nuove[1])) {
        if (eFile(comeSta)) {
            return comeSta;
        }
    }
    const std::string stelo = radiceDi(nome);
    for (const std::string_view estensione : {".dotx", ".docx"}) {
        const std::string percorso = percorsoSenzaMaiuscole(cartella, stelo + std::string(estensione));
        if (eFile(percorso)) {
            return percorso;
        }
    }
    return eFile(comeSta) ? comeSta : conAltraEstensione(percorsoSenzaMaiuscole(cartella, stelo));
}

std::unique_ptr<DocumentoRelazione> documentoDaModello(const std::string& cartella, std::string_view nome) {
    const std::string percorso = trovaModello(cartella, nome);
    if (percorso.empty()) {
        throw Guasto::conParole(NumeroGuasto::fileNonTrovato,
                                fmt::format("Il modello \"{}\" non esiste nella cartella {}", nome, cartella));
    }
    std::string dati;
    const std::string errore = leggiFile(percorso, massimoModello, dati);
    if (!errore.empty()) {
        throw Guasto::conParole(NumeroGuasto::operazioneImpossibile,
                                fmt::format("Il modello \"{}\" non può essere letto: {}", nome, errore));
    }
    return documentoDaContenuto(dati, testoDaPercorso(percorsoDaTesto(percorso).filename()));
}

std::unique_ptr<DocumentoRelazione> documentoDaContenuto(const std::string& dati, std::string_view nome) {
    auto documento = std::make_unique<ooxml::DocumentoOoxml>();
    const std::string errore = documento->apri(dati);
    if (!errore.empty()) {
        throw Guasto::conParole(NumeroGuasto::operazioneImpossibile,
                                fmt::format("Il modello \"{}\" non può essere usato: {}", nome, errore));
    }
    return documento;
}

}  // namespace kelvo
