#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test that landing requires.
set -euo pipefail
cd "$(dirname "$0")"

case "${1:-}" in
    --help|-h)
        cat <<'HELP'
./test.sh [--lint] [--no-install]

Installs the Debian packages that are missing, then builds and tests:
  the code's format,
  everything (preset check), with windows, sound and printing against real counterparts,
  everything but those again with the address and undefined-behaviour sanitizers (preset asan),
  what has threads (sound, printing, light) with the thread sanitizer (preset tsan),
  the programs that need no toolkit, without it.
With --lint, clang-tidy reads every source file and every test.
From nothing two cores take three quarters of an hour, with --lint a whole one; each part tells when it begins.
HELP
        exit 0 ;;
esac
packages=test
install=yes
lint=no
for option in "$@"; do
    case "$option" in
        --lint) lint=yes packages=lint ;;
        --no-install) install=no ;;
        *) echo "test.sh: unknown option $option; see ./test.sh --help" >&2; exit 2 ;;
    esac
done
[ $install = no ] || scripts/install-packages.sh $packages

# Window managers, sound servers and printers have their own pace, above all on a busy machine: a test that has one of
# them gets a second and a third try. Every other test runs once. Both count, and what both came to is told at the end.
paced='^(x11|sound|cups)$'
run_tests() {  # PRESET
    local failed=no log=build/$1
    ctest --preset "$1" -j4 -LE "$paced" 2>&1 | tee "$log-once.log" || failed=yes
    ctest --preset "$1" -j4 -L "$paced" --repeat until-pass:3 2>&1 | tee "$log-paced.log" || failed=yes
    for part in once paced; do
        echo "-- preset $1, tests run $part ($log-$part.log):"
        sed -n '/tests passed/,/^Errors while/p' "$log-$part.log" | grep -vE '^$|^Label Time Summary|sec\*proc' || true
    done
    [ $failed = no ]
}

stage() {
    echo "== $1 (after $((SECONDS / 60)) min)"
}

stage format
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror

# Objects are shared between the builds below, and kept for the next run.
export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_DIR=$PWD/build/ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
mkdir -p "$CCACHE_DIR"

stage build
cmake --preset check >/dev/null
cmake --build --preset check

if [ $lint = yes ]; then
    stage lint
    scripts/lint.sh
fi

# File by file: each has to name what it needs.
stage "without the toolkit"
cmake --preset dev -B build/logic -DVIGREL_WITH_QT=OFF -DVIGREL_BENCH=OFF -DBUILD_TESTING=OFF >/dev/null
cmake --build build/logic

stage asan
cmake --preset asan >/dev/null
cmake --build --preset asan
ctest --preset asan -LE "$paced|^descriptors\$" -j4

stage tsan
cmake --preset tsan >/dev/null
cmake --build --preset tsan
rm -f build/tsan/race.*
# A report of the sanitizer counts whichever try it came in.
failed=no
run_tests tsan || failed=yes
for report in build/tsan/race.*; do
    if [ -e "$report" ]; then cat "$report"; failed=yes; fi
done
[ $failed = no ]

stage "everything"
run_tests check
