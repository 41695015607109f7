#include "input/frmPreviewRami.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "input/scenaParametri.h"

namespace kelvo::prove {
namespace {

/// A file beside the project, of five legs with measures of its own.
struct ProveImporta : ProveParametri {
    std::string altro = cartella.percorso() + "/Altro.KLV";
    ProveImporta() {
        AppFinta altraApp;
        creaProgetto(altraApp.app, 5);
        Ramo& quinto = altraApp.app.theRotonda().Ramo(5);
        quinto.Descrizione("Viale Est");
        quinto.LarghezzaIngresso(7.125F);
        quinto.SemiLarghezza(3.5F);
        quinto.LunghezzaSvasatura(12.5F);
        quinto.AngoloConflitto(33.0F);
        quinto.RaggioIngresso(18.0F);
        quinto.DiametroInscritto(44.0F);
        quinto.AttraversamentoPedonale(true);
        altraApp.app.theRotonda().Titolo("Nodo est");
        altraApp.app.theRotonda().Note("rilievo 2026");
        std::string messaggio;
        bool esito = true;
        altraApp.app.theRotonda().Save(altro, messaggio, esito);
        EXPECT_TRUE(esito) << messaggio;
    }
};

TEST_F(ProveImporta, ASelectedFileIsShownBeforeAnyConfirmation) {
    frmPreviewRami vista(contorno());
    EXPECT_EQ(
        vista.lstRami.intestazioni(),
        (std::vector<std::string>{"Toponomastica", "Larghezza ingresso", "Semilarghezza accesso", "Lunghezza svasatura",
                                  "Angolo conflitto", "Raggio curvatura ingresso", "Diametro inscritto"}));
    EXPECT_EQ(vista.frDatiProgetto.titolo(), "Dati progetto");
    EXPECT_EQ(vista.frGeometria.titolo(), "Geometria rami");
    EXPECT_EQ(vista.lblNumeroRami.testo(), "Numero rami:");
    EXPECT_EQ(vista.lblNomeProgetto.testo(), "Nome progetto:");
    EXPECT_EQ(vista.lblTitolo.testo(), "Titolo:");
    EXPECT_EQ(vista.lblNote.testo(), "Note:");
    vista.selezionato(altro);
    EXPECT_EQ(vista.txtNumeroRami.testo(), "5");
    EXPECT_EQ(vista.txtNomeProgetto.testo(), "Altro");
    EXPECT_EQ(vista.txtTitolo.testo(), "Nodo est");
    EXPECT_EQ(vista.txtNote.testo(), "rilievo 2026");
    ASSERT_EQ(vista.lstRami.righe().size(), 5U);
    EXPECT_EQ(vista.lstRami.righe()[4].celle,
              (std::vector<std::string>{"Viale Est", "7,13", "3,50", "12,50", "33,00", "18,00", "44,00"}));
    EXPECT_EQ(app.theRotonda().NumeroRami(), 3) << "the project in use is not touched";
}

TEST_F(ProveImporta, FilesOfAnotherKindAndBrokenOnesEmptyTheView) {
    frmPreviewRami vista(contorno());
    vista.selezionato(altro);
    std::ofstream(cartella.percorso() + "/nota.txt") << "x";
    vista.selezionato(cartella.percorso() + "/nota.txt");
    EXPECT_TRUE(vista.lstRami.righe().empty());
    EXPECT_EQ(vista.txtTitolo.testo(), "");
    std::ofstream(cartella.percorso() + "/rotto.klv") << "{";
    vista.selezionato(cartella.percorso() + "/rotto.klv");
    EXPECT_TRUE(vista.lstRami.righe().empty());
    EXPECT_FALSE(vista.lblAvviso.testo().empty());
    EXPECT_NE(vista.lblAvviso.testo(), "Selezionare un progetto per vederne i rami.");
    EXPECT_FALSE(vista.conferma(cartella.percorso() + "/rotto.klv"));
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveImporta, AConfirmedRowGoesIntoTheFieldsAndNoFurther) {
    dialogo.selezioni = {altro};
    dialogo.riga = "5";
    messaggi.risposta = Risposta::si;
    finestra.ctlToolbar.premi("Archivio");
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].filtro, "File di definizione Kelvo (*.KLV)|*.KLV|All Files (*.*)|*.*");
    EXPECT_EQ(dialogo.richieste[0].estensione, "KLV");
    EXPECT_EQ(dialogo.richieste[0].cartella, cartella.percorso());
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Importo i dati del ramo Viale Est?");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "7,125");
    EXPECT_EQ(finestra.txtDiametroInscritto.testo(), "44");
    EXPECT_EQ(finestra.txtDescrizioneRamo.testo(), "Ramo A");
    EXPECT_FALSE(finestra.chkAttraversamentoPedonale.spuntata());
    EXPECT_FALSE(finestra.DatiAllineati());
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 5.0F);
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 7.125F);
    EXPECT_EQ(ramo(1).SemiLarghezza(), 3.5F);
    EXPECT_EQ(ramo(1).LunghezzaSvasatura(), 12.5F);
    EXPECT_EQ(ramo(1).AngoloConflitto(), 33.0F);
    EXPECT_EQ(ramo(1).RaggioIngresso(), 18.0F);
    EXPECT_EQ(ramo(1).DiametroInscritto(), 44.0F);
}

TEST_F(ProveImporta, AnImportedNumberCountsEvenWhereTheFieldShowedTheSameText) {
    ramo(1).DiametroInscritto(44.004F);
    ramo(1).RaggioIngresso(18.0F);
    finestra.ReadData();
    EXPECT_EQ(finestra.txtDiametroInscritto.testo(), "44,00");
    dialogo.selezioni = {altro};
    dialogo.riga = "5";
    messaggi.risposta = Risposta::si;
    finestra.ctlToolbar.premi("Archivio");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ramo(1).DiametroInscritto(), 44.0F);
}

TEST_F(ProveImporta, NoRowOrNoAnswerLeavesTheFieldsAlone) {
    dialogo.selezioni = {altro};
    finestra.ctlToolbar.premi("Archivio");
    EXPECT_FALSE(dialogo.accettato);
    EXPECT_TRUE(messaggi.mostrati.empty()) << "nothing is asked without a row";
    dialogo.riga = "2";
    messaggi.risposta = Risposta::no;
    finestra.ctlToolbar.premi("Archivio");
    EXPECT_FALSE(dialogo.accettato);
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(finestra.txtLarghezzaIngresso.testo(), "5,00");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveImporta, FiguresFollowWhatWasImported) {
    dialogo.selezioni = {altro};
    dialogo.riga = "5";
    messaggi.risposta = Risposta::si;
    finestra.ctlToolbar.premi("Archivio");
    // S = 1.6 (e - v) / l' with 7.125, 3.5 and 12.5.
    EXPECT_EQ(finestra.valori[2].etichetta.testo(), formatta(1.6 * (7.125 - 3.5) / 12.5, "#0.000"));
}

TEST_F(ProveImporta, AnotherFileTakesTheMarkAway) {
    frmPreviewRami vista(contorno());
    vista.selezionato(altro);
    vista.lstRami.clicca("2");
    const std::string copia = cartella.percorso() + "/Copia.klv";
    std::filesystem::copy_file(altro, copia);
    vista.selezionato(copia);
    EXPECT_EQ(vista.lstRami.selezionata(), "");
    EXPECT_FALSE(vista.conferma(copia));
    vista.lstRami.clicca("2");
    EXPECT_FALSE(vista.conferma(altro)) << "another name was typed than the one that is shown";
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(vista.txtNomeProgetto.testo(), "Altro");
}

TEST_F(ProveImporta, MeasuresOutsideTheLimitsAreNotWritten) {
    {
        AppFinta altraApp;
        creaProgetto(altraApp.app, 3);
        altraApp.app.theRotonda().Ramo(1).LarghezzaIngresso(20.0F);
        std::string messaggio;
        bool esito = true;
        altraApp.app.theRotonda().Save(altro, messaggio, esito);
    }
    dialogo.selezioni = {altro};
    dialogo.riga = "1";
    messaggi.risposta = Risposta::si;
    finestra.ctlToolbar.premi("Archivio");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ramo(1).LarghezzaIngresso(), 5.0F);
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 3,60 e 16,30 m");
}

}  // namespace
}  // namespace kelvo::prove
