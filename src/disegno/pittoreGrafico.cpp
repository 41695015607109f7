#include "disegno/pittoreGrafico.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "disegno/caratteri.h"
#include "disegno/disposizioneGrafico.h"
#include "disegno/testiGrafico.h"

namespace kelvo::disegno {

namespace {

using Forme = Disposizione::Forme;

class Pittore {
public:
    Pittore(QPainter& pennello, const Disposizione& disposizione) : pennello_(pennello), d_(disposizione) {
        const QTransform verso = pennello.deviceTransform();
        const QPaintEngine* motore = pennello.paintEngine();
        const bool pixel =
            motore != nullptr && motore->type() != QPaintEngine::SVG && motore->type() != QPaintEngine::Pdf;
        allinea_ = pixel && verso.type() <= QTransform::TxScale && verso.m11() > 0 && verso.m22() > 0;
        verso_ = verso;
    }

    void dipingi() {
        for (const Forme ruolo : {Forme::griglia, Forme::tacca, Forme::campione, Forme::barra}) {
            dipingiRiquadri(ruolo);
        }
        for (const Disposizione::Linea& linea : d_.linee) {
            dipingi(linea);
        }
        dipingiRiquadri(Forme::asse);
        dipingiPunti();
        dipingiFette();
        for (const Disposizione::Testo& testo : d_.testi) {
            dipingi(testo);
        }
    }

private:
    /// The rectangle on whole pixels: its width is rounded by itself, so that equal bars stay equal; a bar keeps its
    /// two ends, anything else its middle.
    QRectF allineato(const QRectF& dove, bool barra) const {
        if (!allinea_) {
            return dove;
        }
        const QRectF r = verso_.mapRect(dove);
        const double largo = std::max(1.0, std::round(r.width()));
        const double x = std::round(r.center().x() - largo / 2.0);
        double alto = std::max(1.0, std::round(r.height()));
        double y = std::round(r.center().y() - alto / 2.0);
        if (barra) {
            y = std::round(r.top());
            alto = std::round(r.bottom()) - y;
        }
        return verso_.inverted().mapRect(QRectF(x, y, largo, alto));
    }

    void dipingiRiquadri(Forme ruolo) {
        pennello_.setRenderHint(QPainter::Antialiasing, !allinea_);
        for (const Disposizione::Riquadro& r : d_.riquadri) {
            if (r.ruolo != ruolo) {
                continue;
            }
            const QRectF dove = allineato(r.dove, ruolo == Forme::barra);
            if (!r.contorno) {
                pennello_.fillRect(dove, qcolore(r.colore));
                continue;
            }
            // The line lies inside, so that the shape keeps its size.
            const double linea = allinea_ ? std::max(1.0, std::round(verso_.m11())) / verso_.m11() : 1.0;
            pennello_.fillRect(dove, qcolore(tinta::grafite));
            const QRectF dentro = dove.adjusted(linea, linea, -linea, -linea);
            if (dentro.isValid()) {
                pennello_.fillRect(dentro, qcolore(r.colore));
            }
        }
        pennello_.setRenderHint(QPainter::Antialiasing);
    }

    void dipingi(const Disposizione::Linea& linea) {
        QPen penna(qcolore(linea.colore), linea.spessore, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        if (linea.tratteggiata) {
            constexpr double segno = 6.0;
            constexpr double vuoto = 4.0;
            penna.setDashPattern({segno / linea.spessore, vuoto / linea.spessore});
        }
        pennello_.save();
        if (linea.ritagliata) {
            // Room for the width of a line along the edge, and for its points.
            pennello_.setClipRect(d_.campo.adjusted(-linea.spessore, -linea.spessore, linea.spessore, linea.spessore),
                                  Qt::IntersectClip);
        }
        pennello_.setPen(penna);
        pennello_.setBrush(Qt::NoBrush);
        pennello_.drawPolyline(linea.punti);
        pennello_.restore();
    }

    /// The points lie over the axes, which they may stand on.
    void dipingiPunti() {
        constexpr double bordo = 0.5;
        const QRectF dentro = d_.campo.adjusted(-bordo, -bordo, bordo, bordo);
        for (const Disposizione::Linea& linea : d_.linee) {
            if (linea.raggio <= 0.0) {
                continue;
            }
            pennello_.setPen(QPen(qcolore(linea.colore), linea.spessore));
            pennello_.setBrush(Qt::white);
            for (const QPointF& punto : linea.punti) {
                if (!linea.ritagliata || dentro.contains(punto)) {
                    const double raggio = linea.raggio - linea.spessore / 2.0;
                    pennello_.drawEllipse(punto, raggio, raggio);
                }
            }
        }
    }

    static QPainterPath via(const Disposizione::Fetta& fetta) {
        constexpr double intero = 359.999;
        constexpr double cima = 90.0;
        const QRectF cerchio(fetta.centro - QPointF(fetta.raggio, fetta.raggio),
                             QSizeF(2.0 * fetta.raggio, 2.0 * fetta.raggio));
        QPainterPath fatta;
        if (fetta.gira >= intero) {
            fatta.addEllipse(cerchio);
            return fatta;
        }
        fatta.moveTo(fetta.centro);
        fatta.arcTo(cerchio, cima - fetta.da, -fetta.gira);
        fatta.closeSubpath();
        return fatta;
    }

    /// The slices, white lines between them, and a thin line around those that are pale.
    void dipingiFette() {
        constexpr double separazione = 1.5;
        pennello_.setPen(Qt::NoPen);
        for (const Disposizione::Fetta& fetta : d_.fette) {
            pennello_.setBrush(qcolore(fetta.colore));
            pennello_.drawPath(via(fetta));
        }
        pennello_.setBrush(Qt::NoBrush);
        pennello_.setPen(QPen(Qt::white, separazione, Qt::SolidLine, Qt::FlatCap));
        for (const Disposizione::Fetta& fetta : d_.fette) {
            if (d_.fette.size() > 1) {
                const double angolo = fetta.da * std::numbers::pi / 180.0;
                pennello_.drawLine(fetta.centro,
                                   fetta.centro + QPointF(std::sin(angolo), -std::cos(angolo)) * fetta.raggio);
            }
        }
        pennello_.setPen(QPen(qcolore(tinta::grafite), 1.0, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        for (const Disposizione::Fetta& fetta : d_.fette) {
            if (fetta.contorno) {
                pennello_.drawPath(via(fetta));
            }
        }
    }

    void dipingi(const Disposizione::Testo& testo) {
        const QFont tipo = carattere({testo.altezza, testo.forte});
        const QPointF base(testo.dove.left(), testo.dove.top() + QFontMetricsF(tipo).ascent());
        if (testo.alone) {
            constexpr double largo = 3.0;
            QPainterPath lettere;
            lettere.addText(base, tipo, testo.parole);
            pennello_.setPen(QPen(Qt::white, largo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            pennello_.setBrush(Qt::white);
            pennello_.drawPath(lettere);
        }
        pennello_.setFont(tipo);
        pennello_.setPen(qcolore(testo.colore));
        pennello_.drawText(base, testo.parole);
    }

    QPainter& pennello_;
    const Disposizione& d_;
    QTransform verso_{};
    bool allinea_ = false;
};

}  // namespace

void dipingiGrafico(QPainter& pennello, const Grafico::Contenuto& contenuto, const QRectF& spazio,
                    const StileGrafico& stile) {
    const double scala = std::max(stile.scala, 0.01);
    if (spazio.isEmpty()) {
        return;
    }
    pennello.save();
    pennello.setClipRect(spazio, Qt::IntersectClip);
    pennello.setRenderHint(QPainter::Antialiasing);
    pennello.setRenderHint(QPainter::TextAntialiasing);
    pennello.translate(spazio.topLeft());
    pennello.scale(scala, scala);
    const Disposizione disposizione = disponi(contenuto, spazio.size() / scala);
    Pittore(pennello, disposizione).dipingi();
    pennello.restore();
}

}  // namespace kelvo::disegno
