#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/Rotonda.h"

/// The input of two projects, datum by datum.
namespace kelvo {

/// What stands at a place of a project: as its file has it, times and dates as their texts.
using ValoreDato = std::variant<std::string, bool, std::int16_t, float, double>;

/// `b - a` of two numbers of one type, rounded to it as their shortest texts tell it: 4.5 - 4.2 is 0.3. Doubles with
/// more than 9 decimals, which nobody typed, are subtracted as they are. Nothing for values that are no numbers, of
/// different types, or too far apart for their type.
std::optional<ValoreDato> scarto(const ValoreDato& a, const ValoreDato& b);

/// One datum that differs.
struct Differenza {
    std::string campo{};    ///< its path in the project file, positions from 1: "Rami[2].theDatiTraffico.Tempo1"
    std::int16_t ramo = 0;  ///< leg that it is of, from 1; 0 for the whole roundabout
    std::string nome{};     ///< in Italian, with its unit
    ValoreDato a{};
    ValoreDato b{};
    std::string testoA{};  ///< the same as a person reads them, on one line; long texts are cut where they differ
    std::string testoB{};
    std::optional<ValoreDato> scarto{};  ///< of what can be subtracted
    std::string testoScarto{};           ///< the same with its sign; empty where there is none
    bool usoA = true;  ///< the kind of study of A reads data of this kind; of other choices and of what
    bool usoB = true;  ///< no calculation reads it tells nothing
};

/// All that differs in the input.
struct DifferenzeProgetti {
    std::vector<Differenza> dati;   ///< in the order of the project file, leg by leg
    std::vector<std::string> note;  ///< what stands in one alone or is compared in part, sentences in Italian
    bool identici() const { return dati.empty() && note.empty(); }
};

/// Compares the input of two projects.
///
/// Legs are compared by their position, segments by the time that they stand for: those that only one project has are
/// told in the notes, and so are legs whose name stands at another position. Turning matrices of different kinds are
/// compared as shares of their rows, in per cent, data of the segments only where both cut the time alike. Results,
/// what the program does not know in a file, and the layout of the file are not looked at.
DifferenzeProgetti differenze(const Rotonda& a, const Rotonda& b);

}  // namespace kelvo
