#include "ui/legame.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <utility>

#include "ui/SegnoErrore.h"
#include "ui/VistaFinestra.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The widget whose control is being asked, or has refused and has not got the keyboard back yet. One for the whole
/// program, as there is one keyboard.
QPointer<QWidget>& trattenuto() {
    static QPointer<QWidget> widget;
    return widget;
}

/// Swallows the click that tried to leave a refused field: from its press, if that is still to come, to its release.
class ClicPerso final : public QObject {
public:
    explicit ClicPerso(QObject* genitore) : QObject(genitore) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        const QEvent::Type tipo = evento->type();
        if (!oggetto->isWidgetType()) {
            return false;  // the window's own bookkeeping of the mouse goes on
        }
        if (tipo == QEvent::MouseButtonPress || tipo == QEvent::MouseButtonDblClick) {
            if (trattenuto().isNull()) {
                deleteLater();  // a new click
                qApp->removeEventFilter(this);
                return false;
            }
            return true;
        }
        if (tipo == QEvent::MouseButtonRelease) {
            deleteLater();
            qApp->removeEventFilter(this);
            return true;
        }
        return false;
    }
};

/// Reads what was typed into a picker or a number and is not complete yet.
void leggiScritto(QWidget& widget) {
    if (auto* numero = qobject_cast<QAbstractSpinBox*>(&widget)) {
        numero->interpretText();
    }
}

}  // namespace

void mostraFallito(QWidget& widget, bool fallito) {
    if (widget.property("fallito").toBool() != fallito) {
        widget.setProperty("fallito", fallito);
        auto* riga = qobject_cast<QLineEdit*>(&widget);
        riga = riga != nullptr ? riga : widget.findChild<QLineEdit*>();
        if (riga != nullptr) {
            riga->setTextMargins(fallito ? misura::segnoErrore + misura::canale : 0, 0, 0, 0);
        }
        widget.style()->unpolish(&widget);
        widget.style()->polish(&widget);
        auto* segno = widget.findChild<SegnoErrore*>();
        (segno == nullptr ? new SegnoErrore(widget) : segno)->setVisible(fallito);
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

void Legame::diRiga(std::function<bool()> funzione) {
    allEscape_ = std::move(funzione);
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

void Legame::fuocoAvuto() {
    if (!trattenuto().isNull() && trattenuto() != &widget_) {
        return;
    }
    trattenuto().clear();
    controllo_.entra();
}

void Legame::fuocoPerso(Qt::FocusReason motivo) {
    // Where the window has moved the focus on, the control was left already.
    if (!trattenuto().isNull() || fuocoDentro() || !widget_.isVisible() || !controllo_.haFuoco()) {
        return;
    }
    leggiScritto(widget_);
    trattenuto() = &widget_;
    const bool uscito = controllo_.lascia();
    if (uscito || !widget_.isVisible()) {
        trattenuto().clear();
        return;
    }
    if (motivo == Qt::MouseFocusReason) {
        new ClicPerso(this);
    }
    // The widget that took the focus is still in its own event: give it back after that.
    QMetaObject::invokeMethod(
        this,
        [this] {
            widget_.setFocus(Qt::OtherFocusReason);
            trattenuto().clear();
        },
        Qt::QueuedConnection);
}

void Legame::vaiAlProssimo() {
    for (QWidget* sopra = widget_.parentWidget(); sopra != nullptr; sopra = sopra->parentWidget()) {
        if (auto* vista = qobject_cast<VistaFinestra*>(sopra)) {
            if (const Controllo* prossimo = vista->finestra().successivo(true)) {
                vista->porta(*prossimo);
            }
            return;
        }
    }
}

bool Legame::tasto(const QKeyEvent& evento) {
    if (evento.key() == Qt::Key_Escape) {
        return allEscape_();
    }
    if ((evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter) &&
        (evento.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        vaiAlProssimo();
        return true;
    }
    return false;
}

bool Legame::eventFilter(QObject* oggetto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::FocusIn:
            fuocoAvuto();
            break;
        case QEvent::FocusOut: {
            const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
            // A menu, a list that drops down, another program: the user has not left the field.
            if (motivo != Qt::PopupFocusReason && motivo != Qt::ActiveWindowFocusReason) {
                fuocoPerso(motivo);
            }
            break;
        }
        case QEvent::ShortcutOverride:
            if (static_cast<QKeyEvent*>(evento)->modifiers().testFlag(Qt::ControlModifier)) {
                leggiScritto(widget_);
            }
            break;
        case QEvent::KeyPress:
            if (allEscape_ && tasto(*static_cast<QKeyEvent*>(evento))) {
                return true;
            }
            break;
        case QEvent::Wheel:
            if (allEscape_ && !widget_.hasFocus()) {
                evento->ignore();
                return true;
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(oggetto, evento);
}

}  // namespace kelvo::ui
