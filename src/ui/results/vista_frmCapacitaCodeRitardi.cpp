#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>

#include "results/frmCapacitaCodeRitardi.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGriglia.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/results/VistaMappa.h"
#include "ui/results/VistaRisultati.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr QSizeF distintivo{26.0, 18.0};
constexpr double raggio = 2.0;

/// Badges of the levels, each with the delays that it stands for, in one line; in more of them where the room is short.
class LegendaLivelli final : public QWidget {
public:
    explicit LegendaLivelli(QWidget* genitore) : QWidget(genitore) {
        setObjectName(QStringLiteral("legendaLivelli"));
        setFont(dati(punti::nota));
        QSizePolicy politica(QSizePolicy::Preferred, QSizePolicy::Fixed);
        politica.setHeightForWidth(true);
        setSizePolicy(politica);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int larghezza) const override { return disponi(nullptr, larghezza).height(); }
    QSize sizeHint() const override { return disponi(nullptr, QWIDGETSIZE_MAX); }
    QSize minimumSizeHint() const override { return {0, misura::campo}; }

protected:
    void resizeEvent(QResizeEvent* evento) override {
        QWidget::resizeEvent(evento);
        setFixedHeight(heightForWidth(width()));  // its page is as high as its contents, not as their widths ask
    }
    void paintEvent(QPaintEvent* /*evento*/) override {
        QPainter pittore(this);
        pittore.setRenderHint(QPainter::Antialiasing);
        disponi(&pittore, width());
    }

private:
    /// Paints, where there is a painter, and answers the room of all of it. A badge and its delays stay together.
    QSize disponi(QPainter* pittore, int larghezza) const {
        const int inizio = fontMetrics().horizontalAdvance(q(std::string{titoloFasce})) + misura::margine;
        QPoint posto;
        parola(pittore, posto, q(std::string{titoloFasce}));
        posto.setX(inizio);
        int larga = inizio;
        for (const FasciaLivello& fascia : fasceLivelli) {
            const QString ritardo = q(std::string{fascia.ritardo});
            const int distacco = static_cast<int>(distintivo.width()) + misura::spazioRighe;
            const int sua = distacco + fontMetrics().horizontalAdvance(ritardo);
            if (posto.x() > inizio && posto.x() + sua > larghezza) {
                posto = {inizio, posto.y() + misura::campo};
            }
            if (pittore != nullptr) {
                badge(*pittore, posto, fascia.livello);
            }
            parola(pittore, posto + QPoint(distacco, 0), ritardo);
            larga = std::max(larga, posto.x() + sua);
            posto.rx() += sua + misura::margine;
        }
        return {larga, posto.y() + misura::campo};
    }
    void parola(QPainter* pittore, QPoint posto, const QString& testo) const {
        if (pittore != nullptr) {
            pittore->setPen(qcolore(tinta::secondario));
            pittore->drawText(QRect(posto, QSize(fontMetrics().horizontalAdvance(testo), misura::campo)),
                              Qt::AlignVCenter, testo);
        }
    }
    void badge(QPainter& pittore, QPoint angolo, std::string_view livello) const {
        const Distintivo tinte = distintivoLivello(livello);
        const QRectF posto(QPointF(angolo.x(), angolo.y() + (misura::campo - distintivo.height()) / 2.0), distintivo);
        pittore.setPen(QPen(qcolore(tinte.bordo), 1.0));
        pittore.setBrush(qcolore(tinte.fondo));
        pittore.drawRoundedRect(posto.adjusted(0.5, 0.5, -0.5, -0.5), raggio, raggio);
        pittore.setPen(qcolore(inchiostroLeggibile(tinte.testo, tinte.fondo)));
        pittore.drawText(posto, Qt::AlignCenter, q(std::string{livello}));
    }
};

/// Keeps a table of few rows as high as they are, so that what is said of it stands right below.
class AltaQuanto final : public QObject {
public:
    explicit AltaQuanto(VistaGriglia& tabella) : QObject(&tabella), tabella_(tabella) {
        tabella.horizontalHeader()->installEventFilter(this);
        tabella.horizontalScrollBar()->installEventFilter(this);
        aggiorna();
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        const QEvent::Type tipo = evento->type();
        if (tipo == QEvent::Resize || tipo == QEvent::Show || tipo == QEvent::Hide) {
            aggiorna();
        }
        return QObject::eventFilter(oggetto, evento);
    }

private:
    void aggiorna() {
        const QScrollBar& barra = *tabella_.horizontalScrollBar();
        tabella_.setFixedHeight(tabella_.altezzaIntera() + (barra.isVisible() ? barra.sizeHint().height() : 0));
    }
    VistaGriglia& tabella_;
};

class Vista final : public VistaRisultati {
public:
    Vista(frmCapacitaCodeRitardi& f, QWidget* genitore) : VistaRisultati(f, genitore), f_(f) {
        QTabWidget* schede = collega(f.ctlTab, {risultati(), sintesi(), mappa()}, corpo());
        invita(*schede);
        figure()->addWidget(schede, 1);
        chiudi();
        scorciatoieSchede(f.ctlTab);
    }

private:
    struct Pagina {
        QWidget* foglio = nullptr;
        QVBoxLayout* piano = nullptr;
    };
    Pagina pagina() {
        auto* foglio = new QWidget(corpo());
        auto* piano = new QVBoxLayout(foglio);
        constexpr int m = misura::spazioStretto;
        piano->setContentsMargins(m, m, m, m);
        piano->setSpacing(misura::spazio);
        return {foglio, piano};
    }
    /// A line below a table.
    QLabel* parola(Etichetta& etichetta, QWidget* foglio, bool quieta) {
        QLabel* riga = collega(etichetta, foglio);
        riga->setFont(dati(quieta ? punti::nota : punti::corpo));
        riga->setProperty("quieta", quieta);
        riga->setWordWrap(true);
        return riga;
    }

    /// How to read a tab, at its foot.
    void aiuto(const Pagina& p) {
        auto* riquadro = new RiquadroAiuto(f_.ctlHelp, QStringLiteral("Che cosa si legge"), p.foglio);
        riquadro->soloPagina();
        p.piano->addStretch(1);
        p.piano->addWidget(riquadro);
    }

    QWidget* risultati() {
        const Pagina p = pagina();
        p.piano->addWidget(collega(f_.ctlGrid, p.foglio), 1);
        auto* piede = new QHBoxLayout;
        piede->setSpacing(misura::spazioStretto);
        QLabel* perche = parola(f_.lblExcel, p.foglio, true);
        perche->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        piede->addWidget(perche, 1);
        piede->addWidget(collega(f_.Cmd_EXCEL, p.foglio));
        p.piano->addLayout(piede);
        return p.foglio;
    }

    QWidget* sintesi() {
        const Pagina p = pagina();
        VistaGriglia* tabella = collega(f_.ctlSintesi, p.foglio);
        new AltaQuanto(*tabella);
        p.piano->addWidget(tabella);
        p.piano->addWidget(parola(f_.lblSaturazione, p.foglio, false));
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::spazioStretto);
        riga->addWidget(parola(f_.lblPeggiore, p.foglio, false), 1);
        riga->addWidget(collega(f_.cmdAnteprimaSintesi, p.foglio));
        p.piano->addLayout(riga);
        p.piano->addWidget(parola(f_.lblOra, p.foglio, true));
        p.piano->addWidget(parola(f_.lblFigure, p.foglio, true));
        aiuto(p);
        return p.foglio;
    }

    QWidget* mappa() {
        const Pagina p = pagina();
        const VistaMappa::Parole parole{.ore = [this]() -> const std::vector<OraMappa>& { return f_.ore(); },
                                        .cella = [this](Posto cella) { return f_.parolaCella(cella); }};
        p.piano->addWidget(collegaMappa(f_.ctlMappa, parole, p.foglio));
        p.piano->addWidget(parola(f_.lblCella, p.foglio, false));
        p.piano->addWidget(new LegendaLivelli(p.foglio));
        aiuto(p);
        return p.foglio;
    }

    frmCapacitaCodeRitardi& f_;
};

}  // namespace

VistaFinestra* vista_frmCapacitaCodeRitardi(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmCapacitaCodeRitardi&>(finestra), genitore);
}

}  // namespace kelvo::ui
