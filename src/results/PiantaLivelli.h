#pragma once

#include <string>
#include <vector>

#include "pianta/Pianta.h"
#include "shell/servizi/ControlloPianta.h"

namespace kelvo {

/// The plan of the roundabout with the level of service and the queue of each entry at an instant.
class PiantaLivelli final : public ControlloPianta {
public:
    explicit PiantaLivelli(std::string nome);

    /// The roundabout; no leg for nothing to show.
    const pianta::DatiPianta& dati() const { return dati_; }
    void dati(pianta::DatiPianta valore);
    /// Level and queue of each entry; empty for none.
    const std::vector<pianta::StatoIngresso>& stati() const { return stati_; }
    void stati(std::vector<pianta::StatoIngresso> valore);
    /// Only the levels and queues have changed; any other change is told by `cambiato`.
    sigc::signal<void()>& statiMutati() { return statiMutati_; }
    /// What is drawn: the whole plan with them.
    pianta::OpzioniPianta opzioni() const;
    /// The levels and queues: "A: livello B, coda 3,4 veic".
    std::string descrizione() const override;

private:
    pianta::DatiPianta dati_;
    std::vector<pianta::StatoIngresso> stati_;
    sigc::signal<void()> statiMutati_;
};

}  // namespace kelvo
