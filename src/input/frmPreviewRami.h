#pragma once

#include <array>
#include <memory>

#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/ElencoColonne.h"

namespace kelvo {

/// Shows the legs of another project file beside the dialogue that chooses it, for one of them to be taken.
class frmPreviewRami final : public FinestraAnteprima {
public:
    explicit frmPreviewRami(const Contorno& contorno);

    Riquadro frDatiProgetto;
    Etichetta lblNumeroRami;
    Etichetta lblNomeProgetto;
    Etichetta lblTitolo;
    Etichetta lblNote;
    Etichetta txtNumeroRami{"txtNumeroRami"};
    Etichetta txtNomeProgetto{"txtNomeProgetto"};
    Etichetta txtTitolo{"txtTitolo"};
    Etichetta txtNote{"txtNote"};
    Riquadro frGeometria;
    ElencoColonne lstRami;             ///< one row a leg, keyed by its number; name and six measures
    Etichetta lblAvviso{"lblAvviso"};  ///< why nothing is shown

    /// What the dialogue is asked for.
    RichiestaFile richiesta() const;

    /// Loads a file whose name ends in KLV, in either case, into a project of its own and shows it; any other file
    /// empties the view.
    void selezionato(const std::string& percorso) override;
    /// Asks whether to take the row that is selected; false with none, with another file than the one shown, or on No.
    bool conferma(const std::string& percorso) override;

    /// The six measures of the leg that was taken, in their order.
    const std::array<float, 6>& scelti() const { return scelti_; }

private:
    void FillTxt();
    void vuota(const std::string& motivo);

    std::unique_ptr<Rotonda> altra_;
    std::string percorso_;
    std::array<float, 6> scelti_{};
};

}  // namespace kelvo
