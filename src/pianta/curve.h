#pragma once

#include <optional>

#include "pianta/primitive.h"

/// Arithmetic of points, arcs and lines.
namespace kelvo::pianta {

inline constexpr double pi = 3.14159265358979323846;

constexpr double radianti(double gradi) {
    return gradi * pi / 180.0;
}
constexpr double gradi(double radianti) {
    return radianti * 180.0 / pi;
}

constexpr Punto operator+(Punto a, Punto b) {
    return {a.x + b.x, a.y + b.y};
}
constexpr Punto operator-(Punto a, Punto b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr Punto operator*(Punto a, double k) {
    return {a.x * k, a.y * k};
}
constexpr double scalare(Punto a, Punto b) {
    return a.x * b.x + a.y * b.y;
}
constexpr double vettoriale(Punto a, Punto b) {
    return a.x * b.y - a.y * b.x;
}
double norma(Punto a);
/// Unit vector; (1, 0) for the null vector.
Punto versore(Punto a);
/// Counter-clockwise by an angle, radians.
Punto ruotato(Punto a, double angolo);
/// At a distance from the centre under an angle from the x axis, radians.
Punto polare(double raggio, double angolo);
/// A quarter turn to the left.
constexpr Punto aSinistra(Punto a) {
    return {-a.y, a.x};
}

/// Bulge of an arc that turns left by `angolo`, radians (right for a negative one).
double bombaturaDi(double angolo);

/// The circle of a piece with a bulge other than 0.
struct Cerchio {
    Punto centro;
    double raggio = 0.0;
    double da = 0.0;    ///< angle of the piece's start, radians
    double gira = 0.0;  ///< angle that it turns by, positive to the left
};
Cerchio cerchioDi(Punto da, Punto a, double bombatura);

/// The point at a share (0 to 1) of a piece.
Punto puntoSu(const Vertice& da, Punto a, double quota);

/// `tracciato` as a chain of points, the pieces of an arc no longer than `passo` radians; the ends are exact.
/// `chiuso`: goes on to the first vertex again, without repeating it.
std::vector<Punto> spezzata(const Tracciato& tracciato, bool chiuso, double passo = 0.05);

/// The same way walked from its end.
Tracciato inverso(const Tracciato& tracciato);
/// Mirrored in the y axis.
Tracciato specchiato(const Tracciato& tracciato);
Tracciato ruotato(const Tracciato& tracciato, double angolo);
/// A full circle, counter-clockwise, as two arcs.
Tracciato circonferenza(Punto centro, double raggio);
/// `altro` behind `tracciato`; a first vertex that stands on the last one is joined with it.
void accoda(Tracciato& tracciato, const Tracciato& altro);

/// Part of a way, with the bulges of the pieces that are cut.
/// The cuts are given as piece (from 0) and share of it.
struct Posizione {
    std::size_t pezzo = 0;
    double quota = 0.0;
};
Punto puntoIn(const Tracciato& tracciato, Posizione dove);
Tracciato fino(const Tracciato& tracciato, Posizione dove);

/// Angle of a point about the centre, radians, counter-clockwise from the downward axis, on which a leg stands in its
/// own frame.
double azimut(Punto p);
/// At a distance from the centre under an azimuth.
Punto sulCerchio(double raggio, double azimut);

/// Where a way whose azimuth grows from its start to its end is met by the ray of an azimuth, radians; nothing outside
/// its reach.
std::optional<Posizione> incontro(const Tracciato& tracciato, double angolo);

/// The x of a way that goes up from its start to its end, at a height; nothing outside its reach.
std::optional<double> ascissa(const Tracciato& tracciato, double y);

/// Area within a closed way, positive if it runs counter-clockwise, m2.
double superficie(const Tracciato& contorno);

/// The value in [da, a] where `f`, which is not negative at `da` and negative at `a`, changes its sign.
template <class F>
double bisezione(double da, double a, F f) {
    constexpr int passi = 200;
    for (int i = 0; i < passi; ++i) {
        const double mezzo = da + (a - da) / 2;
        if (mezzo <= da || mezzo >= a) {
            break;
        }
        (f(mezzo) >= 0 ? da : a) = mezzo;
    }
    return da;
}

}  // namespace kelvo::pianta
