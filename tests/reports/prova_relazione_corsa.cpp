#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "comune/fileDifettosi.h"
#include "progettoProva.h"
#include "results/calcoloIpotesi.h"

namespace kelvo::prove {
namespace {

std::vector<std::string> attesi(int totale) {
    std::vector<std::string> passi{"mostra " + std::to_string(totale)};
    for (int n = 1; n <= totale; ++n) {
        passi.push_back(std::to_string(n));
    }
    passi.emplace_back("chiudi");
    return passi;
}

TEST(Relazione, EveryReportGoesThroughAllOfItsSteps) {
    for (const char* nome :
         {"RelazioneMasterIN", "RelazioneMasterIN-OUT.dot", "RelazioneMasterTOT.dot", "RelazioneMasterTOT"}) {
        for (const std::int16_t analisi : std::initializer_list<std::int16_t>{0, 1, 2}) {
            Scena scena({.analisi = analisi});
            EXPECT_EQ(scena.modulo().compilaRelazioneWord(nome), EsitoRelazione::fatta) << nome;
            EXPECT_EQ(scena.avanzamento.passi, attesi(19)) << nome << " " << analisi;
            EXPECT_TRUE(scena.errori.empty()) << nome << ": " << scena.errori.front().descrizione;
        }
    }
    Scena scena;
    EXPECT_EQ(scena.modulo().compilaAllegatiWord("RelazioneMasterOUT"), EsitoRelazione::fatta);
    EXPECT_EQ(scena.avanzamento.passi, attesi(9));
    EXPECT_TRUE(scena.errori.empty());
}

TEST(Relazione, TheDialogueProposesFolderNameAndFilter) {
    Scena scena;
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    ASSERT_EQ(scena.dialogo.richieste.size(), 1U);
    const RichiestaFile& richiesta = scena.dialogo.richieste.front();
    EXPECT_EQ(richiesta.estensione, "docx");
    EXPECT_EQ(richiesta.filtro, "File relazione rotonda (*.docx)|*.docx|Tutti i files(*.*)|*.*");
    EXPECT_EQ(richiesta.cartella, scena.cartella.file("Relazioni"));
    EXPECT_TRUE(std::filesystem::is_directory(scena.cartella.file("Relazioni")));
    EXPECT_EQ(richiesta.nome, "Relazione_Rotatoria_prova_21-11-2026--10-30.docx");
    scena.modulo().compilaAllegatiWord("RelazioneMasterOUT");
    EXPECT_EQ(scena.dialogo.richieste.back().nome, "Relazione_ALLEGATI_Rotatoria_prova_21-11-2026--10-30.docx");
}

TEST(Relazione, ANameThatNoFileCanHaveIsProposedWithoutItsSigns) {
    Scena scena;
    scena.app.theRotonda().NomeFile("../S.P. 1: \"nord\"");
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    EXPECT_EQ(scena.dialogo.richieste.front().nome, "Relazione_.._S.P. 1_ _nord__21-11-2026--10-30.docx");
}

TEST(Relazione, CancelEndsQuietly) {
    Scena scena;
    scena.dialogo.risposta.reset();
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::annullata);
    EXPECT_TRUE(scena.messaggi.mostrati.empty());
    EXPECT_TRUE(scena.errori.empty());
    EXPECT_EQ(scena.avanzamento.passi.back(), "chiudi");
    EXPECT_TRUE(std::filesystem::is_empty(scena.cartella.file("Relazioni")));
}

TEST(Relazione, TheQuestionAtTheEndOpensTheReportOnYes) {
    for (const bool apre : {true, false}) {
        Scena scena;
        scena.messaggi.risposta = apre ? Risposta::si : Risposta::no;
        bool salvato = false;
        scena.messaggi.alMostrare = [&] { salvato = scena.salvato(); };
        scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
        ASSERT_EQ(scena.messaggi.mostrati.size(), 1U);
        EXPECT_TRUE(salvato) << "the file stands there when the question comes";
        const MessaggiFinti::Messaggio& domanda = scena.messaggi.mostrati.front();
        EXPECT_EQ(domanda.testo, "Relazione correttamente compilata.\r\nIl file è stato salvato nella directory: " +
                                     scena.cartella.percorso() + "\r\nAprire il file ora?");
        EXPECT_EQ(domanda.titolo, "KELVO 2014 - Elaborazione terminata");
        EXPECT_EQ(domanda.icona, Icona::informazione);
        EXPECT_EQ(domanda.pulsanti, Pulsanti::siNo);
        const std::vector<std::string> aperti =
            apre ? std::vector{scena.cartella.file("Uscita.docx")} : std::vector<std::string>{};
        EXPECT_EQ(scena.documenti.aperti, aperti);
    }
}

TEST(Relazione, WithoutAnyoneToOpenItTheEndIsToldAndNothingIsAsked) {
    Scena scena;
    scena.messaggi.risposta = Risposta::si;
    ServiziRelazione servizi = scena.servizi();
    servizi.documenti = nullptr;
    modStampaRelazione modulo(scena.app, servizi);
    EXPECT_EQ(modulo.compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    EXPECT_TRUE(scena.salvato());
    ASSERT_EQ(scena.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(
        scena.messaggi.mostrati.front().testo,
        "Relazione correttamente compilata.\r\nIl file è stato salvato nella directory: " + scena.cartella.percorso());
    EXPECT_EQ(scena.messaggi.mostrati.front().pulsanti, Pulsanti::ok);
}

TEST(Relazione, AFileThatNothingOpensIsTold) {
    Scena scena;
    scena.messaggi.risposta = Risposta::si;
    scena.documenti.riesce = false;
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    ASSERT_EQ(scena.messaggi.mostrati.size(), 2U);
    EXPECT_EQ(scena.messaggi.mostrati.back().testo,
              "Nessun programma del sistema ha aperto il file:\r\n" + scena.cartella.file("Uscita.docx"));
}

TEST(Relazione, AFileThatStandsThereIsReplaced) {
    Scena scena;
    scriviContenuto(scena.cartella.file("Uscita.docx"), "vecchio");
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    EXPECT_EQ(contenuto(scena.cartella.file("Uscita.docx")).substr(0, 2), "PK");
}

TEST(Relazione, ThePathThatIsGivenIsWrittenWithoutAsking) {
    Scena scena;
    ServiziRelazione servizi = scena.servizi();
    servizi.dialogo = nullptr;
    servizi.percorso = scena.cartella.file("Altro.docx");
    modStampaRelazione modulo(scena.app, servizi);
    EXPECT_EQ(modulo.compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    EXPECT_TRUE(std::filesystem::exists(scena.cartella.file("Altro.docx")));
    EXPECT_TRUE(scena.messaggi.mostrati.empty());
    EXPECT_FALSE(std::filesystem::exists(scena.cartella.file("Relazioni")));
}

TEST(Relazione, TheInputReportCalculatesNothing) {
    Scena scena;
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    EXPECT_EQ(scena.app.theRotonda().timbro().forma, FormaCalcolo::nessuna);
    const Letto letto = scena.letto();
    EXPECT_FALSE(haSegnalibro(letto, "CapacitaUltima"));
    EXPECT_FALSE(haSegnalibro(letto, "CapacitaCodeRitardi"));
    EXPECT_FALSE(haSegnalibro(letto, "ParagrafoCorsiaDX"));
}

/// The records of all entries after a calculation of the project's own.
std::vector<Iterazione> recordCalcolati(const Forma& forma) {
    Scena scena(forma);
    modCalcolo motore(scena.app);
    forma.analisi == 1 ? motore.Calcola_Tempo_Flusso("0") : motore.Calcola_Tempo_Flusso_ST("0");
    EXPECT_TRUE(motore.riuscita());
    std::vector<Iterazione> record;
    for (std::int16_t i = 1; i <= forma.rami; ++i) {
        for (std::int16_t s = 1; s <= forma.segmenti; ++s) {
            record.push_back(scena.app.theRotonda().Ramo(i).theDatiTraffico().GetIterazione(s));
        }
    }
    return record;
}

TEST(Relazione, FiguresThatAreNotTheProjectsOwnAreCalculatedFirst) {
    for (const std::int16_t analisi : std::initializer_list<std::int16_t>{1, 2}) {
        const Forma forma{.analisi = analisi};
        const std::vector<Iterazione> giusti = recordCalcolati(forma);
        Scena scena(forma);
        modCalcolo motore(scena.app);
        ASSERT_TRUE(preparaIpotesi(scena.app, motore));
        Geometria altra = geometriaDi(scena.app.theRotonda().Ramo(1));
        altra.e = 9.0F;
        ASSERT_TRUE(calcolaIpotesi(scena.app, motore, 1, altra));
        EXPECT_NE(scena.app.theRotonda().Ramo(1).theDatiTraffico().GetIterazione(1), giusti[0]);
        EXPECT_EQ(scena.modulo().compilaAllegatiWord("RelazioneMasterOUT"), EsitoRelazione::fatta);
        const Letto letto = scena.letto();
        for (std::int16_t i = 1; i <= forma.rami; ++i) {
            const std::string lettera(1, static_cast<char>('A' + i - 1));
            const Celle2D celle =
                tabellaDopo(letto, "Verifiche prestazionali - Ingresso " + lettera + " (Via " + lettera + ")");
            ASSERT_EQ(celle.size(), 5U);
            for (std::int16_t s = 1; s <= forma.segmenti; ++s) {
                const Iterazione& r = giusti[static_cast<std::size_t>((i - 1) * forma.segmenti + s - 1)];
                EXPECT_EQ(celle[static_cast<std::size_t>(s)][2], formatta(r.Capacita, "#0.00"));
                EXPECT_EQ(celle[static_cast<std::size_t>(s)][5], formatta(r.Ritardo, "#0.0"));
            }
        }
    }
}

TEST(Relazione, FiguresThatStandAreNotCalculatedAgain) {
    Scena scena;
    modCalcolo(scena.app).Calcola_Tempo_Flusso("0");
    scena.app.theRotonda().Ramo(1).theDatiTraffico().SetIterazione(1, {.Flusso = 77.0F});
    scena.modulo().compilaAllegatiWord("RelazioneMasterOUT");
    EXPECT_EQ(tabellaDopo(scena.letto(), "Ingresso A (Via A)")[1][1], "77,00");
}

TEST(Relazione, ACalculationThatFailsMakesNoReport) {
    Scena scena;
    scena.app.theRotonda().Ramo(2).RaggioIngresso(0.0F);
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN-OUT.dot"), EsitoRelazione::fallita);
    EXPECT_FALSE(scena.salvato());
    EXPECT_TRUE(scena.dialogo.richieste.empty());
    ASSERT_EQ(scena.errori.size(), 1U);
    EXPECT_EQ(scena.errori.front().metodo, "Calcola_Tempo_Flusso");
    ASSERT_EQ(scena.messaggi.mostrati.size(), 1U);
    EXPECT_NE(scena.messaggi.mostrati.front().testo.find("Divisione per zero"), std::string::npos);
    // What needs no results is compiled all the same.
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
}

TEST(Relazione, AMissingTemplateEndsTheRunWithItsLabel) {
    for (const bool allegati : {false, true}) {
        Scena scena;
        std::filesystem::remove_all(scena.cartella.file("Modelli"));
        auto modulo = scena.modulo();
        const EsitoRelazione esito =
            allegati ? modulo.compilaAllegatiWord("RelazioneMasterOUT") : modulo.compilaRelazioneWord("Manca.dot");
        EXPECT_EQ(esito, EsitoRelazione::fallita);
        ASSERT_EQ(scena.errori.size(), 1U);
        EXPECT_EQ(scena.errori.front().metodo,
                  allegati ? "modStampaRelazione:compilaAllegatiWord" : "modStampaRelazione:compilaRelazioneWord");
        EXPECT_EQ(scena.errori.front().numero, 53);
        EXPECT_EQ(scena.messaggi.mostrati.size(), 1U);
        EXPECT_EQ(scena.avanzamento.passi.back(), "chiudi");
        EXPECT_TRUE(scena.dialogo.richieste.empty());
    }
}

TEST(Relazione, AnExceptionThatIsNoFaultOfTheProgramEndsTheRunLikeAFault) {
    Scena scena;
    ServiziRelazione servizi = scena.servizi();
    servizi.corsiaDX = []() -> std::optional<AnalisiCorsiaDX> { throw std::runtime_error("imprevisto"); };
    modStampaRelazione modulo(scena.app, servizi);
    EXPECT_EQ(modulo.compilaRelazioneWord("RelazioneMasterTOT"), EsitoRelazione::fallita);
    ASSERT_EQ(scena.errori.size(), 1U);
    EXPECT_EQ(scena.errori.front().metodo, "modStampaRelazione:compilaRelazioneWord");
    EXPECT_EQ(scena.errori.front().numero, 17);
    EXPECT_EQ(scena.errori.front().descrizione, "Impossibile eseguire l'operazione richiesta (imprevisto)");
    EXPECT_EQ(scena.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(scena.avanzamento.passi.back(), "chiudi");
    EXPECT_FALSE(scena.salvato());
    // What does not need it is compiled all the same.
    EXPECT_EQ(modulo.compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
}

TEST(Relazione, ADamagedTemplateEndsTheRunAndLeavesNoFile) {
    Scena scena;
    const std::string percorso = scena.cartella.file("Modelli/RelazioneMasterIN.dotx");
    scriviContenuto(percorso, contenuto(percorso).substr(0, 5000));
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fallita);
    ASSERT_EQ(scena.errori.size(), 1U);
    EXPECT_EQ(scena.errori.front().numero, 17);
    EXPECT_FALSE(scena.salvato());
}

TEST(Relazione, ATargetThatCannotBeWrittenIsToldAndLeavesNoHalfFile) {
    Scena scena;
    scena.dialogo.risposta = scena.cartella.file("manca/Uscita.docx");
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fallita);
    ASSERT_EQ(scena.errori.size(), 1U);
    EXPECT_EQ(scena.errori.front().metodo, "modStampaRelazione:compilaRelazioneWord");
    EXPECT_EQ(scena.errori.front().numero, 75);
    EXPECT_EQ(scena.messaggi.mostrati.size(), 1U) << "the reason, and no question";
}

TEST(Relazione, AFullDiskLeavesTheOldFile) {
    const CartellaTemporanea cartella;
    std::filesystem::copy(KELVO_CARTELLA "/Modelli", cartella.file("Modelli"));
    FileDifettosi pieno(sistemaFileStandard(), PassoFile::scrivi, Incidente::errore);
    MessaggiFinti messaggi;
    OrologioFinto orologio;
    Applicazione app(cartella.percorso(), cartella.percorso(), {messaggi, orologio, pieno});
    ServiziRelazione servizi{.messaggi = messaggi};
    servizi.percorso = cartella.file("Uscita.docx");
    scriviContenuto(servizi.percorso, "vecchio");
    EXPECT_EQ(modStampaRelazione(app, servizi).compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fallita);
    EXPECT_EQ(contenuto(servizi.percorso), "vecchio");
}

/// A template whose bookmark is not there.
void togliSegnalibro(Scena& scena, const std::string& modello, const std::string& nome) {
    const std::string percorso = scena.cartella.file("Modelli/" + modello);
    std::vector<ooxml::Voce> voci;
    ASSERT_EQ(ooxml::leggiArchivio(contenuto(percorso), voci), "");
    for (ooxml::Voce& voce : voci) {
        const auto dove = voce.dati.find("w:name=\"" + nome + "\"");
        if (voce.nome == "word/document.xml") {
            ASSERT_NE(dove, std::string::npos) << nome;
            voce.dati.replace(dove + 8, nome.size(), "Altro" + nome);
        }
    }
    scriviContenuto(percorso, archivio(voci));
}

TEST(Relazione, ASectionThatTheTemplateLacksIsToldWithItsLabelAndTheRunGoesOn) {
    const std::vector<std::pair<std::string, std::string>> sezioni{
        {"ToponomasticaIngressi", "riempiToponomasticaIngressi"},
        {"GeometriaIngressi", "riempiGeometriaIngressi"},
        {"DatiTraffico", "riempiDatiTraffico"},
        {"ParagrafoDatiTrafficoST", "nascondiDatiTrafficoST"},
        {"MatriceSvoltePerc", "riempiMatriceSvoltePerc"},
        {"MatriceSvolte", "riempiMatriceSvolte"},
        {"TotaliMatriceSvolte", "riempiTotaliMatriceSvolte"},
        {"ComposizioneTraffico", "riempiComposizioneTraffico"},
        {"ParagrafoComposizioneTrafficoST", "nascondiComposizioneTrafficoST"},
        {"CondizioniEsterne", "riempiCondizioniEsterne"},
        {"CapacitaUltima", "riempiCapacitaUltima"},
        {"CapacitaCodeRitardi", "riempiCapacitaCodeRitardi"},
        {"ParagrafoCorsiaDX", "nascondiCorsiaDX"},
    };
    for (const auto& [segnalibro, procedura] : sezioni) {
        Scena scena;
        togliSegnalibro(scena, "RelazioneMasterTOT.dotx", segnalibro);
        EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterTOT"), EsitoRelazione::fatta);
        ASSERT_EQ(scena.errori.size(), 1U) << segnalibro;
        EXPECT_EQ(scena.errori.front().metodo, "modStampaRelazione:" + procedura);
        EXPECT_EQ(scena.errori.front().numero, 5);
        EXPECT_EQ(scena.messaggi.mostrati.size(), 2U) << "the fault and the question";
        EXPECT_EQ(scena.letto().errori(), "");
    }
}

TEST(Relazione, ASectionsTableThatStandsInTheWrongPlaceIsToldToo) {
    Scena scena({.analisi = 2, .flusso = 1});
    std::filesystem::remove_all(scena.cartella.file("Modelli"));
    std::filesystem::create_directories(scena.cartella.file("Modelli"));
    scriviContenuto(scena.cartella.file("Modelli/RelazioneMasterIN.dotx"),
                    archivio(parti(par(segno("GeometriaIngressi", 1) + r("fuori")) + p("%TMTI%"))));
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    bool detto = false;
    for (const ErroreRegistrato& errore : scena.errori) {
        detto = detto || (errore.metodo == "modStampaRelazione:riempiGeometriaIngressi" &&
                          errore.descrizione == "La selezione non sta in una tabella");
    }
    EXPECT_TRUE(detto);
    EXPECT_EQ(scena.letto().blocchi(), (std::vector<std::string>{"fuori", "08:00"}));
}

TEST(Relazione, ATemplateOfTheUsersOwnIsFilledAndWhatItLacksIsToldOnce) {
    Scena scena;
    scena.modelloProprio = scena.cartella.file("Studio.dotx");
    scriviContenuto(scena.modelloProprio,
                    archivio(parti(p("Studio di %TitoloProgetto%") +
                                       tbl(2, tr(tc(p("Ingresso")) + tc(par(segno("CapacitaUltima", 1) + r("Q")))) +
                                                  tr(tc("<w:p/>") + tc("<w:p/>"))),
                                   p("%NomefileProgetto%"))));
    EXPECT_EQ(scena.modulo().compilaAllegatiWord("RelazioneMasterOUT"), EsitoRelazione::fatta);
    const Letto letto = scena.letto();
    EXPECT_EQ(letto.blocchi()[0], "Studio di Nodo di prova");
    EXPECT_EQ(letto.testoParte("header1"), "Rotatoria_prova");
    const Celle2D celle = tabellaDi(letto, "CapacitaUltima");
    ASSERT_EQ(celle.size(), 1U + 4U + 3U) << "rows come as they are needed";
    EXPECT_EQ(celle[1][0], "Ingresso A");
    ASSERT_EQ(scena.messaggi.mostrati.size(), 2U);
    EXPECT_EQ(scena.messaggi.mostrati[0].testo,
              "Il modello scelto non ha le sezioni seguenti, che non sono state compilate:\r\n- CapacitaCodeRitardi");
    EXPECT_EQ(scena.messaggi.mostrati[0].titolo, "KELVO 2014 - Informazione");
    EXPECT_EQ(scena.errori.front().metodo, "modStampaRelazione:riempiCapacitaCodeRitardi");
}

TEST(Relazione, TheReportNeverTakesThePlaceOfItsOwnTemplate) {
    Scena scena;
    scena.modelloProprio = scena.cartella.file("Studio.docx");
    scriviContenuto(scena.modelloProprio, archivio(parti(p("Studio di %TitoloProgetto%"))));
    const std::string prima = contenuto(scena.modelloProprio);
    scena.dialogo.risposta = scena.modelloProprio;
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fallita);
    EXPECT_TRUE(contenuto(scena.modelloProprio) == prima);
    ASSERT_FALSE(scena.errori.empty());
    EXPECT_EQ(scena.errori.back().descrizione, "Il file scelto è il modello della relazione: scegliere un altro nome");
}

TEST(Relazione, AFaultInATemplateOfTheUsersOwnIsToldWithItsReasonAndIsNoMissingSection) {
    Scena scena;
    scena.modelloProprio = scena.cartella.file("Studio.dotx");
    scriviContenuto(scena.modelloProprio, archivio(parti(par(segno("CapacitaUltima", 1) + r("fuori di una tabella")))));
    EXPECT_EQ(scena.modulo().compilaAllegatiWord("RelazioneMasterOUT"), EsitoRelazione::fatta);
    ASSERT_EQ(scena.messaggi.mostrati.size(), 3U) << "the fault, what is missing, the question";
    EXPECT_NE(scena.messaggi.mostrati[0].testo.find("La selezione non sta in una tabella"), std::string::npos);
    EXPECT_EQ(scena.messaggi.mostrati[1].testo,
              "Il modello scelto non ha le sezioni seguenti, che non sono state compilate:\r\n- CapacitaCodeRitardi");
    ASSERT_EQ(scena.errori.size(), 2U);
    EXPECT_EQ(scena.errori.front().metodo, "modStampaRelazione:riempiCapacitaUltima");
}

TEST(Relazione, TheProjectIsNotChanged) {
    Scena scena;
    modCalcolo(scena.app).Calcola_Tempo_Flusso("0");
    const std::string prima = scena.app.theRotonda().TestoFile();
    const auto revisione = scena.app.theRotonda().revisione().tutto;
    scena.modulo().compilaRelazioneWord("RelazioneMasterTOT");
    EXPECT_EQ(scena.app.theRotonda().TestoFile(), prima);
    EXPECT_EQ(scena.app.theRotonda().revisione().tutto, revisione);
}

TEST(Relazione, APdfIsMadeBeforeTheClosingQuestionAndThePathIsThatOfTheReport) {
    Scena scena;
    scena.conPDF = true;
    EXPECT_EQ(scena.modulo().compilaAllegatiWord("RelazioneMasterOUT"), EsitoRelazione::fatta);
    ASSERT_EQ(scena.convertitore.fatti.size(), 1U);
    EXPECT_EQ(scena.convertitore.fatti[0].first, scena.cartella.file("Uscita.docx"));
    EXPECT_EQ(contenuto(scena.cartella.file("Uscita.pdf")), "pagine");
    EXPECT_EQ(scena.avanzamento.passi,
              (std::vector<std::string>{"mostra 9", "1", "2", "3", "4", "5", "6", "7", "attende", "8", "9", "chiudi"}));
    ASSERT_EQ(scena.messaggi.mostrati.size(), 1U);
    EXPECT_EQ(scena.messaggi.mostrati[0].testo.substr(0, 34), "Relazione correttamente compilata.");
}

TEST(Relazione, AReportWhosePdfFailsStaysAndTheReasonIsTold) {
    Scena scena;
    scena.conPDF = true;
    scena.convertitore.errore = "il programma non si avvia";
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::senzaPDF);
    EXPECT_TRUE(scena.salvato());
    EXPECT_FALSE(std::filesystem::exists(scena.cartella.file("Uscita.pdf")));
    ASSERT_EQ(scena.messaggi.mostrati.size(), 2U);
    EXPECT_EQ(scena.messaggi.mostrati[0].testo, "La relazione è stata salvata: " + scena.cartella.file("Uscita.docx") +
                                                    "\r\nIl PDF non è stato fatto: il programma non si avvia.");
    EXPECT_EQ(scena.messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(scena.messaggi.mostrati[1].testo.substr(0, 34), "Relazione correttamente compilata.");
}

TEST(Relazione, APdfThatStandsThereIsReplacedOnlyIfTheUserSaysSo) {
    for (const bool sostituisce : {true, false}) {
        Scena scena;
        scena.conPDF = true;
        scena.messaggi.risposta = sostituisce ? Risposta::si : Risposta::no;
        const std::string pdf = scena.cartella.file("Uscita.pdf");
        scriviContenuto(pdf, "vecchio");
        EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"),
                  sostituisce ? EsitoRelazione::fatta : EsitoRelazione::senzaPDF);
        EXPECT_EQ(contenuto(pdf), sostituisce ? "pagine" : "vecchio");
        EXPECT_TRUE(scena.salvato());
        ASSERT_EQ(scena.messaggi.mostrati.size(), 2U) << "who has said no is told nothing more of it";
        EXPECT_EQ(scena.messaggi.mostrati[0].testo,
                  "Il PDF della relazione esiste già:\r\n" + pdf + "\r\nSostituirlo?");
        EXPECT_EQ(scena.messaggi.mostrati[0].pulsanti, Pulsanti::siNo);
        EXPECT_EQ(scena.messaggi.mostrati[1].testo.substr(0, 34), "Relazione correttamente compilata.");
    }
}

TEST(Relazione, WhereThePathIsGivenAPdfThatStandsThereIsReplacedWithoutAsking) {
    Scena scena;
    scena.conPDF = true;
    ServiziRelazione servizi = scena.servizi();
    servizi.percorso = scena.cartella.file("Altro.docx");
    scriviContenuto(scena.cartella.file("Altro.pdf"), "vecchio");
    modStampaRelazione modulo(scena.app, servizi);
    EXPECT_EQ(modulo.compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fatta);
    EXPECT_EQ(contenuto(scena.cartella.file("Altro.pdf")), "pagine");
    EXPECT_TRUE(scena.messaggi.mostrati.empty());
}

TEST(Relazione, APdfNeverTakesThePlaceOfItsReport) {
    Scena scena;
    scena.conPDF = true;
    scena.messaggi.risposta = Risposta::si;
    scena.dialogo.risposta = scena.cartella.file("Uscita.pdf");
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::senzaPDF);
    EXPECT_EQ(contenuto(scena.cartella.file("Uscita.pdf")).substr(0, 2), "PK");
    EXPECT_TRUE(scena.convertitore.fatti.empty());
    ASSERT_FALSE(scena.messaggi.mostrati.empty());
    EXPECT_EQ(scena.messaggi.mostrati[0].testo,
              "La relazione è stata salvata: " + scena.cartella.file("Uscita.pdf") +
                  "\r\nIl PDF non è stato fatto: avrebbe il nome della relazione stessa e ne prenderebbe il posto.");
}

TEST(Relazione, WithoutADocumentThereIsNoPdf) {
    Scena scena;
    scena.conPDF = true;
    scena.dialogo.risposta.reset();
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::annullata);
    scena.dialogo.risposta = scena.cartella.file("manca/Uscita.docx");
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN"), EsitoRelazione::fallita);
    EXPECT_TRUE(scena.convertitore.fatti.empty());
}

}  // namespace
}  // namespace kelvo::prove
