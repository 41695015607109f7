#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "model/Rotonda.h"
#include "shell/servizi/MenuChiavi.h"

namespace kelvo {

/// What a row of a menu table stands for.
enum class TipoRiga {
    voce,             ///< an entry
    separatore,       ///< a line
    sottomenu,        ///< holds the rows of the next level that follow
    vocePerRamo,      ///< one entry a leg: key and digit, the leg's name where the caption is empty
    sottomenuPerRamo  ///< one submenu a leg, with its name; the rows of the next level that follow stand in each
};

/// A row of a menu table.
struct RigaMenu {
    std::string_view menu;
    int livello = 0;  ///< 0 stands in the menu itself, 1 in the submenu before it
    TipoRiga tipo = TipoRiga::voce;
    std::string_view testo;
    std::string_view chiave;  ///< empty where none is given
    std::string_view icona;   ///< empty for none
    std::string_view scorciatoia;
    std::string_view mnemonico;
};

/// A top-level menu.
struct MenuPrincipale {
    std::string_view chiave;
    std::string_view testo;
    std::string_view mnemonico;
};

inline constexpr std::array menuPrincipali{
    MenuPrincipale{"mnuFile", "File", "F"},           MenuPrincipale{"mnuDati", "Dati", "D"},
    MenuPrincipale{"mnuOpzioni", "Opzioni", "O"},     MenuPrincipale{"mnuRisultati", "Risultati", "R"},
    MenuPrincipale{"mnuStrumenti", "Strumenti", "S"}, MenuPrincipale{"mnuKelvoCAD", "KelvoCAD", "K"},
    MenuPrincipale{"mnuHelp", "Help", "H"},
};

/// The menus that the first, minimal build empties.
inline constexpr std::array<std::string_view, 6> menuPrimaCostruzione{"mnuFile",      "mnuDati",     "mnuOpzioni",
                                                                      "mnuRisultati", "mnuKelvoCAD", "mnuHelp"};
/// The menus that every full build empties.
inline constexpr std::array<std::string_view, 7> menuCostruzione{
    "mnuFile", "mnuDati", "mnuOpzioni", "mnuRisultati", "mnuHelp", "mnuKelvoCAD", "mnuStrumenti"};

/// A second shortcut of an entry that has one.
struct ScorciatoiaAggiunta {
    std::string_view tasti;
    std::string_view chiave;
};
inline constexpr std::array scorciatoieAggiunte{ScorciatoiaAggiunta{"Ctrl+Shift+S", "mnuSalva"}};

/// Goes from the tree to the window at hand and back.
inline constexpr std::string_view tastoAlbero = "F6";
/// Opens the page of the field in focus; without a window the guide.
inline constexpr std::string_view tastoAiuto = "F1";
/// Opens the guide, before any project too.
inline constexpr std::string_view tastoGuida = "Shift+F1";

/// A key that the status bar tells beside those of the window at hand.
struct SuggerimentoFisso {
    std::string_view tasti;
    std::string_view parola;
};
inline constexpr std::array suggerimentiSenzaProgetto{SuggerimentoFisso{"Ctrl+N", "Nuovo"},
                                                      SuggerimentoFisso{"Ctrl+O", "Apri"}};
inline constexpr SuggerimentoFisso suggerimentoAlbero{tastoAlbero, "Albero"};
/// The last of the hints, without a project and with one.
inline constexpr SuggerimentoFisso suggerimentoGuida{tastoAiuto, "Guida"};
inline constexpr SuggerimentoFisso suggerimentoAiuto{tastoAiuto, "Aiuto"};

/// Rows of the file menu, alike in both builds.
std::span<const RigaMenu> righeFile();
/// Data, options and results of the build per type.
std::span<const RigaMenu> righePerTipo();
/// Data, options and results of the build per leg.
std::span<const RigaMenu> righePerRamo();
/// Tools and the tail of the other menus, alike in both builds.
std::span<const RigaMenu> righeCoda();

/// Entries of our own, behind the given ones, alike in both builds.
std::span<const RigaMenu> righePropriePerProgetto();

/// Shortcut of an entry in the tables; empty for none.
std::string_view scorciatoiaDiVoce(std::string_view chiave);

/// Adds the top-level menus, empty.
void aggiungiMenuPrincipali(MenuChiavi& menu);
/// Appends the rows to their menus, the rows of a leg for every leg of the project.
/// Fault 9 for a picture that is not in the list or a leg that does not exist.
void aggiungiRighe(MenuChiavi& menu, std::span<const RigaMenu> righe, const Rotonda& rotonda);

}  // namespace kelvo
