// The painted plan: what stands where, and pictures that are what they say.

#include <gtest/gtest.h>

#include <QtCore/QBuffer>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <string>

#include "disegno/AmbienteDisegno.h"
#include "disegno/DisegnatoreQt.h"
#include "disegno/caratteri.h"
#include "disegno/pittorePianta.h"
#include "pianta/Pianta.h"
#include "pianta/curve.h"
#include "pianta/progetti.h"
#include "shell/servizi/tinte.h"

namespace kelvo::disegno {
namespace {

using pianta::DatiPianta;
using pianta::Punto;

DatiPianta usuale(int rami) {
    return prove::uguali(rami, prove::ramoUsuale("S.P. 62"));
}

class Pittura : public testing::Test {
protected:
    static void SetUpTestSuite() { ambiente_ = std::make_unique<AmbienteDisegno>(KELVO_CARTELLA "/Caratteri"); }
    static void TearDownTestSuite() { ambiente_.reset(); }

    /// A plan painted without words, and where its points fall.
    struct Quadro {
        QImage immagine;
        pianta::Pianta pianta;
        QPoint punto(Punto p) const {
            const double scala =
                std::min(immagine.width() / pianta.vista.larghezza(), immagine.height() / pianta.vista.altezza());
            const Punto centro = (pianta.vista.minimo + pianta.vista.massimo) * 0.5;
            return {static_cast<int>(immagine.width() / 2.0 + (p.x - centro.x) * scala),
                    static_cast<int>(immagine.height() / 2.0 - (p.y - centro.y) * scala)};
        }
        QColor colore(Punto p) const { return immagine.pixelColor(punto(p)); }
    };

    static Quadro dipinto(const DatiPianta& dati, const pianta::OpzioniPianta& opzioni) {
        Quadro q{QImage(800, 700, QImage::Format_ARGB32), pianta::costruisci(dati, opzioni)};
        q.immagine.fill(Qt::white);
        QPainter pennello(&q.immagine);
        dipingiPianta(pennello, q.pianta, QRectF(0, 0, 800, 700), {.tratto = 1.0, .testi = false});
        return q;
    }

private:
    static inline std::unique_ptr<AmbienteDisegno> ambiente_;
};

TEST_F(Pittura, GroundsHaveTheirColours) {
    const Quadro q = dipinto(usuale(4), {});
    EXPECT_EQ(q.colore({0, 0}), qcolore(tinta::isola));
    EXPECT_EQ(q.colore({0, -(20 - q.pianta.anello - 0.7)}), qcolore(tinta::corona));
    EXPECT_EQ(q.colore({0, -20 + 1.5}), qcolore(tinta::asfalto));
    EXPECT_EQ(q.colore({0, -22}), qcolore(tinta::corona));  // splitter island of leg A
    EXPECT_EQ(q.colore({28, -28}), QColor(Qt::white));      // beyond the kerb between A and B
}

TEST_F(Pittura, TheKerbIsDrawnAllTheWay) {
    const Quadro q = dipinto(usuale(5), {});
    for (const pianta::Linea& linea : q.pianta.linee) {
        if (linea.ruolo != pianta::Ruolo::cordolo) {
            continue;
        }
        const auto catena = pianta::spezzata(linea.tracciato, false, 0.1);
        for (std::size_t i = 1; i + 1 < catena.size(); ++i) {
            int scuro = 255;
            for (int dx = -1; dx <= 1; ++dx) {
                for (int dy = -1; dy <= 1; ++dy) {
                    scuro = std::min(scuro, q.immagine.pixelColor(q.punto(catena[i]) + QPoint(dx, dy)).red());
                }
            }
            EXPECT_LT(scuro, 150) << linea.nome << " " << i;
        }
    }
}

TEST_F(Pittura, TheEntryAtHandIsBlueAndNoOther) {
    const Quadro q = dipinto(usuale(4), {.ramo = 2});
    const Punto inB{30, 1.2};
    const Punto inA{1.2, -30};
    const auto corsia = [&](Punto p) {
        // The middle of an arrow may stand there: look a little aside.
        return q.colore(p + Punto{0, 0.6});
    };
    EXPECT_EQ(corsia(inB), qcolore(tinta::ingressoCorrente));
    EXPECT_EQ(q.colore(inA + Punto{0.6, 0}), qcolore(tinta::asfalto));
}

TEST_F(Pittura, ARibbonHasTheColourOfItsOriginAndSoHasTheLetter) {
    for (int da = 1; da <= 7; ++da) {
        std::vector<std::vector<float>> flussi(7, std::vector<float>(7, 0.0F));
        const int a = da % 7 + 1;
        flussi[static_cast<std::size_t>(da) - 1][static_cast<std::size_t>(a) - 1] = 40.0F;
        const Quadro q = dipinto(usuale(7), {.flussi = flussi});
        const QColor attesa = qcolore(tinta::categorie[static_cast<std::size_t>(da) - 1]);
        const auto nastro = std::find_if(q.pianta.aree.begin(), q.pianta.aree.end(),
                                         [](const pianta::Area& x) { return x.ruolo == pianta::Ruolo::flusso; });
        ASSERT_NE(nastro, q.pianta.aree.end());
        const Punto inizio = (nastro->contorno.front().p + nastro->contorno.back().p) * 0.5;
        EXPECT_EQ(q.colore(inizio * 0.97), attesa) << da;
        for (const pianta::Testo& testo : q.pianta.testi) {
            if (testo.disco > 0) {
                EXPECT_EQ(q.colore(testo.punto), qcolore(tinta::categorie[static_cast<std::size_t>(testo.ramo) - 1]));
            }
        }
    }
}

TEST_F(Pittura, ALightRibbonHasABorderThatIsSeenOnTheAsphalt) {
    for (std::size_t i = 0; i < tinta::categorie.size(); ++i) {
        const bool chiara = contrasto(tinta::categorie[i], tinta::asfalto) < 3.0;
        EXPECT_EQ(chiara, i >= 5) << i;
    }
    std::vector<std::vector<float>> flussi(7, std::vector<float>(7, 0.0F));
    flussi[5][6] = 40.0F;
    const Quadro q = dipinto(usuale(7), {.flussi = flussi});
    const auto nastro = std::find_if(q.pianta.aree.begin(), q.pianta.aree.end(),
                                     [](const pianta::Area& x) { return x.ruolo == pianta::Ruolo::flusso; });
    int scuro = 255;
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy) {
            scuro = std::min(scuro, q.immagine.pixelColor(q.punto(nastro->contorno[1].p) + QPoint(dx, dy)).red());
        }
    }
    EXPECT_LT(scuro, 140);
}

TEST_F(Pittura, WithoutFlowsThePictureIsThatOfThePlanAlone) {
    const std::vector<std::vector<float>> nessuno(4, std::vector<float>(4, 0.0F));
    EXPECT_EQ(dipinto(usuale(4), {.flussi = nessuno}).immagine, dipinto(usuale(4), {}).immagine);
}

TEST_F(Pittura, TheRibbonAtHandIsWiderAndBordered) {
    const std::vector<std::vector<float>> flussi(4, std::vector<float>(4, 10.0F));
    const Quadro senza = dipinto(usuale(4), {.flussi = flussi});
    const Quadro con = dipinto(usuale(4), {.movimento = pianta::Movimento{1, 3}, .flussi = flussi});
    const auto nastro = std::find_if(con.pianta.aree.begin(), con.pianta.aree.end(), [](const pianta::Area& x) {
        return x.ruolo == pianta::Ruolo::flusso && x.corrente;
    });
    ASSERT_NE(nastro, con.pianta.aree.end());
    EXPECT_EQ(nastro->nome, "flusso A-C");
    const auto scuri = [](const Quadro& q) {
        int quanti = 0;
        for (int y = 0; y < q.immagine.height(); ++y) {
            for (int x = 0; x < q.immagine.width(); ++x) {
                quanti += q.immagine.pixelColor(x, y).lightness() < 40 ? 1 : 0;
            }
        }
        return quanti;
    };
    EXPECT_GT(scuri(con), scuri(senza) + 300);
}

TEST_F(Pittura, FlowsAreInEveryKindOfFile) {
    DisegnatoreQt disegnatore;
    const std::vector<std::vector<float>> flussi(4, std::vector<float>(4, 10.0F));
    const QByteArray arancio = qcolore(tinta::serieSaturazione).name().toUtf8();  // leg B
    const auto svg = [&](const pianta::OpzioniPianta& opzioni) {
        return QByteArray::fromStdString(
            disegnatore.pianta(usuale(4), opzioni, FormatoDisegno::svg, {.larghezza = 900}).dati);
    };
    EXPECT_FALSE(svg({}).contains(arancio));
    EXPECT_TRUE(svg({.flussi = flussi}).contains(arancio));
    for (const FormatoDisegno formato : {FormatoDisegno::png, FormatoDisegno::pdf}) {
        const auto senza = disegnatore.pianta(usuale(4), {}, formato, {.larghezza = 900});
        const auto con = disegnatore.pianta(usuale(4), {.flussi = flussi}, formato, {.larghezza = 900});
        EXPECT_EQ(con.errore, "");
        EXPECT_GT(con.dati.size(), senza.dati.size());
    }
}

TEST_F(Pittura, TheHighlightedWidthIsDrawnFromTheIslandToTheKerb) {
    const Quadro q = dipinto(
        usuale(4), {.vista = pianta::Vista::primoPiano, .ramo = 1, .misura = pianta::Misura::larghezzaIngresso});
    const pianta::Ciglio& c = q.pianta.rami[0].ingresso;
    for (const double quota : {0.35, 0.5, 0.65}) {
        const QColor colore = q.colore(c.angolo + (c.piede - c.angolo) * quota);
        EXPECT_LT(std::abs(colore.red() - tinta::titolo.rosso), 90);
        EXPECT_LT(colore.red(), 120);
    }
}

TEST_F(Pittura, LettersAreFullUntilALegIsAtHand) {
    const auto disco = [](const Quadro& q, int ramo) {
        const auto testo = std::find_if(q.pianta.testi.begin(), q.pianta.testi.end(), [&](const pianta::Testo& t) {
            return t.ruolo == pianta::Ruolo::lettera && t.ramo == ramo;
        });
        return q.colore(testo->punto);
    };
    const Quadro nessuno = dipinto(usuale(3), {});
    EXPECT_EQ(disco(nessuno, 1), qcolore(tinta::principale));
    EXPECT_EQ(disco(nessuno, 2), qcolore(tinta::principale));
    const Quadro secondo = dipinto(usuale(3), {.ramo = 2});
    EXPECT_EQ(disco(secondo, 1), QColor(Qt::white));
    EXPECT_EQ(disco(secondo, 2), qcolore(tinta::principale));
}

TEST_F(Pittura, NothingIsPaintedOutsideItsSpace) {
    QImage immagine(400, 300, QImage::Format_ARGB32);
    immagine.fill(Qt::magenta);
    QPainter pennello(&immagine);
    const pianta::Pianta p =
        pianta::costruisci(usuale(4), {.vista = pianta::Vista::primoPiano, .misura = pianta::Misura::diametro});
    dipingiPianta(pennello, p, QRectF(100, 80, 150, 120));
    pennello.end();
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            if (!QRect(99, 79, 152, 122).contains(x, y)) {
                ASSERT_EQ(immagine.pixelColor(x, y), QColor(Qt::magenta)) << x << " " << y;
            }
        }
    }
}

TEST_F(Pittura, APlanOfEqualLegsIsTheSameTurnedByAQuarter) {
    QImage immagine(700, 700, QImage::Format_ARGB32);
    immagine.fill(Qt::white);
    QPainter pennello(&immagine);
    dipingiPianta(pennello, pianta::costruisci(usuale(4), {.nomi = false, .lettere = false, .note = false}),
                  QRectF(0, 0, 700, 700), {.testi = false});
    pennello.end();
    const QImage girata = immagine.transformed(QTransform().rotate(90));
    int diversi = 0;
    for (int y = 0; y < 700; ++y) {
        for (int x = 0; x < 700; ++x) {
            diversi += std::abs(qGray(immagine.pixel(x, y)) - qGray(girata.pixel(x, y))) > 60 ? 1 : 0;
        }
    }
    EXPECT_LT(diversi, 700 * 700 / 500);
}

TEST_F(Pittura, APngHasItsSize) {
    const EsitoDisegno esito =
        DisegnatoreQt().pianta(usuale(4), {}, FormatoDisegno::png, {.larghezza = 500, .altezza = 400, .scala = 2.0});
    ASSERT_EQ(esito.errore, "");
    QImage immagine;
    ASSERT_TRUE(immagine.loadFromData(QByteArray::fromStdString(esito.dati), "PNG"));
    EXPECT_EQ(immagine.size(), QSize(1000, 800));
    EXPECT_EQ(immagine.pixelColor(3, 3), QColor(Qt::white));
}

TEST_F(Pittura, AnSvgIsWellFormedAndShowsThePlan) {
    const EsitoDisegno esito = DisegnatoreQt().pianta(usuale(6), {}, FormatoDisegno::svg, {.larghezza = 600});
    ASSERT_EQ(esito.errore, "");
    const QByteArray byte = QByteArray::fromStdString(esito.dati);
    QXmlStreamReader lettore(byte);
    int vie = 0;
    QString testi;
    while (!lettore.atEnd()) {
        if (lettore.readNext() == QXmlStreamReader::StartElement) {
            vie += lettore.name() == QLatin1String("path") ? 1 : 0;
        } else if (lettore.isCharacters()) {
            testi += lettore.text();
        }
    }
    EXPECT_FALSE(lettore.hasError()) << lettore.errorString().toStdString();
    EXPECT_GT(vie, 40);
    EXPECT_TRUE(testi.contains(QStringLiteral("schema: direzioni dei rami, isole e uscite non di progetto")));
    EXPECT_TRUE(testi.contains(QStringLiteral("Rotatoria a 6 rami")));
    QSvgRenderer disegno(byte);
    ASSERT_TRUE(disegno.isValid());
    QImage immagine(disegno.defaultSize(), QImage::Format_ARGB32);
    immagine.fill(Qt::magenta);
    QPainter pennello(&immagine);
    disegno.render(&pennello);
    EXPECT_EQ(immagine.pixelColor(2, 2), QColor(Qt::white));
    int verdi = 0;
    for (int x = 0; x < immagine.width(); ++x) {
        verdi += immagine.pixelColor(x, immagine.height() / 2) == qcolore(tinta::isola) ? 1 : 0;
    }
    EXPECT_GT(verdi, 40);
}

TEST_F(Pittura, APdfIsOnePage) {
    const EsitoDisegno esito = DisegnatoreQt().pianta(usuale(3), {}, FormatoDisegno::pdf, {});
    ASSERT_EQ(esito.errore, "");
    EXPECT_EQ(esito.dati.substr(0, 5), "%PDF-");
    EXPECT_NE(esito.dati.find("%%EOF"), std::string::npos);
    EXPECT_NE(esito.dati.find("/Count 1"), std::string::npos);
}

TEST_F(Pittura, EveryFormatShowsEveryMeasure) {
    for (std::size_t m = 0; m < pianta::numeroMisure; ++m) {
        for (const FormatoDisegno formato : {FormatoDisegno::png, FormatoDisegno::svg, FormatoDisegno::pdf}) {
            const EsitoDisegno esito = DisegnatoreQt().pianta(
                usuale(5), {.vista = pianta::Vista::primoPiano, .ramo = 3, .misura = static_cast<pianta::Misura>(m)},
                formato, {.larghezza = 300});
            EXPECT_EQ(esito.errore, "");
            EXPECT_GT(esito.dati.size(), 1000U);
        }
    }
}

TEST_F(Pittura, TheBundledFacesAreUsed) {
    EXPECT_TRUE(caricaCaratteri(QStringLiteral(KELVO_CARTELLA "/Caratteri")));
    EXPECT_FALSE(caricaCaratteri(QStringLiteral(KELVO_CARTELLA "/manca")));
    EXPECT_EQ(QFontInfo(dati(12)).family().toStdString().substr(0, 9), "Open Sans");
}

TEST_F(Pittura, NumbersInFilesKeepTheirPoint) {
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}

}  // namespace
}  // namespace kelvo::disegno
