#include "shell/frmOpzioni.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "app/nuovoProgetto.h"
#include "comune/cartella.h"
#include "comune/fintiFinestre.h"
#include "shell/servizi/pelle.h"

namespace kelvo::prove {
namespace {

constexpr const char* avvertimento =
    "Attenzione! Sono state modificate delle opzioni: verificare con attenzione i dati precedentemente inseriti.";

/// A project of three legs with the options window at hand and a configuration file beside the program.
struct ProveOpzioni : testing::Test, ScenaFinestre {
    frmOpzioni finestra{contorno()};
    frmOpzioni altra{contorno()};

    ProveOpzioni() {
        std::ofstream(app.theAmbiente.PercorsoIni())
            << "[LAY_OUT]\nCustomPanel=3\n[10_MOTIVI]\nAvvia=1\n[OPZ_EXPLORER]\nRami=0\n[OPZ_MENU]\nAttivo=0\n";
        app.configurazione.LayoutPannello = 3;
        creaProgetto(app, 3);
        EXPECT_TRUE(gestione.ShowForm(&finestra));
    }
    Rotonda& rotonda() { return app.theRotonda(); }
    std::string ini(const std::string& sezione, const std::string& chiave) {
        return app.theAmbiente.LeggiIni(sezione, chiave, app.theAmbiente.PercorsoIni());
    }
    void scrivi(tBox& campo, const std::string& testo) {
        finestra.fuocoSu(campo);
        campo.scrivi(testo);
        finestra.lasciaFuoco();
        finestra.scordaFuoco();
    }
    int avvertimenti() {
        int quanti = 0;
        for (const auto& m : messaggi.mostrati) {
            quanti += m.testo == avvertimento ? 1 : 0;
        }
        return quanti;
    }
    std::vector<std::string> testi(const GruppoOpzioni& gruppo) {
        std::vector<std::string> trovati;
        for (const auto& o : gruppo.opzioni()) {
            trovati.push_back(o.nome);
        }
        return trovati;
    }
};

TEST_F(ProveOpzioni, ControlsCarryTheirNames) {
    using Nomi = std::vector<std::string>;
    EXPECT_EQ(testi(finestra.grpTipoAnalisi), (Nomi{"optSaturazione", "optCurvaTempoFlusso", "optSegmentiTempo"}));
    EXPECT_EQ(testi(finestra.grpTipoFlusso), (Nomi{"optCostante", "optSegmentiTempo2"}));
    EXPECT_EQ(testi(finestra.grpTipoMatrice), (Nomi{"optVeicoli", "optPercentuale"}));
    EXPECT_EQ(finestra.chkCondizioniNotturne.testo(), "Condizioni ambientali");
    EXPECT_EQ(finestra.txtCondizioniNotturne.suggerimento, "Incidenza percentuale capacità nodo");
    Nomi tasti;
    for (const auto& t : finestra.ctlToolbar.tasti()) {
        tasti.push_back(t.chiave);
    }
    EXPECT_EQ(tasti, (Nomi{"Restore", "Archivio", "AggiornaDati", "Refresh"}));
    Nomi colori;
    for (const auto& v : finestra.ctlLIST.voci()) {
        colori.push_back(v.testo);
    }
    EXPECT_EQ(colori, (Nomi{"Grigio", "Granata", "Blu", "Verde", "Sfumato verde", "Arancio", "Rosa"}));
    Nomi relazioni;
    for (const auto& v : finestra.ctlLISTopz.voci()) {
        relazioni.push_back(v.testo);
    }
    EXPECT_EQ(relazioni, (Nomi{"Ipotesi progettuali (solo dati di input)", "Verifiche prestazionali (solo risultati)",
                               "Relazione di calcolo COMPLETA"}));
}

TEST_F(ProveOpzioni, ReadDataShowsProjectAndConfiguration) {
    for (std::int16_t analisi = 0; analisi < 3; ++analisi) {
        for (std::int16_t due = 0; due < 2; ++due) {
            rotonda().TipoAnalisi(analisi);
            rotonda().TipoFlusso(due);
            rotonda().TipoMatriceSvolte(due);
            rotonda().CondizioniNotturne(due == 1);
            rotonda().UsaPercentile(due == 1);
            rotonda().OttimizzazioneGeometrica(due == 1);
            finestra.ReadData();
            EXPECT_EQ(finestra.grpTipoAnalisi.scelta(), analisi);
            EXPECT_EQ(finestra.grpTipoFlusso.scelta(), due);
            EXPECT_EQ(finestra.grpTipoMatrice.scelta(), due);
            EXPECT_EQ(finestra.chkCondizioniNotturne.spuntata(), due == 1);
            EXPECT_EQ(finestra.chkPercentile.spuntata(), due == 1);
            EXPECT_EQ(finestra.chkOttimizzazioneGeometrica.spuntata(), due == 1);
        }
    }
    rotonda().ValorePercentile(97.5F);
    app.theAmbiente.PercentualeNotturna(12);
    std::ofstream(app.theAmbiente.PercorsoIni())
        << "[10_MOTIVI]\nAvvia=0\n[OPZ_EXPLORER]\nRami=1\n[OPZ_MENU]\nAttivo=1\n";
    finestra.ReadData();
    EXPECT_EQ(finestra.txtPercentile.testo(), "97,5");
    EXPECT_EQ(finestra.txtCondizioniNotturne.testo(), "12");
    EXPECT_TRUE(finestra.ckFILMATO.spuntata()) << "0 is shown as ticked";
    EXPECT_TRUE(finestra.ckTREE.spuntata());
    EXPECT_TRUE(finestra.ckMENU.spuntata());
    const std::vector<std::string> attesi{"2,5", "2", "1", "1,4", "0,8", "1,8", "1,2"};
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(finestra.txtVeicoli[i].testo(), attesi[i]);
    }
    EXPECT_EQ(finestra.ctlLIST.primaSpuntata(), 2);
    EXPECT_EQ(finestra.ctlLIST.quanteSpuntate(), 1);
    EXPECT_EQ(finestra.ctlCampione.colore(), (Colore{0, 0, 192}));
    EXPECT_EQ(finestra.ctlLISTopz.primaSpuntata(), 2);
}

TEST_F(ProveOpzioni, ChangedOptionsAreToldExactlyOnceOnLeaving) {
    finestra.grpTipoMatrice.clicca(1);
    EXPECT_TRUE(stato.opzioniModificate);
    EXPECT_EQ(avvertimenti(), 0);
    EXPECT_TRUE(gestione.ShowForm(&altra));
    EXPECT_EQ(avvertimenti(), 1);
    EXPECT_EQ(rotonda().TipoMatriceSvolte(), 1);
    EXPECT_TRUE(gestione.ShowForm(&finestra));
    EXPECT_TRUE(gestione.ShowForm(&altra));
    EXPECT_EQ(avvertimenti(), 1);
}

TEST_F(ProveOpzioni, EachOptionButSaturationRaisesTheFlag) {
    rotonda().TipoAnalisi(1);
    struct Clic {
        GruppoOpzioni* gruppo;
        int altra;
        int opzione;
        bool alza;
    };
    const std::vector<Clic> clic{
        {&finestra.grpTipoAnalisi, 1, 0, false}, {&finestra.grpTipoAnalisi, 0, 1, true},
        {&finestra.grpTipoAnalisi, 0, 2, true},  {&finestra.grpTipoFlusso, 1, 0, true},
        {&finestra.grpTipoFlusso, 0, 1, true},   {&finestra.grpTipoMatrice, 1, 0, true},
        {&finestra.grpTipoMatrice, 0, 1, true},
    };
    for (const Clic& c : clic) {
        finestra.ReadData();
        c.gruppo->scelta(c.altra);
        stato.opzioniModificate = false;
        c.gruppo->clicca(c.opzione);
        EXPECT_EQ(stato.opzioniModificate, c.alza) << c.gruppo->nome() << " " << c.opzione;
    }
}

TEST_F(ProveOpzioni, SaturationTurnsTheCompositionOff) {
    finestra.grpTipoAnalisi.clicca(0);
    EXPECT_FALSE(finestra.frComposizioneTraffico.abilitato());
    EXPECT_FALSE(finestra.grpTipoFlusso.abilitato());
    EXPECT_FALSE(finestra.grpTipoFlusso.opzione(0).abilitata);
    finestra.grpTipoAnalisi.clicca(2);
    EXPECT_TRUE(finestra.frComposizioneTraffico.abilitato());
    EXPECT_TRUE(finestra.grpTipoFlusso.abilitato());
    EXPECT_TRUE(finestra.grpTipoFlusso.opzione(0).abilitata);
    finestra.grpTipoAnalisi.clicca(0);
    finestra.grpTipoAnalisi.clicca(1);
    EXPECT_TRUE(finestra.frComposizioneTraffico.abilitato());
    rotonda().TipoAnalisi(0);
    finestra.ReadData();
    EXPECT_FALSE(finestra.frComposizioneTraffico.abilitato());
}

TEST_F(ProveOpzioni, TheTwoChecksEnableTheirBoxes) {
    rotonda().UsaPercentile(false);
    finestra.ReadData();
    EXPECT_FALSE(finestra.txtCondizioniNotturne.abilitato());
    EXPECT_FALSE(finestra.txtPercentile.abilitato());
    finestra.chkCondizioniNotturne.clicca();
    EXPECT_TRUE(finestra.txtCondizioniNotturne.abilitato());
    EXPECT_FALSE(finestra.txtPercentile.abilitato());
    finestra.chkPercentile.clicca();
    EXPECT_TRUE(finestra.txtPercentile.abilitato());
    finestra.chkPercentile.clicca();
    EXPECT_FALSE(finestra.txtPercentile.abilitato());
}

TEST_F(ProveOpzioni, TheNightFieldIsReadLive) {
    finestra.chkCondizioniNotturne.clicca();
    finestra.txtCondizioniNotturne.scrivi("25");
    EXPECT_EQ(app.theAmbiente.PercentualeNotturna(), 25) << "as typed, nothing pressed";
    finestra.txtCondizioniNotturne.scrivi("101");
    EXPECT_EQ(app.theAmbiente.PercentualeNotturna(), 25) << "a text that will be refused does not count";
    finestra.txtCondizioniNotturne.scrivi("");
    EXPECT_EQ(app.theAmbiente.PercentualeNotturna(), 0);
    finestra.txtCondizioniNotturne.scrivi("1,5");
    EXPECT_EQ(finestra.txtCondizioniNotturne.testo(), "15") << "whole numbers only";
    const auto prima = rotonda().revisione().tutto;
    finestra.SaveData();
    EXPECT_EQ(rotonda().revisione().tutto, prima + 1) << "the tick alone belongs to the project";
}

TEST_F(ProveOpzioni, NightConditionsWithoutAnIncidenceAreWarnedOf) {
    EXPECT_EQ(finestra.lblCondizioniNotturne.testo(), "");
    finestra.chkCondizioniNotturne.clicca();
    EXPECT_EQ(finestra.lblCondizioniNotturne.testo(), "L'incidenza è 0: la capacità non viene ridotta.");
    finestra.txtCondizioniNotturne.scrivi("5");
    EXPECT_EQ(finestra.lblCondizioniNotturne.testo(), "");
}

TEST_F(ProveOpzioni, APercentileThatCountsWithoutItsTickSaysSo) {
    rotonda().UsaPercentile(false);
    rotonda().ValorePercentile(95.0F);
    finestra.ReadData();
    EXPECT_EQ(finestra.lblPercentile.testo(), "Il valore conta nel calcolo anche senza la spunta.");
    finestra.chkPercentile.clicca();
    EXPECT_EQ(finestra.lblPercentile.testo(), "");
}

TEST_F(ProveOpzioni, LimitsOfTheNumberFields) {
    finestra.chkPercentile.spuntata(true);
    finestra.chkCondizioniNotturne.clicca();
    finestra.txtPercentile.abilitato(true);
    finestra.txtPercentile.scrivi("99,99");
    EXPECT_TRUE(finestra.txtPercentile.convalida());
    finestra.txtPercentile.scrivi("100");
    EXPECT_FALSE(finestra.txtPercentile.convalida());
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 0,00 e 99,99 %");
    finestra.txtCondizioniNotturne.scrivi("100");
    EXPECT_TRUE(finestra.txtCondizioniNotturne.convalida());
    finestra.txtCondizioniNotturne.scrivi("101");
    EXPECT_FALSE(finestra.txtCondizioniNotturne.convalida());
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 0 e 100 %");
    finestra.txtVeicoli[0].scrivi("0");
    EXPECT_FALSE(finestra.txtVeicoli[0].convalida());
    EXPECT_EQ(messaggi.mostrati.back().testo, "Il valore deve essere compreso tra 0,01 e 99,99 veicoli/eq");
}

TEST_F(ProveOpzioni, SaveDataWritesTheProjectAndTheEquivalents) {
    finestra.grpTipoAnalisi.clicca(2);
    finestra.grpTipoFlusso.clicca(1);
    finestra.grpTipoMatrice.clicca(1);
    finestra.chkCondizioniNotturne.clicca();
    finestra.chkPercentile.spuntata(false);
    finestra.chkPercentile.clicca();
    scrivi(finestra.txtPercentile, "85,5");
    finestra.chkOttimizzazioneGeometrica.clicca();
    scrivi(finestra.txtVeicoli[0], "3,25");
    scrivi(finestra.txtVeicoli[4], "0,75");
    cornice.passi.clear();
    finestra.SaveData();
    EXPECT_EQ(rotonda().TipoAnalisi(), 2);
    EXPECT_EQ(rotonda().TipoFlusso(), 1);
    EXPECT_EQ(rotonda().TipoMatriceSvolte(), 1);
    EXPECT_TRUE(rotonda().CondizioniNotturne());
    EXPECT_TRUE(rotonda().UsaPercentile());
    EXPECT_EQ(rotonda().ValorePercentile(), 85.5F);
    EXPECT_TRUE(rotonda().OttimizzazioneGeometrica());
    EXPECT_EQ(app.configurazione.VEAutoarticolati, 3.25F);
    EXPECT_EQ(app.configurazione.VEMotocicli, 0.75F);
    EXPECT_EQ(ini("VEICOLI EQUIVALENTI", "Autoarticolati"), "3,25");
    EXPECT_EQ(ini("VEICOLI EQUIVALENTI", "Autovetture"), "1");
    EXPECT_EQ(cornice.passi, (std::vector<std::string>{"SetUpOpzioni"}));
    EXPECT_TRUE(finestra.DatiAllineati());
    EXPECT_EQ(ini("LAY_OUT", "CustomPanel"), "3") << "the colour is confirmed by the tool bar alone";
}

TEST_F(ProveOpzioni, TheFactoryValuesReadLikeNumbers) {
    for (tBox& casella : finestra.txtVeicoli) {
        casella.modifica("9");
    }
    const std::vector<std::string> attesi{"2,5", "2", "1", "1,4", "0,8", "1,8", "1,2"};
    finestra.cmdDEFAULT.premi();
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(finestra.txtVeicoli[i].testo(), attesi[i]);
        finestra.txtVeicoli[i].modifica("9");
    }
    finestra.ctlToolbar.premi("Restore");
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(finestra.txtVeicoli[i].testo(), attesi[i]);
    }
}

TEST_F(ProveOpzioni, OneColourIsTickedAndTheSampleShowsIt) {
    finestra.ctlLIST.clicca(4);
    EXPECT_EQ(finestra.ctlLIST.quanteSpuntate(), 1);
    EXPECT_EQ(finestra.ctlLIST.primaSpuntata(), 4);
    EXPECT_EQ(finestra.ctlCampione.colore(), (Colore{0, 128, 128}));
    finestra.ctlLIST.clicca(4);
    EXPECT_EQ(finestra.ctlLIST.primaSpuntata(), 4) << "the last tick stays";
    finestra.ctlLISTopz.clicca(0);
    EXPECT_EQ(finestra.ctlLISTopz.quanteSpuntate(), 1);
    EXPECT_EQ(stato.formaRelazione, 0);
    EXPECT_EQ(app.configurazione.LayoutPannello, 3);
}

TEST_F(ProveOpzioni, TreeAndMenuTicksWriteAtOnce) {
    finestra.ckTREE.clicca();
    EXPECT_EQ(ini("OPZ_EXPLORER", "Rami"), "1");
    EXPECT_EQ(app.configurazione.OpzExplorer, 1);
    finestra.ckTREE.clicca();
    EXPECT_EQ(ini("OPZ_EXPLORER", "Rami"), "0");
    finestra.ckMENU.clicca();
    EXPECT_EQ(ini("OPZ_MENU", "Attivo"), "1");
    finestra.ckMENU.clicca();
    EXPECT_EQ(ini("OPZ_MENU", "Attivo"), "0");
    EXPECT_EQ(cornice.passi, (std::vector<std::string>{"menu nascosti", "menu mostrati"}));
    finestra.ckFILMATO.clicca();
    EXPECT_EQ(ini("10_MOTIVI", "Avvia"), "1") << "the film waits for the confirmation";
}

TEST_F(ProveOpzioni, AggiornaDatiConfirmsEverything) {
    finestra.ctlLIST.clicca(5);
    finestra.ckTREE.clicca();
    finestra.ckFILMATO.clicca();
    scrivi(finestra.txtVeicoli[1], "2,2");
    cornice.passi.clear();
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(cornice.passi, (std::vector<std::string>{"SetUpOpzioni", "LoadTreeView"}));
    EXPECT_EQ(ini("LAY_OUT", "CustomPanel"), "6");
    EXPECT_EQ(app.configurazione.LayoutPannello, 6);
    EXPECT_EQ(finestra.pannello.aspetto().sfondo, (Colore{255, 128, 0}));
    EXPECT_EQ(ini("10_MOTIVI", "Avvia"), "0");
    EXPECT_EQ(app.configurazione.AvvioFilmato, 0);
    EXPECT_EQ(ini("OPZ_EXPLORER", "Rami"), "1");
    EXPECT_EQ(ini("VEICOLI EQUIVALENTI", "Autotreni"), "2,2");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveOpzioni, RefreshDiscardsAndArchiveDoesNothing) {
    finestra.grpTipoMatrice.clicca(1);
    scrivi(finestra.txtVeicoli[1], "7");
    finestra.ctlToolbar.premi("Archivio");
    EXPECT_EQ(finestra.txtVeicoli[1].testo(), "7");
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.grpTipoMatrice.scelta(), 0);
    EXPECT_EQ(finestra.txtVeicoli[1].testo(), "2");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveOpzioni, AProjectOfSaturationAloneShowsNoCompositionOptions) {
    rotonda().TipoAnalisi(0);
    finestra.ReadData();
    EXPECT_FALSE(finestra.frComposizioneTraffico.visibile());
    EXPECT_FALSE(finestra.grpTipoFlusso.visibile());
    finestra.grpTipoAnalisi.clicca(1);
    EXPECT_TRUE(finestra.frComposizioneTraffico.visibile());
    EXPECT_TRUE(finestra.grpTipoFlusso.visibile());
}

TEST_F(ProveOpzioni, AFaultAtThePercentileLeavesWrittenWhatStandsBeforeIt) {
    rotonda().TipoAnalisi(1);
    rotonda().UsaPercentile(false);
    finestra.ReadData();
    finestra.grpTipoAnalisi.clicca(2);
    finestra.grpTipoFlusso.clicca(1);
    finestra.grpTipoMatrice.clicca(1);
    finestra.chkCondizioniNotturne.clicca();
    finestra.chkPercentile.clicca();
    finestra.chkOttimizzazioneGeometrica.clicca();
    finestra.txtPercentile.modifica(std::string(60, '9'));  // no single holds it
    finestra.txtPercentile.visibile(false);                 // and nobody asks a hidden field
    finestra.SaveData();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014frmOpzioni:SaveData");
    EXPECT_EQ(rotonda().TipoAnalisi(), 2);
    EXPECT_EQ(rotonda().TipoFlusso(), 1);
    EXPECT_TRUE(rotonda().CondizioniNotturne());
    EXPECT_TRUE(rotonda().UsaPercentile());
    EXPECT_FALSE(rotonda().OttimizzazioneGeometrica());
    EXPECT_EQ(rotonda().TipoMatriceSvolte(), 0);
}

struct ProveOpzioniSenzaScrittura : ProveOpzioni {
    ProveOpzioniSenzaScrittura() {
        std::filesystem::permissions(app.theAmbiente.PercorsoIni(), std::filesystem::perms::owner_read);
        messaggi.mostrati.clear();
    }
    ~ProveOpzioniSenzaScrittura() override {
        std::filesystem::permissions(app.theAmbiente.PercorsoIni(), std::filesystem::perms::owner_all);
    }
    static constexpr const char* messaggio =
        "Impossibile registrare le impostazioni del programma in Kelvo.ini: il file è di sola lettura";
    void atteso(std::size_t quanti) {
        ASSERT_EQ(messaggi.mostrati.size(), quanti);
        for (const auto& m : messaggi.mostrati) {
            EXPECT_EQ(m.testo, messaggio);
            EXPECT_EQ(m.titolo, "KELVO 2014 - Errore");
            EXPECT_EQ(m.icona, Icona::critica);
        }
    }
};

TEST_F(ProveOpzioniSenzaScrittura, OneMessageAGestureAndMemoryFollowsTheFile) {
    finestra.ctlLIST.clicca(5);
    scrivi(finestra.txtVeicoli[1], "2,2");
    const auto prima = app.configurazione.VEAutotreni;
    finestra.ctlToolbar.premi("AggiornaDati");
    atteso(1);
    EXPECT_EQ(app.configurazione.LayoutPannello, 3);
    EXPECT_NE(app.configurazione.VEAutotreni, 2.2F);
    EXPECT_EQ(app.configurazione.VEAutotreni, ini("VEICOLI EQUIVALENTI", "Autotreni").empty() ? 0.0F : prima);
    EXPECT_EQ(finestra.pannello.aspetto().sfondo, (Colore{0, 0, 192}));
    EXPECT_FALSE(finestra.DatiAllineati());
}

TEST_F(ProveOpzioniSenzaScrittura, ATickThatCannotBeWrittenGoesAgain) {
    finestra.ckMENU.clicca();
    atteso(1);
    EXPECT_FALSE(finestra.ckMENU.spuntata());
    EXPECT_EQ(cornice.passi, (std::vector<std::string>{"menu mostrati"}));
    finestra.ckTREE.clicca();
    atteso(2);
    EXPECT_FALSE(finestra.ckTREE.spuntata());
}

TEST_F(ProveOpzioni, LeavingWithoutAChangeDoesNotTouchTheConfiguration) {
    finestra.SaveData();
    const std::string prima = contenuto(app.theAmbiente.PercorsoIni());
    std::filesystem::permissions(app.theAmbiente.PercorsoIni(), std::filesystem::perms::owner_read);
    EXPECT_TRUE(gestione.ShowForm(&altra));
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(contenuto(app.theAmbiente.PercorsoIni()), prima);
    std::filesystem::permissions(app.theAmbiente.PercorsoIni(), std::filesystem::perms::owner_all);
}

TEST_F(ProveOpzioni, ATypedPercentileCountsAfterItsTickWent) {
    rotonda().UsaPercentile(true);
    rotonda().ValorePercentile(95.0F);
    finestra.ReadData();
    scrivi(finestra.txtPercentile, "85");
    finestra.chkPercentile.clicca();
    EXPECT_EQ(finestra.lblPercentile.testo(), "Il valore conta nel calcolo anche senza la spunta.");
    finestra.SaveData();
    EXPECT_EQ(rotonda().ValorePercentile(), 85.0F);
    EXPECT_FALSE(rotonda().UsaPercentile());
    EXPECT_EQ(finestra.txtPercentile.testo(), "85");
}

TEST_F(ProveOpzioni, ARefusedTextGoesWithItsTick) {
    app.theAmbiente.PercentualeNotturna(25);
    finestra.ReadData();
    finestra.chkCondizioniNotturne.clicca();
    scrivi(finestra.txtCondizioniNotturne, "101");
    EXPECT_TRUE(finestra.txtCondizioniNotturne.fallito());
    finestra.chkCondizioniNotturne.clicca();
    EXPECT_EQ(finestra.txtCondizioniNotturne.testo(), "25");
    EXPECT_FALSE(finestra.txtCondizioniNotturne.fallito());
    EXPECT_EQ(app.theAmbiente.PercentualeNotturna(), 25) << "not the prefix that was typed on the way";
    finestra.chkPercentile.clicca();
    scrivi(finestra.txtPercentile, "100");
    finestra.chkPercentile.clicca();
    EXPECT_EQ(finestra.txtPercentile.testo(), testoNumero(rotonda().ValorePercentile()));
    EXPECT_TRUE(finestra.convalida());
}

TEST_F(ProveOpzioni, TheSignStaysWhileColourFilmOrTreeAreNotConfirmed) {
    finestra.ctlLIST.clicca(5);
    finestra.SaveData();
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ReadData();
    finestra.ckFILMATO.clicca();
    finestra.SaveData();
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ReadData();
    finestra.ckTREE.clicca();
    finestra.SaveData();
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.SaveData();
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveOpzioni, AWrongKeyOfTheFileKeepsNobodyFromTheOthers) {
    std::ofstream(app.theAmbiente.PercorsoIni())
        << "[LAY_OUT]\nCustomPanel=3\n[10_MOTIVI]\nAvvia=si\n[OPZ_EXPLORER]\nRami=1\n[OPZ_MENU]\nAttivo=1\n";
    messaggi.mostrati.clear();
    finestra.ReadData();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_TRUE(finestra.ckTREE.spuntata());
    EXPECT_TRUE(finestra.ckMENU.spuntata());
    EXPECT_FALSE(finestra.txtCondizioniNotturne.abilitato());
    EXPECT_FALSE(finestra.txtPercentile.abilitato());
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveOpzioni, RestoreMendsTheVeryBoxThatRefuses) {
    finestra.fuocoSu(finestra.txtVeicoli[3]);
    finestra.txtVeicoli[3].scrivi("100");
    EXPECT_FALSE(finestra.lasciaFuoco());
    messaggi.mostrati.clear();
    finestra.ctlToolbar.premi("Restore");
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(finestra.txtVeicoli[3].testo(), "1,4");
    EXPECT_FALSE(finestra.txtVeicoli[3].fallito());
    EXPECT_TRUE(finestra.lasciaFuoco());
}

TEST_F(ProveOpzioni, TheFilmTickIsWrittenBothWays) {
    finestra.ckFILMATO.clicca();
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ini("10_MOTIVI", "Avvia"), "0");
    finestra.ckFILMATO.clicca();
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ini("10_MOTIVI", "Avvia"), "1");
}

TEST_F(ProveOpzioni, EquivalentsOfMoreDigitsThanABoxShowsAreNotWrittenByLooking) {
    std::ofstream(app.theAmbiente.PercorsoIni(), std::ios::app) << "[VEICOLI EQUIVALENTI]\nPullman=1,23456789\n";
    CoefficientiVeicoli valori = app.configurazione.coefficienti();
    valori[2] = 1.23456789F;
    app.configurazione.coefficienti(valori);
    finestra.ReadData();
    finestra.SaveData();
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(ini("VEICOLI EQUIVALENTI", "Pullman"), "1,23456789");
    EXPECT_EQ(app.configurazione.coefficienti()[2], 1.23456789F);
}

TEST_F(ProveOpzioni, EachControlOfItsOwnPutsTheSignUp) {
    const auto alzato = [&](const std::function<void()>& gesto) {
        finestra.ReadData();
        gesto();
        return !finestra.DatiAllineati();
    };
    EXPECT_TRUE(alzato([&] { finestra.chkCondizioniNotturne.clicca(); }));
    EXPECT_TRUE(alzato([&] { finestra.chkPercentile.clicca(); }));
    EXPECT_TRUE(alzato([&] { finestra.chkOttimizzazioneGeometrica.clicca(); }));
    EXPECT_TRUE(alzato([&] { finestra.ckTREE.clicca(); }));
    EXPECT_TRUE(alzato([&] { finestra.ckFILMATO.clicca(); }));
    EXPECT_TRUE(alzato([&] { finestra.ctlLIST.clicca(1); }));
    for (tBox& casella : finestra.txtVeicoli) {
        EXPECT_TRUE(alzato([&] { scrivi(casella, "3,33"); })) << casella.nome();
    }
}

TEST_F(ProveOpzioni, OddDecimalsAreNotTouchedByLooking) {
    app.configurazione.VEPullman = 1.23456789F;
    rotonda().ValorePercentile(95.00001F);
    rotonda().TipoMatriceSvolte(7);
    finestra.ReadData();
    const auto prima = rotonda().revisione().tutto;
    EXPECT_TRUE(gestione.ShowForm(&altra));
    EXPECT_EQ(rotonda().revisione().tutto, prima);
    EXPECT_EQ(rotonda().TipoMatriceSvolte(), 7);
    EXPECT_EQ(rotonda().ValorePercentile(), 95.00001F);
    EXPECT_EQ(avvertimenti(), 0);
}

}  // namespace
}  // namespace kelvo::prove
