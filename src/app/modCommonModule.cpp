#include "app/modCommonModule.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>

#include "base/file.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

const std::string sezioneVeicoli = "VEICOLI EQUIVALENTI";
const std::string sezioneAlbero = "OPZ_EXPLORER";
const std::string chiaveAlbero = "Rami";
const std::string sezioneMenu = "OPZ_MENU";
const std::string chiaveMenu = "Attivo";

void rendiScrivibile(const fs::path& file) {
    std::error_code errore;
    const fs::perms permessi = fs::status(file, errore).permissions();
    if (!errore && (permessi & fs::perms::owner_write) == fs::perms::none) {
        fs::permissions(file, fs::perms::owner_write, fs::perm_options::add, errore);
    }
}

}  // namespace

modCommonModule::modCommonModule(clsAmbiente& ambiente, Configurazione& configurazione, FinestraMessaggi& messaggi,
                                 Orologio& orologio)
    : ambiente_(ambiente), configurazione_(configurazione), messaggi_(messaggi), orologio_(orologio) {}

std::string modCommonModule::leggi(const std::string& sezione, const std::string& chiave) const {
    return ambiente_.LeggiIni(sezione, chiave, ambiente_.PercorsoIni());
}

float modCommonModule::leggiSingolo(const std::string& sezione, const std::string& chiave) const {
    const std::string testo = leggi(sezione, chiave);
    if (testo.empty()) {
        return 0.0F;
    }
    const auto valore = kelvo::leggiSingolo(testo, Separatore::virgolaOPunto);
    if (!valore) {
        throw Guasto(NumeroGuasto::tipoNonCorrispondente,
                     fmt::format("Kelvo.ini, [{}] {}={}", sezione, chiave, utf8Valido(testo)));
    }
    return *valore;
}

std::int16_t modCommonModule::leggiIntero(const std::string& sezione, const std::string& chiave) const {
    return aIntero16(arrotondaPari(static_cast<double>(leggiSingolo(sezione, chiave))),
                     [&] { return fmt::format("Kelvo.ini, [{}] {}", sezione, chiave); });
}

std::string modCommonModule::scriviIntero(const std::string& sezione, const std::string& chiave, std::int16_t valore,
                                          std::int16_t& globale) {
    const std::string errore = ambiente_.ScriviIni(ambiente_.PercorsoIni(), sezione, chiave, testoNumero(valore));
    globale = leggiIntero(sezione, chiave);
    return errore;
}

float modCommonModule::LeggiCoefficiente(std::size_t indice) const {
    return leggiSingolo(sezioneVeicoli, std::string{chiaviCoefficienti.at(indice)});
}

CoefficientiVeicoli modCommonModule::leggiCoefficienti() const {
    CoefficientiVeicoli valori{};
    for (std::size_t i = 0; i < valori.size(); ++i) {
        valori[i] = LeggiCoefficiente(i);
    }
    return valori;
}

void modCommonModule::LeggiConfigurazione() {
    LeggiConfigurazione([](const Guasto& guasto) { throw Guasto(guasto); });
}

void modCommonModule::LeggiConfigurazione(const std::function<void(const Guasto&)>& alGuasto) {
    const auto passo = [&](const auto& leggiChiave) {
        try {
            leggiChiave();
        } catch (const Guasto& guasto) {
            alGuasto(guasto);
        }
    };
    passo([&] { configurazione_.PathErrore = leggi("FILE_LOG", "PathError"); });
    passo([&] { configurazione_.LayoutPannello = leggiIntero("LAY_OUT", "CustomPanel"); });
    passo([&] { configurazione_.TraceAbilitato = leggi("TRACE_ENABLED", "TraceEnabled") == "TRUE"; });
    passo([&] { LeggiAvvioFilmato(); });
    CoefficientiVeicoli valori = configurazione_.coefficienti();
    for (std::size_t i = 0; i < valori.size(); ++i) {
        passo([&] { valori[i] = LeggiCoefficiente(i); });
    }
    configurazione_.coefficienti(valori);
}

std::int16_t modCommonModule::LeggiOpzExplorer() {
    configurazione_.OpzExplorer = leggiIntero(sezioneAlbero, chiaveAlbero);
    return configurazione_.OpzExplorer;
}

std::int16_t modCommonModule::LeggiOpzMenu() {
    configurazione_.OpzMenu = leggiIntero(sezioneMenu, chiaveMenu);
    return configurazione_.OpzMenu;
}

std::string modCommonModule::ScriviCustomPanel(std::int16_t valore) {
    return scriviIntero("LAY_OUT", "CustomPanel", valore, configurazione_.LayoutPannello);
}

std::string modCommonModule::ScriviAvvioFilmato(std::int16_t valore) {
    return scriviIntero("10_MOTIVI", "Avvia", valore, configurazione_.AvvioFilmato);
}

std::string modCommonModule::ScriviOpzExplorer(std::int16_t valore) {
    return scriviIntero(sezioneAlbero, chiaveAlbero, valore, configurazione_.OpzExplorer);
}

std::string modCommonModule::ScriviOpzMenu(std::int16_t valore) {
    return scriviIntero(sezioneMenu, chiaveMenu, valore, configurazione_.OpzMenu);
}

std::string modCommonModule::ScriviVeicoliEquivalenti(const CoefficientiVeicoli& valori) {
    std::string primo;
    for (std::size_t i = 0; i < valori.size(); ++i) {
        const std::string errore = ambiente_.ScriviIni(ambiente_.PercorsoIni(), sezioneVeicoli,
                                                       std::string{chiaviCoefficienti[i]}, testoNumero(valori[i]));
        primo = primo.empty() ? errore : primo;
    }
    configurazione_.coefficienti(leggiCoefficienti());
    return primo;
}

std::string modCommonModule::percorsoLog() const {
    return ambiente_.PercorsoProgramma(configurazione_.PathErrore);
}

void modCommonModule::traceLog(const std::string& testo) {
    if (!configurazione_.TraceAbilitato) {
        return;
    }
    try {
        const fs::path file = percorsoDaTesto(percorsoLog());
        std::error_code ignorato;
        if (!fs::is_regular_file(file, ignorato)) {
            throw Guasto(NumeroGuasto::fileNonTrovato);
        }
        rendiScrivibile(file);
        std::ofstream log(file, std::ios::binary | std::ios::app);
        log << fmt::format("[{}] - {}", testoDataOra(orologio_.adesso()), testo) << fineRiga;
        log.flush();
        if (!log) {
            throw Guasto(NumeroGuasto::accessoPercorso);
        }
    } catch (const Guasto& guasto) {
        erroreLog(guasto.codice(), "modCommonModule:traceLog()",
                  fmt::format("{} : {}", guasto.codice(), guasto.descrizione()), true);
    }
}

void modCommonModule::erroreLog(int numero, const std::string& metodo, const std::string& descrizione, bool mostra) {
    if (alErrore) {
        alErrore({numero, metodo, descrizione});
    }
    if (mostra) {
        messaggi_.mostra(descrizione, "KELVO 2014" + metodo, Icona::critica, Pulsanti::ok);
    }
    if (configurazione_.PathErrore.empty()) {
        return;
    }
    // The module stands inside the method; its own field stays empty.
    const std::string riga = fmt::format("Errore nel modulo:  - Metodo: {} - Descrizione: {}", metodo, descrizione);
    const PartiData p = partiDi(orologio_.adesso());
    const fs::path file = percorsoDaTesto(percorsoLog());
    std::error_code ignorato;
    if (fs::exists(file, ignorato) && !fs::is_regular_file(file, ignorato)) {
        return;  // opening a pipe would wait for its reader
    }
    rendiScrivibile(file);
    std::ofstream log(file, std::ios::binary | std::ios::app);
    log << fmt::format("SCRITTURA FILELOGERROR.TXT: {:02}/{:02}/{:04} {:02}.{:02}.{:02}", p.giorno, p.mese, p.anno,
                       p.ora, p.minuto, p.secondo)
        << fineRiga << fineRiga << numero << fineRiga << riga << fineRiga << fineRiga << fineRiga;
}

}  // namespace kelvo
