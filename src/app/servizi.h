#pragma once

#include <string>

#include "base/date.h"

namespace kelvo {

enum class Icona { nessuna, critica, esclamazione, informazione, domanda };
enum class Pulsanti { ok, okAnnulla, siNo, siNoAnnulla };
enum class Risposta { ok, annulla, si, no };

/// Message boxes.
class FinestraMessaggi {
public:
    FinestraMessaggi() = default;
    FinestraMessaggi(const FinestraMessaggi&) = delete;
    FinestraMessaggi& operator=(const FinestraMessaggi&) = delete;
    virtual ~FinestraMessaggi() = default;

    /// Shows a message and waits for its answer.
    virtual Risposta mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) = 0;
    /// The same on top of all windows, those of other programs too; as `mostra` where there is no such thing.
    virtual Risposta mostraSopra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) {
        return mostra(testo, titolo, icona, pulsanti);
    }
};

/// The time of day of the world outside.
class Orologio {
public:
    Orologio() = default;
    Orologio(const Orologio&) = delete;
    Orologio& operator=(const Orologio&) = delete;
    virtual ~Orologio() = default;

    /// Now, in local time.
    virtual DataOra adesso() = 0;
};

/// The clock of the system.
class OrologioSistema final : public Orologio {
public:
    DataOra adesso() override { return kelvo::adesso(); }
};

}  // namespace kelvo
