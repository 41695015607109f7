#pragma once

#include <array>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Names of all entries at once, beside the picture of the roundabout.
class frmToponomasticaIntersezione final : public FinestraDati {
public:
    explicit frmToponomasticaIntersezione(const Contorno& contorno);

    std::array<Etichetta, 7> lblIngresso;  ///< "Ingresso A:" to "Ingresso G:"
    std::array<tBox, 7> txtIngresso;       ///< "txtIngresso1" to "txtIngresso7"; those past the last leg are hidden
    Immagine ctlPicture{"ctlPicture"};     ///< "RAMI3" to "RAMI7"

    void ReadData() override;
    void SaveData() override;

private:
    void scrivi(std::size_t indice);
    void confronta();
};

}  // namespace kelvo
