#include "disegno/DisegnatoreQt.h"

#include <QtCore/QBuffer>
#include <QtCore/QStringList>
#include <QtGui/QFontInfo>
#include <QtGui/QImage>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtSvg/QSvgGenerator>
#include <algorithm>
#include <cmath>
#include <functional>

#include "disegno/caratteri.h"
#include "disegno/codificaPng.h"
#include "disegno/pittoreGrafico.h"
#include "disegno/pittorePianta.h"
#include "pianta/Pianta.h"

namespace kelvo::disegno {

namespace {

constexpr int puntiPollice = 96;
/// Width at which the pens are as wide as on a screen; larger pictures have wider pens.
constexpr double larghezzaUsuale = 900.0;

/// What is painted, in logical pixels.
struct Foglio {
    QSizeF misura;
    QString titolo;
    std::function<void(QPainter&)> dipingi;
};

EsitoDisegno nonRiuscito(const char* motivo) {
    return {.dati = {}, .errore = motivo};
}

EsitoDisegno finito(const QByteArray& byte) {
    return {.dati = byte.toStdString(), .errore = {}};
}

EsitoDisegno png(const Foglio& foglio, double scala) {
    const QSize pixel = (foglio.misura * scala).toSize();
    QImage immagine(pixel, QImage::Format_RGB32);
    if (immagine.isNull()) {
        return nonRiuscito("l'immagine è troppo grande");
    }
    immagine.setDotsPerMeterX(static_cast<int>(std::lround(puntiPollice * scala / 0.0254)));
    immagine.setDotsPerMeterY(immagine.dotsPerMeterX());
    immagine.fill(Qt::white);
    QPainter pennello(&immagine);
    pennello.scale(scala, scala);
    foglio.dipingi(pennello);
    pennello.end();
    const QByteArray byte = codificaPng(immagine);
    return byte.isEmpty() ? nonRiuscito("l'immagine non può essere scritta") : finito(byte);
}

/// The families of a face as a list for style sheets, the one that was measured first.
QByteArray elencoFamiglie(const QFont& tipo) {
    QStringList nomi{QFontInfo(tipo).family()};
    nomi << tipo.families();
    nomi.removeDuplicates();
    return "'" + nomi.join(QStringLiteral("','")).toUtf8() + "',sans-serif";
}

/// The toolkit names the first family of a face alone, which few systems have: all are named in its place.
void nominaFamiglie(QByteArray& svg, const QFont& tipo, const QByteArray& peso) {
    const QByteArray prima = "font-family=\"" + tipo.families().constFirst().toUtf8() + '"';
    const QByteArray tutte = "font-family=\"" + elencoFamiglie(tipo) + '"';
    const QByteArray normale = "font-weight=\"400\"";
    for (qsizetype i = svg.indexOf(prima); i >= 0; i = svg.indexOf(prima, i + tutte.size())) {
        svg.replace(i, prima.size(), tutte);
        const qsizetype dove = svg.indexOf(normale, i);
        if (dove >= 0 && dove < svg.indexOf('>', i)) {
            svg.replace(dove, normale.size(), "font-weight=\"" + peso + '"');
        }
    }
}

EsitoDisegno svg(const Foglio& foglio) {
    QByteArray byte;
    QBuffer memoria(&byte);
    memoria.open(QIODevice::WriteOnly);
    QSvgGenerator generatore;
    generatore.setOutputDevice(&memoria);
    generatore.setSize(foglio.misura.toSize());
    generatore.setViewBox(QRectF(QPointF(0, 0), foglio.misura));
    generatore.setResolution(puntiPollice);
    generatore.setTitle(foglio.titolo);
    generatore.setDescription(QStringLiteral("Kelvo"));
    QPainter pennello;
    if (!pennello.begin(&generatore)) {
        return nonRiuscito("l'immagine non può essere scritta");
    }
    pennello.fillRect(QRectF(QPointF(0, 0), foglio.misura), Qt::white);
    foglio.dipingi(pennello);
    pennello.end();
    constexpr double qualunque = 12.0;
    nominaFamiglie(byte, dati(qualunque), "400");
    nominaFamiglie(byte, forte(qualunque), "600");
    return finito(byte);
}

EsitoDisegno pdf(const Foglio& foglio) {
    QByteArray byte;
    QBuffer memoria(&byte);
    memoria.open(QIODevice::WriteOnly);
    QPdfWriter scrittore(&memoria);
    constexpr double pollice = 72.0;
    const QSizeF punti = foglio.misura * (pollice / puntiPollice);
    scrittore.setPageSize(QPageSize(punti, QPageSize::Point, {}, QPageSize::ExactMatch));
    scrittore.setPageMargins(QMarginsF(0, 0, 0, 0));
    constexpr int fine = 1200;
    scrittore.setResolution(fine);
    scrittore.setTitle(foglio.titolo);
    scrittore.setCreator(QStringLiteral("Kelvo"));
    QPainter pennello;
    if (!pennello.begin(&scrittore)) {
        return nonRiuscito("l'immagine non può essere scritta");
    }
    const double scala = static_cast<double>(fine) / puntiPollice;
    pennello.scale(scala, scala);
    foglio.dipingi(pennello);
    pennello.end();
    return finito(byte);
}

EsitoDisegno scrivi(const Foglio& foglio, FormatoDisegno formato, double scalaChiesta) {
    constexpr double minima = 0.5;
    constexpr double massima = 8.0;
    const double scala = std::clamp(scalaChiesta, minima, massima);
    switch (formato) {
        case FormatoDisegno::svg:
            return svg(foglio);
        case FormatoDisegno::pdf:
            return pdf(foglio);
        case FormatoDisegno::png:
            break;
    }
    return png(foglio, scala);
}

/// Size of a drawing of which the own shape is `forma` times as high as wide.
QSize misuraFoglio(const MisuraDisegno& misura, double forma) {
    const int larga = std::clamp(misura.larghezza, MisuraDisegno::minimaLarghezza, MisuraDisegno::massimaLarghezza);
    const int alta = misura.altezza > 0 ? misura.altezza : static_cast<int>(std::lround(larga * forma));
    return {larga, std::clamp(alta, 1, MisuraDisegno::massimaLarghezza)};
}

/// How much wider pens are than on a screen.
double ingrandimento(QSize misura) {
    return std::max(1.0, misura.width() / larghezzaUsuale);
}

}  // namespace

EsitoDisegno DisegnatoreQt::pianta(const pianta::DatiPianta& dati, const pianta::OpzioniPianta& opzioni,
                                   FormatoDisegno formato, const MisuraDisegno& misura) {
    const pianta::Pianta disegno = pianta::costruisci(dati, opzioni);
    const QSize intera = misuraFoglio(misura, disegno.vista.altezza() / disegno.vista.larghezza());
    const StilePianta stile{.tratto = ingrandimento(intera)};
    const QRectF spazio(QPointF(0, 0), intera);
    const Foglio foglio{.misura = intera,
                        .titolo = QString::fromStdString(disegno.nomeAccessibile),
                        .dipingi = [&](QPainter& pennello) { dipingiPianta(pennello, disegno, spazio, stile); }};
    return scrivi(foglio, formato, misura.scala);
}

EsitoDisegno DisegnatoreQt::grafico(const Grafico::Contenuto& contenuto, FormatoDisegno formato,
                                    const MisuraDisegno& misura) {
    constexpr double forma = 0.6;
    const QSize intera = misuraFoglio(misura, forma);
    const StileGrafico stile{.scala = ingrandimento(intera)};
    const QRectF spazio(QPointF(0, 0), intera);
    const std::string& titolo = contenuto.titolo.empty() ? contenuto.y.titolo : contenuto.titolo;
    const Foglio foglio{.misura = intera,
                        .titolo = QString::fromStdString(titolo).simplified(),
                        .dipingi = [&](QPainter& pennello) { dipingiGrafico(pennello, contenuto, spazio, stile); }};
    return scrivi(foglio, formato, misura.scala);
}

}  // namespace kelvo::disegno
