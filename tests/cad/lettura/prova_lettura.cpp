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
            // Where its package can be had, the reader belongs to what the tests ask for.
            if (std::filesystem::exists("/usr/bin/dpkg")) {
                FAIL() << "python3-ezdxf is not installed: strumenti/pacchetti.txt lists it";
            }
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

TEST_F(Lettura, DimensionsMadeAnewLookAsTheyWereDrawn) {
    const Letto letto = leggi(filePianta(rotatoria(4)));
    std::map<std::string, std::string> stile;
    for (const Riga& riga : letto.at("stile")) {
        if (riga.at(0) == "KELVO") {
            stile[riga.at(1)] = riga.at(2);
        }
    }
    EXPECT_EQ(stile["dimdsep"], "44") << "a comma";
    EXPECT_EQ(stile["dimdec"], "2");
    EXPECT_EQ(stile["dimadec"], "2");
    EXPECT_EQ(stile["dimzin"], "0") << "with the zeros at the end";
    EXPECT_EQ(stile["dimlunit"], "2");
    EXPECT_EQ(stile["dimtih"], "0");
    EXPECT_EQ(stile["dimtoh"], "0");
    // 3 % of the radius of 20 m for text and arrows.
    EXPECT_NEAR(numero(stile["dimtxt"]), 0.6, 1e-9);
    EXPECT_NEAR(numero(stile["dimasz"]), 0.6, 1e-9);
    EXPECT_NEAR(numero(stile["dimgap"]), 0.3, 1e-9);
    EXPECT_NEAR(numero(stile["dimexo"]), 0.18, 1e-9);
    EXPECT_NEAR(numero(stile["dimexe"]), 0.3, 1e-9);
    EXPECT_NEAR(numero(stile["dimscale"]), 1, 1e-9);
    EXPECT_NEAR(numero(stile["dimlfac"]), 1, 1e-9);
    const std::vector<Riga>& quote = letto.at("stilequota");
    ASSERT_EQ(quote.size(), 21U);
    int angoli = 0;
    for (const Riga& riga : quote) {
        EXPECT_EQ(riga.at(1), "KELVO");
        const bool angolo = riga.at(0) == "5";
        angoli += angolo ? 1 : 0;
        // The text of the angle alone stands level.
        EXPECT_EQ(riga.at(2), angolo ? "1" : "0") << riga.at(0);
        EXPECT_EQ(riga.at(3), angolo ? "1" : "0") << riga.at(0);
    }
    EXPECT_EQ(angoli, 4);
}

TEST_F(Lettura, AnAngleOfNothingIsNoDimensionAndKeepsItsText) {
    pianta::DatiPianta dati = rotatoria(4);
    dati.rami[1].angoloConflitto = 0;
    const Letto letto = leggi(filePianta(dati));
    sano(letto, "angolo nullo");
    int angoli = 0;
    for (const Riga& riga : letto.at("stilequota")) {
        angoli += riga.at(0) == "5" ? 1 : 0;
        EXPECT_EQ(riga.at(4), "0") << "no rays that coincide";
    }
    EXPECT_EQ(angoli, 3);
    EXPECT_EQ(letto.at("quota").size(), 20U);
    EXPECT_EQ(testi(letto, "KELVO-QUOTE"), std::vector<std::string>{"φ = 0,00°"});
    EXPECT_EQ(testi(leggi(filePianta(rotatoria(4))), "KELVO-QUOTE"), std::vector<std::string>{});
}

TEST_F(Lettura, TextsStandWhereThePlanHasThemAndAsLarge) {
    // Legs of 20 m + 200 m. Size of the type: 0.02 of 2.4 times that, 10.56 m; its capitals are 0.7 of it.
    pianta::DatiPianta dati = rotatoria(4);
    dati.ipotesi.ramoMinimo = 200;
    const Letto letto = leggi(filePianta(dati));
    struct Posto {
        double x, y, altezza, rotazione;
        const char* lato;  // 0 left, 1 middle, 2 right
    };
    const auto confronta = [&](const char* fatto, const std::string& layer, const std::vector<Posto>& attesi) {
        std::size_t k = 0;
        for (const Riga& riga : letto.at(fatto)) {
            if (riga.at(0) != layer) {
                continue;
            }
            EXPECT_EQ(riga.at(6), "2") << "on half the height";
            EXPECT_EQ(riga.at(7), "KELVO");
            if (k < attesi.size()) {
                EXPECT_NEAR(numero(riga.at(1)), attesi[k].x, 1e-6) << layer << " " << k;
                EXPECT_NEAR(numero(riga.at(2)), attesi[k].y, 1e-6) << layer << " " << k;
                EXPECT_NEAR(numero(riga.at(3)), attesi[k].altezza, 1e-6) << layer << " " << k;
                EXPECT_NEAR(numero(riga.at(4)), attesi[k].rotazione, 1e-6) << layer << " " << k;
                EXPECT_EQ(riga.at(5), attesi[k].lato) << layer << " " << k;
            }
            ++k;
        }
        return k;
    };
    // A disc of 1.35 sizes, its centre 1.4 of its radii beyond the leg: 220 + 1.89 * 10.56. Letters of 1.45 sizes.
    constexpr double d = 239.9584;
    constexpr double l = 10.7184;
    EXPECT_EQ(confronta("posto", "KELVO-LETTERE",
                        {{0, -d, l, 0, "1"}, {d, 0, l, 0, "1"}, {0, d, l, 0, "1"}, {-d, 0, l, 0, "1"}}),
              4U);
    // Names 0.3 sizes beyond the disc: half a line more above and below, 0.15 sizes more at the sides.
    constexpr double sotto = 263.9824;
    constexpr double fianco = 258.9664;
    constexpr double n = 7.392;
    EXPECT_EQ(
        confronta("posto", "KELVO-NOMI",
                  {{0, -sotto, n, 0, "1"}, {fianco, 0, n, 0, "0"}, {0, sotto, n, 0, "1"}, {-fianco, 0, n, 0, "2"}}),
        4U);
}

TEST_F(Lettura, TextsOfDimensionsStandAtTheirLines) {
    pianta::DatiPianta dati = rotatoria(4);
    dati.ipotesi.ramoMinimo = 200;
    const Letto letto = leggi(filePianta(dati));
    const std::vector<Riga>& testi = letto.at("testoquota");
    ASSERT_EQ(testi.size(), 21U);
    for (const Riga& riga : testi) {
        EXPECT_EQ(riga.at(0), "KELVO-QUOTE");
        EXPECT_NEAR(numero(riga.at(3)), 0.6, 1e-9);
        EXPECT_EQ(riga.at(5), "1");
        EXPECT_EQ(riga.at(6), "2");
    }
    const auto sta = [&](std::size_t k, double x, double y, double rotazione) {
        EXPECT_NEAR(numero(testi.at(k).at(1)), x, 1e-6) << k;
        EXPECT_NEAR(numero(testi.at(k).at(2)), y, 1e-6) << k;
        EXPECT_NEAR(numero(testi.at(k).at(4)), rotazione, 1e-6) << k;
    };
    // Half-width: taken 1.2 sizes of 0.0672 * 220 m before the end of the leg. Behind its 3.75 m the height of the text
    // and half of ten letters of 0.85 heights; 0.9 heights over the line.
    constexpr double lungo = 201.7192;
    constexpr double fianco = 6.9;
    sta(1, fianco, -lungo, 0);
    sta(6 + 1, lungo, fianco, 90);
    sta(11 + 1, -fianco, lungo, 0);
    sta(16 + 1, -lungo, -fianco, 90);
    // The diameter runs from above on the left to below on the right, its text over the centre.
    sta(5, 0.54 * std::sqrt(0.5), 0.54 * std::sqrt(0.5), -45);
    for (const std::size_t k : {3U, 9U, 14U, 19U}) {
        EXPECT_NEAR(numero(testi.at(k).at(4)), 0, 1e-9) << "angles are level";
    }
    for (const std::size_t k : {2U, 13U}) {
        EXPECT_NEAR(numero(testi.at(k).at(4)), 90, 1e-6) << "along the flare of a leg that goes up";
    }
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
