#!/usr/bin/env python3
"""Writes the expected texts of tests/results/attesi/ from the example projects, apart from any C++ of the project.

Figures and number forms are those of tests/cli/attesi.py; the layouts and the statistics of one entry are written down
once more here.
Usage: attesi.py
"""

import importlib.util
import json
import pathlib
from decimal import Decimal

QUI = pathlib.Path(__file__).resolve().parent
MODULO = importlib.util.spec_from_file_location("comuni", QUI.parent / "cli" / "attesi.py")
comuni = importlib.util.module_from_spec(MODULO)
MODULO.loader.exec_module(comuni)

# Project, entry, name that the entry is given (none: its own).
CASES = (
    ("Rotatoria_Via_dei_Mulini", 3, ""),
    ("Rotatoria_Tangenziale_est", 2, "Località Città Più Là"),
    ("Rotatoria_Aurelia_Sette_Strade", 7, ""),
)
DECIMALS = (2, 2, 3, 1, 1)
NOTE = "---------------\r\nL.O.S. (Level of service) - HCM Americano\r\n---------------\r\n"


def ends(file):
    return NOTE + comuni.closing(file).removeprefix("\r\n")


def head(title, name):
    return "%s\r\n\r\nDENOMINAZIONE RAMO: %s\r\n\r\n" % (title, name)


def level_of(delay):
    return comuni.level(float(delay.replace(",", ".")))


def entry_text(file, name, records):
    rows = [["", "Flusso [veic/min]", "Capacità [veic/h]", "Coeff. saturazione", "Coda [veic]", "Ritardo [s/veic]",
             "L.O.S."]]
    start, step = comuni.minutes(file["TempoIniziale"]), comuni.motore.STEP
    for k, record in enumerate(records):
        cells = [comuni.shown(x, d) for x, d in zip(record, DECIMALS)]
        rows.append(["%s - %s" % (comuni.clock(start + k * step), comuni.clock(start + (k + 1) * step))] + cells +
                    [level_of(cells[4])])
    table = comuni.table_text(rows, True, lambda row: False)
    return head("Risultati: Verifiche prestazionali", name) + table + "\r\n" + ends(file)


def summary_text(file, name, records):
    """Extremes are kept to two decimals and shown in the format of their row; means are of the raw figures."""
    names = ("Flusso [veic./min]", "Capacità [veic./min]", "Coeff. saturazione", "Coda [veic.]", "Ritardi [sec/veic.]")
    rows = [["", "V.Minimo", "V.Massimo", "V.Medio"]]
    delays = []
    for q, label in enumerate(names):
        column = [record[q] for record in records]
        rounded = [Decimal(comuni.shown(x, 2).replace(",", ".")) for x in column]
        mean = 0.0
        for x in column:
            mean += x
        values = [float(min(rounded)), float(max(rounded)), mean / len(column)]
        rows.append([label] + [comuni.shown_double(x, DECIMALS[q]) for x in values])
        delays = rows[-1][1:]
    rows.append(["L.O.S."] + [level_of(x) for x in delays])
    table = comuni.table_text(rows, True, lambda row: False)
    return head("Risultati: Dettagli riassuntivi ingresso", name) + table + "\r\n" + ends(file)


# Project, variable, unit by the minute, entry that is given a name (0: none), the name.
COMPARISONS = (
    ("Rotatoria_Via_dei_Mulini", 0, False, 0, ""),
    ("Rotatoria_Tangenziale_est", 1, True, 2, "Località Città Più Là"),
    ("Rotatoria_Aurelia_Sette_Strade", 5, False, 0, ""),
)
VARIABLES = (("Flusso di traffico [veic/h]", "Flusso di traffico [veic/min]", 2),
             ("Capacità [veic/h]", "Capacità [veic/min]", 2),
             ("Coefficiente di Saturazione", "Coefficiente di Saturazione", 2),
             ("Lunghezza coda [veic]", "Lunghezza coda [veic]", 1), ("Ritardo [s/veic]", "Ritardo [s/veic]", 1),
             ("Livello di Servizio (L.O.S.)", "Livello di Servizio (L.O.S.)", 1))


def compared(record, variable, by_minute):
    """A flow is kept by the minute, a capacity by the hour."""
    if variable == 5:
        return level_of(comuni.shown(record[4], 1))
    x = record[variable]
    x = x * 60 if variable == 0 and not by_minute else x / 60 if variable == 1 and by_minute else x
    return comuni.shown(comuni.motore.single(x), VARIABLES[variable][2])


def comparison_text(file, names, records, variable, by_minute):
    start, step = comuni.minutes(file["TempoIniziale"]), comuni.motore.STEP
    rows = [["Ingresso"] + [comuni.clock(start + k * step) for k in range(len(records))]]
    for i, name in enumerate(names):
        rows.append([name] + [compared(record[i], variable, by_minute) for record in records])
    head_text = "Analizzatore\r\n\r\nVariabile prestazionale: %s\r\n\r\n" % VARIABLES[variable][by_minute]
    table = comuni.table_text(rows, True, lambda row: False)
    return head_text + table + ("\r\n" + ends(file) if variable == 5 else comuni.closing(file))


def write_comparisons():
    for stem, variable, by_minute, entry, name in COMPARISONS:
        file = json.loads((comuni.PROGETTI / (stem + ".klv")).read_text(encoding="utf-8"))
        demand = "curve" if file["TipoAnalisi"] == 1 else "table"
        records = comuni.motore.run(comuni.project_of(file), demand, str(file["TipoFlusso"]))[1]
        names = [name if k + 1 == entry else leg["Descrizione"] for k, leg in enumerate(file["Rami"])]
        path = QUI / "attesi" / (stem + ".confronto.txt")
        path.write_bytes(comparison_text(file, names, records, variable, by_minute).encode("utf-8"))


def main():
    write_comparisons()
    for stem, entry, name in CASES:
        file = json.loads((comuni.PROGETTI / (stem + ".klv")).read_text(encoding="utf-8"))
        project = comuni.project_of(file)
        demand = "curve" if file["TipoAnalisi"] == 1 else "table"
        records = comuni.motore.run(project, demand, str(file["TipoFlusso"]))[1]
        own = [record[entry - 1] for record in records]
        name = name or file["Rami"][entry - 1]["Descrizione"]
        for layout, text in (("ingresso", entry_text), ("riassunto", summary_text)):
            path = QUI / "attesi" / ("%s.%d.%s.txt" % (stem, entry, layout))
            path.write_bytes(text(file, name, own).encode("utf-8"))


if __name__ == "__main__":
    main()
