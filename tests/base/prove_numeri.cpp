#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {
namespace {

constexpr double maxDoppio = std::numeric_limits<double>::max();
constexpr float maxSingolo = std::numeric_limits<float>::max();

TEST(TestoNumero, OfADoubleShowsUpToFifteenDigits) {
    struct Caso {
        double valore;
        std::string_view testo;
    };
    constexpr std::array casi{
        Caso{0.0, "0"},
        Caso{-0.0, "0"},
        Caso{1.0, "1"},
        Caso{-1.5, "-1,5"},
        Caso{0.1, "0,1"},
        Caso{100.0, "100"},
        Caso{9.995, "9,995"},
        Caso{1.0 / 3.0, "0,333333333333333"},
        Caso{2.0 / 3.0, "0,666666666666667"},
        Caso{-2.0 / 3.0, "-0,666666666666667"},
        Caso{0.1 + 0.2, "0,3"},  // 0.30000000000000004
        Caso{1e8, "100000000"},
        Caso{1e15, "1000000000000000"},
        Caso{1e21, "1000000000000000000000"},
        Caso{123456789012345678.0, "123456789012346000"},
        Caso{999999999999999.4, "999999999999999"},
        Caso{999999999999999.9, "1000000000000000"},
        Caso{9.9999999999999996, "10"},
        Caso{0.99999999999999989, "1"},
        Caso{0.05, "0,05"},
        Caso{1e-5, "0,00001"},
        Caso{1.5e-7, "0,00000015"},
        Caso{-1e-10, "-0,0000000001"},
        Caso{static_cast<double>(0.05F), "0,0500000007450581"},  // the single as a double keeps its own digits
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(testoNumero(caso.valore), caso.testo);
    }
}

TEST(TestoNumero, OfASingleShowsUpToSevenDigits) {
    struct Caso {
        float valore;
        std::string_view testo;
    };
    constexpr std::array casi{
        Caso{0.0F, "0"},
        Caso{-0.0F, "0"},
        Caso{0.05F, "0,05"},
        Caso{0.1F, "0,1"},
        Caso{9.995F, "9,995"},
        Caso{-3.65F, "-3,65"},
        Caso{1.0F / 3.0F, "0,3333333"},
        Caso{2.0F / 3.0F, "0,6666667"},
        Caso{1e8F, "100000000"},
        Caso{123456789.0F, "123456800"},  // held as 123456792
        Caso{16777216.0F, "16777220"},
        Caso{9999999.0F, "9999999"},
        Caso{0.99999994F, "0,9999999"},  // the last single below 1 is 0.999999940395...
        Caso{9.9999999F, "10"},
        Caso{0.00001F, "0,00001"},
        Caso{-1e-10F, "-0,0000000001"},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(testoNumero(caso.valore), caso.testo);
    }
}

TEST(TestoNumero, NeverShowsAnExponent) {
    EXPECT_EQ(testoNumero(maxSingolo), "3402823" + std::string(32, '0'));  // 3.4028235e38
    EXPECT_EQ(testoNumero(-maxSingolo), "-3402823" + std::string(32, '0'));
    EXPECT_EQ(testoNumero(maxDoppio), "179769313486232" + std::string(294, '0'));  // 1.797693134862316e308
    EXPECT_EQ(testoNumero(std::numeric_limits<float>::denorm_min()),               // 1.4012985e-45
              "0," + std::string(44, '0') + "1401298");
    EXPECT_EQ(testoNumero(std::numeric_limits<double>::denorm_min()),  // 4.94065645841246544e-324
              "0," + std::string(323, '0') + "494065645841247");
    EXPECT_EQ(testoNumero(std::numeric_limits<double>::min()),  // 2.2250738585072014e-308
              "0," + std::string(307, '0') + "22250738585072");
}

TEST(TestoNumero, OfAWholeNumberIsItsDigits) {
    EXPECT_EQ(testoNumero(0), "0");
    EXPECT_EQ(testoNumero(-12), "-12");
    EXPECT_EQ(testoNumero(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(testoNumero(std::numeric_limits<int>::max()), "2147483647");
}

TEST(Formatta, RoundsTheDecimalTextHalfAwayFromZero) {
    struct Caso {
        double valore;
        std::string_view testo;
    };
    constexpr std::array casi{
        Caso{0.005, "0,01"},   // held as 0.005000000000000000104
        Caso{0.015, "0,02"},   // held as 0.01499999999999999944
        Caso{0.025, "0,03"},   // held as 0.02500000000000000139
        Caso{1.005, "1,01"},   // held as 1.00499999999999989
        Caso{2.675, "2,68"},   // held as 2.67499999999999982
        Caso{9.995, "10,00"},  // held as 9.99499999999999922
        Caso{-9.995, "-10,00"},
        Caso{9.994999, "9,99"},
        Caso{0.125, "0,13"},  // an exact half
        Caso{0.375, "0,38"},
        Caso{-0.125, "-0,13"},
        Caso{99.995, "100,00"},
        Caso{999.995, "1000,00"},
        Caso{9.99999999, "10,00"},
        Caso{0.994999999999999, "0,99"},
        Caso{0.99499999999999994, "1,00"},  // 0.995 in fifteen digits
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(formatta(caso.valore, "#0.00"), caso.testo);
    }
}

TEST(Formatta, RoundsASingleByItsOwnSevenDigits) {
    struct Caso {
        float valore;
        std::string_view testo;
    };
    constexpr std::array casi{
        Caso{9.995F, "10,00"},  // held as 9.9949998856
        Caso{-9.995F, "-10,00"},
        Caso{0.005F, "0,01"},  // held as 0.0049999998882
        Caso{1.005F, "1,01"},  // held as 1.00499999523
        Caso{0.05F, "0,05"},
        Caso{99.995F, "100,00"},     // held as 99.9950027
        Caso{99.994995F, "100,00"},  // 99.99500 in seven digits
        Caso{99.99499F, "99,99"},
        Caso{9.99999999F, "10,00"},
        Caso{1234567.9F, "1234568,00"},
        Caso{123456789.0F, "123456800,00"},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(formatta(caso.valore, "#0.00"), caso.testo);
    }
}

TEST(Formatta, KnowsEveryPattern) {
    EXPECT_EQ(formatta(1234.5678, "#0"), "1235");
    EXPECT_EQ(formatta(1234.5678, "0"), "1235");
    EXPECT_EQ(formatta(1234.5678, "#0.0"), "1234,6");
    EXPECT_EQ(formatta(1234.5678, "#0.00"), "1234,57");
    EXPECT_EQ(formatta(1234.5678, "0.00"), "1234,57");
    EXPECT_EQ(formatta(1234.5678, "#0.000"), "1234,568");
    EXPECT_EQ(formatta(1234.56789, "0.0000"), "1234,5679");
    EXPECT_EQ(formatta(0.12345, "#0.00%"), "12,35%");
    EXPECT_EQ(formatta(1234.5678, "#+0.00"), "+1234,57");
    EXPECT_EQ(formatta(-1234.5678, "#+0.00"), "-1234,57");
    EXPECT_EQ(formatta(0.05, "#0.00"), "0,05");
    EXPECT_EQ(formatta(0.05F, "#0.000"), "0,050");
    EXPECT_EQ(formatta(5.0, "#0.0"), "5,0");
}

TEST(Formatta, ReadsAPatternIntoItsParts) {
    constexpr Formato semplice = "#0";
    EXPECT_EQ(semplice.decimali, 0);
    EXPECT_FALSE(semplice.percento);
    EXPECT_FALSE(semplice.segno);
    constexpr Formato percentuale = "#0.00%";
    EXPECT_EQ(percentuale.decimali, 2);
    EXPECT_TRUE(percentuale.percento);
    constexpr Formato conSegno = "#+0.000";
    EXPECT_EQ(conSegno.decimali, 3);
    EXPECT_TRUE(conSegno.segno);
    EXPECT_EQ(Formato{"#0.00"}, Formato{"0.00"});
}

TEST(Formatta, AValueThatRoundsToZeroHasNoMinusSign) {
    EXPECT_EQ(formatta(-0.0, "#0.00"), "0,00");
    EXPECT_EQ(formatta(-0.0F, "#0.0"), "0,0");
    EXPECT_EQ(formatta(-0.004, "#0.00"), "0,00");
    EXPECT_EQ(formatta(-0.0049999, "#0.00"), "0,00");
    EXPECT_EQ(formatta(-0.005, "#0.00"), "-0,01");
    EXPECT_EQ(formatta(-0.04F, "#0.0"), "0,0");
    EXPECT_EQ(formatta(-0.4, "#0"), "0");
    EXPECT_EQ(formatta(-0.5, "#0"), "-1");
    EXPECT_EQ(formatta(-1e-300, "0.0000"), "0,0000");
    EXPECT_EQ(formatta(-0.00004, "#0.00%"), "0,00%");
}

TEST(Formatta, HalvesOfWholeNumbersGoAwayFromZero) {
    EXPECT_EQ(formatta(0.5, "#0"), "1");
    EXPECT_EQ(formatta(1.5, "#0"), "2");
    EXPECT_EQ(formatta(2.5, "#0"), "3");
    EXPECT_EQ(formatta(-2.5, "#0"), "-3");
    EXPECT_EQ(formatta(0.49999999999999994, "#0"), "1");  // 0.5 in fifteen digits
    EXPECT_EQ(formatta(0.4999999, "#0"), "0");
    EXPECT_EQ(formatta(9.5, "#0"), "10");
    EXPECT_EQ(formatta(99.5F, "#0"), "100");
}

TEST(Formatta, DigitsBehindTheKnownOnesAreZero) {
    EXPECT_EQ(formatta(1e8, "#0.00"), "100000000,00");
    EXPECT_EQ(formatta(1e8F, "#0.00"), "100000000,00");
    EXPECT_EQ(formatta(1e15, "#0.0"), "1000000000000000,0");
    EXPECT_EQ(formatta(maxSingolo, "#0.00"), "3402823" + std::string(32, '0') + ",00");
    EXPECT_EQ(formatta(maxDoppio, "#0.00"), "179769313486232" + std::string(294, '0') + ",00");
    EXPECT_EQ(formatta(std::numeric_limits<double>::denorm_min(), "#0.000"), "0,000");
    EXPECT_EQ(formatta(std::numeric_limits<float>::denorm_min(), "0.0000"), "0,0000");
}

TEST(Formatta, PercentShiftsTheDecimalTextByTwo) {
    EXPECT_EQ(formatta(0.0, "#0.00%"), "0,00%");
    EXPECT_EQ(formatta(1.0, "#0.00%"), "100,00%");
    EXPECT_EQ(formatta(0.07, "#0.00%"), "7,00%");   // 0.07 * 100 is 7.000000000000001
    EXPECT_EQ(formatta(0.57, "#0.00%"), "57,00%");  // 0.57 * 100 is 56.99999999999999
    EXPECT_EQ(formatta(0.00005, "#0.00%"), "0,01%");
    EXPECT_EQ(formatta(0.999949, "#0.00%"), "99,99%");
    EXPECT_EQ(formatta(0.99995, "#0.00%"), "100,00%");
    EXPECT_EQ(formatta(0.7123456F, "#0.00%"), "71,23%");
    EXPECT_EQ(formatta(-0.12345, "#0.00%"), "-12,35%");
    EXPECT_EQ(formatta(maxDoppio, "#0%"), "179769313486232" + std::string(296, '0') + "%");
}

TEST(Formatta, TheSignPatternAlwaysShowsTheSign) {
    EXPECT_EQ(formatta(0.0, "#+0.00"), "+0,00");
    EXPECT_EQ(formatta(-0.0, "#+0.00"), "+0,00");
    EXPECT_EQ(formatta(-0.001, "#+0.00"), "+0,00");
    EXPECT_EQ(formatta(0.005, "#+0.00"), "+0,01");
    EXPECT_EQ(formatta(-0.005, "#+0.00"), "-0,01");
    EXPECT_EQ(formatta(9.995F, "#+0.00"), "+10,00");
}

template <class T>
void faultsWithOverflow() {
    using limiti = std::numeric_limits<T>;
    for (const T valore : {limiti::infinity(), -limiti::infinity(), limiti::quiet_NaN()}) {
        try {
            testoNumero(valore);
            ADD_FAILURE();
        } catch (const Guasto& guasto) {
            EXPECT_EQ(guasto.codice(), 6);
        }
        try {
            formatta(valore, "#0.00");
            ADD_FAILURE();
        } catch (const Guasto& guasto) {
            EXPECT_EQ(guasto.codice(), 6);
        }
    }
}

TEST(TestoNumero, InfinityAndNaNAreOverflow) {
    faultsWithOverflow<float>();
    faultsWithOverflow<double>();
}

TEST(LeggiNumero, ReadsTheDecimalComma) {
    EXPECT_EQ(leggiNumero("12,5"), 12.5);
    EXPECT_EQ(leggiNumero("0,1"), 0.1);
    EXPECT_EQ(leggiNumero(",5"), 0.5);
    EXPECT_EQ(leggiNumero("12,"), 12.0);
    EXPECT_EQ(leggiNumero("007,50"), 7.5);
    EXPECT_EQ(leggiNumero("100000000"), 1e8);
    EXPECT_EQ(leggiNumero("-,5"), -0.5);
    EXPECT_EQ(leggiNumero("+12,5"), 12.5);
    EXPECT_EQ(leggiNumero("-12,5"), -12.5);
    EXPECT_EQ(leggiNumero("0,1000000000000000055511151231257827021181583404541015625"), 0.1);
}

TEST(LeggiNumero, PassesBlanksAtTheEndsOver) {
    EXPECT_EQ(leggiNumero("  12,5 "), 12.5);
    EXPECT_EQ(leggiNumero("\t12,5\r\n"), 12.5);
    EXPECT_EQ(leggiNumero(" -3 "), -3.0);
}

TEST(LeggiNumero, RefusesWhatIsNoNumber) {
    constexpr std::array<std::string_view, 31> sbagliati{"",
                                                         " ",
                                                         ",",
                                                         "-",
                                                         "+",
                                                         "-,",
                                                         "+,",
                                                         ".",
                                                         "1 2",
                                                         "1.234,5",
                                                         "1,234,5",
                                                         "1'234",
                                                         "1e3",
                                                         "1E3",
                                                         "1e",
                                                         "0x10",
                                                         "inf",
                                                         "nan",
                                                         "infinity",
                                                         "12,5x",
                                                         "x12",
                                                         "--5",
                                                         "+-5",
                                                         "-+5",
                                                         "- 5",
                                                         "5-",
                                                         "12,,5",
                                                         "12, 5",
                                                         "\xE2\x88\x92"
                                                         "5",
                                                         "12\xC2\xA0"
                                                         "5",
                                                         "1.5"};
    for (const std::string_view testo : sbagliati) {
        EXPECT_FALSE(leggiNumero(testo).has_value()) << testo;
        EXPECT_FALSE(leggiSingolo(testo).has_value()) << testo;
    }
    EXPECT_FALSE(leggiNumero(std::string_view("1\0", 2)).has_value());
}

TEST(LeggiNumero, TakesAPointOnlyWhereTold) {
    EXPECT_FALSE(leggiNumero("12.5").has_value());
    EXPECT_EQ(leggiNumero("12.5", Separatore::virgolaOPunto), 12.5);
    EXPECT_EQ(leggiNumero("12,5", Separatore::virgolaOPunto), 12.5);
    EXPECT_EQ(leggiNumero(".5", Separatore::virgolaOPunto), 0.5);
    EXPECT_EQ(leggiSingolo("0.05", Separatore::virgolaOPunto), 0.05F);
    for (const std::string_view testo : {"1.234.567", "1.234,5", "1,234.5", ".", "1.2e3"}) {
        EXPECT_FALSE(leggiNumero(testo, Separatore::virgolaOPunto).has_value()) << testo;
    }
}

TEST(LeggiNumero, MinusZeroReadsAsZero) {
    EXPECT_FALSE(std::signbit(leggiNumero("-0").value_or(-1.0)));
    EXPECT_FALSE(std::signbit(leggiNumero("-0,000").value_or(-1.0)));
    EXPECT_FALSE(std::signbit(leggiSingolo("-0").value_or(-1.0F)));
    const std::string piccolo = "-0," + std::string(400, '0') + "1";
    EXPECT_FALSE(std::signbit(leggiNumero(piccolo).value_or(-1.0)));
}

TEST(LeggiNumero, TooLargeIsNoNumberAndTooSmallIsZero) {
    EXPECT_FALSE(leggiNumero("1" + std::string(309, '0')).has_value());
    EXPECT_FALSE(leggiNumero("-1" + std::string(309, '0') + ",5").has_value());
    EXPECT_FALSE(leggiNumero(std::string(5, '0') + "1" + std::string(400, '0')).has_value());
    EXPECT_EQ(leggiNumero("1" + std::string(308, '0')), 1e308);
    EXPECT_EQ(leggiNumero("0," + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(leggiNumero("," + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(leggiNumero(std::string(400, '0') + "," + std::string(400, '0') + "9"), 0.0);
    EXPECT_EQ(leggiNumero(std::string(400, '0') + "7"), 7.0);
    EXPECT_EQ(leggiNumero("0," + std::string(319, '0') + "1"), 1e-320);
}

TEST(LeggiSingolo, IsRoundedOnceAndMustFit) {
    EXPECT_EQ(leggiSingolo("0,05"), 0.05F);
    EXPECT_EQ(leggiSingolo("16777217"), 16777216.0F);
    // Just above a tie of two singles: rounded first to double it would fall on the tie.
    EXPECT_EQ(leggiSingolo("16777217,0000000001"), 16777218.0F);
    EXPECT_EQ(leggiSingolo("340282346638528859811704183484516925440"), maxSingolo);
    EXPECT_FALSE(leggiSingolo("340282366920938463463374607431768211456").has_value());  // 2^128
    EXPECT_FALSE(leggiSingolo("-1" + std::string(39, '0')).has_value());
    EXPECT_EQ(leggiSingolo("0," + std::string(60, '0') + "1"), 0.0F);
    EXPECT_EQ(leggiSingolo("0," + std::string(44, '0') + "1"), std::numeric_limits<float>::denorm_min());
}

}  // namespace
}  // namespace kelvo
