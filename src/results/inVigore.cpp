#include "results/inVigore.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "base/numeri.h"

namespace kelvo {

namespace {

constexpr Formato formatoPercento = "#0.00";
/// The coefficients in their order, as a person reads them.
constexpr std::array<std::string_view, 7> nomiClassi{"autoarticolati", "autotreni", "pullman",    "camper",
                                                     "roulotte",       "motocicli", "autovetture"};

std::string percento(double valore) {
    return formatta(valore, formatoPercento) + " %";
}

/// Reduction by pedestrians that counts: only where the entry has a crossing.
double pedoni(const Ramo& ramo) {
    return ramo.AttraversamentoPedonale() ? ramo.theAnalisiMarginale().AttraversamentoPedonale() : 0.0;
}

std::string notte(const Applicazione& app) {
    const int valore = app.theAmbiente.PercentualeNotturna();
    return app.theRotonda().CondizioniNotturne() ? testoNumero(valore) + " %" : "non in vigore";
}

std::string riduzioniRamo(const Ramo& ramo) {
    const std::string esterne = "condizioni esterne " + percento(ramo.theAnalisiMarginale().CondizioniEsterne());
    return esterne +
           (ramo.AttraversamentoPedonale() ? ", pedoni " + percento(pedoni(ramo)) : ", senza attraversamento pedonale");
}

std::string riduzioniRami(const Rotonda& rotonda) {
    std::string testo;
    for (std::int16_t i = 1; i <= rotonda.Rami().Count(); ++i) {
        const Ramo& ramo = rotonda.Ramo(i);
        const double esterne = ramo.theAnalisiMarginale().CondizioniEsterne();
        std::string parti = esterne != 0.0 ? "esterne " + percento(esterne) : "";
        if (pedoni(ramo) != 0.0) {
            parti += (parti.empty() ? "pedoni " : ", pedoni ") + percento(pedoni(ramo));
        }
        if (!parti.empty()) {
            testo += (testo.empty() ? "" : "; ") + ramo.Descrizione() + " (" + parti + ")";
        }
    }
    return testo.empty() ? "nessuna riduzione dei rami" : "riduzioni: " + testo;
}

}  // namespace

std::vector<VoceInVigore> inVigore(const Applicazione& app) {
    const Rotonda& rotonda = app.theRotonda();
    std::vector<VoceInVigore> voci{{"Percentile della coda", percento(static_cast<double>(rotonda.ValorePercentile()))},
                                   {"Condizioni notturne", notte(app)}};
    for (std::int16_t i = 1; i <= rotonda.Rami().Count(); ++i) {
        voci.push_back({rotonda.Ramo(i).Descrizione(), riduzioniRamo(rotonda.Ramo(i))});
    }
    const CoefficientiVeicoli valori = app.configurazione.coefficienti();
    for (std::size_t c = 0; c < valori.size(); ++c) {
        voci.push_back({fmt::format("Veicoli equivalenti, {}", nomiClassi[c]), formatta(valori[c], formatoPercento)});
    }
    return voci;
}

Tabella tabellaInVigore(const std::vector<VoceInVigore>& voci) {
    Tabella tabella(static_cast<int>(voci.size()) + 1, 2);
    tabella.cella(0, 0).testo = titoloInVigore;
    tabella.cella(0, 1).testo = "Valore";
    for (int r = 0; r < tabella.righe(); ++r) {
        if (r > 0) {
            const VoceInVigore& voce = voci[static_cast<std::size_t>(r) - 1];
            tabella.cella(r, 0).testo = voce.nome;
            tabella.cella(r, 1).testo = voce.valore;
        }
        for (int c = 0; c < 2; ++c) {
            Cella& cella = tabella.cella(r, c);
            cella.sfondo = r == 0 ? colori::intestazione : c == 0 ? colori::nomeIngresso : colori::dati;
            cella.inchiostro = r == 0 || c == 0 ? colori::bianco : colori::nero;
        }
    }
    return tabella;
}

std::string rigaInVigore(const Applicazione& app) {
    std::string coefficienti;
    for (const float valore : app.configurazione.coefficienti()) {
        coefficienti += " " + formatta(valore, formatoPercento);
    }
    return fmt::format("Percentile {} · notte {} · {} · veicoli equivalenti{}",
                       percento(static_cast<double>(app.theRotonda().ValorePercentile())), notte(app),
                       riduzioniRami(app.theRotonda()), coefficienti);
}

std::string avvisoNotte(const Applicazione& app) {
    const bool nulla = app.theRotonda().CondizioniNotturne() && app.theAmbiente.PercentualeNotturna() == 0;
    return nulla ? "Le condizioni notturne sono attive con incidenza 0: la capacità non viene ridotta (Opzioni)." : "";
}

}  // namespace kelvo
