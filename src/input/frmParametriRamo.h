#pragma once

#include <array>
#include <optional>

#include "app/serviziSistema.h"
#include "calc/Geometria.h"
#include "input/misureIngresso.h"
#include "pianta/Pianta.h"
#include "shell/servizi/ControlloPianta.h"
#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/FinestraRamo.h"
#include "shell/servizi/cartaDati.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Geometry of one entry: its name, its six measures and its crossing, with what the capacity relation makes of them.
class frmParametriRamo final : public FinestraRamo, public CartaDati {
public:
    /// What the window asks of the system.
    struct Servizi {
        ApriDocumenti& documenti;
        DialogoAnteprima& dialogo;
        StampaPagine* stampa = nullptr;  ///< null for none
    };
    frmParametriRamo(const Contorno& contorno, const Servizi& servizi);

    Riquadro frParametri;
    Riquadro frFlussi;
    Riquadro frCapacita;
    Riquadro frDescrizione;        ///< help of the measure in use
    Etichetta lblDescrizioneRamo;  ///< "Ingresso A:"
    tBox txtDescrizioneRamo{"txtDescrizioneRamo", tBox::textbox};
    tBox txtLarghezzaIngresso;
    tBox txtSemiLarghezza;
    tBox txtLungSvasatura;
    tBox txtAngoloConflitto;
    tBox txtRaggioCurvatura;
    tBox txtDiametroInscritto;
    Casella chkAttraversamentoPedonale;
    Bottone cmdDM;
    ControlloPianta ctlPianta;  ///< the entry as it is shown, with the measure in use
    Immagine ctlPicture;        ///< picture of the measure in use

    std::array<Etichetta, 6> lblMisure;  ///< names of the measures
    /// Below each measure: a word where it lies outside the recommended range.
    std::array<Etichetta, 6> lblNote;
    /// What the capacity relation makes of the measures shown: name and figure of each.
    struct Valore {
        std::string_view nome;
        Etichetta etichetta;
    };
    /// By threes: k, tD, S; x2, intercept, slope; capacities.
    std::array<Valore, 9> valori;
    Etichetta lblUnita;  ///< unit of the flows among them

    /// Reads the leg that the window is bound to.
    void ReadData() override;
    /// Writes name, measures and crossing where they were changed, and gives the nodes of the leg its name.
    void SaveData() override;

    /// The fields of the six measures, in their order.
    std::array<tBox*, 6> campi();
    std::array<const tBox*, 6> campi() const;
    /// The measures that are shown: what was typed where it can be read, else what the project holds.
    Geometria geometriaMostrata() const;
    /// The roundabout with this leg as it is shown.
    pianta::DatiPianta piantaMostrata() const;
    /// The measure whose field has the focus, or had it before the plan.
    std::optional<pianta::Misura> misuraInUso() const;
    /// The measures shown, or the one in use, are others.
    sigc::signal<void()>& geometriaMutata() { return geometriaMutata_; }

protected:
    void legata() override;
    void Archivio() override;
    void altroTasto(const std::string& chiave) override;
    /// The plan, the measures and what the capacity relation makes of them.
    Blocchi blocchiSuCarta() const override;

private:
    DocumentoPagine::Pianta soggettoPianta() const;
    EsitoUscita controllaCoppia(const tBox& campo) const;
    bool valido(std::size_t misura) const;
    float valoreMostrato(std::size_t misura) const;
    void dopoUscita(std::size_t misura);
    void confronta();
    void aggiorna();
    void mostraValori(const Geometria& g);
    void fuocoSpostato();
    void apriDecreto();

    Servizi servizi_;
    std::optional<pianta::Misura> ultimaMisura_;  ///< field in focus, as long as the plan alone is entered behind it
    std::array<float, 2> coppia_{};               ///< e and v that were shown last and fit each other
    sigc::signal<void()> geometriaMutata_;
};

}  // namespace kelvo
