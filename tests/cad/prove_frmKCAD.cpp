#include "cad/frmKCAD.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "scenaCad.h"

namespace kelvo::prove {
namespace {

struct InfoKelvoCAD : ScenaCad {
    frmKCAD finestra{contorno(), documenti};
};

TEST_F(InfoKelvoCAD, ItsThreeCommandsGoByTag) {
    int chiusure = 0;
    finestra.allaChiusura = [&] { ++chiusure; };
    finestra.comando("VAQ");
    EXPECT_EQ(documenti.aperti.size(), 1U);
    finestra.comando("PDF");
    EXPECT_EQ(documenti.aperti.size(), 2U);
    finestra.comando("Chiudi");
    EXPECT_EQ(chiusure, 1);
}

TEST_F(InfoKelvoCAD, DocumentsAreOpenedBetweenDoubleQuotes) {
    finestra.cmdVAQ.premi();
    finestra.cmdPDF.premi();
    EXPECT_EQ(documenti.aperti,
              (std::vector<std::string>{"\"" + cartella.file("Prog/Kelvo/Support/Vaq KelvoCAD.htm") + "\"",
                                        "\"" + cartella.file("Prog/Kelvo/Support/SW_KelvoCAD_2010.pdf") + "\""}));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(InfoKelvoCAD, ADocumentThatCannotBeOpenedIsTold) {
    documenti.riesce = false;
    finestra.cmdPDF.premi();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Impossibile aprire " + cartella.file("Prog/Kelvo/Support/SW_KelvoCAD_2010.pdf"));
}

TEST_F(InfoKelvoCAD, TheKeyboardBeginsOnTheButtonThatCloses) {
    EXPECT_EQ(finestra.fuoco(), &finestra.cmdChiudi);
}

TEST_F(InfoKelvoCAD, ChiudiClosesAndAnUnknownTagDoesNothing) {
    int chiusure = 0;
    finestra.cmdChiudi.premi();
    finestra.allaChiusura = [&] { ++chiusure; };
    finestra.comando("altro");
    EXPECT_EQ(chiusure, 0);
    finestra.cmdChiudi.premi();
    EXPECT_EQ(chiusure, 1);
    EXPECT_TRUE(documenti.aperti.empty());
}

TEST_F(InfoKelvoCAD, ItTellsWhetherTheCompanionStandsAndWhere) {
    const std::string compagno = cartella.file("KELVOCAD 2014/KelvoCAD 2014.exe");
    EXPECT_EQ(finestra.lblStato.testo(), "KelvoCAD non è installato su questo computer.");
    EXPECT_TRUE(finestra.lblInvece.visibile());
    std::filesystem::create_directories(percorsoDaTesto(cartella.file("KELVOCAD 2014")));
    scriviContenuto(compagno, "");
    const frmKCAD altra(contorno(), documenti);
    EXPECT_EQ(altra.lblStato.testo(), "KelvoCAD è installato: " + compagno);
    EXPECT_FALSE(altra.lblInvece.visibile());
}

}  // namespace
}  // namespace kelvo::prove
