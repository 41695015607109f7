#pragma once

#include "input/AnteprimaProgetto.h"
#include "shell/servizi/Griglia.h"

namespace kelvo {

/// Shows the turning matrix of another project file beside the dialogue that chooses it.
class frmPreviewMatriceSvolte final : public AnteprimaProgetto {
public:
    explicit frmPreviewMatriceSvolte(const Contorno& contorno);

    Riquadro frMatrice;
    Griglia ctlGrid{"ctlGrid"};  ///< letters above and beside the values; empty while no project is shown

    /// False as long as no project is shown.
    bool conferma(const std::string& percorso) override;

    /// Value of a cell rounded to a whole number, halves to the even neighbour; legs from 1, 0 outside the matrix
    /// shown. Fault 6 where it does not fit 16 bits.
    std::int16_t GetMatriceSvolte(std::int16_t riga, std::int16_t colonna) const;

private:
    void mostra(const Rotonda& altra) override;
    void svuota() override;
};

/// An empty matrix of so many legs as a grid shows it: letters above and beside, the diagonal grey.
Tabella tabellaMatrice(int rami);
/// Arrows in the corner of such a grid: rows enter, columns leave.
OrnamentoCella ornamentoMatrice(Posto cella);

}  // namespace kelvo
