#include "shell/frmINFO.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "base/versione.h"
#include "comune/appunti.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

TEST(Informazioni, TellsVersionMakerFoldersAndLicences) {
    ScenaFinestre scena;
    scena.app.configurazione.PathErrore = "FILELOGERROR.TXT";
    const frmINFO finestra(scena.contorno());
    EXPECT_EQ(finestra.lblProgramma.testo(), "KELVO 2014");
    EXPECT_EQ(finestra.lblVersione.testo(), "Versione " + std::string{versione()});
    EXPECT_EQ(finestra.lblProduttore.testo(), "Vaq");
    const std::string& html = finestra.ctlDettagli.html();
    const std::string c = scena.cartella.percorso();
    for (const std::string& percorso : {c + "/Relazioni", c + "/Modelli", c + "/XLS", c + "/Kelvo.ini",
                                        c + "/FILELOGERROR.TXT", scena.app.theAmbiente.CartellaLavoro()}) {
        EXPECT_NE(html.find("<td>" + percorso + "</td>"), std::string::npos) << percorso;
    }
    for (const LibreriaUsata& libreria : librerieUsate()) {
        EXPECT_NE(html.find("<td>" + std::string{libreria.nome} + "</td>"), std::string::npos);
        EXPECT_FALSE(libreria.licenza.empty()) << libreria.nome;
    }
}

TEST(Informazioni, EveryLibraryThatTheBuildFindsIsNamed) {
    std::set<std::string> nominate;
    for (const LibreriaUsata& libreria : librerieUsate()) {
        nominate.insert(std::string{libreria.nome});
    }
    EXPECT_EQ(nominate, (std::set<std::string>{"Qt 6", "libsigc++ 3", "libcsv", "{fmt}", "nlohmann/json", "pugixml",
                                               "libzip", "libxlsxwriter", "UTF8-CPP", "CLI11", "Open Sans"}));
}

TEST(Informazioni, CopiesVersionAndFoldersForWhoeverGivesHelp) {
    ScenaFinestre scena;
    AppuntiFinti appunti;
    scena.app.appunti = &appunti;
    frmINFO finestra(scena.contorno());
    finestra.cmdCopia.premi();
    EXPECT_EQ(appunti.testo, finestra.perAssistenza());
    EXPECT_EQ(appunti.testo.rfind("Kelvo " + std::string{versione()} + " (Vaq)\nProgramma: ", 0), 0U) << appunti.testo;
    EXPECT_NE(appunti.testo.find("\nConfigurazione: " + scena.cartella.percorso() + "/Kelvo.ini\n"), std::string::npos);
    EXPECT_EQ(appunti.testo.find('<'), std::string::npos);
    EXPECT_EQ(scena.cornice.avvisato, "Informazioni copiate negli appunti");
}

TEST(Informazioni, WithoutAClipboardTheButtonIsClosed) {
    ScenaFinestre scena;
    frmINFO finestra(scena.contorno());
    EXPECT_FALSE(finestra.cmdCopia.abilitato());
    int chiusa = 0;
    finestra.allaChiusura = [&] { ++chiusa; };
    finestra.cmdOk.premi();
    EXPECT_EQ(chiusa, 1);
}

TEST(Informazioni, AFolderWithMarksInItsNameIsShownAsItIs) {
    const CartellaTemporanea cartella;
    const std::string strana = cartella.file("<i>&C.");
    std::filesystem::create_directory(strana);
    MessaggiFinti messaggi;
    OrologioFinto orologio;
    Applicazione app(strana, strana, {messaggi, orologio, sistemaFileStandard()});
    StatoFinestre stato;
    CorniceFinta cornice;
    NavigazioneFinta navigazione;
    const frmINFO finestra({app, stato, cornice, navigazione});
    EXPECT_EQ(finestra.ctlDettagli.html().find("<i>"), std::string::npos);
    EXPECT_NE(finestra.ctlDettagli.html().find("&lt;i&gt;&amp;C."), std::string::npos);
}

}  // namespace
}  // namespace kelvo::prove
