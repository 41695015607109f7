// The charts as pictures: on the screen's pixels and in files.

#include <gtest/gtest.h>

#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <cmath>
#include <map>
#include <numbers>
#include <string>

#include "disegno/DisegnatoreQt.h"
#include "disegno/caratteri.h"
#include "disegno/scenaGrafici.h"

namespace kelvo::disegno {
namespace {

class GraficiDipinti : public Grafici {};

TEST_F(GraficiDipinti, SlicesHaveTheirColoursClockwiseFromTheTop) {
    const Contenuto c = prova::composizione(Forma::torta, {10, 20, 15, 12, 13, 14, 16});
    const Disposizione d = disponi(c, usuale);
    const QImage immagine = dipinto(c, usuale);
    double finora = 0.0;
    const std::vector<double>& valori = c.serie[0].valori;
    for (std::size_t i = 0; i < valori.size(); ++i) {
        const double angolo = (finora + valori[i] / 2.0) * 2.0 * std::numbers::pi / 100.0;
        const double raggio = d.fette[0].raggio * 0.6;
        const QPointF punto = d.fette[0].centro + QPointF(std::sin(angolo), -std::cos(angolo)) * raggio;
        EXPECT_EQ(immagine.pixelColor(punto.toPoint()), qcolore(tinta::categorie.at(i))) << i;
        finora += valori[i];
    }
}

TEST_F(GraficiDipinti, BarsAreEquallyWideAndGridLinesSharpAtEveryScale) {
    Contenuto c = prova::prestazioni(std::vector<double>(72, 40.0), 5);
    c.valori = false;
    c.y = {.massimo = 80.0};
    const Disposizione d = disponi(c, usuale);
    for (const double scala : {1.0, 1.25, 1.5, 2.0}) {
        const QImage immagine = dipinto(c, usuale, scala);
        const int y = static_cast<int>((d.campo.bottom() - 30.0) * scala);
        std::map<int, int> larghezze;
        int corsa = 0;
        for (int x = static_cast<int>((d.campo.left() + 1.0) * scala); x < immagine.width(); ++x) {
            if (immagine.pixelColor(x, y) == qcolore(tinta::serieRitardi)) {
                ++corsa;
            } else if (corsa > 0) {
                ++larghezze[corsa];
                corsa = 0;
            }
        }
        ASSERT_EQ(larghezze.size(), 1U) << scala;
        EXPECT_GE(larghezze.begin()->second, 71) << scala;
        // Above the bars: grid lines of one colour, as wide as a line is at this scale.
        std::map<QRgb, int> colori;
        const int x = static_cast<int>(d.campo.center().x() * scala);
        const int alto = static_cast<int>((d.campo.top() - 3.0) * scala);
        for (int riga = alto; riga < static_cast<int>((d.campo.bottom() - d.campo.height() * 0.55) * scala); ++riga) {
            ++colori[immagine.pixel(x, riga)];
        }
        EXPECT_EQ(colori.size(), 2U) << scala;
        EXPECT_EQ(colori[qcolore(tinta::griglia).rgb()] % std::lround(scala), 0) << scala;
        EXPECT_GT(colori[qcolore(tinta::griglia).rgb()], 0) << scala;
    }
}

TEST_F(GraficiDipinti, PointsOfALineAreHollow) {
    const Contenuto c = prova::prestazioni(prova::ritardi, 10, Forma::linee);
    const Disposizione d = disponi(c, usuale);
    const QImage immagine = dipinto(c, usuale, 2.0);
    ASSERT_EQ(d.linee.size(), 1U);
    EXPECT_EQ(d.linee[0].punti.size(), 18);
    for (const QPointF& punto : d.linee[0].punti) {
        EXPECT_EQ(immagine.pixelColor((punto * 2.0).toPoint()), QColor(Qt::white));
        const QColor bordo = immagine.pixelColor(((punto + QPointF(0, 3.0)) * 2.0).toPoint());
        EXPECT_LT(std::abs(bordo.red() - tinta::serieRitardi.rosso), 40);
    }
}

TEST_F(GraficiDipinti, ALineEndsAtTheEdgesOfAnAxisShorterThanItsValues) {
    Contenuto c = prova::prestazioni(prova::ritardi, 10, Forma::linee);
    c.y.massimo = 30.0;
    const Disposizione d = disponi(c, usuale);
    const QImage immagine = dipinto(c, usuale);
    for (int x = static_cast<int>(d.campo.left()) + 4; x < static_cast<int>(d.campo.right()); ++x) {
        const QColor colore = immagine.pixelColor(x, static_cast<int>(d.campo.top()) - 5);
        EXPECT_EQ(colore, QColor(Qt::white)) << x;
    }
    const std::vector<std::string> valori = parole(d, Testi::valore);
    EXPECT_EQ(std::count(valori.begin(), valori.end(), "71,4"), 0);
}

TEST_F(GraficiDipinti, NothingIsPaintedOutsideItsSpace) {
    for (const auto& [nome, contenuto] : tutti()) {
        QImage immagine(400, 300, QImage::Format_ARGB32);
        immagine.fill(Qt::magenta);
        QPainter pennello(&immagine);
        dipingiGrafico(pennello, contenuto, QRectF(60, 50, 260, 180));
        pennello.end();
        int fuori = 0;
        int dentro = 0;
        for (int y = 0; y < immagine.height(); ++y) {
            for (int x = 0; x < immagine.width(); ++x) {
                const bool dipinto = immagine.pixelColor(x, y) != QColor(Qt::magenta);
                (QRect(60, 50, 260, 180).contains(x, y) ? dentro : fuori) += dipinto ? 1 : 0;
            }
        }
        EXPECT_EQ(fuori, 0) << nome;
        EXPECT_GT(dentro, 400) << nome;
    }
}

TEST_F(GraficiDipinti, AnyRoomAndAnyDataAreDrawn) {
    std::map<std::string, Contenuto> strani = tutti();
    strani["uno"] = prova::prestazioni({5.0}, 10);
    strani["uno linea"] = prova::prestazioni({5.0}, 10, Forma::linee);
    strani["un punto"] = prova::sensibilita();
    strani["un punto"].serie[0] = {.forma = Forma::linee, .valori = {7.0}, .testi = {"7"}, .ascisse = {3.0}};
    strani["un punto"].x.minimo = strani["un punto"].x.massimo = 3.0;
    strani["enormi"] = prova::prestazioni({1e300, -1e300, 5e-324}, 10, Forma::linee);
    strani["enormi"].y = {};
    strani["molti"] = prova::prestazioni(std::vector<double>(3000, 1.0), 5);
    strani["barre con ascisse"] = prova::sensibilita();
    strani["barre con ascisse"].serie[0].forma = Forma::barre;
    for (const auto& [nome, contenuto] : strani) {
        for (const QSizeF& misura : {QSizeF(1, 1), QSizeF(13, 13), QSizeF(40, 900), QSizeF(900, 40), usuale}) {
            const Disposizione d = disponi(contenuto, misura);
            for (const Disposizione::Riquadro& r : d.riquadri) {
                ASSERT_TRUE(std::isfinite(r.dove.x()) && std::isfinite(r.dove.bottom())) << nome;
            }
            EXPECT_FALSE(dipinto(contenuto, misura).isNull());
        }
    }
}

TEST_F(GraficiDipinti, ALargerPictureIsTheSameOneEnlarged) {
    DisegnatoreQt disegnatore;
    const Contenuto c = prova::prestazioni(prova::ritardi, 10);
    const auto immagine = [&](const MisuraDisegno& misura) {
        QImage letta;
        letta.loadFromData(QByteArray::fromStdString(disegnatore.grafico(c, FormatoDisegno::png, misura).dati), "PNG");
        return letta;
    };
    const QImage scala = immagine({.larghezza = 900, .altezza = 540, .scala = 2.0});
    const QImage larga = immagine({.larghezza = 1800});
    ASSERT_EQ(scala.size(), QSize(1800, 1080));
    ASSERT_EQ(larga.size(), QSize(1800, 1080));
    EXPECT_EQ(scala, larga);
}

TEST_F(GraficiDipinti, EveryChartGoesIntoEveryFormat) {
    DisegnatoreQt disegnatore;
    for (const auto& [nome, contenuto] : tutti()) {
        for (const FormatoDisegno formato : {FormatoDisegno::png, FormatoDisegno::svg, FormatoDisegno::pdf}) {
            const EsitoDisegno esito = disegnatore.grafico(contenuto, formato, {.larghezza = 600});
            EXPECT_EQ(esito.errore, "") << nome;
            EXPECT_GT(esito.dati.size(), 1000U) << nome;
        }
    }
    const EsitoDisegno pdf = disegnatore.grafico(prova::sensibilita(), FormatoDisegno::pdf, {});
    EXPECT_EQ(pdf.dati.substr(0, 5), "%PDF-");
    EXPECT_NE(pdf.dati.find("/Count 1"), std::string::npos);
}

TEST_F(GraficiDipinti, WordsOfAnSvgStayWords) {
    const EsitoDisegno esito =
        DisegnatoreQt().grafico(prova::prestazioni(prova::ritardi, 10), FormatoDisegno::svg, {.larghezza = 900});
    QXmlStreamReader lettore(QByteArray::fromStdString(esito.dati));
    QStringList scritte;
    QString titolo;
    while (!lettore.atEnd()) {
        if (lettore.readNext() == QXmlStreamReader::StartElement && lettore.name() == QLatin1String("text")) {
            scritte << lettore.readElementText();
        } else if (lettore.isStartElement() && lettore.name() == QLatin1String("title")) {
            titolo = lettore.readElementText();
        }
    }
    EXPECT_FALSE(lettore.hasError()) << lettore.errorString().toStdString();
    for (const char* parola : {"Ritardi - S.P. 62 Sud", "s/veic", "ora", "71,4", "08:00", "0"}) {
        EXPECT_TRUE(scritte.contains(QString::fromUtf8(parola))) << parola;
    }
    EXPECT_EQ(titolo.toStdString(), "Ritardi - S.P. 62 Sud");
}

TEST_F(GraficiDipinti, AnSvgNamesEveryFamilyOfItsFacesAndTheWeightOfTheStrongOne) {
    const EsitoDisegno esito =
        DisegnatoreQt().grafico(prova::prestazioni(prova::ritardi, 10), FormatoDisegno::svg, {.larghezza = 900});
    QXmlStreamReader lettore(QByteArray::fromStdString(esito.dati));
    int forti = 0;
    int normali = 0;
    while (!lettore.atEnd()) {
        if (lettore.readNext() != QXmlStreamReader::StartElement || lettore.name() != QLatin1String("text")) {
            continue;
        }
        const QString famiglie = lettore.attributes().value(QLatin1String("font-family")).toString();
        const QString peso = lettore.attributes().value(QLatin1String("font-weight")).toString();
        EXPECT_TRUE(famiglie.contains(QLatin1String("'Open Sans'"))) << famiglie.toStdString();
        EXPECT_TRUE(famiglie.endsWith(QLatin1String(",sans-serif"))) << famiglie.toStdString();
        const QString parole = lettore.readElementText();
        const bool forte = parole == QLatin1String("71,4") || parole.startsWith(QLatin1String("Ritardi"));
        EXPECT_EQ(peso.toStdString(), forte ? "600" : "400") << parole.toStdString();
        (forte ? forti : normali) += 1;
    }
    EXPECT_FALSE(lettore.hasError()) << lettore.errorString().toStdString();
    EXPECT_EQ(forti, 2);
    EXPECT_GT(normali, 20);
}

}  // namespace
}  // namespace kelvo::disegno
