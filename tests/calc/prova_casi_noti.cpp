// Figures of the literature and lines worked out from the published formulas: one file a case in casi/, with its
// source.

#include <cmath>
#include <filesystem>

#include "base/date.h"
#include "progetti.h"
#include "validazione/CasoNoto.h"

namespace kelvo::prove {

namespace {

using validazione::applica;
using validazione::CasoNoto;
using validazione::leggiCaso;
using validazione::misura;
using validazione::numero;

std::filesystem::path cartellaCasi() {
    return std::filesystem::path(KELVO_SORGENTI) / "tests" / "calc" / "casi";
}

CasoNoto caso(const std::string& nome) {
    return leggiCaso((cartellaCasi() / nome).string());
}

double arrotondato(double valore, double passo) {
    return std::round(valore / passo) * passo;
}

class RettaCalcolata : public testing::TestWithParam<int> {};

}  // namespace

// To the last printed digit; the measures pass through singles, which costs less than that.
TEST_P(RettaCalcolata, EngineGivesTheLineAndItsCapacities) {
    const CasoNoto voci = caso("retta-" + std::to_string(GetParam()) + ".txt");
    ASSERT_FALSE(voci.at("fonte").empty());
    Banco banco(3);
    applica(banco.ramo(1), voci);
    banco.motore.Calcola_Parametri();
    const double F = banco.ramo(1).F();
    const double Fc = banco.ramo(1).Fc();
    EXPECT_NEAR(F, numero(voci, "intercetta"), 0.0006);
    EXPECT_NEAR(Fc, numero(voci, "pendenza"), 0.0000006);
    EXPECT_NEAR(F - Fc * 500.0, numero(voci, "Qe_500"), 0.0006);
    EXPECT_NEAR(F - Fc * 1000.0, numero(voci, "Qe_1000"), 0.0006);
}

INSTANTIATE_TEST_SUITE_P(Casi, RettaCalcolata, testing::Range(1, 10));

TEST(CasiNoti, FolderHoldsNineLinesAndThePublishedExample) {
    int rette = 0;
    int esempi = 0;
    for (const auto& voce : std::filesystem::directory_iterator(cartellaCasi())) {
        const std::string nome = voce.path().filename().string();
        rette += nome.rfind("retta-", 0) == 0 ? 1 : 0;
        esempi += nome.rfind("esempio-", 0) == 0 ? 1 : 0;
        EXPECT_NO_THROW(caso(nome)) << nome;  // it names its source
    }
    EXPECT_EQ(rette, 9);
    EXPECT_EQ(esempi, 1);
}

// Rogers, Highway Engineering, ch. 5, Example 5.4: arm C behind a circulating flow of 248. The whole run is made with
// the published flows; half of B's flow passes the entry of C on its way to A.
TEST(CasiNoti, PublishedExampleGivesCapacityAndRatioOfArmC) {
    const CasoNoto voci = caso("esempio-rogers-5-4.txt");
    Banco banco(3);
    banco.finestra(oraDelGiorno(8, 0), oraDelGiorno(9, 0), 15, 4);
    const std::array<std::string, 3> bracci{"A", "B", "C"};
    for (int i = 1; i <= 3; ++i) {
        applica(banco.ramo(i), voci);
        for (std::int16_t k = 0; k < 4; ++k) {
            const double flusso = numero(voci, "flusso_" + bracci[static_cast<std::size_t>(i) - 1]);
            banco.ramo(i).theDatiTraffico().FlussoSegmento(static_cast<float>(flusso / 4.0), k, 0);
        }
    }
    banco.rotonda().MatriceSvolte(619.0F, 1, 2);
    banco.rotonda().MatriceSvolte(248.0F, 2, 1);
    banco.rotonda().MatriceSvolte(248.0F, 2, 3);
    banco.rotonda().MatriceSvolte(1114.0F, 3, 1);
    ASSERT_EQ(banco.confronta(tabella("0")), "");
    ASSERT_EQ(banco.descrizione, "");

    EXPECT_EQ(arrotondato(banco.ramo(3).F(), 1.0), numero(voci, "intercetta_stampata"));
    EXPECT_NEAR(arrotondato(banco.ramo(3).Fc(), 0.01), numero(voci, "pendenza_stampata"), 1e-9);
    for (int k = 1; k <= 4; ++k) {
        const Iterazione record = banco.record(3, k);
        EXPECT_EQ(arrotondato(static_cast<double>(record.Capacita), 1.0), numero(voci, "capacita_C")) << k;
        EXPECT_NEAR(arrotondato(static_cast<double>(record.Coeff_Sat), 0.01), numero(voci, "rapporto_C"), 1e-9) << k;
    }
}

// The lines of arms A and B are not published; their capacities are, and with the published flows give the ratios. An
// entry is brought to that capacity by its external condition.
TEST(CasiNoti, PublishedRatiosOfTheOtherArmsFollowFromTheirCapacities) {
    const CasoNoto voci = caso("esempio-rogers-5-4.txt");
    for (const std::string braccio : {"A", "B"}) {
        // An entry of that capacity, without circulating flow, under the published flow.
        Banco banco(3);
        banco.finestra(oraDelGiorno(8, 0), oraDelGiorno(9, 0), 15, 4);
        applica(banco.ramo(1), voci);
        banco.motore.Calcola_Parametri();
        const double capacita = numero(voci, "capacita_" + braccio);
        banco.ramo(1).theAnalisiMarginale().CondizioniEsterne(100.0 - capacita / banco.ramo(1).F() * 100.0);
        const double flusso = numero(voci, "flusso_" + braccio);
        banco.ramo(1).theDatiTraffico().FlussoSegmento(static_cast<float>(flusso / 4.0), 0, 0);
        banco.esegui(tabella("0"));
        ASSERT_EQ(banco.descrizione, "");
        EXPECT_NEAR(banco.record(1, 1).Capacita, capacita, 0.001);
        EXPECT_NEAR(arrotondato(static_cast<double>(banco.record(1, 1).Coeff_Sat), 0.01),
                    numero(voci, "rapporto_" + braccio), 1e-9);
    }
}

}  // namespace kelvo::prove
