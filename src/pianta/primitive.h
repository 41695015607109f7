#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The plan of the roundabout as named shapes: metres, x to the right, y up, the centre of the roundabout at 0, 0.
namespace kelvo::pianta {

/// A point, or a vector, in metres.
struct Punto {
    double x = 0.0;
    double y = 0.0;
    friend bool operator==(const Punto&, const Punto&) = default;
};

/// A corner of a line. The piece from it to the next one is straight (`bombatura` 0) or an arc: `bombatura` is the
/// tangent of a quarter of the angle that the arc turns by, positive for an arc that turns left (counter-clockwise),
/// as drawing files have it.
struct Vertice {
    Punto p{};
    double bombatura = 0.0;
};

using Tracciato = std::vector<Vertice>;

/// What a shape is. Drawing files make one layer of each.
enum class Ruolo {
    carreggiata,          ///< area: everything paved, one shape; bounded by the kerbs and the ends of the legs
    anello,               ///< area: the circulating carriageway, with the apron as its hole
    corona,               ///< area: traversable apron around the central island
    isola,                ///< area: central island
    ingresso,             ///< area: entry lane of a leg, from its end to the give-way line
    uscita,               ///< area: exit lane of a leg
    isolaDivisionale,     ///< area: splitter island of a leg
    cordolo,              ///< line: kerb from the entry of a leg to the exit of the next one
    cerchioInscritto,     ///< line, closed: inscribed circle
    lineaDarePrecedenza,  ///< line: give-way line
    dentiPrecedenza,      ///< area: a tooth of the give-way line
    asse,                 ///< line, dashed: axis between entry and exit of a leg
    attraversamento,      ///< area: a stripe of a pedestrian crossing
    freccia,              ///< area: an arrow of a lane
    frecciaAnello,        ///< area: an arrow of the ring
    percorso,             ///< line: path of a movement, ends in an arrow head
    flusso,               ///< area: ribbon of the flow of a movement, of its origin, from its entry to its exit
    lettera,              ///< text: letter of a leg
    nome,                 ///< text: name of a leg
    nota,                 ///< text: mark and remarks at the foot of the plan
    coda,                 ///< area: a queued vehicle on the lane of an entry; the last one may be a part of one
    taglioCoda,           ///< line: a stroke of the sign across the lane where a queue is longer than the drawn leg
    livello,              ///< text: level of service of an entry, in a box of its own
    oltreCoda,            ///< text: what of a queue is not drawn
};

/// Name of a role, as layers and tests call it ("cordolo").
std::string_view nomeRuolo(Ruolo ruolo);

/// A closed area: the last vertex joins the first one.
struct Area {
    Ruolo ruolo = Ruolo::carreggiata;
    int ramo = 0;        ///< from 1; 0: of the roundabout as a whole
    std::string nome{};  ///< "ingresso A"
    Tracciato contorno{};
    Tracciato foro{};       ///< hole; empty for none
    bool corrente = false;  ///< belongs to the leg at hand
};

struct Linea {
    Ruolo ruolo = Ruolo::cordolo;
    int ramo = 0;
    std::string nome{};
    Tracciato tracciato{};
    bool chiusa = false;
    bool evidenziata = false;  ///< the measure at hand is taken on it
};

enum class Allineamento { sinistra, centro, destra };

struct Testo {
    Ruolo ruolo = Ruolo::nota;
    int ramo = 0;
    std::string testo{};
    Punto punto{};         ///< on half the height of the text, at the side that `allineamento` tells
    double altezza = 1.0;  ///< size of the type, m
    Allineamento allineamento = Allineamento::centro;
    double disco = 0.0;     ///< radius of the disc around it, m; 0 for none
    bool corrente = false;  ///< belongs to the leg at hand
};

/// The six measures of an entry, in the order of the window that takes them.
enum class Misura { larghezzaIngresso, semiLarghezza, lunghezzaSvasatura, angoloConflitto, raggioIngresso, diametro };
inline constexpr std::size_t numeroMisure = 6;

/// End of a dimension line.
struct Estremo {
    Punto punto{};
    Punto verso{};         ///< unit vector along the line, away from it
    bool freccia = true;   ///< arrow head
    bool trattino = true;  ///< tick across
};

/// A dimension: its lines, their ends, and a leader to the name and the value.
struct Quota {
    Misura misura = Misura::larghezzaIngresso;
    int ramo = 0;
    bool evidenziata = false;
    bool inScala = true;                   ///< false: the drawing shows less, or more, than the value says
    std::vector<Tracciato> linee{};        ///< dimension lines, arcs among them
    std::vector<Tracciato> riferimenti{};  ///< thin lines from the measured shape to the dimension line
    std::vector<Estremo> estremi{};
    Tracciato richiamo{};  ///< leader, from the dimension to the text; empty: the text stands at the line
    std::string nome{};    ///< "Larghezza ingresso"
    std::string valore{};  ///< "5,00 m"
    Punto testo{};         ///< on half the height of the name, at the side that `allineamento` tells
    Allineamento allineamento = Allineamento::sinistra;
    double altezza = 1.0;   ///< size of the type, m
    double misurata = 0.0;  ///< the measure as the drawing has it, in its unit
};

/// An upright box.
struct Riquadro {
    Punto minimo{};
    Punto massimo{};
    double larghezza() const { return massimo.x - minimo.x; }
    double altezza() const { return massimo.y - minimo.y; }
};

}  // namespace kelvo::pianta
