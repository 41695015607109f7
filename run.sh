#!/usr/bin/env bash
# Builds Kelvo and opens it with an example project; without a display it computes the examples instead, and the texts
# and the reports of one of them go to the folder uscita/.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/strumenti/comune.sh"

readonly PROG=build/release/Prog
readonly KELVO=$PROG/Kelvo/kelvo
readonly CLI=$PROG/Kelvo/kelvo-cli
readonly ESEMPIO=$PROG/Progetti/Rotatoria_Viale_della_Stazione.klv
readonly USCITA=uscita

# Opens the desktop; false without a display, or with one that does not answer.
apri_desktop() {
    [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] || return 1
    di "Kelvo con il progetto $(basename -- "$ESEMPIO")"
    "$KELVO" "$ESEMPIO" && return 0
    di "La finestra non si è aperta: si calcolano gli esempi"
    return 1
}

# Computes every example project to a text of its own.
calcola_esempi() {
    local progetti progetto nome testo ultima primo falliti=0
    di "Calcolo dei progetti di esempio"
    shopt -s nullglob
    mkdir -p -- "$USCITA"
    progetti=("$PROG"/Progetti/*.klv)
    ((${#progetti[@]})) || muori "nessun progetto di esempio in $PROG/Progetti"
    for progetto in "${progetti[@]}"; do
        nome=$(basename -- "$progetto" .klv)
        testo="$USCITA/$nome - Risultati.txt"
        ultima="$USCITA/$nome - Capacità ultima.txt"
        if "$CLI" calcola "$progetto" >"$testo" && "$CLI" capacita-ultima "$progetto" >"$ultima"; then
            printf '   %s\n' "$nome"
        else
            printf '   %s: calcolo non riuscito\n' "$nome" >&2
            falliti=$((falliti + 1))
        fi
    done
    primo="$USCITA/$(basename -- "${progetti[0]}" .klv) - Risultati.txt"
    di "Prime righe di $primo"
    head -n 12 -- "$primo"
    ((falliti == 0)) || muori "$falliti progetti su ${#progetti[@]} non calcolati"
    di "Risultati di ${#progetti[@]} progetti nella cartella $RADICE/$USCITA"
}

# Compiles every kind of report of one example project.
relazioni_esempio() {
    local nome tipo
    nome=$(basename -- "$ESEMPIO" .klv)
    di "Relazioni di $nome"
    local pagine=()
    if command -v soffice >/dev/null; then
        pagine=(--pdf)
    else
        printf '   solo .docx: per averne le pagine in PDF serve un programma d'\''ufficio (libreoffice-writer)\n'
    fi
    for tipo in ingresso risultati completa totale grafici; do
        "$CLI" relazione --tipo "$tipo" "${pagine[@]}" -o "$USCITA/$nome - Relazione $tipo.docx" "$ESEMPIO" ||
            muori "relazione $tipo non compilata"
        printf '   %s\n' "$tipo"
    done
    "$CLI" esporta --xlsx "$USCITA/$nome - Risultati.xlsx" "$ESEMPIO" || muori "foglio di calcolo non scritto"
    printf '   foglio di calcolo\n'
}

installa costruzione librerie desktop prove

di "Compilazione"
costruisci release apps/all assets/all

if ! apri_desktop; then
    calcola_esempi
    relazioni_esempio
fi
