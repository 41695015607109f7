#include "ui/stile.h"

#include <QtCore/QDir>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QFontDatabase>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <array>
#include <utility>

#include "ui/icone.h"

namespace kelvo::ui {

namespace {

constexpr const char* famigliaSistema = "Segoe UI Semilight";
constexpr const char* famigliaForteSistema = "Segoe UI Semibold";

QFont famiglie(std::initializer_list<const char*> nomi, double punti) {
    QFont carattere;
    QStringList elenco;
    for (const char* nome : nomi) {
        elenco << QString::fromLatin1(nome);
    }
    carattere.setFamilies(elenco);
    carattere.setPointSizeF(punti);
    return carattere;
}

QString nomeColore(Colore c) {
    return qcolore(c).name();
}

/// The style sheet; names in braces are colours, and the folder of the signs.
QString foglio() {
    QString testo = QStringLiteral(R"(
QLineEdit, QPlainTextEdit, QComboBox, QAbstractSpinBox {
  border: 1px solid {bordoCampo}; border-radius: 2px; padding: 1px 6px; background: white;
  selection-background-color: {principale}; selection-color: white; }
QLineEdit:hover, QPlainTextEdit:hover, QComboBox:hover, QAbstractSpinBox:hover { border-color: {principale}; }
QLineEdit:focus, QPlainTextEdit:focus, QComboBox:focus, QAbstractSpinBox:focus {
  border: 2px solid {principale}; padding: 0px 5px; }
QLineEdit:read-only { background: {barra}; }
QLineEdit[fallito="true"], QComboBox[fallito="true"], QAbstractSpinBox[fallito="true"] {
  border: 2px solid {errore}; background: {fondoErrore}; padding: 0px 5px; }
QComboBox[fallito="true"]:!editable { padding-left: 22px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QComboBox:disabled, QAbstractSpinBox:disabled {
  color: {spento}; background: {barra}; border-color: {bordoSpento}; }
QComboBox QLineEdit, QAbstractSpinBox QLineEdit, QComboBox QLineEdit:focus, QAbstractSpinBox QLineEdit:focus {
  border: none; padding: 0px; background: transparent; }
QComboBox::drop-down, QDateEdit::drop-down { border: none; width: 24px; }
QComboBox::down-arrow, QDateEdit::down-arrow { image: url("{segni}/giu.svg"); width: 12px; height: 12px; }
QComboBox::down-arrow:disabled, QDateEdit::down-arrow:disabled { image: url("{segni}/giu-spento.svg"); }
QAbstractSpinBox::up-button, QAbstractSpinBox::down-button { border: none; width: 20px; background: transparent; }
QAbstractSpinBox::up-button:hover, QAbstractSpinBox::down-button:hover { background: {sfiorato}; }
QAbstractSpinBox::up-button:pressed, QAbstractSpinBox::down-button:pressed { background: {scelto}; }
QAbstractSpinBox::up-arrow { image: url("{segni}/su.svg"); width: 10px; height: 10px; }
QAbstractSpinBox::down-arrow { image: url("{segni}/giu.svg"); width: 10px; height: 10px; }
QAbstractSpinBox::up-arrow:disabled, QAbstractSpinBox::up-arrow:off { image: url("{segni}/su-spento.svg"); }
QAbstractSpinBox::down-arrow:disabled, QAbstractSpinBox::down-arrow:off { image: url("{segni}/giu-spento.svg"); }
QComboBox QAbstractItemView { border: 1px solid {bordoCampo}; background: white; outline: none;
  selection-background-color: {scelto}; selection-color: {inchiostro}; }
QComboBox QAbstractItemView::item { min-height: 26px; padding: 0px 6px; border: none; }
QComboBox QAbstractItemView::item:selected, QComboBox QAbstractItemView::item:hover {
  background: {scelto}; color: {inchiostro}; }
QPushButton { border: 1px solid {bordoCampo}; border-radius: 2px; background: {fondo}; padding: 0px 16px;
  min-height: 28px; min-width: 62px; }
QPushButton:hover { background: {sfiorato}; border-color: {principale}; }
QPushButton:pressed, QPushButton:checked { background: {scelto}; border-color: {titolo}; }
QPushButton:focus { border: 2px solid {principale}; padding: 0px 15px; min-height: 26px; }
QPushButton:default { background: {principale}; color: white; border-color: {principale}; }
QPushButton:default:hover { background: {principaleScuro}; }
QPushButton:default:pressed { background: {principalePremuto}; }
QPushButton:default:focus { border: 2px solid {principalePremuto}; }
QPushButton:disabled { color: {spento}; border-color: {bordoSpento}; background: {fondo}; }
QPushButton[aSinistra="true"] { text-align: left; padding: 0px 14px; }
QPushButton[aSinistra="true"]:focus { padding: 0px 13px; }
QPushButton[basso="true"] { min-height: 22px; padding: 0px 10px; }
QPushButton[basso="true"]:focus { min-height: 20px; padding: 0px 9px; }
QPushButton[relazione="true"] { background: white; border-color: {bordo}; padding: 0px; min-height: 66px; }
QPushButton[relazione="true"]:hover, QPushButton[relazione="true"]:focus { background: {sfiorato}; }
QPushButton[relazione="true"]:hover { border-color: {principale}; }
QPushButton[relazione="true"]:focus { border: 2px solid {principale}; min-height: 64px; }
QPushButton[relazione="true"]:pressed { background: {scelto}; border-color: {titolo}; }
QPushButton[relazione="true"]:disabled { background: {fondo}; border-color: {bordoSpento}; }
QCheckBox, QRadioButton { border: 2px solid transparent; border-radius: 2px; padding: 0px 4px; spacing: 8px; }
QCheckBox:focus, QRadioButton:focus { border-color: {principale}; }
QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid {bordoCampo}; border-radius: 2px; background: white; }
QRadioButton::indicator { width: 14px; height: 14px; border: 1px solid {bordoCampo}; border-radius: 8px; background: white; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover { border-color: {principale}; }
QCheckBox::indicator:checked { background: {principale}; border-color: {principale}; image: url("{segni}/spunta.svg"); }
QRadioButton::indicator:checked { border-color: {principale}; image: url("{segni}/punto.svg"); }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: {bordoSpento}; background: {barra}; }
QCheckBox::indicator:checked:disabled { background: {spento}; border-color: {spento}; }
QCheckBox:disabled, QRadioButton:disabled, QLabel:disabled { color: {spento}; }
QFrame#pannelloDati { border: 1px solid {bordo}; border-radius: 2px; background: white; }
QLabel#titoloPannello { color: {titolo}; }
QLabel#unita, QLabel[quieta="true"] { color: {secondario}; }
QPushButton[freccia="true"] { min-width: 30px; padding: 0px 4px; }
QPushButton[freccia="true"]:focus { padding: 0px 3px; }
QFrame#pannelloIndice { border: 1px solid {bordo}; border-radius: 2px; background: {fondo}; }
QFrame#rigaPannello { background: {rigaPannello}; border: none; max-height: 1px; min-height: 1px; }
QWidget#lavoro { background: white; }
QTextBrowser#ctlHelp { border: none; background: white; }
QMainWindow, QWidget#telaio { background: {principale}; }
QSplitter::handle { background: {principale}; image: none; }
QFileDialog QSplitter::handle { background: white; }
QMenuBar { background: white; } QMenuBar::item { padding: 5px 10px; background: transparent; }
QMenuBar::item:selected { background: {sfiorato}; } QMenuBar::item:pressed { background: {scelto}; }
QMenuBar::item:disabled { color: {spento}; }
QMenu { background: white; border: 1px solid {bordoCampo}; padding: 3px 0px; }
QMenu::item { padding: 4px 24px 4px 8px; border: none; min-height: 20px; }
QMenu::icon { padding-left: 10px; }
QMenu::item:selected { background: {scelto}; } QMenu::item:disabled { color: {spento}; background: transparent; }
QMenu::separator { height: 1px; background: {rigaPannello}; margin: 4px 8px; }
QMenu::right-arrow { image: url("{segni}/destra.svg"); width: 12px; height: 12px; right: 6px; }
QToolBar { background: {principale}; border: none; spacing: 2px; padding: 2px 8px; }
QWidget#fascia QToolBar { padding: 0px; }
QToolBar::separator { background: {spentoSuBlu}; width: 1px; margin: 8px 8px; }
QToolBar QToolButton { background: transparent; border: 2px solid transparent; border-radius: 2px; padding: 4px; color: white; }
QToolBar QToolButton:hover { background: {principaleScuro}; }
QToolBar QToolButton:pressed { background: {principalePremuto}; }
QToolBar QToolButton:focus { border: 2px solid white; } QToolBar QToolButton:disabled { color: {spentoSuBlu}; }
QToolBar QToolButton:checked { background: white; color: {principale}; }
QFrame#secondaFascia { background: {barra}; border: none; border-bottom: 1px solid {bordo}; }
QFrame#secondaFascia QToolBar { background: {barra}; padding: 0px; }
QFrame#secondaFascia QToolButton { color: {inchiostro}; }
QFrame#secondaFascia QToolButton:hover { background: {sfiorato}; }
QFrame#secondaFascia QToolButton:pressed { background: {scelto}; }
QFrame#secondaFascia QToolButton:focus { border: 2px solid {principale}; }
QFrame#secondaFascia QToolButton:disabled { color: {spento}; }
QFrame#note { background: {fondoErrore}; border: none; border-left: 3px solid {errore}; }
QWidget[accanto="true"] { background: white; border: 1px solid {bordoCampo}; }
QTreeView { background: white; border: none; outline: none; show-decoration-selected: 1; }
QTreeView::item { border: none; padding: 0px 2px; }
QTreeView#ctlTree { padding-top: 6px; } QTreeView#ctlTree::item { height: 24px; }
QTreeView::item:hover, QTreeView::branch:hover { background: {sfiorato}; }
QTreeView::item:selected, QTreeView::branch:selected { background: {scelto}; color: {inchiostro}; }
QTreeView::item:disabled:hover { background: transparent; }
QTreeView::branch:has-children:closed { image: url("{segni}/albero-chiuso.svg"); }
QTreeView::branch:has-children:open { image: url("{segni}/albero-aperto.svg"); }
QTreeView[elenco="true"] { border: none; alternate-background-color: white; }
QTreeView[elenco="true"]::item { border-bottom: 1px solid {rigaPannello}; height: 22px; padding: 0px 5px; }
QHeaderView { background: white; border: none; }
QHeaderView::section { background: {verde}; color: white; border: none; border-right: 1px solid white; padding: 4px 8px; }
QHeaderView::section:last { border-right: none; }
QScrollArea { border: none; background: white; }
QScrollBar { background: {barra}; border: none; margin: 0px; }
QScrollBar:vertical { width: 12px; } QScrollBar:horizontal { height: 12px; }
QScrollBar::handle { background: {bordo}; border: 2px solid {barra}; border-radius: 2px; }
QScrollBar::handle:vertical { min-height: 32px; } QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:hover, QScrollBar::handle:pressed { background: {bordoCampo}; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; border: none; background: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QAbstractScrollArea::corner { background: {barra}; border: none; }
QLabel#tastoSuggerito { border: 1px solid {bordoCampo}; border-radius: 2px; background: white; padding: 0px 4px; }
QStatusBar { background: {barra}; } QStatusBar::item { border: none; }
QProgressBar { border: 1px solid {bordoCampo}; border-radius: 2px; background: white; max-height: 14px; }
QProgressBar::chunk { background: {principale}; }
QTableView { background: white; border: none; }
QTableView QLineEdit, QTableView QLineEdit:focus { border: 2px solid {principale}; border-radius: 0px; padding: 0px 4px; }
QTableView QLineEdit[fallito="true"] { border: 2px solid {errore}; background: {fondoErrore}; }
QHeaderView { background: white; border: none; }
QListWidget { background: white; border: 1px solid {bordoCampo}; border-radius: 2px; outline: none; }
QListWidget:focus { border: 2px solid {principale}; }
QListWidget::item { height: 24px; }
QListWidget::item:hover { background: {sfiorato}; }
QListWidget::item:selected { background: {scelto}; color: {inchiostro}; }
QListWidget[spunte="true"]::item { height: 28px; padding: 0px 4px; border: none; }
QListWidget::indicator { width: 14px; height: 14px; border: 1px solid {bordoCampo}; border-radius: 2px; background: white; }
QListWidget::indicator:hover { border-color: {principale}; }
QListWidget::indicator:checked { background: {principale}; border-color: {principale}; image: url("{segni}/spunta.svg"); }
QListWidget::indicator:disabled { border-color: {bordoSpento}; background: {barra}; }
QListWidget::indicator:checked:disabled { background: {spento}; border-color: {spento}; }
QListWidget[piatto="true"] { border: 2px solid transparent; }
QListWidget[piatto="true"]:focus { border: 2px solid {principale}; }
QListWidget[piatto="true"]::item { padding: 0px 1px; }
QListWidget[piatto="true"]::item:selected { background: transparent; }
QListWidget[piatto="true"]::item:selected:focus { background: {scelto}; }
QListWidget:disabled { color: {spento}; background: {barra}; border-color: {bordoSpento}; }
QScrollBar:vertical { background: {barra}; border: none; width: 12px; margin: 0px; }
QScrollBar:horizontal { background: {barra}; border: none; height: 12px; margin: 0px; }
QScrollBar::handle { background: {bordo}; border-radius: 2px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 24px; } QScrollBar::handle:horizontal { min-width: 24px; }
QScrollBar::handle:hover { background: {bordoCampo}; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QTabWidget::pane { border: 1px solid {bordo}; background: white; top: -1px; }
QTabBar::tab { background: transparent; border: 1px solid transparent; border-top-width: 3px; padding: 6px 14px; }
QTabBar::tab:hover { background: {sfiorato}; }
QTabBar::tab:selected { background: white; border-color: {bordo}; border-top-color: {principale}; border-bottom-color: white; }
QTabBar::tab:disabled { color: {spento}; }
QTabBar::tab:focus { border: 2px solid {principale}; border-top-width: 3px; }
QWidget#piede { background: {barra}; }
QDialog { background: white; }
QDialog#frmSplash { border: 1px solid {bordoCampo}; }
QLabel#pagina, QLabel[titoloPagina="true"] { color: {titolo}; }
QCalendarWidget QWidget#qt_calendar_navigationbar { background: {principale}; }
QCalendarWidget QToolButton { color: white; background: transparent; border: none; padding: 4px 8px; }
QCalendarWidget QToolButton:hover { background: {principaleScuro}; }
QCalendarWidget QToolButton::menu-indicator { image: none; }
QCalendarWidget QToolButton#qt_calendar_prevmonth { qproperty-icon: url("{segni}/indietro-su-blu.svg"); }
QCalendarWidget QToolButton#qt_calendar_nextmonth { qproperty-icon: url("{segni}/avanti-su-blu.svg"); }
QCalendarWidget QAbstractItemView { selection-background-color: {principale}; selection-color: white; outline: none; }
QToolTip { color: {inchiostro}; background: white; border: 1px solid {bordoCampo}; padding: 3px; }
)");
    testo.replace(QStringLiteral("{segni}"), cartellaSegni());
    const std::array<std::pair<const char*, Colore>, 20> nomi{{{"{inchiostro}", tinta::inchiostro},
                                                               {"{principaleScuro}", tinta::principaleScuro},
                                                               {"{principalePremuto}", tinta::principalePremuto},
                                                               {"{principale}", tinta::principale},
                                                               {"{titolo}", tinta::titolo},
                                                               {"{secondario}", tinta::secondario},
                                                               {"{spento}", tinta::spento},
                                                               {"{grafite}", tinta::grafite},
                                                               {"{bordoCampo}", tinta::bordoCampo},
                                                               {"{bordoSpento}", tinta::bordoSpento},
                                                               {"{spentoSuBlu}", tinta::spentoSuBlu},
                                                               {"{bordo}", tinta::bordo},
                                                               {"{fondoErrore}", tinta::fondoErrore},
                                                               {"{fondo}", tinta::fondo},
                                                               {"{barra}", tinta::barra},
                                                               {"{scelto}", tinta::scelto},
                                                               {"{sfiorato}", tinta::sfiorato},
                                                               {"{errore}", tinta::errore},
                                                               {"{rigaPannello}", tinta::rigaPannello},
                                                               {"{verde}", tinta::verde}}};
    for (const auto& [nome, colore] : nomi) {
        testo.replace(QString::fromLatin1(nome), nomeColore(colore));
    }
    return testo;
}

QPalette tavolozza() {
    QPalette tavolozza;
    const QColor inchiostro = qcolore(tinta::inchiostro);
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        tavolozza.setColor(ruolo, inchiostro);
        tavolozza.setColor(QPalette::Disabled, ruolo, qcolore(tinta::spento));
    }
    for (const auto ruolo : {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase}) {
        tavolozza.setColor(ruolo, Qt::white);
    }
    tavolozza.setColor(QPalette::Button, qcolore(tinta::fondo));
    tavolozza.setColor(QPalette::Highlight, qcolore(tinta::principale));
    tavolozza.setColor(QPalette::HighlightedText, Qt::white);
    tavolozza.setColor(QPalette::Link, qcolore(tinta::principale));
    tavolozza.setColor(QPalette::PlaceholderText, qcolore(tinta::secondario));
    return tavolozza;
}

}  // namespace

QColor qcolore(Colore colore) {
    return {colore.rosso, colore.verde, colore.blu};
}

QFont leggero(double punti) {
    return famiglie({famigliaSistema, "Open Sans Light", "Open Sans"}, punti);
}

QFont dati(double punti) {
    return famiglie({famigliaSistema, "Open Sans"}, punti);
}

QFont forte(double punti) {
    return famiglie({famigliaForteSistema, "Open Sans Semibold", "Open Sans SemiBold", "Open Sans"}, punti);
}

QFont fisso(double punti) {
    QFont carattere = famiglie({"Consolas", "Liberation Mono", "DejaVu Sans Mono", "Courier New"}, punti);
    carattere.setStyleHint(QFont::Monospace);
    carattere.setFixedPitch(true);
    return carattere;
}

void applicaStile(QApplication& applicazione, const QString& cartellaCaratteri) {
    const QDir cartella(cartellaCaratteri);
    for (const QString& file : cartella.entryList({QStringLiteral("*.ttf")}, QDir::Files)) {
        QFontDatabase::addApplicationFont(cartella.filePath(file));
    }
    // One hand on every system: what the style sheet leaves alone looks alike.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(tavolozza());
    QApplication::setFont(leggero(punti::corpo));
    applicazione.setStyleSheet(foglio());
}

}  // namespace kelvo::ui
