#include "shell/contenutoProgetto.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <tuple>

#include "base/numeri.h"

namespace kelvo {

namespace {

constexpr std::int16_t soloSaturazione = 0;
constexpr std::int16_t curvaTempoFlusso = 1;
constexpr std::int16_t composizioneCostante = 0;

struct Esame {
    StatoDato stato = StatoDato::presente;
    std::string dettaglio;
};

Esame mancante(const std::string& dettaglio = {}) {
    return {StatoDato::mancante, dettaglio};
}

bool sempre(const Rotonda& /*rotonda*/) {
    return true;
}

bool conTraffico(const Rotonda& rotonda) {
    return rotonda.TipoAnalisi() != soloSaturazione;
}

Esame esaminaNome(const Rotonda& r, const Ramo* /*ramo*/) {
    return r.NomeFile().empty() ? mancante() : Esame{StatoDato::presente, r.NomeFile()};
}

Esame esaminaProfessionista(const Rotonda& r, const Ramo* /*ramo*/) {
    return r.NomeProfessionista().empty() ? mancante() : Esame{StatoDato::presente, r.NomeProfessionista()};
}

Esame esaminaTempi(const Rotonda& r, const Ramo* /*ramo*/) {
    const int passo = minutoCampo(r.SegmentoTempo());
    if (passo == 0 || minutiTra(r.TempoIniziale(), r.TempoFinale()) <= 0) {
        return mancante();
    }
    const Rotonda nuova;
    const bool iniziali = r.TempoIniziale() == nuova.TempoIniziale() && r.TempoFinale() == nuova.TempoFinale() &&
                          r.SegmentoTempo() == nuova.SegmentoTempo();
    return {
        iniziali ? StatoDato::predefinito : StatoDato::presente,
        fmt::format("{} - {}, segmenti di {} min", testoHHNN(r.TempoIniziale()), testoHHNN(r.TempoFinale()), passo)};
}

auto misure(const Ramo& ramo) {
    return std::tuple{ramo.LarghezzaIngresso(), ramo.SemiLarghezza(),  ramo.LunghezzaSvasatura(),
                      ramo.AngoloConflitto(),   ramo.RaggioIngresso(), ramo.DiametroInscritto()};
}

Esame esaminaGeometria(const Rotonda& /*rotonda*/, const Ramo* ramo) {
    Revisione conto;
    const Ramo nuovo(conto, "1Ramo", {});
    return {misure(*ramo) == misure(nuovo) ? StatoDato::predefinito : StatoDato::presente,
            fmt::format("e {} m, D {} m", formatta(ramo->LarghezzaIngresso(), "#0.00"),
                        formatta(ramo->DiametroInscritto(), "#0.00"))};
}

Esame esaminaTraffico(const Rotonda& r, const Ramo* ramo) {
    const DatiTraffico& dati = ramo->theDatiTraffico();
    if (r.TipoAnalisi() == curvaTempoFlusso) {
        const bool vuota = dati.FlussoTempo1() == 0.0F && dati.FlussoTempo2() == 0.0F && dati.FlussoTempo3() == 0.0F;
        return vuota ? mancante()
                     : Esame{StatoDato::presente,
                             fmt::format("picco {} veic/min", formatta(dati.FlussoTempo2(), "#0.00"))};
    }
    const auto& flussi = dati.FlussiSegmento();
    const double totale = std::accumulate(flussi.begin(), flussi.end(), 0.0);
    return totale == 0.0 ? mancante() : Esame{StatoDato::presente, fmt::format("{} veic", testoNumero(totale))};
}

Esame esaminaMatrice(const Rotonda& r, const Ramo* /*ramo*/) {
    std::string vuote;
    for (std::int16_t riga = 1; riga <= r.Rami().Count(); ++riga) {
        bool vuota = true;
        for (std::int16_t colonna = 1; colonna <= r.Rami().Count(); ++colonna) {
            vuota = vuota && (riga == colonna || r.MatriceSvolte(riga, colonna) == 0.0F);
        }
        if (vuota) {
            vuote += (vuote.empty() ? "" : ", ") + r.Ramo(riga).Descrizione();
        }
    }
    return vuote.empty() ? Esame{} : mancante("senza svolte da: " + vuote);
}

Esame esaminaComposizione(const Rotonda& r, const Ramo* ramo) {
    const ComposizioneTraffico& c = ramo->theComposizioneTraffico();
    if (r.TipoFlusso() != composizioneCostante) {
        const auto piena = [](const PerClasse& riga) {
            return std::any_of(riga.begin(), riga.end(), [](float veicoli) { return veicoli != 0.0F; });
        };
        return std::any_of(c.Categorie().begin(), c.Categorie().end(), piena) ? Esame{} : mancante();
    }
    constexpr float tutto = 100.0F;
    return {c.Autovetture() == tutto ? StatoDato::predefinito : StatoDato::presente,
            fmt::format("autovetture {} %", testoNumero(c.Autovetture()))};
}

/// A datum that a project needs.
struct Regola {
    const char* chiave;  ///< key of its window, less the digit of the leg
    const char* dato;
    bool perRamo;
    bool (*richiesto)(const Rotonda&);
    Esame (*esamina)(const Rotonda&, const Ramo*);  ///< the leg is null for a datum of the whole project
};

constexpr std::array regole{
    Regola{"keyAnagraficaRotonda", "Nome del progetto", false, sempre, esaminaNome},
    Regola{"keyAnagraficaProfessionista", "Professionista", false, sempre, esaminaProfessionista},
    Regola{"keyTempoModellazione", "Tempi di modellazione", false, sempre, esaminaTempi},
    Regola{"keyRamo", "Geometria", true, sempre, esaminaGeometria},
    Regola{"keyDatiTraffico", "Dati di traffico", true, conTraffico, esaminaTraffico},
    Regola{"keyMatriceSvolte", "Matrice delle svolte", false, sempre, esaminaMatrice},
    Regola{"keyComposizioneTraffico", "Composizione del traffico", true, sempre, esaminaComposizione},
};

}  // namespace

std::vector<VoceContenuto> contenutoProgetto(const Rotonda& rotonda) {
    std::vector<VoceContenuto> voci;
    for (const Regola& regola : regole) {
        if (!regola.richiesto(rotonda)) {
            continue;
        }
        if (!regola.perRamo) {
            const Esame esame = regola.esamina(rotonda, nullptr);
            voci.push_back({regola.chiave, regola.dato, {}, esame.stato, esame.dettaglio});
            continue;
        }
        for (std::int16_t i = 1; i <= rotonda.Rami().Count(); ++i) {
            const Ramo& ramo = rotonda.Ramo(i);
            const Esame esame = regola.esamina(rotonda, &ramo);
            voci.push_back(
                {fmt::format("{}{}", regola.chiave, i), regola.dato, ramo.Descrizione(), esame.stato, esame.dettaglio});
        }
    }
    return voci;
}

}  // namespace kelvo
