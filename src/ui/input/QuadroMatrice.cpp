#include "ui/input/QuadroMatrice.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <algorithm>

#include "ui/VistaGriglia.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int colonnaMassima = 84;
constexpr int totaliMinimi = 72;
constexpr int distacco = misura::spazio;
constexpr int filo = 1;  ///< border above and left of a table of totals

}  // namespace

QuadroMatrice::QuadroMatrice(frmMatriceSvolte& finestra, QWidget* genitore) : QWidget(genitore), f_(finestra) {
    matrice_ = collega(f_.ctlGrid, this);
    entrate_ = collega(f_.ctlGridEntrate, this);
    uscite_ = collega(f_.ctlGridUscite, this);
    for (VistaGriglia* vista : {matrice_, entrate_, uscite_}) {
        vista->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        vista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    for (VistaGriglia* totali : {entrate_, uscite_}) {
        totali->setShowGrid(true);
        totali->setStyleSheet(QStringLiteral("QTableView { gridline-color: %1; }").arg(qcolore(tinta::bordo).name()));
    }
    uscite_->incolonna(*matrice_);
    titoloEntrate_ = titolo(f_.frmTotaleEntrate);
    titoloUscite_ = titolo(f_.frmTotaleUscite);
    for (Etichetta& etichetta : f_.lblVeicoliEntrate) {
        unitaEntrate_.push_back(unita(etichetta));
    }
    for (Etichetta& etichetta : f_.lblVeicoliUscite) {
        unitaUscite_.push_back(unita(etichetta));
        unitaUscite_.back()->setFont(dati(punti::nota));
        unitaUscite_.back()->setAlignment(Qt::AlignRight | Qt::AlignTop);
    }
    segui(f_.ctlGrid);
    segui(f_.ctlGridEntrate);
    segui(f_.ctlGridUscite);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QuadroMatrice::~QuadroMatrice() {
    for (sigc::connection& legame : legami_) {
        legame.disconnect();
    }
}

QLabel* QuadroMatrice::titolo(Riquadro& riquadro) {
    auto* parole = new QLabel(q(riquadro.titolo()), this);
    parole->setFont(forte(punti::corpo));
    auto* legame = new Legame(riquadro, *parole);
    legame->mostra({});
    return parole;
}

QLabel* QuadroMatrice::unita(Etichetta& etichetta) {
    QLabel* parole = collega(etichetta, this);
    parole->setFont(dati(punti::corpo));
    segui(etichetta);
    return parole;
}

void QuadroMatrice::segui(Controllo& controllo) {
    legami_.push_back(controllo.cambiato().connect([this] { rivedi(); }));
}

void QuadroMatrice::rivedi() {
    // The words beside a total are as strong as the total.
    const Tabella& totali = f_.ctlGridEntrate.tabella();
    for (int i = 0; i < totali.righe(); ++i) {
        const bool forti = totali.cella(i, 0).grassetto;
        unitaEntrate_[static_cast<std::size_t>(i)]->setFont(forti ? forte(punti::corpo) : dati(punti::corpo));
    }
    updateGeometry();
    disponi();
}

int QuadroMatrice::rami() const {
    return std::max(0, f_.ctlGrid.tabella().righe() - f_.ctlGrid.righeFisse());
}

int QuadroMatrice::larghezzaUnita() const {
    int larga = titoloEntrate_->sizeHint().width() - larghezzaTotali() - distacco;
    for (const QLabel* parole : unitaEntrate_) {
        larga = parole->isHidden() ? larga : std::max(larga, parole->sizeHint().width());
    }
    if (!titoloUscite_->isHidden()) {
        larga = std::max(larga, titoloUscite_->sizeHint().width() - larghezzaTotali() - distacco);
    }
    return larga;
}

int QuadroMatrice::larghezzaTotali() const {
    return std::max(totaliMinimi, entrate_->colonnaMinima());
}

int QuadroMatrice::colonnaMinima() const {
    int minima = matrice_->colonnaMinima();
    for (const QLabel* parole : unitaUscite_) {
        minima = parole->isHidden() ? minima : std::max(minima, parole->sizeHint().width());
    }
    return minima;
}

int QuadroMatrice::larghezza(int colonna) const {
    return colonna * (rami() + 1) + distacco + filo + larghezzaTotali() + distacco + larghezzaUnita();
}

int QuadroMatrice::altezza() const {
    int alta = matrice_->altezzaIntera();
    if (!titoloUscite_->isHidden()) {
        alta += distacco + filo + uscite_->altezzaIntera() + unitaUscite_.front()->sizeHint().height();
    }
    return alta;
}

QSize QuadroMatrice::sizeHint() const {
    return {larghezza(std::max(colonnaMassima, colonnaMinima())), altezza()};
}

QSize QuadroMatrice::minimumSizeHint() const {
    return {larghezza(colonnaMinima()), altezza()};
}

void QuadroMatrice::disponi() {
    const int colonne = rami() + 1;
    const int libera = width() - larghezza(0);
    const int minima = colonnaMinima();
    const int colonna = std::clamp(libera / colonne, minima, std::max(minima, colonnaMassima));
    matrice_->setGeometry(0, 0, colonna * colonne, matrice_->altezzaIntera());
    disponiEntrate();
    disponiUscite();
    update();
}

void QuadroMatrice::disponiEntrate() {
    const int sinistra = matrice_->width() + distacco + filo;
    const int larghi = larghezzaTotali();
    const int prima = matrice_->posto({1, 1}).top();
    titoloEntrate_->setGeometry(sinistra, 0, larghi + distacco + larghezzaUnita(), prima);
    entrate_->setGeometry(sinistra, prima, larghi, matrice_->height() - prima);
    for (int i = 0; i < static_cast<int>(unitaEntrate_.size()); ++i) {
        const QRect riga = matrice_->posto({i + 1, 1});
        unitaEntrate_[static_cast<std::size_t>(i)]->setGeometry(sinistra + larghi + distacco, riga.top(),
                                                                larghezzaUnita(), riga.height());
    }
}

void QuadroMatrice::disponiUscite() {
    const int sopra = matrice_->height() + distacco + filo;
    const int alti = uscite_->altezzaIntera();
    const int prima = matrice_->posto({1, 1}).left();
    uscite_->setGeometry(prima, sopra, matrice_->width() - prima, alti);
    const int destra = matrice_->width() + distacco + filo;
    titoloUscite_->setGeometry(destra, sopra, larghezzaTotali() + distacco + larghezzaUnita(), alti);
    for (int j = 0; j < static_cast<int>(unitaUscite_.size()); ++j) {
        const QRect colonna = matrice_->posto({1, j + 1});
        QLabel* parole = unitaUscite_[static_cast<std::size_t>(j)];
        parole->setGeometry(colonna.left(), sopra + alti, colonna.width() - filo, parole->sizeHint().height());
    }
}

void QuadroMatrice::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    disponi();
}

void QuadroMatrice::changeEvent(QEvent* evento) {
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange) {
        rivedi();
    }
}

void QuadroMatrice::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pittore(this);
    for (const VistaGriglia* vista : {entrate_, uscite_}) {
        if (!vista->isHidden() && !vista->geometry().isEmpty()) {
            pittore.fillRect(vista->geometry().adjusted(-filo, -filo, 0, 0), qcolore(tinta::bordo));
        }
    }
}

}  // namespace kelvo::ui
