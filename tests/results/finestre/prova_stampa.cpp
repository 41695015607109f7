// The result windows on paper: what their pages hold, and how they are asked for.

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "comune/stampaFinta.h"
#include "results/frmCapacitaCodeRitardi.h"
#include "results/frmCapacitaCodeRitardiRamo.h"
#include "results/frmCapacitaUltima.h"
#include "results/frmConfronti.h"
#include "results/frmDX.h"
#include "results/frmRisultatiAnalisiMarginale.h"
#include "scenaRisultati.h"

namespace kelvo::prove {
namespace {

using D = DocumentoPagine;
using Testi = std::vector<std::string>;

/// Never calls back.
class CronometroFermo final : public Cronometro {
public:
    void ogni(int /*millisecondi*/, const std::function<void()>& /*cosa*/) override {}
    void ferma() override {}
};

struct ProveStampaRisultati : ScenaRisultati {
    StampaFinta stampa;
    DialogoFinto dialogo;
    CronometroFermo cronometro;

    ServiziRisultati conCarta() {
        ServiziRisultati s = servizi();
        s.stampa = &stampa;
        return s;
    }
    Contorno conDialogo() {
        Contorno c = contorno();
        c.servizi.dialogo = &dialogo;
        return c;
    }
    /// Titles, tables ("tabella 3x7"), charts and plans ("pianta") in their order; other words are left out.
    static Testi ossatura(const D& documento) {
        Testi parti;
        for (const D::Blocco& blocco : documento.blocchi) {
            if (const auto* titolo = std::get_if<D::Titolo>(&blocco)) {
                parti.push_back("# " + titolo->testo);
            } else if (const auto* tabella = std::get_if<D::Tabella>(&blocco)) {
                parti.push_back("tabella " + std::to_string(tabella->righe.size()) + "x" +
                                std::to_string(tabella->colonne.size()));
            } else if (const auto* figura = std::get_if<D::Figura>(&blocco)) {
                const auto* grafico = std::get_if<Grafico::Contenuto>(&figura->contenuto);
                parti.push_back(grafico == nullptr ? "pianta" : "grafico " + std::to_string(grafico->serie.size()));
            }
        }
        return parti;
    }
    static const D::Tabella& tabella(const D& documento, std::size_t quale) {
        for (const D::Blocco& blocco : documento.blocchi) {
            const auto* tabella = std::get_if<D::Tabella>(&blocco);
            if (tabella != nullptr && quale-- == 0) {
                return *tabella;
            }
        }
        throw std::out_of_range("tabella");
    }
    static Testi avvisi(const D& documento) {
        Testi tutti;
        for (const D::Blocco& blocco : documento.blocchi) {
            const auto* paragrafo = std::get_if<D::Paragrafo>(&blocco);
            if (paragrafo != nullptr && paragrafo->segno == D::Segno::verifica) {
                tutti.push_back(paragrafo->testo);
            }
        }
        return tutti;
    }
    static std::string eta(const D& documento) {
        const auto& ultimo = std::get<D::Paragrafo>(documento.blocchi.back());
        return ultimo.inizio + ultimo.testo;
    }
    /// Rows of the table of what is in force: what is common, and two of each leg.
    std::string vigore(const Finestra& finestra) const {
        const auto& f = dynamic_cast<const FinestraRisultati&>(finestra);
        return "tabella " + std::to_string(f.ctlInVigore.tabella().righe() - 1) + "x2";
    }
};

TEST_F(ProveStampaRisultati, EveryPageTellsProjectDesignerWhatIsInForceAndTheAgeOfTheFigures) {
    app.theRotonda().NomeFile("Prova");
    app.theRotonda().NomeProfessionista("Ing. Bianchi");
    frmCapacitaCodeRitardi finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCodeRitardi_Out");
    finestra.ctlToolbar.premi("keyCalcola");
    finestra.stampaFigure();
    ASSERT_EQ(stampa.stampati.size(), 1U);
    const D& carta = stampa.stampati[0];
    EXPECT_EQ(carta.titolo, "Risultati: Verifiche prestazionali");
    EXPECT_EQ(carta.progetto, "Prova");
    EXPECT_EQ(carta.progettista, "Ing. Bianchi");
    EXPECT_EQ(carta.chiusura, "Kelvo 1.0.0 - 21/11/2026 10:30:05");
    EXPECT_EQ(tabella(carta, 3).colonne[0].titolo, "Voce");
    EXPECT_EQ(tabella(carta, 3).righe[0][0].testo, finestra.ctlInVigore.testo(1, 0));
    EXPECT_EQ(eta(carta), "Età delle cifre: calcolate sui dati del progetto come sono al momento della stampa.");
    EXPECT_TRUE(avvisi(carta).empty());
    EXPECT_EQ(cornice.avvisato, "Documento inviato alla stampante");
}

TEST_F(ProveStampaRisultati, FiguresThatAreOlderThanTheDataSayItFirstAndLast) {
    frmCapacitaCodeRitardi finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCodeRitardi_Out");
    finestra.ctlToolbar.premi("keyCalcola");
    ramo(1).LarghezzaIngresso(ramo(1).LarghezzaIngresso() + 1.0F);
    const D carta = finestra.documento();
    const std::string vecchi = "I dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto.";
    EXPECT_EQ(avvisi(carta), Testi{vecchi}) << "there is nothing to press on paper";
    EXPECT_EQ(std::get<D::Paragrafo>(carta.blocchi.front()).testo, vecchi);
    EXPECT_EQ(eta(carta),
              "Età delle cifre: i dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto.");
}

TEST_F(ProveStampaRisultati, WithoutFiguresOrAPrinterNothingIsPrinted) {
    frmCapacitaCodeRitardi finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCodeRitardi_Out");
    EXPECT_EQ(finestra.impedimentoStampa(), "Non ci sono cifre da stampare: premere Calcola (F9)");
    finestra.stampaFigure();
    dialogo.risposta = cartella.file("x.pdf");
    finestra.salvaFigurePDF();
    EXPECT_TRUE(stampa.stampati.empty());
    EXPECT_TRUE(dialogo.richieste.empty());
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(finestra.impedimentoStampa(), "");
    frmCapacitaCodeRitardi senza{conDialogo(), servizi()};
    apri(senza, "keyCodeRitardi_Out");
    senza.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(senza.impedimentoStampa(), "Non disponibile");
    senza.stampaFigure();
    EXPECT_FALSE(senza.ctlGrid.menu()->voce("mnuXDatiStampa").abilitata);
}

TEST_F(ProveStampaRisultati, ThePdfIsSavedWhereTheUserSaysUnderTheNameOfWindowAndProject) {
    app.theRotonda().NomeFile("Prova");
    frmCapacitaCodeRitardiRamo finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCodeRitardi_Out2");
    finestra.ctlToolbar.premi("keyCalcola");
    dialogo.risposta = cartella.file("Ingresso.pdf");
    finestra.ctlGrid.menu()->premi("mnuXDatiStampaPDF");
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].nome, "Risultati- Verifiche prestazionali - Ramo B - Prova.pdf");
    EXPECT_EQ(contenuto(cartella.file("Ingresso.pdf")), "pagine");
    EXPECT_EQ(stampa.salvati.at(0).titolo, "Risultati: Verifiche prestazionali - Ramo B");
}

TEST_F(ProveStampaRisultati, APrinterThatFailsIsTold) {
    frmCapacitaUltima finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCapacitaUltima_Out");
    stampa.errore = "la stampante non risponde";
    finestra.ctlGrid.menu()->premi("mnuXDatiStampa");
    EXPECT_EQ(testi(), Testi{"Impossibile stampare: la stampante non risponde"});
}

TEST_F(ProveStampaRisultati, TheUltimateCapacityIsItsTable) {
    frmCapacitaUltima finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCapacitaUltima_Out");
    const D carta = finestra.documento();
    EXPECT_EQ(ossatura(carta), (Testi{"tabella " + std::to_string(finestra.ctlGrid.tabella().righe() - 1) + "x" +
                                          std::to_string(finestra.ctlGrid.tabella().colonne()),
                                      "# In vigore nel calcolo", vigore(finestra)}));
    EXPECT_EQ(tabella(carta, 0).righe[0][0].testo, finestra.ctlGrid.testo(1, 0));
    EXPECT_EQ(avvisi(carta).size(), 1U) << "nobody has calculated yet";
}

TEST_F(ProveStampaRisultati, TheChecksAreTheirThreeTabs) {
    frmCapacitaCodeRitardi finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCodeRitardi_Out");
    finestra.ctlToolbar.premi("keyCalcola");
    const D carta = finestra.documento();
    // Four quarters of an hour, each a band and three entries; three entries and the junction; three entries by four.
    EXPECT_EQ(ossatura(carta),
              (Testi{"# Risultati", "tabella 16x7", "# Sintesi nodo",
                     "tabella 4x" + std::to_string(finestra.ctlSintesi.tabella().colonne()), "# Mappa dei livelli",
                     "tabella 3x5", "# In vigore nel calcolo", vigore(finestra)}));
    EXPECT_EQ(tabella(carta, 0).capi, (std::vector<std::size_t>{0, 4, 8, 12}));
    EXPECT_EQ(tabella(carta, 0).colonne[6].allineamento, AllineamentoCella::centro);
    EXPECT_EQ(tabella(carta, 2).colonne[1].allineamento, AllineamentoCella::centro);
    const Testi parole = paroleDi(carta);
    for (const std::string& parola : {finestra.lblPeggiore.testo(), finestra.lblOra.testo(), finestra.lblFigure.testo(),
                                      std::string{"Ritardo [s/veic]: A fino a 10; B fino a 15; C fino a 25; D fino a "
                                                  "35; E fino a 50; F oltre 50; - nessuno"}}) {
        EXPECT_NE(std::find(parole.begin(), parole.end(), parola), parole.end()) << parola;
    }
}

TEST_F(ProveStampaRisultati, AHighSaturationIsToldBelowTheSummary) {
    ramo(2).theDatiTraffico().FlussoTempo2(60.0F);
    frmCapacitaCodeRitardi finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCodeRitardi_Out");
    finestra.ctlToolbar.premi("keyCalcola");
    ASSERT_FALSE(finestra.lblSaturazione.testo().empty());
    EXPECT_EQ(avvisi(finestra.documento()), Testi{finestra.lblSaturazione.testo()});
}

TEST_F(ProveStampaRisultati, AnEntryIsItsTableWhatItAddsUpToAndItsCharts) {
    frmCapacitaCodeRitardiRamo finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCodeRitardi_Out2");
    finestra.ctlToolbar.premi("keyCalcola");
    finestra.ctlTab.scegli(3);
    const D carta = finestra.documento();
    EXPECT_EQ(ossatura(carta),
              (Testi{"# Risultati", "tabella 4x7", "# Valori riassuntivi", "tabella 5x5", "# Grafici", "grafico 1",
                     "grafico 1", "grafico 1", "grafico 1", "grafico 1", "# In vigore nel calcolo", vigore(finestra)}));
    const auto& capacita = tabella(carta, 1).righe[0];
    EXPECT_EQ(capacita[0].testo, "Capacità");
    EXPECT_EQ(capacita[1].testo, finestra.riassunti[0].minimo.testo());
    EXPECT_EQ(capacita[2].testo, finestra.riassunti[0].massimo.testo());
    EXPECT_EQ(capacita[3].testo, finestra.riassunti[0].medio.testo());
    EXPECT_EQ(capacita[4].testo, "[veic./h]");
    EXPECT_FALSE(capacita[1].testo.empty());
    EXPECT_EQ(tabella(carta, 1).righe[4][0].testo, "Livello di Servizio");
}

TEST_F(ProveStampaRisultati, TheComparisonIsItsChartItsPlanAndTheWholeTable) {
    frmConfronti finestra{conDialogo(), conCarta(), cronometro};
    apri(finestra, "keyConfronti");
    finestra.listTEMPO.scegli(2);
    const D carta = finestra.documento();
    EXPECT_EQ(ossatura(carta), (Testi{"# " + finestra.txtVARselezionata.testo() + " - 08:30", "grafico 1", "pianta",
                                      "# " + finestra.txtVARselezionata.testo(), "tabella 3x5",
                                      "# In vigore nel calcolo", vigore(finestra)}));
    EXPECT_EQ(tabella(carta, 0).guida, 1U);
    const auto& figura = std::get<D::Figura>(carta.blocchi.at(2));
    EXPECT_EQ(figura.didascalia, "08:30: " + finestra.ctlPianta.descrizione());
    EXPECT_EQ(std::get<D::Pianta>(figura.contenuto).opzioni->stati.size(), 3U);
    EXPECT_EQ(std::get<D::Pianta>(figura.contenuto).dati->rami.size(), 3U);
    finestra.ctlPianta.menu()->premi("mnuXDatiStampa");
    EXPECT_EQ(stampa.stampati.size(), 1U);
}

TEST_F(ProveStampaRisultati, TheLanesNamedAreThoseOfTheFigures) {
    progetto(4);
    frmDX finestra{conDialogo(), conCarta()};
    apri(finestra, "keyCorsiaDX");
    EXPECT_FALSE(finestra.impedimentoStampa().empty());
    finestra.listDX.clicca(0);
    finestra.listDX.clicca(3);
    finestra.ctlToolbar.premi("keyCalcola");
    finestra.listDX.clicca(1);
    const D carta = finestra.documento();
    const std::string corsie =
        "Corsie di svolta a destra: Posizione 1: (svolta Ramo A-->Ramo B); Posizione 4: (svolta Ramo D-->Ramo A).";
    const Testi parole = paroleDi(carta);
    EXPECT_NE(std::find(parole.begin(), parole.end(), corsie), parole.end());
    EXPECT_EQ(avvisi(carta).size(), 1U) << "other lanes are chosen now";
    EXPECT_EQ(tabella(carta, 0).righe.size(), static_cast<std::size_t>(finestra.ctlGrid.tabella().righe()) - 1);
    EXPECT_EQ(ossatura(carta), (Testi{"pianta", "tabella 17x" + std::to_string(finestra.ctlGrid.tabella().colonne()),
                                      "# In vigore nel calcolo", vigore(finestra)}));
    for (const D::Blocco& blocco : carta.blocchi) {
        if (const auto* figura = std::get_if<D::Figura>(&blocco)) {
            EXPECT_EQ(figura->didascalia, "Svolte a destra delle corsie del confronto");
            const auto& flussi = std::get<D::Pianta>(figura->contenuto).opzioni->flussi;
            ASSERT_EQ(flussi.size(), 4U);
            EXPECT_EQ(flussi[0][1], 10.0F);
            EXPECT_EQ(flussi[3][0], 10.0F);
            EXPECT_EQ(flussi[1][2], 0.0F) << "chosen since, and not in the figures";
        }
    }
}

TEST_F(ProveStampaRisultati, TheSensitivityIsEachMeasureWithItsChartAndTheSummary) {
    for (int i = 1; i <= 3; ++i) {
        ramo(i).LarghezzaIngresso(4.5F);
        ramo(i).SemiLarghezza(3.5F);
        ramo(i).LunghezzaSvasatura(20.0F);
        ramo(i).AngoloConflitto(30.0F);
        ramo(i).RaggioIngresso(20.0F);
        ramo(i).DiametroInscritto(40.0F);
    }
    ramo(1).theAnalisiMarginale().UsaLarghezzaIngresso(true);
    ramo(1).theAnalisiMarginale().UsaAngoloConflitto(true);
    frmRisultatiAnalisiMarginale finestra{conDialogo(), conCarta()};
    apri(finestra, "keyOttimizzazioneGeometrica1");
    EXPECT_FALSE(finestra.impedimentoStampa().empty());
    finestra.opzVARIABILE.clicca(0);
    finestra.ctlToolbar.premi("keyCalcola");
    const Testi parti = ossatura(finestra.documento());
    std::size_t tabelle = 0;
    std::size_t grafici = 0;
    for (const std::string& parte : parti) {
        tabelle += parte.starts_with("tabella") ? 1U : 0U;
        grafici += parte.starts_with("grafico") ? 1U : 0U;
    }
    constexpr std::size_t attive = 2;
    EXPECT_EQ(tabelle, attive + 1) << "the last one is what is in force";
    EXPECT_EQ(grafici, attive + 1) << "the last one is the summary";
    // Each measure is told to be old by itself, whichever tab is in view.
    ramo(2).theDatiTraffico().FlussoTempo2(20.0F);
    const Testi vecchi = avvisi(finestra.documento());
    EXPECT_EQ(static_cast<std::size_t>(
                  std::count(vecchi.begin(), vecchi.end(), "I dati sono cambiati dopo il calcolo di questa tabella.")),
              attive);
    // With the tab in view calculated anew the other one is still old, and so is the summary.
    finestra.Command1.premi();
    ASSERT_EQ(finestra.lblVecchi.testo(), "");
    const D mista = finestra.documento();
    const Testi restano = avvisi(mista);
    EXPECT_EQ(std::count(restano.begin(), restano.end(), "I dati sono cambiati dopo il calcolo di questa tabella."), 1);
    EXPECT_EQ(std::count(restano.begin(), restano.end(),
                         "I dati sono cambiati dopo il calcolo di almeno una delle grandezze del riepilogo."),
              1);
    EXPECT_EQ(eta(mista),
              "Età delle cifre: i dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto.");
    finestra.ctlToolbar.premi("keyCalcola");
    EXPECT_EQ(eta(finestra.documento()),
              "Età delle cifre: calcolate sui dati del progetto come sono al momento della stampa.");
}

}  // namespace
}  // namespace kelvo::prove
