#include <array>

#include "base/numeri.h"
#include "base/testo.h"
#include "results/frmRAMO_AGGIUNTIVA.h"
#include "results/grandezze.h"
#include "results/livelloServizio.h"
#include "results/tabellaRamo.h"

namespace kelvo {

namespace {

/// A row of the summary. The unit of the capacity reads as it always has; its figures are per hour.
struct RigaRiassunto {
    std::string_view nome;
    Formato formato = "#0";
};

constexpr std::array<RigaRiassunto, numeroGrandezze> righe{{
    {"Flusso [veic./min]", "#0.00"},
    {"Capacità [veic./min]", "#0.00"},
    {"Coeff. saturazione", "#0.000"},
    {"Coda [veic.]", "#0.0"},
    {"Ritardi [sec/veic.]", "#0.0"},
}};
constexpr std::array<std::string_view, 3> intestazioni{"V.Minimo", "V.Massimo", "V.Medio"};
constexpr int larghezzaNome = 2500;
constexpr int larghezzaValore = 1400;
constexpr Formato formatoRitardo = "#0.0";

std::string livello(double ritardo) {
    return std::string{livelloServizio(leggiNumero(formatta(ritardo, formatoRitardo)).value_or(0.0))};
}

}  // namespace

Tabella tabellaRiassunto() {
    Tabella tabella(static_cast<int>(righe.size()) + 2, static_cast<int>(intestazioni.size()) + 1);
    tabella.larghezze = {larghezzaNome, larghezzaValore, larghezzaValore, larghezzaValore};
    for (int r = 0; r < tabella.righe(); ++r) {
        for (int c = 0; c < tabella.colonne(); ++c) {
            Cella& cella = tabella.cella(r, c);
            const bool fissa = r == 0 || c == 0;
            cella.sfondo = r == 0 ? colori::intestazione : c == 0 ? colori::nomeIngresso : colori::dati;
            cella.inchiostro = fissa ? colori::bianco : colori::nero;
        }
    }
    for (std::size_t c = 0; c < intestazioni.size(); ++c) {
        tabella.cella(0, static_cast<int>(c) + 1).testo = intestazioni[c];
    }
    for (std::size_t q = 0; q < righe.size(); ++q) {
        tabella.cella(static_cast<int>(q) + 1, 0).testo = righe[q].nome;
    }
    tabella.cella(colonnaLivello, 0).testo = intestazioneLivello;
    return tabella;
}

void riempiTabellaRiassunto(const StatisticheIngresso& s, Tabella& tabella) {
    if (!s.presenti) {
        return;
    }
    const std::array<const std::array<double, numeroGrandezze>*, 3> valori{&s.ValoriMinimi, &s.ValoriMassimi,
                                                                           &s.ValoriMedi};
    for (std::size_t c = 0; c < valori.size(); ++c) {
        const auto colonna = static_cast<int>(c) + 1;
        for (std::size_t q = 0; q < righe.size(); ++q) {
            tabella.cella(static_cast<int>(q) + 1, colonna).testo = formatta((*valori[c])[q], righe[q].formato);
        }
        tabella.cella(colonnaLivello, colonna).testo = livello((*valori[c])[colonnaRitardo - 1]);
    }
}

std::string testoRiassunto(const Tabella& tabella, const Ramo& ramo, const Rotonda& rotonda, DataOra momento) {
    std::string testo = "Risultati: Dettagli riassuntivi ingresso";
    testo.append(fineRiga).append(fineRiga);
    testo.append("DENOMINAZIONE RAMO: ").append(ramo.Descrizione()).append(fineRiga).append(fineRiga);
    testo.append(testoTabella(tabella, {.allineamento = Allineamento::destra, .rigaVuotaPrima = {}}));
    return testo.append(fineRiga).append(notaLivelli(rotonda, momento));
}

}  // namespace kelvo
