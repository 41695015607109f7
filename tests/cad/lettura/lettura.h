#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <locale>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/processo.h"
#include "comune/cartella.h"

/// The drawing read back by another program.
namespace kelvo::prove {

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

}  // namespace kelvo::prove
