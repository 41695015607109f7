#include "ui/PittoreCelle.h"

#include <QtCore/QStringList>
#include <QtGui/QPaintDevice>
#include <QtGui/QPainter>
#include <QtGui/QPolygonF>
#include <algorithm>
#include <cmath>

#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

using Segno = OrnamentoCella::Segno;

constexpr double puntiCella = 10.0;
constexpr int altezzaMinima = 20;
constexpr int ariaStretta = 4;
constexpr int margine = 12;
constexpr int margineStretto = 8;
constexpr int colonnaStretta = 96;
constexpr double latoSegno = 10.0;
constexpr double barraLato = 3.0;
constexpr double bordoCorrente = 2.0;
constexpr double latoCasella = 15.0;
constexpr QSizeF misuraDistintivo{26.0, 18.0};
constexpr double raggio = 2.0;
constexpr int altezzaSenzaFine = 100000;

int margineDi(int larghezza) {
    return larghezza < colonnaStretta ? margineStretto : margine;
}

/// A line of one logical pixel on whole pixels of the screen.
double filo(const QPainter& pittore) {
    const double rapporto = pittore.device()->devicePixelRatioF();
    return std::max(1.0, std::floor(rapporto)) / rapporto;
}

void triangolo(QPainter& pittore, const QRectF& posto, bool su) {
    const QPolygonF forma =
        su ? QPolygonF{{posto.bottomLeft(), posto.bottomRight(), QPointF(posto.center().x(), posto.top())}}
           : QPolygonF{{posto.topLeft(), posto.topRight(), QPointF(posto.center().x(), posto.bottom())}};
    pittore.drawPolygon(forma);
}

/// Rows enter at the left, columns leave at the top: the two halves of the corner of a matrix.
void frecceAngolo(QPainter& pittore, const QRectF& posto) {
    const double passo = std::min(posto.width(), posto.height()) / 4.0;
    const double punta = passo / 2.0;
    pittore.drawLine(posto.topLeft(), posto.bottomRight());
    const QPointF destra(posto.left() + 2.0 * passo + punta, posto.bottom() - passo);
    pittore.drawLine(QPointF(destra.x() - 1.5 * passo, destra.y()), destra);
    pittore.drawPolyline(QPolygonF{{destra + QPointF(-punta, -punta), destra, destra + QPointF(-punta, punta)}});
    const QPointF giu(posto.right() - passo, posto.top() + 2.0 * passo);
    pittore.drawLine(QPointF(giu.x(), giu.y() - 1.5 * passo), giu);
    pittore.drawPolyline(QPolygonF{{giu + QPointF(-punta, -punta), giu, giu + QPointF(punta, -punta)}});
}

/// A tick box as those of the other windows, in the middle of a cell.
void dipingiCasella(QPainter& pittore, const QRectF& posto, bool spuntata) {
    QRectF quadro(0.0, 0.0, latoCasella, latoCasella);
    quadro.moveTopLeft(QPointF(std::round(posto.center().x() - latoCasella / 2.0) + 0.5,
                               std::round(posto.center().y() - latoCasella / 2.0) + 0.5));
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(QPen(qcolore(spuntata ? tinta::principale : tinta::bordoCampo), 1.0));
    pittore.setBrush(spuntata ? qcolore(tinta::principale) : QColor(Qt::white));
    pittore.drawRoundedRect(quadro, raggio, raggio);
    if (spuntata) {
        const auto punto = [&](double x, double y) {
            return QPointF(quadro.left() + x * latoCasella, quadro.top() + y * latoCasella);
        };
        pittore.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pittore.setBrush(Qt::NoBrush);
        pittore.drawPolyline(QPolygonF{{punto(0.22, 0.52), punto(0.43, 0.72), punto(0.78, 0.3)}});
    }
    pittore.restore();
}

}  // namespace

PittoreCelle::PittoreCelle(const Griglia& griglia)
    : griglia_(griglia), normale_(dati(puntiCella)), forte_(forte(puntiCella)), testata_(forte(punti::barra)) {}

void PittoreCelle::testate(bool strette) {
    testata_ = Faccia(forte(strette ? punti::nota : punti::barra));
    aria_ = strette ? ariaStretta : ariaLarga;
}

OrnamentoCella PittoreCelle::ornamento(Posto cella) const {
    return griglia_.ornamento ? griglia_.ornamento(cella) : OrnamentoCella{};
}

QString PittoreCelle::testo(Posto cella) const {
    // A unit stays in one piece where the line is broken: "[veic/h]".
    constexpr char16_t unione = 0x2060;
    return q(griglia_.testo(cella.riga, cella.colonna))
        .replace(QLatin1Char('/'), QLatin1Char('/') + QString(QChar(unione)));
}

bool PittoreCelle::aCapo(Posto cella) const {
    return cella.riga < griglia_.righeFisse() || griglia_.colonna(cella.colonna).aCapo;
}

const PittoreCelle::Faccia& PittoreCelle::faccia(Posto cella) const {
    if (cella.riga < griglia_.righeFisse()) {
        return testata_;
    }
    return griglia_.tabella().cella(cella.riga, cella.colonna).grassetto ? forte_ : normale_;
}

int PittoreCelle::altezzaRiga() const {
    return std::max(altezzaMinima, std::max(normale_.metrica.height(), forte_.metrica.height()) + aria_);
}

Qt::Alignment PittoreCelle::allineamento(Posto cella) const {
    switch (ornamento(cella).allineamento.value_or(griglia_.colonna(cella.colonna).allineamento)) {
        case AllineamentoCella::sinistra:
            return Qt::AlignLeft | Qt::AlignVCenter;
        case AllineamentoCella::centro:
            return Qt::AlignHCenter | Qt::AlignVCenter;
        case AllineamentoCella::destra:
            break;
    }
    return Qt::AlignRight | Qt::AlignVCenter;
}

int PittoreCelle::larghezza(Posto cella) const {
    const QFontMetrics& metrica = faccia(cella).metrica;
    const QString intero = testo(cella);
    int lunga = 0;
    if (aCapo(cella)) {
        for (const QString& parola : intero.split(QLatin1Char(' '))) {
            lunga = std::max(lunga, metrica.horizontalAdvance(parola));
        }
    } else {
        lunga = metrica.horizontalAdvance(intero);
    }
    const bool conSegno = ornamento(cella).segno != Segno::nessuno;
    return lunga + 2 * margineStretto + 2 + (conSegno ? static_cast<int>(latoSegno) + margineStretto : 0);
}

int PittoreCelle::lato(Posto cella, int larghezza) const {
    const int comodo = margineDi(larghezza);
    // What fits, or stands in one line, with the narrow margins alone is not cut for the wide ones.
    const int intera = faccia(cella).metrica.horizontalAdvance(testo(cella)) + 1;
    if (intera + 2 * margineStretto <= larghezza && intera + 2 * comodo > larghezza) {
        return margineStretto;
    }
    if (cella.riga >= griglia_.righeFisse()) {
        return comodo;
    }
    return this->larghezza(cella) + 2 * (comodo - margineStretto) <= larghezza ? comodo : margineStretto;
}

int PittoreCelle::altezza(Posto cella, int larghezza) const {
    const QFontMetrics& metrica = faccia(cella).metrica;
    const int libera = std::max(1, larghezza - 2 * lato(cella, larghezza) - 1);
    const QRect preso = metrica.boundingRect(QRect(0, 0, libera, altezzaSenzaFine), Qt::TextWordWrap, testo(cella));
    return std::max(altezzaRiga(), preso.height() + aria_);
}

void PittoreCelle::dipingiSegno(QPainter& pittore, const QRectF& posto, Segno segno, const QColor& tintaSegno) const {
    if (segno == Segno::nessuno) {
        return;
    }
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    const QRectF quadro(posto.left() + margineStretto, posto.center().y() - latoSegno / 2.0, latoSegno, latoSegno);
    if (segno == Segno::freccia) {
        pittore.setPen(QPen(tintaSegno, 1.5));
        frecceAngolo(pittore, posto);
    } else {
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(segno == Segno::attenzione ? qcolore(tinta::errore) : tintaSegno);
        const double piatto = segno == Segno::attenzione ? 0.0 : latoSegno * 0.15;
        triangolo(pittore, quadro.adjusted(0.0, piatto, 0.0, -piatto), segno != Segno::minimo);
        if (segno == Segno::attenzione) {
            pittore.setBrush(Qt::white);
            const double x = quadro.center().x() - 0.6;
            pittore.drawRect(QRectF(x, quadro.top() + 3.6, 1.2, 3.0));
            pittore.drawRect(QRectF(x, quadro.top() + 7.4, 1.2, 1.3));
        }
    }
    pittore.restore();
}

void PittoreCelle::dipingiDistintivo(QPainter& pittore, const QRectF& posto, Posto cella,
                                     const Distintivo& distintivo) const {
    const QSizeF misura(misuraDistintivo.width(), std::min(misuraDistintivo.height(), posto.height() - 2.0));
    QRectF quadro(QPointF(0.0, 0.0), misura);
    quadro.moveCenter(posto.center());
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(QPen(qcolore(distintivo.bordo), 1.0));
    pittore.setBrush(qcolore(distintivo.fondo));
    pittore.drawRoundedRect(quadro.adjusted(0.5, 0.5, -0.5, -0.5), raggio, raggio);
    pittore.setPen(qcolore(inchiostroLeggibile(distintivo.testo, distintivo.fondo)));
    pittore.drawText(quadro, Qt::AlignCenter, testo(cella));
    pittore.restore();
}

void PittoreCelle::dipingi(QPainter& pittore, const QRect& posto, Posto cella, bool conFuoco) const {
    const Cella& contenuto = griglia_.tabella().cella(cella.riga, cella.colonna);
    const AreaCelle scelte = griglia_.selezione();
    const bool corrente = cella == griglia_.corrente();
    const bool scelta = !(scelte.da == scelte.a) && scelte.contiene(cella) && !corrente;
    const Colore fondo = scelta ? tinta::scelto : contenuto.sfondo;
    const double linea = filo(pittore);
    const QRectF tutto(posto);
    const QRectF dentro = tutto.adjusted(0.0, 0.0, -linea, -linea);
    // White parts the cells; those that one types into are fields and need a line that is seen on white.
    pittore.fillRect(tutto, griglia_.puoModificare(cella) ? qcolore(tinta::bordo) : QColor(Qt::white));
    pittore.fillRect(dentro, qcolore(fondo));

    const OrnamentoCella ornato = ornamento(cella);
    const Colore inchiostro = griglia_.abilitato() ? contenuto.inchiostro : tinta::spento;
    const QColor penna = qcolore(inchiostroLeggibile(inchiostro, fondo));
    if (ornato.barra) {
        pittore.fillRect(QRectF(dentro.left(), dentro.top(), barraLato, dentro.height()), qcolore(*ornato.barra));
    }
    dipingiSegno(pittore, dentro, ornato.segno, penna);
    pittore.setFont(carattere(cella));
    const std::optional<bool> casella = caselle_ ? caselle_(cella) : std::nullopt;
    if (casella) {
        dipingiCasella(pittore, dentro, *casella);
    } else if (ornato.distintivo && !contenuto.testo.empty()) {
        dipingiDistintivo(pittore, dentro, cella, *ornato.distintivo);
    } else {
        const int lato = this->lato(cella, posto.width());
        const int modo = static_cast<int>(allineamento(cella)) | (aCapo(cella) ? Qt::TextWordWrap : Qt::TextSingleLine);
        pittore.setPen(penna);
        pittore.drawText(dentro.adjusted(lato, 0.0, -lato, 0.0), modo, testo(cella));
    }
    if (corrente && conFuoco) {
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(qcolore(tinta::principale));
        const double b = bordoCorrente;
        pittore.drawRect(QRectF(dentro.left(), dentro.top(), dentro.width(), b));
        pittore.drawRect(QRectF(dentro.left(), dentro.bottom() - b, dentro.width(), b));
        pittore.drawRect(QRectF(dentro.left(), dentro.top(), b, dentro.height()));
        pittore.drawRect(QRectF(dentro.right() - b, dentro.top(), b, dentro.height()));
        pittore.setBrush(Qt::NoBrush);
    }
}

}  // namespace kelvo::ui
