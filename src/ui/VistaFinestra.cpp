#include "ui/VistaFinestra.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>

#include "shell/servizi/carta.h"
#include "shell/servizi/menuDati.h"
#include "shell/servizi/scelte.h"
#include "ui/DisposizioneProporzionale.h"
#include "ui/PannelloTitolo.h"
#include "ui/RiquadroAiuto.h"
#include "ui/SegnoDati.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Letters of the menu bar: no label inside a window takes one of them.
const QString lettereMenu = QStringLiteral("FDORSKH");

QFrame* lineaSottile(QWidget* genitore) {
    auto* linea = new QFrame(genitore);
    linea->setObjectName(QStringLiteral("rigaPannello"));
    return linea;
}

/// A hint beside what matters.
void quieta(QLabel& parola) {
    parola.setProperty("quieta", true);
    parola.setFont(dati(punti::nota));
}

/// The letter of a text that no other label has, at the start of a word where there is one.
QChar letteraLibera(const QString& testo, const QString& prese) {
    for (const bool inizio : {true, false}) {
        for (qsizetype i = 0; i < testo.size(); ++i) {
            const QChar lettera = testo[i].toUpper();
            const bool prima = i == 0 || !testo[i - 1].isLetter();
            const bool semplice = lettera >= QLatin1Char('A') && lettera <= QLatin1Char('Z');
            if (semplice && (prima || !inizio) && !prese.contains(lettera)) {
                return lettera;
            }
        }
    }
    return {};
}

}  // namespace

Pannello::Pannello(const QString& titolo, QWidget* genitore) : QWidget(genitore) {
    auto* cornice = new QFrame(this);
    cornice->setObjectName(QStringLiteral("pannelloDati"));
    auto* fuori = new QVBoxLayout(this);
    fuori->setContentsMargins(0, 0, 0, 0);
    fuori->addWidget(cornice);
    auto* dentro = new QVBoxLayout(cornice);
    // The sign of a check box stands in line with titles and labels, the ring of its focus beyond it.
    constexpr int sinistra = misura::margine - misura::sporgenza;
    dentro->setContentsMargins(sinistra, misura::margineVerticale, misura::margine, misura::margineVerticale);
    dentro->setSpacing(misura::spazioRighe);
    testata_ = new QHBoxLayout;
    dentro->addLayout(testata_);  // takes no room as long as it is empty
    if (!titolo.isEmpty()) {
        auto* testata = new QLabel(titolo, cornice);
        testata->setObjectName(QStringLiteral("titoloPannello"));
        testata->setFont(forte(punti::gruppo));
        testata_->setContentsMargins(misura::sporgenza, 0, 0, 0);
        testata_->addWidget(testata, 1);
        auto* linea = new QHBoxLayout;
        linea->setContentsMargins(misura::sporgenza, 0, 0, 0);
        linea->addWidget(lineaSottile(cornice));
        dentro->addLayout(linea);
    }
    griglia_ = new QGridLayout;
    griglia_->setHorizontalSpacing(misura::spazio);
    griglia_->setVerticalSpacing(misura::spazioRighe);
    griglia_->setColumnStretch(3, 1);
    dentro->addLayout(griglia_);
}

void Pannello::nota(const QString& testo) {
    auto* parola = new QLabel(testo, this);
    nota(parola);
}

void Pannello::nota(Etichetta& testo) {
    nota(collega(testo, this));
}

void Pannello::nota(QLabel* parola) {
    quieta(*parola);
    testata_->addWidget(parola);
}

void Pannello::valore(Etichetta& etichetta, Etichetta& testo) {
    auto* nome = collega(etichetta, this);
    nome->setContentsMargins(misura::sporgenza, 0, 0, 0);
    auto* detto = collega(testo, this);
    detto->setFont(dati(punti::corpo));
    detto->setWordWrap(true);
    griglia_->addWidget(nome, righe_, 0, Qt::AlignTop);
    griglia_->addWidget(detto, righe_, 1, 1, 3);
    ++righe_;
}

void Pannello::sotto(Etichetta& nota) {
    auto* riga = collega(nota, this);
    quieta(*riga);
    griglia_->addWidget(riga, righe_, 1, 1, 3, Qt::AlignRight);
    ++righe_;
}

void Pannello::riga(const std::string& etichetta, QWidget* campo, const QString& unita, const QString& limiti) {
    auto* testo = new QLabel(q(etichetta), this);
    testo->setFont(leggero(punti::corpo));
    riga(testo, campo, unita, limiti);
}

void Pannello::riga(Etichetta& etichetta, QWidget* campo, const QString& unita, const QString& limiti) {
    riga(collega(etichetta, this), campo, unita, limiti);
}

void Pannello::riga(QLabel* etichetta, QWidget* campo, const QString& unita, const QString& limiti) {
    etichetta->setBuddy(campo);
    etichetta->setMinimumHeight(misura::campo);
    etichetta->setContentsMargins(misura::sporgenza + (spunte_ ? misura::rientro : 0), 0, 0, 0);
    griglia_->addWidget(etichetta, righe_, 0, Qt::AlignTop);
    teste_.push_back(etichetta);
    campoDiRiga(campo, unita, limiti);
}

void Pannello::riga(QAbstractButton* spunta, QWidget* campo, const QString& unita, const QString& limiti) {
    griglia_->addWidget(spunta, righe_, 0, Qt::AlignLeft);
    teste_.push_back(spunta);
    spunte_ = true;
    campo->setAccessibleName(spunta->text().remove(QLatin1Char('&')));
    campoDiRiga(campo, unita, limiti);
}

void Pannello::campoDiRiga(QWidget* campo, const QString& unita, const QString& limiti) {
    const bool stretto = !unita.isEmpty() || !limiti.isEmpty();
    if (stretto) {
        campo->setFixedWidth(misura::campoCorto);
    }
    griglia_->addWidget(campo, righe_, 1, 1, stretto ? 1 : 3);
    if (!unita.isEmpty()) {
        auto* misuraCampo = new QLabel(unita, this);
        misuraCampo->setObjectName(QStringLiteral("unita"));
        misuraCampo->setFont(dati(punti::corpo));
        griglia_->addWidget(misuraCampo, righe_, 2);
    }
    if (!limiti.isEmpty()) {
        auto* intervallo = new QLabel(limiti, this);
        intervallo->setObjectName(QStringLiteral("limiti"));
        quieta(*intervallo);
        griglia_->addWidget(intervallo, righe_, 3, Qt::AlignRight | Qt::AlignVCenter);
    }
    ++righe_;
}

void Pannello::larga(QWidget* oggetto, Qt::Alignment lato) {
    if (oggetto->property("sporgente").toBool()) {
        const bool cresce = oggetto->sizePolicy().expandingDirections().testFlag(Qt::Horizontal);
        griglia_->addWidget(oggetto, righe_, 0, 1, 4, cresce ? lato : lato | Qt::AlignLeft);
    } else {
        auto* riga = new QHBoxLayout;
        riga->setContentsMargins(misura::sporgenza, 0, 0, 0);
        riga->addWidget(oggetto, 0, lato);
        griglia_->addLayout(riga, righe_, 0, 1, 4);
    }
    ++righe_;
}

void Pannello::fitto() {
    griglia_->setVerticalSpacing(misura::spazioSpunte);
}

void Pannello::avviso(Etichetta& etichetta) {
    QLabel* testo = collega(etichetta, this);
    testo->setFont(dati(punti::nota));
    testo->setWordWrap(true);
    testo->setContentsMargins(spunte_ ? misura::rientro : 0, 0, 0, misura::canale);
    larga(testo);
}

int Pannello::larghezzaEtichette() const {
    int massima = 0;
    for (const QWidget* testa : teste_) {
        massima = std::max(massima, testa->sizeHint().width());
    }
    return massima;
}

void Pannello::larghezzaEtichette(int larghezza) {
    griglia_->setColumnMinimumWidth(0, larghezza);
}

VistaFinestra::VistaFinestra(Finestra& finestra, QWidget* genitore, Forma forma)
    : QWidget(genitore), finestra_(finestra), forma_(forma) {
    setObjectName(q(finestra.nome()));
    corpo_ = new QWidget(this);
    corpo_->setObjectName(QStringLiteral("lavoro"));
    sinistra_ = new QWidget(corpo_);
    colonna_ = new QVBoxLayout(sinistra_);
    colonna_->setContentsMargins(0, 0, 0, 0);
    colonna_->setSpacing(misura::margine);
    lato_ = new QWidget(corpo_);
    destra_ = new QVBoxLayout(lato_);
    destra_->setContentsMargins(0, 0, 0, 0);
    destra_->setSpacing(misura::margine);
    if (forma == Forma::dialogo) {
        disponiDialogo();
    } else {
        disponiFinestra();
    }
    if (auto* carta = dynamic_cast<SuCarta*>(&finestra_)) {
        auto* stampa = new QShortcut(QKeySequence(QLatin1String(MenuDati::tastoStampa)), this);
        QObject::connect(stampa, &QShortcut::activated, this, [carta] { carta->stampaFigure(); });
    }
    legameFuoco_ = finestra_.fuocoMutato().connect([this] {
        if (finestra_.fuoco() != nullptr) {
            porta(*finestra_.fuoco());
        }
    });
}

VistaFinestra::~VistaFinestra() {
    legameFuoco_.disconnect();
}

void VistaFinestra::disponiFinestra() {
    auto* tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(0, 0, 0, 0);
    tutto->setSpacing(0);
    tutto->addWidget(fascia());
    auto* scorrevole = new QScrollArea(this);
    scorrevole->setWidgetResizable(true);
    scorrevole->setFrameShape(QFrame::NoFrame);
    scorrevole->setFocusPolicy(Qt::NoFocus);
    scorrevole->setWidget(corpo_);
    tutto->addWidget(scorrevole, 1);
    constexpr int m = misura::margine;
    piano_ = new DisposizioneProporzionale(disegnoFinestra, corpo_);
    piano_->setContentsMargins(m, m, m, m);
    colloca(sinistra_, {});
    colloca(lato_, {});
    larghezzaColonna(misura::colonna);
}

void VistaFinestra::disponiDialogo() {
    auto* tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(0, 0, 0, 0);
    tutto->setSpacing(0);
    tutto->addWidget(corpo_, 1);
    auto* piano = new QHBoxLayout(corpo_);
    piano->setSpacing(misura::margine);
    constexpr int m = misura::margineDialogo;
    piano->setContentsMargins(m, m, m, m);
    // The column takes its width first, the rest goes to what stands at its right.
    constexpr int precedenza = 100;
    piano->addWidget(sinistra_, precedenza);
    piano->addWidget(lato_, 1);
}

void VistaFinestra::larghezzaColonna(int larghezza) {
    if (piano_ == nullptr) {
        sinistra_->setMinimumWidth(std::min(larghezza, misura::colonnaMinima));
        sinistra_->setMaximumWidth(larghezza);
        return;
    }
    const double altezza = disegnoFinestra.H;
    const double resto = larghezza + misura::margine;
    piano_->sposta(sinistra_, {0.0, 0.0, static_cast<double>(larghezza), altezza});
    // A column as wide as the window leaves nothing at its right.
    const bool tutta = resto >= disegnoFinestra.W;
    piano_->sposta(lato_, tutta ? Rettangolo{0.0, 0.0, disegnoFinestra.W, 0.0}
                                : Rettangolo{resto, 0.0, disegnoFinestra.W - resto, altezza});
}

void VistaFinestra::colloca(QWidget* pannello, const Rettangolo& posto) {
    piano_->aggiungi(pannello, posto);
}

void VistaFinestra::ridimensiona() {
    if (piano_ != nullptr) {
        piano_->invalidate();
        piano_->activate();
    }
}

void VistaFinestra::alPiede(QWidget* bottone) {
    if (piede_ == nullptr) {
        auto* piede = new QWidget(this);
        piede->setObjectName(QStringLiteral("piede"));
        piede->setAttribute(Qt::WA_StyledBackground);
        piede_ = new QHBoxLayout(piede);
        piede_->setContentsMargins(misura::margineDialogo, misura::piedeVerticale, misura::margine,
                                   misura::piedeVerticale);
        piede_->setSpacing(misura::spazio);
        piede_->addStretch(1);
        layout()->addWidget(piede);
    }
    piede_->addWidget(bottone);
}

RiquadroAiuto* VistaFinestra::aggiungiAiuto(const QString& titolo) {
    PannelloAiuto* aiuto = finestra_.aiuto();
    if (aiuto == nullptr) {
        return nullptr;
    }
    auto* riquadro = new RiquadroAiuto(*aiuto, titolo, corpo_);
    destra_->addWidget(riquadro, 1);
    return riquadro;
}

QWidget* VistaFinestra::fascia() {
    auto* banda = new QWidget(this);
    banda->setObjectName(QStringLiteral("fascia"));
    banda->setFixedHeight(misura::fasciaTitolo);
    auto* riga = new QHBoxLayout(banda);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->setSpacing(0);
    auto* titolo = new PannelloTitolo(finestra_, banda);
    riga->addWidget(titolo, 1);
    new SegnoDati(finestra_, *titolo);
    if (BarraStrumenti* barra = finestra_.barra()) {
        QWidget* strumenti = collega(*barra, banda, misura::icona, true);
        strumenti->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        riga->addSpacing(misura::spazio);
        riga->addWidget(strumenti);
        riga->addSpacing(misura::spazio);
    }
    return banda;
}

QWidget* VistaFinestra::widgetDi(const Controllo& controllo) const {
    return findChild<QWidget*>(q(controllo.nome()));
}

void VistaFinestra::chiudiDisposizione() {
    colonna_->addStretch(1);
    allineaEtichette();
    assegnaMnemonici();
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

void VistaFinestra::allineaEtichette() {
    const QList<Pannello*> pannelli = sinistra_->findChildren<Pannello*>();
    int massima = 0;
    for (const Pannello* pannello : pannelli) {
        massima = std::max(massima, pannello->larghezzaEtichette());
    }
    for (Pannello* pannello : pannelli) {
        pannello->larghezzaEtichette(massima);
    }
}

void VistaFinestra::assegnaMnemonici() {
    QString prese = lettereMenu;
    const auto assegna = [&prese](auto& oggetto) {
        const QChar lettera = letteraLibera(oggetto.text(), prese);
        if (!lettera.isNull()) {
            prese += lettera;
            mnemonico(oggetto, lettera);
        }
    };
    for (const Controllo* controllo : finestra_.ordine()) {
        QWidget* widget = widgetDi(*controllo);
        auto* etichetta = qobject_cast<QLabel*>(widget);
        if (etichetta != nullptr && etichetta->buddy() != nullptr) {
            assegna(*etichetta);
        } else if (auto* bottone = qobject_cast<QAbstractButton*>(widget)) {
            assegna(*bottone);
        } else if (dynamic_cast<const GruppoOpzioni*>(controllo) != nullptr && widget != nullptr) {
            for (QAbstractButton* opzione : widget->findChildren<QAbstractButton*>()) {
                assegna(*opzione);
            }
        }
    }
}

void VistaFinestra::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_F1 && evento->modifiers() == Qt::NoModifier) {
        finestra_.chiediAiuto();
        return;
    }
    QWidget::keyPressEvent(evento);
}

void VistaFinestra::porta(const Controllo& controllo) {
    QWidget* widget = widgetDi(controllo);
    if (widget == nullptr || widget->hasFocus()) {
        return;
    }
    widget->setFocus(Qt::TabFocusReason);
    if (auto* numero = qobject_cast<QSpinBox*>(widget)) {
        numero->selectAll();
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
