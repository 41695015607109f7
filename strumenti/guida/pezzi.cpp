#include "guida/pezzi.h"

#include <QtGui/QPainter>
#include <algorithm>
#include <stdexcept>

#include "guida/formula.h"
#include "guida/tabelle.h"

namespace kelvo::guida {

namespace {

constexpr double sopraParagrafo = 5.0 * punto;
constexpr double sopraVoce = 2.5 * punto;
constexpr double sopraSezione = 17.0 * punto;
constexpr double sopraParte = 11.0 * punto;
constexpr double sottoCapitolo = 12.0 * punto;
constexpr double sopraFigura = 10.0 * punto;
constexpr double sottoFigura = 3.0 * punto;
constexpr double rientroVoce = 14.0 * punto;
constexpr double rientroFormula = 18.0 * punto;
constexpr double ariaAvviso = 7.0 * punto;
constexpr double barraAvviso = 3.0 * punto;
constexpr double ariaCodice = 5.0 * punto;
constexpr double pixelFigura = 0.44 * punto;  ///< length of a logical pixel of the program on paper
constexpr double pixelPerLogico = 2.0;        ///< device pixels of a picture to a logical one
constexpr double figuraAlta = 0.43;           ///< of the height of the text, at most
constexpr int codiceUnito = 34;               ///< lines that stay together

class Costruttore {
public:
    Costruttore(const Documento& documento, const Immagini& immagini) : documento_(documento), immagini_(immagini) {
        for (const Blocco& blocco : documento.blocchi) {
            if (const auto* titolo = std::get_if<Titolo>(&blocco); titolo != nullptr && !titolo->ancora.isEmpty()) {
                numeri_[titolo->ancora] = titolo->numero.isEmpty() ? titolo->testo : titolo->numero;
            }
        }
    }

    std::vector<Pezzo> tutti() {
        for (const Blocco& blocco : documento_.blocchi) {
            std::visit(*this, blocco);
        }
        return std::move(pezzi_);
    }

    void operator()(const Titolo& titolo) {
        Veste veste{.punti = corpo::parte, .forte = true, .colore = qcolore(tinta::titolo)};
        double sopra = sopraParte;
        double sotto = 0.0;
        if (titolo.livello == 1) {
            veste = {.punti = corpo::capitolo, .leggera = true, .colore = qcolore(tinta::titolo)};
            sopra = sopraSezione;
            sotto = sottoCapitolo;
        } else if (titolo.livello == 2) {
            veste.punti = corpo::sezione;
            sopra = sopraSezione;
        }
        const QString numero =
            documento_.indice && !titolo.numero.isEmpty() ? titolo.numero + QStringLiteral("\u2002") : QString{};
        const auto testo = componi(numero + titolo.testo, veste, larghezzaTesto, numeri_, titolo.ancora);
        const double alto = altezza(*testo);
        const bool riga = titolo.livello == 1;
        Pezzo pezzo{alto + sotto, sopra, true, {}, {}, &titolo, riga && documento_.capitoliAPagina, {}};
        pezzo.dipingi = [testo, alto, riga](QPainter& pennello, QPointF dove) {
            dipingi(pennello, *testo, 0, testo->lineCount(), dove);
            if (riga) {
                pennello.fillRect(QRectF(dove.x(), dove.y() + alto + 4.0 * punto, larghezzaTesto, 1.5 * punto),
                                  qcolore(tinta::principale));
            }
        };
        pezzi_.push_back(std::move(pezzo));
    }

    void operator()(const Paragrafo& paragrafo) {
        const Veste veste;
        const auto testo = componi(paragrafo.testo, veste, larghezzaTesto, numeri_);
        righe(testo, 0.0, sopraParagrafo, {});
        pezzi_.back().conSeguente = paragrafo.testo.endsWith(QLatin1Char(':'));
        paragrafo_ = pezzi_.size();
    }

    void operator()(const Elenco& elenco) {
        int numero = 0;
        for (const QString& voce : elenco.voci) {
            ++numero;
            const QString segno = elenco.numerato ? QString::number(numero) + QLatin1Char('.') : QStringLiteral("•");
            const auto testo = componi(voce, Veste{}, larghezzaTesto - rientroVoce, numeri_);
            const auto marca = componi(segno, {.forte = true, .colore = qcolore(tinta::principale)}, rientroVoce);
            righe(testo, rientroVoce, numero == 1 ? sopraParagrafo : sopraVoce, marca);
        }
    }

    void operator()(const Tabella& tabella) {
        legaParagrafo();
        righeTabella(tabella, numeri_, pezzi_);
    }

    void operator()(const Codice& codice) {
        legaParagrafo();
        const QStringList tutte = codice.testo.split(QLatin1Char('\n'));
        qsizetype lunga = 1;
        for (const QString& riga : tutte) {
            lunga = std::max(lunga, riga.size());
        }
        const double spazio = larghezzaTesto - 2.0 * ariaCodice;
        const double perCento =
            larghezza(*componiNudo(QString(100, QLatin1Char('0')), carattere(corpo::codice, {.fissa = true}), Qt::black,
                                   10.0 * larghezzaTesto)) /
            100.0;
        const double punti = std::min(corpo::codice, corpo::codice * spazio / (perCento * static_cast<double>(lunga)));
        const QFont faccia = carattere(std::max(4.6, std::floor(punti * punto) / punto), {.fissa = true});
        const auto n = tutte.size();
        for (qsizetype i = 0; i < n; ++i) {
            const auto testo = componiNudo(tutte[i].isEmpty() ? QStringLiteral(" ") : tutte[i], faccia,
                                           qcolore(tinta::inchiostro), spazio * 1.05);
            const double su = i == 0 ? ariaCodice : 0.0;
            const double giu = i + 1 == n ? ariaCodice : 0.0;
            const double alto = altezza(*testo) + su + giu;
            Pezzo pezzo{alto, i == 0 ? sopraParagrafo + punto : 0.0, false, {}, {}, nullptr, false, {}};
            pezzo.conSeguente = i + 1 < n && (n <= codiceUnito || i < 2 || i + 3 >= n);
            pezzo.dipingi = [testo, su, alto](QPainter& pennello, QPointF dove) {
                pennello.fillRect(QRectF(dove, QSizeF(larghezzaTesto, alto + 0.5)), qcolore(tinta::barra));
                dipingi(pennello, *testo, 0, testo->lineCount(), dove + QPointF(ariaCodice, su));
            };
            pezzi_.push_back(std::move(pezzo));
        }
    }

    void operator()(const Formula& formula) {
        legaParagrafo();
        const Scatola scatola = componiFormula(formula.sorgente);
        Pezzo pezzo{scatola.sopra + scatola.sotto, sopraParagrafo + 2.0 * punto, false, {}, {}, nullptr, false, {}};
        pezzo.dipingi = [scatola](QPainter& pennello, QPointF dove) {
            scatola.dipingi(pennello, dove + QPointF(rientroFormula, scatola.sopra));
        };
        pezzi_.push_back(std::move(pezzo));
    }

    void operator()(const Figura& figura) {
        QImage immagine = immagini_(figura.immagine);
        if (immagine.isNull()) {
            throw std::runtime_error("manca l'immagine " + figura.immagine.toStdString());
        }
        const QRectF parte(figura.ritaglio.x() * immagine.width(), figura.ritaglio.y() * immagine.height(),
                           figura.ritaglio.width() * immagine.width(), figura.ritaglio.height() * immagine.height());
        immagine = immagine.copy(parte.toAlignedRect());
        const QString prima =
            documento_.figureNumerate ? QStringLiteral("**Figura %1.** ").arg(figura.numero) : QString{};
        const auto parole =
            componi(prima + figura.didascalia,
                    {.punti = corpo::didascalia, .colore = qcolore(tinta::secondario), .lato = Qt::AlignHCenter},
                    larghezzaTesto, numeri_);
        const double larga =
            std::min(larghezzaTesto * figura.larghezza, immagine.width() / pixelPerLogico * pixelFigura);
        const double alta = larga * immagine.height() / immagine.width();
        Pezzo pezzo = figuraAlta_(immagine, parole, std::min(alta, altezzaTesto * figuraAlta));
        pezzo.entro = [immagine, parole, alta](double spazio) {
            return figuraAlta_(immagine, parole, std::min(alta, spazio - altezza(*parole) - sottoFigura - sopraFigura));
        };
        pezzi_.push_back(std::move(pezzo));
    }

    void operator()(const Avviso& avviso) {
        const double rientro = barraAvviso + ariaAvviso;
        const auto testo = componi(avviso.testo, Veste{}, larghezzaTesto - rientro - ariaAvviso, numeri_);
        const double alto = altezza(*testo) + ariaAvviso * 1.4;
        Pezzo pezzo{alto, sopraParagrafo + 2.0 * punto, false, {}, {}, nullptr, false, {}};
        pezzo.dipingi = [=](QPainter& pennello, QPointF dove) {
            pennello.fillRect(QRectF(dove, QSizeF(larghezzaTesto, alto)), qcolore(tinta::sfiorato));
            pennello.fillRect(QRectF(dove, QSizeF(barraAvviso, alto)), qcolore(tinta::principale));
            dipingi(pennello, *testo, 0, testo->lineCount(), dove + QPointF(rientro, ariaAvviso * 0.7));
        };
        pezzi_.push_back(std::move(pezzo));
    }

    void operator()(const NuovaPagina& /*pagina*/) {
        Pezzo pezzo;
        pezzo.aPagina = true;
        pezzo.dipingi = [](QPainter& /*pennello*/, QPointF /*dove*/) {};
        pezzi_.push_back(std::move(pezzo));
    }

private:
    /// A paragraph stays with what it leads to.
    void legaParagrafo() {
        if (paragrafo_ > 0 && paragrafo_ == pezzi_.size()) {
            pezzi_.back().conSeguente = true;
        }
    }

    static Pezzo figuraAlta_(const QImage& immagine, const std::shared_ptr<QTextLayout>& parole, double alta) {
        const double larga = alta * immagine.width() / immagine.height();
        Pezzo pezzo{
            alta + sottoFigura + altezza(*parole) + sopraFigura * 0.5, sopraFigura, false, {}, {}, nullptr, false, {}};
        pezzo.dipingi = [=](QPainter& pennello, QPointF dove) {
            const QRectF posto(dove.x() + (larghezzaTesto - larga) / 2.0, dove.y(), larga, alta);
            pennello.drawImage(posto, immagine);
            pennello.setPen(QPen(qcolore(tinta::bordo), 0.6 * punto));
            pennello.setBrush(Qt::NoBrush);
            pennello.drawRect(posto);
            dipingi(pennello, *parole, 0, parole->lineCount(), dove + QPointF(0.0, alta + sottoFigura));
        };
        return pezzo;
    }

    /// The lines of a text as pieces: neither the first nor the last line of a paragraph stands alone on a page.
    void righe(const std::shared_ptr<QTextLayout>& testo, double x, double sopra,
               const std::shared_ptr<QTextLayout>& marca) {
        const int n = testo->lineCount();
        for (int da = 0; da < n;) {
            int a = da == 0 ? std::min(2, n) : da + 1;
            if (n - a < 2) {
                a = n;
            }
            Pezzo pezzo{altezza(*testo, da, a), da == 0 ? sopra : 0.0, false, {}, {}, nullptr, false, {}};
            pezzo.dipingi = [=](QPainter& pennello, QPointF dove) {
                dipingi(pennello, *testo, da, a, dove + QPointF(x, 0.0));
                if (da == 0 && marca != nullptr) {
                    dipingi(pennello, *marca, 0, 1, dove);
                }
            };
            pezzi_.push_back(std::move(pezzo));
            da = a;
        }
    }

    const Documento& documento_;
    const Immagini& immagini_;
    Numeri numeri_;
    std::vector<Pezzo> pezzi_;
    std::size_t paragrafo_ = 0;  ///< how many pieces there were behind the last paragraph
};

}  // namespace

std::vector<Pezzo> pezziDi(const Documento& documento, const Immagini& immagini) {
    return Costruttore(documento, immagini).tutti();
}

}  // namespace kelvo::guida
