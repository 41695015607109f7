#include "ui/scenaVista.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <stdexcept>

namespace kelvo::prove {

VistaProva::VistaProva(FinestraProva& f) : VistaFinestra(f, nullptr) {
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

ScenaVista::ScenaVista() {
    finestra.txtUno.testo("5");
    vista.resize(900, 600);
    vista.show();
    vista.activateWindow();
    if (!QTest::qWaitForWindowActive(&vista)) {
        throw std::runtime_error("the window does not come to the front");
    }
    vista.fuocoIniziale();
    gesti::smaltisci();
}

std::string ScenaVista::tastiera() const {
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? std::string{} : ui::s(widget->objectName());
}

}  // namespace kelvo::prove
