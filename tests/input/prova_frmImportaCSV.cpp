#include "input/frmImportaCSV.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "app/nuovoProgetto.h"
#include "comune/cartella.h"
#include "comune/fintiFinestre.h"
#include "input/frmMatriceSvolte.h"
#include "shell/servizi/incolla.h"

namespace kelvo::prove {
namespace {

/// A table of a window: four segments by three columns, the last of them locked, that takes whole numbers to 99.
class FinestraTabella final : public Finestra {
public:
    explicit FinestraTabella(const Contorno& contorno) : Finestra(contorno, "frmProva", "Prova") {
        ordina({&ctlGrid});
        Tabella tabella(5, 4);
        for (int r = 0; r < 5; ++r) {
            for (int c = 0; c < 4; ++c) {
                tabella.cella(r, c).testo = r == 0   ? std::string(1, static_cast<char>('A' + c))
                                            : c == 0 ? "S" + std::to_string(r)
                                                     : "5";
            }
        }
        ctlGrid.modificabile = [](Posto p) { return p.colonna < 3; };
        ctlGrid.allIncolla = [this](std::vector<TestoCella>& celle) {
            for (const TestoCella& cella : celle) {
                if (numeroIncollato(cella.testo).value_or(0.0) > 99.0) {
                    return rifiutoBlocco(ctlGrid, cella, "supera 99");
                }
            }
            return EsitoUscita::bene();
        };
        ctlGrid.dopoModifica = [this](const std::vector<Posto>& posti) { mutate += posti.size(); };
        ctlGrid.tabella(tabella);
    }
    Griglia ctlGrid{"ctlGrid"};
    std::size_t mutate = 0;
    /// Rows of the cells that may be typed into: "5 5|5 5|...".
    std::string celle() const {
        std::string tutte;
        for (int r = 1; r < 5; ++r) {
            tutte += (r == 1 ? "" : "|") + ctlGrid.testo(r, 1) + " " + ctlGrid.testo(r, 2);
        }
        return tutte;
    }
};

/// Plays the user of the dialogue.
class DialogoCSV final : public DialogoAnteprima {
public:
    bool apri(const RichiestaFile& richiesta, FinestraAnteprima& anteprima) override {
        richieste.push_back(richiesta);
        auto& vista = dynamic_cast<frmImportaCSV&>(anteprima);
        if (percorso.empty()) {
            return false;
        }
        vista.selezionato(percorso);
        if (guarda) {
            guarda(vista);
        }
        return vista.conferma(percorso);
    }
    std::vector<RichiestaFile> richieste;
    std::string percorso;
    std::function<void(frmImportaCSV&)> guarda;
};

struct ProveImportaCSV : testing::Test, ScenaFinestre {
    ImpostazioniFinte impostazioni;
    DialogoCSV dialogo;
    FinestraTabella finestra{completo()};

    Contorno completo() {
        Contorno c = contorno();
        c.servizi.impostazioni = &impostazioni;
        return c;
    }
    BersaglioCSV bersaglio() {
        return {.tipo = "Prova",
                .didascalia = "Importa da CSV",
                .griglia = finestra.ctlGrid,
                .colonne = {{"B", 1, {"Auto"}}, {"C", 2, {}}, {"D", 3, {}}}};
    }
    std::string scrivi(const std::string& testo, const char* nome = "dati.csv") {
        const std::string percorso = cartella.file(nome);
        std::ofstream(percorso, std::ios::binary) << testo;
        return percorso;
    }
    /// Imports a file of that text, after what the user does in the dialogue.
    bool importa(const std::string& testo, std::function<void(frmImportaCSV&)> guarda = {}) {
        dialogo.percorso = scrivi(testo);
        dialogo.guarda = std::move(guarda);
        return importaCSV(completo(), dialogo, bersaglio());
    }
    std::string ultimo() const { return messaggi.mostrati.empty() ? std::string{} : messaggi.mostrati.back().testo; }
    static std::string riga(const frmImportaCSV& vista, int r) {
        std::string testo;
        for (int c = 0; c < vista.ctlGrid.tabella().colonne(); ++c) {
            testo += (c == 0 ? "" : "|") + vista.ctlGrid.testo(r, c);
        }
        return testo;
    }
};

TEST_F(ProveImportaCSV, FourRowsGoIntoTheTableInOneStep) {
    EXPECT_TRUE(importa("B;C\n1;2\n3;4\n5;6\n7;8\n"));
    EXPECT_EQ(finestra.celle(), "1 2|3 4|5 6|7 8");
    EXPECT_EQ(finestra.mutate, 8U);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 3), "5") << "a column that takes nothing";
    EXPECT_TRUE(messaggi.mostrati.empty()) << ultimo();
    finestra.ctlGrid.premiTasto(Griglia::Tasto::annulla);
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
    finestra.ctlGrid.premiTasto(Griglia::Tasto::ripeti);
    EXPECT_EQ(finestra.celle(), "1 2|3 4|5 6|7 8");
}

TEST_F(ProveImportaCSV, TheDialogueAsksForTextFilesFromTheProjectsOn) {
    EXPECT_FALSE(importaCSV(completo(), dialogo, bersaglio()));
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].estensione, "csv");
    EXPECT_EQ(dialogo.richieste[0].filtro,
              "File CSV o di testo (*.csv;*.txt)|*.csv *.CSV *.txt *.TXT|Tutti i files(*.*)|*.*");
    EXPECT_NE(dialogo.richieste[0].cartella.find("Progetti"), std::string::npos);
    EXPECT_TRUE(importa("1;2\n"));
    EXPECT_TRUE(importa("1;2\n"));
    EXPECT_EQ(dialogo.richieste[2].cartella, cartella.percorso()) << "the folder of the last import";
    impostazioni.scrivi("Kelvo", "ImportaCSV", "Cartella", cartella.file("non esiste"));
    EXPECT_TRUE(importa("1;2\n"));
    EXPECT_NE(dialogo.richieste[3].cartella.find("Progetti"), std::string::npos);
}

TEST_F(ProveImportaCSV, TheHeadOfTheFileIsShownWithWhereItsColumnsGo) {
    importa("Ora;Auto;Moto\n08:00;1,5;x\n08:15;2\n", [&](frmImportaCSV& vista) {
        EXPECT_EQ(vista.didascalia(), "Importa da CSV");
        EXPECT_EQ(vista.ctlGrid.tabella().righe(), 4);
        EXPECT_EQ(riga(vista, 0), "Riga|Ora|Auto|Moto");
        EXPECT_EQ(riga(vista, 1), "||→ B|");
        EXPECT_EQ(riga(vista, 2), "2|08:00|1,5|x");
        EXPECT_EQ(riga(vista, 3), "3|08:15|2|");
        EXPECT_TRUE(vista.chkIntestazioni.spuntata());
        EXPECT_EQ(vista.txtSeparatore.testo(), "Punto e virgola");
        EXPECT_EQ(vista.txtSeparatore.voci(), (std::vector<std::string>{"Punto e virgola", "Virgola", "Tabulazione"}));
        EXPECT_EQ(vista.txtColonna[0].voci(),
                  (std::vector<std::string>{"(nessuna)", "Colonna 1: Ora", "Colonna 2: Auto", "Colonna 3: Moto"}));
        EXPECT_EQ(vista.txtColonna[0].testo(), "Colonna 2: Auto");
        EXPECT_EQ(vista.txtColonna[1].testo(), "(nessuna)");
        EXPECT_EQ(vista.lblColonna[1].testo(), "C:");
        EXPECT_EQ(vista.lblAvviso.testo(), "2 righe di dati: la tabella ne ha 4, le altre resteranno come sono.");
        const Tabella& t = vista.ctlGrid.tabella();
        EXPECT_EQ(t.cella(2, 2).sfondo, colori::bianco);
        EXPECT_EQ(t.cella(2, 3).sfondo, tinta::barra) << "a column that goes nowhere";
        EXPECT_EQ(t.cella(1, 2).sfondo, colori::intestazione);
    });
    EXPECT_EQ(finestra.celle(), "1,5 5|2 5|5 5|5 5") << "rows and columns beyond the file stay";
}

TEST_F(ProveImportaCSV, AColumnThatMayNotBeTypedIntoCannotBeChosen) {
    importa("B;C;D\n1;2;3\n", [](frmImportaCSV& vista) {
        EXPECT_FALSE(vista.txtColonna[2].abilitato());
        EXPECT_EQ(vista.txtColonna[2].testo(), "(nessuna)");
        EXPECT_TRUE(vista.txtColonna[1].abilitato());
        EXPECT_TRUE(vista.txtColonna[2].visibile());
        EXPECT_FALSE(vista.txtColonna[3].visibile());
        EXPECT_FALSE(vista.lblColonna[3].visibile());
    });
    EXPECT_EQ(finestra.ctlGrid.testo(1, 3), "5");
}

TEST_F(ProveImportaCSV, OnlyTheFirstRowsOfALongFileAreShown) {
    std::string lungo = "B;C\n";
    for (int i = 0; i < 60; ++i) {
        lungo += std::to_string(i) + ";0\n";
    }
    importa(lungo, [](frmImportaCSV& vista) {
        EXPECT_EQ(vista.ctlGrid.tabella().righe(), 42);
        EXPECT_EQ(riga(vista, 41), "41|39|0");
    });
}

TEST_F(ProveImportaCSV, AnotherSeparatorReadsTheFileAnew) {
    EXPECT_TRUE(importa("1,2;3,4\n5,6;7,8\n", [](frmImportaCSV& vista) {
        EXPECT_EQ(riga(vista, 2), "1|1,2|3,4");
        vista.txtSeparatore.scegli(1);
        EXPECT_EQ(riga(vista, 2), "1|1|2;3|4");
        EXPECT_EQ(vista.lblAvviso.testo(), "Il testo '2;3' (riga 1, 'Colonna 2') non è un numero.");
        vista.txtSeparatore.scegli(0);
    }));
    EXPECT_EQ(finestra.celle(), "1,2 3,4|5,6 7,8|5 5|5 5");
}

TEST_F(ProveImportaCSV, TheFirstRowIsTakenWhereItIsSaidToHoldNoHeadings) {
    EXPECT_TRUE(importa("1;2\n3;4\n", [](frmImportaCSV& vista) {
        EXPECT_FALSE(vista.chkIntestazioni.spuntata());
        EXPECT_EQ(riga(vista, 0), "Riga|1|2");
        vista.chkIntestazioni.clicca();
        EXPECT_EQ(vista.txtColonna[0].voci()[1], "Colonna 1: 1");
        EXPECT_EQ(vista.ctlGrid.tabella().righe(), 3);
    }));
    EXPECT_EQ(finestra.celle(), "3 4|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, TheUserSaysWhichColumnGoesWhere) {
    EXPECT_TRUE(importa("B;C;E\n1;2;3\n", [](frmImportaCSV& vista) {
        vista.txtColonna[0].scegli(3);
        vista.txtColonna[1].scegli(0);
        EXPECT_EQ(riga(vista, 1), "|||→ B");
    }));
    EXPECT_EQ(finestra.celle(), "3 5|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, ACellThatIsNoNumberIsToldAndNothingChanges) {
    EXPECT_FALSE(importa("B;C\n1;2\n3;abc\nx;4\n", [](frmImportaCSV& vista) {
        EXPECT_EQ(vista.ctlGrid.tabella().cella(3, 2).sfondo, tinta::fondoErrore);
        EXPECT_EQ(vista.ctlGrid.ornamento({3, 2}).segno, OrnamentoCella::Segno::attenzione);
        EXPECT_EQ(vista.ctlGrid.ornamento({2, 2}).segno, OrnamentoCella::Segno::nessuno);
    }));
    EXPECT_EQ(ultimo(), "Il testo 'abc' (riga 3, 'Colonna 2: C') non è un numero.\nNon è stato importato nulla.");
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014 - Attenzione");
    EXPECT_EQ(messaggi.mostrati[0].icona, Icona::esclamazione);
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
    EXPECT_TRUE(impostazioni.valori.empty()) << "nothing is remembered of it";
}

TEST_F(ProveImportaCSV, ACellThatCanBeReadInTwoWaysIsToldAndNothingChanges) {
    EXPECT_FALSE(importa("1.234;2\n"));
    EXPECT_EQ(ultimo(),
              "Il testo '1.234' (riga 1, 'Colonna 1') si può leggere in due modi, con o senza decimali.\n"
              "Non è stato importato nulla.");
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, WrongCellsThatGoNowhereDoNoHarm) {
    EXPECT_TRUE(importa("Ora;B;C;Nota\n08:00;1;2;x\n08:15;3;4;y\n"));
    EXPECT_EQ(finestra.celle(), "1 2|3 4|5 5|5 5");
    EXPECT_TRUE(importa("B;C;D\n1;2;rotto\n")) << "the column that takes nothing";
}

TEST_F(ProveImportaCSV, ALongerFileIsClippedAfterAQuestion) {
    messaggi.risposta = Risposta::annulla;
    const std::string sei = "B;C\n1;1\n2;2\n3;3\n4;4\n5;rotto\n6;6\n";
    EXPECT_FALSE(importa(sei));
    EXPECT_EQ(ultimo(), "Il file ha 6 righe di dati: la tabella ne ha 4, le ultime 2 del file non verranno importate.");
    EXPECT_EQ(messaggi.mostrati[0].pulsanti, Pulsanti::okAnnulla);
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
    messaggi.risposta = Risposta::ok;
    EXPECT_TRUE(importa(sei));
    EXPECT_EQ(finestra.celle(), "1 1|2 2|3 3|4 4");
}

TEST_F(ProveImportaCSV, EmptyAndMissingCellsCountAsZero) {
    EXPECT_TRUE(importa("B;C\n;2\n3\n\n7;8\n"));
    EXPECT_EQ(finestra.celle(), "0 2|3 0|0 0|7 8");
}

TEST_F(ProveImportaCSV, WhatTheTableRefusesIsToldAsAWholeAndTheDialogueStaysOpen) {
    EXPECT_FALSE(importa("B;C\n1;2\n3;100\n"));
    EXPECT_EQ(ultimo(), "Il testo '100' (riga 3, 'Colonna 2: C') supera 99: non è stato importato nulla.");
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, ARefusalOfAnotherFormIsToldAsTheTableTellsIt) {
    finestra.ctlGrid.allIncolla = [](std::vector<TestoCella>& /*celle*/) {
        return EsitoUscita::rifiuto("Oggi no: non è stato incollato nulla.");
    };
    EXPECT_FALSE(importa("B;C\n1;2\n"));
    EXPECT_EQ(ultimo(), "Oggi no: non è stato importato nulla.");
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, OneRowTooManyOrTooFewIsToldInTheSingular) {
    const auto detto = [&](const std::string& testo) {
        std::string avviso;
        messaggi.risposta = Risposta::annulla;
        importa(testo, [&](frmImportaCSV& vista) { avviso = vista.lblAvviso.testo(); });
        return avviso;
    };
    EXPECT_EQ(detto("1;1\n2;2\n3;3\n4;4\n5;5\n"),
              "5 righe di dati: la tabella ne ha 4, l'ultima riga del file non verrà importata.");
    EXPECT_EQ(ultimo(), "Il file ha 5 righe di dati: la tabella ne ha 4, l'ultima riga del file non verrà importata.");
    EXPECT_EQ(detto("1;1\n2;2\n3;3\n"), "3 righe di dati: la tabella ne ha 4, l'altra resterà com'è.");
    EXPECT_EQ(detto("1;1\n2;2\n"), "2 righe di dati: la tabella ne ha 4, le altre resteranno come sono.");
}

TEST_F(ProveImportaCSV, ATableWithoutRowsIsSaidPlainly) {
    finestra.ctlGrid.tabella(Tabella(1, 4));
    EXPECT_FALSE(importa("B;C\n1;2\n", [](frmImportaCSV& vista) {
        EXPECT_EQ(vista.lblAvviso.testo(), "Nessun segmento di tempo");
        EXPECT_EQ(riga(vista, 2), "2|1|2") << "the file is shown all the same";
    }));
    EXPECT_EQ(ultimo(), "Nessun segmento di tempo");
}

TEST_F(ProveImportaCSV, ATickOfTheHeadingsKeepsTheColumnsChosenByHand) {
    importa("C;x;B\n1;2;3\n", [](frmImportaCSV& vista) {
        EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{2, 0, -1}));
        vista.txtColonna[0].scegli(2);
        vista.chkIntestazioni.clicca();
        EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{1, -1, -1}))
            << "by position, but not the one that is taken";
        vista.chkIntestazioni.clicca();
        EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{1, 0, -1}));
        vista.txtSeparatore.scegli(1);
        vista.txtSeparatore.scegli(0);
        EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{2, 0, -1})) << "other columns: proposed anew";
    });
}

TEST_F(ProveImportaCSV, BetweenCommasAThousandsCommaIsRefused) {
    EXPECT_FALSE(importa("B,C\n\"1,234\",2\n"));
    EXPECT_EQ(ultimo(),
              "Il testo '1,234' (riga 2, 'Colonna 1: B') si può leggere in due modi, con o senza decimali.\n"
              "Non è stato importato nulla.");
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
    EXPECT_TRUE(importa("B;C\n1,234;2\n")) << ultimo();
    EXPECT_EQ(finestra.celle(), "1,234 2|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, LongTextsAreShownShortened) {
    const std::string lungo(1000, 'x');
    const std::string breve = std::string(60, 'x') + "…";
    EXPECT_FALSE(importa(lungo + ";C\n" + lungo + ";2\n", [&](frmImportaCSV& vista) {
        vista.txtColonna[0].scegli(1);
        EXPECT_EQ(vista.txtColonna[0].testo(), "Colonna 1: " + breve);
        EXPECT_EQ(riga(vista, 0), "Riga|" + breve + "|C");
        EXPECT_EQ(riga(vista, 2), "2|" + breve + "|2");
        EXPECT_EQ(vista.lblAvviso.testo(),
                  "Il testo '" + breve + "' (riga 2, 'Colonna 1: " + breve + "') non è un numero.");
    }));
    BersaglioCSV lunghi = bersaglio();
    lunghi.colonne[0].titolo = lungo;
    const frmImportaCSV vista(completo(), lunghi);
    EXPECT_EQ(vista.lblColonna[0].testo(), breve + ":");
}

TEST_F(ProveImportaCSV, NoColumnOrOneTwiceIsRefused) {
    EXPECT_FALSE(importa("x;y\n1;2\n", [](frmImportaCSV& vista) {
        vista.txtColonna[0].scegli(0);
        vista.txtColonna[1].scegli(0);
    }));
    EXPECT_EQ(ultimo(), "Scegliere almeno una colonna da importare.");
    EXPECT_FALSE(importa("x;y\n1;2\n", [](frmImportaCSV& vista) { vista.txtColonna[1].scegli(1); }));
    EXPECT_EQ(ultimo(), "La 'Colonna 1: x' del file è scelta due volte.");
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, AFileThatCannotBeReadEmptiesTheView) {
    const auto detto = [&](const std::string& testo) {
        std::string avviso;
        EXPECT_FALSE(importa(testo, [&](frmImportaCSV& vista) {
            avviso = vista.lblAvviso.testo();
            EXPECT_EQ(vista.ctlGrid.tabella().righe(), 0);
        }));
        EXPECT_EQ(ultimo(), avviso);
        return avviso;
    };
    EXPECT_EQ(detto(std::string("a\0b", 3)), "Il file non è un file di testo.");
    EXPECT_EQ(detto(""), "Il file non contiene righe di dati.");
    EXPECT_EQ(detto("a;\"b\n1;2\n"),
              "Il file non è un CSV leggibile: le virgolette aperte nella riga 1 non si chiudono.");
    EXPECT_FALSE(importa("B;C\n"));
    EXPECT_EQ(ultimo(), "Il file non contiene righe di dati.");
}

TEST_F(ProveImportaCSV, WithoutAFileTheFieldsAreClosedAndSayWhatToDo) {
    frmImportaCSV vista(completo(), bersaglio());
    vista.selezionato("");
    vista.selezionato(cartella.percorso());
    EXPECT_EQ(vista.lblAvviso.testo(), "Selezionare un file CSV per vederne il contenuto.");
    EXPECT_FALSE(vista.txtSeparatore.abilitato());
    EXPECT_FALSE(vista.chkIntestazioni.abilitato());
    EXPECT_FALSE(vista.txtColonna[0].abilitato());
    EXPECT_FALSE(vista.conferma(cartella.percorso()));
    EXPECT_EQ(ultimo(), "Selezionare un file CSV per vederne il contenuto.");
}

TEST_F(ProveImportaCSV, AFolderOnTheWayLeavesTheFileThatIsShown) {
    frmImportaCSV vista(completo(), bersaglio());
    vista.selezionato(scrivi("1;2\n"));
    EXPECT_EQ(vista.ctlGrid.tabella().righe(), 3);
    vista.selezionato(cartella.percorso());
    EXPECT_EQ(vista.ctlGrid.tabella().righe(), 3);
    EXPECT_TRUE(vista.txtSeparatore.abilitato());
}

TEST_F(ProveImportaCSV, WhatWasChosenForAFileStandsWhenItComesBack) {
    frmImportaCSV vista(completo(), bersaglio());
    const std::string uno = scrivi("1,2;3\n", "uno.csv");
    const std::string due = scrivi("7;8\n", "due.csv");
    vista.selezionato(uno);
    vista.txtColonna[0].scegli(0);
    vista.selezionato(due);
    EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{0, 1, -1}));
    vista.selezionato(uno);
    EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{-1, 1, -1}));
    vista.selezionato(due);
    EXPECT_TRUE(vista.conferma(uno)) << "seen before: it is taken as it was chosen";
    EXPECT_EQ(finestra.celle(), "5 3|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, AFileThatLostColumnsIsProposedAnew) {
    frmImportaCSV vista(completo(), bersaglio());
    const std::string uno = scrivi("B;x;C\n1;2;3\n4;5;6\n", "uno.csv");
    const std::string due = scrivi("7;8\n", "due.csv");
    vista.selezionato(uno);
    EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{0, 2, -1}));
    vista.selezionato(due);
    scrivi("9\n8\n", "uno.csv");
    EXPECT_FALSE(vista.conferma(uno)) << "what stands in it now has not been seen";
    EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{0, -1, -1}));
    EXPECT_EQ(vista.txtColonna[0].testo(), "Colonna 1");
    EXPECT_TRUE(messaggi.mostrati.empty()) << ultimo();
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
    EXPECT_TRUE(vista.conferma(uno));
    EXPECT_EQ(finestra.celle(), "9 5|8 5|5 5|5 5") << "no 0 for a column that is not there";
}

TEST_F(ProveImportaCSV, AFileThatCannotBeReadSaysSoAgainAndIsProposedOnceItCan) {
    frmImportaCSV vista(completo(), bersaglio());
    const std::string rotto = scrivi("B;\"C\n1;2\n", "rotto.csv");
    const std::string sano = scrivi("7;8\n", "sano.csv");
    const std::string errore = "Il file non è un CSV leggibile: le virgolette aperte nella riga 1 non si chiudono.";
    for (int volta = 0; volta < 2; ++volta) {
        vista.selezionato(sano);
        vista.selezionato(rotto);
        EXPECT_EQ(vista.lblAvviso.testo(), errore) << volta;
        EXPECT_FALSE(vista.conferma(rotto));
        EXPECT_EQ(ultimo(), errore);
    }
    vista.selezionato(sano);
    scrivi("B;C\n1;2\n", "rotto.csv");
    vista.selezionato(rotto);
    EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{0, 1, -1}));
    vista.selezionato(sano);
    scrivi("B;\"C\n1;2\n", "rotto.csv");
    vista.selezionato(rotto);
    EXPECT_EQ(vista.lblAvviso.testo(), errore) << "it was well when it was last seen";
}

TEST_F(ProveImportaCSV, ATypedNameIsShownBeforeItIsTaken) {
    frmImportaCSV vista(completo(), bersaglio());
    const std::string percorso = scrivi("1;2\n");
    EXPECT_FALSE(vista.conferma(percorso));
    EXPECT_EQ(vista.ctlGrid.tabella().righe(), 3);
    EXPECT_TRUE(messaggi.mostrati.empty()) << ultimo();
    EXPECT_EQ(finestra.celle(), "5 5|5 5|5 5|5 5");
    EXPECT_TRUE(vista.conferma(percorso));
    EXPECT_EQ(finestra.celle(), "1 2|5 5|5 5|5 5");
}

TEST_F(ProveImportaCSV, TheChoiceIsProposedAgainWhereTheColumnsFit) {
    const std::string file = "Uno;Due;Tre\n1;2;3\n";
    EXPECT_TRUE(importa(file, [](frmImportaCSV& vista) {
        EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{0, 1, -1}));
        vista.txtColonna[0].scegli(3);
        vista.txtColonna[1].scegli(1);
    }));
    EXPECT_TRUE(importa("Uno;Due;Tre\n7;8;9\n", [](frmImportaCSV& vista) {
        EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{2, 0, -1}));
    }));
    EXPECT_EQ(finestra.celle(), "9 7|5 5|5 5|5 5");
    EXPECT_TRUE(importa("Uno;Due;Quattro\n1;2;3\n", [](frmImportaCSV& vista) {
        EXPECT_EQ(vista.scelta().colonne, (std::vector<int>{0, 1, -1}));
    }));
}

TEST_F(ProveImportaCSV, EachFieldHasItsPageOfHelp) {
    frmImportaCSV vista(completo(), bersaglio());
    EXPECT_EQ(vista.aiuto(), &vista.ctlHelp);
    EXPECT_EQ(vista.ctlHelp.pagina(), "ImportaCSV.htm");
    vista.selezionato(scrivi("1;2\n"));
    vista.fuocoSu(vista.txtColonna[1]);
    EXPECT_EQ(vista.ctlHelp.pagina(), "ColonnaCSV.htm");
    vista.fuocoSu(vista.txtSeparatore);
    EXPECT_EQ(vista.ctlHelp.pagina(), "SeparatoreCSV.htm");
    for (const char* pagina : {"ImportaCSV.htm", "ColonnaCSV.htm", "SeparatoreCSV.htm"}) {
        EXPECT_TRUE(std::filesystem::exists(std::string{KELVO_SORGENTI "/assets/Support/"} + pagina)) << pagina;
    }
}

TEST_F(ProveImportaCSV, ACodeOtherThanUtf8IsNamed) {
    importa("Citt\xE0;C\n1;2\n", [](frmImportaCSV& vista) {
        EXPECT_EQ(riga(vista, 0), "Riga|Città|C");
        EXPECT_EQ(vista.lblAvviso.testo(),
                  "1 riga di dati (testo Windows-1252): la tabella ne ha 4, le altre resteranno come sono.");
    });
}

/// The turning matrix of four legs, which takes its cells from a file by its own button.
struct ProveMatriceCSV : ProveImportaCSV {
    frmMatriceSvolte matrice{completo(), dialogo};
    ProveMatriceCSV() {
        creaProgetto(app, 4);
        app.theRotonda().Ramo(2).Descrizione("Via Roma");
        matrice.attivata();
    }
    void premi(const std::string& testo) {
        dialogo.percorso = scrivi(testo);
        matrice.cmdImportaCSV.premi();
    }
    std::string riga(int r) const {
        std::string testo;
        for (int c = 1; c <= 4; ++c) {
            testo += (c == 1 ? "" : " ") + matrice.ctlGrid.testo(r, c);
        }
        return testo;
    }
};

TEST_F(ProveMatriceCSV, RowsAndColumnsAreLegsAndTheDiagonalIsLeftOut) {
    EXPECT_EQ(matrice.cmdImportaCSV.testo(), "Importa da CSV...");
    premi(";A;B;C;D\nA;-;12;13;14\nB;21;-;23;24\nC;31;32;-;34\nD;41;42;43;-\n");
    EXPECT_TRUE(messaggi.mostrati.empty()) << ultimo();
    EXPECT_EQ(riga(1), " 12 13 14");
    EXPECT_EQ(riga(4), "41 42 43 ");
    EXPECT_EQ(matrice.ctlGridEntrate.testo(0, 0), "39");
    EXPECT_FALSE(matrice.DatiAllineati());
    matrice.SaveData();
    EXPECT_EQ(app.theRotonda().MatriceSvolte(2, 3), 23.0F);
    EXPECT_EQ(app.theRotonda().MatriceSvolte(2, 2), 0.0F);
}

TEST_F(ProveMatriceCSV, ColumnsAreKnownByTheNamesOfTheLegsToo) {
    premi("Ora;D;Via Roma\nx;14;12\n");
    EXPECT_EQ(riga(1), " 12 0 14");
    EXPECT_EQ(riga(2), "0  0 0");
}

TEST_F(ProveMatriceCSV, AValueBeyondTheCellIsRefusedByTheTable) {
    premi("0;32768;1;1\n");
    EXPECT_NE(ultimo().find("'32768'"), std::string::npos) << ultimo();
    EXPECT_EQ(riga(1), " 0 0 0");
}

TEST_F(ProveMatriceCSV, TheImportIsUndoneInOneStep) {
    premi("0;12;13;14\n21;0;23;24\n");
    EXPECT_EQ(riga(2), "21  23 24");
    matrice.ctlGrid.premiTasto(Griglia::Tasto::annulla);
    EXPECT_EQ(riga(1), " 0 0 0");
    EXPECT_EQ(riga(2), "0  0 0");
    EXPECT_EQ(matrice.ctlGridEntrate.testo(0, 0), "0");
}

}  // namespace
}  // namespace kelvo::prove
