#include "ui/VistaGriglia.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <algorithm>
#include <array>

#include "ui/ModelloGriglia.h"
#include "ui/TestataGriglia.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/menuQt.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

using Tasto = Griglia::Tasto;

constexpr int lunghezzaSenzaLimite = 32767;

/// A key of the keyboard, without the shift key, and what it is to the grid.
struct VoceTasto {
    int tasto;
    bool ctrl;
    Tasto griglia;
};
constexpr std::array tasti{
    VoceTasto{Qt::Key_Return, false, Tasto::invio},
    VoceTasto{Qt::Key_Enter, false, Tasto::invio},
    VoceTasto{Qt::Key_Tab, false, Tasto::tab},
    VoceTasto{Qt::Key_Backtab, false, Tasto::tabIndietro},
    VoceTasto{Qt::Key_Up, false, Tasto::su},
    VoceTasto{Qt::Key_Down, false, Tasto::giu},
    VoceTasto{Qt::Key_Left, false, Tasto::sinistra},
    VoceTasto{Qt::Key_Right, false, Tasto::destra},
    VoceTasto{Qt::Key_Home, false, Tasto::inizio},
    VoceTasto{Qt::Key_End, false, Tasto::fine},
    VoceTasto{Qt::Key_Home, true, Tasto::inizioTabella},
    VoceTasto{Qt::Key_End, true, Tasto::fineTabella},
    VoceTasto{Qt::Key_PageUp, false, Tasto::paginaSu},
    VoceTasto{Qt::Key_PageDown, false, Tasto::paginaGiu},
    VoceTasto{Qt::Key_Escape, false, Tasto::esc},
    VoceTasto{Qt::Key_F2, false, Tasto::f2},
    VoceTasto{Qt::Key_Backspace, false, Tasto::indietro},
    VoceTasto{Qt::Key_Delete, false, Tasto::canc},
    VoceTasto{Qt::Key_C, true, Tasto::copia},
    VoceTasto{Qt::Key_V, true, Tasto::incolla},
    VoceTasto{Qt::Key_A, true, Tasto::tutto},
    VoceTasto{Qt::Key_Z, true, Tasto::annulla},
    VoceTasto{Qt::Key_Y, true, Tasto::ripeti},
};
/// Keys that the editor keeps for its own text.
constexpr std::array delTesto{Tasto::indietro,    Tasto::canc,    Tasto::copia,      Tasto::incolla,
                              Tasto::tutto,       Tasto::annulla, Tasto::ripeti,     Tasto::inizioTabella,
                              Tasto::fineTabella, Tasto::tab,     Tasto::tabIndietro};

const VoceTasto* voceDi(const QKeyEvent& evento) {
    const bool ctrl = evento.modifiers().testFlag(Qt::ControlModifier);
    if (evento.modifiers().testFlag(Qt::AltModifier)) {
        return nullptr;
    }
    const auto* voce = std::find_if(tasti.begin(), tasti.end(),
                                    [&](const VoceTasto& v) { return v.tasto == evento.key() && v.ctrl == ctrl; });
    return voce == tasti.end() ? nullptr : voce;
}

/// What a key is with the shift key, where it is not the same.
Tasto conMaiuscole(Tasto tasto) {
    switch (tasto) {
        case Tasto::copia:
            return Tasto::copiaConIntestazioni;
        case Tasto::annulla:
            return Tasto::ripeti;
        default:
            return tasto;
    }
}

/// The character of a key; empty for a key that types none.
QString carattereDi(const QKeyEvent& evento) {
    const QString testo = evento.text();
    const bool comando = (evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier ||
                         (evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::AltModifier;
    return testo.isEmpty() || comando || !testo.at(0).isPrint() ? QString{} : testo;
}

class DelegatoGriglia final : public QStyledItemDelegate {
public:
    DelegatoGriglia(const Griglia& griglia, const ModelloGriglia& modello, QObject* genitore)
        : QStyledItemDelegate(genitore), pittore_(griglia), modello_(modello) {}
    void paint(QPainter* pittore, const QStyleOptionViewItem& opzione, const QModelIndex& indice) const override {
        const auto* vista = qobject_cast<const VistaGriglia*>(opzione.widget);
        pittore_.dipingi(*pittore, opzione.rect, modello_.posto(indice), vista != nullptr && vista->conFuoco());
    }
    void caselle(const PittoreCelle::Caselle& quali) { pittore_.caselle(quali); }

private:
    PittoreCelle pittore_;
    const ModelloGriglia& modello_;
};

}  // namespace

VistaGriglia::VistaGriglia(Griglia& griglia, QWidget* genitore)
    : QTableView(genitore),
      griglia_(griglia),
      pittore_(griglia),
      modello_(new ModelloGriglia(griglia, this)),
      editor_(new QLineEdit(viewport())) {
    prepara();
    collegaGesti();
}

VistaGriglia::~VistaGriglia() {
    // An open editor loses the focus as it dies: nobody is to hear of it any more.
    delete findChild<Legame*>(QString{}, Qt::FindDirectChildrenOnly);
}

void VistaGriglia::prepara() {
    setHorizontalHeader(new TestataGriglia(Qt::Horizontal, griglia_, this));
    setVerticalHeader(new TestataGriglia(Qt::Vertical, griglia_, this));
    setModel(modello_);
    setItemDelegate(new DelegatoGriglia(griglia_, *modello_, this));
    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setCornerButtonEnabled(false);
    setMouseTracking(false);
    horizontalHeader()->setVisible(griglia_.righeFisse() > 0);
    verticalHeader()->setVisible(griglia_.colonneFisse() > 0);
    if (auto* angolo = findChild<QAbstractButton*>()) {
        angolo->setObjectName(QStringLiteral("angolo"));
        angolo->installEventFilter(this);
    }
    editor_->setObjectName(q(griglia_.nome()) + QStringLiteral("_editor"));
    editor_->setFrame(false);
    editor_->hide();
    editor_->installEventFilter(this);
}

void VistaGriglia::collegaGesti() {
    connect(editor_, &QLineEdit::textEdited, this, &VistaGriglia::corretto);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int sezione) { griglia_.clic(0, sezione + griglia_.colonneFisse()); });
    connect(verticalHeader(), &QHeaderView::sectionClicked, this,
            [this](int sezione) { griglia_.clic(sezione + griglia_.righeFisse(), 0); });
    for (QHeaderView* testata : {horizontalHeader(), verticalHeader()}) {
        testata->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(testata, &QWidget::customContextMenuRequested, this, [this, testata](QPoint dove) {
            const bool sopra = testata == horizontalHeader();
            const int sezione = testata->logicalIndexAt(dove);
            griglia_.tastoDestro(sopra ? 0 : sezione + griglia_.righeFisse(),
                                 sopra ? sezione + griglia_.colonneFisse() : 0);
        });
    }
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int valore) {
        rigaAlta_ = valore + griglia_.righeFisse();
        griglia_.scorri(rigaAlta_);
    });
}

void VistaGriglia::mostra() {
    setFocusPolicy(griglia_.prendeFuoco() ? Qt::StrongFocus : Qt::NoFocus);
    if (!letta_ || versione_ != griglia_.versione()) {
        letta_ = true;
        versione_ = griglia_.versione();
        modello_->rileggi();
        for (int c = 0; c < modello_->columnCount(); ++c) {
            setColumnHidden(c, griglia_.colonna(c + griglia_.colonneFisse()).nascosta);
        }
        minime_.clear();
        if (guida_ != nullptr) {
            guida_->minime_.clear();
            guida_->disponi();
        }
        disponi();
    }
    // Who asks for a row on top gets it, wherever the cursor has gone at the same time.
    const bool altra = rigaAlta_ >= 0 && griglia_.rigaAlta() != rigaAlta_;
    mostraCorrente(!altra);
    mostraRigaAlta();
    mostraEditor();
    viewport()->update();
    horizontalHeader()->viewport()->update();
    verticalHeader()->viewport()->update();
}

void VistaGriglia::mostraCorrente(bool scorrendo) {
    const QModelIndex indice = modello_->indice(griglia_.corrente());
    if (currentIndex() != indice) {
        setAutoScroll(scorrendo);
        selectionModel()->setCurrentIndex(indice, QItemSelectionModel::NoUpdate);
        setAutoScroll(true);
    }
    if (!(estremo_ == griglia_.estremo()) || !(corrente_ == griglia_.corrente())) {
        corrente_ = griglia_.corrente();
        estremo_ = griglia_.estremo();
        const QModelIndex visto = modello_->indice(estremo_);
        if (scorrendo && visto.isValid()) {
            scrollTo(visto);
        }
    }
}

void VistaGriglia::mostraRigaAlta() {
    const int alta = griglia_.rigaAlta();
    if (alta != rigaAlta_) {
        verticalScrollBar()->setValue(alta - griglia_.righeFisse());
        rigaAlta_ = verticalScrollBar()->value() + griglia_.righeFisse();
    }
}

void VistaGriglia::mostraEditor() {
    if (!griglia_.inModifica()) {
        chiudiEditor();
        return;
    }
    const Posto dove = griglia_.corrente();
    const QModelIndex indice = modello_->indice(dove);
    if (!editor_->isVisible()) {
        scrollTo(indice);
    }
    editor_->setGeometry(visualRect(indice).adjusted(0, 0, -1, -1));
    editor_->setFont(pittore_.carattere(dove));
    editor_->setAlignment(pittore_.allineamento(dove));
    const auto massima = griglia_.lunghezzaAmmessa();
    const int limite = massima == 0 ? lunghezzaSenzaLimite : static_cast<int>(massima);
    if (editor_->maxLength() != limite) {
        editor_->setMaxLength(limite);  // moves the cursor to the end
    }
    if (editor_->text() != q(griglia_.testoEditor())) {
        editor_->setText(q(griglia_.testoEditor()));
        if (griglia_.tuttoScelto()) {
            editor_->selectAll();
        }
    }
    mostraFallito(*editor_, griglia_.fallita());
    if (editor_->isHidden()) {
        editor_->show();
        if (hasFocus()) {
            editor_->setFocus(Qt::OtherFocusReason);
        }
        if (griglia_.tuttoScelto()) {
            editor_->selectAll();
        } else {
            editor_->deselect();
            editor_->end(false);
        }
    }
}

void VistaGriglia::chiudiEditor() {
    if (!editor_->isHidden()) {
        if (editor_->hasFocus()) {
            setFocus(Qt::OtherFocusReason);  // or the focus would go to the next field
        }
        editor_->hide();
        editor_->clear();
    }
}

void VistaGriglia::corretto(const QString& testo) {
    griglia_.correggi(s(testo));
    if (editor_->text() != q(griglia_.testoEditor())) {
        // What the cell does not take falls out, the cursor stays behind what was typed.
        const auto persi = testo.size() - q(griglia_.testoEditor()).size();
        const auto cursore = editor_->cursorPosition() - static_cast<int>(persi);
        editor_->setText(q(griglia_.testoEditor()));
        editor_->setCursorPosition(cursore);
    }
}

bool VistaGriglia::tastoEditor(QKeyEvent& evento) {
    const QString carattere = carattereDi(evento);
    if (!carattere.isEmpty()) {
        if (griglia_.ammette(s(carattere))) {
            return false;
        }
        griglia_.scrivi(s(carattere));  // passed over, or the end of the edit
        return true;
    }
    const VoceTasto* voce = voceDi(evento);
    if (voce == nullptr || std::find(delTesto.begin(), delTesto.end(), voce->griglia) != delTesto.end()) {
        return false;
    }
    return griglia_.premiTasto(voce->griglia, evento.modifiers().testFlag(Qt::ShiftModifier));
}

bool VistaGriglia::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == editor_) {
        return evento->type() == QEvent::KeyPress && tastoEditor(*static_cast<QKeyEvent*>(evento));
    }
    if (evento->type() == QEvent::Paint && oggetto->objectName() == QLatin1String("angolo")) {
        const auto& alte = static_cast<TestataGriglia*>(horizontalHeader())->spessori();
        const auto& larghe = static_cast<TestataGriglia*>(verticalHeader())->spessori();
        QPainter pittore(static_cast<QWidget*>(oggetto));
        int y = 0;
        for (std::size_t r = 0; r < alte.size(); ++r) {
            int x = 0;
            for (std::size_t c = 0; c < larghe.size(); ++c) {
                pittore_.dipingi(pittore, QRect(x, y, larghe[c], alte[r]), {static_cast<int>(r), static_cast<int>(c)});
                x += larghe[c];
            }
            y += alte[r];
        }
        return true;
    }
    return QTableView::eventFilter(oggetto, evento);
}

void VistaGriglia::keyPressEvent(QKeyEvent* evento) {
    const bool maiuscole = evento->modifiers().testFlag(Qt::ShiftModifier);
    bool preso = false;
    if (const VoceTasto* voce = voceDi(*evento)) {
        preso = griglia_.premiTasto(maiuscole ? conMaiuscole(voce->griglia) : voce->griglia, maiuscole);
    } else if (const QString carattere = carattereDi(*evento); !carattere.isEmpty()) {
        griglia_.scrivi(s(carattere));
        preso = true;
    }
    evento->setAccepted(preso);
}

void VistaGriglia::mousePressEvent(QMouseEvent* evento) {
    const QModelIndex indice = indexAt(evento->position().toPoint());
    if (!indice.isValid()) {
        griglia_.lascia();
        return;
    }
    const Posto dove = modello_->posto(indice);
    if (evento->button() == Qt::LeftButton) {
        griglia_.clic(dove.riga, dove.colonna, evento->modifiers().testFlag(Qt::ShiftModifier));
    } else if (evento->button() == Qt::RightButton) {
        griglia_.tastoDestro(dove.riga, dove.colonna);
    }
}

void VistaGriglia::mouseMoveEvent(QMouseEvent* evento) {
    const QModelIndex indice = indexAt(evento->position().toPoint());
    if (indice.isValid() && evento->buttons().testFlag(Qt::LeftButton)) {
        const Posto dove = modello_->posto(indice);
        if (!(dove == griglia_.estremo())) {
            griglia_.clic(dove.riga, dove.colonna, true);
        }
    }
}

void VistaGriglia::mouseDoubleClickEvent(QMouseEvent* evento) {
    const QModelIndex indice = indexAt(evento->position().toPoint());
    if (indice.isValid() && evento->button() == Qt::LeftButton) {
        const Posto dove = modello_->posto(indice);
        griglia_.doppioClic(dove.riga, dove.colonna);
    }
}

void VistaGriglia::contextMenuEvent(QContextMenuEvent* evento) {
    const bool tastiera = evento->reason() == QContextMenuEvent::Keyboard;
    MenuChiavi* menu = !tastiera && griglia_.alTastoDestro ? nullptr : griglia_.menu();
    if (menu == nullptr) {
        evento->ignore();
        return;
    }
    const QPoint dove = tastiera ? visualRect(currentIndex()).bottomLeft() : evento->pos();
    mostraContesto(*menu, *viewport(), dove);
}

void VistaGriglia::caselle(const PittoreCelle::Caselle& quali) {
    static_cast<DelegatoGriglia*>(itemDelegate())->caselle(quali);
    viewport()->update();
}

bool VistaGriglia::conFuoco() const {
    return hasFocus() || editor_->hasFocus();
}

void VistaGriglia::focusInEvent(QFocusEvent* evento) {
    QTableView::focusInEvent(evento);
    if (griglia_.inModifica()) {
        editor_->setFocus(evento->reason());
    }
}

VistaGriglia* collega(Griglia& griglia, QWidget* genitore) {
    auto* vista = new VistaGriglia(griglia, genitore);
    auto* legame = new Legame(griglia, *vista);
    legame->parte(vista->editor());
    legame->mostra([vista] { vista->mostra(); });
    return vista;
}

}  // namespace kelvo::ui
