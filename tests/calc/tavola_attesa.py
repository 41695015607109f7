#!/usr/bin/env python3
"""Works out the table of expected records in tavola_attesa.h, apart from any C++ of the project.

Python's numbers are IEEE doubles; a value is rounded to single by packing it into four bytes. The matrix routines are
left out: they cannot change a record. Usage: tavola_attesa.py > tavola_attesa.h
"""

import math
import struct


def single(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]


def half_even(x):
    return round(x)  # Python rounds halves to the even neighbour


VE = [single(x) for x in (2.5, 2.0, 1.8, 1.4, 1.2, 0.8, 1.0)]
SEGMENTS = 8
STEP = 15
WINDOW = 120  # minutes from 07:30; times below are minutes from there


def tidy(n):
    """The tidy project of the tests, leg after leg."""
    legs = []
    for o in range(1, n + 1):
        legs.append({
            "e": 5.5 + 0.5 * o, "v": 3.25 + 0.25 * o, "l": 12.0 + 2 * o, "phi": 26.0 + 3 * o, "r": 14.0 + 4 * o,
            "D": 44.0, "t": (15, 60, 120), "q": (3.5 + 0.25 * o, 7.25 + 0.5 * o, 4.25), "total": 600.0 + 30 * o,
            "table": [70.0 + 9 * ((5 * k + o) % 7) for k in range(SEGMENTS)],
            "classes": [[0, (k + o) % 5, 0, 0, 0, 0, 90] for k in range(SEGMENTS)],
            "shares": [0, 0, 0, 0, 0, 0, 100], "external": 0.0, "pedestrians": 0.0,
        })
    matrix = [[0 if o == c else 40 + 17 * ((2 * o + 3 * c) % 7) for c in range(1, n + 1)] for o in range(1, n + 1)]
    return {"n": n, "legs": legs, "p": [[single(x / sum(row)) for x in row] for row in matrix], "night": 0.0,
            "percentile": 95.0}


def scaled(project, factor):
    for leg in project["legs"]:
        leg["q"] = tuple(single(q * factor) for q in leg["q"])
        leg["table"] = [single(f * factor) for f in leg["table"]]


def mixed(project):
    for leg in project["legs"]:
        leg["shares"] = [4, 3, 2, 1, 1, 9, 80]


def reduced(project):
    project["night"] = 8.0
    legs = project["legs"]
    legs[0]["external"] = -12.5
    legs[1]["pedestrians"] = 17.5
    legs[2]["external"] = 20.0


def parameters(leg):
    k = 1 - (leg["phi"] - 30) * 0.00347 - (1 / leg["r"] - 0.05) * 0.978
    td = 0.5 / (1 + math.exp((leg["D"] - 60) / 10)) + 1
    s = (leg["e"] - leg["v"]) * 1.6 / leg["l"]
    x2 = (leg["e"] - leg["v"]) / (2 * s + 1) + leg["v"]
    return x2 * 303 * k, k * ((0.2 * x2 + 1) * (td * 0.21))


def weights(project, lines):
    """w[s][i]: the two upstream neighbours alone, destinations i + 1 to i + n - 2."""
    n = project["n"]
    w = [[0.0] * n for _ in range(n)]
    for i in range(n):
        for s in ((i + n - 1) % n, (i + n - 2) % n):
            total = 0.0
            for a in range(i + n - 2, i, -1):
                total = single(total + project["p"][s][a % n])
            w[s][i] = single(total * single(lines[i][1]))
    return w


def balanced(f, w):
    n = len(f)
    q = [0.0] * n
    while True:
        change = 0.0
        for i in range(n):
            new = f[i]
            for j in range(n):
                new = single(new - w[j][i] * q[j])
            change = max(change, abs(q[i] - new))
            q[i] = new
        if change < 0.001:
            return q


def composition(leg, mode, k):
    if mode == "0":
        return single(sum(v * single(s) for v, s in zip(VE, leg["shares"])) / 100)
    total = weighted = 0.0
    for v, c in zip(VE, leg["classes"][k] if k < SEGMENTS else [0] * 7):
        total = single(total + c)
        weighted = single(weighted + single(v * c))
    return single(weighted / total) if total else 0.0


def curve_demand(leg, mode, form, share):
    """Demand of the segments of a curve, veic/h."""
    t1, t2, t3 = leg["t"]
    if form != "what-if":
        t3 -= STEP
    g = composition(leg, "0", 0) if mode == "0" else 1.0
    q1, q2, q3 = (single(single(q) * g) for q in leg["q"])
    k1, k2, k3 = t1 // STEP, t2 // STEP, t3 // STEP

    def line(qa, qb, minutes):
        x = half_even(minutes / STEP)
        total, xy, xx = single(qa + qb), single(x * qb), single(x * x)
        det = single(xx - 2 * xx)
        return single((x * total - 2 * xy) / det), single((x * xy - xx * total) / det)

    a1, b1 = line(q1, q2, t2 - t1)
    a2, b2 = line(q2, q3, t3 - t2)
    demand = []
    for k in range(SEGMENTS + 1):
        if k1 <= k <= k2:
            y = single(b1 + single(a1 * (k - k1)))
        elif k2 < k <= k3:
            y = single(b2 + single(a2 * (k - k2)))
        else:
            demand.append(0.0)
            continue
        if form == "right-turn":
            y = single(y - share)
        y = single(y * 60)
        if mode == "1" and form != "what-if":
            y = single(y * composition(leg, mode, k))
        demand.append(y)
    return demand


def table_demand(leg, mode, form, share):
    demand = []
    for k in range(SEGMENTS + 1):
        flow = leg["table"][k] if k < SEGMENTS else 0.0
        g = composition(leg, mode, k)
        if form == "right-turn":
            demand.append(single((flow - share) * 60 * g / STEP))
        else:
            demand.append(single(60 * flow * g / STEP))
    return demand


def queue_and_delay(f, c, percentile, rounded):
    r = single if rounded else (lambda x: x)
    t = WINDOW / (SEGMENTS - 1)
    if rounded:
        t = half_even(t)
    w = r(1 - percentile / 100)
    x = r(f * 60 / c)
    ct = r(c / 60 * t)
    queue = ct / 4 * ((x - 1) + math.sqrt((1 - x) ** 2 + 8 * x / ct * -math.log(w)))
    c1 = r(c / 60)
    a = r((2 + ct) - x * ct)
    delay = (1 / c1 + 1 / (4 * c1) * (math.sqrt(a * a + 8 * ct * x) - a)) * 60
    return single(queue), single(delay)


def run(project, source, mode, form="plain", leg=0, measures=None, lanes=()):
    """Ultimate capacities, and the records [segment][leg]. A what-if comes after the plain run of the same mode."""
    n, legs = project["n"], project["legs"]
    kept = run(project, source, mode)[0] if form == "what-if" and source == "curve" else None
    lines = [parameters(dict(x, **measures) if form == "what-if" and i + 1 == leg else x) for i, x in enumerate(legs)]
    intercepts = [single(line[0]) for line in lines]
    w = weights(project, lines)
    ultimate = kept or balanced(intercepts, w)
    demand = []
    for i, x in enumerate(legs):
        share = 0.0
        if i in lanes:
            share = 100.0 * project["p"][i][(i + 1) % 4] * x["total"] / 100.0 / (STEP * SEGMENTS)
            if mode == "0":
                share *= composition(x, "0", 0)
        demand.append((curve_demand if source == "curve" else table_demand)(x, mode, form, share))
    records = []
    for k in range(SEGMENTS):
        row = []
        for i, x in enumerate(legs):
            cap = intercepts[i]
            for j in range(n):
                if j != i:
                    flow = demand[j][k] if ultimate[j] > demand[j][k] else ultimate[j]
                    cap = single(cap - w[j][i] * flow)
            c = single((100 - project["night"] - single(x["external"]) - single(x["pedestrians"])) * cap / 100)
            f = single(demand[i][k] / 60)
            if source == "curve":
                saturation = single(f * 60 / c) if c > 0 else 0.0
                queue, delay = (0.0, 0.0)
                if f > 0:
                    queue, delay = queue_and_delay(f, c, project["percentile"], form != "what-if")
            else:
                saturation = single(f * 60 / c)
                queue, delay = queue_and_delay(f, c, project["percentile"], False)
            row.append((f, c, saturation, queue, delay))
        records.append(row)
    return ultimate, records


def project_of(n, factor=1.0, mix=False, cut=False):
    project = tidy(n)
    if factor != 1.0:
        scaled(project, factor)
    if mix:
        mixed(project)
    if cut:
        reduced(project)
    return project


WIDER = {"e": 9.5, "v": 4.0, "l": 25.0, "phi": 30.0, "r": 25.0, "D": 50.0}

# n, factor of the demand, mixed classes, reductions; source, mode, form, leg of the what-if, lanes.
CASES = [
    (3, 1.0, False, False, "curve", "0", "plain", 0, ()),
    (4, 1.0, True, True, "curve", "0", "plain", 0, ()),
    (4, 1.0, False, True, "curve", "1", "plain", 0, ()),
    (5, 1.0, True, False, "curve", "1", "plain", 0, ()),
    (5, 3.0, False, True, "curve", "0", "plain", 0, ()),
    (7, 2.5, True, True, "curve", "0", "plain", 0, ()),
    (3, 1.0, False, True, "table", "1", "plain", 0, ()),
    (4, 1.0, True, True, "table", "0", "plain", 0, ()),
    (5, 1.0, False, False, "table", "0", "plain", 0, ()),
    (7, 3.0, False, True, "table", "1", "plain", 0, ()),
    (4, 1.0, True, True, "curve", "0", "what-if", 2, ()),
    (4, 1.5, False, False, "curve", "1", "what-if", 3, ()),
    (4, 1.0, False, True, "table", "1", "what-if", 1, ()),
    (4, 1.0, True, False, "curve", "0", "right-turn", 0, (0, 2)),
    (4, 1.0, False, True, "curve", "1", "right-turn", 0, (1, 3)),
    (4, 1.0, True, True, "table", "0", "right-turn", 0, (0, 1, 2, 3)),
]


def text(x):
    return repr(float("%.9g" % x))


def main():
    print("// Made by tavola_attesa.py, which tells how; not to be edited.")
    print("// clang-format off")
    print("#pragma once")
    print()
    print("#include <array>")
    print()
    print("namespace kelvo::prove {")
    print()
    print("/// A run on the tidy project of `rami` legs: `domanda` multiplies all demand, `mezzi` mixes the classes,")
    print("/// `riduzioni` sets night, pedestrians and external conditions; `ramo` is the leg of the what-if, 0 for none;")
    print("/// `corsie` are the lanes of the right-turn form, one bit each, -1 for another form.")
    print("struct CasoAtteso {")
    print("    int rami;\n    float domanda;\n    bool mezzi;\n    bool riduzioni;\n    bool curva;\n    char modo;")
    print("    int ramo;\n    int corsie;\n};")
    print()
    print("inline constexpr std::array<CasoAtteso, %d> casiAttesi{{" % len(CASES))
    for n, factor, mix, cut, source, mode, form, leg, lanes in CASES:
        bits = sum(1 << lane for lane in lanes) if form == "right-turn" else -1
        print("    {%d, %sF, %s, %s, %s, '%s', %d, %d}," % (n, factor, str(mix).lower(), str(cut).lower(),
              str(source == "curve").lower(), mode, leg, bits))
    print("}};")
    print()
    results = []
    for n, factor, mix, cut, source, mode, form, leg, lanes in CASES:
        results.append(run(project_of(n, factor, mix, cut), source, mode, form, leg, WIDER, lanes))
    capacities = [(number, i + 1, q) for number, (ultimate, _) in enumerate(results) for i, q in enumerate(ultimate)]
    print("/// Ultimate capacity of a leg after a run, veic/h.")
    print("struct CapacitaAttesa {\n    std::size_t caso;\n    int ramo;\n    double valore;\n};")
    print()
    print("inline constexpr std::array<CapacitaAttesa, %d> capacitaAttese{{" % len(capacities))
    for number, i, q in capacities:
        print("    {%d, %d, %s}," % (number, i, text(q)))
    print("}};")
    print()
    rows = []
    for number, (_, records) in enumerate(results):
        for k in (1, 2, 5, 6, 8):
            for i, record in enumerate(records[k - 1]):
                rows.append((number, i + 1, k) + record)
    print("/// A record after a run: Flusso, Capacita, Coeff_Sat, Coda, Ritardo.")
    print("struct RecordAtteso {\n    std::size_t caso;\n    int ramo;\n    int record;")
    print("    std::array<float, 5> valori;\n};")
    print()
    print("inline constexpr std::array<RecordAtteso, %d> recordAttesi{{" % len(rows))
    for row in rows:
        print("    {%d, %d, %d, {%s}}," % (row[:3] + (", ".join(text(x) + "F" for x in row[3:]),)))
    print("}};")
    print()
    print("}  // namespace kelvo::prove")


if __name__ == "__main__":
    main()
