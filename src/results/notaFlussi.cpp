#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "results/inVigore.h"

namespace kelvo {

namespace {

constexpr std::int16_t analisiCurva = 1;
constexpr std::int16_t analisiTabella = 2;
constexpr std::int16_t composizioneCostante = 0;
constexpr std::int16_t composizionePerSegmento = 1;
constexpr const char* senzaMatrice = "La matrice delle svolte è vuota: nessun flusso circola nell'anello.";

/// Legs that are asked, by their numbers.
struct Gruppo {
    std::int16_t da = 1;
    std::int16_t a = 0;

    template <class Prova>
    bool ognuno(const Rotonda& rotonda, const Prova& prova) const {
        for (std::int16_t i = da; i <= a; ++i) {
            if (!prova(rotonda.Ramo(i))) {
                return false;
            }
        }
        return true;
    }
};

bool senzaFlussi(const Ramo& ramo) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    for (std::int16_t s = 1; s <= traffico.NumSegmentiTempo(); ++s) {
        if (traffico.GetIterazione(s).Flusso != 0.0F) {
            return false;
        }
    }
    return true;
}

bool senzaSegmenti(const Ramo& ramo) {
    return ramo.theDatiTraffico().NumSegmentiTempo() == 0;
}

bool senzaCurva(const Ramo& ramo) {
    const DatiTraffico& t = ramo.theDatiTraffico();
    return t.FlussoTempo1() == 0.0F && t.FlussoTempo2() == 0.0F && t.FlussoTempo3() == 0.0F;
}

bool senzaTabella(const Ramo& ramo) {
    const std::vector<float>& flussi = ramo.theDatiTraffico().FlussiSegmento();
    return std::all_of(flussi.begin(), flussi.end(), [](float f) { return f == 0.0F; });
}

bool senzaPercentuali(const Ramo& ramo) {
    const ComposizioneTraffico& c = ramo.theComposizioneTraffico();
    const std::array classi{c.Autoarticolati(), c.Autotreni(),       c.Pullman(),    c.Camper(),
                            c.Roulotte(),       c.VeicoliDueRuote(), c.Autovetture()};
    return std::all_of(classi.begin(), classi.end(), [](float p) { return p == 0.0F; });
}

bool senzaCategorie(const Ramo& ramo) {
    const TabellaCategorie& righe = ramo.theComposizioneTraffico().Categorie();
    return std::all_of(righe.begin(), righe.end(), [](const PerClasse& riga) {
        return std::all_of(riga.begin(), riga.end(), [](float v) { return v == 0.0F; });
    });
}

std::string motivo(const Applicazione& app, const Gruppo& gruppo) {
    const Rotonda& r = app.theRotonda();
    const bool curva = r.TipoAnalisi() == analisiCurva;
    if (!curva && r.TipoAnalisi() != analisiTabella) {
        return "l'analisi è di sola saturazione (Opzioni).";
    }
    if (gruppo.ognuno(r, senzaSegmenti)) {
        return "la finestra di modellazione non ha segmenti di tempo (Tempi di modellazione).";
    }
    if (gruppo.ognuno(r, curva ? senzaCurva : senzaTabella)) {
        return "non c'è domanda di traffico (Dati di traffico).";
    }
    if (r.TipoFlusso() != composizioneCostante && r.TipoFlusso() != composizionePerSegmento) {
        return "la composizione del traffico scelta non è fra quelle previste (Opzioni).";
    }
    if (gruppo.ognuno(r, r.TipoFlusso() == composizioneCostante ? senzaPercentuali : senzaCategorie)) {
        return "la composizione del traffico è vuota (Composizione del traffico).";
    }
    const CoefficientiVeicoli coefficienti = app.configurazione.coefficienti();
    if (std::all_of(coefficienti.begin(), coefficienti.end(), [](float c) { return c == 0.0F; })) {
        return "i coefficienti dei veicoli equivalenti sono tutti 0 (Opzioni).";
    }
    if (!app.risultatiAttuali()) {
        return "il calcolo con questi dati non è stato eseguito o non è riuscito.";
    }
    return curva ? "la curva di domanda non cade in alcun segmento di tempo con veicoli."
                 : "i veicoli contati non hanno una composizione nel loro segmento di tempo.";
}

}  // namespace

bool matriceVuota(const Rotonda& rotonda) {
    Matrice matrice;
    rotonda.GetMatriceSvolte(matrice);
    return std::all_of(matrice.begin(), matrice.end(), [](const std::vector<float>& riga) {
        return std::all_of(riga.begin(), riga.end(), [](float cella) { return cella == 0.0F; });
    });
}

std::string notaFlussi(const Applicazione& app, std::int16_t ramo) {
    const Rotonda& rotonda = app.theRotonda();
    const Gruppo gruppo = ramo == 0 ? Gruppo{1, rotonda.Rami().Count()} : Gruppo{ramo, ramo};
    std::string nota;
    if (gruppo.ognuno(rotonda, senzaFlussi)) {
        nota = fmt::format("{} sono 0: {}", ramo == 0 ? "Tutti i flussi" : "Tutti i flussi dell'ingresso",
                           motivo(app, gruppo));
    }
    if (matriceVuota(rotonda)) {
        nota += (nota.empty() ? "" : " ") + std::string{senzaMatrice};
    }
    return nota;
}

}  // namespace kelvo
