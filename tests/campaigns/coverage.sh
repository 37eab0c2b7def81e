#!/usr/bin/env bash
# Tells which branches of the logic folders their tests take.
set -euo pipefail
cd "$(dirname "$0")/../.."

logic=(common categories events signals link core schedule definitions)
usage() {
    cat <<'HELP'
tests/campaigns/coverage.sh [FOLDER...]

Builds the tests of the logic with the preset coverage, runs those of each folder (common, categories, events, signals,
link, core, schedule, definitions), and prints the branches of the folder's sources that its own tests never took, and the
share that they took, for each file and for the folder. Ends with 1 when a folder is below 97 %.

The compiler is clang, which counts decisions of the source: both sides of every condition, and of each part of one that
is joined by && or ||, every loop, every case. What a compiler makes itself, the ways by which exceptions leave a
function above all, doesn't count. A condition that throws counts as not met, so where one only throws, its other side
is not known to be taken.

tests/campaigns/open-branches.txt names what can't be taken, with the reasons; it is printed and doesn't count. An entry
that isn't open any more has to go. Needs the packages of scripts/install-packages.sh coverage.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
esac
folders=("$@")
[ ${#folders[@]} -gt 0 ] || folders=("${logic[@]}")
for folder in "${folders[@]}"; do
    [[ " ${logic[*]} " == *" $folder "* ]] || { echo "coverage.sh: \"$folder\" is no folder of the logic; try --help" >&2; exit 2; }
done

export TZ=Europe/Stockholm LC_ALL=C.UTF-8
build=build/coverage
cmake --preset coverage >/dev/null
cmake --build --preset coverage
# Inline functions count wherever they are used; so all programs are looked at, and one runs. llvm-cov warns of the
# others' functions without decisions, of which such a run tells nothing.
objects=()
for folder in "${logic[@]}"; do
    objects+=(-object "$build/bin/${folder}_tests")
done
result=0
for folder in "${folders[@]}"; do
    LLVM_PROFILE_FILE=$build/$folder.profraw "$build/bin/${folder}_tests" --gtest_brief=1
    llvm-profdata-14 merge -sparse "$build/$folder.profraw" -o "$build/$folder.profdata"
    llvm-cov-14 export -instr-profile "$build/$folder.profdata" "${objects[@]}" \
        2> >(grep -v 'functions have mismatched data' >&2) |
        python3 -B tests/campaigns/branch_rates.py "$folder" || result=1
done
exit $result
