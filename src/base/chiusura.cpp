#include "base/chiusura.h"

#include <fmt/format.h>

#include "base/testo.h"
#include "base/versione.h"

namespace kelvo {

std::string chiusuraEsportazione(std::string_view quando, std::string_view nomeFile) {
    return fmt::format("Output creato con Kelvo V{} il {}{}Nome Progetto: {}{}", versione(), quando, fineRiga, nomeFile,
                       fineRiga);
}

}  // namespace kelvo
