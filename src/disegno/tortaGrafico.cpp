#include "disegno/tortaGrafico.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/numeri.h"
#include "disegno/testiGrafico.h"

namespace kelvo::disegno {

namespace {

using Forme = Disposizione::Forme;
using Serie = Grafico::Serie;
using Testi = Disposizione::Testi;

constexpr double campione = 10.0;  ///< square of the colour
constexpr double traCampioneENome = 6.0;
constexpr double traNomeEValore = 8.0;
constexpr double interlinea = 4.0;
constexpr double richiamo = 18.0;  ///< from the rim to the words beside it
constexpr double gomito = 8.0;
constexpr double aria = 20.0;  ///< between pie and list
constexpr double diametroConRichiami = 120.0;
constexpr double diametroMinimo = 48.0;
constexpr double parteAltezza = 0.9;  ///< of the room, so that a large pie does not touch the title
constexpr double giro = 360.0;
constexpr double sottile = 1.0;

/// A category with its slice.
struct Spicchio {
    QString nome{};
    QString valore{};
    Colore colore{};
    double da = 0.0;
    double gira = 0.0;  ///< 0: there is no slice
    double mezzo() const { return da + gira / 2.0; }
};

double radianti(double gradi) {
    return gradi * std::numbers::pi / 180.0;
}

/// A point around the middle, at an angle from the top, clockwise.
QPointF intorno(QPointF centro, double raggio, double gradi) {
    return centro + QPointF(std::sin(radianti(gradi)), -std::cos(radianti(gradi))) * raggio;
}

std::vector<Spicchio> spicchi(const Grafico::Contenuto& contenuto, const Serie& serie) {
    double totale = 0.0;
    for (const double valore : serie.valori) {
        totale += std::max(0.0, valore);
    }
    std::vector<Spicchio> trovati;
    double da = 0.0;
    for (std::size_t i = 0; i < serie.valori.size(); ++i) {
        Spicchio s;
        const double parte = totale > 0.0 ? std::max(0.0, serie.valori[i]) / totale : 0.0;
        s.nome = i < contenuto.x.etichette.size() ? qtesto(contenuto.x.etichette[i]) : QString();
        s.valore = qtesto(serie.testi.empty() ? formatta(parte, "#0.0%") : serie.testi[i]);
        s.colore = serie.colori.empty() ? tinta::categorie.at(i % tinta::categorie.size()) : serie.colori[i];
        s.da = da;
        s.gira = giro * parte;
        da += s.gira;
        trovati.push_back(s);
    }
    return trovati;
}

double larghezzaVoce(const Spicchio& s) {
    return campione + traCampioneENome + larghezza(s.nome, tipoMinuto) + (s.nome.isEmpty() ? 0.0 : traNomeEValore) +
           larghezza(s.valore, tipoMinutoForte);
}

double passoRighe() {
    return altezzaRiga(tipoMinutoForte) + interlinea;
}

/// Colour, name and value in one row from `x` on; the value ends at `fine` where that is told.
void scriviVoce(const Spicchio& s, QPointF mezzoSinistro, double larga, bool inColonna, Disposizione& d) {
    d.riquadri.push_back({.ruolo = Forme::campione,
                          .dove = QRectF(mezzoSinistro.x(), mezzoSinistro.y() - campione / 2, campione, campione),
                          .colore = s.colore,
                          .contorno = pallido(s.colore)});
    const double x = mezzoSinistro.x() + campione + traCampioneENome;
    const double valore = larghezza(s.valore, tipoMinutoForte);
    const QString nome = accorciato(s.nome, larga - campione - traCampioneENome - traNomeEValore - valore, tipoMinuto);
    double xValore = x;
    if (!nome.isEmpty()) {
        d.testi.push_back(testoPresso(Testi::fetta, nome, {x, mezzoSinistro.y()}, {0.0, 0.5}));
        xValore = d.testi.back().dove.right() + traNomeEValore;
    }
    xValore = inColonna ? std::max(xValore, mezzoSinistro.x() + larga - valore) : xValore;
    d.testi.push_back(testoPresso(Testi::valore, s.valore, {xValore, mezzoSinistro.y()}, {0.0, 0.5}, tipoMinutoForte));
}

void disponiFette(const std::vector<Spicchio>& tutti, QPointF centro, double raggio, Disposizione& d) {
    const bool vuota = std::all_of(tutti.begin(), tutti.end(), [](const Spicchio& s) { return s.gira <= 0.0; });
    if (vuota) {
        d.fette.push_back(
            {.centro = centro, .raggio = raggio, .gira = giro, .colore = colori::bianco, .contorno = true});
        return;
    }
    for (const Spicchio& s : tutti) {
        if (s.gira > 0.0) {
            d.fette.push_back({.centro = centro,
                               .raggio = raggio,
                               .da = s.da,
                               .gira = s.gira,
                               .colore = s.colore,
                               .contorno = pallido(s.colore)});
        }
    }
}

/// A row beside the pie and the height that it wants.
struct Riga {
    const Spicchio* spicchio = nullptr;
    double y = 0.0;
};

/// The rows of one side, none on another: each as near to its slice as its neighbours let it.
bool distribuisci(std::vector<Riga>& righe, const QRectF& spazio) {
    const double passo = passoRighe();
    if (static_cast<double>(righe.size()) * passo > spazio.height()) {
        return false;
    }
    // Slices of no width keep their place in the order of the categories.
    std::stable_sort(righe.begin(), righe.end(), [](const Riga& a, const Riga& b) {
        constexpr double pari = 0.01;
        return a.y < b.y - pari;
    });
    double alto = spazio.top() + passo / 2.0;
    for (Riga& riga : righe) {
        riga.y = std::max(riga.y, alto);
        alto = riga.y + passo;
    }
    double basso = spazio.bottom() - passo / 2.0;
    for (auto riga = righe.rbegin(); riga != righe.rend(); ++riga) {
        riga->y = std::min(riga->y, basso);
        basso = riga->y - passo;
    }
    return true;
}

/// Words at both sides, each with a thin line to its slice. False where there is no room for them.
bool conRichiami(const std::vector<Spicchio>& tutti, const QRectF& spazio, Disposizione& d) {
    double voce = 0.0;
    for (const Spicchio& s : tutti) {
        voce = std::max(voce, larghezzaVoce(s));
    }
    const double diametro = std::min(parteAltezza * spazio.height(), spazio.width() - 2.0 * (voce + richiamo + gomito));
    const double raggio = diametro / 2.0;
    const QPointF centro = spazio.center();
    std::vector<Riga> destra;
    std::vector<Riga> sinistra;
    for (const Spicchio& s : tutti) {
        (s.mezzo() < giro / 2.0 ? destra : sinistra).push_back({&s, intorno(centro, raggio, s.mezzo()).y()});
    }
    if (diametro < diametroConRichiami || !distribuisci(destra, spazio) || !distribuisci(sinistra, spazio)) {
        return false;
    }
    disponiFette(tutti, centro, raggio, d);
    const auto scrivi = [&](const Riga& riga, double verso) {
        const Spicchio& s = *riga.spicchio;
        const double larga = larghezzaVoce(s);
        const QPointF bordo = centro + QPointF(verso * (raggio + richiamo), 0.0);
        const QPointF parole(bordo.x(), riga.y);
        scriviVoce(s, {verso > 0 ? parole.x() : parole.x() - larga, parole.y()}, larga, false, d);
        if (s.gira > 0.0) {
            const QPointF punta(parole.x() - verso * interlinea, parole.y());
            d.linee.push_back({.punti = QPolygonF({intorno(centro, raggio, s.mezzo()),
                                                   intorno(centro, raggio + gomito, s.mezzo()), punta}),
                               .spessore = sottile,
                               .colore = tinta::secondario,
                               .ritagliata = false});
        }
    };
    std::for_each(destra.begin(), destra.end(), [&](const Riga& r) { scrivi(r, 1.0); });
    std::for_each(sinistra.begin(), sinistra.end(), [&](const Riga& r) { scrivi(r, -1.0); });
    return true;
}

/// The pie at the left or above, the list of all categories at the right or below.
void conElenco(const std::vector<Spicchio>& tutti, const QRectF& spazio, Disposizione& d) {
    const auto quante = static_cast<double>(tutti.size());
    const double passo = std::min(passoRighe(), spazio.height() / quante);
    double voce = 0.0;
    for (const Spicchio& s : tutti) {
        voce = std::max(voce, larghezzaVoce(s));
    }
    const bool sotto = spazio.height() - quante * passoRighe() - aria > spazio.width() - voce - aria;
    double diametro = 0.0;
    QPointF elenco;
    if (sotto) {
        voce = std::min(voce, spazio.width());
        diametro = std::min(spazio.width(), spazio.height() - quante * passo - aria);
        elenco = {spazio.center().x() - voce / 2.0, spazio.bottom() - quante * passo};
    } else {
        voce = std::min(voce, std::max(spazio.width() / 2.0, spazio.width() - diametroMinimo - aria));
        diametro = std::min(parteAltezza * spazio.height(), spazio.width() - voce - aria);
        const double insieme = std::max(diametro, 0.0) + aria + voce;
        elenco = {spazio.center().x() + insieme / 2.0 - voce, spazio.center().y() - quante * passo / 2.0};
    }
    const double raggio = std::max(diametro / 2.0, 1.0);
    const QPointF centro = sotto ? QPointF(spazio.center().x(), spazio.top() + raggio)
                                 : QPointF(elenco.x() - aria - raggio, spazio.center().y());
    disponiFette(tutti, centro, raggio, d);
    if (passo < altezzaRiga(tipoMinutoForte)) {
        return;  // rows would lie on one another
    }
    for (std::size_t i = 0; i < tutti.size(); ++i) {
        const double y = elenco.y() + passo * (static_cast<double>(i) + 0.5);
        scriviVoce(tutti[i], {elenco.x(), y}, voce, true, d);
    }
}

}  // namespace

bool disponiTorta(const Grafico::Contenuto& contenuto, const QRectF& spazio, Disposizione& d) {
    const auto serie = std::find_if(contenuto.serie.begin(), contenuto.serie.end(), [](const Serie& s) {
        return s.forma == Grafico::Forma::torta && !s.valori.empty();
    });
    if (serie == contenuto.serie.end()) {
        return false;
    }
    d.campo = spazio;
    const std::vector<Spicchio> tutti = spicchi(contenuto, *serie);
    const auto visibili = std::count_if(tutti.begin(), tutti.end(), [](const Spicchio& s) { return s.gira > 0.0; });
    if (visibili < 2 || !conRichiami(tutti, spazio, d)) {
        conElenco(tutti, spazio, d);
    }
    return true;
}

}  // namespace kelvo::disegno
