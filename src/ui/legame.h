#pragma once

#include <QtCore/QObject>
#include <QtWidgets/QWidget>
#include <functional>

#include "shell/servizi/Controllo.h"

class QKeyEvent;

namespace kelvo::ui {

/// Shows the failed state of a field, which the style sheet paints.
void mostraFallito(QWidget& widget, bool fallito);

/// Ties a widget to its control for as long as the widget lives: name, visible and enabled flags, focus, and a
/// function that shows the control's content. The focus may move inside the widget: it is left when the focus goes
/// elsewhere. A part that takes the focus itself is handed to `parte`.
///
/// A field that refuses to be left gets the keyboard back. Until it has it, no other widget that is bound is entered or
/// left, and the click that tried to leave does nothing.
class Legame : public QObject {
    Q_OBJECT
public:
    Legame(Controllo& controllo, QWidget& oggetto);
    ~Legame() override;
    Legame(const Legame&) = delete;
    Legame& operator=(const Legame&) = delete;

    /// What the widget shows of the control; runs at once and after each change.
    void mostra(std::function<void()> funzione);
    /// A part of the widget that takes the focus in its stead.
    void parte(QWidget& oggetto) { oggetto.installEventFilter(this); }
    /// Makes the widget a field of one line: Enter goes to the next one, Escape runs `funzione`, which puts back what
    /// stood there and tells if it did anything; the wheel turns nothing that has not the keyboard.
    void diRiga(std::function<bool()> funzione);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void aggiorna();
    bool fuocoDentro() const;
    void fuocoAvuto();
    void fuocoPerso(Qt::FocusReason motivo);
    bool tasto(const QKeyEvent& evento);
    void vaiAlProssimo();

    Controllo& controllo_;
    QWidget& widget_;
    std::function<void()> funzione_;
    std::function<bool()> allEscape_;
    sigc::connection legame_;
};

}  // namespace kelvo::ui
