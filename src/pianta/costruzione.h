#pragma once

#include "pianta/Pianta.h"

/// The steps of `costruisci`; used inside the room alone.
namespace kelvo::pianta {

/// A plan in the making.
struct Costruzione {
    const DatiPianta& dati;
    const OpzioniPianta& opzioni;
    Pianta& pianta;
    double svolta = 0.0;     ///< the whole plan is turned by this angle, radians
    bool conFlussi = false;  ///< ribbons of flows are drawn

    const Ipotesi& ipotesi() const { return dati.ipotesi; }
    std::size_t numero() const { return pianta.rami.size(); }
    /// Angle of the frame of a leg (index from 0) in the plan.
    double angolo(std::size_t i) const { return pianta.rami[i].direzione + svolta; }
    /// Angle from a leg to the next one.
    double distacco(std::size_t i) const;
    bool corrente(std::size_t i) const { return static_cast<int>(i) + 1 == opzioni.ramo; }
    /// The leg (index from 0) is one of the movement that is shown.
    bool nelMovimento(std::size_t i) const {
        const int ramo = static_cast<int>(i) + 1;
        return opzioni.movimento && (opzioni.movimento->da == ramo || opzioni.movimento->a == ramo);
    }
    /// The kerb of the entry and, mirrored to the right, of the exit of a leg, in its frame.
    Tracciato ciglioIngresso(std::size_t i) const;
    Tracciato ciglioUscita(std::size_t i) const;
    /// Inner radius of the ring and radius of the central island.
    double raggioCorona() const { return pianta.R - pianta.anello; }
    double raggioIsola() const;
    /// Depth at which the ways of movements begin and end.
    double fineCorsie() const { return pianta.lunghezzaRami - 2.0; }
    /// Markings grow with the roundabout.
    double grandezza() const;
    void area(Ruolo ruolo, std::size_t i, const std::string& nome, const Tracciato& contorno);
};

/// Legs: their kerbs, islands and the length that they need.
void disponiRami(Costruzione& opera);
/// Paved areas, islands, ring, kerbs.
void aggiungiCarreggiata(Costruzione& opera);
/// Give-way lines, axes, crossings, arrows, the path of a movement.
void aggiungiSegnaletica(Costruzione& opera);
/// Ribbons of the flows; false if there are none.
bool aggiungiFlussi(Costruzione& opera);
/// Pieces of a `raccordo`.
inline constexpr std::size_t passiRaccordo = 16;
/// A smooth way between two points under two directions.
Tracciato raccordo(Punto da, Punto partenza, Punto a, Punto arrivo);
/// Middle of the lane of a side, from depth `fine` into the ring, where it meets the circle of `raggio` under `angolo`,
/// radians, from the direction of travel; in the leg's frame, mirrored for an exit. Its last piece is one `raccordo`
/// from the mouth of the lane to the circle.
Tracciato mezzeria(const Ciglio& ciglio, double fine, double raggio, double angolo);
/// What is to be seen and the size of its type. The legs reach beyond a close-up on all sides.
void scegliVista(Costruzione& opera);
/// Dimensions of the leg at hand.
void aggiungiQuote(Costruzione& opera);
/// Letters, names, mark and remarks; widens the view where they need room.
void aggiungiScritte(Costruzione& opera);

/// Widens the view for what `mostraStati` may write beside the legs.
void comprendiStati(Costruzione& opera);

/// The measure within the bounds of what can be drawn at all; the lower bound for what is no number.
double disegnabile(const DatiRamo& ramo, Misura quale);
/// A word and the letter of a leg (index from 0): "ingresso A".
std::string conLettera(std::string_view parola, std::size_t i);
/// Width that a text takes at most, about, at a size of the type, m.
double larghezzaStimata(std::string_view testo, double altezza);

}  // namespace kelvo::pianta
