#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "results/FinestraRisultati.h"
#include "results/corsiaDestra.h"
#include "shell/servizi/ControlloPianta.h"
#include "shell/servizi/scelte.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// The four entries with and without right-turn lanes, side by side. The lanes that are chosen live in the window and
/// are no part of the project.
class frmDX final : public FinestraRisultati {
public:
    frmDX(const Contorno& contorno, const ServiziRisultati& servizi);

    Riquadro frameAVVISO;  ///< alone in view where the roundabout has other than four legs
    Etichetta lblAVVISO;
    Riquadro frSCELTA;  ///< what is to be compared
    ElencoSpunte listDX{"listDX"};
    std::array<tBox, ramiConCorsie> txtIngresso;       ///< names of the entries, read only
    std::array<Etichetta, posizioniDX.size()> flussi;  ///< labelAB to labelDA: what turns right of each entry
    Casella chkStampaDX;                               ///< the comparison goes into the report
    ControlloPianta ctlPianta;                         ///< the roundabout with the turns that are chosen
    Griglia ctlGrid{"ctlGrid"};
    Etichetta lblLegenda;  ///< what the marked rows and the variations are

    PannelloAiuto ctlHelp{"ctlHelp"};
    PannelloAiuto* aiuto() override { return &ctlHelp; }

    void attivata() override;
    /// The lanes that are ticked.
    CorsieDestra corsie() const;
    /// The flows of the right turns that are chosen, from the leg of a row to the leg of a column; empty for none.
    std::vector<std::vector<float>> svolteScelte() const;
    /// The roundabout whose plan stands beside the choice.
    const Rotonda& rotondaMostrata() const { return app().theRotonda(); }
    const ConfrontoCorsie& confronto() const { return confronto_; }
    /// The comparison for a report; nothing where it was not asked for, or no calculation was, or no lane is chosen, or
    /// the calculation fails. Figures that are not those of the project and of the lanes as they stand, and those of a
    /// calculation that failed, are calculated anew.
    std::optional<AnalisiCorsiaDX> perRelazione();

protected:
    bool ammette(const std::string& chiave) override;
    void calcola() override;
    /// With the comparison asked for, the whole report with it, which is calculated first where it is missing or old;
    /// else the window of the reports. Of saturation alone there is no comparison: that is told, and the report has
    /// none.
    void relazione() override;
    /// The lanes named in it are those of the figures. Fault 5 where there are no whole figures.
    std::string testoAnteprima() override;
    std::string nomeAnteprima() const override { return "RisultatiDX.txt"; }
    void anteprimaFallita(const Guasto& guasto) override;
    std::string motivoVecchi() const override;
    std::string motivoFlussi() const override;
    Blocchi figureSuCarta() const override;

private:
    /// Flows of the right turns of these lanes.
    std::vector<std::vector<float>> svolte(const CorsieDestra& quali) const;
    void ordinaControlli();
    void riempi();
    bool nelTempo() const;

    ConfrontoCorsie confronto_;
    CorsieDestra calcolate_{};  ///< lanes of the figures shown
};

}  // namespace kelvo
