// Levels of service and queues of the entries on the plan.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "base/guasto.h"
#include "pianta/Pianta.h"
#include "progetti.h"

namespace kelvo::pianta {
namespace {

using prove::ramoUsuale;
using prove::uguali;

std::vector<StatoIngresso> stati(std::size_t rami, const std::string& livello, double coda) {
    return std::vector<StatoIngresso>(rami, StatoIngresso{livello, coda});
}

template <class F>
std::vector<F> conRuolo(const std::vector<F>& tutte, Ruolo ruolo) {
    std::vector<F> trovate;
    std::copy_if(tutte.begin(), tutte.end(), std::back_inserter(trovate), [&](const F& f) { return f.ruolo == ruolo; });
    return trovate;
}

Punto mezzo(Punto a, Punto b) {
    return (a + b) * 0.5;
}

/// Front and back of a vehicle.
Punto davanti(const Area& veicolo) {
    return mezzo(veicolo.contorno[0].p, veicolo.contorno[3].p);
}
Punto dietro(const Area& veicolo) {
    return mezzo(veicolo.contorno[1].p, veicolo.contorno[2].p);
}

/// Even-odd rule on a chain of points.
bool dentro(Punto p, const std::vector<Punto>& catena) {
    bool in = false;
    for (std::size_t i = 0, j = catena.size() - 1; i < catena.size(); j = i++) {
        const Punto a = catena[i];
        const Punto b = catena[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x) {
            in = !in;
        }
    }
    return in;
}

TEST(Stati, APlanWithoutStatesHasNoneOfTheirShapes) {
    const Pianta p = costruisci(uguali(4, ramoUsuale()));
    EXPECT_TRUE(p.stati.empty());
    EXPECT_TRUE(conRuolo(p.aree, Ruolo::coda).empty());
    EXPECT_TRUE(conRuolo(p.testi, Ruolo::livello).empty());
    EXPECT_EQ(nomeRuolo(Ruolo::coda), "coda");
    EXPECT_EQ(nomeRuolo(Ruolo::oltreCoda), "oltreCoda");
}

TEST(Stati, EachQueuedVehicleTakesSixMetresBackFromTheGiveWayLine) {
    OpzioniPianta opzioni;
    opzioni.stati = stati(4, "B", 0.0);
    opzioni.stati[1].coda = 3.5;
    const Pianta p = costruisci(uguali(4, ramoUsuale()), opzioni);
    const std::vector<Area> veicoli = conRuolo(p.aree, Ruolo::coda);
    ASSERT_EQ(veicoli.size(), 4U);  // three and a half
    for (const Area& veicolo : veicoli) {
        EXPECT_EQ(veicolo.ramo, 2);
        EXPECT_EQ(veicolo.nome, "coda B");
        EXPECT_EQ(veicolo.contorno.size(), 4U);
    }
    EXPECT_NEAR(norma(davanti(veicoli[0])), p.R, 1.0);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(norma(dietro(veicoli[k]) - davanti(veicoli[k])), 4.8, 0.05) << k;
        EXPECT_NEAR(norma(davanti(veicoli[k + 1]) - davanti(veicoli[k])), 6.0, 0.05) << k;
        EXPECT_GT(norma(dietro(veicoli[k])), norma(davanti(veicoli[k])));
    }
    EXPECT_NEAR(norma(dietro(veicoli[3]) - davanti(veicoli[3])), 3.0 - 0.6, 0.05);  // its queue ends at 21 m
    EXPECT_TRUE(conRuolo(p.linee, Ruolo::taglioCoda).empty());
    EXPECT_TRUE(conRuolo(p.testi, Ruolo::oltreCoda).empty());
}

TEST(Stati, VehiclesStandOnTheLaneOfTheirEntry) {
    for (const int rami : {3, 5, 7}) {
        OpzioniPianta opzioni;
        opzioni.stati = stati(static_cast<std::size_t>(rami), "C", 4.0);
        const Pianta p = costruisci(uguali(rami, ramoUsuale()), opzioni);
        for (const Area& veicolo : conRuolo(p.aree, Ruolo::coda)) {
            const std::vector<Area> corsie = conRuolo(p.aree, Ruolo::ingresso);
            const std::vector<Punto> corsia =
                spezzata(corsie[static_cast<std::size_t>(veicolo.ramo) - 1].contorno, true);
            EXPECT_TRUE(dentro(mezzo(davanti(veicolo), dietro(veicolo)), corsia)) << rami << veicolo.nome;
            EXPECT_TRUE(dentro(dietro(veicolo), corsia)) << rami << veicolo.nome;
        }
    }
}

TEST(Stati, AQueueLongerThanItsLegIsCutWithASignAndTellsTheRest) {
    OpzioniPianta opzioni;
    opzioni.stati = stati(4, "F", 0.0);
    opzioni.stati[0].coda = 57.25;
    const Pianta p = costruisci(uguali(4, ramoUsuale()), opzioni);
    const std::vector<Area> veicoli = conRuolo(p.aree, Ruolo::coda);
    const std::vector<Linea> taglio = conRuolo(p.linee, Ruolo::taglioCoda);
    const std::vector<Testo> oltre = conRuolo(p.testi, Ruolo::oltreCoda);
    ASSERT_EQ(taglio.size(), 2U);
    ASSERT_EQ(oltre.size(), 1U);
    const std::string atteso = "+" + std::to_string(57 - static_cast<int>(veicoli.size())) + ",3 veic";
    EXPECT_EQ(oltre[0].testo, atteso);
    EXPECT_EQ(oltre[0].ramo, 1);
    for (const Area& veicolo : veicoli) {
        EXPECT_NEAR(norma(dietro(veicolo) - davanti(veicolo)), 4.8, 0.05);
        EXPECT_GT(davanti(veicolo).y, -p.lunghezzaRami);
        EXPECT_GT(dietro(veicolo).y, -p.lunghezzaRami + 2.0) << "the sign has its room";
    }
    for (const Linea& segno : taglio) {
        EXPECT_LT(segno.tracciato[0].p.y, dietro(veicoli.back()).y);
        EXPECT_GE(segno.tracciato[0].p.y, -p.lunghezzaRami);
    }
}

TEST(Stati, TheLevelStandsInTheRingBeforeItsEntry) {
    OpzioniPianta opzioni;
    opzioni.stati = stati(5, "A", 0.0);
    opzioni.stati[3].livello = "-";
    const Pianta p = costruisci(uguali(5, ramoUsuale()), opzioni);
    const std::vector<Testo> livelli = conRuolo(p.testi, Ruolo::livello);
    ASSERT_EQ(livelli.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(livelli[i].testo, i == 3 ? "-" : "A");
        EXPECT_EQ(livelli[i].ramo, static_cast<int>(i) + 1);
        const double distanza = norma(livelli[i].punto);
        EXPECT_LT(distanza, p.R);
        EXPECT_GT(distanza, p.R - p.anello);
        // On the entry's side of its leg, and nearer to it than to the next one.
        const double giro = std::remainder(azimut(livelli[i].punto) - p.rami[i].direzione, 2 * pi);
        EXPECT_GT(giro, 0.0) << i;
        EXPECT_LT(giro, pi / 5) << i;
    }
}

TEST(Stati, OtherStatesChangeNothingElse) {
    const DatiPianta dati = uguali(7, ramoUsuale());
    OpzioniPianta opzioni;
    opzioni.stati = stati(7, "A", 1.0);
    Pianta p = costruisci(dati, opzioni);
    const auto vista = p.vista;
    const std::size_t aree = p.aree.size() - conRuolo(p.aree, Ruolo::coda).size();
    const std::size_t testi = p.testi.size();
    mostraStati(p, stati(7, "F", 200.0));
    EXPECT_EQ(p.vista.minimo, vista.minimo);
    EXPECT_EQ(p.vista.massimo, vista.massimo);
    EXPECT_EQ(p.aree.size() - conRuolo(p.aree, Ruolo::coda).size(), aree);
    EXPECT_EQ(conRuolo(p.testi, Ruolo::oltreCoda).size(), 7U);
    mostraStati(p, stati(7, "A", 1.0));
    EXPECT_EQ(p.testi.size(), testi);
    EXPECT_EQ(conRuolo(p.aree, Ruolo::coda).size(), 7U);
    EXPECT_EQ(p.stati, stati(7, "A", 1.0));
    EXPECT_THROW(mostraStati(p, stati(6, "A", 1.0)), Guasto);
    opzioni.stati.pop_back();
    EXPECT_THROW(costruisci(dati, opzioni), Guasto);
}

TEST(Stati, TheTextOfACutQueueStandsWithinTheView) {
    for (const int rami : {3, 4, 5, 6, 7}) {
        OpzioniPianta opzioni;
        opzioni.stati = stati(static_cast<std::size_t>(rami), "F", 999.9);
        const Pianta p = costruisci(uguali(rami, ramoUsuale()), opzioni);
        for (const Testo& testo : conRuolo(p.testi, Ruolo::oltreCoda)) {
            EXPECT_GT(testo.punto.x, p.vista.minimo.x);
            EXPECT_LT(testo.punto.x, p.vista.massimo.x);
            EXPECT_GT(testo.punto.y, p.vista.minimo.y);
        }
    }
}

TEST(Stati, WhatIsNoQueueDrawsNone) {
    OpzioniPianta opzioni;
    opzioni.stati = stati(3, "-", -4.0);
    opzioni.stati[1].coda = std::numeric_limits<double>::quiet_NaN();
    opzioni.stati[2].coda = std::numeric_limits<double>::infinity();
    const Pianta p = costruisci(uguali(3, ramoUsuale()), opzioni);
    EXPECT_TRUE(conRuolo(p.aree, Ruolo::coda).empty());
}

TEST(Stati, AnyMeasuresTakeAnyQueue) {
    std::mt19937 caso(7);
    for (int prova = 0; prova < 300; ++prova) {
        DatiPianta dati;
        OpzioniPianta opzioni;
        const std::size_t rami = 3 + static_cast<std::size_t>(prova) % 5;
        for (std::size_t i = 0; i < rami; ++i) {
            dati.rami.push_back(prove::ramoACaso(caso));
            opzioni.stati.push_back({"E", std::uniform_real_distribution<double>(0.0, 400.0)(caso)});
        }
        const Pianta p = costruisci(dati, opzioni);
        for (const Area& veicolo : conRuolo(p.aree, Ruolo::coda)) {
            for (const Vertice& v : veicolo.contorno) {
                ASSERT_TRUE(std::isfinite(v.p.x) && std::isfinite(v.p.y)) << prova;
            }
            ASSERT_LE(norma(dietro(veicolo) - davanti(veicolo)), 4.81) << prova;
        }
    }
}

}  // namespace
}  // namespace kelvo::pianta
