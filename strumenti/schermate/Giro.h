#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "app/Applicazione.h"
#include "schermate/Fotografo.h"
#include "schermate/Installazione.h"
#include "schermate/Richiesta.h"
#include "schermate/cadMostrato.h"
#include "schermate/serviziMuti.h"
#include "shell/MDI_Form.h"
#include "ui/StampaQt.h"
#include "ui/results/FinestreCollegateQt.h"
#include "ui/serviziQt.h"
#include "ui/shell/VistaMDI_Form.h"

namespace kelvo {
class FinestraRisultati;
class frmCapacitaCodeRitardi;
class frmCapacitaCodeRitardiRamo;
class frmDX;
class frmRisultatiAnalisiMarginale;
}  // namespace kelvo

namespace kelvo::schermate {

/// The round through the program: every window, dialogue and message, each in a picture of its own.
class Giro {
public:
    Giro(const Richiesta& richiesta, const Installazione& installazione, SistemaFile& file);

    /// Takes all pictures; answers what went wrong, empty for nothing.
    std::string percorri();
    int scritte() const { return fotografo_.scritte(); }

private:
    void senzaProgetto();
    void dialoghi();
    /// The link to the CAD program on a machine without one.
    void senzaCAD(const std::function<void(Finestra&, const std::string&)>& ritratto);
    void messaggi();
    std::string progetto(const std::string& percorso, bool primo);
    void finestre(const std::string& progetto);
    /// A result window with its figures, after its first picture.
    void calcolata(Finestra& finestra, const std::string& nome);
    void ingressiCalcolati(frmCapacitaCodeRitardi& finestra, const std::string& nome);
    /// The check-up: a list of one level, a message, the check list in part and wholly answered.
    void controllata(Finestra& finestra, const std::string& nome);
    void ingressoCalcolato(frmCapacitaCodeRitardiRamo& finestra, const std::string& nome);
    void anteprimaTesto(FinestraRisultati& finestra, const std::string& nome);
    /// A what-if window with its figures, after its first picture; false for any other window.
    bool ipotesi(Finestra& finestra, const std::string& nome);
    void confrontoCorsie(frmDX& finestra, const std::string& nome);
    void tutteLeSchede(frmRisultatiAnalisiMarginale& finestra, const std::string& nome);
    /// The window of the reports, and the progress of one.
    void relazioni(const std::string& progetto);
    void disposizioniAlbero();
    void menu();
    void campoRifiutato();
    void misuraInUso();
    void anteprima(const std::string& percorso);
    /// Takes the picture of a file dialogue with its window, after a file was selected and `prepara` ran.
    void ritrai(FinestraAnteprima& finestra, const RichiestaFile& richiesta, const std::string& percorso,
                const std::function<void()>& prepara);
    /// Messages that came up without being asked for.
    std::string nonAttesi();

    Richiesta richiesta_;
    std::vector<std::string> progetti_;
    MessaggiMuti detti_;
    OrologioMuto orologio_;
    DialogoMuto dialogo_;
    DocumentiMuti documenti_;
    ui::DialogoAnteprimaQt anteprima_;
    ImpostazioniMute impostazioni_;
    CronometroMuto cronometro_;
    AppuntiMuti appunti_;
    std::string cartellaLavoro_;
    Applicazione app_;
    StatoFinestre stato_;
    ui::VistaMDI_Form vista_;
    ui::FinestreCollegateQt collegate_{vista_};
    ui::StampaQt stampa_;
    ui::AttesaQt attesa_;
    RegistroMostrato registro_;
    AutomazioneMostrata cad_;
    MDI_Form cornice_;
    Fotografo fotografo_;
    std::set<std::string> mostrate_;  ///< names of the windows that were seen in the work area
};

}  // namespace kelvo::schermate
