// The desktop program with somebody at its keyboard: kelvo-copione FOLDER STEP...
//
// FOLDER is that of the program, with its Kelvo.ini. The steps are played in order, each as soon as it can be:
//   splash          ends the splash with a key
//   box=BUTTON      prints the words of the message box and presses its button (Ok, Cancel, Yes, No)
//   modale=NAME     presses Enter in a modal window
//   tasti=KEYS      presses a shortcut in the main window
//   nodo=KEY        clicks on a node of the tree
//   finestra=NAME   waits until that window is at hand
//   campo=NAME:TEXT types over a field
//   mostra=NAME     prints the text of a field
//   titolo          prints the caption of the main window
//   pronto          prints "pronto"
// What is printed ends in a line feed and is written at once. After the last step the program runs on.

#include <QtCore/QTimer>
#include <QtGui/QKeySequence>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "platform/linux/ServiziLinux.h"
#include "platform/linux/SistemaFileLinux.h"
#include "platform/linux/cartelle.h"
#include "ui/Desktop.h"
#include "ui/gesti.h"
#include "ui/shell/VistaMDI_Form.h"

namespace {

using namespace kelvo::prove;

std::vector<std::string> passi;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): read before any object

QMainWindow* principale() {
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
        if (finestra->objectName() == QStringLiteral("MDI_Form") && finestra->isVisible() &&
            QApplication::activeModalWidget() == nullptr) {
            // Where no window manager runs nobody else brings it back to the front when the splash goes.
            finestra->activateWindow();
            return finestra->isActiveWindow() ? qobject_cast<QMainWindow*>(finestra) : nullptr;
        }
    }
    return nullptr;
}

QWidget* modale(const std::string& nome) {
    QWidget* aperto = QApplication::activeModalWidget();
    return aperto != nullptr && aperto->isVisible() && aperto->objectName().toStdString() == nome ? aperto : nullptr;
}

void scrivi(const std::string& testo) {
    std::cout << testo << std::endl;
}

QLineEdit* campo(const std::string& nome) {
    for (QWidget* oggetto : QApplication::allWidgets()) {
        auto* riga = qobject_cast<QLineEdit*>(oggetto);
        if (riga != nullptr && riga->isVisible() && riga->objectName().toStdString() == nome) {
            return riga;
        }
    }
    return nullptr;
}

bool box(const std::string& bottone) {
    QWidget* aperto = modale("messaggio");
    if (aperto == nullptr) {
        return false;
    }
    const std::map<std::string, const char*> bottoni{
        {"Ok", "cmdOk"}, {"Cancel", "cmdAnnulla"}, {"Yes", "cmdSi"}, {"No", "cmdNo"}};
    auto* pulsante = aperto->findChild<QPushButton*>(QString::fromLatin1(bottoni.at(bottone)));
    if (pulsante == nullptr) {
        return false;
    }
    scrivi(aperto->findChild<QLabel*>(QStringLiteral("testoMessaggio"))->text().toStdString());
    gesti::clic(*pulsante);
    return true;
}

bool modaleInvio(const std::string& nome) {
    QWidget* aperto = modale(nome);
    if (aperto != nullptr) {
        QTest::keyClick(aperto->focusWidget() != nullptr ? aperto->focusWidget() : aperto,
                        nome == "frmSplash" ? Qt::Key_Space : Qt::Key_Return);
    }
    return aperto != nullptr;
}

bool tasti(const std::string& sequenza) {
    QMainWindow* finestra = principale();
    if (finestra != nullptr) {
        const QKeyCombination chiave = QKeySequence::fromString(QString::fromStdString(sequenza))[0];
        QWidget* meta = finestra->focusWidget() != nullptr ? finestra->focusWidget() : finestra;
        QTest::keyClick(meta, chiave.key(), chiave.keyboardModifiers());
    }
    return finestra != nullptr;
}

bool nodo(const std::string& chiave) {
    QMainWindow* finestra = principale();
    auto* albero = finestra == nullptr ? nullptr : finestra->findChild<QTreeWidget*>(QStringLiteral("ctlTree"));
    if (albero == nullptr || !albero->isVisible() || gesti::nodo(*albero, chiave) == nullptr) {
        return false;
    }
    gesti::clicNodo(*albero, chiave);
    return true;
}

bool finestra(const std::string& nome) {
    const auto* vista = dynamic_cast<kelvo::ui::VistaMDI_Form*>(principale());
    return vista != nullptr && vista->vistaCorrente() != nullptr && vista->vistaCorrente()->finestra().nome() == nome;
}

bool scriviCampo(const std::string& nomeETesto) {
    const auto punti = nomeETesto.find(':');
    QLineEdit* riga = principale() == nullptr ? nullptr : campo(nomeETesto.substr(0, punti));
    if (riga != nullptr) {
        riga->setFocus(Qt::MouseFocusReason);
        riga->selectAll();
        for (const QChar c : QString::fromStdString(nomeETesto.substr(punti + 1))) {
            QTest::sendKeyEvent(QTest::Click, riga, Qt::Key_unknown, QString(c), {});
        }
    }
    return riga != nullptr;
}

bool mostra(const std::string& nome) {
    const QLineEdit* riga = principale() == nullptr ? nullptr : campo(nome);
    if (riga != nullptr) {
        scrivi(riga->text().toStdString());
    }
    return riga != nullptr;
}

/// Plays a step; false if it cannot be played yet.
bool gioca(const std::string& passo) {
    const auto uguale = passo.find('=');
    const std::string verbo = passo.substr(0, uguale);
    const std::string argomento = uguale == std::string::npos ? std::string{} : passo.substr(uguale + 1);
    const std::map<std::string, std::function<bool()>> verbi{
        {"splash", [] { return modaleInvio("frmSplash"); }},
        {"box", [&] { return box(argomento); }},
        {"modale", [&] { return modaleInvio(argomento); }},
        {"tasti", [&] { return tasti(argomento); }},
        {"nodo", [&] { return nodo(argomento); }},
        {"finestra", [&] { return finestra(argomento); }},
        {"campo", [&] { return scriviCampo(argomento); }},
        {"mostra", [&] { return mostra(argomento); }},
        {"titolo",
         [] {
             const QMainWindow* finestra = principale();
             if (finestra != nullptr) {
                 scrivi(finestra->windowTitle().toStdString());
             }
             return finestra != nullptr;
         }},
        {"pronto",
         [] {
             scrivi("pronto");
             return true;
         }},
    };
    return verbi.at(verbo)();
}

/// Plays the first step that is left, over and over. The next turn is asked for before the step is played: what the
/// step does may run an event loop of its own, and the steps behind it are played there.
void turno() {
    if (passi.empty()) {
        return;
    }
    QTimer::singleShot(2, QCoreApplication::instance(), turno);
    const std::string passo = passi.front();
    passi.erase(passi.begin());
    if (!gioca(passo)) {
        passi.insert(passi.begin(), passo);
    }
}

/// Runs as soon as the application object stands, before anything is shown.
void comincia() {
    QTimer::singleShot(0, QCoreApplication::instance(), turno);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(comincia)

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "uso: kelvo-copione CARTELLA PASSO...\n";
        return 2;
    }
    passi.assign(argv + 2, argv + argc);
    kelvo::SistemaFileLinux file;
    const std::string lavoro = kelvo::cartellaTemporanea();
    kelvo::IstanzaLinux istanza(lavoro);
    kelvo::LocaleLinux locale;
    int soloNome = 1;
    return kelvo::ui::avviaDesktop(soloNome, argv,
                                   {.file = file,
                                    .istanza = istanza,
                                    .locale = locale,
                                    .cartellaProgramma = argv[1],
                                    .cartellaLavoro = lavoro,
                                    .cartellaRecupero = kelvo::cartellaDatiUtente() + "/Recupero"});
}
