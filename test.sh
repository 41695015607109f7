#!/usr/bin/env bash
# Runs every check of the repository. --lungo adds clang-tidy over everything and a minute of each fuzzer.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/strumenti/comune.sh"
source strumenti/passi.sh

secondi_fuzz=10
lungo=false
for argomento in "$@"; do
    case $argomento in
        --lungo)
            lungo=true
            secondi_fuzz=60
            ;;
        *)
            printf 'Uso: ./test.sh [--lungo]\n' >&2
            exit 2
            ;;
    esac
done

installa costruzione librerie desktop prove controlli

passo "Formato" formato
passo "Compilazione Release" costruisci release
passo "Prove in italiano" prove_italiane
passo "Compilazione sanitizer" costruisci asan
passo "Prove con sanitizer" prove_asan
passo "Compilazione fuzz" costruisci fuzz
passo "Fuzz" fuzz "$secondi_fuzz"
if $lungo; then
    passo "clang-tidy" tidy
fi
tabella_tempi
# The summary of this run is the last thing that is printed.
ultimo_passo "Prove Release" prove_release
