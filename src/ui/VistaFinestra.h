#pragma once

#include <QtCore/QString>
#include <QtWidgets/QWidget>
#include <memory>
#include <string_view>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/clsResize.h"

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace kelvo::ui {

class DisposizioneProporzionale;

/// A titled panel with one row a field: label, field, unit, allowed range.
class Pannello final : public QWidget {
    Q_OBJECT
public:
    Pannello(const QString& titolo, QWidget* genitore);

    /// Appends a row with a field on the right of its label, which is bound; its mnemonic leads to the field.
    void riga(Etichetta& etichetta, QWidget* campo, const QString& unita = {}, const QString& limiti = {});
    /// Appends something that takes the whole row.
    void larga(QWidget* oggetto);

private:
    QVBoxLayout* dentro_ = nullptr;
    QGridLayout* griglia_ = nullptr;
    int righe_ = 0;
};

/// View of a window: its caption panel and tool bar in one band, its body below. The keyboard follows the focus of the
/// window.
class VistaFinestra : public QWidget {
    Q_OBJECT
public:
    /// `disegno` is the size of the body, margins left out, that the places of the panels are told for.
    VistaFinestra(Finestra& finestra, QWidget* genitore, Misura disegno = disegnoFinestra);
    ~VistaFinestra() override;
    VistaFinestra(const VistaFinestra&) = delete;
    VistaFinestra& operator=(const VistaFinestra&) = delete;

    Finestra& finestra() { return finestra_; }
    /// Puts the keyboard on the control that has the focus of the window, else on the first one of the tab order.
    void fuocoIniziale();
    /// Puts the keyboard on a control, all its text selected.
    void porta(const Controllo& controllo);
    /// Places the panels anew, in proportion to the size of the view.
    void ridimensiona();

protected:
    /// Inside of a window of the work area of a frame of 1280 x 800.
    static constexpr Misura disegnoFinestra{952.0, 616.0};

    QWidget* corpo() { return corpo_; }
    /// Places a panel in the body, by its rectangle in the design.
    void colloca(QWidget* pannello, const Rettangolo& posto);
    /// A column without a border, placed as a panel is.
    QVBoxLayout* colonna(const Rettangolo& posto);
    /// Sets the tab order to that of the window's controls; called at the end of the view's constructor.
    void chiudiDisposizione();

private:
    QWidget* fascia();
    QWidget* widgetDi(const Controllo& controllo) const;

    Finestra& finestra_;
    QWidget* corpo_ = nullptr;
    DisposizioneProporzionale* piano_ = nullptr;
    sigc::connection legameFuoco_;
};

/// The view of a window, by the window's name; null for a window that has none.
VistaFinestra* creaVista(Finestra& finestra, QWidget* genitore);

}  // namespace kelvo::ui
