#include "results/TabellaCapacitaUltima.h"

#include <fmt/format.h>

#include <limits>

#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"

namespace kelvo {

namespace {

constexpr Formato formatoFlusso = "#0.00";
constexpr int colonnaCapacita = 1;
constexpr int colonnaFlusso = 2;

/// Adds the figures that the column shows; each figure and each sum is a single.
float sommaColonna(const Tabella& tabella, int colonna, int ultimaRiga) {
    float somma = 0.0F;
    for (int r = 1; r <= ultimaRiga; ++r) {
        const auto luogo = [&] { return fmt::format("{}, {}", tabella.testo(r, 0), tabella.testo(0, colonna)); };
        // A text without a number here is one past every range: only figures stand in these cells.
        constexpr double troppoGrande = std::numeric_limits<double>::infinity();
        const float mostrato = aSingolo(leggiNumero(tabella.testo(r, colonna)).value_or(troppoGrande), luogo);
        somma = aSingolo(static_cast<double>(somma) + static_cast<double>(mostrato), luogo);
    }
    return somma;
}

void colora(Cella& cella, Colore sfondo, Colore inchiostro = colori::nero) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
}

/// Colours of the table for `n` legs: two headings, names, figures, the three results.
void vesti(Tabella& tabella, int n) {
    for (int riga = 0; riga < tabella.righe(); ++riga) {
        const bool intestazione = riga == 0 || riga == n + 1;
        for (int c = 0; c < tabella.colonne(); ++c) {
            if (intestazione || (riga == n + 3 && c == 0)) {
                colora(tabella.cella(riga, c), colori::intestazione, colori::bianco);
                tabella.cella(riga, c).grassetto = true;
            } else if (riga <= n && c == 0) {
                colora(tabella.cella(riga, c), colori::nomeIngresso, colori::bianco);
            } else {
                colora(tabella.cella(riga, c), colori::dati);
            }
        }
    }
    colora(tabella.cella(n + 2, colonnaCapacita), colori::evidenza);
    colora(tabella.cella(n + 2, colonnaFlusso), colori::evidenza);
    colora(tabella.cella(n + 3, colonnaCapacita), colori::evidenza);
}

}  // namespace

void TabellaCapacitaUltima::riempi(const Rotonda& rotonda) {
    const int n = rotonda.NumeroRami();
    tabella_ = Tabella(n + 4, 3);
    vesti(tabella_, n);
    tabella_.cella(0, colonnaCapacita).testo = "Capacita' di saturazione [veic/h]";
    tabella_.cella(0, colonnaFlusso).testo = "Flusso orario [veic/h]";
    for (int i = 1; i <= n; ++i) {
        const Ramo& ramo = rotonda.Ramo(static_cast<std::int16_t>(i));
        tabella_.cella(i, 0).testo = ramo.Descrizione();
        tabella_.cella(i, colonnaCapacita).testo = formatta(ramo.CapacitaUltima(), formatoFlusso);
        tabella_.cella(i, colonnaFlusso).testo = formatta(ramo.theDatiTraffico().FlussoOrario(), formatoFlusso);
    }
    tabella_.cella(n + 1, colonnaCapacita).testo = "Capacita' Ultima intersezione [veic/h]";
    tabella_.cella(n + 1, colonnaFlusso).testo = "Flusso totale nodo [veic/h]";
    SC_ = sommaColonna(tabella_, colonnaCapacita, n);
    SF_ = sommaColonna(tabella_, colonnaFlusso, n);
    tabella_.cella(n + 2, colonnaCapacita).testo = formatta(SC_, formatoFlusso);
    tabella_.cella(n + 2, colonnaFlusso).testo = formatta(SF_, formatoFlusso);
    tabella_.cella(n + 3, 0).testo = "Indice di saturazione della rotatoria (I.S.R.)";
    tabella_.cella(n + 3, colonnaCapacita).testo = testoIndice();
}

std::string TabellaCapacitaUltima::testoIndice() {
    constexpr const char* nessunIndice = " - ";
    if (SC_ == 0.0F) {
        return nessunIndice;
    }
    ISR_ = aSingolo(dividi(static_cast<double>(SF_), static_cast<double>(SC_)));
    return ISR_ == 0.0F ? nessunIndice : formatta(ISR_, "#0.00%");
}

std::string TabellaCapacitaUltima::testo(const Rotonda& rotonda, DataOra momento) const {
    std::string testo = "Risultati: Capacità ultima";
    testo.append(fineRiga).append(fineRiga);
    testo.append(testoTabella(tabella_, {.allineamento = Allineamento::sinistra, .rigaVuotaPrima = {}}));
    return testo.append(fineRiga).append(righeDiChiusura(momento, rotonda.NomeFile()));
}

}  // namespace kelvo
