#!/bin/sh
# Makes a manual page from its source: pagina.sh SOURCE VERSION [PROGRAM] > PAGE
# The line @COMANDI@ becomes the commands of PROGRAM with their options, from its own --help.
set -eu
sorgente=$1 versione=$2 programma=${3:-}
qui=$(dirname -- "$0")

comandi() {
    # Asked for first, so that a program that does not start ends this one.
    aiuto=$("$programma" --help)
    nomi=$(printf '%s\n' "$aiuto" | sed -n '/^Comandi:/,/^$/s/^  \([a-z][a-z0-9-]*\) .*/\1/p')
    [ -n "$nomi" ] || { echo "pagina.sh: nessun comando in $programma --help" >&2; exit 1; }
    for nome in $nomi; do
        aiuto=$("$programma" "$nome" --help)
        printf '%s\n' "$aiuto" | awk -v comando="$nome" -f "$qui/comandi.awk"
    done
}

elenco=$(mktemp)
trap 'rm -f -- "$elenco"' EXIT
if [ -n "$programma" ]; then
    comandi >"$elenco"
fi
# What the source says to whoever writes it stays there.
sed -e '/^\.\\"/d' -e "s/@VERSIONE@/$versione/" -e "/^@COMANDI@\$/{
r $elenco
d
}" "$sorgente"
