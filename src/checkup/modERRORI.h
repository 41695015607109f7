#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "app/Applicazione.h"
#include "app/campiMostrati.h"
#include "app/cornice.h"
#include "checkup/regole.h"
#include "checkup/report.h"

namespace kelvo {

/// Inspects the input of the project against the fixed rules. It changes nothing and stops no calculation; it keeps
/// nothing between runs but the findings of the last one.
class modERRORI {
public:
    /// What the check looks at beside the project; null where there is none.
    struct Fonti {
        const Cornice* cornice = nullptr;      ///< for the caption of the main window
        const CampiMostrati* campi = nullptr;  ///< for what open windows show
    };
    explicit modERRORI(Applicazione& app) : app_(app) {}
    modERRORI(Applicazione& app, const Fonti& fonti) : app_(app), fonti_(fonti) {}

    /// All findings, in the order in which they were made.
    AlberoRiscontri ctlTreeAnalizzatore;
    /// The same by level: information, verification, error. The keys are letter and running number.
    std::array<AlberoRiscontri, livelli.size()> perLivello;

    /// Drops the findings of the last run.
    void svuota();
    /// Runs all rules, in their fixed order. A procedure that a fault ended is recorded, and the next one runs.
    void AnalisiProgetto();
    /// Copies the findings to the lists of their levels, by the first letter of their keys.
    void DistribuisciMessaggi();
    /// Adds a finding below the root of the report, "ROOT", whose text is refreshed first. There is no other parent:
    /// any other name is recorded as fault 9.
    void AGG_errore(std::string_view padre, const std::string& testo, Livello livello, const Meta& meta = {});

    // The procedures of the rules.
    void INPUT_AnagraficaIntersezione();
    void INPUT_AnagraficaProgettista();
    void INPUT_TempoModellazione();
    void INPUT_Toponomastica();
    void INPUT_Geometria();
    void INPUT_Dati_Traffico();
    void INPUT_Dati_TrafficoST();
    /// By vehicles, or by per cent where the project's matrix is.
    void INPUT_Dati_MatriceOD();
    void INPUT_Dati_ComposizioneTraffico();
    void INPUT_Dati_ComposizioneTrafficoST();

private:
    /// Where the findings of a window lead.
    struct Finestra {
        std::string_view nome;
        std::string_view chiave;
    };
    enum class Scelta { tutte, prima };

    template <class Procedura>
    void gestisci(const char* metodo, Procedura procedura);
    const Rotonda& rotonda() const { return app_.theRotonda(); }
    /// Caption of the main window, time and date of the project, as the text of every root ends.
    std::string intestazione() const;
    std::string mostrato(std::string_view finestra, std::string_view campo) const;
    void segnala(Livello livello, std::string_view titolo, std::string_view messaggio, const Meta& meta);
    void campi(const Finestra& finestra, std::string_view titolo, std::span<const RegolaCampo> regole);
    void ramo(const EsameRamo& esame, std::span<const RegolaRamo> regole, Scelta scelta, const Meta& meta);
    void rami(std::span<const RegolaRamo> regole, Scelta scelta, const std::string& nodo, std::string_view campo = {});
    void diametri();
    void traffico();
    void matriceVeicoli(const Matrice& matrice);
    void matricePercentuale(const Matrice& matrice);
    void coefficienti();

    Applicazione& app_;
    Fonti fonti_;
    std::string messaggioErrore_;  ///< the message that is being put together
};

}  // namespace kelvo
