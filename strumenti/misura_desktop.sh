#!/usr/bin/env bash
# Builds the desktop in Release, measures its start and the switching of its windows on the offscreen platform with the
# largest example, and prints a Markdown table, ready for docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."

{
  cmake --preset release -DKELVO_BENCHMARKS=ON
  cmake --build build/release --target kelvo-misure-desktop
} >&2

# Folders of its own: no other run of the program is met, no list of recent projects is written to.
propria=$(mktemp -d)
trap 'rm -rf -- "$propria"' EXIT
mkdir -m 700 "$propria"/{sessione,dati,impostazioni}
echo "- Load of the machine over the last minute: $(cut -d ' ' -f 1 /proc/loadavg)"
echo
cp build/release/Prog/Progetti/Rotatoria_Aurelia_Sette_Strade.klv "$propria"
env QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES="*.debug=false;qt.qpa.*=false" XDG_RUNTIME_DIR="$propria/sessione" \
    XDG_DATA_HOME="$propria/dati" XDG_CONFIG_HOME="$propria/impostazioni" \
    build/release/benchmarks/kelvo-misure-desktop "$propria/Rotatoria_Aurelia_Sette_Strade.klv"
