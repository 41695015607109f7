#pragma once

#include <QtWidgets/QTableView>

#include "shell/servizi/Griglia.h"
#include "ui/PittoreCelle.h"

class QLineEdit;

namespace kelvo::ui {

class ModelloGriglia;

/// A grid on the screen: paints its cells, hands it keys and clicks, lays its editor over the cell of the cursor.
class VistaGriglia final : public QTableView {
    Q_OBJECT
public:
    VistaGriglia(Griglia& griglia, QWidget* genitore);
    ~VistaGriglia() override;
    VistaGriglia(const VistaGriglia&) = delete;
    VistaGriglia& operator=(const VistaGriglia&) = delete;

    /// Shows the grid as it stands.
    void mostra();
    /// The editor of the cells; it takes the focus in the view's stead while it is open.
    QLineEdit& editor() { return *editor_; }
    /// The keyboard is here or in the editor.
    bool conFuoco() const;
    /// Height of the whole table without scrolling, frame included.
    int altezzaIntera() const;
    /// Width that the widest column asks for at least.
    int colonnaMinima();
    /// Where a cell below the fixed ones is seen, in the coordinates of the view.
    QRect posto(Posto cella) const;
    /// The columns of this view stand in line with those of `guida` that are not fixed, which are never narrower than
    /// the texts of either. `guida` must live as long.
    void incolonna(VistaGriglia& guida);
    /// Cells of which `quali` tells if they are ticked show a box in place of their text.
    void caselle(const PittoreCelle::Caselle& quali);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void prepara();
    void collegaGesti();
    int spazio() const;
    void disponi();
    void stringi(bool stretta);
    void misuraColonne();
    void disponiLarghezze();
    void disponiAltezze();
    void disponiTestate();
    void mostraCorrente(bool scorrendo);
    void mostraRigaAlta();
    void mostraEditor();
    void chiudiEditor();
    void corretto(const QString& testo);
    bool tastoEditor(QKeyEvent& evento);
    int altezzaFissa(int riga) const;

    Griglia& griglia_;
    PittoreCelle pittore_;
    ModelloGriglia* modello_ = nullptr;
    QLineEdit* editor_ = nullptr;
    /// What a cell read when its width was measured: of a large table only what changes is measured again.
    struct Misurata {
        std::string testo;
        bool grassetto = false;
        bool segno = false;
        bool aCapo = false;
        int larghezza = -1;
    };
    int larghezzaDi(Posto cella);

    std::vector<Misurata> misurate_;
    std::vector<int> minime_;  ///< smallest width of each column, fixed ones too
    std::vector<int> larghezze_;
    VistaGriglia* guida_ = nullptr;
    VistaGriglia* seguace_ = nullptr;
    unsigned versione_ = 0;
    bool letta_ = false;
    bool inDisposizione_ = false;
    bool stretta_ = false;
    Posto corrente_;
    Posto estremo_;
    int rigaAlta_ = -1;
};

/// Binds a grid; the menu of its own comes up at the menu key and the right button.
VistaGriglia* collega(Griglia& griglia, QWidget* genitore);

}  // namespace kelvo::ui
