#include <gtest/gtest.h>

#include <cfloat>
#include <functional>
#include <limits>
#include <vector>

#include "testiKlv.h"

namespace kelvo::prove {
namespace {

TEST(ProveFileKlv, EveryPropertyComesBackExactly) {
    for (std::int16_t rami = 3; rami <= 7; ++rami) {
        for (const std::int16_t segmenti : {std::int16_t{0}, std::int16_t{1}, std::int16_t{72}, std::int16_t{300}}) {
            Rotonda scritta;
            riempi(scritta, rami, segmenti);
            Rotonda letta;
            const EsitoLettura esito = carica(letta, scritta.TestoFile());
            ASSERT_TRUE(esito.esito) << esito.messaggio;
            confronta(scritta, letta);
            EXPECT_EQ(letta.TestoFile(), scritta.TestoFile());
        }
    }
}

TEST(ProveFileKlv, TimesThatWereAddedUpComeBackExactly) {
    const double ore = 1.0 / 24.0;
    const double minuti = 1.0 / 1440.0;
    for (int ora = 0; ora < 24; ++ora) {
        Rotonda scritta;
        riempi(scritta, 3, 1);
        for (int cinque = 0; cinque < 12; ++cinque) {
            const DataOra sommata = ora * ore + 5 * cinque * minuti;
            scritta.TempoIniziale(sommata);
            scritta.TempoFinale(sommata + 2 * ore);
            scritta.SegmentoTempo(5 * minuti + cinque * minuti);
            scritta.Data(46000.0 + sommata);
            scritta.Ramo(1).theDatiTraffico().Tempo1(sommata);
            scritta.Ramo(2).theDatiTraffico().Tempo2(sommata + 20 * minuti);
            scritta.Ramo(3).theDatiTraffico().Tempo3(sommata + ore);
            Rotonda letta;
            ASSERT_TRUE(carica(letta, scritta.TestoFile()).esito);
            confronta(scritta, letta);
        }
    }
}

TEST(ProveFileKlv, NumbersAtTheEdgesOfTheirTypesComeBackExactly) {
    const std::vector<float> singoli{FLT_MAX,     -FLT_MAX,    FLT_MIN,       std::numeric_limits<float>::denorm_min(),
                                     16777217.0F, 1.0F / 3.0F, 8388608.5F,    1.0e-10F,
                                     0.1F,        5.0e-39F,    7.038531e-26F, 3.4028233e38F};
    const std::vector<double> doppi{DBL_MAX,
                                    -DBL_MIN,
                                    std::numeric_limits<double>::denorm_min(),
                                    1.0 / 3.0,
                                    1.0e16,
                                    9007199254740993.0,
                                    123456789012345680.0,
                                    5e-324};
    for (std::size_t i = 0; i < singoli.size(); ++i) {
        Rotonda scritta;
        riempi(scritta, 3, 1);
        scritta.ValorePercentile(singoli[i]);
        scritta.Ramo(1).theAnalisiMarginale().LungSvasatura(doppi[i % doppi.size()]);
        Rotonda letta;
        ASSERT_TRUE(carica(letta, scritta.TestoFile()).esito);
        EXPECT_EQ(letta.ValorePercentile(), singoli[i]);
        EXPECT_EQ(letta.Ramo(1).theAnalisiMarginale().LungSvasatura(), doppi[i % doppi.size()]);
    }
}

TEST(ProveFileKlv, MissingKeysTakeTheDefaultsOfTheModel) {
    const std::function<DataOra()> oggi = [] { return 46000.0; };
    Rotonda attesa(sistemaFileStandard(), oggi);
    attesa.NumeroRami(5);
    for (std::int16_t i = 1; i <= 5; ++i) {
        attesa.AddRamo(std::to_string(i) + "Ramo");
    }
    Rotonda letta(sistemaFileStandard(), oggi);
    const EsitoLettura esito = carica(letta, testoMinimo({}, "{}, {}, {}, {}, {}"));
    ASSERT_TRUE(esito.esito) << esito.messaggio;
    confronta(attesa, letta);
    EXPECT_EQ(letta.Data(), 46000.0);
}

TEST(ProveFileKlv, MissingSegmentsAndTimesComeFromTheWindowOfTheFile) {
    Rotonda r;
    // The window stands behind the legs in the text.
    const EsitoLettura esito =
        carica(r, testoMinimo(R"("TempoIniziale": "10:00", "TempoFinale": "12:00", "SegmentoTempo": "00:20")"));
    ASSERT_TRUE(esito.esito) << esito.messaggio;
    const DatiTraffico& d = r.Ramo(2).theDatiTraffico();
    EXPECT_EQ(d.NumSegmentiTempo(), 6);
    EXPECT_EQ(r.Ramo(2).theComposizioneTraffico().NumSegmentiTempo(), 6);
    EXPECT_EQ(testoHHNN(d.Tempo1()), "10:00");
    EXPECT_EQ(testoHHNN(d.Tempo2()), "11:00");
    EXPECT_EQ(testoHHNN(d.Tempo3()), "12:00");
}

TEST(ProveFileKlv, MissingNumberOfSegmentsIsTheLengthOfTheListsElseThatOfTheOtherObject) {
    Rotonda r;
    const auto segmenti = [&](const std::string& ramo) {
        const EsitoLettura esito = carica(r, testoMinimo({}, "{}, {}, " + ramo));
        EXPECT_TRUE(esito.esito) << esito.messaggio;
        EXPECT_EQ(r.Ramo(3).theDatiTraffico().NumSegmentiTempo(),
                  r.Ramo(3).theComposizioneTraffico().NumSegmentiTempo());
        return r.Ramo(3).theDatiTraffico().NumSegmentiTempo();
    };
    EXPECT_EQ(segmenti(R"({"theDatiTraffico": {"FlussoSegmento": [1, 2]}})"), 2);
    EXPECT_EQ(segmenti(R"({"theDatiTraffico": {"FlussoSegmento": []}})"), 0);
    EXPECT_EQ(segmenti(R"({"theComposizioneTraffico": {"CategoriaSegmento": [[1, 2, 3, 4, 5, 6, 7]]}})"), 1);
    EXPECT_EQ(r.Ramo(3).theComposizioneTraffico().CategoriaSegmento(0, 6), 7.0F);
    EXPECT_EQ(segmenti(R"({"theDatiTraffico": {"NumSegmentiTempo": 9}})"), 9);
    EXPECT_EQ(segmenti(R"({"theComposizioneTraffico": {"NumSegmentiTempo": 8}})"), 8);
    EXPECT_EQ(segmenti(R"({"theDatiTraffico": {"FlussoSegmento": [1, 2], "NumSegmentiTempo": 3}})"), 3);
    EXPECT_EQ(r.Ramo(3).theDatiTraffico().FlussoSegmento(1, 0), 2.0F);
    EXPECT_EQ(r.Ramo(3).theDatiTraffico().FlussoSegmento(2, 0), 0.0F);
}

TEST(ProveFileKlv, AByteOrderMarkAndForeignLineEndsAreAccepted) {
    std::string testo = "\xEF\xBB\xBF" + testoCompleto();
    for (std::size_t i = 0; (i = testo.find('\n', i)) != std::string::npos; i += 2) {
        testo.insert(i, "\r");
    }
    Rotonda r;
    ASSERT_TRUE(carica(r, testo).esito);
    EXPECT_EQ(r.TestoFile(), testoCompleto());
}

TEST(ProveFileKlv, ALoadRaisesTheRevisionAndTakesTheStampAway) {
    Rotonda r;
    riempi(r, 6, 2);
    r.timbra(FormaCalcolo::piana);
    const Revisione prima = r.revisione();
    ASSERT_TRUE(carica(r, testoCompleto()).esito);
    EXPECT_GT(r.revisione().tutto, prima.tutto);
    EXPECT_GT(r.revisione().calcolo, prima.calcolo);
    EXPECT_EQ(r.timbro().forma, FormaCalcolo::nessuna);
    EXPECT_EQ(r.timbroRecord(), Timbro{});
    EXPECT_FALSE(r.risultatiAttuali({}));
    const Revisione dopo = r.revisione();
    r.Ramo(3).theDatiTraffico().FlussoTempo1(77.0F);
    r.Ramo(3).theComposizioneTraffico().Autovetture(77.0F);
    r.Ramo(3).theAnalisiMarginale().CondizioniEsterne(77.0);
    r.Ramo(3).SemiLarghezza(77.0F);
    r.ValorePercentile(77.0F);
    EXPECT_EQ(r.revisione().calcolo, dopo.calcolo + 5) << "the loaded objects count in this project";
}

TEST(ProveFileKlv, AFailedLoadLeavesTheProjectAndItsStampUntouched) {
    Rotonda r;
    riempi(r, 6, 2);
    r.timbra(FormaCalcolo::piana);
    const std::string prima = r.TestoFile();
    const Revisione revisione = r.revisione();
    Ramo* ramo = &r.Ramo(6);
    // The last value of the file is wrong: everything before it has been read.
    const std::string testo =
        sostituito(testoCompleto(), "\"DiametroInscritto\": 385.1", "\"DiametroInscritto\": \"x\"");
    EXPECT_FALSE(carica(r, testo).esito);
    EXPECT_EQ(r.TestoFile(), prima);
    EXPECT_EQ(r.revisione().tutto, revisione.tutto);
    EXPECT_TRUE(r.risultatiAttuali({}));
    EXPECT_EQ(ramo, &r.Ramo(6));
    r.Clear();
    EXPECT_EQ(r.Rami().Count(), 0);
}

TEST(ProveFileKlv, RecordsAndResultsAreNotKept) {
    Rotonda r;
    riempi(r, 3, 2);
    const std::string prima = r.TestoFile();
    r.Ramo(1).theDatiTraffico().SetIterazione(1, {1, 2, 3, 4, 5});
    r.Ramo(1).CapacitaUltima(5.0);
    EXPECT_EQ(r.TestoFile(), prima);
    ASSERT_TRUE(carica(r, prima).esito);
    EXPECT_EQ(r.Ramo(1).theDatiTraffico().IterazioniScritte(), 0);
    EXPECT_EQ(r.Ramo(1).CapacitaUltima(), 0.0);
}

}  // namespace
}  // namespace kelvo::prove
