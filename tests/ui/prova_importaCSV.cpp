#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <fstream>

#include "banco.h"
#include "input/frmImportaCSV.h"
#include "input/frmMatriceSvolte.h"
#include "ui/VistaGriglia.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::digita;
using gesti::fuoco;
using gesti::smaltisci;
using gesti::tasto;

/// The matrix of a project of four legs, filled from a file in the real dialogue.
class ImportaCSV : public testing::Test {
protected:
    void SetUp() override {
        banco.mostra();
        banco.nuovo(4);
        matrice = std::make_unique<frmMatriceSvolte>(banco.cornice.contorno(), banco.anteprima);
        matrice->attivata();
        scrivi("Ora;A;B;C;D;Altro\nA;0;12;13;14;x\nB;21;0;23;24;x\nC;31;32;0;34;x\nD;41;42;43;0;x\n");
    }
    void scrivi(const std::string& testo) { std::ofstream(file, std::ios::binary) << testo; }
    /// Opens the dialogue and plays the gestures in it.
    void importa(const std::function<void(QFileDialog&)>& gesto) {
        gesti::AlModale dialogo("dialogoFile", [&](QWidget& modale) {
            auto& aperto = dynamic_cast<QFileDialog&>(modale);
            gesto(aperto);
            if (aperto.isVisible()) {
                aperto.reject();
            }
        });
        matrice->cmdImportaCSV.premi();
        EXPECT_TRUE(dialogo.avvenuto());
        EXPECT_FALSE(dialogo.rimasto());
        ASSERT_TRUE(gesti::davanti(banco.vista));
    }
    /// Types the name of the file into the field that has the keyboard, and Enter: its content comes up.
    void scriviNome(QFileDialog& dialogo) {
        ASSERT_TRUE(attendi([] { return fuoco() == "fileNameEdit"; })) << fuoco();
        digita(file);
        tasto(Qt::Key_Return);
        smaltisci();
        ASSERT_TRUE(dialogo.isVisible()) << "nothing is taken unseen";
    }
    /// Goes on with Tab until a field has the keyboard.
    static void vaiA(const std::string& nome) {
        for (int i = 0; i < 40 && fuoco() != nome; ++i) {
            tasto(Qt::Key_Tab);
            smaltisci();
        }
        ASSERT_EQ(fuoco(), nome);
    }
    static QComboBox& scelta(QFileDialog& dialogo, const char* nome) {
        return *dialogo.findChild<QComboBox*>(QString::fromLatin1(nome));
    }
    static std::string avviso(QFileDialog& dialogo) {
        return dialogo.findChild<QLabel*>(QStringLiteral("lblAvviso"))->text().toStdString();
    }
    std::string riga(int r) const {
        std::string testo;
        for (int c = 1; c <= 4; ++c) {
            testo += (c == 1 ? "" : " ") + matrice->ctlGrid.testo(r, c);
        }
        return testo;
    }

    Banco banco;
    std::unique_ptr<frmMatriceSvolte> matrice;
    std::string file = banco.cartella.file("svolte.csv");
};

TEST_F(ImportaCSV, ByKeyboardAloneTheFileEndsInTheProject) {
    importa([&](QFileDialog& dialogo) {
        scriviNome(dialogo);
        EXPECT_EQ(scelta(dialogo, "txtColonna1").currentText(), QStringLiteral("Colonna 2: A"));
        EXPECT_TRUE(dialogo.findChild<QAbstractButton*>(QStringLiteral("chkIntestazioni"))->isChecked());
        vaiA("txtColonna2");
        tasto(Qt::Key_Home);  // (nessuna)
        smaltisci();
        EXPECT_EQ(scelta(dialogo, "txtColonna2").currentText(), QStringLiteral("(nessuna)"));
        vaiA("fileNameEdit");
        tasto(Qt::Key_Return);
        EXPECT_TRUE(attendi([&] { return !dialogo.isVisible(); }));
    });
    EXPECT_TRUE(banco.messaggi.mostrati.empty()) << banco.ultimo();
    EXPECT_EQ(riga(1), " 0 13 14");
    EXPECT_EQ(riga(2), "21  23 24");
    EXPECT_EQ(riga(4), "41 0 43 ");
    EXPECT_EQ(banco.app.theRotonda().MatriceSvolte(2, 1), 0.0F) << "nothing is written yet";
    matrice->SaveData();
    EXPECT_EQ(banco.app.theRotonda().MatriceSvolte(2, 1), 21.0F);
    EXPECT_EQ(banco.app.theRotonda().MatriceSvolte(4, 3), 43.0F);
}

TEST_F(ImportaCSV, EveryFieldIsAStopOfTheTabKeyInReadingOrder) {
    importa([&](QFileDialog& dialogo) {
        scriviNome(dialogo);
        vaiA("ctlGrid");
        std::vector<std::string> fermate;
        for (const char* nome :
             {"txtSeparatore", "chkIntestazioni", "txtColonna1", "txtColonna2", "txtColonna3", "txtColonna4"}) {
            tasto(Qt::Key_Tab);
            smaltisci();
            EXPECT_EQ(fuoco(), nome);
        }
        EXPECT_EQ(dialogo.findChild<QWidget*>(QStringLiteral("txtColonna5")), nullptr);
    });
}

TEST_F(ImportaCSV, EnterInAFieldGoesOnAndDoesNotCloseTheDialogue) {
    importa([&](QFileDialog& dialogo) {
        scriviNome(dialogo);
        vaiA("txtColonna1");
        tasto(Qt::Key_Return);
        smaltisci();
        EXPECT_TRUE(dialogo.isVisible());
        EXPECT_EQ(fuoco(), "txtColonna2");
    });
    EXPECT_EQ(riga(1), " 0 0 0");
}

TEST_F(ImportaCSV, AWrongCellIsToldAndTheDialogueStaysOpen) {
    scrivi("A;B;C;D\n0;12;abc;14\n");
    importa([&](QFileDialog& dialogo) {
        scriviNome(dialogo);
        EXPECT_EQ(avviso(dialogo), "Il testo 'abc' (riga 2, 'Colonna 3: C') non è un numero.");
        tasto(Qt::Key_Return);
        smaltisci();
        EXPECT_TRUE(dialogo.isVisible());
    });
    EXPECT_EQ(banco.ultimo(), "Il testo 'abc' (riga 2, 'Colonna 3: C') non è un numero.\nNon è stato importato nulla.");
    EXPECT_EQ(riga(1), " 0 0 0");
}

TEST_F(ImportaCSV, TheChoiceOfColumnsIsRememberedInTheSettings) {
    const auto importaCosi = [&](const std::function<void(QFileDialog&)>& gesto) {
        importa([&](QFileDialog& dialogo) {
            scriviNome(dialogo);
            gesto(dialogo);
            vaiA("fileNameEdit");
            tasto(Qt::Key_Return);
            EXPECT_TRUE(attendi([&] { return !dialogo.isVisible(); }));
        });
    };
    importaCosi([&](QFileDialog&) {
        vaiA("txtColonna3");
        tasto(Qt::Key_Home);
        smaltisci();
    });
    importaCosi([&](QFileDialog& dialogo) {
        EXPECT_EQ(scelta(dialogo, "txtColonna3").currentText(), QStringLiteral("(nessuna)"));
        EXPECT_EQ(scelta(dialogo, "txtColonna4").currentText(), QStringLiteral("Colonna 5: D"));
    });
}

/// A window that takes figures of a file, and what the project must be for it.
struct FinestraCSV {
    const char* chiave;
    const char* nome;
};
class BottoneCSV : public testing::TestWithParam<FinestraCSV> {};

TEST_P(BottoneCSV, StandsInTheWindowAndOpensTheDialogue) {
    constexpr std::int16_t analisiTabella = 2;
    Banco banco;
    banco.mostra();
    banco.nuovo(3);
    banco.app.theRotonda().TipoAnalisi(analisiTabella);
    banco.app.theRotonda().TipoFlusso(1);
    banco.cornice.SetUpOpzioni();
    banco.vai(GetParam().chiave);
    ASSERT_EQ(banco.nomeCorrente(), GetParam().nome);
    auto& bottone = banco.oggetto<QAbstractButton>("cmdImportaCSV");
    EXPECT_EQ(bottone.text().remove(QLatin1Char('&')), QStringLiteral("Importa da CSV..."));
    ASSERT_TRUE(bottone.isVisible());
    ASSERT_TRUE(bottone.isEnabled());
    gesti::AlModale dialogo("dialogoFile", [](QWidget& modale) { dynamic_cast<QFileDialog&>(modale).reject(); });
    gesti::clic(bottone);
    EXPECT_TRUE(dialogo.avvenuto());
    EXPECT_FALSE(dialogo.rimasto());
}

INSTANTIATE_TEST_SUITE_P(Finestre, BottoneCSV,
                         testing::Values(FinestraCSV{"keyMatriceSvolte", "frmMatriceSvolte"},
                                         FinestraCSV{"keyDatiTraffico1", "frmDatiTrafficoST"},
                                         FinestraCSV{"keyComposizioneTraffico1", "frmComposizioneTrafficoST"}),
                         [](const auto& p) { return std::string{p.param.nome}; });

}  // namespace
}  // namespace kelvo::prove
