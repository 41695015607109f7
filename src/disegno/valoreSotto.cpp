#include "disegno/valoreSotto.h"

#include <cmath>

#include "base/numeri.h"
#include "disegno/disposizioneGrafico.h"

namespace kelvo::disegno {

namespace {

using Serie = Grafico::Serie;

/// How far from a point of a line the mouse may be, logical pixels.
constexpr double vicino = 8.0;

std::string parole(const Grafico::Contenuto& contenuto, const Serie& serie, std::size_t i) {
    const std::string luogo = Grafico::luogo(contenuto, serie, i);
    const std::string valore = serie.testi.empty() ? testoNumero(serie.valori[i]) : serie.testi[i];
    return (serie.nome.empty() ? "" : serie.nome + ", ") + (luogo.empty() ? "" : luogo + ": ") + valore;
}

/// Bars are laid out series by series, a rectangle for each value.
std::string sottoBarra(const Grafico::Contenuto& contenuto, const Disposizione& d, QPointF punto) {
    auto barra = d.riquadri.begin();
    for (const Serie& serie : contenuto.serie) {
        for (std::size_t i = 0; serie.forma == Grafico::Forma::barre && i < serie.valori.size(); ++i) {
            while (barra != d.riquadri.end() && barra->ruolo != Disposizione::Forme::barra) {
                ++barra;
            }
            if (barra == d.riquadri.end()) {
                return {};
            }
            if (punto.x() >= barra->dove.left() && punto.x() <= barra->dove.right()) {
                return parole(contenuto, serie, i);
            }
            ++barra;
        }
    }
    return {};
}

/// Lines of series are laid out in their order; those of a legend leave the plot.
bool diSerie(const Disposizione::Linea& linea, const Serie& serie) {
    return !linea.tratteggiata && !linea.dietro && linea.ritagliata && linea.colore == serie.colore &&
           linea.punti.size() == static_cast<qsizetype>(serie.valori.size());
}

std::string pressoPunto(const Grafico::Contenuto& contenuto, const Disposizione& d, QPointF punto) {
    std::size_t linea = 0;
    for (const Serie& serie : contenuto.serie) {
        if (serie.forma != Grafico::Forma::linee) {
            continue;
        }
        const auto quanti = static_cast<qsizetype>(serie.valori.size());
        while (linea < d.linee.size() && !diSerie(d.linee[linea], serie)) {
            ++linea;
        }
        if (linea == d.linee.size()) {
            return {};
        }
        for (qsizetype i = 0; i < quanti; ++i) {
            const QPointF scarto = d.linee[linea].punti[i] - punto;
            if (std::hypot(scarto.x(), scarto.y()) <= vicino) {
                return parole(contenuto, serie, static_cast<std::size_t>(i));
            }
        }
        ++linea;
    }
    return {};
}

}  // namespace

std::string valoreSotto(const Grafico::Contenuto& contenuto, QSizeF misura, QPointF punto) {
    const Disposizione d = disponi(contenuto, misura);
    if (!d.campo.contains(punto)) {
        return {};
    }
    const std::string vicinoLinea = pressoPunto(contenuto, d, punto);
    return vicinoLinea.empty() ? sottoBarra(contenuto, d, punto) : vicinoLinea;
}

}  // namespace kelvo::disegno
