#include "ui/stile.h"

#include <QtCore/QDir>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>
#include <array>
#include <utility>

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

/// The style sheet; names in braces are colours.
QString foglio() {
    QString testo = QStringLiteral(R"(
* { color: {inchiostro}; }
QWidget#lavoro, QWidget#lavoro QWidget { background: white; }
QLineEdit, QPlainTextEdit, QComboBox, QTimeEdit, QSpinBox {
  border: 1px solid {bordoCampo}; border-radius: 2px; padding: 1px 6px; background: white;
  selection-background-color: {principale}; selection-color: white; }
QLineEdit:hover, QPlainTextEdit:hover, QComboBox:hover, QTimeEdit:hover, QSpinBox:hover { border-color: {principale}; }
QLineEdit:focus, QPlainTextEdit:focus, QComboBox:focus, QTimeEdit:focus, QSpinBox:focus {
  border: 2px solid {principale}; padding: 0px 5px; }
QLineEdit[fallito="true"], QComboBox[fallito="true"], QTimeEdit[fallito="true"] {
  border: 2px solid {errore}; background: {fondoErrore}; padding: 0px 5px; }
QLineEdit:read-only { background: {barra}; }
QLineEdit:disabled, QPlainTextEdit:disabled, QComboBox:disabled, QTimeEdit:disabled, QSpinBox:disabled {
  color: {spento}; background: {barra}; border-color: {bordoSpento}; }
QPushButton { border: 1px solid {bordoCampo}; border-radius: 2px; background: {fondo}; padding: 0px 16px; min-height: 26px; min-width: 62px; }
QPushButton:hover { background: {sfiorato}; border-color: {principale}; }
QPushButton:pressed, QPushButton:checked { background: {scelto}; border-color: {titolo}; }
QPushButton:focus { border: 2px solid {principale}; padding: 0px 15px; }
QPushButton:default { background: {principale}; color: white; border-color: {principale}; }
QPushButton:default:hover { background: {principaleScuro}; }
QPushButton:disabled { color: {spento}; border-color: {bordoSpento}; background: {fondo}; }
QCheckBox:disabled, QRadioButton:disabled, QLabel:disabled { color: {spento}; }
QFrame#pannelloDati { border: 1px solid {bordo}; border-radius: 2px; background: white; }
QLabel#titoloPannello { color: {titolo}; }
QLabel#unita, QLabel#limiti { color: {secondario}; }
QFrame#rigaPannello { background: {rigaPannello}; border: none; max-height: 1px; min-height: 1px; }
QMainWindow, QWidget#telaio { background: {principale}; }
QMenuBar { background: white; } QMenuBar::item { padding: 5px 10px; background: transparent; }
QMenuBar::item:selected { background: {sfiorato}; } QMenuBar::item:disabled { color: {spento}; }
QMenu { background: white; border: 1px solid {bordo}; } QMenu::item { padding: 5px 28px 5px 10px; }
QMenu::item:selected { background: {scelto}; } QMenu::item:disabled { color: {spento}; }
QMenu::separator { height: 1px; background: {rigaPannello}; margin: 4px 8px; }
QToolBar { background: {principale}; border: none; spacing: 2px; padding: 2px 8px; }
QToolBar::separator { background: {bordoChiaro}; width: 1px; margin: 8px 8px; }
QToolButton { background: transparent; border: 2px solid transparent; border-radius: 2px; padding: 4px; color: white; }
QToolButton:hover { background: {principaleScuro}; } QToolButton:pressed { background: {principalePremuto}; }
QToolButton:focus { border: 2px solid white; } QToolButton:disabled { color: {bordoChiaro}; }
QToolButton:checked { background: white; color: {principale}; }
QTreeView { background: white; border: none; outline: none; show-decoration-selected: 1; }
QTreeView::item { height: 24px; border: none; }
QTreeView::item:hover { background: {sfiorato}; } QTreeView::item:selected { background: {scelto}; color: {inchiostro}; }
QTreeView::item:disabled:hover { background: transparent; }
QStatusBar { background: {barra}; } QStatusBar::item { border: none; }
QProgressBar { border: 1px solid {bordoCampo}; border-radius: 2px; background: white; max-height: 14px; }
QProgressBar::chunk { background: {principale}; }
QWidget#piede { background: {barra}; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QDialog { background: white; }
QToolTip { color: {inchiostro}; background: white; border: 1px solid {bordoCampo}; padding: 3px; }
)");
    const std::array<std::pair<const char*, Colore>, 19> nomi{{{"{inchiostro}", tinta::inchiostro},
                                                               {"{principaleScuro}", tinta::principaleScuro},
                                                               {"{principalePremuto}", tinta::principalePremuto},
                                                               {"{principale}", tinta::principale},
                                                               {"{titolo}", tinta::titolo},
                                                               {"{secondario}", tinta::secondario},
                                                               {"{spento}", tinta::spento},
                                                               {"{grafite}", tinta::grafite},
                                                               {"{bordoCampo}", tinta::bordoCampo},
                                                               {"{bordoSpento}", tinta::bordoSpento},
                                                               {"{bordoChiaro}", Colore{97, 168, 220}},
                                                               {"{bordo}", tinta::bordo},
                                                               {"{fondoErrore}", tinta::fondoErrore},
                                                               {"{fondo}", tinta::fondo},
                                                               {"{barra}", tinta::barra},
                                                               {"{scelto}", tinta::scelto},
                                                               {"{sfiorato}", tinta::sfiorato},
                                                               {"{errore}", tinta::errore},
                                                               {"{rigaPannello}", tinta::rigaPannello}}};
    for (const auto& [nome, colore] : nomi) {
        testo.replace(QString::fromLatin1(nome), nomeColore(colore));
    }
    return testo;
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

void applicaStile(QApplication& applicazione, const QString& cartellaCaratteri) {
    const QDir cartella(cartellaCaratteri);
    for (const QString& file : cartella.entryList({QStringLiteral("*.ttf")}, QDir::Files)) {
        QFontDatabase::addApplicationFont(cartella.filePath(file));
    }
    constexpr double corpo = 10.0;
    applicazione.setFont(leggero(corpo));
    applicazione.setStyleSheet(foglio());
}

}  // namespace kelvo::ui
