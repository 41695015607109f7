// Random numbers against oracles that share no code with the formats: whole-number arithmetic, and the C library.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale>
#include <optional>
#include <random>
#include <sstream>
#include <string>

#include "base/numeri.h"

namespace kelvo {
namespace {

constexpr int prove = 200000;

/// "123", 5 -> "0,00123"; no rounding, no trailing zeros dropped.
std::string conVirgola(std::string cifre, int decimali) {
    if (decimali <= 0) {
        return cifre;
    }
    const auto dietro = static_cast<std::size_t>(decimali);
    if (cifre.size() <= dietro) {
        cifre.insert(0, dietro + 1 - cifre.size(), '0');
    }
    cifre.insert(cifre.size() - dietro, ",");
    return cifre;
}

std::string senzaZeriFinali(std::string testo) {
    if (testo.find(',') == std::string::npos) {
        return testo;
    }
    testo.erase(testo.find_last_not_of('0') + 1);
    if (testo.back() == ',') {
        testo.pop_back();
    }
    return testo;
}

/// n / 10^scala rounded half away from zero to `decimali`, by whole-number arithmetic alone.
std::string arrotondato(std::int64_t n, int scala, int decimali) {
    std::uint64_t modulo = static_cast<std::uint64_t>(std::llabs(n));
    int posti = scala;
    if (posti > decimali) {
        std::uint64_t divisore = 1;
        for (; posti > decimali; --posti) {
            divisore = divisore > std::numeric_limits<std::uint64_t>::max() / 10 ? 0 : divisore * 10;
            if (divisore == 0) {
                break;
            }
        }
        modulo = divisore == 0 ? 0 : modulo / divisore + (modulo % divisore >= (divisore + 1) / 2 ? 1 : 0);
        posti = decimali;
    }
    std::string cifre = std::to_string(modulo);
    cifre.append(static_cast<std::size_t>(decimali - posti), '0');
    return (n < 0 && modulo != 0 ? "-" : "") + conVirgola(cifre, decimali);
}

/// The number n / 10^scala as the nearest T.
template <class T>
T valoreDi(std::int64_t n, int scala) {
    const std::string testo = std::to_string(n) + "e-" + std::to_string(scala);
    T valore{};
    std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    return valore;
}

/// True where the values of T lie closer to each other than the decimal numbers of `cifre` digits do, so that every one
/// of these comes back from T. Not so for singles like 9.385e-10, which shows as 9.385001e-10 in seven digits.
template <class T>
bool tornaIndietro(T valore, std::int64_t n, int scala, int cifre) {
    const int posizione = static_cast<int>(std::to_string(std::llabs(n)).size()) - 1 - scala;
    const T modulo = std::fabs(valore);
    const T passo = std::nextafter(modulo, std::numeric_limits<T>::infinity()) - modulo;
    return static_cast<double>(passo) < std::pow(10.0, posizione - cifre + 1);
}

template <class T>
void decimaliACaso(std::int64_t massimo, int cifre) {
    int provati = 0;
    std::mt19937_64 caso(42);
    std::uniform_int_distribution<int> scale(0, 18);
    std::uniform_int_distribution<int> lunghezze(0, 60);
    std::uniform_int_distribution<std::int64_t> numeri(-massimo, massimo);
    for (int i = 0; i < prove; ++i) {
        // Short numbers as often as long ones, and every second one ends in 5.
        std::int64_t n = numeri(caso) >> lunghezze(caso);
        n = i % 2 == 0 ? n : n / 10 * 10 + (n < 0 ? -5 : 5);
        const int scala = scale(caso);
        const T valore = valoreDi<T>(n, scala);
        if (!tornaIndietro(valore, n, scala, cifre)) {
            continue;
        }
        ++provati;
        ASSERT_EQ(formatta(valore, "#0"), arrotondato(n, scala, 0)) << n << "e-" << scala;
        ASSERT_EQ(formatta(valore, "#0.0"), arrotondato(n, scala, 1)) << n << "e-" << scala;
        ASSERT_EQ(formatta(valore, "#0.00"), arrotondato(n, scala, 2)) << n << "e-" << scala;
        ASSERT_EQ(formatta(valore, "#0.000"), arrotondato(n, scala, 3)) << n << "e-" << scala;
        ASSERT_EQ(formatta(valore, "0.0000"), arrotondato(n, scala, 4)) << n << "e-" << scala;
        ASSERT_EQ(formatta(valore, "#0.00%"), arrotondato(n * 100, scala, 2) + "%") << n << "e-" << scala;
        ASSERT_EQ(testoNumero(valore), senzaZeriFinali(arrotondato(n, scala, scala))) << n << "e-" << scala;
    }
    EXPECT_GT(provati, prove * 3 / 4);
}

TEST(NumeriACaso, DoublesOfFifteenDigitsFollowWholeNumberArithmetic) {
    decimaliACaso<double>(999'999'999'999'999, 15);
}

TEST(NumeriACaso, SinglesOfSevenDigitsFollowWholeNumberArithmetic) {
    decimaliACaso<float>(9'999'999, 7);
}

/// A finite number of any size.
template <class T, class Bit>
T qualunque(std::mt19937_64& caso) {
    while (true) {
        const T valore = std::bit_cast<T>(static_cast<Bit>(caso()));
        if (std::isfinite(valore)) {
            return valore;
        }
    }
}

/// The plain text form by way of the C library's "%.*e".
std::string conPrintf(double valore, int cifre) {
    std::array<char, 64> scritto{};
    const int lunga = std::snprintf(scritto.data(), scritto.size(), "%.*e", cifre - 1, std::fabs(valore));
    const std::string testo(scritto.data(), static_cast<std::size_t>(lunga));
    const auto e = testo.find('e');
    const int esponente = std::atoi(testo.c_str() + e + 1);
    std::string mantissa = testo.substr(0, 1) + testo.substr(2, e - 2);  // whatever the locale's separator is
    const int decimali = cifre - 1 - esponente;
    if (decimali < 0) {
        mantissa.append(static_cast<std::size_t>(-decimali), '0');
    }
    const std::string piano = senzaZeriFinali(conVirgola(mantissa, decimali));
    return (valore < 0.0 ? "-" : "") + piano;
}

TEST(NumeriACaso, PlainTextAgreesWithTheCLibrary) {
    std::mt19937_64 caso(7);
    for (int i = 0; i < prove; ++i) {
        const auto doppio = qualunque<double, std::uint64_t>(caso);
        ASSERT_EQ(testoNumero(doppio), conPrintf(doppio, 15)) << i;
        const auto singolo = qualunque<float, std::uint32_t>(caso);
        ASSERT_EQ(testoNumero(singolo), conPrintf(static_cast<double>(singolo), 7)) << i;
    }
}

TEST(NumeriACaso, APlainTextReadsBackAsItself) {
    std::mt19937_64 caso(11);
    for (int i = 0; i < prove; ++i) {
        const auto doppio = qualunque<double, std::uint64_t>(caso);
        const std::string testo = testoNumero(doppio);
        const auto riletto = leggiNumero(testo);
        if (std::fabs(doppio) < 1e-306) {
            continue;  // denormals hold fewer than fifteen digits
        }
        ASSERT_TRUE(riletto.has_value()) << testo;
        ASSERT_EQ(testoNumero(*riletto), testo);
    }
}

/// Bits of a double, so that 0 and -0 differ.
std::uint64_t bit(double valore) {
    return std::bit_cast<std::uint64_t>(valore);
}
std::uint32_t bit(float valore) {
    return std::bit_cast<std::uint32_t>(valore);
}

template <class T>
T riletto(const std::string& testo) {
    T valore{};
    const auto esito = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    EXPECT_EQ(esito.ptr, testo.data() + testo.size()) << testo;
    EXPECT_EQ(esito.ec, std::errc{}) << testo;
    return valore;
}

void provaEsatto(float valore) {
    const std::string testo = testoEsatto(valore);
    ASSERT_EQ(bit(riletto<float>(testo)), bit(valore)) << testo;
    ASSERT_EQ(bit(static_cast<float>(riletto<double>(testo))), bit(valore)) << testo;
    ASSERT_EQ(testo.find(','), std::string::npos) << testo;
}

void provaEsatto(double valore) {
    const std::string testo = testoEsatto(valore);
    ASSERT_EQ(bit(riletto<double>(testo)), bit(valore)) << testo;
    ASSERT_EQ(testo.find(','), std::string::npos) << testo;
    ASSERT_LE(testo.size(), 24U) << testo;
}

TEST(TestoEsatto, ReadsBackToTheSameBits) {
    std::mt19937_64 caso(2026);
    for (int i = 0; i < prove; ++i) {
        provaEsatto(qualunque<double, std::uint64_t>(caso));
        provaEsatto(qualunque<float, std::uint32_t>(caso));
        // Numbers of the sizes of a project.
        const double comune = static_cast<double>(caso() >> 11U) * 0x1p-40;
        provaEsatto(comune);
        provaEsatto(static_cast<float>(comune));
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST(TestoEsatto, HoldsAtTheEdges) {
    using doppi = std::numeric_limits<double>;
    using singoli = std::numeric_limits<float>;
    for (const double valore : {0.0, -0.0, 1.0, 0.1, doppi::max(), doppi::lowest(), doppi::min(), doppi::denorm_min(),
                                doppi::epsilon(), 9007199254740993.0, 5e-324, 1e23}) {
        provaEsatto(valore);
    }
    for (const float valore : {0.0F, -0.0F, 0.05F, 9.995F, singoli::max(), singoli::lowest(), singoli::min(),
                               singoli::denorm_min(), 16777216.0F, 33554432.0F, 7.038531e-26F}) {
        provaEsatto(valore);
    }
}

TEST(TestoEsatto, IsTheShortest) {
    EXPECT_EQ(testoEsatto(0.1), "0.1");
    EXPECT_EQ(testoEsatto(0.1F), "0.1");
    EXPECT_EQ(testoEsatto(3.65F), "3.65");
    EXPECT_EQ(testoEsatto(100.0), "100");
    EXPECT_EQ(testoEsatto(-2.5), "-2.5");
    EXPECT_EQ(testoEsatto(1.0 / 3.0), "0.3333333333333333");
    EXPECT_EQ(testoEsatto(1.0F / 3.0F), "0.33333334");
}

TEST(TestoEsatto, OfASingleReadsBackAlsoWhereTheDoubleRoundingBites) {
    // The shortest text of this single, 7.038531e-26, read as a double lies on the tie between it and its neighbour.
    const float noto = std::bit_cast<float>(0x15AE43FDU);
    provaEsatto(noto);
    EXPECT_NE(testoEsatto(noto), "7.038531e-26");
}

}  // namespace
}  // namespace kelvo
