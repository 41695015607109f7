#include "ui/results/VistaRisultati.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
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
    QToolBar* striscia = collega(barra, this, misura::icona, true, FondoBarra::chiaro);
    striscia->setFixedHeight(misura::barraSeconda);
    qobject_cast<QVBoxLayout*>(layout())->insertWidget(1, striscia);
}

VistaGriglia* VistaRisultati::tabella(Griglia& griglia, QWidget* genitore) {
    VistaGriglia* vista = collega(griglia, genitore);
    auto* invito = qobject_cast<QPushButton*>(collega(f_.cmdCalcola, vista));
    invito->setDefault(true);
    new InMezzo(*vista, *invito);
    return vista;
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
    riga->addWidget(collega(f_.cmdInVigore, piede));
    auto* inVigore = new RigaTagliata(piede);
    inVigore->setFont(dati(punti::nota));
    inVigore->setProperty("quieta", true);
    auto* legame = new Legame(f_.lblInVigore, *inVigore);
    legame->mostra([this, inVigore] {
        inVigore->setText(q(f_.lblInVigore.testo()));
        inVigore->setToolTip(inVigore->text());
    });
    riga->addWidget(inVigore, 1);
    QAbstractButton* bottone = collega(f_.cmdDati, piede);
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
