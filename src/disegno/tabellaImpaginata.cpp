#include <QtGui/QFontMetricsF>
#include <QtGui/QTextLayout>
#include <algorithm>
#include <numeric>

#include "disegno/caratteri.h"
#include "disegno/impaginatore.h"
#include "shell/servizi/tinte.h"

namespace kelvo::disegno {

namespace {

using D = DocumentoPagine;

constexpr double corpoMassimo = 9.0;
constexpr double corpoMinimo = 6.0;
constexpr double passoCorpo = 0.5;
constexpr double ariaLato = 4.0 * punto;
constexpr double ariaAlto = 3.0 * punto;
constexpr double filo = 0.75 * punto;
constexpr double latoCasella = 9.0 * punto;
/// A row higher than a page begins where more room is left than so many times the headings.
constexpr double testatePrima = 3.0;

QString q(const std::string& testo) {
    return QString::fromStdString(testo);
}

Qt::Alignment lato(AllineamentoCella allineamento) {
    switch (allineamento) {
        case AllineamentoCella::sinistra:
            return Qt::AlignLeft;
        case AllineamentoCella::centro:
            return Qt::AlignHCenter;
        case AllineamentoCella::destra:
            break;
    }
    return Qt::AlignRight;
}

double parolaPiuLunga(const QString& testo, const QFontMetricsF& metrica) {
    double massima = 0.0;
    for (const QString& parola : testo.split(QLatin1Char(' '))) {
        massima = std::max(massima, metrica.horizontalAdvance(parola));
    }
    return massima;
}

double somma(const std::vector<double>& valori) {
    return std::accumulate(valori.begin(), valori.end(), 0.0);
}

/// Divides the width by the weights; no column is narrower than its smallest width as long as there is room for all.
std::vector<double> dividi(double larghezza, const D::Tabella& tabella, const std::vector<double>& minime) {
    const std::size_t n = minime.size();
    const double chieste = somma(minime);
    if (chieste >= larghezza) {
        std::vector<double> ridotte = minime;
        for (double& minima : ridotte) {
            minima *= larghezza / chieste;
        }
        return ridotte;
    }
    std::vector<double> parti(n, 0.0);
    std::vector<bool> fissa(n, false);
    for (bool mutato = true; mutato;) {
        mutato = false;
        double libero = larghezza;
        double pesi = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            libero -= fissa[i] ? parti[i] : 0.0;
            pesi += fissa[i] ? 0.0 : tabella.colonne[i].peso;
        }
        for (std::size_t i = 0; i < n; ++i) {
            if (!fissa[i]) {
                parti[i] = libero * tabella.colonne[i].peso / pesi;
            }
        }
        for (std::size_t i = 0; i < n; ++i) {
            if (!fissa[i] && parti[i] < minime[i]) {
                parti[i] = minime[i];
                fissa[i] = true;
                mutato = true;
            }
        }
    }
    return parti;
}

/// A row with its texts in the widths of their columns.
struct RigaComposta {
    std::vector<std::shared_ptr<QTextLayout>> testi;
    const std::vector<D::Cella>* celle = nullptr;  ///< null for the headings
    int righe = 1;
    double alta = 0.0;
};

class Tavola {
public:
    Tavola(Impaginatore& dove, const D::Tabella& tabella) : dove_(dove), tabella_(tabella) {
        const double larghezza = dove.corpo().width();
        std::vector<double> minime = larghezzeMinime();
        while (somma(minime) > larghezza && corpo_ > corpoMinimo) {
            corpo_ -= passoCorpo;
            minime = larghezzeMinime();
        }
        larghezze_ = dividi(larghezza, tabella, minime);
    }

    void disponi() {
        const RigaComposta testate = componiTestate();
        bool sotto = false;  // the headings stand on this page
        for (const std::vector<D::Cella>& celle : tabella_.righe) {
            const RigaComposta riga = componiRiga(celle);
            const double serve = riga.alta + (sotto ? 0.0 : testate.alta);
            // A row higher than a page begins where it is, if there is some room.
            const bool comincia = lunga(riga, testate) && !sotto && dove_.resto() > testatePrima * testate.alta;
            if (serve > dove_.resto() && !dove_.vuota() && !comincia) {
                dove_.nuovaPagina();
                sotto = false;
            }
            if (!sotto) {
                metti(testate, 0, testate.righe);
                sotto = true;
            }
            parti(riga, testate);
        }
        if (tabella_.righe.empty()) {
            metti(testate, 0, testate.righe);
        }
    }

    /// Room that the headings and the first row ask for.
    double inizio() const {
        const RigaComposta testate = componiTestate();
        if (tabella_.righe.empty()) {
            return testate.alta;
        }
        const RigaComposta riga = componiRiga(tabella_.righe.front());
        return lunga(riga, testate) ? testatePrima * testate.alta + punto : testate.alta + riga.alta;
    }

private:
    /// Higher than a page with the headings.
    bool lunga(const RigaComposta& riga, const RigaComposta& testate) const {
        return riga.alta + testate.alta > dove_.corpo().height();
    }

    std::vector<double> larghezzeMinime() const {
        const QFontMetricsF normale(caratterePagina(corpo_, false));
        const QFontMetricsF forte(caratterePagina(corpo_, true));
        std::vector<double> minime;
        for (std::size_t c = 0; c < tabella_.colonne.size(); ++c) {
            double minima = parolaPiuLunga(q(tabella_.colonne[c].titolo), forte);
            for (const std::vector<D::Cella>& celle : tabella_.righe) {
                const D::Cella& cella = celle.at(c);
                minima =
                    std::max(minima, cella.casella ? latoCasella
                                                   : parolaPiuLunga(q(cella.testo), cella.grassetto ? forte : normale));
            }
            minime.push_back(minima + 2.0 * ariaLato + filo);
        }
        return minime;
    }

    std::shared_ptr<QTextLayout> testo(const std::string& parole, std::size_t colonna, bool grassetto,
                                       const QColor& colore) const {
        return componi({q(parole), {}, corpo_, grassetto, colore, lato(tabella_.colonne[colonna].allineamento)},
                       larghezze_[colonna] - 2.0 * ariaLato - filo);
    }

    static void misura(RigaComposta& riga) {
        for (const auto& testo : riga.testi) {
            riga.righe = std::max(riga.righe, testo->lineCount());
            riga.alta = std::max(riga.alta, altezzaRighe(*testo, 0, testo->lineCount()) + 2.0 * ariaAlto);
        }
    }

    RigaComposta componiTestate() const {
        RigaComposta riga;
        for (std::size_t c = 0; c < tabella_.colonne.size(); ++c) {
            riga.testi.push_back(testo(tabella_.colonne[c].titolo, c, true, Qt::white));
        }
        misura(riga);
        return riga;
    }

    RigaComposta componiRiga(const std::vector<D::Cella>& celle) const {
        RigaComposta riga;
        riga.celle = &celle;
        for (std::size_t c = 0; c < tabella_.colonne.size(); ++c) {
            const Colore fondo = celle.at(c).fondo.value_or(colori::bianco);
            riga.testi.push_back(testo(celle[c].casella ? std::string{" "} : celle[c].testo, c, celle[c].grassetto,
                                       qcolore(inchiostroLeggibile(tinta::inchiostro, fondo))));
        }
        misura(riga);
        return riga;
    }

    /// A row that is higher than a page goes on below the headings of the next one.
    void parti(const RigaComposta& riga, const RigaComposta& testate) {
        for (int da = 0; da < riga.righe;) {
            int a = riga.righe;
            while (a > da + 1 && altezza(riga, da, a) > dove_.resto()) {
                --a;
            }
            metti(riga, da, a);
            da = a;
            if (da < riga.righe) {
                dove_.nuovaPagina();
                metti(testate, 0, testate.righe);
            }
        }
    }

    static double altezza(const RigaComposta& riga, int da, int a) {
        double alta = 0.0;
        for (const auto& testo : riga.testi) {
            alta =
                std::max(alta, altezzaRighe(*testo, std::min(da, testo->lineCount()), std::min(a, testo->lineCount())));
        }
        return alta + 2.0 * ariaAlto;
    }

    void metti(const RigaComposta& riga, int da, int a) {
        const double alta = altezza(riga, da, a);
        PaginaImpaginata& pagina = dove_.pagina();
        double x = dove_.corpo().left();
        for (std::size_t c = 0; c < riga.testi.size(); ++c) {
            const QRectF tutta(x, dove_.y(), larghezze_[c], alta);
            if (riga.celle == nullptr) {
                pagina.fondi.push_back({tutta.adjusted(0.0, 0.0, -filo, 0.0), qcolore(tinta::verde)});
            } else if (const auto& fondo = (*riga.celle)[c].fondo) {
                pagina.fondi.push_back({tutta.adjusted(0.0, 0.0, -filo, 0.0), qcolore(*fondo)});
            }
            cella(pagina, riga, c, tutta, da, a);
            x += larghezze_[c];
        }
        const double y = dove_.y() + alta - filo / 2.0;
        pagina.fondi.push_back(
            {QRectF(dove_.corpo().left(), y, dove_.corpo().width(), filo / 2.0), qcolore(tinta::bordo)});
        dove_.scendi(alta);
    }

    void cella(PaginaImpaginata& pagina, const RigaComposta& riga, std::size_t c, const QRectF& dove, int da,
               int a) const {
        const auto& testo = riga.testi[c];
        const std::optional<bool> casella = riga.celle == nullptr ? std::nullopt : (*riga.celle)[c].casella;
        if (casella) {
            QRectF quadro(0.0, 0.0, latoCasella, latoCasella);
            quadro.moveCenter(dove.center());
            if (da == 0) {
                pagina.caselle.push_back({quadro, *casella});
            }
            return;
        }
        const int fine = std::min(a, testo->lineCount());
        if (da < fine) {
            const double libera = dove.height() - altezzaRighe(*testo, da, fine);
            pagina.brani.push_back({testo, da, fine, QPointF(dove.left() + ariaLato, dove.top() + libera / 2.0)});
        }
    }

    Impaginatore& dove_;
    const D::Tabella& tabella_;
    double corpo_ = corpoMassimo;
    std::vector<double> larghezze_;
};

}  // namespace

void impaginaTabella(Impaginatore& dove, const DocumentoPagine::Tabella& tabella) {
    if (!tabella.colonne.empty()) {
        Tavola(dove, tabella).disponi();
    }
}

double inizioTabella(const QRectF& corpo, const DocumentoPagine::Tabella& tabella) {
    if (tabella.colonne.empty()) {
        return 0.0;
    }
    Impaginatore pagina(corpo);
    return Tavola(pagina, tabella).inizio();
}

}  // namespace kelvo::disegno
