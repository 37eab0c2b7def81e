#!/usr/bin/env bash
# Tells which branches of the logic folders their tests take.
set -euo pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'HELP'
tests/campaigns/coverage.sh [FOLDER...]

Builds the tests of the logic with the preset coverage, runs them, and prints the share of branches that were taken, for
each file of the folders (common, categories, events, signals, link, core, schedule, definitions) and for each folder.
Branches that only a failing allocation takes don't count. Needs the packages of scripts/install-packages.sh coverage.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
esac
folders=("$@")
[ ${#folders[@]} -gt 0 ] || folders=(common categories events signals link core schedule definitions)
for folder in "${folders[@]}"; do
    [ -d "src/$folder" ] || { echo "coverage.sh: \"$folder\" is no folder of src; try --help" >&2; exit 2; }
done

export TZ=Europe/Stockholm LC_ALL=C.UTF-8
cmake --preset coverage >/dev/null
cmake --build --preset coverage
build=build/coverage
find $build -name '*.gcda' -delete
for folder in common categories events signals link core schedule definitions life; do
    $build/bin/${folder}_tests --gtest_brief=1
done
for folder in "${folders[@]}"; do
    echo "== $folder"
    gcovr --root . --filter "src/$folder/" --exclude-throw-branches --exclude-unreachable-branches --branches \
        $build/src/"$folder" | grep -E '^(src/|TOTAL)'
done
