#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kelvo {

/// Counts the changes of a project's input.
struct Revisione {
    std::uint64_t tutto = 0;    ///< changes of any input
    std::uint64_t calcolo = 0;  ///< changes of input that a calculation reads
};

/// The form of the calculation that left the records.
enum class FormaCalcolo {
    nessuna,        ///< no calculation since the project was made or opened
    interrotta,     ///< a fault ended the calculation while it wrote its records
    piana,          ///< the project as it stands
    ipotesi,        ///< one leg with other measures
    corsiaDestra,   ///< with right-turn lanes
    bilanciamento,  ///< ultimate capacities alone; the records are not touched
};

/// What a calculation reads and no project holds.
struct AmbienteCalcolo {
    std::int16_t notte = 0;              ///< reduction of all capacities at night, per cent; 0 where it is not in force
    std::array<float, 7> equivalenti{};  ///< equivalent-car coefficients, in the order of the engine
    friend bool operator==(const AmbienteCalcolo&, const AmbienteCalcolo&) = default;
};

/// What a calculation leaves behind: its form, the input that it read and what was in force.
struct Timbro {
    FormaCalcolo forma = FormaCalcolo::nessuna;
    std::uint64_t revisione = 0;
    AmbienteCalcolo ambiente{};
    friend bool operator==(const Timbro&, const Timbro&) = default;
};

/// Keys of a project file that this version does not know, with their values as JSON text.
using ChiaviIgnote = std::vector<std::pair<std::string, std::string>>;

/// Base of the project's objects: a writer of input raises the revision if it changes something.
class OggettoProgetto {
public:
    OggettoProgetto(const OggettoProgetto&) = delete;
    OggettoProgetto& operator=(const OggettoProgetto&) = delete;

    /// Counts its changes in another project from now on.
    void segui(Revisione& revisione) { revisione_ = &revisione; }

    ChiaviIgnote chiaviIgnote;  ///< kept from the project file and written back to it

protected:
    explicit OggettoProgetto(Revisione& revisione) : revisione_(&revisione) {}
    ~OggettoProgetto() = default;

    /// Writes input that a calculation reads.
    template <class T>
    void scriviDato(T& campo, const T& valore) {
        if (!(campo == valore)) {
            campo = valore;
            segnaDato();
        }
    }
    /// Writes input that no calculation reads: names, notes, the engineer, settings of windows, figures worked out
    /// from other input.
    template <class T>
    void scriviAltro(T& campo, const T& valore) {
        if (!(campo == valore)) {
            campo = valore;
            ++revisione_->tutto;
        }
    }
    void segnaDato() {
        ++revisione_->tutto;
        ++revisione_->calcolo;
    }

private:
    Revisione* revisione_;
};

}  // namespace kelvo
