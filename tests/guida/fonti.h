#pragma once

#include <QtCore/QString>
#include <string>

#include "guida/Documento.h"
#include "guida/lettore.h"

namespace kelvo::prove {

/// Whole path of a source below assets/Guida.
QString fonte(const QString& nome);

/// Sources whose figures and outputs are all empty, for tests of their text; the tables are the program's own.
guida::Fonti fontiVuote();

/// A document of the repository, read with `fontiVuote`.
guida::Documento documento(const QString& nome);

/// Everything that the document tells, its marks included, a block a line.
QString testo(const guida::Documento& documento);

/// A document from a text of its own.
guida::Documento daTesto(const std::string& testo, const guida::Fonti& fonti = fontiVuote());

}  // namespace kelvo::prove
