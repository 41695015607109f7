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
    const disegno::Impaginato impaginato = disegno::impagina(documento);
    stampante.setPageOrientation(disegno::verso(impaginato, 0));
    QPrintDialog dialogo(&stampante, QApplication::activeWindow());
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange);
    dialogo.setMinMax(1, static_cast<int>(impaginato.pagine.size()));
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
    const bool misto = std::any_of(impaginato.pagine.begin(), impaginato.pagine.end(),
                                   [&](const auto& pagina) { return pagina.foglio != impaginato.pagine[0].foglio; });
    stampante.setDocName(q(documento.titolo));
    stampante.setCreator(QStringLiteral("Kelvo"));
    stampante.setFullPage(true);
    // Pages that lie among others that stand; where all are alike, the paper is as it was chosen.
    const auto volta = [&](int pagina) {
        if (misto) {
            stampante.setPageOrientation(disegno::verso(impaginato, static_cast<std::size_t>(pagina - 1)));
        }
    };
    volta(da);
    QPainter pennello;
    if (!pennello.begin(&stampante)) {
        return {.errore = "la stampante non risponde"};
    }
    for (int i = da; i <= a; ++i) {
        volta(i);
        if (i > da && !stampante.newPage()) {
            return {.errore = "la stampante ha interrotto il lavoro"};
        }
        const auto quale = static_cast<std::size_t>(i - 1);
        const QRectF carta(QPointF(0.0, 0.0), stampante.paperRect(QPrinter::DevicePixel).size());
        QRectF pagina(QPointF(0.0, 0.0), impaginato.pagine[quale].foglio.scaled(carta.size(), Qt::KeepAspectRatio));
        pagina.moveCenter(carta.center());
        disegno::dipingiPagina(pennello, impaginato, quale, pagina);
    }
    return pennello.end() ? EsitoStampa{} : EsitoStampa{.errore = "la stampante ha interrotto il lavoro"};
}

}  // namespace kelvo::ui
