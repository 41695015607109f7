#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "shell/servizi/tinte.h"

namespace kelvo {

class Finestra;

/// Main colour of the program.
inline constexpr Colore colorePrincipale = tinta::principale;

/// A colour of the caption panels.
struct ColorePannello {
    std::string_view nome;
    Colore colore;
};

/// The colours of the caption panels, at positions from 1.
inline constexpr std::array<ColorePannello, 7> coloriPannello{
    ColorePannello{"Grigio", {123, 123, 123}},
    ColorePannello{"Granata", {192, 0, 0}},
    ColorePannello{"Blu", {0, 0, 192}},
    ColorePannello{"Verde", {0, 128, 0}},
    ColorePannello{"Sfumato verde", {0, 128, 128}},
    ColorePannello{"Arancio", {255, 128, 0}},
    ColorePannello{"Rosa", {255, 128, 255}},
};

/// Colour at a position from 1; the first one for a position outside the list.
Colore colorePannello(std::int16_t posizione);

/// Dresses all controls of a window: font, colours by kind and tag, caption panel by `layoutPannello`.
/// The labels of the empty window keep what they have.
void vesti(Finestra& finestra, std::int16_t layoutPannello);

}  // namespace kelvo
