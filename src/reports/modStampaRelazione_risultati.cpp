#include <fmt/format.h>

#include <array>

#include "base/numeri.h"
#include "reports/celle.h"
#include "reports/modStampaRelazione.h"
#include "reports/segnaposto.h"
#include "results/TabellaCapacitaUltima.h"
#include "results/calcoloIpotesi.h"
#include "results/corsiaDestra.h"
#include "results/grandezze.h"
#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {

namespace {

constexpr Formato treDecimali = "0.000";
constexpr double colonnaTempoMm = 28.0;
constexpr double colonnaGrandezzaMm = 24.0;
constexpr double colonnaLivelloMm = 16.0;

using Riga = std::array<std::string, colonneRisultati>;

/// A segment of an entry: its interval, the five quantities, the level of service of the delay as it is shown.
Riga rigaSegmento(const Rotonda& rotonda, const Ramo& ramo, std::int16_t segmento) {
    const Iterazione record = ramo.theDatiTraffico().GetIterazione(segmento);
    Riga riga;
    riga[0] = testoIntervallo(rotonda, segmento);
    for (std::size_t q = 0; q < grandezze.size(); ++q) {
        riga.at(q + 1) = formatta(record.*grandezze[q].campo, grandezze[q].formato);
    }
    riga[colonnaLivello] = livelloServizio(leggiNumero(riga[colonnaRitardo]).value_or(0.0));
    return riga;
}

TabellaRelazione tabellaIngresso(const Rotonda& rotonda, const Ramo& ramo) {
    TabellaRelazione tabella = nuovaTabella(grandezze.size(), colonnaTempoMm, colonnaGrandezzaMm);
    tabella.colonne.push_back({colonnaLivelloMm, AllineamentoTesto::centro});
    std::vector<CellaRelazione> testa{cellaIntestazione("Tempo")};
    for (const Grandezza& grandezza : grandezze) {
        testa.push_back(cellaIntestazione(std::string{grandezza.intestazione}));
    }
    testa.push_back(cellaIntestazione(std::string{intestazioneLivello}));
    tabella.righe.push_back(std::move(testa));
    for (std::int16_t s = 1; s <= ramo.theDatiTraffico().NumSegmentiTempo(); ++s) {
        const Riga testi = rigaSegmento(rotonda, ramo, s);
        auto& riga = tabella.righe.emplace_back();
        riga.push_back(cellaNome(testi[0]));
        for (std::size_t c = 1; c + 1 < testi.size(); ++c) {
            riga.push_back({testi.at(c)});
        }
        riga.push_back(cellaLivello(testi.back()));
    }
    return tabella;
}

}  // namespace

void modStampaRelazione::riempiCapacitaUltima() {
    sezione("riempiCapacitaUltima", [&] {
        TabellaCapacitaUltima somme;
        somme.riempi(rotonda());
        const Tabella& figure = somme.tabella();
        const int n = rotonda().NumeroRami();
        Celle celle(*documento_, segnalibro::capacitaUltima);
        for (std::int16_t i = 1; i <= n; ++i) {
            celle.riga({nomeIngresso(i), formatta(rotonda().Ramo(i).CapacitaUltima(), treDecimali)});
        }
        celle.riga({figure.testo(n + 1, 1), figure.testo(n + 2, 1)});
        celle.riga({figure.testo(n + 1, 2), figure.testo(n + 2, 2)});
        celle.riga({figure.testo(n + 3, 0), figure.testo(n + 3, 1)});
    });
}

/// In a table of the template the rows follow one another, each entry headed by its name; at a paragraph each entry has
/// a table of its own. A study that is no study over time has no records to tell of.
void modStampaRelazione::riempiCapacitaCodeRitardi() {
    sezione("riempiCapacitaCodeRitardi", [&] {
        if (rotonda().TipoAnalisi() != analisi::curva && rotonda().TipoAnalisi() != analisi::tabella) {
            return;
        }
        togli(segnalibro::senzaCapacitaCodeRitardi);
        documento_->SelezionaSegnalibro(segnalibro::capacitaCodeRitardi);
        const bool inTabella = documento_->SelezioneInTabella();
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            const Ramo& ramo = rotonda().Ramo(i);
            if (!inTabella) {
                inserisciConDidascalia(
                    *documento_, fmt::format("Verifiche prestazionali - {} ({})", nomeIngresso(i), ramo.Descrizione()),
                    tabellaIngresso(rotonda(), ramo));
                continue;
            }
            Riga riga{nomeIngresso(i)};
            for (std::int16_t s = 0; s <= ramo.theDatiTraffico().NumSegmentiTempo(); ++s) {
                for (const std::string& testo : s == 0 ? riga : rigaSegmento(rotonda(), ramo, s)) {
                    documento_->CellaSuccessiva();
                    documento_->ScriviTesto(testo);
                }
            }
        }
    });
}

void modStampaRelazione::riempiCorsiaDX() {
    sezione("riempiCorsiaDX", [&] {
        const std::optional<AnalisiCorsiaDX> analisi =
            servizi_.corsiaDX ? servizi_.corsiaDX() : std::optional<AnalisiCorsiaDX>{};
        if (!analisi) {
            return;
        }
        for (std::size_t k = 0; k < posizioniDX.size(); ++k) {
            const std::string flusso = analisi->corsie[k] ? " ==> " + flussoSvolta(rotonda(), k) : std::string{" -"};
            InserisciVariabileWord(segnaposto::ipotesi[k], std::string{posizioniDX[k].testo} + flusso);
        }
        togli(segnalibro::senzaCorsiaDX);
        documento_->SelezionaSegnalibro(segnalibro::corsiaDX);
        if (!documento_->SelezioneInTabella()) {
            inserisciConDidascalia(*documento_, "Confronto senza e con (*) corsie di svolta a destra",
                                   comeTabella(analisi->tabella));
            return;
        }
        for (int r = 0; r < analisi->tabella.righe(); ++r) {
            for (int c = 0; c < analisi->tabella.colonne(); ++c) {
                documento_->CellaSuccessiva();
                documento_->ScriviTesto(analisi->tabella.testo(r, c));
            }
        }
    });
}

}  // namespace kelvo
