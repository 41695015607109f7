// The window of the export: its fields, what the preview shows, what is written.

#include "cad/frmEsportaDXF.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/nuovoProgetto.h"
#include "cad/disegnoProva.h"
#include "comune/cartella.h"
#include "comune/fileDifettosi.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {

namespace {

struct ProveEsportaDXF : testing::Test, ScenaFinestre {
    DialogoFinto dialogo;
    std::unique_ptr<frmEsportaDXF> finestra;
    int mutamenti = 0;
    int chiusure = 0;

    ProveEsportaDXF() { prepara(4); }

    void prepara(std::int16_t rami) {
        creaProgetto(app, rami);
        app.theRotonda().NomeFile("Nodo");
        Contorno suo = contorno();
        suo.servizi.dialogo = &dialogo;
        finestra = std::make_unique<frmEsportaDXF>(suo);
        finestra->attivata();
        finestra->piantaMutata().connect([this] { ++mutamenti; });
        finestra->chiusura().connect([this] { ++chiusure; });
    }

    /// Types into a field and leaves it.
    static bool scrivi(tBox& campo, const std::string& testo) {
        campo.entra();
        campo.scrivi(testo);
        return campo.lascia();
    }
    tBox& direzione(std::size_t i) { return finestra->txtDirezioni.at(i); }
    tBox& ipotesi(std::string_view nome) {
        for (std::size_t i = 0; i < dxf::campiIpotesi.size(); ++i) {
            if (dxf::campiIpotesi.at(i).controllo == nome) {
                return finestra->txtIpotesi.at(i);
            }
        }
        throw std::out_of_range(std::string{nome});
    }
    void comeAllInizio() {
        const std::vector<std::string> attese{"0,00", "90,00", "180,00", "270,00"};
        for (std::size_t i = 0; i < attese.size(); ++i) {
            EXPECT_EQ(direzione(i).testo(), attese[i]);
        }
        EXPECT_FALSE(direzione(0).abilitato());
        EXPECT_EQ(ipotesi("txtAnelloMinimo").testo(), "7,00");
        EXPECT_EQ(ipotesi("txtAnelloSuIngresso").testo(), "1,20");
        EXPECT_EQ(ipotesi("txtCorona").testo(), "1,50");
        EXPECT_EQ(ipotesi("txtIsolaMinima").testo(), "6,00");
        EXPECT_EQ(ipotesi("txtIsolaMassima").testo(), "22,00");
        EXPECT_EQ(ipotesi("txtUscitaMinima").testo(), "4,50");
        EXPECT_EQ(ipotesi("txtRaggioUscitaMinimo").testo(), "15,00");
        EXPECT_EQ(ipotesi("txtRaggioUscitaMassimo").testo(), "60,00");
        EXPECT_EQ(ipotesi("txtRamoMinimo").testo(), "18,00");
        EXPECT_EQ(ipotesi("txtAttraversamentoDa").testo(), "4,00");
        EXPECT_EQ(ipotesi("txtAttraversamento").testo(), "3,00");
        for (const Casella& casella : finestra->chkGruppi) {
            EXPECT_TRUE(casella.spuntata()) << casella.nome();
        }
        EXPECT_FALSE(finestra->lblDifetto.visibile());
    }
    std::string atteso() const {
        return dxf::testoDxf(
            dxf::disegno(finestra->piantaMostrata(), dxf::cartiglioDi(app.theRotonda()), finestra->scelteMostrate()));
    }
};

TEST_F(ProveEsportaDXF, BeginsWithWhatThePlanAssumes) {
    EXPECT_EQ(finestra->didascalia(), "Esporta DXF");
    comeAllInizio();
}

TEST_F(ProveEsportaDXF, EveryLegHasItsFieldAndItsName) {
    for (std::int16_t rami = 3; rami <= 7; ++rami) {
        prepara(rami);
        app.theRotonda().Ramo(2).Descrizione("Strada molto lunga del ramo");
        finestra->attivata();
        for (std::size_t i = 0; i < frmEsportaDXF::direzioniMassime; ++i) {
            const bool suo = i < static_cast<std::size_t>(rami);
            EXPECT_EQ(direzione(i).visibile(), suo) << rami << " " << i;
            EXPECT_EQ(finestra->lblDirezioni.at(i).visibile(), suo);
        }
        EXPECT_EQ(finestra->lblDirezioni.at(0).testo(), "A - " + app.theRotonda().Ramo(1).Descrizione());
        EXPECT_EQ(finestra->lblDirezioni.at(1).testo(), "B - Strada molto lun…");
    }
    EXPECT_EQ(direzione(1).testo(), "51,43");
    // What nobody typed is exact, not what two decimals show.
    EXPECT_TRUE(finestra->piantaMostrata().ipotesi.direzioni.empty());
}

TEST_F(ProveEsportaDXF, ThePlanFollowsWhatIsTyped) {
    direzione(1).entra();
    direzione(1).scrivi("70,5");
    EXPECT_GE(mutamenti, 1);
    EXPECT_EQ(finestra->piantaMostrata().ipotesi.direzioni, (std::vector<double>{0, 70.5, 180, 270}));
    EXPECT_TRUE(direzione(1).lascia());
    for (const dxf::CampoIpotesi& campo : dxf::campiIpotesi) {
        EXPECT_TRUE(scrivi(ipotesi(campo.controllo), formatta(campo.massimo, "#0.00"))) << campo.controllo;
        EXPECT_EQ(finestra->piantaMostrata().ipotesi.*campo.valore, campo.massimo) << campo.controllo;
        EXPECT_TRUE(scrivi(ipotesi(campo.controllo), formatta(campo.minimo, "#0.00"))) << campo.controllo;
        EXPECT_EQ(finestra->piantaMostrata().ipotesi.*campo.valore, campo.minimo) << campo.controllo;
    }
}

TEST_F(ProveEsportaDXF, AValueOutOfItsRangeIsRefusedAndNotShown) {
    const double prima = finestra->piantaMostrata().ipotesi.corona;
    EXPECT_FALSE(scrivi(ipotesi("txtCorona"), "6,01"));
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 0,00 e 6,00 m");
    EXPECT_EQ(finestra->piantaMostrata().ipotesi.corona, prima);
    EXPECT_TRUE(scrivi(ipotesi("txtCorona"), "6"));
    EXPECT_FALSE(scrivi(direzione(1), "331"));
    EXPECT_FALSE(scrivi(ipotesi("txtAnelloSuIngresso"), "0,5"));
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 1,00 e 2,00");
    dialogo.risposta = cartella.file("d.dxf");
    finestra->cmdEsporta.premi();
    EXPECT_TRUE(dialogo.richieste.empty());
}

TEST_F(ProveEsportaDXF, BearingsThatCannotBeDrawnAreToldAndNotExported) {
    EXPECT_TRUE(scrivi(direzione(1), "160"));
    EXPECT_TRUE(finestra->lblDifetto.visibile());
    EXPECT_EQ(finestra->lblDifetto.testo(),
              "Direzioni non disegnabili: tra i rami B e C servono almeno 30 gradi, in senso antiorario");
    EXPECT_TRUE(finestra->piantaMostrata().ipotesi.direzioni.empty());
    finestra->cmdEsporta.premi();
    EXPECT_TRUE(dialogo.richieste.empty());
    EXPECT_EQ(messaggi.mostrati.back().testo, finestra->lblDifetto.testo());
    EXPECT_TRUE(scrivi(direzione(2), "200"));
    EXPECT_FALSE(finestra->lblDifetto.visibile());
    EXPECT_EQ(finestra->piantaMostrata().ipotesi.direzioni, (std::vector<double>{0, 160, 200, 270}));
}

TEST_F(ProveEsportaDXF, DefaultsPutAllBack) {
    scrivi(direzione(1), "160");
    scrivi(ipotesi("txtCorona"), "0");
    finestra->chkGruppi.at(3).clicca();
    finestra->cmdPredefiniti.premi();
    comeAllInizio();
}

TEST_F(ProveEsportaDXF, AnEmptyFieldIsRefusedAndThePlanKeepsItsDefault) {
    EXPECT_TRUE(scrivi(ipotesi("txtAttraversamento"), "5"));
    EXPECT_FALSE(scrivi(ipotesi("txtAttraversamento"), ""));
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 2,00 e 8,00 m");
    EXPECT_EQ(finestra->piantaMostrata().ipotesi.attraversamento, 3.0);
}

TEST_F(ProveEsportaDXF, WhatWasTypedStaysWhenTheWindowComesUpAgain) {
    scrivi(direzione(1), "75");
    app.theRotonda().Ramo(1).Descrizione("Altro nome");
    finestra->attivata();
    EXPECT_EQ(direzione(1).testo(), "75");
    EXPECT_EQ(finestra->lblDirezioni.at(0).testo(), "A - Altro nome");
    EXPECT_EQ(finestra->piantaMostrata().rami.at(0).nome, "Altro nome");
}

TEST_F(ProveEsportaDXF, ExportWritesWhatIsShownAndCloses) {
    scrivi(direzione(1), "75");
    finestra->chkGruppi.at(3).clicca();
    dialogo.risposta = cartella.file("d.dxf");
    const auto revisione = app.theRotonda().TestoFile();
    finestra->cmdEsporta.premi();
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].estensione, "dxf");
    EXPECT_EQ(dialogo.richieste[0].filtro, "Disegno DXF (*.dxf)|*.dxf|Tutti i files(*.*)|*.*");
    EXPECT_EQ(dialogo.richieste[0].nome, "Nodo.dxf");
    EXPECT_EQ(contenuto(*dialogo.risposta), atteso());
    EXPECT_EQ(contenuto(*dialogo.risposta).find("KELVO-QUOTE"), std::string::npos);
    EXPECT_EQ(cornice.avvisato, "Scritto il file " + *dialogo.risposta);
    EXPECT_EQ(chiusure, 1);
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(app.theRotonda().TestoFile(), revisione);
}

TEST_F(ProveEsportaDXF, NothingIsWrittenAfterCancelInTheDialogueOrInTheWindow) {
    finestra->cmdEsporta.premi();
    EXPECT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(chiusure, 0);
    finestra->cmdAnnulla.premi();
    EXPECT_EQ(chiusure, 1);
    EXPECT_TRUE(cornice.avvisato.empty());
}

TEST_F(ProveEsportaDXF, AFileThatCannotBeWrittenIsToldAndTheWindowStays) {
    dialogo.risposta = cartella.file("manca/d.dxf");
    finestra->cmdEsporta.premi();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Impossibile scrivere il file: percorso non trovato (" + *dialogo.risposta + ")");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(chiusure, 0);
}

TEST_F(ProveEsportaDXF, AFullDiskIsToldAndLeavesTheOldFile) {
    FileDifettosi guasto{sistemaFileStandard(), PassoFile::scrivi, Incidente::errore};
    Applicazione altra{cartella.percorso(), cartella.percorso(), {messaggi, orologio, guasto}};
    creaProgetto(altra, 3);
    frmEsportaDXF sua{Contorno{altra, stato, cornice, navigazione, {.dialogo = &dialogo}}};
    sua.attivata();
    dialogo.risposta = cartella.file("d.dxf");
    scriviContenuto(*dialogo.risposta, "vecchio");
    sua.cmdEsporta.premi();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Impossibile scrivere il file: incidente (" + *dialogo.risposta + ")");
    EXPECT_EQ(contenuto(*dialogo.risposta), "vecchio");
}

TEST_F(ProveEsportaDXF, OnlyANameThatEndsInDxfIsTaken) {
    for (const char* nome : {"Nodo.KLV", "Nodo.bak", "Nodo", "dxf", "Nodo.dxf.bak", "Nododxf"}) {
        messaggi.mostrati.clear();
        dialogo.risposta = cartella.file(nome);
        scriviContenuto(*dialogo.risposta, "altro");
        finestra->cmdEsporta.premi();
        EXPECT_EQ(contenuto(*dialogo.risposta), "altro") << nome;
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << nome;
        EXPECT_EQ(messaggi.mostrati[0].testo,
                  "Per il disegno serve un nome che finisce con .dxf (" + *dialogo.risposta + ")");
        EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
        EXPECT_EQ(chiusure, 0);
    }
    messaggi.mostrati.clear();
    dialogo.risposta = cartella.file("Nodo.DXF");
    finestra->cmdEsporta.premi();
    EXPECT_EQ(contenuto(*dialogo.risposta), atteso());
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveEsportaDXF, AProjectIsNeverReplacedWhateverItsName) {
    dialogo.risposta = cartella.file("Nodo.dxf");
    std::string parole;
    bool esito = false;
    app.theRotonda().Save(*dialogo.risposta, parole, esito);
    ASSERT_TRUE(esito) << parole;
    const std::string prima = contenuto(*dialogo.risposta);
    finestra->cmdEsporta.premi();
    EXPECT_EQ(contenuto(*dialogo.risposta), prima);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo,
              "Il disegno non può prendere il posto di un progetto (" + *dialogo.risposta + ")");
    EXPECT_EQ(chiusure, 0);
    // A drawing that stands there gives way.
    scriviContenuto(*dialogo.risposta, atteso() + "vecchio");
    finestra->cmdEsporta.premi();
    EXPECT_EQ(contenuto(*dialogo.risposta), atteso());
}

}  // namespace

}  // namespace kelvo::prove
