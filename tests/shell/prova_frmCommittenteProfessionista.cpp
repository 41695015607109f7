#include "shell/frmCommittenteProfessionista.h"

#include <gtest/gtest.h>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"

namespace kelvo::prove {
namespace {

struct ProveProfessionista : testing::Test, ScenaFinestre {
    frmCommittenteProfessionista finestra{contorno()};
    ProveProfessionista() {
        creaProgetto(app, 3);
        Rotonda& r = app.theRotonda();
        r.NomeProfessionista("Ing. Bianchi");
        r.IndirizzoProfessionista("Via Roma 1");
        r.CAPProfessionista("55100");
        r.CittaProfessionista("Lucca");
        r.ProvinciaProfessionista("LU");
        r.TelefonoProfessionista("0583/123");
        r.EMailProfessionista("b@x.it");
        finestra.attivata();
    }
    Rotonda& rotonda() { return app.theRotonda(); }
    std::vector<std::string> testi(const Riquadro& riquadro) {
        std::vector<std::string> trovati;
        for (Controllo* c : riquadro.contenuto()) {
            if (const auto* etichetta = dynamic_cast<Etichetta*>(c)) {
                trovati.push_back(etichetta->testo());
            }
        }
        return trovati;
    }
};

TEST_F(ProveProfessionista, LabelsOfBothBlocks) {
    EXPECT_EQ(finestra.didascalia(), "Anagrafica professionista");
    EXPECT_EQ(testi(finestra.frProfessionista), (std::vector<std::string>{"Professionista", "Indirizzo", "CAP", "Città",
                                                                          "Provincia", "Telefono", "E-mail"}));
    EXPECT_EQ(finestra.frCommittente.titolo(), "Anagrafica Committente");
    EXPECT_EQ(testi(finestra.frCommittente), (std::vector<std::string>{"Committente:", "Indirizzo:", "CAP:", "Città:",
                                                                       "Provincia:", "Telefono:", "E-mail:"}));
}

TEST_F(ProveProfessionista, TheSevenFieldsShowTheEngineer) {
    EXPECT_EQ(finestra.txtNomeProfessionista.testo(), "Ing. Bianchi");
    EXPECT_EQ(finestra.txtIndirizzoProfessionista.testo(), "Via Roma 1");
    EXPECT_EQ(finestra.txtCAPProfessionista.testo(), "55100");
    EXPECT_EQ(finestra.txtCittaProfessionista.testo(), "Lucca");
    EXPECT_EQ(finestra.txtProvinciaProfessionista.testo(), "LU");
    EXPECT_EQ(finestra.txtTelefonoProfessionista.testo(), "0583/123");
    EXPECT_EQ(finestra.txtEMailProfessionista.testo(), "b@x.it");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveProfessionista, ASaveWritesTheSevenFields) {
    finestra.txtNomeProfessionista.scrivi("N");
    finestra.txtIndirizzoProfessionista.scrivi("I");
    finestra.txtCAPProfessionista.scrivi("00100");
    finestra.txtCittaProfessionista.scrivi("C");
    finestra.txtProvinciaProfessionista.scrivi("P");
    finestra.txtTelefonoProfessionista.scrivi("+39 (06) 12-3/4");
    finestra.txtEMailProfessionista.scrivi("e@f");
    finestra.txtNomeProfessionista.lascia();
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(rotonda().NomeProfessionista(), "N");
    EXPECT_EQ(rotonda().IndirizzoProfessionista(), "I");
    EXPECT_EQ(rotonda().CAPProfessionista(), "00100");
    EXPECT_EQ(rotonda().CittaProfessionista(), "C");
    EXPECT_EQ(rotonda().ProvinciaProfessionista(), "P");
    EXPECT_EQ(rotonda().TelefonoProfessionista(), "+39 (06) 12-3/4");
    EXPECT_EQ(rotonda().EMailProfessionista(), "e@f");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveProfessionista, ThePostcodeTakesFiveDigitsAndTheTelephoneItsSigns) {
    finestra.txtCAPProfessionista.scrivi("5a5 1007");
    EXPECT_EQ(finestra.txtCAPProfessionista.testo(), "55100");
    finestra.txtTelefonoProfessionista.scrivi("tel. +39 (0583) 12-3/4x.,");
    EXPECT_EQ(finestra.txtTelefonoProfessionista.testo(), " +39 (0583) 12-3/4");
}

TEST_F(ProveProfessionista, APostcodeThatIsNoNumberKeepsTheFocus) {
    rotonda().CAPProfessionista("551A0");
    finestra.ReadData();
    EXPECT_FALSE(finestra.txtCAPProfessionista.lascia());
    EXPECT_TRUE(stato.convalidaFallita);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].testo, "Sono ammessi solo caratteri numerici.");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    finestra.txtCAPProfessionista.scrivi("");
    EXPECT_TRUE(finestra.txtCAPProfessionista.lascia());
    finestra.txtCAPProfessionista.scrivi("12");
    EXPECT_TRUE(finestra.txtCAPProfessionista.lascia());
}

TEST_F(ProveProfessionista, ReloadingTakesATypedPostcodeAwayAndLeavesTheEmptyMaskAlone) {
    rotonda().CAPProfessionista("");
    frmCommittenteProfessionista altra(contorno());
    int segnali = 0;
    altra.txtCAPProfessionista.cambiato().connect([&] { ++segnali; });
    altra.ReadData();
    EXPECT_EQ(segnali, 0);
    altra.txtCAPProfessionista.scrivi("12345");
    altra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(altra.txtCAPProfessionista.testo(), "");
}

TEST_F(ProveProfessionista, TheClientsBlockIsTiedToNothing) {
    const std::string prima = rotonda().TestoFile();
    for (tBox* campo : {&finestra.txtNomeCommittente, &finestra.txtIndirizzoCommittente, &finestra.txtCAPCommittente,
                        &finestra.txtCittaCommittente, &finestra.txtProvinciaCommittente,
                        &finestra.txtTelefonoCommittente, &finestra.txtEMailCommittente}) {
        campo->scrivi("12345");
        EXPECT_TRUE(campo->lascia()) << campo->nome();
    }
    EXPECT_TRUE(finestra.DatiAllineati());
    finestra.SaveData();
    EXPECT_EQ(rotonda().TestoFile(), prima);
    finestra.ReadData();
    EXPECT_EQ(finestra.txtNomeCommittente.testo(), "12345");
}

}  // namespace
}  // namespace kelvo::prove
