// The validation report: its tables are those that the program gives now, and every figure is within its tolerance.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "comune/cartella.h"
#include "validazione/tavole.h"

namespace kelvo::prove {

namespace {

const std::filesystem::path radice = KELVO_SORGENTI;

std::string cartellaCasi() {
    return (radice / "tests" / "calc" / "casi").string();
}

/// The part of the report that stands between its markers.
std::string tavoleDelDocumento() {
    const std::string inizio = "<!-- tavole: inizio -->\n\n";
    const std::string fine = "\n<!-- tavole: fine -->\n";
    const std::string documento = contenuto((radice / "docs" / "validazione.md").string());
    const std::size_t da = documento.find(inizio);
    const std::size_t a = documento.find(fine);
    if (da == std::string::npos || a == std::string::npos) {
        return "no markers";
    }
    return documento.substr(da + inizio.size(), a - da - inizio.size());
}

}  // namespace

TEST(Validazione, DocumentHoldsTheTablesOfThisProgram) {
    EXPECT_EQ(tavoleDelDocumento(), validazione::tavole(cartellaCasi()).testo)
        << "strumenti/aggiorna_validazione.sh brings the document up to date";
}

TEST(Validazione, EveryFigureIsWithinItsTolerance) {
    const validazione::Tavole fatte = validazione::tavole(cartellaCasi());
    EXPECT_EQ(fatte.fuori, 0) << fatte.testo;
    // Six parameters of 3 entries, four figures of 9 lines, five of the example, four of 2 queues, ten levels.
    EXPECT_EQ(fatte.confronti, 6 * 3 + 4 * 9 + 5 + 4 * 2 + 10);
    EXPECT_EQ(fatte.testo.find("NON CONFORME"), std::string::npos);
}

TEST(Validazione, AFigureOutOfToleranceIsTold) {
    const CartellaTemporanea copia;
    for (const auto& voce : std::filesystem::directory_iterator(cartellaCasi())) {
        std::string testo = contenuto(voce.path().string());
        if (voce.path().filename() == "retta-1.txt") {
            const std::size_t posto = testo.find("intercetta=1740.308");
            ASSERT_NE(posto, std::string::npos);
            testo.replace(posto, 19, "intercetta=1740.309");
        }
        scriviContenuto(copia.file(voce.path().filename().string()), testo);
    }
    const validazione::Tavole fatte = validazione::tavole(copia.percorso());
    EXPECT_EQ(fatte.fuori, 1);
    EXPECT_NE(fatte.testo.find("**NON CONFORME**"), std::string::npos);
}

TEST(Validazione, AFolderWithoutCasesIsRefused) {
    const CartellaTemporanea vuota;
    EXPECT_THROW(validazione::tavole(vuota.percorso()), std::runtime_error);
}

}  // namespace kelvo::prove
