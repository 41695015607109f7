#include "scenaAggiuntiva.h"

namespace kelvo::prove {
namespace {

TEST_F(ProveAggiuntiva, EachQuantityIsTestedOnTheWayBackInItsWords) {
    conFigure(1);
    struct Caso {
        int q;
        const char* dentroMin;
        const char* dentroMax;
        const char* sotto;
        const char* sopra;
        const char* limiti;
        const char* incoerente;
    };
    const std::vector<Caso> casi{
        {1, "2", "12", "1,99", "12,01", "Attenzione! valori ammessi per il FLUSSO: MINIMO = 2; MASSIMO = 12",
         "Attenzione! valore MASSIMO FLUSSO non coerente con valore MINIMO"},
        {2, "500,5", "900", "500,49", "900,01",
         "Attenzione! valori ammessi per la CAPACITA': MINIMO = 500,5; MASSIMO = 900",
         "Attenzione! valore MASSIMO CAPACITA non coerente con valore MINIMO"},
        {3, "0,36", "1,2", "0,359", "1,201",
         "Attenzione! valori ammessi per il COEFF. SATURAZIONE: MINIMO = 0,36; MASSIMO = 1,2",
         "Attenzione! valore MASSIMO non coerente con valore MINIMO"},
        {4, "0,1", "20,5", "", "20,51", "Attenzione! valori ammessi per la CODA: MINIMO = 0; MASSIMO = 20,5",
         "Attenzione! valore MASSIMO non coerente con valore MINIMO"},
        {5, "4", "60", "3,99", "60,01", "Attenzione! valori ammessi per il RITARDO: MINIMO = 4; MASSIMO = 60",
         "Attenzione! valore MASSIMO non coerente con valore MINIMO"}};
    for (const Caso& caso : casi) {
        apriAggiuntiva(true);
        const auto rifiuta = [&](const std::string& minimo, const std::string& massimo, const std::string& atteso) {
            messaggi.mostrati.clear();
            soglia(caso.q, minimo, massimo);
            ritorno();
            EXPECT_FALSE(tornata());
            ASSERT_EQ(messaggi.mostrati.size(), 1U) << minimo << " " << massimo;
            EXPECT_EQ(messaggi.mostrati[0].testo, atteso);
            EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014");
            EXPECT_EQ(marker().MarkerAttivo(1, caso.q), 0.0);
        };
        if (*caso.sotto != '\0') {
            rifiuta(caso.sotto, caso.dentroMax, caso.limiti);
        }
        rifiuta(caso.dentroMin, caso.sopra, caso.limiti);
        rifiuta(caso.dentroMax, caso.dentroMin, caso.incoerente);
        messaggi.mostrati.clear();
        soglia(caso.q, caso.dentroMin, caso.dentroMax);
        ritorno();
        EXPECT_TRUE(tornata());
        EXPECT_TRUE(messaggi.mostrati.empty());
        marker().azzera(1);
    }
}

TEST_F(ProveAggiuntiva, LowerEqualToUpperPassesAndTheFirstFailureSpeaks) {
    conFigure(1);
    apriAggiuntiva(true);
    soglia(5, "20", "20");
    soglia(2, "1", "1");
    soglia(3, "9", "9");
    ritorno();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_NE(messaggi.mostrati[0].testo.find("CAPACITA'"), std::string::npos);
    s(2).spunta.clicca();
    s(3).spunta.clicca();
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_EQ(marker().MarkerMassimo(1, 5), 20.0);
    EXPECT_EQ(marker().MarkerMinimo(1, 5), 20.0);
}

TEST_F(ProveAggiuntiva, ALevelOfServiceNeedsBothLetters) {
    conFigure(1);
    const std::string manca = "Attenzione! Selezionare un valore corretto per i livelli di servizio (L.O.S.)";
    for (const auto& [minimo, massimo] :
         std::vector<std::pair<std::string, std::string>>{{"-", "C"}, {"B", "-"}, {"-", "-"}}) {
        messaggi.mostrati.clear();
        apriAggiuntiva(true);
        soglia(6, minimo, massimo);
        ritorno();
        EXPECT_EQ(testi(), std::vector<std::string>{manca});
        EXPECT_FALSE(tornata());
        s(6).spunta.clicca();
        ritorno();
    }
    messaggi.mostrati.clear();
    apriAggiuntiva(true);
    soglia(6, "B", "C");
    ritorno();
    EXPECT_TRUE(tornata());
    EXPECT_EQ(marker().MarkerMinimo(1, 6), 10.0);
    EXPECT_EQ(marker().MarkerMassimo(1, 6), 15.0);
    apriAggiuntiva(true);
    EXPECT_EQ(s(6).minimo.testo(), "B");
    EXPECT_EQ(s(6).massimo.testo(), "C");
}

TEST_F(ProveAggiuntiva, StoresForItsEntryAloneAndShowsItAgain) {
    conFigure(2);
    r().NomeFile("Nodo");
    apriAggiuntiva(true);
    soglia(3, "0,3655", "0,9");
    s(1).spunta.clicca();
    soglia(1, "3", "7,5");
    s(1).spunta.clicca();  // its values are stored all the same
    ritorno();
    EXPECT_EQ(marker().MarkerAttivo(2, 3), 1.0);
    EXPECT_EQ(marker().MarkerMinimo(2, 3), 0.3655);
    EXPECT_EQ(marker().MarkerMassimo(2, 3), 0.9);
    EXPECT_EQ(marker().MarkerAttivo(2, 1), 0.0);
    EXPECT_EQ(marker().MarkerMassimo(2, 1), 7.5);
    EXPECT_FALSE(marker().attivi(1));
    apriAggiuntiva(true);
    EXPECT_TRUE(s(3).spunta.spuntata());
    EXPECT_EQ(s(3).minimo.testo(), "0,366");
    EXPECT_TRUE(s(3).minimo.abilitato());
    EXPECT_EQ(s(1).massimo.testo(), "7,50");
    EXPECT_FALSE(s(1).massimo.abilitato());
    ritorno();
    EXPECT_EQ(marker().MarkerMinimo(2, 3), 0.3655) << "what was not typed again stays as it was";
    conFigure(1);
    apriAggiuntiva(true);
    EXPECT_FALSE(s(3).spunta.spuntata());
}

TEST_F(ProveAggiuntiva, AStoredValueOutsideTheNewRangeIsCaughtAtTheNextReturn) {
    conFigure(1);
    apriAggiuntiva(true);
    soglia(2, "600", "850");
    ritorno();
    ramo(1).theDatiTraffico().SetIterazione(1, {2.0F, 820.0F, 0.36F, 0.0F, 4.0F});
    finestra.ctlToolbar.premi("keyCalcola");
    apriAggiuntiva(true);
    EXPECT_TRUE(messaggi.mostrati.empty());
    ritorno();
    EXPECT_EQ(testi(),
              std::vector<std::string>{"Attenzione! valori ammessi per la CAPACITA': MINIMO = 500,5; MASSIMO = 820"});
    EXPECT_FALSE(tornata());
}

TEST_F(ProveAggiuntiva, VisualizzaColoursTheTableUntilTheNextCalculation) {
    conFigure(1);
    apriAggiuntiva(true);
    soglia(1, "3", "7");
    ritorno();
    finestra.ctlToolbar2.premi("Visualizza");
    const auto sfondo = [&](int riga) { return finestra.ctlGrid.tabella().cella(riga, 1).sfondo; };
    EXPECT_EQ(sfondo(1), (Colore{220, 255, 220}));  // 2 < 3
    EXPECT_EQ(sfondo(2), (Colore{255, 220, 220}));  // 12 > 7
    EXPECT_EQ(sfondo(3), (Colore{255, 220, 220}));
    EXPECT_EQ(sfondo(4), (Colore{220, 220, 220}));
    EXPECT_EQ(finestra.ctlGrid.tabella().cella(2, 1).inchiostro, (Colore{230, 0, 0}));
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(sfondo(3), (Colore{220, 220, 220}));
}

TEST_F(ProveAggiuntiva, TellsInWhichProjectTheThresholdsWereSetAndTakesThemAway) {
    r().NomeFile("Nodo nord");
    conFigure(1);
    apriAggiuntiva(true);
    EXPECT_FALSE(a.lblProgetto.visibile());
    EXPECT_FALSE(a.cmdAzzera.abilitato());
    soglia(1, "3", "7");
    ritorno();
    apriAggiuntiva(true);
    EXPECT_TRUE(a.lblProgetto.visibile());
    EXPECT_EQ(a.lblProgetto.testo(), "Soglie impostate in \"Nodo nord\".");
    ritorno();
    r().NomeFile("Nodo nord bis");
    apriAggiuntiva(true);
    EXPECT_EQ(a.lblProgetto.testo(), "Soglie impostate in \"Nodo nord bis\".") << "the same project under another name";
    ritorno();
    altroProgetto("Nodo nord");
    EXPECT_EQ(a.lblProgetto.testo(), "Soglie impostate in un altro progetto: \"Nodo nord bis\".");
    EXPECT_TRUE(s(1).spunta.spuntata()) << "they last as long as the program runs";
    EXPECT_EQ(a.cmdAzzera.testo(), "Azzera soglie");
    a.cmdAzzera.premi();
    EXPECT_FALSE(marker().attivi(1));
    EXPECT_FALSE(s(1).spunta.spuntata());
    EXPECT_EQ(s(1).massimo.testo(), "0,00");
    EXPECT_FALSE(a.lblProgetto.visibile());
    EXPECT_FALSE(a.cmdAzzera.abilitato());
    soglia(1, "3", "7");
    ritorno();
    apriAggiuntiva(true);
    EXPECT_EQ(a.lblProgetto.testo(), "Soglie impostate in \"Nodo nord\".");
    ritorno();
    altroProgetto("Nodo nord");
    EXPECT_EQ(a.lblProgetto.testo(), "Soglie impostate in un altro progetto: \"Nodo nord\".") << "of equal name";
}

TEST_F(ProveAggiuntiva, ThresholdsOfAProjectWithoutANameAreTold) {
    conFigure(1);
    apriAggiuntiva(true);
    soglia(1, "3", "7");
    ritorno();
    apriAggiuntiva(true);
    EXPECT_EQ(a.lblProgetto.testo(), "Soglie impostate in questo progetto.");
    ritorno();
    progetto(3);
    r().TipoAnalisi(0);
    conFigure(1);
    apriAggiuntiva(true);
    EXPECT_EQ(a.lblProgetto.testo(), "Soglie impostate in un altro progetto, senza nome.");
}

TEST_F(ProveAggiuntiva, APreviewThatSucceedsTakesAnOlderWarningAway) {
    conFigure(1);
    apriAggiuntiva(true);
    cornice.avviso("Impossibile scrivere");
    a.ctlToolbar.premi("Anteprima");
    EXPECT_EQ(cornice.avvisato, "");
}

}  // namespace
}  // namespace kelvo::prove
