#!/usr/bin/env bash
# Makes the portable folder from a build: the program's folder with the libraries that it loads, in an archive that is
# unpacked anywhere. Usage: strumenti/portatile.sh [folder of a Release build]; the targets must have been built
# (kelvo_pacchetto). The archive goes to pacchetti/ of the build.
set -euo pipefail
source "$(dirname -- "${BASH_SOURCE[0]}")/comune.sh"

COSTRUZIONE=$(realpath -- "${1:-$RADICE/build/release}")
VERSIONE=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$COSTRUZIONE/CMakeCache.txt")
readonly COSTRUZIONE VERSIONE NOME=Kelvo-$VERSIONE
# What a system must have by itself: the C library and what belongs to it.
readonly DEL_SISTEMA='^(ld-linux.*|lib(c|m|dl|pthread|rt|resolv|util|anl|nsl|nss_.*))\.so'
# What the toolkit loads while it runs: windows with and without a screen, drawings, printers, composed letters.
readonly PLUGIN=(platforms/libqxcb.so platforms/libqoffscreen.so iconengines/libqsvgicon.so imageformats/libqsvg.so
    printsupport/libcupsprintersupport.so platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so)

# librerie <file>...: the libraries that these load, themselves or through others, one path a line.
librerie() {
    local file nome percorso
    for file in "$@"; do
        ldd "$file" | awk '$2 == "=>" && $3 ~ /^\// { print $1, $3 } $3 == "not" { print "?", $1 }'
    done | sort -u | while read -r nome percorso; do
        [[ $nome != '?' ]] || muori "manca la libreria $percorso"
        [[ $nome =~ $DEL_SISTEMA ]] || printf '%s\n' "$percorso"
    done
}

# licenza <library>: the terms of the package that it comes from, beside it.
licenza() {
    local pacchetto
    # The system's register has the files by the path that they came with, before /lib became a link.
    pacchetto=$(dpkg-query -S "$(realpath -- "$1")" "${1#/usr}" "$1" 2>/dev/null | sed -n '1s/[:,].*//p') || true
    [[ -n $pacchetto ]] || muori "di nessun pacchetto: $1"
    cp -n -- "/usr/share/doc/$pacchetto/copyright" "$cartella/Librerie/licenze/$pacchetto.txt"
}

porta_librerie() {
    local qt plugin libreria
    qt=$(qtpaths6 --query QT_INSTALL_PLUGINS)
    mkdir -p -- "$cartella/Librerie/licenze" "$cartella/Librerie/translations"
    for plugin in "${PLUGIN[@]}"; do
        install -D -m 755 -- "$qt/$plugin" "$cartella/Librerie/plugins/$plugin"
    done
    cp -- "$(qtpaths6 --query QT_INSTALL_TRANSLATIONS)/qtbase_it.qm" "$cartella/Librerie/translations/"
    librerie "$cartella/kelvo" "$cartella/kelvo-cli" "${PLUGIN[@]/#/$qt/}" | while read -r libreria; do
        install -m 644 -- "$libreria" "$cartella/Librerie/"
        licenza "$libreria"
    done
    # The programs and whatever they load find them beside themselves, and no other program does.
    for programma in kelvo kelvo-cli; do
        patchelf --force-rpath --set-rpath '$ORIGIN/Librerie' "$cartella/$programma"
    done
    printf '[Paths]\nPrefix = .\nPlugins = Librerie/plugins\nTranslations = Librerie/translations\n' >"$cartella/qt.conf"
}

scrivi_leggimi() {
    cat >"$radice/LEGGIMI.txt" <<FINE
Kelvo $VERSIONE, cartella portatile

  kelvo        il programma da tavolo
  kelvo-cli    la riga di comando (kelvo-cli --help)

Non c'è nulla da installare: la cartella si può spostare dove si vuole, purché "Prog" resti com'è; anche su una
chiavetta, se il suo disco ha i permessi e i collegamenti di Linux (ext4 e simili; FAT ed exFAT non li hanno).

Configurazione, modelli, relazioni e progetti stanno in "Prog"; se la cartella non si può scrivere, Kelvo ne tiene una
copia fra i dati dell'utente (.local/share/Kelvo/Prog). Fra i dati dell'utente stanno sempre la copia di recupero del
progetto aperto (.local/share/Kelvo/Recupero) e l'elenco dei progetti recenti (.config/Kelvo).

Serve un sistema Linux a 64 bit con la libreria C 2.36 o più recente (Debian 12 e successivi) e, per le finestre, uno
schermo X11 o Wayland con XWayland. Le librerie che viaggiano con il programma stanno in Prog/Kelvo/Librerie, con le loro
licenze.
FINE
}

command -v patchelf >/dev/null || muori "serve patchelf (pacchetti \"pacchetto\")"
lavoro=$(mktemp -d -- "$COSTRUZIONE/portatile.XXXXXX")
trap 'rm -rf -- "$lavoro"' EXIT
cmake --install "$COSTRUZIONE" --prefix "$lavoro/installato" --strip >"$COSTRUZIONE/portatile.log"
radice=$lavoro/$NOME
cartella=$radice/Prog/Kelvo
mkdir -p -- "$radice"
mv -- "$lavoro/installato/lib/kelvo/Prog" "$radice/Prog"
rm -f -- "$cartella/Sistema.txt"
porta_librerie
ln -s Prog/Kelvo/kelvo Prog/Kelvo/kelvo-cli "$radice/"
scrivi_leggimi
mkdir -p -- "$COSTRUZIONE/pacchetti"
uscita=$COSTRUZIONE/pacchetti/$NOME-linux-$(uname -m).tar.gz
tar -C "$lavoro" --sort=name --owner=0 --group=0 --numeric-owner --mode='u+rw,go+r,go-w' -cf - "$NOME" | gzip -6n >"$uscita"
di "Cartella portatile: $uscita ($(du -h -- "$uscita" | cut -f 1))"
