#include "shell/icone.h"

#include <algorithm>
#include <string>

#include "base/guasto.h"

namespace kelvo {

int plGetIconIndex(std::string_view chiave) {
    const auto* const trovata = std::find(ImageList2014.begin(), ImageList2014.end(), chiave);
    if (trovata == ImageList2014.end()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "icona '" + std::string{chiave} + "'");
    }
    return static_cast<int>(trovata - ImageList2014.begin());
}

}  // namespace kelvo
