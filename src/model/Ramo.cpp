#include "model/Ramo.h"

#include <utility>

namespace kelvo {

Ramo::Ramo(Revisione& revisione, std::string chiave, std::string descrizione)
    : OggettoProgetto(revisione),
      datiTraffico_(revisione),
      composizioneTraffico_(revisione),
      analisiMarginale_(revisione),
      descrizione_(std::move(descrizione)),
      chiave_(std::move(chiave)) {}

void Ramo::segui(Revisione& revisione) {
    OggettoProgetto::segui(revisione);
    datiTraffico_.segui(revisione);
    composizioneTraffico_.segui(revisione);
    analisiMarginale_.segui(revisione);
}

}  // namespace kelvo
