#include "ui/legame.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <utility>

#include "ui/icone.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The sign at the left inside a field that was refused.
void mostraSegno(QWidget& widget, bool visibile) {
    const QString nome = QStringLiteral("segnoErrore");
    auto* sign = widget.findChild<QLabel*>(nome, Qt::FindDirectChildrenOnly);
    if (sign == nullptr && visibile) {
        sign = new QLabel(&widget);
        sign->setObjectName(nome);
        sign->setAttribute(Qt::WA_TransparentForMouseEvents);
        const QSize lato(misura::segnoErrore, misura::segnoErrore);
        sign->setPixmap(segno("errore").pixmap(lato, widget.devicePixelRatioF()));
        sign->setGeometry(QRect(QPoint(misura::spazioRighe, (misura::campo - lato.height()) / 2), lato));
    }
    if (sign != nullptr) {
        sign->setVisible(visibile);
    }
}

}  // namespace

void mostraFallito(QWidget& widget, bool fallito) {
    if (widget.property("fallito").toBool() != fallito) {
        widget.setProperty("fallito", fallito);
        mostraSegno(widget, fallito);
        auto* riga = qobject_cast<QLineEdit*>(&widget);
        riga = riga != nullptr ? riga : widget.findChild<QLineEdit*>();
        if (riga != nullptr) {
            riga->setTextMargins(fallito ? misura::segnoErrore + misura::canale : 0, 0, 0, 0);
        }
        widget.style()->unpolish(&widget);
        widget.style()->polish(&widget);
    }
}

Legame::Legame(Controllo& controllo, QWidget& oggetto) : QObject(&oggetto), controllo_(controllo), widget_(oggetto) {
    widget_.setObjectName(QString::fromStdString(controllo.nome()));
    widget_.installEventFilter(this);
    legame_ = controllo_.cambiato().connect([this] { aggiorna(); });
}

Legame::~Legame() {
    legame_.disconnect();
}

void Legame::mostra(std::function<void()> funzione) {
    funzione_ = std::move(funzione);
    aggiorna();
}

void Legame::aggiorna() {
    // Only a change: showing a widget fixes its font before its view has laid it out.
    if (widget_.isHidden() == controllo_.visibile()) {
        widget_.setVisible(controllo_.visibile());
    }
    widget_.setEnabled(controllo_.abilitato());
    if (funzione_) {
        funzione_();
    }
}

bool Legame::fuocoDentro() const {
    const QWidget* fuoco = QApplication::focusWidget();
    return fuoco == &widget_ || (fuoco != nullptr && widget_.isAncestorOf(fuoco));
}

bool Legame::fuocoPerso() {
    if (inUscita_ || fuocoDentro() || !widget_.isVisible()) {
        return false;
    }
    inUscita_ = true;
    const bool uscito = controllo_.lascia();
    inUscita_ = false;
    if (!uscito) {
        // The widget that took the focus is still in its own event: give it back after that.
        QTimer::singleShot(0, &widget_, [this] { widget_.setFocus(Qt::OtherFocusReason); });
    }
    return false;
}

bool Legame::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn && !inUscita_) {
        controllo_.entra();
    } else if (evento->type() == QEvent::FocusOut) {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        // A menu, a list that drops down, another program: the user has not left the field.
        if (motivo != Qt::PopupFocusReason && motivo != Qt::ActiveWindowFocusReason) {
            return fuocoPerso();
        }
    } else if (evento->type() == QEvent::KeyPress && allEscape) {
        const auto* tasto = static_cast<QKeyEvent*>(evento);
        if (tasto->key() == Qt::Key_Escape) {
            allEscape();
            return true;
        }
        if (tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter) {
            QWidget* prossimo = widget_.nextInFocusChain();
            while (prossimo != &widget_ && (prossimo->focusPolicy() & Qt::TabFocus) == 0) {
                prossimo = prossimo->nextInFocusChain();
            }
            prossimo->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QObject::eventFilter(oggetto, evento);
}

}  // namespace kelvo::ui
