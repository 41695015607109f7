#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "shell/frmOpzioni.h"
#include "shell/scenaPagine.h"
#include "shell/servizi/pagineAiuto.h"
#include "shell/servizi/scelte.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

/// What only shows something; everything else can have the focus, now or at another time.
bool soloMostrato(const Controllo& controllo) {
    return dynamic_cast<const Etichetta*>(&controllo) != nullptr ||
           dynamic_cast<const Immagine*>(&controllo) != nullptr ||
           dynamic_cast<const Riquadro*>(&controllo) != nullptr ||
           dynamic_cast<const PannelloAiuto*>(&controllo) != nullptr ||
           dynamic_cast<const BarraProgresso*>(&controllo) != nullptr ||
           dynamic_cast<const CampioneColore*>(&controllo) != nullptr;
}

/// Words of a button or of tabs, which the page of their window may tell in place of one of their own.
std::vector<std::string> parole(const Controllo& controllo) {
    std::vector<std::string> tutte;
    if (const auto* bottone = dynamic_cast<const Bottone*>(&controllo)) {
        tutte.push_back(bottone->testo());
    } else if (const auto* schede = dynamic_cast<const Schede*>(&controllo)) {
        for (const Schede::Scheda& scheda : schede->schede()) {
            tutte.push_back(scheda.titolo);
        }
    }
    return tutte;
}

/// Buttons that say all there is to say.
bool evidente(const std::string& testo) {
    constexpr std::array parlanti{"OK", "Annulla", "Chiudi", "Indietro", "Avanti", "Indice", "Guida utente", "Copia"};
    return std::find(parlanti.begin(), parlanti.end(), testo) != parlanti.end();
}

TEST(PagineDeiCampi, EverythingThatTakesTheFocusHasAPageOfTheInstallation) {
    FinestreTutte scena;
    int visti = 0;
    for (const Finestra* finestra : scena.tutte) {
        const std::string propria{paginaDiFinestra(finestra->nome())};
        const std::string detto = propria.empty() ? std::string{} : testoVisibile(pagina(propria));
        for (const Controllo* controllo : finestra->ordine()) {
            if (soloMostrato(*controllo)) {
                continue;
            }
            ++visti;
            const std::string dove = finestra->nome() + "." + controllo->nome();
            if (!controllo->paginaAiuto.empty()) {
                EXPECT_TRUE(fs::exists(cartellaPagine + controllo->paginaAiuto))
                    << dove << " " << controllo->paginaAiuto;
                EXPECT_NE(controllo->paginaAiuto, paginaAiutoVuota) << dove;
                continue;
            }
            const std::vector<std::string> sue = parole(*controllo);
            EXPECT_FALSE(sue.empty()) << dove << " has no page";
            for (const std::string& parola : sue) {
                EXPECT_TRUE(evidente(parola) || detto.find(parola) != std::string::npos)
                    << dove << ": «" << parola << "» is not told in " << propria;
            }
        }
    }
    EXPECT_GT(visti, 200);
}

TEST(PagineDeiCampi, EveryWindowHasAPageThatTheIndexLeadsTo) {
    FinestreTutte scena;
    const std::string indice = std::regex_replace(pagina(std::string{paginaIndice}), std::regex("%20"), " ");
    for (const Finestra* finestra : scena.tutte) {
        const bool prendeFuoco = std::any_of(finestra->ordine().begin(), finestra->ordine().end(),
                                             [](const Controllo* c) { return !soloMostrato(*c); });
        const std::string propria{paginaDiFinestra(finestra->nome())};
        if (!prendeFuoco) {
            EXPECT_EQ(propria, "") << finestra->nome() << " takes no keys: nobody can ask for help there";
            continue;
        }
        ASSERT_TRUE(fs::exists(cartellaPagine + propria)) << finestra->nome() << " " << propria;
        EXPECT_TRUE(propria == paginaIndice || indice.find("\"" + propria + "\"") != std::string::npos)
            << finestra->nome() << ": " << propria << " is not in the index";
    }
}

TEST(PagineDeiCampi, NoWindowOfTheSourcesIsLeftOut) {
    FinestreTutte scena;
    std::set<std::string> viste;
    for (const Finestra* finestra : scena.tutte) {
        viste.insert(finestra->nome());
    }
    const std::regex costruttore(R"rx((?:Finestra\w*|AnteprimaProgetto)\([^"\n]*\s*"(frm\w+)")rx");
    std::set<std::string> scritte;
    for (const auto& voce : fs::recursive_directory_iterator(KELVO_SORGENTI "/src")) {
        if (voce.path().extension() != ".cpp") {
            continue;
        }
        const std::string testo = contenuto(voce.path().string());
        for (auto it = std::sregex_iterator(testo.begin(), testo.end(), costruttore); it != std::sregex_iterator();
             ++it) {
            scritte.insert((*it)[1].str());
        }
    }
    EXPECT_GE(scritte.size(), 30U);
    for (const std::string& nome : scritte) {
        EXPECT_EQ(viste.count(nome), 1U) << nome << " is not walked";
    }
}

TEST(PagineDeiCampi, TheRowsOfTheTableFitWindowsAndControlsThatThereAre) {
    FinestreTutte scena;
    for (const RigaAiuto& riga : righeAiuto()) {
        const std::string finestra{riga.finestra};
        const std::string controllo{riga.controllo};
        const auto inizia = [](const std::string& nome, const std::string& modello) {
            return modello.back() == '*' ? nome.rfind(modello.substr(0, modello.size() - 1), 0) == 0 : nome == modello;
        };
        bool trovata = false;
        for (const Finestra* f : scena.tutte) {
            if (!inizia(f->nome(), finestra)) {
                continue;
            }
            trovata = trovata || controllo.empty() ||
                      std::any_of(f->ordine().begin(), f->ordine().end(), [&](const Controllo* c) {
                          return inizia(c->nome(), controllo) && c->paginaAiuto == riga.pagina;
                      });
        }
        EXPECT_TRUE(trovata) << finestra << " " << controllo << " " << riga.pagina << " fits nothing";
    }
}

TEST(PagineDeiCampi, ThePageInUseIsThatOfTheFocusElseOfTheWindow) {
    FinestreTutte scena;
    auto& opzioni = dynamic_cast<frmOpzioni&>(scena.finestre.finestra("frmOpzioni", scena.contorno()));
    opzioni.attivata();
    EXPECT_EQ(opzioni.paginaInUso(), "Opzioni.htm");
    ASSERT_TRUE(opzioni.fuocoSu(opzioni.grpTipoAnalisi));
    EXPECT_EQ(opzioni.paginaInUso(), "TipoAnalisi.htm");
    EXPECT_EQ(opzioni.ctlHelp.pagina(), "TipoAnalisi.htm") << "what is no text box brings its page to the pane too";
    ASSERT_TRUE(opzioni.fuocoSu(opzioni.txtVeicoli[2]));
    EXPECT_EQ(opzioni.paginaInUso(), "VeicoliEquivalenti.htm");
    opzioni.scordaFuoco();
    EXPECT_EQ(opzioni.paginaInUso(), "Opzioni.htm");
}

TEST(PagineDeiCampi, AWindowWithoutAPageFallsBackToTheIndex) {
    FinestreTutte scena;
    const frmSplash splash(scena.contorno());
    EXPECT_EQ(splash.paginaInUso(), paginaIndice);
}

}  // namespace
}  // namespace kelvo::prove
