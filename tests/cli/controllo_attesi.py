#!/usr/bin/env python3
"""Writes the expected findings of the example projects, tests/cli/attesi/*.controllo.txt, apart from any C++ of the
project. Each example is taken as one of 1 January 2000, so that its date always lies behind.
Usage: controllo_attesi.py
"""

import json
import pathlib

QUI = pathlib.Path(__file__).resolve().parent
PROGETTI = QUI.parent.parent / "assets" / "Progetti"
PRIORITA = {"R": 1, "Y": 2, "G": 3}
HEADING = "Geometria Ingresso:"
HEAVY = "Geometria ingresso:Sono presenti dei mezzi pesanti sul Ramo '%s',"
MATRIX = "Matrice delle svolte:"
MIX = "Composizione traffico:"


def plain(x):
    return ("%.7g" % x).replace(".", ",")


def registry(p):
    rows = [("Y", "Anagrafica rotatoria:campo 'Data' di progetto prededente data attuale.")]
    if p["NomeFile"] == "Rotatoria_001":
        rows.append(("Y", "Anagrafica rotatoria:Nome file progetto di Default: si consiglia di rinominarlo."))
    for key, words in (("StatoAvanzamento", "'Stato avanzamento' progetto non selezionato."),
                       ("Localita", "'Località/Frazione/Borgata' non inserito."), ("Comune", "'Comune' non inserito."),
                       ("Provincia", "'Provincia' non inserito."), ("Note", "'Note' non utilizzato."),
                       ("Titolo", "'Titolo' non utilizzato.")):
        if not p[key]:
            rows.append(("G", "Anagrafica rotatoria:campo " + words))
    for key, words in (("Nome", "'Professionista' non utilizzato."), ("Indirizzo", "'Indirizzo' non utilizzato."),
                       ("CAP", "'C.A.P.' non inserito."), ("Citta", "'Città' non inserito."),
                       ("Provincia", "'Provincia' non inserito."), ("Telefono", "'Telefono' non inserito."),
                       ("EMail", "'Email' non inserito.")):
        if not p[key + "Professionista"]:
            rows.append(("G", "Anagrafica Professionista:campo " + words))
    return rows


def times(p):
    start, end, step = ([int(x) for x in p[key].split(":")[:2]] for key in
                        ("TempoIniziale", "TempoFinale", "SegmentoTempo"))
    length = (end[0] - start[0]) * 60 + end[1] - start[1]
    if length < 90 and step[1] in (20, 30):
        return [("R", "Tempo di Modellazione:Il segmento di tempo utilizzato è troppo ampio rispetto alla finestra di "
                      "analisi impostata, analisi poco attendibile")]
    return []


def names(p):
    return [("Y", "Toponomastica Intersezione:Nome Ramo %s di default, si consiglia di rinominarlo per una più facile "
                  "riconoscimento dell'accesso" % letter)
            for letter, leg in zip("ABCDEFG", p["Rami"]) if leg["Descrizione"] == "Ramo " + letter]


def heavy(leg):
    mix = leg["theComposizioneTraffico"]
    return mix["Autoarticolati"] != 0 or mix["Autotreni"] != 0


def geometry(p):
    rows = []
    if len({leg["DiametroInscritto"] for leg in p["Rami"]}) > 1:
        rows.append(("Y", HEADING + "Diametri differenti per ingresso = rotatoria non circolare.Verificare inserimento "
                          "dati input"))
    for leg in p["Rami"]:
        name, d = leg["Descrizione"], leg["DiametroInscritto"]
        decree = "Ramo '%s', %s non compatibile con D.M. 19.04.06 "
        if d <= 14:
            rows.append(("Y", HEADING + decree % (name, "Diametro rotatoria") +
                         "[14m<D<50m]- inferiore limite minimo."))
        if heavy(leg):
            for low, high, words in (
                    (0, 14, "diametro insufficiente."),
                    (14.0001, 18, "predisporre isola centrale completamente valicabile come previsto dal D.M. 19.04.06"),
                    (19, 25, "predisporre fascia valicabile sull'isola centrale come previsto dal D.M. 19.04.06"),
                    (26, 40, "predisporre fascia valicabile sull'isola centrale ai soli fini di leggibilità della "
                             "traettoria di attraversamento (non richiesto dal D.M. 19.04.06)")):
                if low <= d <= high:
                    rows.append(("Y", HEAVY % name + words))
        if d > 50:
            rows.append(("Y", HEADING + decree % (name, "Diametro rotatoria") +
                         "[14m<D<50m]- superiore limite massimo."))
        if leg["LarghezzaIngresso"] < 3.5:
            rows.append(("Y", HEADING + decree % (name, "Larghezza ingresso") + "[Li<3.50m]- inferiore limite minimo."))
        if leg["LarghezzaIngresso"] > 10 or leg["LunghezzaSvasatura"] > 30 or leg["SemiLarghezza"] > 10.5:
            raise SystemExit("%s: an error of the geometry, which no example is to have" % name)
    return rows


def demand(p):
    for leg in p["Rami"]:
        if leg["theDatiTraffico"]["FlussoTotale"] < 1 or leg["theDatiTraffico"]["FlussoOrario"] >= 1900:
            raise SystemExit("%s: an error of the demand, which no example is to have" % leg["Descrizione"])
    return []


def matrix(p):
    rows, cells, n = [], p["MatriceSvolte"], p["NumeroRami"]
    if p["TipoMatriceSvolte"] != 0:
        if any(sum(row) != 100 for row in cells):
            raise SystemExit("an error of the matrix, which no example is to have")
        return rows
    for i, leg in enumerate(p["Rami"]):
        total, right = sum(cells[i]), cells[i][(i + 1) % n]
        for share, low, high in ((40, 0.4, 0.7), (70, 0.7, 2)):
            if total > 0 and low < right / total < high:
                rows.append(("Y", MATRIX + "Attenzione. Più del %d%% dei veicoli entranti da %s eseguono la manovra di "
                                  "svolta a destra .Verificare possibilità di inserimento corsia preferenziale di svolta."
                             % (share, leg["Descrizione"])))
        flow = leg["theDatiTraffico"]["FlussoTotale"]
        if total != flow:
            rows.append(("Y", MATRIX + "Attenzione. Veicoli in ingresso da ramo %s non coerente con 'Flusso totale "
                              "ingresso' (%s veic./h <>%sveic./h). Verificare." %
                         (leg["Descrizione"], plain(total), plain(flow))))
    return rows


def mix(p):
    rows = []
    if p["TipoFlusso"] == 0:
        for leg in p["Rami"]:
            name = leg["Descrizione"]
            if leg["theComposizioneTraffico"]["Autovetture"] < 60:
                rows.append(("R", MIX + "La percenetuale di autovetture sul Ramo '%s' < 60%%, si consiglia di controllare "
                                  "i dati inseriti" % name))
            if heavy(leg):
                rows.append(("Y", MIX + "Sono presenti dei mezzi pesanti sul Ramo '%s', verificare la geometria in "
                                  "relazione alle svolte ed alle aree spazzate. " % name))
    elif any(sum(map(sum, leg["theComposizioneTraffico"]["CategoriaSegmento"])) == 0 for leg in p["Rami"]):
        raise SystemExit("an empty table of the composition, which no example is to have")
    return rows


def main():
    for path in sorted(PROGETTI.glob("*.klv")):
        p = json.loads(path.read_text(encoding="utf-8"))
        findings = registry(p) + times(p) + names(p) + geometry(p) + demand(p) + matrix(p) + mix(p)
        name = p["NomeFile"]
        lines = ["REPORT ANALISI ROTATORIA", "",
                 "[+]  - Report Analisi Progetto: KELVO 2014 - [%s.klv] - <ora> - 01/01/2000" % name, ""]
        lines += ["[%d]  - %s" % (PRIORITA[level], text) for level, text in findings]
        lines += ["_" * 48, "Legenda valori priorità messaggi", "1 = Messaggio di Errore", "2 = Messaggio di Verifica",
                  "3 = Messaggio di Informazione", "_" * 48, "Output creato con Kelvo V1.0.0 il <data>",
                  "Nome Progetto: " + name]
        (QUI / "attesi" / ("%s.controllo.txt" % path.stem)).write_bytes(
            "".join(line + "\r\n" for line in lines).encode("utf-8"))


if __name__ == "__main__":
    main()
