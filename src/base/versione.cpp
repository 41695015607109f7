#include "base/versione.h"

namespace kelvo {

std::string_view versione() {
    return KELVO_VERSIONE;
}

}  // namespace kelvo
