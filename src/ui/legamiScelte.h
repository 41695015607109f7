#pragma once

#include <QtCore/Qt>
#include <vector>

#include "shell/servizi/controlli.h"
#include "shell/servizi/scelte.h"

class QFrame;
class QListWidget;
class QSlider;
class QTabWidget;
class QWidget;

/// Binders of the controls to choose by, as those of ui/legami.h.
namespace kelvo::ui {

class Pannello;

/// Each option is a button of its own name; they stand below one another, or side by side.
QWidget* collega(GruppoOpzioni& gruppo, QWidget* genitore, Qt::Orientation verso = Qt::Vertical);
/// Turns the options of a group, as `collega` made it, into a column or a line.
void verso(QWidget& gruppo, Qt::Orientation orientamento);
QListWidget* collega(Elenco& elenco, QWidget* genitore);
/// How a list with check boxes is shown: framed, with the row at hand marked; or flat, like check boxes of their own.
enum class FormaElenco { incorniciato, piatto };
/// As high as its lines; a click anywhere on a line ticks it.
QListWidget* collega(ElencoSpunte& elenco, QWidget* genitore, FormaElenco forma = FormaElenco::incorniciato);
QSlider* collega(Scorrimento& scorrimento, QWidget* genitore);
/// `pagine`: what stands under each tab, as many as tabs.
QTabWidget* collega(Schede& schede, const std::vector<QWidget*>& pagine, QWidget* genitore);
QFrame* collega(CampioneColore& campione, QWidget* genitore);
/// A titled panel; what stands in it is laid out by the view.
Pannello* collega(Riquadro& riquadro, QWidget* genitore);

}  // namespace kelvo::ui
