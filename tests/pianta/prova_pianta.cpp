// The whole plan: sound for every measure that a field allows, true to the numbers, the same for equal legs.

#include "pianta/Pianta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

#include "base/guasto.h"
#include "model/Rotonda.h"
#include "progetti.h"

namespace kelvo::pianta {
namespace {

using prove::ramoUsuale;
using prove::uguali;

bool finito(const Tracciato& via) {
    return std::all_of(via.begin(), via.end(), [](const Vertice& v) {
        return std::isfinite(v.p.x) && std::isfinite(v.p.y) && std::isfinite(v.bombatura);
    });
}

const Linea& linea(const Pianta& pianta, Ruolo ruolo, int ramo) {
    return *std::find_if(pianta.linee.begin(), pianta.linee.end(),
                         [&](const Linea& l) { return l.ruolo == ruolo && l.ramo == ramo; });
}

const Area& area(const Pianta& pianta, Ruolo ruolo, int ramo) {
    return *std::find_if(pianta.aree.begin(), pianta.aree.end(),
                         [&](const Area& a) { return a.ruolo == ruolo && a.ramo == ramo; });
}

std::string descrivi(const DatiPianta& dati) {
    std::string testo = std::to_string(dati.rami.size()) + " legs";
    for (const DatiRamo& r : dati.rami) {
        testo += "\n  e " + std::to_string(r.larghezzaIngresso) + " v " + std::to_string(r.semiLarghezza) + " l " +
                 std::to_string(r.lunghezzaSvasatura) + " phi " + std::to_string(r.angoloConflitto) + " r " +
                 std::to_string(r.raggioIngresso) + " D " + std::to_string(r.diametroInscritto);
    }
    return testo;
}

void tuttoFinito(const Pianta& p) {
    for (const Area& a : p.aree) {
        EXPECT_TRUE(finito(a.contorno) && finito(a.foro)) << a.nome;
        EXPECT_GE(a.contorno.size(), 2U) << a.nome;
    }
    for (const Linea& l : p.linee) {
        EXPECT_TRUE(finito(l.tracciato)) << l.nome;
    }
    for (const Quota& q : p.quote) {
        EXPECT_TRUE(finito(q.richiamo)) << q.nome;
        EXPECT_TRUE(std::isfinite(q.testo.x) && std::isfinite(q.testo.y) && std::isfinite(q.misurata)) << q.nome;
        EXPECT_TRUE(std::all_of(q.linee.begin(), q.linee.end(), finito)) << q.nome;
        EXPECT_TRUE(std::all_of(q.riferimenti.begin(), q.riferimenti.end(), finito)) << q.nome;
    }
    for (const Testo& t : p.testi) {
        EXPECT_TRUE(std::isfinite(t.punto.x) && std::isfinite(t.punto.y) && t.altezza > 0) << t.testo;
    }
    EXPECT_GT(p.vista.larghezza(), 0);
    EXPECT_GT(p.vista.altezza(), 0);
    EXPECT_LT(p.vista.larghezza(), 3000);
}

/// The kerb goes from the end of a leg to the end of the next one, never within the circle, without a jump.
void cordoliSani(const Pianta& p) {
    for (int ramo = 1; ramo <= static_cast<int>(p.rami.size()); ++ramo) {
        const auto catena = spezzata(linea(p, Ruolo::cordolo, ramo).tracciato, false);
        for (std::size_t i = 0; i < catena.size(); ++i) {
            EXPECT_GT(norma(catena[i]), p.R * (1 - 1e-9)) << "leg " << ramo;
        }
        const auto indice = static_cast<std::size_t>(ramo) - 1;
        const auto prossimo = static_cast<std::size_t>(ramo) % p.rami.size();
        const Punto inizio = ruotato({p.rami[indice].ingresso.semi, -p.lunghezzaRami}, p.rami[indice].direzione);
        const Punto fine = ruotato({-p.rami[prossimo].uscita.semi, -p.lunghezzaRami}, p.rami[prossimo].direzione);
        EXPECT_NEAR(norma(catena.front() - inizio), 0, 1e-6);
        EXPECT_NEAR(norma(catena.back() - fine), 0, 1e-6);
    }
}

/// Every area is closed by one way that crosses nothing of itself, and what lies on the asphalt lies within it.
void areeSane(const Pianta& p) {
    for (const Area& a : p.aree) {
        const auto catena = spezzata(a.contorno, true, 0.1);
        EXPECT_FALSE(prove::siIncrocia(catena)) << a.nome;
        EXPECT_GT(std::abs(superficie(a.contorno)), 1e-4) << a.nome;
    }
}

/// The entry width of the drawing, by brute force on the drawn kerb, is the number asked for; where it is not, the plan
/// says so.
void larghezzeVere(const Pianta& p, const DatiPianta& dati) {
    for (std::size_t i = 0; i < p.rami.size(); ++i) {
        constexpr double passo = 2e-3;
        const auto catena = spezzata(linea(p, Ruolo::cordolo, static_cast<int>(i) + 1).tracciato, false, passo);
        // What a chain stands off from the arc that it follows.
        const double freccia = p.rami[i].ingresso.raggio * passo * passo / 8;
        const Punto angolo = ruotato(p.rami[i].ingresso.angolo, p.rami[i].direzione);
        const double disegnata = prove::distanza(angolo, catena);
        EXPECT_NEAR(disegnata, p.rami[i].ingresso.larghezza, 1e-6 + freccia) << "leg " << i;
        EXPECT_NEAR(norma(p.rami[i].ingresso.piede - p.rami[i].ingresso.angolo), p.rami[i].ingresso.larghezza, 1e-9);
        const bool vera = std::abs(p.rami[i].ingresso.larghezza - dati.rami[i].larghezzaIngresso) <= 1e-6;
        EXPECT_EQ(vera, p.rami[i].inScala[0]) << "leg " << i;
        EXPECT_LE(p.rami[i].ingresso.larghezza, dati.rami[i].larghezzaIngresso + 1e-6);
    }
}

void sana(const DatiPianta& dati, const OpzioniPianta& opzioni = {}) {
    SCOPED_TRACE(descrivi(dati));
    const Pianta p = costruisci(dati, opzioni);
    tuttoFinito(p);
    cordoliSani(p);
    areeSane(p);
    larghezzeVere(p, dati);
}

TEST(Pianta, IsSoundOverAGridOfMeasures) {
    int rami = 3;
    for (const double D : {13.5, 25.0, 40.0, 80.0, 176.0}) {
        for (const double e : {3.6, 5.0, 9.0, 16.3}) {
            for (const double v : {1.9, 3.75, 12.5}) {
                for (const double r : {3.4, 25.0, 1000.0}) {
                    for (const double l : {1.0, 20.0, 100.0}) {
                        sana(uguali(rami, {.nome = "Ramo",
                                           .larghezzaIngresso = e,
                                           .semiLarghezza = v,
                                           .lunghezzaSvasatura = l,
                                           .angoloConflitto = 25,
                                           .raggioIngresso = r,
                                           .diametroInscritto = D,
                                           .attraversamentoPedonale = true}));
                        rami = rami == 7 ? 3 : rami + 1;
                        if (testing::Test::HasFailure()) {
                            return;
                        }
                    }
                }
            }
        }
    }
}

TEST(Pianta, IsSoundForProjectsAtRandom) {
    std::mt19937 caso(20260101);
    for (int prova = 0; prova < 250 && !testing::Test::HasFailure(); ++prova) {
        DatiPianta dati;
        const int rami = 3 + prova % 5;
        for (int i = 0; i < rami; ++i) {
            dati.rami.push_back(prove::ramoACaso(caso));
        }
        sana(dati);
    }
}

TEST(Pianta, CloseUpsAndDimensionsAreSoundForProjectsAtRandom) {
    std::mt19937 caso(7);
    for (int prova = 0; prova < 300 && !testing::Test::HasFailure(); ++prova) {
        DatiPianta dati;
        const int rami = 3 + prova % 5;
        for (int i = 0; i < rami; ++i) {
            dati.rami.push_back(prove::ramoACaso(caso));
        }
        SCOPED_TRACE(descrivi(dati));
        const OpzioniPianta opzioni{.vista = prova % 2 == 0 ? Vista::intera : Vista::primoPiano,
                                    .ramo = 1 + prova % rami,
                                    .misura = static_cast<Misura>(prova % 6),
                                    .movimento = Movimento{1 + prova % rami, 1 + (prova / 3) % rami}};
        const Pianta p = costruisci(dati, opzioni);
        tuttoFinito(p);
        ASSERT_FALSE(p.quote.empty());
        EXPECT_EQ(std::count_if(p.quote.begin(), p.quote.end(), [](const Quota& q) { return q.evidenziata; }), 1);
        for (const Quota& q : p.quote) {
            EXPECT_GE(q.testo.x, p.vista.minimo.x);
            EXPECT_LE(q.testo.x, p.vista.massimo.x);
            EXPECT_GE(q.testo.y, p.vista.minimo.y);
            EXPECT_LE(q.testo.y, p.vista.massimo.y);
        }
    }
}

TEST(Pianta, SurvivesMeasuresThatNoFieldAllows) {
    for (const double valore : {0.0, -5.0, 1e30, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        for (std::size_t m = 0; m < numeroMisure; ++m) {
            DatiRamo ramo = ramoUsuale();
            const std::array campi{&ramo.larghezzaIngresso, &ramo.semiLarghezza,  &ramo.lunghezzaSvasatura,
                                   &ramo.angoloConflitto,   &ramo.raggioIngresso, &ramo.diametroInscritto};
            *campi[m] = valore;
            SCOPED_TRACE(m);
            const Pianta p =
                costruisci(uguali(4, ramo), {.vista = Vista::primoPiano, .ramo = 2, .misura = static_cast<Misura>(m)});
            tuttoFinito(p);
            EXPECT_EQ(p.rami[1].inScala[m], m == 3 && valore == 0.0);
        }
    }
}

TEST(Pianta, UsualMeasuresAreAllToScale) {
    for (int rami = 3; rami <= 4; ++rami) {
        const Pianta p = costruisci(uguali(rami, ramoUsuale()));
        for (const RamoDisegnato& ramo : p.rami) {
            for (const bool inScala : ramo.inScala) {
                EXPECT_TRUE(inScala);
            }
        }
        EXPECT_EQ(p.note, std::vector<std::string>{std::string(marchio)});
    }
}

TEST(Pianta, EqualLegsGiveAPlanThatTurnsIntoItself) {
    for (int rami = 3; rami <= 7; ++rami) {
        const Pianta p = costruisci(uguali(rami, ramoUsuale()));
        const double passo = 2 * pi / rami;
        for (const Ruolo ruolo : {Ruolo::ingresso, Ruolo::uscita, Ruolo::isolaDivisionale}) {
            const Tracciato& primo = area(p, ruolo, 1).contorno;
            for (int ramo = 2; ramo <= rami; ++ramo) {
                const Tracciato atteso = ruotato(primo, passo * (ramo - 1));
                const Tracciato& altro = area(p, ruolo, ramo).contorno;
                ASSERT_EQ(atteso.size(), altro.size());
                for (std::size_t k = 0; k < altro.size(); ++k) {
                    EXPECT_NEAR(norma(atteso[k].p - altro[k].p), 0, 1e-9);
                    EXPECT_NEAR(atteso[k].bombatura, altro[k].bombatura, 1e-9);
                }
            }
        }
    }
}

TEST(Pianta, LegAStandsAtTheBottomAndTheOthersFollowCounterClockwise) {
    const Pianta p = costruisci(uguali(4, ramoUsuale()));
    const auto lettera = [&](int ramo) {
        return *std::find_if(p.testi.begin(), p.testi.end(),
                             [&](const Testo& t) { return t.ruolo == Ruolo::lettera && t.ramo == ramo; });
    };
    EXPECT_EQ(lettera(1).testo, "A");
    EXPECT_LT(lettera(1).punto.y, -20);
    EXPECT_EQ(lettera(2).testo, "B");
    EXPECT_GT(lettera(2).punto.x, 20);
    EXPECT_GT(lettera(3).punto.y, 20);
    EXPECT_LT(lettera(4).punto.x, -20);
}

TEST(Pianta, TheEntryStandsOnTheRightOfItsAxis) {
    const Pianta p = costruisci(uguali(4, ramoUsuale()));
    // Leg A is travelled upwards: its right is at positive x.
    for (const Vertice& v : area(p, Ruolo::ingresso, 1).contorno) {
        EXPECT_GE(v.p.x, -1e-9);
    }
    for (const Vertice& v : area(p, Ruolo::uscita, 1).contorno) {
        EXPECT_LE(v.p.x, 1e-9);
    }
}

TEST(Pianta, ArrowsOfTheRingPointCounterClockwise) {
    const Pianta p = costruisci(uguali(3, ramoUsuale()));
    const Tracciato& freccia = area(p, Ruolo::frecciaAnello, 1).contorno;
    // The tip is the fourth vertex, the tail the first: seen from the centre it lies to the left.
    EXPECT_GT(vettoriale(freccia[0].p, freccia[3].p), 0);
}

TEST(Pianta, ACrossingIsDrawnOnlyWhereItsFlagIsTicked) {
    DatiPianta dati = uguali(3, ramoUsuale());
    dati.rami[1].attraversamentoPedonale = false;
    const Pianta p = costruisci(dati);
    const auto strisce = [&](int ramo) {
        return std::count_if(p.aree.begin(), p.aree.end(),
                             [&](const Area& a) { return a.ruolo == Ruolo::attraversamento && a.ramo == ramo; });
    };
    EXPECT_GE(strisce(1), 6);
    EXPECT_EQ(strisce(2), 0);
    EXPECT_GE(strisce(3), 6);
}

TEST(Pianta, PrimitivesCarryTheirNames) {
    const Pianta p = costruisci(uguali(3, ramoUsuale()));
    EXPECT_EQ(area(p, Ruolo::ingresso, 2).nome, "ingresso B");
    EXPECT_EQ(area(p, Ruolo::isolaDivisionale, 3).nome, "isolaDivisionale C");
    EXPECT_EQ(linea(p, Ruolo::cordolo, 3).nome, "cordolo C-A");
    EXPECT_EQ(linea(p, Ruolo::lineaDarePrecedenza, 1).nome, "lineaDarePrecedenza A");
    EXPECT_EQ(nomeRuolo(Ruolo::carreggiata), "carreggiata");
    EXPECT_EQ(nomeRuolo(Ruolo::nota), "nota");
    EXPECT_EQ(p.nomeAccessibile, "Rotatoria a 3 rami");
}

TEST(Pianta, EveryPlanCarriesTheMark) {
    for (const Vista vista : {Vista::intera, Vista::primoPiano}) {
        const Pianta p = costruisci(uguali(5, ramoUsuale()), {.vista = vista});
        EXPECT_TRUE(std::any_of(p.testi.begin(), p.testi.end(), [](const Testo& t) {
            return t.testo == "schema: direzioni dei rami, isole e uscite non di progetto";
        }));
    }
}

TEST(Pianta, WhatIsNotToScaleIsNamed) {
    DatiPianta dati = uguali(4, ramoUsuale());
    dati.rami[1].raggioIngresso = 5000;
    dati.rami[2].diametroInscritto = 50;
    const Pianta p = costruisci(dati);
    ASSERT_EQ(p.note.size(), 3U);
    EXPECT_EQ(p.note[1], "misure non in scala: B r");
    EXPECT_EQ(p.note[2], "diametri diversi tra i rami: disegnato D = 40,00 m");
    const Pianta c = costruisci(dati, {.ramo = 3});
    EXPECT_EQ(c.R, 25);
}

TEST(Pianta, DimensionsMeasureWhatTheySay) {
    const DatiPianta dati = uguali(4, ramoUsuale());
    const std::array attesi{5.0, 3.75, 20.0, 25.0, 25.0, 40.0};
    const std::array valori{"5,00 m", "3,75 m", "20,00 m", "25,00°", "25,00 m", "40,00 m"};
    for (std::size_t m = 0; m < numeroMisure; ++m) {
        for (const Vista vista : {Vista::intera, Vista::primoPiano}) {
            const Pianta p = costruisci(dati, {.vista = vista, .ramo = 2, .misura = static_cast<Misura>(m)});
            const auto quota =
                std::find_if(p.quote.begin(), p.quote.end(), [](const Quota& q) { return q.evidenziata; });
            ASSERT_NE(quota, p.quote.end());
            EXPECT_EQ(quota->misura, static_cast<Misura>(m));
            EXPECT_NEAR(quota->misurata, attesi[m], 1e-6);
            EXPECT_EQ(quota->valore, valori[m]);
            EXPECT_TRUE(quota->inScala);
        }
    }
}

TEST(Pianta, TheAngleIsDrawnAtItsNumber) {
    for (const double phi : {0.0, 10.0, 45.0, 77.0}) {
        DatiRamo ramo = ramoUsuale();
        ramo.angoloConflitto = phi;
        const Pianta p =
            costruisci(uguali(4, ramo), {.vista = Vista::primoPiano, .ramo = 3, .misura = Misura::angoloConflitto});
        const auto quota = std::find_if(p.quote.begin(), p.quote.end(), [](const Quota& q) { return q.evidenziata; });
        ASSERT_NE(quota, p.quote.end());
        ASSERT_EQ(quota->linee.size(), 4U);
        const Punto ingresso = versore(quota->linee[1].back().p - quota->linee[1].front().p);
        const Punto anello = versore(quota->linee[2].back().p - quota->linee[2].front().p);
        EXPECT_NEAR(gradi(std::atan2(vettoriale(anello, ingresso), scalare(anello, ingresso))), phi, 1e-6);
    }
}

TEST(Pianta, ACloseUpTurnsItsLegToTheBottomAndHasItsShape) {
    DatiPianta dati = uguali(5, ramoUsuale());
    dati.rami[3].larghezzaIngresso = 4;
    const Pianta p = costruisci(dati, {.vista = Vista::primoPiano, .ramo = 4, .rapporto = 1.5, .note = false});
    EXPECT_NEAR(p.vista.larghezza() / p.vista.altezza(), 1.5, 1e-9);
    const Area& ingresso = area(p, Ruolo::ingresso, 4);
    EXPECT_TRUE(ingresso.corrente);
    EXPECT_NEAR(ingresso.contorno.front().p.x, 0, 1e-9);
    EXPECT_LT(ingresso.contorno.front().p.y, p.vista.minimo.y);
}

TEST(Pianta, BearingsMayBeGiven) {
    DatiPianta dati = uguali(3, ramoUsuale());
    dati.ipotesi.direzioni = {0, 90, 180};
    const Pianta p = costruisci(dati);
    EXPECT_NEAR(p.rami[1].direzione, pi / 2, 1e-12);
    EXPECT_NEAR(p.rami[2].direzione, pi, 1e-12);
    for (const std::vector<double>& sbagliate :
         {std::vector<double>{0, 10, 180}, std::vector<double>{0, 90}, std::vector<double>{5, 90, 180},
          std::vector<double>{0, 180, 90}, std::vector<double>{0, 90, 350}}) {
        dati.ipotesi.direzioni = sbagliate;
        EXPECT_NEAR(costruisci(dati).rami[1].direzione, 2 * pi / 3, 1e-12);
    }
}

TEST(Pianta, RefusesWhatIsNoRoundabout) {
    EXPECT_THROW(costruisci(uguali(2, ramoUsuale())), Guasto);
    EXPECT_THROW(costruisci(uguali(8, ramoUsuale())), Guasto);
    EXPECT_THROW(costruisci(uguali(4, ramoUsuale()), {.ramo = 5}), Guasto);
    EXPECT_THROW(costruisci({}), Guasto);
}

TEST(Pianta, TakesMeasuresAndNamesFromTheProject) {
    Rotonda rotonda;
    rotonda.NumeroRami(3);
    for (const char* chiave : {"1Ramo", "2Ramo", "3Ramo"}) {
        rotonda.AddRamo(chiave);
    }
    rotonda.Ramo(2).LarghezzaIngresso(6.5F);
    rotonda.Ramo(2).Descrizione("Via Roma");
    rotonda.Ramo(3).AttraversamentoPedonale(true);
    const DatiPianta dati = datiPianta(rotonda);
    ASSERT_EQ(dati.rami.size(), 3U);
    EXPECT_EQ(dati.rami[1].larghezzaIngresso, 6.5);
    EXPECT_EQ(dati.rami[1].nome, "Via Roma");
    EXPECT_TRUE(dati.rami[2].attraversamentoPedonale);
    EXPECT_EQ(dati.rami[0].misura(Misura::diametro), 65.0);
}

TEST(Pianta, LongNamesStandOnTwoLinesAtMost) {
    DatiPianta dati = uguali(3, ramoUsuale());
    dati.rami[0].nome = "Strada provinciale numero sessantadue della Cisa, tratto meridionale";
    dati.rami[1].nome = "Ààààààààààààààààààààààààààààààààààààààààààààààààààààà";
    const Pianta p = costruisci(dati);
    for (const int ramo : {1, 2}) {
        const auto righe = std::count_if(p.testi.begin(), p.testi.end(),
                                         [&](const Testo& t) { return t.ruolo == Ruolo::nome && t.ramo == ramo; });
        EXPECT_EQ(righe, 2);
    }
}

}  // namespace
}  // namespace kelvo::pianta
