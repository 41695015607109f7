#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "comune/guasti.h"
#include "progettoAnalisi.h"
#include "results/Sensibilita.h"

namespace kelvo {
namespace {

using prove::AppFinta;

const DataOra momento = giornoCalendario(2026, 11, 21) + oraDelGiorno(10, 30, 5);

/// Places of the measures.
constexpr std::size_t larghezza = 0;
constexpr std::size_t semilarghezza = 1;
constexpr std::size_t svasatura = 2;
constexpr std::size_t angolo = 3;
constexpr int riferimento = 4;

class AnalisiSensibilita : public testing::Test {
protected:
    AnalisiSensibilita() { prove::creaStudio(finta, 4, 1); }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    Ramo& ramo() { return rotonda().Ramo(2); }
    AnalisiMarginale& marginale() { return ramo().theAnalisiMarginale(); }
    void calcola(std::size_t parametro) {
        analisi.imposta(rotonda(), 2);
        analisi.calcola(finta.app, parametro);
    }
    const Tabella& tabella(std::size_t parametro) const { return analisi.tabella(parametro).tabella(); }
    std::vector<std::string> riga(std::size_t parametro, int r) const {
        std::vector<std::string> testi;
        for (int c = 1; c < 8; ++c) {
            testi.push_back(tabella(parametro).testo(r, c));
        }
        return testi;
    }
    /// The peak record of leg 2 with other measures, by the engine itself.
    Iterazione punta(const Geometria& g) {
        modCalcolo motore(finta.app);
        if (rotonda().TipoAnalisi() == 1) {
            motore.Calcola_Tempo_Flusso("0");
            motore.Calcola_Tempo_Flusso(2, g, "0");
        } else {
            motore.Calcola_Tempo_Flusso_ST(2, g, "0");
        }
        Iterazione massima{};
        for (std::int16_t k = 1; k <= 4; ++k) {
            const Iterazione r = ramo().theDatiTraffico().GetIterazione(k);
            massima = r.Flusso > massima.Flusso ? r : massima;
        }
        return massima;
    }
    AppFinta finta;
    Sensibilita analisi;
};

TEST_F(AnalisiSensibilita, TheSixMeasuresHaveTheirWords) {
    const char* nomi[] = {"Larghezza ingresso",  "Semilarghezza accesso",     "Lunghezza svasatura",
                          "Angolo di conflitto", "Raggio curvatura ingresso", "Diametro inscritto"};
    const char* grafici[] = {"Larghezza Ingresso",  "Semilarghezza Accesso",     "Lunghezza Svasatura",
                             "Angolo di Conflitto", "Raggio Curvatura Ingresso", "Diametro inscritto"};
    const char* relazioni[] = {"Larghezza ingresso",  "Semi Larghezza Accesso",    "Larghezza Svasatura",
                               "Angolo di conflitto", "Raggio curvatura ingresso", "Diametro inscritto"};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(parametriGeometrici.at(i).nome, nomi[i]);
        EXPECT_EQ(parametriGeometrici.at(i).nomeGrafico, grafici[i]);
        EXPECT_EQ(parametriGeometrici.at(i).nomeRelazione, relazioni[i]);
        EXPECT_EQ(parametriGeometrici.at(i).unita, i == angolo ? "°" : "m");
    }
}

TEST_F(AnalisiSensibilita, MessagesAndOptionsAreWorded) {
    EXPECT_EQ(testiSensibilita::nessunaVariabile.testo, "Attenzione! Selezionare una variabile");
    EXPECT_EQ(testiSensibilita::nessunaVariabile.titolo, "Kelvo 2014");
    EXPECT_EQ(testiSensibilita::nessunaVariabile.icona, Icona::critica);
    EXPECT_EQ(testiSensibilita::nessunRisultato.testo, "Attenzione! Nessun risultato da esportare.");
    EXPECT_EQ(testiSensibilita::nessunRisultato.titolo, "Kelvo 2014");
    EXPECT_EQ(testiSensibilita::metodoAnteprima, "frmCapacitaCodeRitardi:Anteprima");
    EXPECT_EQ(voce(Prestazione::capacita).opzione, "CAPACITA'");
    EXPECT_EQ(voce(Prestazione::coda).opzione, "LUNGHEZZA CODA ");
    EXPECT_EQ(voce(Prestazione::ritardo).opzione, "RITARDO");
    EXPECT_EQ(voce(Prestazione::capacita).nomeRelazione, "Capacità");
    EXPECT_EQ(voce(Prestazione::coda).nomeRelazione, "Lunghezza coda");
    EXPECT_EQ(voce(Prestazione::ritardo).nomeRelazione, "Ritardo");
}

TEST_F(AnalisiSensibilita, OpeningShowsStepsAndMeasuresWithoutResults) {
    marginale().LarghezzaIngresso(0.25);
    analisi.imposta(rotonda(), 2);
    const Tabella& t = tabella(larghezza);
    ASSERT_EQ(t.righe(), 8);
    ASSERT_EQ(t.colonne(), 8);
    EXPECT_EQ(t.larghezze, (std::vector<int>{2050, 1000, 1000, 1000, 1000, 1000, 1000, 1000}));
    EXPECT_EQ(t.altezzaRiga, 300);
    const char* nomi[] = {"Step ->",     "Larghezza ingresso", "Capacità [veic/h]", "Variazione Capacità",
                          "Coda [veic]", "Variazione coda",    "Ritardo [s/veic]",  "Variazione ritardo"};
    for (int r = 0; r < 8; ++r) {
        EXPECT_EQ(t.testo(r, 0), nomi[r]);
        for (int c = 1; r > 1 && c < 8; ++c) {
            EXPECT_EQ(t.testo(r, c), "");
        }
    }
    using Riga = std::vector<std::string>;
    EXPECT_EQ(riga(larghezza, 0), (Riga{"-0,75", "-0,50", "-0,25", "+0,00", "+0,25", "+0,50", "+0,75"}));
    EXPECT_EQ(riga(larghezza, 1), (Riga{"3,75", "4,00", "4,25", "4,50", "4,75", "5,00", "5,25"}));
    EXPECT_EQ(riga(angolo, 0), (Riga{"-15,00", "-10,00", "-5,00", "+0,00", "+5,00", "+10,00", "+15,00"}));
    EXPECT_EQ(riga(angolo, 1), (Riga{"15,00", "20,00", "25,00", "30,00", "35,00", "40,00", "45,00"}));
    EXPECT_EQ(tabella(angolo).testo(1, 0), "Angolo di conflitto");
    EXPECT_TRUE(analisi.tabella(larghezza).senzaRisultati());
    EXPECT_FALSE(analisi.tabella(larghezza).calcolata());
    EXPECT_EQ(prove::numeroGuasto([&] { analisi.imposta(rotonda(), 5); }), 9);
}

TEST_F(AnalisiSensibilita, HeadingsAndTheReferenceHaveTheirColours) {
    for (const bool calcolata : {false, true}) {
        analisi.imposta(rotonda(), 2);
        if (calcolata) {
            analisi.calcola(finta.app, larghezza);
        }
        const Tabella& t = tabella(larghezza);
        for (int r = 0; r < 8; ++r) {
            EXPECT_EQ(t.cella(r, 0).sfondo, (Colore{0, 98, 0}));
            EXPECT_EQ(t.cella(r, 0).inchiostro, (Colore{255, 255, 255}));
            EXPECT_EQ(t.cella(r, riferimento).sfondo, (Colore{164, 196, 0}));
            EXPECT_EQ(t.cella(r, 1).sfondo, r == 0 ? (Colore{0, 98, 0}) : (Colore{220, 220, 220}));
            EXPECT_EQ(t.cella(r, 7).inchiostro, r == 0 ? (Colore{255, 255, 255}) : (Colore{0, 0, 0}));
        }
    }
}

TEST_F(AnalisiSensibilita, EachStepIsTheRecordOfTheLargestFlow) {
    marginale().LarghezzaIngresso(0.5);
    for (const auto tipo : std::initializer_list<std::int16_t>{1, 2}) {
        rotonda().TipoAnalisi(tipo);
        calcola(larghezza);
        const double misure[] = {3.0, 3.5, 4.0, 4.5, 5.0, 5.5, 6.0};
        for (int c = 2; c < 8; ++c) {
            Geometria g = geometriaDi(ramo());
            g.e = static_cast<float>(misure[c - 1]);
            const Iterazione r = punta(g);
            EXPECT_EQ(tabella(larghezza).testo(2, c), formatta(r.Capacita, "#0.00")) << tipo << ", " << c;
            EXPECT_EQ(tabella(larghezza).testo(4, c), formatta(r.Coda, "#0.0")) << tipo << ", " << c;
            EXPECT_EQ(tabella(larghezza).testo(6, c), formatta(r.Ritardo, "#0.0")) << tipo << ", " << c;
            const PassoSensibilita& passo = analisi.tabella(larghezza).passi().at(static_cast<std::size_t>(c - 1));
            EXPECT_EQ(passo.risultato, r);
            EXPECT_EQ(passo.misura, g.e);
            EXPECT_TRUE(passo.valido && passo.calcolato);
        }
        EXPECT_TRUE(analisi.tabella(larghezza).calcolata());
        EXPECT_GT(leggiNumero(tabella(larghezza).testo(2, 7)).value(),
                  leggiNumero(tabella(larghezza).testo(2, 4)).value());
    }
}

TEST_F(AnalisiSensibilita, OfEqualLargestFlowsTheFirstCounts) {
    DatiTraffico& traffico = ramo().theDatiTraffico();
    traffico.SetIterazione(1, {.Flusso = 1.0F, .Capacita = 100.0F});
    traffico.SetIterazione(2, {.Flusso = 7.0F, .Capacita = 200.0F});
    traffico.SetIterazione(3, {.Flusso = 7.0F, .Capacita = 300.0F});
    traffico.SetIterazione(4, {.Flusso = 6.0F, .Capacita = 400.0F});
    EXPECT_EQ(recordDiPunta(traffico).Capacita, 200.0F);
    traffico.SetIterazione(4, {.Flusso = 8.0F, .Capacita = 500.0F});
    EXPECT_EQ(recordDiPunta(traffico).Capacita, 500.0F);
    for (std::int16_t k = 1; k <= 4; ++k) {
        traffico.SetIterazione(k, {.Flusso = 0.0F, .Capacita = 100.0F});
    }
    EXPECT_EQ(recordDiPunta(traffico), Iterazione{});
}

TEST_F(AnalisiSensibilita, VariationsComeFromTheShownFigures) {
    EXPECT_EQ(variazioneSensibilita("110,00", "100,00"), "10,00%");
    EXPECT_EQ(variazioneSensibilita("99,5", "100,0"), "-0,50%");
    EXPECT_EQ(variazioneSensibilita("100,00", "100,00"), "0,00%");
    EXPECT_EQ(variazioneSensibilita("2,0", "3,0"), "-33,33%");
    EXPECT_EQ(variazioneSensibilita("1,0", "0,0"), "");
    EXPECT_EQ(variazioneSensibilita("0,0", "0,0"), "");
    EXPECT_EQ(variazioneSensibilita("", "1,0"), "");
    EXPECT_EQ(variazioneSensibilita("1,0", ""), "");
    calcola(angolo);
    for (const int r : {2, 4, 6}) {
        for (int c = 1; c < 8; ++c) {
            EXPECT_EQ(tabella(angolo).testo(r + 1, c),
                      variazioneSensibilita(tabella(angolo).testo(r, c), tabella(angolo).testo(r, riferimento)));
        }
        EXPECT_EQ(tabella(angolo).testo(r + 1, riferimento), "0,00%");
    }
    // k goes from 1 to 1 - 15 * 0.00347: F and Fc with it.
    EXPECT_EQ(tabella(angolo).testo(3, 7), "-5,21%");
}

TEST_F(AnalisiSensibilita, AStepBelowTheLowerLimitIsNotValid) {
    ramo().LarghezzaIngresso(3.2F);
    ramo().SemiLarghezza(3.0F);
    calcola(larghezza);
    EXPECT_EQ(tabella(larghezza).testo(1, 1), "3,05");
    EXPECT_EQ(tabella(larghezza).testo(1, 2), "3,10");
    for (const int r : {2, 4, 6}) {
        EXPECT_EQ(tabella(larghezza).testo(r, 1), "0");
        EXPECT_EQ(tabella(larghezza).cella(r, 1).sfondo, (Colore{190, 100, 100}));
        EXPECT_EQ(tabella(larghezza).testo(r + 1, 1), "");
        EXPECT_EQ(tabella(larghezza).cella(r + 1, 1).sfondo, (Colore{220, 220, 220}));
        EXPECT_NE(tabella(larghezza).testo(r, 2), "0");
        EXPECT_EQ(tabella(larghezza).cella(r, 2).sfondo, (Colore{220, 220, 220}));
    }
    EXPECT_FALSE(analisi.tabella(larghezza).senzaRisultati());
    // Marks go with the next calculation.
    ramo().LarghezzaIngresso(4.5F);
    calcola(larghezza);
    EXPECT_EQ(tabella(larghezza).cella(2, 1).sfondo, (Colore{220, 220, 220}));
}

TEST_F(AnalisiSensibilita, AStepOfTwentyDegreesFromFiveHasThreeInvalidColumns) {
    ramo().AngoloConflitto(5.0F);
    marginale().AngoloConflitto(20.0);
    calcola(angolo);
    EXPECT_EQ(tabella(angolo).testo(1, 1), "-55,00");
    EXPECT_EQ(tabella(angolo).testo(1, 7), "65,00");
    for (int c = 1; c < 8; ++c) {
        EXPECT_EQ(tabella(angolo).testo(2, c) == "0", c < 4) << c;
    }
}

TEST_F(AnalisiSensibilita, TheUpperLimitIsNotTested) {
    ramo().AngoloConflitto(70.0F);
    calcola(angolo);
    EXPECT_EQ(tabella(angolo).testo(1, 7), "85,00");
    EXPECT_NE(tabella(angolo).testo(2, 7), "0");
    EXPECT_NE(tabella(angolo).testo(3, 7), "");
}

TEST_F(AnalisiSensibilita, AnInvalidReferenceIsMarkedAndLeavesNoVariations) {
    ramo().LarghezzaIngresso(3.0F);
    ramo().SemiLarghezza(2.5F);
    calcola(larghezza);
    EXPECT_EQ(tabella(larghezza).testo(2, riferimento), "0");
    EXPECT_EQ(tabella(larghezza).cella(2, riferimento).sfondo, (Colore{190, 100, 100}));
    EXPECT_NE(tabella(larghezza).testo(2, 6), "0");
    for (int c = 1; c < 8; ++c) {
        EXPECT_EQ(tabella(larghezza).testo(3, c), "") << c;
    }
}

TEST_F(AnalisiSensibilita, TheMeasureOfAStepIsTheOneShown) {
    ramo().LarghezzaIngresso(4.126F);
    marginale().LarghezzaIngresso(0.25);
    calcola(larghezza);
    EXPECT_EQ(tabella(larghezza).testo(1, riferimento), "4,13");
    Geometria g = geometriaDi(ramo());
    g.e = 4.13F;
    EXPECT_EQ(tabella(larghezza).testo(2, riferimento), formatta(punta(g).Capacita, "#0.00"));
}

TEST_F(AnalisiSensibilita, WithoutDemandTheStepsShowZeroAndNoVariation) {
    for (std::int16_t i = 1; i <= 4; ++i) {
        DatiTraffico& traffico = rotonda().Ramo(i).theDatiTraffico();
        traffico.FlussoTempo1(0.0F);
        traffico.FlussoTempo2(0.0F);
        traffico.FlussoTempo3(0.0F);
    }
    calcola(larghezza);
    for (int c = 1; c < 8; ++c) {
        EXPECT_EQ(tabella(larghezza).testo(2, c), "0,00");
        EXPECT_EQ(tabella(larghezza).testo(4, c), "0,0");
        EXPECT_EQ(tabella(larghezza).testo(6, c), "0,0");
        EXPECT_EQ(tabella(larghezza).testo(3, c), "");
        EXPECT_EQ(tabella(larghezza).testo(5, c), "");
        EXPECT_EQ(tabella(larghezza).testo(7, c), "");
    }
}

TEST_F(AnalisiSensibilita, WithoutDemandOverTimeThereIsTheCapacityAlone) {
    rotonda().TipoAnalisi(0);
    ramo().LarghezzaIngresso(3.2F);
    ramo().SemiLarghezza(3.0F);
    calcola(larghezza);
    EXPECT_EQ(tabella(larghezza).testo(2, 1), "0");
    EXPECT_EQ(tabella(larghezza).cella(2, 1).sfondo, (Colore{190, 100, 100}));
    EXPECT_EQ(tabella(larghezza).cella(4, 1).sfondo, (Colore{220, 220, 220}));
    modCalcolo motore(finta.app);
    Geometria g = geometriaDi(ramo());
    g.e = 3.35F;
    motore.Calcola_Bilanciamento(2, g);
    EXPECT_EQ(tabella(larghezza).testo(2, 7), formatta(static_cast<float>(ramo().CapacitaUltima()), "#0.00"));
    EXPECT_EQ(tabella(larghezza).testo(3, riferimento), "0,00%");
    for (const int r : {4, 5, 6, 7}) {
        EXPECT_EQ(riga(larghezza, r), std::vector<std::string>(7));
    }
}

TEST_F(AnalisiSensibilita, AFaultOfOneStepIsToldOnceAndTheOthersGoOn) {
    // e 3.5 and v 6: the sharpness is -4 / l, at l = 8 it is -0.5 and a divisor 0.
    ramo().LarghezzaIngresso(3.5F);
    ramo().SemiLarghezza(6.0F);
    ramo().LunghezzaSvasatura(7.0F);
    calcola(svasatura);
    ASSERT_EQ(finta.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(tabella(svasatura).testo(1, 6), "8,00");
    for (int r = 2; r < 8; ++r) {
        EXPECT_EQ(tabella(svasatura).testo(r, 6), "") << r;
        EXPECT_NE(tabella(svasatura).testo(r, 5), "") << r;
        EXPECT_NE(tabella(svasatura).testo(r, 7), "") << r;
    }
    EXPECT_EQ(tabella(svasatura).cella(2, 6).sfondo, (Colore{220, 220, 220}));
}

TEST_F(AnalisiSensibilita, AFaultOfTheReferenceLeavesNoVariations) {
    rotonda().TipoAnalisi(2);
    ramo().LarghezzaIngresso(3.5F);
    ramo().SemiLarghezza(6.0F);
    ramo().LunghezzaSvasatura(8.0F);
    calcola(svasatura);
    ASSERT_EQ(finta.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(tabella(svasatura).testo(2, riferimento), "");
    EXPECT_NE(tabella(svasatura).testo(2, 3), "");
    EXPECT_EQ(tabella(svasatura).testo(3, 3), "");
}

TEST_F(AnalisiSensibilita, AStepThatIsNotValidIsNotRun) {
    // At l = 0 the engine would divide by 0.
    ramo().LunghezzaSvasatura(1.5F);
    calcola(svasatura);
    EXPECT_EQ(tabella(svasatura).testo(1, 1), "0,00");
    EXPECT_EQ(tabella(svasatura).testo(2, 1), "0");
    EXPECT_TRUE(finta.messaggi.mostrati.empty());
}

TEST_F(AnalisiSensibilita, AProjectThatCannotBeCalculatedIsToldOnceAndHasNoFigures) {
    for (const auto tipo : std::initializer_list<std::int16_t>{1, 2}) {
        finta.messaggi.mostrati.clear();
        rotonda().TipoAnalisi(tipo);
        rotonda().SegmentoTempo(oraDelGiorno(1, 0));
        marginale().UsaLarghezzaIngresso(true);
        marginale().UsaAngoloConflitto(true);
        analisi.imposta(rotonda(), 2);
        analisi.calcola(finta.app);
        EXPECT_EQ(finta.messaggi.mostrati.size(), 1U) << tipo;
        EXPECT_EQ(riga(larghezza, 2), std::vector<std::string>(7)) << tipo;
        EXPECT_TRUE(analisi.tabella(angolo).senzaRisultati());
    }
}

TEST_F(AnalisiSensibilita, OnlyMeasuresThatTakePartAreCalculated) {
    marginale().UsaSemiLarghezza(true);
    analisi.imposta(rotonda(), 2);
    EXPECT_TRUE(analisi.attivo(semilarghezza));
    EXPECT_FALSE(analisi.attivo(larghezza));
    EXPECT_FALSE(analisi.nessunoAttivo());
    analisi.calcola(finta.app);
    EXPECT_TRUE(analisi.tabella(semilarghezza).calcolata());
    EXPECT_TRUE(analisi.tabella(larghezza).senzaRisultati());
    marginale().UsaSemiLarghezza(false);
    analisi.imposta(rotonda(), 2);
    EXPECT_TRUE(analisi.nessunoAttivo());
    EXPECT_TRUE(analisi.tabella(semilarghezza).senzaRisultati());
    analisi.calcola(finta.app, larghezza);
    EXPECT_TRUE(analisi.tabella(larghezza).calcolata());
    EXPECT_FALSE(analisi.tabella(semilarghezza).calcolata());
}

TEST_F(AnalisiSensibilita, EachFlagAndStepBelongsToItsMeasure) {
    marginale().UsaLarghezzaIngresso(true);
    marginale().LarghezzaIngresso(0.11);
    marginale().SemiLarghezza(0.12);
    marginale().LungSvasatura(0.13);
    marginale().AngoloConflitto(0.14);
    marginale().RaggioCurvatura(0.15);
    marginale().DiametroInscritto(0.16);
    analisi.imposta(rotonda(), 2);
    const char* passi[] = {"+0,11", "+0,12", "+0,13", "+0,14", "+0,15", "+0,16"};
    const char* misure[] = {"4,50", "3,50", "20,00", "30,00", "20,00", "40,00"};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(tabella(i).testo(0, 5), passi[i]);
        EXPECT_EQ(tabella(i).testo(1, riferimento), misure[i]);
        EXPECT_EQ(analisi.attivo(i), i == 0);
    }
}

TEST_F(AnalisiSensibilita, EachFlagSwitchesItsOwnMeasureOn) {
    using Scrittura = void (AnalisiMarginale::*)(bool);
    const std::array<Scrittura, 6> flag{
        &AnalisiMarginale::UsaLarghezzaIngresso,  &AnalisiMarginale::UsaSemiLarghezza,
        &AnalisiMarginale::UsaLunghezzaSvasatura, &AnalisiMarginale::UsaAngoloConflitto,
        &AnalisiMarginale::UsaRaggioCurvatura,    &AnalisiMarginale::UsaDiametroInscritto};
    for (std::size_t acceso = 0; acceso < flag.size(); ++acceso) {
        for (std::size_t i = 0; i < flag.size(); ++i) {
            (marginale().*flag.at(i))(i == acceso);
        }
        analisi.imposta(rotonda(), 2);
        for (std::size_t i = 0; i < flag.size(); ++i) {
            EXPECT_EQ(analisi.attivo(i), i == acceso) << acceso << " " << i;
        }
    }
}

TEST_F(AnalisiSensibilita, FiguresDoNotDependOnWhatRanBefore) {
    calcola(larghezza);
    const std::vector<std::string> prima = riga(larghezza, 2);
    for (std::int16_t i = 1; i <= 4; ++i) {
        rotonda().Ramo(i).CapacitaUltima(1.0);
    }
    calcola(larghezza);
    EXPECT_EQ(riga(larghezza, 2), prima);
}

TEST_F(AnalisiSensibilita, TheProjectIsNeverAlteredAndItsRecordsAreStampedWhatIf) {
    for (const auto tipo : std::initializer_list<std::int16_t>{0, 1, 2}) {
        rotonda().TipoAnalisi(tipo);
        const std::string prima = rotonda().TestoFile();
        const auto revisione = rotonda().revisione().tutto;
        for (std::size_t i = 0; i < 6; ++i) {
            calcola(i);
        }
        EXPECT_EQ(rotonda().TestoFile(), prima);
        EXPECT_EQ(rotonda().revisione().tutto, revisione);
        EXPECT_EQ(rotonda().timbro().forma, FormaCalcolo::ipotesi) << tipo;
        EXPECT_FALSE(finta.app.risultatiAttuali());
    }
}

TEST_F(AnalisiSensibilita, TheTextHasItsEmptyLinesAndMarks) {
    rotonda().NomeFile("Prova");
    rotonda().TipoAnalisi(0);
    calcola(larghezza);
    const std::string testo = analisi.tabella(larghezza).testo(rotonda(), momento);
    const std::string inizio =
        "Risultati: Ottimizzazione Geometrica *** Larghezza ingresso\r\n\r\n"
        "              Step ->\t";
    EXPECT_EQ(testo.substr(0, inizio.size()), inizio);
    const std::string fine =
        "\t\r\n\r\n\r\n==========================================================\r\n\r\n"
        "(*) Valore iniziale di riferimento\r\n" +
        righeDiChiusura(momento, "Prova");
    EXPECT_EQ(testo.substr(testo.size() - fine.size()), fine);
    // Eight rows with an empty line before four of them.
    EXPECT_EQ(std::count(testo.begin(), testo.end(), '\n'), 2 + 8 + 4 + 2 + 1 + 1 + 1 + 2);
    // Marks stand where the reference has a text: step, measure, capacity and its variation.
    EXPECT_EQ(std::count(testo.begin(), testo.end(), '*'), 3 + 4 + 1);
    EXPECT_NE(testo.find(" 4,50*\t"), std::string::npos);
    EXPECT_NE(testo.find("\t\r\n\r\n   Larghezza ingresso\t"), std::string::npos);
    EXPECT_NE(testo.find("\t\r\n  Variazione Capacità\t"), std::string::npos);
}

TEST_F(AnalisiSensibilita, AMeasurePastTheSinglesIsEmptyAndNotValid) {
    ramo().DiametroInscritto(3.4e38F);
    marginale().DiametroInscritto(1e38);
    analisi.imposta(rotonda(), 2);
    EXPECT_EQ(tabella(5).testo(1, 7), "");
    EXPECT_FALSE(analisi.tabella(5).passi().at(6).valido);
    EXPECT_TRUE(analisi.tabella(5).passi().at(3).valido);
}

}  // namespace
}  // namespace kelvo
