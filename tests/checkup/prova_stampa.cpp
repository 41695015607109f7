// Report and check list on paper: what the documents hold, and the buttons that print and save them.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "checkup/checkList.h"
#include "checkup/frmANALIZZATORE.h"
#include "checkup/stampaControllo.h"
#include "comune/appunti.h"
#include "comune/stampaFinta.h"
#include "scenaControllo.h"
#include "shell/servizi/MenuChiavi.h"
#include "shell/servizi/stampaDocumento.h"

namespace kelvo::prove {
namespace {

using D = DocumentoPagine;

AlberoRiscontri treRiscontri() {
    return {"Report Analisi Progetto: prova",
            {{"Yellow2", "Titolo:prima verifica", Livello::Yellow, {}},
             {"Green3", "Titolo:informazione", Livello::Green, {}},
             {"Red4", "Altro titolo:errore: grave", Livello::Red, {}}}};
}

TEST(DocumentoReport, HasTheRootTheFindingsInOrderAndTheLegend) {
    const D documento = documentoReport({.titolo = "Report", .progetto = "Prova"}, treRiscontri());
    EXPECT_EQ(documento.titolo, "Report");
    EXPECT_EQ(paroleDi(documento),
              (Testi{"# Report Analisi Progetto: prova", "Titolo:prima verifica", "Titolo:informazione",
                     "Altro titolo:errore: grave", "# Legenda", "Messaggio di Errore", "Messaggio di Verifica",
                     "Messaggio di Informazione"}));
}

TEST(DocumentoReport, FindingsHaveTheSignOfTheirLevelAndAStrongHeading) {
    const D documento = documentoReport({.titolo = "Report", .progetto = "Prova"}, treRiscontri());
    const std::array attesi{std::pair{D::Segno::verifica, "Titolo:"}, std::pair{D::Segno::informazione, "Titolo:"},
                            std::pair{D::Segno::errore, "Altro titolo:"}};
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        const auto& paragrafo = std::get<D::Paragrafo>(documento.blocchi.at(i + 1));
        EXPECT_EQ(paragrafo.segno, attesi.at(i).first) << i;
        EXPECT_EQ(paragrafo.inizio, attesi.at(i).second) << i;
    }
}

TEST(DocumentoReport, AListWithoutFindingsSaysSo) {
    EXPECT_EQ(paroleDi(documentoReport({.titolo = "Report", .progetto = "Prova"}, {"Radice", {}})).at(1),
              "Nessun messaggio.");
}

TEST(DocumentoCheckList, HasFiveSectionsWithTheirQuestionsAndBoxes) {
    const Testi parole = paroleDi(
        documentoCheckList({.titolo = "Check list", .progetto = "Prova"}, {{3, true}, {12, false}, {43, true}}));
    Testi titoli;
    Testi domande;
    for (const std::string& parola : parole) {
        if (parola.starts_with("# ")) {
            titoli.push_back(parola.substr(2));
        } else if (parola.starts_with("- ")) {
            domande.push_back(parola);
        }
    }
    EXPECT_EQ(titoli,
              (Testi{"VISIBILITA' E LEGGIBILITA'", "PROGETTAZIONE E GEOMETRIA", "SEGNALETICA", "IMPIANTI ACCESSORI",
                     "INTERFERENZA UTENZA DEBOLE E SICUREZZA GENERALE", "Livello del progetto"}));
    ASSERT_EQ(domande.size(), 29U);
    EXPECT_TRUE(domande[0].ends_with("di giorno che di notte?|x|o")) << domande[0];
    EXPECT_TRUE(domande[1].ends_with("?|o|o")) << domande[1];
    EXPECT_TRUE(domande[6].ends_with("entranti in rotatoria?|o|x")) << domande[6];
    EXPECT_TRUE(domande[28].ends_with("dalla carreggiata?|x|o")) << domande[28];
    // 6 for the first question, -8 for the island, 1 for the last.
    EXPECT_EQ(parole.at(parole.size() - 2), "Risposte inserite: 3 di 29   -   Indice: -1");
    EXPECT_EQ(parole.back(), "Il livello compare quando si è risposto a tutte le domande.");
}

TEST(DocumentoCheckList, WithAllAnswersItHasTheLevelAndItsComment) {
    RisposteCheckList tutte;
    for (std::size_t r = 0; r < righeCheckList.size(); ++r) {
        if (righeCheckList.at(r).genere == GenereRiga::BIANCO) {
            tutte.emplace(static_cast<int>(r), true);
        }
    }
    EXPECT_EQ(paroleDi(documentoCheckList({.titolo = "T", .progetto = "P"}, tutte)).back(),
              "L'indice 101 non rientra in alcun livello.");
    tutte[12] = false;  // 15 less
    EXPECT_EQ(paroleDi(documentoCheckList({.titolo = "T", .progetto = "P"}, tutte)).back(),
              "LIVELLO BUONO: " + std::string{fasceIndice[4].commento});
}

struct ProveStampa : ScenaControllo {
    DocumentiFinti documenti;
    DialogoFinto dialogo;
    StampaFinta stampa;
    Contorno conDialogo() {
        Contorno tutto = contorno();
        tutto.servizi.dialogo = &dialogo;
        return tutto;
    }
    frmANALIZZATORE finestra{
        conDialogo(),
        {.documenti = documenti, .campi = &campi, .mostraMessaggio = {}, .mostraTesto = {}, .stampa = &stampa}};

    ProveStampa() {
        rotonda().Comune("");
        ramo(1).LunghezzaSvasatura(31.0F);
        finestra.attivata();
    }
};

TEST_F(ProveStampa, ThePageInViewIsPrinted) {
    finestra.ctlToolbar.premi("keyXStampa");
    finestra.TabStrip1.scegli(3);
    finestra.ctlToolbar.premi("keyXStampa");
    finestra.TabStrip2.scegli(1);
    finestra.ctlGrid.clic(3, frmANALIZZATORE::colonnaNO);
    finestra.ctlToolbar.premi("keyXStampa");
    ASSERT_EQ(stampa.stampati.size(), 3U);
    EXPECT_EQ(stampa.stampati[0].titolo, "Report");
    EXPECT_EQ(paroleDi(stampa.stampati[0]).at(1), "Anagrafica rotatoria:campo 'Comune' non inserito.");
    EXPECT_EQ(paroleDi(stampa.stampati[0]).size(), 7U);
    EXPECT_EQ(stampa.stampati[1].titolo, "Messaggi di errore");
    EXPECT_TRUE(paroleDi(stampa.stampati[1]).at(1).starts_with("Geometria Ingresso:Ramo 'Nord', Lunghezza"));
    EXPECT_EQ(stampa.stampati[2].titolo, "Check list del progetto");
    EXPECT_TRUE(paroleDi(stampa.stampati[2]).at(2).ends_with("di notte?|o|x"));
    EXPECT_EQ(cornice.avvisato, "Documento inviato alla stampante");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveStampa, PapersBearProjectDesignerProgramAndMoment) {
    const D documento = finestra.documento();
    EXPECT_EQ(documento.progetto, "Prova");
    EXPECT_EQ(documento.progettista, "Ing. Bianchi");
    EXPECT_EQ(documento.chiusura, "Kelvo 1.0.0 - 21/11/2026 10:30:05");
}

TEST_F(ProveStampa, FindingsOlderThanTheProjectSaySoOnPaper) {
    const std::string cambiato = "Il progetto è cambiato dopo l'analisi";
    EXPECT_EQ(paroleDi(finestra.documento()).at(1), "Anagrafica rotatoria:campo 'Comune' non inserito.");
    rotonda().Comune("Lucca");
    finestra.attivata();
    const D documento = finestra.documento();
    const auto& avviso = std::get<D::Paragrafo>(documento.blocchi.at(1));
    EXPECT_EQ(avviso.testo, cambiato);
    EXPECT_TRUE(avviso.quieto);
    EXPECT_EQ(paroleDi(documento).at(2), "Anagrafica rotatoria:campo 'Comune' non inserito.");
    finestra.TabStrip2.scegli(1);
    EXPECT_NE(paroleDi(finestra.documento()).at(1), cambiato) << "answers do not grow old";
    finestra.Analizza();
    EXPECT_NE(paroleDi(finestra.documento()).at(1), cambiato);
}

/// Parts of a text between ends of lines.
Testi righeDi(const std::string& testo) {
    Testi righe;
    for (std::size_t da = 0; da < testo.size();) {
        const std::size_t fine = std::min(testo.find("\r\n", da), testo.size());
        righe.push_back(testo.substr(da, fine - da));
        da = fine + 2;
    }
    return righe;
}

TEST_F(ProveStampa, TheCheckListIsSavedUnderTheNameOfItsPageWithItsAnswersInWords) {
    finestra.TabStrip2.scegli(1);
    finestra.ctlGrid.clic(3, frmANALIZZATORE::colonnaSI);
    finestra.ctlGrid.clic(43, frmANALIZZATORE::colonnaNO);
    dialogo.risposta = cartella.file("t.csv");
    finestra.ctlGrid.menu()->premi("mnuXDatiCSV");
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].nome, "Check Up Rotatoria- Analisi Check List Progetto.csv");
    const Testi righe = righeDi(contenuto(*dialogo.risposta));
    ASSERT_EQ(righe.size(), 44U) << "no empty rows at the end";
    EXPECT_EQ(righe[1], "VISIBILITA' E LEGGIBILITA';;");
    EXPECT_EQ(righe[2], ";SI;NO");
    EXPECT_TRUE(righe[3].ends_with("di giorno che di notte?;X;")) << righe[3];
    EXPECT_TRUE(righe[4].ends_with("1/4 dell'anello)?;;")) << righe[4];
    EXPECT_TRUE(righe[43].ends_with("dalla carreggiata?;;X")) << righe[43];
}

TEST_F(ProveStampa, TheCheckListIsCopiedWithItsAnswersInWords) {
    AppuntiFinti blocco;
    app.appunti = &blocco;
    finestra.TabStrip2.scegli(1);
    finestra.ctlGrid.clic(3, frmANALIZZATORE::colonnaNO);
    finestra.ctlGrid.menu()->premi("mnuXDatiCopia");
    EXPECT_EQ(blocco.testo, "X");
    finestra.ctlGrid.premiTasto(Griglia::Tasto::tutto);
    finestra.ctlGrid.menu()->premi("mnuXDatiCopia");
    const Testi righe = righeDi(blocco.testo);
    ASSERT_EQ(righe.size(), 44U);
    EXPECT_TRUE(righe[3].ends_with("di giorno che di notte?\t\tX")) << righe[3];
    EXPECT_TRUE(righe[43].ends_with("dalla carreggiata?\t\t")) << righe[43];
    app.appunti = nullptr;
}

TEST_F(ProveStampa, APrintThatIsGivenUpSaysNothingAndOneThatFailsSaysWhy) {
    stampa.annulla = true;
    finestra.ctlToolbar.premi("keyXStampa");
    EXPECT_EQ(cornice.avvisato, "");
    EXPECT_TRUE(messaggi.mostrati.empty());
    stampa.errore = "la stampante non risponde";
    finestra.ctlToolbar.premi("keyXStampa");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Impossibile stampare: la stampante non risponde");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
}

TEST_F(ProveStampa, ThePdfGoesWhereTheUserSays) {
    const std::string percorso = cartella.file("Controllo.pdf");
    dialogo.risposta = percorso;
    finestra.ctlToolbar.premi("keyXPDF");
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].nome, "Report - Prova.pdf");
    EXPECT_EQ(dialogo.richieste[0].estensione, "pdf");
    EXPECT_EQ(contenuto(percorso), "pagine");
    EXPECT_EQ(cornice.avvisato, "Scritto il file " + percorso);
    dialogo.risposta.reset();
    finestra.ctlToolbar.premi("keyXPDF");
    EXPECT_EQ(stampa.salvati.size(), 1U) << "Cancel makes no document";
}

TEST_F(ProveStampa, APdfThatCannotBeWrittenIsTold) {
    dialogo.risposta = cartella.file("manca/Controllo.pdf");
    finestra.ctlToolbar.premi("keyXPDF");
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_TRUE(messaggi.mostrati[0].testo.starts_with("Impossibile scrivere il file: ")) << messaggi.mostrati[0].testo;
    dialogo.risposta = cartella.file("Controllo.pdf");
    stampa.errore = "impossibile comporre il documento";
    finestra.ctlToolbar.premi("keyXPDF");
    EXPECT_EQ(messaggi.mostrati.back().testo,
              "Impossibile scrivere il file: impossibile comporre il documento (" + *dialogo.risposta + ")");
    EXPECT_FALSE(std::filesystem::exists(*dialogo.risposta));
}

TEST_F(ProveStampa, WithoutPrintingTheButtonsAreClosed) {
    frmANALIZZATORE altra{contorno(), {documenti}};
    EXPECT_FALSE(altra.ctlToolbar.abilitato("keyXStampa"));
    EXPECT_FALSE(altra.ctlToolbar.abilitato("keyXPDF"));
    EXPECT_TRUE(finestra.ctlToolbar.abilitato("keyXPDF"));
}

TEST_F(ProveStampa, WhereNoProgramOpensTheReportItsTextIsShown) {
    Testi mostrati;
    frmANALIZZATORE altra{contorno(),
                          {.documenti = documenti,
                           .campi = nullptr,
                           .mostraMessaggio = {},
                           .mostraTesto =
                               [&](const std::string& percorso, const std::string& testo) {
                                   mostrati = {percorso, testo};
                               },
                           .stampa = nullptr}};
    altra.attivata();
    altra.Anteprima();
    EXPECT_TRUE(mostrati.empty()) << "a program opened it";
    documenti.riesce = false;
    altra.Anteprima();
    const std::string percorso = app.theAmbiente.CartellaLavoro() + "Report.txt";
    EXPECT_EQ(mostrati, (Testi{percorso, contenuto(percorso)}));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

}  // namespace
}  // namespace kelvo::prove
