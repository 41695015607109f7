#pragma once

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "app/Applicazione.h"
#include "model/Iterazione.h"

/// A second engine, for the tests: written apart from the program's own, step after step, with no care for speed and no
/// step left out, on plain structs. Where the two differ one of them is wrong.
namespace kelvo::prove::oracolo {

/// Number that stands for the fault of a sweep without end; the classic faults have their classic numbers.
inline constexpr int nonConverge = -1;

/// The six measures of an entry.
struct Misure {
    float e = 0.0F;
    float v = 0.0F;
    float l = 0.0F;
    float phi = 0.0F;
    float r = 0.0F;
    float D = 0.0F;
};

/// One leg: what the calculation reads, and what it leaves.
struct Ingresso {
    Misure misure;
    bool pedonale = false;
    double incidenzaPedonale = 0.0;
    double condizioniEsterne = 0.0;
    DataOra t1 = 0.0;
    DataOra t2 = 0.0;
    DataOra t3 = 0.0;
    float q1 = 0.0F;
    float q2 = 0.0F;
    float q3 = 0.0F;
    float flussoTotale = 0.0F;
    int numSegmenti = 0;
    std::array<float, 7> percentuali{};           ///< of the classes, Autoarticolati first
    std::vector<float> flussi;                    ///< vehicles of each segment, from 0
    std::vector<std::array<float, 7>> categorie;  ///< vehicles of each segment by class, from 0

    double K = 0.0;
    double Td = 0.0;
    double S = 0.0;
    double X2 = 0.0;
    double F = 0.0;
    double Fc = 0.0;
    double CapacitaUltima = 0.0;
    std::map<int, Iterazione> record;  ///< by number, from 1
};

/// The project.
struct Progetto {
    int n = 0;  ///< NumeroRami
    std::vector<Ingresso> ingressi;
    std::vector<std::vector<float>> p;  ///< turning matrix as fractions, origin by destination
    DataOra inizio = 0.0;
    DataOra fine = 0.0;
    DataOra segmento = 0.0;
    float percentile = 0.0F;
    bool notturne = false;
    int percentualeNotturna = 0;
    std::array<float, 7> VE{};
    std::array<double, 4> quoteDX{};
};

/// One leg with other measures; a number that matches no leg changes nothing.
struct Ipotesi {
    int indice = 0;
    Misure misure;
};

enum class Forma { piana, ipotesi, corsie };

/// How an operation ended.
struct Esito {
    int guasto = 0;                            ///< 0 for none
    std::vector<std::pair<int, int>> scritti;  ///< records written, in order: number and leg, both from 1
};

/// What is asked of a simulation.
struct Richiesta {
    Forma forma = Forma::piana;
    std::string modo = "0";
    Ipotesi ipotesi;
    std::array<bool, 4> corsie{};
};

/// Copies the project at hand, with the results that it holds; `quoteDX` as the engine holds it.
Progetto leggi(const Applicazione& app, const std::array<double, 4>& quoteDX);

// The operations. Each works on `p` in place, as the engine does on the project.
Esito bilanciamento(Progetto& p);
Esito bilanciamento(Progetto& p, const Ipotesi& ipotesi);
Esito tempoFlusso(Progetto& p, const Richiesta& richiesta);
Esito tempoFlussoST(Progetto& p, const Richiesta& richiesta);

// The pieces, for the tests of the oracle itself and for the two simulations.

/// A run-time fault of the oracle.
struct Difetto {
    int numero;
};

using MatriceDoppia = std::vector<std::vector<double>>;
using MatriceSingola = std::vector<std::vector<float>>;

/// Rounds to single; fault 6 if it does not fit.
float singolo(double valore);
/// Fault 6 for an infinity or a NaN.
double doppio(double valore);
/// Fault 11 for a divisor of 0.
double diviso(double a, double b);
/// Nearest whole number, halves to even.
double intero(double valore);
/// Fault 6 outside 16 bits.
int sedici(double valore);
/// Fault 9 where there is no such leg; from 0.
Ingresso& ramo(Progetto& p, int i);

/// `ipotesi` may be null.
void parametri(Progetto& p, const Ipotesi* ipotesi);
MatriceSingola costruisciMatrice(Progetto& p);
double determinante(int n, const MatriceDoppia& A);
MatriceDoppia trasposta(int n, const MatriceDoppia& A);
MatriceDoppia inversa(int n, const MatriceDoppia& A, const MatriceDoppia& T, double det);
std::vector<double> prodotto(int n, const std::vector<double>& b, const MatriceDoppia& A);
/// Determinant, transposed, inverse and product in their order.
std::vector<double> catena(int n, const std::vector<double>& b, const MatriceSingola& M);
std::vector<float> iteraSingolo(const std::vector<float>& F, const MatriceSingola& W);
std::vector<double> iteraDoppio(const std::vector<double>& F, const MatriceSingola& W);
/// Parameters, matrix, its routines and the sweep in single precision, as inside a simulation; M is left in `M`.
std::vector<float> bilancia(Progetto& p, const Ipotesi* ipotesi, MatriceSingola& M);

/// Queue and delay of a segment, each named value rounded to single.
struct CodaRitardo {
    float coda = 0.0F;
    float ritardo = 0.0F;
};
/// f veic/min, c veic/h, percentile per cent, T minutes.
CodaRitardo codaSingola(float f, float c, float percentile, int T);
/// The same with nothing rounded on the way.
CodaRitardo codaDoppia(float f, float c, float percentile, double T);

}  // namespace kelvo::prove::oracolo
