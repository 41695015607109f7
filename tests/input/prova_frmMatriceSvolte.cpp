#include "input/frmMatriceSvolte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <sstream>

#include "app/nuovoProgetto.h"
#include "comune/appunti.h"
#include "comune/fintiFinestre.h"
#include "input/frmPreviewMatriceSvolte.h"

namespace kelvo::prove {
namespace {

using Tasto = Griglia::Tasto;

/// Plays the user of the file dialogue: selects a file and confirms it.
class AnteprimaFinta final : public DialogoAnteprima {
public:
    bool apri(const RichiestaFile& richiesta, FinestraAnteprima& anteprima) override {
        richieste.push_back(richiesta);
        if (selezione.empty()) {
            return false;
        }
        anteprima.selezionato(selezione);
        if (guarda) {
            guarda(dynamic_cast<frmPreviewMatriceSvolte&>(anteprima));
        }
        return anteprima.conferma(selezione);
    }
    std::vector<RichiestaFile> richieste;
    std::string selezione;
    std::function<void(const frmPreviewMatriceSvolte&)> guarda;
};

/// A project of four legs with the window open.
struct ProveMatrice : testing::Test, ScenaFinestre {
    AnteprimaFinta dialogo;
    AppuntiFinti blocco;
    frmMatriceSvolte finestra{contorno(), dialogo};

    ProveMatrice() {
        app.appunti = &blocco;
        creaProgetto(app, 4);
        riempi();
    }
    /// Fills the matrix: 10 in the cell from 1 to 2, 11 in the one from 1 to 3, and so on.
    void riempi() {
        float valore = 10.0F;
        for (std::int16_t i = 1; i <= 4; ++i) {
            for (std::int16_t j = 1; j <= 4; ++j) {
                app.theRotonda().MatriceSvolte(i == j ? 0.0F : valore++, i, j);
            }
        }
    }
    void apri() {
        ASSERT_TRUE(gestione.ShowForm(&finestra));
        finestra.fuocoSu(finestra.ctlGrid);
    }
    Rotonda& rotonda() { return app.theRotonda(); }
    std::string entrate(int riga) const { return finestra.ctlGridEntrate.testo(riga, 0); }
    std::string uscite(int colonna) const { return finestra.ctlGridUscite.testo(0, colonna); }
    /// A row of three values off the diagonal.
    void riga(std::int16_t i, float a, float b, float c) {
        const float valori[] = {a, b, c};
        int quale = 0;
        for (std::int16_t j = 1; j <= 4; ++j) {
            rotonda().MatriceSvolte(i == j ? 0.0F : valori[quale++], i, j);
        }
    }
    std::string salvaAltro(int rami, const std::function<void(Rotonda&)>& prepara) {
        AppFinta altra;
        creaProgetto(altra.app, static_cast<std::int16_t>(rami));
        prepara(altra.app.theRotonda());
        const std::string percorso = cartella.percorso() + "/Altro.klv";
        std::string messaggio;
        bool esito = false;
        altra.app.theRotonda().Save(percorso, messaggio, esito);
        EXPECT_TRUE(esito) << messaggio;
        return percorso;
    }
};

TEST_F(ProveMatrice, NamesAndHeadingsAreThoseOfTheLegs) {
    apri();
    EXPECT_EQ(finestra.didascalia(), "Matrice delle svolte");
    EXPECT_EQ(finestra.ctlPicture.risorsa(), "RAMI4");
    for (std::size_t i = 0; i < 7; ++i) {
        const char lettera = static_cast<char>('A' + i);
        EXPECT_EQ(finestra.lblIngresso[i].testo(), std::string{"Ingresso "} + lettera + ":");
        EXPECT_EQ(finestra.txtIngresso[i].visibile(), i < 4);
        EXPECT_TRUE(finestra.txtIngresso[i].solaLettura());
        EXPECT_EQ(finestra.txtIngresso[i].testo(), i < 4 ? std::string{"Ramo "} + lettera : "");
    }
    ASSERT_EQ(finestra.ctlGrid.tabella().righe(), 5);
    ASSERT_EQ(finestra.ctlGrid.tabella().colonne(), 5);
    for (int i = 1; i <= 4; ++i) {
        const Cella& sopra = finestra.ctlGrid.tabella().cella(0, i);
        EXPECT_EQ(sopra.testo, std::string(1, static_cast<char>('A' + i - 1)));
        EXPECT_EQ(sopra.sfondo, (Colore{0, 98, 0}));
        EXPECT_EQ(sopra.inchiostro, (Colore{255, 255, 255}));
        EXPECT_EQ(finestra.ctlGrid.testo(i, 0), sopra.testo);
    }
}

TEST_F(ProveMatrice, TheDiagonalIsEmptyAndGreyAndTakesNothing) {
    apri();
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(finestra.ctlGrid.testo(i, i), "");
        EXPECT_EQ(finestra.ctlGrid.tabella().cella(i, i).sfondo, (Colore{221, 221, 221}));
        EXPECT_FALSE(finestra.ctlGrid.corrente({i, i}));
        EXPECT_FALSE(finestra.ctlGrid.puoModificare({i, i}));
    }
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "10");
    EXPECT_EQ(finestra.ctlGrid.testo(4, 3), "21");
}

TEST_F(ProveMatrice, TotalsAreThoseOfRowsAndColumns) {
    apri();
    EXPECT_EQ(entrate(0), "33");  // 10 + 11 + 12
    EXPECT_EQ(entrate(3), "60");  // 19 + 20 + 21
    EXPECT_EQ(uscite(0), "48");   // 13 + 16 + 19
    EXPECT_EQ(uscite(3), "45");   // 12 + 15 + 18
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(finestra.lblVeicoliEntrate[i].testo(), "[veicoli]");
        EXPECT_EQ(finestra.lblVeicoliUscite[i].testo(), "[veicoli]");
        EXPECT_EQ(finestra.ctlGridEntrate.tabella().cella(static_cast<int>(i), 0).sfondo, colori::bianco);
    }
    EXPECT_FALSE(finestra.lblVeicoliEntrate[4].visibile());
    rotonda().TipoMatriceSvolte(1);
    finestra.ReadData();
    EXPECT_EQ(finestra.lblVeicoliUscite[0].testo(), "[%]");
    EXPECT_FALSE(finestra.frmTotaleUscite.visibile());
    rotonda().TipoMatriceSvolte(0);
    finestra.ReadData();
    EXPECT_FALSE(finestra.lblPercentualeROSSO.visibile());
    EXPECT_TRUE(finestra.frmTotaleUscite.visibile());
}

TEST_F(ProveMatrice, PerCentHidesTheExitsAndTellsWhatIsMissing) {
    rotonda().TipoMatriceSvolte(1);
    riga(1, 25.0F, 50.0F, 12.5F);
    riga(2, 0.0F, 0.0F, 0.0F);
    riga(3, 40.0F, 40.0F, 20.0F);
    riga(4, 60.0F, 30.0F, 15.5F);
    apri();
    EXPECT_TRUE(finestra.lblPercentualeROSSO.visibile());
    EXPECT_EQ(finestra.lblPercentualeROSSO.testo(), "VALORI ESPRESSI IN PERCENTUALE");
    EXPECT_EQ(finestra.lblPercentualeROSSO.tag(), "ROSSO");
    EXPECT_FALSE(finestra.frmTotaleUscite.visibile());
    EXPECT_FALSE(finestra.ctlGridUscite.visibile());
    EXPECT_TRUE(finestra.frmTotaleEntrate.abilitato());
    EXPECT_EQ(finestra.lblVeicoliEntrate[0].testo(), "[%] [ aggiungere 12,5]");
    EXPECT_EQ(finestra.lblVeicoliEntrate[1].testo(), "[%]") << "a row of nothing is in order";
    EXPECT_EQ(finestra.lblVeicoliEntrate[2].testo(), "[%]");
    EXPECT_EQ(finestra.lblVeicoliEntrate[3].testo(), "[%] [ sottrarre 5,5]");
    EXPECT_EQ(finestra.lblVeicoliEntrate[0].aspetto().inchiostro, (Colore{160, 0, 24}));
    EXPECT_EQ(finestra.lblVeicoliEntrate[1].aspetto().inchiostro, colori::nero);
    const Tabella& totali = finestra.ctlGridEntrate.tabella();
    EXPECT_EQ(totali.cella(0, 0).sfondo, (Colore{255, 140, 140}));
    EXPECT_TRUE(totali.cella(0, 0).grassetto);
    EXPECT_EQ(totali.cella(1, 0).sfondo, colori::bianco);
    EXPECT_FALSE(totali.cella(2, 0).grassetto);
    EXPECT_EQ(finestra.ctlGridEntrate.ornamento({0, 0}).segno, OrnamentoCella::Segno::attenzione);
    EXPECT_EQ(finestra.ctlGridEntrate.ornamento({1, 0}).segno, OrnamentoCella::Segno::nessuno);
}

TEST_F(ProveMatrice, WhatIsMissingIsWhatTheShownFiguresLack) {
    rotonda().TipoMatriceSvolte(1);
    riga(1, 33.3F, 33.3F, 33.3F);
    apri();
    EXPECT_EQ(entrate(0), "99,9");
    EXPECT_EQ(finestra.lblVeicoliEntrate[0].testo(), "[%] [ aggiungere 0,1]");
    riga(1, 99.9F, 0.0F, 0.0F);
    finestra.ReadData();
    EXPECT_EQ(entrate(0), "99,9");
    EXPECT_EQ(finestra.lblVeicoliEntrate[0].testo(), "[%] [ aggiungere 0,1]");
}

TEST_F(ProveMatrice, RowsThatAreAHundredOnPaperAreInOrder) {
    rotonda().TipoMatriceSvolte(1);
    // Added up as singles, or as doubles of singles, each of these misses 100.
    riga(1, 34.1F, 0.7F, 65.2F);
    riga(2, 1.15F, 17.87F, 80.98F);
    riga(3, 82.2F, 4.6F, 13.2F);
    riga(4, 30.0F, 35.0F, 35.01F);
    apri();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(entrate(i), "100") << i;
        EXPECT_EQ(finestra.lblVeicoliEntrate[static_cast<std::size_t>(i)].testo(), "[%]") << i;
        EXPECT_EQ(finestra.ctlGridEntrate.tabella().cella(i, 0).sfondo, colori::bianco) << i;
    }
    EXPECT_EQ(entrate(3), "100,01");
    EXPECT_EQ(finestra.lblVeicoliEntrate[3].testo(), "[%] [ sottrarre 0,01]");
}

TEST_F(ProveMatrice, VehiclesAreAddedUpAsTheirCellsShowThem) {
    riga(1, 8.1F, 65.2F, 0.7F);
    riga(2, 0.0F, 34.1F, 0.0F);
    riga(3, 0.0F, 0.0F, 0.0F);
    riga(4, 0.0F, 0.0F, 0.7F);
    apri();
    EXPECT_EQ(entrate(0), "74");
    EXPECT_EQ(uscite(2), "100");  // 65,2 of the first leg, 34,1 of the second, 0,7 of the fourth
}

TEST_F(ProveMatrice, AnEditedRowIsJudgedAtOnce) {
    rotonda().TipoMatriceSvolte(1);
    riga(1, 40.0F, 40.0F, 10.0F);
    apri();
    EXPECT_EQ(finestra.lblVeicoliEntrate[0].testo(), "[%] [ aggiungere 10]");
    finestra.ctlGrid.corrente({1, 4});
    finestra.ctlGrid.scrivi("20");
    EXPECT_EQ(finestra.lblVeicoliEntrate[0].testo(), "[%] [ aggiungere 10]") << "as long as the cell is open";
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_EQ(finestra.lblVeicoliEntrate[0].testo(), "[%]");
    EXPECT_EQ(finestra.ctlGridEntrate.tabella().cella(0, 0).sfondo, colori::bianco);
    EXPECT_FALSE(finestra.DatiAllineati());
}

TEST_F(ProveMatrice, EnterGoesAlongTheRowAndSkipsTheDiagonal) {
    apri();
    EXPECT_EQ(finestra.ctlGrid.corrente(), (Posto{1, 2}));
    std::vector<Posto> giro;
    for (int i = 0; i < 12; ++i) {
        finestra.ctlGrid.scrivi("7");
        finestra.ctlGrid.premiTasto(Tasto::invio);
        giro.push_back(finestra.ctlGrid.corrente());
    }
    EXPECT_EQ(giro,
              (std::vector<Posto>{
                  {1, 3}, {1, 4}, {2, 1}, {2, 3}, {2, 4}, {3, 1}, {3, 2}, {3, 4}, {4, 1}, {4, 2}, {4, 3}, {4, 3}}));
    EXPECT_EQ(entrate(3), "21");
}

TEST_F(ProveMatrice, AKeyThatIsNotTakenEndsTheEditOfACell) {
    apri();
    finestra.ctlGrid.scrivi("25,");
    EXPECT_FALSE(finestra.ctlGrid.inModifica());
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "25");
    EXPECT_EQ(finestra.ctlGrid.corrente(), (Posto{1, 3}));
    finestra.ctlGrid.scrivi("x");
    EXPECT_EQ(finestra.ctlGrid.testo(1, 3), "11");
}

TEST_F(ProveMatrice, AFractionThatIsMendedKeepsItsCommaAndIsRoundedToAWholeNumber) {
    riga(1, 12.5F, 12.5F, 75.0F);
    apri();
    finestra.ctlGrid.premiTasto(Tasto::f2);
    EXPECT_EQ(finestra.ctlGrid.testoEditor(), "12,5");
    finestra.ctlGrid.correggi("12,56");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "13");
    finestra.ctlGrid.premiTasto(Tasto::f2);
    finestra.ctlGrid.correggi(",");  // all but the comma deleted
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 3), "0");
    finestra.ctlGrid.corrente({1, 4});
    finestra.ctlGrid.premiTasto(Tasto::f2);
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_EQ(entrate(0), "88");
}

TEST_F(ProveMatrice, ArrowsSkipTheDiagonalInTheDirectionOfMotion) {
    apri();
    const auto va = [&](Posto da, Tasto tasto) {
        EXPECT_TRUE(finestra.ctlGrid.corrente(da));
        finestra.ctlGrid.premiTasto(tasto);
        return finestra.ctlGrid.corrente();
    };
    EXPECT_EQ(va({2, 1}, Tasto::destra), (Posto{2, 3}));
    EXPECT_EQ(va({2, 3}, Tasto::sinistra), (Posto{2, 1}));
    EXPECT_EQ(va({1, 2}, Tasto::giu), (Posto{3, 2}));
    EXPECT_EQ(va({3, 2}, Tasto::su), (Posto{1, 2}));
    EXPECT_EQ(va({1, 2}, Tasto::sinistra), (Posto{1, 2})) << "nothing lies beyond";
    EXPECT_EQ(va({3, 4}, Tasto::giu), (Posto{3, 4}));
    finestra.ctlGrid.corrente({2, 1});
    finestra.ctlGrid.premiTasto(Tasto::invio, true);  // back along the row, and on to the one before
    EXPECT_EQ(finestra.ctlGrid.corrente(), (Posto{1, 4}));
}

TEST_F(ProveMatrice, AValueBeyondSixteenBitsFailsIntoTheHandler) {
    apri();
    finestra.ctlGrid.scrivi("32767");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_TRUE(messaggi.mostrati.empty());
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "32767");
    finestra.ctlGrid.scrivi("32768");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014frmMatriceSvolte:Immagini");
    EXPECT_TRUE(finestra.ctlGrid.inModifica()) << "what was typed is not lost";
    EXPECT_EQ(finestra.ctlGrid.testo(1, 3), "11");
}

TEST_F(ProveMatrice, SaveDataWritesTheCellsAndAnEmptiedOneAsNought) {
    apri();
    finestra.ctlGrid.corrente({1, 3});
    finestra.ctlGrid.scrivi("77");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    finestra.ctlGrid.corrente({2, 1});
    finestra.ctlGrid.premiTasto(Tasto::canc);
    EXPECT_EQ(finestra.ctlGrid.testo(2, 1), "0");
    EXPECT_EQ(entrate(1), "29");  // 14 + 15
    EXPECT_EQ(rotonda().MatriceSvolte(1, 3), 11.0F);
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(rotonda().MatriceSvolte(1, 3), 77.0F);
    EXPECT_EQ(rotonda().MatriceSvolte(2, 1), 0.0F);
    EXPECT_EQ(rotonda().MatriceSvolte(4, 3), 21.0F);
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveMatrice, WhatIsBeingTypedIsSavedToo) {
    apri();
    finestra.ctlGrid.scrivi("88");
    finestra.ctlToolbar.premi("AggiornaDati");
    EXPECT_EQ(rotonda().MatriceSvolte(1, 2), 88.0F);
}

TEST_F(ProveMatrice, LeavingWithoutAChangeKeepsEveryDigit) {
    rotonda().MatriceSvolte(33.333332F, 1, 2);
    rotonda().MatriceSvolte(5.0F, 3, 3);
    const auto prima = rotonda().revisione().tutto;
    apri();
    EXPECT_TRUE(gestione.ShowForm(&finestra));
    finestra.SaveData();
    EXPECT_EQ(rotonda().MatriceSvolte(1, 2), 33.333332F);
    EXPECT_EQ(rotonda().MatriceSvolte(3, 3), 5.0F);
    EXPECT_EQ(rotonda().revisione().tutto, prima);
}

TEST_F(ProveMatrice, AChangeWritesTheDiagonalAsItIsShown) {
    rotonda().MatriceSvolte(5.0F, 3, 3);
    rotonda().MatriceSvolte(33.333332F, 1, 3);
    apri();
    finestra.ctlGrid.scrivi("1");
    finestra.SaveData();
    EXPECT_EQ(rotonda().MatriceSvolte(3, 3), 0.0F);
    EXPECT_EQ(rotonda().MatriceSvolte(1, 3), 33.333332F) << "a cell that was not touched keeps its digits";
}

TEST_F(ProveMatrice, RefreshTakesTheProjectsFigures) {
    apri();
    finestra.ctlGrid.scrivi("99");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    finestra.ctlToolbar.premi("Refresh");
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "10");
    EXPECT_EQ(entrate(0), "33");
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveMatrice, ABlockIsPastedPastTheDiagonalAndClipped) {
    apri();
    finestra.ctlGrid.corrente({1, 2});
    blocco.testo = "1\t2,5\t3.5\t99\r\n\t\t6\t7\r\n";
    finestra.ctlGrid.premiTasto(Tasto::incolla);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "1");
    EXPECT_EQ(finestra.ctlGrid.testo(1, 3), "2,5");
    EXPECT_EQ(finestra.ctlGrid.testo(1, 4), "3,5");
    EXPECT_EQ(finestra.ctlGrid.testo(2, 2), "") << "the diagonal takes nothing";
    EXPECT_EQ(finestra.ctlGrid.testo(2, 3), "0");
    EXPECT_EQ(finestra.ctlGrid.testo(2, 4), "6");
    EXPECT_EQ(entrate(0), "7");
    finestra.ctlGrid.premiTasto(Tasto::annulla);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "10");
    EXPECT_EQ(entrate(0), "33");
}

TEST_F(ProveMatrice, ABlockWithABadCellIsRefusedAsAWhole) {
    apri();
    for (const auto& [testo, parola] : {std::pair{"1\tdue\t3", "'due' (riga 'A', colonna 'C') non è un numero"},
                                        std::pair{"1\t-2\t3", "'-2' (riga 'A', colonna 'C') non sta tra 0 e 32767"},
                                        std::pair{"1\t2\t32768", "colonna 'D') non sta tra 0 e 32767"}}) {
        messaggi.mostrati.clear();
        blocco.testo = testo;
        finestra.ctlGrid.corrente({1, 2});
        finestra.ctlGrid.premiTasto(Tasto::incolla);
        ASSERT_EQ(messaggi.mostrati.size(), 1U) << testo;
        EXPECT_NE(messaggi.mostrati[0].testo.find(parola), std::string::npos) << messaggi.mostrati[0].testo;
        EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "10");
    }
    EXPECT_TRUE(finestra.DatiAllineati());
}

TEST_F(ProveMatrice, ALargerMatrixIsCutToTheProject) {
    dialogo.selezione = salvaAltro(7, [](Rotonda& r) {
        for (std::int16_t i = 1; i <= 7; ++i) {
            for (std::int16_t j = 1; j <= 7; ++j) {
                r.MatriceSvolte(static_cast<float>(10 * i + j) + 0.4F, i, j);
            }
        }
        r.TipoMatriceSvolte(1);
        r.Titolo("Sette strade");
    });
    dialogo.guarda = [](const frmPreviewMatriceSvolte& vista) {
        EXPECT_EQ(vista.txtNumeroRami.testo(), "7");
        EXPECT_EQ(vista.txtTitolo.testo(), "Sette strade");
        EXPECT_EQ(vista.txtNomeProgetto.testo(), "Altro");
        EXPECT_EQ(vista.ctlGrid.testo(7, 6), "76,4");
        EXPECT_EQ(vista.GetMatriceSvolte(7, 6), 76);
        EXPECT_EQ(vista.GetMatriceSvolte(8, 1), 0);
        EXPECT_EQ(vista.GetMatriceSvolte(0, 1), 0);
    };
    apri();
    finestra.ctlToolbar.premi("Archivio");
    ASSERT_EQ(dialogo.richieste.size(), 1U);
    EXPECT_EQ(dialogo.richieste[0].filtro, "File di definizione Kelvo (*.KLV)|*.KLV|All Files (*.*)|*.*");
    EXPECT_EQ(dialogo.richieste[0].estensione, "KLV");
    EXPECT_TRUE(dialogo.richieste[0].cartella.ends_with("Progetti")) << dialogo.richieste[0].cartella;
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "12");
    EXPECT_EQ(finestra.ctlGrid.testo(4, 3), "43");
    EXPECT_EQ(finestra.ctlGrid.testo(2, 2), "");
    EXPECT_EQ(entrate(0), "39");  // 12 + 13 + 14
    EXPECT_EQ(rotonda().TipoMatriceSvolte(), 0) << "the kind of the project stays";
    EXPECT_EQ(rotonda().MatriceSvolte(1, 2), 10.0F) << "only the cells, until they are saved";
    finestra.SaveData();
    EXPECT_EQ(rotonda().MatriceSvolte(1, 2), 12.0F);
}

TEST_F(ProveMatrice, ASmallerMatrixFillsItsOwnPart) {
    dialogo.selezione = salvaAltro(3, [](Rotonda& r) {
        r.MatriceSvolte(2.5F, 1, 2);
        r.MatriceSvolte(3.5F, 1, 3);
    });
    apri();
    finestra.CaricaDaProgetto();
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "2") << "halves go to the even neighbour";
    EXPECT_EQ(finestra.ctlGrid.testo(1, 3), "4");
    EXPECT_EQ(finestra.ctlGrid.testo(1, 4), "0");
    EXPECT_EQ(finestra.ctlGrid.testo(4, 1), "0");
}

TEST_F(ProveMatrice, AnImportIsUndoneAndDoneAgainInOneStep) {
    dialogo.selezione = salvaAltro(4, [](Rotonda& r) { r.MatriceSvolte(99.0F, 1, 2); });
    apri();
    finestra.ctlGrid.scrivi("7");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    finestra.CaricaDaProgetto();
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "99");
    EXPECT_EQ(entrate(0), "99");
    EXPECT_FALSE(finestra.DatiAllineati());
    finestra.ctlGrid.premiTasto(Tasto::annulla);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "7");
    EXPECT_EQ(finestra.ctlGrid.testo(4, 3), "21");
    EXPECT_EQ(entrate(0), "30");
    finestra.ctlGrid.premiTasto(Tasto::ripeti);
    EXPECT_EQ(entrate(0), "99");
}

TEST_F(ProveMatrice, ATextThatIsNoNumberIsRefusedAndNotReadAsZero) {
    riga(1, -5.0F, 11.0F, 12.0F);
    apri();
    finestra.ctlGrid.premiTasto(Tasto::f2);
    finestra.ctlGrid.correggi("5-");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_TRUE(finestra.ctlGrid.inModifica());
    finestra.ctlGrid.correggi("-6");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_TRUE(finestra.ctlGrid.inModifica());
    finestra.ctlGrid.premiTasto(Tasto::esc);
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "-5");
}

TEST_F(ProveMatrice, ACancelledOrBrokenImportChangesNothing) {
    apri();
    finestra.CaricaDaProgetto();
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "10");
    std::ofstream(cartella.percorso() + "/rotto.klv") << "{";
    dialogo.selezione = cartella.percorso() + "/rotto.klv";
    dialogo.guarda = [](const frmPreviewMatriceSvolte& vista) {
        EXPECT_EQ(vista.ctlGrid.tabella().righe(), 0);
        EXPECT_FALSE(vista.lblAvviso.testo().empty());
    };
    finestra.CaricaDaProgetto();
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "10");
    EXPECT_TRUE(messaggi.mostrati.empty());
}

TEST_F(ProveMatrice, AnImportedValueBeyondSixteenBitsFailsUnderTheNameOfTheImport) {
    dialogo.selezione = salvaAltro(4, [](Rotonda& r) {
        r.MatriceSvolte(5.0F, 1, 2);
        r.MatriceSvolte(40000.0F, 1, 3);
    });
    apri();
    finestra.CaricaDaProgetto();
    ASSERT_EQ(messaggi.mostrati.size(), 1U);
    EXPECT_EQ(messaggi.mostrati[0].titolo, "KELVO 2014frmMatriceSvolte:Archivo");
    EXPECT_EQ(finestra.ctlGrid.testo(1, 2), "10") << "all or nothing";
}

TEST_F(ProveMatrice, TheMovementAtHandIsTold) {
    apri();
    int volte = 0;
    finestra.movimentoMutato().connect([&] { ++volte; });
    finestra.ctlGrid.premiTasto(Tasto::destra);
    EXPECT_EQ(finestra.movimento(), (Posto{1, 3}));
    EXPECT_EQ(volte, 1);
    finestra.ctlGrid.scrivi("50");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_EQ(finestra.mostrata()[0][2], 50.0F);
    EXPECT_GE(volte, 2);
}

TEST_F(ProveMatrice, TheMovementAtHandIsToldInWords) {
    apri();
    EXPECT_EQ(finestra.lblMovimento.testo(), "Da A verso B: 10 veicoli");
    finestra.ctlGrid.premiTasto(Tasto::giu);
    EXPECT_EQ(finestra.lblMovimento.testo(), "Da C verso B: 17 veicoli");
    finestra.ctlGrid.scrivi("25");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    finestra.ctlGrid.premiTasto(Tasto::annulla);
    EXPECT_EQ(finestra.lblMovimento.testo(), "Da C verso B: 17 veicoli");
    rotonda().TipoMatriceSvolte(1);
    finestra.ReadData();
    EXPECT_EQ(finestra.lblMovimento.testo(), "Da C verso B: 17 %");
}

TEST_F(ProveMatrice, ThePlanShowsTheMovementAtHandAndTheFlowsWhereTheyAreAskedFor) {
    apri();
    finestra.ctlGrid.corrente({2, 4});
    EXPECT_EQ(finestra.piantaMostrata().rami.size(), 4U);
    ASSERT_TRUE(finestra.opzioniPianta().movimento.has_value());
    EXPECT_EQ(finestra.opzioniPianta().movimento->da, 2);
    EXPECT_EQ(finestra.opzioniPianta().movimento->a, 4);
    EXPECT_TRUE(finestra.opzioniPianta().flussi.empty());
    int volte = 0;
    finestra.movimentoMutato().connect([&] { ++volte; });
    finestra.chkFlussi.clicca();
    EXPECT_EQ(volte, 1);
    ASSERT_EQ(finestra.opzioniPianta().flussi.size(), 4U);
    EXPECT_EQ(finestra.opzioniPianta().flussi[1], (std::vector<float>{13.0F, 0.0F, 14.0F, 15.0F}));
    finestra.ctlGrid.scrivi("200");
    finestra.ctlGrid.premiTasto(Tasto::invio);
    EXPECT_EQ(finestra.opzioniPianta().flussi[1][3], 200.0F) << "as typed, before it is saved";
    EXPECT_EQ(rotonda().MatriceSvolte(2, 4), 15.0F);
    finestra.chkFlussi.clicca();
    EXPECT_TRUE(finestra.opzioniPianta().flussi.empty());
}

TEST_F(ProveMatrice, FieldsBringTheirPagesAndTheKeyboardComesToTheMatrixFirst) {
    apri();
    EXPECT_EQ(finestra.ctlHelp.pagina(), "MatriceSvolte.htm");
    ASSERT_TRUE(finestra.fuocoSu(finestra.chkFlussi));
    EXPECT_EQ(finestra.ctlHelp.pagina(), "FlussiMatrice.htm");
    ASSERT_TRUE(finestra.fuocoSu(finestra.txtIngresso[2]));
    EXPECT_EQ(finestra.ctlHelp.pagina(), "NomiMatrice.htm");
    EXPECT_FALSE(finestra.ctlGridEntrate.prendeFuoco()) << "totals are there to be read";
    EXPECT_FALSE(finestra.ctlGridUscite.prendeFuoco());
    const auto primo = std::find_if(finestra.ordine().begin(), finestra.ordine().end(),
                                    [](const Controllo* c) { return c->prendeFuoco(); });
    EXPECT_EQ(*primo, &finestra.ctlGrid);
    for (const char* pagina : {"MatriceSvolte.htm", "FlussiMatrice.htm", "NomiMatrice.htm"}) {
        std::ifstream file(std::string{KELVO_SORGENTI "/assets/Support/"} + pagina);
        std::ostringstream testo;
        testo << file.rdbuf();
        EXPECT_GT(testo.str().size(), 300U) << pagina;
    }
}

}  // namespace
}  // namespace kelvo::prove
