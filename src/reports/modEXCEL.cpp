#include "reports/modEXCEL.h"

#include <fmt/format.h>

#include <array>
#include <filesystem>
#include <system_error>

#include "app/titoli.h"
#include "base/file.h"
#include "base/guasto.h"
#include "reports/foglioRisultati.h"
#include "results/risultatiProgetto.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr const char* metodo = "modStampaRelazione:compilaRelazioneExcel";
constexpr const char* cartellaFogli = "XLS";
constexpr const char* fileFoglio = "XLS\\Risultati.xlsx";

namespace testi {
constexpr const char* informazione = "KELVO 2014 - Informazione";
}  // namespace testi

}  // namespace

std::string segnoFoglioAperto(const std::string& percorso) {
    const fs::path file = percorsoDaTesto(fileDelCollegamento(percorso));
    const std::string nome = testoDaPercorso(file.filename());
    for (const std::string& segno : std::array{".~lock." + nome + "#", "~$" + nome}) {
        const fs::path accanto = file.parent_path() / percorsoDaTesto(segno);
        std::error_code ignorato;
        if (fs::exists(accanto, ignorato)) {
            return testoDaPercorso(accanto);
        }
    }
    return {};
}

EsitoFoglio modEXCEL::compilaRelazioneExcel() {
    try {
        return componi();
    } catch (const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), metodo, guasto.descrizione(), true);
    }
    return EsitoFoglio::fallito;
}

EsitoFoglio modEXCEL::componi() {
    std::string percorso = servizi_.percorso;
    if (percorso.empty()) {
        std::error_code ignorato;  // a folder that cannot be made is told by the file that cannot be written
        fs::create_directories(percorsoDaTesto(app_.theAmbiente.PercorsoProgramma(cartellaFogli)), ignorato);
        percorso = app_.theAmbiente.PercorsoProgramma(fileFoglio);
    }
    if (!daSostituire(percorso)) {
        return EsitoFoglio::annullato;
    }
    if (!assicuraRisultati(app_)) {
        return EsitoFoglio::fallito;
    }
    const std::string motivo = scriviFileSicuro(app_.file, percorso, foglioRisultati(app_));
    if (!motivo.empty()) {
        throw Guasto::conParole(NumeroGuasto::accessoPercorso,
                                fmt::format("Impossibile scrivere \"{}\": {}", percorso, motivo));
    }
    apre(percorso);
    return EsitoFoglio::fatto;
}

/// True where no spreadsheet program has the file open, or the user has seen to it. The mark of one that broke down
/// stays there: nobody is kept from going on.
bool modEXCEL::daSostituire(const std::string& percorso) {
    const std::string segno = segnoFoglioAperto(percorso);
    if (segno.empty()) {
        return true;
    }
    if (servizi_.documenti == nullptr) {
        throw Guasto::conParole(
            NumeroGuasto::autorizzazioneNegata,
            fmt::format("Il file \"{}\" è aperto in un foglio di calcolo: va prima chiuso (se non è più aperto, va "
                        "eliminato \"{}\")",
                        percorso, segno));
    }
    const std::string testo = fmt::format(
        "Il file è aperto in un foglio di calcolo:\r\n{}\r\nChiuderlo, poi premere OK per sostituirlo.", percorso);
    return servizi_.messaggi.mostra(testo, titoli::attenzione, Icona::esclamazione, Pulsanti::okAnnulla) ==
           Risposta::ok;
}

void modEXCEL::apre(const std::string& percorso) {
    if (servizi_.documenti != nullptr && !servizi_.documenti->apri(percorso)) {
        servizi_.messaggi.mostra(
            fmt::format("Nessun programma del sistema ha aperto il foglio di calcolo. Il file è:\r\n{}", percorso),
            testi::informazione, Icona::informazione, Pulsanti::ok);
    }
}

}  // namespace kelvo
