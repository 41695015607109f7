#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Applicazione.h"
#include "app/cornice.h"
#include "base/guasto.h"
#include "shell/servizi/Controllo.h"
#include "shell/servizi/CustodeCampi.h"
#include "shell/servizi/controlli.h"

namespace kelvo {

class Disegnatore;
class MenuDati;

/// What not every surrounding of a window has; null for what there is none of.
struct ServiziContorno {
    DialogoFile* dialogo = nullptr;              ///< where tables and charts are saved
    ImpostazioniUtente* impostazioni = nullptr;  ///< what windows remember from run to run
    Disegnatore* disegnatore = nullptr;          ///< makes pictures of charts
    AppuntiImmagini* immagini = nullptr;         ///< takes them
};

/// What a window is handed: the program's state and the main window.
struct Contorno {
    Applicazione& app;
    StatoFinestre& stato;
    Cornice& cornice;
    Navigazione& navigazione;
    ServiziContorno servizi{};
};

/// Base of every window. It owns its controls as members and declares their tab order.
class Finestra : public CustodeCampi {
public:
    /// `nome` is the name of the window's class, `didascalia` what its caption panel reads.
    Finestra(Contorno contorno, std::string nome, std::string didascalia);
    ~Finestra() override;
    Finestra(const Finestra&) = delete;
    Finestra& operator=(const Finestra&) = delete;

    const std::string& nome() const { return nome_; }
    const std::string& didascalia() const { return didascalia_; }

    /// The controls in tab order.
    const std::vector<Controllo*>& ordine() const { return ordine_; }
    /// The caption panel.
    Etichetta pannello;
    /// Stands beside the caption while the window's data are not those of the project; its text says so.
    Etichetta segno{"segnoDati", "Dati non ancora registrati"};
    /// What the window shows, beside its caption: the name of the leg; empty for nothing.
    Etichetta sottotitolo;
    /// The tool bar, if the window has one.
    virtual BarraStrumenti* barra() { return nullptr; }

    /// The window comes up: a data window reads its data.
    virtual void attivata() {}
    /// The window is hidden.
    virtual void nascosta() {}
    /// The window has data that are written to the project when it is left.
    virtual bool haSaveData() const { return false; }
    virtual void SaveData() {}
    /// Page of the help: of the control that has the focus, else of the window. Never empty.
    std::string paginaInUso() const;
    /// The user asks for help: brings up the page in use.
    void chiediAiuto() { contorno_.cornice.aiuto(paginaInUso()); }
    /// The same for a page that a link leads to.
    void chiediAiuto(const std::string& pagina) { contorno_.cornice.aiuto(pagina); }
    /// Runs the checks of all fields, which only look; false if one refused.
    bool convalida();

    /// The control that has the focus; null for none.
    Controllo* fuoco() const { return fuoco_; }
    /// The control that has the focus is another one, or is called back to because it was refused.
    sigc::signal<void()>& fuocoMutato() { return fuocoMutato_; }
    /// Moves the focus: leaves the control that has it first; false if that one refused, or if `controllo` takes none.
    bool fuocoSu(Controllo& controllo);
    /// Runs the checks of leaving of the control that has the focus, as every command does first; false if it refused.
    /// The focus stays where it is.
    bool lasciaFuoco();
    /// No control has the focus any more; nothing is asked.
    void scordaFuoco() { spostaFuoco(nullptr); }
    /// The control after (or before) the one in focus that takes the focus; null if there is none.
    Controllo* successivo(bool avanti) const;

    // CustodeCampi
    void entrato(Controllo& campo) override;
    bool haFuoco(const Controllo& campo) const override { return fuoco_ == &campo; }
    void giudicato(Controllo& campo, const EsitoUscita& esito) override;
    Appunti* appunti() override { return contorno_.app.appunti; }

protected:
    /// Declares the controls, in tab order; called once, by the constructor of the window. Tables, charts and plans get
    /// the entries of their menu that copy and save them.
    void ordina(const std::vector<Controllo*>& controlli);
    Applicazione& app() { return contorno_.app; }
    const Applicazione& app() const { return contorno_.app; }
    Rotonda& rotonda() { return contorno_.app.theRotonda(); }
    StatoFinestre& stato() { return contorno_.stato; }
    Cornice& cornice() { return contorno_.cornice; }
    Navigazione& navigazione() { return contorno_.navigazione; }
    Contorno contorno() { return contorno_; }
    void messaggio(const std::string& testo, const std::string& titolo, Icona icona);
    /// Runs a procedure of the window in its handler: a fault is recorded under `metodo` and shown.
    template <class Procedura>
    void gestisci(const char* metodo, Procedura procedura) {
        try {
            procedura();
        } catch (const Guasto& guasto) {
            app().comune.erroreLog(guasto.codice(), metodo, guasto.descrizione(), true);
        }
    }

private:
    void spostaFuoco(Controllo* controllo);

    Contorno contorno_;
    std::string nome_;
    std::string didascalia_;
    std::vector<Controllo*> ordine_;
    std::vector<std::unique_ptr<MenuDati>> menuDati_;
    Controllo* fuoco_ = nullptr;
    Controllo* rifiutato_ = nullptr;  ///< the first field that the running validation refused
    bool inConvalida_ = false;
    sigc::signal<void()> fuocoMutato_;
};

/// A window that edits the project: fields copied from it and back.
class FinestraDati : public Finestra {
public:
    FinestraDati(Contorno contorno, std::string nome, std::string didascalia);

    /// Copies the project to the fields.
    virtual void ReadData() = 0;
    void attivata() override { ReadData(); }
    bool haSaveData() const override { return true; }
    /// The pane follows everything that has a page.
    void entrato(Controllo& campo) override;
    BarraStrumenti* barra() override { return &ctlToolbar; }

    /// True after ReadData and SaveData, false once a field that was left differs from the project.
    /// The mark beside the caption follows it.
    bool DatiAllineati() const { return datiAllineati_; }

    BarraStrumenti ctlToolbar;
    PannelloAiuto ctlHelp{"ctlHelp"};
    PannelloAiuto* aiuto() override { return &ctlHelp; }

protected:
    void DatiAllineati(bool valore);
    /// The window has an import: its key is open. Called by the constructors of those that have one.
    void conArchivio();
    /// Import into the window.
    virtual void Archivio() {}
    /// The reload of the tool bar.
    virtual void rileggi() { ReadData(); }
    /// The confirmation of the tool bar.
    virtual void aggiornaDati() { SaveData(); }
    /// A tool bar key that the given three do not cover.
    virtual void altroTasto(const std::string& /*chiave*/) {}

private:
    void premuto(const std::string& chiave);
    bool datiAllineati_ = true;
};

}  // namespace kelvo
