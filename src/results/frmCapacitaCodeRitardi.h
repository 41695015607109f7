#pragma once

#include "results/FinestraRisultati.h"

namespace kelvo {

/// Flow, capacity, saturation, queue, delay and level of service of all entries, segment by segment.
class frmCapacitaCodeRitardi final : public FinestraRisultati {
public:
    frmCapacitaCodeRitardi(const Contorno& contorno, const ServiziRisultati& servizi);

    Griglia ctlGrid{"ctlGrid"};
    /// Writes the table for the spreadsheet and hands it over; closed until the window has calculated.
    Bottone Cmd_EXCEL;

    /// Shows the empty table at the first time; one that is filled stays as it is.
    void attivata() override;

protected:
    void calcola() override;
    std::string testoAnteprima() override;
    void altroTasto(const std::string& chiave) override;
    std::string motivoFlussi() const override;

private:
    void esportaFoglio();
    void apriFoglio();
};

}  // namespace kelvo
