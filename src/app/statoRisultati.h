#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kelvo {

/// Quantities of a record, in its order: Flusso, Capacita, Coeff_Sat, Coda, Ritardo.
inline constexpr int numeroGrandezze = 5;

/// Statistics of the entry whose results were worked out last. Quantities stand at 0 to 4, in the order of the record.
struct StatisticheIngresso {
    /// No record is below it, so that the first one always becomes the smallest.
    static constexpr double oltreMinimo = 10000.0;

    std::array<double, numeroGrandezze> ValoriMassimi{};  ///< to two decimals
    std::array<double, numeroGrandezze> ValoriMinimi{};   ///< to two decimals
    std::array<double, numeroGrandezze> ValoriMedi{};
    /// Row of the entry's table, from 1, in which the extreme lies; 0 for none.
    std::array<std::int16_t, numeroGrandezze> RigaMassimo{};
    std::array<std::int16_t, numeroGrandezze> RigaMinimo{};
    bool presenti = false;  ///< there was a record
    std::string livelloMassimo;
    std::string livelloMinimo;
    std::string livelloMedio;
};

/// One number for each entry, 1 to 6, and each quantity, 1 to 6: those of the record and, sixth, the code of the level
/// of service. A seventh entry has no row.
class TabellaMarker {
public:
    static constexpr int ingressi = 6;
    static constexpr int grandezze = 6;

    /// Fault 9 outside the table.
    double& operator()(int ingresso, int grandezza);
    double operator()(int ingresso, int grandezza) const;

private:
    static void controlla(int ingresso, int grandezza);
    // Quantity 1 stands at 0; the last place is never used.
    std::array<std::array<double, grandezze + 1>, ingressi> valori_{};
};

/// Thresholds of the results by entry and quantity; they last as long as the program runs.
struct Marker {
    TabellaMarker MarkerAttivo;   ///< 1 where the threshold is on, else 0
    TabellaMarker MarkerMassimo;  ///< what a value may not exceed; 0 for none
    TabellaMarker MarkerMinimo;   ///< what a value may not go below; 0 for none
    /// A project in which thresholds were set.
    struct Progetto {
        std::uint64_t numero = 0;  ///< see Applicazione::numeroProgetto
        std::string nome{};        ///< its name at that moment; may be empty
    };
    /// By entry, 1 standing at 0.
    std::array<Progetto, TabellaMarker::ingressi> progetto{};

    /// True if a threshold of an entry is on. Fault 9 for an entry without a row.
    bool attivi(int ingresso) const;
    /// Takes all thresholds of an entry away. Fault 9 for an entry without a row.
    void azzera(int ingresso);
};

/// What the result windows know in common.
struct StatoRisultati {
    StatisticheIngresso statistiche;
    Marker marker;
};

}  // namespace kelvo
