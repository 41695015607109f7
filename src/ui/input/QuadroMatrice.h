#pragma once

#include <QtWidgets/QWidget>
#include <vector>

#include "input/frmMatriceSvolte.h"

class QLabel;

namespace kelvo::ui {

class VistaGriglia;

/// The turning matrix with its totals: those of a row at its right, in line with it, with their unit or what is
/// missing; those of a column below it, as wide as the column.
class QuadroMatrice final : public QWidget {
    Q_OBJECT
public:
    QuadroMatrice(frmMatriceSvolte& finestra, QWidget* genitore);
    ~QuadroMatrice() override;
    QuadroMatrice(const QuadroMatrice&) = delete;
    QuadroMatrice& operator=(const QuadroMatrice&) = delete;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    QLabel* titolo(Riquadro& riquadro);
    QLabel* unita(Etichetta& etichetta);
    void segui(Controllo& controllo);
    void rivedi();
    void disponi();
    void disponiEntrate();
    void disponiUscite();
    int rami() const;
    int larghezzaUnita() const;
    int larghezzaTotali() const;
    int colonnaMinima() const;
    int larghezza(int colonna) const;
    int altezza() const;

    frmMatriceSvolte& f_;
    VistaGriglia* matrice_ = nullptr;
    VistaGriglia* entrate_ = nullptr;
    VistaGriglia* uscite_ = nullptr;
    QLabel* titoloEntrate_ = nullptr;
    QLabel* titoloUscite_ = nullptr;
    std::vector<QLabel*> unitaEntrate_;
    std::vector<QLabel*> unitaUscite_;
    std::vector<sigc::connection> legami_;
};

}  // namespace kelvo::ui
