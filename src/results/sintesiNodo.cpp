#include "results/sintesiNodo.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/guasto.h"
#include "base/numeri.h"
#include "results/grandezze.h"
#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {

namespace {

constexpr int minutiOra = 60;
constexpr Formato formatoFlusso = "#0.00";
constexpr Formato formatoSaturazione = "#0.000";

/// The figure as a table shows it.
double mostrato(float valore, Formato formato) {
    return leggiNumero(formatta(valore, formato)).value_or(0.0);
}

/// What the segments of a run add up to.
struct Somma {
    double flusso = 0.0;    ///< veic/min, one for each segment
    double capacita = 0.0;  ///< veic/h, one for each segment
    double ritardo = 0.0;   ///< delays, each times its flow

    void aggiungi(const Iterazione& record) {
        const auto q = static_cast<double>(record.Flusso);
        flusso += q;
        capacita += static_cast<double>(record.Capacita);
        ritardo += q * static_cast<double>(record.Ritardo);
    }
    void aggiungi(const DatiTraffico& traffico, int primo, int segmenti) {
        for (int s = primo; s < primo + segmenti; ++s) {
            if (s <= traffico.NumSegmentiTempo()) {
                aggiungi(traffico.GetIterazione(static_cast<std::int16_t>(s)));
            }
        }
    }
};

using Ingressi = std::vector<const DatiTraffico*>;

std::int16_t segmentiStudio(const Ingressi& ingressi) {
    std::int16_t n = 0;
    for (const DatiTraffico* traffico : ingressi) {
        n = std::max(n, traffico->NumSegmentiTempo());
    }
    return n;
}

Somma sommaDi(const Ingressi& ingressi, int primo, int segmenti) {
    Somma somma;
    for (const DatiTraffico* traffico : ingressi) {
        somma.aggiungi(*traffico, primo, segmenti);
    }
    return somma;
}

float perOra(double flussi, int segmenti) {
    return aSingolo(flussi / segmenti * minutiOra, [] { return std::string{"flusso dell'ora di punta"}; });
}

/// First segment of the run with the largest flow, from 1; 0 where nothing flows in any.
std::int16_t primoDiPunta(const Ingressi& ingressi, int segmenti) {
    std::int16_t trovato = 0;
    double massimo = 0.0;
    for (int s = 1; s + segmenti - 1 <= segmentiStudio(ingressi); ++s) {
        const double flusso = mostrato(perOra(sommaDi(ingressi, s, segmenti).flusso, segmenti), formatoFlusso);
        if (flusso > massimo) {
            massimo = flusso;
            trovato = static_cast<std::int16_t>(s);
        }
    }
    return trovato;
}

/// Figures of the peak hour of the entries together: of one entry, or of all.
VoceSintesi voceOra(const Ingressi& ingressi, int segmentiOra) {
    VoceSintesi voce;
    voce.livello = livelloServizio(0.0);
    const int segmenti = std::min<int>(segmentiOra, segmentiStudio(ingressi));
    voce.segmento = segmenti > 0 ? primoDiPunta(ingressi, segmenti) : std::int16_t{0};
    if (voce.segmento == 0) {
        return voce;
    }
    voce.segmenti = static_cast<std::int16_t>(segmenti);
    const Somma somma = sommaDi(ingressi, voce.segmento, segmenti);
    const double flusso = somma.flusso / segmenti * minutiOra;
    const double capacita = somma.capacita / segmenti;
    const auto luogo = [] { return std::string{"sintesi dell'ora di punta"}; };
    voce.Flusso = aSingolo(flusso, luogo);
    voce.Capacita = aSingolo(capacita, luogo);
    if (capacita > 0.0) {
        voce.riserva = aSingolo(1.0 - flusso / capacita, luogo);
    }
    voce.riservaVeicoli = aSingolo(capacita - flusso, luogo);
    voce.Ritardo = aSingolo(dividi(somma.ritardo, somma.flusso, luogo), luogo);
    voce.livello = livelloDiRitardo(voce.Ritardo);
    return voce;
}

void massimaSaturazione(const DatiTraffico& traffico, std::int16_t ingresso, VoceSintesi& voce) {
    double massima = 0.0;
    for (std::int16_t s = 1; s <= traffico.NumSegmentiTempo(); ++s) {
        const float saturazione = traffico.GetIterazione(s).Coeff_Sat;
        const double mostrata = mostrato(saturazione, formatoSaturazione);
        if (mostrata > massima) {
            massima = mostrata;
            voce.Coeff_Sat = saturazione;
            voce.segmentoSat = s;
            voce.ingressoSat = ingresso;
        }
    }
    voce.saturazioneAlta = massima > sogliaSaturazione;
}

/// The largest saturation of the junction is that of its worst entry, the first of equal ones.
void conIngresso(const VoceSintesi& voce, VoceSintesi& nodo) {
    if (mostrato(voce.Coeff_Sat, formatoSaturazione) > mostrato(nodo.Coeff_Sat, formatoSaturazione)) {
        nodo.Coeff_Sat = voce.Coeff_Sat;
        nodo.segmentoSat = voce.segmentoSat;
        nodo.ingressoSat = voce.ingressoSat;
        nodo.saturazioneAlta = voce.saturazioneAlta;
    }
}

std::string nomeIngresso(const Rotonda& rotonda, std::int16_t ingresso) {
    return rotonda.Ramo(ingresso).Descrizione();
}

}  // namespace

std::string testoOra(const Rotonda& rotonda, std::int16_t primo, std::int16_t segmenti) {
    const std::string inizio = testoIntervallo(rotonda, primo);
    const std::string fine = testoIntervallo(rotonda, primo + segmenti - 1);
    const std::string unione = " - ";
    return inizio.substr(0, inizio.find(unione)) + fine.substr(fine.find(unione));
}

SintesiNodo sintesiNodo(const Rotonda& rotonda) {
    SintesiNodo sintesi;
    sintesi.minutiSegmento = minutoCampo(rotonda.SegmentoTempo());
    const int nellOra = static_cast<int>(
        dividi(minutiOra, sintesi.minutiSegmento, [] { return std::string{"segmenti di tempo di 0 minuti"}; }));
    Ingressi tutti;
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        tutti.push_back(&rotonda.Ramo(i).theDatiTraffico());
    }
    const std::int16_t studio = segmentiStudio(tutti);
    sintesi.segmentiOra = std::min(static_cast<std::int16_t>(nellOra), studio);
    sintesi.oraIntera = sintesi.segmentiOra * sintesi.minutiSegmento == minutiOra;
    sintesi.studioBreve = studio < nellOra;
    sintesi.nodo = voceOra(tutti, sintesi.segmentiOra);
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        const DatiTraffico& traffico = *tutti[static_cast<std::size_t>(i) - 1];
        VoceSintesi voce = voceOra({&traffico}, sintesi.segmentiOra);
        massimaSaturazione(traffico, i, voce);
        conIngresso(voce, sintesi.nodo);
        sintesi.ingressi.push_back(std::move(voce));
    }
    return sintesi;
}

std::string avvisoSaturazione(const Rotonda& rotonda, const SintesiNodo& sintesi) {
    std::string elenco;
    for (const VoceSintesi& voce : sintesi.ingressi) {
        if (voce.saturazioneAlta) {
            elenco += elenco.empty() ? "" : "; ";
            elenco += nomeIngresso(rotonda, voce.ingressoSat) + " " + formatta(voce.Coeff_Sat, formatoSaturazione) +
                      " (" + testoIntervallo(rotonda, voce.segmentoSat) + ")";
        }
    }
    return elenco.empty() ? elenco : "Saturazione oltre " + formatta(sogliaSaturazione, "0.00") + ": " + elenco + ".";
}

std::string ingressoPeggiore(const Rotonda& rotonda, const SintesiNodo& sintesi) {
    const VoceSintesi& nodo = sintesi.nodo;
    if (nodo.ingressoSat == 0) {
        return {};
    }
    return "Ingresso peggiore: " + nomeIngresso(rotonda, nodo.ingressoSat) + ", saturazione " +
           formatta(nodo.Coeff_Sat, formatoSaturazione) + " nel segmento " +
           testoIntervallo(rotonda, nodo.segmentoSat) + ".";
}

std::string notaOraDiPunta(const SintesiNodo& sintesi) {
    const std::string minuti = testoNumero(sintesi.segmentiOra * sintesi.minutiSegmento);
    const std::string segmenti =
        sintesi.segmentiOra == 1
            ? "il segmento di " + minuti + " minuti"
            : testoNumero(sintesi.segmentiOra) + " segmenti consecutivi, in tutto " + minuti + " minuti,";
    std::string ora;
    if (sintesi.segmentiOra == 0) {
        return "La finestra di modellazione non ha segmenti di tempo.";
    }
    if (sintesi.studioBreve) {
        ora = "Lo studio dura meno di un'ora: come ora di punta valgono tutti i suoi " + minuti +
              " minuti; i flussi sono riportati all'ora.";
    } else if (sintesi.oraIntera) {
        ora = "Ora di punta di ogni ingresso e del nodo: " + segmenti + " con il flusso maggiore.";
    } else {
        ora = "Ora di punta di ogni ingresso e del nodo: " + segmenti +
              " con il flusso maggiore. Il segmento non divide l'ora: i flussi sono riportati all'ora.";
    }
    return ora;
}

std::vector<std::string> paroleSintesi(const Rotonda& rotonda, const SintesiNodo& sintesi) {
    std::vector<std::string> parole;
    for (const std::string& testo :
         std::array{avvisoSaturazione(rotonda, sintesi), ingressoPeggiore(rotonda, sintesi), notaOraDiPunta(sintesi),
                    sintesi.segmentiOra == 0 ? std::string{} : std::string{notaFigureSintesi}}) {
        if (!testo.empty()) {
            parole.push_back(testo);
        }
    }
    return parole;
}

}  // namespace kelvo
