#!/usr/bin/env python3
"""Works out the table of expected searches in ricerca_attesa.h, apart from any C++ of the project.

The fields of the window are texts here too, and every number is read from one and written to one; a value is rounded
to single by packing it into four bytes. Usage: ricerca_attesa.py > ricerca_attesa.h
"""

import struct
from decimal import ROUND_HALF_UP, Decimal


def single(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]


def number(text):
    return float(text.replace(",", ".")) if text else 0.0


def plain(x):
    """The text of a double: 15 significant digits, no zeros at the end."""
    text = format(Decimal("%.15g" % x), "f")
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    return text.replace(".", ",")


def shown(x, digits, decimals):
    """A pattern: the plain text of `digits` significant digits, rounded half away from zero."""
    step = Decimal(1).scaleb(-decimals)
    value = Decimal("%.*g" % (digits, x)).quantize(step, rounding=ROUND_HALF_UP)
    return str(value if value else abs(value)).replace(".", ",")


class Window:
    """The fields that a search reads and writes."""

    def __init__(self, times, m, q1, target):
        self.t1, self.t2, self.t3 = times
        self.m = m
        self.q1, self.q2, self.q3 = q1, "", ""
        self.target = target
        self.rounded, self.exact = "", ""  # totals "#0" and "#0.00"
        self.bar = 0

    def build(self):
        n1 = round((self.t2 - self.t1) / self.m)
        n2 = round((self.t3 - self.t2) / self.m - 1)
        flat = 0 if n2 > 1 else 1
        if flat:
            self.q3 = self.q2
        n2 = round((self.t3 - self.t2) / self.m - 1 + flat)
        if n1 == 0 or n2 == 0:
            return
        q1, q2, q3 = number(self.q1), number(self.q2), number(self.q3)
        p1, p2 = single((q2 - q1) / n1), single((q3 - q2) / n2)
        total, self.bars = 0.0, []
        for i in range(abs(n1) + abs(n2) - flat + 1):
            flow = single(q1 + i * p1 if i <= n1 else q2 + (i - n1) * p2)
            self.bars.append((self.t1 + i * self.m if i <= n1 else self.t2 + (i - n1) * self.m, flow))
            total = single(total + flow * self.m)
        self.total = total
        self.rounded, self.exact = shown(total, 7, 0), shown(total, 7, 2)

    def approximation(self):
        if number(self.target) == 0:
            return ""
        value = -(100 - number(self.exact) / number(self.target) * 100)
        return shown(value, 15, 4) + "%"


def search(w):
    """The outcome and the number of steps."""
    target = number(w.target)
    n = 1
    step = 0.3 if number(w.q1) < 1 else 3.0
    w.q2 = w.q1
    w.q3 = plain(number(w.q1) + step)
    while True:
        w.build()
        d = target - number(w.rounded)
        while True:
            if d >= 0:
                w.q2 = plain(number(w.q2) + 0.01)
            else:
                w.q2 = plain(number(w.q2) - 0.01)
                if number(w.q2) <= 0 or number(w.q1) > number(w.q2):
                    w.fields = (w.q2, w.q3, w.rounded, w.exact)
                    w.build()
                    return "fallita", n - 1
            w.build()
            n += 1
            w.bar = n - 1
            if n > 20000:
                w.fields = (w.q2, w.q3, w.rounded, w.exact)
                return "passiEsauriti", n - 1
            d = target - number(w.rounded)
            if abs(d) < 0.01:
                break
        w.bar = 20000
        if number(w.q3) < number(w.q2):
            w.fields = (w.q2, w.q3, w.rounded, w.exact)
            return "trovata", n - 1
        w.q3 = w.q1


HALF = (0, 30, 60)
LONG = (0, 30, 90)
DAY = (0, 180, 360)

# name, times in minutes from 08:00, minutes of a segment, q1, target
CASES = [
    ("PeakWellAboveQ1IsMetInOnePass", LONG, 15, "4", "600"),
    ("MetAtOnceThenAgainWithQ3AtQ1", LONG, 15, "4", "450"),
    ("SecondPassGoesOnWithTheSteps", LONG, 15, "4", "480"),
    ("TargetOneAboveTheFirstTotal", HALF, 10, "5", "346"),
    ("Q1BelowOneStartsQ3ThreeTenthsAbove", LONG, 15, "0,5", "100"),
    ("Q1BelowOneWithASecondPass", LONG, 15, "0,5", "60"),
    ("Q1JustBelowOne", HALF, 10, "0,99", "200"),
    ("Q1OfOneStartsQ3ThreeAbove", HALF, 10, "1", "200"),
    ("Q3TakesQ1AsItWasTyped", LONG, 15, "4,50", "500"),
    ("ThirtyMinutesASegment", (0, 60, 180), 30, "3", "1000"),
    ("FiveMinutesASegment", HALF, 5, "7,25", "500"),
    ("TargetBelowTheFirstTotalFailsAtOnce", LONG, 15, "10", "500"),
    ("TargetOfZeroFails", LONG, 15, "4", "0"),
    ("TargetBelowZeroFails", LONG, 15, "4", "-10"),
    ("PeakThatComesDownToZeroFailsAfterItsSteps", LONG, 15, "-1", "-50,5"),
    ("PeakOfFifteenAboveQ1IsNoAnomaly", HALF, 10, "2,11", "547"),
    ("PeakJustPastFifteenAboveQ1IsAnAnomaly", HALF, 10, "2,04", "543"),
    ("PeakFarAboveQ1IsAnAnomaly", LONG, 15, "4", "1500"),
    ("TargetOf5000", (0, 60, 180), 10, "20", "5000"),
    ("TargetOf5001", (0, 60, 180), 10, "20", "5001"),
    ("TargetThatTheStepsDoNotReach", HALF, 10, "5", "9000"),
    ("TargetMetAtTheStepBeforeTheLast", HALF, 10, "5,03", "5347"),
    ("TargetMetAtTheLastStepIsNotSeen", HALF, 10, "5,01", "5346"),
    ("TotalsThatStepOverTheTarget", DAY, 5, "3", "3000"),
    ("TotalsOfALongDayThatMeetTheTarget", DAY, 5, "3", "2000"),
    ("TargetOfHalfAVehicleIsNeverMet", LONG, 15, "4", "600,5"),
    ("TargetWithinAHundredthOfAVehicle", LONG, 15, "4", "600,005"),
    ("TargetAHundredthAndAHalfOff", LONG, 15, "4", "600,015"),
    ("FlatCurveNeverEndsButByItsSteps", (0, 30, 60), 15, "5", "400"),
    ("FlatCurveFails", (0, 30, 60), 15, "5,50", "100"),
    ("NoRiseCountsAsNothing", (30, 30, 90), 15, "4", "300"),
    ("NoFallCountsAsNothing", (0, 30, 30), 15, "4", "300"),
    ("NoRiseWithATargetOfZero", (30, 30, 90), 15, "4", "0"),
    ("NoRiseFailsBelowZero", (30, 30, 90), 15, "4,0", "-1"),
    ("HalfASegmentBehindThePeak", (0, 30, 65), 10, "6", "700"),
]


def main():
    rows = []
    for name, times, m, q1, target in CASES:
        w = Window(times, m, q1, target)
        outcome, steps = search(w)
        q2, q3, rounded, exact = w.fields
        anomaly = outcome == "trovata" and number(q2) - number(q1) > 15
        rows.append((name, times, m, q1, target, outcome, q2, q3, steps, rounded, exact, anomaly, w.bar, w.exact,
                     w.approximation()))
    print("// Made by ricerca_attesa.py, which tells how; not to be edited.")
    print("// clang-format off")
    print("#pragma once")
    print()
    print("#include <array>")
    print()
    print('#include "calc/ricercaCurva.h"')
    print()
    print("namespace kelvo::prove {")
    print()
    print("/// A search: times in minutes from 08:00, minutes of a segment, texts of q1 and target; where it ends, its")
    print("/// steps, the totals as it leaves them and whether the peak looks wrong; the bar of progress, the exact")
    print("/// total after the curve was built once more and the approximation, empty where none is shown.")
    print("struct RicercaAttesa {")
    print("    const char* nome;\n    std::array<int, 3> t;\n    int minuti;\n    const char* q1;")
    print("    const char* obiettivo;\n    EsitoRicerca esito;\n    const char* q2;\n    const char* q3;\n    int passi;")
    print("    const char* arrotondato;\n    const char* esatto;\n    bool anomala;\n    int barra;")
    print("    const char* esattoDopo;\n    const char* approssimazione;\n};")
    print()
    print("inline constexpr std::array<RicercaAttesa, %d> ricercheAttese{{" % len(rows))
    for (name, times, m, q1, target, outcome, q2, q3, steps, rounded, exact, anomaly, bar, after, approx) in rows:
        print('    {"%s", {%d, %d, %d}, %d, "%s", "%s", EsitoRicerca::%s, "%s", "%s", %d, "%s", "%s", %s, %d, "%s", '
              '"%s"},' % ((name,) + times + (m, q1, target, outcome, q2, q3, steps, rounded, exact,
                                             str(anomaly).lower(), bar, after, approx)))
    print("}};")
    print()
    print("}  // namespace kelvo::prove")


if __name__ == "__main__":
    main()
