#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/Applicazione.h"

namespace kelvo {

/// The recovery copy of the project at hand, in a folder of the user's own.
///
/// The file has the project's name, so that a recovered project keeps it; there is one at a time.
class Recupero {
public:
    /// Time between two copies, milliseconds.
    static constexpr int intervallo = 120'000;
    /// Stem of the copy of a project without a name.
    static constexpr const char* senzaNome = "Rotatoria_001";

    Recupero(Applicazione& app, std::string cartella) : app_(app), cartella_(std::move(cartella)) {}

    /// Writes the copy if the project changed since the last one. Answers an empty text, or in Italian why it failed.
    std::string scrivi();
    /// Removes all copies.
    void elimina();
    /// Another project is at hand: the next copy is written whatever its revision.
    void altroProgetto() { revisione_.reset(); }
    /// Path of the latest copy that stands there.
    std::optional<std::string> trovata() const;
    /// Path of the copy of the project at hand.
    std::string percorso() const;
    /// True for a path in the folder of the copies.
    bool appartiene(const std::string& percorso) const;

private:
    void eliminaAltre(const std::string& tenuta);

    Applicazione& app_;
    std::string cartella_;
    std::optional<std::uint64_t> revisione_;
};

}  // namespace kelvo
