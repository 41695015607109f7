#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "comune/fintiShell.h"
#include "shell/frmINFO.h"
#include "shell/frmInputNumeroRami.h"
#include "shell/frmSplash.h"

namespace kelvo::prove::shell {
namespace {

namespace fs = std::filesystem;

class LocaleFinto final : public LocaleUtente {
public:
    ImpostazioniInternazionali leggi() const override { return adesso; }
    void scriviSeparatori(const std::string& decimale, const std::string& migliaia) override {
        scritti.push_back(decimale + migliaia);
    }
    ImpostazioniInternazionali adesso{"€", "EUR", ",", ".", ",", "."};
    std::vector<std::string> scritti;
};

class IstanzaFinta final : public IstanzaUnica {
public:
    void creaMutex(const std::string& nome) override { creati.push_back(nome); }
    bool altraIstanza() const override { return altra; }
    std::vector<std::string> creati;
    bool altra = false;
};

class AttesaFinta final : public Attesa {
public:
    bool pausa(int millisecondi) override {
        pause.push_back(millisecondi);
        if (allaPausa) {
            allaPausa();
        }
        return static_cast<int>(pause.size()) == finisce;
    }
    void eventi() override { ++eventiCorsi; }
    std::vector<int> pause;
    std::function<void()> allaPausa;
    int finisce = 0;  ///< the pause at which the user goes on; 0 for none
    int eventiCorsi = 0;
};

/// Stands in the program's folder while it lives, as a program that was started from there.
class CartellaCorrente {
public:
    explicit CartellaCorrente(const std::string& cartella) : prima_(fs::current_path()) { fs::current_path(cartella); }
    CartellaCorrente(const CartellaCorrente&) = delete;
    CartellaCorrente& operator=(const CartellaCorrente&) = delete;
    ~CartellaCorrente() {
        std::error_code ignorato;
        fs::current_path(prima_, ignorato);
    }

private:
    fs::path prima_;
};

class Avvio : public ::testing::Test {
protected:
    Avvio() { ini("0", "Avvia=1"); }
    void ini(const std::string& rami, const std::string& altro) {
        f.scriviIni(
            "[FILE_LOG]\nPathError=LOG.TXT\n[LAY_OUT]\nCustomPanel=4\n[TRACE_ENABLED]\nTraceEnabled=FALSE\n"
            "[10_MOTIVI]\n" +
            altro + "\n[OPZ_EXPLORER]\nRami=" + rami +
            "\n[VEICOLI EQUIVALENTI]\nAutoarticolati=3,5\nAutotreni=2\nPullman=1,8\nCamper=1,4\n"
            "Roulotte=1,2\nMotocicli=0,8\nAutovetture=1\n");
    }
    ShellFinta f;
    LocaleFinto locale;
    IstanzaFinta istanza;
    AttesaFinta attesa;
    modMain programma{f.app, f.stato, f.cornice, {locale, istanza, f.documenti, attesa}};
};

TEST_F(Avvio, ShowsTheMainWindowThenTheSplash) {
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(f.superficie.passi,
              (std::vector<std::string>{"mostraCornice", "apriSopra frmSplash", "chiudiSopra frmSplash"}));
    EXPECT_EQ(attesa.pause, std::vector<int>(100, 40));
    EXPECT_EQ(attesa.eventiCorsi, 1);
    EXPECT_EQ(istanza.creati, (std::vector<std::string>{"Kelvo"}));
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    EXPECT_TRUE(locale.scritti.empty());
    EXPECT_TRUE(f.documenti.avviati.empty());
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014");
    EXPECT_EQ(f.app.configurazione.LayoutPannello, 4);
    EXPECT_EQ(f.app.configurazione.VEAutoarticolati, 3.5F);
    EXPECT_EQ(f.app.theRotonda().NumeroRami(), 4);
    EXPECT_EQ(f.app.theRotonda().Data(), giornoCalendario(2026, 11, 21));
}

TEST_F(Avvio, AKeyOrClickEndsTheSplash) {
    attesa.finisce = 7;
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(attesa.pause.size(), 7U);
    EXPECT_EQ(f.superficie.passi.back(), "chiudiSopra frmSplash");
}

TEST(Splash, RunsItsProgressInStepsOfOne) {
    ShellFinta f;
    frmSplash splash(f.cornice.contorno());
    EXPECT_EQ(splash.lblTesto.testo(), "Personalizzazione interfaccia in corso.....");
    EXPECT_EQ(splash.ctlProgresso.valore(), 0);
    std::vector<int> visti;
    splash.ctlProgresso.cambiato().connect([&] { visti.push_back(splash.ctlProgresso.valore()); });
    AttesaFinta attesa;
    splash.esegui(attesa);
    ASSERT_EQ(visti.size(), 100U);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(visti[static_cast<std::size_t>(i)], i + 1);
    }
}

TEST_F(Avvio, OtherSeparatorsAreAskedAboutSetAndPutBackAtTheEnd) {
    locale.adesso.decimale = ".";
    locale.adesso.migliaia = "'";
    EXPECT_TRUE(programma.Main(""));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    const auto& m = f.messaggi.mostrati[0];
    EXPECT_EQ(m.testo,
              "Attenzione! Le opzioni internazionali e della lingua non sono valide. Per il corretto funzionamento "
              "dell'applicazione è necessario  impostare la modalità su [Italiano (Italia)]. Aggiornare subito le "
              "opzioni internazionali e della lingua?");
    EXPECT_EQ(m.titolo, "KELVO 2014 - Impostazioni internazionali");
    EXPECT_EQ(m.icona, Icona::esclamazione);
    EXPECT_EQ(m.pulsanti, Pulsanti::siNo);
    EXPECT_EQ(locale.scritti, (std::vector<std::string>{",."}));
    EXPECT_TRUE(programma.RipristinaImpostazioni());
    f.cornice.Unload();
    EXPECT_EQ(locale.scritti, (std::vector<std::string>{",.", ".'"}));
}

TEST_F(Avvio, WrongThousandsAloneAreAskedAboutToo) {
    locale.adesso.migliaia = " ";
    f.messaggi.risposte = {Risposta::no};
    EXPECT_FALSE(programma.Main("a.klv"));
    EXPECT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_TRUE(locale.scritti.empty());
    EXPECT_TRUE(istanza.creati.empty());
    EXPECT_TRUE(f.superficie.passi.empty());
}

TEST_F(Avvio, GoodSeparatorsAreNotPutBack) {
    EXPECT_TRUE(programma.Main(""));
    f.cornice.Unload();
    EXPECT_TRUE(locale.scritti.empty());
}

TEST_F(Avvio, TheFilmRunsOnlyForTheValueZero) {
    ini("0", "Avvia=0");
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(f.documenti.avviati,
              (std::vector<std::string>{"\"" + f.cartella.percorso() + "/UserGuide/KelvoSUITE2014_INTRO.exe\"|"}));
    for (const char* valore : {"Avvia=1", "Avvia=2", "Avvia=-1"}) {
        f.documenti.avviati.clear();
        ini("0", valore);
        EXPECT_TRUE(programma.Main(""));
        EXPECT_TRUE(f.documenti.avviati.empty()) << valore;
    }
}

TEST_F(Avvio, WhereTheFilmWasNotDeliveredItsPagesAreOpenedInstead) {
    ini("0", "Avvia=0");
    std::filesystem::create_directory(f.cartella.file("UserGuide"));
    const std::string pagine = f.cartella.file("UserGuide/KelvoSUITE2014_INTRO.htm");
    scriviContenuto(pagine, "<html></html>");
    EXPECT_TRUE(programma.Main(""));
    EXPECT_TRUE(f.documenti.avviati.empty());
    EXPECT_EQ(f.documenti.aperti, (std::vector<std::string>{"\"" + pagine + "\""}));
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "");
    f.documenti.riesce = false;
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "Impossibile avviare il filmato introduttivo");
}

TEST_F(Avvio, TheFilmComesBeforeItsPages) {
    ini("0", "Avvia=0");
    std::filesystem::create_directory(f.cartella.file("UserGuide"));
    const std::string filmato = f.cartella.file("UserGuide/KelvoSUITE2014_INTRO.exe");
    scriviContenuto(filmato, "");
    scriviContenuto(f.cartella.file("UserGuide/KelvoSUITE2014_INTRO.htm"), "<html></html>");
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(f.documenti.avviati, (std::vector<std::string>{"\"" + filmato + "\"|"}));
    EXPECT_TRUE(f.documenti.aperti.empty());
    // A film that does not run here gives way to them.
    f.documenti.riesce = false;
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(f.documenti.avviati.size(), 2U);
    EXPECT_EQ(f.documenti.aperti.size(), 1U);
}

TEST_F(Avvio, TheCommandLineOpensAProjectWithoutItsQuotes) {
    const std::string percorso = f.progettoSuDisco("con due spazi.klv", 5);
    EXPECT_TRUE(programma.Main("\"" + percorso + "\""));
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "con due spazi");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato);
}

TEST_F(Avvio, AnAddressOnTheCommandLineOpensItsProject) {
    f.progettoSuDisco("Città alta.klv", 5);
    EXPECT_TRUE(programma.Main("file://" + f.cartella.percorso() + "/Citt%C3%A0%20alta.klv"));
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "Città alta");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato);
}

TEST_F(Avvio, ACommandLineThatIsNoProjectGetsItsMessage) {
    EXPECT_TRUE(programma.Main(f.cartella.file("Kelvo.ini")));
    EXPECT_EQ(f.messaggi.testi(), (std::vector<std::string>{"Il file selezionato non è corretto!"}));
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
}

TEST_F(Avvio, ASecondInstanceIsToldAndEnds) {
    istanza.altra = true;
    const CartellaCorrente qui(f.cartella.percorso());
    scriviContenuto(f.cartella.file("LOG.TXT"), "del primo");
    EXPECT_FALSE(programma.Main(""));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].testo, "Attenzione, c'è già un'istanza di Kelvo attualmente in esecuzione.");
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(f.messaggi.mostrati[0].icona, Icona::critica);
    EXPECT_TRUE(f.superficie.passi.empty());
    EXPECT_FALSE(fs::exists(f.cartella.file("LOG.TXT")));  // the shared log is gone by then
}

TEST_F(Avvio, TheLogIsDeletedFromTheWorkingFolderEvenReadOnly) {
    scriviContenuto(f.cartella.file("LOG.TXT"), "vecchio");
    EXPECT_TRUE(programma.InitEnvironment());
    EXPECT_TRUE(fs::exists(f.cartella.file("LOG.TXT")));  // the working folder is another one
    const CartellaCorrente qui(f.cartella.percorso());
    fs::permissions(f.cartella.file("LOG.TXT"), fs::perms::owner_read);
    EXPECT_TRUE(programma.InitEnvironment());
    EXPECT_FALSE(fs::exists(f.cartella.file("LOG.TXT")));
}

TEST_F(Avvio, AReadOnlyConfigurationIsMadeWritable) {
    fs::permissions(f.cartella.file("Kelvo.ini"), fs::perms::owner_read);
    EXPECT_TRUE(programma.InitEnvironment());
    EXPECT_NE(fs::status(f.cartella.file("Kelvo.ini")).permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_TRUE(f.messaggi.mostrati.empty());
}

TEST_F(Avvio, WithoutTheNameOfTheLogTheProgramEnds) {
    for (const char* testo : {"[FILE_LOG]\nPathError=\n", "[LAY_OUT]\nCustomPanel=1\n"}) {
        f.messaggi.mostrati.clear();
        f.scriviIni(testo);
        EXPECT_FALSE(programma.Main(""));
        ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
        EXPECT_EQ(f.messaggi.mostrati[0].testo,
                  "Manca il path del file di log dell'errore!\nIl processo non verrà portato a termine!");
        EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Errore Irreversibile!");
        EXPECT_EQ(f.messaggi.mostrati[0].icona, Icona::critica);
        EXPECT_TRUE(f.superficie.passi.empty());
    }
}

TEST_F(Avvio, AMissingConfigurationIsRecordedAndEnds) {
    fs::remove(f.cartella.file("Kelvo.ini"));
    EXPECT_FALSE(programma.Main(""));
    ASSERT_EQ(f.messaggi.mostrati.size(), 2U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014modCommonModule:InitEnvironment()");
    EXPECT_EQ(f.messaggi.mostrati[0].testo.rfind("File non trovato", 0), 0U);
    EXPECT_EQ(f.messaggi.mostrati[1].titolo, "KELVO 2014 - Errore Irreversibile!");
}

TEST_F(Avvio, ABadSettingIsRecordedAndTheOthersAreRead) {
    f.scriviIni(
        "[FILE_LOG]\nPathError=LOG.TXT\n[LAY_OUT]\nCustomPanel=blu\n[10_MOTIVI]\nAvvia=1\n"
        "[VEICOLI EQUIVALENTI]\nAutoarticolati=due\nCamper=1,5\n");
    EXPECT_TRUE(programma.InitEnvironment());
    ASSERT_EQ(f.messaggi.mostrati.size(), 2U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014modCommonModule:InitEnvironment()");
    EXPECT_EQ(f.app.configurazione.VECamper, 1.5F);
    EXPECT_EQ(f.app.configurazione.VEAutoarticolati, 2.5F);
}

TEST_F(Avvio, ARecoveredProjectGoesBeforeTheCommandLine) {
    fs::create_directories(f.cartella.file("Recupero"));
    fs::copy(f.progettoSuDisco("Perso.klv", 6), f.cartella.file("Recupero/Perso.klv"));
    const std::string altro = f.progettoSuDisco("altro.klv", 3);
    EXPECT_TRUE(programma.Main(altro));
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "Perso");
    EXPECT_TRUE(f.cornice.modificato());
    EXPECT_NE(f.cornice.ctlStatusBar.avviso().find(altro), std::string::npos);
}

TEST_F(Avvio, ARecoveryThatIsRefusedLetsTheCommandLineOpen) {
    fs::create_directories(f.cartella.file("Recupero"));
    fs::copy(f.progettoSuDisco("Perso.klv", 6), f.cartella.file("Recupero/Perso.klv"));
    f.messaggi.risposte = {Risposta::no};
    EXPECT_TRUE(programma.Main(f.progettoSuDisco("altro.klv", 3)));
    EXPECT_EQ(f.app.theRotonda().NomeFile(), "altro");
    EXPECT_FALSE(fs::exists(f.cartella.file("Recupero/Perso.klv")));
}

TEST_F(Avvio, TheSettingOfTheFilmIsReadOnceMoreBehindTheSplash) {
    attesa.allaPausa = [&] { ini("0", "Avvia=0"); };
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(f.documenti.avviati.size(), 1U);
    attesa.allaPausa = [&] { ini("0", "Avvia=1"); };
    EXPECT_TRUE(programma.Main(""));
    EXPECT_EQ(f.documenti.avviati.size(), 1U);
}

/// Writes down what the program had done when it started a program.
class DocumentiCheGuardano final : public ApriDocumenti {
public:
    explicit DocumentiCheGuardano(std::function<void()> guarda) : guarda_(std::move(guarda)) {}
    bool apri(const std::string& /*percorso*/) override { return true; }
    bool avvia(const std::string& /*programma*/, const std::string& /*argomento*/) override {
        guarda_();
        return false;
    }

private:
    std::function<void()> guarda_;
};

TEST_F(Avvio, TheFilmStartsBehindTheSplashAndInFrontOfTheProject) {
    ini("0", "Avvia=0");
    int viste = 0;
    DocumentiCheGuardano documenti([&] {
        ++viste;
        EXPECT_EQ(f.superficie.passi.back(), "chiudiSopra frmSplash");
        EXPECT_EQ(attesa.eventiCorsi, 1);
        EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
    });
    modMain altro(f.app, f.stato, f.cornice, {locale, istanza, documenti, attesa});
    EXPECT_TRUE(altro.Main(f.progettoSuDisco("a.klv", 3)));
    EXPECT_EQ(viste, 1);
    EXPECT_EQ(f.cornice.ctlStatusBar.avviso(), "Impossibile avviare il filmato introduttivo");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato) << "a film that does not start stops nothing";
}

TEST_F(Avvio, TheFlagsAreSetBeforeAnythingIsShown) {
    f.stato.ProgettoAperto = true;
    f.stato.convalidaFallita = true;
    f.stato.opzioniModificate = true;
    f.stato.statoProgetto = StatoProgetto::ProgettoCaricato;
    f.scriviIni("");  // the program ends right behind the first step
    EXPECT_FALSE(programma.InitEnvironment());
    EXPECT_FALSE(f.stato.ProgettoAperto);
    EXPECT_FALSE(f.stato.convalidaFallita);
    EXPECT_FALSE(f.stato.opzioniModificate);
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto);
    EXPECT_EQ(istanza.creati, (std::vector<std::string>{"Kelvo"}));
    EXPECT_EQ(f.app.theRotonda().NumeroRami(), 4);
}

TEST_F(Avvio, TheNameOfTheLogIsAskedForBeforeTheOtherInstance) {
    istanza.altra = true;
    f.scriviIni("[FILE_LOG]\nPathError=\n");
    EXPECT_FALSE(programma.Main(""));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Errore Irreversibile!");
}

TEST_F(Avvio, AConfigurationInAWideEncodingHasNoNameOfTheLog) {
    f.scriviIni(std::string("\xFF\xFE[\0F\0", 6));
    EXPECT_FALSE(programma.Main(""));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014 - Errore Irreversibile!");
}

TEST_F(Avvio, WhateverStandsInPlaceOfAProjectIsToldOnceAndTheProgramGoesOn) {
    const std::string buono = contenuto(f.progettoSuDisco("buono.klv", 3));
    fs::create_directories(f.cartella.file("cartella.klv"));
    scriviContenuto(f.cartella.file("vuoto.klv"), "");
    scriviContenuto(f.cartella.file("binario.klv"), std::string("\x7F"
                                                                "ELF\0\0\xFF",
                                                                7));
    scriviContenuto(f.cartella.file("tronco.klv"), buono.substr(0, buono.size() / 2));
    scriviContenuto(f.cartella.file("grande.klv"), std::string(5UL * 1024 * 1024, ' '));
    std::string nuovo = buono;
    const std::string versione = "\"versione\": 1";
    ASSERT_NE(nuovo.find(versione), std::string::npos);
    scriviContenuto(f.cartella.file("nuovo.klv"),
                    nuovo.replace(nuovo.find(versione), versione.size(), "\"versione\": 2"));
    for (const char* nome : {"cartella.klv", "vuoto.klv", "binario.klv", "tronco.klv", "grande.klv", "nuovo.klv",
                             "manca.klv", "manca/x.klv"}) {
        f.messaggi.mostrati.clear();
        EXPECT_TRUE(programma.Main(f.cartella.file(nome))) << nome;
        EXPECT_EQ(f.messaggi.testi(), (std::vector<std::string>{"Il file selezionato non è corretto!"})) << nome;
        EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::NessunProgetto) << nome;
        EXPECT_FALSE(f.stato.ProgettoAperto) << nome;
        EXPECT_FALSE(f.superficie.alberoVisibile) << nome;
        EXPECT_EQ(f.cornice.titolo(), "KELVO 2014") << nome;
        EXPECT_EQ(f.cornice.gestione.corrente(), nullptr) << nome;
        EXPECT_TRUE(f.cornice.recenti.elenco().empty()) << nome;
    }
    EXPECT_TRUE(f.cornice.ctlMenu.voce("mnuApri").abilitata);
    f.nuovo(4);
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoNuovo);
}

TEST_F(Avvio, QuotesAloneAreAPathThatIsNoProject) {
    EXPECT_TRUE(programma.Main("\"\""));
    EXPECT_EQ(f.messaggi.testi(), (std::vector<std::string>{"Il file selezionato non è corretto!"}));
}

TEST_F(Avvio, AProjectNamedFromTheWorkingFolderIsRememberedByItsWholePath) {
    const CartellaCorrente qui(f.cartella.percorso());
    const std::string percorso = f.progettoSuDisco("a.klv", 3);
    EXPECT_TRUE(programma.Main("./a.klv"));
    EXPECT_EQ(f.cornice.recenti.elenco(), (std::vector<std::string>{percorso}));
    EXPECT_EQ(f.cornice.titolo(), "KELVO 2014 - [a.klv]");
}

TEST_F(Avvio, TheSeparatorsArePutBackAlsoWhereTheUnloadFails) {
    locale.adesso.decimale = ".";
    EXPECT_TRUE(programma.Main(""));
    f.nuovo(3);
    f.cornice.albero.UserClick("keyMatriceSvolte");
    f.cornice.finestre.allaFine = [](Finestra&) { throw Guasto(NumeroGuasto::overflow); };
    f.cornice.Unload();
    EXPECT_EQ(locale.scritti.back(), "..");
    EXPECT_TRUE(f.superficie.terminata);
}

TEST_F(Avvio, ALogThatCannotBeWrittenStopsNothing) {
    f.scriviIni("[FILE_LOG]\nPathError=manca/LOG.TXT\n[LAY_OUT]\nCustomPanel=blu\n[10_MOTIVI]\nAvvia=1\n");
    EXPECT_TRUE(programma.Main(f.progettoSuDisco("a.klv", 3)));
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014modCommonModule:InitEnvironment()");
    EXPECT_EQ(f.stato.statoProgetto, StatoProgetto::ProgettoCaricato);
}

TEST_F(Avvio, WithTheTraceOnTheFirstLineOfTheRunIsLostAndToldAndTheOthersFollow) {
    f.scriviIni(
        "[FILE_LOG]\nPathError=LOG.TXT\n[TRACE_ENABLED]\nTraceEnabled=TRUE\n[10_MOTIVI]\nAvvia=1\n"
        "[OPZ_EXPLORER]\nRami=0\n");
    const CartellaCorrente qui(f.cartella.percorso());
    scriviContenuto(f.cartella.file("LOG.TXT"), "of the run before");
    EXPECT_TRUE(programma.Main(""));
    EXPECT_TRUE(f.messaggi.mostrati.empty());
    f.cornice.finestre.registra("frmInputNumeroRami",
                                [](const Contorno& c) { return std::make_unique<frmInputNumeroRami>(c); });
    f.superficie.alModale = [](Finestra& finestra) { dynamic_cast<frmInputNumeroRami&>(finestra).cmdOk.premi(); };
    f.cornice.ctlMenu.premi("mnuNuovo");
    ASSERT_EQ(f.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(f.messaggi.mostrati[0].titolo, "KELVO 2014modCommonModule:traceLog()");
    EXPECT_EQ(f.messaggi.mostrati[0].testo, "53 : File non trovato");
    const std::string ora = "[21/11/2026 10:30:05] - ";
    EXPECT_EQ(contenuto(f.cartella.file("LOG.TXT")),
              "SCRITTURA FILELOGERROR.TXT: 21/11/2026 10.30.05\r\n\r\n53\r\n"
              "Errore nel modulo:  - Metodo: modCommonModule:traceLog() - Descrizione: 53 : File non trovato\r\n"
              "\r\n\r\n" +
                  ora + "Entro in LoadTreeView()\r\n" + ora + "Esco da LoadTreeView()\r\n" + ora +
                  "Esco da cmdOk_Click\r\n");
}

TEST(Informazioni, VersionAndMakerAreShown) {
    ShellFinta f;
    frmINFO info(f.cornice.contorno());
    EXPECT_EQ(info.lblVersione.testo().rfind("Versione ", 0), 0U);
    EXPECT_EQ(info.lblProduttore.testo(), "Vaq");
    int chiusure = 0;
    info.allaChiusura = [&] { ++chiusure; };
    info.cmdOk.premi();
    EXPECT_EQ(chiusure, 1);
}

}  // namespace
}  // namespace kelvo::prove::shell
