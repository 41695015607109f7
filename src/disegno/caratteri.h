#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <string>

#include "base/Tabella.h"

namespace kelvo::disegno {

/// Makes the faces in a folder known to the program; once is enough. False if there is none.
bool caricaCaratteri(const QString& cartella);

/// Faces of the type at a size in logical pixels (at least 1).
QFont dati(double pixel);
QFont forte(double pixel);

QColor qcolore(Colore colore);

}  // namespace kelvo::disegno
