#pragma once

#include "calc/ricercaCurva.h"
#include "shell/servizi/controlli.h"

namespace kelvo::misure {

/// The longest search: 72 bars of five minutes, a target out of reach, all the steps, a bar of progress told each of
/// them as a window does.
class RicercaLunga {
public:
    RicercaLunga();
    RicercaLunga(const RicercaLunga&) = delete;
    RicercaLunga& operator=(const RicercaLunga&) = delete;
    ~RicercaLunga() = default;

    void cerca();
    /// The sums of the same bars for the same peaks, without fields and their texts.
    void nuda();
    /// What is wrong with the two beside each other after a run of both; empty if nothing is.
    std::string difetto() const;

private:
    RichiestaRicerca richiesta_;
    BarraProgresso barra_{"prgCurva", 0, passiMassimiRicerca};
    CurvaTraffico curva_;
    RisultatoRicerca risultato_;
    int avvisi_ = 0;           ///< changes of the bar that were told to whoever shows it
    float totaleNudo_ = 0.0F;  ///< vehicles of the last peak
};

}  // namespace kelvo::misure
