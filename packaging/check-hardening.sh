#!/usr/bin/env bash
# check-hardening.sh PROGRAM...: whether programs were built as the distribution builds its own: at any address, with
# what the loader has filled in write-protected, with guarded stacks and checked calls, and with the library's own
# assertions.
set -euo pipefail

status=0 checked=no
miss() { echo "$program: $1" >&2; status=1; }

[ $# -gt 0 ] || { echo "usage: check-hardening.sh PROGRAM..." >&2; exit 2; }
for program in "$@"; do
    header=$(readelf -hW "$program")
    segments=$(readelf -lW "$program")
    dynamic=$(readelf -dW "$program")
    symbols=$(readelf --dyn-syms -W "$program")
    has() { grep -qE "$2" <<<"$1"; }
    { has "$header" 'Type:.*DYN' && has "$dynamic" 'FLAGS_1.*PIE'; } || miss "is not position independent"
    { has "$segments" GNU_RELRO && has "$dynamic" 'FLAGS_1.*NOW'; } ||
        miss "leaves what the loader fills in writable (no full RELRO)"
    { has "$segments" GNU_STACK && ! has "$segments" 'GNU_STACK.*RWE'; } || miss "has a stack that can be executed"
    has "$symbols" __stack_chk_fail || miss "has no guarded stacks"
    if has "$symbols" '__[a-z]+(_[a-z]+)*_chk(@|$)'; then checked=yes; fi
    has "$symbols" __glibcxx_assert_fail || miss "has no assertions of the standard library"
done
# Of one alone it says nothing: the compiler can have proved each of its calls. All are built in the same way.
[ $checked = yes ] || { echo "none of the programs has checked calls (_FORTIFY_SOURCE)" >&2; status=1; }
exit $status
