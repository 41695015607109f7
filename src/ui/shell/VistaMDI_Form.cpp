#include "ui/shell/VistaMDI_Form.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QCloseEvent>
#include <QtGui/QScreen>
#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedLayout>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <array>

#include "shell/servizi/pelle.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/VistaAlbero.h"
#include "ui/shell/menuQt.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr double twip = 15.0;  ///< to a logical pixel
constexpr int larghezzaMinimaAlbero = 240;
constexpr double quotaAlbero = 0.22;

/// The keys of the toolkit for a shortcut: both its Enter keys for one.
QList<QKeySequence> sequenze(const std::string& tasti) {
    const QString nome = q(tasti);
    QList<QKeySequence> tutte{QKeySequence::fromString(nome)};
    if (nome.contains(QStringLiteral("Enter"))) {
        tutte << QKeySequence::fromString(QString(nome).replace(QStringLiteral("Enter"), QStringLiteral("Return")));
    }
    return tutte;
}

}  // namespace

VistaMDI_Form::VistaMDI_Form() {
    setObjectName(QStringLiteral("MDI_Form"));
    setAcceptDrops(true);
    setAnimated(false);  // nothing moves on its own
    setMinimumSize(misura::larghezzaMinima, misura::altezzaMinima);
    resize(1280, 800);
    auto* telaio = new QWidget(this);
    telaio->setObjectName(QStringLiteral("telaio"));
    auto* bordo = new QVBoxLayout(telaio);
    bordo->setContentsMargins(misura::canale, misura::canale, misura::canale, misura::canale);
    divisore_ = new QSplitter(Qt::Horizontal, telaio);
    divisore_->setHandleWidth(misura::canale);
    divisore_->setChildrenCollapsible(false);
    bordo->addWidget(divisore_);
    area_ = new QWidget(divisore_);
    area_->setObjectName(QStringLiteral("telaio"));
    pila_ = new QStackedLayout(area_);
    divisore_->addWidget(area_);
    setCentralWidget(telaio);
}

VistaMDI_Form::~VistaMDI_Form() = default;

void VistaMDI_Form::collegaA(MDI_Form& logica) {
    logica_ = &logica;
    menuBar()->setMinimumHeight(misura::menu);
    menuBar()->setFont(leggero(10.0));
    collega(logica.ctlMenu, *menuBar());
    QToolBar* barra = collega(logica.ctlToolbar, this, misura::iconaPrincipale, false);
    barra->setFixedHeight(misura::barraPrincipale);
    addToolBar(barra);

    albero_ = new VistaAlbero(logica.albero, divisore_);
    divisore_->insertWidget(0, albero_);
    divisore_->setStretchFactor(0, 0);
    divisore_->setStretchFactor(1, 1);
    albero_->setVisible(false);
    QObject::connect(albero_, &VistaAlbero::righeNuove, this, [this] { logica_->albero.ResizeMe(); });
    QObject::connect(divisore_, &QSplitter::splitterMoved, this, [this](int posto) { larghezzaScelta_ = posto; });

    vuota_ = paginaVuota();
    pila_->addWidget(vuota_);
    creaBarraStato();
    creaScorciatoie();
    auto* legame = new Legame(logica.didascalia, *menuBar());
    menuBar()->setObjectName(q(logica.ctlMenu.nome()));
    legame->mostra([this] { setWindowTitle(q(logica_->didascalia.testo())); });
}

void VistaMDI_Form::creaBarraStato() {
    statusBar()->setMinimumHeight(misura::barraStato);
    statusBar()->setSizeGripEnabled(false);
    auto* testo = new QLabel(statusBar());
    auto* avviso = new QLabel(statusBar());
    for (QLabel* label : {testo, avviso}) {
        label->setFont(dati(9.0));
        label->setContentsMargins(8, 0, 8, 0);
    }
    avviso->setObjectName(QStringLiteral("avviso"));
    statusBar()->addWidget(testo);
    statusBar()->addWidget(avviso, 1);
    statusBar()->addPermanentWidget(creaSuggerimenti());
    auto* legame = new Legame(logica_->ctlStatusBar, *testo);
    legame->mostra([this, testo, avviso] {
        testo->setText(q(logica_->ctlStatusBar.testo()));
        avviso->setText(q(logica_->ctlStatusBar.avviso()));
        avviso->setVisible(true);
    });
}

QWidget* VistaMDI_Form::creaSuggerimenti() {
    auto* tutti = new QWidget(statusBar());
    tutti->setObjectName(QStringLiteral("suggerimenti"));
    auto* riga = new QHBoxLayout(tutti);
    riga->setContentsMargins(8, 0, 8, 0);
    riga->setSpacing(6);
    std::array<std::pair<QLabel*, QLabel*>, BarraStato::suggerimentiMassimi> coppie{};
    for (auto& [tasto, parola] : coppie) {
        tasto = new QLabel(tutti);
        tasto->setObjectName(QStringLiteral("tastoSuggerito"));
        parola = new QLabel(tutti);
        parola->setContentsMargins(0, 0, 10, 0);
        for (QLabel* label : {tasto, parola}) {
            label->setFont(dati(9.0));
            riga->addWidget(label);
        }
    }
    auto* legame = new Legame(logica_->ctlStatusBar, *tutti);
    tutti->setObjectName(QStringLiteral("suggerimenti"));
    legame->mostra([this, coppie] {
        const auto& suggerimenti = logica_->ctlStatusBar.suggerimenti();
        for (std::size_t i = 0; i < coppie.size(); ++i) {
            const bool presente = i < suggerimenti.size();
            coppie.at(i).first->setText(presente ? q(suggerimenti[i].tasto) : QString{});
            coppie.at(i).second->setText(presente ? q(suggerimenti[i].parola) : QString{});
            coppie.at(i).first->setVisible(presente);
            coppie.at(i).second->setVisible(presente);
        }
    });
    return tutti;
}

void VistaMDI_Form::creaScorciatoie() {
    for (const std::string& tasti : MDI_Form::scorciatoie()) {
        auto* scorciatoia = new QShortcut(this);
        scorciatoia->setKeys(sequenze(tasti));
        QObject::connect(scorciatoia, &QShortcut::activated, this, [this, tasti] { logica_->scorciatoia(tasti); });
    }
}

void VistaMDI_Form::scambiaFuoco() {
    if (albero_->hasFocus() && vistaCorrente() != nullptr) {
        vistaCorrente()->fuocoIniziale();
    } else if (albero_->isVisible()) {
        albero_->setFocus(Qt::ShortcutFocusReason);
    }
}

QWidget* VistaMDI_Form::paginaVuota() {
    auto* pagina = new QWidget(area_);
    pagina->setObjectName(QStringLiteral("telaio"));
    auto* piano = new QVBoxLayout(pagina);
    auto* riquadro = new Pannello(QStringLiteral("Nessun progetto aperto"), pagina);
    riquadro->setFixedWidth(misura::riquadroVuoto);
    struct Voce {
        const char* testo;
        const char* chiave;
        const char* icona;
    };
    constexpr std::array voci{Voce{"Nuovo (Ctrl+N)", "mnuNuovo", "Nuovo"}, Voce{"Apri (Ctrl+O)", "mnuApri", "Apri"}};
    for (const Voce& voce : voci) {
        auto* bottone = new QPushButton(icona(voce.icona, false), QString::fromUtf8(voce.testo), riquadro);
        bottone->setFixedHeight(misura::fasciaTitolo);
        bottone->setIconSize({misura::icona, misura::icona});
        bottone->setFont(dati(punti::corpo));
        bottone->setAutoDefault(true);
        bottone->setObjectName(QString::fromLatin1(voce.chiave));
        QObject::connect(bottone, &QPushButton::clicked, this,
                         [this, chiave = voce.chiave] { logica_->Menu_Click(chiave); });
        riquadro->larga(bottone);
    }
    pagina->setFocusProxy(riquadro->findChild<QPushButton*>());
    piano->addStretch(1);
    piano->addWidget(riquadro, 0, Qt::AlignHCenter);
    piano->addStretch(2);
    return pagina;
}

VistaFinestra* VistaMDI_Form::vista(Finestra& finestra) {
    QPointer<VistaFinestra>& vista = viste_[&finestra];
    if (vista.isNull()) {
        vista = creaVista(finestra, area_);
        if (!vista.isNull()) {
            pila_->addWidget(vista);
        }
    }
    return vista;
}

VistaFinestra* VistaMDI_Form::vistaCorrente() const {
    return qobject_cast<VistaFinestra*>(pila_->currentWidget());
}

Rettangolo VistaMDI_Form::albero() const {
    const QRect r = albero_->geometry();
    const double larghezza = albero_->isHidden() ? 0.0 : r.width();
    return {r.x() * twip, r.y() * twip, larghezza * twip, divisore_->height() * twip};
}

double VistaMDI_Form::larghezzaInterna() const {
    return divisore_->width() * twip;
}

void VistaMDI_Form::mostra(Finestra& finestra) {
    if (VistaFinestra* mostrata = vista(finestra)) {
        pila_->setCurrentWidget(mostrata);
        QTimer::singleShot(0, mostrata, &VistaFinestra::fuocoIniziale);
    }
}

void VistaMDI_Form::colloca(Finestra& /*finestra*/, const Rettangolo& /*posto*/) {
    // The work area is the room right of the tree: the splitter keeps a window there when sizes change.
}

void VistaMDI_Form::nascondi(Finestra& finestra) {
    const auto trovata = viste_.find(&finestra);
    if (trovata != viste_.end() && pila_->currentWidget() == trovata->second) {
        pila_->setCurrentWidget(vuota_);
        vuota_->setVisible(!albero_->isVisible());
    }
}

void VistaMDI_Form::vestiBarra(Finestra& /*finestra*/) {}

void VistaMDI_Form::ridimensiona(Finestra& finestra) {
    if (VistaFinestra* mostrata = vista(finestra)) {
        mostrata->ridimensiona();
    }
}

void VistaMDI_Form::mostraCornice() {
    show();
    vuota_->setFocus(Qt::OtherFocusReason);
}

void VistaMDI_Form::mostraAlbero(bool visibile) {
    albero_->setVisible(visibile);
    if (!visibile) {
        pila_->setCurrentWidget(vuota_);
        vuota_->setVisible(true);
    }
}

void VistaMDI_Form::collocaAlbero(const Rettangolo& posto) {
    // The told width is an upper bound: a screen of our days is wider than its sheet. What the user chose holds.
    const int quota = std::max(larghezzaMinimaAlbero, static_cast<int>(width() * quotaAlbero));
    const int righe = std::max(larghezzaMinimaAlbero, albero_->larghezzaRighe() + misura::aggiuntaAlbero);
    const int proposta = std::min({static_cast<int>(posto.W / twip), quota, righe});
    const int larghezza = larghezzaScelta_ > 0 ? larghezzaScelta_ : proposta;
    divisore_->setSizes({larghezza, std::max(1, divisore_->width() - larghezza)});
}

MetricheCornice VistaMDI_Form::metriche() const {
    return {.altezzaCornice = frameGeometry().height() * twip,
            .altezzaTitolo = (frameGeometry().height() - height()) * twip,
            .altezzaMenu = menuBar()->height() * twip,
            .altezzaBarra = misura::barraPrincipale * twip,
            .altezzaStato = statusBar()->height() * twip};
}

Misura VistaMDI_Form::schermo() const {
    const QSize misuraSchermo = QGuiApplication::primaryScreen()->size();
    return {misuraSchermo.width() * twip, misuraSchermo.height() * twip};
}

void VistaMDI_Form::mostraModale(Finestra& finestra) {
    apriSopra(finestra);
    const QPointer<QDialog> dialogo = sopra_[&finestra];
    if (!dialogo.isNull()) {
        dialogo->exec();
    }
    sopra_.erase(&finestra);
    delete dialogo.data();  // the window that it shows may go now
}

void VistaMDI_Form::apriSopra(Finestra& finestra) {
    auto* dialogo = new QDialog(this);
    dialogo->setObjectName(q(finestra.nome()));
    dialogo->setWindowTitle(q(finestra.didascalia()));
    dialogo->setWindowModality(Qt::ApplicationModal);
    vesti(finestra, logica_->contorno().app.configurazione.LayoutPannello);
    VistaFinestra* contenuto = creaVista(finestra, dialogo);
    if (contenuto == nullptr) {
        delete dialogo;
        return;
    }
    auto* piano = new QVBoxLayout(dialogo);
    const int cornice = contenuto->senzaCornice() ? 1 : 0;
    piano->setContentsMargins(cornice, cornice, cornice, cornice);
    piano->addWidget(contenuto);
    if (contenuto->senzaCornice()) {
        dialogo->setWindowFlag(Qt::FramelessWindowHint);
    }
    if (contenuto->forma() == VistaFinestra::Forma::dialogo && !contenuto->ridimensionabile()) {
        piano->setSizeConstraint(QLayout::SetFixedSize);
    }
    sopra_[&finestra] = dialogo;
    dialogo->adjustSize();
    dialogo->show();
    contenuto->fuocoIniziale();
}

void VistaMDI_Form::chiudiSopra(Finestra& finestra) {
    const QPointer<QDialog> dialogo = sopra_[&finestra];
    sopra_.erase(&finestra);
    if (!dialogo.isNull()) {
        dialogo->accept();
        dialogo->deleteLater();
    }
}

void VistaMDI_Form::mostraAiuto(Finestra& aiuto) {
    // Above a modal window it must be that one's own, or it would take no gestures.
    QWidget* modale = QApplication::activeModalWidget();
    QWidget* sotto = modale == nullptr ? this : modale;
    if (aiuto_.isNull() || aiuto_->parentWidget() != sotto) {
        delete aiuto_.data();
        vesti(aiuto, logica_->contorno().app.configurazione.LayoutPannello);
        aiuto_ = new QDialog(sotto);
        aiuto_->setObjectName(q(aiuto.nome()));
        aiuto_->setWindowTitle(q(aiuto.didascalia()));
        auto* piano = new QVBoxLayout(aiuto_);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->addWidget(creaVista(aiuto, aiuto_));
        aiuto_->adjustSize();
    }
    aiuto_->show();
    aiuto_->raise();
    aiuto_->activateWindow();
}

Finestra* VistaMDI_Form::finestraInFuoco() {
    for (QWidget* widget = focusWidget(); widget != nullptr; widget = widget->parentWidget()) {
        auto* vista = qobject_cast<VistaFinestra*>(widget);
        if (vista != nullptr && vista != vistaCorrente()) {
            return &vista->finestra();
        }
    }
    return nullptr;
}

void VistaMDI_Form::dimentica(Finestra& finestra) {
    if (!aiuto_.isNull() && aiuto_->objectName() == q(finestra.nome())) {
        delete aiuto_.data();
    }
    const auto trovata = viste_.find(&finestra);
    if (trovata != viste_.end()) {
        delete trovata->second.data();
        viste_.erase(trovata);
    }
}

void VistaMDI_Form::termina() {
    hide();
    QCoreApplication::quit();
}

void VistaMDI_Form::closeEvent(QCloseEvent* evento) {
    if (logica_ == nullptr || logica_->scaricata()) {
        evento->accept();
        return;
    }
    evento->ignore();
    logica_->chiudiCornice();
}

void VistaMDI_Form::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    if (logica_ != nullptr) {
        logica_->albero.ResizeMe();
    }
}

void VistaMDI_Form::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && logica_ != nullptr) {
        logica_->inPrimoPiano();
    }
}

void VistaMDI_Form::dragEnterEvent(QDragEnterEvent* evento) {
    const QList<QUrl> file = evento->mimeData()->urls();
    if (file.size() == 1 && file.constFirst().isLocalFile() &&
        file.constFirst().toLocalFile().endsWith(QStringLiteral(".klv"), Qt::CaseInsensitive)) {
        evento->acceptProposedAction();
    }
}

void VistaMDI_Form::dropEvent(QDropEvent* evento) {
    const QList<QUrl> file = evento->mimeData()->urls();
    if (!file.isEmpty() && logica_->rilasciato(s(file.constFirst().toLocalFile()))) {
        evento->acceptProposedAction();
    }
}

}  // namespace kelvo::ui
