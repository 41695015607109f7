#include "guida/tabelle.h"

#include <QtGui/QPainter>
#include <algorithm>
#include <numeric>

namespace kelvo::guida {

namespace {

constexpr double ariaLato = 4.5 * punto;
constexpr double ariaAlto = 3.0 * punto;
constexpr double sopraTabella = 8.0 * punto;
constexpr int righeUnite = 12;  ///< a table of so many rows is not parted

using Colonne = std::vector<double>;

double piuLunga(const QString& marcato, const Veste& veste, const Numeri& numeri, bool intera) {
    constexpr double senzaFine = 1e7;
    double massima = 0.0;
    if (intera) {
        return larghezza(*componi(marcato, veste, senzaFine, numeri));
    }
    for (const QString& parola : senzaMarche(marcato, numeri).split(QLatin1Char(' '))) {
        const auto una = componiNudo(parola, carattere(veste.punti, {.forte = true}), Qt::black, senzaFine);
        massima = std::max(massima, larghezza(*una));
    }
    return massima;
}

/// The widths of the columns: none narrower than its longest word, the rest by what their texts would take.
Colonne larghezze(const Tabella& tabella, const Veste& testata, const Veste& dati, const Numeri& numeri) {
    const auto n = static_cast<std::size_t>(tabella.testata.size());
    Colonne minime(n, 0.0);
    Colonne intere(n, 0.0);
    const auto conta = [&](const QStringList& riga, const Veste& veste) {
        for (std::size_t c = 0; c < n; ++c) {
            const QString& testo = riga[static_cast<qsizetype>(c)];
            minime[c] = std::max(minime[c], piuLunga(testo, veste, numeri, false) + 2.0 * ariaLato + punto);
            intere[c] = std::max(intere[c], piuLunga(testo, veste, numeri, true) + 2.0 * ariaLato + punto);
        }
    };
    conta(tabella.testata, testata);
    for (const QStringList& riga : tabella.righe) {
        conta(riga, dati);
    }
    constexpr double troppo = larghezzaTesto * 0.45;
    for (double& minima : minime) {
        minima = std::min(minima, troppo);
    }
    const double chieste = std::accumulate(intere.begin(), intere.end(), 0.0);
    if (chieste <= larghezzaTesto) {
        for (double& intera : intere) {
            intera *= larghezzaTesto / chieste;
        }
        return intere;
    }
    const double strette = std::accumulate(minime.begin(), minime.end(), 0.0);
    Colonne fatte = minime;
    if (strette >= larghezzaTesto) {
        for (double& fatta : fatte) {
            fatta *= larghezzaTesto / strette;
        }
        return fatte;
    }
    // Beyond its longest word a column grows with the root of what its text would take: long ones leave room to others.
    double pesi = 0.0;
    for (std::size_t c = 0; c < n; ++c) {
        pesi += std::sqrt(std::max(0.0, intere[c] - minime[c]));
    }
    for (std::size_t c = 0; c < n; ++c) {
        fatte[c] += (larghezzaTesto - strette) * std::sqrt(std::max(0.0, intere[c] - minime[c])) / pesi;
    }
    return fatte;
}

Pezzo riga(const QStringList& celle, const Tabella& tabella, const Colonne& colonne, const Veste& veste,
           const Numeri& numeri, const QColor& fondo) {
    std::vector<std::shared_ptr<QTextLayout>> testi;
    double alta = 0.0;
    for (std::size_t c = 0; c < colonne.size(); ++c) {
        Veste sua = veste;
        sua.lato = tabella.lati.value(static_cast<qsizetype>(c), Qt::AlignLeft);
        testi.push_back(componi(celle[static_cast<qsizetype>(c)], sua, colonne[c] - 2.0 * ariaLato, numeri));
        alta = std::max(alta, altezza(*testi.back()));
    }
    alta += 2.0 * ariaAlto;
    Pezzo pezzo;
    pezzo.alto = alta;
    pezzo.dipingi = [=](QPainter& pennello, QPointF dove) {
        pennello.fillRect(QRectF(dove, QSizeF(larghezzaTesto, alta)), fondo);
        pennello.fillRect(QRectF(dove.x(), dove.y() + alta - 0.5 * punto, larghezzaTesto, 0.5 * punto),
                          qcolore(tinta::bordo));
        double x = dove.x();
        for (std::size_t c = 0; c < colonne.size(); ++c) {
            dipingi(pennello, *testi[c], 0, testi[c]->lineCount(), {x + ariaLato, dove.y() + ariaAlto});
            x += colonne[c];
        }
    };
    return pezzo;
}

}  // namespace

void righeTabella(const Tabella& tabella, const Numeri& numeri, std::vector<Pezzo>& pezzi) {
    const Veste veste{.punti = corpo::tabella};
    const Veste vesteTestata{.punti = corpo::tabella, .forte = true, .colore = Qt::white};
    const Colonne colonne = larghezze(tabella, vesteTestata, veste, numeri);
    const auto testata =
        std::make_shared<Pezzo>(riga(tabella.testata, tabella, colonne, vesteTestata, numeri, qcolore(tinta::verde)));
    Pezzo prima = *testata;
    prima.prima = sopraTabella;
    prima.conSeguente = true;
    pezzi.push_back(prima);
    const auto n = tabella.righe.size();
    for (qsizetype i = 0; i < n; ++i) {
        Pezzo pezzo = riga(tabella.righe[i], tabella, colonne, veste, numeri,
                           i % 2 == 0 ? QColor(Qt::white) : qcolore(tinta::fondo));
        pezzo.conSeguente = i + 1 < n && (n <= righeUnite || i == 0 || i + 3 >= n);
        pezzo.testata = testata;
        pezzi.push_back(std::move(pezzo));
    }
    if (!pezzi.empty()) {
        pezzi.back().alto += 3.0 * punto;
    }
}

}  // namespace kelvo::guida
