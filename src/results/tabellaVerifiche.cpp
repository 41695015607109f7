#include "results/tabellaVerifiche.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "base/chiusura.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "results/grandezze.h"
#include "results/livelloServizio.h"

namespace kelvo {

namespace {

constexpr std::array larghezzeColonne{2000, 1300, 1400, 1400, 1000, 1300, 900};

int rigaBanda(const Rotonda& rotonda, int k) {
    return (k - 1) * (rotonda.NumeroRami() + 1) + 1;
}

void colora(Cella& cella, Colore sfondo, Colore inchiostro) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
}

void impostaIntestazione(Tabella& tabella) {
    for (int c = 0; c < colonneRisultati; ++c) {
        colora(tabella.cella(0, c), colori::intestazione, colori::bianco);
    }
    for (std::size_t c = 0; c < grandezze.size(); ++c) {
        tabella.cella(0, static_cast<int>(c) + 1).testo = grandezze[c].intestazione;
    }
    tabella.cella(0, colonnaLivello).testo = intestazioneLivello;
}

void impostaIntervallo(const Rotonda& rotonda, Tabella& tabella, int k) {
    const int banda = rigaBanda(rotonda, k);
    Cella& titolo = tabella.cella(banda, 0);
    titolo.testo = testoIntervallo(rotonda, k);
    colora(titolo, colori::intestazione, colori::bianco);
    for (int c = 1; c < colonneRisultati; ++c) {
        tabella.cella(banda, c).sfondo = colori::dati;
    }
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        Cella& nome = tabella.cella(banda + i, 0);
        nome.testo = rotonda.Ramo(i).Descrizione();
        colora(nome, colori::nomeIngresso, colori::bianco);
    }
}

Tabella conIntervalli(const Rotonda& rotonda, int intervalli) {
    Tabella tabella((rotonda.NumeroRami() + 1) * intervalli + 1, colonneRisultati);
    tabella.larghezze.assign(larghezzeColonne.begin(), larghezzeColonne.end());
    impostaIntestazione(tabella);
    for (int k = 1; k <= intervalli; ++k) {
        impostaIntervallo(rotonda, tabella, k);
    }
    return tabella;
}

}  // namespace

int numeroIntervalli(const Rotonda& rotonda) {
    return segmentiTra(rotonda.TempoIniziale(), rotonda.TempoFinale(), minutoCampo(rotonda.SegmentoTempo()));
}

std::string testoIntervallo(const Rotonda& rotonda, int k) {
    const int passo = minutoCampo(rotonda.SegmentoTempo());
    const auto istante = [&](int segmenti) { return rotonda.TempoIniziale() + segmenti * passo / 1440.0; };
    return fmt::format("{} - {}", testoHHNN(istante(k - 1)), testoHHNN(istante(k)));
}

Tabella impostaTabellaVerifiche(const Rotonda& rotonda) {
    return conIntervalli(rotonda, std::max(0, numeroIntervalli(rotonda)));
}

Tabella tabellaVerificheVuota(const Rotonda& rotonda) {
    const bool senzaPasso = minutoCampo(rotonda.SegmentoTempo()) == 0;
    return conIntervalli(rotonda, senzaPasso ? 0 : std::max(0, numeroIntervalli(rotonda)));
}

void riempiTabellaVerifiche(const Rotonda& rotonda, Tabella& tabella) {
    // The heading keeps its white: black would not be read on its green.
    for (int r = 1; r < tabella.righe(); ++r) {
        Cella& livello = tabella.cella(r, colonnaLivello);
        livello.inchiostro = colori::nero;
        livello.grassetto = false;
    }
    const bool nessunIntervallo = tabella.righe() <= 1;
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        const DatiTraffico& traffico = rotonda.Ramo(i).theDatiTraffico();
        if (nessunIntervallo && traffico.NumSegmentiTempo() > 0) {
            throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "la finestra di modellazione non ha intervalli");
        }
        for (std::int16_t s = 1; s <= traffico.NumSegmentiTempo(); ++s) {
            const Iterazione record = traffico.GetIterazione(s);
            const int riga = rigaBanda(rotonda, s) + i;
            for (std::size_t c = 0; c < grandezze.size(); ++c) {
                tabella.cella(riga, static_cast<int>(c) + 1).testo =
                    formatta(record.*grandezze[c].campo, grandezze[c].formato);
            }
            // The level follows the delay as the table shows it.
            const double mostrato = leggiNumero(tabella.testo(riga, colonnaRitardo)).value_or(0.0);
            Cella& livello = tabella.cella(riga, colonnaLivello);
            livello.testo = livelloServizio(mostrato);
            if (livello.testo == "F") {
                livello.inchiostro = colori::livelloF;
            }
        }
    }
}

namespace {

/// What the two text exports of the table have in common.
std::string corpoVerifiche(const Tabella& tabella) {
    const Impaginazione impaginazione{
        .allineamento = Allineamento::destra,
        .rigaVuotaPrima = [](const Tabella& t, int riga) { return t.cella(riga, 0).sfondo == colori::intestazione; }};
    std::string testo = "Risultati: Verifiche prestazionali";
    return testo.append(fineRiga).append(testoTabella(tabella, impaginazione));
}

}  // namespace

std::string testoVerifiche(const Tabella& tabella, const Rotonda& rotonda, DataOra momento) {
    return corpoVerifiche(tabella).append(fineRiga).append(righeDiChiusura(momento, rotonda.NomeFile()));
}

std::string testoScambio(const Tabella& tabella, const Rotonda& rotonda, DataOra momento) {
    return corpoVerifiche(tabella).append(chiusuraEsportazione(testoData(momento), rotonda.NomeFile()));
}

}  // namespace kelvo
