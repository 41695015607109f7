#pragma once

#include <QtWidgets/QLabel>
#include <string>

namespace kelvo::ui {

/// A picture of the program that fills the room it is given, drawn from its vectors at the screen's own pixels.
class Figura final : public QLabel {
    Q_OBJECT
public:
    explicit Figura(QWidget* genitore);

    void risorsa(const std::string& nome);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    std::string risorsa_;
    QPixmap disegnata_;
};

}  // namespace kelvo::ui
