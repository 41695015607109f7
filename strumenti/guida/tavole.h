#pragma once

#include <QtCore/QString>

#include "guida/Documento.h"

namespace kelvo::guida {

/// A table made of the program's own data: "scorciatoie", "menu", "barra", "misure", and "voci-" with an
/// object of the project file behind. Raises std::runtime_error for any other name.
Tabella tavola(const QString& nome);

}  // namespace kelvo::guida
