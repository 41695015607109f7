#!/usr/bin/env bash
# Builds Kelvo and computes the example projects; the texts go to the folder uscita/.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/strumenti/comune.sh"

readonly PROG=build/release/Prog
readonly CLI=$PROG/Kelvo/kelvo-cli
readonly USCITA=uscita

installa costruzione librerie prove

di "Compilazione"
costruisci release apps/all assets/all

di "Calcolo dei progetti di esempio"
shopt -s nullglob
mkdir -p -- "$USCITA"
progetti=("$PROG"/Progetti/*.klv)
((${#progetti[@]})) || muori "nessun progetto di esempio in $PROG/Progetti"

falliti=0
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
