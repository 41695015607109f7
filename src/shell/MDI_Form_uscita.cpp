#include "app/titoli.h"
#include "shell/MDI_Form.h"
#include "shell/gestore.h"
#include "shell/menuPrincipale.h"

namespace kelvo {

void MDI_Form::esci() {
    gestisci(app_, "MDI_Form:esci()", [&] {
        bool rifiutato = false;
        const bool aperto = stato_.statoProgetto != StatoProgetto::NessunProgetto &&
                            stato_.statoProgetto != StatoProgetto::ProgettoSalvato;
        if (aperto && !chiediSalvataggio("Vuoi salvare la rotonda prima di uscire dal programma?", rifiutato)) {
            return;
        }
        if (QueryUnload()) {
            Unload();
            if (rifiutato) {
                recupero.elimina();
            }
        }
    });
}

void MDI_Form::chiudiCornice() {
    gestisci(app_, "MDI_Form:chiudiCornice()", [&] {
        if (lasciaCampo() && QueryUnload()) {
            Unload();
        }
    });
}

bool MDI_Form::QueryUnload() {
    return app_.messaggi.mostra("Uscire dall'applicazione?", titoli::attenzione, Icona::domanda, Pulsanti::okAnnulla) ==
           Risposta::ok;
}

void MDI_Form::Unload() {
    gestisci(app_, "MDI_Form:Unload()", [&] {
        servizi_.cronometro.ferma();
        copiaDiRecupero();
        distruggiFinestre();
        albero.Unload();
        app_.theRamoCorrente = nullptr;
        app_.theRotonda().Clear();
        for (const std::string_view menu : menuCostruzione) {
            ctlMenu.svuota(menu);
        }
    });
    if (alloScarico) {
        gestisci(app_, "MDI_Form:Unload()", alloScarico);
    }
    scaricata_ = true;
    superficie().termina();
}

}  // namespace kelvo
