#include "legami/banco.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <array>
#include <clocale>
#include <stdexcept>

#include "ui/icone.h"
#include "ui/stile.h"

namespace kelvo::prove {

void avviaQt() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static int parole = 1;
    static std::string nome = "prove_legami";
    static std::array<char*, 2> argomenti{nome.data(), nullptr};
    static const QApplication qt(parole, argomenti.data());
    static bool vestita = false;
    if (!vestita) {
        vestita = true;
        std::setlocale(LC_NUMERIC, "C");
        ui::cartellaImmagini(KELVO_CARTELLA "/Immagini");
        ui::applicaStile(*qApp, QStringLiteral(KELVO_CARTELLA "/Caratteri"));
    }
}

void smaltisci() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
    }
}

VistaProva::VistaProva(FinestraProva& f) : VistaFinestra((avviaQt(), f), nullptr) {
    auto* tutto = colonna();
    larghezzaColonna(static_cast<int>(disegnoFinestra.W));
    for (Controllo* c : f.ordine()) {
        if (auto* campo = dynamic_cast<tBox*>(c)) {
            tutto->addWidget(ui::collega(*campo, corpo()));
        }
    }
    tutto->addWidget(ui::collega(f.lblUno, corpo()));
    tutto->addWidget(ui::collega(f.cmdFine, corpo()));
    chiudiDisposizione();
}

BancoVista::BancoVista() {
    finestra.txtUno.testo("5");
    vista.resize(900, 600);
    vista.show();
    vista.activateWindow();
    if (!QTest::qWaitForWindowActive(&vista)) {
        throw std::runtime_error("the window does not come to the front");
    }
    vista.fuocoIniziale();
    smaltisci();
}

std::string BancoVista::tastiera() const {
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? std::string{} : ui::s(widget->objectName());
}

}  // namespace kelvo::prove
