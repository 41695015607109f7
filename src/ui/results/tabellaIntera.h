#pragma once

class QWidget;

namespace kelvo {
class Griglia;
}

namespace kelvo::ui {

class VistaGriglia;

/// Keeps the view of a table no higher than all its rows, and at that height where it is `ferma`.
void tieniIntera(VistaGriglia& vista, Griglia& griglia, bool ferma);

/// A picture takes the height that is left, and gives way in a low window down to its smallest.
void gioco(QWidget& figura);

}  // namespace kelvo::ui
