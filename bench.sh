#!/usr/bin/env bash
# Builds and measures: one table of what the system takes, a bare reference, their ratio and the target.
set -euo pipefail
cd "$(dirname "$0")"

case "${1:-}" in
    --help|-h)
        cat <<'HELP'
./bench.sh [--short] [--no-install] [--plots] [LINE]...

Installs the Debian packages that are missing, builds with the preset release, and measures under a display of its own:
starts, answers, lists, popups, acknowledging, export, sound. Prints one table and ends with 1 when a target is missed. Let the
machine rest: what else runs on it shows in the figures.

  --short   small numbers in seconds, to see that everything runs; no target counts
  --plots   also draws docs/performance/*.svg, with up to 1,000,000 stored alarms (half an hour, 5 GB in TMPDIR)
  LINE      only these: starts, answers, acknowledging, burst, popups, sorting, texts, export, sound
HELP
        exit 0 ;;
esac
install=yes arguments=()
for option in "$@"; do
    case "$option" in
        --no-install) install=no ;;
        --plots) mkdir -p docs/performance; arguments+=(--plots docs/performance) ;;
        *) arguments+=("$option") ;;
    esac
done
[ $install = no ] || scripts/install-packages.sh test
cmake --preset release >/dev/null
cmake --build --preset release --target bench

started=()
end() {
    for id in "${started[@]}"; do kill "$id" 2>/dev/null || true; done
    wait 2>/dev/null || true
}
trap end EXIT
display_file=$(mktemp)
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$display_file" >/dev/null 2>&1 & started+=("$!")
for _ in $(seq 100); do [ -s "$display_file" ] && break; sleep 0.1; done
DISPLAY=:$(cat "$display_file")
rm -f "$display_file"
export DISPLAY QT_QPA_PLATFORM=xcb
openbox --sm-disable >/dev/null 2>&1 & started+=("$!")
sleep 1
build/release/bin/bench "${arguments[@]}"
