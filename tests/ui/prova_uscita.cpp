#include <filesystem>

#include "comune/fileDifettosi.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::smaltisci;

constexpr const char* salvare = "Vuoi salvare la rotonda prima di uscire dal programma?";
constexpr const char* uscire = "Uscire dall'applicazione?";
constexpr const char* annullata = "Operazione annullata";

enum class Modo { menu, bottone, scorciatoia, sistema };
struct Caso {
    StatoProgetto stato;
    Modo modo;
};

void PrintTo(const Caso& caso, std::ostream* flusso) {
    *flusso << "state " << static_cast<int>(caso.stato) << ", way " << static_cast<int>(caso.modo);
}

std::string nomeCaso(const testing::TestParamInfo<Caso>& caso) {
    constexpr std::array stati{"Nuovo", "Salvato", "Nessuno", "Caricato"};
    constexpr std::array modi{"DalMenu", "DalBottone", "DaiTasti", "DalSistema"};
    return std::string{stati[static_cast<std::size_t>(caso.param.stato)]} +
           modi[static_cast<std::size_t>(caso.param.modo)];
}

class Uscita : public testing::TestWithParam<Caso> {
protected:
    void SetUp() override { prepara(banco); }
    static void prepara(Banco& b) {
        b.mostra();
        switch (GetParam().stato) {
            case StatoProgetto::NessunProgetto:
                break;
            case StatoProgetto::ProgettoCaricato:
                std::filesystem::copy_file(KELVO_SORGENTI "/assets/Progetti/Rotatoria_Piazza_Italia.klv",
                                           b.cartella.file("aperto.klv"));
                b.apri(b.cartella.file("aperto.klv"));
                break;
            case StatoProgetto::ProgettoSalvato:
                b.nuovo(4);
                b.cornice.gestioneToolbar(StatoProgetto::ProgettoSalvato);  // no command leads there
                break;
            case StatoProgetto::ProgettoNuovo:
                b.nuovo(4);
                break;
        }
        ASSERT_EQ(b.stato.statoProgetto, GetParam().stato);
        b.dialogo.richieste.clear();
        smaltisci();
    }
    static void esci(Banco& b) {
        switch (GetParam().modo) {
            case Modo::menu:
                EXPECT_TRUE(gesti::menu(b.vista, {"mnuFile", "mnuEsci"}));
                break;
            case Modo::bottone:
                EXPECT_TRUE(gesti::bottone(b.vista, "Esci"));
                break;
            case Modo::scorciatoia:
                gesti::tasto(Qt::Key_Q, Qt::ControlModifier);
                break;
            case Modo::sistema:
                b.vista.close();
                break;
        }
        smaltisci();
    }
    /// The first question comes with a project open, but for the system box.
    static bool chiedeDiSalvare() {
        return GetParam().modo != Modo::sistema && (GetParam().stato == StatoProgetto::ProgettoNuovo ||
                                                    GetParam().stato == StatoProgetto::ProgettoCaricato);
    }
    static void resta(Banco& b) {
        EXPECT_TRUE(b.vista.isVisible());
        EXPECT_FALSE(b.cornice.scaricata());
        EXPECT_EQ(b.stato.statoProgetto, GetParam().stato);
        EXPECT_EQ(b.albero().isVisible(), GetParam().stato != StatoProgetto::NessunProgetto);
    }
    static void uscito(Banco& b) {
        EXPECT_TRUE(attendi([&] { return b.cornice.scaricata(); }));
        EXPECT_FALSE(b.vista.isVisible());
    }

    Banco banco;
};

/// The ways out that ask whether to save first.
class UscitaSalvando : public Uscita {};

TEST_P(Uscita, NoAndOkEndTheProgram) {
    std::vector<std::string> attese{uscire};
    if (chiedeDiSalvare()) {
        attese.insert(attese.begin(), salvare);
        banco.messaggi.risposte.push_back(Risposta::no);
    }
    banco.messaggi.risposte.push_back(Risposta::ok);
    esci(banco);
    uscito(banco);
    EXPECT_EQ(banco.messaggi.testi(), attese);
    for (const auto& m : banco.messaggi.mostrati) {
        EXPECT_EQ(m.titolo, "KELVO 2014 - Attenzione");
        EXPECT_EQ(m.icona, Icona::domanda);
        EXPECT_EQ(m.pulsanti, m.testo == salvare ? Pulsanti::siNo : Pulsanti::okAnnulla);
    }
    EXPECT_TRUE(banco.dialogo.richieste.empty());
}

TEST_P(Uscita, CancelStays) {
    if (chiedeDiSalvare()) {
        banco.messaggi.risposte.push_back(Risposta::no);
    }
    banco.messaggi.risposte.push_back(Risposta::annulla);
    esci(banco);
    EXPECT_EQ(banco.ultimo(), uscire);
    resta(banco);
}

TEST_P(UscitaSalvando, YesSavesFirst) {
    const std::string percorso = banco.cartella.file("salvato.klv");
    banco.dialogo.scelte.push_back(percorso);
    banco.messaggi.risposte = {Risposta::si, Risposta::ok};
    esci(banco);
    uscito(banco);
    EXPECT_EQ(banco.messaggi.testi(), (std::vector<std::string>{salvare, uscire}));
    Rotonda salvata;
    std::string messaggio;
    bool esito = false;
    salvata.Load(percorso, messaggio, esito);
    EXPECT_TRUE(esito) << messaggio;
    EXPECT_EQ(salvata.NomeFile(), "salvato");
}

TEST_P(UscitaSalvando, ACancelledSaveStays) {
    banco.messaggi.risposte = {Risposta::si};
    esci(banco);
    EXPECT_EQ(banco.messaggi.testi(), (std::vector<std::string>{salvare, annullata}));
    EXPECT_EQ(banco.messaggi.mostrati.back().icona, Icona::esclamazione);
    resta(banco);
}

TEST_P(UscitaSalvando, AFailedSaveTellsWhyAndStays) {
    FileDifettosi rotto(sistemaFileStandard(), PassoFile::rinomina, Incidente::errore);
    Banco b(0, rotto);
    prepara(b);
    b.dialogo.scelte.push_back(b.cartella.file("salvato.klv"));
    b.messaggi.risposte = {Risposta::si};
    esci(b);
    ASSERT_EQ(b.messaggi.mostrati.size(), 3U);
    EXPECT_EQ(b.messaggi.mostrati[0].testo, salvare);
    EXPECT_NE(b.messaggi.mostrati[1].testo.find("incidente"), std::string::npos) << b.messaggi.mostrati[1].testo;
    EXPECT_EQ(b.messaggi.mostrati[2].testo, annullata);
    resta(b);
    EXPECT_FALSE(std::filesystem::exists(b.cartella.file("salvato.klv")));
}

std::vector<Caso> casi() {
    std::vector<Caso> tutti;
    for (const StatoProgetto stato : {StatoProgetto::ProgettoNuovo, StatoProgetto::ProgettoSalvato,
                                      StatoProgetto::NessunProgetto, StatoProgetto::ProgettoCaricato}) {
        for (const Modo modo : {Modo::menu, Modo::bottone, Modo::scorciatoia, Modo::sistema}) {
            tutti.push_back({stato, modo});
        }
    }
    return tutti;
}

std::vector<Caso> casiConDomanda() {
    std::vector<Caso> tutti = casi();
    std::erase_if(tutti, [](const Caso& caso) {
        return caso.modo == Modo::sistema ||
               (caso.stato != StatoProgetto::ProgettoNuovo && caso.stato != StatoProgetto::ProgettoCaricato);
    });
    return tutti;
}

INSTANTIATE_TEST_SUITE_P(PerOgniStato, UscitaSalvando, testing::ValuesIn(casiConDomanda()), nomeCaso);
INSTANTIATE_TEST_SUITE_P(PerOgniStato, Uscita, testing::ValuesIn(casi()), nomeCaso);

}  // namespace
}  // namespace kelvo::prove
