#include "disegno/tornadoGrafico.h"

#include <algorithm>

#include "disegno/testiGrafico.h"
#include "shell/servizi/scalaGrafico.h"

namespace kelvo::disegno {

namespace {

using Contenuto = Grafico::Contenuto;
using Forme = Disposizione::Forme;
using Serie = Grafico::Serie;
using Testi = Disposizione::Testi;

constexpr double parteBarra = 0.62;    ///< of the height of a row
constexpr double barraMassima = 34.0;  ///< height of a bar at most
constexpr double traNomeECampo = 9.0;
constexpr double traBarraEValore = 5.0;
constexpr double sottoCampo = 6.0;      ///< from the plot to the labels of the axis
constexpr double parteNomi = 0.38;      ///< of the room, at most
constexpr double larghezzaTacca = 2.2;  ///< labels of the axis from one tick to the next, at least

/// Where rows and values come to stand.
struct Telaio {
    QRectF campo{};
    double nomi = 0.0;     ///< width of the names
    double rientro = 0.0;  ///< room for the labels of the values at both sides
    std::size_t righe = 0;
    Scala scala{};

    double x(double valore) const {
        return campo.left() + rientro + std::clamp(scala.quota(valore), 0.0, 1.0) * (campo.width() - 2.0 * rientro);
    }
    double altezzaRigaCampo() const { return campo.height() / static_cast<double>(righe); }
    double mezzo(std::size_t riga) const {
        constexpr double meta = 0.5;
        return campo.top() + (static_cast<double>(riga) + meta) * altezzaRigaCampo();
    }
};

std::size_t righeDi(const Contenuto& contenuto) {
    std::size_t righe = 0;
    for (const Serie& serie : contenuto.serie) {
        righe = std::max(righe, serie.valori.size());
    }
    return righe;
}

QString nomeRiga(const Contenuto& contenuto, std::size_t riga) {
    return riga < contenuto.x.etichette.size() ? qtesto(contenuto.x.etichette[riga]) : QString();
}

/// Widest label of a value.
double larghezzaValori(const Contenuto& contenuto) {
    double larga = 0.0;
    for (const Serie& serie : contenuto.serie) {
        for (const std::string& testo : serie.testi) {
            larga = std::max(larga, larghezza(qtesto(testo), tipoMinutoForte));
        }
    }
    return contenuto.valori && larga > 0.0 ? larga + traBarraEValore : 0.0;
}

Scala scalaDi(const Contenuto& contenuto, double largo) {
    double minimo = 0.0;
    double massimo = 0.0;
    for (const Serie& serie : contenuto.serie) {
        for (const double valore : serie.valori) {
            minimo = std::min(minimo, valore);
            massimo = std::max(massimo, valore);
        }
    }
    for (int quante = massimeTacche; quante > 2; --quante) {
        const Scala scala = scalaAttorno(minimo, massimo, quante);
        double parola = 0.0;
        for (const double tacca : scala.tacche) {
            parola = std::max(parola, larghezza(qtesto(scala.testo(tacca)), tipoMinuto));
        }
        if (parola * larghezzaTacca * static_cast<double>(scala.tacche.size()) <= largo) {
            return scala;
        }
    }
    return scalaAttorno(minimo, massimo, 2);
}

Telaio telaio(const Contenuto& contenuto, const QRectF& spazio) {
    Telaio t;
    t.righe = righeDi(contenuto);
    for (std::size_t r = 0; r < t.righe; ++r) {
        t.nomi = std::max(t.nomi, larghezza(nomeRiga(contenuto, r), tipoMinuto));
    }
    t.nomi = std::min(t.nomi, parteNomi * spazio.width());
    const double riga = altezzaRiga(tipoMinuto);
    const double sotto = sottoCampo + riga * (contenuto.y.titolo.empty() ? 1.0 : 2.0);
    const double sinistra = spazio.left() + (t.nomi > 0.0 ? t.nomi + traNomeECampo : 0.0);
    t.campo = QRectF(QPointF(sinistra, spazio.top()), QPointF(std::max(spazio.right(), sinistra + 1.0),
                                                              std::max(spazio.bottom() - sotto, spazio.top() + 1.0)));
    constexpr double massimoRientro = 0.3;
    t.rientro = std::min(larghezzaValori(contenuto), massimoRientro * t.campo.width());
    t.scala = scalaDi(contenuto, t.campo.width() - 2.0 * t.rientro);
    return t;
}

void disponiAsse(const Contenuto& contenuto, const Telaio& t, Disposizione& d) {
    for (const double tacca : t.scala.tacche) {
        const double x = t.x(tacca);
        d.riquadri.push_back({.ruolo = Forme::griglia,
                              .dove = QRectF(x - tratto::griglia / 2, t.campo.top(), tratto::griglia, t.campo.height()),
                              .colore = tinta::griglia});
        d.testi.push_back(testoPresso(Testi::etichettaY, qtesto(t.scala.testo(tacca)),
                                      {x, t.campo.bottom() + sottoCampo}, {0.5, 0.0}));
    }
    d.riquadri.push_back({.ruolo = Forme::asse,
                          .dove = QRectF(t.x(0.0) - tratto::assi / 2, t.campo.top(), tratto::assi, t.campo.height()),
                          .colore = tinta::grafite});
    const QString titolo = accorciato(qtesto(contenuto.y.titolo), t.campo.width(), tipoMinuto);
    if (!titolo.isEmpty()) {
        d.testi.push_back(testoPresso(Testi::titoloY, titolo,
                                      {t.campo.right(), t.campo.bottom() + sottoCampo + altezzaRiga(tipoMinuto)},
                                      {1.0, 0.0}));
    }
}

void disponiNome(const QString& nome, std::size_t riga, const Telaio& t, Disposizione& d) {
    const double alta = altezzaRiga(tipoMinuto);
    const int massime = t.altezzaRigaCampo() >= 2.0 * alta ? 2 : 1;
    const QStringList righe = inRighe(nome, t.nomi, massime, tipoMinuto);
    double y = t.mezzo(riga) - alta * static_cast<double>(righe.size()) / 2.0;
    for (const QString& parole : righe) {
        if (!parole.isEmpty() && t.altezzaRigaCampo() >= alta) {
            d.testi.push_back(testoPresso(Testi::etichettaX, parole, {t.campo.left() - traNomeECampo, y}, {1.0, 0.0}));
        }
        y += alta;
    }
}

/// The values of a row point to different sides, or at most one of them points anywhere.
bool opposti(const Contenuto& contenuto, std::size_t riga) {
    int sopra = 0;
    int sotto = 0;
    for (const Serie& serie : contenuto.serie) {
        const double valore = riga < serie.valori.size() ? serie.valori[riga] : 0.0;
        sopra += valore > 0.0 ? 1 : 0;
        sotto += valore < 0.0 ? 1 : 0;
    }
    return sopra <= 1 && sotto <= 1;
}

void disponiBarra(const Serie& serie, std::size_t riga, QRectF corsia, const Contenuto& contenuto, const Telaio& t,
                  Disposizione& d) {
    const double valore = serie.valori[riga];
    const double base = t.x(0.0);
    const double punta = t.x(valore);
    const Colore colore = serie.colori.empty() ? serie.colore : serie.colori[riga];
    if (valore != 0.0) {
        d.riquadri.push_back({.ruolo = Forme::barra,
                              .dove = QRectF(QPointF(std::min(base, punta), corsia.top()),
                                             QPointF(std::max(base, punta), corsia.bottom())),
                              .colore = colore,
                              .contorno = pallido(colore)});
    }
    const bool spazioParole = t.altezzaRigaCampo() >= altezzaRiga(tipoMinutoForte);
    if (contenuto.valori && riga < serie.testi.size() && valore != 0.0 && spazioParole) {
        const double verso = valore < 0.0 ? -1.0 : 1.0;
        d.testi.push_back(testoPresso(Testi::valore, qtesto(serie.testi[riga]),
                                      {punta + verso * traBarraEValore, corsia.center().y()},
                                      {valore < 0.0 ? 1.0 : 0.0, 0.5}));
        d.testi.back().alone = true;
    }
}

}  // namespace

bool disponiTornado(const Contenuto& contenuto, const QRectF& spazio, Disposizione& d) {
    const Telaio t = telaio(contenuto, spazio);
    if (t.righe == 0) {
        return false;
    }
    d.campo = t.campo;
    disponiAsse(contenuto, t, d);
    const double alta = std::min(barraMassima, parteBarra * t.altezzaRigaCampo());
    for (std::size_t r = 0; r < t.righe; ++r) {
        disponiNome(nomeRiga(contenuto, r), r, t, d);
        const bool insieme = opposti(contenuto, r);
        const auto quante = insieme ? 1.0 : static_cast<double>(contenuto.serie.size());
        double y = t.mezzo(r) - alta / 2.0;
        for (const Serie& serie : contenuto.serie) {
            if (r < serie.valori.size()) {
                disponiBarra(serie, r, {t.campo.left(), y, t.campo.width(), alta / quante}, contenuto, t, d);
            }
            y += insieme ? 0.0 : alta / quante;
        }
    }
    return true;
}

}  // namespace kelvo::disegno
