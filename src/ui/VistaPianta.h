#pragma once

#include <QtWidgets/QWidget>
#include <functional>
#include <optional>

#include "pianta/Pianta.h"

namespace kelvo::ui {

/// The plan of the roundabout, live. It is worked out and painted once for all changes of one turn of the event loop,
/// in the shape and at the size of its room.
class VistaPianta final : public QWidget {
    Q_OBJECT
public:
    /// What is to be drawn at this moment.
    struct Soggetto {
        pianta::DatiPianta dati{};
        pianta::OpzioniPianta opzioni{};  ///< shape of a close-up and size of the type are the widget's own
    };
    /// `soggetto` is asked when the widget is painted; nothing is painted where it answers with no leg.
    VistaPianta(std::function<Soggetto()> soggetto, QWidget* genitore);

    /// What is drawn has changed: painted anew in the next turn of the event loop.
    void aggiorna();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void disegna();

    std::function<Soggetto()> soggetto_;
    std::optional<pianta::Pianta> disegnata_;
    double parte_ = 1.0;  ///< of the height that the picture takes, the strip of its remarks left out
};

}  // namespace kelvo::ui
