#pragma once

#include <array>
#include <optional>
#include <string>

#include "input/categorieTraffico.h"
#include "shell/servizi/FinestraRamo.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Vehicle mix of one entry for the whole modelling time: the shares of the seven classes, which always add up to 100,
/// and their equivalents in passenger cars.
class frmComposizioneTraffico final : public FinestraRamo {
public:
    explicit frmComposizioneTraffico(const Contorno& contorno);

    /// A class, in the order of `categorieTraffico`.
    struct Riga {
        Etichetta lblCategoria;  ///< its name, which leads to its share
        tBox txtPercento;        ///< per cent; read-only in the last class, which takes what the others leave
        tBox txtEquivalenti;     ///< coefficient of the leg
        tBox txtRiferimento;     ///< coefficient of the configuration in memory, read-only
        Etichetta lblDiverso;    ///< a sign between the two where they differ
    };
    std::array<Riga, numeroClassi> righe;
    /// The total and what is left to the last class; hidden where something is wrong with it.
    Etichetta lblTotale{"lblTotale"};
    /// What is wrong with the total.
    Etichetta lblErroreTotale{"lblErroreTotale", {}, "ROSSO"};
    Etichetta lblDiversi;      ///< what the signs mean; hidden where there is none
    Etichetta lblRiferimento;  ///< which of the coefficients a calculation takes
    Grafico ctlGraphPie{"ctlGraphPie"};
    Grafico ctlGraphBar{"ctlGraphBar"};

    void ReadData() override;
    void SaveData() override;
    /// Shows the shares of the fields in both charts.
    void RefreshGraph();

private:
    void prepara(std::size_t i);
    EsitoUscita controllaPercento(std::size_t i);
    EsitoUscita controllaEquivalenti(std::size_t i) const;
    void dopoPercento();
    bool toccata() const;
    /// Text of a share as the project holds it.
    std::string tenuto(std::size_t i) const;
    std::optional<double> resto() const;
    std::optional<double> restoTenuto() const;
    bool abbassata(std::size_t i) const;
    std::string autovetture() const;
    double differenza(double mancante) const;
    void mostraTotale();
    void mostraDiversi();
    void confronta();
    std::string valoriGrafico() const;
    ComposizioneTraffico& composizione() { return ramo().theComposizioneTraffico(); }
    const ComposizioneTraffico& composizione() const { return ramo().theComposizioneTraffico(); }
};

}  // namespace kelvo
