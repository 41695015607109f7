#include "base/somma.h"

#include <string>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {

float sommaMostrata(std::span<const float> valori) {
    double somma = 0.0;
    for (const float valore : valori) {
        somma += leggiNumero(testoNumero(valore)).value_or(0.0);
    }
    return aSingolo(somma, [] { return std::string{"somma"}; });
}

}  // namespace kelvo
