#!/usr/bin/env bash
# Runs a station on a real file system of 1 MB that fills and empties, and turns read-only and back; it ends and
# starts again meanwhile.
set -euo pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'HELP'
tests/campaigns/small-disk.sh [ROUNDS]

Mounts file systems of 1 MB in memory, in a mount namespace of its own, and runs a station on them. ROUNDS times (3) the
one of the whole station is filled up and emptied, and the one of its alarms turned read-only and back; alarms are sent
all the while. Each is answered, the station tells that they wait and that all are stored, and at the end, started again,
it has every one. Once in each of both troubles it is told to end and started again: it starts, takes alarms, and has those
that were stored before; those that waited when it ended are gone, since nothing could take them. One that is told to end
when the disk has just got room has stored all.
Needs root or user namespaces. Takes the programs of build/dev, or of the folder that VIGREL_PROGRAMS names.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
    *[!0-9]*) echo "small-disk.sh: \"$1\" is no number; try --help" >&2; exit 2 ;;
esac
if [ -z "${VIGREL_OWN_NAMESPACE:-}" ]; then
    own=()
    [ "$(id -u)" -eq 0 ] || own=(--user --map-root-user)
    VIGREL_OWN_NAMESPACE=1 exec unshare "${own[@]}" --mount "$0" "$@"
fi

rounds=${1:-3} programs=$(realpath "${VIGREL_PROGRAMS:-build/dev/bin}")
work=$(mktemp -d)
pid=
leave() {
    kill -KILL $pid 2>/dev/null || true
    wait
    umount "$folder/Alarms" "$folder" 2>/dev/null || true
    rm -rf --one-file-system "$work"
}
trap leave EXIT
fail() { echo "FAIL $*"; tail -5 "$work/station"; exit 1; }

folder=$work/disk port=$((20000 + RANDOM % 12000))
mkdir -m 700 "$folder" "$work/run"
mount -t tmpfs -o size=1M tmpfs "$folder"
mkdir "$folder/Alarms" "$folder/LogFiles"
{
    printf '0=Test\r\n'
    for id in $(seq 10000 10060) $(seq 11000 11020); do printf '%s=T%s\r\n' "$id" "$id"; done
} >"$folder/Vigrel_Texts.046"
printf '[General]\r\nLanguage=046\r\nMaxEvents=0\r\n[TCPIP]\r\nPort=%s\r\n' "$port" >"$folder/VigrelReceiver.INI"

# until_true COMMAND...: up to half a minute.
until_true() {
    local tries
    for tries in $(seq 300); do
        "$@" && return
        sleep 0.1
    done
    return 1
}
launch() {
    VIGREL_APPLICATION_PATH=$folder XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=offscreen "$programs/vigrel-receiver" \
        >>"$work/station" 2>&1 &
    pid=$!
    until_true send 1 || fail "the station does not answer"
}
sent=0
# send COUNT: each has to be answered.
send() {
    "$programs/vigrel-send" --port "$port" --t0 "a small disk" --count "$1" --quiet >/dev/null 2>&1 || return 1
    sent=$((sent + $1))
}
times_told() { grep -c "$1" "$work/station" || true; }
told() { [ "$(times_told "$1")" -gt "$2" ]; }
all_stored() { [ "$(find "$folder/Alarms" -name '*.alm' | wc -l)" -eq "$sent" ]; }
# waits WHAT COMMAND...: alarms wait until the command mends what is the matter.
waits() {
    local what=$1 waiting stored
    shift
    waiting=$(times_told "T10049 ") stored=$(times_told T10052)
    send 20 || fail "$what: not every alarm was answered"
    until_true told "T10049 " "$waiting" || fail "$what: it is not told"
    "$@"
    until_true told T10052 "$stored" || fail "$what: its end is not told"
    until_true all_stored || fail "$what: alarms are missing"
}

end() {
    kill -TERM $pid
    wait $pid || fail "$1: it does not end in order"
}
# Told to end and started again WHAT: with what is stored, and it takes alarms.
starts_again() {
    local stored
    stored=$(find "$folder/Alarms" -name '*.alm' | wc -l)
    end "$1"
    [ "$(find "$folder/Alarms" -name '*.alm' | wc -l)" -eq "$stored" ] || fail "$1: its end changes what is stored"
    # What waited has gone with it.
    sent=$stored
    launch
}

launch
for round in $(seq "$rounds"); do
    dd if=/dev/zero of="$folder/ballast" bs=4k 2>/dev/null || true
    waits "a full disk" rm "$folder/ballast"
done
dd if=/dev/zero of="$folder/ballast" bs=4k 2>/dev/null || true
send 20 || fail "a full disk: not every alarm was answered"
starts_again "a full disk"
waits "a full disk, started again" rm "$folder/ballast"
dd if=/dev/zero of="$folder/ballast" bs=4k 2>/dev/null || true
send 20 || fail "a full disk: not every alarm was answered"
rm "$folder/ballast"
end "a disk that has just got room"
all_stored || fail "a disk that has just got room: the end stores not every alarm"
mv "$folder/Alarms" "$folder/Before"
mkdir "$folder/Alarms"
mount -t tmpfs -o size=1M tmpfs "$folder/Alarms"
mv "$folder/Before"/* "$folder/Alarms"
launch
for round in $(seq "$rounds"); do
    mount -o remount,ro "$folder/Alarms"
    waits "a disk that is read-only" mount -o remount,rw "$folder/Alarms"
done
mount -o remount,ro "$folder/Alarms"
send 20 || fail "a disk that is read-only: not every alarm was answered"
starts_again "a disk that is read-only"
waits "a disk that is read-only, started again" mount -o remount,rw "$folder/Alarms"
kill -KILL $pid
wait $pid 2>/dev/null || true
before=$sent
launch
grep -aq "$before T10041" "$folder"/LogFiles/* || fail "started again it has not every alarm"
echo "$before alarms answered, all there"
