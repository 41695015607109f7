// The driver: order of the findings, keys, lists by level, faults.

#include <algorithm>
#include <limits>

#include "scenaControllo.h"

namespace kelvo::prove {
namespace {

struct ProveModERRORI : ScenaControllo {
    /// Everything wrong that can be wrong at once with the matrix in vehicles and one composition.
    void guasta() {
        Rotonda& r = rotonda();
        r.Data(giornoCalendario(2026, 1, 1));
        r.NomeFile("Rotatoria_001");
        using Scrittore = void (Rotonda::*)(const std::string&);
        constexpr std::array<Scrittore, 13> campiVuoti{&Rotonda::StatoAvanzamento,
                                                       &Rotonda::Localita,
                                                       &Rotonda::Comune,
                                                       &Rotonda::Provincia,
                                                       &Rotonda::Note,
                                                       &Rotonda::Titolo,
                                                       &Rotonda::NomeProfessionista,
                                                       &Rotonda::IndirizzoProfessionista,
                                                       &Rotonda::CAPProfessionista,
                                                       &Rotonda::CittaProfessionista,
                                                       &Rotonda::ProvinciaProfessionista,
                                                       &Rotonda::TelefonoProfessionista,
                                                       &Rotonda::EMailProfessionista};
        for (const Scrittore scrivi : campiVuoti) {
            (r.*scrivi)("");
        }
        r.SegmentoTempo(oraDelGiorno(0, 20));
        coefficienti("1", "1", "1", "1", "1", "1", "2");
        for (std::int16_t i = 1; i <= 4; ++i) {
            ramo(i).Descrizione(std::string{"Ramo "} + "ABCD"[i - 1]);
            ramo(i).DiametroInscritto(i == 4 ? 51.0F : 14.0F);
            ramo(i).LarghezzaIngresso(i == 1 ? 3.0F : 11.0F);
            ramo(i).LunghezzaSvasatura(31.0F);
            ramo(i).SemiLarghezza(11.0F);
            ramo(i).theDatiTraffico().FlussoOrario(4000.0F);
            riga(i, 0.0F, 0.0F, 0.0F);
            composizione(i).Autovetture(50.0F);
            composizione(i).Autotreni(50.0F);
        }
        ramo(2).theDatiTraffico().FlussoTotale(0.0F);
    }
    std::string radice() const { return errori.ctlTreeAnalizzatore.radice; }
};

/// The words by which a finding is known, in the order in which a project with everything wrong has them.
const Testi ordine{
    "'Data'", "di Default", "'Stato avanzamento'", "'Località/", "rotatoria:campo 'Comune'",
    "rotatoria:campo 'Provincia'", "'Note'", "'Titolo'",
    // the engineer
    "'Professionista'", "'Indirizzo'", "'C.A.P.'", "'Città'", "Professionista:campo 'Provincia'", "'Telefono'",
    "'Email'", "troppo ampio", "Nome Ramo A", "Nome Ramo B", "Nome Ramo C", "Nome Ramo D",
    // geometry: once, then leg by leg
    "Diametri differenti", "'Ramo A', Diametro", "'Ramo A',diametro", "'Ramo A', Larghezza ingresso non",
    "'Ramo A', Lunghezza", "'Ramo A', Semi", "'Ramo B', Diametro", "'Ramo B',diametro",
    "'Ramo B', Larghezza ingresso ecc", "'Ramo B', Lunghezza", "'Ramo B', Semi", "'Ramo C', Diametro",
    "'Ramo C',diametro", "'Ramo C', Larghezza ingresso ecc", "'Ramo C', Lunghezza", "'Ramo C', Semi",
    "superiore limite massimo", "'Ramo D', Larghezza ingresso ecc", "'Ramo D', Lunghezza", "'Ramo D', Semi",
    // demand
    "ingresso Ramo A > di 3800", "l'ingresso Ramo B, valori nulli", "ingresso Ramo C > di 3800",
    "ingresso Ramo D > di 3800",
    // matrix: the second leg has no vehicles at all, so that its row is right
    "ramo Ramo A non coerente", "ramo Ramo C non coerente", "ramo Ramo D non coerente", "Origine-Destinazione",
    // coefficients, then leg by leg
    "(Autoarticolati =1", "(Autotreni =1", "(Autobus =1", "(Camper =1", "(Veicoli ricreativi =1",
    "(Veicoli a due ruote =1", "(Autovetture =2", "'Ramo A' < 60%", "'Ramo A', verificare la geometria",
    "'Ramo B' < 60%", "'Ramo B', verificare la geometria", "'Ramo C' < 60%", "'Ramo C', verificare la geometria",
    "'Ramo D' < 60%", "'Ramo D', verificare la geometria"};

TEST_F(ProveModERRORI, EverythingWrongIsToldInTheFixedOrder) {
    guasta();
    const Testi tutti = trova();
    ASSERT_EQ(tutti.size(), ordine.size());
    for (std::size_t i = 0; i < tutti.size(); ++i) {
        EXPECT_NE(tutti[i].find(ordine[i]), std::string::npos) << i << ": " << tutti[i];
    }
    EXPECT_TRUE(registrati.empty());
}

TEST_F(ProveModERRORI, TheCheckChangesNothing) {
    guasta();
    const std::string prima = rotonda().TestoFile();
    const auto revisione = rotonda().revisione().tutto;
    trova();
    errori.DistribuisciMessaggi();
    EXPECT_EQ(rotonda().TestoFile(), prima);
    EXPECT_EQ(rotonda().revisione().tutto, revisione);
}

TEST_F(ProveModERRORI, KeysAreTheLevelAndTheCountOfNodesAndOneMore) {
    guasta();
    trova();
    const auto& riscontri = errori.ctlTreeAnalizzatore.riscontri;
    EXPECT_EQ(riscontri[0].chiave, "Yellow2");
    EXPECT_EQ(riscontri[1].chiave, "Yellow3");
    EXPECT_EQ(riscontri[2].chiave, "Green4");
    EXPECT_EQ(riscontri[15].chiave, "Red17");
    EXPECT_EQ(riscontri[2].livello, Livello::Green);
    EXPECT_EQ(riscontri[15].livello, Livello::Red);
}

TEST_F(ProveModERRORI, TheRootTellsCaptionTimeAndDateAndIsRefreshedByEachFinding) {
    errori.svuota();
    EXPECT_EQ(radice(), "Report Analisi Progetto: KELVO 2014 - [Prova.klv] - 10:30 - 21/11/2026");
    cornice.caption = "KELVO 2014 - [Altra.klv]";
    orologio.istante = giornoCalendario(2026, 11, 22) + oraDelGiorno(8, 5);
    EXPECT_EQ(radice(), "Report Analisi Progetto: KELVO 2014 - [Prova.klv] - 10:30 - 21/11/2026");
    errori.AGG_errore("ROOT", "Titolo:testo", Livello::Red);
    EXPECT_EQ(radice(), "Report Analisi Progetto: KELVO 2014 - [Altra.klv] - 08:05 - 21/11/2026");
}

TEST_F(ProveModERRORI, WithoutAMainWindowTheRootHasTheCaptionOfALoadedProject) {
    modERRORI solo(app);
    solo.svuota();
    EXPECT_EQ(solo.ctlTreeAnalizzatore.radice,
              "Report Analisi Progetto: KELVO 2014 - [Prova.klv] - 10:30 - 21/11/2026");
}

TEST_F(ProveModERRORI, AnUnknownParentIsRecordedAndAddsNothing) {
    errori.svuota();
    errori.AGG_errore("altro", "Titolo:testo", Livello::Red);
    EXPECT_TRUE(errori.ctlTreeAnalizzatore.riscontri.empty());
    ASSERT_EQ(registrati.size(), 1U);
    EXPECT_EQ(registrati[0].numero, 9);
    EXPECT_EQ(registrati[0].metodo, "AGG_errore");
    EXPECT_TRUE(registrati[0].descrizione.starts_with("9 : Indice non compreso nell'intervallo"));
}

TEST_F(ProveModERRORI, FindingsGoToTheListOfTheFirstLetterOfTheirKey) {
    guasta();
    trova();
    errori.DistribuisciMessaggi();
    const auto& tutti = errori.ctlTreeAnalizzatore.riscontri;
    std::size_t somma = 0;
    constexpr std::array radici{
        "Messaggi di INFORMAZIONE Progetto: ", "Messaggi di VERIFICA Progetto: ", "Messaggi di ERRORE Progetto: "};
    constexpr std::array lettere{'G', 'Y', 'R'};
    for (std::size_t l = 0; l < 3; ++l) {
        const AlberoRiscontri& lista = errori.perLivello.at(l);
        EXPECT_EQ(lista.radice, radici.at(l) + std::string{"KELVO 2014 - [Prova.klv] - 10:30 - 01/01/2026"});
        std::vector<Riscontro> attesi;
        std::copy_if(tutti.begin(), tutti.end(), std::back_inserter(attesi),
                     [&](const Riscontro& r) { return r.chiave.front() == lettere.at(l); });
        ASSERT_EQ(lista.riscontri.size(), attesi.size());
        for (std::size_t i = 0; i < attesi.size(); ++i) {
            EXPECT_EQ(lista.riscontri[i].chiave, lettere.at(l) + std::to_string(i + 1));
            EXPECT_EQ(lista.riscontri[i].testo, attesi[i].testo);
            EXPECT_EQ(lista.riscontri[i].livello, attesi[i].livello);
            EXPECT_EQ(lista.riscontri[i].meta, attesi[i].meta);
        }
        somma += attesi.size();
    }
    EXPECT_EQ(somma, tutti.size());
    // 13 empty fields; the segment, one narrow and three wide entries, four flares, four approaches, four demands, the
    // matrix and four compositions are errors but for the narrow one.
    EXPECT_EQ(errori.perLivello[0].riscontri.size(), 13U);
    EXPECT_EQ(errori.perLivello[2].riscontri.size(), 1U + 3U + 4U + 4U + 4U + 1U + 4U);
}

TEST_F(ProveModERRORI, ASecondRunStartsAfresh) {
    guasta();
    const Testi primi = trova();
    errori.DistribuisciMessaggi();
    EXPECT_EQ(trova(), primi);
    errori.DistribuisciMessaggi();
    EXPECT_EQ(errori.perLivello[0].riscontri.size(), 13U);
}

TEST_F(ProveModERRORI, ANewProjectIsToldItsFirstNamesAndItsLackOfTraffic) {
    creaProgetto(app, 3);
    const Testi tutti = trova();
    EXPECT_EQ(std::count_if(tutti.begin(), tutti.end(),
                            [](const std::string& t) { return t.find("Nome Ramo ") != std::string::npos; }),
              3);
    EXPECT_EQ(std::count_if(tutti.begin(), tutti.end(),
                            [](const std::string& t) {
                                return t.starts_with("R Dati di traffico:Non è stata defininita una curva");
                            }),
              3);
    EXPECT_EQ(std::count_if(tutti.begin(), tutti.end(),
                            [](const std::string& t) { return t.find("'Data'") != std::string::npos; }),
              0);
    rotonda().Data(giornoCalendario(2026, 11, 20));
    EXPECT_EQ(trova().size(), tutti.size() + 1);
}

TEST_F(ProveModERRORI, ADamagedCoefficientEndsItsProcedureAloneAndIsRecorded) {
    coefficienti("3", "molti", "1,8", "1,4", "1,2", "0,8", "1");
    composizione(1).Autovetture(10.0F);
    ramo(1).LunghezzaSvasatura(31.0F);
    const Testi tutti = trova();
    ASSERT_EQ(tutti.size(), 2U);
    EXPECT_NE(tutti[0].find("svasatura"), std::string::npos);
    EXPECT_NE(tutti[1].find("Autoarticolati =3"), std::string::npos);
    ASSERT_EQ(registrati.size(), 1U);
    EXPECT_EQ(registrati[0].numero, 13);
    EXPECT_EQ(registrati[0].metodo, "INPUT_Dati_ComposizioneTraffico");
    EXPECT_TRUE(registrati[0].descrizione.starts_with("13 : Tipo non corrispondente")) << registrati[0].descrizione;
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014INPUT_Dati_ComposizioneTraffico");
    rotonda().TipoFlusso(1);
    trova();
    EXPECT_EQ(registrati.back().metodo, "INPUT_Dati_ComposizioneTrafficoST");
}

TEST_F(ProveModERRORI, AMatrixPastAllBoundsDoesNotStopTheRest) {
    constexpr float enorme = std::numeric_limits<float>::max();
    riga(3, enorme, enorme, 0.0F);
    composizione(1).Autotreni(1.0F);
    for (const std::int16_t tipo : {std::int16_t{0}, std::int16_t{1}}) {
        registrati.clear();
        rotonda().TipoMatriceSvolte(tipo);
        EXPECT_NE(trova().back().find("aree spazzate"), std::string::npos);
        ASSERT_EQ(registrati.size(), 1U);
        EXPECT_EQ(registrati[0].numero, 6);
        EXPECT_EQ(registrati[0].metodo, "INPUT_Dati_MatriceOD");
    }
}

/// Legs that are missing are a fault of each procedure that looks at them; the others run.
TEST_F(ProveModERRORI, EachProcedureOnLegsHasAHandlerOfItsOwn) {
    app.nuovaRotonda();
    trova();
    rotonda().TipoAnalisi(2);
    rotonda().TipoFlusso(1);
    errori.AnalisiProgetto();
    Testi metodi;
    for (const ErroreRegistrato& errore : registrati) {
        EXPECT_EQ(errore.numero, 9);
        metodi.push_back(errore.metodo);
    }
    EXPECT_EQ(metodi, (Testi{"INPUT_Toponomastica", "INPUT_Geometria", "INPUT_Dati_Traffico", "INPUT_Dati_MatriceOD",
                             "INPUT_Dati_ComposizioneTraffico", "INPUT_Toponomastica", "INPUT_Geometria",
                             "INPUT_Dati_TrafficoST", "INPUT_Dati_MatriceOD", "INPUT_Dati_ComposizioneTrafficoST"}));
}

/// Windows that fail whoever reads them.
class CampiGuasti final : public CampiMostrati {
public:
    std::optional<std::string> testo(std::string_view /*finestra*/, std::string_view /*campo*/) const override {
        throw Guasto(NumeroGuasto::chiamataNonValida);
    }
    bool fuocoSu(std::string_view /*campo*/, int /*riga*/) override { return false; }
};

TEST_F(ProveModERRORI, EachProcedureThatReadsAWindowHasAHandlerOfItsOwn) {
    CampiGuasti guasti;
    modERRORI controllo(app, {&cornice, &guasti});
    composizione(1).Autotreni(1.0F);
    controllo.AnalisiProgetto();
    ASSERT_EQ(registrati.size(), 3U);
    EXPECT_EQ(registrati[0].metodo, "INPUT_AnagraficaIntersezione");
    EXPECT_EQ(registrati[1].metodo, "INPUT_AnagraficaProgettista");
    EXPECT_EQ(registrati[2].metodo, "INPUT_TempoModellazione");
    EXPECT_EQ(registrati[2].descrizione, "5 : Chiamata di routine o argomento non validi");
    EXPECT_EQ(controllo.ctlTreeAnalizzatore.riscontri.size(), 1U);
}

TEST_F(ProveModERRORI, ATimeThatIsNoneIsAFaultOfItsProcedure) {
    campi.testi = {{"frmTempoModellazione.txtTempoIniziale", "ieri"}};
    EXPECT_EQ(trova(), Testi{});
    ASSERT_EQ(registrati.size(), 1U);
    EXPECT_EQ(registrati[0].metodo, "INPUT_TempoModellazione");
    EXPECT_EQ(registrati[0].numero, 13);
}

TEST_F(ProveModERRORI, EachKindOfStudyRunsItsOwnProcedure) {
    app.nuovaRotonda();
    for (std::int16_t tipo = 0; tipo <= 3; ++tipo) {
        registrati.clear();
        rotonda().TipoAnalisi(tipo);
        errori.AnalisiProgetto();
        EXPECT_EQ(registrati.at(2).metodo, tipo == 1 ? "INPUT_Dati_Traffico" : "INPUT_Dati_TrafficoST") << tipo;
    }
}

}  // namespace
}  // namespace kelvo::prove
