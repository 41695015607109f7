#pragma once

#include <functional>

#include "checkup/report.h"
#include "shell/servizi/Finestra.h"

namespace kelvo {

/// Modal window with one finding in large print.
class frmCheckUpMessaggio final : public Finestra {
public:
    /// `riscontro`: what it shows; its key's first letter tells the heading.
    frmCheckUpMessaggio(const Contorno& contorno, const Riscontro& riscontro);

    Etichetta lblGruppo;                                     ///< heading of the level
    Immagine ctlLivello;                                     ///< "Green", "Yellow" or "Red"
    Etichetta lblMessaggio;                                  ///< the whole text
    Bottone cmdVaiAlCampo{"cmdVaiAlCampo", "Vai al campo"};  ///< closed where the finding leads nowhere
    Bottone ImageCHIUDI{"ImageCHIUDI", "Chiudi"};            ///< the picture that closes the window

    /// Caption of the window's frame.
    const std::string& titolo() const { return didascalia(); }
    /// The user wants to go where the finding leads.
    bool vaiAlCampo() const { return vaiAlCampo_; }
    /// Whoever shows the window closes it here.
    std::function<void()> allaChiusura;

private:
    void chiudi();

    bool vaiAlCampo_ = false;
};

}  // namespace kelvo
