#pragma once

#include <QtWidgets/QWidget>
#include <vector>

namespace kelvo::ui {

class VistaGriglia;

/// A band over a grid: widgets that stand over their columns and go with them where they are moved or scrolled.
class FasciaColonne final : public QWidget {
    Q_OBJECT
public:
    /// The grid stands below the band with the same left edge, or anywhere in the same window.
    FasciaColonne(VistaGriglia& griglia, QWidget* genitore);

    /// Puts a widget over a column, counted from 0 without the fixed ones; takes it.
    void sopra(int colonna, QWidget* oggetto);
    /// Puts a widget over the fixed columns; takes it.
    void inTesta(QWidget* oggetto);

protected:
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    struct Voce {
        int colonna = 0;
        QWidget* oggetto = nullptr;
    };
    void disponi();

    VistaGriglia& griglia_;
    QWidget* finestra_;  ///< the part over the columns that scroll: what is scrolled away is not seen
    QWidget* testa_ = nullptr;
    std::vector<Voce> voci_;
};

}  // namespace kelvo::ui
