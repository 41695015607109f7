#include "disegno/paginePDF.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtGui/QPolygonF>
#include <QtGui/QTextLayout>
#include <cmath>
#include <numbers>

#include "disegno/caratteri.h"
#include "disegno/pittoreGrafico.h"
#include "disegno/pittorePianta.h"
#include "shell/servizi/tinte.h"

namespace kelvo::disegno {

namespace {

using D = DocumentoPagine;
using Segno = D::Segno;

/// A logical pixel of charts and plans: 96 to the inch.
constexpr double pixel = punto * 72.0 / 96.0;
constexpr Colore giallo{255, 210, 77};

QPolygonF ottagono(const QRectF& dove) {
    QPolygonF forma;
    for (int i = 0; i < 8; ++i) {
        const double angolo = (2 * i + 1) * std::numbers::pi / 8.0;
        const double raggio = dove.width() / 2.0 / std::cos(std::numbers::pi / 8.0);
        forma << dove.center() + QPointF(std::cos(angolo), std::sin(angolo)) * raggio;
    }
    return forma;
}

/// A stroke in a square that is told from 0 to 1.
void tratto(QPainter& pennello, const QRectF& dove, QPointF da, QPointF a) {
    const auto posto = [&](QPointF p) {
        return QPointF(dove.left() + p.x() * dove.width(), dove.top() + p.y() * dove.height());
    };
    pennello.drawLine(posto(da), posto(a));
}

void dipingiSegno(QPainter& pennello, const PaginaImpaginata::Segno& segno) {
    const QRectF& dove = segno.dove;
    const auto penna = [&](const QColor& colore) {
        pennello.setPen(QPen(colore, dove.width() * 0.12, Qt::SolidLine, Qt::RoundCap));
    };
    pennello.setPen(Qt::NoPen);
    switch (segno.segno) {
        case Segno::errore:
            pennello.setBrush(qcolore(tinta::errore));
            pennello.drawPolygon(ottagono(dove));
            penna(Qt::white);
            tratto(pennello, dove, {0.32, 0.32}, {0.68, 0.68});
            tratto(pennello, dove, {0.68, 0.32}, {0.32, 0.68});
            break;
        case Segno::verifica:
            pennello.setBrush(qcolore(giallo));
            pennello.setPen(QPen(qcolore(tinta::grafite), dove.width() * 0.06));
            pennello.drawPolygon(
                QPolygonF{{dove.bottomLeft(), dove.bottomRight(), QPointF(dove.center().x(), dove.top())}});
            penna(qcolore(tinta::inchiostro));
            tratto(pennello, dove, {0.5, 0.38}, {0.5, 0.64});
            tratto(pennello, dove, {0.5, 0.83}, {0.5, 0.84});
            break;
        case Segno::informazione:
            pennello.setBrush(qcolore(tinta::verde));
            pennello.drawEllipse(dove);
            penna(Qt::white);
            tratto(pennello, dove, {0.5, 0.46}, {0.5, 0.74});
            tratto(pennello, dove, {0.5, 0.26}, {0.5, 0.27});
            break;
        case Segno::nessuno:
            break;
    }
}

void dipingiCasella(QPainter& pennello, const PaginaImpaginata::Casella& casella) {
    const QRectF& dove = casella.dove;
    pennello.setBrush(Qt::white);
    pennello.setPen(QPen(qcolore(tinta::inchiostro), dove.width() * 0.08));
    pennello.drawRect(dove);
    if (casella.spuntata) {
        pennello.setPen(QPen(qcolore(tinta::inchiostro), dove.width() * 0.16, Qt::SolidLine, Qt::RoundCap));
        tratto(pennello, dove, {0.22, 0.52}, {0.42, 0.74});
        tratto(pennello, dove, {0.42, 0.74}, {0.8, 0.26});
    }
}

/// The plan that fills a space: its remarks have their strip at the foot, the picture what is left above.
pianta::Pianta piantaPer(const D::Pianta& soggetto, const QSizeF& spazio) {
    pianta::OpzioniPianta opzioni = *soggetto.opzioni;
    opzioni.rapporto = spazio.width() / spazio.height();
    const double parte = pianta::parteVista(pianta::costruisci(*soggetto.dati, opzioni));
    opzioni.rapporto /= parte;
    return pianta::costruisci(*soggetto.dati, opzioni);
}

/// Pictures in logical pixels, so that their type is as large as on a screen.
void dipingiFigura(QPainter& pennello, const PaginaImpaginata::Figura& figura) {
    pennello.save();
    pennello.translate(figura.dove.topLeft());
    pennello.scale(pixel, pixel);
    const QRectF spazio(QPointF(0.0, 0.0), figura.dove.size() / pixel);
    if (const auto* grafico = std::get_if<Grafico::Contenuto>(&figura.figura->contenuto)) {
        dipingiGrafico(pennello, *grafico, spazio);
    } else if (const auto* pianta = std::get_if<D::Pianta>(&figura.figura->contenuto)) {
        dipingiPianta(pennello, piantaPer(*pianta, spazio.size()), spazio);
    } else if (const auto* immagine = std::get_if<D::Immagine>(&figura.figura->contenuto)) {
        const QImage letta = QImage::fromData(QByteArray::fromStdString(immagine->png), "PNG");
        if (!letta.isNull()) {
            const QSizeF misura = QSizeF(letta.size()).scaled(spazio.size(), Qt::KeepAspectRatio);
            QRectF dove(QPointF(0.0, 0.0), misura);
            dove.moveCenter(spazio.center());
            pennello.drawImage(dove, letta);
        }
    }
    pennello.restore();
}

}  // namespace

void dipingiPagina(QPainter& pennello, const Impaginato& impaginato, std::size_t pagina, const QRectF& spazio) {
    const PaginaImpaginata& contenuto = impaginato.pagine.at(pagina);
    pennello.save();
    pennello.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    pennello.translate(spazio.topLeft());
    pennello.scale(spazio.width() / contenuto.foglio.width(), spazio.height() / contenuto.foglio.height());
    for (const PaginaImpaginata::Fondo& fondo : contenuto.fondi) {
        pennello.fillRect(fondo.dove, fondo.colore);
    }
    for (const PaginaImpaginata::Brano& brano : contenuto.brani) {
        const QPointF angolo = brano.posto - QPointF(0.0, brano.testo->lineAt(brano.da).y());
        for (int riga = brano.da; riga < brano.a; ++riga) {
            brano.testo->lineAt(riga).draw(&pennello, angolo);
        }
    }
    for (const PaginaImpaginata::Segno& segno : contenuto.segni) {
        dipingiSegno(pennello, segno);
    }
    for (const PaginaImpaginata::Casella& casella : contenuto.caselle) {
        dipingiCasella(pennello, casella);
    }
    for (const PaginaImpaginata::Figura& figura : contenuto.figure) {
        dipingiFigura(pennello, figura);
    }
    pennello.restore();
}

QPageLayout::Orientation verso(const Impaginato& impaginato, std::size_t pagina) {
    const QSizeF foglio = impaginato.pagine.at(pagina).foglio;
    return foglio.width() > foglio.height() ? QPageLayout::Landscape : QPageLayout::Portrait;
}

EsitoDisegno pdfPagine(const DocumentoPagine& documento) {
    const Impaginato impaginato = impagina(documento);
    QByteArray byte;
    QBuffer memoria(&byte);
    memoria.open(QIODevice::WriteOnly);
    QPdfWriter scrittore(&memoria);
    constexpr int fine = 1200;
    scrittore.setResolution(fine);
    const auto volta = [&](std::size_t pagina) {
        scrittore.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), verso(impaginato, pagina), QMarginsF()));
    };
    volta(0);
    scrittore.setTitle(QString::fromStdString(documento.titolo));
    scrittore.setCreator(QStringLiteral("Kelvo"));
    QPainter pennello;
    if (!pennello.begin(&scrittore)) {
        return {.dati = {}, .errore = "impossibile comporre il documento"};
    }
    for (std::size_t i = 0; i < impaginato.pagine.size(); ++i) {
        if (i > 0) {
            volta(i);
            scrittore.newPage();
        }
        dipingiPagina(pennello, impaginato, i, QRectF(0.0, 0.0, scrittore.width(), scrittore.height()));
    }
    pennello.end();
    return {.dati = byte.toStdString(), .errore = {}};
}

}  // namespace kelvo::disegno
