#pragma once

#include <QtWidgets/QWidget>

#include "shell/servizi/Finestra.h"

namespace kelvo::ui {

class PannelloTitolo;

/// The mark of a window whose data are not those of the project: a dot behind the words of the caption panel.
class SegnoDati final : public QWidget {
    Q_OBJECT
public:
    /// The dot stands on the caption panel.
    SegnoDati(Finestra& finestra, PannelloTitolo& titolo);

protected:
    void paintEvent(QPaintEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void colloca();

    Finestra& finestra_;
    PannelloTitolo& titolo_;
};

}  // namespace kelvo::ui
