#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "results/FinestraRisultati.h"
#include "results/frmLEGENDA.h"
#include "results/frmRAMO_AGGIUNTIVA.h"
#include "results/graficiRamo.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/MenuChiavi.h"
#include "shell/servizi/scelte.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Results of one entry over time: a table, a chart for each quantity and for the level of service, and their smallest,
/// largest and mean values. It takes its entry from the node at hand; bound to another one it empties itself.
class frmCapacitaCodeRitardiRamo final : public FinestraRisultati {
public:
    frmCapacitaCodeRitardiRamo(const Contorno& contorno, const ServiziRisultati& servizi);
    frmCapacitaCodeRitardiRamo(const frmCapacitaCodeRitardiRamo&) = delete;
    frmCapacitaCodeRitardiRamo& operator=(const frmCapacitaCodeRitardiRamo&) = delete;
    ~frmCapacitaCodeRitardiRamo() override;

    static constexpr std::size_t numeroGrafici = 5;

    /// What the right column tells of a chart.
    struct Riassunto {
        tBox minimo;
        tBox massimo;
        tBox medio;
        Etichetta unita;
    };

    BarraStrumenti ctlToolbar2;  ///< Visualizza, Aggiuntivi
    Schede ctlTab;               ///< table, four quantities, level of service
    Griglia ctlGrid{"ctlGrid"};
    MenuChiavi menuTabella{"menuTabella"};  ///< own entry of the table's menu: the legend
    Etichetta lblLegenda;                   ///< how to bring up the legend
    std::array<Grafico, numeroGrafici> grafici;
    Riquadro frVALORI;
    Etichetta lblMINIMO;
    Etichetta lblMASSIMO;
    Etichetta lblMEDIO;
    std::array<Riassunto, numeroGrafici> riassunti;  ///< in the order of the charts
    Casella cmdRIASSUNTO;
    Casella cmdMARKER;
    Casella chkValori;       ///< labels stand at the values of the charts
    GruppoOpzioni opzForma;  ///< lines, bars

    frmLEGENDA legenda;
    frmRAMO_AGGIUNTIVA aggiuntiva;

    /// Binds the window to the entry of the key at hand and closes the second tool bar; a return from the additional
    /// window is no activation. Fault 9 where the key ends in no leg's digit.
    void attivata() override;
    void nascosta() override;
    /// Number of the entry, from 1; 0 before the window first came up.
    std::int16_t indiceRamo() const { return indice_; }
    /// What the figures of the window add up to; not present before a calculation.
    const StatisticheIngresso& statistiche() const { return statistiche_; }
    /// How the charts are drawn.
    OpzioniGrafici opzioni() const;

protected:
    void calcola() override;
    std::string testoAnteprima() override;
    std::string motivoFlussi() const override;
    Blocchi figureSuCarta() const override;

private:
    const Ramo& ramo() const { return app().theRotonda().Ramo(indice_); }
    void collega();
    void ordinaControlli();
    void svuota();
    void mostraScheda();
    void mostraRiassunti();
    DocumentoPagine::Tabella riassuntiSuCarta() const;
    void disegna(int segmenti);
    void ridisegna();
    void premuto2(const std::string& chiave);
    void Visualizza();
    void Aggiuntivi();
    void tornato(bool visualizza);
    void mostraLegenda();
    void primoFuoco();

    std::int16_t indice_ = 0;
    bool ritorno_ = false;
    StatisticheIngresso statistiche_;
};

}  // namespace kelvo
