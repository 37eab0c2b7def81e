#!/usr/bin/env bash
# Builds and tests a fresh clone in a bare Debian 12: the proof that the project names every package it needs.
set -euo pipefail
cd "$(dirname "$0")/.."
source packaging/bare-root.sh

usage() {
    cat <<'HELP'
packaging/test-clean-clone.sh [--build-only] [--keep]

Makes a bare Debian 12 in a temporary folder, clones the committed state into it, and runs there
  ./run.sh --build-only
  ./test.sh

  --build-only   only the first of the two
  --keep         leaves the temporary folder there

Needs root, debootstrap, git, this machine's apt sources, and 10 GB of disk.
HELP
}

only_build=no keep=no
for argument in "$@"; do
    case "$argument" in
        --help|-h) usage; exit 0 ;;
        --build-only) only_build=yes ;;
        --keep) keep=yes ;;
        *) echo "test-clean-clone.sh: unknown option \"$argument\"; try --help" >&2; exit 2 ;;
    esac
done
[ "$(id -u)" -eq 0 ] || { echo "test-clean-clone.sh: must be run by root" >&2; exit 2; }

work=$(mktemp -d)
root=$work/root
leave() {
    [ $keep = no ] || { echo "Kept: $root"; return; }
    remove_root "$root" && rm -rf --one-file-system "$work"
}
trap leave EXIT

# in_clone COMMAND: at the top of the clone.
in_clone() {
    inside "$root" bash -c "cd /clone && $1"
}

echo "== a bare Debian"
make_root "$root"
git clone -q --no-hardlinks . "$root/clone"

echo "== ./run.sh --build-only"
time check "a fresh clone builds" in_clone "./run.sh --build-only"
check "the receiver is there" [ -x "$root/clone/build/release/bin/vigrel-receiver" ]
if [ $only_build = no ]; then
    echo "== ./test.sh"
    time check "a fresh clone passes its tests" in_clone "./test.sh"
fi
echo "$checks passed, 0 failed"
