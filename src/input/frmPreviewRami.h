#pragma once

#include <array>

#include "input/AnteprimaProgetto.h"
#include "shell/servizi/ElencoColonne.h"

namespace kelvo {

/// Shows the legs of another project file beside the dialogue that chooses it, for one of them to be taken.
class frmPreviewRami final : public AnteprimaProgetto {
public:
    explicit frmPreviewRami(const Contorno& contorno);

    Riquadro frGeometria;
    ElencoColonne lstRami;  ///< one row a leg, keyed by its number; name and six measures

    /// Asks whether to take the row that is selected; false with none, with another file than the one shown, or on No.
    bool conferma(const std::string& percorso) override;

    /// The six measures of the leg that was taken, in their order.
    const std::array<float, 6>& scelti() const { return scelti_; }

private:
    void mostra(const Rotonda& altra) override;
    void svuota() override;

    std::array<float, 6> scelti_{};
};

}  // namespace kelvo
