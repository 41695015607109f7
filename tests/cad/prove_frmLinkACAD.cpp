#include "cad/frmLinkACAD.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "scenaCad.h"

namespace kelvo::prove {
namespace {

struct LinkACAD : ScenaCad {
    LinkACAD() {
        progetto({40.0F, 40.0F, 40.0F});
        scriviContenuto(progettoSalvato(), "progetto");
        impostazioni.scrivi("KelvoCAD 2014", "StartUp", "FilePathKelvo", progettoSalvato());
    }
    std::string progettoSalvato() const { return cartella.file("Città è.klv"); }
    void dueVersioni() {
        registro.prodotto("R16.2", "ACAD-4001:410", "C:\\Acad 2006", "Italiano");
        registro.prodotto("R17.2", "ACAD-7001:409", "C:\\Acad 2009", "English");
    }
    frmLinkACAD& finestra() {
        if (!aperta) {
            aperta.emplace(contorno(), kelvoCAD);
        }
        return *aperta;
    }
    std::string macro() const { return cartella.file("Prog/KelvoCAD/doc/KelvoCAD2008.dvb"); }
    std::optional<frmLinkACAD> aperta;
};

TEST_F(LinkACAD, ListsTheVersionsAndBeginsWithTheLast) {
    dueVersioni();
    EXPECT_EQ(finestra().lstACAD.voci(),
              (std::vector<std::string>{"  >  Autocad 2006  -  Italiano", "  >  Autocad 2009  -  English"}));
    EXPECT_EQ(finestra().lstACAD.scelta(), 1);
    EXPECT_EQ(finestra().ProgIDAutoCAD(), "AutoCAD.Application.17.2");
    EXPECT_TRUE(finestra().cmdAVVIAcad.abilitato());
    EXPECT_TRUE(finestra().lblCartella.visibile());
    EXPECT_FALSE(finestra().lblVuoto.visibile());
    EXPECT_FALSE(finestra().lblInvece.visibile());
    EXPECT_EQ(finestra().lblProgetto.testo(), "Progetto salvato per ultimo: " + progettoSalvato());
}

TEST_F(LinkACAD, ChoosingARowSetsTheAutomationName) {
    dueVersioni();
    finestra().lstACAD.scegli(0);
    EXPECT_EQ(finestra().ProgIDAutoCAD(), "AutoCAD.Application.16.2");
    EXPECT_TRUE(finestra().cmdAVVIAcad.abilitato());
    EXPECT_EQ(finestra().lblCartella.testo(), "Cartella: C:\\Acad 2006");
    EXPECT_TRUE(finestra().lblCartella.visibile());
    finestra().lstACAD.scegli(1);
    EXPECT_EQ(finestra().ProgIDAutoCAD(), "AutoCAD.Application.17.2");
    EXPECT_EQ(finestra().lblCartella.testo(), "Cartella: C:\\Acad 2009");
}

TEST_F(LinkACAD, AVersionWhoseFolderIsNotToldShowsNone) {
    registro.prodotto("R17.0", "ACAD-5001:410", "", "Italiano");
    EXPECT_FALSE(finestra().lblCartella.visibile());
    EXPECT_TRUE(finestra().cmdAVVIAcad.abilitato());
}

TEST_F(LinkACAD, AnInstanceThatRunsIsShownAndReadsTheProject) {
    dueVersioni();
    cad.corre = true;
    finestra().lstACAD.scegli(1);
    finestra().cmdAVVIAcad.premi();
    EXPECT_EQ(cad.passi,
              (std::vector<std::string>{"inCorso AutoCAD.Application.17.2", "Visible true", "LoadDVB " + macro(),
                                        "RunMacro " + macro() + "!Module1.LeggiDatiKlvFromKELVO"}));
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(finestra().lblEsito.testo(), "AutoCAD ha letto il progetto.");
    EXPECT_TRUE(finestra().lblEsito.visibile());
    finestra().lstACAD.scegli(0);
    EXPECT_FALSE(finestra().lblEsito.visibile()) << "that was told of another version";
}

TEST_F(LinkACAD, WithoutAnInstanceItAsksAndOnYesStartsOne) {
    dueVersioni();
    risposte = {Risposta::si};
    finestra().lstACAD.scegli(0);
    finestra().cmdAVVIAcad.premi();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "AutoCAD non è avviato. Avvio adesso?");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "Kelvo 2014");
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
    EXPECT_EQ(cad.passi, (std::vector<std::string>{"inCorso AutoCAD.Application.16.2", "crea AutoCAD.Application.16.2",
                                                   "Visible true", "Activate", "LoadDVB " + macro(),
                                                   "RunMacro " + macro() + "!Module1.LeggiDatiKlvFromKELVO"}));
    EXPECT_EQ(finestra().lblEsito.testo(), "AutoCAD ha letto il progetto.");
}

TEST_F(LinkACAD, OnNoNothingIsStarted) {
    dueVersioni();
    risposte = {Risposta::no};
    finestra().lstACAD.scegli(0);
    finestra().cmdAVVIAcad.premi();
    EXPECT_EQ(cad.passi, std::vector<std::string>{"inCorso AutoCAD.Application.16.2"});
    EXPECT_TRUE(errori.empty());
    EXPECT_FALSE(finestra().lblEsito.visibile());
}

TEST_F(LinkACAD, EveryOperationThatFailsIsLoggedAndEndsTheDrawingThere) {
    dueVersioni();
    finestra().lstACAD.scegli(0);
    const auto prima = app.theRotonda().revisione().tutto;
    const std::vector<std::string> operazioni{"inCorso", "crea", "Visible", "Activate", "LoadDVB", "RunMacro"};
    for (std::size_t i = 0; i < operazioni.size(); ++i) {
        cad.passi.clear();
        errori.clear();
        messaggi.mostrati.clear();
        cad.rifiutata = operazioni[i];
        risposte = {};
        if (operazioni[i] != "inCorso") {
            risposte = {Risposta::si};
        }
        finestra().cmdAVVIAcad.premi();
        EXPECT_EQ(cad.passi.size(), i + 1) << operazioni[i];
        ASSERT_EQ(metodi(), std::vector<std::string>{"frmLinkACAD:cmdAVVIAcad"}) << operazioni[i];
        EXPECT_EQ(errori[0].numero, 440);
        EXPECT_EQ(messaggi.mostrati.back().titolo, "KELVO 2014frmLinkACAD:cmdAVVIAcad");
        EXPECT_NE(messaggi.mostrati.back().testo.find(operazioni[i]), std::string::npos);
        EXPECT_FALSE(finestra().lblEsito.visibile());
    }
    EXPECT_NE(log().find("Metodo: frmLinkACAD:cmdAVVIAcad - Descrizione: Errore di automazione (RunMacro"),
              std::string::npos)
        << log();
    EXPECT_EQ(app.theRotonda().revisione().tutto, prima);
}

TEST_F(LinkACAD, WithoutAVersionItSaysSoAndWhatToDoInstead) {
    EXPECT_FALSE(finestra().lstACAD.visibile());
    EXPECT_FALSE(finestra().lblVersioni.visibile());
    EXPECT_FALSE(finestra().lblIstruzioni.visibile());
    EXPECT_FALSE(finestra().lblProgetto.visibile());
    EXPECT_FALSE(finestra().cmdAVVIAcad.visibile());
    EXPECT_TRUE(finestra().lblVuoto.visibile());
    EXPECT_EQ(finestra().lblVuoto.testo(),
              "Su questo computer non risulta installata nessuna delle versioni di AutoCAD previste, dalla 2004 alla "
              "2009.");
    EXPECT_TRUE(finestra().lblInvece.visibile());
    EXPECT_NE(finestra().lblInvece.testo().find("«Esporta DXF...»"), std::string::npos);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(LinkACAD, WhereNoProgramCanBeDrivenItTellsWhy) {
    cad.manca = "manca tutto";
    EXPECT_EQ(finestra().lblVuoto.testo(), "Il collegamento non è possibile: manca tutto.");
    EXPECT_FALSE(finestra().cmdAVVIAcad.abilitato());
    dueVersioni();
    frmLinkACAD altra(contorno(), kelvoCAD);
    altra.lstACAD.scegli(0);
    EXPECT_FALSE(altra.cmdAVVIAcad.abilitato()) << "a row alone is not enough";
}

TEST_F(LinkACAD, WithoutAutomationTheButtonStaysClosed) {
    dueVersioni();
    modKelvoCAD senza{app, {documenti, impostazioni, salvataggio, &registro, nullptr}};
    frmLinkACAD altra(contorno(), senza);
    altra.lstACAD.scegli(0);
    altra.cmdAVVIAcad.premi();
    EXPECT_FALSE(altra.cmdAVVIAcad.abilitato());
}

TEST_F(LinkACAD, AProjectThatWasNeverSavedIsTold) {
    dueVersioni();
    impostazioni.valori.clear();
    cad.corre = true;
    EXPECT_EQ(finestra().lblProgetto.testo(), "Nessun progetto è stato ancora salvato: salvarlo prima.");
    EXPECT_TRUE(finestra().lblProgetto.visibile());
    for (const int riga : {0, 1}) {
        finestra().lstACAD.scegli(riga);
        EXPECT_FALSE(finestra().cmdAVVIAcad.abilitato()) << riga;
        finestra().cmdAVVIAcad.premi();
    }
    EXPECT_TRUE(cad.passi.empty());
}

TEST_F(LinkACAD, AProjectWhoseFileIsGoneIsToldAndNotDrawn) {
    dueVersioni();
    std::filesystem::remove(percorsoDaTesto(progettoSalvato()));
    EXPECT_EQ(finestra().lblProgetto.testo(),
              "Il progetto salvato per ultimo non si trova più: salvarlo di nuovo prima (" + progettoSalvato() + ").");
    finestra().lstACAD.scegli(0);
    EXPECT_FALSE(finestra().cmdAVVIAcad.abilitato());
    std::filesystem::create_directory(percorsoDaTesto(progettoSalvato()));
    frmLinkACAD altra(contorno(), kelvoCAD);
    EXPECT_FALSE(altra.cmdAVVIAcad.abilitato()) << "a folder is no project";
}

TEST_F(LinkACAD, ItsButtonClosesIt) {
    int chiusure = 0;
    finestra().cmdChiudi.premi();
    finestra().allaChiusura = [&] { ++chiusure; };
    finestra().cmdChiudi.premi();
    EXPECT_EQ(chiusure, 1);
}

}  // namespace
}  // namespace kelvo::prove
