#include "ui/gesti.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtGui/QAction>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QTreeWidgetItemIterator>
#include <utility>

namespace kelvo::prove::gesti {

namespace {

constexpr int scadenza = 30'000;  ///< milliseconds; a busy machine is slow, never so slow
constexpr int passo = 5;

/// The entry of a menu by its key or its words.
QAction* voce(const QList<QAction*>& voci, const std::string& nome) {
    for (QAction* azione : voci) {
        QString parole = azione->text();
        parole.remove(QLatin1Char('&'));
        if (azione->objectName().toStdString() == nome || parole.toStdString() == nome) {
            return azione;
        }
    }
    return nullptr;
}

}  // namespace

bool attendi(const std::function<bool()>& condizione) {
    const QDeadlineTimer fine(scadenza);
    QTimer sveglia;
    sveglia.start(passo);
    while (!condizione()) {
        if (fine.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void smaltisci() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

bool davanti(QWidget& finestra) {
    finestra.activateWindow();
    return attendi([&] { return finestra.isActiveWindow(); });
}

QWidget* bersaglio() {
    if (QWidget* aperto = QApplication::activePopupWidget()) {
        return aperto;
    }
    if (QWidget* conFuoco = QApplication::focusWidget()) {
        return conFuoco;
    }
    return QApplication::activeWindow();
}

std::string fuoco() {
    const QWidget* conFuoco = QApplication::focusWidget();
    return conFuoco == nullptr ? std::string{} : conFuoco->objectName().toStdString();
}

void tasto(Qt::Key tasto, Qt::KeyboardModifiers modi) {
    if (QWidget* meta = bersaglio()) {
        QTest::keyClick(meta, tasto, modi);
    }
}

void digita(const std::string& testo) {
    for (const QChar carattere : QString::fromStdString(testo)) {
        if (QWidget* meta = bersaglio()) {
            QTest::sendKeyEvent(QTest::Click, meta, Qt::Key_unknown, QString(carattere), {});
        }
    }
}

void clic(QWidget& oggetto, QPoint posto) {
    QTest::mouseClick(&oggetto, Qt::LeftButton, {}, posto);
}

std::string chiaveDi(const QTreeWidgetItem* nodo) {
    return nodo == nullptr ? std::string{} : nodo->data(0, Qt::UserRole).toString().toStdString();
}

QTreeWidgetItem* nodo(const QTreeWidget& albero, const std::string& chiave) {
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(&albero)); *it != nullptr; ++it) {
        if (chiaveDi(*it) == chiave) {
            return *it;
        }
    }
    return nullptr;
}

std::string selezionato(const QTreeWidget& albero) {
    const QList<QTreeWidgetItem*> scelti = albero.selectedItems();
    return scelti.size() == 1 ? chiaveDi(scelti.constFirst()) : std::string{};
}

void clicNodo(QTreeWidget& albero, const std::string& chiave) {
    smaltisci();  // the tree is shown from the event loop
    QTreeWidgetItem* riga = nodo(albero, chiave);
    if (riga == nullptr) {
        return;
    }
    for (QTreeWidgetItem* padre = riga->parent(); padre != nullptr; padre = padre->parent()) {
        padre->setExpanded(true);
    }
    albero.scrollToItem(riga);
    QTest::mouseClick(albero.viewport(), Qt::LeftButton, {}, albero.visualItemRect(riga).center());
}

bool vaiAlNodo(QTreeWidget& albero, const std::string& chiave) {
    smaltisci();
    QTest::keyClick(&albero, Qt::Key_Home);
    QTreeWidgetItem* prima = nullptr;
    while (chiaveDi(albero.currentItem()) != chiave) {
        if (albero.currentItem() == prima) {
            return false;  // the last row
        }
        prima = albero.currentItem();
        if (prima->childCount() > 0 && !prima->isExpanded()) {
            QTest::keyClick(&albero, Qt::Key_Right);
        }
        QTest::keyClick(&albero, Qt::Key_Down);
    }
    QTest::keyClick(&albero, Qt::Key_Return);
    return true;
}

bool menu(QMainWindow& finestra, const std::vector<std::string>& percorso) {
    smaltisci();  // so is the menu
    QMenuBar& barra = *finestra.menuBar();
    QAction* azione = voce(barra.actions(), percorso.front());
    if (azione == nullptr || !azione->isEnabled()) {
        return false;
    }
    clic(barra, barra.actionGeometry(azione).center());
    for (std::size_t i = 1; i < percorso.size(); ++i) {
        QMenu* aperto = azione->menu();
        if (aperto == nullptr || !attendi([&] { return aperto->isVisible(); })) {
            return false;
        }
        azione = voce(aperto->actions(), percorso[i]);
        if (azione == nullptr || !azione->isEnabled()) {
            while (QWidget* ancora = QApplication::activePopupWidget()) {
                ancora->close();
            }
            davanti(finestra);
            return false;
        }
        clic(*aperto, aperto->actionGeometry(azione).center());
    }
    // An open menu takes the front here, and nobody gives it back.
    finestra.activateWindow();
    smaltisci();
    return QApplication::activeModalWidget() != nullptr || !finestra.isVisible() || davanti(finestra);
}

bool bottone(QMainWindow& finestra, const std::string& chiave) {
    smaltisci();
    auto* barra = finestra.findChild<QToolBar*>(QStringLiteral("ctlToolbar"), Qt::FindDirectChildrenOnly);
    QAction* azione = barra == nullptr ? nullptr : voce(barra->actions(), chiave);
    if (azione == nullptr || !azione->isEnabled()) {
        return false;
    }
    QWidget& pulsante = *barra->widgetForAction(azione);
    clic(pulsante, pulsante.rect().center());
    smaltisci();
    return true;
}

QAction* voce(const QString& testo) {
    const auto* tendina = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* azione : tendina == nullptr ? QList<QAction*>() : tendina->actions()) {
        if (azione->text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&')) == testo) {
            return azione;
        }
    }
    return nullptr;
}

AlModale::AlModale(std::string nome, std::function<void(QWidget&)> azione)
    : nome_(std::move(nome)), azione_(std::move(azione)), scadenza_(QDeadlineTimer(scadenza).deadline()) {
    QObject::connect(&passo_, &QTimer::timeout, &passo_, [this] { guarda(); });
    passo_.start(passo);
}

void AlModale::guarda() {
    QWidget* modale = QApplication::activeModalWidget();
    if (!avvenuto_ && modale != nullptr && modale->objectName().toStdString() == nome_ && modale->isVisible()) {
        modale->activateWindow();
        if (modale->isActiveWindow()) {  // before that no key would reach it
            avvenuto_ = true;
            azione_(*modale);
            return;
        }
    }
    if (modale != nullptr && QDeadlineTimer::current().deadline() > scadenza_) {
        rimasto_ = true;
        modale->close();
    }
}

}  // namespace kelvo::prove::gesti
