#pragma once

#include <QtWidgets/QWidget>

#include "shell/servizi/Finestra.h"

namespace kelvo::ui {

/// The caption panel of a window: what it reads, then after a thin line what it shows (the name of a leg) in the light
/// face. Where there is no room both are cut in the middle, the name first.
class PannelloTitolo final : public QWidget {
    Q_OBJECT
public:
    PannelloTitolo(Finestra& finestra, QWidget* genitore);
    ~PannelloTitolo() override;
    PannelloTitolo(const PannelloTitolo&) = delete;
    PannelloTitolo& operator=(const PannelloTitolo&) = delete;

    /// Where the words end, in the widget's own pixels; never beyond its edge.
    int fineParole() const;

Q_SIGNALS:
    /// The words are others.
    void mutato();

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    /// The words as they are shown, and where.
    struct Parole {
        QString titolo;
        QString ramo;
        int inizioRamo = 0;  ///< left edge of the name
        int fine = 0;
    };
    Parole parole() const;
    void aggiorna();

    Finestra& finestra_;
    sigc::connection legame_;
};

}  // namespace kelvo::ui
