#pragma once

#include <QtWidgets/QWidget>

#include "shell/servizi/Finestra.h"

namespace kelvo::ui {

/// The mark of a window whose data are not those of the project: a dot behind the words of the caption panel.
class SegnoDati final : public QWidget {
    Q_OBJECT
public:
    /// `titolo` is the widget of the caption panel; the dot stands on it.
    SegnoDati(Finestra& finestra, QWidget& titolo);
    ~SegnoDati() override;
    SegnoDati(const SegnoDati&) = delete;
    SegnoDati& operator=(const SegnoDati&) = delete;

protected:
    void paintEvent(QPaintEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void colloca();

    Finestra& finestra_;
    sigc::connection legame_;
};

}  // namespace kelvo::ui
