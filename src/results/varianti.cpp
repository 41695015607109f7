#include "results/varianti.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "results/TabellaCapacitaUltima.h"
#include "results/livelloServizio.h"
#include "results/risultatiProgetto.h"
#include "results/sintesiNodo.h"
#include "results/tabellaRamo.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {

namespace {

template <class T>
Cifra cifra(T valore, Formato formato) {
    return {.valore = valore, .testo = formatta(valore, formato)};
}

Cifra parola(std::string testo) {
    return testo.empty() ? Cifra{} : Cifra{.valore = testo, .testo = testo};
}

/// Writes figures by the key of their quantity.
template <std::size_t N>
class Scrittura {
public:
    Scrittura(const std::array<GrandezzaVariante, N>& grandezze, std::array<Cifra, N>& cifre)
        : grandezze_(grandezze), cifre_(cifre) {}

    template <class T>
    void numero(std::string_view chiave, T valore) {
        const std::size_t i = posto(chiave);
        cifre_[i] = cifra(valore, grandezze_[i].formato);
    }
    void parole(std::string_view chiave, std::string testo) { cifre_[posto(chiave)] = parola(std::move(testo)); }

private:
    std::size_t posto(std::string_view chiave) const {
        const auto trovata = std::find_if(grandezze_.begin(), grandezze_.end(),
                                          [&](const GrandezzaVariante& g) { return g.chiave == chiave; });
        return static_cast<std::size_t>(trovata - grandezze_.begin());
    }
    const std::array<GrandezzaVariante, N>& grandezze_;
    std::array<Cifra, N>& cifre_;
};

/// What an entry and the junction have in common.
template <std::size_t N>
void scriviOraDiPunta(const Rotonda& rotonda, const VoceSintesi& voce, Scrittura<N>& scrivi) {
    scrivi.numero("Coeff_Sat", voce.Coeff_Sat);
    if (voce.segmentoSat > 0) {
        scrivi.parole("segmentoSat", testoIntervallo(rotonda, voce.segmentoSat));
    }
    if (voce.segmento == 0) {
        return;
    }
    scrivi.parole("oraDiPunta", testoOra(rotonda, voce.segmento, voce.segmenti));
    scrivi.numero("Flusso", voce.Flusso);
    if (voce.riserva) {
        scrivi.numero("riserva", *voce.riserva);
    }
    scrivi.numero("riservaVeicoli", voce.riservaVeicoli);
    scrivi.parole("LOS", voce.livello);
}

void scriviIngresso(const Rotonda& rotonda, const Ramo& ramo, const VoceSintesi& voce,
                    Scrittura<grandezzeIngresso.size()>& scrivi) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    if (traffico.NumSegmentiTempo() == 0) {
        return;
    }
    scriviOraDiPunta(rotonda, voce, scrivi);
    if (voce.segmentoSat > 0) {
        scrivi.numero("Capacita", traffico.GetIterazione(voce.segmentoSat).Capacita);
    }
    float coda = 0.0F;
    float ritardo = 0.0F;
    for (std::int16_t s = 1; s <= traffico.NumSegmentiTempo(); ++s) {
        const Iterazione record = traffico.GetIterazione(s);
        coda = std::max(coda, record.Coda);
        ritardo = std::max(ritardo, record.Ritardo);
    }
    scrivi.numero("Coda", coda);
    scrivi.numero("RitardoMassimo", ritardo);
    scrivi.parole("LOSMassimo", std::string{livelloDiRitardo(ritardo)});
    Tabella tabella = impostaTabellaRamo(rotonda);
    // The fifth quantity of a record is the delay.
    scrivi.numero("RitardoMedio", riempiTabellaRamo(ramo, tabella).ValoriMedi.back());
}

/// The number that a shown figure reads as; nothing for words.
std::optional<double> mostrato(const Cifra& cifra, Formato formato) {
    if (!cifra.valore || std::holds_alternative<std::string>(*cifra.valore)) {
        return std::nullopt;
    }
    std::string testo = cifra.testo;
    if (formato.percento) {
        testo.pop_back();
    }
    const auto numero = leggiNumero(testo);
    return numero && formato.percento ? std::optional{*numero / 100.0} : numero;
}

Giudizio giudica(Verso verso, double scarto) {
    if (verso == Verso::nessuno) {
        return Giudizio::nessuno;
    }
    if (scarto == 0.0) {
        return Giudizio::uguale;
    }
    return (scarto > 0.0) == (verso == Verso::alto) ? Giudizio::migliore : Giudizio::peggiore;
}

RigaVarianti riga(const GrandezzaVariante& grandezza, const Cifra& a, const Cifra& b) {
    RigaVarianti riga{.grandezza = &grandezza, .a = a, .b = b};
    if (!a.valore || !b.valore) {
        return riga;
    }
    riga.scarto = scarto(*a.valore, *b.valore);
    const auto numeroA = mostrato(a, grandezza.formato);
    const auto numeroB = mostrato(b, grandezza.formato);
    if (numeroA && numeroB) {
        riga.testoScarto = formatta(*numeroB - *numeroA, grandezza.formatoScarto);
        // Both have few decimals: what is left of a difference of equal ones is the noise of its subtraction.
        riga.giudizio = giudica(grandezza.verso, a.testo == b.testo ? 0.0 : *numeroB - *numeroA);
    } else if (grandezza.verso != Verso::nessuno) {
        riga.giudizio = giudica(grandezza.verso, codiceLivello(b.testo) - codiceLivello(a.testo));
    }
    return riga;
}

template <std::size_t N>
std::vector<RigaVarianti> righe(const std::array<GrandezzaVariante, N>& grandezze, const std::array<Cifra, N>& a,
                                const std::array<Cifra, N>& b) {
    std::vector<RigaVarianti> tutte;
    for (std::size_t i = 0; i < N; ++i) {
        tutte.push_back(riga(grandezze[i], a[i], b[i]));
    }
    return tutte;
}

}  // namespace

EsitiVariante esitiVariante(const Rotonda& rotonda) {
    EsitiVariante esiti;
    esiti.ingressi.resize(static_cast<std::size_t>(rotonda.NumeroRami()));
    Scrittura nodo(grandezzeNodo, esiti.nodo);
    const bool nelTempo = analisiNelTempo(rotonda);
    const SintesiNodo sintesi = nelTempo ? sintesiNodo(rotonda) : SintesiNodo{};
    for (std::size_t i = 0; i < esiti.ingressi.size(); ++i) {
        const Ramo& ramo = rotonda.Ramo(static_cast<std::int16_t>(i + 1));
        Scrittura ingresso(grandezzeIngresso, esiti.ingressi[i]);
        if (nelTempo) {
            scriviIngresso(rotonda, ramo, sintesi.ingressi[i], ingresso);
        }
        ingresso.numero("FlussoOrario", ramo.theDatiTraffico().FlussoOrario());
        ingresso.numero("CapacitaUltima", ramo.CapacitaUltima());
    }
    if (nelTempo && sintesi.segmentiOra > 0) {
        scriviOraDiPunta(rotonda, sintesi.nodo, nodo);
        if (sintesi.nodo.segmento > 0) {
            nodo.numero("Capacita", sintesi.nodo.Capacita);
            nodo.numero("Ritardo", sintesi.nodo.Ritardo);
        }
        if (sintesi.nodo.ingressoSat > 0) {
            nodo.parole("ingressoPeggiore", rotonda.Ramo(sintesi.nodo.ingressoSat).Descrizione());
        }
    }
    TabellaCapacitaUltima ultima;
    ultima.riempi(rotonda);
    nodo.numero("SF", ultima.SF());
    nodo.numero("SC", ultima.SC());
    if (ultima.SC() != 0.0F && ultima.ISR() != 0.0F) {
        nodo.numero("ISR", ultima.ISR());
    }
    return esiti;
}

std::string_view parolaGiudizio(Giudizio giudizio) {
    constexpr std::array<std::string_view, 4> parole{"", "uguale", "migliore", "peggiore"};
    return parole[static_cast<std::size_t>(giudizio)];
}

int ConfrontoEsiti::quante(Giudizio giudizio) const {
    const auto conta = [&](const std::vector<RigaVarianti>& tutte) {
        return static_cast<int>(
            std::count_if(tutte.begin(), tutte.end(), [&](const RigaVarianti& r) { return r.giudizio == giudizio; }));
    };
    int somma = conta(nodo);
    for (const auto& ingresso : ingressi) {
        somma += conta(ingresso);
    }
    return somma;
}

ConfrontoEsiti confrontaEsiti(const EsitiVariante& a, const EsitiVariante& b) {
    ConfrontoEsiti confronto;
    for (std::size_t i = 0; i < std::max(a.ingressi.size(), b.ingressi.size()); ++i) {
        const auto di = [&](const EsitiVariante& esiti) {
            return i < esiti.ingressi.size() ? esiti.ingressi[i] : std::array<Cifra, grandezzeIngresso.size()>{};
        };
        confronto.ingressi.push_back(righe(grandezzeIngresso, di(a), di(b)));
    }
    confronto.nodo = righe(grandezzeNodo, a.nodo, b.nodo);
    return confronto;
}

}  // namespace kelvo
