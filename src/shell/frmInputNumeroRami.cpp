#include "shell/frmInputNumeroRami.h"

#include "app/nuovoProgetto.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Nuova rotonda";
constexpr const char* numeroRami = "Numero rami";
constexpr const char* attenzione = "ATTENZIONE!";
constexpr const char* avvertenza = "Questo parametro non potrà più essere modificato all'interno del progetto";
constexpr const char* ok = "OK";
constexpr const char* annulla = "Annulla";
}  // namespace testi

constexpr int ramiProposti = 4;

}  // namespace

frmInputNumeroRami::frmInputNumeroRami(const Contorno& contorno)
    : Finestra(contorno, "frmInputNumeroRami", testi::didascalia),
      lblNumeroRami("lblNumeroRami", testi::numeroRami),
      txtNumeroRami("txtNumeroRami", minimoRami, massimoRami, ramiProposti),
      lblAttenzione("lblAttenzione", testi::attenzione, "ROSSO"),
      lblAvvertenza("lblAvvertenza", testi::avvertenza),
      cmdOk("cmdOk", testi::ok),
      cmdCancel("cmdCancel", testi::annulla) {
    ordina({&lblNumeroRami, &txtNumeroRami, &ctlPicture, &lblAttenzione, &lblAvvertenza, &cmdOk, &cmdCancel});
    txtNumeroRami.alCambio = [this] { mostraRami(); };
    cmdOk.allaPressione = [this] { crea(); };
    cmdCancel.allaPressione = [this] { annulla(); };
    mostraRami();
}

void frmInputNumeroRami::mostraRami() {
    ctlPicture.risorsa(std::to_string(txtNumeroRami.valore()) + "RAMI");
}

void frmInputNumeroRami::crea() {
    gestisci("frmInputNumeroRami:cmdOk", [this] {
        app().comune.traceLog("Entro in cmdOk_Click");
        creaProgetto(app(), static_cast<std::int16_t>(txtNumeroRami.valore()));
        stato().ProgettoAperto = true;
        cornice().LoadTreeView();
        chiudi();
        app().comune.traceLog("Esco da cmdOk_Click");
    });
}

void frmInputNumeroRami::annulla() {
    stato().ProgettoAperto = false;
    chiudi();
}

void frmInputNumeroRami::chiudi() {
    chiusa_ = true;
    chiusura_.emit();
}

}  // namespace kelvo
