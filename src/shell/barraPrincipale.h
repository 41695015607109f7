#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "shell/servizi/controlli.h"

namespace kelvo {

/// What a button of the main tool bar does.
enum class AzioneTasto {
    comando,    ///< what the menu entry of that key does
    chiave,     ///< UserClick of that key
    finestra,   ///< ShowForm of that window; the tree keeps its selection
    procedura,  ///< the procedure of that name
};

/// A button of the main tool bar.
struct RigaBarra {
    std::string_view chiave;
    std::string_view descrizione;
    std::string_view suggerimento;
    std::string_view icona;
    AzioneTasto azione = AzioneTasto::comando;
    std::string_view argomento;
    bool separatoreDopo = false;  ///< a line follows
};

inline constexpr std::array barraPrincipale{
    RigaBarra{"Nuovo", "Nuova rotonda", "Nuovo progetto", "Nuovo", AzioneTasto::comando, "mnuNuovo"},
    RigaBarra{"Apri", "Apri rotonda", "Apri progetto", "Apri", AzioneTasto::comando, "mnuApri"},
    RigaBarra{"Salva", "Salva rotonda", "Salva progetto", "Salva", AzioneTasto::comando, "mnuSalva"},
    RigaBarra{"Chiudi", "Chiudi la rotonda", "Chiudi progetto", "Chiudi", AzioneTasto::comando, "mnuChiudi", true},
    RigaBarra{"Help", "Help", "Guida utente", "Help", AzioneTasto::comando, "mnuGuidaInLinea"},
    RigaBarra{"Opzioni", "Opzioni", "Opzioni programma", "Opzioni", AzioneTasto::chiave, "keyOpzioni", true},
    RigaBarra{"Analizzatore", "", "Analizzatore rotatoria", "Analizzatore", AzioneTasto::finestra, "frmConfronti"},
    RigaBarra{"Dx", "", "Valutazione Corsia Preferenziale", "Dx", AzioneTasto::finestra, "frmDX"},
    RigaBarra{"Check", "", "Check progetto rotatoria", "Check", AzioneTasto::finestra, "frmANALIZZATORE"},
    RigaBarra{"Google", "", "", "terra", AzioneTasto::finestra, "frmGoogle", true},
    RigaBarra{"KelvoCAD", "KelvoCAD", "Avvia KelvoCAD", "KelvoCAD", AzioneTasto::procedura, "LinkKELVOCAD", true},
    RigaBarra{"Esci", "Esci", "Esci dal programma", "Esci", AzioneTasto::comando, "mnuEsci"},
};

/// The buttons of the main tool bar, all enabled.
std::vector<BarraStrumenti::Tasto> tastiBarraPrincipale();
/// The row of a button. Fault 9 for a key that is not there.
const RigaBarra& rigaBarra(std::string_view chiave);

/// Enabled flags of an item by the project's state.
struct StatoVoce {
    std::string_view chiave;
    bool conProgetto = true;    ///< states 0, 1, 3
    bool senzaProgetto = true;  ///< state 2
};

inline constexpr std::array statiTasti{
    StatoVoce{"Nuovo", false, true},        StatoVoce{"Apri", false, true},    StatoVoce{"Chiudi", true, false},
    StatoVoce{"Salva", true, false},        StatoVoce{"Opzioni", true, false}, StatoVoce{"KelvoCAD", true, false},
    StatoVoce{"Analizzatore", true, false}, StatoVoce{"Check", true, false},   StatoVoce{"Dx", true, false},
    StatoVoce{"Google", true, false},
};

inline constexpr std::array statiMenu{
    StatoVoce{"mnuNuovo", false, true},     StatoVoce{"mnuApri", false, true},
    StatoVoce{"mnuChiudi", true, false},    StatoVoce{"mnuSalva", true, false},
    StatoVoce{"mnuDati", true, false},      StatoVoce{"mnuOpzioni", true, false},
    StatoVoce{"mnuRisultati", true, false}, StatoVoce{"mnuStrumenti", true, false},
    StatoVoce{"mnuKelvoCAD", true, false},  StatoVoce{"mnuHelp", true, true},
};

}  // namespace kelvo
