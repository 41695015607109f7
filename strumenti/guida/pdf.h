#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include "guida/fogli.h"

namespace kelvo::guida {

/// What a viewer tells of the file.
struct Proprieta {
    QString titolo;
    QString argomento;
    QString autore;
    QString lingua;  ///< "it-IT"
};

/// The sheets as a PDF of A4 pages, with a list of chapters and sections for the viewer. The same sheets always give
/// the same bytes: no time goes into them. Raises std::runtime_error where nothing can be painted.
QByteArray pdfDi(const Fogli& fogli, const Proprieta& proprieta);

}  // namespace kelvo::guida
