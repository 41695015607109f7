#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "pianta/ciglio.h"
#include "pianta/ipotesi.h"
#include "pianta/primitive.h"

namespace kelvo {
class Rotonda;
}

namespace kelvo::pianta {

/// One leg as the plan takes it: what a window shows may differ from what the project holds. Lengths in metres.
struct DatiRamo {
    std::string nome{};
    double larghezzaIngresso = 5.0;
    double semiLarghezza = 3.75;
    double lunghezzaSvasatura = 20.0;
    double angoloConflitto = 5.0;  ///< degrees
    double raggioIngresso = 25.0;
    double diametroInscritto = 65.0;
    bool attraversamentoPedonale = false;

    double misura(Misura quale) const;
};

struct DatiPianta {
    std::vector<DatiRamo> rami{};  ///< 3 to 7, in the order of travel, counter-clockwise
    Ipotesi ipotesi;
};

/// The measures and the names that the project holds.
DatiPianta datiPianta(const Rotonda& rotonda);

/// Which part of the plan is asked for.
enum class Vista {
    intera,      ///< all of it, leg A at the bottom
    primoPiano,  ///< the leg at hand, turned to the bottom
};

/// A movement to be shown: legs from 1.
struct Movimento {
    int da = 0;
    int a = 0;
};

/// What holds at an entry at an instant.
struct StatoIngresso {
    std::string livello{};  ///< of service: "A" to "F", "-" for none
    double coda = 0.0;      ///< vehicles that wait
    friend bool operator==(const StatoIngresso&, const StatoIngresso&) = default;
};

/// Length of lane that a queued vehicle takes, m.
inline constexpr double metriPerVeicolo = 6.0;

struct OpzioniPianta {
    Vista vista = Vista::intera;
    int ramo = 0;                    ///< leg at hand, from 1; 0: none (a close-up then takes the first)
    std::optional<Misura> misura{};  ///< dimension to highlight, of the leg at hand
    std::optional<Movimento> movimento{};
    double rapporto = 1.15;       ///< width over height of a close-up
    double altezzaTesto = 0.028;  ///< size of the type over the height of the view
    bool nomi = true;
    bool lettere = true;
    bool note = true;  ///< the mark and the remarks; without them the caller shows `Pianta::note` beside the picture
    /// Flows from the leg of a row to the leg of a column, in any unit, drawn as ribbons as wide as they are large;
    /// none for 0, for what is no number, from a leg to itself. Where there are any, they stand in the place of the
    /// arrows of lanes and ring, and the ring is drawn as wide as they need.
    std::vector<std::vector<float>> flussi{};
    /// Level and queue of each entry, one a leg, on a whole plan; empty for none.
    std::vector<StatoIngresso> stati{};
};

/// A leg as drawn.
struct RamoDisegnato {
    double direzione = 0.0;  ///< radians, counter-clockwise from the downward axis
    Ciglio ingresso{};
    Ciglio uscita{};            ///< mirrored: an exit stands on the left of its leg
    double naso = 0.0;          ///< depth of the nose of its splitter island
    double fineIngresso = 0.0;  ///< azimuth of the end of its give-way line
    double fineUscita = 0.0;    ///< the same on the exit side, mirrored
    /// The drawing has the measure as it is; false for one that does not fit.
    std::array<bool, numeroMisure> inScala{true, true, true, true, true, true};
};

struct Pianta {
    double R = 0.0;              ///< half the diameter of the inscribed circle
    double anello = 0.0;         ///< width of the ring
    double lunghezzaRami = 0.0;  ///< depth of the ends of the legs
    std::vector<RamoDisegnato> rami{};
    std::vector<Area> aree{};
    std::vector<Linea> linee{};
    std::vector<Testo> testi{};
    std::vector<Quota> quote{};
    Riquadro vista{};                    ///< what is to be seen
    std::optional<Riquadro> fascia{};    ///< strip of the remarks, at the foot of a close-up; nothing is drawn below it
    double altezzaTesto = 1.0;           ///< size of the type, m
    std::vector<std::string> note{};     ///< the mark, then what is not to scale
    std::string nomeAccessibile{};       ///< "Rotatoria a 4 rami"
    std::vector<StatoIngresso> stati{};  ///< what the shapes of the entries show; empty for none
};

/// Letter of a leg from 1.
char lettera(int ramo);

/// The plan of the roundabout. The circle is that of the leg at hand, else of the first leg. Any finite measures give a
/// sound plan: those that cannot be drawn true are drawn as near as they go, and the notes name them.
/// Fault 9 for a number of legs outside 3 to 7 or a leg at hand that does not exist.
Pianta costruisci(const DatiPianta& dati, const OpzioniPianta& opzioni = {});

/// Share of the height that the picture itself takes, the strip of its remarks left out; 1 without a strip.
double parteVista(const Pianta& pianta);

/// Shows other levels and queues on a whole plan that was made with some; nothing else of it changes, what is to be
/// seen neither. Queues stand to scale from the give-way line backwards; a queue longer than the drawn leg ends in a
/// sign, with the vehicles that are not drawn. What is no number, or below 0, is no queue. Fault 9 for another number
/// of states than legs.
void mostraStati(Pianta& pianta, const std::vector<StatoIngresso>& stati);

}  // namespace kelvo::pianta
