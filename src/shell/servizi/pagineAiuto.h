#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kelvo {

/// Page of a window, or of one of its controls.
struct RigaAiuto {
    std::string_view finestra;
    std::string_view controllo;  ///< empty for the window itself; a "*" at its end stands for any ending
    std::string_view pagina;
};

/// The page that lists all others.
inline constexpr std::string_view paginaIndice = "Indice.htm";
/// A page is no larger than this, bytes.
inline constexpr std::uint64_t massimoPagina = 1024UL * 1024UL;

/// Pages of the windows and of what takes the focus in them and names no page itself, as the fields do.
std::span<const RigaAiuto> righeAiuto();
/// Page of a window; empty for none.
std::string_view paginaDiFinestra(std::string_view finestra);
/// Page of a control by the first row that fits it; empty for none: what tells no more than its window has none.
std::string_view paginaDiControllo(std::string_view finestra, std::string_view controllo);

/// A page that says that another one cannot be shown, and why (empty for no reason).
std::string paginaMancante(std::string_view pagina, std::string_view motivo = {});
/// Title of a page; empty for none.
std::string titoloPagina(std::string_view html);

}  // namespace kelvo
