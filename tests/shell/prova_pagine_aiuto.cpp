#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "comune/cartella.h"
#include "comune/fintiFinestre.h"
#include "comune/fintiShell.h"
#include "input/frmTempoModellazione.h"
#include "shell/frmAnagraficaRotonda.h"
#include "shell/registroFinestre.h"
#include "shell/servizi/tBox.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

const std::string cartellaPagine = KELVO_SORGENTI "/assets/Support/";

/// Page that a control names; empty for none.
std::string paginaDi(const Controllo& controllo) {
    if (const auto* campo = dynamic_cast<const tBox*>(&controllo)) {
        return campo->paginaAiuto;
    }
    const auto* area = dynamic_cast<const AreaTesto*>(&controllo);
    return area == nullptr ? std::string{} : area->paginaAiuto;
}

/// What a reader of a page sees: its text without the marks.
std::string testoVisibile(const std::string& pagina) {
    const auto corpo = pagina.find("<body>");
    std::string testo;
    bool segno = false;
    for (const char c : corpo == std::string::npos ? std::string{} : pagina.substr(corpo)) {
        segno = segno || c == '<';
        if (!segno && c != '\n') {
            testo += c;
        }
        segno = segno && c != '>';
    }
    return testo;
}

TEST(PagineAiuto, EveryPageThatAFieldNamesStandsAndSaysSomething) {
    ScenaFinestre scena;
    shell::ServiziFinestreFinti servizi;
    FabbricaFinestre finestre;
    registraFinestre(finestre, servizi.servizi());
    std::set<std::string> nominate;
    for (const std::string& nome : finestre.nomi()) {
        for (const Controllo* controllo : finestre.finestra(nome, scena.contorno()).ordine()) {
            if (const std::string pagina = paginaDi(*controllo); !pagina.empty()) {
                nominate.insert(pagina);
            }
        }
    }
    EXPECT_GE(nominate.size(), 20U);
    for (const std::string& pagina : nominate) {
        ASSERT_TRUE(fs::exists(cartellaPagine + pagina)) << pagina;
        EXPECT_GT(testoVisibile(contenuto(cartellaPagine + pagina)).size(), 40U) << pagina;
    }
}

TEST(PagineAiuto, EveryPageThatAPaneBeginsWithStandsAndSaysSomething) {
    ScenaFinestre scena;
    shell::ServiziFinestreFinti servizi;
    FabbricaFinestre finestre;
    registraFinestre(finestre, servizi.servizi());
    int proprie = 0;
    for (const std::string& nome : finestre.nomi()) {
        const PannelloAiuto* aiuto = finestre.finestra(nome, scena.contorno()).aiuto();
        if (aiuto != nullptr && aiuto->pagina() != paginaAiutoVuota) {
            ++proprie;
            ASSERT_TRUE(fs::exists(cartellaPagine + aiuto->pagina())) << nome;
            EXPECT_GT(testoVisibile(contenuto(cartellaPagine + aiuto->pagina())).size(), 40U) << nome;
        }
    }
    EXPECT_GE(proprie, 1);
    for (const char* aperta :
         {"DatiRiassuntivi.htm", "SogliaFlusso.htm", "SogliaCapacita.htm", "SogliaSaturazione.htm", "SogliaCoda.htm",
          "SogliaRitardo.htm", "SogliaLivello.htm", "LivelloMinimo.htm", "LivelloMassimo.htm", "MappaLivelli.htm",
          "RelazioneDati.htm", "RelazioneRisultati.htm", "RelazioneDatiRisultati.htm", "RelazioneCompleta.htm",
          "RelazioneGrafici.htm", "ModelloRelazione.htm"}) {
        ASSERT_TRUE(fs::exists(cartellaPagine + aperta)) << aperta;
        EXPECT_GT(testoVisibile(contenuto(cartellaPagine + aperta)).size(), 40U) << aperta;
    }
}

TEST(PagineAiuto, TheBlankPageStandsAndIsBlank) {
    const std::string vuota = cartellaPagine + std::string{paginaAiutoVuota};
    ASSERT_TRUE(fs::exists(vuota));
    EXPECT_EQ(testoVisibile(contenuto(vuota)), "");
}

TEST(PagineAiuto, EveryFieldOfTimesAndRegistriesHasOne) {
    ScenaFinestre scena;
    shell::ServiziFinestreFinti servizi;
    FabbricaFinestre finestre;
    registraFinestre(finestre, servizi.servizi());
    int campi = 0;
    for (const char* nome : {"frmTempoModellazione", "frmAnagraficaRotonda", "frmCommittenteProfessionista"}) {
        for (const Controllo* controllo : finestre.finestra(nome, scena.contorno()).ordine()) {
            const bool campo =
                dynamic_cast<const tBox*>(controllo) != nullptr || dynamic_cast<const AreaTesto*>(controllo) != nullptr;
            if (campo) {
                ++campi;
                EXPECT_NE(paginaDi(*controllo), "") << nome << " " << controllo->nome();
            }
        }
    }
    EXPECT_EQ(campi, 3 + 9 + 14);
}

TEST(PagineAiuto, TheFieldInUseBringsItsPage) {
    ScenaFinestre scena;
    frmTempoModellazione tempi(scena.contorno());
    EXPECT_EQ(tempi.ctlHelp.pagina(), paginaAiutoVuota);
    ASSERT_TRUE(tempi.fuocoSu(tempi.txtSegmentoTempo));
    EXPECT_EQ(tempi.ctlHelp.pagina(), "SegmentoTempo.htm");
    frmAnagraficaRotonda anagrafica(scena.contorno());
    ASSERT_TRUE(anagrafica.fuocoSu(anagrafica.txtNote));
    EXPECT_EQ(anagrafica.ctlHelp.pagina(), "Note.htm");
}

}  // namespace
}  // namespace kelvo::prove
