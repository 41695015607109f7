// The charts: what stands where.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "disegno/scenaGrafici.h"

namespace kelvo::disegno {
namespace {

TEST_F(Grafici, NoWordLiesOnAnotherOrLeavesTheRoom) {
    const std::vector<QSizeF> misure{{64, 50}, {200, 130}, {320, 200}, {220, 500}, {480, 300}, {700, 440}, {1600, 900}};
    constexpr double gioco = 0.01;
    for (const auto& [nome, contenuto] : tutti()) {
        for (const QSizeF& misura : misure) {
            const Disposizione d = disponi(contenuto, misura);
            const QRectF stanza = QRectF(QPointF(0, 0), misura).adjusted(-gioco, -gioco, gioco, gioco);
            for (std::size_t i = 0; i < d.testi.size(); ++i) {
                const Disposizione::Testo& uno = d.testi[i];
                EXPECT_TRUE(stanza.contains(uno.dove))
                    << nome << " " << misura.width() << ": " << uno.parole.toStdString();
                for (std::size_t k = i + 1; k < d.testi.size(); ++k) {
                    const QRectF comune = uno.dove.intersected(d.testi[k].dove);
                    EXPECT_FALSE(comune.width() > gioco && comune.height() > gioco)
                        << nome << " " << misura.width() << ": '" << uno.parole.toStdString() << "' on '"
                        << d.testi[k].parole.toStdString() << "'";
                }
            }
        }
    }
}

TEST_F(Grafici, ValueLabelsStandClearOfTheBars) {
    for (const auto& [nome, contenuto] : tutti()) {
        for (const QSizeF& misura : {piccola, usuale, grande}) {
            const Disposizione d = disponi(contenuto, misura);
            if (std::any_of(d.linee.begin(), d.linee.end(), [](const auto& l) { return !l.tratteggiata; })) {
                continue;  // a line may run over bars
            }
            for (const Disposizione::Testo& testo : di(d, Testi::valore)) {
                for (const QRectF& barra : di(d, Forme::barra)) {
                    EXPECT_FALSE(barra.intersects(testo.dove)) << nome << " " << testo.parole.toStdString();
                }
            }
        }
    }
}

TEST_F(Grafici, ABarIsAsHighAsItsValueOnTheScaleOfTheLabels) {
    const Disposizione d = disponi(prova::prestazioni(prova::ritardi, 10), usuale);
    std::map<double, double> altezze;
    for (const Disposizione::Testo& t : di(d, Testi::etichettaY)) {
        altezze[t.parole.toDouble()] = t.dove.center().y();
    }
    ASSERT_EQ(altezze.size(), 6U);
    const double zero = altezze.at(0);
    const double perUnita = (zero - altezze.at(75)) / 75.0;
    const std::vector<QRectF> barre = di(d, Forme::barra);
    ASSERT_EQ(barre.size(), prova::ritardi.size());
    for (std::size_t i = 0; i < barre.size(); ++i) {
        EXPECT_NEAR(barre[i].height(), prova::ritardi[i] * perUnita, 0.01);
        EXPECT_NEAR(barre[i].bottom(), zero, 0.01);
        EXPECT_NEAR(barre[i].width(), 0.72 * d.campo.width() / 18.0, 0.01);
        EXPECT_NEAR(barre[i].center().x(), d.campo.left() + (static_cast<double>(i) + 0.5) * d.campo.width() / 18.0,
                    0.01);
    }
}

TEST_F(Grafici, ZeroIsAlwaysShown) {
    Contenuto c = prova::prestazioni({42.5, 43.0, 44.0}, 20);
    c.y = {};
    for (const Forma forma : {Forma::barre, Forma::linee}) {
        c.serie[0].forma = forma;
        EXPECT_EQ(parole(disponi(c, usuale), Testi::etichettaY).front(), "0");
    }
    c.serie[0].forma = Forma::barre;
    c.y.minimo = 40.0;
    c.y.massimo = 50.0;
    EXPECT_EQ(parole(disponi(c, usuale), Testi::etichettaY).front(), "0");  // bars stand on it
    const std::vector<std::string> valori = parole(disponi(prova::confronto(), usuale), Testi::valore);
    EXPECT_EQ(std::count(valori.begin(), valori.end(), "0,00"), 1);
}

TEST_F(Grafici, TheLargestValueAloneIsStrong) {
    for (const QSizeF& misura : {piccola, usuale, grande}) {
        for (const char* nome : {"ritardi", "linee", "settantadue", "settantadue linee"}) {
            std::vector<std::string> forti;
            for (const Disposizione::Testo& t : di(disponi(tutti().at(nome), misura), Testi::valore)) {
                if (t.forte) {
                    forti.push_back(t.parole.toStdString());
                }
            }
            EXPECT_EQ(forti, std::vector<std::string>{"71,4"}) << nome << " " << misura.width();
        }
    }
    const std::vector<Disposizione::Testo> nulli =
        di(disponi(prova::prestazioni({0, 0, 0}, 10), usuale), Testi::valore);
    EXPECT_EQ(nulli.size(), 3U);
    EXPECT_TRUE(std::none_of(nulli.begin(), nulli.end(), [](const auto& t) { return t.forte; }));
}

TEST_F(Grafici, ValuesAreThinnedOutAroundTheLargestAndOnlyWhereTheyMust) {
    const auto quanti = [](int n, QSizeF misura) {
        return di(disponi(prova::prestazioni(prova::onda(n, 4.1, 71.4), 5), misura), Testi::valore).size();
    };
    EXPECT_EQ(quanti(3, piccola), 3U);
    EXPECT_EQ(quanti(18, usuale), 18U);
    EXPECT_EQ(quanti(18, piccola), 9U);  // every second one
    EXPECT_EQ(quanti(72, grande), 72U);  // "71,4" is not much wider than a step
    EXPECT_GE(quanti(72, usuale), 18U);
    Contenuto senza = prova::prestazioni(prova::ritardi, 10);
    senza.valori = false;
    EXPECT_TRUE(di(disponi(senza, usuale), Testi::valore).empty());
}

TEST_F(Grafici, ValuesOfALineStandOnItsFreeSide) {
    // Up, peak, down, valley, up: the middle of each label from its point on.
    const Disposizione d = disponi(prova::prestazioni({20, 40, 60, 40, 20, 60}, 10, Forma::linee), usuale);
    const std::vector<Disposizione::Testo> testi = di(d, Testi::valore);
    ASSERT_EQ(testi.size(), 6U);
    const auto scarto = [&](const char* parole, int punto) {
        for (const Disposizione::Testo& t : testi) {
            const QPointF da = t.dove.center() - d.linee[0].punti[punto];
            if (t.parole.toStdString() == parole && std::abs(da.x()) < 40.0) {
                return da;
            }
        }
        return QPointF();
    };
    EXPECT_LT(scarto("20,0", 0).y(), 0.0);
    EXPECT_LT(scarto("40,0", 1).x(), -1.0);  // it rises: to the left
    EXPECT_NEAR(scarto("60,0", 2).x(), 0.0, 0.01);
    EXPECT_LT(scarto("60,0", 2).y(), 0.0);
    EXPECT_GT(scarto("40,0", 3).x(), 1.0);
    EXPECT_GT(scarto("20,0", 4).y(), 0.0);  // the valley: below
}

TEST_F(Grafici, LabelsALittleTooWideAreSetSmallerRatherThanLeftOut) {
    // Widths at which the labels are between 1 and 1.15 steps.
    bool ridotte = false;
    for (int larga = 400; larga < 560; larga += 4) {
        const auto valori = di(disponi(prova::prestazioni(prova::ritardi, 10), QSizeF(larga, 440)), Testi::valore);
        if (valori.size() == 18 && valori.front().altezza < 12) {
            ridotte = true;
            EXPECT_GE(valori.front().altezza, 10);
        } else {
            EXPECT_TRUE(valori.front().altezza == 12);
        }
    }
    EXPECT_TRUE(ridotte);
}

TEST_F(Grafici, HoursHaveLongTicksAndSegmentsShortOnes) {
    const Disposizione d = disponi(prova::prestazioni(prova::ritardi, 10), usuale);
    EXPECT_EQ(parole(d, Testi::etichettaX), (std::vector<std::string>{"07:00", "08:00", "09:00"}));
    std::vector<QRectF> tacche = di(d, Forme::tacca);
    const auto lunghe = std::count_if(tacche.begin(), tacche.end(), [](const QRectF& t) { return t.height() == 8.0; });
    const auto corte = std::count_if(tacche.begin(), tacche.end(), [](const QRectF& t) { return t.height() == 4.0; });
    EXPECT_EQ(lunghe, 3);
    EXPECT_EQ(corte, 19);
    const Disposizione::Testo otto = di(d, Testi::etichettaX)[1];
    EXPECT_NEAR(otto.dove.center().x(), d.campo.left() + d.campo.width() * 6.0 / 18.0, 0.01);
}

TEST_F(Grafici, TimesAreThinnedOutAndNamesNever) {
    const std::vector<std::string> tempi = parole(disponi(prova::domanda(72, 5), usuale), Testi::etichettaX);
    EXPECT_EQ(tempi, (std::vector<std::string>{"07:00-07:05", "08:00-08:05", "09:00-09:05", "10:00-10:05",
                                               "11:00-11:05", "12:00-12:05"}));
    EXPECT_EQ(parole(disponi(prova::domanda(3, 30), piccola), Testi::etichettaX).size(), 3U);
    std::string nomi;
    for (const std::string& riga : parole(disponi(prova::composizione(Forma::barre), usuale), Testi::etichettaX)) {
        nomi += (nomi.empty() ? "" : " ") + riga;
    }
    EXPECT_EQ(nomi, "Autoarticolati Autotreni Autobus Camper Roulotte Veicoli a due ruote Autovetture");
    EXPECT_EQ(parole(disponi(prova::composizione(Forma::barre), piccola), Testi::etichettaX).size(), 7U);
}

TEST_F(Grafici, LettersStandAtTheirCodes) {
    const Disposizione d = disponi(prova::livelli(Forma::barre), usuale);
    EXPECT_EQ(parole(d, Testi::etichettaY), (std::vector<std::string>{"0", "A", "B", "C", "D", "E", "F"}));
    const std::vector<Disposizione::Testo> lettere = di(d, Testi::etichettaY);
    const std::vector<QRectF> barre = di(d, Forme::barra);
    EXPECT_NEAR(barre[8].top(), lettere[6].dove.center().y(), 0.01);  // 30 is F
    EXPECT_NEAR(barre[7].top(), lettere[4].dove.center().y(), 0.01);  // 20 is D
    EXPECT_EQ(parole(d, Testi::nota), std::vector<std::string>{"(*) L.O.S. (Level of service) - HCM Americano"});
    EXPECT_EQ(di(d, Testi::nota)[0].colore, tinta::secondario);
    EXPECT_EQ(parole(d, Testi::titoloY), std::vector<std::string>{"L.O.S. (*)"});
    EXPECT_EQ(parole(d, Testi::titoloX), std::vector<std::string>{"ora"});
}

TEST_F(Grafici, AnAxisOfMeasuresRunsFromItsSmallestToItsLargestValue) {
    const Disposizione d = disponi(prova::sensibilita(), usuale);
    ASSERT_EQ(d.linee.size(), 1U);
    const QPolygonF& punti = d.linee[0].punti;
    EXPECT_NEAR(punti.front().y(), d.campo.bottom(), 0.01);
    EXPECT_NEAR(punti.back().y(), d.campo.top(), 0.01);
    EXPECT_NEAR(punti.front().x() - d.campo.left(), d.campo.right() - punti.back().x(), 0.01);
    EXPECT_EQ(parole(d, Testi::etichettaY), (std::vector<std::string>{"1100", "1200", "1300", "1400"}));
    EXPECT_EQ(parole(d, Testi::etichettaX), (std::vector<std::string>{"4,0", "4,5", "5,0", "5,5", "6,0"}));
    EXPECT_NEAR(di(d, Testi::etichettaX)[2].dove.center().x(), punti[3].x(), 0.01);  // 5 m
}

TEST_F(Grafici, BarsBelowZeroHangFromTheAxis) {
    const Disposizione d = disponi(prova::conNegativi(), usuale);
    const std::vector<QRectF> barre = di(d, Forme::barra);
    const std::vector<QRectF> assi = di(d, Forme::asse);
    const double zero = assi[1].center().y();
    EXPECT_NEAR(barre[0].top(), zero, 0.01);
    EXPECT_NEAR(barre[3].bottom(), zero, 0.01);
    EXPECT_GT(zero, d.campo.top());
    EXPECT_LT(zero, d.campo.bottom());
    for (const Disposizione::Testo& t : di(d, Testi::valore)) {
        EXPECT_EQ(t.parole.startsWith(QLatin1Char('-')), t.dove.center().y() > zero) << t.parole.toStdString();
        EXPECT_TRUE(t.dove.bottom() < d.campo.bottom());
    }
}

TEST_F(Grafici, ThresholdsAreDashedLinesWithTheirWordsBeside) {
    const Disposizione d = disponi(prova::conSoglie(Forma::barre), usuale);
    const std::vector<Disposizione::Testo> testi = di(d, Testi::soglia);
    ASSERT_EQ(testi.size(), 2U);
    EXPECT_EQ(testi[0].parole.toStdString(), "Superiore 50,0");
    EXPECT_GT(testi[0].dove.left(), d.campo.right());
    const auto soglia = std::find_if(d.linee.begin(), d.linee.end(), [](const auto& l) { return l.tratteggiata; });
    ASSERT_NE(soglia, d.linee.end());
    EXPECT_NEAR(soglia->punti.front().y(), d.campo.bottom() - d.campo.height() * 50.0 / 75.0, 0.01);
    const QImage immagine = dipinto(prova::conSoglie(Forma::linee), usuale);
    int segni = 0;
    int vuoti = 0;
    for (int x = static_cast<int>(d.campo.left()) + 10; x < static_cast<int>(d.campo.right()) - 10; ++x) {
        const QColor colore = immagine.pixelColor(x, static_cast<int>(soglia->punti.front().y()));
        segni += colore.green() < 120 && colore.red() > 150 ? 1 : 0;
        vuoti += colore == QColor(Qt::white) ? 1 : 0;
    }
    EXPECT_GT(segni, vuoti);
    EXPECT_GT(vuoti, 100);
    Contenuto fuori = prova::conSoglie(Forma::barre);
    fuori.soglie[0].valore = 80.0;
    EXPECT_EQ(di(disponi(fuori, usuale), Testi::soglia).size(), 1U);
    fuori.y = {};
    EXPECT_EQ(di(disponi(fuori, usuale), Testi::soglia).size(), 2U);  // the axis grows to hold it
}

TEST_F(Grafici, ThresholdsNearOneAnotherKeepTheirWordsApart) {
    Contenuto c = prova::prestazioni(prova::ritardi, 10);
    for (const double valore : {0.0, 0.2, 0.4, 74.9, 75.0}) {
        c.soglie.push_back({.testo = "soglia", .valore = valore});
    }
    const std::vector<Disposizione::Testo> testi = di(disponi(c, usuale), Testi::soglia);
    ASSERT_EQ(testi.size(), 5U);
    for (std::size_t i = 1; i < testi.size(); ++i) {
        EXPECT_GE(testi[i].dove.top(), testi[i - 1].dove.bottom() - 0.01);
    }
}

TEST_F(Grafici, ThePieTellsSharesNamesAndValues) {
    for (const QSizeF& misura : {piccola, usuale, grande, QSizeF(240, 480)}) {
        const Disposizione d = disponi(prova::composizione(Forma::torta), misura);
        ASSERT_EQ(d.fette.size(), 6U);  // a category of 0 has no slice
        double da = 0.0;
        for (const Disposizione::Fetta& fetta : d.fette) {
            EXPECT_NEAR(fetta.da, da, 1e-9);
            da += fetta.gira;
        }
        EXPECT_NEAR(da, 360.0, 1e-9);
        EXPECT_NEAR(d.fette[5].gira, 0.86 * 360.0, 1e-9);
        EXPECT_EQ(parole(d, Testi::fetta).size(), 7U) << misura.width();
        std::vector<std::string> valori = parole(d, Testi::valore);
        std::sort(valori.begin(), valori.end());
        EXPECT_EQ(valori, (std::vector<std::string>{"0,00", "1,00", "1,50", "2,00", "3,50", "6,00", "86,00"}));
        EXPECT_EQ(di(d, Forme::campione).size(), 7U);
    }
}

TEST_F(Grafici, APieOfNothingIsAnEmptyCircleWithItsNames) {
    const Disposizione d = disponi(prova::composizione(Forma::torta, {0, 0, 0, 0, 0, 0, 0}), usuale);
    ASSERT_EQ(d.fette.size(), 1U);
    EXPECT_EQ(d.fette[0].colore, colori::bianco);
    EXPECT_EQ(parole(d, Testi::fetta).size(), 7U);
    Contenuto senza = prova::composizione(Forma::torta);
    senza.serie[0] = {.forma = Forma::torta};
    EXPECT_EQ(parole(disponi(senza, usuale), Testi::invito), std::vector<std::string>{"Nessun dato"});
}

TEST_F(Grafici, WithoutDataThereAreTheAxesAndAnInvitation) {
    const Disposizione d = disponi(prova::senzaDati(), usuale);
    EXPECT_EQ(di(d, Forme::asse).size(), 2U);
    EXPECT_EQ(di(d, Forme::tacca).size(), 19U + 3U);
    EXPECT_EQ(parole(d, Testi::etichettaX), (std::vector<std::string>{"07:00", "08:00", "09:00"}));
    EXPECT_EQ(parole(d, Testi::invito), std::vector<std::string>{"Calcola (F9)"});
    EXPECT_NEAR(di(d, Testi::invito)[0].dove.center().x(), d.campo.center().x(), 0.01);
    EXPECT_TRUE(di(d, Forme::barra).empty());
    EXPECT_EQ(di(disponi(Contenuto{}, usuale), Testi::etichettaY).size(), 0U);  // nobody knows the values
}

TEST_F(Grafici, TheNamesOfTheSeriesStandInTheLegendOnlyWhereAsked) {
    Contenuto c = prova::dueSerie();
    EXPECT_EQ(parole(disponi(c, usuale), Testi::legenda),
              (std::vector<std::string>{"Senza corsia", "Con corsia preferenziale", "Media"}));
    c.legenda = false;
    EXPECT_TRUE(di(disponi(c, usuale), Testi::legenda).empty());
    const std::vector<QRectF> barre = di(disponi(c, usuale), Forme::barra);
    ASSERT_EQ(barre.size(), 36U);
    EXPECT_NEAR(barre[0].right(), barre[18].left(), 0.01);  // side by side
}

TEST_F(Grafici, ALongTitleIsBrokenAndNotCut) {
    EXPECT_EQ(parole(disponi(prova::confronto(), usuale), Testi::titolo).size(), 1U);
    EXPECT_EQ(parole(disponi(prova::confronto(), usuale), Testi::titolo)[0], prova::confronto().titolo);
    EXPECT_EQ(parole(disponi(prova::confronto(), piccola), Testi::titolo),
              (std::vector<std::string>{"Grafico Confronto Rami: Flusso di traffico", "[veic/h]"}));
}

}  // namespace
}  // namespace kelvo::disegno
