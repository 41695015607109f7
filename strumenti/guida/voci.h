#pragma once

#include <QtCore/QString>
#include <optional>

#include "guida/Documento.h"

namespace kelvo::guida {

/// The properties of an object of the project file, in their order, each with its type, the value that it takes where
/// it is missing, and what it is: "progetto", "ramo", "traffico", "composizione" or "analisi". Nothing for any other
/// name.
std::optional<Tabella> tavolaVoci(const QString& oggetto);

}  // namespace kelvo::guida
