#include "ui/results/VistaRisultati.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>

#include "ui/VistaGriglia.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/menuQt.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// One line that is cut at its end where the room is short; the mouse is told all of it.
class RigaTagliata final : public QLabel {
public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* /*evento*/) override {
        QPainter pennello(this);
        pennello.setPen(palette().color(QPalette::WindowText));
        pennello.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                          fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

/// Is there as long as one of its lines is.
class Striscia final : public QFrame {
public:
    explicit Striscia(QWidget* genitore) : QFrame(genitore) {}

    void riga(QLabel* riga) {
        righe_.push_back(riga);
        riga->installEventFilter(this);
        aggiorna();
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::ShowToParent || evento->type() == QEvent::HideToParent) {
            aggiorna();
        }
        return QFrame::eventFilter(oggetto, evento);
    }

private:
    void aggiorna() {
        setVisible(std::any_of(righe_.begin(), righe_.end(), [](const QLabel* riga) { return !riga->isHidden(); }));
    }

    std::vector<QLabel*> righe_;
};

/// Keeps a button in the middle of what lies below it.
class InMezzo final : public QObject {
public:
    InMezzo(QWidget& sotto, QWidget& bottone) : QObject(&bottone), sotto_(sotto), bottone_(bottone) {
        sotto_.installEventFilter(this);
        bottone_.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        const QEvent::Type tipo = evento->type();
        if (tipo == QEvent::Resize || tipo == QEvent::Show || tipo == QEvent::ShowToParent) {
            const QSize chiesta = bottone_.sizeHint();
            if (bottone_.size() != chiesta) {
                bottone_.resize(chiesta);
            }
            bottone_.move((sotto_.width() - chiesta.width()) / 2, (sotto_.height() - chiesta.height()) / 2);
            bottone_.raise();
        }
        return QObject::eventFilter(oggetto, evento);
    }

private:
    QWidget& sotto_;
    QWidget& bottone_;
};

}  // namespace

VistaRisultati::VistaRisultati(FinestraRisultati& finestra, QWidget* genitore)
    : VistaFinestra(finestra, genitore), f_(finestra), tutto_(new QWidget(corpo())) {
    colloca(tutto_, {0.0, 0.0, disegnoFinestra.W, disegnoFinestra.H});
    auto* piano = new QHBoxLayout(tutto_);
    piano->setContentsMargins(0, 0, 0, 0);
    piano->setSpacing(misura::margine);
    colonnaFigure_ = new QVBoxLayout;
    colonnaFigure_->setSpacing(misura::spazio);
    piano->addLayout(colonnaFigure_, 1);
    colonnaFigure_->addWidget(note());
    figure_ = new QVBoxLayout;
    figure_->setSpacing(misura::spazio);
    colonnaFigure_->addLayout(figure_, 1);
}

QVBoxLayout* VistaRisultati::lato() {
    if (lato_ == nullptr) {
        auto* colonna = new QWidget(tutto_);
        colonna->setFixedWidth(misura::colonnaRisultati);
        lato_ = new QVBoxLayout(colonna);
        lato_->setContentsMargins(0, 0, 0, 0);
        lato_->setSpacing(misura::margine);
        tutto_->layout()->addWidget(colonna);
    }
    return lato_;
}

void VistaRisultati::secondaBarra(BarraStrumenti& barra) {
    auto* striscia = new QFrame(this);
    striscia->setObjectName(QStringLiteral("secondaFascia"));
    striscia->setFixedHeight(misura::barraSeconda);
    auto* riga = new QHBoxLayout(striscia);
    riga->setContentsMargins(misura::spazio, 0, misura::spazio, 0);
    QToolBar* strumenti = collega(barra, striscia, misura::icona, true, FondoBarra::chiaro);
    strumenti->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    riga->addWidget(strumenti);
    riga->addStretch(1);
    for (const BarraStrumenti::Tasto& tasto : barra.tasti()) {
        if (!tasto.scorciatoia.empty()) {
            auto* scorciatoia = new QShortcut(QKeySequence(q(tasto.scorciatoia)), this);
            QObject::connect(scorciatoia, &QShortcut::activated, this,
                             [&barra, chiave = tasto.chiave] { barra.premi(chiave); });
        }
    }
    qobject_cast<QVBoxLayout*>(layout())->insertWidget(1, striscia);
}

VistaGriglia* VistaRisultati::tabella(Griglia& griglia, QWidget* genitore) {
    VistaGriglia* vista = collega(griglia, genitore);
    invita(*vista);
    return vista;
}

void VistaRisultati::invita(QWidget& sotto) {
    auto* invito = qobject_cast<QPushButton*>(collega(f_.cmdCalcola, &sotto));
    invito->setDefault(true);
    new InMezzo(sotto, *invito);
}

void VistaRisultati::scorciatoieSchede(Schede& schede) {
    const auto scorciatoia = [this, &schede](QKeyCombination tasti, bool avanti) {
        auto* passo = new QShortcut(QKeySequence(tasti), this);
        QObject::connect(passo, &QShortcut::activated, this, [&schede, avanti] { schede.sposta(avanti); });
    };
    scorciatoia(Qt::CTRL | Qt::Key_Tab, true);
    scorciatoia(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, false);
    scorciatoia(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, false);
}

QWidget* VistaRisultati::note() {
    auto* striscia = new Striscia(tutto_);
    striscia->setObjectName(QStringLiteral("note"));
    auto* piano = new QVBoxLayout(striscia);
    piano->setContentsMargins(misura::spazioStretto, misura::spazioRighe, misura::spazioStretto, misura::spazioRighe);
    piano->setSpacing(misura::canale);
    for (Etichetta* nota : {&f_.lblVecchi, &f_.lblFlussi, &f_.lblNotte}) {
        QLabel* riga = collega(*nota, striscia);
        riga->setFont(dati(punti::corpo));
        riga->setWordWrap(true);
        piano->addWidget(riga);
        striscia->riga(riga);
    }
    return striscia;
}

QWidget* VistaRisultati::piede() {
    auto* piede = new QWidget(tutto_);
    auto* riga = new QHBoxLayout(piede);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->setSpacing(misura::spazioStretto);
    const auto basso = [](QAbstractButton* bottone) {
        bottone->setProperty("basso", true);
        bottone->setFixedHeight(misura::rigaAlbero);
        bottone->setFont(dati(punti::nota));
        return bottone;
    };
    riga->addWidget(basso(collega(f_.cmdInVigore, piede)));
    auto* inVigore = new RigaTagliata(piede);
    inVigore->setFont(dati(punti::nota));
    inVigore->setProperty("quieta", true);
    auto* legame = new Legame(f_.lblInVigore, *inVigore);
    legame->mostra([this, inVigore] {
        inVigore->setText(q(f_.lblInVigore.testo()));
        inVigore->setToolTip(inVigore->text());
    });
    riga->addWidget(inVigore, 1);
    QAbstractButton* bottone = basso(collega(f_.cmdDati, piede));
    f_.cmdDati.allaPressione = [this, bottone] {
        if (MenuChiavi* menu = f_.menuDati()) {
            mostraContesto(*menu, *bottone, bottone->rect().bottomLeft());
        }
    };
    riga->addWidget(bottone);
    return piede;
}

void VistaRisultati::chiudi() {
    VistaGriglia* inVigore = collega(f_.ctlInVigore, tutto_);
    inVigore->setMaximumHeight(misura::inVigore);
    colonnaFigure_->addWidget(inVigore);
    colonnaFigure_->addWidget(piede());
    if (lato_ != nullptr) {
        lato_->addStretch(1);
    }
    chiudiDisposizione();
}

}  // namespace kelvo::ui
