#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "results/FinestraRisultati.h"
#include "results/Sensibilita.h"
#include "results/quantoServe.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/campiNumerici.h"
#include "shell/servizi/scelte.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// What becomes of an entry where one of its measures is moved: a table for each measure and a chart of the one in
/// view; in a last tab what one step of each measure changes, and how much of a measure is needed for a goal.
///
/// It takes its entry from the node at hand; bound to another one, or where measures and steps are others, it empties
/// itself. Nothing of it is ever written to the project.
class frmRisultatiAnalisiMarginale final : public FinestraRisultati {
public:
    frmRisultatiAnalisiMarginale(const Contorno& contorno, const ServiziRisultati& servizi);

    static constexpr int schedaRiepilogo = static_cast<int>(numeroParametri);

    Schede ctlTab;                                 ///< the measures in their order, the summary
    std::array<Griglia, numeroParametri> griglie;  ///< ctlGrid1 to ctlGrid6
    Riquadro frVARIABILE;
    GruppoOpzioni opzVARIABILE;  ///< OptCAPACITA, OptCODA, OptRITARDO; none at first
    Bottone Command1;            ///< calculates the tab in view only
    Riquadro ctlChartLA;         ///< holds the chart
    Grafico RMChartX1{"RMChartX1"};

    Riquadro frQUANTOSERVE;
    tBox txtGrandezza{"txtGrandezza", tBox::combobox};  ///< the measure that is to be changed
    GruppoOpzioni opzOBIETTIVO;                         ///< optSATURAZIONE, optLIVELLO
    tBox txtSaturazione;
    tBox txtLivello{"txtLivello", tBox::combobox};  ///< "A" to "E"
    Bottone cmdQuantoServe;
    Etichetta lblQuantoServe{"lblQuantoServe"};      ///< the answer
    Etichetta lblEffetto{"lblEffetto", {}, "GREY"};  ///< how the entry does before and after
    Etichetta lblSoloLettura;                        ///< the project keeps its measure

    PannelloAiuto ctlHelp{"ctlHelp"};
    PannelloAiuto* aiuto() override { return &ctlHelp; }

    /// Binds the window to the entry of the key at hand. Fault 9 where the key ends in no leg's digit.
    void attivata() override;
    void aggiornaNote() override;
    // CustodeCampi
    void entrato(Controllo& campo) override;
    /// Number of the entry, from 1; 0 before the window first came up.
    std::int16_t indiceRamo() const { return indice_; }
    const Sensibilita& analisi() const { return analisi_; }
    /// The figure that the chart shows; none before one was chosen.
    std::optional<Prestazione> variabile() const;
    /// The answer of the last search; none where there was none, or it is no answer to what stands there now.
    const std::optional<QuantoServe>& risposta() const { return risposta_; }

protected:
    bool ammette(const std::string& chiave) override;
    void calcola() override;
    void relazione() override;
    std::string testoAnteprima() override;
    std::string nomeAnteprima() const override { return "RisultatiMarginale.txt"; }
    void anteprimaFallita(const Guasto& guasto) override;
    std::string motivoVecchi() const override;
    std::string vecchiSuCarta() const override;
    std::string motivoFlussi() const override;
    Blocchi figureSuCarta() const override;

private:
    const Ramo& ramo() const { return app().theRotonda().Ramo(indice_); }
    void ordinaControlli();
    void collega();
    void preparaQuantoServe();
    /// Takes measures, steps and flags anew; where they are others, or in any case if `comunque`, all figures go.
    void rileggi(bool comunque);
    bool stessiDati(const Sensibilita& altra) const;
    bool inRiepilogo() const { return ctlTab.corrente() == schedaRiepilogo; }
    const TabellaSensibilita& inVista() const { return analisi_.tabella(static_cast<std::size_t>(ctlTab.corrente())); }
    bool chiediVariabile();
    void avverti(const MessaggioUtente& detto);
    void calcolaScheda();
    void calcolata(std::size_t parametro);
    void mostraTabelle();
    void mostraScheda();
    void disegna();
    void apriTasti();
    bool superato(const std::optional<Timbro>& timbro) const;
    bool unaSuperata() const;
    Timbro momento() const;
    void cerca();
    void scordaRisposta();
    void mostraObiettivo();
    Obiettivo obiettivo() const;

    std::int16_t indice_ = 0;
    Sensibilita analisi_;
    std::array<std::optional<Timbro>, numeroParametri> timbri_{};  ///< what the figures of each table are of
    std::optional<QuantoServe> risposta_;
    std::optional<Timbro> timbroRisposta_;
};

/// Degrees of saturation that can be asked for.
inline constexpr CampoNumerico campoSaturazione{"Coefficiente di saturazione", "", 0.01, 2.0, "#0.00"};

}  // namespace kelvo
