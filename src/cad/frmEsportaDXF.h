#pragma once

#include <array>
#include <vector>

#include "cad/campiIpotesi.h"
#include "pianta/Pianta.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/campiNumerici.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// "Esporta DXF": the assumptions of the plan, what goes into the drawing, and its file. What is typed here lives as
/// long as the window and is no part of the project.
class frmEsportaDXF final : public Finestra {
public:
    explicit frmEsportaDXF(const Contorno& contorno);

    static constexpr std::size_t direzioniMassime = 7;

    Riquadro frDirezioni;
    std::array<Etichetta, direzioniMassime> lblDirezioni;  ///< letter and name of each leg
    std::array<tBox, direzioniMassime> txtDirezioni;       ///< degrees; the first one is always 0
    Etichetta lblDifetto;                                  ///< why the bearings cannot be drawn; else hidden
    std::array<Etichetta, dxf::campiIpotesi.size()> lblIpotesi;
    std::array<tBox, dxf::campiIpotesi.size()> txtIpotesi;  ///< in the order of `campiIpotesi`
    Riquadro frContenuto;
    std::array<Casella, dxf::vociGruppo.size()> chkGruppi;  ///< in the order of `vociGruppo`
    Riquadro frAnteprima;
    Bottone cmdPredefiniti;  ///< puts all back to what the program assumes
    Bottone cmdEsporta;
    Bottone cmdAnnulla;

    PannelloAiuto ctlHelp{"ctlHelp"};
    PannelloAiuto* aiuto() override { return &ctlHelp; }

    /// Takes names and number of legs from the project; what was typed stays while the project has as many legs.
    void attivata() override;

    /// The assumptions that are shown: what was typed where its field takes it, else what the program assumes. The
    /// bearings are those typed where they can be drawn, else none: legs at equal angles.
    pianta::Ipotesi ipotesiMostrate() const;
    pianta::DatiPianta piantaMostrata() const;
    dxf::Scelte scelteMostrate() const;
    /// What is to be seen of the plan has changed.
    sigc::signal<void()>& piantaMutata() { return piantaMutata_; }
    /// The window is to be closed.
    sigc::signal<void()>& chiusura() { return chiusura_; }

    /// The range that the field of a bearing takes.
    static const CampoNumerico& campoDirezione();
    /// The range of the field of an assumption.
    static CampoNumerico campoNumerico(const dxf::CampoIpotesi& campo);

private:
    void prepara();
    void leggi();
    void predefiniti();
    void mutata();
    void esporta();
    void scrivi(const std::string& percorso);
    std::vector<double> direzioniMostrate() const;
    std::string difetto() const;

    std::size_t rami_ = 0;
    sigc::signal<void()> piantaMutata_;
    sigc::signal<void()> chiusura_;
};

}  // namespace kelvo
