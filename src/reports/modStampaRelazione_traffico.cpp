#include <fmt/format.h>

#include <array>

#include "base/numeri.h"
#include "calc/totaliTraffico.h"
#include "reports/celle.h"
#include "reports/modStampaRelazione.h"
#include "reports/segnaposto.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {

namespace {

constexpr Formato dueDecimali = "0.00";
constexpr double colonnaTempoMm = 28.0;
constexpr double colonnaRamoMm = 24.0;

/// The vehicle classes by the names that the window of the shares and the other tables of a report have.
constexpr std::array<const char*, numeroClassi> categorie{
    "Autoarticolati", "Autotreni", "Autobus", "Camper", "Roulotte", "Veicoli a due ruote", "Autovetture"};

/// Counts by segments of all legs, and their totals.
TabellaRelazione tabellaConteggi(const Rotonda& rotonda) {
    const auto rami = static_cast<std::size_t>(rotonda.NumeroRami());
    TabellaRelazione tabella = nuovaTabella(rami, colonnaTempoMm, colonnaRamoMm);
    std::vector<CellaRelazione> testa{cellaIntestazione("TEMPO [h]")};
    std::array<std::vector<CellaRelazione>, 3> totali{
        {{cellaNome("FLUSSO TOTALE [veicoli]")}, {cellaNome("FLUSSO MEDIO [veicoli]")}, {cellaNome("FLUSSO ORARIO")}}};
    std::int16_t segmenti = 0;
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        const Ramo& ramo = rotonda.Ramo(i);
        const TotaliTraffico suoi = totaliConservati(ramo);
        testa.push_back(cellaIntestazione(nomeIngresso(i) + " [veicoli/min]"));
        totali[0].push_back({suoi.FlussoTotale});
        totali[1].push_back({suoi.FlussoMedio});
        totali[2].push_back({suoi.FlussoOrario});
        segmenti = std::max(segmenti, ramo.theDatiTraffico().NumSegmentiTempo());
    }
    tabella.righe.push_back(std::move(testa));
    for (std::int16_t s = 0; s < segmenti; ++s) {
        auto& riga = tabella.righe.emplace_back();
        riga.push_back(cellaNome(testoIntervallo(rotonda, s + 1)));
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            riga.push_back({testoNumero(rotonda.Ramo(i).theDatiTraffico().FlussoSegmento(s, 0))});
        }
    }
    for (auto& riga : totali) {
        tabella.righe.push_back(std::move(riga));
    }
    return tabella;
}

/// Vehicles of one leg by segments and classes.
TabellaRelazione tabellaCategorie(const Rotonda& rotonda, std::int16_t indice) {
    const ComposizioneTraffico& composizione = rotonda.Ramo(indice).theComposizioneTraffico();
    TabellaRelazione tabella = nuovaTabella(categorie.size(), colonnaTempoMm, colonnaRamoMm);
    // The longest of the names has the room that it needs.
    constexpr double autoarticolatiMm = 24.5;
    const double resto = tabellaRapporto::larghezzaMm - colonnaTempoMm - autoarticolatiMm;
    for (std::size_t c = 1; c < tabella.colonne.size(); ++c) {
        tabella.colonne[c].larghezzaMm = c == 1 ? autoarticolatiMm : resto / (numeroClassi - 1);
    }
    tabella.righeIntestazione = 3;
    const int tutte = static_cast<int>(categorie.size()) + 1;
    tabella.righe.push_back({cellaIntestazione(
        fmt::format("INGRESSO {} - {}", static_cast<char>('A' + indice - 1), rotonda.Ramo(indice).Descrizione()),
        tutte)});
    tabella.righe.push_back({cellaIntestazione("TEMPO [h]"), cellaIntestazione("TIPO [%]", tutte - 1)});
    std::vector<CellaRelazione> nomi{cellaIntestazione("")};
    for (const char* nome : categorie) {
        nomi.push_back(cellaIntestazione(nome));
    }
    tabella.righe.push_back(std::move(nomi));
    for (std::int16_t s = 0; s < composizione.NumSegmentiTempo(); ++s) {
        auto& riga = tabella.righe.emplace_back();
        riga.push_back(cellaNome(testoIntervallo(rotonda, s + 1)));
        for (std::int16_t c = 0; c < numeroClassi; ++c) {
            riga.push_back({testoNumero(composizione.CategoriaSegmento(s, c))});
        }
    }
    return tabella;
}

}  // namespace

void modStampaRelazione::riempiDatiTraffico() {
    sezione("riempiDatiTraffico", [&] {
        togli(segnalibro::senzaDatiTraffico);
        Celle celle(*documento_, segnalibro::datiTraffico);
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            const DatiTraffico& dati = rotonda().Ramo(i).theDatiTraffico();
            celle.riga({nomeIngresso(i), testoHHNN(dati.Tempo1()), formatta(dati.FlussoTempo1(), dueDecimali),
                        testoHHNN(dati.Tempo2()), formatta(dati.FlussoTempo2(), dueDecimali), testoHHNN(dati.Tempo3()),
                        formatta(dati.FlussoTempo3(), dueDecimali), formatta(dati.FlussoTotale(), dueDecimali),
                        formatta(dati.FlussoMedio(), dueDecimali), formatta(dati.FlussoOrario(), dueDecimali)});
        }
    });
}

void modStampaRelazione::riempiDatiTrafficoST() {
    sezione("riempiDatiTrafficoST", [&] {
        togli(segnalibro::senzaDatiTrafficoST);
        const TabellaRelazione tabella = tabellaConteggi(rotonda());
        documento_->SelezionaSegnalibro(segnalibro::datiTrafficoST);
        inserisciConDidascalia(*documento_, "Flussi degli ingressi per segmento di tempo", tabella);
    });
}

void modStampaRelazione::riempiComposizioneTraffico() {
    sezione("riempiComposizioneTraffico", [&] {
        Celle celle(*documento_, segnalibro::composizioneTraffico);
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            const ComposizioneTraffico& c = rotonda().Ramo(i).theComposizioneTraffico();
            celle.scrivi(nomeIngresso(i));
            for (const float quota : {c.Autoarticolati(), c.Autotreni(), c.Pullman(), c.Camper(), c.Roulotte(),
                                      c.VeicoliDueRuote(), c.Autovetture()}) {
                celle.scrivi(formatta(quota, dueDecimali));
            }
        }
    });
}

void modStampaRelazione::riempiComposizioneTrafficoST() {
    sezione("riempiComposizioneTrafficoST", [&] {
        documento_->SelezionaSegnalibro(segnalibro::composizioneTrafficoST);
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            inserisciConDidascalia(*documento_, "Composizione del traffico per segmento di tempo - " + nomeIngresso(i),
                                   tabellaCategorie(rotonda(), i));
        }
    });
}

}  // namespace kelvo
