#include <gtest/gtest.h>

#include <cmath>

#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "progettoAnalisi.h"
#include "results/livelloServizio.h"
#include "results/quantoServe.h"

namespace kelvo {
namespace {

using prove::AppFinta;

constexpr std::size_t larghezza = 0;
constexpr std::size_t semilarghezza = 1;
constexpr std::size_t svasatura = 2;
constexpr std::size_t angolo = 3;

class RicercaQuantoServe : public testing::Test {
protected:
    RicercaQuantoServe() { studio(1, 1.0F); }
    Rotonda& rotonda() { return finta.app.theRotonda(); }
    Ramo& ramo() { return rotonda().Ramo(2); }
    /// The study with its demand multiplied. The peak of leg 2 has, by curve or by table, some 540 veic/h times the
    /// factor against a capacity of 1322 - 306 times the factor: saturated at 1.56.
    void studio(std::int16_t tipo, float fattore) {
        prove::creaStudio(finta, 4, tipo);
        for (std::int16_t i = 1; i <= 4; ++i) {
            DatiTraffico& t = rotonda().Ramo(i).theDatiTraffico();
            t.FlussoTempo1(t.FlussoTempo1() * fattore);
            t.FlussoTempo2(t.FlussoTempo2() * fattore);
            t.FlussoTempo3(t.FlussoTempo3() * fattore);
            for (std::int16_t k = 0; k < 4; ++k) {
                t.FlussoSegmento(t.FlussoSegmento(k, 0) * 1.35F * fattore, k, 0);
            }
        }
    }
    QuantoServe cerca(std::size_t parametro, const Obiettivo& obiettivo) {
        return cercaQuantoServe(finta.app, 2, parametro, obiettivo);
    }
    /// True if leg 2 with those measures reaches the goal, by the engine and its records alone.
    bool regge(const Geometria& g, const Obiettivo& obiettivo) {
        modCalcolo motore(finta.app, Racconto::mai);
        if (rotonda().TipoAnalisi() == 1) {
            motore.Calcola_Tempo_Flusso(2, g, "0");
        } else {
            motore.Calcola_Tempo_Flusso_ST(2, g, "0");
        }
        if (!motore.riuscita()) {
            return false;
        }
        for (std::int16_t k = 1; k <= 4; ++k) {
            const Iterazione r = ramo().theDatiTraffico().GetIterazione(k);
            const bool livello = obiettivo.livello.empty() || livelloDiRitardo(r.Ritardo) <= obiettivo.livello;
            const bool saturazione =
                !obiettivo.livello.empty() || static_cast<double>(r.Coeff_Sat) <= obiettivo.saturazione;
            if ((r.Flusso > 0.0F && r.Capacita <= 0.0F) || !livello || !saturazione) {
                return false;
            }
        }
        return true;
    }
    /// The nearest hundredth that reaches the goal: every one is tried, from `da` to `a`; nothing where none does.
    std::optional<double> aTappeto(std::size_t parametro, const Obiettivo& obiettivo, double da, double a) {
        modCalcolo(finta.app).Calcola_Tempo_Flusso("0");
        float Geometria::*misura = parametriGeometrici.at(parametro).misura;
        const Geometria base = geometriaDi(ramo());
        const auto attuale = static_cast<double>(base.*misura);
        std::optional<double> migliore;
        for (int h = static_cast<int>(std::lround(da * 100)); h <= static_cast<int>(std::lround(a * 100)); ++h) {
            Geometria g = base;
            g.*misura = static_cast<float>(h / 100.0);
            const double lontano = std::fabs(h / 100.0 - attuale);
            if ((!migliore || lontano < std::fabs(*migliore - attuale) + 1e-9) && regge(g, obiettivo)) {
                migliore = h / 100.0;
            }
        }
        return migliore;
    }
    AppFinta finta;
};

struct CasoRicerca {
    std::size_t parametro;
    double da;
    double a;
};
/// All measures; of those without an upper limit the part that a scan can walk.
const CasoRicerca campi[] = {{0, 3.51, 16.2}, {1, 1.0, 4.49}, {2, 1.0, 60.0},
                             {3, 0.0, 77.0},  {4, 3.0, 60.0}, {5, 13.0, 176.0}};

TEST_F(RicercaQuantoServe, FindsWhatAScanOfEveryHundredthFinds) {
    int trovati = 0;
    int nessuno = 0;
    for (const auto tipo : std::initializer_list<std::int16_t>{1, 2}) {
        for (const float fattore : {1.45F, 1.6F}) {
            studio(tipo, fattore);
            for (const CasoRicerca& campo : campi) {
                for (const Obiettivo& obiettivo :
                     {Obiettivo{.saturazione = 0.6}, Obiettivo{.saturazione = 0.85}, Obiettivo{.livello = "B"}}) {
                    const auto atteso = aTappeto(campo.parametro, obiettivo, campo.da, campo.a);
                    const QuantoServe r = cerca(campo.parametro, obiettivo);
                    SCOPED_TRACE(testing::Message() << tipo << ", " << fattore << ", " << campo.parametro << ", "
                                                    << obiettivo.saturazione << obiettivo.livello);
                    if (r.esito == EsitoQuantoServe::giaRaggiunto) {
                        EXPECT_TRUE(regge(geometriaDi(ramo()), obiettivo));
                    } else if (r.esito == EsitoQuantoServe::trovato && r.misura <= campo.a) {
                        ASSERT_TRUE(atteso);
                        EXPECT_NEAR(r.misura, *atteso, 1e-6);
                        EXPECT_TRUE(raggiunto(r.dopo, obiettivo));
                        ++trovati;
                    } else {
                        EXPECT_FALSE(atteso);
                        ++nessuno;
                    }
                }
            }
        }
    }
    EXPECT_GT(trovati, 15);
    EXPECT_GT(nessuno, 15);
}

TEST_F(RicercaQuantoServe, AnEntryWithoutFlowHasNothingToReach) {
    for (const auto tipo : std::initializer_list<std::int16_t>{1, 2}) {
        studio(tipo, 0.0F);
        const QuantoServe r = cerca(larghezza, {});
        EXPECT_EQ(r.esito, EsitoQuantoServe::senzaFlusso) << tipo;
        EXPECT_EQ(r.misura, r.attuale);
    }
}

TEST_F(RicercaQuantoServe, TheHundredthBeforeDoesNotReachTheGoal) {
    studio(1, 1.5F);
    const Obiettivo obiettivo;
    const QuantoServe r = cerca(larghezza, obiettivo);
    ASSERT_EQ(r.esito, EsitoQuantoServe::trovato);
    EXPECT_GT(r.variazione(), 0.0);
    EXPECT_EQ(r.attuale, 4.5);
    EXPECT_LE(r.dopo.saturazione, 0.85);
    EXPECT_GT(r.prima.saturazione, 0.85);
    Geometria g = geometriaDi(ramo());
    g.e = static_cast<float>(r.misura - 0.01);
    EXPECT_FALSE(regge(g, obiettivo));
    g.e = static_cast<float>(r.misura);
    EXPECT_TRUE(regge(g, obiettivo));
}

TEST_F(RicercaQuantoServe, AGoalThatIsReachedNeedsNothing) {
    const QuantoServe r = cerca(angolo, {.saturazione = 3.0});
    EXPECT_EQ(r.esito, EsitoQuantoServe::giaRaggiunto);
    EXPECT_EQ(r.misura, 30.0);
    EXPECT_EQ(r.variazione(), 0.0);
    EXPECT_EQ(r.prove, 1);
}

TEST_F(RicercaQuantoServe, LimitsAreThoseOfTheAnalysisAndTheEntryStaysWiderThanItsApproach) {
    studio(1, 6.0F);
    const QuantoServe e = cerca(larghezza, {});
    EXPECT_EQ(e.esito, EsitoQuantoServe::nessuno);
    EXPECT_EQ(e.misura, 4.5);
    EXPECT_DOUBLE_EQ(e.minimo, 3.51);
    EXPECT_DOUBLE_EQ(e.massimo, 16.2);
    const QuantoServe v = cerca(semilarghezza, {});
    EXPECT_DOUBLE_EQ(v.minimo, 1.0);
    EXPECT_DOUBLE_EQ(v.massimo, 4.49);
    const QuantoServe phi = cerca(angolo, {});
    EXPECT_DOUBLE_EQ(phi.minimo, 0.0);
    EXPECT_DOUBLE_EQ(phi.massimo, 77.0);
    EXPECT_EQ(phi.esito, EsitoQuantoServe::nessuno);
    EXPECT_LT(cerca(svasatura, {}).prove, 1500);
    ramo().SemiLarghezza(2.0F);
    EXPECT_DOUBLE_EQ(cerca(larghezza, {}).minimo, 3.1);
}

TEST_F(RicercaQuantoServe, AMeasureOutsideItsLimitsIsBroughtInside) {
    studio(1, 1.2F);
    ramo().AngoloConflitto(120.0F);
    const QuantoServe r = cerca(angolo, {.saturazione = 0.75});
    ASSERT_EQ(r.esito, EsitoQuantoServe::trovato);
    EXPECT_LE(r.misura, 77.0);
    EXPECT_EQ(r.attuale, 120.0);
    const auto atteso = aTappeto(angolo, {.saturazione = 0.75}, 0.0, 77.0);
    ASSERT_TRUE(atteso);
    EXPECT_NEAR(r.misura, *atteso, 1e-6);
}

TEST_F(RicercaQuantoServe, TellsTheSaturationThatTheChecksShow) {
    const std::string parole = "Nelle verifiche l'ingresso com'è raggiunge ";
    const QuantoServe sole = cerca(larghezza, {});
    ASSERT_TRUE(sole.saturazioneVerifiche);
    EXPECT_NEAR(*sole.saturazioneVerifiche, sole.prima.saturazione, 1e-4) << "at the peak both forms are the same";
    EXPECT_EQ(effettoQuantoServe(sole).find(parole), std::string::npos);
    // Articulated lorries alone, of 2.5 each, by segment: the checks have 2.5 times 540 = 1350 veic/h at the peak, more
    // than the 1322 of an empty ring; the what-if form has 540.
    rotonda().TipoFlusso(1);
    for (std::int16_t i = 1; i <= 4; ++i) {
        for (std::int16_t k = 0; k < 4; ++k) {
            rotonda().Ramo(i).theComposizioneTraffico().CategoriaSegmento(10.0F, k, 0);
        }
    }
    const QuantoServe pesanti = cerca(larghezza, {});
    EXPECT_EQ(pesanti.esito, EsitoQuantoServe::giaRaggiunto);
    EXPECT_LT(pesanti.prima.saturazione, 0.85);
    ASSERT_TRUE(pesanti.saturazioneVerifiche);
    EXPECT_GT(*pesanti.saturazioneVerifiche, 1.0);
    EXPECT_NE(effettoQuantoServe(pesanti).find(parole + formatta(*pesanti.saturazioneVerifiche, "#0.00") + ":"),
              std::string::npos);
    modCalcolo(finta.app).Calcola_Tempo_Flusso("1");
    EXPECT_EQ(statoDi(ramo().theDatiTraffico()).saturazione, *pesanti.saturazioneVerifiche);
    studio(2, 1.0F);
    EXPECT_FALSE(cerca(larghezza, {}).saturazioneVerifiche) << "of a table nothing is simplified";
}

TEST_F(RicercaQuantoServe, WithoutDemandOverTimeThereIsNoGoal) {
    rotonda().TipoAnalisi(0);
    const Timbro timbro = rotonda().timbro();
    const QuantoServe r = cerca(larghezza, {});
    EXPECT_EQ(r.esito, EsitoQuantoServe::senzaDomanda);
    EXPECT_EQ(r.prove, 0);
    EXPECT_EQ(rotonda().timbro(), timbro);
}

TEST_F(RicercaQuantoServe, AProjectThatCannotBeCalculatedIsToldOnce) {
    prove::guastaCurva(finta, 1);
    EXPECT_EQ(cerca(larghezza, {}).esito, EsitoQuantoServe::interrotto);
    EXPECT_EQ(finta.messaggi.mostrati.size(), 1U);
}

TEST_F(RicercaQuantoServe, FaultsOfWhatIsTriedAreNotTold) {
    // e 3.5, v 6: at l = 8 the sharpness is -0.5 and a divisor 0; above it the capacity is negative, below it so large
    // that the balancing does not converge at first.
    studio(1, 1.6F);
    ramo().LarghezzaIngresso(3.5F);
    ramo().SemiLarghezza(6.0F);
    ramo().LunghezzaSvasatura(8.1F);
    const QuantoServe r = cerca(svasatura, {});
    EXPECT_EQ(r.esito, EsitoQuantoServe::trovato);
    EXPECT_TRUE(finta.messaggi.mostrati.empty());
    EXPECT_NEAR(r.misura, aTappeto(svasatura, {}, 7.0, 8.1).value(), 1e-6);
}

TEST_F(RicercaQuantoServe, DemandWithoutCapacityIsNoGoalReached) {
    DatiTraffico& traffico = ramo().theDatiTraffico();
    for (std::int16_t k = 1; k <= 4; ++k) {
        traffico.SetIterazione(k, {.Flusso = 1.0F, .Capacita = -10.0F});
    }
    EXPECT_FALSE(statoDi(traffico).regolare);
    EXPECT_FALSE(raggiunto(statoDi(traffico), {}));
    EXPECT_FALSE(raggiunto(statoDi(traffico), {.livello = "E"}));
    for (std::int16_t k = 1; k <= 4; ++k) {
        traffico.SetIterazione(k, {.Flusso = 0.0F, .Capacita = -10.0F});
    }
    EXPECT_TRUE(raggiunto(statoDi(traffico), {}));
}

TEST_F(RicercaQuantoServe, TheWorstSegmentCounts) {
    DatiTraffico& traffico = ramo().theDatiTraffico();
    const Iterazione record[] = {{.Flusso = 1.0F, .Capacita = 900.0F, .Coeff_Sat = 0.4F, .Ritardo = 14.0F},
                                 {.Flusso = 2.0F, .Capacita = 900.0F, .Coeff_Sat = 0.8F, .Ritardo = 15.04F},
                                 {.Flusso = 3.0F, .Capacita = 900.0F, .Coeff_Sat = 0.7F, .Ritardo = 9.0F}};
    for (std::int16_t k = 1; k <= 3; ++k) {
        traffico.SetIterazione(k, record[k - 1]);
    }
    const StatoIngresso stato = statoDi(traffico);
    EXPECT_FLOAT_EQ(static_cast<float>(stato.saturazione), 0.8F);
    EXPECT_TRUE(raggiunto(stato, {.saturazione = 0.81}));
    EXPECT_FALSE(raggiunto(stato, {.saturazione = 0.79}));
    // 15.04 is shown as 15.0, which is still B.
    EXPECT_TRUE(raggiunto(stato, {.livello = "B"}));
    EXPECT_FALSE(raggiunto(stato, {.livello = "A"}));
    EXPECT_TRUE(raggiunto(stato, {.saturazione = 0.1, .livello = "C"}));
}

TEST_F(RicercaQuantoServe, TheProjectIsNotAlteredAndItsRecordsAreStampedWhatIf) {
    studio(2, 1.5F);
    const std::string prima = rotonda().TestoFile();
    cerca(larghezza, {});
    EXPECT_EQ(rotonda().TestoFile(), prima);
    EXPECT_EQ(rotonda().timbro().forma, FormaCalcolo::ipotesi);
}

TEST(CercaVerso, FindsTheBorderOfAHalfLineOnBothSides) {
    for (const std::int64_t confine : {1, 2, 49, 50, 51, 99, 100, 101, 157, 1234, 99999, 100000}) {
        int prove = 0;
        const auto oltre = [&](std::int64_t n) {
            ++prove;
            return n >= 1000 + confine;
        };
        EXPECT_EQ(cercaVerso(1000, 101000, 1, oltre), 1000 + confine);
        EXPECT_LT(prove, 520);
        EXPECT_EQ(cercaVerso(1000, -99000, -1, [&](std::int64_t n) { return n <= 1000 - confine; }), 1000 - confine);
    }
    EXPECT_EQ(cercaVerso(0, 100000, 1, [](std::int64_t) { return false; }), std::nullopt);
    EXPECT_EQ(cercaVerso(5, 5, 1, [](std::int64_t) { return true; }), std::nullopt);
    EXPECT_EQ(cercaVerso(5, 4, 1, [](std::int64_t) { return true; }), std::nullopt);
    // Of 10^10 hundredths few are tried.
    int prove = 0;
    EXPECT_EQ(cercaVerso(0, 10000000000, 1, [&](std::int64_t n) { return ++prove > 0 && n == 10000000000; }),
              10000000000);
    EXPECT_LT(prove, 1100);
}

TEST(CercaVerso, AnswersANumberThatReachesWhereThereAreSeveralPlaces) {
    // A narrow place near by, inside the first unit, and a wide one behind it.
    const auto due = [](std::int64_t n) { return (n >= 40 && n <= 42) || n >= 5000; };
    EXPECT_EQ(cercaVerso(0, 100000, 1, due), 40);
    // A place narrower than the distances there may be passed over; what is answered is a border all the same.
    const auto stretto = [](std::int64_t n) { return n == 3001 || n >= 5000; };
    const auto trovato = cercaVerso(0, 100000, 1, stretto);
    ASSERT_TRUE(trovato);
    EXPECT_TRUE(stretto(*trovato));
    EXPECT_FALSE(stretto(*trovato - 1));
}

TEST(ParoleQuantoServe, SayWhatIsNeeded) {
    QuantoServe r{.esito = EsitoQuantoServe::trovato, .attuale = 5.0, .misura = 6.35, .minimo = 3.1, .massimo = 16.2};
    EXPECT_EQ(paroleQuantoServe(r, 0, {}),
              "Larghezza ingresso: da 5,00 m a 6,35 m (+1,35 m) per un coefficiente di saturazione di 0,85");
    EXPECT_EQ(
        paroleQuantoServe({.esito = EsitoQuantoServe::trovato, .attuale = 30.0, .misura = 12.5}, 3, {.livello = "C"}),
        "Angolo di conflitto: da 30,00° a 12,50° (-17,50°) per il livello di servizio C");
    r.esito = EsitoQuantoServe::nessuno;
    EXPECT_EQ(paroleQuantoServe(r, 0, {}),
              "Larghezza ingresso: nessun valore tra 3,10 m e 16,20 m porta l'ingresso a un coefficiente di "
              "saturazione di 0,85");
    EXPECT_EQ(paroleQuantoServe(r, 0, {.livello = "C"}),
              "Larghezza ingresso: nessun valore tra 3,10 m e 16,20 m porta l'ingresso al livello di servizio C");
    EXPECT_EQ(paroleQuantoServe({.esito = EsitoQuantoServe::nessuno, .minimo = 20.01, .massimo = 16.2}, 0, {}),
              "Larghezza ingresso: con le altre misure dell'ingresso nessun valore è ammesso");
    EXPECT_EQ(paroleQuantoServe({.esito = EsitoQuantoServe::nessuno, .minimo = 1.0, .massimo = 1e8}, 2, {}),
              "Lunghezza svasatura: nessun valore da 1,00 m in su porta l'ingresso a un coefficiente di saturazione di "
              "0,85");
    r.esito = EsitoQuantoServe::giaRaggiunto;
    EXPECT_EQ(paroleQuantoServe(r, 0, {.livello = "B"}), "L'ingresso raggiunge già il livello di servizio B");
    r.esito = EsitoQuantoServe::senzaDomanda;
    EXPECT_EQ(paroleQuantoServe(r, 0, {}),
              "L'analisi della sola saturazione non ha una domanda nel tempo: non c'è un obiettivo da raggiungere");
    r.esito = EsitoQuantoServe::senzaFlusso;
    EXPECT_EQ(paroleQuantoServe(r, 0, {}), "L'ingresso non ha flussi nel tempo: non c'è un obiettivo da raggiungere");
    r.esito = EsitoQuantoServe::interrotto;
    EXPECT_EQ(paroleQuantoServe(r, 0, {}), "Il calcolo del progetto così com'è non riesce");
}

}  // namespace
}  // namespace kelvo
