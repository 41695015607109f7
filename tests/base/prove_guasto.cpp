#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include "base/guasto.h"

namespace kelvo {
namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();
constexpr double nessunNumero = std::numeric_limits<double>::quiet_NaN();

/// Number of the fault that `azione` raises, 0 for none.
template <class F>
int guastoDi(const F& azione) {
    try {
        azione();
    } catch (const Guasto& guasto) {
        return guasto.codice();
    }
    return 0;
}

/// Description of the fault that `azione` raises, empty for none.
template <class F>
std::string descrizioneDi(const F& azione) {
    try {
        azione();
    } catch (const Guasto& guasto) {
        return guasto.descrizione();
    }
    return {};
}

std::string luogoDiProva() {
    return "Ramo B, lunghezza svasatura 0";
}

struct Voce {
    int numero;
    std::string_view parole;
};

constexpr std::array voci{
    Voce{5, "Chiamata di routine o argomento non validi"},
    Voce{6, "Overflow"},
    Voce{9, "Indice non compreso nell'intervallo"},
    Voce{11, "Divisione per zero"},
    Voce{13, "Tipo non corrispondente"},
    Voce{17, "Impossibile eseguire l'operazione richiesta"},
    Voce{53, "File non trovato"},
    Voce{57, "Errore di I/O di dispositivo"},
    Voce{61, "Disco pieno"},
    Voce{70, "Autorizzazione negata"},
    Voce{75, "Errore di accesso al percorso o al file"},
    Voce{76, "Percorso non trovato"},
    Voce{457, "Questa chiave è già associata a un elemento di questo insieme"},
};

TEST(GuastoProva, EachNumberHasItsClassicWords) {
    for (const Voce& voce : voci) {
        const Guasto guasto(NumeroGuasto{voce.numero});
        EXPECT_EQ(guasto.codice(), voce.numero);
        EXPECT_EQ(guasto.numero(), NumeroGuasto{voce.numero});
        EXPECT_EQ(guasto.descrizione(), voce.parole);
        EXPECT_EQ(std::string_view(guasto.what()), voce.parole);
        EXPECT_EQ(paroleGuasto(NumeroGuasto{voce.numero}), voce.parole);
    }
}

TEST(GuastoProva, AnUnknownNumberHasTheGeneralWords) {
    EXPECT_EQ(paroleGuasto(NumeroGuasto{1000}), "Errore definito dall'applicazione o dall'oggetto");
    EXPECT_EQ(Guasto(NumeroGuasto{1000}).codice(), 1000);
}

TEST(GuastoProva, ThePlaceFollowsTheWordsInBrackets) {
    const Guasto guasto(NumeroGuasto::divisionePerZero, "Ramo B, lunghezza svasatura 0");
    EXPECT_EQ(guasto.descrizione(), "Divisione per zero (Ramo B, lunghezza svasatura 0)");
}

TEST(GuastoProva, OwnWordsReplaceTheClassicOnes) {
    const Guasto guasto = Guasto::conParole(NumeroGuasto::chiamataNonValida, "Il bilanciamento non converge");
    EXPECT_EQ(guasto.codice(), 5);
    EXPECT_EQ(guasto.descrizione(), "Il bilanciamento non converge");
}

TEST(GuastoProva, LanciaRaisesTheNumberAtThePlace) {
    EXPECT_EQ(descrizioneDi([] { lancia(NumeroGuasto::indiceFuoriIntervallo, "segmento 3"); }),
              "Indice non compreso nell'intervallo (segmento 3)");
}

TEST(Controllato, PassesFiniteValuesUnchanged) {
    for (const double valore : {0.0, -0.0, 1.5, -1e300, std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::lowest()}) {
        EXPECT_EQ(controllato(valore), valore);
        EXPECT_TRUE(finito(valore));
    }
}

TEST(Controllato, RaisesOverflowForInfinityAndNaN) {
    for (const double valore : {infinito, -infinito, nessunNumero}) {
        EXPECT_EQ(guastoDi([&] { controllato(valore); }), 6);
        EXPECT_FALSE(finito(valore));
    }
    EXPECT_EQ(descrizioneDi([] { controllato(infinito, luogoDiProva); }), "Overflow (Ramo B, lunghezza svasatura 0)");
}

TEST(Controllato, WordsThePlaceOfAFaultAlone) {
    int chiamate = 0;
    const auto luogo = [&chiamate] {
        ++chiamate;
        return std::string{"luogo"};
    };
    controllato(1.0, luogo);
    dividi(1.0, 2.0, luogo);
    aSingolo(1.0, luogo);
    aIntero16(1.0, luogo);
    EXPECT_EQ(chiamate, 0);
    EXPECT_EQ(descrizioneDi([&] { dividi(1.0, 0.0, luogo); }), "Divisione per zero (luogo)");
    EXPECT_EQ(chiamate, 1);
}

TEST(Dividi, GivesTheQuotient) {
    EXPECT_EQ(dividi(1.0, 4.0), 0.25);
    EXPECT_EQ(dividi(-0.0, 4.0), 0.0);
    EXPECT_EQ(dividi(1.0, 3.0), 1.0 / 3.0);
}

TEST(Dividi, ByZeroOfEitherSignIsFaultElevenWhateverIsDivided) {
    for (const double sopra : {1.0, 0.0, -1.0, infinito, nessunNumero}) {
        EXPECT_EQ(guastoDi([&] { dividi(sopra, 0.0); }), 11);
        EXPECT_EQ(guastoDi([&] { dividi(sopra, -0.0); }), 11);
    }
    EXPECT_EQ(descrizioneDi([] { dividi(1.0, 0.0, luogoDiProva); }),
              "Divisione per zero (Ramo B, lunghezza svasatura 0)");
}

TEST(Dividi, AQuotientTooLargeIsOverflow) {
    EXPECT_EQ(guastoDi([] { dividi(1e300, 1e-300); }), 6);
    EXPECT_EQ(guastoDi([] { dividi(-1e300, 1e-300); }), 6);
    EXPECT_EQ(guastoDi([] { dividi(nessunNumero, 1.0); }), 6);
    EXPECT_EQ(dividi(1e-300, 1e300), 0.0);
}

TEST(Radice, FaultsBelowZero) {
    EXPECT_EQ(radice(0.0), 0.0);
    EXPECT_EQ(radice(-0.0), 0.0);
    EXPECT_EQ(radice(2.25), 1.5);
    EXPECT_EQ(guastoDi([] { radice(-std::numeric_limits<double>::denorm_min()); }), 5);
    EXPECT_EQ(guastoDi([] { radice(nessunNumero); }), 5);
}

TEST(Logaritmo, FaultsAtZeroAndBelow) {
    EXPECT_EQ(logaritmo(1.0), 0.0);
    EXPECT_DOUBLE_EQ(logaritmo(std::exp(1.0)), 1.0);
    EXPECT_EQ(guastoDi([] { logaritmo(0.0); }), 5);
    EXPECT_EQ(guastoDi([] { logaritmo(-0.0); }), 5);
    EXPECT_EQ(guastoDi([] { logaritmo(-1.0); }), 5);
    EXPECT_EQ(guastoDi([] { logaritmo(nessunNumero); }), 5);
}

TEST(RadiceELogaritmo, LetNoInfinityTravelOn) {
    EXPECT_EQ(guastoDi([] { radice(infinito); }), 6);
    EXPECT_EQ(guastoDi([] { logaritmo(infinito); }), 6);
}

TEST(Esponenziale, OverflowsPastTheLargestDouble) {
    EXPECT_EQ(esponenziale(0.0), 1.0);
    EXPECT_EQ(esponenziale(-10000.0), 0.0);
    EXPECT_TRUE(finito(esponenziale(709.78)));
    EXPECT_EQ(guastoDi([] { esponenziale(709.79); }), 6);
    EXPECT_EQ(guastoDi([] { esponenziale(nessunNumero); }), 6);
}

TEST(ASingolo, RoundsTiesToTheEvenNeighbour) {
    const double passo = std::ldexp(1.0, -23);  // distance of the singles above 1
    EXPECT_EQ(aSingolo(1.0 + passo / 2), 1.0F);
    EXPECT_EQ(aSingolo(1.0 + passo * 1.5), static_cast<float>(1.0 + 2 * passo));
    EXPECT_EQ(aSingolo(1.0 + passo / 2 + 1e-15), std::nextafter(1.0F, 2.0F));
    EXPECT_EQ(aSingolo(16777217.0), 16777216.0F);
    EXPECT_EQ(aSingolo(16777219.0), 16777220.0F);
    EXPECT_EQ(aSingolo(-16777217.0), -16777216.0F);
}

TEST(ASingolo, FaultsWhereTheRoundedValueDoesNotFit) {
    const double massimo = std::numeric_limits<float>::max();
    const double soglia = massimo + std::ldexp(1.0, 103);  // half way to the next power of two
    EXPECT_EQ(aSingolo(massimo), std::numeric_limits<float>::max());
    EXPECT_EQ(aSingolo(std::nextafter(soglia, 0.0)), std::numeric_limits<float>::max());
    EXPECT_EQ(guastoDi([&] { aSingolo(soglia); }), 6);
    EXPECT_EQ(guastoDi([&] { aSingolo(-soglia); }), 6);
    EXPECT_EQ(guastoDi([] { aSingolo(1e300); }), 6);
    EXPECT_EQ(guastoDi([] { aSingolo(infinito); }), 6);
    EXPECT_EQ(guastoDi([] { aSingolo(nessunNumero); }), 6);
    EXPECT_EQ(descrizioneDi([] { aSingolo(1e39, luogoDiProva); }), "Overflow (Ramo B, lunghezza svasatura 0)");
}

TEST(ASingolo, KeepsDenormalsAndLetsTheTiniestVanish) {
    const double minimo = std::ldexp(1.0, -149);
    EXPECT_EQ(aSingolo(minimo), std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(aSingolo(minimo / 2), 0.0F);
    EXPECT_EQ(aSingolo(std::nextafter(minimo / 2, 1.0)), std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(aSingolo(1e-300), 0.0F);
    EXPECT_TRUE(std::signbit(aSingolo(-1e-300)));
}

TEST(ArrotondaPari, HalvesGoToTheEvenNeighbour) {
    struct Caso {
        double valore;
        double atteso;
    };
    constexpr std::array casi{Caso{0.5, 0.0},
                              Caso{1.5, 2.0},
                              Caso{2.5, 2.0},
                              Caso{3.5, 4.0},
                              Caso{-0.5, 0.0},
                              Caso{-1.5, -2.0},
                              Caso{-2.5, -2.0},
                              Caso{-3.5, -4.0},
                              Caso{59.5, 60.0},
                              Caso{60.5, 60.0},
                              Caso{1e9 + 0.5, 1e9},
                              Caso{2251799813685247.5, 2251799813685248.0},
                              Caso{2251799813685246.5, 2251799813685246.0},
                              Caso{-2251799813685247.5, -2251799813685248.0}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(arrotondaPari(caso.valore), caso.atteso) << caso.valore;
    }
}

TEST(ArrotondaPari, NeighboursOfAHalfGoToTheNearest) {
    for (const double meta : {0.5, 1.5, 2.5, 3.5, 100.5, 12345.5}) {
        EXPECT_EQ(arrotondaPari(std::nextafter(meta, 1e9)), meta + 0.5);
        EXPECT_EQ(arrotondaPari(std::nextafter(meta, 0.0)), meta - 0.5);
        EXPECT_EQ(arrotondaPari(-std::nextafter(meta, 1e9)), -meta - 0.5);
        EXPECT_EQ(arrotondaPari(-std::nextafter(meta, 0.0)), -meta + 0.5);
    }
}

TEST(ArrotondaPari, WholeAndLargeNumbersStay) {
    for (const double valore : {0.0, 1.0, -1.0, 9007199254740994.0, 1e300, -1e300}) {
        EXPECT_EQ(arrotondaPari(valore), valore);
    }
    EXPECT_EQ(arrotondaPari(std::numeric_limits<double>::denorm_min()), 0.0);
    EXPECT_EQ(arrotondaPari(-std::numeric_limits<double>::denorm_min()), 0.0);
}

TEST(ArrotondaPari, AgreesWithWholeArithmeticOnQuarters) {
    std::mt19937_64 caso(20061904);
    std::uniform_int_distribution<std::int64_t> quarti(-4'000'000'000, 4'000'000'000);
    for (int i = 0; i < 100000; ++i) {
        const std::int64_t q = quarti(caso);
        // Floor of q / 4 and the rest, in whole numbers.
        const std::int64_t basso = (q >= 0 ? q : q - 3) / 4;
        const std::int64_t resto = q - basso * 4;
        const std::int64_t su = (resto == 3 || (resto == 2 && basso % 2 != 0)) ? 1 : 0;
        ASSERT_EQ(arrotondaPari(static_cast<double>(q) / 4.0), static_cast<double>(basso + su)) << q;
    }
}

TEST(AIntero16, TakesTheWholeRangeAndNoMore) {
    EXPECT_EQ(aIntero16(32767.0), 32767);
    EXPECT_EQ(aIntero16(-32768.0), -32768);
    EXPECT_EQ(aIntero16(-0.0), 0);
    for (const double valore : {32768.0, -32769.0, 1e10, -1e10, infinito, -infinito, nessunNumero}) {
        EXPECT_EQ(guastoDi([&] { aIntero16(valore); }), 6) << valore;
    }
    EXPECT_EQ(descrizioneDi([] { aIntero16(40000.0, luogoDiProva); }), "Overflow (Ramo B, lunghezza svasatura 0)");
}

}  // namespace
}  // namespace kelvo
