#include <algorithm>
#include <cmath>

#include "disegno/serieGrafico.h"
#include "disegno/testiGrafico.h"

namespace kelvo::disegno {

namespace {

using Contenuto = Grafico::Contenuto;
using Forma = Grafico::Forma;
using Serie = Grafico::Serie;
using Testi = Disposizione::Testi;

constexpr double sopraBarra = 2.0;
constexpr double sopraPunto = 6.0;
constexpr int tipoMinimo = 10;  ///< logical pixels: labels that are a little too wide are set smaller, down to this

/// A value that could have its label.
struct Segno {
    QString parole{};
    QPointF cima{};        ///< the end of its mark
    bool sotto = false;    ///< the label stands below it
    double salita = 0.0;   ///< of the line behind the point, upwards, in pixels a pixel; 0 where it does not rise
    double discesa = 0.0;  ///< of the line before the point, downwards
    bool massimo = false;
    bool barra = false;
};

/// The marks of one row: neighbours stand `passo` apart.
struct Fila {
    std::vector<Segno> segni{};
    double passo = 0.0;
};

Tipo tipoDi(const Segno& segno, int altezza) {
    return {altezza, segno.massimo};
}

double piuLarga(const Fila& fila, int altezza) {
    double larga = 0.0;
    for (const Segno& segno : fila.segni) {
        larga = std::max(larga, larghezza(segno.parole, tipoDi(segno, altezza)));
    }
    return larga;
}

/// The first of the largest values; none where all are equal to 0.
std::size_t indiceMassimo(const Serie& serie) {
    const auto massimo = std::max_element(serie.valori.begin(), serie.valori.end());
    const bool nulli = std::all_of(serie.valori.begin(), serie.valori.end(), [](double v) { return v == 0.0; });
    return nulli ? serie.valori.size() : static_cast<std::size_t>(massimo - serie.valori.begin());
}

Segno segnoBarra(const Serie& serie, const Assi& assi, std::size_t i, double scarto) {
    return {.parole = qtesto(serie.testi[i]),
            .cima = QPointF(assi.x(posto(serie, i)) + scarto, assi.y(serie.valori[i])),
            .sotto = serie.valori[i] < 0.0,
            .massimo = i == indiceMassimo(serie),
            .barra = true};
}

/// A point lower than its neighbours has its label below it, where that does not reach the axis.
bool inValle(const Serie& serie, const Assi& assi, std::size_t i) {
    const double v = serie.valori[i];
    const double suolo = assi.base() > assi.y(v) ? std::min(assi.base(), assi.campo.bottom()) : assi.campo.bottom();
    const bool prima = i > 0 && serie.valori[i - 1] > v;
    const bool dopo = i + 1 < serie.valori.size() && serie.valori[i + 1] > v;
    return prima && dopo && assi.y(v) + sopraPunto + altezzaRiga(tipoMinuto) < suolo;
}

Segno segnoPunto(const Serie& serie, const Assi& assi, std::size_t i) {
    const auto punto = [&](std::size_t k) { return QPointF(assi.x(posto(serie, k)), assi.y(serie.valori[k])); };
    const auto ripida = [](QPointF basso, QPointF alto) {
        const double dx = std::abs(alto.x() - basso.x());
        return dx > 0.0 ? std::max(0.0, (basso.y() - alto.y()) / dx) : 0.0;
    };
    return {.parole = qtesto(serie.testi[i]),
            .cima = punto(i),
            .sotto = inValle(serie, assi, i),
            .salita = i + 1 < serie.valori.size() ? ripida(punto(i), punto(i + 1)) : 0.0,
            .discesa = i > 0 ? ripida(punto(i), punto(i - 1)) : 0.0,
            .massimo = i == indiceMassimo(serie)};
}

std::vector<Fila> file(const Contenuto& contenuto, const Assi& assi) {
    std::vector<Fila> trovate;
    Fila barre;
    const auto eBarre = [](const Serie& s) { return s.forma == Forma::barre; };
    const auto quante = static_cast<int>(std::count_if(contenuto.serie.begin(), contenuto.serie.end(), eBarre));
    int quale = 0;
    for (const Serie& serie : contenuto.serie) {
        const double scarto = eBarre(serie) ? scartoBarra(assi, quale++, quante) : 0.0;
        Fila linea{.passo = assi.scalino};
        for (std::size_t i = 0; i < serie.testi.size(); ++i) {
            if (eBarre(serie)) {
                barre.segni.push_back(segnoBarra(serie, assi, i, scarto));
            } else if (serie.forma == Forma::linee && assi.dentro(serie.valori[i])) {
                linea.segni.push_back(segnoPunto(serie, assi, i));
            }
        }
        trovate.push_back(linea);
    }
    barre.passo = quante > 1 ? scartoBarra(assi, 1, quante) - scartoBarra(assi, 0, quante) : assi.scalino;
    std::stable_sort(barre.segni.begin(), barre.segni.end(),
                     [](const Segno& a, const Segno& b) { return a.cima.x() < b.cima.x(); });
    trovate.push_back(barre);
    return trovate;
}

class Etichettatore {
public:
    Etichettatore(const Assi& assi, double destra, Disposizione& d) : assi_(assi), destra_(destra), d_(d) {
        for (const Disposizione::Testo& testo : d.testi) {
            occupati_.push_back(testo.dove);
        }
    }

    /// The label where its mark asks for it, unless something stands there already.
    void metti(const Segno& segno, int altezza) {
        Disposizione::Testo testo = testoPresso(Testi::valore, segno.parole, segno.cima, {0.5, segno.sotto ? 0.0 : 1.0},
                                                tipoDi(segno, altezza));
        testo.dove.translate(accanto(segno, testo.dove.width()), 0);
        const double sinistra = assi_.campo.left() + tratto::assi;
        const double x = std::max(sinistra, std::min(testo.dove.left(), destra_ - testo.dove.width()));
        testo.dove.moveLeft(x);
        const double distanza = segno.barra ? sopraBarra : sopraPunto;
        testo.dove.translate(0, segno.sotto ? distanza : -distanza);
        if (segno.barra) {
            oltreLeBarre(testo.dove, segno.sotto);
        }
        const bool libero = std::none_of(occupati_.begin(), occupati_.end(),
                                         [&](const QRectF& altro) { return altro.intersects(testo.dove); });
        if (libero && testo.dove.top() >= 0.0) {
            testo.alone = true;
            occupati_.push_back(testo.dove);
            d_.testi.push_back(testo);
        }
    }

private:
    /// How far a label moves aside so that the line beside its point, where it is steep, passes below it.
    static double accanto(const Segno& segno, double larga) {
        constexpr double libero = sopraPunto - 2.0;
        const auto manca = [&](double pendenza) {
            return pendenza > 0.0 ? std::max(0.0, larga / 2.0 - libero / pendenza) : 0.0;
        };
        return segno.sotto ? 0.0 : manca(segno.discesa) - manca(segno.salita);
    }

    /// A label wider than its bar stands clear of the bars beside it too.
    void oltreLeBarre(QRectF& dove, bool sotto) const {
        for (const Disposizione::Riquadro& r : d_.riquadri) {
            const bool accanto =
                r.ruolo == Disposizione::Forme::barra && r.dove.right() > dove.left() && r.dove.left() < dove.right();
            if (accanto && !sotto && r.dove.bottom() > dove.top()) {
                dove.moveBottom(std::min(dove.bottom(), r.dove.top() - sopraBarra));
            } else if (accanto && sotto && r.dove.top() < dove.bottom()) {
                dove.moveTop(std::max(dove.top(), r.dove.bottom() + sopraBarra));
            }
        }
    }

    const Assi& assi_;
    double destra_;
    Disposizione& d_;
    std::vector<QRectF> occupati_{};
};

/// The size of the type and every how many-th label.
struct Ritmo {
    int altezza = tipoMinuto.altezza;
    std::size_t ogni = 1;
};

Ritmo ritmo(const Fila& fila) {
    Ritmo trovato;
    trovato.ogni = static_cast<std::size_t>(diradamentoValori(piuLarga(fila, trovato.altezza), fila.passo));
    while (trovato.ogni == 1 && trovato.altezza > tipoMinimo && piuLarga(fila, trovato.altezza) > fila.passo) {
        --trovato.altezza;
    }
    return trovato;
}

}  // namespace

void disponiValori(const Contenuto& contenuto, const Assi& assi, double destra, Disposizione& d) {
    if (!contenuto.valori) {
        return;
    }
    Etichettatore etichettatore(assi, destra, d);
    const std::vector<Fila> righe = file(contenuto, assi);
    std::vector<Ritmo> ritmi;
    for (const Fila& fila : righe) {
        ritmi.push_back(ritmo(fila));
        for (const Segno& segno : fila.segni) {
            if (segno.massimo) {
                etichettatore.metti(segno, ritmi.back().altezza);
            }
        }
    }
    for (std::size_t f = 0; f < righe.size(); ++f) {
        const std::vector<Segno>& segni = righe[f].segni;
        const auto primo = std::find_if(segni.begin(), segni.end(), [](const Segno& s) { return s.massimo; });
        const std::size_t fase = primo == segni.end() ? 0 : static_cast<std::size_t>(primo - segni.begin());
        for (std::size_t i = fase % ritmi[f].ogni; i < segni.size(); i += ritmi[f].ogni) {
            if (!segni[i].massimo) {
                etichettatore.metti(segni[i], ritmi[f].altezza);
            }
        }
    }
}

}  // namespace kelvo::disegno
