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

#include "ui/SegnoDati.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr double puntiTitoloPannello = 13.0;
constexpr double puntiGruppo = 10.5;
constexpr double puntiCorpo = 10.0;
constexpr double puntiLimiti = 9.0;
constexpr int larghezzaColonna = 432;

}  // namespace

Pannello::Pannello(const QString& titolo, QWidget* genitore) : QWidget(genitore) {
    auto* cornice = new QFrame(this);
    cornice->setObjectName(QStringLiteral("pannelloDati"));
    auto* fuori = new QVBoxLayout(this);
    fuori->setContentsMargins(0, 0, 0, 0);
    fuori->addWidget(cornice);
    auto* dentro = new QVBoxLayout(cornice);
    dentro->setContentsMargins(misura::margine, misura::margineVerticale, misura::margine, misura::margineVerticale);
    if (!titolo.isEmpty()) {
        auto* testata = new QLabel(titolo, cornice);
        testata->setObjectName(QStringLiteral("titoloPannello"));
        testata->setFont(forte(puntiGruppo));
        dentro->addWidget(testata);
        auto* linea = new QFrame(cornice);
        linea->setObjectName(QStringLiteral("rigaPannello"));
        dentro->addWidget(linea);
    }
    griglia_ = new QGridLayout;
    griglia_->setHorizontalSpacing(8);
    griglia_->setVerticalSpacing(6);
    griglia_->setColumnStretch(1, 1);
    dentro->addLayout(griglia_);
}

void Pannello::riga(const std::string& etichetta, QWidget* campo, const QString& unita, const QString& limiti) {
    auto* testo = new QLabel(q(etichetta), this);
    testo->setFont(leggero(puntiCorpo));
    testo->setBuddy(campo);
    testo->setMinimumHeight(misura::campo);
    griglia_->addWidget(testo, righe_, 0);
    griglia_->addWidget(campo, righe_, 1);
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

VistaFinestra::VistaFinestra(Finestra& finestra, QWidget* genitore) : QWidget(genitore), finestra_(finestra) {
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

    auto* piano = new QHBoxLayout(corpo_);
    piano->setContentsMargins(misura::margine, misura::margine, misura::margine, misura::margine);
    piano->setSpacing(misura::margine);
    auto* sinistra = new QWidget(corpo_);
    sinistra->setMinimumWidth(larghezzaColonna);
    sinistra->setMaximumWidth(larghezzaColonna * 2);
    colonna_ = new QVBoxLayout(sinistra);
    colonna_->setContentsMargins(0, 0, 0, 0);
    colonna_->setSpacing(misura::margine);
    piano->addWidget(sinistra, 1);
    destra_ = new QVBoxLayout;
    destra_->setSpacing(misura::margine);
    piano->addLayout(destra_, 1);
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
    new SegnoDati(finestra_, *titolo);
    if (BarraStrumenti* barra = finestra_.barra()) {
        riga->addWidget(collega(*barra, banda, misura::icona, true));
    }
    return banda;
}

void VistaFinestra::chiudiDisposizione() {
    colonna_->addStretch(1);
    QWidget* prima = nullptr;
    for (const Controllo* controllo : finestra_.ordine()) {
        auto* widget = corpo_->findChild<QWidget*>(q(controllo->nome()));
        if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        if (prima != nullptr) {
            QWidget::setTabOrder(prima, widget);
        }
        prima = widget;
    }
}

void VistaFinestra::fuocoIniziale() {
    for (const Controllo* controllo : finestra_.ordine()) {
        auto* widget = corpo_->findChild<QWidget*>(q(controllo->nome()));
        if (widget != nullptr && controllo->prendeFuoco()) {
            widget->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

}  // namespace kelvo::ui
