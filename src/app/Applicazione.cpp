#include "app/Applicazione.h"

#include <cmath>

namespace kelvo {

DataOra Applicazione::giorno() const {
    return std::floor(orologio.adesso());
}

}  // namespace kelvo
