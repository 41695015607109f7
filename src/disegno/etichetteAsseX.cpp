#include "disegno/etichetteAsseX.h"

#include <algorithm>
#include <cmath>

#include "disegno/testiGrafico.h"

namespace kelvo::disegno {

namespace {

using Posa = Grafico::Posa;
using Forme = Disposizione::Forme;
using Testi = Disposizione::Testi;

constexpr double taccaCorta = 4.0;
constexpr double taccaLunga = 8.0;
constexpr double sottoTacca = 2.0;
constexpr double distacco = 6.0;  ///< between two names
constexpr int righeNome = 3;
/// Ticks nearer to one another are a grey bar: they are left out.
constexpr double fitte = 2.5;

std::vector<EtichettaX> daElenco(const Grafico::Asse& asse, const Assi& assi) {
    std::vector<EtichettaX> trovate;
    const auto quante = static_cast<double>(asse.etichette.size());
    const bool allaTacca = asse.posa == Posa::tacca;
    const double lunga = assi.aX - assi.daX;
    double passo = asse.passiPerEtichetta;
    if (!(passo > 0.0)) {
        passo = allaTacca ? lunga / std::max(1.0, quante - 1.0) : lunga / quante;
    }
    for (std::size_t i = 0; i < asse.etichette.size(); ++i) {
        const double dove = assi.daX + passo * (static_cast<double>(i) + (allaTacca ? 0.0 : 0.5));
        constexpr double gioco = 1e-9;
        if (dove <= assi.aX + lunga * gioco) {
            trovate.push_back({dove, qtesto(asse.etichette[i])});
        }
    }
    return trovate;
}

/// Distance of two labels on the plot.
double distanza(const std::vector<EtichettaX>& etichette, const Assi& assi) {
    return etichette.size() < 2 ? assi.campo.width() : assi.x(etichette[1].posto) - assi.x(etichette[0].posto);
}

/// Where labels begin below the plot: clear of their ticks and of the lowest label of the Y axis.
double inizioFila(bool allaTacca) {
    return std::max((allaTacca ? taccaLunga : taccaCorta) + sottoTacca, altezzaRiga(tipoMinuto) / 2.0 + 1.0);
}

/// A label below its place, or as near to that as the room lets it.
Disposizione::Testo sotto(const QString& parole, double mezzo, double alto, const Assi& assi) {
    Disposizione::Testo testo = testoPresso(Testi::etichettaX, parole, {mezzo, alto}, {0.5, 0.0});
    const double x = std::min(testo.dove.left(), assi.destra - testo.dove.width());
    testo.dove.moveLeft(std::max(x, assi.sinistra));
    return testo;
}

/// A name, shortened where the edge of the room has moved it against another one.
void accosta(Disposizione::Testo testo, const Assi& assi, FilaX& fila) {
    double libero = assi.sinistra;
    for (const Disposizione::Testo& altro : fila.testi) {
        if (altro.dove.top() < testo.dove.bottom() && testo.dove.top() < altro.dove.bottom()) {
            libero = std::max(libero, altro.dove.right() + distacco);
        }
    }
    if (testo.dove.left() < libero) {
        const double fine = testo.dove.right();
        testo = testoPresso(Testi::etichettaX, accorciato(testo.parole, fine - libero, tipoMinuto),
                            {fine, testo.dove.top()}, {1.0, 0.0});
    }
    if (!testo.parole.isEmpty()) {
        fila.testi.push_back(testo);
    }
}

/// Names in as many lines as they need, each under its step; in two rows where a word is wider than a step.
void disponiNomi(const std::vector<EtichettaX>& etichette, const Assi& assi, FilaX& fila) {
    const double passo = distanza(etichette, assi);
    const double riga = altezzaRiga(tipoMinuto);
    const auto stanno = [&](double larga, int massime) {
        return std::all_of(etichette.begin(), etichette.end(), [&](const EtichettaX& e) {
            const QStringList righe = inRighe(e.parole, larga, massime, tipoMinuto);
            return righe.join(QLatin1Char(' ')).simplified() == e.parole.simplified();
        });
    };
    const bool alterne = etichette.size() > 1 && !stanno(passo - distacco, righeNome);
    const double larga = (alterne ? 2.0 : 1.0) * passo - distacco;
    const int massime = alterne ? 1 : righeNome;
    for (std::size_t i = 0; i < etichette.size(); ++i) {
        double alto = inizioFila(false) + (alterne && i % 2 == 1 ? riga : 0.0);
        const double mezzo = assi.x(etichette[i].posto);
        for (const QString& parole : inRighe(etichette[i].parole, larga, massime, tipoMinuto)) {
            accosta(sotto(parole, mezzo, alto, assi), assi, fila);
            alto += riga;
        }
        fila.altezza = std::max(fila.altezza, alto);
    }
}

void disponiDiradate(const std::vector<EtichettaX>& etichette, const Assi& assi, bool allaTacca, FilaX& fila) {
    double larga = 0.0;
    for (const EtichettaX& e : etichette) {
        larga = std::max(larga, larghezza(e.parole, tipoMinuto));
    }
    const auto ogni = static_cast<std::size_t>(diradamentoEtichette(larga, distanza(etichette, assi)));
    const double alto = inizioFila(allaTacca);
    for (std::size_t i = 0; i < etichette.size(); i += ogni) {
        fila.testi.push_back(sotto(etichette[i].parole, assi.x(etichette[i].posto), alto, assi));
        if (allaTacca) {
            fila.lunghe.push_back(etichette[i].posto);
        }
    }
    fila.altezza = alto + altezzaRiga(tipoMinuto);
}

bool haAscisse(const Grafico::Contenuto& contenuto) {
    return std::any_of(contenuto.serie.begin(), contenuto.serie.end(),
                       [](const Grafico::Serie& s) { return !s.ascisse.empty(); });
}

}  // namespace

std::vector<EtichettaX> etichetteX(const Grafico::Contenuto& contenuto, const Assi& assi) {
    if (!contenuto.x.etichette.empty()) {
        return daElenco(contenuto.x, assi);
    }
    if (!haAscisse(contenuto) && contenuto.x.massimo <= contenuto.x.minimo) {
        return {};  // steps without names
    }
    constexpr double almeno = 56.0;  // from one value to the next
    const Scala scala = contenuto.x.tacche > 1
                            ? scalaDivisa(assi.daX, assi.aX, contenuto.x.tacche)
                            : scalaEntro(assi.daX, assi.aX, static_cast<int>(assi.campo.width() / almeno) + 1);
    std::vector<EtichettaX> trovate;
    for (const double valore : scala.tacche) {
        trovate.push_back({valore, qtesto(scala.testo(valore))});
    }
    return trovate;
}

FilaX filaX(const Grafico::Contenuto& contenuto, const Assi& assi) {
    FilaX fila{.altezza = taccaCorta};
    const std::vector<EtichettaX> etichette = etichetteX(contenuto, assi);
    if (etichette.empty()) {
        return fila;
    }
    if (contenuto.x.posa == Posa::nome && !contenuto.x.etichette.empty()) {
        disponiNomi(etichette, assi, fila);
    } else {
        disponiDiradate(etichette, assi, contenuto.x.posa == Posa::tacca, fila);
    }
    return fila;
}

void disponiTaccheX(const Grafico::Contenuto& contenuto, const Assi& assi, const FilaX& fila,
                    Disposizione& disposizione) {
    const auto tacca = [&](double dove, double lunga) {
        disposizione.riquadri.push_back(
            {.ruolo = Forme::tacca,
             .dove = QRectF(assi.x(dove) - tratto::griglia / 2, assi.campo.bottom(), tratto::griglia, lunga),
             .colore = tinta::grafite});
    };
    const int parti = contenuto.x.tacche - 1;
    if (parti > 0 && assi.campo.width() / parti >= fitte) {
        for (int i = 0; i <= parti; ++i) {
            tacca(assi.daX + (assi.aX - assi.daX) * i / parti, taccaCorta);
        }
    }
    for (const double dove : fila.lunghe) {
        tacca(dove, taccaLunga);
    }
}

}  // namespace kelvo::disegno
