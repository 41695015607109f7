#pragma once

#include <filesystem>

#include "results/frmCapacitaCodeRitardiRamo.h"
#include "results/frmRAMO_AGGIUNTIVA.h"
#include "scenaRisultati.h"

namespace kelvo::prove {

/// The per-entry window with figures written by hand, and what it opens.
struct ProveAggiuntiva : ScenaRisultati {
    frmCapacitaCodeRitardiRamo finestra{contorno(), servizi()};
    frmRAMO_AGGIUNTIVA& a = finestra.aggiuntiva;

    ProveAggiuntiva() { r().TipoAnalisi(0); }
    /// Flow 2 to 12, capacity 500.5 to 900, saturation 0.36 to 1.2, queue 0 to 20.5, delay 4 to 60.
    void conFigure(int i) {
        ramo(i).theDatiTraffico().NumSegmentiTempo(4);
        const Iterazione record[] = {{2.0F, 900.0F, 0.36F, 0.0F, 4.0F},
                                     {12.0F, 500.5F, 1.2F, 20.5F, 60.0F},
                                     {8.0F, 700.0F, 0.7F, 3.0F, 20.0F},
                                     {6.0F, 800.0F, 0.6F, 2.0F, 12.0F}};
        for (std::int16_t k = 1; k <= 4; ++k) {
            ramo(i).theDatiTraffico().SetIterazione(k, record[k - 1]);
        }
        apri(finestra, "keyCodeRitardi_Out" + std::to_string(i));
        finestra.ctlToolbar.premi("keyCalcola");
    }
    /// Another project, of three legs and saturation alone, with its figures and the window over it.
    void altroProgetto(const std::string& nome) {
        progetto(3);
        r().NomeFile(nome);
        r().TipoAnalisi(0);
        conFigure(1);
        apriAggiuntiva(true);
    }
    void apriAggiuntiva(bool marker = true) {
        if (finestra.cmdMARKER.spuntata() != marker) {
            finestra.cmdMARKER.clicca();
        }
        finestra.ctlToolbar2.premi("Aggiuntivi");
        ASSERT_EQ(gestione.corrente(), &a);
    }
    frmRAMO_AGGIUNTIVA::Soglia& s(int q) { return a.soglie[static_cast<std::size_t>(q) - 1]; }
    /// Ticks a threshold and puts its values there, without leaving the fields.
    void soglia(int q, const std::string& minimo, const std::string& massimo) {
        if (!s(q).spunta.spuntata()) {
            s(q).spunta.clicca();
        }
        s(q).minimo.scrivi(minimo);
        s(q).massimo.scrivi(massimo);
    }
    bool scrivi(tBox& campo, const std::string& testo) {
        a.fuocoSu(campo);
        campo.scrivi(testo);
        const bool lasciato = a.lasciaFuoco();
        a.scordaFuoco();
        return lasciato;
    }
    void ritorno() { a.ctlToolbar.premi("Ritorno"); }
    bool tornata() { return gestione.corrente() == &finestra; }
    bool visualizza() { return finestra.ctlToolbar2.abilitato("Visualizza"); }
    Marker& marker() { return app.risultati.marker; }
};

}  // namespace kelvo::prove
