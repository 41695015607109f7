// The rules on the two registries, on the modelling times and on the names of the legs.

#include "scenaControllo.h"

namespace kelvo::prove {
namespace {

using RegoleAnagrafica = ScenaControllo;
using RegoleTempo = ScenaControllo;
using RegoleNomi = ScenaControllo;

TEST_F(RegoleAnagrafica, AProjectInOrderHasNoFindings) {
    EXPECT_EQ(trova(), Testi{});
    EXPECT_TRUE(registrati.empty());
}

TEST_F(RegoleAnagrafica, OnlyADateBeforeTodayIsFound) {
    const Testi trovato{"Y Anagrafica rotatoria:campo 'Data' di progetto prededente data attuale."};
    rotonda().Data(giornoCalendario(2026, 11, 20));
    EXPECT_EQ(trova(), trovato);
    EXPECT_EQ(meta(), (Meta{"keyAnagraficaRotonda", "txtData", 0}));
    rotonda().Data(giornoCalendario(2026, 11, 21));
    EXPECT_EQ(trova(), Testi{});
    rotonda().Data(giornoCalendario(2026, 11, 22));
    EXPECT_EQ(trova(), Testi{});
}

TEST_F(RegoleAnagrafica, OnlyTheDefaultNameIsFound) {
    rotonda().NomeFile("Rotatoria_001");
    EXPECT_EQ(trova(), Testi{"Y Anagrafica rotatoria:Nome file progetto di Default: si consiglia di rinominarlo."});
    EXPECT_EQ(meta(), (Meta{"keyAnagraficaRotonda", "txtNomeFile", 0}));
    for (const char* altro : {"Rotatoria_002", "rotatoria_001", ""}) {
        rotonda().NomeFile(altro);
        EXPECT_EQ(trova(), Testi{}) << altro;
    }
}

struct CampoVuoto {
    void (Rotonda::*scrivi)(const std::string&);
    const char* messaggio;
    const char* campo;
};

TEST_F(RegoleAnagrafica, EachEmptyFieldOfTheProjectIsToldByItsOwnMessage) {
    const std::array vuoti{
        CampoVuoto{&Rotonda::StatoAvanzamento, "campo 'Stato avanzamento' progetto non selezionato.",
                   "txtStatoAvanzamento"},
        CampoVuoto{&Rotonda::Localita, "campo 'Località/Frazione/Borgata' non inserito.", "txtLocalita"},
        CampoVuoto{&Rotonda::Comune, "campo 'Comune' non inserito.", "txtComune"},
        CampoVuoto{&Rotonda::Provincia, "campo 'Provincia' non inserito.", "txtProvincia"},
        CampoVuoto{&Rotonda::Note, "campo 'Note' non utilizzato.", "txtNote"},
        CampoVuoto{&Rotonda::Titolo, "campo 'Titolo' non utilizzato.", "txtTitolo"},
    };
    Testi tutti;
    for (const CampoVuoto& vuoto : vuoti) {
        const std::string atteso = std::string{"G Anagrafica rotatoria:"} + vuoto.messaggio;
        (rotonda().*vuoto.scrivi)("");
        EXPECT_EQ(trova(), Testi{atteso});
        EXPECT_EQ(meta(), (Meta{"keyAnagraficaRotonda", vuoto.campo, 0}));
        (rotonda().*vuoto.scrivi)("x");
        EXPECT_EQ(trova(), Testi{});
        tutti.push_back(atteso);
    }
    for (const CampoVuoto& vuoto : vuoti) {
        (rotonda().*vuoto.scrivi)("");
    }
    EXPECT_EQ(trova(), tutti);
}

TEST_F(RegoleAnagrafica, EachEmptyFieldOfTheEngineerIsToldByItsOwnMessage) {
    const std::array vuoti{
        CampoVuoto{&Rotonda::NomeProfessionista, "campo 'Professionista' non utilizzato.", "txtNomeProfessionista"},
        CampoVuoto{&Rotonda::IndirizzoProfessionista, "campo 'Indirizzo' non utilizzato.",
                   "txtIndirizzoProfessionista"},
        CampoVuoto{&Rotonda::CAPProfessionista, "campo 'C.A.P.' non inserito.", "txtCAPProfessionista"},
        CampoVuoto{&Rotonda::CittaProfessionista, "campo 'Città' non inserito.", "txtCittaProfessionista"},
        CampoVuoto{&Rotonda::ProvinciaProfessionista, "campo 'Provincia' non inserito.", "txtProvinciaProfessionista"},
        CampoVuoto{&Rotonda::TelefonoProfessionista, "campo 'Telefono' non inserito.", "txtTelefonoProfessionista"},
        CampoVuoto{&Rotonda::EMailProfessionista, "campo 'Email' non inserito.", "txtEMailProfessionista"},
    };
    Testi tutti;
    for (const CampoVuoto& vuoto : vuoti) {
        const std::string atteso = std::string{"G Anagrafica Professionista:"} + vuoto.messaggio;
        (rotonda().*vuoto.scrivi)("");
        EXPECT_EQ(trova(), Testi{atteso});
        EXPECT_EQ(meta(), (Meta{"keyAnagraficaProfessionista", vuoto.campo, 0}));
        (rotonda().*vuoto.scrivi)("x");
        EXPECT_EQ(trova(), Testi{});
        tutti.push_back(atteso);
    }
    for (const CampoVuoto& vuoto : vuoti) {
        (rotonda().*vuoto.scrivi)("");
    }
    EXPECT_EQ(trova(), tutti);
}

TEST_F(RegoleAnagrafica, WhatAWindowShowsComesBeforeWhatTheProjectHolds) {
    campi.testi = {{"frmAnagraficaRotonda.txtComune", ""},
                   {"frmAnagraficaRotonda.txtData", "20/11/2026"},
                   {"frmAnagraficaRotonda.txtNomeFile", "Rotatoria_001"},
                   {"frmCommittenteProfessionista.txtCAPProfessionista", ""}};
    EXPECT_EQ(trova(), (Testi{"Y Anagrafica rotatoria:campo 'Data' di progetto prededente data attuale.",
                              "Y Anagrafica rotatoria:Nome file progetto di Default: si consiglia di rinominarlo.",
                              "G Anagrafica rotatoria:campo 'Comune' non inserito.",
                              "G Anagrafica Professionista:campo 'C.A.P.' non inserito."}));
    rotonda().Comune("");
    campi.testi = {{"frmAnagraficaRotonda.txtComune", "Lucca"}};
    EXPECT_EQ(trova(), Testi{});
}

const char* const segmentoAmpio =
    "R Tempo di Modellazione:Il segmento di tempo utilizzato è troppo ampio rispetto alla finestra di analisi "
    "impostata, analisi poco attendibile";

TEST_F(RegoleTempo, LongSegmentsNeedNinetyMinutes) {
    struct Caso {
        int segmento;
        int ora;  ///< end, from 08:00 on
        int minuto;
        bool trovato;
    };
    for (const Caso& caso : {Caso{20, 9, 29, true}, Caso{20, 9, 30, false}, Caso{30, 9, 29, true},
                             Caso{30, 9, 30, false}, Caso{15, 9, 0, false}, Caso{19, 9, 0, false},
                             Caso{21, 9, 0, false}, Caso{25, 9, 0, false}, Caso{29, 9, 0, false}}) {
        rotonda().TempoIniziale(oraDelGiorno(8, 0));
        rotonda().TempoFinale(oraDelGiorno(caso.ora, caso.minuto));
        rotonda().SegmentoTempo(oraDelGiorno(0, caso.segmento));
        EXPECT_EQ(trova(), caso.trovato ? Testi{segmentoAmpio} : Testi{}) << caso.segmento << " " << caso.minuto;
    }
}

TEST_F(RegoleTempo, TheFindingLeadsToTheLengthOfTheSegment) {
    rotonda().SegmentoTempo(oraDelGiorno(0, 30));
    EXPECT_EQ(trova(), Testi{segmentoAmpio});
    EXPECT_EQ(meta(), (Meta{"keyTempoModellazione", "txtSegmentoTempo", 0}));
}

TEST_F(RegoleTempo, TimesComeFromTheWindowWhileItHoldsThem) {
    campi.testi = {{"frmTempoModellazione.txtTempoIniziale", "08:00"},
                   {"frmTempoModellazione.txtTempoFinale", "09:00"},
                   {"frmTempoModellazione.txtSegmentoTempo", "20"}};
    EXPECT_EQ(trova(), Testi{segmentoAmpio});
    campi.testi["frmTempoModellazione.txtTempoFinale"] = "09:30";
    EXPECT_EQ(trova(), Testi{});
    // The project alone would be found.
    rotonda().SegmentoTempo(oraDelGiorno(0, 30));
    EXPECT_EQ(trova(), Testi{});
}

TEST_F(RegoleTempo, WithoutStartAndEndAllTimesAreThoseOfTheProject) {
    campi.testi = {{"frmTempoModellazione.txtTempoIniziale", ""},
                   {"frmTempoModellazione.txtTempoFinale", ""},
                   {"frmTempoModellazione.txtSegmentoTempo", "20"}};
    EXPECT_EQ(trova(), Testi{});
    rotonda().SegmentoTempo(oraDelGiorno(0, 20));
    EXPECT_EQ(trova(), Testi{segmentoAmpio});
}

TEST_F(RegoleTempo, ABoxWithoutTextIsFilledFromTheProject) {
    campi.testi = {{"frmTempoModellazione.txtTempoIniziale", "08:00"},
                   {"frmTempoModellazione.txtTempoFinale", ""},
                   {"frmTempoModellazione.txtSegmentoTempo", "20"}};
    EXPECT_EQ(trova(), Testi{segmentoAmpio});  // to 09:00, the end of the project
    EXPECT_TRUE(registrati.empty());
}

TEST_F(RegoleNomi, ALegWithItsFirstNameIsFound) {
    ramo(1).Descrizione("Ramo A");
    ramo(4).Descrizione("Ramo D");
    EXPECT_EQ(trova(), (Testi{"Y Toponomastica Intersezione:Nome Ramo A di default, si consiglia di rinominarlo per "
                              "una più facile riconoscimento dell'accesso",
                              "Y Toponomastica Intersezione:Nome Ramo D di default, si consiglia di rinominarlo per "
                              "una più facile riconoscimento dell'accesso"}));
    EXPECT_EQ(meta(1), (Meta{"keyToponomasticaIntersezione", "txtIngresso4", 4}));
}

TEST_F(RegoleNomi, TheFirstNameOfAnotherLegIsANameLikeAnyOther) {
    ramo(1).Descrizione("Ramo B");
    ramo(2).Descrizione("ramo B");
    ramo(3).Descrizione("Ramo C ");
    EXPECT_EQ(trova(), Testi{});
}

TEST_F(RegoleNomi, SevenLegsHaveSevenLetters) {
    creaProgetto(app, 7);
    errori.svuota();
    errori.INPUT_Toponomastica();
    const auto& riscontri = errori.ctlTreeAnalizzatore.riscontri;
    ASSERT_EQ(riscontri.size(), 7U);
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_NE(riscontri[i].testo.find(std::string{":Nome Ramo "} + "ABCDEFG"[i] + " di default"),
                  std::string::npos);
    }
}

}  // namespace
}  // namespace kelvo::prove
