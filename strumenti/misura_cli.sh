#!/bin/sh
# Measures kelvo-cli as whole processes on the largest example, files warm, 50 runs each, and prints a Markdown table.
# Usage: strumenti/misura_cli.sh [folder of a Release build [kelvo-cli of an installation]]
set -eu
radice=$(cd "$(dirname "$0")/.." && pwd)
costruzione=${1:-$radice/build/release}
cli=${2:-$costruzione/Prog/Kelvo/kelvo-cli}
picco=$costruzione/tests/kelvo-picco
progetto=$costruzione/Prog/Progetti/Rotatoria_Aurelia_Sette_Strade.klv

riga() {
    nome=$1
    shift
    # What this build cannot do has a row without figures.
    misure=$("$picco" 50 "$cli" "$@" 2>/dev/null) || {
        echo "| $nome | - | - | - |"
        return
    }
    set -- $misure
    echo "| $nome | $1 | $2 | $(echo "$3" | awk '{printf "%.2f", $1 / 1024}') |"
}

echo "| whole process | median ms | 95th percentile ms | peak MiB |"
echo "|---|---:|---:|---:|"
riga "kelvo-cli --version" --version
riga "kelvo-cli calcola, 7 legs by 72 segments" calcola "$progetto"
riga "kelvo-cli calcola --json, 7 legs by 72 segments" calcola --json "$progetto"
riga "kelvo-cli capacita-ultima, 7 legs" capacita-ultima "$progetto"
documenti=$(mktemp -d)
trap 'rm -rf "$documenti"' EXIT
riga "kelvo-cli relazione, complete, 7 legs by 72 segments" relazione --tipo completa -o "$documenti/r.docx" "$progetto"
riga "kelvo-cli relazione, 35 charts of 7 legs by 72 segments" relazione --tipo grafici -o "$documenti/g.docx" "$progetto"
riga "kelvo-cli esporta --xlsx, 7 legs by 72 segments" esporta --xlsx "$documenti/Risultati.xlsx" "$progetto"
