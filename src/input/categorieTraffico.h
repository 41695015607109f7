#pragma once

#include <array>
#include <string_view>

#include "model/ComposizioneTraffico.h"
#include "shell/servizi/campiNumerici.h"

namespace kelvo {

/// A vehicle class as the two windows of the composition show it, and where the project holds it.
struct CategoriaTraffico {
    std::string_view nome;          ///< in the window of the shares
    std::string_view intestazione;  ///< in the table of the segments
    std::string_view gruppo;        ///< caption that it stands under; the same for neighbours of one group
    const char* percento;           ///< control of the share
    const char* coefficiente;       ///< control of the leg's coefficient
    const char* riferimento;        ///< control of the coefficient of the configuration
    const char* paginaAiuto;
    float (ComposizioneTraffico::*leggi)() const;
    void (ComposizioneTraffico::*scrivi)(float);
    float (ComposizioneTraffico::*leggiVE)() const;
    void (ComposizioneTraffico::*scriviVE)(float);
};

/// The classes in the order of `PerClasse` and of the coefficients of the configuration; the last one takes what the
/// others leave.
extern const std::array<CategoriaTraffico, numeroClassi> categorieTraffico;

/// Limits of a coefficient of a leg.
inline constexpr CampoNumerico campoEquivalente{"Veicoli equivalenti", "veicoli/eq", 0.01, 99.99, "#0.00"};

}  // namespace kelvo
