#pragma once

#include <array>

#include "shell/servizi/FinestraRamo.h"
#include "shell/servizi/campiNumerici.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// What the sensitivity analysis of one entry moves, and by which steps; beside it the two percentages that reduce the
/// entry's capacity in every simulation.
class frmAnalisiMarginale final : public FinestraRamo {
public:
    explicit frmAnalisiMarginale(const Contorno& contorno);

    /// A parameter: its flag and its step.
    struct Passo {
        Casella chk;
        tBox txt;
    };
    std::array<Passo, 6> passi;  ///< in the order of the six measures

    Immagine ctlPicture{"ctlPicture"};  ///< picture of the parameter in use, else of the roundabout

    Riquadro frAttraversamenti;
    Etichetta lblAttraversamentoPedonale;
    tBox txtAttraversamentoPedonale;
    /// Tells that the percentage does not count, as the entry has no crossing.
    Etichetta lblSenzaAttraversamento{"lblSenzaAttraversamento"};
    Casella chkCondizioniEsterne;
    Etichetta lblDescrizioneCondizioniEsterne{"lblDescrizioneCondizioniEsterne", "Descrizione"};
    tBox txtDescrizioneCondizioniEsterne{"txtDescrizioneCondizioniEsterne", tBox::textbox};
    tBox txtCondizioniEsterne;
    /// Tells that the percentage counts though its box is not ticked.
    Etichetta lblCondizioniEsterne{"lblCondizioniEsterne"};

    void ReadData() override;
    void SaveData() override;

private:
    void confronta();
    void abilita();
    void scartaNonAmmesso();
    void fuocoSpostato();
    void dopoNumero(tBox& campo, Formato formato);
    void scriviPassi();
    void scriviPercentuali();
    bool diversi() const;
};

/// Names, limits and units of the steps, in the order of the six measures.
extern const std::array<CampoNumerico, 6> campiPasso;
/// Limits of the two percentages.
inline constexpr CampoNumerico campoAttraversamento{"Incidenza sulla capacità", "%", 0.0, 100.0, "#0.00"};
inline constexpr CampoNumerico campoCondizioni{"Condizioni esterne", "%", -100.0, 100.0, "#0.00"};

}  // namespace kelvo
