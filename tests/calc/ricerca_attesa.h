// Made by ricerca_attesa.py, which tells how; not to be edited.
// clang-format off
#pragma once

#include <array>

#include "calc/ricercaCurva.h"

namespace kelvo::prove {

/// A search: times in minutes from 08:00, minutes of a segment, texts of q1 and target; where it ends, its
/// steps, the totals as it leaves them and whether the peak looks wrong; the bar of progress, the exact
/// total after the curve was built once more and the approximation, empty where none is shown.
struct RicercaAttesa {
    const char* nome;
    std::array<int, 3> t;
    int minuti;
    const char* q1;
    const char* obiettivo;
    EsitoRicerca esito;
    const char* q2;
    const char* q3;
    int passi;
    const char* arrotondato;
    const char* esatto;
    bool anomala;
    int barra;
    const char* esattoDopo;
    const char* approssimazione;
};

inline constexpr std::array<RicercaAttesa, 35> ricercheAttese{{
    {"PeakWellAboveQ1IsMetInOnePass", {0, 30, 90}, 15, "4", "600", EsitoRicerca::trovata, "7,99", "7", 399, "600", "599,63", false, 20000, "599,63", "-0,0617%"},
    {"MetAtOnceThenAgainWithQ3AtQ1", {0, 30, 90}, 15, "4", "450", EsitoRicerca::trovata, "6,39", "4", 239, "450", "449,63", false, 20000, "449,63", "-0,0822%"},
    {"SecondPassGoesOnWithTheSteps", {0, 30, 90}, 15, "4", "480", EsitoRicerca::trovata, "7,19", "4", 319, "480", "479,63", false, 20000, "479,63", "-0,0771%"},
    {"TargetOneAboveTheFirstTotal", {0, 30, 60}, 10, "5", "346", EsitoRicerca::trovata, "6,82", "5", 182, "346", "345,50", false, 20000, "345,50", "-0,1445%"},
    {"Q1BelowOneStartsQ3ThreeTenthsAbove", {0, 30, 90}, 15, "0,5", "100", EsitoRicerca::trovata, "1,72", "0,8", 122, "100", "99,75", false, 20000, "99,75", "-0,2500%"},
    {"Q1BelowOneWithASecondPass", {0, 30, 90}, 15, "0,5", "60", EsitoRicerca::trovata, "0,89", "0,5", 39, "60", "59,63", false, 20000, "59,63", "-0,6167%"},
    {"Q1JustBelowOne", {0, 30, 60}, 10, "0,99", "200", EsitoRicerca::trovata, "6,42", "1,29", 543, "200", "199,65", false, 20000, "199,65", "-0,1750%"},
    {"Q1OfOneStartsQ3ThreeAbove", {0, 30, 60}, 10, "1", "200", EsitoRicerca::trovata, "4,78", "4", 378, "200", "199,50", false, 20000, "199,50", "-0,2500%"},
    {"Q3TakesQ1AsItWasTyped", {0, 30, 90}, 15, "4,50", "500", EsitoRicerca::trovata, "7,02", "4,50", 252, "500", "499,50", false, 20000, "499,50", "-0,1000%"},
    {"ThirtyMinutesASegment", {0, 60, 180}, 30, "3", "1000", EsitoRicerca::trovata, "6,73", "6", 373, "1000", "999,75", false, 20000, "999,75", "-0,0250%"},
    {"FiveMinutesASegment", {0, 30, 60}, 5, "7,25", "500", EsitoRicerca::trovata, "9,6", "7,25", 235, "500", "499,63", false, 20000, "499,63", "-0,0740%"},
    {"TargetBelowTheFirstTotalFailsAtOnce", {0, 30, 90}, 15, "10", "500", EsitoRicerca::fallita, "9,99", "13", 0, "990", "990,00", false, 0, "989,63", "97,9260%"},
    {"TargetOfZeroFails", {0, 30, 90}, 15, "4", "0", EsitoRicerca::fallita, "3,99", "7", 0, "450", "450,00", false, 0, "449,63", ""},
    {"TargetBelowZeroFails", {0, 30, 90}, 15, "4", "-10", EsitoRicerca::fallita, "3,99", "7", 0, "450", "450,00", false, 0, "449,63", "-4596,3000%"},
    {"PeakThatComesDownToZeroFailsAfterItsSteps", {0, 30, 90}, 15, "-1", "-50,5", EsitoRicerca::fallita, "-0,19", "-0,7", 82, "-50", "-50,25", false, 82, "-50,63", "0,2574%"},
    {"PeakOfFifteenAboveQ1IsNoAnomaly", {0, 30, 60}, 10, "2,11", "547", EsitoRicerca::trovata, "17,11", "5,11", 1500, "547", "546,60", false, 20000, "546,60", "-0,0731%"},
    {"PeakJustPastFifteenAboveQ1IsAnAnomaly", {0, 30, 60}, 10, "2,04", "543", EsitoRicerca::trovata, "17,05", "5,04", 1501, "543", "542,65", true, 20000, "542,65", "-0,0645%"},
    {"PeakFarAboveQ1IsAnAnomaly", {0, 30, 90}, 15, "4", "1500", EsitoRicerca::trovata, "31,99", "7", 2799, "1500", "1499,63", true, 20000, "1499,63", "-0,0247%"},
    {"TargetOf5000", {0, 60, 180}, 10, "20", "5000", EsitoRicerca::trovata, "34,35", "23", 1435, "5000", "4999,75", false, 20000, "4999,75", "-0,0050%"},
    {"TargetOf5001", {0, 60, 180}, 10, "20", "5001", EsitoRicerca::trovata, "34,36", "23", 1436, "5001", "5000,60", false, 20000, "5000,60", "-0,0080%"},
    {"TargetThatTheStepsDoNotReach", {0, 30, 60}, 10, "5", "9000", EsitoRicerca::passiEsauriti, "205", "8", 20000, "5345", "5345,00", false, 20000, "5345,00", "-40,6111%"},
    {"TargetMetAtTheStepBeforeTheLast", {0, 30, 60}, 10, "5,03", "5347", EsitoRicerca::trovata, "205,02", "8,03", 19999, "5347", "5346,55", true, 20000, "5346,55", "-0,0084%"},
    {"TargetMetAtTheLastStepIsNotSeen", {0, 30, 60}, 10, "5,01", "5346", EsitoRicerca::passiEsauriti, "205,01", "8,01", 20000, "5346", "5345,60", false, 20000, "5345,60", "-0,0075%"},
    {"TotalsThatStepOverTheTarget", {0, 180, 360}, 5, "3", "3000", EsitoRicerca::passiEsauriti, "12,3", "6", 20000, "3001", "3000,75", false, 20000, "3000,75", "0,0250%"},
    {"TotalsOfALongDayThatMeetTheTarget", {0, 180, 360}, 5, "3", "2000", EsitoRicerca::trovata, "6,66", "6", 366, "2000", "1999,65", false, 20000, "1999,65", "-0,0175%"},
    {"TargetOfHalfAVehicleIsNeverMet", {0, 30, 90}, 15, "4", "600,5", EsitoRicerca::passiEsauriti, "8,02", "7", 20000, "601", "600,75", false, 20000, "600,75", "0,0416%"},
    {"TargetWithinAHundredthOfAVehicle", {0, 30, 90}, 15, "4", "600,005", EsitoRicerca::trovata, "7,99", "7", 399, "600", "599,63", false, 20000, "599,63", "-0,0625%"},
    {"TargetAHundredthAndAHalfOff", {0, 30, 90}, 15, "4", "600,015", EsitoRicerca::passiEsauriti, "8,02", "7", 20000, "601", "600,75", false, 20000, "600,75", "0,1225%"},
    {"FlatCurveNeverEndsButByItsSteps", {0, 30, 60}, 15, "5", "400", EsitoRicerca::passiEsauriti, "7,68", "7,68", 20000, "401", "400,50", false, 20000, "400,50", "0,1250%"},
    {"FlatCurveFails", {0, 30, 60}, 15, "5,50", "100", EsitoRicerca::fallita, "5,49", "5,50", 0, "330", "330,00", false, 0, "329,63", "229,6300%"},
    {"NoRiseCountsAsNothing", {30, 30, 90}, 15, "4", "300", EsitoRicerca::passiEsauriti, "204", "7", 20000, "", "", false, 20000, "", "-100,0000%"},
    {"NoFallCountsAsNothing", {0, 30, 30}, 15, "4", "300", EsitoRicerca::passiEsauriti, "204", "204", 20000, "", "", false, 20000, "", "-100,0000%"},
    {"NoRiseWithATargetOfZero", {30, 30, 90}, 15, "4", "0", EsitoRicerca::trovata, "4,02", "4", 2, "", "", false, 20000, "", ""},
    {"NoRiseFailsBelowZero", {30, 30, 90}, 15, "4,0", "-1", EsitoRicerca::fallita, "3,99", "7", 0, "", "", false, 0, "", "-100,0000%"},
    {"HalfASegmentBehindThePeak", {0, 30, 65}, 10, "6", "700", EsitoRicerca::trovata, "17,78", "9", 1178, "700", "699,50", false, 20000, "699,50", "-0,0714%"},
}};

}  // namespace kelvo::prove
