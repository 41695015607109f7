// The export of the plan with the real window, by the keyboard.

#include <QtWidgets/QApplication>
#include <filesystem>

#include "cad/disegnoDxf.h"
#include "ui/banco.h"

namespace kelvo::prove {
namespace {

using gesti::attendi;
using gesti::tasto;

TEST(FinestraEsportaDXF, ABearingTypedThereIsInTheFileAndTheProjectStaysAsItIs) {
    Banco banco;
    banco.mostra();
    banco.nuovo(4);
    const std::string progetto = banco.app.theRotonda().TestoFile();
    const std::string file = banco.cartella.file("nodo.dxf");
    banco.dialogo.scelte = {file};
    banco.dialogo.richieste.clear();
    std::string inUso;
    gesti::AlModale finestra("frmEsportaDXF", [&](QWidget& dialogo) {
        auto* direzione = dialogo.findChild<QWidget*>(QStringLiteral("txtDirezioneB"));
        EXPECT_NE(direzione, nullptr);
        EXPECT_NE(dialogo.findChild<QWidget*>(QStringLiteral("ctlPianta")), nullptr);
        inUso = gesti::fuoco();
        tasto(Qt::Key_A, Qt::ControlModifier);
        gesti::digita("70,5");
        tasto(Qt::Key_Tab);
        EXPECT_EQ(gesti::fuoco(), "txtDirezioneC");
        dialogo.findChild<QWidget*>(QStringLiteral("chkQuote"))->setFocus();
        tasto(Qt::Key_Space);
        tasto(Qt::Key_Return);
    });
    EXPECT_TRUE(gesti::menu(banco.vista, {"mnuKelvoCAD", "mnuXEsportaDXF"}));
    EXPECT_TRUE(attendi([&] { return finestra.avvenuto() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_FALSE(finestra.rimasto());
    EXPECT_EQ(inUso, "txtDirezioneB");
    ASSERT_TRUE(std::filesystem::exists(file)) << banco.ultimo();
    pianta::DatiPianta dati = pianta::datiPianta(banco.app.theRotonda());
    dati.ipotesi.direzioni = {0, 70.5, 180, 270};
    dxf::Scelte scelte;
    scelte.metti(dxf::Gruppo::quote, false);
    EXPECT_TRUE(contenuto(file) == dxf::testoDxf(dxf::disegno(dati, dxf::cartiglioDi(banco.app.theRotonda()), scelte)));
    EXPECT_EQ(banco.app.theRotonda().TestoFile(), progetto);
}

TEST(FinestraEsportaDXF, EscapeWritesNothing) {
    Banco banco;
    banco.mostra();
    banco.nuovo(3);
    banco.dialogo.richieste.clear();
    gesti::AlModale finestra("frmEsportaDXF", [](QWidget&) { tasto(Qt::Key_Escape); });
    EXPECT_TRUE(gesti::menu(banco.vista, {"mnuKelvoCAD", "mnuXEsportaDXF"}));
    EXPECT_TRUE(attendi([&] { return finestra.avvenuto() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_FALSE(finestra.rimasto());
    EXPECT_TRUE(banco.dialogo.richieste.empty());
}

}  // namespace
}  // namespace kelvo::prove
