#include <gtest/gtest.h>

#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "disegno/AmbienteDisegno.h"
#include "disegno/DisegnatoreQt.h"
#include "disegno/codificaPng.h"
#include "disegno/pittoreGrafico.h"
#include "graficiDiProva.h"

namespace kelvo::disegno {
namespace {

QImage figura(int larga, int alta) {
    QImage immagine(larga, alta, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    return immagine;
}

/// How far the pixels of two pictures are from each other at most, in one channel.
int distanza(const QImage& a, const QImage& b) {
    EXPECT_EQ(a.size(), b.size());
    int massima = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            massima = std::max(
                {massima, std::abs(p.red() - q.red()), std::abs(p.green() - q.green()), std::abs(p.blue() - q.blue())});
        }
    }
    return massima;
}

TEST(CodificaPng, FewColoursStayExactlyAsTheyAre) {
    QImage immagine = figura(16, 16);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            immagine.setPixel(x, y, qRgb(16 * x, 16 * y, x * y));
        }
    }
    const QImage ridotta = conTavolozza(immagine);
    EXPECT_EQ(ridotta.format(), QImage::Format_Indexed8);
    EXPECT_EQ(ridotta.colorCount(), 256);
    EXPECT_EQ(distanza(immagine, ridotta), 0);
    const QImage letta = QImage::fromData(codificaPng(immagine), "PNG");
    EXPECT_EQ(letta.format(), QImage::Format_Indexed8);
    EXPECT_EQ(distanza(immagine, letta), 0);
}

TEST(CodificaPng, RareShadesTakeANearColourAndTheFrequentOnesStay) {
    // 256 greys on four pixels each, then 64 shades a little off them, once each.
    QImage immagine = figura(64, 17);
    for (int i = 0; i < 1024; ++i) {
        immagine.setPixel(i % 64, i / 64, qRgb(i / 4, i / 4, i / 4));
    }
    for (int x = 0; x < 64; ++x) {
        immagine.setPixel(x, 16, qRgb(2 * x, 2 * x, 2 * x + scartoTavolozza / 2));
    }
    const QImage ridotta = conTavolozza(immagine);
    ASSERT_FALSE(ridotta.isNull());
    EXPECT_EQ(distanza(immagine.copy(0, 0, 64, 16), ridotta.copy(0, 0, 64, 16)), 0);
    EXPECT_GT(distanza(immagine, ridotta), 0);
    EXPECT_LE(distanza(immagine, ridotta), scartoTavolozza);
}

TEST(CodificaPng, APictureOfTooManyColoursIsWrittenAsItIs) {
    QImage immagine = figura(80, 80);
    for (int y = 0; y < 80; ++y) {
        for (int x = 0; x < 80; ++x) {
            immagine.setPixel(x, y, qRgb(3 * x, 3 * y, (x * 31 + y * 17) % 256));
        }
    }
    EXPECT_TRUE(conTavolozza(immagine).isNull());
    EXPECT_EQ(distanza(immagine, QImage::fromData(codificaPng(immagine), "PNG")), 0);
    EXPECT_TRUE(codificaPng(QImage()).isEmpty());
}

TEST(CodificaPng, TheResolutionIsKept) {
    QImage immagine = figura(8, 8);
    immagine.setDotsPerMeterX(5669);
    immagine.setDotsPerMeterY(5669);
    const QImage letta = QImage::fromData(codificaPng(immagine), "PNG");
    EXPECT_EQ(letta.dotsPerMeterX(), 5669);
    EXPECT_EQ(letta.dotsPerMeterY(), 5669);
}

class CodificaPngDisegni : public testing::Test {
protected:
    static void SetUpTestSuite() { ambiente_ = std::make_unique<AmbienteDisegno>(KELVO_CARTELLA "/Caratteri"); }
    static void TearDownTestSuite() { ambiente_.reset(); }

private:
    static inline std::unique_ptr<AmbienteDisegno> ambiente_;
};

TEST_F(CodificaPngDisegni, AChartOfAReportHasAPaletteAndIsTheChart) {
    const Grafico::Contenuto contenuto = prove::prestazioni(prove::ritardi, 10);
    constexpr double scala = 1.5;
    QImage dipinta = figura(1350, 810);
    QPainter pennello(&dipinta);
    pennello.scale(scala, scala);
    dipingiGrafico(pennello, contenuto, QRectF(0, 0, 900, 540), {.scala = 1.0});
    pennello.end();
    DisegnatoreQt disegnatore;
    const EsitoDisegno esito = disegnatore.grafico(contenuto, FormatoDisegno::png, {900, 540, scala});
    const QImage letta = QImage::fromData(QByteArray::fromStdString(esito.dati), "PNG");
    EXPECT_EQ(letta.format(), QImage::Format_Indexed8);
    EXPECT_LE(distanza(dipinta, letta), scartoTavolozza);
}

}  // namespace
}  // namespace kelvo::disegno
