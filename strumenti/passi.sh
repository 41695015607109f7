# Steps of test.sh: sourced, never run.

nomi_passi=()
tempi_passi=()

# passo <name> <command...>: runs a step, notes its time; a failing one ends everything with its name.
passo() {
    local nome=$1 inizio esito
    shift
    di "$nome"
    inizio=$(adesso_ms)
    # A subshell on a line of its own: inside a condition a failing command would not end it.
    set +e
    (
        set -euo pipefail
        "$@"
    )
    esito=$?
    set -e
    nomi_passi+=("$nome")
    tempi_passi+=("$(durata $(($(adesso_ms) - inizio)))")
    if ((esito)); then
        tabella_tempi >&2
        printf 'Passo non riuscito: %s (codice %d)\n' "$nome" "$esito" >&2
        exit "$esito"
    fi
}

# Like passo, but silent at its end if all is well.
ultimo_passo() {
    local nome=$1 esito
    shift
    di "$nome"
    set +e
    (
        set -euo pipefail
        "$@"
    )
    esito=$?
    set -e
    if ((esito)); then
        printf 'Passo non riuscito: %s (codice %d)\n' "$nome" "$esito" >&2
        exit "$esito"
    fi
}

tabella_tempi() {
    local i
    printf '\n%-28s %10s\n' "Passo" "Tempo"
    for i in "${!nomi_passi[@]}"; do
        printf '%-28s %10s\n' "${nomi_passi[i]}" "${tempi_passi[i]}"
    done
    printf '\n'
}

formato() {
    sorgenti | xargs -0 -r clang-format --dry-run -Werror --
}

# suite <preset> [prefix...]: the whole suite of a build; no test at all is a failure too.
suite() {
    "${@:2}" ctest --test-dir "build/$1" -j2 --output-on-failure --no-tests=error
}

# Makes an Italian locale in the build folder, for the suite under it and for the tests that ask for one.
readonly LINGUE=$RADICE/build/locale
prepara_lingua() {
    if [[ ! -d $LINGUE/it_IT.UTF-8 ]]; then
        mkdir -p "$LINGUE"
        localedef -i it_IT -f UTF-8 "$LINGUE/it_IT.UTF-8"
    fi
}

prove_italiane() {
    prepara_lingua
    suite release env "LOCPATH=$LINGUE" LC_ALL=it_IT.UTF-8
}

prove_release() {
    prepara_lingua
    suite release env "LOCPATH=$LINGUE"
}

# prove_asan <preset>: the suite under the sanitizers, windows on the platform that needs no display.
prove_asan() {
    export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    prepara_lingua
    suite "$1" env "LOCPATH=$LINGUE" QT_QPA_PLATFORM=offscreen
}

# fuzz <seconds>: every fuzzer for so long, on a copy of its seeds.
fuzz() {
    local programma nome corpo massimo programmi
    shopt -s nullglob
    programmi=()
    for programma in build/fuzz/fuzz/fuzz_*; do
        [[ -f $programma && -x $programma ]] && programmi+=("$programma")
    done
    ((${#programmi[@]})) || muori "nessun programma di fuzz in build/fuzz/fuzz"
    for programma in "${programmi[@]}"; do
        nome=${programma##*/fuzz_}
        [[ -d fuzz/semi_$nome ]] || muori "mancano i semi fuzz/semi_$nome"
        corpo=build/fuzz/corpo_$nome
        rm -rf -- "$corpo"
        cp -r -- "fuzz/semi_$nome" "$corpo"
        # Room for the largest seed and some more.
        massimo=$(find "$corpo" -type f -printf '%s\n' | sort -n | tail -n 1)
        massimo=$((${massimo:-0} + 4096))
        di "fuzz_$nome per $1 s, testi fino a $massimo byte"
        "$programma" -max_total_time="$1" -max_len="$massimo" -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
            -artifact_prefix="build/fuzz/${nome}_" "$corpo" >"build/fuzz/fuzz_$nome.log" 2>&1 || {
            tail -n 60 "build/fuzz/fuzz_$nome.log" >&2
            muori "fuzz_$nome: il testo che lo fa cadere sta in build/fuzz/"
        }
        sed -n 's/^stat::number_of_executed_units: */   testi provati: /p' "build/fuzz/fuzz_$nome.log"
    done
}

# compilati <build> <folder...>: the sources of the folders that a build compiles, one a line.
compilati() {
    local cartella
    for cartella in "${@:2}"; do
        sed -n "s|^ *\"file\": \"\($RADICE/$cartella/.*\)\".*|\1|p" "$1/compile_commands.json"
    done | sort -u
}

# esamina <build> <folder...>: clang-tidy over the sources of the folders, a warning is an error.
esamina() {
    compilati "$@" | xargs -r -d '\n' -n 1 -P "$(nproc)" clang-tidy -p "$1" --quiet --warnings-as-errors='*' \
        --extra-arg=-Wno-unknown-warning-option
}

tidy() {
    esamina build/release src apps strumenti tests benchmarks
    esamina build/fuzz fuzz
}
