#include "results/tabellaRamo.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "results/grandezze.h"
#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {

namespace {

constexpr std::array larghezzeColonne{1300, 1300, 1400, 1400, 1000, 1300, 900};
constexpr Formato formatoEstremi = "#0.00";
constexpr const char* lineaNota = "---------------";
constexpr const char* notaLOS = "L.O.S. (Level of service) - HCM Americano";
constexpr std::string_view livelloCritico = "F";

void colora(Cella& cella, Colore sfondo, Colore inchiostro, bool grassetto) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
    cella.grassetto = grassetto;
}

void coloriDiBase(Tabella& tabella) {
    for (int r = 0; r < tabella.righe(); ++r) {
        for (int c = 0; c < tabella.colonne(); ++c) {
            const bool fissa = r == 0 || c == 0;
            colora(tabella.cella(r, c), fissa ? colori::intestazione : colori::dati,
                   fissa ? colori::bianco : colori::nero, false);
        }
    }
}

void scriviRiga(const Iterazione& record, int riga, Tabella& tabella) {
    for (std::size_t q = 0; q < grandezze.size(); ++q) {
        tabella.cella(riga, static_cast<int>(q) + 1).testo = formatta(record.*grandezze[q].campo, grandezze[q].formato);
    }
    Cella& livello = tabella.cella(riga, colonnaLivello);
    livello.testo = livelloServizio(leggiNumero(tabella.testo(riga, colonnaRitardo)).value_or(0.0));
    if (livello.testo == livelloCritico) {
        colora(livello, colori::estremo, colori::critico, true);
    }
}

void aggiornaEstremi(const Iterazione& record, std::int16_t riga, StatisticheIngresso& s) {
    for (std::size_t q = 0; q < grandezze.size(); ++q) {
        const float singolo = record.*grandezze[q].campo;
        const double valore = leggiNumero(formatta(singolo, formatoEstremi)).value_or(0.0);
        if (s.ValoriMassimi[q] < valore) {
            s.ValoriMassimi[q] = valore;
            s.RigaMassimo[q] = riga;
        }
        if (s.ValoriMinimi[q] > valore) {
            s.ValoriMinimi[q] = valore;
            s.RigaMinimo[q] = riga;
        }
    }
}

void segnaEstremi(const std::array<std::int16_t, numeroGrandezze>& righe, Colore inchiostro, Tabella& tabella) {
    for (std::size_t q = 0; q < righe.size(); ++q) {
        if (righe[q] != 0) {
            colora(tabella.cella(righe[q], static_cast<int>(q) + 1), colori::estremo, inchiostro, true);
        }
    }
}

void livelliDi(const Tabella& tabella, std::int16_t n, StatisticheIngresso& s) {
    int somma = 0;
    int minimo = 0;
    int massimo = 0;
    for (std::int16_t r = 1; r <= n; ++r) {
        const int codice = codiceLivello(tabella.testo(r, colonnaLivello));
        somma += codice;
        minimo = r == 1 ? codice : std::min(minimo, codice);
        massimo = std::max(massimo, codice);
    }
    s.livelloMinimo = livelloDiCodice(minimo);
    s.livelloMassimo = livelloDiCodice(massimo);
    s.livelloMedio = livelloMedio(arrotondaPari(static_cast<double>(somma) / n));
}

void controllaRighe(const Ramo& ramo, const Tabella& tabella) {
    const int segmenti = ramo.theDatiTraffico().NumSegmentiTempo();
    if (segmenti >= tabella.righe()) {
        throw Guasto(
            NumeroGuasto::indiceFuoriIntervallo,
            fmt::format("{}: {} segmenti in {} intervalli", ramo.Descrizione(), segmenti, tabella.righe() - 1));
    }
}

}  // namespace

Tabella impostaTabellaRamo(const Rotonda& rotonda) {
    const bool senzaPasso = minutoCampo(rotonda.SegmentoTempo()) == 0;
    const int intervalli = senzaPasso ? 0 : std::max(0, numeroIntervalli(rotonda));
    Tabella tabella(intervalli + 1, colonneRisultati);
    tabella.larghezze.assign(larghezzeColonne.begin(), larghezzeColonne.end());
    coloriDiBase(tabella);
    for (std::size_t q = 0; q < grandezze.size(); ++q) {
        tabella.cella(0, static_cast<int>(q) + 1).testo = grandezze[q].intestazione;
    }
    tabella.cella(0, colonnaLivello).testo = intestazioneLivello;
    for (int k = 1; k <= intervalli; ++k) {
        tabella.cella(k, 0).testo = testoIntervallo(rotonda, k);
    }
    return tabella;
}

StatisticheIngresso riempiTabellaRamo(const Ramo& ramo, Tabella& tabella) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    const std::int16_t n = traffico.NumSegmentiTempo();
    StatisticheIngresso s;
    s.ValoriMinimi.fill(StatisticheIngresso::oltreMinimo);
    coloriDiBase(tabella);
    controllaRighe(ramo, tabella);
    std::array<double, numeroGrandezze> somme{};
    for (std::int16_t r = 1; r <= n; ++r) {
        const Iterazione record = traffico.GetIterazione(r);
        scriviRiga(record, r, tabella);
        aggiornaEstremi(record, r, s);
        for (std::size_t q = 0; q < grandezze.size(); ++q) {
            somme[q] += static_cast<double>(record.*grandezze[q].campo);
        }
    }
    if (n > 0) {
        segnaEstremi(s.RigaMassimo, colori::massimo, tabella);
        segnaEstremi(s.RigaMinimo, colori::minimo, tabella);
        for (std::size_t q = 0; q < somme.size(); ++q) {
            s.ValoriMedi[q] = somme[q] / n;
        }
        livelliDi(tabella, n, s);
        s.presenti = true;
    }
    return s;
}

void segnaSoglie(const Ramo& ramo, int ingresso, const Marker& marker, Tabella& tabella) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    controllaRighe(ramo, tabella);
    for (int q = 1; q <= TabellaMarker::grandezze; ++q) {
        if (marker.MarkerAttivo(ingresso, q) == 0.0) {
            continue;
        }
        const auto sopra = static_cast<float>(marker.MarkerMassimo(ingresso, q));
        const auto sotto = static_cast<float>(marker.MarkerMinimo(ingresso, q));
        for (std::int16_t r = 1; r <= traffico.NumSegmentiTempo(); ++r) {
            Cella& cella = tabella.cella(r, q);
            const Iterazione record = traffico.GetIterazione(r);
            const float valore = q == colonnaLivello ? static_cast<float>(codiceLivello(cella.testo))
                                                     : record.*grandezze[static_cast<std::size_t>(q) - 1].campo;
            if (sopra != 0.0F && valore > sopra) {
                cella.sfondo = colori::sopraSoglia;
            }
            if (sotto != 0.0F && valore < sotto) {
                cella.sfondo = colori::sottoSoglia;
            }
        }
    }
}

OrnamentoCella ornamentoRamo(const Tabella& tabella, const StatisticheIngresso& statistiche, Posto posto) {
    OrnamentoCella ornamento;
    const auto [riga, colonna] = posto;
    if (colonna == colonnaLivello) {
        ornamento.allineamento = AllineamentoCella::centro;
    }
    const Cella& cella = tabella.cella(riga, colonna);
    if (riga == 0 || colonna == 0 || cella.testo.empty()) {
        return ornamento;
    }
    if (colonna == colonnaLivello) {
        ornamento.distintivo = distintivoLivello(cella.testo);
    } else if (statistiche.presenti) {
        const auto q = static_cast<std::size_t>(colonna) - 1;
        if (statistiche.RigaMinimo[q] == riga) {
            ornamento.segno = OrnamentoCella::Segno::minimo;  // applied last, it stands over the largest
        } else if (statistiche.RigaMassimo[q] == riga) {
            ornamento.segno = OrnamentoCella::Segno::massimo;
        }
    }
    if (cella.sfondo == colori::sopraSoglia) {
        ornamento.barra = tinta::errore;
    } else if (cella.sfondo == colori::sottoSoglia) {
        ornamento.barra = tinta::verde;
    }
    return ornamento;
}

std::string notaLivelli(const Rotonda& rotonda, DataOra momento) {
    std::string testo;
    for (const char* riga : {lineaNota, notaLOS, lineaNota}) {
        testo.append(riga).append(fineRiga);
    }
    return testo.append(righeDiChiusura(momento, rotonda.NomeFile()));
}

std::string testoRamo(const Tabella& tabella, const Ramo& ramo, const Rotonda& rotonda, DataOra momento) {
    std::string testo = "Risultati: Verifiche prestazionali";
    testo.append(fineRiga).append(fineRiga);
    testo.append("DENOMINAZIONE RAMO: ").append(ramo.Descrizione()).append(fineRiga).append(fineRiga);
    testo.append(testoTabella(tabella, {.allineamento = Allineamento::destra, .rigaVuotaPrima = {}}));
    return testo.append(fineRiga).append(notaLivelli(rotonda, momento));
}

}  // namespace kelvo
