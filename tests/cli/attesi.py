#!/usr/bin/env python3
"""Writes the expected texts of tests/cli/attesi/ from the example projects, apart from any C++ of the project.

The figures come from tests/calc/tavola_attesa.py, those of the demand curves from ricerca_attesa.py; the layout of the tables is written down once more here.
Usage: attesi.py
"""

import json
import math
import pathlib
import sys
from decimal import ROUND_HALF_UP, Decimal

QUI = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(QUI.parent / "calc"))
import ricerca_attesa as curve  # noqa: E402
import tavola_attesa as motore  # noqa: E402

PROGETTI = QUI.parent.parent / "assets" / "Progetti"
IN_JSON = "Rotatoria_Via_dei_Mulini"
CLASSES = ("Autoarticolati", "Autotreni", "Pullman", "Camper", "Roulotte", "VeicoliDueRuote", "Autovetture")


def minutes(text):
    hours, rest = text.split(":")[:2]
    return int(hours) * 60 + int(rest)


def clock(m):
    return "%02d:%02d" % (m // 60 % 24, m % 60)


def shown(x, decimals):
    """Seven significant digits, then half away from zero, with a decimal comma."""
    step = Decimal(1).scaleb(-decimals)
    value = Decimal("%.7g" % x).quantize(step, rounding=ROUND_HALF_UP)
    return (str(value) if value else str(step - step)).replace(".", ",")


def shown_double(x, decimals):
    step = Decimal(1).scaleb(-decimals)
    return str(Decimal("%.15g" % x).quantize(step, rounding=ROUND_HALF_UP)).replace(".", ",")


def leg_of(file, start):
    traffic, kinds, sensitivity = file["theDatiTraffico"], file["theComposizioneTraffico"], file["theAnalisiMarginale"]
    return {
        "e": file["LarghezzaIngresso"], "v": file["SemiLarghezza"], "l": file["LunghezzaSvasatura"],
        "phi": file["AngoloConflitto"], "r": file["RaggioIngresso"], "D": file["DiametroInscritto"],
        "t": tuple(minutes(traffic["Tempo%d" % i]) - start for i in (1, 2, 3)),
        "q": tuple(traffic["FlussoTempo%d" % i] for i in (1, 2, 3)), "total": traffic["FlussoTotale"],
        "table": traffic["FlussoSegmento"], "classes": kinds["CategoriaSegmento"],
        "shares": [kinds[name] for name in CLASSES],
        "external": sensitivity["CondizioniEsterne"],
        "pedestrians": sensitivity["AttraversamentoPedonale"] if file["AttraversamentoPedonale"] else 0.0,
    }


def project_of(file):
    start = minutes(file["TempoIniziale"])
    rows = []
    for i, row in enumerate(file["MatriceSvolte"]):
        whole = 100 if file["TipoMatriceSvolte"] == 1 else sum(row)
        rows.append([motore.single(x / whole) if whole else 0.0 for x in row])
    motore.STEP = minutes(file["SegmentoTempo"])
    motore.WINDOW = minutes(file["TempoFinale"]) - start
    motore.SEGMENTS = round(motore.WINDOW / motore.STEP)
    return {"n": file["NumeroRami"], "legs": [leg_of(leg, start) for leg in file["Rami"]], "p": rows, "night": 0.0,
            "percentile": file["ValorePercentile"]}


def level(delay):
    if delay == 0:
        return "-"
    for letter, bound in zip("ABCDE", (10, 15, 25, 35, 50)):
        if delay <= bound:
            return letter
    return "F"


def closing(file):
    return "\r\nOutput creato con Kelvo V1.0.0 il <data>\r\nNome Progetto: %s\r\n" % file["NomeFile"]


def table_text(rows, right, band):
    widths = [max(len(row[c]) for row in rows) + 2 for c in range(len(rows[0]))]
    text = ""
    for number, row in enumerate(rows):
        text += "\r\n" if band(number) else ""
        for cell, width in zip(row, widths):
            text += (cell.rjust(width) if right else cell.ljust(width)) + "\t"
        text += "\r\n"
    return text


def checks_text(file, records):
    rows = [["", "Flusso [veic/min]", "Capacità [veic/h]", "Coeff. saturazione", "Coda [veic]", "Ritardo [s/veic]",
             "L.O.S."]]
    start = minutes(file["TempoIniziale"])
    for k, record in enumerate(records):
        rows.append(["%s - %s" % (clock(start + k * motore.STEP), clock(start + (k + 1) * motore.STEP))] + [""] * 6)
        for leg, values in zip(file["Rami"], record):
            cells = [shown(x, d) for x, d in zip(values, (2, 2, 3, 1, 1))]
            rows.append([leg["Descrizione"]] + cells + [level(float(cells[4].replace(",", ".")))])
    band = file["NumeroRami"] + 1
    return ("Risultati: Verifiche prestazionali\r\n" +
            table_text(rows, True, lambda number: number == 0 or number % band == 1) + closing(file))


def ultimate_text(file, ultimate):
    rows = [["", "Capacita' di saturazione [veic/h]", "Flusso orario [veic/h]"]]
    for leg, capacity in zip(file["Rami"], ultimate):
        rows.append([leg["Descrizione"], shown_double(capacity, 2),
                     shown(motore.single(leg["theDatiTraffico"]["FlussoOrario"]), 2)])
    total = [0.0, 0.0]
    for row in rows[1:]:
        for c in (0, 1):
            total[c] = motore.single(total[c] + motore.single(float(row[c + 1].replace(",", "."))))
    index = motore.single(total[1] / total[0])
    rows.append(["", "Capacita' Ultima intersezione [veic/h]", "Flusso totale nodo [veic/h]"])
    rows.append(["", shown(total[0], 2), shown(total[1], 2)])
    percent = (Decimal("%.7g" % index) * 100).quantize(Decimal("0.01"), rounding=ROUND_HALF_UP)
    rows.append(["Indice di saturazione della rotatoria (I.S.R.)", "%s%%" % str(percent).replace(".", ","), ""])
    return "Risultati: Capacità ultima\r\n\r\n" + table_text(rows, False, lambda number: False) + closing(file)


def plain(x):
    """A double in its shortest form, whole numbers without a point."""
    return int(x) if x == int(x) else x


def plain_single(x):
    """The shortest number that reads back to the same single."""
    return plain(next(y for y in (float("%.*g" % (d, x)) for d in range(1, 10)) if motore.single(y) == x))


def leg_json(file, leg, ultimate, records):
    k = 1 - (leg["AngoloConflitto"] - 30) * 0.00347 - (1 / leg["RaggioIngresso"] - 0.05) * 0.978
    td = 0.5 / (1 + math.exp((leg["DiametroInscritto"] - 60) / 10)) + 1
    s = (leg["LarghezzaIngresso"] - leg["SemiLarghezza"]) * 1.6 / leg["LunghezzaSvasatura"]
    x2 = (leg["LarghezzaIngresso"] - leg["SemiLarghezza"]) / (2 * s + 1) + leg["SemiLarghezza"]
    start, steps = minutes(file["TempoIniziale"]), []
    for i, (flow, capacity, saturation, queue, delay) in enumerate(records):
        steps.append({"intervallo": "%s - %s" % (clock(start + i * motore.STEP), clock(start + (i + 1) * motore.STEP)),
                      "Flusso": plain_single(flow), "Capacita": plain_single(capacity),
                      "Coeff_Sat": plain_single(saturation), "Coda": plain_single(queue),
                      "Ritardo": plain_single(delay), "LOS": level(float(shown(delay, 1).replace(",", ".")))})
    return {"Key": leg["Key"], "Descrizione": leg["Descrizione"], "K": plain(k), "Td": plain(td), "S": plain(s),
            "X2": plain(x2), "F": plain(x2 * 303 * k), "Fc": plain(k * ((0.2 * x2 + 1) * (td * 0.21))),
            "CapacitaUltima": plain(ultimate), "iterazioni": steps}


def run_json(file, ultimate, records):
    coefficients = dict(zip(("Autoarticolati", "Autotreni", "Pullman", "Camper", "Roulotte", "Motocicli",
                             "Autovetture"), (plain_single(x) for x in motore.VE)))
    legs = [leg_json(file, leg, ultimate[i], [record[i] for record in records]) for i, leg in enumerate(file["Rami"])]
    run = {"file": "%s.klv" % file["NomeFile"], "NomeFile": file["NomeFile"], "TipoAnalisi": file["TipoAnalisi"],
           "TipoFlusso": file["TipoFlusso"], "NumeroRami": file["NumeroRami"],
           "ambiente": {"coefficienti": coefficients, "ValorePercentile": plain(file["ValorePercentile"]), "notte": 0},
           "rami": legs, "errori": []}
    return json.dumps(run, ensure_ascii=False, separators=(",", ":")) + "\n"


def curve_of(file, leg, target):
    """The window of a leg with its curve built, and outcome and steps of its search if there is a target."""
    traffic = leg["theDatiTraffico"]
    times = tuple(minutes(traffic["Tempo%d" % i]) for i in (1, 2, 3))
    texts = [curve.plain(traffic["FlussoTempo%d" % i]) for i in (1, 2, 3)]
    window = curve.Window(times, minutes(file["SegmentoTempo"]), texts[0], target)
    window.q2, window.q3 = texts[1:]
    found = curve.search(window) if target else None
    window.build()
    return window, found


def curve_text(file, number, target):
    leg = file["Rami"][number - 1]
    window, found = curve_of(file, leg, target)
    bars = [["", "Flusso [veic/min]"]]
    bars += [["%s-%s" % (clock(t), clock(t + window.m)), shown(flow, 2)] for t, flow in window.bars]
    mean = window.total / (window.t3 - window.t1)
    rows = [["t%d" % (i + 1), clock(t)] for i, t in enumerate((window.t1, window.t2, window.t3))]
    rows += [["q%d [veic/min]" % (i + 1), q] for i, q in enumerate((window.q1, window.q2, window.q3))]
    rows += [["Flusso totale ingresso [veic]", window.rounded],
             ["Flusso medio [veic/min]", shown_double(mean, 2)],
             ["Flusso orario [veic/h]", shown_double(mean * 60, 2)]]
    if found:
        words = {"trovata": "trovata", "passiEsauriti": "passi esauriti"}
        rows += [["Obiettivo [veic]", target], ["Ricerca", words[found[0]]], ["Passi", str(found[1])],
                 ["Approssimazione applicata", window.approximation()]]
    return ("Curva di traffico: %s\r\n\r\n" % leg["Descrizione"] + table_text(bars, True, lambda row: False) + "\r\n" +
            table_text(rows, False, lambda row: False) + closing(file))


def curve_json(file, number, target):
    leg = file["Rami"][number - 1]
    window, (outcome, steps) = curve_of(file, leg, target)
    mean = window.total / (window.t3 - window.t1)
    q1, q2, q3, wanted = (curve.number(x) for x in (window.q1, window.q2, window.q3, target))
    run = {"file": "%s.klv" % file["NomeFile"], "NomeFile": file["NomeFile"], "Key": leg["Key"],
           "Descrizione": leg["Descrizione"], "minuti": window.m, "Tempo1": clock(window.t1), "Tempo2": clock(window.t2),
           "Tempo3": clock(window.t3), "FlussoTempo1": plain(q1), "FlussoTempo2": plain(q2), "FlussoTempo3": plain(q3),
           "piatto": False,
           "barre": [{"intervallo": "%s-%s" % (clock(t), clock(t + window.m)), "Flusso": plain_single(flow)}
                     for t, flow in window.bars],
           "FlussoTotale": plain_single(window.total), "FlussoMedio": plain(mean), "FlussoOrario": plain(mean * 60),
           "ricerca": {"obiettivo": plain(wanted), "q2": plain(q2), "q3": plain(q3), "passi": steps, "esito": outcome,
                       "differenzaAnomala": q2 - q1 > 15,
                       "approssimazione": plain(-(100 - curve.number(window.exact) / wanted * 100))},
           "errori": []}
    return json.dumps(run, ensure_ascii=False, separators=(",", ":")) + "\n"


LANES = ("A", "B", "C", "D")
LANE_ROWS = (("Flusso Tot[veic.eq]", 2), ("Capacità [veic/h]", 2), ("Coeff. saturazione", 2), ("Coda [veic]", 1),
             ("Ritardo [s/veic]", 1))


def without_zeros(text):
    return text.rstrip("0").rstrip(",") if "," in text else text


def number_of(text):
    return float(text.replace(",", "."))


def lane_change(before, after):
    if number_of(before) == 0:
        return "0%" if number_of(after) == 0 else "n.d."
    text = without_zeros(shown_double((number_of(before) - number_of(after)) / number_of(before) * 100, 2))
    return ("0" if text == "-0" else text) + "%"


def lane_totals(records):
    """Of each entry: vehicles, and the largest of the other four."""
    totals = []
    for i in range(4):
        mine = [record[i] for record in records]
        flow = 0.0
        for values in mine:
            flow += values[0] * motore.STEP
        totals.append([flow] + [max([0.0] + [values[q] for values in mine]) for q in (1, 2, 3, 4)])
    return totals


def lane_runs(file, project, lanes):
    source, mode = "curve" if file["TipoAnalisi"] == 1 else "table", str(file["TipoFlusso"])
    return [lane_totals(motore.run(project, source, mode, form, lanes=lanes)[1]) for form in ("plain", "right-turn")]


def lane_rows(runs):
    rows = [[""] + ["RAMO " + leg for leg in LANES]]
    for q, (name, decimals) in enumerate(LANE_ROWS):
        plain_row, lane_row = ([shown_double(run[i][q], decimals) for i in range(4)] for run in runs)
        rows += [[name] + plain_row, [name + "(*)"] + lane_row,
                 ["Variazione %"] + [lane_change(a, b) for a, b in zip(plain_row, lane_row)]]
    rows += [[name] + [level(number_of(cell)) for cell in rows[row][1:]] for name, row in (("L.O.S.", 13),
                                                                                            ("L.O.S.(*)", 14))]
    return rows


def lanes_text(file, project, lanes):
    text = "ANALISI CORSIA PREFERENZIALE SVOLTA IN DESTRA: \r\n\r\nIPOTESI:\r\n"
    for lane in lanes:
        goal = (lane + 1) % 4
        unit = "[%]" if file["TipoMatriceSvolte"] == 1 else "[veic.]"
        text += "Posizione %d: (svolta Ramo %s-->Ramo %s) ==> %s %s\r\n" % (
            lane + 1, LANES[lane], LANES[goal], without_zeros("%.7g" % file["MatriceSvolte"][lane][goal]).replace(
                ".", ","), unit)
    line = "---------------\r\n"
    return (text + "\r\nCONFRONTO VALORI PRESTAZIONALI\r\n\r\n" +
            table_text(lane_rows(lane_runs(file, project, lanes)), True, lambda row: False) + "\r\n" + line +
            "L.O.S. (Level of service) - HCM Americano\r\n"
            "(*) Valore dovuto all'introduzione della corsia preferenziale di svolta in destra\r\n" + line +
            closing(file)[2:])


def lanes_json(file, project, lanes):
    runs = lane_runs(file, project, lanes)
    rows = lane_rows(runs)
    names = ("Flusso", "Capacita", "Coeff_Sat", "Coda", "Ritardo")

    def totals(run, row, i):
        # The largest are singles in doubles: the shortest form is that of the double.
        return dict(zip(names, map(plain, runs[run][i])), LOS=rows[row][i + 1])

    legs = [{"Key": leg["Key"], "Descrizione": leg["Descrizione"], "senza": totals(0, 16, i), "con": totals(1, 17, i)}
            for i, leg in enumerate(file["Rami"])]
    run = {"file": "%s.klv" % file["NomeFile"], "NomeFile": file["NomeFile"], "TipoAnalisi": file["TipoAnalisi"],
           "TipoFlusso": file["TipoFlusso"],
           "corsie_dx": [{"posizione": lane + 1, "origine": lane + 1, "destinazione": (lane + 1) % 4 + 1,
                          "quota": plain_single(project["p"][lane][(lane + 1) % 4])} for lane in lanes],
           "rami": legs, "tabella": rows, "errori": []}
    return json.dumps(run, ensure_ascii=False, separators=(",", ":")) + "\n"


# Word of the command line, name, unit, key of the leg, names of flag and step in the file, lower limit.
MEASURES = (
    ("larghezza", "Larghezza ingresso", "m", "e", "UsaLarghezzaIngresso", "LarghezzaIngresso", 3.1),
    ("semilarghezza", "Semilarghezza accesso", "m", "v", "UsaSemiLarghezza", "SemiLarghezza", 1.0),
    ("svasatura", "Lunghezza svasatura", "m", "l", "UsaLunghezzaSvasatura", "LungSvasatura", 1.0),
    ("angolo", "Angolo di conflitto", "°", "phi", "UsaAngoloConflitto", "AngoloConflitto", 0.0),
    ("raggio", "Raggio curvatura ingresso", "m", "r", "UsaRaggioCurvatura", "RaggioCurvatura", 3.0),
    ("diametro", "Diametro inscritto", "m", "D", "UsaDiametroInscritto", "DiametroInscritto", 13.0),
)


def balanced_double(lines, w):
    f = [line[0] for line in lines]
    q = [0.0] * len(f)
    while True:
        change = 0.0
        for i in range(len(f)):
            new = f[i]
            for j in range(len(f)):
                new -= w[j][i] * q[j]
            change = max(change, abs(q[i] - new))
            q[i] = new
        if change < 0.001:
            return q


def step_result(file, project, number, key, value):
    """Capacity, queue and delay of the entry with one measure changed; the capacity alone of the balancing."""
    analysis, mode = file["TipoAnalisi"], str(file["TipoFlusso"])
    if analysis == 0:
        lines = [motore.parameters(dict(leg, **{key: value}) if i + 1 == number else leg)
                 for i, leg in enumerate(project["legs"])]
        return [motore.single(balanced_double(lines, motore.weights(project, lines))[number - 1])]
    source = "curve" if analysis == 1 else "table"
    peak = (0.0,) * 5
    for record in motore.run(project, source, mode, "what-if", number, {key: value})[1]:
        if record[number - 1][0] > peak[0]:
            peak = record[number - 1]
    return [peak[1], peak[3], peak[4]]


def relative(text, reference):
    if not text or number_of(reference) == 0:
        return ""
    change = (number_of(text) - number_of(reference)) / number_of(reference)
    percent = (Decimal("%.15g" % change) * 100).quantize(Decimal("0.01"), rounding=ROUND_HALF_UP)
    return "%s%%" % str(abs(percent) if not percent else percent).replace(".", ",")


def steps_of(file, project, number, measure):
    """The rows of the table, and for each step its measure, whether it is valid, and its results."""
    _, name, _, key, _, step_name, lowest = measure
    step = file["Rami"][number - 1]["theAnalisiMarginale"][step_name]
    reference = motore.single(project["legs"][number - 1][key])
    rows = [["Step ->"], [name], ["Capacità [veic/h]"], ["Variazione Capacità"], ["Coda [veic]"], ["Variazione coda"],
            ["Ritardo [s/veic]"], ["Variazione ritardo"]]
    steps = []
    for i in range(-3, 4):
        sign = shown_double(i * step, 2)
        rows[0].append(sign if i < 0 else "+" + sign)
        rows[1].append(shown_double(reference + i * step, 2))
        value = motore.single(number_of(rows[1][-1]))
        valid = number_of(rows[1][-1]) >= lowest
        found = step_result(file, project, number, key, value) if valid else []
        steps.append((i, value, valid, found))
        for row, place, decimals in ((2, 0, 2), (4, 1, 1), (6, 2, 1)):
            there = file["TipoAnalisi"] != 0 or place == 0
            rows[row].append("" if not there else shown(found[place], decimals) if valid else "0")
    for row in (2, 4, 6):
        rows[row + 1] += [relative(cell, rows[row][4]) if step[2] else "" for cell, step in zip(rows[row][1:], steps)]
    return rows, steps


def steps_text(file, project, number, measures):
    texts = []
    for measure in measures:
        rows, _ = steps_of(file, project, number, measure)
        rows = [[cell + "*" if c == 4 and cell else cell for c, cell in enumerate(row)] for row in rows]
        texts.append("Risultati: Ottimizzazione Geometrica *** %s\r\n\r\n" % measure[1] +
                     table_text(rows, True, lambda row: row in (1, 2, 4, 6)) + "\r\n\r\n" + "=" * 58 +
                     "\r\n\r\n(*) Valore iniziale di riferimento" + closing(file))
    return "\r\n".join(texts)


def steps_json(file, project, number, measures):
    leg = file["Rami"][number - 1]
    parameters = []
    for measure in measures:
        rows, steps = steps_of(file, project, number, measure)
        listed = []
        for i, value, valid, found in steps:
            step = {"i": i, "misura": plain_single(value), "valido": valid}
            step.update(zip(("Capacita", "Coda", "Ritardo"), map(plain_single, found)))
            listed.append(step)
        parameters.append({"parametro": measure[0], "nome": measure[1], "unita": measure[2],
                           "passo": plain(leg["theAnalisiMarginale"][measure[5]]), "passi": listed, "tabella": rows})
    run = {"file": "%s.klv" % file["NomeFile"], "NomeFile": file["NomeFile"], "TipoAnalisi": file["TipoAnalisi"],
           "TipoFlusso": file["TipoFlusso"], "Key": leg["Key"], "Descrizione": leg["Descrizione"],
           "parametri": parameters, "errori": []}
    return json.dumps(run, ensure_ascii=False, separators=(",", ":")) + "\n"


SUMMARY = ("", "Ora di punta", "Flusso [veic/h]", "Capacità [veic/h]", "Riserva 1 - x", "Riserva [veic/h]",
           "Saturazione massima", "nel segmento", "Ritardo medio [s/veic]", "L.O.S.")
SUMMARY_IN_JSON = ("Rotatoria_Via_dei_Mulini", "Rotatoria_Aurelia_Sette_Strade")


def peak_of(series, size):
    """The hour of some entries together: first segment, flow, capacity, delay; nothing where nothing flows."""
    hourly = [60 * math.fsum(entry[k][0] for entry in series for k in range(s, s + size)) / size
              for s in range(len(series[0]) - size + 1)]
    seen = [number_of(shown(motore.single(flow), 2)) for flow in hourly]
    first = seen.index(max(seen))
    if not seen[first]:
        return None
    hour = [record for entry in series for record in entry[first:first + size]]
    flows = math.fsum(record[0] for record in hour)
    return (first, hourly[first], math.fsum(record[1] for record in hour) / size,
            math.fsum(record[0] * record[4] for record in hour) / flows)


def worst_of(series):
    """Entry, segment and saturation of the largest saturation as it is shown, the first of equal ones."""
    places = [(number_of(shown(record[2], 3)), -e, -s) for e, entry in enumerate(series)
              for s, record in enumerate(entry)]
    value, e, s = max(places)
    return (-e, -s, series[-e][-s][2]) if value else None


def summary_of(file, records):
    """Rows of the table, and entry by entry, the junction last, peak and worst segment."""
    start, step = minutes(file["TempoIniziale"]), motore.STEP
    size = min(60 // step, len(records))
    entries = [[record[i] for record in records] for i in range(file["NumeroRami"])]
    rows, found = [list(SUMMARY)], []
    for name, series in [(leg["Descrizione"], [entries[i]]) for i, leg in enumerate(file["Rami"])] + [("Nodo", entries)]:
        peak, worst = peak_of(series, size), worst_of(series)
        span = lambda first, count: "%s - %s" % (clock(start + first * step), clock(start + (first + count) * step))
        hour, flow, capacity, delay = (None, 0.0, 0.0, 0.0) if not peak else (span(peak[0], size),) + peak[1:]
        flow, capacity, share, rest, delay = (motore.single(x) for x in (
            flow, capacity, 1 - flow / capacity if capacity > 0 else 0.0, capacity - flow, delay))
        place = span(worst[1], 1) if worst else None
        letter = level(number_of(shown(delay, 1)))
        high = bool(worst) and number_of(shown(worst[2], 3)) > 0.85
        rows.append([name, hour or "-", shown(flow, 2), shown(capacity, 2) if hour else "-",
                     shown(share, 3) if capacity > 0 else "-", shown(rest, 2) if hour else "-",
                     shown(worst[2] if worst else 0.0, 3), place or "-", shown(delay, 1) if hour else "-", letter])
        figures = {"oraDiPunta": hour, "Flusso": plain_single(flow), "Capacita": plain_single(capacity),
                   "riserva": plain_single(share), "riservaVeicoli": plain_single(rest),
                   "Coeff_Sat": plain_single(worst[2]), "segmentoSat": place, "saturazioneAlta": high,
                   "Ritardo": plain_single(delay), "LOS": letter} if hour and worst else None
        found.append((worst, high, place, figures))
    return rows, found, size


def summary_words(file, found, size):
    high = ["%s %s (%s)" % (leg["Descrizione"], shown(worst[2], 3), place)
            for leg, (worst, above, place, _) in zip(file["Rami"], found) if above]
    words = ["Saturazione oltre 0,85: %s." % "; ".join(high)] if high else []
    worst, _, place, _ = found[-1]
    if worst:
        words.append("Ingresso peggiore: %s, saturazione %s nel segmento %s." % (
            file["Rami"][worst[0]]["Descrizione"], shown(worst[2], 3), place))
    assert size * motore.STEP == 60, "the examples have whole hours"
    words.append("Ora di punta di ogni ingresso e del nodo: %d segmenti consecutivi, in tutto 60 minuti, con il flusso "
                 "maggiore." % size)
    words.append("Flusso, capacità, riserva e ritardo (media pesata sui flussi) sono dell'ora di punta, la saturazione "
                 "massima è di tutto lo studio. La capacità del nodo è la somma di quelle degli ingressi nella sua ora "
                 "di punta, non la capacità ultima.")
    return words


def summary_text(file, records):
    rows, found, size = summary_of(file, records)
    return ("Risultati: Sintesi nodo\r\n\r\n" + table_text(rows, True, lambda row: False) + "\r\n" +
            "\r\n".join(summary_words(file, found, size)) + "\r\n" + closing(file))


def summary_json(file, records):
    rows, found, size = summary_of(file, records)
    legs = [dict({"Key": leg["Key"], "Descrizione": leg["Descrizione"]}, **found[i][3],
                 livelli=[level(number_of(shown(record[i][4], 1))) for record in records])
            for i, leg in enumerate(file["Rami"])]
    run = {"file": "%s.klv" % file["NomeFile"], "NomeFile": file["NomeFile"], "TipoAnalisi": file["TipoAnalisi"],
           "TipoFlusso": file["TipoFlusso"], "minutiSegmento": motore.STEP, "segmentiOra": size, "ingressi": legs,
           "nodo": dict(found[-1][3], ingressoPeggiore=file["Rami"][found[-1][0][0]]["Key"]), "tabella": rows,
           "errori": []}
    return json.dumps(run, ensure_ascii=False, separators=(",", ":")) + "\n"


# What of the two analyses is written: project, lanes; project, leg, measures (none: those chosen in the project).
LANE_CASES = (("Rotatoria_Tangenziale_est", (0, 2)), ("Rotatoria_Viale_della_Stazione", (0, 1, 2, 3)))
STEP_CASES = (("Rotatoria_Viale_della_Stazione", 1, ()), ("Rotatoria_Aurelia_Sette_Strade", 2, ()),
              ("Rotatoria_Tangenziale_est", 3, ("larghezza",)), ("Rotatoria_Piazza_Italia", 2, ("svasatura",)),
              ("Rotatoria_Via_dei_Mulini", 2, ("angolo",)))


def write_analyses(name, file, project):
    for case, lanes in LANE_CASES:
        if case == name:
            write("%s.corsia-dx.txt" % name, lanes_text(file, project, lanes))
            write("%s.corsia-dx.json" % name, lanes_json(file, project, lanes))
    for case, number, words in STEP_CASES:
        if case == name:
            flags = file["Rami"][number - 1]["theAnalisiMarginale"]
            measures = [m for m in MEASURES if (m[0] in words if words else flags[m[4]])]
            write("%s.sensibilita.txt" % name, steps_text(file, project, number, measures))
            write("%s.sensibilita.json" % name, steps_json(file, project, number, measures))


def write(name, text):
    (QUI / "attesi" / name).write_bytes(text.encode("utf-8"))


def main():
    for path in sorted(PROGETTI.glob("*.klv")):
        file = json.loads(path.read_text(encoding="utf-8"))
        project = project_of(file)
        analysis, mode = file["TipoAnalisi"], str(file["TipoFlusso"])
        ultimate, records = motore.run(project, "curve" if analysis == 1 else "table", mode)
        capacities = ultimate_text(file, ultimate)
        results = checks_text(file, records) if analysis in (1, 2) else capacities
        for name, text in (("calcola", results), ("capacita-ultima", capacities)):
            write("%s.%s.txt" % (path.stem, name), text)
        if path.stem == IN_JSON:
            write("%s.calcola.json" % path.stem, run_json(file, ultimate, records))
            write("%s.curva.json" % path.stem, curve_json(file, 3, "500"))
        if analysis in (1, 2):
            write("%s.sintesi.txt" % path.stem, summary_text(file, records))
        if path.stem in SUMMARY_IN_JSON:
            write("%s.sintesi.json" % path.stem, summary_json(file, records))
        write_analyses(path.stem, file, project)
        if analysis == 1:
            write("%s.curva.txt" % path.stem, curve_text(file, 1, ""))
            write("%s.curva-obiettivo.txt" % path.stem, curve_text(file, 2, "600"))


if __name__ == "__main__":
    main()
