#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabella.h"
#include "base/date.h"
#include "model/Rotonda.h"
#include "shell/servizi/CellaGriglia.h"

namespace kelvo {

/// What an entry, or the junction, comes to in its own peak hour; flows in the peak hour alone, the largest saturation
/// over the whole study. All figures are rounded to single, as those of the records.
struct VoceSintesi {
    std::int16_t segmento = 0;     ///< first segment of the peak hour, from 1; 0 where nothing flows: no hour is it
    std::int16_t segmenti = 0;     ///< of the peak hour
    float Flusso = 0.0F;           ///< mean of the hour, veic/h
    float Capacita = 0.0F;         ///< mean of its segments, veic/h; of the junction the sum of those of the entries
    std::optional<float> riserva;  ///< 1 - Flusso / Capacita; none for a capacity that is not above 0
    float riservaVeicoli = 0.0F;   ///< Capacita - Flusso, veic/h
    float Ritardo = 0.0F;          ///< mean delay, weighted by the flows, s/veic
    std::string livello;           ///< level of service of that delay
    float Coeff_Sat = 0.0F;        ///< largest saturation of the study
    std::int16_t segmentoSat = 0;  ///< first segment that has it, from 1; 0 where it is 0 in all of them
    bool saturazioneAlta = false;  ///< it is above `sogliaSaturazione`, as it is shown
    std::int16_t ingressoSat = 0;  ///< entry that has it, from 1; 0 for none
};

/// Peak hours of all entries and of the junction.
struct SintesiNodo {
    int minutiSegmento = 0;
    std::int16_t segmentiOra = 0;  ///< segments that a peak hour has; an entry that has fewer is its own hour
    bool oraIntera = false;        ///< they make 60 minutes
    bool studioBreve = false;      ///< the study has no 60 minutes: all its segments are the hour
    std::vector<VoceSintesi> ingressi;
    VoceSintesi nodo;  ///< its `ingressoSat` is the worst entry: the first of those with the largest saturation
};

/// A saturation above it, as it is shown, asks for attention.
inline constexpr double sogliaSaturazione = 0.85;

/// Finds the peak hours in the records of all entries.
///
/// The peak hour is made of whole segments: as many as fit into 60 minutes, in a shorter study all there are. It is the
/// run of so many neighbouring segments with the largest flow, the first of those whose flows are shown alike; flows
/// are brought to the hour by the mean. The junction takes the sum of the flows of all entries. Fault 11 for segments
/// of 0 minutes, fault 6 for a figure past the range of numbers.
SintesiNodo sintesiNodo(const Rotonda& rotonda);

/// Start and end of so many segments from segment `primo` on, from 1: "HH:NN - HH:NN".
std::string testoOra(const Rotonda& rotonda, std::int16_t primo, std::int16_t segmenti);

/// Columns of the table.
inline constexpr int colonneSintesi = 10;
inline constexpr int colonnaSatSintesi = 6;
inline constexpr int colonnaLivelloSintesi = 9;

/// The empty table: headings, a row for each entry, a last one for the junction.
Tabella tabellaSintesiVuota(const Rotonda& rotonda);
/// The table with its figures; "-" stands where there is none to tell.
Tabella tabellaSintesi(const Rotonda& rotonda, const SintesiNodo& sintesi);
/// What stands in a cell of the table beside its text: badge of a level, warning of a high saturation.
OrnamentoCella ornamentoSintesi(const Tabella& tabella, Posto posto);

/// The entries whose saturation is high, each with its segment; empty where there is none.
std::string avvisoSaturazione(const Rotonda& rotonda, const SintesiNodo& sintesi);
/// The worst entry in words; empty where nothing flows.
std::string ingressoPeggiore(const Rotonda& rotonda, const SintesiNodo& sintesi);
/// Of what the peak hour is made.
std::string notaOraDiPunta(const SintesiNodo& sintesi);
/// Of what the figures are.
inline constexpr std::string_view notaFigureSintesi =
    "Flusso, capacità, riserva e ritardo (media pesata sui flussi) sono dell'ora di punta, la saturazione massima è di "
    "tutto lo studio. La capacità del nodo è la somma di quelle degli ingressi nella sua ora di punta, non la capacità "
    "ultima.";

/// The texts above, those that are not empty, a line each.
std::vector<std::string> paroleSintesi(const Rotonda& rotonda, const SintesiNodo& sintesi);

/// The table as a text of its own, with lines of words below it; `momento` is the date and time of the closing lines.
std::string testoSintesi(const Tabella& tabella, const std::vector<std::string>& parole, const std::string& nomeFile,
                         DataOra momento);

}  // namespace kelvo
