#!/usr/bin/env bash
# clang-tidy's view of all sources, or of those whose folder is named.
set -euo pipefail
cd "$(dirname "$0")/.."

case "${1:-}" in
    --help|-h)
        cat <<'HELP'
scripts/lint.sh [FOLDER...]

Has clang-tidy read every source file and every test, or those of the folders: scripts/lint.sh src/link tests/link.
Takes the build of the preset check, which compiles the files of a folder together: what costs is not the files, it's
the headers that they include.
HELP
        exit 0 ;;
esac
build=$PWD/build/check
[ -f "$build/compile_commands.json" ] || { echo "lint.sh: $build is not built; see scripts/lint.sh --help" >&2; exit 2; }

# Files are included on purpose here.
read_together=-bugprone-suspicious-include
# A test's vectors need not be fast, and its numbers are small.
of_tests=-performance-inefficient-vector-operation,-bugprone-implicit-widening-of-multiplication-result
# The compiler's own warnings are the compiler's to tell.
lint() {  # CHECKS FOLDER...
    local checks=$1 folders
    shift
    folders=$(IFS='|'; echo "$*")
    run-clang-tidy -quiet -p "$build" -checks="$checks" -extra-arg=-w "^($build/($folders)/.*/Unity|$PWD/($folders))/" >build/lint.log 2>&1 || {
        grep -A3 -E 'error:|warning:' build/lint.log || tail -20 build/lint.log
        return 1
    }
}

code=() tests=()
[ $# -gt 0 ] || set -- src apps tools tests bench fuzz
for folder in "$@"; do
    case "$folder" in
        tests*|bench*|fuzz*) tests+=("${folder%/}") ;;
        *) code+=("${folder%/}") ;;
    esac
done
[ ${#code[@]} -eq 0 ] || lint "$read_together" "${code[@]}"
[ ${#tests[@]} -eq 0 ] || lint "$read_together,$of_tests" "${tests[@]}"
