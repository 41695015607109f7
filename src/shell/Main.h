#pragma once

#include <string>

#include "app/Applicazione.h"
#include "app/cornice.h"
#include "app/serviziSistema.h"
#include "shell/MDI_Form.h"

namespace kelvo {

/// The start of the program, and what is put back at its end.
class modMain {
public:
    struct Servizi {
        LocaleUtente& locale;
        IstanzaUnica& istanza;
        ApriDocumenti& documenti;
        Attesa& attesa;
    };
    modMain(Applicazione& app, StatoFinestre& stato, MDI_Form& cornice, const Servizi& servizi)
        : app_(app), stato_(stato), cornice_(cornice), servizi_(servizi) {}

    /// Entry of the program; false ends it at once.
    bool Main(const std::string& rigaComando);
    /// Configuration, log and state before any window; false ends the program.
    bool InitEnvironment();
    /// Puts the user's separators back, if the start changed them.
    void RipristinaLocale();

    const ImpostazioniInternazionali& impostazioniInternazionali() const { return impostazioni_; }
    bool RipristinaImpostazioni() const { return ripristina_; }

private:
    bool adeguaLocale();
    bool leggiConfigurazione();
    void cancellaLog();
    void mostraSplash();
    void avviaFilmato();
    void apriProgetto(const std::string& rigaComando);

    Applicazione& app_;
    StatoFinestre& stato_;
    MDI_Form& cornice_;
    Servizi servizi_;
    ImpostazioniInternazionali impostazioni_;
    bool ripristina_ = false;
};

}  // namespace kelvo
