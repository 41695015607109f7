#include "results/mappaLivelli.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/date.h"
#include "base/guasto.h"
#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"
#include "shell/servizi/tinte.h"

namespace kelvo {

namespace {

constexpr int minutiOra = 60;
constexpr int larghezzaNomi = 2000;
constexpr int larghezzaSegmento = 200;

int intervalliDi(const Rotonda& rotonda) {
    const bool senzaPasso = minutoCampo(rotonda.SegmentoTempo()) == 0;
    return senzaPasso ? 0 : std::max(0, numeroIntervalli(rotonda));
}

void colora(Cella& cella, Colore sfondo, Colore inchiostro) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
}

void controllaSegmenti(const Ramo& ramo, int intervalli) {
    const int segmenti = ramo.theDatiTraffico().NumSegmentiTempo();
    if (segmenti > intervalli) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo,
                     fmt::format("{}: {} segmenti in {} intervalli", ramo.Descrizione(), segmenti, intervalli));
    }
}

}  // namespace

Tabella mappaLivelliVuota(const Rotonda& rotonda) {
    const int intervalli = intervalliDi(rotonda);
    Tabella mappa(rotonda.NumeroRami() + 1, intervalli + 1);
    mappa.larghezze.assign(static_cast<std::size_t>(intervalli) + 1, larghezzaSegmento);
    mappa.larghezze.front() = larghezzaNomi;
    for (int c = 0; c <= intervalli; ++c) {
        colora(mappa.cella(0, c), colori::intestazione, colori::bianco);
        mappa.cella(0, c).testo = c == 0 ? std::string{} : testoIntervallo(rotonda, c);
    }
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        colora(mappa.cella(i, 0), colori::nomeIngresso, colori::bianco);
        mappa.cella(i, 0).testo = rotonda.Ramo(i).Descrizione();
        for (int c = 1; c <= intervalli; ++c) {
            mappa.cella(i, c).sfondo = colori::dati;
        }
    }
    return mappa;
}

Tabella mappaLivelli(const Rotonda& rotonda) {
    Tabella mappa = mappaLivelliVuota(rotonda);
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        const Ramo& ramo = rotonda.Ramo(i);
        controllaSegmenti(ramo, mappa.colonne() - 1);
        for (std::int16_t s = 1; s <= ramo.theDatiTraffico().NumSegmentiTempo(); ++s) {
            Cella& cella = mappa.cella(i, s);
            cella.testo = livelloDiRitardo(ramo.theDatiTraffico().GetIterazione(s).Ritardo);
            const Distintivo tinte = distintivoLivello(cella.testo);
            colora(cella, tinte.fondo, tinte.testo);
        }
    }
    return mappa;
}

std::vector<OraMappa> oreMappa(const Rotonda& rotonda) {
    const int intervalli = intervalliDi(rotonda);
    if (intervalli == 0) {
        return {};
    }
    const int passo = minutoCampo(rotonda.SegmentoTempo());
    const PartiData inizio = partiDi(rotonda.TempoIniziale());
    const int daOra = inizio.minuto;  // minutes that the last whole hour before the start lies back
    const auto testo = [&](int minuti) { return testoHHNN(rotonda.TempoIniziale() + minuti / 1440.0); };
    std::vector<OraMappa> ore{{0.0, testo(0)}};
    for (int minuti = minutiOra - daOra; minuti <= intervalli * passo; minuti += minutiOra) {
        ore.push_back({static_cast<double>(minuti) / passo, testo(minuti)});
    }
    return ore;
}

std::string parolaMappa(const Tabella& mappa, Posto posto) {
    const bool dentro =
        posto.riga > 0 && posto.riga < mappa.righe() && posto.colonna > 0 && posto.colonna < mappa.colonne();
    if (!dentro || mappa.testo(posto.riga, posto.colonna).empty()) {
        return {};
    }
    return fmt::format("{}, {}: L.O.S. {}", mappa.testo(posto.riga, 0), mappa.testo(0, posto.colonna),
                       mappa.testo(posto.riga, posto.colonna));
}

}  // namespace kelvo
