#!/usr/bin/env bash
# Ends a station in the middle of a flood of alarms, at many random moments.
set -euo pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'HELP'
tests/campaigns/flood-end.sh [MOMENTS]

Ends a flooded station with SIGTERM at MOMENTS random moments (50). At each of them the log must end with the line of
the end, and as many alarms must be stored as were answered. Takes the programs of build/dev, or of the folder that
VIGREL_PROGRAMS names.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
    *[!0-9]*) echo "flood-end.sh: \"$1\" is no number; try --help" >&2; exit 2 ;;
esac
export VIGREL_FLOOD_MOMENTS=${1:-50} TZ=${TZ:-Europe/Stockholm}
exec "${VIGREL_PROGRAMS:-build/dev/bin}/e2e_tests" --gtest_filter='Flood.*'
