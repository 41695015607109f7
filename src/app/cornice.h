#pragma once

#include <cstdint>
#include <string>

namespace kelvo {

/// States of the project at hand.
enum class StatoProgetto : std::int16_t {
    ProgettoNuovo = 0,
    ProgettoSalvato = 1,  ///< never entered
    NessunProgetto = 2,
    ProgettoCaricato = 3,
};

/// What windows and shell know in common.
struct StatoFinestre {
    bool ProgettoAperto = false;  ///< a project exists
    StatoProgetto statoProgetto = StatoProgetto::NessunProgetto;
    std::int16_t NumeroRamiCorrente = 0;  ///< legs of the project that was loaded
    bool convalidaFallita = false;        ///< the check of a field or window failed
    bool opzioniModificate = false;       ///< an option was changed and not yet told
    std::int16_t NumSegmenti = 0;         ///< time segments of every entry
    std::int16_t formaRelazione = 2;      ///< the report that is offered first: 0 input, 1 results, 2 both
};

/// What the lower rooms ask of the main window.
class Cornice {
public:
    Cornice() = default;
    Cornice(const Cornice&) = delete;
    Cornice& operator=(const Cornice&) = delete;
    virtual ~Cornice() = default;

    /// Caption of the main window.
    virtual std::string titolo() const = 0;
    virtual void titolo(const std::string& testo) = 0;
    /// Gives all nodes of a leg its name.
    virtual void testoNodi(const std::string& chiaveRamo, const std::string& testo) = 0;
    virtual void SetUpOpzioni() = 0;
    virtual void LoadTreeView() = 0;
    /// Shows or hides the seven menus, for the rest of the run; tool bar and shortcuts stay.
    virtual void mostraMenu(bool visibili) = 0;
    /// Tells the user something in the status bar; an empty text takes it away.
    virtual void avviso(const std::string& testo) = 0;
    /// Brings up a page of the help, by its file name; nothing where there is no help window.
    virtual void aiuto(const std::string& /*pagina*/) {}
};

/// Leads from one window to another.
class Navigazione {
public:
    Navigazione() = default;
    Navigazione(const Navigazione&) = delete;
    Navigazione& operator=(const Navigazione&) = delete;
    virtual ~Navigazione() = default;

    /// Shows the window of a key; false if the one at hand refused to be left.
    virtual bool mostra(const std::string& chiave) = 0;
    /// Key of the selected node; empty for none.
    virtual std::string chiaveCorrente() const = 0;
};

}  // namespace kelvo
