// Ribbons of flows: as wide as they are large, side by side, from entry to exit on the carriageway.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

#include "pianta/Pianta.h"
#include "progetti.h"

namespace kelvo::pianta {
namespace {

using prove::ramoUsuale;
using prove::uguali;
using Flussi = std::vector<std::vector<float>>;

Flussi nulli(int rami) {
    return Flussi(static_cast<std::size_t>(rami), std::vector<float>(static_cast<std::size_t>(rami), 0.0F));
}

Flussi tutti(int rami, float valore) {
    return Flussi(static_cast<std::size_t>(rami), std::vector<float>(static_cast<std::size_t>(rami), valore));
}

std::vector<Area> nastri(const Pianta& pianta) {
    std::vector<Area> trovati;
    std::copy_if(pianta.aree.begin(), pianta.aree.end(), std::back_inserter(trovati),
                 [](const Area& a) { return a.ruolo == Ruolo::flusso; });
    return trovati;
}

const Area& nastro(const std::vector<Area>& tutti, const std::string& nome) {
    const auto trovato = std::find_if(tutti.begin(), tutti.end(), [&](const Area& a) { return a.nome == nome; });
    if (trovato == tutti.end()) {
        throw std::runtime_error("no " + nome);
    }
    return *trovato;
}

/// A border runs along the right edge, over the tip, and back along the left one: its points face each other.
double largo(const Area& area) {
    return norma(area.contorno.front().p - area.contorno.back().p);
}

std::vector<Punto> mezzo(const Area& area) {
    std::vector<Punto> catena;
    for (std::size_t k = 0; k < area.contorno.size() / 2; ++k) {
        catena.push_back((area.contorno[k].p + area.contorno[area.contorno.size() - 1 - k].p) * 0.5);
    }
    return catena;
}

TEST(Flussi, ARibbonIsAsWideAsItsFlowIsLargeAllAlong) {
    Flussi flussi = nulli(4);
    flussi[0][1] = 100.0F;
    flussi[0][2] = 250.0F;
    flussi[3][2] = 25.0F;
    flussi[2][1] = 400.0F;
    const auto trovati = nastri(costruisci(uguali(4, ramoUsuale()), {.flussi = flussi}));
    ASSERT_EQ(trovati.size(), 4U);
    const double unita = largo(nastro(trovati, "flusso A-B")) / 100.0;
    EXPECT_GT(unita, 0.0);
    EXPECT_NEAR(largo(nastro(trovati, "flusso A-C")), 250.0 * unita, 1e-9);
    EXPECT_NEAR(largo(nastro(trovati, "flusso D-C")), 25.0 * unita, 1e-9);
    EXPECT_NEAR(largo(nastro(trovati, "flusso C-B")), 400.0 * unita, 1e-9);
    for (const Area& area : trovati) {
        for (std::size_t k = 0; k < area.contorno.size() / 2; ++k) {
            const Vertice& destra = area.contorno[k];
            const Vertice& sinistra = area.contorno[area.contorno.size() - 1 - k];
            EXPECT_NEAR(norma(destra.p - sinistra.p), largo(area), 1e-9) << area.nome << " " << k;
        }
    }
}

TEST(Flussi, TheUnitDoesNotMatterOnlyTheProportion) {
    const auto percento = nastri(costruisci(uguali(3, ramoUsuale()), {.flussi = tutti(3, 50.0F)}));
    const auto veicoli = nastri(costruisci(uguali(3, ramoUsuale()), {.flussi = tutti(3, 1200.0F)}));
    ASSERT_EQ(percento.size(), 6U);
    ASSERT_EQ(veicoli.size(), 6U);
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(percento[i].nome, veicoli[i].nome);
        EXPECT_NEAR(largo(percento[i]), largo(veicoli[i]), 1e-9);
    }
}

TEST(Flussi, NothingThatIsNoFlowHasARibbon) {
    constexpr float infinito = std::numeric_limits<float>::infinity();
    constexpr float nonNumero = std::numeric_limits<float>::quiet_NaN();
    Flussi flussi = nulli(4);
    flussi[0] = {70.0F, 0.0F, -5.0F, infinito};  // from A to itself, none, less than none
    flussi[1] = {nonNumero, 30.0F, 0.0F, 8.0F};
    const Pianta p = costruisci(uguali(4, ramoUsuale()), {.flussi = flussi});
    const auto trovati = nastri(p);
    ASSERT_EQ(trovati.size(), 1U);
    EXPECT_EQ(trovati[0].nome, "flusso B-D");
    EXPECT_EQ(trovati[0].ramo, 2);
}

TEST(Flussi, WithoutAnyFlowThePlanIsThatWithoutFlows) {
    const Pianta senza = costruisci(uguali(5, ramoUsuale()));
    for (const Flussi& flussi : {nulli(5), Flussi{}, Flussi{{}, {0.0F}}}) {
        const Pianta p = costruisci(uguali(5, ramoUsuale()), {.flussi = flussi});
        EXPECT_TRUE(nastri(p).empty());
        EXPECT_EQ(p.aree.size(), senza.aree.size());
        EXPECT_EQ(p.anello, senza.anello);
        EXPECT_EQ(p.note, senza.note);
    }
    EXPECT_TRUE(std::any_of(senza.aree.begin(), senza.aree.end(),
                            [](const Area& a) { return a.ruolo == Ruolo::frecciaAnello; }));
}

TEST(Flussi, WithFlowsTheArrowsGiveWayAndANoteTellsHowToReadThem) {
    const Pianta p = costruisci(uguali(3, ramoUsuale()), {.flussi = tutti(3, 10.0F)});
    EXPECT_FALSE(std::any_of(p.aree.begin(), p.aree.end(), [](const Area& a) {
        return a.ruolo == Ruolo::freccia || a.ruolo == Ruolo::frecciaAnello;
    }));
    ASSERT_EQ(p.note.size(), 2U);
    EXPECT_EQ(p.note[0], marchio);
    EXPECT_EQ(p.note[1], "flussi: larghezza in proporzione al valore, colore del ramo di origine");
    EXPECT_EQ(nomeRuolo(Ruolo::flusso), "flusso");
}

TEST(Flussi, ARibbonLeadsFromItsEntryCounterClockwiseToItsExit) {
    const Pianta p = costruisci(uguali(4, ramoUsuale()), {.flussi = tutti(4, 10.0F)});
    const auto trovati = nastri(p);
    ASSERT_EQ(trovati.size(), 12U);
    for (std::size_t da = 0; da < 4; ++da) {
        for (std::size_t giro = 1; giro < 4; ++giro) {
            const std::size_t a = (da + giro) % 4;
            const Area& area = nastro(trovati, std::string{"flusso "} + lettera(static_cast<int>(da) + 1) + "-" +
                                                   lettera(static_cast<int>(a) + 1));
            const std::vector<Punto> via = mezzo(area);
            const Punto inizio = ruotato(via.front(), -p.rami[da].direzione);
            const Punto fine = ruotato(via.back(), -p.rami[a].direzione);
            EXPECT_GT(inizio.x, 0) << area.nome;  // on the right of its leg
            EXPECT_LT(inizio.x, 3.75) << area.nome;
            EXPECT_LT(inizio.y, -p.R) << area.nome;
            EXPECT_LT(fine.x, 0) << area.nome;  // on the left of the other
            EXPECT_GT(fine.x, -3.75) << area.nome;
            EXPECT_LT(fine.y, -p.R) << area.nome;
            double girato = 0;
            for (std::size_t k = 1; k < via.size(); ++k) {
                girato += std::atan2(vettoriale(via[k - 1], via[k]), scalare(via[k - 1], via[k]));
            }
            // From lane to lane: a little less than the angle between the two legs.
            EXPECT_GT(girato, pi / 2 * static_cast<double>(giro) - 0.4) << area.nome;
            EXPECT_LT(girato, pi / 2 * static_cast<double>(giro)) << area.nome;
        }
    }
}

TEST(Flussi, ThoseOfAnEntryLieSideBySideTheNextExitRightmost) {
    Flussi flussi = nulli(5);
    flussi[0] = {0.0F, 10.0F, 40.0F, 20.0F, 30.0F};
    const auto trovati = nastri(costruisci(uguali(5, ramoUsuale()), {.flussi = flussi}));
    ASSERT_EQ(trovati.size(), 4U);
    for (std::size_t i = 0; i + 1 < trovati.size(); ++i) {
        EXPECT_EQ(trovati[i].nome, std::string{"flusso A-"} + lettera(static_cast<int>(i) + 2));
        // The left edge of one is the right edge of the next.
        EXPECT_NEAR(norma(trovati[i].contorno.back().p - trovati[i + 1].contorno.front().p), 0, 1e-6);
        EXPECT_GT(trovati[i].contorno.front().p.x, trovati[i].contorno.back().p.x);
    }
}

TEST(Flussi, InTheRingTheOriginThatEnteredLastLiesOutermost) {
    DatiRamo ramo = ramoUsuale();
    ramo.diametroInscritto = 90;
    const Pianta p = costruisci(uguali(4, ramo), {.flussi = tutti(4, 10.0F)});
    const auto trovati = nastri(p);
    // Halfway between A and B, 45 degrees from the downward axis; those that go on past there, from without.
    double fuori = p.R;
    for (const char* nome : {"flusso A-C", "flusso A-D", "flusso D-B", "flusso D-C", "flusso C-B"}) {
        const std::vector<Punto> via = mezzo(nastro(trovati, nome));
        const Punto vicino = *std::min_element(via.begin(), via.end(), [](Punto a, Punto b) {
            return std::abs(azimut(a) - pi / 4) < std::abs(azimut(b) - pi / 4);
        });
        EXPECT_LT(norma(vicino), fuori) << nome;
        fuori = norma(vicino);
    }
    EXPECT_GT(fuori, p.R - p.anello);
}

TEST(Flussi, TheRingGrowsForThemAndTheyStayWithinIt) {
    for (int rami = 3; rami <= 7; ++rami) {
        DatiRamo ramo = ramoUsuale();
        ramo.diametroInscritto = 75;
        const Pianta senza = costruisci(uguali(rami, ramo));
        const Pianta p = costruisci(uguali(rami, ramo), {.flussi = tutti(rami, 30.0F)});
        EXPECT_GE(p.anello, senza.anello);
        EXPECT_LE(p.anello, std::max(senza.anello, 0.5 * p.R));
        for (const Area& area : nastri(p)) {
            for (const Vertice& v : area.contorno) {
                EXPECT_GT(norma(v.p), p.R - p.anello) << rami << " " << area.nome;
            }
        }
    }
    DatiRamo largo = ramoUsuale();
    largo.diametroInscritto = 75;
    EXPECT_GT(costruisci(uguali(7, largo), {.flussi = tutti(7, 1.0F)}).anello, costruisci(uguali(7, largo)).anello);
}

TEST(Flussi, ALaneHoldsWhatPassesThroughIt) {
    std::mt19937 caso(11);
    for (int rami = 3; rami <= 7; ++rami) {
        Flussi flussi = nulli(rami);
        for (auto& riga : flussi) {
            std::generate(riga.begin(), riga.end(), [&] { return static_cast<float>(caso() % 900); });
        }
        const Pianta p = costruisci(uguali(rami, ramoUsuale()), {.flussi = flussi});
        std::vector<double> entra(static_cast<std::size_t>(rami), 0.0);
        for (const Area& area : nastri(p)) {
            entra[static_cast<std::size_t>(area.ramo) - 1] += largo(area);
        }
        for (std::size_t i = 0; i < entra.size(); ++i) {
            EXPECT_LT(entra[i], p.rami[i].ingresso.semi) << rami;
        }
    }
}

TEST(Flussi, TheMovementAtHandIsItsRibbonAndAPathWhereItHasNone) {
    Flussi flussi = nulli(4);
    flussi[0][2] = 12.0F;
    const auto percorsi = [](const Pianta& p) {
        return std::count_if(p.linee.begin(), p.linee.end(), [](const Linea& l) { return l.ruolo == Ruolo::percorso; });
    };
    const Pianta con = costruisci(uguali(4, ramoUsuale()), {.movimento = Movimento{1, 3}, .flussi = flussi});
    EXPECT_TRUE(nastri(con).at(0).corrente);
    EXPECT_EQ(percorsi(con), 0);
    const Pianta altro = costruisci(uguali(4, ramoUsuale()), {.movimento = Movimento{3, 1}, .flussi = flussi});
    EXPECT_FALSE(nastri(altro).at(0).corrente);
    EXPECT_EQ(percorsi(altro), 1);
}

TEST(Flussi, LettersOfTheMovementAtHandAreMarked) {
    const Pianta p = costruisci(uguali(4, ramoUsuale()), {.movimento = Movimento{2, 4}});
    for (const Testo& testo : p.testi) {
        if (testo.ruolo == Ruolo::lettera) {
            EXPECT_EQ(testo.corrente, testo.ramo == 2 || testo.ramo == 4) << testo.testo;
        }
    }
    EXPECT_TRUE(std::none_of(p.aree.begin(), p.aree.end(), [](const Area& a) { return a.corrente; }));
}

TEST(Flussi, AnyMeasuresAndAnyFlowsGiveSoundRibbons) {
    std::mt19937 caso(5);
    for (int prova = 0; prova < 200 && !testing::Test::HasFailure(); ++prova) {
        DatiPianta dati;
        const int rami = 3 + prova % 5;
        Flussi flussi = nulli(rami);
        for (int i = 0; i < rami; ++i) {
            dati.rami.push_back(prove::ramoACaso(caso));
            for (float& valore : flussi[static_cast<std::size_t>(i)]) {
                valore = caso() % 3 == 0 ? 0.0F : static_cast<float>(caso() % 32768);
            }
        }
        const Pianta p = costruisci(dati, {.vista = prova % 2 == 0 ? Vista::intera : Vista::primoPiano,
                                           .movimento = Movimento{1, 2},
                                           .flussi = flussi});
        for (const Area& area : nastri(p)) {
            EXPECT_GT(largo(area), 0.0) << area.nome;
            for (const Vertice& v : area.contorno) {
                EXPECT_TRUE(std::isfinite(v.p.x) && std::isfinite(v.p.y)) << area.nome;
            }
        }
    }
    const float massimo = std::numeric_limits<float>::max();
    const auto enormi = nastri(costruisci(uguali(7, ramoUsuale()), {.flussi = tutti(7, massimo)}));
    ASSERT_EQ(enormi.size(), 42U);
    EXPECT_GT(largo(enormi[0]), 0.05);
}

}  // namespace
}  // namespace kelvo::pianta
