#!/usr/bin/env bash
# Brings the tables of docs/validazione.md up to date: what stands between the two markers is written anew from the
# program's own output. Fails, and leaves the document alone, if a figure is out of tolerance.
set -euo pipefail
cd "$(dirname "$0")/.."

documento=docs/validazione.md
inizio='<!-- tavole: inizio -->'
fine='<!-- tavole: fine -->'

if ! grep -qxF "$inizio" "$documento" || ! grep -qxF "$fine" "$documento"; then
  echo "$documento: mancano i segni delle tavole" >&2
  exit 1
fi
if [ ! -f build/release/CMakeCache.txt ]; then
  cmake --preset release -DKELVO_BENCHMARKS=OFF >&2
fi
cmake --build build/release --target kelvo-validazione >&2

nuovo=$documento.nuovo
trap 'rm -f "$nuovo"' EXIT
{
  sed "/^$inizio\$/q" "$documento"
  echo
  build/release/strumenti/kelvo-validazione tests/calc/casi
  echo
  sed -n "/^$fine\$/,\$p" "$documento"
} >"$nuovo"
mv "$nuovo" "$documento"
