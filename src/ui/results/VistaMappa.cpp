#include "ui/results/VistaMappa.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QFontMetrics>
#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/menuQt.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int altezzaTestata = 24;
constexpr int altezzaRiga = 34;
constexpr double colonnaLeggibile = 11.0;  ///< narrower ones would cut their letter
constexpr int margineNome = 8;
constexpr int nomiMinimi = 80;
constexpr int quotaNomi = 4;  ///< the names take a quarter of the room at most
constexpr int distacco = 6;   ///< between two hours
constexpr double lineaOra = 2.0;
constexpr double bordo = 2.0;

/// A key of the keyboard, with Ctrl or without, and what it is to the grid.
struct VoceTasto {
    int tasto;
    bool ctrl;
    Griglia::Tasto griglia;
};
constexpr std::array tasti{
    VoceTasto{Qt::Key_Up, false, Griglia::Tasto::su},
    VoceTasto{Qt::Key_Down, false, Griglia::Tasto::giu},
    VoceTasto{Qt::Key_Left, false, Griglia::Tasto::sinistra},
    VoceTasto{Qt::Key_Right, false, Griglia::Tasto::destra},
    VoceTasto{Qt::Key_Home, false, Griglia::Tasto::inizio},
    VoceTasto{Qt::Key_End, false, Griglia::Tasto::fine},
    VoceTasto{Qt::Key_Home, true, Griglia::Tasto::inizioTabella},
    VoceTasto{Qt::Key_End, true, Griglia::Tasto::fineTabella},
    VoceTasto{Qt::Key_C, true, Griglia::Tasto::copia},
    VoceTasto{Qt::Key_A, true, Griglia::Tasto::tutto},
};

/// Four bars along the inside of a cell.
void cornice(QPainter& pittore, const QRectF& posto, double spessore, const QColor& tinta) {
    pittore.fillRect(QRectF(posto.left(), posto.top(), posto.width(), spessore), tinta);
    pittore.fillRect(QRectF(posto.left(), posto.bottom() - spessore, posto.width(), spessore), tinta);
    pittore.fillRect(QRectF(posto.left(), posto.top(), spessore, posto.height()), tinta);
    pittore.fillRect(QRectF(posto.right() - spessore, posto.top(), spessore, posto.height()), tinta);
}

}  // namespace

VistaMappa::VistaMappa(Griglia& griglia, Parole parole, QWidget* genitore)
    : QAbstractScrollArea(genitore),
      griglia_(griglia),
      parole_(std::move(parole)),
      lettere_(forte(punti::nota)),
      testata_(forte(punti::nota)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
}

int VistaMappa::righe() const {
    return std::max(0, griglia_.tabella().righe() - 1);
}

int VistaMappa::segmenti() const {
    return std::max(0, griglia_.tabella().colonne() - 1);
}

int VistaMappa::nomi() const {
    const QFontMetrics metrica(dati(punti::corpo));
    int largo = nomiMinimi;
    for (int r = 1; r <= righe(); ++r) {
        largo = std::max(largo, metrica.horizontalAdvance(q(griglia_.testo(r, 0))) + 2 * margineNome + 2);
    }
    return std::min(largo, std::max(nomiMinimi, viewport()->width() / quotaNomi));
}

QSize VistaMappa::sizeHint() const {
    const int barra = horizontalScrollBar()->maximum() > 0 ? horizontalScrollBar()->sizeHint().height() : 0;
    return {misura::grafico, altezzaTestata + righe() * altezzaRiga + barra};
}

int VistaMappa::larghezzaMappa() const {
    const int libera = viewport()->width() - nomi();
    return std::max(libera, static_cast<int>(std::ceil(segmenti() * colonnaLeggibile)));
}

double VistaMappa::ascissa(double segmento) const {
    const double rapporto = devicePixelRatioF();
    const double x = segmenti() == 0 ? 0.0 : segmento * larghezzaMappa() / segmenti();
    return nomi() - horizontalScrollBar()->value() + std::round(x * rapporto) / rapporto;
}

QRect VistaMappa::posto(Posto cella) const {
    const double sinistra = ascissa(cella.colonna - 1);
    return QRectF(sinistra, altezzaTestata + (cella.riga - 1) * altezzaRiga, ascissa(cella.colonna) - sinistra,
                  altezzaRiga)
        .toRect();
}

Posto VistaMappa::sotto(QPoint punto) const {
    if (segmenti() == 0 || punto.x() < nomi() || punto.y() < altezzaTestata) {
        return {};
    }
    const int riga = (punto.y() - altezzaTestata) / altezzaRiga + 1;
    const double passo = static_cast<double>(larghezzaMappa()) / segmenti();
    const int colonna = static_cast<int>((punto.x() - nomi() + horizontalScrollBar()->value()) / passo) + 1;
    return riga <= righe() && colonna <= segmenti() ? Posto{riga, colonna} : Posto{};
}

void VistaMappa::misuraBarra() {
    const int libera = std::max(1, viewport()->width() - nomi());
    horizontalScrollBar()->setPageStep(libera);
    horizontalScrollBar()->setSingleStep(static_cast<int>(colonnaLeggibile) * 4);
    horizontalScrollBar()->setRange(0, std::max(0, larghezzaMappa() - libera));
    updateGeometry();
}

void VistaMappa::vediCorrente() {
    const QRect vista = posto(corrente_);
    QScrollBar& barra = *horizontalScrollBar();
    if (vista.left() < nomi()) {
        barra.setValue(barra.value() + vista.left() - nomi());
    } else if (vista.right() >= viewport()->width()) {
        barra.setValue(barra.value() + vista.right() + 1 - viewport()->width());
    }
}

void VistaMappa::mostra() {
    setFocusPolicy(griglia_.prendeFuoco() ? Qt::StrongFocus : Qt::NoFocus);
    misuraBarra();
    if (!(corrente_ == griglia_.estremo())) {
        corrente_ = griglia_.estremo();
        if (corrente_.colonna > 0) {
            vediCorrente();
        }
    }
    setAccessibleName(QStringLiteral("Mappa dei livelli"));
    setAccessibleDescription(q(parole_.cella(griglia_.corrente())));
    viewport()->update();
}

void VistaMappa::dipingiOre(QPainter& pittore) const {
    const int larga = viewport()->width();
    pittore.fillRect(QRect(0, 0, larga, altezzaTestata - 1), qcolore(colori::intestazione));
    pittore.setFont(testata_);
    pittore.setPen(Qt::white);
    const QFontMetrics metrica(testata_);
    const std::vector<OraMappa>& ore = parole_.ore();
    pittore.save();
    pittore.setClipRect(nomi(), 0, larga - nomi(), viewport()->height());
    double libero = nomi();
    for (std::size_t i = 0; i < ore.size(); ++i) {
        const double x = ascissa(ore[i].posto);
        const QString testo = q(ore[i].testo);
        const double fine = x + distacco + metrica.horizontalAdvance(testo);
        const bool fuori = fine > ascissa(segmenti());  // the end of the study has no room behind its mark
        const bool premuta = i == 0 && ore.size() > 1 && fine + distacco > ascissa(ore[1].posto);
        pittore.fillRect(QRectF(x, 0.0, 1.0, altezzaTestata - 1.0), Qt::white);
        if (!fuori && !premuta && x >= libero) {
            pittore.drawText(QRectF(x + distacco - 2, 0, fine - x, altezzaTestata - 1), Qt::AlignVCenter, testo);
            libero = fine;
        }
    }
    pittore.restore();
}

void VistaMappa::dipingiNomi(QPainter& pittore) const {
    const QFont faccia = dati(punti::corpo);
    const QFontMetrics metrica(faccia);
    const int largo = nomi();
    pittore.setFont(faccia);
    for (int r = 1; r <= righe(); ++r) {
        const Cella& cella = griglia_.tabella().cella(r, 0);
        const QRect dove(0, altezzaTestata + (r - 1) * altezzaRiga, largo - 1, altezzaRiga - 1);
        pittore.fillRect(dove.adjusted(0, 0, 1, 1), Qt::white);
        pittore.fillRect(dove, qcolore(cella.sfondo));
        pittore.setPen(qcolore(inchiostroLeggibile(cella.inchiostro, cella.sfondo)));
        const QRect testo = dove.adjusted(margineNome, 0, -margineNome, 0);
        pittore.drawText(testo, Qt::AlignVCenter | Qt::AlignLeft,
                         metrica.elidedText(q(cella.testo), Qt::ElideMiddle, testo.width()));
    }
}

void VistaMappa::dipingiCella(QPainter& pittore, Posto cella) const {
    const Cella& contenuto = griglia_.tabella().cella(cella.riga, cella.colonna);
    const AreaCelle scelte = griglia_.selezione();
    const bool corrente = cella == griglia_.corrente();
    const bool scelta = !(scelte.da == scelte.a) && scelte.contiene(cella) && !corrente;
    const Colore fondo = scelta ? tinta::scelto : contenuto.sfondo;
    const double sinistra = ascissa(cella.colonna - 1);
    const double filo = 1.0 / devicePixelRatioF();
    const QRectF dentro(sinistra, altezzaTestata + (cella.riga - 1) * altezzaRiga,
                        ascissa(cella.colonna) - sinistra - filo, altezzaRiga - 1.0);
    pittore.fillRect(dentro, qcolore(fondo));
    if (fondo == colori::bianco) {
        cornice(pittore, dentro, filo, qcolore(tinta::bordoCampo));  // no level
    }
    pittore.setPen(qcolore(inchiostroLeggibile(contenuto.inchiostro, fondo)));
    pittore.drawText(dentro, Qt::AlignCenter, q(contenuto.testo));
    if (corrente && hasFocus()) {
        cornice(pittore, dentro, bordo, qcolore(tinta::principale));
        cornice(pittore, dentro.adjusted(bordo, bordo, -bordo, -bordo), 1.0, Qt::white);
    }
}

void VistaMappa::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pittore(viewport());
    pittore.fillRect(viewport()->rect(), Qt::white);
    dipingiOre(pittore);
    pittore.save();
    pittore.setClipRect(nomi(), altezzaTestata, viewport()->width() - nomi(), viewport()->height() - altezzaTestata);
    pittore.setFont(lettere_);
    for (int r = 1; r <= righe(); ++r) {
        for (int c = 1; c <= segmenti(); ++c) {
            const QRect dove = posto({r, c});
            if (dove.right() >= nomi() && dove.left() <= viewport()->width()) {
                dipingiCella(pittore, {r, c});
            }
        }
    }
    for (const OraMappa& ora : parole_.ore()) {
        const bool tra = ora.posto == std::floor(ora.posto) && ora.posto > 0.0 && ora.posto < segmenti();
        if (tra) {
            pittore.fillRect(QRectF(ascissa(ora.posto) - lineaOra, altezzaTestata, lineaOra, righe() * altezzaRiga),
                             Qt::white);
        }
    }
    pittore.restore();
    dipingiNomi(pittore);
}

void VistaMappa::resizeEvent(QResizeEvent* evento) {
    QAbstractScrollArea::resizeEvent(evento);
    misuraBarra();
}

bool VistaMappa::viewportEvent(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip) {
        return QAbstractScrollArea::viewportEvent(evento);
    }
    const auto* aiuto = static_cast<QHelpEvent*>(evento);
    const std::string parole = parole_.cella(sotto(aiuto->pos()));
    if (parole.empty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(aiuto->globalPos(), q(parole), this);
    }
    return true;
}

void VistaMappa::keyPressEvent(QKeyEvent* evento) {
    const bool ctrl = evento->modifiers().testFlag(Qt::ControlModifier);
    const bool maiuscole = evento->modifiers().testFlag(Qt::ShiftModifier);
    const auto* voce = std::find_if(tasti.begin(), tasti.end(),
                                    [&](const VoceTasto& v) { return v.tasto == evento->key() && v.ctrl == ctrl; });
    bool preso = false;
    if (voce != tasti.end() && !evento->modifiers().testFlag(Qt::AltModifier)) {
        const bool conTesta = voce->griglia == Griglia::Tasto::copia && maiuscole;
        preso = griglia_.premiTasto(conTesta ? Griglia::Tasto::copiaConIntestazioni : voce->griglia, maiuscole);
    }
    evento->setAccepted(preso);
}

void VistaMappa::mousePressEvent(QMouseEvent* evento) {
    const Posto dove = sotto(evento->position().toPoint());
    if (dove.riga < 1) {
        return;
    }
    if (evento->button() == Qt::LeftButton) {
        griglia_.clic(dove.riga, dove.colonna, evento->modifiers().testFlag(Qt::ShiftModifier));
    } else if (evento->button() == Qt::RightButton) {
        griglia_.tastoDestro(dove.riga, dove.colonna);
    }
}

void VistaMappa::mouseMoveEvent(QMouseEvent* evento) {
    const Posto dove = sotto(evento->position().toPoint());
    if (dove.riga > 0 && evento->buttons().testFlag(Qt::LeftButton) && !(dove == griglia_.estremo())) {
        griglia_.clic(dove.riga, dove.colonna, true);
    }
}

void VistaMappa::contextMenuEvent(QContextMenuEvent* evento) {
    if (MenuChiavi* menu = griglia_.menu()) {
        const bool tastiera = evento->reason() == QContextMenuEvent::Keyboard;
        mostraContesto(*menu, *viewport(), tastiera ? posto(griglia_.corrente()).bottomLeft() : evento->pos());
    } else {
        evento->ignore();
    }
}

void VistaMappa::focusInEvent(QFocusEvent* evento) {
    QAbstractScrollArea::focusInEvent(evento);
    viewport()->update();
}

void VistaMappa::focusOutEvent(QFocusEvent* evento) {
    QAbstractScrollArea::focusOutEvent(evento);
    viewport()->update();
}

VistaMappa* collegaMappa(Griglia& griglia, VistaMappa::Parole parole, QWidget* genitore) {
    auto* vista = new VistaMappa(griglia, std::move(parole), genitore);
    auto* legame = new Legame(griglia, *vista);
    legame->mostra([vista] { vista->mostra(); });
    return vista;
}

}  // namespace kelvo::ui
