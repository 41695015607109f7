#pragma once

#include <QtWidgets/QWidget>
#include <functional>
#include <optional>

#include "pianta/Pianta.h"

namespace kelvo {
class ControlloPianta;
class MenuChiavi;
}  // namespace kelvo

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
    /// Only the levels and queues of the entries have changed: the plan itself is not worked out again.
    void aggiornaStati();
    /// Takes the keyboard, and brings that menu up at the menu key and the right button.
    void menu(std::function<MenuChiavi*()> quale);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    void disegna();

    std::function<Soggetto()> soggetto_;
    std::function<MenuChiavi*()> menu_;
    std::optional<pianta::Pianta> disegnata_;
    bool statiVecchi_ = false;
    double parte_ = 1.0;  ///< of the height that the picture takes, the strip of its remarks left out
};

/// The plan of a window, with its menu, reached by the keyboard.
VistaPianta* collega(ControlloPianta& pianta, QWidget* genitore);

}  // namespace kelvo::ui
