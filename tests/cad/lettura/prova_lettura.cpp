// The drawing read back by another program.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>

#include "cad/campiIpotesi.h"
#include "cad/disegnoProva.h"
#include "cli/processo.h"
#include "comune/cartella.h"
#include "model/Rotonda.h"
#include "pianta/curve.h"

namespace kelvo::prove {

namespace {

using Riga = std::vector<std::string>;

/// What the reader tells of a file: facts by their first word.
using Letto = std::map<std::string, std::vector<Riga>>;

class Lettura : public testing::Test {
protected:
    void SetUp() override {
        if (esegui({"/usr/bin/python3", "-c", "import ezdxf"}).codice != 0) {
            GTEST_SKIP() << "python3-ezdxf is not installed";
        }
    }

    Letto leggi(const std::string& testo) const { return leggiTutti({testo}).at(0); }

    /// The reader starts once for all of them.
    std::vector<Letto> leggiTutti(const std::vector<std::string>& testi) const {
        std::vector<std::string> comando{"/usr/bin/python3",
                                         std::string{KELVO_SORGENTI} + "/tests/cad/lettura/leggi.py"};
        for (const std::string& testo : testi) {
            comando.push_back(cartella_.file(std::to_string(comando.size()) + ".dxf"));
            std::ofstream(comando.back(), std::ios::binary) << testo;
        }
        const Esito esito = esegui(comando);
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        std::vector<Letto> letti;
        std::istringstream righe(esito.uscita);
        for (std::string riga; std::getline(righe, riga);) {
            Riga parti;
            std::istringstream pezzi(riga);
            for (std::string parte; std::getline(pezzi, parte, '\t');) {
                parti.push_back(parte);
            }
            const std::string tipo = parti.at(0);
            parti.erase(parti.begin());
            if (tipo == "file") {
                letti.emplace_back();
            } else {
                letti.at(letti.size() - 1)[tipo].push_back(parti);
            }
        }
        EXPECT_EQ(letti.size(), testi.size());
        letti.resize(testi.size());
        return letti;
    }

    /// No complaint and no mend, all of it in sight.
    static void sano(const Letto& letto, const std::string& quale) {
        if (letto.contains("difetto")) {
            const Riga& primo = letto.at("difetto").front();
            FAIL() << quale << ": " << primo.at(0) << " " << primo.at(1);
        }
        const std::vector<Riga>& testate = letto.at("testata");
        EXPECT_EQ(testate.at(0), (Riga{"$ACADVER", "AC1021"})) << quale;
        EXPECT_EQ(testate.at(1), (Riga{"$INSUNITS", "6"})) << quale;
        EXPECT_EQ(testate.at(2), (Riga{"$MEASUREMENT", "1"})) << quale;
        const Riga& ingombro = letto.at("ingombro").front();
        for (std::size_t k = 0; k < 2; ++k) {
            EXPECT_LE(numero(testate.at(3).at(1 + k)), numero(ingombro.at(k))) << quale;
            EXPECT_GE(numero(testate.at(4).at(1 + k)), numero(ingombro.at(2 + k))) << quale;
        }
    }

    static double numero(const std::string& testo) {
        std::istringstream flusso(testo);
        flusso.imbue(std::locale::classic());
        double valore = std::numeric_limits<double>::quiet_NaN();
        flusso >> valore;
        return valore;
    }

    static std::vector<std::string> testi(const Letto& letto, const std::string& layer) {
        std::vector<std::string> trovati;
        for (const Riga& riga : letto.at("testo")) {
            if (riga.at(0) == layer) {
                trovati.push_back(riga.size() > 1 ? riga.at(1) : "");
            }
        }
        return trovati;
    }

    /// Number and whole length of the entities of a layer, the fills left out.
    static std::pair<int, double> quante(const Letto& letto, const std::string& layer) {
        std::pair<int, double> trovate{0, 0.0};
        for (const Riga& riga : letto.at("entita")) {
            if (riga.at(0) == layer && riga.at(1) != "TEXT" && riga.at(1) != "HATCH") {
                ++trovate.first;
                trovate.second += numero(riga.at(2));
            }
        }
        return trovate;
    }

    CartellaTemporanea cartella_;
};

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

TEST_F(Lettura, DimensionsMeasureWhatTheProjectHolds) {
    pianta::DatiPianta dati = rotatoria(4);
    dati.rami[2].larghezzaIngresso = 6.5;
    dati.rami[2].angoloConflitto = 40;
    const Letto letto = leggi(filePianta(dati));
    sano(letto, "quote");
    const std::vector<Riga>& quote = letto.at("quota");
    ASSERT_EQ(quote.size(), 4U * 5 + 1);
    struct Attesa {
        int tipo;
        double misura;
        const char* riscritto;
        const char* testo;
    };
    const std::vector<Attesa> primo{{1, 5.0, "e = <> m", "e = 5,00 m"},     {1, 3.75, "v = <> m", "v = 3,75 m"},
                                    {0, 20.0, "l' = <> m", "l' = 20,00 m"}, {5, 25.0, "φ = <>", "φ = 25,00°"},
                                    {4, 25.0, "<> m", "R25,00 m"},          {3, 40.0, "<> m", "Ø40,00 m"}};
    for (std::size_t k = 0; k < primo.size(); ++k) {
        EXPECT_EQ(quote[k].at(0), std::to_string(primo[k].tipo));
        EXPECT_NEAR(numero(quote[k].at(1)), primo[k].misura, 1e-6) << primo[k].testo;
        EXPECT_NEAR(numero(quote[k].at(2)), primo[k].misura, 1e-6) << primo[k].testo;
        EXPECT_EQ(quote[k].at(3), primo[k].riscritto);
        EXPECT_EQ(quote[k].at(4), primo[k].testo);
    }
    const std::size_t terzo = 6 + 5;
    EXPECT_NEAR(numero(quote[terzo].at(1)), 6.5, 1e-6);
    EXPECT_EQ(quote[terzo].at(4), "e = 6,50 m");
    EXPECT_NEAR(numero(quote[terzo + 3].at(1)), 40, 1e-5);
    EXPECT_EQ(quote[terzo + 3].at(4), "φ = 40,00°");
}

TEST_F(Lettura, AMeasureThatDoesNotFitReadsItsTrueValueAndSaysSo) {
    pianta::DatiPianta dati = rotatoria(7);
    dati.rami[0].raggioIngresso = 500;
    dati.rami[3].diametroInscritto = 60;
    const Letto letto = leggi(filePianta(dati));
    sano(letto, "fuori scala");
    const Riga& raggio = letto.at("quota").at(4);
    EXPECT_LT(numero(raggio.at(1)), 499);
    EXPECT_EQ(raggio.at(3), "R500,00 m (non in scala)");
    EXPECT_EQ(raggio.at(4), "R500,00 m (non in scala)");
    // The circle is that of the first leg; the notes tell that another leg has another one.
    EXPECT_NEAR(numero(letto.at("quota").at(5).at(1)), 40, 1e-6);
    const std::vector<std::string> note = testi(letto, "KELVO-NOTE");
    EXPECT_NE(std::find(note.begin(), note.end(), "diametri diversi tra i rami: disegnato D = 40,00 m"), note.end());
    EXPECT_NE(std::find(note.begin(), note.end(), "misure non in scala: A r"), note.end());
}

TEST_F(Lettura, EveryDrawingBearsItsMarkAndTheProjectsOwnWords) {
    std::vector<std::string> progetti;
    for (const auto& voce : std::filesystem::directory_iterator(KELVO_SORGENTI "/assets/Progetti")) {
        progetti.push_back(voce.path().string());
    }
    EXPECT_GE(progetti.size(), 6U);
    for (const std::string& nome : progetti) {
        Rotonda rotonda;
        std::string messaggio;
        bool esito = true;
        rotonda.Load(nome, messaggio, esito);
        ASSERT_TRUE(esito) << messaggio;
        const Letto letto = leggi(dxf::testoDxf(dxf::disegno(pianta::datiPianta(rotonda), dxf::cartiglioDi(rotonda))));
        sano(letto, nome);
        EXPECT_EQ(testi(letto, "KELVO-NOTE").front(), "schema: direzioni dei rami, isole e uscite non di progetto");
        EXPECT_EQ(static_cast<int>(testi(letto, "KELVO-LETTERE").size()), rotonda.NumeroRami());
        std::vector<std::string> nomi = testi(letto, "KELVO-NOMI");
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            EXPECT_EQ(nomi.at(static_cast<std::size_t>(i) - 1), rotonda.Ramo(i).Descrizione()) << nome;
        }
        const std::vector<std::string> cartiglio = testi(letto, "KELVO-CARTIGLIO");
        EXPECT_EQ(cartiglio.front(), rotonda.Titolo());
        EXPECT_EQ(cartiglio.at(2), "Progettista: " + rotonda.NomeProfessionista());
        EXPECT_EQ(cartiglio.at(3), "Data: " + testoData(rotonda.Data()));
    }
}

TEST_F(Lettura, WordsOfAnyKindComeBackAsTheyAre) {
    const std::vector<std::string> parole{"Città \"Forlì\" €", "50%% d'uso", "a^Ib", "C:\\U+00E0", "🚗 {b}; \\P"};
    pianta::DatiPianta dati = rotatoria(5);
    for (std::size_t i = 0; i < parole.size(); ++i) {
        dati.rami[i].nome = parole[i];
    }
    dxf::Cartiglio cartiglio{.titolo = std::string(5000, 'W')};
    cartiglio.progettista = "Studio «Così & Là»\nsecondo rigo";
    const Letto letto = leggi(dxf::testoDxf(dxf::disegno(dati, cartiglio)));
    sano(letto, "parole");
    // Two percent signs and the beginning of a letter's code would be read as something else: a blank parts them.
    const std::vector<std::string> lette{parole[0], "50% % d'uso", parole[2], "C:\\ U+00E0", parole[4]};
    EXPECT_EQ(testi(letto, "KELVO-NOMI"), lette);
    EXPECT_EQ(testi(letto, "KELVO-CARTIGLIO").at(0), std::string(90, 'W') + "…");
    EXPECT_EQ(testi(letto, "KELVO-CARTIGLIO").at(1), "Progettista: Studio «Così & Là» secondo rigo");
}

TEST_F(Lettura, LayersCanBeToldOnWhiteAndOnBlack) {
    const Letto letto = leggi(filePianta(rotatoria(4)));
    std::size_t nostri = 0;
    for (const Riga& riga : letto.at("layer")) {
        const auto* voce = std::find_if(dxf::vociLayer.begin(), dxf::vociLayer.end(),
                                        [&](const dxf::VoceLayer& v) { return v.layer.nome == riga.at(0); });
        if (voce == dxf::vociLayer.end()) {
            EXPECT_TRUE(riga.at(0) == "0" || riga.at(0) == "Defpoints") << riga.at(0);
            continue;
        }
        ++nostri;
        // White, yellow and light blue are lost on white, blue on black.
        for (const char* perso : {"2", "4", "5", "255"}) {
            EXPECT_NE(riga.at(1), perso) << riga.at(0);
        }
        EXPECT_EQ(riga.at(2), std::to_string(voce->layer.centesimi));
        EXPECT_EQ(riga.at(4), voce->layer.spento ? "0" : "1") << riga.at(0);
    }
    EXPECT_EQ(nostri, dxf::vociLayer.size());
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
