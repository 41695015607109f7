#include "Contesto.h"

#include <fmt/format.h>

#include <cstdio>
#include <filesystem>

#include "app/FileIni.h"
#include "app/copiaUtente.h"
#include "base/file.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "platform/Piattaforma.h"

namespace kelvo::cli {

namespace {

constexpr int fileNonTrovato = 53;
constexpr int formatoNonValido = 321;

Piattaforma& piattaforma() {
    static const auto sistema = creaPiattaforma();
    return *sistema;
}

}  // namespace

void avvisa(const std::string& testo) {
    fmt::print(stderr, "kelvo-cli: {}\n", testo);
}

void stampa(const std::string& testo) {
    std::fwrite(testo.data(), 1, testo.size(), stdout);
}

Contesto::Contesto()
    : app_(piattaforma().cartellaProgramma(), piattaforma().cartellaTemporanea(),
           {*this, orologio_, piattaforma().file()}) {
    app_.theAmbiente.CartellaScritta(
        cartellaCopiata(app_.theAmbiente.CartellaProgramma(), piattaforma().cartellaCopia()));
    app_.comune.alErrore = [this](const ErroreRegistrato& errore) {
        errori_.push_back(errore);
        avvisa(fmt::format("{}: {} [{}, errore {}]", nomeFile(), errore.descrizione, errore.metodo, errore.numero));
    };
}

bool Contesto::configura(const OpzioniComuni& opzioni, bool calcola) {
    if (!opzioni.ini.empty()) {
        app_.theAmbiente.PercorsoIni(opzioni.ini);
    }
    app_.theAmbiente.PercentualeNotturna(opzioni.notte);
    const std::string ini = app_.theAmbiente.PercorsoIni();
    std::string testo;
    std::string motivo = leggiFile(ini, clsAmbiente::massimoIni, testo);
    if (motivo.empty() && FileIni::codificaNonValida(testo)) {
        motivo = "il testo non è in UTF-8 né in una codifica a un byte";
    }
    if (!motivo.empty()) {
        avvisa(fmt::format("configurazione '{}': {}", ini, motivo));
        return false;
    }
    try {
        app_.comune.LeggiConfigurazione();
    } catch (const Guasto& guasto) {
        avvisa(fmt::format("configurazione '{}': {}", ini, guasto.descrizione()));
        return false;
    }
    // The command line reports on standard error: the log belongs to the desktop program.
    app_.configurazione.PathErrore.clear();
    app_.configurazione.TraceAbilitato = false;
    const CoefficientiVeicoli coefficienti = app_.configurazione.coefficienti();
    for (std::size_t i = 0; calcola && i < coefficienti.size(); ++i) {
        if (!(coefficienti[i] > 0.0F)) {
            avvisa(fmt::format(
                "configurazione '{}': il coefficiente '{}' della sezione [VEICOLI EQUIVALENTI] {}", ini,
                chiaviCoefficienti[i],
                coefficienti[i] == 0.0F ? "manca o vale 0" : fmt::format("vale {}", testoNumero(coefficienti[i]))));
            return false;
        }
    }
    return true;
}

bool Contesto::carica(const std::string& file) {
    file_ = file;
    errori_.clear();
    std::string messaggio;
    bool esito = false;
    app_.caricaRotonda(file, messaggio, esito);
    if (!esito) {
        std::error_code ignorato;
        const bool manca = !std::filesystem::exists(percorsoDaTesto(file), ignorato);
        segnala(manca ? fileNonTrovato : formatoNonValido, "Load", messaggio);
    }
    caricato_ = esito;
    return esito;
}

void Contesto::segnala(int numero, const std::string& metodo, const std::string& descrizione) {
    errori_.push_back({.numero = numero, .metodo = metodo, .descrizione = descrizione});
    avvisa(fmt::format("{}: {}", nomeFile(), descrizione));
}

void Contesto::attenzione(const std::string& testo) const {
    avvisa(fmt::format("{}: attenzione: {}", nomeFile(), testo));
}

std::string Contesto::nomeFile() const {
    return file_.empty() ? "''" : file_;
}

Risposta Contesto::mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti /*pulsanti*/) {
    if (icona != Icona::critica) {
        avvisa(fmt::format("{}: {}", titolo, testo));
    }
    return Risposta::ok;
}

}  // namespace kelvo::cli
