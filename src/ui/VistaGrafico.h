#pragma once

#include <QtWidgets/QWidget>

#include "shell/servizi/Grafico.h"

namespace kelvo::ui {

/// A chart on the screen, as large as its room; its menu comes up at the menu key and the right button, the
/// value below the mouse as a tooltip. However often
/// the chart changes, it is painted once in a turn of the event loop.
class VistaGrafico final : public QWidget {
    Q_OBJECT
public:
    /// `grafico` outlives the view.
    VistaGrafico(const Grafico& grafico, QWidget* genitore);

    /// Takes up what the chart shows now.
    void aggiorna();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    const Grafico& grafico_;
};

/// Binder of a chart, as those of ui/legami.h.
VistaGrafico* collega(Grafico& grafico, QWidget* genitore);

}  // namespace kelvo::ui
