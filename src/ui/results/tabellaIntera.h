#pragma once

namespace kelvo {
class Griglia;
}

namespace kelvo::ui {

class VistaGriglia;

/// Keeps the view of a table no higher than all its rows, and at that height where it is `ferma`.
void tieniIntera(VistaGriglia& vista, Griglia& griglia, bool ferma);

}  // namespace kelvo::ui
