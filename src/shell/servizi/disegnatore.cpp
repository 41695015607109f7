#include "shell/servizi/disegnatore.h"

#include <array>
#include <utility>

#include "base/testo.h"

namespace kelvo {

std::optional<FormatoDisegno> formatoDiFile(std::string_view percorso) {
    constexpr std::array<std::pair<std::string_view, FormatoDisegno>, 3> estensioni{{
        {".PNG", FormatoDisegno::png},
        {".SVG", FormatoDisegno::svg},
        {".PDF", FormatoDisegno::pdf},
    }};
    const std::string grande = maiuscoleAscii(percorso);
    for (const auto& [estensione, formato] : estensioni) {
        if (grande.size() > estensione.size() && grande.ends_with(estensione)) {
            return formato;
        }
    }
    return std::nullopt;
}

}  // namespace kelvo
