// The complete example of the page on the file format, entered through the windows by the keyboard alone: the file that
// is saved equals the page's, byte for byte.

#include <fmt/format.h>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

#include <array>
#include <string>
#include <utility>

#include "base/date.h"
#include "base/numeri.h"
#include "model/proprieta.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::digita;
using gesti::fuoco;
using gesti::smaltisci;
using gesti::tasto;

std::string esempioDellaPagina() {
    const std::string pagina = contenuto(KELVO_SORGENTI "/docs/formato-klv.md");
    const std::size_t inizio = pagina.find("```json\n", pagina.find("## Complete example")) + 8;
    return pagina.substr(inizio, pagina.find("```", inizio) - inizio);
}

std::string nodo(const char* chiave, std::int16_t ramo) {
    return chiave + std::to_string(ramo);
}

class ProgettoIntero : public testing::Test {
protected:
    void SetUp() override {
        std::string messaggio;
        bool esito = false;
        atteso.LoadTesto(esempioDellaPagina(), messaggio, esito);
        ASSERT_TRUE(esito) << messaggio;
        banco.mostra();
        banco.nuovo(atteso.NumeroRami());
    }

    void finestra(const std::string& chiave) {
        if (!banco.albero().hasFocus()) {
            tasto(Qt::Key_F6);
        }
        ASSERT_TRUE(attendi([&] { return banco.albero().hasFocus(); })) << chiave << ", " << fuoco();
        ASSERT_TRUE(gesti::vaiAlNodo(banco.albero(), chiave));
        ASSERT_TRUE(attendi([&] { return gesti::selezionato(banco.albero()) == chiave; })) << chiave;
        smaltisci();
        if (banco.albero().hasFocus()) {
            tasto(Qt::Key_F6);
        }
        ASSERT_TRUE(attendi([&] { return !banco.albero().hasFocus(); })) << chiave;
    }
    /// Goes on with the tab key until a control has the keyboard.
    void fino(const std::string& nome) {
        constexpr int giroIntero = 120;
        for (int i = 0; i < giroIntero && fuoco() != nome; ++i) {
            tasto(Qt::Key_Tab);
            smaltisci();
        }
        ASSERT_EQ(fuoco(), nome) << banco.nomeCorrente();
    }
    void campo(const char* nome, const std::string& testo) {
        fino(nome);
        tasto(Qt::Key_A, Qt::ControlModifier);
        digita(testo);
    }
    void campo(const char* nome, double valore) { campo(nome, testoNumero(valore)); }
    void campo(const char* nome, float valore) { campo(nome, testoNumero(valore)); }
    /// Hours and minutes of a time field; the hours lead on to the minutes.
    void ora(const char* nome, DataOra valore) {
        fino(nome);
        const std::string testo = testoHHNN(valore);
        digita(testo.substr(0, 2));
        digita(testo.substr(3, 2));
    }
    void spunta(const char* nome, bool valore) {
        fino(nome);
        if (banco.oggetto<QAbstractButton>(nome).isChecked() != valore) {
            tasto(Qt::Key_Space);
        }
        ASSERT_EQ(banco.oggetto<QAbstractButton>(nome).isChecked(), valore) << nome;
    }
    /// One of a group of options, of which the tab key reaches the chosen one and the arrows the others.
    template <std::size_t N>
    void opzione(const std::array<const char*, N>& nomi, std::int16_t quale) {
        std::size_t adesso = 0;
        while (adesso < N && !banco.oggetto<QAbstractButton>(nomi[adesso]).isChecked()) {
            ++adesso;
        }
        ASSERT_LT(adesso, N);
        fino(nomi[adesso]);
        for (; adesso < static_cast<std::size_t>(quale); ++adesso) {
            tasto(Qt::Key_Down);
        }
        for (; adesso > static_cast<std::size_t>(quale); --adesso) {
            tasto(Qt::Key_Up);
        }
        smaltisci();
        ASSERT_TRUE(banco.oggetto<QAbstractButton>(nomi[static_cast<std::size_t>(quale)]).isChecked());
    }
    /// Types into the cells of a table one after the other; Enter leads from one to the next.
    void tabella(const std::vector<std::string>& celle) {
        fino("ctlGrid");
        tasto(Qt::Key_Home, Qt::ControlModifier);
        for (const std::string& cella : celle) {
            digita(cella);
            tasto(Qt::Key_Return);
        }
        smaltisci();
    }
    void conferma() {
        tasto(Qt::Key_Return, Qt::ControlModifier);
        smaltisci();
    }

    void opzioni(std::int16_t tipoAnalisi, std::int16_t tipoFlusso) {
        finestra("keyOpzioni");
        opzione(std::array{"optSaturazione", "optCurvaTempoFlusso", "optSegmentiTempo"}, tipoAnalisi);
        opzione(std::array{"optCostante", "optSegmentiTempo2"}, tipoFlusso);
        opzione(std::array{"optVeicoli", "optPercentuale"}, atteso.TipoMatriceSvolte());
        spunta("chkPercentile", atteso.UsaPercentile());
        spunta("chkOttimizzazioneGeometrica", atteso.OttimizzazioneGeometrica());
        conferma();
    }
    void anagrafiche() {
        finestra("keyAnagraficaRotonda");
        fino("txtData");
        const PartiData data = partiDi(atteso.Data());
        digita(fmt::format("{:02}{:02}{}", data.giorno, data.mese, data.anno));
        campo("txtStatoAvanzamento", atteso.StatoAvanzamento());
        campo("txtLocalita", atteso.Localita());
        campo("txtComune", atteso.Comune());
        campo("txtProvincia", atteso.Provincia());
        campo("txtTitolo", atteso.Titolo());
        fino("txtNote");
        for (const char carattere : atteso.Note()) {
            carattere == '\n' ? tasto(Qt::Key_Return) : digita(std::string(1, carattere));
        }
        finestra("keyAnagraficaProfessionista");
        campo("txtNomeProfessionista", atteso.NomeProfessionista());
        campo("txtIndirizzoProfessionista", atteso.IndirizzoProfessionista());
        campo("txtCAPProfessionista", atteso.CAPProfessionista());
        campo("txtCittaProfessionista", atteso.CittaProfessionista());
        campo("txtProvinciaProfessionista", atteso.ProvinciaProfessionista());
        campo("txtTelefonoProfessionista", atteso.TelefonoProfessionista());
        campo("txtEMailProfessionista", atteso.EMailProfessionista());
    }
    void tempi() {
        finestra("keyTempoModellazione");
        ora("txtTempoIniziale", atteso.TempoIniziale());
        campo("txtSegmentoTempo", testoNumero(minutoCampo(atteso.SegmentoTempo())));
        fino("txtTempoFinale");
        auto& fine = banco.oggetto<QComboBox>("txtTempoFinale");
        for (int i = 0; i < fine.count() && fine.currentText().toStdString() != testoHHNN(atteso.TempoFinale()); ++i) {
            tasto(Qt::Key_Down);
        }
        conferma();
        ASSERT_EQ(banco.app.theRotonda().Ramo(1).theDatiTraffico().NumSegmentiTempo(),
                  atteso.Ramo(1).theDatiTraffico().NumSegmentiTempo());
        banco.messaggi.mostrati.clear();  // that the traffic has to be entered again
    }
    void geometria() {
        finestra("keyToponomasticaIntersezione");
        for (std::int16_t i = 1; i <= atteso.NumeroRami(); ++i) {
            campo(nodo("txtIngresso", i).c_str(), atteso.Ramo(i).Descrizione());
        }
        for (std::int16_t i = 1; i <= atteso.NumeroRami(); ++i) {
            const Ramo& r = atteso.Ramo(i);
            finestra(nodo("keyRamo", i));
            // Half width first: the entry must stay the wider one, whichever of the two is typed.
            campo("txtSemiLarghezza", r.SemiLarghezza());
            campo("txtLungSvasatura", r.LunghezzaSvasatura());
            campo("txtAngoloConflitto", r.AngoloConflitto());
            campo("txtRaggioCurvatura", r.RaggioIngresso());
            campo("txtDiametroInscritto", r.DiametroInscritto());
            spunta("chkAttraversamentoPedonale", r.AttraversamentoPedonale());
            campo("txtLarghezzaIngresso", r.LarghezzaIngresso());
        }
    }
    void sensibilita() {
        for (std::int16_t i = 1; i <= atteso.NumeroRami(); ++i) {
            const AnalisiMarginale& a = atteso.Ramo(i).theAnalisiMarginale();
            finestra(nodo("keyAnalisiMarginale", i));
            spunta("chkLarghezzaIngresso", a.UsaLarghezzaIngresso());
            spunta("chkSemiLarghezza", a.UsaSemiLarghezza());
            if (atteso.Ramo(i).AttraversamentoPedonale()) {
                campo("txtAttraversamentoPedonale", a.AttraversamentoPedonale());
            }
            spunta("chkCondizioniEsterne", a.UsaCondizioniEsterne());
            if (a.UsaCondizioniEsterne()) {
                campo("txtDescrizioneCondizioniEsterne", a.DescrizioneCondizioniEsterne());
                campo("txtCondizioniEsterne", a.CondizioniEsterne());
            }
        }
    }
    void curve() {
        for (std::int16_t i = 1; i <= atteso.NumeroRami(); ++i) {
            const DatiTraffico& d = atteso.Ramo(i).theDatiTraffico();
            finestra(nodo("keyDatiTraffico", i));
            ora("txtTempo2", d.Tempo2());
            campo("txtFlussoTempo1", d.FlussoTempo1());
            campo("txtFlussoTempo2", d.FlussoTempo2());  // two segments only: the third flow follows it
        }
    }
    void conteggi() {
        for (std::int16_t i = 1; i <= atteso.NumeroRami(); ++i) {
            finestra(nodo("keyDatiTraffico", i));
            std::vector<std::string> celle;
            for (const float flusso : atteso.Ramo(i).theDatiTraffico().FlussiSegmento()) {
                celle.push_back(testoNumero(flusso));
            }
            tabella(celle);
        }
    }
    void matrice() {
        finestra("keyMatriceSvolte");
        std::vector<std::string> celle;
        for (std::int16_t riga = 1; riga <= atteso.NumeroRami(); ++riga) {
            for (std::int16_t colonna = 1; colonna <= atteso.NumeroRami(); ++colonna) {
                if (riga != colonna) {
                    celle.push_back(testoNumero(atteso.MatriceSvolte(riga, colonna)));
                }
            }
        }
        tabella(celle);
    }
    void percentuali() {
        for (std::int16_t i = 1; i <= atteso.NumeroRami(); ++i) {
            const ComposizioneTraffico& c = atteso.Ramo(i).theComposizioneTraffico();
            finestra(nodo("keyComposizioneTraffico", i));
            campo("txtAutoarticolati", c.Autoarticolati());
            campo("txtAutotreni", c.Autotreni());
            campo("txtPullman", c.Pullman());
            campo("txtCamper", c.Camper());
            campo("txtRoulotte", c.Roulotte());
            campo("txtVeicoliDueRuote", c.VeicoliDueRuote());
            tasto(Qt::Key_Tab);
        }
    }
    /// Along each row, as Enter goes in this table.
    void categorie() {
        for (std::int16_t i = 1; i <= atteso.NumeroRami(); ++i) {
            finestra(nodo("keyComposizioneTraffico", i));
            std::vector<std::string> celle;
            for (const PerClasse& riga : atteso.Ramo(i).theComposizioneTraffico().Categorie()) {
                for (const float veicoli : riga) {
                    celle.push_back(testoNumero(veicoli));
                }
            }
            tabella(celle);
        }
    }

    Rotonda atteso;
    Banco banco;
};

TEST_F(ProgettoIntero, TheExampleOfTheFileFormatIsEnteredByTheKeyboardByteForByte) {
    anagrafiche();
    opzioni(1, 0);
    banco.messaggi.risposte.clear();
    tempi();
    geometria();
    sensibilita();
    matrice();
    curve();
    percentuali();
    opzioni(atteso.TipoAnalisi(), atteso.TipoFlusso());
    conteggi();
    categorie();
    finestra("keyTempoModellazione");
    const std::string percorso = banco.cartella.file(atteso.NomeFile() + ".klv");
    ASSERT_TRUE(banco.salva(percorso));
    EXPECT_EQ(contenuto(percorso), esempioDellaPagina());
    for (const std::string& testo : banco.messaggi.testi()) {
        EXPECT_EQ(testo.rfind("Attenzione! Sono state modificate delle opzioni", 0), 0U) << testo;
    }
}

}  // namespace
}  // namespace kelvo::prove
