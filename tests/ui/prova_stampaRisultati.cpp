// The result windows on paper by key and mouse.

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <string>

#include "results/FinestraRisultati.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::clic;
using gesti::smaltisci;
using gesti::tasto;
using gesti::voce;

class StampaRisultati : public testing::Test {
protected:
    void apri(const std::string& esempio, const std::string& chiave) {
        if (!mostrato_) {
            banco.mostra();
            mostrato_ = true;
        }
        banco.apri(std::string{KELVO_SORGENTI} + "/assets/Progetti/" + esempio + ".klv");
        banco.vai(chiave);
        smaltisci();
    }
    FinestraRisultati& finestra() { return dynamic_cast<FinestraRisultati&>(*banco.cornice.gestione.corrente()); }
    static void calcola() {
        tasto(Qt::Key_F9);
        smaltisci();
    }
    static void stampa() {
        tasto(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        smaltisci();
    }
    /// Presses "Copia e salva" and looks for an entry of the menu that comes up.
    QAction* premiCopiaESalva(const QString& testo) {
        clic(banco.oggetto<QAbstractButton>("cmdDati"));
        smaltisci();
        return voce(testo);
    }

    Banco banco;

private:
    bool mostrato_ = false;
};

TEST_F(StampaRisultati, TheShortcutPrintsTheFiguresWhereverTheKeyboardIs) {
    apri("Rotatoria_Via_dei_Mulini", "keyCodeRitardi_Out");
    stampa();
    EXPECT_TRUE(banco.stampa.stampati.empty()) << "there are no figures yet";
    calcola();
    stampa();
    ASSERT_EQ(banco.stampa.stampati.size(), 1U);
    banco.entra("ctlGrid");
    stampa();
    ASSERT_EQ(banco.stampa.stampati.size(), 2U);
    EXPECT_EQ(banco.stampa.stampati[0].titolo, "Risultati: Verifiche prestazionali");
    EXPECT_EQ(banco.stampa.stampati[0].progetto, "Rotatoria_Via_dei_Mulini");
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
}

TEST_F(StampaRisultati, TheButtonBelowTheFiguresOffersPaperAndPdf) {
    apri("Rotatoria_Via_dei_Mulini", "keyCodeRitardi_Out2");
    QAction* chiusa = premiCopiaESalva(QStringLiteral("Stampa..."));
    ASSERT_NE(chiusa, nullptr);
    EXPECT_FALSE(chiusa->isEnabled());
    QApplication::activePopupWidget()->close();
    calcola();
    QAction* pdf = premiCopiaESalva(QStringLiteral("Stampa in PDF..."));
    ASSERT_NE(pdf, nullptr);
    ASSERT_TRUE(pdf->isEnabled());
    const std::string file = banco.cartella.file("Ingresso.pdf");
    banco.dialogo.scelte = {file};
    pdf->trigger();
    QApplication::activePopupWidget()->close();
    smaltisci();
    ASSERT_EQ(banco.dialogo.richieste.size(), 2U) << "the project, then the file";
    EXPECT_EQ(contenuto(file), "pagine");
    EXPECT_EQ(banco.stampa.salvati.size(), 1U);
}

}  // namespace
}  // namespace kelvo::prove
