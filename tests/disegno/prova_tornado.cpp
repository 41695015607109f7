// Lying bars to both sides of 0: what stands where.

#include <gtest/gtest.h>

#include <algorithm>

#include "disegno/scenaGrafici.h"

namespace kelvo::disegno {
namespace {

class Tornado : public Grafici {
protected:
    /// Where a value of the axis has its label.
    static double xDi(const Disposizione& d, const std::string& valore) {
        for (const Disposizione::Testo& t : di(d, Testi::etichettaY)) {
            if (t.parole.toStdString() == valore) {
                return t.dove.center().x();
            }
        }
        ADD_FAILURE() << valore;
        return 0.0;
    }
};

TEST_F(Tornado, ABarIsAsLongAsItsValueOnTheSideOfItsSign) {
    const Contenuto c = prova::tornado();
    const Disposizione d = disponi(c, usuale);
    const double zero = xDi(d, "0");
    const double perUnita = (xDi(d, "20") - zero) / 20.0;
    EXPECT_GT(perUnita, 0.0);
    const std::vector<QRectF> barre = di(d, Forme::barra);
    ASSERT_EQ(barre.size(), 12U);
    for (std::size_t riga = 0; riga < 6; ++riga) {
        for (std::size_t serie = 0; serie < 2; ++serie) {
            const double valore = c.serie[serie].valori[riga];
            const QRectF& barra = barre[2 * riga + serie];
            EXPECT_NEAR(valore > 0.0 ? barra.left() : barra.right(), zero, 0.01);
            EXPECT_NEAR(barra.width(), std::abs(valore) * perUnita, 0.01);
        }
    }
}

TEST_F(Tornado, RowsStandInTheirOrderWithTheirNamesBesideThem) {
    const Contenuto c = prova::tornado();
    const Disposizione d = disponi(c, grande);
    const std::vector<QRectF> barre = di(d, Forme::barra);
    const std::vector<Disposizione::Testo> nomi = di(d, Testi::etichettaX);
    ASSERT_EQ(nomi.size(), 6U);
    for (std::size_t riga = 0; riga < 6; ++riga) {
        EXPECT_EQ(nomi[riga].parole.toStdString(), c.x.etichette[riga]);
        EXPECT_NEAR(nomi[riga].dove.center().y(), barre[2 * riga].center().y(), 0.01);
        EXPECT_LT(nomi[riga].dove.right(), d.campo.left());
        if (riga > 0) {
            EXPECT_GT(barre[2 * riga].top(), barre[2 * riga - 2].bottom());
        }
    }
}

TEST_F(Tornado, NoNameIsLostWhereItHasToBeShortened) {
    for (int larga = 300; larga <= 700; larga += 3) {
        const std::vector<Disposizione::Testo> nomi =
            di(disponi(prova::tornado(), QSizeF(larga, 280)), Testi::etichettaX);
        EXPECT_EQ(nomi.size(), 6U) << larga;
    }
}

TEST_F(Tornado, ValuesOfOppositeSignsShareTheRowOthersPartIt) {
    Contenuto c = prova::tornado(2);
    c.serie[0].valori = {5.0, 3.0};
    c.serie[1].valori = {-5.0, 4.0};
    const std::vector<QRectF> barre = di(disponi(c, usuale), Forme::barra);
    ASSERT_EQ(barre.size(), 4U);
    EXPECT_NEAR(barre[0].top(), barre[1].top(), 0.01);
    EXPECT_NEAR(barre[0].height(), barre[1].height(), 0.01);
    EXPECT_NEAR(barre[2].bottom(), barre[3].top(), 0.01);
    EXPECT_NEAR(barre[2].height(), barre[0].height() / 2.0, 0.01);
}

TEST_F(Tornado, LabelsStandAtTheOuterEndsAndLieWithinTheRoom) {
    const Disposizione d = disponi(prova::tornado(), usuale);
    const std::vector<QRectF> barre = di(d, Forme::barra);
    const std::vector<Disposizione::Testo> valori = di(d, Testi::valore);
    ASSERT_EQ(valori.size(), 12U);
    const double zero = xDi(d, "0");
    for (std::size_t i = 0; i < valori.size(); ++i) {
        const QRectF& parole = valori[i].dove;
        EXPECT_TRUE(parole.left() > barre[i].right() || parole.right() < barre[i].left());
        EXPECT_EQ(parole.center().x() > zero, barre[i].center().x() > zero);
        EXPECT_GE(parole.left(), d.campo.left() - 0.01);
        EXPECT_LE(parole.right(), d.campo.right() + 0.01);
    }
    Contenuto senza = prova::tornado();
    senza.valori = false;
    EXPECT_TRUE(di(disponi(senza, usuale), Testi::valore).empty());
}

TEST_F(Tornado, NamesLegendTitleAndAxisAreThere) {
    const Disposizione d = disponi(prova::tornado(), usuale);
    EXPECT_EQ(parole(d, Testi::titoloY), std::vector<std::string>{"Variazione Capacità [veic/h]"});
    EXPECT_EQ(parole(d, Testi::legenda), (std::vector<std::string>{"un passo in meno", "un passo in più"}));
    EXPECT_EQ(di(d, Forme::asse).size(), 1U);
    EXPECT_EQ(parole(d, Testi::titolo),
              std::vector<std::string>{"Capacità: variazione per un passo di ogni grandezza"});
}

TEST_F(Tornado, WithoutValuesTheInvitationStands) {
    Contenuto c = prova::tornado(0);
    c.invito = "Calcola (F9)";
    const Disposizione d = disponi(c, usuale);
    EXPECT_EQ(parole(d, Testi::invito), std::vector<std::string>{"Calcola (F9)"});
    EXPECT_TRUE(di(d, Forme::barra).empty());
}

TEST_F(Tornado, AValueOfZeroHasNoBar) {
    Contenuto c = prova::tornado(1);
    c.serie[0].valori = {0.0};
    EXPECT_EQ(di(disponi(c, usuale), Forme::barra).size(), 1U);
    c.serie[1].valori = {0.0};
    EXPECT_TRUE(di(disponi(c, usuale), Forme::barra).empty());
}

TEST_F(Tornado, LyingBarsStayLyingWhenTheFormIsChanged) {
    Grafico grafico("prova");
    grafico.contenuto(prova::tornado());
    grafico.forma(Forma::linee);
    EXPECT_EQ(grafico.contenuto().serie[0].forma, Forma::tornado);
}

}  // namespace
}  // namespace kelvo::disegno
