#!/usr/bin/env bash
# Builds the package and the portable folder and tries them: what they hold, that they run where they are put, that a
# project opens, that nothing is left behind. With --radice also in a clean Debian made for it (needs root and the
# distribution's archive). Usage: strumenti/pacchetto.sh [--radice] [folder of a Release build]
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/comune.sh"

radice_pulita=false
if [[ ${1:-} == --radice ]]; then
    radice_pulita=true
    shift
fi
COSTRUZIONE=$(realpath -- "${1:-$RADICE/build/release}")
readonly COSTRUZIONE
readonly PACCHETTI=$COSTRUZIONE/pacchetti
readonly ESEMPIO=Rotatoria_Via_dei_Mulini.klv
readonly TIPO=application/x-kelvo+json
# What an earlier build may have left in the tree, and no package must take along.
readonly AVANZO=$COSTRUZIONE/Prog/Kelvo/Support/avanzo.htm

lavoro=$(mktemp -d)
avviato=
fine() {
    if [[ -n $avviato ]]; then
        kill "$avviato" 2>/dev/null || true
    fi
    rm -rf -- "$lavoro"
    rm -f -- "$AVANZO"
}
trap fine EXIT

# uguale <what> <expected> <found>
uguale() { [[ $2 == "$3" ]] || muori "$1: atteso \"$2\", trovato \"$3\""; }

# senza_ora: a text less the instant at which it was made.
senza_ora() { sed '/^Output creato con Kelvo/s/ il [0-9].*//'; }

# impronte <folder>: every file below with its sum, every link with where it leads.
impronte() {
    (cd -- "$1" && find . -type f -exec sha256sum -- {} + && find . -type l -printf '%l  %p\n') | sort -k 2
}

# utente: a user that has never started Kelvo, as the environment of what is started next.
utente() {
    export HOME
    HOME=$(mktemp -d -- "$lavoro/casa.XXXXXX")
    mkdir -m 700 -- "$HOME/sessione"
    export XDG_RUNTIME_DIR=$HOME/sessione QT_QPA_PLATFORM=offscreen
    unset XDG_DATA_HOME XDG_CONFIG_HOME
}
readonly CASA_VERA=$HOME

# apre <project as it is given> <path that it must become> <program...>: starts the desktop program without a screen and
# waits for it to have the project among those that it has opened.
apre() {
    local dato=$1 atteso=$2 giri=0
    shift 2
    "$@" "$dato" 2>"$lavoro/kelvo.log" &
    avviato=$!
    until grep -qxF -- "File1=$atteso" "$HOME/.config/Kelvo/Kelvo.ini" 2>/dev/null; do
        kill -0 "$avviato" 2>/dev/null || { cat "$lavoro/kelvo.log" >&2; muori "$1 $dato: il programma è finito"; }
        ((++giri < 600)) || muori "$1 $dato: il progetto non si è aperto"
        sleep 0.2
    done
    kill "$avviato"
    wait "$avviato" 2>/dev/null || true
    avviato=
}

# prova_cartella <program in bin/ or at the top> <root of the tree>: the paths that are cut by count of characters.
prova_cartella() {
    local cartella
    cartella=$(dirname -- "$(readlink -f -- "$1")")
    uguale "cartella del programma" /Prog/Kelvo "${cartella: -11}"
    uguale "radice, meno undici caratteri" "$2" "${cartella:0:-11}"
    [[ -f ${cartella:0:-6}/Progetti/$ESEMPIO ]] || muori "${cartella:0:-6}/Progetti: mancano gli esempi"
    local parte
    for parte in Kelvo.ini Modelli/RelazioneMasterTOT.dotx Relazioni XLS Support/EmptyHelp.htm Immagini/segni/Kelvo.svg \
        Caratteri/OpenSans-Regular.ttf UserGuide/UserGuide.pdf; do
        [[ -e $cartella/$parte ]] || muori "$cartella: manca $parte"
    done
}

# prova_calcolo <kelvo-cli...>: the text of the program in the build tree, a chart, a report.
prova_calcolo() {
    local progetto=$COSTRUZIONE/Prog/Progetti/$ESEMPIO
    "$COSTRUZIONE/Prog/Kelvo/kelvo-cli" calcola "$progetto" | senza_ora >"$lavoro/atteso.txt"
    "$@" calcola "$progetto" | senza_ora >"$lavoro/trovato.txt"
    cmp -- "$lavoro/atteso.txt" "$lavoro/trovato.txt" || muori "$*: altro testo che nella costruzione"
    "$@" grafico --ramo 2 -o "$lavoro/grafico.png" "$progetto"
    "$@" relazione --tipo completa -o "$lavoro/relazione.docx" "$progetto"
    [[ -s $lavoro/grafico.png && -s $lavoro/relazione.docx ]] || muori "$*: grafico o relazione vuoti"
    rm -f -- "$lavoro/grafico.png" "$lavoro/relazione.docx"
}

# senza_macchina <folder>: nothing tells where it was built.
senza_macchina() {
    local trovati
    trovati=$(grep -rlF -e "$RADICE" -e "$COSTRUZIONE" -- "$1") || true
    [[ -z $trovati ]] || muori "percorsi della macchina che costruisce in: $trovati"
}

# percorsi_librerie <program>: where it looks for its libraries by itself.
percorsi_librerie() { readelf -d "$1" | sed -n 's/.*(R\(UN\)\?PATH).*\[\(.*\)\]/\2/p'; }

prova_contenuto() {
    local albero=$lavoro/albero programma trovati
    dpkg-deb -x "$deb" "$albero"
    senza_macchina "$albero"
    for programma in kelvo kelvo-cli; do
        uguale "RPATH di $programma" "" "$(percorsi_librerie "$albero/usr/lib/kelvo/Prog/Kelvo/$programma")"
        prova_cartella "$albero/usr/bin/$programma" "$albero/usr/lib/kelvo"
        LC_ALL=C.UTF-8 man --warnings=w -l "$albero/usr/share/man/it/man1/$programma.1.gz" >"$lavoro/pagina" 2>"$lavoro/avvisi"
        [[ -s $lavoro/pagina && ! -s $lavoro/avvisi ]] || { cat "$lavoro/avvisi" >&2; muori "pagina di $programma"; }
        [[ -e $albero/usr/share/man/man1/$programma.1.gz ]] || muori "manca la pagina di $programma in man1"
    done
    trovati=$(find "$albero" \( -type f -perm /022 -o -type d ! -perm 755 -o -type f ! -perm -444 \) -print)
    uguale "permessi" "" "$trovati"
    uguale "pagine di aiuto" "$(ls assets/Support)" "$(ls -I '*.pdf' "$albero/usr/lib/kelvo/Prog/Kelvo/Support")"
    prova_dati_pacchetto "$albero/usr/share/doc/kelvo/changelog.Debian.gz"
    if command -v lintian >/dev/null; then
        lintian --fail-on error,warning --allow-root "$deb"
    else
        di "Saltato: il controllo di lintian, non è installato"
    fi
}

# prova_dati_pacchetto <changelog>: what it depends on, found or named; its version in the changelog.
prova_dati_pacchetto() {
    local dipende voluto
    dipende=$(dpkg-deb -f "$deb" Depends)
    for voluto in libc6 libqt6widgets6 libqt6svg6 qt6-translations-l10n; do
        grep -qE "(^|, )$voluto( |,|\$)" <<<"$dipende" || muori "il pacchetto non chiede $voluto: $dipende"
    done
    uguale "versione del changelog" "$(dpkg-deb -f "$deb" Version)" "$(zcat "$1" | dpkg-parsechangelog -l - -S Version)"
}

# What cmake installs by itself is what the package holds.
prova_installazione() {
    local locale=$lavoro/locale
    cmake --install "$COSTRUZIONE" --prefix "$locale" >"$COSTRUZIONE/installa.log"
    uguale "file installati da cmake" "$(cd -- "$lavoro/albero/usr" && find . | sort)" "$(cd -- "$locale" && find . | sort)"
    prova_cartella "$locale/bin/kelvo" "$locale/lib/kelvo"
    uguale "RPATH di kelvo-cli" "" "$(percorsi_librerie "$locale/lib/kelvo/Prog/Kelvo/kelvo-cli")"
    rm -rf -- "$locale"
}

prova_scrivania() {
    local albero=$lavoro/albero/usr/share voce
    voce=$albero/applications/kelvo.desktop
    desktop-file-validate "$voce"
    uguale "comando della voce" "kelvo %f" "$(sed -n 's/^Exec=//p' "$voce")"
    uguale "tipo della voce" "$TIPO;" "$(sed -n 's/^MimeType=//p' "$voce")"
    for misura in 16x16 22x22 24x24 32x32 48x48 64x64 128x128 256x256 512x512; do
        uguale "icona $misura" "PNG image data, ${misura/x/ x }" \
            "$(file -b "$albero/icons/hicolor/$misura/apps/kelvo.png" | cut -d , -f 1,2)"
        [[ -s $albero/icons/hicolor/$misura/mimetypes/${TIPO/\//-}.png ]] || muori "manca l'icona dei progetti $misura"
    done
    [[ -s $albero/icons/hicolor/scalable/apps/kelvo.svg ]] || muori "manca l'icona kelvo.svg"
    prova_tipo "$albero"
    prova_catalogo "$albero" "$voce"
}

# prova_catalogo <share> <entry of the desktop>: what catalogues of programs show is what the package and its entry say.
prova_catalogo() {
    local dati=$1/metainfo/invalid.kelvo.kelvo.metainfo.xml versione giorno
    appstreamcli validate-tree --no-net "${1%/usr/share}" >"$lavoro/catalogo" || {
        cat "$lavoro/catalogo" >&2
        muori "i dati per i cataloghi non sono validi"
    }
    versione=$(dpkg-deb -f "$deb" Version)
    giorno=$(date -u -d "$(zcat "$1/doc/kelvo/changelog.Debian.gz" | dpkg-parsechangelog -l - -S Date)" +%F)
    uguale "versione nei cataloghi" "${versione%-*} $giorno" \
        "$(sed -n 's/.*<release version="\([^"]*\)" date="\([^"]*\)".*/\1 \2/p' "$dati" | sed -n 1p)"
    uguale "sommario" "$(sed -n 's/^Comment=//p' "$2")" "$(sed -n 's|.*<summary>\(.*\)</summary>|\1|p' "$dati")"
    uguale "sommario in italiano" "$(sed -n 's/^Comment\[it\]=//p' "$2")" \
        "$(sed -n 's|.*<summary xml:lang="it">\(.*\)</summary>|\1|p' "$dati")"
    grep -qF "<mediatype>$TIPO</mediatype>" "$dati" || muori "i cataloghi non conoscono i progetti"
}

# prova_tipo <share>: what the desktop takes files for.
prova_tipo() {
    local dati=$lavoro/tipi file
    mkdir -p -- "$dati/mime/packages" "$lavoro/file"
    cp -- "$1/mime/packages/kelvo.xml" /usr/share/mime/packages/freedesktop.org.xml "$dati/mime/packages/"
    update-mime-database "$dati/mime" 2>/dev/null
    cp -- "$1/../lib/kelvo/Prog/Progetti/$ESEMPIO" "$lavoro/file/Nodo.klv"
    cp -- "$lavoro/file/Nodo.klv" "$lavoro/file/NODO.KLV"
    cp -- "$lavoro/file/Nodo.klv" "$lavoro/file/senza_estensione"
    printf '{"formato": "altro"}' >"$lavoro/file/altro.json"
    for file in Nodo.klv NODO.KLV senza_estensione; do
        uguale "tipo di $file" "$TIPO" "$(tipo_di "$dati" "$file")"
    done
    uguale "tipo di altro.json" application/json "$(tipo_di "$dati" altro.json)"
    # What a double click opens them with.
    cp -r -- "$1/applications" "$dati/"
    update-desktop-database "$dati/applications"
    uguale "programma dei progetti" kelvo.desktop "$(PATH=$1/../bin:$PATH XDG_CONFIG_HOME=$dati XDG_CONFIG_DIRS=$dati \
        XDG_DATA_HOME=$dati XDG_DATA_DIRS=$dati gio mime "$TIPO" | sed -n '1s/.*: //p')"
}
tipo_di() {
    XDG_DATA_HOME=$1 XDG_DATA_DIRS=$1 gio info -a standard::content-type "$lavoro/file/$2" |
        sed -n 's/.*standard::content-type: //p'
}

# The package in a root of its own, by the system's installer; without its rights, unpacked.
prova_installato() {
    local albero=$lavoro/sistema prima
    mkdir -p -- "$albero/var/lib/dpkg/info" "$albero/var/lib/dpkg/updates"
    : >"$albero/var/lib/dpkg/status"
    if ((EUID == 0)); then
        # What it depends on stands outside this root.
        dpkg --root="$albero" --log="$lavoro/dpkg.log" --force-depends --install "$deb" >"$lavoro/dpkg.txt" 2>&1 ||
            { cat "$lavoro/dpkg.txt" >&2; muori "il pacchetto non si installa"; }
        uguale "stato del pacchetto" "install ok installed" \
            "$(dpkg-query --admindir="$albero/var/lib/dpkg" -W -f '${Status}' kelvo)"
    else
        di "Senza i permessi di amministratore il pacchetto viene solo estratto"
        dpkg-deb -x "$deb" "$albero"
    fi
    prima=$(impronte "$albero/usr")
    prova_uso "$albero/usr/bin" "$albero/usr/lib/kelvo"
    uguale "l'installazione dopo l'uso" "$prima" "$(impronte "$albero/usr")"
    if ((EUID == 0)); then
        prova_aggiornamento "$albero"
        dpkg --root="$albero" --log="$lavoro/dpkg.log" --purge kelvo >>"$lavoro/dpkg.txt" 2>&1 ||
            { cat "$lavoro/dpkg.txt" >&2; muori "il pacchetto non si toglie"; }
        uguale "ciò che resta" "" "$(find "$albero" -mindepth 1 -not -path "$albero/var*")"
    fi
}

# prova_aggiornamento <root>: a newer version over this one. What it brings reaches the copy of the user that has used the
# old one, what the user has changed stays.
prova_aggiornamento() {
    local nuovo=$lavoro/nuovo copia=$HOME/.local/share/Kelvo/Prog/Kelvo progetto=$lavoro/Aggiornata.klv
    dpkg-deb -R "$deb" "$nuovo"
    sed -i 's/^Version: .*/Version: 999-1/' "$nuovo/DEBIAN/control"
    cp -- "$nuovo/usr/lib/kelvo/Prog/Kelvo/Modelli/RelazioneMasterIN.dotx" \
        "$nuovo/usr/lib/kelvo/Prog/Kelvo/Modelli/RelazioneNuova.dotx"
    dpkg-deb --root-owner-group -b "$nuovo" "$lavoro/nuovo.deb" >/dev/null
    dpkg --root="$1" --log="$lavoro/dpkg.log" --force-depends --install "$lavoro/nuovo.deb" >>"$lavoro/dpkg.txt" 2>&1 ||
        { cat "$lavoro/dpkg.txt" >&2; muori "il pacchetto non si aggiorna"; }
    uguale "versione aggiornata" 999-1 "$(dpkg-query --admindir="$1/var/lib/dpkg" -W -f '${Version}' kelvo)"
    cp -- "$1/usr/lib/kelvo/Prog/Progetti/$ESEMPIO" "$progetto"
    grep -q '^Autotreni=0' "$copia/Kelvo.ini" || muori "la prova d'uso non ha lasciato la sua configurazione"
    apre "$progetto" "$progetto" "$1/usr/bin/kelvo"
    [[ -s $copia/Modelli/RelazioneNuova.dotx ]] || muori "la copia dell'utente non segue l'aggiornamento"
    grep -q '^Autotreni=0' "$copia/Kelvo.ini" || muori "l'aggiornamento cambia la configurazione dell'utente"
}

# prova_uso <folder of the commands> <root of the tree>: an installation that nobody writes.
prova_uso() {
    local copia progetto=$lavoro/casa\ di\ Anna/Nodo\ à.klv
    mkdir -p -- "${progetto%/*}"
    cp -- "$2/Prog/Progetti/$ESEMPIO" "$progetto"
    utente
    prova_calcolo "$1/kelvo-cli"
    [[ ! -e $HOME/.local ]] || muori "kelvo-cli scrive fra i dati dell'utente"
    apre "$progetto" "$progetto" "$1/kelvo"
    copia=$HOME/.local/share/Kelvo/Prog
    cmp -- "$2/Prog/Kelvo/Kelvo.ini" "$copia/Kelvo/Kelvo.ini"
    cmp -- "$2/Prog/Progetti/$ESEMPIO" "$copia/Progetti/$ESEMPIO"
    [[ -d $copia/Kelvo/Relazioni && -d $copia/Kelvo/XLS && -s $copia/Kelvo/Modelli/RelazioneMasterTOT.dotx ]] ||
        muori "copia dell'utente incompleta"
    # An address, as a file manager may give it; the settings of the user count for the command line too.
    utente
    apre "file://$(sed 's/ /%20/g; s/à/%C3%A0/g' <<<"$progetto")" "$progetto" "$1/kelvo"
    sed -i 's/^Autotreni=.*/Autotreni=0/' "$HOME/.local/share/Kelvo/Prog/Kelvo/Kelvo.ini"
    if "$1/kelvo-cli" calcola "$progetto" >/dev/null 2>&1; then
        muori "kelvo-cli non legge la configurazione dell'utente"
    fi
}

# The portable folder under a name with blanks and accents, and where nobody may write.
prova_portatile() {
    local posto="$lavoro/Città è bella/chiavetta 1" radice progetto
    mkdir -p -- "$posto"
    tar -C "$posto" -xf "$portatile"
    radice=$(echo "$posto"/Kelvo-*)
    progetto=$radice/Prog/Progetti/$ESEMPIO
    senza_macchina "$radice"
    for programma in kelvo kelvo-cli; do
        uguale "RPATH di $programma" '$ORIGIN/Librerie' "$(percorsi_librerie "$radice/Prog/Kelvo/$programma")"
        prova_cartella "$radice/$programma" "$radice"
        # None of the libraries that travel is taken from the system.
        uguale "librerie del sistema di $programma" "" "$(ldd "$radice/Prog/Kelvo/$programma" | awk '{ print $3 }' |
            grep -E '^/(usr/)?lib/.*/lib(Qt6|icu|fmt|zip|pugixml|stdc)' || true)"
    done
    utente
    prova_calcolo "$radice/kelvo-cli"
    apre "$progetto" "$progetto" "$radice/kelvo"
    [[ ! -e $HOME/.local/share/Kelvo/Prog ]] || muori "la cartella portatile fa una copia senza che serva"
    prova_sola_lettura "$radice" "$progetto"
}

prova_sola_lettura() {
    local blocca=()
    if ((EUID == 0)); then
        if ! unshare --mount true 2>/dev/null; then
            di "Saltato: la cartella portatile in sola lettura, qui non si montano cartelle"
            return
        fi
        blocca=(unshare --mount bash -c
            'mount --bind "$0" "$0" && mount -o remount,bind,ro "$0" && ! touch "$0/x" 2>/dev/null && exec "$@"' "$1")
    else
        chmod -R a-w -- "$1"
    fi
    utente
    prova_calcolo "${blocca[@]}" "$1/kelvo-cli"
    apre "$2" "$2" "${blocca[@]}" "$1/kelvo"
    [[ -s $HOME/.local/share/Kelvo/Prog/Kelvo/Kelvo.ini ]] || muori "manca la copia della cartella in sola lettura"
    chmod -R u+w -- "$1"
}

# A clean Debian: the package with all that it asks for and nothing else, and the portable folder without any of it.
prova_radice() {
    if ((EUID != 0)) || ! command -v debootstrap >/dev/null || ! unshare --mount --pid --fork true 2>/dev/null; then
        di "Saltato: la prova in un sistema pulito (servono debootstrap e i permessi di amministratore)"
        return
    fi
    local archivio=$COSTRUZIONE/radice.tar sistema=$lavoro/debian
    mkdir -p -- "$sistema"
    if [[ ! -s $archivio ]]; then
        HOME=$CASA_VERA debootstrap --variant=minbase bookworm "$sistema" >"$COSTRUZIONE/radice.log" 2>&1 || {
            tail -n 5 "$COSTRUZIONE/radice.log" >&2
            di "Saltato: la prova in un sistema pulito, l'archivio della distribuzione non risponde"
            return
        }
        tar -C "$sistema" -cf "$archivio" .
    else
        tar -C "$sistema" -xf "$archivio"
    fi
    mkdir -p -- "$sistema/prove"
    cp -- "$deb" "$sistema/prove/kelvo.deb"
    tar -C "$sistema/prove" -xf "$portatile"
    cp -- strumenti/sistema_pulito.sh "$sistema/prove/prova.sh"
    unshare --mount --pid --fork chroot "$sistema" /bin/sh /prove/prova.sh || muori "nel sistema pulito il pacchetto non va"
    senza_ora <"$sistema/prove/risultati.txt" | cmp - "$lavoro/atteso.txt" || muori "nel sistema pulito: altro testo"
    di "Sistema pulito: installato, usato, tolto"
}

installa pacchetto
if $radice_pulita; then
    installa radice
fi
cmake --build "$COSTRUZIONE" --target kelvo_pacchetto --parallel "$(nproc)"
rm -rf -- "$PACCHETTI"
: >"$AVANZO"
(cd -- "$COSTRUZIONE" && cpack -G DEB) >"$COSTRUZIONE/cpack.log" 2>&1 || { cat "$COSTRUZIONE/cpack.log" >&2; muori "cpack"; }
deb=$(echo "$PACCHETTI"/kelvo_*.deb)
strumenti/portatile.sh "$COSTRUZIONE"
portatile=$(echo "$PACCHETTI"/Kelvo-*.tar.gz)
prova_contenuto
prova_installazione
prova_scrivania
prova_installato
prova_portatile
if $radice_pulita; then
    prova_radice
fi
di "Pacchetto: $deb ($(du -h -- "$deb" | cut -f 1))"
