#pragma once

#include <QtCore/QPoint>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTreeWidget>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

/// What a failed comparison shows of a text.
inline void PrintTo(const QString& testo, std::ostream* flusso) {
    *flusso << '"' << testo.toStdString() << '"';
}

/// What a person does with mouse and keyboard, sent to the real windows.
namespace kelvo::prove::gesti {

/// Runs the event loop until `condizione` holds; false when a generous deadline has passed.
bool attendi(const std::function<bool()>& condizione);
/// Runs what waits in the event loop, what is to be deleted included.
void smaltisci();

/// Brings a window to the front, as a window manager does with the one that is left when a dialogue goes; false if it
/// does not come.
bool davanti(QWidget& finestra);

/// The widget that a key goes to now: an open menu, else the one with the keyboard; null for none.
QWidget* bersaglio();
/// Name of the widget that has the keyboard; empty for none.
std::string fuoco();
/// Presses a key on what has the keyboard.
void tasto(Qt::Key tasto, Qt::KeyboardModifiers modi = Qt::NoModifier);
/// Types a text, key by key, into what has the keyboard.
void digita(const std::string& testo);
/// Presses the left button on a widget and releases it there.
void clic(QWidget& oggetto, QPoint posto = {});

/// The node of a key; null for none.
QTreeWidgetItem* nodo(const QTreeWidget& albero, const std::string& chiave);
std::string chiaveDi(const QTreeWidgetItem* nodo);
/// Key of the node that is shown as selected; empty for none.
std::string selezionato(const QTreeWidget& albero);
/// Clicks on a node.
void clicNodo(QTreeWidget& albero, const std::string& chiave);
/// Goes to a node by the arrow keys, Enter included; the tree must have the keyboard.
bool vaiAlNodo(QTreeWidget& albero, const std::string& chiave);

/// Opens the menus of the path with the mouse and clicks on its last entry. The first is the key of a menu; of the
/// others each is a key or the words of a submenu. False if an entry is missing or closed.
bool menu(QMainWindow& finestra, const std::vector<std::string>& percorso);
/// Clicks on a button of the main tool bar.
bool bottone(QMainWindow& finestra, const std::string& chiave);

/// The entry of those words in the menu that is up, its keys and mnemonic left out; null for none.
QAction* voce(const QString& testo);

/// Waits beside the running program for a modal window of a name and does something with it, once. A window that stays
/// open past the deadline is closed.
class AlModale {
public:
    AlModale(std::string nome, std::function<void(QWidget&)> azione);
    /// The window came and was dealt with.
    bool avvenuto() const { return avvenuto_; }
    /// The window stayed and had to be closed.
    bool rimasto() const { return rimasto_; }

private:
    void guarda();

    std::string nome_;
    std::function<void(QWidget&)> azione_;
    QTimer passo_;
    qint64 scadenza_ = 0;
    bool avvenuto_ = false;
    bool rimasto_ = false;
};

}  // namespace kelvo::prove::gesti
