#include <QtGui/QFontMetricsF>
#include <QtGui/QTextLayout>
#include <algorithm>
#include <cstddef>
#include <numeric>
#include <type_traits>
#include <utility>

#include "disegno/caratteri.h"
#include "disegno/impaginatore.h"
#include "shell/servizi/tinte.h"

namespace kelvo::disegno {

namespace {

using D = DocumentoPagine;

constexpr double corpoMassimo = 9.0;
constexpr double corpoMinimo = 6.0;
constexpr double passoCorpo = 0.5;
constexpr double corpoComodo = 7.5;  ///< what needs a smaller one on a page that stands, lies
constexpr double corpoFasce = 8.0;   ///< of what is parted in bands
constexpr double quotaGuida = 0.2;   ///< of the width of a page, at most, for each column that stands in all bands
constexpr double traFasce = 10.0 * punto;
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

/// How much of a text has to stand in one line.
enum class Intero { parola, riga };

/// Width of the longest of its words, or of the lines that it is written in.
double piuLungo(const QString& testo, Intero intero, const QFontMetricsF& metrica) {
    double massimo = 0.0;
    for (const QString& riga : testo.split(QLatin1Char('\n'))) {
        for (const QString& parte : intero == Intero::riga ? QStringList{riga} : riga.split(QLatin1Char(' '))) {
            massimo = std::max(massimo, metrica.horizontalAdvance(parte));
        }
    }
    return massimo;
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

/// What each column needs in a type so that no word of its heading is broken, nor such a part of its cells.
std::vector<double> larghezze(const D::Tabella& tabella, double corpo, Intero intero) {
    const QFontMetricsF normale(caratterePagina(corpo, false));
    const QFontMetricsF forte(caratterePagina(corpo, true));
    std::vector<double> minime;
    for (std::size_t c = 0; c < tabella.colonne.size(); ++c) {
        double minima = piuLungo(q(tabella.colonne[c].titolo), Intero::parola, forte);
        for (const std::vector<D::Cella>& celle : tabella.righe) {
            const D::Cella& cella = celle.at(c);
            const QFontMetricsF& metrica = cella.grassetto ? forte : normale;
            minima = std::max(minima, cella.casella ? latoCasella : piuLungo(q(cella.testo), intero, metrica));
        }
        minime.push_back(minima + 2.0 * ariaLato + filo);
    }
    return minime;
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
    /// In the largest type, from `corpo` points down, in which all cells have room in one line, else all words.
    Tavola(Impaginatore& dove, const D::Tabella& tabella, double corpo = corpoMassimo)
        : dove_(dove), tabella_(tabella), corpo_(corpo) {
        const double larghezza = dove.corpo().width();
        // All cells in one line, as long as the type need not be small for it.
        std::vector<double> minime = larghezze(tabella, corpo_, Intero::riga);
        while (somma(minime) > larghezza && corpo_ > corpoComodo) {
            corpo_ -= passoCorpo;
            minime = larghezze(tabella, corpo_, Intero::riga);
        }
        if (somma(minime) > larghezza) {
            corpo_ = corpo;
            minime = larghezze(tabella, corpo_, Intero::parola);
        }
        while (somma(minime) > larghezza && corpo_ > corpoMinimo) {
            corpo_ -= passoCorpo;
            minime = larghezze(tabella, corpo_, Intero::parola);
        }
        larghezze_ = dividi(larghezza, tabella, minime);
    }

    /// Height of the whole table, headings once.
    double alta() const {
        double tutta = componiTestate().alta;
        for (const std::vector<D::Cella>& celle : tabella_.righe) {
            tutta += componiRiga(celle).alta;
        }
        return tutta;
    }

    void disponi() {
        const RigaComposta testate = componiTestate();
        bool sotto = false;  // the headings stand on this page
        for (std::size_t r = 0; r < tabella_.righe.size(); ++r) {
            const RigaComposta riga = componiRiga(tabella_.righe[r]);
            const double serve = riga.alta + conSeguente(r) + (sotto ? 0.0 : testate.alta);
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
        return lunga(riga, testate) ? testatePrima * testate.alta + punto : testate.alta + riga.alta + conSeguente(0);
    }

private:
    /// Higher than a page with the headings.
    bool lunga(const RigaComposta& riga, const RigaComposta& testate) const {
        return riga.alta + testate.alta > dove_.corpo().height();
    }

    /// Height of the row behind one that does not stand last on a page.
    double conSeguente(std::size_t r) const {
        const auto& capi = tabella_.capi;
        const bool capo = r + 1 < tabella_.righe.size() && std::find(capi.begin(), capi.end(), r) != capi.end();
        return capo ? componiRiga(tabella_.righe[r + 1]).alta : 0.0;
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

    /// The heading of a column; a unit that does not fit behind it stands whole below it.
    std::string titolo(std::size_t colonna) const {
        std::string parole = tabella_.colonne[colonna].titolo;
        const QFontMetricsF forte(caratterePagina(corpo_, true));
        const bool largo = forte.horizontalAdvance(q(parole)) > larghezze_[colonna] - 2.0 * ariaLato - filo;
        if (const auto posto = parole.rfind(" ["); largo && posto != std::string::npos) {
            parole[posto] = '\n';
        }
        return parole;
    }

    RigaComposta componiTestate() const {
        RigaComposta riga;
        for (std::size_t c = 0; c < tabella_.colonne.size(); ++c) {
            riga.testi.push_back(testo(titolo(c), c, true, Qt::white));
        }
        misura(riga);
        return riga;
    }

    RigaComposta componiRiga(const std::vector<D::Cella>& celle) const {
        RigaComposta riga;
        riga.celle = &celle;
        for (std::size_t c = 0; c < tabella_.colonne.size(); ++c) {
            const Colore fondo = celle.at(c).fondo.value_or(colori::bianco);
            riga.testi.push_back(
                testo(celle[c].casella ? std::string{" "} : celle[c].testo, c, celle[c].grassetto,
                      qcolore(inchiostroLeggibile(celle[c].inchiostro.value_or(tinta::inchiostro), fondo))));
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
    double corpo_;
    std::vector<double> larghezze_;
};

/// Bands of columns, each from its first to before its end, as many in each as goes evenly; none where the columns that
/// stand in each band leave no room for another one.
std::vector<std::pair<std::size_t, std::size_t>> fasce(const D::Tabella& tabella, double larghezza) {
    std::vector<double> minime = larghezze(tabella, corpoFasce, Intero::parola);
    const std::size_t guida = std::min(tabella.guida, minime.size());
    // What stands in each band is read in each: in one line, if it is not too long.
    const std::vector<double> intere = larghezze(tabella, corpoFasce, Intero::riga);
    for (std::size_t c = 0; c < guida; ++c) {
        minime[c] = std::max(minime[c], std::min(intere[c], larghezza * quotaGuida));
    }
    const double guide = std::accumulate(minime.begin(), minime.begin() + static_cast<std::ptrdiff_t>(guida), 0.0);
    std::size_t quante = 0;  // bands, filled one after the other
    double libera = 0.0;
    for (std::size_t c = guida; c < minime.size(); ++c) {
        if (guide + minime[c] > larghezza) {
            return {};
        }
        if (quante == 0 || minime[c] > libera) {
            ++quante;
            libera = larghezza - guide;
        }
        libera -= minime[c];
    }
    std::vector<std::pair<std::size_t, std::size_t>> tutte;
    const std::size_t colonne = minime.size() - guida;
    for (std::size_t i = 0; i < quante; ++i) {
        tutte.emplace_back(guida + colonne * i / quante, guida + colonne * (i + 1) / quante);
    }
    return tutte;
}

/// The bands of a table that is too wide for a page in any type; none for one that stands whole.
std::vector<std::pair<std::size_t, std::size_t>> fasceDi(const D::Tabella& tabella, double larghezza) {
    const bool larga = somma(larghezze(tabella, corpoMinimo, Intero::parola)) > larghezza;
    return larga ? fasce(tabella, larghezza) : std::vector<std::pair<std::size_t, std::size_t>>{};
}

D::Tabella fascia(const D::Tabella& tabella, std::size_t da, std::size_t a) {
    const auto scelte = [&](const auto& tutte) {
        using Tutte = std::decay_t<decltype(tutte)>;
        const auto posto = [&](std::size_t i) { return tutte.begin() + static_cast<std::ptrdiff_t>(i); };
        Tutte quelle(tutte.begin(), posto(tabella.guida));
        quelle.insert(quelle.end(), posto(da), posto(a));
        return quelle;
    };
    D::Tabella sua{.colonne = scelte(tabella.colonne), .righe = {}, .guida = tabella.guida, .capi = tabella.capi};
    for (const std::vector<D::Cella>& celle : tabella.righe) {
        sua.righe.push_back(scelte(celle));
    }
    return sua;
}

}  // namespace

bool tabellaLarga(const DocumentoPagine::Tabella& tabella, double larghezza) {
    return somma(larghezze(tabella, corpoComodo, Intero::parola)) > larghezza;
}

void impaginaTabella(Impaginatore& dove, const DocumentoPagine::Tabella& tabella) {
    if (tabella.colonne.empty()) {
        return;
    }
    const auto tutte = fasceDi(tabella, dove.corpo().width());
    if (tutte.empty()) {
        Tavola(dove, tabella).disponi();
        return;
    }
    for (const auto& [da, a] : tutte) {
        const D::Tabella sua = fascia(tabella, da, a);
        Tavola tavola(dove, sua, corpoFasce);
        dove.stacca(da == tutte.front().first ? 0.0 : traFasce);
        const double alta = tavola.alta();
        if (alta > dove.resto() && alta <= dove.corpo().height() && !dove.vuota()) {
            dove.nuovaPagina();
        }
        tavola.disponi();
    }
}

double inizioTabella(const QRectF& corpo, const DocumentoPagine::Tabella& tabella) {
    if (tabella.colonne.empty()) {
        return 0.0;
    }
    const Foglio foglio{corpo.size(), corpo};
    Impaginatore pagina(foglio, foglio);
    const auto tutte = fasceDi(tabella, corpo.width());
    if (tutte.empty()) {
        return Tavola(pagina, tabella).inizio();
    }
    // A band that a page holds is not parted.
    const D::Tabella prima = fascia(tabella, tutte.front().first, tutte.front().second);
    const Tavola tavola(pagina, prima, corpoFasce);
    const double alta = tavola.alta();
    return alta <= corpo.height() ? alta : tavola.inizio();
}

}  // namespace kelvo::disegno
