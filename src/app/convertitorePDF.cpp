#include "app/convertitorePDF.h"

#include <fmt/format.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>

namespace kelvo {

namespace fs = std::filesystem;

namespace {

/// Names of the office program, the first that stands is taken.
constexpr std::array nomiProgramma{"soffice", "libreoffice"};
constexpr const char* assente =
    "non c'è un programma d'ufficio che lo faccia (LibreOffice). Installarlo, oppure aprire la relazione e salvarla "
    "come "
    "PDF";
constexpr const char* nomeDocumento = "documento.docx";
constexpr const char* nomePDF = "documento.pdf";
constexpr std::uint64_t massimoPDF = std::uint64_t{256} * 1024 * 1024;

/// A new folder that goes with all that is in it.
class CartellaPropria {
public:
    explicit CartellaPropria(const std::string& sotto) {
        std::random_device caso;
        std::error_code errore;
        const fs::path nuova =
            percorsoDaTesto(sotto) /
            fmt::format("pdf-{:08x}{:08x}", static_cast<std::uint32_t>(caso()), static_cast<std::uint32_t>(caso()));
        if (fs::create_directories(nuova, errore)) {
            fs::permissions(nuova, fs::perms::owner_all, errore);
            percorso_ = nuova;
        }
        motivo_ = errore ? paroleErrore(errore) : std::string{};
    }
    CartellaPropria(const CartellaPropria&) = delete;
    CartellaPropria& operator=(const CartellaPropria&) = delete;
    ~CartellaPropria() {
        if (!percorso_.empty()) {
            std::error_code ignorato;  // what cannot be taken away stays among the temporary files
            fs::remove_all(percorso_, ignorato);
        }
    }

    bool fatta() const { return !percorso_.empty(); }
    const std::string& motivo() const { return motivo_; }
    std::string percorso() const { return testoDaPercorso(percorso_); }
    std::string file(const char* nome) const { return testoDaPercorso(percorso_ / nome); }

private:
    fs::path percorso_;
    std::string motivo_;
};

bool innocuo(char c) {
    const auto lettera = [c](char da, char a) { return c >= da && c <= a; };
    constexpr std::string_view altri = "/-._~:";
    return lettera('a', 'z') || lettera('A', 'Z') || lettera('0', '9') || altri.find(c) != std::string_view::npos;
}

}  // namespace

std::string percorsoPDF(const std::string& documento) {
    return testoDaPercorso(percorsoDaTesto(documento).replace_extension(".pdf"));
}

std::string indirizzoFile(const std::string& percorso) {
    const std::u8string parti = percorsoDaTesto(percorso).generic_u8string();
    std::string indirizzo = parti.empty() || parti.front() != u8'/' ? "file:///" : "file://";
    for (const char8_t parte : parti) {
        const auto c = static_cast<char>(parte);
        indirizzo += innocuo(c) ? std::string(1, c) : fmt::format("%{:02X}", static_cast<unsigned char>(c));
    }
    return indirizzo;
}

ConvertitoreUfficio::ConvertitoreUfficio(Processi& processi, SistemaFile& file, std::string cartella,
                                         std::chrono::milliseconds limite)
    : processi_(processi), file_(file), cartella_(std::move(cartella)), limite_(limite) {}

std::string ConvertitoreUfficio::programma() const {
    for (const char* nome : nomiProgramma) {
        if (std::string trovato = processi_.trova(nome); !trovato.empty()) {
            return trovato;
        }
    }
    return {};
}

std::string ConvertitoreUfficio::impedimento() const {
    return programma().empty() ? assente : std::string{};
}

std::string ConvertitoreUfficio::converti(const std::string& documento, const std::string& pdf,
                                          const std::function<void()>& intanto) {
    const std::string ufficio = programma();
    if (ufficio.empty()) {
        return assente;
    }
    const CartellaPropria lavoro(cartella_);
    if (!lavoro.fatta()) {
        return fmt::format("la cartella dei file temporanei non è scrivibile ({})", lavoro.motivo());
    }
    // A copy under a plain name: that of the document is the user's, and may be open elsewhere.
    std::error_code errore;
    if (!fs::copy_file(percorsoDaTesto(documento), percorsoDaTesto(lavoro.file(nomeDocumento)), errore)) {
        return fmt::format("il documento non è leggibile ({})", paroleErrore(errore));
    }
    if (std::string motivo = eseguiIn(ufficio, lavoro.percorso(), intanto); !motivo.empty()) {
        return motivo;
    }
    std::string dati;
    const std::string nonLetto = leggiFile(lavoro.file(nomePDF), massimoPDF, dati);
    if (!nonLetto.empty() || dati.substr(0, 5) != "%PDF-") {
        return fmt::format("il programma {} non ha scritto alcun PDF", ufficio);
    }
    return scriviFileSicuro(file_, pdf, dati);
}

std::string ConvertitoreUfficio::eseguiIn(const std::string& programma, const std::string& lavoro,
                                          const std::function<void()>& intanto) {
    const fs::path cartella = percorsoDaTesto(lavoro);
    const EsitoProcesso esito = processi_.esegui(
        programma,
        {"-env:UserInstallation=" + indirizzoFile(testoDaPercorso(cartella / "profilo")), "--headless", "--norestore",
         "--convert-to", "pdf", "--outdir", lavoro, testoDaPercorso(cartella / nomeDocumento)},
        limite_, intanto);
    switch (esito.fine) {
        case EsitoProcesso::Fine::uscito:
            return esito.codice == 0
                       ? std::string{}
                       : fmt::format("il programma {} è terminato con il codice {}", programma, esito.codice);
        case EsitoProcesso::Fine::interrotto:
            return fmt::format("il programma {} si è interrotto", programma);
        case EsitoProcesso::Fine::scaduto:
            return fmt::format("il programma {} non ha finito entro {} secondi ed è stato fermato", programma,
                               std::chrono::duration_cast<std::chrono::seconds>(limite_).count());
        case EsitoProcesso::Fine::nonAvviato:
            break;
    }
    return fmt::format("il programma {} non si avvia", programma);
}

}  // namespace kelvo
