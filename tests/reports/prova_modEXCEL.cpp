// The run that hands the results to the spreadsheet.

#include <unistd.h>

#include "comune/fileDifettosi.h"
#include "foglioProva.h"
#include "reports/modEXCEL.h"
#include "results/calcoloIpotesi.h"

namespace kelvo::prove {
namespace {

struct Esportazione : Scena {
    explicit Esportazione(const Forma& forma = {}) : Scena(forma) {}
    EsitoFoglio esporta(const std::string& dove = {}) {
        return modEXCEL(app, {.messaggi = messaggi, .documenti = &documenti, .percorso = dove}).compilaRelazioneExcel();
    }
    /// On the command line nobody opens anything.
    EsitoFoglio senzaNessuno(const std::string& dove) {
        return modEXCEL(app, {.messaggi = messaggi, .documenti = nullptr, .percorso = dove}).compilaRelazioneExcel();
    }
    std::string foglio() const { return cartella.file("XLS/Risultati.xlsx"); }
    FoglioLetto scritto() const { return FoglioLetto(contenuto(foglio())); }
    int accanto(const std::string& sotto) const {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(cartella.file(sotto)), {}));
    }
};

TEST(EsportaFoglio, WritesTheWorkbookIntoItsFolderAndOpensIt) {
    Esportazione e;
    EXPECT_EQ(e.esporta(), EsitoFoglio::fatto);
    ASSERT_EQ(e.documenti.aperti.size(), 1U);
    EXPECT_EQ(e.documenti.aperti.front(), e.foglio());
    EXPECT_TRUE(e.messaggi.mostrati.empty());
    EXPECT_EQ(e.accanto("XLS"), 1);
    EXPECT_EQ(e.scritto().nomi().front(), "Verifiche");
}

TEST(EsportaFoglio, TheFolderIsFoundWhateverItsCase) {
    Esportazione e;
    std::filesystem::create_directory(e.cartella.file("xls"));
    EXPECT_EQ(e.esporta(), EsitoFoglio::fatto);
    EXPECT_TRUE(std::filesystem::exists(e.cartella.file("xls/Risultati.xlsx")));
    EXPECT_FALSE(std::filesystem::exists(e.cartella.file("XLS")));
}

TEST(EsportaFoglio, ASystemWithoutASpreadsheetIsToldWhereTheFileIs) {
    Esportazione e;
    e.documenti.riesce = false;
    EXPECT_EQ(e.esporta(), EsitoFoglio::fatto);
    ASSERT_EQ(e.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(e.messaggi.mostrati[0].testo,
              "Nessun programma del sistema ha aperto il foglio di calcolo. Il file è:\r\n" + e.foglio());
    EXPECT_EQ(e.messaggi.mostrati[0].titolo, "KELVO 2014 - Informazione");
    EXPECT_TRUE(std::filesystem::exists(e.foglio()));
}

TEST(EsportaFoglio, FiguresThatAreNotTheProjectsOwnAreCalculatedFirst) {
    for (const std::int16_t analisi : std::initializer_list<std::int16_t>{1, 2}) {
        Esportazione giusta({.analisi = analisi});
        ASSERT_EQ(giusta.esporta(), EsitoFoglio::fatto);
        const std::string capacita = giusta.scritto().celle("A - Via A")["D4"].testo;
        Esportazione altra({.analisi = analisi});
        modCalcolo motore(altra.app);
        ASSERT_TRUE(preparaIpotesi(altra.app, motore));
        Geometria larga = geometriaDi(altra.app.theRotonda().Ramo(1));
        larga.e = 9.0F;
        ASSERT_TRUE(calcolaIpotesi(altra.app, motore, 1, larga));
        ASSERT_EQ(altra.esporta(), EsitoFoglio::fatto);
        EXPECT_EQ(altra.scritto().celle("A - Via A")["D4"].testo, capacita);
        // Data that changed are calculated anew as well.
        altra.app.theRotonda().Ramo(1).LarghezzaIngresso(9.0F);
        ASSERT_EQ(altra.esporta(), EsitoFoglio::fatto);
        EXPECT_NE(altra.scritto().celle("A - Via A")["D4"].testo, capacita);
    }
}

TEST(EsportaFoglio, FiguresThatStandAreNotCalculatedAgain) {
    Esportazione e;
    modCalcolo(e.app).Calcola_Tempo_Flusso("0");
    e.app.theRotonda().Ramo(1).theDatiTraffico().SetIterazione(1, {.Flusso = 77.0F});
    e.esporta();
    EXPECT_EQ(e.scritto().celle("A - Via A")["C4"].testo, "77");
}

TEST(EsportaFoglio, ACalculationThatFailsLeavesWhatStoodThere) {
    Esportazione e;
    ASSERT_EQ(e.esporta(), EsitoFoglio::fatto);
    const std::string prima = contenuto(e.foglio());
    e.app.theRotonda().Ramo(2).RaggioIngresso(0.0F);
    EXPECT_EQ(e.esporta(), EsitoFoglio::fallito);
    EXPECT_EQ(contenuto(e.foglio()), prima);
    EXPECT_EQ(e.documenti.aperti.size(), 1U);
    ASSERT_EQ(e.messaggi.mostrati.size(), 1U);
    EXPECT_NE(e.messaggi.mostrati[0].testo.find("Divisione per zero"), std::string::npos);
}

TEST(EsportaFoglio, AWorkbookThatIsOpenIsReplacedOnlyWhenTheUserSaysSo) {
    for (const char* segno : {".~lock.Risultati.xlsx#", "~$Risultati.xlsx"}) {
        Esportazione e;
        std::filesystem::create_directory(e.cartella.file("XLS"));
        scriviContenuto(e.foglio(), "vecchio");
        scriviContenuto(e.cartella.file(std::string("XLS/") + segno), "");
        EXPECT_EQ(segnoFoglioAperto(e.foglio()), e.cartella.file(std::string("XLS/") + segno));
        e.messaggi.risposta = Risposta::annulla;
        EXPECT_EQ(e.esporta(), EsitoFoglio::annullato);
        ASSERT_EQ(e.messaggi.mostrati.size(), 1U);
        EXPECT_EQ(e.messaggi.mostrati[0].testo, "Il file è aperto in un foglio di calcolo:\r\n" + e.foglio() +
                                                    "\r\nChiuderlo, poi premere OK per sostituirlo.");
        EXPECT_EQ(e.messaggi.mostrati[0].pulsanti, Pulsanti::okAnnulla);
        EXPECT_EQ(contenuto(e.foglio()), "vecchio");
        EXPECT_EQ(e.app.theRotonda().timbro().forma, FormaCalcolo::nessuna) << "nothing was calculated either";
        EXPECT_TRUE(e.documenti.aperti.empty());
        e.messaggi.risposta = Risposta::ok;
        EXPECT_EQ(e.esporta(), EsitoFoglio::fatto);
        EXPECT_EQ(e.scritto().nomi().size(), 8U);
        // Where nobody can be asked it is a failure with its words.
        scriviContenuto(e.foglio(), "vecchio");
        EXPECT_EQ(e.senzaNessuno(e.foglio()), EsitoFoglio::fallito);
        EXPECT_EQ(contenuto(e.foglio()), "vecchio");
        EXPECT_EQ(e.errori.back().metodo, "modStampaRelazione:compilaRelazioneExcel");
        EXPECT_EQ(e.errori.back().numero, 70);
        EXPECT_NE(e.errori.back().descrizione.find(segno), std::string::npos);
    }
}

TEST(EsportaFoglio, ALinkToAWorkbookThatIsOpenIsNotWrittenThrough) {
    for (const char* segno : {".~lock.Vero.xlsx#", "~$Vero.xlsx"}) {
        Esportazione e;
        std::filesystem::create_directory(e.cartella.file("altrove"));
        const std::string vero = e.cartella.file("altrove/Vero.xlsx");
        const std::string legame = e.cartella.file("Legame.xlsx");
        scriviContenuto(vero, "vecchio");
        std::filesystem::create_symlink("altrove/Vero.xlsx", legame);
        EXPECT_EQ(segnoFoglioAperto(legame), "");
        const std::string accanto = e.cartella.file(std::string("altrove/") + segno);
        scriviContenuto(accanto, "");
        EXPECT_EQ(segnoFoglioAperto(legame), accanto);
        EXPECT_EQ(e.senzaNessuno(legame), EsitoFoglio::fallito);
        EXPECT_EQ(contenuto(vero), "vecchio");
        EXPECT_EQ(e.errori.back().descrizione, "Il file \"" + legame +
                                                   "\" è aperto in un foglio di calcolo: va prima chiuso (se non è più "
                                                   "aperto, va eliminato \"" +
                                                   accanto + "\")");
        std::filesystem::remove(accanto);
        EXPECT_EQ(e.senzaNessuno(legame), EsitoFoglio::fatto);
        EXPECT_EQ(contenuto(vero).substr(0, 2), "PK");
        EXPECT_TRUE(std::filesystem::is_symlink(legame));
    }
}

TEST(EsportaFoglio, AKindOfAnalysisThatDoesNotExistIsRefused) {
    for (const std::int16_t analisi : std::initializer_list<std::int16_t>{-1, 3}) {
        Esportazione e;
        e.app.theRotonda().TipoAnalisi(analisi);
        EXPECT_EQ(e.esporta(), EsitoFoglio::fallito);
        ASSERT_EQ(e.errori.size(), 1U);
        EXPECT_EQ(e.errori[0].numero, 5);
        EXPECT_EQ(e.errori[0].descrizione,
                  "il tipo di analisi " + std::to_string(analisi) + " non è previsto: i valori sono 0, 1 e 2");
        EXPECT_EQ(e.messaggi.mostrati.size(), 1U);
        EXPECT_FALSE(std::filesystem::exists(e.foglio()));
    }
}

TEST(EsportaFoglio, AFullDiskLeavesTheOldFile) {
    Scena scena;
    std::string perche;
    bool esito = false;
    scena.app.theRotonda().Save(scena.cartella.file("prova.klv"), perche, esito);
    ASSERT_TRUE(esito) << perche;
    for (const PassoFile passo : {PassoFile::crea, PassoFile::scrivi, PassoFile::sincronizza, PassoFile::rinomina}) {
        FileDifettosi pieno(sistemaFileStandard(), passo, Incidente::errore);
        const CartellaTemporanea cartella;
        MessaggiFinti messaggi;
        OrologioFinto orologio;
        DocumentiFinti documenti;
        Applicazione app(cartella.percorso(), cartella.percorso(), {messaggi, orologio, pieno});
        app.configurazione.coefficienti(coefficientiDiFabbrica);
        app.caricaRotonda(scena.cartella.file("prova.klv"), perche, esito);
        ASSERT_TRUE(esito) << perche;
        std::filesystem::create_directory(cartella.file("XLS"));
        const std::string foglio = cartella.file("XLS/Risultati.xlsx");
        scriviContenuto(foglio, "vecchio");
        modEXCEL modulo(app, {.messaggi = messaggi, .documenti = &documenti});
        EXPECT_EQ(modulo.compilaRelazioneExcel(), EsitoFoglio::fallito);
        EXPECT_EQ(contenuto(foglio), "vecchio");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella.file("XLS")), {}), 1);
        ASSERT_EQ(messaggi.mostrati.size(), 1U);
        EXPECT_NE(messaggi.mostrati[0].testo.find("Impossibile scrivere \"" + foglio + "\""), std::string::npos)
            << messaggi.mostrati[0].testo;
        EXPECT_TRUE(documenti.aperti.empty());
    }
}

TEST(EsportaFoglio, ATargetThatCannotBeWrittenIsToldWithItsLabel) {
    Esportazione e;
    std::filesystem::create_directories(e.foglio());
    EXPECT_EQ(e.esporta(), EsitoFoglio::fallito);
    ASSERT_EQ(e.errori.size(), 1U);
    EXPECT_EQ(e.errori[0].metodo, "modStampaRelazione:compilaRelazioneExcel");
    EXPECT_EQ(e.errori[0].numero, 75);
    EXPECT_EQ(e.errori[0].descrizione.rfind("Impossibile scrivere \"" + e.foglio() + "\": ", 0), 0U);
    EXPECT_EQ(e.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(e.accanto("XLS"), 1);
}

TEST(EsportaFoglio, AFolderThatCannotBeWrittenIsTold) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "per l'amministratore nessuna cartella è di sola lettura";
    }
    Esportazione e;
    std::filesystem::create_directory(e.cartella.file("XLS"));
    std::filesystem::permissions(e.cartella.file("XLS"),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_EQ(e.esporta(), EsitoFoglio::fallito);
    EXPECT_EQ(e.errori.back().numero, 75);
    std::filesystem::permissions(e.cartella.file("XLS"), std::filesystem::perms::owner_all);
    EXPECT_EQ(e.accanto("XLS"), 0);
}

TEST(EsportaFoglio, AReadOnlyWorkbookIsTold) {
    Esportazione e;
    std::filesystem::create_directory(e.cartella.file("XLS"));
    scriviContenuto(e.foglio(), "vecchio");
    std::filesystem::permissions(e.foglio(), std::filesystem::perms::owner_read);
    EXPECT_EQ(e.esporta(), EsitoFoglio::fallito);
    EXPECT_EQ(contenuto(e.foglio()), "vecchio");
    EXPECT_EQ(e.messaggi.mostrati.size(), 1U);
}

TEST(EsportaFoglio, ThePathThatIsGivenIsWrittenAndNothingIsOpened) {
    Esportazione e;
    EXPECT_EQ(e.senzaNessuno(e.cartella.file("Altro.xlsx")), EsitoFoglio::fatto);
    EXPECT_EQ(FoglioLetto(contenuto(e.cartella.file("Altro.xlsx"))).nomi().size(), 8U);
    EXPECT_FALSE(std::filesystem::exists(e.cartella.file("XLS")));
    EXPECT_TRUE(e.messaggi.mostrati.empty());
    EXPECT_EQ(e.senzaNessuno(e.cartella.file("manca/Altro.xlsx")), EsitoFoglio::fallito);
}

TEST(EsportaFoglio, AStudyOfSaturationAloneIsExportedWithItsUltimateCapacity) {
    Esportazione e({.analisi = 0});
    EXPECT_EQ(e.esporta(), EsitoFoglio::fatto);
    EXPECT_TRUE(e.scritto().celle("Capacità ultima")["B4"].numero);
    EXPECT_TRUE(e.errori.empty());
}

TEST(EsportaFoglio, TheProjectIsNotChanged) {
    Esportazione e;
    const Revisione prima = e.app.theRotonda().revisione();
    const std::string testo = e.app.theRotonda().TestoFile();
    ASSERT_EQ(e.esporta(), EsitoFoglio::fatto);
    EXPECT_EQ(e.app.theRotonda().revisione().calcolo, prima.calcolo);
    EXPECT_EQ(e.app.theRotonda().revisione().tutto, prima.tutto);
    EXPECT_EQ(e.app.theRotonda().TestoFile(), testo);
}

}  // namespace
}  // namespace kelvo::prove
