#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include "scenaLegami.h"
#include "shell/servizi/MenuChiavi.h"
#include "ui/VistaFinestra.h"
#include "ui/legamiScelte.h"
#include "ui/shell/menuQt.h"

namespace kelvo::prove {
namespace {

struct ProveLegameOpzioni : ScenaLegami {
    GruppoOpzioni gruppo{"grTipo", {{"optA", "A"}, {"optB", "B"}, {"optC", "C"}}, 0};
    std::vector<int> cambi;
    QWidget* widget = ui::collega(gruppo, &finestra);
    ProveLegameOpzioni() {
        gruppo.alCambio = [this](int i) { cambi.push_back(i); };
        apri(gruppo, widget);
    }
    QRadioButton& bottone(const char* nome) { return *widget->findChild<QRadioButton*>(QString::fromUtf8(nome)); }
};

TEST_F(ProveLegameOpzioni, AClickChoosesAndASecondOneChangesNothing) {
    EXPECT_EQ(ui::s(widget->objectName()), "grTipo");
    QTest::mouseClick(&bottone("optC"), Qt::LeftButton, {}, QPoint(8, bottone("optC").height() / 2));
    EXPECT_EQ(gruppo.scelta(), 2);
    QTest::mouseClick(&bottone("optC"), Qt::LeftButton, {}, QPoint(8, bottone("optC").height() / 2));
    EXPECT_TRUE(bottone("optC").isChecked());
    EXPECT_FALSE(bottone("optA").isChecked());
    EXPECT_EQ(cambi, (std::vector<int>{2}));
}

TEST_F(ProveLegameOpzioni, TheArrowsWalkOnTheOpenOptionsAndTabPassesTheGroupAsOne) {
    gruppo.abilita(1, false);
    EXPECT_FALSE(bottone("optB").isEnabled());
    tasto(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "optA");
    EXPECT_EQ(custode.entrati, (std::vector<std::string>{"grTipo"}));
    tasto(Qt::Key_Down);
    EXPECT_EQ(gruppo.scelta(), 2);
    EXPECT_EQ(fuoco(), "optC");
    tasto(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "txtDopo");
    tasto(Qt::Key_Backtab);
    EXPECT_EQ(fuoco(), "optC");
    tasto(Qt::Key_Up);
    EXPECT_EQ(gruppo.scelta(), 0);
}

TEST_F(ProveLegameOpzioni, FollowsTheProgram) {
    gruppo.scelta(-1);
    EXPECT_FALSE(bottone("optA").isChecked());
    gruppo.scelta(1);
    gruppo.mostra(2, false);
    gruppo.testo(0, "Altro");
    EXPECT_TRUE(bottone("optB").isChecked());
    EXPECT_TRUE(bottone("optC").isHidden());
    EXPECT_EQ(ui::s(bottone("optA").text()), "Altro");
    gruppo.abilitato(false);
    EXPECT_FALSE(bottone("optA").isEnabled());
    EXPECT_TRUE(cambi.empty());
}

TEST_F(ScenaLegami, AListIsWalkedByKeyAndClick) {
    Elenco elenco("listTEMPO");
    elenco.voci({"07:00", "07:10", "07:20"});
    std::vector<int> cambi;
    elenco.alCambio = [&](int i) { cambi.push_back(i); };
    QListWidget* lista = ui::collega(elenco, &finestra);
    apri(elenco, lista);
    EXPECT_EQ(lista->currentRow(), -1);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(1)).center());
    EXPECT_EQ(elenco.scelta(), 1);
    QTest::keyClick(lista, Qt::Key_Down);
    EXPECT_EQ(elenco.scelta(), 2);
    EXPECT_EQ(cambi, (std::vector<int>{1, 2}));
    elenco.scelta(0);
    EXPECT_EQ(lista->currentRow(), 0);
    elenco.voci({"08:00"});
    EXPECT_EQ(lista->count(), 1);
    EXPECT_EQ(cambi.size(), 2U);
    lista->setParent(nullptr);
    delete lista;
}

TEST_F(ScenaLegami, ATickGoesToTheOwnerWhoMayKeepOneAlone) {
    ElencoSpunte elenco("ctlLIST");
    elenco.voci({"Grigio", "Granata", "Blu"});
    elenco.spunta(0, true);
    elenco.alClic = [&](int i) {
        if (elenco.quanteSpuntate() > 1) {
            elenco.azzera();
            elenco.spunta(i, true);
        }
    };
    QListWidget* lista = ui::collega(elenco, &finestra);
    apri(elenco, lista);
    EXPECT_EQ(lista->item(0)->checkState(), Qt::Checked);
    lista->setFocus();
    lista->setCurrentRow(2);
    QTest::keyClick(lista, Qt::Key_Space);
    EXPECT_TRUE(elenco.spuntata(2));
    EXPECT_EQ(elenco.quanteSpuntate(), 1);
    EXPECT_EQ(lista->item(0)->checkState(), Qt::Unchecked);
    EXPECT_EQ(lista->item(2)->checkState(), Qt::Checked);
    QTest::keyClick(lista, Qt::Key_Space);
    EXPECT_EQ(lista->item(2)->checkState(), Qt::Unchecked);
    delete lista;
}

TEST_F(ScenaLegami, ASliderMovesByStepsAndFollowsItsLimits) {
    Scorrimento scorrimento("Slider1", 1, 9, 2);
    std::vector<int> cambi;
    scorrimento.alCambio = [&](int v) { cambi.push_back(v); };
    QSlider* cursore = ui::collega(scorrimento, &finestra);
    apri(scorrimento, cursore);
    cursore->setFocus();
    QTest::keyClick(cursore, Qt::Key_Right);
    QTest::keyClick(cursore, Qt::Key_End);
    QTest::keyClick(cursore, Qt::Key_Left);
    EXPECT_EQ(cambi, (std::vector<int>{3, 9, 7}));
    cursore->setValue(4);  // between two steps
    EXPECT_EQ(scorrimento.valore(), 5);
    EXPECT_EQ(cursore->value(), 5);
    scorrimento.limiti(1, 3);
    EXPECT_EQ(cursore->maximum(), 3);
    EXPECT_EQ(cursore->value(), 3);
    delete cursore;
}

TEST_F(ScenaLegami, TabsBringTheirPageIntoView) {
    Schede schede("TabStrip1", {"Report", "Errori & altro", "Fine"});
    std::vector<int> cambi;
    schede.alCambio = [&](int i) { cambi.push_back(i); };
    const std::vector<QWidget*> pagine{new QWidget, new QWidget, new QWidget};
    QTabWidget* linguette = ui::collega(schede, pagine, &finestra);
    apri(schede, linguette);
    schede.conteggio(0, 3);
    schede.abilita(1, false);
    EXPECT_EQ(ui::s(linguette->tabText(0)), "[3] Report");
    EXPECT_EQ(ui::s(linguette->tabText(1)), "Errori && altro");
    QTabBar* barra = linguette->tabBar();
    QTest::mouseClick(barra, Qt::LeftButton, {}, barra->tabRect(1).center());
    EXPECT_EQ(schede.corrente(), 0);
    QTest::mouseClick(barra, Qt::LeftButton, {}, barra->tabRect(2).center());
    EXPECT_EQ(schede.corrente(), 2);
    EXPECT_TRUE(pagine[2]->isVisible());
    EXPECT_FALSE(pagine[0]->isVisible());
    barra->setFocus();
    QTest::keyClick(barra, Qt::Key_Left);  // over the closed one
    EXPECT_EQ(schede.corrente(), 0);
    QTest::keyClick(linguette, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(schede.corrente(), 2);
    EXPECT_EQ(cambi, (std::vector<int>{2, 0, 2}));
    schede.corrente(0);
    EXPECT_EQ(linguette->currentIndex(), 0);
    EXPECT_TRUE(pagine[0]->isVisible());
    delete linguette;
}

TEST_F(ScenaLegami, ASampleIsPaintedInItsColour) {
    CampioneColore campione("picCampione", {192, 0, 0});
    QFrame* riquadro = ui::collega(campione, &finestra);
    apri(campione, riquadro);
    const auto centro = [&] {
        const QImage foto = riquadro->grab().toImage();
        return foto.pixelColor(foto.width() / 2, foto.height() / 2);
    };
    EXPECT_EQ(centro(), QColor(192, 0, 0));
    campione.colore({0, 128, 128});
    EXPECT_EQ(centro(), QColor(0, 128, 128));
    delete riquadro;
}

TEST_F(ScenaLegami, AFrameShowsAndClosesWhatStandsInIt) {
    tBox dentro("txtDentro", tBox::textbox);
    Riquadro riquadro("frGruppo", "Gruppo", {&dentro});
    ui::Pannello* pannello = ui::collega(riquadro, &finestra);
    QWidget* campo = ui::collega(dentro, pannello);
    pannello->riga("Campo", campo);
    apri(riquadro, pannello);
    EXPECT_EQ(ui::s(pannello->objectName()), "frGruppo");
    riquadro.abilitaContenuto(false);
    EXPECT_FALSE(campo->isEnabled());
    riquadro.abilitaContenuto(true);
    EXPECT_TRUE(campo->isEnabled());
    riquadro.mostraContenuto(false);
    EXPECT_FALSE(pannello->isVisible());
    riquadro.mostraContenuto(true);
    EXPECT_TRUE(campo->isVisible());
    delete pannello;
}

TEST_F(ScenaLegami, ACheckStyleButtonStaysPressed) {
    Casella casella("cmdMARKER", "Visualizzatore Marker", Casella::bottone);
    QAbstractButton* bottone = ui::collega(casella, &finestra);
    apri(casella, bottone);
    QTest::mouseClick(bottone, Qt::LeftButton);
    EXPECT_TRUE(casella.spuntata());
    EXPECT_TRUE(bottone->isChecked());
    bottone->setFocus();
    QTest::keyClick(bottone, Qt::Key_Space);
    EXPECT_FALSE(casella.spuntata());
    EXPECT_FALSE(bottone->isChecked());
    delete bottone;
}

TEST_F(ScenaLegami, AMenuComesUpAtAPointAndTellsItsEntryAfterIt) {
    MenuChiavi menu("menuTabella");
    std::string premuta;
    menu.alClic = [&](const std::string& chiave) { premuta = chiave; };
    ui::mostraContesto(menu, finestra, QPoint(10, 10));  // no entries: nothing
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    menu.aggiungiMenu("contesto", "");
    menu.aggiungi({.padre = "contesto", .testo = "Copia", .chiave = "mnuXCopia"});
    menu.aggiungi({.padre = "contesto", .testo = "Salva", .chiave = "mnuXSalva", .abilitata = false});
    finestra.show();
    ui::mostraContesto(menu, finestra, QPoint(10, 10));
    auto* tendina = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(tendina, nullptr);
    ASSERT_EQ(tendina->actions().size(), 2);
    EXPECT_FALSE(tendina->actions()[1]->isEnabled());
    QTest::keyClick(tendina, Qt::Key_Down);
    QTest::keyClick(tendina, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(premuta, "mnuXCopia");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ScenaLegami, ALabelShowsItsTextAsItIsWritten) {
    Etichetta etichetta{"lblTesto"};
    QLabel* label = ui::collega(etichetta, &finestra);
    etichetta.testo("x");
    const int stretta = label->sizeHint().width();
    etichetta.testo("<b>x</b>");
    EXPECT_EQ(label->text(), QStringLiteral("<b>x</b>"));
    EXPECT_GT(label->sizeHint().width(), 3 * stretta) << "all eight characters are seen";
    delete label;
}

}  // namespace
}  // namespace kelvo::prove
