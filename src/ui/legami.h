#pragma once

#include <QtCore/QString>
#include <string>

#include "shell/servizi/ElencoColonne.h"
#include "shell/servizi/controlli.h"
#include "shell/servizi/tBox.h"

class QAbstractButton;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QSpinBox;
class QToolBar;
class QTreeWidget;
class QWidget;

/// One binder for each kind of control: makes the widget that shows it, hands the user's gestures to the control and
/// follows its changes. The widget bears the control's name and dies with its parent; the control must outlive it.
namespace kelvo::ui {

QString q(const std::string& testo);
std::string s(const QString& testo);

/// Underlines a letter of a label or a button and makes it its mnemonic; it stays where the text changes and still
/// holds it.
void mnemonico(QLabel& etichetta, QChar lettera);
void mnemonico(QAbstractButton& bottone, QChar lettera);
/// A text as a button shows it: "&" is a letter like others, and the button's mnemonic is marked.
QString testoBottone(const QAbstractButton& bottone, const std::string& testo);

QWidget* collega(tBox& campo, QWidget* genitore);
QPlainTextEdit* collega(AreaTesto& area, QWidget* genitore);
QLabel* collega(Etichetta& etichetta, QWidget* genitore);
QAbstractButton* collega(Bottone& bottone, QWidget* genitore);
QAbstractButton* collega(Casella& casella, QWidget* genitore);
QSpinBox* collega(Spin& spin, QWidget* genitore);
QLabel* collega(Immagine& immagine, QWidget* genitore);
QProgressBar* collega(BarraProgresso& barra, QWidget* genitore);
QTreeWidget* collega(ElencoColonne& elenco, QWidget* genitore);
/// Ground of a tool bar: the main colour, or a light strip below it.
enum class FondoBarra { blu, chiaro };
/// `lato` is the size of its icons; with `conTesto` the word stands beside the icon.
QToolBar* collega(BarraStrumenti& barra, QWidget* genitore, int lato, bool conTesto,
                  FondoBarra fondo = FondoBarra::blu);

}  // namespace kelvo::ui
