#!/usr/bin/env bash
# Kills a station at many random moments: while it takes alarms, at its limit, while it ends, while it starts.
set -euo pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'HELP'
tests/campaigns/kills.sh [KILLS]

Kills a station with SIGKILL, KILLS times (125) in each of four situations. Started again it must have every alarm that
was answered, but for those that its limit removes, whole, and nothing else; and its configuration. Prints how many alarms
were answered. Takes the programs of build/dev, or of the folder that VIGREL_PROGRAMS names.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
    *[!0-9]*) echo "kills.sh: \"$1\" is no number; try --help" >&2; exit 2 ;;
esac
export VIGREL_KILLS=${1:-125} TZ=${TZ:-Europe/Stockholm}
report=$(mktemp)
trap 'rm -f "$report"' EXIT
code=0
"${VIGREL_PROGRAMS:-build/dev/bin}/e2e_tests" --gtest_filter='Kills.*' --gtest_output="xml:$report" || code=$?
echo "alarms answered: $(grep -o 'name="answered" value="[0-9]*"' "$report" | grep -o '[0-9]*' | paste -sd+ | bc)"
exit $code
