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
QListWidget* collega(Elenco& elenco, QWidget* genitore);
QListWidget* collega(ElencoSpunte& elenco, QWidget* genitore);
QSlider* collega(Scorrimento& scorrimento, QWidget* genitore);
/// `pagine`: what stands under each tab, as many as tabs.
QTabWidget* collega(Schede& schede, const std::vector<QWidget*>& pagine, QWidget* genitore);
QFrame* collega(CampioneColore& campione, QWidget* genitore);
/// A titled panel; what stands in it is laid out by the view.
Pannello* collega(Riquadro& riquadro, QWidget* genitore);

}  // namespace kelvo::ui
