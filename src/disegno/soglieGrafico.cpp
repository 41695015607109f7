#include "disegno/soglieGrafico.h"

#include <algorithm>

#include "disegno/testiGrafico.h"

namespace kelvo::disegno {

namespace {

using Testi = Disposizione::Testi;

constexpr double dalCampo = 6.0;
constexpr double parteMassima = 0.25;  ///< of the chart's width, for the texts
constexpr double spessore = 1.5;

}  // namespace

double larghezzaSoglie(const Grafico::Contenuto& contenuto, double larga) {
    double testo = 0.0;
    for (const Grafico::Soglia& soglia : contenuto.soglie) {
        testo = std::max(testo, larghezza(qtesto(soglia.testo), tipoMinuto));
    }
    return testo > 0.0 ? std::min(testo, parteMassima * larga) + dalCampo : 0.0;
}

void disponiSoglie(const Grafico::Contenuto& contenuto, const Assi& assi, const QRectF& spazio, Disposizione& d) {
    std::vector<Disposizione::Testo> testi;
    for (const Grafico::Soglia& soglia : contenuto.soglie) {
        if (!assi.dentro(soglia.valore)) {
            continue;
        }
        const double y = assi.y(soglia.valore);
        d.linee.push_back({.punti = QPolygonF({QPointF(assi.campo.left(), y), QPointF(assi.campo.right(), y)}),
                           .spessore = spessore,
                           .colore = soglia.colore,
                           .tratteggiata = true});
        const double libera = spazio.right() - assi.campo.right() - dalCampo;
        const QString parole = accorciato(qtesto(soglia.testo), libera, tipoMinuto);
        if (!parole.isEmpty()) {
            testi.push_back(testoPresso(Testi::soglia, parole, {assi.campo.right() + dalCampo, y}, {0.0, 0.5}));
            testi.back().colore = inchiostroLeggibile(soglia.colore, colori::bianco);
        }
    }
    // From the top down, each below the one before it; what comes too low pushes back up.
    std::sort(testi.begin(), testi.end(), [](const auto& a, const auto& b) { return a.dove.top() < b.dove.top(); });
    for (std::size_t i = 1; i < testi.size(); ++i) {
        testi[i].dove.moveTop(std::max(testi[i].dove.top(), testi[i - 1].dove.bottom()));
    }
    double limite = assi.campo.bottom() + altezzaRiga(tipoMinuto) / 2.0;
    for (auto testo = testi.rbegin(); testo != testi.rend(); ++testo) {
        testo->dove.moveBottom(std::min(testo->dove.bottom(), limite));
        limite = testo->dove.top();
    }
    d.testi.insert(d.testi.end(), testi.begin(), testi.end());
}

}  // namespace kelvo::disegno
