#!/usr/bin/env bash
# The Windows rooms: builds everything but the desktop for Windows with mingw-w64 and, where wine is installed, runs its
# tests and compares the figures of kelvo-cli with those of the Release build. What cannot be had is skipped with a word.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/comune.sh"

readonly COSTRUZIONE=$RADICE/build/windows

salta() {
    di "Saltato: $*"
    exit 0
}

ha_compilatore() {
    command -v x86_64-w64-mingw32-g++-posix >/dev/null && command -v x86_64-w64-mingw32-windres >/dev/null &&
        [[ -d /usr/src/googletest ]]
}

prepara_wine() {
    command -v wine >/dev/null || salta "le prove delle stanze Windows, wine non è installato (sono solo compilate)"
    export WINEPREFIX=$COSTRUZIONE/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
    # The server of this prefix alone, at the end.
    trap 'wineserver -k || true' EXIT
    if [[ ! -f $WINEPREFIX/system.reg ]]; then
        timeout 180 wineboot --init >"$COSTRUZIONE/wine.log" 2>&1 ||
            salta "le prove delle stanze Windows, wine non si avvia (build/windows/wine.log)"
    fi
    # The server stays from one test program to the next: one that ends may turn away the one that starts.
    timeout 60 wineserver -p
    # Keeps the table of running objects; started on demand it may come too late for the test that asks for it.
    timeout 60 wine net start rpcss >/dev/null 2>&1 || true
}

# senza_ora: a text less the instant at which it was made.
senza_ora() { sed '/^Output creato con Kelvo/s/ il [0-9].*//'; }

# confronta <kelvo-cli of this system> <arguments...>: the same text from both programs, to the byte.
confronta() {
    "$@" | senza_ora >"$COSTRUZIONE/atteso.txt"
    timeout 120 wine "$COSTRUZIONE/Prog/Kelvo/kelvo-cli.exe" "${@:2}" | senza_ora >"$COSTRUZIONE/trovato.txt"
    cmp "$COSTRUZIONE/atteso.txt" "$COSTRUZIONE/trovato.txt" || muori "kelvo-cli ${*:2}: Windows dà un altro testo"
}

confronta_esempi() {
    local cli=$RADICE/build/release/Prog/Kelvo/kelvo-cli progetto provati=0
    if [[ ! -x $cli ]]; then
        di "Saltato: il confronto di kelvo-cli, manca la costruzione Release"
        return
    fi
    cd -- "$COSTRUZIONE/Prog/Progetti"
    for progetto in *.klv; do
        confronta "$cli" calcola "$progetto"
        confronta "$cli" calcola --json "$progetto"
        confronta "$cli" capacita-ultima "$progetto"
        confronta "$cli" mostra "$progetto"
        provati=$((provati + 1))
    done
    ((provati)) || muori "nessun progetto da confrontare"
    rm -f -- "Città di Forlì.klv"
    timeout 120 wine "$COSTRUZIONE/Prog/Kelvo/kelvo-cli.exe" nuovo --rami 4 "Città di Forlì.klv"
    confronta "$cli" mostra "Città di Forlì.klv"
    rm -f -- "Città di Forlì.klv"
    di "kelvo-cli: $provati progetti uguali al byte"
}

ha_compilatore || (installa windows) || true
ha_compilatore || salta "le stanze Windows, il compilatore non è disponibile (pacchetti \"windows\")"
costruisci windows
prepara_wine
ctest --test-dir "$COSTRUZIONE" --output-on-failure --no-tests=error
confronta_esempi
