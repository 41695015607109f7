#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kelvo {

/// A shortcut of a button that stands in the tool bars of windows.
struct ScorciatoiaTasto {
    std::string_view tasti;
    std::string_view tasto;  ///< key of the button
};

/// Wherever a window has such a button, in the order in which the status bar tells them.
inline constexpr std::array scorciatoieTasti{
    ScorciatoiaTasto{"F9", "keyCalcola"},           ScorciatoiaTasto{"F9", "keyAnalizza"},
    ScorciatoiaTasto{"Ctrl+Enter", "AggiornaDati"}, ScorciatoiaTasto{"F5", "Refresh"},
    ScorciatoiaTasto{"Ctrl+P", "keyAnteprima"},     ScorciatoiaTasto{"Ctrl+R", "keyRelazione"},
    ScorciatoiaTasto{"Ctrl+E", "keyExcel"},         ScorciatoiaTasto{"Ctrl+I", "Archivio"},
};

/// Shortcut of a button of a window's tool bar, by the button's key; empty for none.
std::string_view scorciatoiaDiTasto(std::string_view tasto);

/// The keys as the user reads them on his keyboard: "Ctrl+Enter" is "Ctrl+Invio".
std::string nomeTasti(std::string_view tasti);

}  // namespace kelvo
