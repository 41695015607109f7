#pragma once

#include <QtCore/QString>
#include <string>

#include "shell/servizi/controlli.h"

class QTextBrowser;
class QTextDocument;
class QUrl;
class QWidget;

namespace kelvo::ui {

/// The folder of the help pages.
void cartellaAiuto(const std::string& cartella);
/// The text of a help page, found without regard to case; where it cannot be read, a page that says so. A blank name
/// gives nothing.
QString testoPagina(const QString& pagina);
/// Gives a document the look of all pages: sizes and colours stand here, words and order in the pages.
void vestiPagina(QTextDocument& documento);

/// Where a link leads: the file name of a page, else the whole address, percent-encoded.
std::string meta(const QUrl& collegamento);

/// Shows a page whose links are handed to the control, by mouse and by Tab and Enter.
QTextBrowser* collega(VisorePagina& pagina, QWidget* genitore);

}  // namespace kelvo::ui
