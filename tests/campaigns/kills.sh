#!/usr/bin/env bash
# Kills a station at many random moments: while it takes alarms, at its limits, while it ends, while it starts,
# while alarms are acknowledged.
set -euo pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'HELP'
tests/campaigns/kills.sh [KILLS]

Kills a station with SIGKILL, KILLS times (100) in each of eight situations, but a tenth as often at midnight, for which it
has to wait. Started again it must have every alarm that was answered, but for those that its limits remove, whole, and
nothing else; and its configuration. Prints how many alarms were answered. Each situation tells the seed of its random
moments, and takes the one of VIGREL_SEED in the environment instead. Takes the programs of build/dev, or of the folder that
VIGREL_PROGRAMS names. The acknowledging needs a display of its own, which it starts (Xvfb, openbox, xdotool).
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
    *[!0-9]*) echo "kills.sh: \"$1\" is no number; try --help" >&2; exit 2 ;;
esac
export VIGREL_KILLS=${1:-100} TZ=${TZ:-Europe/Stockholm}
reports=$(mktemp -d)
trap 'rm -r "$reports"' EXIT
code=0
for program in e2e_tests e2e_windows_tests; do
    "${VIGREL_PROGRAMS:-build/dev/bin}/$program" --gtest_filter='Kills*' --gtest_output="xml:$reports/$program.xml" || code=$?
done
# sum NAME: of a property of the tests.
sum() { cat "$reports"/*.xml | grep -o "name=\"$1\" value=\"[0-9]*\"" | grep -o '[0-9]*' | paste -sd+ | bc; }
echo "alarms answered: $(sum answered)"
echo "killed in the midst of acknowledging all: $(sum 'in the midst')"
echo "killed in the midst of sweeping at midnight: $(sum 'in the midst of sweeping')"
exit $code
