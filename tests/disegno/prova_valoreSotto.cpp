// The value below the mouse.

#include "disegno/valoreSotto.h"

#include <gtest/gtest.h>

#include "disegno/scenaGrafici.h"

namespace kelvo::disegno {
namespace {

const QSizeF misura(600, 360);

/// Four bars or points over labelled steps.
Grafico::Contenuto quattro(Grafico::Forma forma) {
    Grafico::Contenuto c;
    c.x = {.titolo = "[ora]", .etichette = {"08:00", "08:15", "08:30", "08:45"}, .passiPerEtichetta = 1.0};
    c.serie = {{.forma = forma, .colore = tinta::serieCode, .valori = {4.0, 0.0, 2.5, 8.0}}};
    return c;
}

/// The middle of the plot at a step.
QPointF alPasso(const Grafico::Contenuto& c, int passo) {
    const QRectF campo = disponi(c, misura).campo;
    return {campo.left() + campo.width() * (passo + 0.5) / 4.0, campo.center().y()};
}

using ValoreSotto = Grafici;

TEST_F(ValoreSotto, OfABarItsLabelAndValueAreTold) {
    const auto c = quattro(Grafico::Forma::barre);
    EXPECT_EQ(valoreSotto(c, misura, alPasso(c, 0)), "08:00: 4");
    EXPECT_EQ(valoreSotto(c, misura, alPasso(c, 1)), "08:15: 0") << "a bar without height too";
    EXPECT_EQ(valoreSotto(c, misura, alPasso(c, 2)), "08:30: 2,5");
    EXPECT_EQ(valoreSotto(c, misura, alPasso(c, 3)), "08:45: 8");
}

TEST_F(ValoreSotto, BetweenTheBarsAndOutsideThePlotThereIsNone) {
    const auto c = quattro(Grafico::Forma::barre);
    EXPECT_EQ(valoreSotto(c, misura, (alPasso(c, 0) + alPasso(c, 1)) / 2.0), "");
    EXPECT_EQ(valoreSotto(c, misura, {2.0, 2.0}), "");
    EXPECT_EQ(valoreSotto({}, misura, {300.0, 180.0}), "");
}

TEST_F(ValoreSotto, TheLabelOfTheValueIsTheOneOfTheChart) {
    auto c = quattro(Grafico::Forma::barre);
    c.serie[0].nome = "Ritardi";
    c.serie[0].testi = {"4,00 (A)", "-", "2,50 (A)", "8,00 (B)"};
    EXPECT_EQ(valoreSotto(c, misura, alPasso(c, 3)), "Ritardi, 08:45: 8,00 (B)");
}

TEST_F(ValoreSotto, OfALineItIsThePointThatIsNear) {
    auto c = quattro(Grafico::Forma::linee);
    c.legenda = true;
    c.serie.push_back(
        {.nome = "Altra", .forma = Grafico::Forma::linee, .colore = tinta::serieLOS, .valori = {1.0, 6.0}});
    const Disposizione d = disponi(c, misura);
    const QPolygonF* punti = nullptr;
    const QPolygonF* altri = nullptr;
    for (const Disposizione::Linea& linea : d.linee) {
        const bool serie = linea.ritagliata && !linea.dietro && !linea.tratteggiata;
        if (serie && linea.punti.size() == 4) {
            punti = &linea.punti;
        } else if (serie && linea.punti.size() == 2 && linea.colore == tinta::serieLOS) {
            altri = &linea.punti;
        }
    }
    ASSERT_NE(punti, nullptr);
    ASSERT_NE(altri, nullptr);
    EXPECT_EQ(valoreSotto(c, misura, punti->at(2) + QPointF(5, 5)), "08:30: 2,5");
    EXPECT_EQ(valoreSotto(c, misura, punti->at(2) + QPointF(9, 0)), "");
    EXPECT_EQ(valoreSotto(c, misura, altri->at(1)), "Altra, 6");
}

TEST_F(ValoreSotto, OfSeveralSeriesEachHasItsBar) {
    auto c = quattro(Grafico::Forma::barre);
    c.serie[0].nome = "Prima";
    c.serie.push_back({.nome = "Seconda", .colore = tinta::serieLOS, .valori = {1.0, 2.0, 3.0, 4.0}});
    const QPointF mezzo = alPasso(c, 2);
    EXPECT_EQ(valoreSotto(c, misura, mezzo - QPointF(10, 0)), "Prima, 08:30: 2,5");
    EXPECT_EQ(valoreSotto(c, misura, mezzo + QPointF(10, 0)), "Seconda, 08:30: 3");
}

}  // namespace
}  // namespace kelvo::disegno
