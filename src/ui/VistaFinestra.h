#pragma once

#include <QtCore/QString>
#include <QtWidgets/QWidget>
#include <memory>
#include <string_view>
#include <vector>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/clsResize.h"

class QAbstractButton;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace kelvo::ui {

class DisposizioneProporzionale;
class RiquadroAiuto;

/// A titled panel with one row a field: label, field, unit, allowed range.
class Pannello final : public QWidget {
    Q_OBJECT
public:
    Pannello(const QString& titolo, QWidget* genitore);

    /// Appends a row with a field on the right of its label; the mnemonic of the label leads to the field. A field with
    /// a unit or a range is as narrow as a number asks, the others take the room.
    void riga(const std::string& etichetta, QWidget* campo, const QString& unita = {}, const QString& limiti = {});
    /// The same with a label of the window, which follows it.
    void riga(Etichetta& etichetta, QWidget* campo, const QString& unita = {}, const QString& limiti = {});
    /// The same with a check box in place of the label.
    void riga(QAbstractButton* spunta, QWidget* campo, const QString& unita = {}, const QString& limiti = {});
    /// Appends something that takes the whole row, or stands at one side of it.
    void larga(QWidget* oggetto, Qt::Alignment lato = {});
    /// Appends a hint on the row above it: no room is taken while it is hidden.
    void avviso(Etichetta& etichetta);
    /// Its rows stand closer, as those of check boxes do.
    void fitto();
    /// Appends a row that shows a text of the window and takes none.
    void valore(Etichetta& etichetta, Etichetta& testo);
    /// A quiet line below the field of the last row; where it is hidden it takes no room.
    void sotto(Etichetta& nota);
    /// A word at the right of the title.
    void nota(const QString& testo);
    /// The same with a label of the window, which follows it.
    void nota(Etichetta& testo);

    /// Room that the widest label takes, and room that all shall take: fields of several panels stand in one column.
    int larghezzaEtichette() const;
    void larghezzaEtichette(int larghezza);

private:
    void nota(QLabel* parola);
    void riga(QLabel* etichetta, QWidget* campo, const QString& unita, const QString& limiti);
    void campoDiRiga(QWidget* campo, const QString& unita, const QString& limiti);

    QGridLayout* griglia_ = nullptr;
    QHBoxLayout* testata_ = nullptr;
    std::vector<const QWidget*> teste_;  ///< what stands in front of the fields
    bool spunte_ = false;                ///< a row has a check box in front of its field
    int righe_ = 0;
};

/// View of a window: its caption panel and tool bar in one band, its body below; or the content of a dialogue, with the
/// buttons in a footer. The keyboard follows the focus of the window.
class VistaFinestra : public QWidget {
    Q_OBJECT
public:
    enum class Forma { finestra, dialogo };
    VistaFinestra(Finestra& finestra, QWidget* genitore, Forma forma = Forma::finestra);
    ~VistaFinestra() override;
    VistaFinestra(const VistaFinestra&) = delete;
    VistaFinestra& operator=(const VistaFinestra&) = delete;

    Finestra& finestra() { return finestra_; }
    Forma forma() const { return forma_; }
    /// The dialogue has no frame of the system.
    virtual bool senzaCornice() const { return false; }
    /// The user may size the dialogue.
    virtual bool ridimensionabile() const { return false; }
    /// Puts the keyboard on the control that has the focus of the window, else on the first one of the tab order.
    void fuocoIniziale();
    /// Puts the keyboard on a control, all its text selected.
    void porta(const Controllo& controllo);
    /// Places the panels anew, in proportion to the size of the view.
    void ridimensiona();

protected:
    /// Help, where no shortcut of the main window comes before: in what stands over it.
    void keyPressEvent(QKeyEvent* evento) override;
    /// Inside of a window of the work area of a frame of 1280 x 800, margins left out: what the places of the panels
    /// are told for.
    static constexpr Misura disegnoFinestra{952.0, 616.0};

    /// Column of panels of a data window, at the left of the body.
    QVBoxLayout* colonna() { return colonna_; }
    /// Width of the column in the design (of a dialogue: its largest); the rest is for what stands at its right.
    void larghezzaColonna(int larghezza);
    QWidget* corpo() { return corpo_; }
    /// Room at the right of the column.
    QVBoxLayout* destra() { return destra_; }
    /// Appends a button to the footer of a dialogue.
    void alPiede(QWidget* bottone);
    /// Appends the help pane of the window at the right, with its title.
    RiquadroAiuto* aggiungiAiuto(const QString& titolo);
    /// Sets the tab order to that of the window's controls and the mnemonics of the labels; called at the end of the
    /// view's constructor.
    void chiudiDisposizione();

    /// Places a panel of a window in the body, by its rectangle in the design.
    void colloca(QWidget* pannello, const Rettangolo& posto);

private:
    QWidget* fascia();
    QWidget* widgetDi(const Controllo& controllo) const;
    void disponiFinestra();
    void disponiDialogo();
    void allineaEtichette();
    void assegnaMnemonici();

    Finestra& finestra_;
    Forma forma_;
    QWidget* corpo_ = nullptr;
    QWidget* sinistra_ = nullptr;
    QVBoxLayout* colonna_ = nullptr;
    QVBoxLayout* destra_ = nullptr;
    QWidget* lato_ = nullptr;
    QHBoxLayout* piede_ = nullptr;
    DisposizioneProporzionale* piano_ = nullptr;
    sigc::connection legameFuoco_;
};

/// The view of a window, by the window's name; null for a window that has none.
VistaFinestra* creaVista(Finestra& finestra, QWidget* genitore);

}  // namespace kelvo::ui
