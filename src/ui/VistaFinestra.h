#pragma once

#include <QtCore/QString>
#include <QtWidgets/QWidget>
#include <memory>
#include <string_view>

#include "shell/servizi/Finestra.h"

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace kelvo::ui {

/// A titled panel with one row a field: label, field, unit, allowed range.
class Pannello final : public QWidget {
    Q_OBJECT
public:
    Pannello(const QString& titolo, QWidget* genitore);

    /// Appends a row with a field on the right of its label; the mnemonic of the label leads to the field.
    void riga(const std::string& etichetta, QWidget* campo, const QString& unita = {}, const QString& limiti = {});
    /// Appends something that takes the whole row.
    void larga(QWidget* oggetto);

private:
    QGridLayout* griglia_;
    int righe_ = 0;
};

/// View of a window: its caption panel and tool bar in one band, its body below.
class VistaFinestra : public QWidget {
    Q_OBJECT
public:
    VistaFinestra(Finestra& finestra, QWidget* genitore);

    Finestra& finestra() { return finestra_; }
    /// Puts the keyboard on the first control of the tab order.
    void fuocoIniziale();

protected:
    /// Column of panels of a data window, at the left of the body.
    QVBoxLayout* colonna() { return colonna_; }
    QWidget* corpo() { return corpo_; }
    /// Room at the right of the column.
    QVBoxLayout* destra() { return destra_; }
    /// Sets the tab order to that of the window's controls; called at the end of the view's constructor.
    void chiudiDisposizione();

private:
    QWidget* fascia();

    Finestra& finestra_;
    QWidget* corpo_ = nullptr;
    QVBoxLayout* colonna_ = nullptr;
    QVBoxLayout* destra_ = nullptr;
};

/// The view of a window, by the window's name; null for a window that has none.
VistaFinestra* creaVista(Finestra& finestra, QWidget* genitore);

}  // namespace kelvo::ui
