# Sourced by the tests that need a bare Debian 12. Needs root and debootstrap.

suite=bookworm

# The mirror that this machine's own packages come from.
mirror() {
    find /etc/apt -name '*.list' -exec cat {} + -o -name '*.sources' -exec cat {} + | awk -v suite=$suite '
        found != "" { next }
        $1 == "deb" { sub(/\[[^]]*\]/, ""); if ($3 == suite) found = $2 }
        $1 == "URIs:" { uri = $2 }
        $1 == "Suites:" { for (i = 2; i <= NF; i++) if ($i == suite) found = uri }
        END { print found }'
}

# make_root FOLDER: a Debian with nothing but what apt needs, and this machine's way to the mirror.
make_root() {
    local root=$1 from
    from=$(mirror)
    [ -n "$from" ] || { echo "No source of $suite in this machine's apt sources." >&2; return 1; }
    debootstrap --variant=minbase --include=ca-certificates $suite "$root" "$from" >"$root.log" 2>&1 ||
        { tail -20 "$root.log" >&2; return 1; }
    echo "deb $from $suite main" >"$root/etc/apt/sources.list"
    apt-config dump | grep -i '^Acquire::.*proxy' >"$root/etc/apt/apt.conf.d/90proxy" || true
    cp /etc/resolv.conf /etc/hosts "$root/etc/"
    # Services must not be started in here.
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
    chmod 755 "$root/usr/sbin/policy-rc.d"
    mount -t proc proc "$root/proc"
}

# inside FOLDER COMMAND...: runs a command in the root, with nothing of this machine's surroundings. In the background
# it becomes the command, so that its process id is the command's.
inside() {
    local root=$1
    shift
    local enter=(env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8
        DEBIAN_FRONTEND=noninteractive chroot "$root")
    if [ "${in_background:-no}" = yes ]; then exec "${enter[@]}" "$@"; fi
    "${enter[@]}" "$@"
}

# Takes away what make_root made. One file system: what is mounted in the root is not touched.
remove_root() {
    local root=$1
    umount "$root/proc" 2>/dev/null || true
    if grep -q " $root/" /proc/self/mounts; then
        echo "Still mounted below $root; left alone." >&2
        return 1
    fi
    rm -rf --one-file-system "$root" "$root.log"
}

# check WHAT COMMAND...: one line of the report; the first failure ends the test.
checks=0
check() {
    local what=$1
    shift
    if "$@"; then
        checks=$((checks + 1))
        echo "ok   $what"
    else
        echo "FAIL $what: $*" >&2
        exit 1
    fi
}
