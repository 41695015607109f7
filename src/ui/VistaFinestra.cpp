#include "ui/VistaFinestra.h"

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>

#include "ui/DisposizioneProporzionale.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr double puntiTitoloPannello = 13.0;
constexpr double puntiGruppo = 10.5;
constexpr double puntiCorpo = 10.0;
constexpr double puntiLimiti = 9.0;

}  // namespace

Pannello::Pannello(const QString& titolo, QWidget* genitore) : QWidget(genitore) {
    auto* cornice = new QFrame(this);
    cornice->setObjectName(QStringLiteral("pannelloDati"));
    auto* fuori = new QVBoxLayout(this);
    fuori->setContentsMargins(0, 0, 0, 0);
    fuori->addWidget(cornice);
    dentro_ = new QVBoxLayout(cornice);
    dentro_->setContentsMargins(misura::margine, misura::margineVerticale, misura::margine, misura::margineVerticale);
    if (!titolo.isEmpty()) {
        auto* testata = new QLabel(titolo, cornice);
        testata->setObjectName(QStringLiteral("titoloPannello"));
        testata->setFont(forte(puntiGruppo));
        dentro_->addWidget(testata);
        auto* linea = new QFrame(cornice);
        linea->setObjectName(QStringLiteral("rigaPannello"));
        dentro_->addWidget(linea);
    }
    griglia_ = new QGridLayout;
    griglia_->setHorizontalSpacing(8);
    griglia_->setVerticalSpacing(6);
    griglia_->setColumnStretch(1, 1);
    dentro_->addLayout(griglia_);
    dentro_->addStretch(0);  // rows keep their height, lines of text take what is left
}

void Pannello::riga(Etichetta& etichetta, QWidget* campo, const QString& unita, const QString& limiti) {
    QLabel* testo = collega(etichetta, this);
    testo->setBuddy(campo);
    testo->setMinimumHeight(misura::campo);
    const bool alto = (campo->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag) != 0;
    griglia_->addWidget(testo, righe_, 0, alto ? Qt::AlignTop : Qt::Alignment{});
    griglia_->addWidget(campo, righe_, 1);
    if (alto) {
        dentro_->setStretchFactor(griglia_, 1);
    }
    if (!unita.isEmpty()) {
        auto* misuraCampo = new QLabel(unita, this);
        misuraCampo->setObjectName(QStringLiteral("unita"));
        misuraCampo->setFont(dati(puntiCorpo));
        griglia_->addWidget(misuraCampo, righe_, 2);
    }
    if (!limiti.isEmpty()) {
        auto* intervallo = new QLabel(limiti, this);
        intervallo->setObjectName(QStringLiteral("limiti"));
        intervallo->setFont(dati(puntiLimiti));
        griglia_->addWidget(intervallo, righe_, 3, Qt::AlignRight | Qt::AlignVCenter);
    }
    ++righe_;
}

void Pannello::larga(QWidget* oggetto) {
    griglia_->addWidget(oggetto, righe_, 0, 1, 4);
    ++righe_;
}

VistaFinestra::VistaFinestra(Finestra& finestra, QWidget* genitore, Misura disegno)
    : QWidget(genitore), finestra_(finestra) {
    setObjectName(q(finestra.nome()));
    auto* tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(0, 0, 0, 0);
    tutto->setSpacing(0);
    tutto->addWidget(fascia());

    auto* scorrevole = new QScrollArea(this);
    scorrevole->setWidgetResizable(true);
    scorrevole->setFrameShape(QFrame::NoFrame);
    scorrevole->setFocusPolicy(Qt::NoFocus);
    corpo_ = new QWidget(scorrevole);
    corpo_->setObjectName(QStringLiteral("lavoro"));
    scorrevole->setWidget(corpo_);
    tutto->addWidget(scorrevole, 1);

    piano_ = new DisposizioneProporzionale(disegno, corpo_);
    piano_->setContentsMargins(misura::margine, misura::margine, misura::margine, misura::margine);
    legameFuoco_ = finestra_.fuocoMutato().connect([this] {
        if (finestra_.fuoco() != nullptr) {
            porta(*finestra_.fuoco());
        }
    });
}

VistaFinestra::~VistaFinestra() {
    legameFuoco_.disconnect();
}

void VistaFinestra::colloca(QWidget* pannello, const Rettangolo& posto) {
    piano_->aggiungi(pannello, posto);
}

QVBoxLayout* VistaFinestra::colonna(const Rettangolo& posto) {
    auto* dentro = new QWidget(corpo_);
    auto* colonna = new QVBoxLayout(dentro);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(misura::margine);
    colloca(dentro, posto);
    return colonna;
}

void VistaFinestra::ridimensiona() {
    piano_->invalidate();
    piano_->activate();
}

QWidget* VistaFinestra::fascia() {
    auto* banda = new QWidget(this);
    banda->setObjectName(QStringLiteral("fascia"));
    banda->setFixedHeight(misura::fasciaTitolo);
    auto* riga = new QHBoxLayout(banda);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->setSpacing(0);
    auto* titolo = new QLabel(banda);
    titolo->setFont(forte(puntiTitoloPannello));
    titolo->setIndent(misura::margine);
    auto* legame = new Legame(finestra_.pannello, *titolo);
    legame->mostra([this, titolo] {
        const Colore sfondo = finestra_.pannello.aspetto().sfondo;
        titolo->setText(q(finestra_.pannello.testo()));
        titolo->setStyleSheet(QStringLiteral("background: %1; color: %2;")
                                  .arg(qcolore(sfondo).name(), qcolore(neroOBianco(sfondo)).name()));
    });
    riga->addWidget(titolo, 1);
    if (BarraStrumenti* barra = finestra_.barra()) {
        riga->addWidget(collega(*barra, banda, misura::icona, true));
    }
    return banda;
}

QWidget* VistaFinestra::widgetDi(const Controllo& controllo) const {
    return corpo_->findChild<QWidget*>(q(controllo.nome()));
}

void VistaFinestra::chiudiDisposizione() {
    QWidget* prima = nullptr;
    for (const Controllo* controllo : finestra_.ordine()) {
        QWidget* widget = widgetDi(*controllo);
        if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        if (prima != nullptr) {
            QWidget::setTabOrder(prima, widget);
        }
        prima = widget;
    }
}

void VistaFinestra::porta(const Controllo& controllo) {
    QWidget* widget = widgetDi(controllo);
    if (widget != nullptr && !widget->hasFocus()) {
        widget->setFocus(Qt::TabFocusReason);
    }
}

void VistaFinestra::fuocoIniziale() {
    if (finestra_.fuoco() != nullptr && finestra_.fuoco()->prendeFuoco()) {
        porta(*finestra_.fuoco());
        return;
    }
    for (const Controllo* controllo : finestra_.ordine()) {
        if (controllo->prendeFuoco() && widgetDi(*controllo) != nullptr) {
            porta(*controllo);
            return;
        }
    }
}

}  // namespace kelvo::ui
