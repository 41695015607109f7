#pragma once

#include <gtest/gtest.h>

#include <QtWidgets/QTreeWidget>
#include <map>
#include <string>

#include "comune/cronometro.h"
#include "comune/fintiShell.h"
#include "comune/processiFinti.h"
#include "comune/stampaFinta.h"
#include "disegno/DisegnatoreQt.h"
#include "shell/CampiFinestre.h"
#include "shell/registroFinestre.h"
#include "ui/gesti.h"
#include "ui/results/FinestreCollegateQt.h"
#include "ui/serviziQt.h"
#include "ui/shell/VistaMDI_Form.h"

namespace kelvo::prove {

/// The program with its real windows in a folder of its own; message boxes, file dialogues, clock and settings are
/// played.
class Banco {
public:
    /// `disposizione`: tree and menu by leg (0) or by type (1).
    explicit Banco(int disposizione = 0, SistemaFile& file = sistemaFileStandard());
    ~Banco();
    Banco(const Banco&) = delete;
    Banco& operator=(const Banco&) = delete;

    /// Shows the main window, without a project.
    void mostra();
    /// Makes a project of so many legs with the keyboard, as a person does.
    void nuovo(int rami);
    /// Opens a project through the menu's way.
    void apri(const std::string& percorso);
    /// Saves under that path with the shortcut; true if a file stands there.
    bool salva(const std::string& percorso);
    /// Closes the project with the shortcut and answers No to the question.
    void chiudi();

    QTreeWidget& albero();
    /// Clicks on a node and waits until its window has come, if `arriva`.
    void vai(const std::string& chiave);
    /// Name of the window at hand; empty for none.
    std::string nomeCorrente();
    /// A widget of the window at hand; the test fails if there is none.
    template <class W = QWidget>
    W& oggetto(const char* nome) {
        auto* trovato = vista.vistaCorrente() == nullptr
                            ? nullptr
                            : vista.vistaCorrente()->findChild<W*>(QString::fromLatin1(nome));
        if (trovato == nullptr) {
            throw std::runtime_error(std::string{"no widget "} + nome);
        }
        return *trovato;
    }
    /// Puts the keyboard on a widget of the window at hand, as a click does.
    QWidget& entra(const char* nome);
    /// Text of the question or message that was shown last; empty for none.
    std::string ultimo() const { return messaggi.mostrati.empty() ? std::string{} : messaggi.mostrati.back().testo; }

    CartellaTemporanea cartella;
    shell::MessaggiInFila messaggi;
    OrologioFinto orologio;
    shell::DialogoFinto dialogo;
    shell::DocumentiFinti documenti;
    ui::DialogoAnteprimaQt anteprima;
    shell::ImpostazioniFinte impostazioni;
    shell::CronometroFinto cronometro;
    CronometroATempo simulazione;
    disegno::DisegnatoreQt disegnatore;
    RegistroFinto registro;
    AutomazioneFinta cad;
    Applicazione app;
    StatoFinestre stato;
    ui::VistaMDI_Form vista;
    ui::FinestreCollegateQt collegate{vista};
    MDI_Form cornice;
    CampiFinestre campi{cornice.finestre, cornice.gestione};
    StampaFinta stampa;
    ui::AttesaQt attesa;
    ConvertitoreFinto pdf;
};

/// Every property of a project with its value as text: "Ramo 3/DatiTraffico/Tempo1" and the like.
std::map<std::string, std::string> istantanea(const Rotonda& rotonda);

}  // namespace kelvo::prove
