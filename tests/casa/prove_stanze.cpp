#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "regole.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

bool sorgente(const std::string& percorso) {
    const std::string estensione = fs::path(percorso).extension().string();
    return estensione == ".cpp" || estensione == ".h";
}

bool inCartella(const std::string& percorso, const std::string& cartella) {
    return percorso.rfind(cartella + "/", 0) == 0;
}

/// The headers below the first two folders of a path ("apps/kelvo-cli/"), relative to them.
std::vector<std::string> intestazioniProprie(const std::string& percorso, const std::vector<std::string>& tutti) {
    const auto primo = percorso.find('/');
    const std::string cartella = percorso.substr(0, percorso.find('/', primo + 1) + 1);
    std::vector<std::string> proprie;
    for (const std::string& altro : tutti) {
        if (altro.rfind(cartella, 0) == 0 && fs::path(altro).extension() == ".h") {
            proprie.push_back(altro.substr(cartella.size()));
        }
    }
    return proprie;
}

TEST(Stanze, NoFileIncludesAStranger) {
    const std::vector<std::string> tutti = fileDelDeposito();
    int letti = 0;
    for (const std::string& percorso : tutti) {
        if (!sorgente(percorso) || !(inCartella(percorso, "src") || inCartella(percorso, "apps"))) {
            continue;
        }
        ++letti;
        const auto proprie = intestazioniProprie(percorso, tutti);
        for (const std::string& errore : estranei(percorso, testoDelDeposito(percorso), proprie)) {
            ADD_FAILURE() << percorso << ": " << errore;
        }
    }
    EXPECT_GT(letti, 30);
}

/// True for a line that asks which system or compiler it is built for.
bool chiedeIlSistema(const std::string& testo) {
    static const std::regex domanda(
        "(^|\\n)[ \\t]*#[ \\t]*(if|elif)[^\\n]*(_WIN32|_WIN64|__linux|__unix|__APPLE__|__MINGW|__CYGWIN__|_MSC_VER)");
    return std::regex_search(testo, domanda);
}

TEST(Stanze, OnlyTheRoomsOfTheSystemsKnowWhichOneItIs) {
    EXPECT_TRUE(chiedeIlSistema("#pragma once\n#ifdef _WIN32\n"));
    EXPECT_TRUE(chiedeIlSistema("# if defined(__linux__)\n"));
    EXPECT_FALSE(chiedeIlSistema("// _WIN32\nint x;\n#if 0\n"));
    for (const std::string& percorso : fileDelDeposito()) {
        const bool nostro =
            inCartella(percorso, "src") || inCartella(percorso, "apps") || inCartella(percorso, "tests");
        if (sorgente(percorso) && nostro && !inCartella(percorso, "src/platform")) {
            EXPECT_FALSE(chiedeIlSistema(testoDelDeposito(percorso))) << percorso;
        }
    }
}

TEST(Stanze, TheBuildLinksWhatTheTableAllows) {
    const std::string testo = testoDelDeposito("src/CMakeLists.txt");
    ASSERT_NE(testo.find("kelvo_stanza(base"), std::string::npos);
    EXPECT_EQ(legamiEstranei(testo), std::vector<std::string>{});
}

TEST(Stanze, APlantedStrangerIsFound) {
    struct Caso {
        std::string percorso;
        std::string riga;
    };
    const std::vector<Caso> casi{
        {"src/model/Ramo.h", "#include <nlohmann/json.hpp>"},
        {"src/model/Ramo.cpp", "#include \"app/clsAmbiente.h\""},
        {"src/base/numeri.cpp", "#include \"model/Ramo.h\""},
        {"src/base/testo.h", "#include <utf8.h>"},
        {"src/calc/modCalcolo.cpp", "#include \"results/tabella.h\""},
        {"src/calc/modCalcolo.cpp", "  #  include\t<nlohmann/json.hpp>"},
        {"src/calc/modCalcolo.h", "#include <QtWidgets/QWidget>"},
        {"src/calc/modCalcolo.h", "#include <QString>"},
        {"src/calc/modCalcolo.h", "#include <QWidget>"},
        {"src/calc/modCalcolo.cpp", "#include <utf8.h>"},
        {"src/calc/modCalcolo.cpp", "#include <unistd.h>"},
        {"src/calc/modCalcolo.cpp", "#include <csv.h>"},
        {"src/input/fileCSV.h", "#include <csv.h>"},
        {"src/calc/modCalcolo.cpp", "#include <boost/any.hpp>"},
        {"src/calc/modCalcolo.cpp", "#include \"modCalcolo.h\""},
        {"src/calc/modCalcolo.cpp", "#include \"../model/Ramo.h\""},
        {"src/disegno/grafico.cpp", "#include <QtWidgets/QWidget>"},
        {"src/shell/servizi/tBox.h", "#include \"shell/Main.h\""},
        {"src/ignota/cosa.h", "#include <string>"},
        {"src/cosa.h", "#include <string>"},
        {"src/shell/Main.cpp", "#include <windows.h>"},
        {"src/shell/Main.cpp", "#include \"platform/Piattaforma.h\""},
        {"src/platform/Piattaforma.h", "#include <windows.h>"},
        {"src/platform/windows/cartelle.cpp", "#include \"platform/linux/cartelle.h\""},
        {"src/platform/linux/cartelle.cpp", "#include \"platform/windows/testi.h\""},
        {"apps/kelvo/main.cpp", "#include \"platform/linux/cartelle.h\""},
        {"apps/kelvo-cli/main.cpp", "#include \"platform/windows/cartelle.h\""},
        {"apps/kelvo-cli/main.cpp", "#include \"ui/vista.h\""},
        {"apps/kelvo-cli/main.cpp", "#include \"Manca.h\""},
        {"apps/kelvo-cli/main.cpp", "#include <QtCore/QString>"},
    };
    for (const Caso& caso : casi) {
        const std::string testo = "#pragma once\n#include <string>\n" + caso.riga + "\nint x;\n";
        EXPECT_EQ(estranei(caso.percorso, testo, {}).size(), 1U) << caso.percorso << ": " << caso.riga;
    }
}

TEST(Stanze, AFileMayIncludeWhatTheTableAllows) {
    struct Caso {
        std::string percorso;
        std::string riga;
    };
    const std::vector<Caso> casi{
        {"src/model/Rotonda.cpp", "#include <nlohmann/json.hpp>"},
        {"src/base/testo.cpp", "#include <utf8.h>"},
        {"src/calc/modCalcolo.cpp", "#include <fmt/format.h>"},
        {"src/calc/modCalcolo.cpp", "#include \"base/guasto.h\""},
        {"src/calc/modCalcolo.cpp", "#include \"calc/modCalcolo.h\""},
        {"src/results/livello.h", "#include \"calc/modCalcolo.h\""},
        {"src/input/fileCSV.cpp", "#include <csv.h>"},
        {"src/platform/linux/file.cpp", "#include <fcntl.h>"},
        {"src/platform/linux/file.cpp", "#include <sys/stat.h>"},
        {"src/platform/windows/file.cpp", "#include <windows.h>"},
        {"src/platform/windows/file.cpp", "#include \"platform/Piattaforma.h\""},
        {"apps/kelvo/main.cpp", "#include \"platform/Piattaforma.h\""},
        {"src/disegno/grafico.cpp", "#include <QtGui/QPainter>"},
        {"src/ui/vista.cpp", "#include <QtWidgets/QWidget>"},
        {"src/shell/Main.cpp", "#include \"shell/servizi/tBox.h\""},
        {"apps/kelvo-cli/main.cpp", "#include <CLI/CLI.hpp>"},
        {"apps/kelvo-cli/main.cpp", "#include \"comandi/Calcola.h\""},
        {"src/base/testo.h", "// #include <QtWidgets/QWidget> is a remark"},
    };
    for (const Caso& caso : casi) {
        const std::string testo = caso.riga + "\r\n#include <vector>\n";
        EXPECT_EQ(estranei(caso.percorso, testo, {"comandi/Calcola.h"}), std::vector<std::string>{}) << caso.riga;
    }
}

TEST(Stanze, AWrongLinkOfTheBuildIsFound) {
    EXPECT_EQ(legamiEstranei("kelvo_stanza(base USA model LIBRERIE fmt::fmt)\nkelvo_stanza(app USA model base)").size(),
              1U);
    EXPECT_EQ(legamiEstranei("kelvo_stanza(calc\n  USA app results base)").size(), 1U);
    EXPECT_EQ(legamiEstranei("kelvo_stanza(ignota USA base)").size(), 1U);
    EXPECT_EQ(legamiEstranei("kelvo_stanza(shell/servizi USA app LIBRERIE sigc::sigc)").size(), 0U);
}

TEST(Stanze, NoSourceIsLongerThanFiveHundredLines) {
    constexpr std::ptrdiff_t massimo = 500;
    int letti = 0;
    for (const std::string& percorso : fileDelDeposito()) {
        if (sorgente(percorso) && inCartella(percorso, "src")) {
            ++letti;
            const std::string testo = testoDelDeposito(percorso);
            EXPECT_LE(std::count(testo.begin(), testo.end(), '\n'), massimo) << percorso;
        }
    }
    EXPECT_GT(letti, 30);
}

}  // namespace
}  // namespace kelvo::prove
