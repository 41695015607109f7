#include "disegno/impaginazione.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QTextLayout>
#include <algorithm>

#include "disegno/caratteri.h"
#include "disegno/impaginatore.h"
#include "shell/servizi/tinte.h"

namespace kelvo::disegno {

namespace {

using D = DocumentoPagine;

constexpr double millimetro = punto * 72.0 / 25.4;
constexpr QSizeF a4(210.0 * millimetro, 297.0 * millimetro);
constexpr double margineLato = 20.0 * millimetro;
constexpr double margineAlto = 12.0 * millimetro;
constexpr double margineBasso = 10.0 * millimetro;
constexpr double fascia = 22.0 * punto;  ///< of head and foot, their line and the air behind it
constexpr double filo = 0.75 * punto;

constexpr double corpoTitolo = 18.0;
constexpr double corpoParte = 13.0;
constexpr double corpoSezione = 11.0;
constexpr double corpoTesto = 10.0;
constexpr double corpoNota = 9.0;
constexpr double sopraTitolo = 12.0 * punto;
constexpr double sottoTitolo = 5.0 * punto;
constexpr double sottoParagrafo = 5.0 * punto;
constexpr double sottoFigura = 10.0 * punto;
constexpr double latoSegno = 10.0 * punto;
constexpr double rientroSegno = 17.0 * punto;
/// What stays with a title on its page.
constexpr double conTitolo = 60.0 * punto;

QString q(const std::string& testo) {
    return QString::fromStdString(testo);
}

std::shared_ptr<QTextLayout> composto(const D::Titolo& titolo, double larghezza) {
    const double corpo = titolo.livello <= 1 ? corpoParte : corpoSezione;
    return componi({q(titolo.testo), {}, corpo, true, qcolore(tinta::titolo)}, larghezza);
}

/// The blocks one after the other.
class Flusso {
public:
    Flusso(const D& documento, const Foglio& ritto, const Foglio& coricato)
        : documento_(documento), pagine_(ritto, coricato), ritta_(ritto.corpo.width()) {
        pagine_.volta(coricata(0));
        const auto titolo = componi({q(documento.titolo), {}, corpoTitolo, false, qcolore(tinta::titolo)}, larghezza());
        pagine_.scorri(titolo, 0.0);
        pagine_.scendi(sopraTitolo);
    }

    std::vector<PaginaImpaginata> disponi() {
        for (posto_ = 0; posto_ < documento_.blocchi.size(); ++posto_) {
            std::visit(*this, documento_.blocchi[posto_]);
        }
        return pagine_.prendi();
    }

    void operator()(const D::Titolo& titolo) {
        if (titolo.livello <= 1) {
            pagine_.volta(coricata(posto_));
        }
        pagine_.stacca(sopraTitolo);
        if (!pagine_.vuota() && minimo(posto_) > pagine_.resto()) {
            pagine_.nuovaPagina();
        }
        pagine_.scorri(composto(titolo, larghezza()), 0.0);
        pagine_.scendi(sottoTitolo);
    }

    void operator()(const D::Paragrafo& paragrafo) {
        const bool segnato = paragrafo.segno != D::Segno::nessuno;
        const double x = segnato ? rientroSegno : 0.0;
        const double corpo = paragrafo.quieto ? corpoNota : corpoTesto;
        const QColor colore = qcolore(paragrafo.quieto ? tinta::secondario : tinta::inchiostro);
        const auto testo = componi({q(paragrafo.testo), q(paragrafo.inizio), corpo, false, colore}, larghezza() - x);
        pagine_.scorri(testo, x);
        if (segnato) {
            // The sign stands at the first line, wherever that went.
            segna(*testo, paragrafo.segno);
        }
        pagine_.scendi(sottoParagrafo);
    }

    void operator()(const D::Tabella& tabella) {
        impaginaTabella(pagine_, tabella);
        pagine_.scendi(sottoFigura);
    }

    void operator()(const D::Figura& figura) {
        const QSizeF misura = misuraFigura(figura);
        const auto parole = didascalia(figura);
        if (!pagine_.vuota() && altezza(figura) > pagine_.resto()) {
            pagine_.nuovaPagina();
        }
        const double x = pagine_.corpo().left() + (larghezza() - misura.width()) / 2.0;
        pagine_.pagina().figure.push_back({QRectF(QPointF(x, pagine_.y()), misura), &figura});
        pagine_.scendi(misura.height() + (parole == nullptr ? 0.0 : sottoTitolo));
        if (parole != nullptr) {
            pagine_.scorri(parole, 0.0);
        }
        pagine_.scendi(sottoFigura);
    }

    void operator()(const D::NuovaPagina& /*pagina*/) {
        const bool piena = !pagine_.vuota();
        const bool prima = pagine_.coricata();
        pagine_.volta(coricata(posto_ + 1));
        if (piena && prima == pagine_.coricata()) {
            pagine_.nuovaPagina();
        }
    }

private:
    /// The part that begins at a block lies on its side. Words before the title of a part go with it.
    bool coricata(std::size_t da) const {
        if (documento_.orizzontale) {
            return true;
        }
        while (da < documento_.blocchi.size() && std::holds_alternative<D::Paragrafo>(documento_.blocchi[da])) {
            ++da;
        }
        for (std::size_t i = da; i < documento_.blocchi.size(); ++i) {
            const D::Blocco& blocco = documento_.blocchi[i];
            const auto* titolo = std::get_if<D::Titolo>(&blocco);
            if (std::holds_alternative<D::NuovaPagina>(blocco) ||
                (i > da && titolo != nullptr && titolo->livello <= 1)) {
                return false;
            }
            if (const auto* tabella = std::get_if<D::Tabella>(&blocco);
                tabella != nullptr && tabellaLarga(*tabella, ritta_)) {
                return true;
            }
        }
        return false;
    }

    double larghezza() const { return pagine_.corpo().width(); }

    std::shared_ptr<QTextLayout> didascalia(const D::Figura& figura) const {
        return figura.didascalia.empty()
                   ? nullptr
                   : componi({q(figura.didascalia), {}, corpoNota, false, qcolore(tinta::secondario), Qt::AlignHCenter},
                             larghezza());
    }

    double altezzaDidascalia(const D::Figura& figura) const {
        const auto parole = didascalia(figura);
        return parole == nullptr ? 0.0 : sottoTitolo + altezzaRighe(*parole, 0, parole->lineCount());
    }

    /// As wide as told, or as high as the page is.
    QSizeF misuraFigura(const D::Figura& figura) const {
        const double larga = larghezza() * figura.larghezza;
        const double spazio = pagine_.corpo().height() - altezzaDidascalia(figura);
        const double alta = std::min(larga * figura.forma, spazio);
        return {alta / figura.forma, alta};
    }

    double altezza(const D::Figura& figura) const { return misuraFigura(figura).height() + altezzaDidascalia(figura); }

    /// Height from a block on that may not be parted: a title and what stands below it.
    double minimo(std::size_t posto) const {
        if (posto >= documento_.blocchi.size()) {
            return 0.0;
        }
        if (const auto* titolo = std::get_if<D::Titolo>(&documento_.blocchi[posto])) {
            const auto testo = composto(*titolo, larghezza());
            const std::size_t dopo = posto + 1;
            const bool altro =
                dopo < documento_.blocchi.size() && std::holds_alternative<D::Titolo>(documento_.blocchi[dopo]);
            return altezzaRighe(*testo, 0, testo->lineCount()) + sottoTitolo + (altro ? sopraTitolo : 0.0) +
                   minimo(dopo);
        }
        if (const auto* tabella = std::get_if<D::Tabella>(&documento_.blocchi[posto])) {
            return inizioTabella(pagine_.corpo(), *tabella);
        }
        const auto* figura = std::get_if<D::Figura>(&documento_.blocchi[posto]);
        return figura == nullptr ? conTitolo : altezza(*figura);
    }

    void segna(const QTextLayout& testo, D::Segno segno) {
        for (PaginaImpaginata& pagina : pagine_.tutte()) {
            for (const PaginaImpaginata::Brano& brano : pagina.brani) {
                if (brano.testo.get() == &testo && brano.da == 0) {
                    const double alta = testo.lineAt(0).height();
                    const QPointF angolo(pagine_.corpo().left(), brano.posto.y() + (alta - latoSegno) / 2.0);
                    pagina.segni.push_back({QRectF(angolo, QSizeF(latoSegno, latoSegno)), segno});
                }
            }
        }
    }

    const D& documento_;
    Impaginatore pagine_;
    double ritta_;  ///< width of the room on a page that stands
    std::size_t posto_ = 0;
};

/// A line of head or foot, no longer than its share of the width.
PaginaImpaginata::Brano riga(const QString& parole, const QRectF& dove, bool grassetto, Qt::Alignment lato,
                             double quota) {
    const QFontMetricsF metrica(caratterePagina(corpoNota, grassetto));
    const QString testo = metrica.elidedText(parole, Qt::ElideMiddle, dove.width() * quota);
    const auto composta = componi({testo, {}, corpoNota, grassetto, qcolore(tinta::secondario), lato}, dove.width());
    return {composta, 0, composta->lineCount(), dove.topLeft()};
}

void testata(const D& documento, PaginaImpaginata& pagina, const QRectF& dove) {
    constexpr double parte = 0.6;
    pagina.brani.push_back(riga(q(documento.progetto), dove, true, Qt::AlignLeft, parte));
    pagina.brani.push_back(riga(q(documento.progettista), dove, false, Qt::AlignRight, 1.0 - parte));
    pagina.fondi.push_back({QRectF(dove.left(), dove.top() + 15.0 * punto, dove.width(), filo), qcolore(tinta::bordo)});
}

void piede(const D& documento, PaginaImpaginata& pagina, const QRectF& dove, const QString& numero) {
    constexpr double parte = 0.75;
    pagina.fondi.push_back({QRectF(dove.left(), dove.top() + 5.0 * punto, dove.width(), filo), qcolore(tinta::bordo)});
    const QRectF sotto = dove.translated(0.0, 8.0 * punto);
    pagina.brani.push_back(riga(q(documento.chiusura), sotto, false, Qt::AlignLeft, parte));
    pagina.brani.push_back(riga(numero, sotto, false, Qt::AlignRight, 1.0 - parte));
}

}  // namespace

Impaginato impagina(const DocumentoPagine& documento) {
    const auto dentro = [](const QSizeF& foglio) {
        return QRectF(QPointF(0.0, 0.0), foglio).adjusted(margineLato, margineAlto, -margineLato, -margineBasso);
    };
    const auto foglio = [&](const QSizeF& misura) {
        return Foglio{misura, dentro(misura).adjusted(0.0, fascia, 0.0, -fascia)};
    };
    Impaginato impaginato;
    impaginato.pagine = Flusso(documento, foglio(a4), foglio(a4.transposed())).disponi();
    for (std::size_t i = 0; i < impaginato.pagine.size(); ++i) {
        const QRectF spazio = dentro(impaginato.pagine[i].foglio);
        const QRectF su(spazio.topLeft(), QSizeF(spazio.width(), fascia));
        const QRectF giu(spazio.left(), spazio.bottom() - fascia, spazio.width(), fascia);
        testata(documento, impaginato.pagine[i], su);
        piede(documento, impaginato.pagine[i], giu,
              QStringLiteral("Pagina %1 di %2").arg(i + 1).arg(impaginato.pagine.size()));
    }
    return impaginato;
}

}  // namespace kelvo::disegno
