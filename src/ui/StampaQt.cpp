#include "ui/StampaQt.h"

#include <QtGui/QPainter>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>
#include <algorithm>

#include "disegno/paginePDF.h"
#include "ui/legami.h"

namespace kelvo::ui {

EsitoDisegno StampaQt::pdf(const DocumentoPagine& documento) {
    return disegno::pdfPagine(documento);
}

EsitoStampa StampaQt::stampa(const DocumentoPagine& documento) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setPageSize(QPageSize(QPageSize::A4));
    stampante.setPageOrientation(documento.orizzontale ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dialogo(&stampante, QApplication::activeWindow());
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange);
    dialogo.setMinMax(1, static_cast<int>(disegno::impagina(documento).pagine.size()));
    if (dialogo.exec() != QDialog::Accepted) {
        return {.annullata = true};
    }
    return stampaSu(stampante, documento);
}

EsitoStampa StampaQt::stampaSu(QPrinter& stampante, const DocumentoPagine& documento) {
    const disegno::Impaginato impaginato = disegno::impagina(documento);
    const int ultima = static_cast<int>(impaginato.pagine.size());
    const int da = std::clamp(stampante.fromPage(), 1, ultima);
    const int a = stampante.toPage() == 0 ? ultima : std::clamp(stampante.toPage(), da, ultima);
    stampante.setDocName(q(documento.titolo));
    stampante.setCreator(QStringLiteral("Kelvo"));
    stampante.setFullPage(true);
    QPainter pennello;
    if (!pennello.begin(&stampante)) {
        return {.errore = "la stampante non risponde"};
    }
    const QRectF carta(QPointF(0.0, 0.0), stampante.paperRect(QPrinter::DevicePixel).size());
    QRectF pagina(QPointF(0.0, 0.0), impaginato.foglio.scaled(carta.size(), Qt::KeepAspectRatio));
    pagina.moveCenter(carta.center());
    for (int i = da; i <= a; ++i) {
        if (i > da && !stampante.newPage()) {
            return {.errore = "la stampante ha interrotto il lavoro"};
        }
        disegno::dipingiPagina(pennello, impaginato, static_cast<std::size_t>(i - 1), pagina);
    }
    return pennello.end() ? EsitoStampa{} : EsitoStampa{.errore = "la stampante ha interrotto il lavoro"};
}

}  // namespace kelvo::ui
