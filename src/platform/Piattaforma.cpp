#include "platform/Piattaforma.h"

namespace kelvo {

Piattaforma::~Piattaforma() = default;

}  // namespace kelvo
