#include "disegno/serieGrafico.h"

#include <algorithm>

#include "disegno/testiGrafico.h"

namespace kelvo::disegno {

namespace {

using Contenuto = Grafico::Contenuto;
using Forma = Grafico::Forma;
using Serie = Grafico::Serie;

constexpr double parteBarra = 0.72;  ///< of a step
constexpr double raggioPunto = 4.0;
constexpr double raggioPiccolo = 2.5;
constexpr double passoPunti = 12.0;    ///< from this distance on points have their full size
constexpr double passoPiccoli = 10.0;  ///< below this one there are none

void disponiBarre(const Serie& serie, const Assi& assi, int quale, int quante, Disposizione& d) {
    const double larga = parteBarra * assi.scalino / quante;
    for (std::size_t i = 0; i < serie.valori.size(); ++i) {
        const double mezzo = assi.x(posto(serie, i)) + scartoBarra(assi, quale, quante);
        const double cima = assi.y(serie.valori[i]);
        const double base = assi.base();
        const Colore colore = serie.colori.empty() ? serie.colore : serie.colori[i];
        d.riquadri.push_back({.ruolo = Disposizione::Forme::barra,
                              .dove = QRectF(QPointF(mezzo - larga / 2, std::min(cima, base)),
                                             QPointF(mezzo + larga / 2, std::max(cima, base))),
                              .colore = colore,
                              .contorno = pallido(colore)});
    }
}

void disponiLinea(const Serie& serie, const Assi& assi, Disposizione& d) {
    Disposizione::Linea linea{.colore = serie.colore};
    for (std::size_t i = 0; i < serie.valori.size(); ++i) {
        // Not held to the axis: the line leaves the plot where its values do.
        const double y = assi.campo.bottom() - assi.scala.quota(serie.valori[i]) * assi.campo.height();
        linea.punti << QPointF(assi.x(posto(serie, i)), y);
    }
    linea.raggio = assi.scalino >= passoPunti ? raggioPunto : assi.scalino >= passoPiccoli ? raggioPiccolo : 0.0;
    if (serie.valori.size() == 1) {
        linea.raggio = raggioPunto;
    }
    d.linee.push_back(linea);
}

}  // namespace

double scartoBarra(const Assi& assi, int quale, int quante) {
    const double mezzo = (quante - 1) / 2.0;
    return parteBarra * assi.scalino / quante * (quale - mezzo);
}

void disponiSerie(const Contenuto& contenuto, const Assi& assi, Disposizione& d) {
    const auto eBarre = [](const Serie& s) { return s.forma == Forma::barre; };
    const auto quante = static_cast<int>(std::count_if(contenuto.serie.begin(), contenuto.serie.end(), eBarre));
    int quale = 0;
    for (const Serie& serie : contenuto.serie) {
        if (eBarre(serie)) {
            disponiBarre(serie, assi, quale++, quante, d);
        }
    }
    for (const Serie& serie : contenuto.serie) {
        if (serie.forma == Forma::linee) {
            disponiLinea(serie, assi, d);
        }
    }
}

}  // namespace kelvo::disegno
