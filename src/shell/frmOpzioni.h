#pragma once

#include <array>
#include <cstdint>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/campiNumerici.h"
#include "shell/servizi/scelte.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// How the study is computed, the passenger-car equivalents, and how the program looks.
class frmOpzioni final : public FinestraDati {
public:
    explicit frmOpzioni(const Contorno& contorno);

    Riquadro frDatiTraffico;
    GruppoOpzioni grpTipoAnalisi;  ///< optSaturazione, optCurvaTempoFlusso, optSegmentiTempo
    Riquadro frComposizioneTraffico;
    GruppoOpzioni grpTipoFlusso;  ///< optCostante, optSegmentiTempo2
    Riquadro frMatriceSvolte;
    GruppoOpzioni grpTipoMatrice;  ///< optVeicoli, optPercentuale
    Riquadro frAnalisi;
    Casella chkCondizioniNotturne;
    tBox txtCondizioniNotturne;  ///< whole per cent; its text is the reduction that a calculation reads
    Etichetta lblCondizioniNotturne{"lblCondizioniNotturne", {}, "ROSSO"};  ///< warns of night conditions without any
    Casella chkPercentile;
    tBox txtPercentile;
    Etichetta lblPercentile{"lblPercentile"};  ///< tells that the percentile counts without its tick
    Casella chkOttimizzazioneGeometrica;

    Riquadro frVeicoli;
    std::array<tBox, 7> txtVeicoli;  ///< "txtAutoarticolati" and on, in the order of `coefficientiMostrati`
    Bottone cmdDEFAULT;

    Riquadro frLayout;
    ElencoSpunte ctlLIST{"ctlLIST"};  ///< the seven colours of the caption panels, one tick
    CampioneColore ctlCampione{"ctlCampione"};
    Riquadro frRelazione;
    ElencoSpunte ctlLISTopz{"ctlLISTopz"};  ///< the three forms of the report, one tick
    Riquadro frProgramma;
    Casella ckTREE;
    Casella ckMENU;
    Casella ckFILMATO;

    /// Copies project, configuration and the choices of this run to the controls.
    void ReadData() override;
    /// Writes the project's options and the equivalents; tree and menu follow.
    void SaveData() override;

protected:
    void altroTasto(const std::string& chiave) override;
    void aggiornaDati() override;

private:
    void leggiOpzioni();
    void leggiConfigurazione();
    void collegaOpzioni();
    void collegaAspetto();
    void abilita();
    static void scartaNonAmmesso(const Casella& spunta, tBox& campo);
    void opzioneCliccata();
    void notteScritta();
    void ripristina();
    void coloreCliccato(int riga);
    void mostraColore(int riga);
    void confronta();
    void scriviProgetto();
    void scriviTutto();
    void annota(const std::string& motivo);
    void avvisaIni();
    CoefficientiVeicoli coefficientiScritti() const;
    bool coefficientiMutati() const;
    bool scriviCoefficienti(const CoefficientiVeicoli& valori);
    bool aspettoScritto() const;

    bool alberoDaRifare_ = false;  ///< the tree does not stand as ckTREE tells yet

    std::string motivoIni_;  ///< why the configuration could not be written, during one gesture
};

/// A vehicle class of the window: its name, its control, its place among the coefficients of the configuration.
struct CoefficienteMostrato {
    std::string_view nome;
    std::string_view controllo;
    std::size_t posto;
};

/// The classes in the order in which the window shows them.
inline constexpr std::array<CoefficienteMostrato, 7> coefficientiMostrati{{
    {"Autoarticolati", "txtAutoarticolati", 0},
    {"Autotreni", "txtAutotreni", 1},
    {"Autovetture", "txtAutovetture", 6},
    {"Camper", "txtCamper", 3},
    {"Motocicli", "txtMotocicli", 5},
    {"Pullman", "txtPullman", 2},
    {"Roulotte", "txtRoulotte", 4},
}};
/// Limits of a coefficient.
inline constexpr CampoNumerico campoCoefficiente{"Veicoli equivalenti", "veicoli/eq", 0.01, 99.99, "#0.00"};
inline constexpr CampoNumerico campoPercentile{"Percentile", "%", 0.0, 99.99, "#0.00"};
inline constexpr CampoNumerico campoNotte{"Condizioni ambientali", "%", 0.0, 100.0, "#0"};

}  // namespace kelvo
