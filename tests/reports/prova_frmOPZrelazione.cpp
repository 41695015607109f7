#include <gtest/gtest.h>

#include <stdexcept>

#include "comune/fintiFinestre.h"
#include "progettoProva.h"
#include "reports/frmOPZrelazione.h"
#include "results/corsiaDestra.h"

namespace kelvo::prove {
namespace {

/// Windows at the side of the main one: writes down what is asked.
class CollegateFinte final : public FinestreCollegate {
public:
    bool mostra(Finestra& finestra) override { return segna("mostra", finestra); }
    void affianca(Finestra& finestra) override { segna("affianca", finestra); }
    void sovrapponi(Finestra& finestra) override { segna("sovrapponi", finestra); }
    void chiudi(Finestra& finestra) override { segna("chiudi", finestra); }
    void dimentica(Finestra& finestra) override { segna("dimentica", finestra); }
    std::vector<std::string> passi;

private:
    bool segna(const std::string& cosa, const Finestra& finestra) {
        passi.push_back(cosa + " " + finestra.nome());
        return true;
    }
};

/// Looks at the progress at each turn of the events.
class AttesaCheGuarda final : public Attesa {
public:
    bool pausa(int /*millisecondi*/) override { return false; }
    void eventi() override {
        if (guarda) {
            guarda();
        }
    }
    std::function<void()> guarda;
};

class Finestre : public Scena {
public:
    explicit Finestre(const Forma& forma = {}) : Scena(forma) {
        finestra.attivata();
        finestra.scordaFuoco();
    }
    Contorno contorno() { return {app, stato, cornice, navigazione, {&dialogo, &impostazioni, &disegnatore, nullptr}}; }
    StatoFinestre stato;
    CorniceFinta cornice;
    NavigazioneFinta navigazione;
    ImpostazioniFinte impostazioni;
    CollegateFinte collegate;
    AttesaCheGuarda attesa;
    frmOPZrelazione finestra{contorno(), {documenti, collegate, &attesa, [this] { return corsia; }, {}}};
};

TEST(FrmOPZrelazione, ButtonsReadAsTheyAreToldAndTheTitleNamesTheProject) {
    Finestre f;
    EXPECT_EQ(f.finestra.didascalia(), "Compila relazione");
    EXPECT_EQ(f.finestra.lblTitolo.testo(), "Nome Progetto: Rotatoria_prova");
    EXPECT_EQ(f.finestra.lblTitolo.aspetto().carattere, "Segoe UI Semilight");
    EXPECT_EQ(f.finestra.lblTitolo.aspetto().sfondo, colori::bianco);
    EXPECT_EQ(f.finestra.cmd[3].nome(), "cmd4");
    EXPECT_EQ(f.finestra.cmd[3].testo(),
              "Relazione di calcolo COMPLETA\n(dati di input, risultati e Corsia preferenziale)");
    EXPECT_FALSE(f.finestra.lblSaturazione.visibile());
}

TEST(FrmOPZrelazione, EachButtonCompilesItsReport) {
    const std::array<std::string, 5> prefissi{"Relazione_", "Relazione_ALLEGATI_", "Relazione_", "Relazione_",
                                              "Grafici_"};
    const std::array<std::string, 5> titoli{"Ipotesi progettuali", "Verifiche prestazionali",
                                            "Ipotesi progettuali e verifiche prestazionali", "Relazione di calcolo",
                                            "ANALISI GRANDEZZE PRESTAZIONALI"};
    for (std::size_t i = 0; i < 5; ++i) {
        Finestre f;
        f.finestra.cmd.at(i).premi();
        ASSERT_EQ(f.dialogo.richieste.size(), 1U) << i;
        EXPECT_EQ(f.dialogo.richieste.front().nome, prefissi.at(i) + "Rotatoria_prova_21-11-2026--10-30.docx");
        EXPECT_EQ(f.letto().blocchi().at(1), titoli.at(i));
        EXPECT_TRUE(f.errori.empty());
        EXPECT_EQ(f.collegate.passi,
                  (std::vector<std::string>{"affianca frmRelazioneProgressBar", "chiudi frmRelazioneProgressBar"}));
    }
}

TEST(FrmOPZrelazione, TheProgressTellsEachStep) {
    Finestre f;
    std::vector<std::string> letti;
    std::vector<int> barra;
    f.attesa.guarda = [&] {
        letti.push_back(f.finestra.avanzamento.lblAvanzamento.testo());
        barra.push_back(f.finestra.avanzamento.ctlProgressBar.valore());
    };
    f.finestra.cmd[1].premi();
    ASSERT_EQ(letti.size(), 9U);
    EXPECT_EQ(letti.front(), "Passo 1 di 9");
    EXPECT_EQ(letti.back(), "Passo 9 di 9");
    EXPECT_EQ(barra.front(), 11);
    EXPECT_EQ(barra[4], 55);
    EXPECT_EQ(barra.back(), 100);
}

TEST(FrmOPZrelazione, NothingElseStartsWhileAReportIsCompiled) {
    Finestre f;
    int giri = 0;
    f.attesa.guarda = [&] {
        ++giri;
        EXPECT_FALSE(f.finestra.cmd[0].abilitato());
        f.finestra.compila(0);
        f.finestra.attivata();
        EXPECT_FALSE(f.finestra.cmd[4].abilitato());
    };
    f.finestra.cmd[1].premi();
    EXPECT_EQ(giri, 9);
    EXPECT_EQ(f.dialogo.richieste.size(), 1U);
    EXPECT_TRUE(f.finestra.cmd[0].abilitato());
    EXPECT_TRUE(f.finestra.cmd[4].abilitato());
}

TEST(FrmOPZrelazione, AnExceptionInTheRunClosesTheProgressAndFreesTheButtons) {
    Finestre f;
    f.attesa.guarda = [] { throw std::runtime_error("imprevisto"); };
    EXPECT_NO_THROW(f.finestra.cmd[0].premi());
    EXPECT_EQ(f.errori.size(), 1U);
    EXPECT_EQ(f.collegate.passi.back(), "chiudi frmRelazioneProgressBar");
    EXPECT_TRUE(f.finestra.cmd[0].abilitato());
    EXPECT_FALSE(f.salvato());
    f.attesa.guarda = {};
    f.finestra.cmd[0].premi();
    EXPECT_TRUE(f.salvato()) << "the next run is not refused";
}

TEST(FrmOPZrelazione, TheReportThatTheOptionsOfferFirstHasTheFocus) {
    for (const auto& [forma, quale] : {std::pair<std::int16_t, std::size_t>{0, 0}, {1, 1}, {2, 3}, {9, 3}}) {
        Finestre f;
        f.stato.formaRelazione = forma;
        f.finestra.attivata();
        EXPECT_EQ(f.finestra.fuoco(), &f.finestra.cmd.at(quale));
        f.finestra.cmd.at(quale).premi();
        EXPECT_EQ(f.finestra.fuoco(), &f.finestra.cmd.at(quale)) << "after the run too";
    }
}

TEST(FrmOPZrelazione, AStudyOfSaturationAloneHasNoCharts) {
    Finestre f({.analisi = 0});
    EXPECT_TRUE(f.finestra.lblSaturazione.visibile());
    EXPECT_FALSE(f.finestra.cmd[4].abilitato());
    f.finestra.cmd[0].premi();
    EXPECT_TRUE(f.finestra.cmd[3].abilitato());
    EXPECT_FALSE(f.finestra.cmd[4].abilitato());
}

TEST(FrmOPZrelazione, ATemplateOfTheUsersOwnIsChosenKeptAndGivenBack) {
    Finestre f;
    EXPECT_FALSE(f.finestra.cmdModelloKelvo.visibile());
    const std::string modello = f.cartella.file("Studio.dotx");
    scriviContenuto(modello, archivio(parti(p("Di %TitoloProgetto%"))));
    f.dialogo.risposta = modello;
    f.finestra.cmdModello.premi();
    EXPECT_EQ(f.dialogo.richieste.back().cartella, f.cartella.file("Modelli"));
    EXPECT_EQ(f.finestra.lblModello.testo(), "Modello: Studio.dotx");
    EXPECT_TRUE(f.finestra.cmdModelloKelvo.visibile());
    f.dialogo.risposta = f.cartella.file("Uscita.docx");
    f.finestra.cmd[0].premi();
    EXPECT_EQ(f.letto().blocchi().front(), "Di Nodo di prova");
    // Kept from run to run, and told where its file went.
    std::filesystem::remove(modello);
    frmOPZrelazione altra{f.contorno(), {f.documenti, f.collegate}};
    altra.attivata();
    EXPECT_EQ(altra.lblModello.testo(), "Modello: Studio.dotx (il file non c'è più)");
    altra.cmdModelloKelvo.premi();
    EXPECT_EQ(altra.lblModello.testo(), "Modelli: quelli di Kelvo");
    f.finestra.cmd[0].premi();
    EXPECT_EQ(f.letto().blocchi().at(1), "Ipotesi progettuali");
}

TEST(FrmOPZrelazione, AFileThatIsNoTemplateIsRefusedWithItsReason) {
    Finestre f;
    const std::string modello = f.cartella.file("Studio.dotx");
    scriviContenuto(modello, "niente");
    f.dialogo.risposta = modello;
    f.finestra.cmdModello.premi();
    ASSERT_EQ(f.errori.size(), 1U);
    EXPECT_EQ(f.errori.front().metodo, "frmOPZrelazione:cmdModello");
    EXPECT_EQ(f.finestra.lblModello.testo(), "Modelli: quelli di Kelvo");
    f.dialogo.risposta.reset();
    f.finestra.cmdModello.premi();
    EXPECT_EQ(f.errori.size(), 1U);
}

TEST(FrmOPZrelazione, TheWholeReportTakesTheRightTurnLanes) {
    Finestre f;
    ConfrontoCorsie fatto;
    fatto.calcola(f.app, {true, false, false, false});
    f.corsia = {{true, false, false, false}, fatto.tabella()};
    f.finestra.compilaTotale();
    EXPECT_EQ(tabellaDopo(f.letto(), "corsie di svolta a destra").size(), 18U);
}

/// The window with somebody who makes PDF files.
class FinestreConPDF : public Finestre {
public:
    FinestreConPDF() { attiva(); }
    void attiva() { conUfficio.attivata(); }
    std::string pdf() const { return cartella.file("Uscita.pdf"); }
    frmOPZrelazione conUfficio{contorno(), {documenti, collegate, &attesa, {}, {}, &convertitore}};
};

TEST(FrmOPZrelazione, ATickMakesAPdfOfEachReportBesideIt) {
    FinestreConPDF f;
    EXPECT_EQ(f.conUfficio.chkPDF.testo(), "Salva anche in PDF");
    EXPECT_FALSE(f.conUfficio.chkPDF.spuntata());
    EXPECT_FALSE(f.conUfficio.lblPDF.visibile());
    f.conUfficio.cmd[0].premi();
    EXPECT_TRUE(f.convertitore.fatti.empty());
    f.conUfficio.chkPDF.clicca();
    int giri = 0;
    f.attesa.guarda = [&] {
        ++giri;
        EXPECT_FALSE(f.conUfficio.chkPDF.abilitato());
    };
    f.conUfficio.cmd[1].premi();
    ASSERT_EQ(f.convertitore.fatti.size(), 1U);
    EXPECT_EQ(f.convertitore.fatti[0].first, f.cartella.file("Uscita.docx"));
    EXPECT_EQ(f.convertitore.fatti[0].second, f.pdf());
    EXPECT_EQ(contenuto(f.pdf()), "pagine");
    EXPECT_EQ(giri, 10) << "nine steps, and once while it waited";
    EXPECT_TRUE(f.conUfficio.chkPDF.abilitato());
    EXPECT_TRUE(f.conUfficio.chkPDF.spuntata());
}

TEST(FrmOPZrelazione, TheTickIsKeptFromRunToRun) {
    FinestreConPDF f;
    f.conUfficio.chkPDF.clicca();
    frmOPZrelazione altra{f.contorno(), {f.documenti, f.collegate, nullptr, {}, {}, &f.convertitore}};
    altra.attivata();
    EXPECT_TRUE(altra.chkPDF.spuntata());
    altra.chkPDF.clicca();
    f.attiva();
    EXPECT_FALSE(f.conUfficio.chkPDF.spuntata());
}

TEST(FrmOPZrelazione, AWindowThatWasNeverShownKeepsToTheTickAndToTheOfficeProgramToo) {
    FinestreConPDF f;
    f.conUfficio.chkPDF.clicca();
    frmOPZrelazione altra{f.contorno(), {f.documenti, f.collegate, nullptr, {}, {}, &f.convertitore}};
    altra.compilaTotale();
    EXPECT_EQ(f.convertitore.fatti.size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(f.pdf()));
    f.convertitore.manca = "non c'è un programma d'ufficio";
    altra.compilaTotale();
    EXPECT_EQ(f.convertitore.fatti.size(), 1U) << "it has gone since";
}

TEST(FrmOPZrelazione, WithoutAnOfficeProgramTheTickIsClosedAndSaysWhy) {
    FinestreConPDF f;
    f.conUfficio.chkPDF.clicca();
    f.convertitore.manca = "non c'è un programma d'ufficio";
    f.attiva();
    EXPECT_FALSE(f.conUfficio.chkPDF.abilitato());
    EXPECT_TRUE(f.conUfficio.lblPDF.visibile());
    EXPECT_EQ(f.conUfficio.lblPDF.testo(), "PDF: non c'è un programma d'ufficio.");
    f.conUfficio.cmd[0].premi();
    EXPECT_TRUE(f.convertitore.fatti.empty()) << "a tick of before does not count";
    EXPECT_FALSE(f.conUfficio.chkPDF.abilitato());
    f.convertitore.manca.clear();
    f.attiva();
    EXPECT_TRUE(f.conUfficio.chkPDF.abilitato());
    EXPECT_FALSE(f.conUfficio.lblPDF.visibile());
    f.finestra.attivata();
    EXPECT_FALSE(f.finestra.chkPDF.abilitato());
    EXPECT_EQ(f.finestra.lblPDF.testo(), "PDF: qui nessun programma lo può fare.");
}

TEST(FrmOPZrelazione, ItsProgressWindowGoesWithIt) {
    CollegateFinte collegate;
    {
        Finestre f;
        const frmOPZrelazione altra{f.contorno(), {f.documenti, collegate}};
        EXPECT_TRUE(collegate.passi.empty());
    }
    EXPECT_EQ(collegate.passi, std::vector<std::string>{"dimentica frmRelazioneProgressBar"});
}

}  // namespace
}  // namespace kelvo::prove
