#include "disegno/assiGrafico.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "disegno/etichetteAsseX.h"
#include "disegno/soglieGrafico.h"
#include "disegno/testiGrafico.h"

namespace kelvo::disegno {

namespace {

using Contenuto = Grafico::Contenuto;
using Forma = Grafico::Forma;
using Forme = Disposizione::Forme;
using Serie = Grafico::Serie;
using Testi = Disposizione::Testi;

constexpr double traEtichettaEAsse = 9.0;
constexpr double righePerTacca = 1.5;  ///< lines of type from one grid line to the next, at least
constexpr double rientroLinee = 12.0;
constexpr double massimoRientro = 0.125;  ///< of the plot
constexpr double basso = 260.0;           ///< a room below this height has its X title beside the labels

/// The series that stand on axes.
template <class Funzione>
void perOgniSerie(const Contenuto& contenuto, Funzione funzione) {
    for (const Serie& serie : contenuto.serie) {
        if (serie.forma != Forma::torta && !serie.valori.empty()) {
            funzione(serie);
        }
    }
}

bool haBarre(const Contenuto& contenuto) {
    bool trovata = false;
    perOgniSerie(contenuto, [&](const Serie& s) { trovata = trovata || s.forma == Forma::barre; });
    return trovata;
}

struct Ampiezza {
    double minimo = std::numeric_limits<double>::infinity();
    double massimo = -std::numeric_limits<double>::infinity();
    void comprendi(double valore) {
        minimo = std::min(minimo, valore);
        massimo = std::max(massimo, valore);
    }
    bool vuota() const { return minimo > massimo; }
};

Scala scalaY(const Contenuto& contenuto, int quante) {
    const Grafico::Asse& asse = contenuto.y;
    Ampiezza valori;
    perOgniSerie(contenuto, [&](const Serie& s) {
        std::for_each(s.valori.begin(), s.valori.end(), [&](double v) { valori.comprendi(v); });
    });
    const bool data = asse.massimo > asse.minimo;
    const int tacche = asse.etichette.empty() ? asse.tacche : static_cast<int>(asse.etichette.size());
    if (valori.vuota() && !data) {
        return {};
    }
    if (data) {
        const double da = haBarre(contenuto) ? std::min(asse.minimo, 0.0) : asse.minimo;
        const double a = haBarre(contenuto) ? std::max(asse.massimo, 0.0) : asse.massimo;
        return tacche > 1 ? scalaDivisa(da, a, tacche) : scalaEntro(da, a, quante);
    }
    valori.comprendi(0.0);
    if (contenuto.valori && valori.minimo < 0.0) {
        constexpr double perEtichetta = 0.08;  // the label of a bar that points down stands in the plot
        valori.comprendi(valori.minimo - perEtichetta * (valori.massimo - valori.minimo));
    }
    for (const Grafico::Soglia& soglia : contenuto.soglie) {
        valori.comprendi(soglia.valore);
    }
    return tacche > 1 ? scalaDivisa(valori.minimo, valori.massimo, tacche)
                      : scalaAttorno(valori.minimo, valori.massimo, quante);
}

/// Steps that an axis without series has.
double passiSenzaSerie(const Grafico::Asse& asse) {
    const auto etichette = static_cast<double>(asse.etichette.size());
    const double daEtichette = etichette * (asse.passiPerEtichetta > 0.0 ? asse.passiPerEtichetta : 1.0);
    return std::max({1.0, asse.tacche - 1.0, asse.tacche > 1 ? 0.0 : daEtichette});
}

/// Room beside the points at the ends of a line, for their circles and for the words above them.
double rientro(const Contenuto& contenuto) {
    double larga = 0.0;
    perOgniSerie(contenuto, [&](const Serie& s) {
        for (const std::string& testo : s.testi) {
            larga = std::max(larga, larghezza(qtesto(testo), tipoMinuto));
        }
    });
    return contenuto.valori ? std::max(rientroLinee, larga) : rientroLinee;
}

/// Ends of the X axis, room beside them and distance of neighbours, for a plot of known width.
void misuraX(const Contenuto& contenuto, Assi& assi) {
    Ampiezza posti;
    double vicini = std::numeric_limits<double>::infinity();
    bool aPassi = false;
    std::size_t quanti = 0;
    perOgniSerie(contenuto, [&](const Serie& s) {
        quanti = std::max(quanti, s.valori.size());
        if (s.ascisse.empty()) {
            aPassi = true;
            posti.comprendi(0.0);
            posti.comprendi(static_cast<double>(s.valori.size()));
            vicini = std::min(vicini, 1.0);
            return;
        }
        std::vector<double> ordinate = s.ascisse;
        std::sort(ordinate.begin(), ordinate.end());
        for (std::size_t i = 0; i < ordinate.size(); ++i) {
            posti.comprendi(ordinate[i]);
            if (i > 0 && ordinate[i] > ordinate[i - 1]) {
                vicini = std::min(vicini, ordinate[i] - ordinate[i - 1]);
            }
        }
    });
    if (posti.vuota()) {
        aPassi = true;
        posti = {0.0, passiSenzaSerie(contenuto.x)};
        vicini = 1.0;
    }
    const bool data = contenuto.x.massimo > contenuto.x.minimo;
    if (data && aPassi) {
        posti.comprendi(contenuto.x.minimo);
        posti.comprendi(contenuto.x.massimo);
    } else if (data) {
        posti = {contenuto.x.minimo, contenuto.x.massimo};
    }
    if (!(posti.massimo - posti.minimo > 0.0) || !std::isfinite(posti.massimo - posti.minimo)) {
        constexpr double mezzo = 0.5;
        posti = {posti.minimo - mezzo, posti.minimo + mezzo};
    }
    assi.daX = posti.minimo;
    assi.aX = posti.massimo;
    const double quota = std::min(1.0, vicini / (assi.aX - assi.daX));
    const double largo = assi.campo.width();
    assi.rientro = aPassi               ? 0.0
                   : haBarre(contenuto) ? largo * quota / (1.0 + quota) / 2.0
                                        : std::min(rientro(contenuto), massimoRientro * largo);
    assi.scalino = quota * (largo - 2.0 * assi.rientro);
}

/// A label of the Y axis at its value.
struct EtichettaY {
    double valore = 0.0;
    QString parole{};
};

std::vector<EtichettaY> etichetteY(const Contenuto& contenuto, const Scala& scala) {
    std::vector<EtichettaY> trovate;
    for (std::size_t i = 0; i < scala.tacche.size(); ++i) {
        const bool nome = i < contenuto.y.etichette.size();
        trovate.push_back({scala.tacche[i], qtesto(nome ? contenuto.y.etichette[i] : scala.testo(scala.tacche[i]))});
    }
    return trovate;
}

/// Room above the plot for the label of the highest mark, beyond what lies between that mark and the top.
double sporgenzaValori(const Contenuto& contenuto, const Scala& scala, double altezza) {
    double alta = 0.0;
    perOgniSerie(contenuto, [&](const Serie& s) {
        for (std::size_t i = 0; i < s.testi.size(); ++i) {
            alta = std::max(alta, std::clamp(scala.quota(s.valori[i]), 0.0, 1.0));
        }
    });
    constexpr double distanza = 8.0;
    const double serve = altezzaRiga(tipoMinutoForte) + distanza;
    return contenuto.valori && alta > 0.0 ? std::max(0.0, (serve - (1.0 - alta) * altezza) / alta) : 0.0;
}

void disponiY(const Contenuto& contenuto, const Assi& assi, Disposizione& d) {
    const QRectF& campo = assi.campo;
    const std::vector<EtichettaY> etichette = etichetteY(contenuto, assi.scala);
    const double passo =
        etichette.size() < 2 ? campo.height() : assi.y(etichette[0].valore) - assi.y(etichette[1].valore);
    const double riga = altezzaRiga(tipoMinuto);
    const auto ogni = static_cast<std::size_t>(std::ceil(std::max(1.0, riga / std::max(passo, 1.0))));
    for (std::size_t i = 0; i < etichette.size(); ++i) {
        const double y = assi.y(etichette[i].valore);
        d.riquadri.push_back({.ruolo = Forme::griglia,
                              .dove = QRectF(campo.left(), y - tratto::griglia / 2, campo.width(), tratto::griglia),
                              .colore = tinta::griglia});
        if (i % ogni == 0) {
            d.testi.push_back(
                testoPresso(Testi::etichettaY, etichette[i].parole, {campo.left() - traEtichettaEAsse, y}, {1.0, 0.5}));
        }
    }
}

void disponiLineeAssi(const Assi& assi, Disposizione& d) {
    const QRectF& campo = assi.campo;
    const double mezzo = tratto::assi / 2;
    d.riquadri.push_back({.ruolo = Forme::asse,
                          .dove = QRectF(campo.left() - mezzo, campo.top(), tratto::assi, campo.height() + mezzo),
                          .colore = tinta::grafite});
    d.riquadri.push_back(
        {.ruolo = Forme::asse,
         .dove = QRectF(campo.left() - mezzo, assi.base() - mezzo, campo.width() + mezzo, tratto::assi),
         .colore = tinta::grafite});
}

/// The title of the Y axis stands above it, beside the axis where it is short, else from the edge on.
void disponiTitoloY(const QString& titolo, const QRectF& spazio, double asse, Disposizione& d) {
    const QString parole = accorciato(titolo, spazio.width(), tipoMinuto);
    if (!parole.isEmpty()) {
        constexpr double dallAsse = 5.0;
        const double destra = std::max(asse - dallAsse, spazio.left() + larghezza(parole, tipoMinuto));
        d.testi.push_back(testoPresso(Testi::titoloY, parole, {destra, spazio.top()}, {1.0, 0.0}));
    }
}

/// True where a text would lie on the labels of the row.
bool toccaFila(const FilaX& fila, const QRectF& dove) {
    constexpr double aria = 8.0;
    return std::any_of(fila.testi.begin(), fila.testi.end(), [&](const Disposizione::Testo& t) {
        return t.dove.adjusted(-aria, 0, aria, 0).intersects(dove);
    });
}

/// Labels, title and ticks below the plot; the plot ends where they leave room.
void disponiX(const Contenuto& contenuto, const QRectF& spazio, Assi& assi, Disposizione& d) {
    const FilaX fila = filaX(contenuto, assi);
    double altezza = fila.altezza;
    std::vector<Disposizione::Testo> testi = fila.testi;
    const QString titolo = accorciato(qtesto(contenuto.x.titolo), assi.campo.width(), tipoMinuto);
    const double resta = spazio.bottom() - altezza - assi.campo.top() - 2.0 * altezzaRiga(tipoMinuto);
    if (!titolo.isEmpty() && resta > altezzaRiga(tipoMinuto)) {
        constexpr double sotto = 4.0;
        const double accanto = altezza - altezzaRiga(tipoMinuto);
        auto testo = testoPresso(Testi::titoloX, titolo, {assi.campo.right(), std::max(accanto, sotto)}, {1.0, 0.0});
        if (spazio.height() >= basso || toccaFila(fila, testo.dove)) {
            testo.dove.moveTop(altezza + sotto);
        }
        altezza = std::max(altezza, testo.dove.bottom());
        testi.push_back(testo);
    }
    assi.campo.setBottom(std::max(spazio.bottom() - altezza, assi.campo.top() + 1.0));
    for (Disposizione::Testo& testo : testi) {
        testo.dove.translate(0, assi.campo.bottom());
        d.testi.push_back(testo);
    }
    disponiTaccheX(contenuto, assi, fila, d);
}

}  // namespace

double Assi::x(double posto) const {
    return campo.left() + rientro + (posto - daX) / (aX - daX) * (campo.width() - 2.0 * rientro);
}

double Assi::y(double valore) const {
    return campo.bottom() - std::clamp(scala.quota(valore), 0.0, 1.0) * campo.height();
}

double posto(const Serie& serie, std::size_t i) {
    constexpr double mezzo = 0.5;
    return serie.ascisse.empty() ? static_cast<double>(i) + mezzo : serie.ascisse[i];
}

Assi disponiAssi(const Contenuto& contenuto, const QRectF& spazio, Disposizione& d) {
    const double riga = altezzaRiga(tipoMinuto);
    Assi assi;
    // The number of grid lines follows the height, which the labels below change but little.
    constexpr double sottoDiSolito = 2.0;
    const double alta =
        std::max(1.0, spazio.height() - (contenuto.y.titolo.empty() ? 1.0 : 2.0) * riga - sottoDiSolito * riga);
    assi.sinistra = spazio.left();
    assi.destra = spazio.right();
    assi.scala = scalaY(contenuto, static_cast<int>(alta / (righePerTacca * riga)) + 1);
    double etichetta = 0.0;
    for (const EtichettaY& e : etichetteY(contenuto, assi.scala)) {
        etichetta = std::max(etichetta, larghezza(e.parole, tipoMinuto));
    }
    const double sinistra = spazio.left() + (etichetta > 0.0 ? etichetta + traEtichettaEAsse : tratto::assi);
    double destra = spazio.right() - larghezzaSoglie(contenuto, spazio.width());
    const double titoloY = contenuto.y.titolo.empty() ? 0.0 : riga;
    assi.campo =
        QRectF(QPointF(std::min(sinistra, destra - 1.0), spazio.top() + titoloY), QPointF(destra, spazio.bottom()));
    misuraX(contenuto, assi);
    // The last label may stand at the very end of the axis.
    const std::vector<EtichettaX> etichette = etichetteX(contenuto, assi);
    if (!etichette.empty() && contenuto.x.posa == Grafico::Posa::tacca) {
        const double fine = assi.x(etichette.back().posto) + larghezza(etichette.back().parole, tipoMinuto) / 2.0;
        destra -= std::clamp(fine - spazio.right(), 0.0, assi.campo.width() / 4.0);
        assi.campo.setRight(destra);
        misuraX(contenuto, assi);
    }
    const double sopra = riga / 2.0 + 2.0;
    assi.campo.setTop(assi.campo.top() + std::max(sopra, sporgenzaValori(contenuto, assi.scala, alta)));
    assi.campo.setTop(std::min(assi.campo.top(), spazio.bottom() - 1.0));
    disponiX(contenuto, spazio, assi, d);
    disponiY(contenuto, assi, d);
    disponiLineeAssi(assi, d);
    disponiTitoloY(qtesto(contenuto.y.titolo), spazio, assi.campo.left(), d);
    return assi;
}

}  // namespace kelvo::disegno
