#!/usr/bin/env bash
# Sets broken and harmful peers at a station, each for some time, and looks that a good sender is answered all the same.
set -euo pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'HELP'
tests/campaigns/peers.sh [SECONDS [SEED]]

Sets peers of every kind at a station, each for SECONDS (60): drips, endless lines, 10,000 connects a minute, half-open
connections, floods of refused frames, with and without /DEBUG, random lines (from SEED, 1). Beside them a good sender
must be answered within a second each time, no alarm that was answered may be lost, and memory and open files must
come back to what they were. Prints the slowest answer and the memory for each. Takes the programs of build/dev, or of
the folder that VIGREL_PROGRAMS names.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
esac
case "${1:-}${2:-}" in
    *[!0-9]*) echo "peers.sh: \"$*\" are no numbers; try --help" >&2; exit 2 ;;
esac
export VIGREL_PEERS_SECONDS=${1:-60} VIGREL_PEERS_SEED=${2:-1} VIGREL_PEERS_PATIENCE=1000 TZ=${TZ:-Europe/Stockholm}
exec "${VIGREL_PROGRAMS:-build/dev/bin}/e2e_tests" --gtest_filter='*Peers*:AllBytes.*:PositionOverflow.*'
