#!/bin/sh
# Runs inside a clean Debian that strumenti/pacchetto.sh has made, as its superuser, with the package and the portable
# folder in /prove: uses the folder, installs the package, uses it, takes it away. Started by hand it spoils a system.
set -eu
[ -f /prove/kelvo.deb ] || { echo "non è il sistema delle prove" >&2; exit 2; }
mount -t proc proc /proc
mkdir -p /casa
export HOME=/casa QT_QPA_PLATFORM=offscreen DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
apre() {
    rm -rf "$HOME/.config" "$HOME/.local"
    "$1" "$2" 2>/prove/log &
    pid=$!
    giri=0
    until grep -qxF "File1=$2" "$HOME/.config/Kelvo/Kelvo.ini" 2>/dev/null; do
        kill -0 $pid || { cat /prove/log >&2; exit 1; }
        giri=$((giri + 1))
        [ $giri -lt 600 ] || { echo "$1: il progetto non si apre" >&2; exit 1; }
        sleep 0.2
    done
    kill $pid
    wait $pid || true
}
prova() {
    apre "$1/kelvo" "$2"
    "$1/kelvo-cli" calcola "$2" >/prove/risultati.txt
    "$1/kelvo-cli" grafico --ramo 2 -o /prove/grafico.png "$2"
}
portatile=$(echo /prove/Kelvo-*)
progetto=$portatile/Prog/Progetti/Rotatoria_Via_dei_Mulini.klv
prova "$portatile" "$progetto"
elenco() { find / -xdev \( -path /proc -o -path /prove -o -path /casa -o -path /var -o -path /tmp \) -prune -o -print | sort; }
apt-get update -q >/prove/apt.log 2>&1
apt-get install -y -q --no-install-recommends /prove/kelvo.deb >>/prove/apt.log 2>&1 || { tail -n 20 /prove/apt.log >&2; exit 1; }
prova /usr/bin "$progetto"
[ -s "$HOME/.local/share/Kelvo/Prog/Kelvo/Kelvo.ini" ]
qtbase=$(find / -xdev -name qtbase_it.qm -not -path '/prove/*')
[ -n "$qtbase" ] || { echo "mancano le parole italiane della libreria grafica" >&2; exit 1; }
elenco >/prove/prima
apt-get purge -y -q kelvo >>/prove/apt.log 2>&1
elenco >/prove/dopo
# Nothing has come with its going, and no file of it is left.
comm -13 /prove/prima /prove/dopo >/prove/nuovi
[ ! -s /prove/nuovi ] || { cat /prove/nuovi >&2; exit 1; }
! find / -xdev \( -path /proc -o -path /prove -o -path /casa -o -path /var -o -path /tmp \) -prune -o -iname '*kelvo*' -print | grep .
