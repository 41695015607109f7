# Shared by the commands of the repository: sourced, never run. The caller sets `set -euo pipefail`.

RADICE=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)
cd -- "$RADICE" || exit

# Figures and messages of the tools must not change with the system's language.
export LC_ALL=C.UTF-8

di() { printf '== %s\n' "$*"; }
muori() {
    printf 'Errore: %s\n' "$*" >&2
    exit 1
}

# pacchetti <purpose>...: the packages of the purposes, one a line.
pacchetti() {
    local scopo trovati
    for scopo in "$@"; do
        trovati=$(sed -n "s/^$scopo://p" strumenti/pacchetti.txt)
        [[ -n $trovati ]] || muori "nessun pacchetto per \"$scopo\" in strumenti/pacchetti.txt"
        tr -s ' ' '\n' <<<"$trovati" | sed '/^$/d'
    done
}

# mancanti <package>...: those that are not installed; asks nobody but the system's own register.
mancanti() {
    local presenti nome
    presenti=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p') || true
    for nome in "$@"; do
        grep -qxF -- "$nome" <<<"$presenti" || printf '%s\n' "$nome"
    done
}

come_root() {
    if ((EUID == 0)); then
        "$@"
    elif ! command -v sudo >/dev/null; then
        muori "per installare i pacchetti servono i permessi di amministratore: $*"
    elif [[ -t 0 ]]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

# installa <purpose>...: installs what is missing; with all there it touches and contacts nothing.
installa() {
    local elenco voluti da_installare=()
    elenco=$(pacchetti "$@") || exit
    mapfile -t voluti <<<"$elenco"
    if ! command -v dpkg-query >/dev/null; then
        di "Sistema senza pacchetti Debian: servono gli equivalenti di ${voluti[*]}"
        return
    fi
    mapfile -t da_installare < <(mancanti "${voluti[@]}")
    ((${#da_installare[@]})) || return 0
    di "Installazione dei pacchetti mancanti: ${da_installare[*]}"
    come_root apt-get update -q
    come_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${da_installare[@]}"
    mapfile -t da_installare < <(mancanti "${voluti[@]}")
    ((${#da_installare[@]} == 0)) || muori "pacchetti non installati: ${da_installare[*]}"
}

# Compilations already seen are not repeated, where the tool is at hand.
usa_ccache() {
    command -v ccache >/dev/null || return 0
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    if [[ -z ${CCACHE_DIR:-} && ! -w ${HOME:-/nonexistent} ]]; then
        export CCACHE_DIR=$RADICE/build/ccache
    fi
}

# costruisci <preset> [target...]: configures where needed and builds.
costruisci() {
    local preset=$1
    shift
    usa_ccache
    cmake --preset "$preset" >"build/configura-$preset.log" 2>&1 || {
        cat "build/configura-$preset.log" >&2
        muori "configurazione \"$preset\" non riuscita"
    }
    cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}

# sorgenti: the C++ files of the repository, NUL between them.
sorgenti() {
    local file
    if [[ -e .git ]] && git ls-files >/dev/null 2>&1; then
        git ls-files -z --cached --others --exclude-standard -- '*.cpp' '*.h' | while IFS= read -r -d '' file; do
            if [[ -f $file ]]; then
                printf '%s\0' "$file"
            fi
        done
    else
        find src apps strumenti tests benchmarks fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 2>/dev/null
    fi
}

# Milliseconds since the epoch.
adesso_ms() {
    local istante=${EPOCHREALTIME//[.,]/}
    printf '%s' "${istante:0:-3}"
}

# durata <milliseconds>: in seconds with one decimal and comma.
durata() {
    local decimi=$((($1 + 50) / 100))
    printf '%d,%d s' $((decimi / 10)) $((decimi % 10))
}

mkdir -p build
