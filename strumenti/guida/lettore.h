#pragma once

#include <QtCore/QString>
#include <functional>

#include "guida/Documento.h"

namespace kelvo::guida {

/// What the sources take from outside themselves. Each raises std::runtime_error for a name that it does not know.
struct Fonti {
    std::function<QString(const QString&)> valore;    ///< what {{name}} stands for
    std::function<Tabella(const QString&)> tavola;    ///< the table of "@tavola name"
    std::function<QString(const QString&)> uscita;    ///< what "@uscita command" prints
    std::function<QString(const QString&)> dovunque;  ///< text of a file of the repository, for "@documento"
};

/// Reads a document: a head of lines "name: value" that "---" closes, then blocks with an empty line between them.
///
///     # Chapter {#anchor}            ## Section {#anchor finestra=frmName}       ### Part
///     - item, 1. item                > remark                                    ``` lines as they are ```
///     | table | (second row: |---|---:|)        $$ formula $$
///     ![caption](picture){intera larghezza=0.6 ritaglio=x,y,w,h}
///     @includi FILE   @tavola NAME   @uscita COMMAND   @documento FILE # Heading   @pagina
///
/// Raises std::runtime_error with file and line for what it cannot read.
Documento leggi(const QString& percorso, const Fonti& fonti);

}  // namespace kelvo::guida
