#!/usr/bin/env bash
# Starts a station ready to receive: installs what is missing, builds, prepares the application folder, starts.
set -euo pipefail
cd "$(dirname "$0")"

usage() {
    cat <<'HELP'
./run.sh [options] [switches of the receiver]

Installs the Debian packages that are missing, builds, and starts a station that is ready to receive.

  --help         this text
  --headless     without a window, also when there is a display
  --no-install   leave the packages of this machine alone
  --build-only   stop when the programs are built

The station's application folder (configuration, stored alarms, logs) is the one that the environment variable
VIGREL_APPLICATION_PATH names, or VigrelReceiver in your data folder. On first use it is filled with a configuration
to begin with, in the language of your locale. The station listens on port 12412 (key Port of section TCPIP).

Switches of the receiver, such as /DEBUG, /TOPMOST, /MAXIMIZE, /MINIMIZE, are passed on.

A first alarm, from a second terminal:

  build/release/bin/vigrel-send --sender PLC1 --t0 "Fan 3 tripped" --t2 Technical
HELP
}

headless=no install=yes build_only=no switches=()
for argument in "$@"; do
    case "$argument" in
        --help|-h) usage; exit 0 ;;
        --headless) headless=yes ;;
        --no-install) install=no ;;
        --build-only) build_only=yes ;;
        /*) switches+=("$argument") ;;
        *) echo "run.sh: unknown option \"$argument\"; try ./run.sh --help" >&2; exit 2 ;;
    esac
done

[ $install = no ] || scripts/install-packages.sh
[ -f build/release/build.ninja ] || cmake --preset release -DBUILD_TESTING=OFF
cmake --build --preset release
[ $build_only = no ] || exit 0

share=build/release/share/vigrel-receiver
folder=${VIGREL_APPLICATION_PATH:-${XDG_DATA_HOME:-$HOME/.local/share}/VigrelReceiver}
export VIGREL_APPLICATION_PATH=$folder

if [ $headless = no ] && [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    headless=yes
    echo "No display: the station runs without a window (it receives, answers, stores and logs all the same)."
fi
[ $headless = no ] || export QT_QPA_PLATFORM=offscreen

# The language of the user's locale, when there is a text file for it. Without a window nobody could choose one.
language() {
    case "${LC_ALL:-${LC_MESSAGES:-${LANG:-}}}" in
        sv*) echo 046 ;; da*) echo 045 ;; nb*|nn*|no*) echo 047 ;; fi*) echo 358 ;; de*) echo 049 ;; en*) echo 044 ;;
        *) [ $headless = no ] || echo 044 ;;
    esac
}
mkdir -p "$folder"
if ! ls "$folder" | grep -qi '^vigrelreceiver\.ini$'; then
    cp -rn "$share/." "$folder/"
    number=$(language)
    if [ -n "$number" ] && [ -f "$folder/Vigrel_Texts.$number" ]; then
        LC_ALL=C awk -v number="$number" '
            /^[Ll]anguage=/ { next }
            { print }
            !done && /^\[General\]/ { printf "Language=%s\r\n", number; done = 1 }
        ' "$folder/Templates/VigrelReceiver.oni" >"$folder/VigrelReceiver.INI"
    fi
fi

echo "Application folder: $folder"
exec build/release/bin/vigrel-receiver "${switches[@]}"
