// The shapes of the drawing and their layers, read back by another program.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "cad/campiIpotesi.h"
#include "cad/disegnoProva.h"
#include "cad/lettura/lettura.h"
#include "pianta/curve.h"

namespace kelvo::prove {

namespace {

/// Length of a chain by its points, close enough to its arcs.
double lunga(const pianta::Tracciato& via, bool chiusa) {
    const std::vector<pianta::Punto> punti = pianta::spezzata(via, chiusa, 0.0005);
    double somma = 0;
    for (std::size_t i = 0; i + 1 < punti.size(); ++i) {
        somma += norma(punti[i + 1] - punti[i]);
    }
    return somma + (chiusa ? norma(punti.front() - punti.back()) : 0);
}

/// Number and length of what the plan has of some roles.
std::pair<int, double> nellaPianta(const pianta::Pianta& pianta, const std::vector<pianta::Ruolo>& ruoli) {
    std::pair<int, double> tutte{0, 0.0};
    const auto conta = [&](pianta::Ruolo ruolo, const pianta::Tracciato& via, bool chiusa) {
        if (!via.empty() && std::find(ruoli.begin(), ruoli.end(), ruolo) != ruoli.end()) {
            ++tutte.first;
            tutte.second += lunga(via, chiusa);
        }
    };
    for (const pianta::Area& area : pianta.aree) {
        conta(area.ruolo, area.contorno, true);
        if (area.ruolo == pianta::Ruolo::anello) {
            conta(area.ruolo, area.foro, true);
        }
    }
    for (const pianta::Linea& linea : pianta.linee) {
        conta(linea.ruolo, linea.tracciato, linea.chiusa);
    }
    return tutte;
}

TEST_F(Lettura, EveryShapeOfThePlanStandsOnItsLayerAtItsTrueLength) {
    using pianta::Ruolo;
    struct Caso {
        const char* layer;
        std::vector<Ruolo> ruoli;
    };
    const std::vector<Caso> casi{
        {"KELVO-CORDOLI", {Ruolo::cordolo}},
        {"KELVO-CERCHIO-INSCRITTO", {Ruolo::cerchioInscritto}},
        {"KELVO-CORONA-SORMONTABILE", {Ruolo::corona}},
        {"KELVO-ISOLA-CENTRALE", {Ruolo::isola}},
        {"KELVO-ISOLE-DIVISIONALI", {Ruolo::isolaDivisionale}},
        {"KELVO-DARE-PRECEDENZA", {Ruolo::lineaDarePrecedenza, Ruolo::dentiPrecedenza}},
        {"KELVO-ASSI", {Ruolo::asse}},
        {"KELVO-ATTRAVERSAMENTI", {Ruolo::attraversamento}},
        {"KELVO-FRECCE", {Ruolo::freccia}},
        {"KELVO-FRECCE-ANELLO", {Ruolo::frecciaAnello}},
        {"KELVO-CARREGGIATA", {Ruolo::carreggiata}},
        {"KELVO-ANELLO", {Ruolo::anello}},
        {"KELVO-INGRESSI", {Ruolo::ingresso}},
        {"KELVO-USCITE", {Ruolo::uscita}},
    };
    std::vector<std::string> file;
    for (int rami = 3; rami <= 7; ++rami) {
        file.push_back(filePianta(rotatoria(rami)));
    }
    const std::vector<Letto> letti = leggiTutti(file);
    for (int rami = 3; rami <= 7; ++rami) {
        const pianta::Pianta pianta = pianta::costruisci(rotatoria(rami));
        const Letto& letto = letti.at(static_cast<std::size_t>(rami) - 3);
        sano(letto, std::to_string(rami));
        for (const Caso& caso : casi) {
            const auto [attese, lunghe] = nellaPianta(pianta, caso.ruoli);
            const auto [trovate, lette] = quante(letto, caso.layer);
            EXPECT_GT(attese, 0) << caso.layer;
            EXPECT_EQ(trovate, attese) << rami << " " << caso.layer;
            EXPECT_NEAR(lette, lunghe, 1e-6 * lunghe) << rami << " " << caso.layer;
        }
    }
}

TEST_F(Lettura, KerbsKeepTheirArcs) {
    const Letto letto = leggi(filePianta(rotatoria(4)));
    int archi = 0;
    for (const Riga& riga : letto.at("entita")) {
        if (riga.at(0) == "KELVO-CORDOLI") {
            EXPECT_EQ(riga.at(1), "LWPOLYLINE");
            archi += std::stoi(riga.at(3));
        }
    }
    // An entry curve, the circle between and an exit curve for each of four kerbs, at least.
    EXPECT_GE(archi, 12);
}

TEST_F(Lettura, EveryLayerHasItsColourItsWeightAndItsLine) {
    // Of lines and texts none is white, yellow or light blue, lost on white, nor blue, lost on black.
    const std::vector<Riga> attesi{
        {"0", "7", "-3", "Continuous", "1"},
        {"Defpoints", "7", "-3", "Continuous", "1"},
        {"KELVO-CORDOLI", "7", "50", "Continuous", "1"},
        {"KELVO-CERCHIO-INSCRITTO", "150", "18", "KELVO-TRATTO-PUNTO", "1"},
        {"KELVO-CORONA-SORMONTABILE", "8", "25", "Continuous", "1"},
        {"KELVO-ISOLA-CENTRALE", "94", "35", "Continuous", "1"},
        {"KELVO-ISOLE-DIVISIONALI", "94", "35", "Continuous", "1"},
        {"KELVO-DARE-PRECEDENZA", "7", "35", "Continuous", "1"},
        {"KELVO-ASSI", "8", "18", "KELVO-TRATTEGGIATA", "1"},
        {"KELVO-ATTRAVERSAMENTI", "7", "18", "Continuous", "1"},
        {"KELVO-FRECCE", "7", "18", "Continuous", "1"},
        {"KELVO-FRECCE-ANELLO", "7", "18", "Continuous", "1"},
        {"KELVO-CARREGGIATA", "8", "13", "Continuous", "0"},
        {"KELVO-ANELLO", "8", "13", "Continuous", "0"},
        {"KELVO-INGRESSI", "150", "13", "Continuous", "0"},
        {"KELVO-USCITE", "30", "13", "Continuous", "0"},
        {"KELVO-CAMPITURE-ISOLE", "254", "0", "Continuous", "1"},
        {"KELVO-CAMPITURE-SEGNALETICA", "7", "0", "Continuous", "1"},
        {"KELVO-QUOTE", "1", "18", "Continuous", "1"},
        {"KELVO-LETTERE", "150", "25", "Continuous", "1"},
        {"KELVO-NOMI", "7", "25", "Continuous", "1"},
        {"KELVO-NOTE", "8", "18", "Continuous", "1"},
        {"KELVO-CARTIGLIO", "7", "25", "Continuous", "1"},
    };
    const Letto letto = leggi(filePianta(rotatoria(4)));
    EXPECT_EQ(letto.at("layer"), attesi);
    // Whole length of the pattern, then dashes, and gaps below 0; in metres.
    EXPECT_EQ(letto.at("linea"), (std::vector<Riga>{{"KELVO-TRATTEGGIATA", "3.0", "1.5", "-1.5"},
                                                    {"KELVO-TRATTO-PUNTO", "4.75", "3.0", "-0.75", "0.25", "-0.75"}}));
}

TEST_F(Lettura, HatchesAreSolidAndCoverWhatTheirShapesEnclose) {
    const Letto letto = leggi(filePianta(rotatoria(4)));
    std::vector<std::pair<std::size_t, double>> isole;  // borders, and area within the first less that of the others
    int segnaletica = 0;
    for (const Riga& riga : letto.at("campitura")) {
        EXPECT_EQ(riga.at(1), "1") << "solid";
        EXPECT_EQ(riga.at(2), "SOLID");
        const auto contorni = static_cast<std::size_t>(std::stoi(riga.at(3)));
        ASSERT_EQ(riga.size(), 4 + 2 * contorni);
        double piena = 0;
        for (std::size_t k = 0; k < contorni; ++k) {
            EXPECT_EQ(riga[4 + 2 * k], k == 0 ? "1" : "0") << "the first border is the outer one";
            piena += (k == 0 ? 1 : -1) * numero(riga[5 + 2 * k]);
        }
        EXPECT_GT(piena, 0.01);
        if (riga.at(0) == "KELVO-CAMPITURE-ISOLE") {
            isole.emplace_back(contorni, piena);
        } else {
            EXPECT_EQ(riga.at(0), "KELVO-CAMPITURE-SEGNALETICA");
            EXPECT_EQ(contorni, 1U);
            ++segnaletica;
        }
    }
    // The circle of 40 m less a ring of 7 m: an apron from 13 m to 11.5 m, the island within, four splitter islands.
    ASSERT_EQ(isole.size(), 6U);
    std::sort(isole.begin(), isole.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    EXPECT_EQ(isole[0].first, 1U);
    EXPECT_NEAR(isole[0].second, 415.4756, 1e-3);
    EXPECT_EQ(isole[1].first, 2U);
    EXPECT_NEAR(isole[1].second, 115.4535, 1e-3);
    for (std::size_t k = 2; k < 6; ++k) {
        EXPECT_EQ(isole[k].first, 1U);
        EXPECT_NEAR(isole[k].second, isole[2].second, 1e-6) << "four legs alike";
    }
    // Every marking with an inside is filled: arrows in and out of each leg, four in the ring, stripes and teeth.
    std::map<std::string, int> chiuse;
    for (const Riga& riga : letto.at("entita")) {
        chiuse[riga.at(0)] += riga.at(4) == "1" ? 1 : 0;
    }
    EXPECT_EQ(chiuse["KELVO-FRECCE"], 8);
    EXPECT_EQ(chiuse["KELVO-FRECCE-ANELLO"], 4);
    EXPECT_GT(chiuse["KELVO-ATTRAVERSAMENTI"], 0);
    EXPECT_GT(chiuse["KELVO-DARE-PRECEDENZA"], 0);
    EXPECT_EQ(segnaletica, 8 + 4 + chiuse["KELVO-ATTRAVERSAMENTI"] + chiuse["KELVO-DARE-PRECEDENZA"]);
}

TEST_F(Lettura, WhatIsLeftOutHasNeitherEntitiesNorLayer) {
    std::vector<std::string> file;
    for (const dxf::VoceGruppo& voce : dxf::vociGruppo) {
        dxf::Scelte scelte;
        scelte.metti(voce.gruppo, false);
        file.push_back(filePianta(rotatoria(4), scelte));
    }
    const std::vector<Letto> letti = leggiTutti(file);
    for (std::size_t k = 0; k < dxf::vociGruppo.size(); ++k) {
        const dxf::VoceGruppo& voce = dxf::vociGruppo.at(k);
        const Letto& letto = letti.at(k);
        sano(letto, std::string{voce.nome});
        for (const dxf::VoceLayer& layer : dxf::vociLayer) {
            const auto suo = [&](const Riga& riga) { return riga.at(0) == layer.layer.nome; };
            const auto conta = [&](const char* cosa) {
                const auto& righe = letto.at(cosa);
                return std::count_if(righe.begin(), righe.end(), suo);
            };
            const bool segnaletica = voce.gruppo == dxf::Gruppo::segnaletica;
            const bool fuori =
                layer.gruppo == voce.gruppo || (segnaletica && layer.layer.nome == "KELVO-CAMPITURE-SEGNALETICA");
            EXPECT_EQ(conta("layer"), fuori ? 0 : 1) << voce.nome << " " << layer.layer.nome;
            EXPECT_EQ(conta("entita") == 0, fuori) << voce.nome << " " << layer.layer.nome;
        }
    }
}

TEST_F(Lettura, BearingsAndAssumptionsAreThoseAskedFor) {
    pianta::DatiPianta dati = rotatoria(3);
    dati.ipotesi.direzioni = {0, 60, 200};
    dati.ipotesi.corona = 0;
    dati.ipotesi.anelloMinimo = 9;
    const Letto letto = leggi(filePianta(dati));
    sano(letto, "ipotesi");
    // The central island begins where the ring of 9 m ends.
    EXPECT_NEAR(quante(letto, "KELVO-ISOLA-CENTRALE").second, 2 * pianta::pi * (20 - 9), 1e-6);
    EXPECT_NE(leggi(filePianta(rotatoria(3))).at("ingombro"), letto.at("ingombro"));
}

TEST_F(Lettura, AnyMeasuresAndAssumptionsGiveASoundFile) {
    std::mt19937 caso(20260310);
    const auto fra = [&](double da, double a) { return da + (a - da) * (static_cast<double>(caso()) / 4294967295.0); };
    std::vector<std::string> file;
    for (int prova = 0; prova < 10; ++prova) {
        pianta::DatiPianta dati = rotatoria(3 + prova % 5);
        for (pianta::DatiRamo& ramo : dati.rami) {
            ramo.larghezzaIngresso = fra(3.6, 16.3);
            ramo.semiLarghezza = fra(1.9, 12.5);
            ramo.lunghezzaSvasatura = std::exp(fra(0, 9));
            ramo.angoloConflitto = fra(0, 77);
            ramo.raggioIngresso = std::exp(fra(1.3, 9));
            ramo.diametroInscritto = fra(13.5, 176);
        }
        for (const dxf::CampoIpotesi& campo : dxf::campiIpotesi) {
            dati.ipotesi.*campo.valore = prova % 3 == 0 ? campo.minimo : fra(campo.minimo, campo.massimo);
        }
        file.push_back(filePianta(dati));
    }
    pianta::DatiPianta nulla = rotatoria(3);
    for (pianta::DatiRamo& ramo : nulla.rami) {
        ramo = {.larghezzaIngresso = 0,
                .semiLarghezza = 0,
                .lunghezzaSvasatura = 0,
                .angoloConflitto = 0,
                .raggioIngresso = std::nan(""),
                .diametroInscritto = 0};
    }
    file.push_back(filePianta(nulla));
    const std::vector<Letto> letti = leggiTutti(file);
    for (std::size_t k = 0; k < letti.size(); ++k) {
        sano(letti[k], std::to_string(k));
    }
}

}  // namespace

}  // namespace kelvo::prove
