#include "results/frmDX.h"
#include "results/frmRisultatiAnalisiMarginale.h"
#include "schermate/Giro.h"

namespace kelvo::schermate {

bool Giro::ipotesi(Finestra& finestra, const std::string& nome) {
    if (auto* corsie = dynamic_cast<frmDX*>(&finestra)) {
        confrontoCorsie(*corsie, nome);
        return true;
    }
    if (auto* sensibilita = dynamic_cast<frmRisultatiAnalisiMarginale*>(&finestra)) {
        tutteLeSchede(*sensibilita, nome);
        return true;
    }
    return false;
}

void Giro::confrontoCorsie(frmDX& finestra, const std::string& nome) {
    if (finestra.frameAVVISO.visibile()) {
        return;  // other than four legs: the notice is all there is
    }
    finestra.listDX.clicca(0);
    finestra.listDX.clicca(2);
    finestra.ctlToolbar.premi("keyCalcola");
    fotografo_.scatta(vista_, "calcolata-" + nome);
    finestra.listDX.clicca(1);
    fotografo_.scatta(vista_, "vecchia-" + nome);
}

void Giro::tutteLeSchede(frmRisultatiAnalisiMarginale& finestra, const std::string& nome) {
    finestra.opzVARIABILE.clicca(0);
    finestra.ctlToolbar.premi("keyCalcola");
    for (int scheda = 0; scheda <= frmRisultatiAnalisiMarginale::schedaRiepilogo; ++scheda) {
        finestra.ctlTab.scegli(scheda);
        if (finestra.ctlTab.corrente() == scheda) {
            fotografo_.scatta(vista_, "scheda" + std::to_string(scheda + 1) + "-" + nome);
        }
    }
    finestra.cmdQuantoServe.premi();
    finestra.opzVARIABILE.clicca(2);
    fotografo_.scatta(vista_, "quanto-serve-" + nome);
}

}  // namespace kelvo::schermate
