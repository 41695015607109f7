#pragma once

#include <string>
#include <vector>

#include "results/FinestraRisultati.h"
#include "results/mappaLivelli.h"
#include "shell/servizi/scelte.h"

namespace kelvo {

/// Flow, capacity, saturation, queue, delay and level of service of all entries, segment by segment; on tabs of their
/// own what they come to in the peak hour of each entry and of the junction, and a map of the levels of service.
class frmCapacitaCodeRitardi final : public FinestraRisultati {
public:
    frmCapacitaCodeRitardi(const Contorno& contorno, const ServiziRisultati& servizi);

    Schede ctlTab;  ///< table, peak hours, map
    Griglia ctlGrid{"ctlGrid"};
    /// Writes the table for the spreadsheet and hands it over; closed until the window has calculated.
    Bottone Cmd_EXCEL;
    Etichetta lblExcel;  ///< why the button is closed; else empty

    Griglia ctlSintesi{"ctlSintesi"};  ///< an entry a row, the junction last
    Etichetta lblSaturazione;          ///< entries with a high saturation; hidden where there is none
    Etichetta lblPeggiore;             ///< the worst entry; empty where nothing flows
    Etichetta lblOra;                  ///< of what the peak hour is made; empty before a calculation
    Etichetta lblFigure;               ///< of what the figures are
    Bottone cmdAnteprimaSintesi;       ///< shows the peak hours as a text; closed until the window has calculated

    Griglia ctlMappa{"ctlMappa"};  ///< an entry a row, a segment a column
    Etichetta lblCella;            ///< the cell of the map's cursor in words

    PannelloAiuto ctlHelp{"ctlHelp"};  ///< how to read the tab in view; the table has none
    PannelloAiuto* aiuto() override { return &ctlHelp; }

    /// Shows the empty tables at the first time; those that are filled stay as they are.
    void attivata() override;
    /// Marks of the time axis of the map, as the window shows it.
    const std::vector<OraMappa>& ore() const { return ore_; }
    /// A cell of the map in words, with delay and saturation; empty where it has no level.
    std::string parolaCella(Posto cella) const;

protected:
    void calcola() override;
    std::string testoAnteprima() override;
    void altroTasto(const std::string& chiave) override;
    std::string motivoFlussi() const override;
    Blocchi figureSuCarta() const override;

private:
    void collega();
    void mostraScheda();
    void svuotaSchede();
    void riempiSchede();
    void mostraCella();
    void anteprimaSintesi();
    void esportaFoglio();
    void apriFoglio();

    std::vector<std::string> parole_;  ///< that stand below the peak hours in their text
    std::vector<OraMappa> ore_;
};

}  // namespace kelvo
