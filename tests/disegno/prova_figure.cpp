// Pictures of plans, without words, against those in attesi/. With KELVO_RISCRIVI_FIGURE set they are written anew:
// look at them before they are kept.

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <array>
#include <cstdlib>
#include <string>

#include "disegno/AmbienteDisegno.h"
#include "disegno/pittorePianta.h"
#include "pianta/Pianta.h"

namespace kelvo::disegno {
namespace {

struct Figura {
    const char* nome;
    int rami;
    pianta::DatiRamo ramo;
    pianta::OpzioniPianta opzioni;
};

pianta::DatiRamo ramo(double e, double v, double l, double phi, double r, double D) {
    return {.nome = {},
            .larghezzaIngresso = e,
            .semiLarghezza = v,
            .lunghezzaSvasatura = l,
            .angoloConflitto = phi,
            .raggioIngresso = r,
            .diametroInscritto = D,
            .attraversamentoPedonale = true};
}

pianta::OpzioniPianta primoPiano(pianta::Misura misura) {
    return {.vista = pianta::Vista::primoPiano, .ramo = 2, .misura = misura};
}

/// From each leg most to the one across, none to itself.
std::vector<std::vector<float>> flussi(int rami) {
    std::vector<std::vector<float>> tutti;
    for (int da = 0; da < rami; ++da) {
        std::vector<float>& riga = tutti.emplace_back();
        for (int a = 0; a < rami; ++a) {
            const int giro = (a - da + rami) % rami;
            riga.push_back(static_cast<float>(20 * std::min(giro, rami - giro) * (1 + da % 3)));
        }
    }
    return tutti;
}

const std::array figure{
    Figura{"TreRami", 3, ramo(5, 3.75, 20, 25, 25, 40), {}},
    Figura{"QuattroRami", 4, ramo(5, 3.75, 20, 25, 25, 40), {}},
    Figura{"CinqueRami", 5, ramo(4.5, 3.5, 15, 30, 20, 50), {}},
    Figura{"SeiRami", 6, ramo(5, 3.5, 20, 30, 22, 60), {}},
    Figura{"SetteRami", 7, ramo(4.5, 3.5, 15, 32, 20, 75), {}},
    Figura{"DiametroMinimo", 7, ramo(5, 3.75, 20, 25, 25, 13.5), {}},
    Figura{"DiametroMassimo", 4, ramo(16.3, 12.5, 20, 25, 60, 176), {}},
    Figura{"SvasaturaMinima", 4, ramo(7, 3.5, 1, 25, 15, 40), primoPiano(pianta::Misura::lunghezzaSvasatura)},
    Figura{"SvasaturaLunga", 4, ramo(9, 3.5, 100, 25, 25, 40), primoPiano(pianta::Misura::lunghezzaSvasatura)},
    Figura{"AngoloNullo", 4, ramo(5, 3.75, 20, 0, 25, 40), primoPiano(pianta::Misura::angoloConflitto)},
    Figura{"AngoloMassimo", 4, ramo(5, 3.75, 20, 77, 25, 40), primoPiano(pianta::Misura::angoloConflitto)},
    Figura{"Movimento", 4, ramo(5, 3.75, 20, 25, 25, 40), {.ramo = 1, .movimento = pianta::Movimento{1, 4}}},
    Figura{"Flussi", 4, ramo(5, 3.75, 20, 25, 25, 40), {.movimento = pianta::Movimento{2, 4}, .flussi = flussi(4)}},
    Figura{"FlussiSetteRami", 7, ramo(4.5, 3.5, 15, 32, 20, 75), {.flussi = flussi(7)}},
};

class Figure : public testing::TestWithParam<Figura> {
protected:
    static void SetUpTestSuite() { ambiente_ = std::make_unique<AmbienteDisegno>(KELVO_CARTELLA "/Caratteri"); }
    static void TearDownTestSuite() { ambiente_.reset(); }

private:
    static inline std::unique_ptr<AmbienteDisegno> ambiente_;
};

/// Share of the pixels of which a channel differs by more than a quarter.
double quotaDiversa(const QImage& a, const QImage& b) {
    constexpr int soglia = 64;
    int diversi = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            const bool diverso = std::abs(p.red() - q.red()) > soglia || std::abs(p.green() - q.green()) > soglia ||
                                 std::abs(p.blue() - q.blue()) > soglia;
            diversi += diverso ? 1 : 0;
        }
    }
    return diversi / (static_cast<double>(a.width()) * a.height());
}

TEST_P(Figure, LooksAsItDid) {
    const Figura& figura = GetParam();
    QImage immagine(360, 320, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pennello(&immagine);
    const pianta::DatiPianta dati{
        .rami = std::vector<pianta::DatiRamo>(static_cast<std::size_t>(figura.rami), figura.ramo), .ipotesi = {}};
    dipingiPianta(pennello, pianta::costruisci(dati, figura.opzioni), QRectF(0, 0, 360, 320), {.testi = false});
    pennello.end();
    const QString file = QStringLiteral(KELVO_SORGENTI "/tests/disegno/attesi/") + figura.nome + ".png";
    if (std::getenv("KELVO_RISCRIVI_FIGURE") != nullptr) {
        ASSERT_TRUE(immagine.save(file));
    }
    const QImage attesa(file);
    ASSERT_EQ(attesa.size(), immagine.size()) << file.toStdString();
    EXPECT_LT(quotaDiversa(immagine, attesa), 0.002);
}

INSTANTIATE_TEST_SUITE_P(Piante, Figure, testing::ValuesIn(figure),
                         [](const auto& caso) { return std::string(caso.param.nome); });

}  // namespace
}  // namespace kelvo::disegno
