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
        if analysis == 1:
            write("%s.curva.txt" % path.stem, curve_text(file, 1, ""))
            write("%s.curva-obiettivo.txt" % path.stem, curve_text(file, 2, "600"))


if __name__ == "__main__":
    main()
