#pragma once

#include <memory>

#include "shell/servizi/DialogoAnteprima.h"

namespace kelvo {

/// Beside the dialogue that chooses another project file: what that project is. Whoever derives shows a part of it to
/// be taken over.
class AnteprimaProgetto : public FinestraAnteprima {
public:
    Riquadro frDatiProgetto;
    Etichetta lblNumeroRami;
    Etichetta lblNomeProgetto;
    Etichetta lblTitolo;
    Etichetta lblNote;
    Etichetta txtNumeroRami{"txtNumeroRami"};
    Etichetta txtNomeProgetto{"txtNomeProgetto"};
    Etichetta txtTitolo{"txtTitolo"};
    Etichetta txtNote{"txtNote"};
    Etichetta lblAvviso{"lblAvviso"};  ///< why nothing is shown

    /// What the dialogue is asked for; it starts from a folder.
    static RichiestaFile richiesta(const std::string& cartella);

    /// Loads a file whose name ends in KLV, in either case, into a project of its own and shows it; any other file
    /// empties the view.
    void selezionato(const std::string& percorso) override;

protected:
    /// `scegli`: what the user is to do as long as no project is shown.
    AnteprimaProgetto(const Contorno& contorno, std::string nome, std::string didascalia, std::string scegli);

    /// The project that is shown; null for none.
    const Rotonda* altra() const { return altra_.get(); }
    /// The same after a file name was confirmed, which may have been typed and never selected.
    const Rotonda* altra(const std::string& percorso);
    /// Shows the project's own part.
    virtual void mostra(const Rotonda& altra) = 0;
    /// Empties the project's own part.
    virtual void svuota() = 0;
    /// The controls that tell of the project, in tab order.
    std::vector<Controllo*> datiProgetto();
    /// Empties the view and tells why.
    void vuota(const std::string& motivo);
    /// What the user is to do as long as no project is shown.
    const std::string& invito() const { return invito_; }

private:
    std::unique_ptr<Rotonda> altra_;
    std::string percorso_;
    std::string invito_;
};

}  // namespace kelvo
