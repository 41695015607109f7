#pragma once

#include <QtCore/QObject>
#include <QtWidgets/QWidget>
#include <functional>

#include "shell/servizi/Controllo.h"

namespace kelvo::ui {

/// Ties a widget to its control for as long as the widget lives: name, visible and enabled flags, focus, and a
/// function that shows the control's content.
class Legame : public QObject {
    Q_OBJECT
public:
    Legame(Controllo& controllo, QWidget& oggetto);
    ~Legame() override;
    Legame(const Legame&) = delete;
    Legame& operator=(const Legame&) = delete;

    /// What the widget shows of the control; runs at once and after each change.
    void mostra(std::function<void()> funzione);
    /// Keys of a field: Enter goes to the next one, Escape puts back what stood there.
    std::function<void()> allEscape;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void aggiorna();
    bool fuocoPerso();

    Controllo& controllo_;
    QWidget& widget_;
    std::function<void()> funzione_;
    sigc::connection legame_;
    bool inUscita_ = false;
};

}  // namespace kelvo::ui
