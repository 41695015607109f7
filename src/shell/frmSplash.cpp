#include "shell/frmSplash.h"

namespace kelvo {

frmSplash::frmSplash(const Contorno& contorno) : Finestra(contorno, "frmSplash", "KELVO 2014") {
    ordina({&lblTesto, &ctlProgresso});
}

void frmSplash::esegui(Attesa& attesa) {
    for (int passo = ctlProgresso.minimo() + 1; passo <= ctlProgresso.massimo(); ++passo) {
        ctlProgresso.valore(passo);
        if (attesa.pausa(pausaPasso)) {
            return;
        }
    }
}

}  // namespace kelvo
