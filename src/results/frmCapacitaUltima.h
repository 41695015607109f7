#pragma once

#include "results/FinestraRisultati.h"
#include "results/TabellaCapacitaUltima.h"

namespace kelvo {

/// Ultimate capacity of the entries beside their hourly flow, totals of the node and saturation index.
class frmCapacitaUltima final : public FinestraRisultati {
public:
    frmCapacitaUltima(const Contorno& contorno, const ServiziRisultati& servizi);

    Griglia ctlGrid{"ctlGrid"};
    PannelloAiuto ctlHelp{"ctlHelp"};
    PannelloAiuto* aiuto() override { return &ctlHelp; }

    /// Fills the table from what the legs hold, without a calculation.
    void attivata() override;
    /// Sums and index of the last filling.
    const TabellaCapacitaUltima& contenuto() const { return tabella_; }

protected:
    void calcola() override;
    std::string testoAnteprima() override;
    void anteprimaFallita(const Guasto& guasto) override;
    std::string motivoVecchi() const override;
    std::string motivoFlussi() const override;

private:
    void riempi();

    TabellaCapacitaUltima tabella_;
};

}  // namespace kelvo
