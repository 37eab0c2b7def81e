#!/usr/bin/env bash
# Runs the station's service under a service manager of its own: starts with the desktop, restarts, ends.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'HELP'
packaging/test-service.sh

Starts a user's service manager in a temporary folder, switches the station's service on in it, and looks what the
service does when the desktop starts and ends, when the station is killed, is ended by a peer, fails, is told to end, or
can't start. Then switches on the timer of the report, and hands the report out to stand-ins for a mail program, a browser and a printer.
Takes the programs of build/release (./run.sh --build-only).

Needs root and the package systemd. The machine's own services are not touched.
HELP
}
case "${1:-}" in
    --help|-h) usage; exit 0 ;;
    ?*) echo "test-service.sh: unknown option \"$1\"; try --help" >&2; exit 2 ;;
esac
[ "$(id -u)" -eq 0 ] || { echo "test-service.sh: must be run by root" >&2; exit 2; }
# In a mount namespace of its own: the manager asks whether the machine was started by systemd, and may be told so.
if [ -z "${VIGREL_OWN_NAMESPACE:-}" ]; then
    VIGREL_OWN_NAMESPACE=1 exec unshare --mount packaging/test-service.sh
fi
source packaging/bare-root.sh

programs=$PWD/build/release/bin
work=$(mktemp -d)
export HOME=$work/home XDG_RUNTIME_DIR=$work/run
unset DBUS_SESSION_BUS_ADDRESS XDG_CONFIG_HOME XDG_DATA_HOME DISPLAY WAYLAND_DISPLAY VIGREL_APPLICATION_PATH
folder=$HOME/.local/share/VigrelReceiver
units=$HOME/.config/systemd/user
mkdir -p "$folder" "$units/vigrel-receiver.service.d" -m 700 "$XDG_RUNTIME_DIR"
mkdir -p /run/systemd
mount -t tmpfs tmpfs /run/systemd
mkdir /run/systemd/system

/lib/systemd/systemd --user --log-target=console >"$work/manager.log" 2>&1 &
manager=$!
leave() {
    systemctl --user exit 2>/dev/null || kill $manager
    wait $manager || true
    rm -rf --one-file-system "$work"
}
trap leave EXIT

# until_true COMMAND...: up to half a minute.
until_true() {
    local tries
    for tries in $(seq 60); do
        "$@" && return
        sleep 0.5
    done
    tail -20 "$work/manager.log" >&2
    return 1
}
manager_answers() { systemctl --user list-units >/dev/null 2>&1; }
property() { systemctl --user show vigrel-receiver -p "$1" --value; }
answers() { "$programs/vigrel-send" --port "$port" --keepalive --timeout 2 --quiet 2>/dev/null; }
restarted() { [ "$(property NRestarts)" -ge "$1" ] && [ "$(property SubState)" = running ] && answers; }
state_is() { [ "$(property ActiveState)" = "$1" ]; }
status_is() { case "$(property StatusText)" in *"$1"*) ;; *) return 1 ;; esac }
# Longer than the service waits before it starts again.
stays_down() { sleep 7 && [ "$(property MainPID)" = 0 ]; }
# instead COMMAND: what the service runs from now on in place of the station.
instead() {
    printf '[Service]\nExecStart=\nExecStart=%s\n' "$1" >"$units/vigrel-receiver.service.d/instead.conf"
    systemctl --user daemon-reload
}

port=$((20000 + RANDOM % 10000))
cp -r build/release/share/vigrel-receiver/. "$folder"
LC_ALL=C sed -e "s/^Language=.*/Language=044\r/; s/^Port=.*/Port=$port\r/" \
    "$folder/Templates/VigrelReceiver.044" >"$folder/VigrelReceiver.INI"
sed "s|/usr/bin/|$programs/|" packaging/vigrel-receiver.service >"$units/vigrel-receiver.service"
printf '[Unit]\nBindsTo=graphical-session.target\n' >"$units/desktop.target"

check "a service manager runs" until_true manager_answers
systemctl --user enable vigrel-receiver 2>/dev/null
systemctl --user start desktop.target
check "the station starts with the desktop" until_true answers
check "it is started when it answers" [ "$(property ActiveState)" = active ]
check "its status tells the port" until_true status_is "Listening on port $port; alarms: 0"
for times in 1 2 3 4 5 6 7; do
    kill -KILL "$(property MainPID)"
    check "killed for the ${times}. time, it starts again" until_true restarted $times
done
kill -TERM "$(property MainPID)"
check "told to end, it ends" until_true state_is inactive
check "and stays away" stays_down

for code in 1 70 71 75; do
    instead "/bin/sh -c 'exit $code'"
    systemctl --user start --no-block vigrel-receiver
    check "after exit code $code it starts again" until_true eval '[ "$(property NRestarts)" -ge 2 ]'
    systemctl --user stop vigrel-receiver
done
instead "/bin/sh -c 'echo started >>$work/starts; exit 69'"
systemctl --user start --no-block vigrel-receiver
check "after exit code 69, the reason was told" until_true state_is failed
check "it stays away" stays_down
check "it was started once" [ "$(wc -l <"$work/starts")" -eq 1 ]

rm "$units/vigrel-receiver.service.d/instead.conf"
systemctl --user daemon-reload
systemctl --user start vigrel-receiver
check "it can be started by hand" until_true answers
# The one end that a peer can bring about: a line longer than any sender may send, with a CR behind all bounds.
send_overlong() { { head -c 32768 /dev/zero | tr '\0' x; printf '\r\n'; } >"/dev/tcp/127.0.0.1/$port"; }
check "it takes alarms" "$programs/vigrel-send" --port "$port" --t0 "an alarm" --count 5 --quiet
alarms=$(find "$folder/Alarms" -name '*.alm' | wc -l)
restarts=$(property NRestarts)
send_overlong
check "a line beyond all bounds ends it with code 70" until_true eval '[ "$(property ExecMainStatus)" = 70 ]'
check "it starts again" until_true restarted $((restarts + 1))
check "it lists every alarm again" until_true status_is "alarms: $alarms"
check "which are the five" [ "$alarms" -eq 5 ]
printf '[Service]\nWatchdogSec=3\nTimeoutAbortSec=1\n' >"$units/vigrel-receiver.service.d/watchdog.conf"
systemctl --user daemon-reload
systemctl --user restart vigrel-receiver
restarts=$(property NRestarts)
check "one that is at work is left alone" eval 'sleep 8 && [ "$(property NRestarts) $(property SubState)" = "$restarts running" ]'
station=$(property MainPID)
[ "$station" = 0 ] || kill -STOP "$station"
check "one that stands still starts again" until_true restarted $((restarts + 1))
systemctl --user stop desktop.target graphical-session.target
check "it ends with the desktop" until_true state_is inactive
check "in order" [ "$(property ExecMainStatus)" = 0 ]
check "its log tells so" grep -aqs "ends with the operating system" "$folder"/LogFiles/*

# --- the report on Mondays
sed "s|/usr/bin/|$programs/|" packaging/vigrel-report.service >"$units/vigrel-report.service"
cp packaging/vigrel-report.timer "$units"
systemctl --user daemon-reload
page=$HOME/vigrel-report.html
of_report() { systemctl --user show vigrel-report"$1" -p "$2" --value; }
# writes_page: once it is told to, whatever the day.
writes_page() { rm -f "$page" && systemctl --user start vigrel-report && [ -s "$page" ]; }
refuses_page() { ! systemctl --user start vigrel-report 2>/dev/null && [ "$(of_report "" Result)" = exit-code ]; }
check "the report's units are in order" systemd-analyze --user --man=no verify "$units/vigrel-report.timer"
check "its timer is shipped switched off" [ "$(of_report .timer UnitFileState)" = disabled ]
systemctl --user enable --now vigrel-report.timer 2>/dev/null
check "switched on, it waits" [ "$(of_report .timer ActiveState)" = active ]
check "for Monday at six" [ "$(date -d "$(of_report .timer NextElapseUSecRealtime)" '+%u %T')" = "1 06:00:00" ]
check "and has written nothing yet" [ ! -e "$page" ]
check "the service writes the page" writes_page

mkdir "$work/stand-ins" "$units/vigrel-report.service.d"
printf '#!/bin/sh\ncat >"%s/mailed"\n' "$work" >"$work/stand-ins/sendmail"
printf '#!/bin/sh\necho "$2" >"%s/queue"; cp "$3" "%s/printed"\n' "$work" "$work" >"$work/stand-ins/lp"
printf '#!/bin/sh\nfor word; do case $word in --print-to-pdf=*) echo pdf >"${word#*=}" ;; esac; done\n' \
    >"$work/stand-ins/chromium"
chmod 755 "$work"/stand-ins/*
hand_out="ExecStartPost=$PWD/packaging/examples/vigrel-report-hand-out"
printf '[Service]\nStandardError=file:%s\nEnvironment=%s\nEnvironment="PATH=%s:/usr/bin:/bin"\n%s\n%s\n' \
    "$work/errors" '"VIGREL_REPORT_OPTIONS=--priority Fire=high --operators 2"' "$work/stand-ins" \
    "$hand_out mail manager@plant.example %h/vigrel-report.html" "$hand_out print Laser %h/vigrel-report.html" \
    >"$units/vigrel-report.service.d/override.conf"
systemctl --user daemon-reload
check "with options and both ways to hand it out" writes_page
check "the options hold: two operators" grep -qF "at most 20" "$page"
check "the mail goes to its address" grep -qx "To: manager@plant.example" "$work/mailed"
check "the mail holds the page" eval 'sed "1,/^$/d" "$work/mailed" | base64 -d | cmp -s - "$page"'
check "the printer's queue is the one that was named" [ "$(cat "$work/queue")" = Laser ]
check "it prints what the browser made" [ "$(cat "$work/printed")" = pdf ]
printf '#!/bin/sh\necho "no display" >&2; exit 1\n' >"$work/stand-ins/chromium"
check "a browser that fails fails the service" refuses_page
check "and is told" grep -q "chromium made no page" "$work/errors"

echo "$checks passed, 0 failed"
