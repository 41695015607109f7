#include <fmt/format.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "app/modCommonModule.h"
#include "base/guasto.h"
#include "comune/finti.h"
#include "comune/guasti.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

constexpr auto completo =
    "[FILE_LOG]\r\nPathError=FILELOGERROR.TXT\r\n[LAY_OUT]\r\nCustomPanel=3\r\n[TRACE_ENABLED]\r\nTraceEnabled=TRUE\r\n"
    "[10_MOTIVI]\r\nAvvia=1\r\n[VEICOLI EQUIVALENTI]\r\nAutoarticolati=2,5\r\nAutotreni=2.0\r\nPullman=1,8\r\n"
    "Camper=1,4\r\nRoulotte=1,2\r\nMotocicli=0,8\r\nAutovetture=1\r\n";

struct ProveComune : testing::Test {
    CartellaTemporanea cartella;
    MessaggiFinti messaggi;
    OrologioFinto orologio;
    clsAmbiente ambiente{cartella.percorso(), cartella.percorso(), sistemaFileStandard()};
    Configurazione configurazione;
    modCommonModule comune{ambiente, configurazione, messaggi, orologio};
    std::string ini = cartella.file("Kelvo.ini");
    std::string log = cartella.file("FILELOGERROR.TXT");

    void chiudiIni() { fs::permissions(ini, fs::perms::owner_read); }
    int guastoDi(const std::string& testo) {
        scriviContenuto(ini, testo);
        try {
            comune.LeggiConfigurazione();
        } catch (const Guasto& guasto) {
            return guasto.codice();
        }
        return 0;
    }
};

TEST_F(ProveComune, ReadsTheWholeConfiguration) {
    scriviContenuto(ini, completo);
    comune.LeggiConfigurazione();
    EXPECT_EQ(configurazione.PathErrore, "FILELOGERROR.TXT");
    EXPECT_EQ(configurazione.LayoutPannello, 3);
    EXPECT_TRUE(configurazione.TraceAbilitato);
    EXPECT_EQ(configurazione.AvvioFilmato, 1);
    EXPECT_EQ(configurazione.VEAutoarticolati, 2.5F);
    EXPECT_EQ(configurazione.VEAutotreni, 2.0F);
    EXPECT_EQ(configurazione.VEPullman, 1.8F);
    EXPECT_EQ(configurazione.VECamper, 1.4F);
    EXPECT_EQ(configurazione.VERoulotte, 1.2F);
    EXPECT_EQ(configurazione.VEMotocicli, 0.8F);
    EXPECT_EQ(configurazione.VEAutovetture, 1.0F);
}

TEST_F(ProveComune, MissingKeysReadAsEmptyTextAndZero) {
    configurazione.LayoutPannello = 5;
    configurazione.VEPullman = 7.0F;
    configurazione.PathErrore = "x";
    comune.LeggiConfigurazione();
    EXPECT_EQ(configurazione.PathErrore, "");
    EXPECT_EQ(configurazione.LayoutPannello, 0);
    EXPECT_EQ(configurazione.AvvioFilmato, 0);
    EXPECT_EQ(configurazione.VEPullman, 0.0F);
    EXPECT_FALSE(configurazione.TraceAbilitato);
}

TEST_F(ProveComune, TheTraceIsOnForTheExactTextAlone) {
    for (const std::string testo : {"true", "True", "1", "TRUE!", ""}) {
        scriviContenuto(ini, "[TRACE_ENABLED]\nTraceEnabled=" + testo + "\n");
        comune.LeggiConfigurazione();
        EXPECT_FALSE(configurazione.TraceAbilitato) << testo;
    }
}

TEST_F(ProveComune, ATextThatIsNoNumberIsFault13AndOneTooLargeFault6) {
    EXPECT_EQ(guastoDi("[LAY_OUT]\nCustomPanel=tre\n"), 13);
    EXPECT_EQ(guastoDi("[VEICOLI EQUIVALENTI]\nCamper=1,4,2\n"), 13);
    EXPECT_EQ(guastoDi("[10_MOTIVI]\nAvvia=40000\n"), 6);
    EXPECT_EQ(guastoDi("[10_MOTIVI]\nAvvia=1,5\n"), 0);
    EXPECT_EQ(configurazione.AvvioFilmato, 2) << "ties to even";
}

TEST_F(ProveComune, EachWriterWritesItsKeyAndKeepsWhatItReadsBack) {
    scriviContenuto(ini, completo);
    comune.ScriviCustomPanel(7);
    comune.ScriviAvvioFilmato(0);
    comune.ScriviOpzExplorer(1);
    comune.ScriviOpzMenu(2);
    EXPECT_EQ(configurazione.LayoutPannello, 7);
    EXPECT_EQ(configurazione.AvvioFilmato, 0);
    EXPECT_EQ(configurazione.OpzExplorer, 1);
    EXPECT_EQ(configurazione.OpzMenu, 2);
    EXPECT_EQ(ambiente.LeggiIni("LAY_OUT", "CustomPanel", ini), "7");
    EXPECT_EQ(ambiente.LeggiIni("10_MOTIVI", "Avvia", ini), "0");
    EXPECT_EQ(ambiente.LeggiIni("OPZ_EXPLORER", "Rami", ini), "1");
    EXPECT_EQ(ambiente.LeggiIni("OPZ_MENU", "Attivo", ini), "2");
}

TEST_F(ProveComune, WriterOfTheCoefficientsWritesAllSeven) {
    scriviContenuto(ini, completo);
    comune.ScriviVeicoliEquivalenti({1.5F, 2.5F, 3.5F, 4.5F, 5.5F, 6.5F, 7.5F});
    const CoefficientiVeicoli attesi{1.5F, 2.5F, 3.5F, 4.5F, 5.5F, 6.5F, 7.5F};
    EXPECT_EQ(configurazione.coefficienti(), attesi);
    EXPECT_EQ(configurazione.VEMotocicli, 6.5F);
    EXPECT_EQ(ambiente.LeggiIni("VEICOLI EQUIVALENTI", "Autoarticolati", ini), "1,5");
    EXPECT_EQ(ambiente.LeggiIni("VEICOLI EQUIVALENTI", "Motocicli", ini), "6,5");
    EXPECT_EQ(ambiente.LeggiIni("VEICOLI EQUIVALENTI", "Autovetture", ini), "7,5");
}

TEST_F(ProveComune, MemoryFollowsTheFileWhereAWriteFails) {
    scriviContenuto(ini, completo);
    chiudiIni();
    comune.ScriviCustomPanel(7);
    comune.ScriviAvvioFilmato(0);
    comune.ScriviOpzExplorer(1);
    comune.ScriviOpzMenu(1);
    comune.ScriviVeicoliEquivalenti({9, 9, 9, 9, 9, 9, 9});
    EXPECT_EQ(configurazione.LayoutPannello, 3);
    EXPECT_EQ(configurazione.AvvioFilmato, 1);
    EXPECT_EQ(configurazione.OpzExplorer, 0);
    EXPECT_EQ(configurazione.OpzMenu, 0);
    EXPECT_EQ(configurazione.coefficienti(), coefficientiDiFabbrica);
    EXPECT_EQ(contenuto(ini), completo);
}

TEST_F(ProveComune, ReadersOfTheLayoutsReadTheKeyKeepItAndAnswerIt) {
    EXPECT_EQ(comune.LeggiOpzExplorer(), 0);
    EXPECT_EQ(comune.LeggiOpzMenu(), 0);
    scriviContenuto(ini, "[OPZ_EXPLORER]\nRami=1\n[OPZ_MENU]\nAttivo=2\n");
    EXPECT_EQ(comune.LeggiOpzExplorer(), 1);
    EXPECT_EQ(configurazione.OpzExplorer, 1);
    EXPECT_EQ(configurazione.OpzMenu, 0);
    EXPECT_EQ(comune.LeggiOpzMenu(), 2);
    EXPECT_EQ(configurazione.OpzMenu, 2);
    scriviContenuto(ini, "[OPZ_EXPLORER]\nRami=per ramo\n");
    EXPECT_EQ(numeroGuasto([&] { comune.LeggiOpzExplorer(); }), 13);
    EXPECT_EQ(comune.LeggiOpzMenu(), 0) << "the key is gone";
}

/// A file system that looks at the configuration file behind each write, and fails from a given write on.
class FileSpiati final : public SistemaFile {
public:
    explicit FileSpiati(std::size_t riusciti) : riusciti_(riusciti) {}

    std::vector<std::string> contenuti;      ///< of the file behind each write
    std::function<void()> dopoUnaScrittura;  ///< may be empty

    std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) override {
        if (contenuti.size() == riusciti_) {
            errore = "incidente";
            return nullptr;
        }
        return sistemaFileStandard().crea(percorso, errore);
    }
    std::int64_t dimensione(const std::string& percorso) override { return sistemaFileStandard().dimensione(percorso); }
    std::string rinomina(const std::string& da, const std::string& a) override {
        const std::string errore = sistemaFileStandard().rinomina(da, a);
        contenuti.push_back(contenuto(a));
        return errore;
    }
    void elimina(const std::string& percorso) override { sistemaFileStandard().elimina(percorso); }
    void sincronizzaCartella(const std::string& /*percorso*/) override {
        if (dopoUnaScrittura) {
            dopoUnaScrittura();
        }
    }

private:
    std::size_t riusciti_;
};

struct ProveCoefficienti : ProveComune {
    static constexpr CoefficientiVeicoli nuovi{11.5F, 12.5F, 13.5F, 14.5F, 15.5F, 16.5F, 17.5F};

    void scrivi(FileSpiati& file) {
        scriviContenuto(ini, completo);
        comune.LeggiConfigurazione();
        clsAmbiente altro{cartella.percorso(), cartella.percorso(), file};
        modCommonModule(altro, configurazione, messaggi, orologio).ScriviVeicoliEquivalenti(nuovi);
    }
};

TEST_F(ProveCoefficienti, AreWrittenOneByOneInTheOrderOfTheTable) {
    FileSpiati file(100);
    scrivi(file);
    ASSERT_EQ(file.contenuti.size(), 7U);
    const std::vector<std::string> prima{"Autoarticolati=2,5", "Autotreni=2.0", "Pullman=1,8",  "Camper=1,4",
                                         "Roulotte=1,2",       "Motocicli=0,8", "Autovetture=1"};
    const std::vector<std::string> dopo{"Autoarticolati=11,5", "Autotreni=12,5", "Pullman=13,5",    "Camper=14,5",
                                        "Roulotte=15,5",       "Motocicli=16,5", "Autovetture=17,5"};
    for (std::size_t scritti = 1; scritti <= 7; ++scritti) {
        for (std::size_t i = 0; i < 7; ++i) {
            const std::string& attesa = i < scritti ? dopo[i] : prima[i];
            EXPECT_NE(file.contenuti[scritti - 1].find("\r\n" + attesa + "\r\n"), std::string::npos)
                << attesa << " behind write " << scritti;
        }
    }
}

TEST_F(ProveCoefficienti, AreReadBackAllSevenBehindTheLastWrite) {
    FileSpiati file(100);
    // Somebody else's values stand in the file as soon as the seventh write is done: each one is read.
    file.dopoUnaScrittura = [&] {
        EXPECT_EQ(configurazione.coefficienti(), coefficientiDiFabbrica) << "nothing is taken over between the writes";
        if (file.contenuti.size() == 7) {
            scriviContenuto(ini,
                            "[VEICOLI EQUIVALENTI]\nAutoarticolati=21\nAutotreni=22\nPullman=23\nCamper=24\n"
                            "Roulotte=25\nMotocicli=26\nAutovetture=27\n");
        }
    };
    scrivi(file);
    EXPECT_EQ(configurazione.coefficienti(), (CoefficientiVeicoli{21, 22, 23, 24, 25, 26, 27}));
}

TEST_F(ProveCoefficienti, FollowTheFileWhereTheWritesFailFromTheThirdOn) {
    FileSpiati file(2);
    scrivi(file);
    EXPECT_EQ(file.contenuti.size(), 2U);
    EXPECT_EQ(configurazione.coefficienti(), (CoefficientiVeicoli{11.5F, 12.5F, 1.8F, 1.4F, 1.2F, 0.8F, 1.0F}));
}

TEST_F(ProveComune, FactoryCoefficientsAndLimitsAreThoseOfTheProgram) {
    EXPECT_EQ(coefficientiDiFabbrica, (CoefficientiVeicoli{2.5F, 2.0F, 1.8F, 1.4F, 1.2F, 0.8F, 1.0F}));
    const float attesi[6][2] = {{3.1F, 16.2F}, {1, 12}, {1, 1.0e8F}, {0, 77}, {3, 1.0e8F}, {13, 176}};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(limitiGeometria[i].minimo, attesi[i][0]);
        EXPECT_EQ(limitiGeometria[i].massimo, attesi[i][1]);
    }
}

TEST_F(ProveComune, TheTraceIsSilentWhereItIsOff) {
    configurazione.PathErrore = "FILELOGERROR.TXT";
    comune.traceLog("Entro in cmdOk_Click");
    EXPECT_FALSE(fs::exists(log));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

constexpr auto primoBlocco =
    "SCRITTURA FILELOGERROR.TXT: 21/11/2026 10.30.05\r\n\r\n53\r\n"
    "Errore nel modulo:  - Metodo: modCommonModule:traceLog() - Descrizione: 53 : File non trovato\r\n\r\n\r\n";

TEST_F(ProveComune, TheFirstTraceLineOfARunFailsAndTheFaultMakesTheLog) {
    configurazione.PathErrore = "FILELOGERROR.TXT";
    configurazione.TraceAbilitato = true;
    comune.traceLog("Entro in cmdOk_Click");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014modCommonModule:traceLog()");
    EXPECT_EQ(messaggi.mostrati[0].testo, "53 : File non trovato");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::critica);
    EXPECT_EQ(contenuto(log), primoBlocco);

    comune.traceLog("Esco da cmdOk_Click");
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(contenuto(log), std::string(primoBlocco) + "[21/11/2026 10:30:05] - Esco da cmdOk_Click\r\n");
}

TEST_F(ProveComune, AReadOnlyLogIsMadeWritable) {
    configurazione.PathErrore = "FILELOGERROR.TXT";
    configurazione.TraceAbilitato = true;
    scriviContenuto(log, "");
    fs::permissions(log, fs::perms::owner_read);
    comune.traceLog("riga");
    EXPECT_EQ(contenuto(log), "[21/11/2026 10:30:05] - riga\r\n");
    EXPECT_NE(fs::status(log).permissions() & fs::perms::owner_write, fs::perms::none) << "the trace does it too";
    fs::permissions(log, fs::perms::owner_read);
    comune.erroreLog(11, "m", "d", false);
    EXPECT_NE(fs::status(log).permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveComune, AFaultIsLoggedInSixLines) {
    configurazione.PathErrore = "FILELOGERROR.TXT";
    comune.erroreLog(11, "modCalcolo:Calcola", "Divisione per zero (Ramo B)", false);
    EXPECT_EQ(contenuto(log),
              "SCRITTURA FILELOGERROR.TXT: 21/11/2026 10.30.05\r\n"
              "\r\n"
              "11\r\n"
              "Errore nel modulo:  - Metodo: modCalcolo:Calcola - Descrizione: Divisione per zero (Ramo B)\r\n"
              "\r\n"
              "\r\n");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveComune, AFaultIsShownUnderTheNameOfItsProcedure) {
    comune.erroreLog(9, "MDI_Form:SaveRotonda()", "Indice", true);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Indice");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014MDI_Form:SaveRotonda()");
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::ok);
}

/// Takes down what happens to it, in order.
class MessaggiInOrdine final : public FinestraMessaggi {
public:
    explicit MessaggiInOrdine(std::vector<std::string>& eventi) : eventi_(eventi) {}
    std::function<std::string()> intanto;
    Risposta mostra(const std::string& testo, const std::string& /*titolo*/, Icona /*icona*/,
                    Pulsanti /*pulsanti*/) override {
        eventi_.push_back("box " + testo + intanto());
        return Risposta::ok;
    }

private:
    std::vector<std::string>& eventi_;
};

TEST_F(ProveComune, AFaultIsToldThenShownThenLogged) {
    std::vector<std::string> eventi;
    MessaggiInOrdine inOrdine(eventi);
    modCommonModule modulo(ambiente, configurazione, inOrdine, orologio);
    configurazione.PathErrore = "FILELOGERROR.TXT";
    const auto registrati = [&] { return fmt::format(", log of {} bytes", fs::exists(log) ? fs::file_size(log) : 0); };
    inOrdine.intanto = registrati;
    modulo.alErrore = [&](const ErroreRegistrato& errore) {
        eventi.push_back(
            fmt::format("told {} {} {}{}", errore.numero, errore.metodo, errore.descrizione, registrati()));
    };
    modulo.erroreLog(11, "m:uno", "prima", true);
    const auto lungo = fs::file_size(log);
    EXPECT_GT(lungo, 0U);
    modulo.erroreLog(9, "m:due", "seconda", false);
    EXPECT_GT(fs::file_size(log), lungo);
    EXPECT_EQ(eventi, (std::vector<std::string>{"told 11 m:uno prima, log of 0 bytes", "box prima, log of 0 bytes",
                                                fmt::format("told 9 m:due seconda, log of {} bytes", lungo)}));
}

TEST_F(ProveComune, TheFaultOfATraceThatFailsIsToldToo) {
    int detti = 0;
    comune.alErrore = [&](const ErroreRegistrato& errore) {
        ++detti;
        EXPECT_EQ(errore.numero, 53);
        EXPECT_EQ(errore.metodo, "modCommonModule:traceLog()");
    };
    configurazione.PathErrore = "FILELOGERROR.TXT";
    configurazione.TraceAbilitato = true;
    comune.traceLog("Entro in cmdOk_Click");
    EXPECT_EQ(detti, 1);
}

TEST_F(ProveComune, ALogThatCannotBeWrittenIsPassedOver) {
    comune.erroreLog(9, "m", "d", false);
    configurazione.PathErrore = "manca/FILE.TXT";
    comune.erroreLog(9, "m", "d", false);
    configurazione.PathErrore = "cartella";
    fs::create_directory(cartella.file("cartella"));
    comune.erroreLog(9, "m", "d", false);
    configurazione.TraceAbilitato = true;
    comune.traceLog("t");
    EXPECT_EQ(messaggi.mostrati.size(), 1U) << "the trace cannot be written either, and says so";
}

}  // namespace
}  // namespace kelvo::prove
