#pragma once

#include <QtCore/QObject>
#include <QtWidgets/QWidget>
#include <functional>

#include "shell/servizi/Controllo.h"

namespace kelvo::ui {

/// Shows the failed state of a field, which the style sheet paints.
void mostraFallito(QWidget& widget, bool fallito);

/// Ties a widget to its control for as long as the widget lives: name, visible and enabled flags, focus, and a
/// function that shows the control's content. The focus may move inside the widget: it is left when the focus goes
/// elsewhere. A part that takes the focus itself is handed to `parte`.
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
    /// Keys of a field: Enter goes to the next one, Escape puts back what stood there.
    std::function<void()> allEscape;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void aggiorna();
    bool fuocoPerso();
    bool fuocoDentro() const;

    Controllo& controllo_;
    QWidget& widget_;
    std::function<void()> funzione_;
    sigc::connection legame_;
    bool inUscita_ = false;
};

}  // namespace kelvo::ui
