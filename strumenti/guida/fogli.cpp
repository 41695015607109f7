#include "guida/fogli.h"

#include <QtGui/QPainter>
#include <memory>

#include "guida/stile.h"
#include "guida/testo.h"

namespace kelvo::guida {

namespace {

constexpr double rientroSezione = 16.0 * punto;
constexpr double largoNumero = 30.0 * punto;
constexpr double largoPagina = 30.0 * punto;

using Dipinto = std::function<void(QPainter&)>;

void scritta(QPainter& pennello, const QString& testo, const Veste& veste, const QRectF& dove) {
    const auto composta = componi(testo, veste, dove.width());
    dipingi(pennello, *composta, 0, composta->lineCount(), dove.topLeft());
}

Dipinto copertina(const Documento& documento, const Dicitura& dicitura) {
    return [&documento, dicitura](QPainter& pennello) {
        const double fascia = altezzaFoglio * 0.40;
        pennello.fillRect(QRectF(0.0, 0.0, larghezzaFoglio, fascia), qcolore(tinta::principale));
        pennello.fillRect(QRectF(0.0, fascia, larghezzaFoglio, 2.0 * millimetro), qcolore(Colore{164, 196, 0}));
        const double x = margineLato;
        scritta(pennello, QStringLiteral("Kelvo"), {.punti = 60.0, .leggera = true, .colore = Qt::white},
                {x, fascia - 78.0 * millimetro, larghezzaTesto, 30.0 * millimetro});
        scritta(pennello, documento.titolo, {.punti = 26.0, .leggera = true, .colore = Qt::white},
                {x, fascia - 46.0 * millimetro, larghezzaTesto, 20.0 * millimetro});
        scritta(pennello, documento.sottotitolo, {.punti = 13.0, .colore = Qt::white},
                {x, fascia - 26.0 * millimetro, larghezzaTesto, 20.0 * millimetro});
        if (dicitura.disegno) {
            const double lato = 140.0 * millimetro;
            dicitura.disegno(pennello, {(larghezzaFoglio - lato) / 2.0, fascia + 8.0 * millimetro, lato, lato});
        }
        scritta(pennello, QStringLiteral("Versione ") + dicitura.versione,
                {.punti = 11.0, .forte = true, .colore = qcolore(tinta::titolo)},
                {x, altezzaFoglio - 26.0 * millimetro, larghezzaTesto, 10.0 * millimetro});
    };
}

/// Lines of the contents, on as many sheets as they need.
class Indice {
public:
    Indice(const Impaginato& impaginato, int prima) {
        nuovo();
        for (const VoceIndice& voce : impaginato.voci) {
            if (voce.titolo->livello <= 2) {
                voci_.push_back({voce, 0});
            }
        }
        // How many sheets it takes does not hang on the numbers: they are known once it is laid out.
        for (auto& [voce, foglio] : voci_) {
            const double alta = voce.titolo->livello == 1 ? 22.0 * punto : 14.5 * punto;
            const double sola = voce.titolo->livello == 1 ? alta + 14.5 * punto : alta;
            if (y_ + sola > altezzaTesto) {
                nuovo();
            }
            foglio = static_cast<int>(righe_.size()) - 1;
            righe_.back().push_back({voce, y_ + (voce.titolo->livello == 1 ? 7.0 * punto : 0.0)});
            y_ += alta;
        }
        prima_ = prima + static_cast<int>(righe_.size());
    }

    int fogli() const { return static_cast<int>(righe_.size()); }

    void dipingi(QPainter& pennello, int foglio) const {
        if (foglio == 0) {
            scritta(pennello, QStringLiteral("Indice"),
                    {.punti = corpo::capitolo, .leggera = true, .colore = qcolore(tinta::titolo)},
                    {margineLato, margineAlto, larghezzaTesto, 40.0 * punto});
            pennello.fillRect(QRectF(margineLato, margineAlto + 34.0 * punto, larghezzaTesto, 1.5 * punto),
                              qcolore(tinta::principale));
        }
        for (const auto& [voce, y] : righe_[static_cast<std::size_t>(foglio)]) {
            riga(pennello, voce, margineAlto + y);
        }
    }

private:
    void nuovo() {
        y_ = righe_.empty() ? 44.0 * punto : 0.0;
        righe_.emplace_back();
    }

    void riga(QPainter& pennello, const VoceIndice& voce, double y) const {
        const Titolo& titolo = *voce.titolo;
        const bool capitolo = titolo.livello == 1;
        const QColor colore = qcolore(capitolo ? tinta::titolo : tinta::inchiostro);
        const Veste veste{.punti = capitolo ? 10.5 : 9.5, .forte = capitolo, .colore = colore, .legami = colore};
        const double x = margineLato + (capitolo ? 0.0 : rientroSezione);
        const auto collegata = [&](const QString& testo) {
            return titolo.ancora.isEmpty() ? testo : QStringLiteral("[%1](#%2)").arg(testo, titolo.ancora);
        };
        const auto numero = componi(collegata(titolo.numero), veste, largoNumero + punto * 4.0);
        const auto parole = componi(collegata(titolo.testo), veste, larghezzaTesto);
        Veste aDestra = veste;
        aDestra.lato = Qt::AlignRight;
        const auto pagina = componi(collegata(QString::number(prima_ + voce.pagina + 1)), aDestra, largoPagina);
        guida::dipingi(pennello, *numero, 0, 1, {x, y});
        const double dopo = x + (capitolo ? largoNumero - 8.0 * punto : largoNumero);
        guida::dipingi(pennello, *parole, 0, 1, {dopo, y});
        const double destra = margineLato + larghezzaTesto;
        guida::dipingi(pennello, *pagina, 0, 1, {destra - largoPagina, y});
        pennello.setPen(QPen(qcolore(tinta::bordo), 0.8 * punto, Qt::DotLine));
        const double base = y + numero->lineAt(0).ascent();
        pennello.drawLine(QPointF(dopo + larghezza(*parole) + 4.0 * punto, base),
                          QPointF(destra - larghezza(*pagina) - 4.0 * punto, base));
    }

    std::vector<std::pair<VoceIndice, int>> voci_;
    std::vector<std::vector<std::pair<VoceIndice, double>>> righe_;
    double y_ = 0.0;
    int prima_ = 0;
};

void testataEPiede(QPainter& pennello, const Documento& documento, const Dicitura& dicitura, const QString& capitolo,
                   int foglio, int tutti) {
    const Veste sinistra{.punti = corpo::piede, .colore = qcolore(tinta::secondario)};
    Veste destra = sinistra;
    destra.lato = Qt::AlignRight;
    Veste spicca = sinistra;
    spicca.forte = true;
    const double x = margineLato;
    const QRectF alto(x, 12.0 * millimetro, larghezzaTesto, 5.0 * millimetro);
    scritta(pennello, QStringLiteral("Kelvo – ") + documento.titolo, spicca, alto);
    scritta(pennello, capitolo, destra, alto);
    pennello.fillRect(QRectF(x, 17.2 * millimetro, larghezzaTesto, 0.6 * punto), qcolore(tinta::bordo));
    const double y = altezzaFoglio - 14.0 * millimetro;
    pennello.fillRect(QRectF(x, y, larghezzaTesto, 0.6 * punto), qcolore(tinta::bordo));
    const QRectF basso(x, y + 1.2 * millimetro, larghezzaTesto, 5.0 * millimetro);
    scritta(pennello, QStringLiteral("Kelvo ") + dicitura.versione, sinistra, basso);
    scritta(pennello, QStringLiteral("Pagina %1 di %2").arg(foglio + 1).arg(tutti), destra, basso);
}

}  // namespace

Fogli fogliDi(const Documento& documento, const std::vector<Pezzo>& pezzi, const Dicitura& dicitura) {
    const auto testo = std::make_shared<Impaginato>(impagina(pezzi));
    const int primi = documento.copertina ? 1 : 0;
    const std::shared_ptr<Indice> indice = documento.indice ? std::make_shared<Indice>(*testo, primi) : nullptr;
    const int davanti = primi + (indice == nullptr ? 0 : indice->fogli());
    const int tutti = davanti + static_cast<int>(testo->pagine.size());
    Fogli fatti;
    if (documento.copertina) {
        fatti.fogli.push_back(copertina(documento, dicitura));
    }
    for (int f = 0; indice != nullptr && f < indice->fogli(); ++f) {
        fatti.fogli.push_back([=, &documento](QPainter& pennello) {
            testataEPiede(pennello, documento, dicitura, QStringLiteral("Indice"), primi + f, tutti);
            indice->dipingi(pennello, f);
        });
    }
    for (std::size_t p = 0; p < testo->pagine.size(); ++p) {
        fatti.fogli.push_back([=, &documento](QPainter& pennello) {
            const Pagina& pagina = testo->pagine[p];
            testataEPiede(pennello, documento, dicitura, documento.indice ? pagina.capitolo : QString{},
                          davanti + static_cast<int>(p), tutti);
            for (const Pagina::Posto& posto : pagina.posti) {
                posto.dipingi(pennello, posto.angolo);
            }
        });
    }
    for (const VoceIndice& voce : testo->voci) {
        if (!voce.titolo->ancora.isEmpty()) {
            fatti.ancore.push_back({voce.titolo->ancora, davanti + voce.pagina, voce.y});
        }
        if (voce.titolo->livello <= 2) {
            const QString numero =
                voce.titolo->numero.isEmpty() || !documento.indice ? QString{} : voce.titolo->numero + QLatin1Char(' ');
            fatti.segnalibri.push_back(
                {voce.titolo->livello, numero + senzaMarche(voce.titolo->testo), davanti + voce.pagina});
        }
    }
    return fatti;
}

}  // namespace kelvo::guida
