#!/usr/bin/env bash
# Feeds the fuzz targets until each has had so many inputs.
set -euo pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'HELP'
tests/campaigns/fuzz.sh [EXECUTIONS [TARGET...]]

Builds the targets of fuzz/ with the preset fuzz (clang, sanitizers, assertions) and runs each, or the named ones
(wildcard, ini, ...), until it has had EXECUTIONS inputs (10000000), one target after the other. Goes on where it was cut off:
what was done stands in build/campaigns/fuzz. Prints the count of each; inputs that reach something new then join
fuzz/corpus, as few as do. An input that breaks something ends the campaign, stays in that folder and is named.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
    *[!0-9]*) echo "fuzz.sh: \"$1\" is no number; try --help" >&2; exit 2 ;;
esac
wanted=${1:-10000000}
shift || true
all=$(sed -n 's/^vigrel_fuzz_target(\([a-z_]*\) .*/\1/p' fuzz/CMakeLists.txt)
targets=("$@")
[ ${#targets[@]} -gt 0 ] || mapfile -t targets <<<"$all"
for target in "${targets[@]}"; do
    grep -qx "$target" <<<"$all" || { echo "fuzz.sh: \"$target\" is no target of fuzz/; try --help" >&2; exit 2; }
done

export TZ=Europe/Stockholm LC_ALL=C.UTF-8
# An input frees far less than 8 MB, and memory that is used again soon is already there. What breaks is told with all its
# callers when the input is run for itself.
export ASAN_OPTIONS=quarantine_size_mb=8:malloc_context_size=2
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target "${targets[@]/#/fuzz_}"
state=build/campaigns/fuzz
for target in "${targets[@]}"; do
    folder=$state/$target
    mkdir -p "$folder/inputs"
    options=(-entropic=0 -print_final_stats=1 -artifact_prefix="$folder/")
    # A long life of a station takes a second under sanitizers, and shows little that a short one doesn't; nor does a long
    # list of lines. Binary files have their sizes.
    case $target in
        definitions|inspect|schedule_files|stored_alarms) ;;
        *) options+=(-max_len=500) ;;
    esac
    [ ! -f "fuzz/$target.dict" ] || options+=("-dict=fuzz/$target.dict")
    executed=0
    [ ! -f "$folder/executed" ] || executed=$(<"$folder/executed")
    while [ "$executed" -lt "$wanted" ]; do
        # In pieces of a minute, so that little is lost by an end.
        "build/fuzz/bin/fuzz_$target" "${options[@]}" -runs=$((wanted - executed)) -max_total_time=60 "$folder/inputs" \
            "fuzz/corpus/$target" >"$folder/log" 2>&1 ||
            { tail -n 30 "$folder/log" >&2; echo "fuzz.sh: $target broke: $folder" >&2; exit 1; }
        executed=$((executed + $(sed -n 's/^stat::number_of_executed_units: //p' "$folder/log")))
        echo "$executed" >"$folder/executed"
    done
    "build/fuzz/bin/fuzz_$target" -merge=1 "fuzz/corpus/$target" "$folder/inputs" >"$folder/log" 2>&1
    printf '%-20s %12d executions, %d inputs\n' "$target" "$executed" "$(find "fuzz/corpus/$target" -type f | wc -l)"
done
