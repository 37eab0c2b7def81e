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
to begin with, in the language of your locale, or else in English (or in VIGREL_LANGUAGE, such as 046). The station listens on port 12412 (key Port of section TCPIP).

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

folder=${VIGREL_APPLICATION_PATH:-${XDG_DATA_HOME:-$HOME/.local/share}/VigrelReceiver}
export VIGREL_APPLICATION_PATH=$folder

if [ $headless = no ] && [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    headless=yes
    echo "No display: the station runs without a window (it receives, answers, stores and logs all the same)."
fi
[ $headless = no ] || export QT_QPA_PLATFORM=offscreen

# Ready to receive without a question.
export VIGREL_LANGUAGE=${VIGREL_LANGUAGE:-locale}
echo "Application folder: $folder"
exec build/release/bin/vigrel-receiver "${switches[@]}"
