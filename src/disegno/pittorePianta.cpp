#include "disegno/pittorePianta.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "disegno/caratteri.h"
#include "pianta/curve.h"
#include "shell/servizi/tinte.h"

namespace kelvo::disegno {

namespace {

using pianta::Allineamento;
using pianta::Area;
using pianta::Linea;
using pianta::Pianta;
using pianta::Punto;
using pianta::Quota;
using pianta::Ruolo;
using pianta::Testo;
using pianta::Tracciato;

/// How an area is filled and bordered.
struct Vernice {
    Ruolo ruolo = Ruolo::carreggiata;
    Colore fondo{};
    double bordo = 0.0;  ///< width of its border in graphite; 0: none
};

/// In the order of painting, from the ground up.
constexpr std::array vernici{
    Vernice{Ruolo::carreggiata, tinta::asfalto, 0},
    Vernice{Ruolo::ingresso, tinta::ingressoCorrente, 0},
    Vernice{Ruolo::corona, tinta::corona, tratto::isola},
    Vernice{Ruolo::isola, tinta::isola, tratto::isola},
    Vernice{Ruolo::attraversamento, colori::bianco, 0},
    Vernice{Ruolo::dentiPrecedenza, colori::bianco, 0},
    Vernice{Ruolo::freccia, colori::bianco, 0},
    Vernice{Ruolo::frecciaAnello, colori::bianco, 0},
    Vernice{Ruolo::isolaDivisionale, tinta::corona, tratto::isola},
    Vernice{Ruolo::coda, colori::bianco, tratto::veicolo},
};

/// The ribbons of the flows lie on everything up to this, and below what follows.
constexpr Ruolo sottoIFlussi = Ruolo::frecciaAnello;

/// Colour of what belongs to an origin, legs from 1.
Colore tintaRamo(int ramo) {
    return tinta::categorie[static_cast<std::size_t>(ramo - 1) % tinta::categorie.size()];
}

class Pittore {
public:
    Pittore(QPainter& pennello, const Pianta& pianta, const QRectF& spazio, const StilePianta& stile)
        : pennello_(pennello), pianta_(pianta), spazio_(spazio), stile_(stile) {
        const pianta::Riquadro& vista = pianta.vista;
        scala_ = std::min(spazio.width() / vista.larghezza(), spazio.height() / vista.altezza());
        origine_ = spazio.center() - QPointF((vista.minimo.x + vista.massimo.x) / 2 * scala_,
                                             -(vista.minimo.y + vista.massimo.y) / 2 * scala_);
    }

    void dipingi() {
        for (const Vernice& vernice : vernici) {
            for (const Area& area : pianta_.aree) {
                if (area.ruolo == vernice.ruolo) {
                    dipingi(area, vernice);
                }
            }
            if (vernice.ruolo == sottoIFlussi) {
                dipingiFlussi();
            }
        }
        for (const Linea& linea : pianta_.linee) {
            dipingi(linea);
        }
        if (pianta_.fascia) {
            const double alto = punto({0, pianta_.fascia->massimo.y}).y();
            pennello_.fillRect(QRectF(QPointF(spazio_.left(), alto), spazio_.bottomRight()), Qt::white);
        }
        for (const Quota& quota : pianta_.quote) {
            if (!quota.evidenziata) {
                dipingi(quota);
            }
        }
        for (const Quota& quota : pianta_.quote) {
            if (quota.evidenziata) {
                dipingi(quota);
            }
        }
        for (const Testo& testo : pianta_.testi) {
            dipingi(testo);
        }
    }

private:
    QPointF punto(Punto p) const { return origine_ + QPointF(p.x * scala_, -p.y * scala_); }
    double spesso(double tratto) const { return tratto * stile_.tratto; }

    void aggiungi(QPainterPath& via, const Tracciato& tracciato, bool chiusa) const {
        if (tracciato.empty()) {
            return;
        }
        via.moveTo(punto(tracciato.front().p));
        const std::size_t n = tracciato.size();
        for (std::size_t i = 0; i + (chiusa ? 0 : 1) < n; ++i) {
            const Punto a = tracciato[(i + 1) % n].p;
            if (tracciato[i].bombatura == 0) {
                via.lineTo(punto(a));
                continue;
            }
            const pianta::Cerchio c = pianta::cerchioDi(tracciato[i].p, a, tracciato[i].bombatura);
            const double raggio = c.raggio * scala_;
            const QPointF centro = punto(c.centro);
            via.arcTo(QRectF(centro - QPointF(raggio, raggio), QSizeF(2 * raggio, 2 * raggio)), pianta::gradi(c.da),
                      pianta::gradi(c.gira));
        }
        if (chiusa) {
            via.closeSubpath();
        }
    }

    QPen penna(Colore colore, double larga) const {
        return {qcolore(colore), spesso(larga), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin};
    }

    void dipingi(const Area& area, const Vernice& vernice) {
        const std::optional<Colore> livello = area.ruolo == Ruolo::ingresso ? tintaLivello(area.ramo) : std::nullopt;
        if (area.ruolo == Ruolo::ingresso && !area.corrente && !livello) {
            return;  // an entry differs from the rest of the asphalt only where its leg is at hand or it has a level
        }
        QPainterPath via;
        aggiungi(via, area.contorno, true);
        if (!area.foro.empty()) {
            aggiungi(via, area.foro, true);
        }
        via.setFillRule(area.foro.empty() ? Qt::WindingFill : Qt::OddEvenFill);
        pennello_.setPen(vernice.bordo > 0 ? penna(tinta::grafite, vernice.bordo) : QPen(Qt::NoPen));
        pennello_.setBrush(qcolore(livello.value_or(vernice.fondo)));
        pennello_.drawPath(via);
    }

    /// Colour of the level of an entry, legs from 1; nothing where it has none.
    std::optional<Colore> tintaLivello(int ramo) const {
        if (pianta_.stati.empty()) {
            return std::nullopt;
        }
        const Colore fondo = distintivoLivello(pianta_.stati[static_cast<std::size_t>(ramo) - 1].livello).fondo;
        return fondo == colori::bianco ? std::nullopt : std::optional{fondo};
    }

    /// Origin by origin, so that the ribbons of one read as a band; the ribbon at hand lies above all.
    void dipingiFlussi() {
        const Area* scelto = nullptr;
        for (int ramo = 1; ramo <= static_cast<int>(pianta_.rami.size()); ++ramo) {
            std::vector<Nastro> nastri;
            for (const Area& area : pianta_.aree) {
                if (area.ruolo == Ruolo::flusso && area.ramo == ramo) {
                    nastri.push_back(nastro(area));
                    scelto = area.corrente ? &area : scelto;
                }
            }
            dipingiFascio(nastri, tintaRamo(ramo));
        }
        if (scelto != nullptr) {
            const QPainterPath via = nastro(*scelto).via;
            const double ingrossa = tratto::flussoCorrente;
            bordo(via, colori::bianco, ingrossa + 4 * tratto::flusso);
            bordo(via, tinta::inchiostro, ingrossa + 2 * tratto::flusso);
            bordo(via, tintaRamo(scelto->ramo), ingrossa);
            pennello_.fillPath(via, qcolore(tintaRamo(scelto->ramo)));
        }
    }

    struct Nastro {
        QPainterPath via;
        double largo = 0.0;  ///< logical pixels at the start
    };

    Nastro nastro(const Area& area) const {
        Nastro nastro{.via = {}, .largo = norma(area.contorno.front().p - area.contorno.back().p) * scala_};
        aggiungi(nastro.via, area.contorno, true);
        nastro.via.setFillRule(Qt::WindingFill);
        return nastro;
    }

    void bordo(const QPainterPath& via, Colore colore, double largo) {
        pennello_.strokePath(via, penna(colore, largo));
    }

    /// A border keeps a band apart from those that it crosses; one too light for the asphalt has it in graphite. On a
    /// thin ribbon it is thinner.
    void dipingiFascio(const std::vector<Nastro>& nastri, Colore colore) {
        constexpr double leggibile = 3.0;
        constexpr double quota = 0.7;
        const bool chiaro = contrasto(colore, tinta::asfalto) < leggibile;
        for (const Nastro& nastro : nastri) {
            bordo(nastro.via, chiaro ? tinta::grafite : colori::bianco,
                  std::min(2 * tratto::flusso, quota * nastro.largo / stile_.tratto));
        }
        for (const Nastro& nastro : nastri) {
            pennello_.fillPath(nastro.via, qcolore(colore));
        }
    }

    void dipingi(const Linea& linea) {
        QPen colore;
        switch (linea.ruolo) {
            case Ruolo::cordolo:
                colore = penna(tinta::grafite, tratto::cordolo);
                break;
            case Ruolo::asse:
                colore = penna(colori::bianco, tratto::asse);
                colore.setWidthF(std::max(colore.widthF(), 0.12 * scala_));
                // Dashes of 2 m and gaps of 1.5 m, in widths of the pen.
                colore.setDashPattern({2.0 * scala_ / colore.widthF(), 1.5 * scala_ / colore.widthF()});
                break;
            case Ruolo::percorso:
                colore = penna(tinta::principale, tratto::percorso);
                break;
            case Ruolo::taglioCoda:
                colore = penna(tinta::errore, tratto::taglio);
                break;
            case Ruolo::cerchioInscritto:
                if (!linea.evidenziata) {
                    return;
                }
                colore = penna(tinta::titolo, tratto::quota);
                colore.setDashPattern({6, 4});
                break;
            default:
                return;
        }
        QPainterPath via;
        aggiungi(via, linea.tracciato, linea.chiusa);
        pennello_.setPen(colore);
        pennello_.setBrush(Qt::NoBrush);
        pennello_.drawPath(via);
        if (linea.ruolo == Ruolo::percorso && linea.tracciato.size() > 1) {
            const Punto fine = linea.tracciato.back().p;
            punta(fine, versore(fine - linea.tracciato[linea.tracciato.size() - 2].p));
        }
    }

    /// Full arrow head of a movement.
    void punta(Punto dove, Punto verso) {
        const double lunga = spesso(tratto::percorso) * 3.2 / scala_;
        const Punto fianco = aSinistra(verso) * (lunga * 0.5);
        const QPolygonF testa{punto(dove + verso * lunga), punto(dove + fianco), punto(dove - fianco)};
        pennello_.setPen(Qt::NoPen);
        pennello_.setBrush(qcolore(tinta::principale));
        pennello_.drawPolygon(testa);
    }

    void dipingi(const Quota& quota) {
        const Colore colore = quota.evidenziata ? tinta::titolo : tinta::secondario;
        const double larga = quota.evidenziata ? tratto::quota : tratto::quotaSecondaria;
        QPainterPath linee;
        for (const Tracciato& via : quota.linee) {
            aggiungi(linee, via, false);
        }
        for (const pianta::Estremo& estremo : quota.estremi) {
            aggiungi(linee, estremo, quota.altezza, quota.evidenziata);
        }
        pennello_.setBrush(Qt::NoBrush);
        pennello_.setPen(penna(colore, larga));
        pennello_.drawPath(linee);
        QPainterPath sottili;
        for (const Tracciato& via : quota.riferimenti) {
            aggiungi(sottili, via, false);
        }
        aggiungi(sottili, quota.richiamo, false);
        pennello_.setPen(penna(colore, tratto::quotaSecondaria));
        pennello_.drawPath(sottili);
        if (!stile_.testi) {
            return;
        }
        const double corpo = quota.altezza * scala_;
        if (quota.evidenziata) {
            scrivi(quota.nome, quota.testo, quota.allineamento, forte(corpo), colore);
            const Punto sotto = quota.testo - Punto{0, 1.35 * quota.altezza};
            scrivi(quota.valore, sotto, quota.allineamento, dati(corpo), colore);
        } else {
            constexpr double minore = 0.9;
            scrivi(quota.nome, quota.testo, quota.allineamento, dati(minore * corpo), colore);
        }
    }

    /// Arrow head of two strokes and a tick across; a tick alone where the dimension is not the one at hand.
    void aggiungi(QPainterPath& via, const pianta::Estremo& estremo, double altezza, bool evidenziata) const {
        constexpr double apertura = 0.38;
        if (estremo.freccia && evidenziata) {
            const Punto ala = estremo.verso * (-0.75 * altezza);
            aggiungi(via,
                     {{estremo.punto + ruotato(ala, apertura), 0},
                      {estremo.punto, 0},
                      {estremo.punto + ruotato(ala, -apertura), 0}},
                     false);
        }
        if (estremo.trattino || !estremo.freccia) {
            const Punto mezzo = aSinistra(estremo.verso) * (0.5 * altezza);
            aggiungi(via, {{estremo.punto - mezzo, 0}, {estremo.punto + mezzo, 0}}, false);
        }
    }

    /// The level in its box.
    void dipingiLivello(const Testo& testo) {
        const Distintivo distintivo = distintivoLivello(testo.testo);
        const double h = testo.altezza * scala_;
        const QSizeF largo(1.7 * h, 1.3 * h);
        const QRectF dove(punto(testo.punto) - QPointF(largo.width() / 2, largo.height() / 2), largo);
        constexpr double arrotondato = 2.0;
        const bool senza = distintivo.fondo == colori::bianco;
        pennello_.setPen(penna(senza ? distintivo.bordo : colori::bianco, tratto::disco));
        pennello_.setBrush(qcolore(distintivo.fondo));
        pennello_.drawRoundedRect(dove, spesso(arrotondato), spesso(arrotondato));
        if (stile_.testi) {
            scrivi(testo.testo, testo.punto, testo.allineamento, forte(h), distintivo.testo);
        }
    }

    void dipingi(const Testo& testo) {
        const double corpo = testo.altezza * scala_;
        if (testo.ruolo == Ruolo::livello) {
            dipingiLivello(testo);
            return;
        }
        if (testo.disco > 0) {
            const bool scelta = std::any_of(pianta_.testi.begin(), pianta_.testi.end(),
                                            [](const Testo& t) { return t.disco > 0 && t.corrente; });
            const bool vuoto = scelta && !testo.corrente;
            // With flows a letter tells the colour of its origin.
            const bool flussi = std::any_of(pianta_.aree.begin(), pianta_.aree.end(),
                                            [](const Area& a) { return a.ruolo == Ruolo::flusso; });
            const Colore fondo = flussi ? tintaRamo(testo.ramo) : vuoto ? colori::bianco : tinta::principale;
            const Colore contorno = !flussi ? tinta::principale : testo.corrente ? tinta::inchiostro : tinta::grafite;
            pennello_.setPen(penna(contorno, flussi && testo.corrente ? 2 * tratto::disco : tratto::disco));
            pennello_.setBrush(qcolore(fondo));
            pennello_.drawEllipse(punto(testo.punto), testo.disco * scala_, testo.disco * scala_);
            if (stile_.testi) {
                scrivi(testo.testo, testo.punto, testo.allineamento, forte(corpo),
                       flussi  ? neroOBianco(fondo)
                       : vuoto ? tinta::principale
                               : colori::bianco);
            }
            return;
        }
        if (stile_.testi) {
            const bool nota = testo.ruolo == Ruolo::nota;
            const bool spicca = testo.corrente || testo.ruolo == Ruolo::oltreCoda;
            scrivi(testo.testo, testo.punto, testo.allineamento, spicca ? forte(corpo) : dati(corpo),
                   nota                              ? tinta::secondario
                   : testo.ruolo == Ruolo::oltreCoda ? tinta::errore
                                                     : tinta::inchiostro);
        }
    }

    /// The middle of the capitals stands at the height of `dove`.
    void scrivi(const std::string& parole, Punto dove, Allineamento allineamento, const QFont& carattere,
                Colore colore) {
        const QString testo = QString::fromStdString(parole);
        const QFontMetricsF metrica(carattere, pennello_.device());
        const double larga = metrica.horizontalAdvance(testo);
        const double parte = allineamento == Allineamento::sinistra ? 0.0
                             : allineamento == Allineamento::destra ? 1.0
                                                                    : 0.5;
        pennello_.setFont(carattere);
        pennello_.setPen(qcolore(colore));
        pennello_.drawText(punto(dove) + QPointF(-parte * larga, metrica.capHeight() / 2), testo);
    }

    QPainter& pennello_;
    const Pianta& pianta_;
    QRectF spazio_;
    StilePianta stile_;
    double scala_ = 1.0;
    QPointF origine_;
};

}  // namespace

void dipingiPianta(QPainter& pennello, const pianta::Pianta& pianta, const QRectF& spazio, const StilePianta& stile) {
    if (spazio.isEmpty()) {
        return;
    }
    pennello.save();
    pennello.setClipRect(spazio, Qt::IntersectClip);
    pennello.setRenderHint(QPainter::Antialiasing);
    pennello.setRenderHint(QPainter::TextAntialiasing);
    Pittore(pennello, pianta, spazio, stile).dipingi();
    pennello.restore();
}

}  // namespace kelvo::disegno
