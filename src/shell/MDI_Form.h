#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Applicazione.h"
#include "app/automazione.h"
#include "app/cornice.h"
#include "app/salvataggio.h"
#include "app/serviziSistema.h"
#include "cad/modKelvoCAD.h"
#include "shell/FabbricaFinestre.h"
#include "shell/ProgettiRecenti.h"
#include "shell/Recupero.h"
#include "shell/frmTreeView.h"
#include "shell/servizi/MenuChiavi.h"
#include "shell/servizi/controlli.h"
#include "shell/servizi/modGestioneFinestre.h"
#include "shell/superficie.h"

namespace kelvo {

/// The main window: menu, tool bar, tree, work area and status bar; life of the project.
class MDI_Form final : public Cornice, public Salvataggio {
public:
    /// What the main window is handed from outside.
    struct Servizi {
        Superficie& superficie;
        DialogoFile& dialogo;
        ApriDocumenti& documenti;
        ImpostazioniUtente& impostazioni;
        Cronometro& cronometro;
        std::string cartellaRecupero;          ///< folder of the recovery copies, the user's own
        Disegnatore* disegnatore = nullptr;    ///< makes pictures of charts; null for none
        AppuntiImmagini* immagini = nullptr;   ///< takes them; null for none
        RegistroMacchina* registro = nullptr;  ///< null for none
        AutomazioneCAD* cad = nullptr;         ///< null for none
    };
    MDI_Form(Applicazione& app, StatoFinestre& stato, const Servizi& servizi);

    MenuChiavi ctlMenu{"ctlMenu"};
    BarraStrumenti ctlToolbar;
    BarraStato ctlStatusBar{"ctlStatusBar"};
    Etichetta didascalia{"MDI_Form"};  ///< the caption as it is shown, with the mark of unsaved changes
    Colore BackColor;

    FabbricaFinestre finestre;
    /// Runs when the main window unloads.
    std::function<void()> alloScarico;

private:
    /// The work area; a recovery copy is written whenever a window is left.
    class Area final : public AreaLavoro {
    public:
        explicit Area(MDI_Form& cornice) : cornice_(cornice) {}
        Rettangolo albero() const override;
        double larghezzaInterna() const override;
        void mostra(Finestra& finestra) override;
        void colloca(Finestra& finestra, const Rettangolo& posto) override;
        void nascondi(Finestra& finestra) override;
        void vestiBarra(Finestra& finestra) override;
        void ridimensiona(Finestra& finestra) override;

    private:
        MDI_Form& cornice_;
    };

    Applicazione& app_;
    StatoFinestre& stato_;
    Servizi servizi_;
    Area area_;

public:
    frmTreeView albero;
    modGestioneFinestre gestione;
    ProgettiRecenti recenti;
    Recupero recupero;

    /// First build: colours, texts, the minimal menu.
    void Load();
    /// The frame came to the front.
    void inPrimoPiano();
    Superficie& superficie() { return servizi_.superficie; }
    Contorno contorno() {
        return {app_,
                stato_,
                *this,
                albero,
                {&servizi_.dialogo, &servizi_.impostazioni, servizi_.disegnatore, servizi_.immagini}};
    }

    // Menu and tool bar.
    void Handle_Menu();
    void Handle_Menu_normale();
    void Handle_Menu_OPZ_raggruppa_tree();
    /// A menu entry was chosen.
    void Menu_Click(const std::string& chiave);
    /// A button of the tool bar was pressed.
    void Toolbar_Click(const std::string& chiave);
    /// All shortcuts that there are, each once, in English names ("Ctrl+Enter").
    static std::vector<std::string> scorciatoie();
    /// Runs the menu entry of a shortcut ("Ctrl+Shift+S"), or the button of the window at hand that has it ("F5"), or
    /// goes between tree and window; false if it belongs to none or that is disabled.
    bool scorciatoia(std::string_view tasti);
    /// Stores the project's state and sets the flags that follow it.
    void gestioneToolbar(StatoProgetto stato);
    /// Applies all flags again: the project's state, grey nodes.
    void riapplica();
    /// The enabling rule of each leg while the geometric optimisation is on.
    void abilitaOttimizzazione();

    // Options.
    void SetUpOpzioni() override;
    std::int16_t TipoAnalisi() const { return tipoAnalisi_; }
    std::int16_t TipoFlusso() const { return tipoFlusso_; }
    /// Name of the traffic window chosen; empty for none.
    std::string_view finestraTraffico() const { return finestraTraffico_; }
    std::string_view finestraComposizione() const { return finestraComposizione_; }

    // Life of the project.
    void InitGraphics();
    void NewRotonda();
    void OpenRotonda();
    void LoadRotonda(const std::string& percorso);
    void SaveRotonda(bool& esito) override;
    void CloseRotonda();
    std::string NomeFileProposto() const;
    /// A file was dropped on the window; true if it was opened.
    bool rilasciato(const std::string& percorso);
    /// Offers the recovery copy, if one stands there; true if it was opened.
    bool offriRecupero();
    /// Writes a recovery copy if there are unsaved changes.
    void copiaDiRecupero();
    bool modificato() const;
    /// Shows or takes away the mark of unsaved changes.
    void aggiornaSegno();

    // The link to the CAD program.
    /// Saves the project and hands it to the companion; `esito` is false where it was not started.
    void LinkKELVOCAD(bool& esito) { kelvoCAD_.LinkKELVOCAD(esito); }
    void ControllaDATIexportKCAD(bool& esito) { kelvoCAD_.ControllaDATIexportKCAD(esito); }

    // Exit.
    /// Exit step of menu and tool bar.
    void esci();
    /// The system box of the frame was pressed.
    void chiudiCornice();
    /// Asks; false stops the unload.
    bool QueryUnload();
    void Unload();
    bool scaricata() const { return scaricata_; }

    // Windows.
    /// Leaves the field in focus; false if it refused.
    bool lasciaCampo();
    /// Shows the window of a name; an empty name does nothing and answers true. Fault 9 for a name that is not
    /// registered.
    bool mostraFinestra(std::string_view nome);
    /// Checks a window and writes its data to the project; false if a check refused.
    bool scriviFinestra(Finestra& finestra);

    // Cornice
    std::string titolo() const override { return titolo_; }
    void titolo(const std::string& testo) override;
    void testoNodi(const std::string& chiaveRamo, const std::string& testo) override;
    void LoadTreeView() override { albero.LoadTreeView(); }
    void mostraMenu(bool visibili) override;
    void avviso(const std::string& testo) override { ctlStatusBar.avviso(testo); }
    void aiuto(const std::string& pagina) override;

private:
    struct Comando;
    static const std::vector<Comando>& comandi();
    bool scorciatoiaFinestra(std::string_view tasti);
    /// Tells in the status bar the keys that are of use with this window at hand; null for none.
    void aggiornaSuggerimenti(Finestra* finestra);
    void costruisciMenu(bool perTipo);
    void aggiungiVociProprie();
    void aggiornaRecenti();
    void applicaMenuMostrati();
    void applicaStato();
    void applicaAlbero();
    void apriDocumento(std::string_view daProgramma);
    void mostraSopra(const char* finestra);
    void registraSopra();
    void aiutoSulCampo();
    void aggiungiVociAiuto();
    void apriRecente(const std::string& chiave);

    std::string titoloProgetto() const;
    void fissaProgetto(bool salvato);
    void distruggiFinestre();
    bool carica(const std::string& percorso);
    void progettoCaricato(const std::string& percorso);
    void salvaFiglia();
    std::optional<std::string> chiediPercorso();
    void scriviNomeFile(const std::string& nome);
    void chiudiProgetto();
    bool chiediSalvataggio(const char* domanda, bool& rifiutato);
    void mostra(const std::string& testo);

    modKelvoCAD kelvoCAD_;
    std::string titolo_;
    std::optional<std::uint64_t> revisioneSalvata_;
    std::int16_t tipoAnalisi_ = 0;
    std::int16_t tipoFlusso_ = 0;
    std::string_view finestraTraffico_;
    std::string_view finestraComposizione_ = "frmComposizioneTraffico";
    bool menuMostrati_ = true;
    bool scaricata_ = false;
};

}  // namespace kelvo
