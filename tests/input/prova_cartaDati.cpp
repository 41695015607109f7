// The data windows with a plan on paper: what stands on their pages, what their menu offers.

#include <gtest/gtest.h>

#include "comune/stampaFinta.h"
#include "input/frmMatriceSvolte.h"
#include "input/scenaParametri.h"

namespace kelvo::prove {
namespace {

using D = DocumentoPagine;

/// The entries of the menu of a plan with the reason why each is closed.
std::vector<std::pair<std::string, std::string>> voci(const ControlloPianta& pianta) {
    std::vector<std::pair<std::string, std::string>> tutte;
    MenuChiavi* menu = pianta.menu();
    const auto radici = menu == nullptr ? decltype(menu->figli({})){} : menu->figli({});
    for (const MenuChiavi::Voce* voce : radici.empty() ? radici : menu->figli(radici.front()->chiave)) {
        if (voce->testo != "-") {
            tutte.emplace_back(voce->testo, voce->nota);
        }
    }
    return tutte;
}

TEST_F(ProveParametri, ThePaperHasThePlanTheMeasuresAndTheRelation) {
    StampaFinta stampa;
    frmParametriRamo conStampa(contorno(), {documenti, dialogo, &stampa});
    ASSERT_TRUE(gestione.ShowForm(&conStampa));
    conStampa.stampaFigure();
    ASSERT_EQ(stampa.stampati.size(), 1U);
    const D& carta = stampa.stampati[0];
    EXPECT_EQ(carta.titolo, "Geometria - Ramo A");
    const auto* figura = std::get_if<D::Figura>(&carta.blocchi.at(0));
    ASSERT_NE(figura, nullptr);
    EXPECT_EQ(std::get<D::Pianta>(figura->contenuto).opzioni->ramo, 1);
    const std::vector<std::string> parole = paroleDi(carta);
    EXPECT_EQ(parole.at(0), "Larghezza ingresso|5,00|m");
    EXPECT_EQ(parole.at(6), "Attraversamento pedonale|no|");
    EXPECT_TRUE(parole.at(7).starts_with("k|"));
    EXPECT_EQ(parole.size(), 7U + 9U + 1U);
}

TEST_F(ProveParametri, WhatIsNotInTheProjectYetIsOnPaperAndTold) {
    StampaFinta stampa;
    frmParametriRamo conStampa(contorno(), {documenti, dialogo, &stampa});
    ASSERT_TRUE(gestione.ShowForm(&conStampa));
    ASSERT_TRUE(scriviIn(conStampa, conStampa.txtLarghezzaIngresso, "6,50"));
    const D carta = conStampa.documento();
    const std::vector<std::string> parole = paroleDi(carta);
    EXPECT_EQ(parole.at(0), "Dati non ancora registrati.");
    EXPECT_EQ(parole.at(1), "Larghezza ingresso|6,50|m");
    const auto& figura = std::get<D::Figura>(carta.blocchi.at(1));
    EXPECT_EQ(std::get<D::Pianta>(figura.contenuto).dati->rami.at(0).larghezzaIngresso, 6.5F);
}

TEST_F(ProveParametri, WithoutAPrinterThePaperIsClosedAndNothingHappens) {
    const auto tutte = voci(finestra.ctlPianta);
    ASSERT_EQ(tutte.size(), 6U);
    EXPECT_EQ(tutte[4], (std::pair<std::string, std::string>{"Stampa...", "Non disponibile"}));
    EXPECT_EQ(tutte[5].first, "Stampa in PDF...");
    EXPECT_FALSE(tutte[5].second.empty());
    finestra.stampaFigure();
    finestra.salvaFigurePDF();
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveParametri, AFailureOfThePrinterIsTold) {
    StampaFinta stampa;
    stampa.errore = "nessuna stampante";
    frmParametriRamo conStampa(contorno(), {documenti, dialogo, &stampa});
    ASSERT_TRUE(gestione.ShowForm(&conStampa));
    conStampa.stampaFigure();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Impossibile stampare: nessuna stampante");
}

TEST_F(ProveParametri, AWindowThatHasNotComeUpHasNoPlan) {
    frmParametriRamo nuova(contorno(), {documenti, dialogo});
    EXPECT_EQ(nuova.ctlPianta.soggetto().dati, nullptr);
    EXPECT_EQ(voci(nuova.ctlPianta).at(1),
              (std::pair<std::string, std::string>{"Salva come PNG...", "La pianta non ha dati"}));
}

/// A matrix of vehicles with its totals, then one in per cent.
TEST_F(ProveParametri, TheMatrixGoesOnPaperWithItsTotals) {
    StampaFinta stampa;
    Rotonda& rotonda = app.theRotonda();
    const std::int16_t n = rotonda.NumeroRami();
    for (std::int16_t o = 1; o <= n; ++o) {
        for (std::int16_t d = 1; d <= n; ++d) {
            rotonda.MatriceSvolte(o == d ? 0.0F : 10.0F * static_cast<float>(d), o, d);
        }
    }
    frmMatriceSvolte matrice(contorno(), dialogo, &stampa);
    ASSERT_TRUE(gestione.ShowForm(&matrice));
    std::vector<std::string> parole = paroleDi(matrice.documento());
    ASSERT_EQ(parole.size(), static_cast<std::size_t>(n) + 2U);
    const std::string& prima = parole.at(0);  // row A: all but itself
    int somma = 0;
    for (int d = 2; d <= n; ++d) {
        somma += 10 * d;
    }
    EXPECT_TRUE(prima.ends_with("|" + std::to_string(somma))) << prima;
    // Column A: 10 from each of the others.
    EXPECT_TRUE(parole.at(static_cast<std::size_t>(n)).starts_with("Totale|" + std::to_string(10 * (n - 1)) + "|"))
        << parole.at(static_cast<std::size_t>(n));
    EXPECT_EQ(parole.back(), "Valori espressi in veicoli");
    rotonda.TipoMatriceSvolte(1);
    matrice.ReadData();
    parole = paroleDi(matrice.documento());
    EXPECT_EQ(parole.size(), static_cast<std::size_t>(n) + 1U);  // no totals of columns
    EXPECT_EQ(parole.back(), "VALORI ESPRESSI IN PERCENTUALE");
}

}  // namespace
}  // namespace kelvo::prove
