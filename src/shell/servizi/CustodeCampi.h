#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/servizi.h"
#include "app/serviziSistema.h"

namespace kelvo {

class Controllo;
class PannelloAiuto;

/// A message of a check.
struct MessaggioCampo {
    std::string testo;
    std::string titolo;
    Icona icona = Icona::esclamazione;
};

/// What a check says of a field.
struct EsitoUscita {
    bool accettato = true;                    ///< false keeps the focus in the field
    bool bandiera = false;                    ///< raises the flag of failed checks
    std::optional<MessaggioCampo> messaggio;  ///< shown in a box
    std::string motivo;                       ///< for the status bar, where there is no box
    std::vector<MessaggioCampo> altri = {};   ///< further boxes, one after the other
    std::optional<std::string> rimesso = {};  ///< put in the place of the refused text, and no longer refused
    bool rimessoPrima = false;                ///< before the box comes up, not after it

    static EsitoUscita bene() { return {}; }
    static EsitoUscita rifiuto(std::string motivo) {
        return {.accettato = false, .bandiera = true, .messaggio = {}, .motivo = std::move(motivo)};
    }
    static EsitoUscita rifiuto(MessaggioCampo messaggio) {
        return {.accettato = false, .bandiera = true, .messaggio = std::move(messaggio), .motivo = {}};
    }
};

/// What a field needs of the window that it stands in.
class CustodeCampi {
public:
    CustodeCampi() = default;
    CustodeCampi(const CustodeCampi&) = delete;
    CustodeCampi& operator=(const CustodeCampi&) = delete;
    virtual ~CustodeCampi() = default;

    /// The focus came to a field.
    virtual void entrato(Controllo& campo) = 0;
    /// The focus of the window stands in a field.
    virtual bool haFuoco(const Controllo& campo) const = 0;
    /// A check spoke: shows its message or reason and raises the flag of failed checks if it says so.
    virtual void giudicato(Controllo& campo, const EsitoUscita& esito) = 0;
    /// The help pane of the window; null where it has none.
    virtual PannelloAiuto* aiuto() { return nullptr; }
    /// The clipboard; null where there is none.
    virtual Appunti* appunti() { return nullptr; }
};

}  // namespace kelvo
