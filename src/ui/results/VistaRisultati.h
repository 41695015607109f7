#pragma once

#include "results/FinestraRisultati.h"
#include "shell/servizi/scelte.h"
#include "ui/VistaFinestra.h"

class QVBoxLayout;

namespace kelvo::ui {

class VistaGriglia;

/// What the views of the result windows share: above the figures a strip of notes, which is not there while there is
/// nothing to note; below them one line with what is in force, which opens to a table, and the button that copies and
/// saves; at the right a column of fixed width.
class VistaRisultati : public VistaFinestra {
    Q_OBJECT
public:
    VistaRisultati(FinestraRisultati& finestra, QWidget* genitore);

protected:
    /// Room of tables and charts.
    QVBoxLayout* figure() { return figure_; }
    /// Column at the right; made when it is first asked for.
    QVBoxLayout* lato();
    /// Puts a tool bar in a light strip below the caption.
    void secondaBarra(BarraStrumenti& barra);
    /// Binds a table; the button that calculates stands in its middle while there are no figures.
    VistaGriglia* tabella(Griglia& griglia, QWidget* genitore);
    /// Puts the button that calculates in the middle of a widget; it is there while there are no figures.
    void invita(QWidget& sotto);
    /// Ctrl+Tab goes on to the next tab and Ctrl+Shift+Tab back, from wherever the keyboard is in the window.
    void scorciatoieSchede(Schede& schede);
    /// Closes the layout: lines below the figures, tab order.
    void chiudi();

private:
    QWidget* note();
    QWidget* piede();

    FinestraRisultati& f_;
    QWidget* tutto_ = nullptr;
    QVBoxLayout* colonnaFigure_ = nullptr;
    QVBoxLayout* figure_ = nullptr;
    QVBoxLayout* lato_ = nullptr;
};

}  // namespace kelvo::ui
