#!/usr/bin/env bash
# Builds and tests a fresh clone in a bare Debian 12: the proof that the project names every package it needs.
set -euo pipefail
cd "$(dirname "$0")/.."
source packaging/bare-root.sh
source packaging/desktop.sh

usage() {
    cat <<'HELP'
packaging/test-clean-clone.sh [--build-only] [--keep]

Makes a bare Debian 12 in a temporary folder, clones the committed state into it, and runs there
  ./run.sh       on a screen: the station must answer an alarm, store it and show it
  ./test.sh

  --build-only   only the first of the two
  --keep         leaves the temporary folder there

Needs root, debootstrap, git, this machine's apt sources, 10 GB of disk, TCP port 12412, and on this machine xvfb, openbox,
xdotool, wmctrl, imagemagick.
HELP
}

only_build=no keep=no
for argument in "$@"; do
    case "$argument" in
        --help|-h) usage; exit 0 ;;
        --build-only) only_build=yes ;;
        --keep) keep=yes ;;
        *) echo "test-clean-clone.sh: unknown option \"$argument\"; try --help" >&2; exit 2 ;;
    esac
done
[ "$(id -u)" -eq 0 ] || { echo "test-clean-clone.sh: must be run by root" >&2; exit 2; }

work=$(mktemp -d)
root=$work/root
leave() {
    [ -z "$station" ] || kill -KILL "$station" 2>/dev/null || true
    [ ${#screen[@]} -eq 0 ] || kill "${screen[@]}" 2>/dev/null || true
    [ $keep = no ] || { echo "Kept: $root"; return; }
    remove_root "$root" && rm -rf --one-file-system "$work"
}
trap leave EXIT

# in_clone COMMAND: at the top of the clone.
in_clone() {
    inside "$root" bash -c "cd /clone && $1"
}

echo "== a bare Debian"
make_root "$root"
git clone -q --no-hardlinks . "$root/clone"

echo "== ./run.sh"
port=12412
! (: <>/dev/tcp/localhost/$port) 2>/dev/null || { echo "Port $port is in use on this machine." >&2; exit 2; }
begin_desktop
# The locale of a bare machine names no language.
start=$SECONDS
in_clone "LANG=C.UTF-8 DISPLAY=$DISPLAY exec ./run.sh" >"$work/output" 2>&1 &
run=$!
folder=$root/root/.local/share/VigrelReceiver
is_open() { log_says "$folder" "Port $port is open"; }
until is_open || has_ended $run; do sleep 5; done
is_open || tail -n 40 "$work/output" >&2
check "a fresh clone builds and starts a station" is_open
echo "     after $((SECONDS - start)) s"
find_station
check "its window shows" until_true find_window "^Vigrel Alarm Receiver [(]"

# The worked example of docs/protocol.md, byte for byte.
exec 3<>/dev/tcp/localhost/$port
printf '\x02PLC1\xFFS12024-03-05|13:45:10|Fan 3 tripped|Building A|Ventilation\xFFAB\x03\n' >&3
check "a frame gets the positive reply of five bytes" [ "$(timeout 10 head -c 5 <&3 | od -An -tx1)" = " 04 30 34 0a 0d" ]
exec 3<&-
alarms=("$folder"/Alarms/*.alm)
check "it is one file on the disk" [ ${#alarms[@]} -eq 1 ]
check "it is a row in the window" until_true row_shows "$active" "$work/window.png"
check "vigrel-send gets the positive reply too" in_clone 'build/release/bin/vigrel-send --sender PLC1 --t0 "Smoke" --t2 Fire'
alarms=("$folder"/Alarms/*.alm)
check "that is a second file" [ ${#alarms[@]} -eq 2 ]
check "and a second row" until_true row_shows "$fire" "$work/window.png"
kill -TERM "$station"
check "it ends when it is told to" until_true has_ended "$station"
station=
end_desktop

if [ $only_build = no ]; then
    echo "== ./test.sh"
    time check "a fresh clone passes its tests" in_clone "./test.sh"
fi
echo "$checks passed, 0 failed"
