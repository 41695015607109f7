#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

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

PerClasse percentuali(const Ramo& ramo) {
    const ComposizioneTraffico& c = ramo.theComposizioneTraffico();
    return {c.Autoarticolati(), c.Autotreni(),       c.Pullman(),    c.Camper(),
            c.Roulotte(),       c.VeicoliDueRuote(), c.Autovetture()};
}

bool vuota(const PerClasse& classi) {
    return std::all_of(classi.begin(), classi.end(), [](float v) { return v == 0.0F; });
}

/// A class that is there counts with its coefficient.
bool pesa(const PerClasse& classi, const CoefficientiVeicoli& coefficienti) {
    for (std::size_t i = 0; i < classi.size(); ++i) {
        if (classi[i] != 0.0F && coefficienti[i] != 0.0F) {
            return true;
        }
    }
    return false;
}

bool senzaComposizione(const Rotonda& rotonda, const Ramo& ramo) {
    if (rotonda.TipoFlusso() == composizioneCostante) {
        return vuota(percentuali(ramo));
    }
    const TabellaCategorie& righe = ramo.theComposizioneTraffico().Categorie();
    return std::all_of(righe.begin(), righe.end(), vuota);
}

bool senzaPeso(const Rotonda& rotonda, const Ramo& ramo, const CoefficientiVeicoli& coefficienti) {
    if (rotonda.TipoFlusso() == composizioneCostante) {
        return !pesa(percentuali(ramo), coefficienti);
    }
    const TabellaCategorie& righe = ramo.theComposizioneTraffico().Categorie();
    return std::none_of(righe.begin(), righe.end(), [&](const PerClasse& riga) { return pesa(riga, coefficienti); });
}

/// Vehicles are counted in a segment that has a composition for them.
bool contatiConPeso(const Ramo& ramo, const CoefficientiVeicoli& coefficienti) {
    const std::vector<float>& flussi = ramo.theDatiTraffico().FlussiSegmento();
    const TabellaCategorie& righe = ramo.theComposizioneTraffico().Categorie();
    for (std::size_t k = 0; k < std::min(flussi.size(), righe.size()); ++k) {
        if (flussi[k] != 0.0F && pesa(righe[k], coefficienti)) {
            return true;
        }
    }
    return false;
}

/// What leaves a leg without flows, whatever the segments are.
enum class Causa : std::uint8_t { nessuna, domanda, tipoComposizione, composizione, coefficienti };

Causa causaDi(const Rotonda& rotonda, const Ramo& ramo, const CoefficientiVeicoli& coefficienti) {
    if (rotonda.TipoAnalisi() == analisiCurva ? senzaCurva(ramo) : senzaTabella(ramo)) {
        return Causa::domanda;
    }
    if (rotonda.TipoFlusso() != composizioneCostante && rotonda.TipoFlusso() != composizionePerSegmento) {
        return Causa::tipoComposizione;
    }
    if (senzaComposizione(rotonda, ramo)) {
        return Causa::composizione;
    }
    return senzaPeso(rotonda, ramo, coefficienti) ? Causa::coefficienti : Causa::nessuna;
}

std::string testoCausa(Causa causa, bool tuttiZero) {
    switch (causa) {
        case Causa::domanda:
            return "non c'è domanda di traffico (Dati di traffico).";
        case Causa::tipoComposizione:
            return "la composizione del traffico scelta non è fra quelle previste (Opzioni).";
        case Causa::composizione:
            return "la composizione del traffico è vuota (Composizione del traffico).";
        case Causa::coefficienti:
            return tuttiZero ? "i coefficienti dei veicoli equivalenti sono tutti 0 (Opzioni)."
                             : "i coefficienti dei veicoli equivalenti delle classi presenti sono 0 (Opzioni).";
        case Causa::nessuna:
            break;
    }
    return {};
}

/// Why no leg of the group can have a flow; empty where one of them could.
std::string motivoComune(const Rotonda& rotonda, const Gruppo& gruppo, const CoefficientiVeicoli& coefficienti) {
    std::vector<Causa> cause;
    const bool tutti = gruppo.ognuno(rotonda, [&](const Ramo& ramo) {
        cause.push_back(causaDi(rotonda, ramo, coefficienti));
        return cause.back() != Causa::nessuna;
    });
    if (!tutti || cause.empty()) {
        return {};
    }
    const auto presente = [&](Causa causa) { return std::find(cause.begin(), cause.end(), causa) != cause.end(); };
    const bool tuttiZero = vuota(coefficienti);
    if (std::all_of(cause.begin(), cause.end(), [&](Causa causa) { return causa == cause.front(); })) {
        return testoCausa(cause.front(), tuttiZero);
    }
    // Two of them are of the whole project: they hold in the other legs too.
    if (presente(Causa::tipoComposizione)) {
        return testoCausa(Causa::tipoComposizione, tuttiZero);
    }
    if (presente(Causa::coefficienti)) {
        return tuttiZero ? testoCausa(Causa::coefficienti, tuttiZero)
                         : "in nessun ingresso ci sono insieme domanda e composizione del traffico con coefficienti "
                           "diversi da 0.";
    }
    return "in nessun ingresso ci sono insieme domanda e composizione del traffico.";
}

/// Demand and composition are there and do not meet in a segment that has a result.
std::string motivoSegmenti(const Rotonda& rotonda, const Gruppo& gruppo, const CoefficientiVeicoli& coefficienti) {
    const bool costante = rotonda.TipoFlusso() == composizioneCostante;
    // A class without weight is a composition to the reader, and none to the calculation.
    const bool conZeri = std::any_of(coefficienti.begin(), coefficienti.end(), [](float c) { return c == 0.0F; });
    if (rotonda.TipoAnalisi() == analisiCurva) {
        return fmt::format("la curva di domanda non cade in alcun segmento di tempo{}{}.",
                           costante ? "" : " con veicoli", !costante && conZeri ? " di coefficiente diverso da 0" : "");
    }
    const bool separati =
        !costante && gruppo.ognuno(rotonda, [&](const Ramo& ramo) { return !contatiConPeso(ramo, coefficienti); });
    return separati ? fmt::format("i veicoli contati non hanno una composizione{} nel loro segmento di tempo.",
                                  conZeri ? " con coefficienti diversi da 0" : "")
                    : "i veicoli contati cadono fuori dai segmenti che hanno un risultato.";
}

std::string motivo(const Applicazione& app, const Gruppo& gruppo) {
    const Rotonda& r = app.theRotonda();
    if (r.TipoAnalisi() != analisiCurva && r.TipoAnalisi() != analisiTabella) {
        return "l'analisi è di sola saturazione (Opzioni).";
    }
    if (gruppo.ognuno(r, senzaSegmenti)) {
        return "la finestra di modellazione non ha segmenti di tempo (Tempi di modellazione).";
    }
    const CoefficientiVeicoli coefficienti = app.configurazione.coefficienti();
    if (std::string comune = motivoComune(r, gruppo, coefficienti); !comune.empty()) {
        return comune;
    }
    if (!app.risultatiAttuali()) {
        return "il calcolo con questi dati non è stato eseguito o non è riuscito.";
    }
    return motivoSegmenti(r, gruppo, coefficienti);
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
