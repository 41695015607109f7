#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "cad/documentoDxf.h"
#include "pianta/Pianta.h"

namespace kelvo {
class Rotonda;
}

/// The plan of a roundabout as a drawing for CAD programs.
namespace kelvo::dxf {

/// What may be left out of a drawing.
enum class Gruppo {
    pianta,       ///< kerbs, islands, ring and inscribed circle: always there
    segnaletica,  ///< give-way lines, axes, crossings, arrows
    superfici,    ///< lanes and paved areas as closed lines, on layers that are switched off
    campiture,    ///< solid fills of islands and markings
    quote,        ///< dimensions of the measures of each entry
    testi,        ///< letters and names of the legs
    cartiglio,    ///< title note
};
inline constexpr std::size_t numeroGruppi = 7;

/// A layer of the drawing and the shapes that stand on it.
struct VoceLayer {
    Gruppo gruppo = Gruppo::pianta;
    Layer layer{};
};

/// The place of each layer in the table.
enum class NomeLayer {
    cordoli,
    cerchioInscritto,
    corona,
    isolaCentrale,
    isoleDivisionali,
    darePrecedenza,
    assi,
    attraversamenti,
    frecce,
    frecceAnello,
    carreggiata,
    anello,
    ingressi,
    uscite,
    campitureIsole,
    campitureSegnaletica,
    quote,
    lettere,
    nomi,
    note,
    cartiglio,
};

/// All layers, in the order of `NomeLayer`. Lines and texts can be told on white and on black: 7 turns with the ground,
/// the others are neither light nor dark. The fill of the islands alone is a light grey, within borders of their own.
inline constexpr std::array vociLayer{
    VoceLayer{Gruppo::pianta, {"KELVO-CORDOLI", 7, 50}},
    VoceLayer{Gruppo::pianta, {"KELVO-CERCHIO-INSCRITTO", 150, 18, TipoLinea::trattoPunto}},
    VoceLayer{Gruppo::pianta, {"KELVO-CORONA-SORMONTABILE", 8, 25}},
    VoceLayer{Gruppo::pianta, {"KELVO-ISOLA-CENTRALE", 94, 35}},
    VoceLayer{Gruppo::pianta, {"KELVO-ISOLE-DIVISIONALI", 94, 35}},
    VoceLayer{Gruppo::segnaletica, {"KELVO-DARE-PRECEDENZA", 7, 35}},
    VoceLayer{Gruppo::segnaletica, {"KELVO-ASSI", 8, 18, TipoLinea::tratteggiata}},
    VoceLayer{Gruppo::segnaletica, {"KELVO-ATTRAVERSAMENTI", 7, 18}},
    VoceLayer{Gruppo::segnaletica, {"KELVO-FRECCE", 7, 18}},
    VoceLayer{Gruppo::segnaletica, {"KELVO-FRECCE-ANELLO", 7, 18}},
    VoceLayer{Gruppo::superfici, {"KELVO-CARREGGIATA", 8, 13, TipoLinea::continua, true}},
    VoceLayer{Gruppo::superfici, {"KELVO-ANELLO", 8, 13, TipoLinea::continua, true}},
    VoceLayer{Gruppo::superfici, {"KELVO-INGRESSI", 150, 13, TipoLinea::continua, true}},
    VoceLayer{Gruppo::superfici, {"KELVO-USCITE", 30, 13, TipoLinea::continua, true}},
    VoceLayer{Gruppo::campiture, {"KELVO-CAMPITURE-ISOLE", 254, 0}},
    VoceLayer{Gruppo::campiture, {"KELVO-CAMPITURE-SEGNALETICA", 7, 0}},
    VoceLayer{Gruppo::quote, {"KELVO-QUOTE", 1, 18}},
    VoceLayer{Gruppo::testi, {"KELVO-LETTERE", 150, 25}},
    VoceLayer{Gruppo::testi, {"KELVO-NOMI", 7, 25}},
    VoceLayer{Gruppo::pianta, {"KELVO-NOTE", 8, 18}},
    VoceLayer{Gruppo::cartiglio, {"KELVO-CARTIGLIO", 7, 25}},
};

/// Which groups stand in the drawing; all of them at first.
struct Scelte {
    std::array<bool, numeroGruppi> gruppi{true, true, true, true, true, true, true};
    bool contiene(Gruppo gruppo) const {
        return gruppo == Gruppo::pianta || gruppi.at(static_cast<std::size_t>(gruppo));
    }
    void metti(Gruppo gruppo, bool valore) { gruppi.at(static_cast<std::size_t>(gruppo)) = valore; }
};

/// Words of the title note; an empty one is left out.
struct Cartiglio {
    std::string titolo{};
    std::string luogo{};
    std::string progettista{};
    std::string data{};
};

/// What the project says of itself.
Cartiglio cartiglioDi(const Rotonda& rotonda);

/// True where a file holds a project, whatever its name: no drawing takes its place.
bool contieneProgetto(const std::string& percorso);

/// The plan to scale, leg A at the bottom, the centre at 0, 0, with the mark of every plan on it. Flows, levels and
/// queues are no part of it. Fault 9 for a number of legs outside 3 to 7.
Documento disegno(const pianta::DatiPianta& dati, const Cartiglio& cartiglio, const Scelte& scelte = {});

/// The six measures of every entry as the plan draws them, the diameter once; `altezza` is that of the capitals.
/// What is not to scale reads its true value and says so.
std::vector<Quotatura> quotature(const pianta::DatiPianta& dati, const pianta::Pianta& pianta, double altezza);

/// Height of the capitals of the dimensions of a roundabout of radius R, m.
double altezzaQuote(double R);

}  // namespace kelvo::dxf
