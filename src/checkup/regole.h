#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"
#include "checkup/report.h"
#include "model/Rotonda.h"

namespace kelvo {

/// The headings of the findings.
namespace titoliRegole {
inline constexpr std::string_view anagrafica = "Anagrafica rotatoria:";
inline constexpr std::string_view professionista = "Anagrafica Professionista:";
inline constexpr std::string_view tempo = "Tempo di Modellazione:";
inline constexpr std::string_view toponomastica = "Toponomastica Intersezione:";
inline constexpr std::string_view geometria = "Geometria Ingresso:";
inline constexpr std::string_view geometriaPesanti = "Geometria ingresso:";  ///< of the rules on heavy vehicles
inline constexpr std::string_view traffico = "Dati di traffico:";
inline constexpr std::string_view matrice = "Matrice delle svolte:";
inline constexpr std::string_view composizione = "Composizione traffico:";
}  // namespace titoliRegole

/// A rule on a field of a registry window, judged by the text that it shows.
struct RegolaCampo {
    Livello livello = Livello::Green;
    std::string_view campo;
    /// What the field shows when it was read from the project.
    std::string (*leggi)(const Rotonda& rotonda) = nullptr;
    bool (*vale)(const std::string& testo, DataOra oggi) = nullptr;
    std::string_view messaggio;
};

/// What the rules on a leg look at.
struct EsameRamo {
    const Rotonda& rotonda;
    const Ramo& ramo;
    std::int16_t indice = 1;  ///< position of the leg, from 1
    float somma = 0.0F;       ///< vehicles of its row of the turning matrix, as the cells show them
    float destra = 0.0F;      ///< those of them that turn right: the cell of the next leg, of the first for the last
};

/// A rule that runs once a leg. In its message {ramo} stands for the leg's name, {lettera} for its letter, {v} for its
/// half-width, {somma} and {totale} for the vehicles of its row and of its demand.
struct RegolaRamo {
    Livello livello = Livello::Yellow;
    std::string_view titolo;
    bool (*vale)(const EsameRamo& esame) = nullptr;
    std::string_view messaggio;
    std::string_view campo;  ///< control that the finding leads to; "{n}" stands for the position of the leg
    /// Tells the control where it is not the same for all legs; null for `campo`.
    std::string_view (*campoDi)(const EsameRamo& esame) = nullptr;
};

/// The vehicle classes as the messages on their coefficients name them, in the order of the configuration file.
inline constexpr std::array<std::string_view, 7> nomiCoefficienti{
    "Autoarticolati", "Autotreni", "Autobus", "Camper", "Veicoli ricreativi", "Veicoli a due ruote", "Autovetture"};

// The rules in the order of their findings.
std::span<const RegolaCampo> regoleAnagrafica();
std::span<const RegolaCampo> regoleProfessionista();
std::span<const RegolaRamo> regoleToponomastica();
std::span<const RegolaRamo> regoleGeometria();
/// Of these the first that holds speaks, the others are passed over.
std::span<const RegolaRamo> regoleTraffico();
std::span<const RegolaRamo> regoleMatriceVeicoli();
std::span<const RegolaRamo> regoleComposizione();
std::span<const RegolaRamo> regoleComposizioneSegmenti();

/// Messages of the rules that run once for the project.
namespace messaggiRegole {
inline constexpr std::string_view segmentoAmpio =
    "Il segmento di tempo utilizzato è troppo ampio rispetto alla finestra di analisi impostata, analisi poco "
    "attendibile";
inline constexpr std::string_view diametriDifferenti =
    "Diametri differenti per ingresso = rotatoria non circolare.Verificare inserimento dati input";
inline constexpr std::string_view matriceNulla =
    "Non è stata defininita nessuna Matrice di Origine-Destinazione, valori nulli";
inline constexpr std::string_view percentualiErrate = "Attenzione valori espressi in %, somme non corrette";
inline constexpr std::string_view coefficiente =
    "Attenzione.Valore di rapporto equivalenza veicolo personalizzato ({nome} ={valore}veic.eq.) .Verificare";
}  // namespace messaggiRegole

/// True where a segment of so many minutes is too long for the modelling window: exactly 20 or 30 in one shorter than
/// 90 minutes.
bool segmentoTroppoAmpio(std::int64_t finestra, double segmento);

/// The message of a rule on a leg with its values in place. Fault 6 for a value that is not finite.
std::string messaggioRamo(const RegolaRamo& regola, const EsameRamo& esame);

}  // namespace kelvo
