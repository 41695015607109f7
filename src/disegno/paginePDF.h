#pragma once

#include <QtGui/QPageLayout>
#include <cstddef>

#include "disegno/impaginazione.h"

class QPainter;

namespace kelvo::disegno {

/// Paints a page (from 0) of a document that was laid out, so that it fills `spazio`; no ground behind it.
void dipingiPagina(QPainter& pennello, const Impaginato& impaginato, std::size_t pagina, const QRectF& spazio);

/// How a page (from 0) stands.
QPageLayout::Orientation verso(const Impaginato& impaginato, std::size_t pagina);

/// The document as a PDF file of A4 pages.
EsitoDisegno pdfPagine(const DocumentoPagine& documento);

}  // namespace kelvo::disegno
