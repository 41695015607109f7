#include "checkup/report.h"

#include <fmt/format.h>

#include "base/Tabella.h"
#include "base/testo.h"

namespace kelvo {

namespace {

constexpr std::string_view riga = "________________________________________________";
constexpr std::array<std::string_view, 6> legenda{riga,
                                                  "Legenda valori priorità messaggi",
                                                  "1 = Messaggio di Errore",
                                                  "2 = Messaggio di Verifica",
                                                  "3 = Messaggio di Informazione",
                                                  riga};

/// Bytes of the heading: as far as the first colon, which counts.
std::size_t fineTitolo(std::string_view testo) {
    const auto duePunti = testo.find(':');
    return duePunti == std::string_view::npos ? 0 : duePunti + 1;
}

}  // namespace

std::string_view nomeLivello(Livello livello) {
    constexpr std::array<std::string_view, livelli.size()> nomi{"Green", "Yellow", "Red"};
    return nomi[static_cast<std::size_t>(livello)];
}

std::string_view prioritaMessaggio(std::string_view chiave) {
    switch (chiave.empty() ? '\0' : chiave.front()) {
        case 'R':
            return "1";
        case 'Y':
            return "2";
        case 'G':
            return "3";
        default:
            return "+";
    }
}

std::string_view titoloRiscontro(std::string_view testo) {
    return testo.substr(0, fineTitolo(testo));
}

std::string_view messaggioRiscontro(std::string_view testo) {
    return testo.substr(fineTitolo(testo));
}

std::string testoReport(const AlberoRiscontri& albero, DataOra momento, std::string_view nomeProgetto) {
    std::string uscita;
    const auto scrivi = [&](std::string_view testo) { uscita.append(testo).append(fineRiga); };
    const auto voce = [&](std::string_view chiave, std::string_view testo) {
        scrivi(fmt::format("[{}]  - {}", prioritaMessaggio(chiave), testo));
    };
    scrivi("REPORT ANALISI ROTATORIA");
    scrivi({});
    voce(chiaveRadice, albero.radice);
    scrivi({});
    for (const Riscontro& riscontro : albero.riscontri) {
        voce(riscontro.chiave, riscontro.testo);
    }
    for (const std::string_view testo : legenda) {
        scrivi(testo);
    }
    return uscita + righeDiChiusura(momento, nomeProgetto);
}

}  // namespace kelvo
