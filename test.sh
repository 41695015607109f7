#!/usr/bin/env bash
# Runs every check of the repository. --lungo adds the sanitizers and clang-tidy over everything, the
# Windows rooms, a minute of each fuzzer, the pages of a report as an office program makes them, and the package in a
# clean Debian.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/strumenti/comune.sh"
source strumenti/passi.sh

secondi_fuzz=10
sanitizer=asan
lungo=false
for argomento in "$@"; do
    case $argomento in
        --lungo)
            lungo=true
            secondi_fuzz=60
            sanitizer=asan-finestre
            ;;
        *)
            printf 'Uso: ./test.sh [--lungo]\n' >&2
            exit 2
            ;;
    esac
done

installa costruzione librerie desktop prove controlli
if $lungo; then
    installa ufficio
fi

passo "Formato" formato
passo "Compilazione Release" costruisci release
passo "Prove in italiano" prove_italiane
passo "Compilazione sanitizer" costruisci "$sanitizer"
passo "Prove con sanitizer" prove_asan "$sanitizer"
passo "Compilazione fuzz" costruisci fuzz fuzz/all
passo "Fuzz" fuzz "$secondi_fuzz"
if $lungo; then
    passo "Pacchetto" strumenti/pacchetto.sh --radice
else
    passo "Pacchetto" strumenti/pacchetto.sh
fi
if $lungo; then
    passo "clang-tidy" tidy
    passo "Stanze Windows" strumenti/windows.sh
fi
tabella_tempi
# The summary of this run is the last thing that is printed.
ultimo_passo "Prove Release" prove_release
