#pragma once

#include "shell/servizi/Finestra.h"

namespace kelvo {

/// Modal window that asks for the number of legs and makes the project.
class frmInputNumeroRami final : public Finestra {
public:
    explicit frmInputNumeroRami(const Contorno& contorno);

    Etichetta lblNumeroRami;
    Spin txtNumeroRami;
    Immagine ctlPicture{"ctlPicture"};  ///< "3RAMI" to "7RAMI"
    Etichetta lblAttenzione;
    Etichetta lblAvvertenza;
    Bottone cmdOk;
    Bottone cmdCancel;

    /// The window was closed, by either button.
    bool chiusa() const { return chiusa_; }
    sigc::signal<void()>& chiusura() { return chiusura_; }

private:
    void mostraRami();
    void crea();
    void annulla();
    void chiudi();

    bool chiusa_ = false;
    sigc::signal<void()> chiusura_;
};

}  // namespace kelvo
