#pragma once

#include <gtest/gtest.h>

#include <QtCore/QEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>
#include <string>
#include <vector>

#include "comune/appunti.h"
#include "shell/servizi/CustodeCampi.h"
#include "shell/servizi/tBox.h"
#include "ui/legami.h"

namespace kelvo::prove {

/// A window that notes which control the focus came to and what the checks said.
class CustodeLegami final : public CustodeCampi {
public:
    void entrato(Controllo& campo) override {
        entrati.push_back(campo.nome());
        fuoco = &campo;
    }
    bool haFuoco(const Controllo& campo) const override { return fuoco == &campo; }
    void giudicato(Controllo& /*campo*/, const EsitoUscita& esito) override { esiti.push_back(esito); }
    Appunti* appunti() override { return &blocco; }

    AppuntiFinti blocco;
    const Controllo* fuoco = nullptr;
    std::vector<std::string> entrati;
    std::vector<EsitoUscita> esiti;
};

/// A window with a control between two fields.
struct ScenaLegami : testing::Test {
    CustodeLegami custode;
    tBox prima{"txtPrima", tBox::textbox};
    tBox dopo{"txtDopo", tBox::textbox};
    QWidget finestra;
    QVBoxLayout* piano = new QVBoxLayout(&finestra);
    QWidget* campoPrima = ui::collega(prima, &finestra);
    QWidget* campoDopo = nullptr;

    ScenaLegami() { finestra.setObjectName(QStringLiteral("lavoro")); }

    /// Puts the widget of the control between the fields and shows the window.
    void apri(Controllo& controllo, QWidget* oggetto) {
        controllo.custode(&custode);
        prima.custode(&custode);
        dopo.custode(&custode);
        campoDopo = ui::collega(dopo, &finestra);
        piano->addWidget(campoPrima);
        piano->addWidget(oggetto);
        piano->addWidget(campoDopo);
        finestra.resize(640, 480);
        finestra.show();
        finestra.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
        campoPrima->setFocus();
        custode.entrati.clear();
    }
    /// Presses a key on what has the keyboard.
    static void tasto(Qt::Key tasto, Qt::KeyboardModifiers modi = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), tasto, modi);
    }
    static void digita(const char* testo) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(testo));
    }
    static std::string fuoco() {
        const QWidget* oggetto = QApplication::focusWidget();
        return oggetto == nullptr ? std::string{} : ui::s(oggetto->objectName());
    }
};

}  // namespace kelvo::prove
