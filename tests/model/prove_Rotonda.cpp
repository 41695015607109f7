#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <set>
#include <string>
#include <type_traits>

#include "comune/guasti.h"
#include "model/Rotonda.h"
#include "proprieta.h"

namespace kelvo::prove {
namespace {

constexpr double giornoFinto = 46000.0;

struct ProveRotonda : testing::Test {
    Rotonda rotonda{sistemaFileStandard(), [] { return giornoFinto; }};

    void rami(std::int16_t numero) {
        rotonda.NumeroRami(numero);
        for (std::int16_t i = 1; i <= numero; ++i) {
            rotonda.AddRamo(std::to_string(i) + "Ramo");
        }
    }
};

/// Names of the properties of one object that a calculation reads, or that choose the calculation.
using Nomi = std::set<std::string>;

const Nomi lettiDelProgetto{"ValorePercentile", "CondizioniNotturne", "TipoFlusso",  "TipoMatriceSvolte",
                            "TipoAnalisi",      "SegmentoTempo",      "TempoFinale", "TempoIniziale"};
const Nomi lettiDelRamo{"LarghezzaIngresso", "SemiLarghezza",     "LunghezzaSvasatura",     "AngoloConflitto",
                        "RaggioIngresso",    "DiametroInscritto", "AttraversamentoPedonale"};
const Nomi lettiDelTraffico{"FlussoTotale", "FlussoTempo1", "FlussoTempo2", "FlussoTempo3",
                            "Tempo1",       "Tempo2",       "Tempo3"};
const Nomi lettiDellaComposizione{"Autovetture", "VeicoliDueRuote", "Roulotte",      "Camper",
                                  "Pullman",     "Autotreni",       "Autoarticolati"};
const Nomi lettiDellAnalisi{"CondizioniEsterne", "AttraversamentoPedonale"};

/// Writes every property of the object; `letti` are those that raise the revision of the calculation.
template <class O>
void provaProprieta(O& oggetto, const Rotonda& rotonda, const Nomi& letti) {
    std::size_t trovati = 0;
    perOgniProprieta(&oggetto, [&](const auto& p) { trovati += letti.count(p.nome); });
    EXPECT_EQ(trovati, letti.size());
    ValoriStrani valori;
    perOgniProprieta(&oggetto, [&](const auto& p) {
        SCOPED_TRACE(p.nome);
        const auto valore = valori.nuovo(p, oggetto);
        const Revisione prima = rotonda.revisione();
        (oggetto.*p.scrivi)(valore);
        EXPECT_EQ((oggetto.*p.leggi)(), valore);
        EXPECT_EQ(rotonda.revisione().tutto, prima.tutto + 1);
        EXPECT_EQ(rotonda.revisione().calcolo, prima.calcolo + letti.count(p.nome));
        (oggetto.*p.scrivi)(valore);
        EXPECT_EQ(rotonda.revisione().tutto, prima.tutto + 1) << "the same value is no change";
    });
    // Each property has a place of its own: a later write has not touched an earlier one.
    ValoriStrani altri;
    riempiProprieta(oggetto, altri);
    ValoriStrani attesi;
    perOgniProprieta(&oggetto, [&](const auto& p) {
        SCOPED_TRACE(p.nome);
        const auto atteso = attesi.nuovo(p, oggetto);
        if constexpr (!std::is_same_v<std::decay_t<decltype(atteso)>, bool>) {
            EXPECT_EQ((oggetto.*p.leggi)(), atteso);
        }
    });
}

/// Ticks one boolean at a time and looks at all of them.
template <class O>
void provaLogici(O& oggetto) {
    const auto perOgniLogico = [&](auto f) {
        perOgniProprieta(&oggetto, [&](const auto& p) {
            if constexpr (std::is_same_v<decltype((oggetto.*p.leggi)()), bool>) {
                f(p);
            }
        });
    };
    perOgniLogico([&](const auto& p) { (oggetto.*p.scrivi)(false); });
    perOgniLogico([&](const auto& acceso) {
        (oggetto.*acceso.scrivi)(true);
        perOgniLogico([&](const auto& p) {
            EXPECT_EQ((oggetto.*p.leggi)(), std::string{p.nome} == acceso.nome) << p.nome << " with " << acceso.nome;
        });
        (oggetto.*acceso.scrivi)(false);
    });
}

TEST_F(ProveRotonda, EveryPropertyOfTheProjectIsReadBackAndCounted) {
    provaProprieta(rotonda, rotonda, lettiDelProgetto);
    provaLogici(rotonda);
}

TEST_F(ProveRotonda, EveryPropertyOfALegAndItsChildrenIsReadBackAndCounted) {
    rami(3);
    Ramo& ramo = rotonda.Ramo(2);
    provaProprieta(ramo, rotonda, lettiDelRamo);
    provaLogici(ramo);
    provaProprieta(ramo.theDatiTraffico(), rotonda, lettiDelTraffico);
    provaProprieta(ramo.theComposizioneTraffico(), rotonda, lettiDellaComposizione);
    provaProprieta(ramo.theAnalisiMarginale(), rotonda, lettiDellAnalisi);
    provaLogici(ramo.theAnalisiMarginale());
}

TEST_F(ProveRotonda, ResultsOfALegAreReadBackAndNotCounted) {
    rami(3);
    Ramo& ramo = rotonda.Ramo(1);
    const Revisione prima = rotonda.revisione();
    ramo.CapacitaUltima(1.0 / 3.0);
    ramo.K(2.0 / 3.0);
    ramo.Td(4.0 / 3.0);
    ramo.S(5.0 / 3.0);
    ramo.X2(7.0 / 3.0);
    ramo.F(8.0 / 3.0);
    ramo.Fc(10.0 / 3.0);
    EXPECT_EQ(ramo.CapacitaUltima(), 1.0 / 3.0);
    EXPECT_EQ(ramo.K(), 2.0 / 3.0);
    EXPECT_EQ(ramo.Td(), 4.0 / 3.0);
    EXPECT_EQ(ramo.S(), 5.0 / 3.0);
    EXPECT_EQ(ramo.X2(), 7.0 / 3.0);
    EXPECT_EQ(ramo.F(), 8.0 / 3.0);
    EXPECT_EQ(ramo.Fc(), 10.0 / 3.0);
    ramo.theDatiTraffico().SetIterazione(1, {1, 2, 3, 4, 5});
    EXPECT_EQ(rotonda.revisione().tutto, prima.tutto);
}

void attendiPredefiniti(const Rotonda& r) {
    perOgniProprieta(&r, [&](const auto& p) {
        if constexpr (std::is_same_v<decltype((r.*p.leggi)()), Testo>) {
            EXPECT_EQ((r.*p.leggi)(), "") << p.nome;
        } else if constexpr (std::is_same_v<decltype((r.*p.leggi)()), bool>) {
            EXPECT_FALSE((r.*p.leggi)()) << p.nome;
        }
    });
    EXPECT_EQ(r.ValorePercentile(), 95.0F);
    EXPECT_EQ(r.TipoFlusso(), 0);
    EXPECT_EQ(r.TipoMatriceSvolte(), 0);
    EXPECT_EQ(r.TipoAnalisi(), 1);
    EXPECT_EQ(testoHHNN(r.TempoIniziale()), "08:00");
    EXPECT_EQ(testoHHNN(r.TempoFinale()), "09:00");
    EXPECT_EQ(testoHHNN(r.SegmentoTempo()), "00:15");
    EXPECT_EQ(r.Data(), giornoFinto);
    EXPECT_EQ(r.NumeroRami(), 4);
    EXPECT_EQ(r.Rami().Count(), 0);
    Matrice matrice;
    r.GetMatriceSvolte(matrice);
    EXPECT_EQ(matrice, Matrice(4, std::vector<float>(4, 0.0F)));
    EXPECT_TRUE(r.chiaviIgnote.empty());
    EXPECT_EQ(r.timbro().forma, FormaCalcolo::nessuna);
}

TEST_F(ProveRotonda, TimesKeepWholeSecondsAndTheDateItsDay) {
    rami(3);
    DatiTraffico& traffico = rotonda.Ramo(1).theDatiTraffico();
    const DataOra sommata = 1.0 / 24.0 + 10.0 / 1440.0;
    ASSERT_NE(sommata, oraDelGiorno(1, 10)) << "a sum that misses the time by a bit";
    rotonda.TempoIniziale(sommata);
    rotonda.TempoFinale(sommata);
    rotonda.SegmentoTempo(sommata);
    traffico.Tempo1(sommata);
    traffico.Tempo2(sommata);
    traffico.Tempo3(sommata);
    for (const DataOra letta : {rotonda.TempoIniziale(), rotonda.TempoFinale(), rotonda.SegmentoTempo(),
                                traffico.Tempo1(), traffico.Tempo2(), traffico.Tempo3()}) {
        EXPECT_EQ(letta, oraDelGiorno(1, 10));
    }
    const Revisione prima = rotonda.revisione();
    rotonda.TempoIniziale(oraDelGiorno(1, 10));
    EXPECT_EQ(rotonda.revisione().tutto, prima.tutto) << "the same second is no change";

    const DataOra giorno = giornoCalendario(2026, 11, 21);
    rotonda.Data(giorno + oraDelGiorno(23, 59, 59) + 0.9 / 86400.0);
    EXPECT_EQ(rotonda.Data(), giorno);
    EXPECT_EQ(Rotonda(sistemaFileStandard(), [&] { return giorno + 0.75; }).Data(), giorno);
}

TEST_F(ProveRotonda, FreshProjectHasItsDefaults) {
    attendiPredefiniti(rotonda);
}

TEST_F(ProveRotonda, ClearReturnsEverythingToTheDefaultsAndRaisesTheRevision) {
    riempi(rotonda, 5, 3);
    rotonda.chiaviIgnote.emplace_back("x", "1");
    rotonda.timbra(FormaCalcolo::piana);
    const Revisione prima = rotonda.revisione();
    rotonda.Clear();
    attendiPredefiniti(rotonda);
    EXPECT_GT(rotonda.revisione().tutto, prima.tutto);
    EXPECT_GT(rotonda.revisione().calcolo, prima.calcolo);
}

TEST_F(ProveRotonda, ClearOfAnEmptyProjectDoesNotFail) {
    rotonda.Clear();
    rotonda.Clear();
    attendiPredefiniti(rotonda);
}

TEST_F(ProveRotonda, FreshLegHasItsDefaults) {
    rami(7);
    for (std::int16_t i = 1; i <= 7; ++i) {
        const Ramo& r = rotonda.Ramo(i);
        EXPECT_EQ(r.Key(), std::to_string(i) + "Ramo");
        EXPECT_EQ(r.Descrizione(), std::string("Ramo ") + "ABCDEFG"[i - 1]);
        EXPECT_EQ(r.LarghezzaIngresso(), 5.0F);
        EXPECT_EQ(r.SemiLarghezza(), 3.75F);
        EXPECT_EQ(r.LunghezzaSvasatura(), 20.0F);
        EXPECT_EQ(r.AngoloConflitto(), 5.0F);
        EXPECT_EQ(r.RaggioIngresso(), 25.0F);
        EXPECT_EQ(r.DiametroInscritto(), 65.0F);
        EXPECT_FALSE(r.AttraversamentoPedonale());
        for (const double risultato : {r.CapacitaUltima(), r.K(), r.Td(), r.S(), r.X2(), r.F(), r.Fc()}) {
            EXPECT_EQ(risultato, 0.0);
        }
    }
}

TEST_F(ProveRotonda, FreshChildrenHaveTheirDefaults) {
    rami(3);
    const Ramo& r = rotonda.Ramo(3);
    perOgniProprieta(&r.theDatiTraffico(), [&](const auto& p) {
        if constexpr (std::is_same_v<decltype((r.theDatiTraffico().*p.leggi)()), float>) {
            EXPECT_EQ((r.theDatiTraffico().*p.leggi)(), 0.0F) << p.nome;
        }
    });
    EXPECT_EQ(r.theDatiTraffico().IterazioniScritte(), 0);
    perOgniProprieta(&r.theComposizioneTraffico(), [&](const auto& p) {
        const float atteso = std::string{p.nome} == "Autovetture" ? 100.0F : 0.0F;
        EXPECT_EQ((r.theComposizioneTraffico().*p.leggi)(), atteso) << p.nome;
    });
    const AnalisiMarginale& a = r.theAnalisiMarginale();
    perOgniProprieta(&a, [&](const auto& p) {
        if constexpr (std::is_same_v<decltype((a.*p.leggi)()), bool>) {
            EXPECT_FALSE((a.*p.leggi)()) << p.nome;
        }
    });
    EXPECT_EQ(a.DescrizioneCondizioniEsterne(), "");
    EXPECT_EQ(a.CondizioniEsterne(), 0.0);
    EXPECT_EQ(a.AttraversamentoPedonale(), 0.0);
    EXPECT_EQ(a.LarghezzaIngresso(), 0.05);
    EXPECT_EQ(a.SemiLarghezza(), 0.05);
    EXPECT_EQ(a.LungSvasatura(), 0.5);
    EXPECT_EQ(a.AngoloConflitto(), 5.0);
    EXPECT_EQ(a.RaggioCurvatura(), 1.0);
    EXPECT_EQ(a.DiametroInscritto(), 1.0);
}

TEST_F(ProveRotonda, FreshLegTakesSegmentsAndTimesOfTheWindow) {
    // 06:30 to 07:45 by 10 minutes: 75 / 10 = 7,5 gives 8 (ties to even), the peak 4 segments after the start.
    rotonda.TempoIniziale(oraDelGiorno(6, 30));
    rotonda.TempoFinale(oraDelGiorno(7, 45));
    rotonda.SegmentoTempo(oraDelGiorno(0, 10));
    rami(3);
    const Ramo& r = rotonda.Ramo(1);
    EXPECT_EQ(r.theDatiTraffico().NumSegmentiTempo(), 8);
    EXPECT_EQ(r.theComposizioneTraffico().NumSegmentiTempo(), 8);
    EXPECT_EQ(testoHHNN(r.theDatiTraffico().Tempo1()), "06:30");
    EXPECT_EQ(testoHHNN(r.theDatiTraffico().Tempo2()), "07:10");
    EXPECT_EQ(testoHHNN(r.theDatiTraffico().Tempo3()), "07:45");
}

TEST_F(ProveRotonda, FreshLegOfTheFreshWindowHasFourSegmentsAndThePeakInTheMiddle) {
    rami(3);
    const DatiTraffico& d = rotonda.Ramo(2).theDatiTraffico();
    EXPECT_EQ(d.NumSegmentiTempo(), 4);
    EXPECT_EQ(d.Tempo1(), oraDelGiorno(8, 0));
    EXPECT_EQ(d.Tempo2(), oraDelGiorno(8, 30));
    EXPECT_EQ(d.Tempo3(), oraDelGiorno(9, 0));
}

TEST_F(ProveRotonda, ASegmentOfWholeHoursGivesAFreshLegNoSegments) {
    rotonda.SegmentoTempo(oraDelGiorno(1, 0));
    rami(3);
    EXPECT_EQ(rotonda.Ramo(1).theDatiTraffico().NumSegmentiTempo(), 0);
    EXPECT_EQ(testoHHNN(rotonda.Ramo(1).theDatiTraffico().Tempo2()), "08:00");
}

TEST_F(ProveRotonda, AWindowOnALateDateDoesNotOverflowThePeak) {
    const DataOra giorno = giornoCalendario(2026, 11, 21);
    rotonda.TempoIniziale(giorno + oraDelGiorno(8, 0));
    rotonda.TempoFinale(giorno + oraDelGiorno(9, 0));
    rami(3);
    EXPECT_EQ(testoDataOra(rotonda.Ramo(1).theDatiTraffico().Tempo2()), "21/11/2026 08:30:00");
}

TEST_F(ProveRotonda, NumberOfLegsStaysBetweenThreeAndSeven) {
    for (const std::int16_t sbagliato : {std::int16_t{2}, std::int16_t{8}, std::int16_t{-1}}) {
        EXPECT_EQ(numeroGuasto([&] { rotonda.NumeroRami(sbagliato); }), 5) << sbagliato;
    }
    for (const std::int16_t giusto : {std::int16_t{3}, std::int16_t{7}}) {
        rotonda.NumeroRami(giusto);
        EXPECT_EQ(rotonda.NumeroRami(), giusto);
    }
}

TEST_F(ProveRotonda, ANewNumberOfLegsClearsTheMatrix) {
    rotonda.MatriceSvolte(7.0F, 4, 3);
    const Revisione prima = rotonda.revisione();
    rotonda.NumeroRami(5);
    Matrice matrice;
    rotonda.GetMatriceSvolte(matrice);
    EXPECT_EQ(matrice, Matrice(5, std::vector<float>(5, 0.0F)));
    EXPECT_EQ(rotonda.revisione().tutto, prima.tutto + 1);
    EXPECT_EQ(rotonda.revisione().calcolo, prima.calcolo + 1);
}

TEST_F(ProveRotonda, TheSameNumberOfLegsChangesNothing) {
    rotonda.MatriceSvolte(7.0F, 4, 3);
    const Revisione prima = rotonda.revisione();
    rotonda.NumeroRami(4);
    EXPECT_EQ(rotonda.MatriceSvolte(4, 3), 7.0F);
    EXPECT_EQ(rotonda.revisione().tutto, prima.tutto);
    EXPECT_EQ(rotonda.revisione().calcolo, prima.calcolo);
}

TEST_F(ProveRotonda, ALegMoreAndANumberOfSegmentsRaiseTheRevisionOfTheCalculation) {
    rotonda.NumeroRami(3);
    std::uint64_t prima = rotonda.revisione().calcolo;
    Ramo& ramo = rotonda.AddRamo("1Ramo");
    EXPECT_GT(rotonda.revisione().calcolo, prima);
    prima = rotonda.revisione().calcolo;
    ramo.theDatiTraffico().NumSegmentiTempo(4);
    EXPECT_EQ(rotonda.revisione().calcolo, prima + 1) << "also where the number stays: the table is discarded";
    prima = rotonda.revisione().calcolo;
    ramo.theComposizioneTraffico().NumSegmentiTempo(4);
    EXPECT_EQ(rotonda.revisione().calcolo, prima + 1);
    EXPECT_GE(rotonda.revisione().tutto, rotonda.revisione().calcolo);
}

TEST_F(ProveRotonda, NumberOfLegsDoesNotChangeOnceTheyExist) {
    rami(3);
    EXPECT_EQ(numeroGuasto([&] { rotonda.NumeroRami(4); }), 5);
    EXPECT_EQ(numeroGuasto([&] { rotonda.NumeroRami(3); }), 0);
    EXPECT_EQ(rotonda.NumeroRami(), 3);
}

TEST_F(ProveRotonda, LegsAreFoundByPositionAndByKey) {
    rami(4);
    EXPECT_EQ(&rotonda.Ramo(3), &rotonda.Rami().Item("3Ramo"));
    EXPECT_EQ(rotonda.Rami().Count(), 4);
    EXPECT_EQ(numeroGuasto([&] { rotonda.Ramo(0); }), 9);
    EXPECT_EQ(numeroGuasto([&] { rotonda.Ramo(5); }), 9);
    EXPECT_EQ(numeroGuasto([&] { rotonda.Rami().Item("5Ramo"); }), 9);
}

TEST_F(ProveRotonda, ATakenKeyAndALegTooManyAreFaults) {
    rotonda.NumeroRami(3);
    rotonda.AddRamo("1Ramo");
    EXPECT_EQ(numeroGuasto([&] { rotonda.AddRamo("1Ramo"); }), 457);
    rotonda.AddRamo("2Ramo");
    rotonda.AddRamo("3Ramo");
    EXPECT_EQ(numeroGuasto([&] { rotonda.AddRamo("4Ramo"); }), 9);
    EXPECT_EQ(rotonda.Rami().Count(), 3);
}

TEST_F(ProveRotonda, MatrixCellsAreCountedFromOneAndCopiedFromZero) {
    rami(3);
    for (std::int16_t i = 1; i <= 3; ++i) {
        for (std::int16_t j = 1; j <= 3; ++j) {
            rotonda.MatriceSvolte(static_cast<float>(10 * i + j), i, j);
        }
    }
    EXPECT_EQ(rotonda.MatriceSvolte(2, 3), 23.0F);
    Matrice matrice;
    rotonda.GetMatriceSvolte(matrice);
    EXPECT_EQ(matrice, (Matrice{{11, 12, 13}, {21, 22, 23}, {31, 32, 33}}));
    for (const auto& [riga, colonna] : {std::pair{0, 1}, {1, 0}, {4, 1}, {1, 4}}) {
        EXPECT_EQ(numeroGuasto([&] {
                      rotonda.MatriceSvolte(static_cast<std::int16_t>(riga), static_cast<std::int16_t>(colonna));
                  }),
                  9);
        EXPECT_EQ(numeroGuasto([&] {
                      rotonda.MatriceSvolte(1.0F, static_cast<std::int16_t>(riga), static_cast<std::int16_t>(colonna));
                  }),
                  9);
    }
}

TEST_F(ProveRotonda, SharesOfAMatrixInVehiclesDivideEachRowByItsTotal) {
    rotonda.NumeroRami(3);
    const float celle[3][3] = {{10, 20, 70}, {0, 0, 0}, {1, 1, 1}};
    for (std::int16_t i = 0; i < 3; ++i) {
        for (std::int16_t j = 0; j < 3; ++j) {
            rotonda.MatriceSvolte(celle[i][j], static_cast<std::int16_t>(i + 1), static_cast<std::int16_t>(j + 1));
        }
    }
    Matrice quote;
    rotonda.GetMatriceSvoltePercentuale(quote);
    EXPECT_EQ(quote[0], (std::vector<float>{0.1F, 0.2F, 0.7F}));
    EXPECT_EQ(quote[1], (std::vector<float>{0, 0, 0}));
    EXPECT_EQ(quote[2], (std::vector<float>(3, 0.33333334F)));
}

TEST_F(ProveRotonda, SharesOfAMatrixInPerCentDivideByAHundredAlsoWhereARowDoesNotAddUp) {
    rotonda.NumeroRami(3);
    rotonda.TipoMatriceSvolte(1);
    rotonda.MatriceSvolte(30.0F, 1, 2);
    rotonda.MatriceSvolte(50.0F, 1, 3);
    Matrice quote;
    rotonda.GetMatriceSvoltePercentuale(quote);
    EXPECT_EQ(quote[0], (std::vector<float>{0, 0.3F, 0.5F}));
    EXPECT_EQ(quote[1], (std::vector<float>{0, 0, 0}));
}

TEST_F(ProveRotonda, AMatrixOfAnUnknownKindIsReadAsVehicles) {
    rotonda.NumeroRami(3);
    rotonda.MatriceSvolte(30.0F, 1, 2);
    rotonda.MatriceSvolte(10.0F, 1, 3);
    for (const std::int16_t tipo : {std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}}) {
        rotonda.TipoMatriceSvolte(tipo);
        Matrice quote;
        rotonda.GetMatriceSvoltePercentuale(quote);
        EXPECT_EQ(quote[0], (std::vector<float>{0, 0.75F, 0.25F})) << tipo;
    }
}

TEST_F(ProveRotonda, StampTellsWhetherTheRecordsAreThoseOfTheProject) {
    rami(3);
    EXPECT_FALSE(rotonda.risultatiAttuali({}));
    rotonda.timbra(FormaCalcolo::piana);
    EXPECT_TRUE(rotonda.risultatiAttuali({}));
    rotonda.Titolo("altro");
    EXPECT_TRUE(rotonda.risultatiAttuali({})) << "a title is read by no calculation";
    rotonda.Ramo(2).theDatiTraffico().FlussoTempo2(9.0F);
    EXPECT_FALSE(rotonda.risultatiAttuali({}));
    rotonda.timbra(FormaCalcolo::ipotesi);
    EXPECT_FALSE(rotonda.risultatiAttuali({}));
}

TEST_F(ProveRotonda, OnlyACalculationOfRecordsStampsTheRecords) {
    rami(3);
    EXPECT_EQ(rotonda.timbroRecord(), Timbro{});
    const AmbienteCalcolo ambiente{.notte = 20};
    rotonda.timbra(FormaCalcolo::bilanciamento, ambiente);
    EXPECT_EQ(rotonda.timbro().forma, FormaCalcolo::bilanciamento);
    EXPECT_EQ(rotonda.timbroRecord(), Timbro{});
    for (const FormaCalcolo forma :
         {FormaCalcolo::interrotta, FormaCalcolo::ipotesi, FormaCalcolo::corsiaDestra, FormaCalcolo::piana}) {
        rotonda.timbra(forma, ambiente);
        EXPECT_EQ(rotonda.timbro().forma, forma);
        EXPECT_EQ(rotonda.timbroRecord(), rotonda.timbro());
    }
    const Timbro piano = rotonda.timbroRecord();
    rotonda.timbra(FormaCalcolo::bilanciamento);
    EXPECT_EQ(rotonda.timbro().forma, FormaCalcolo::bilanciamento);
    EXPECT_EQ(rotonda.timbroRecord(), piano);
    EXPECT_TRUE(rotonda.risultatiAttuali(ambiente)) << "the ultimate capacity touches no record";
    rotonda.Clear();
    EXPECT_EQ(rotonda.timbroRecord(), Timbro{});
}

TEST(Rotonda, TheBackupOfTheTrafficEndsWithTheContent) {
    Rotonda rotonda;
    rotonda.backupTraffico().BackupComposizioneDisponibile = true;
    rotonda.backupTraffico().BackupComposizione.allarga(3, 4);
    rotonda.Clear();
    EXPECT_FALSE(rotonda.backupTraffico().BackupComposizioneDisponibile);
    EXPECT_EQ(rotonda.backupTraffico().BackupComposizione.rami(), 0);

    rotonda.NumeroRami(3);
    for (const char* chiave : {"1Ramo", "2Ramo", "3Ramo"}) {
        rotonda.AddRamo(chiave);
    }
    const std::string testo = rotonda.TestoFile();
    rotonda.backupTraffico().BackupComposizioneDisponibile = true;
    std::string messaggio;
    bool esito = true;
    rotonda.LoadTesto("niente", messaggio, esito);
    EXPECT_TRUE(rotonda.backupTraffico().BackupComposizioneDisponibile);
    rotonda.LoadTesto(testo, messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
    EXPECT_FALSE(rotonda.backupTraffico().BackupComposizioneDisponibile);
}

TEST(TabellaBackup, GrowsAndKeepsItsContent) {
    TabellaBackup tabella;
    EXPECT_EQ(tabella.ultimoSegmento(), -1);
    tabella.allarga(2, 3);
    tabella.cella(41, 2, 7, 3);
    tabella.allarga(1, 1);  // never shrinks
    EXPECT_EQ(tabella.rami(), 2);
    EXPECT_EQ(tabella.ultimoSegmento(), 3);
    tabella.allarga(3, 6);
    EXPECT_EQ(tabella.cella(2, 7, 3), 41);
    EXPECT_EQ(tabella.cella(3, 0, 6), 0);
    EXPECT_THROW(tabella.cella(0, 1, 1), Guasto);
    EXPECT_THROW(tabella.cella(4, 1, 1), Guasto);
    EXPECT_THROW(tabella.cella(1, 8, 1), Guasto);
    EXPECT_THROW(tabella.cella(1, 1, 7), Guasto);
    EXPECT_THROW(tabella.cella(5, 1, -1, 0), Guasto);
}

}  // namespace
}  // namespace kelvo::prove
