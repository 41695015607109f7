#include "disegno/disposizioneGrafico.h"

#include <algorithm>

#include "disegno/assiGrafico.h"
#include "disegno/serieGrafico.h"
#include "disegno/soglieGrafico.h"
#include "disegno/testiGrafico.h"
#include "disegno/tornadoGrafico.h"
#include "disegno/tortaGrafico.h"

namespace kelvo::disegno {

namespace {

using Contenuto = Grafico::Contenuto;
using Forma = Grafico::Forma;
using Forme = Disposizione::Forme;
using Serie = Grafico::Serie;
using Testi = Disposizione::Testi;

/// Below these heights a chart has no title, note, legend.
constexpr double altezzaTitolo = 140.0;
constexpr double altezzaNota = 170.0;
constexpr double altezzaLegenda = 190.0;
constexpr double bassa = 260.0;    ///< below this height, or
constexpr double stretta = 420.0;  ///< this width, the title is set smaller
constexpr double stacco = 6.0;

double margine(QSizeF misura) {
    constexpr double parte = 0.03;
    constexpr double minimo = 6.0;
    constexpr double massimo = 16.0;
    return std::clamp(std::min(misura.width(), misura.height()) * parte, minimo, massimo);
}

/// The title's lines, in the middle above `spazio`, which becomes what is left. Returns their number.
std::size_t disponiTitolo(const Contenuto& contenuto, QRectF& spazio, Tipo tipo, Disposizione& d) {
    constexpr int massime = 2;
    std::size_t quante = 0;
    for (const QString& riga : inRighe(qtesto(contenuto.titolo), spazio.width(), massime, tipo)) {
        if (!riga.isEmpty()) {
            d.testi.push_back(testoPresso(Testi::titolo, riga, {spazio.center().x(), spazio.top()}, {0.5, 0.0}, tipo));
            spazio.setTop(spazio.top() + altezzaRiga(tipo));
            ++quante;
        }
    }
    spazio.setTop(spazio.top() + (quante > 0 ? stacco : 0.0));
    return quante;
}

/// The note stands at the bottom left.
void disponiNota(const Contenuto& contenuto, QRectF& spazio, Disposizione& d) {
    constexpr int massime = 2;
    QStringList righe = inRighe(qtesto(contenuto.nota), spazio.width(), massime, tipoMinuto);
    double y = spazio.bottom() - static_cast<double>(righe.size()) * altezzaRiga(tipoMinuto);
    spazio.setBottom(y - stacco);
    for (const QString& riga : righe) {
        d.testi.push_back(testoPresso(Testi::nota, riga, {spazio.left(), y}, {0.0, 0.0}));
        d.testi.back().colore = tinta::secondario;
        y += altezzaRiga(tipoMinuto);
    }
}

constexpr double segnoLegenda = 20.0;  ///< sample of a series
constexpr double traSegnoENome = 6.0;
constexpr double traVoci = 20.0;

void disponiVoce(const Serie& serie, const QString& nome, QPointF mezzoSinistro, Disposizione& d) {
    constexpr double alto = 10.0;
    const double y = mezzoSinistro.y();
    const double x = mezzoSinistro.x();
    if (serie.forma == Forma::linee) {
        constexpr double raggio = 4.0;
        d.linee.push_back({.punti = QPolygonF({QPointF(x, y), QPointF(x + segnoLegenda, y)}),
                           .colore = serie.colore,
                           .ritagliata = false});
        d.linee.push_back({.punti = QPolygonF({QPointF(x + segnoLegenda / 2, y)}),
                           .raggio = raggio,
                           .colore = serie.colore,
                           .ritagliata = false});
    } else {
        d.riquadri.push_back({.ruolo = Forme::campione,
                              .dove = QRectF(x, y - alto / 2, segnoLegenda, alto),
                              .colore = serie.colore,
                              .contorno = pallido(serie.colore)});
    }
    d.testi.push_back(testoPresso(Testi::legenda, nome, {x + segnoLegenda + traSegnoENome, y}, {0.0, 0.5}));
}

/// The names of the series in rows below the title, each row in the middle.
void disponiLegenda(const Contenuto& contenuto, QRectF& spazio, Disposizione& d) {
    std::vector<std::pair<const Serie*, QString>> riga;
    double larga = 0.0;
    const double alta = altezzaRiga(tipoMinuto);
    const double segno = segnoLegenda + traSegnoENome;
    const auto scrivi = [&] {
        double x = spazio.center().x() - larga / 2.0;
        for (const auto& [serie, nome] : riga) {
            disponiVoce(*serie, nome, {x, spazio.top() + alta / 2.0}, d);
            x += segno + larghezza(nome, tipoMinuto) + traVoci;
        }
        spazio.setTop(spazio.top() + (riga.empty() ? 0.0 : alta + 2.0));
        riga.clear();
        larga = 0.0;
    };
    for (const Serie& serie : contenuto.serie) {
        const QString nome = accorciato(qtesto(serie.nome), spazio.width() - segno, tipoMinuto);
        if (nome.isEmpty() || serie.forma == Forma::torta) {
            continue;
        }
        const double voce = segno + larghezza(nome, tipoMinuto);
        if (!riga.empty() && larga + traVoci + voce > spazio.width()) {
            scrivi();
        }
        larga += (riga.empty() ? 0.0 : traVoci) + voce;
        riga.emplace_back(&serie, nome);
    }
    scrivi();
}

bool vuoto(const Contenuto& contenuto) {
    return std::all_of(contenuto.serie.begin(), contenuto.serie.end(), [](const Serie& s) { return s.valori.empty(); });
}

bool tutte(const Contenuto& contenuto, Forma forma) {
    return !contenuto.serie.empty() && std::all_of(contenuto.serie.begin(), contenuto.serie.end(),
                                                   [forma](const Serie& s) { return s.forma == forma; });
}

/// What to do next, in the middle of a chart without values.
void disponiInvito(const Contenuto& contenuto, Disposizione& d) {
    constexpr Tipo tipo{16, false};
    constexpr int massime = 3;
    constexpr double parte = 0.9;
    const QStringList righe = inRighe(qtesto(contenuto.invito), d.campo.width() * parte, massime, tipo);
    const double alte = static_cast<double>(righe.size()) * altezzaRiga(tipo);
    if (alte > d.campo.height()) {
        return;
    }
    double y = d.campo.center().y() - alte / 2.0;
    for (const QString& riga : righe) {
        if (!riga.isEmpty()) {
            d.testi.push_back(testoPresso(Testi::invito, riga, {d.campo.center().x(), y}, {0.5, 0.0}, tipo));
            d.testi.back().colore = tinta::secondario;
            d.testi.back().alone = true;
        }
        y += altezzaRiga(tipo);
    }
}

/// In a very small room words that leave it or meet others are left out.
void sfoltisci(QSizeF misura, Disposizione& d) {
    const QRectF stanza(QPointF(0, 0), misura);
    std::vector<Disposizione::Testo> restano;
    for (const Disposizione::Testo& testo : d.testi) {
        const bool libero = std::none_of(restano.begin(), restano.end(), [&](const Disposizione::Testo& altro) {
            return altro.dove.intersects(testo.dove);
        });
        if (libero && stanza.contains(testo.dove)) {
            restano.push_back(testo);
        }
    }
    d.testi = restano;
}

void disponiTutto(const Contenuto& contenuto, QRectF spazio, QSizeF misura, Disposizione& d) {
    std::size_t righeTitolo = 0;
    if (!contenuto.titolo.empty() && misura.height() >= altezzaTitolo) {
        const bool piccola = misura.height() < bassa || misura.width() < stretta;
        righeTitolo = disponiTitolo(contenuto, spazio, piccola ? tipoTitoloBasso : tipoTitolo, d);
    }
    if (!contenuto.nota.empty() && misura.height() >= altezzaNota) {
        disponiNota(contenuto, spazio, d);
    }
    if (contenuto.legenda && misura.height() >= altezzaLegenda) {
        disponiLegenda(contenuto, spazio, d);
    }
    if (tutte(contenuto, Forma::torta)) {
        d.campo = spazio;
        if (!disponiTorta(contenuto, spazio, d)) {
            disponiInvito(contenuto, d);
        }
        return;
    }
    if (tutte(contenuto, Forma::tornado)) {
        d.campo = spazio;
        if (!disponiTornado(contenuto, spazio, d)) {
            disponiInvito(contenuto, d);
        }
        return;
    }
    const Assi assi = disponiAssi(contenuto, spazio, d);
    d.campo = assi.campo;
    // The title stands over the middle of the plot as far as the room lets it.
    for (std::size_t i = 0; i < righeTitolo; ++i) {
        QRectF& dove = d.testi[i].dove;
        const double x = assi.campo.center().x() - dove.width() / 2.0;
        dove.moveLeft(std::max(spazio.left(), std::min(x, spazio.right() - dove.width())));
    }
    if (vuoto(contenuto)) {
        disponiInvito(contenuto, d);
        return;
    }
    disponiSerie(contenuto, assi, d);
    disponiSoglie(contenuto, assi, spazio, d);
    disponiValori(contenuto, assi, spazio.right(), d);
}

}  // namespace

Disposizione disponi(const Contenuto& contenuto, QSizeF misura) {
    constexpr QSizeF minuscola(160.0, 120.0);
    Disposizione d;
    const double bordo = margine(misura);
    const QRectF spazio = QRectF(QPointF(0, 0), misura).adjusted(bordo, bordo, -bordo, -bordo);
    if (spazio.width() < 1.0 || spazio.height() < 1.0) {
        return d;
    }
    disponiTutto(contenuto, spazio, misura, d);
    if (misura.width() < minuscola.width() || misura.height() < minuscola.height()) {
        sfoltisci(misura, d);
    }
    return d;
}

}  // namespace kelvo::disegno
