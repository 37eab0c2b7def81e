#!/usr/bin/env bash
# Installs, uses, upgrades and removes the packages in a bare Debian 12.
set -euo pipefail
cd "$(dirname "$0")/.."
source packaging/bare-root.sh
source packaging/desktop.sh

usage() {
    cat <<'HELP'
packaging/test-package.sh [--no-build] [--keep]

Builds the Debian package and the portable archive, makes a bare Debian 12 in a temporary folder, and there
  installs the package with apt, starts the station as an ordinary user without windows, sends it an alarm, ends it,
  starts it from its menu entry on a screen, sends, acknowledges, ends the session, and looks that all is back then,
  upgrades under a running station, and looks that the user's files are as they were, and new texts have come,
  removes the package, and looks that nothing is left,
  unpacks the archive beside a desktop's own libraries, and does the same with the station in it.

  --no-build   takes the packages of the last build
  --keep       leaves the temporary folder there

Needs root, debootstrap, this machine's apt sources, and on this machine xvfb, openbox, xdotool, wmctrl,
imagemagick.
HELP
}

build=yes keep=no
for argument in "$@"; do
    case "$argument" in
        --help|-h) usage; exit 0 ;;
        --no-build) build=no ;;
        --keep) keep=yes ;;
        *) echo "test-package.sh: unknown option \"$argument\"; try --help" >&2; exit 2 ;;
    esac
done
[ "$(id -u)" -eq 0 ] || { echo "test-package.sh: must be run by root" >&2; exit 2; }

packages=build/release/packages
if [ $build = yes ]; then
    rm -rf $packages
    ./run.sh --no-install --build-only
    cmake --build --preset release --target package
fi
deb=$(ls $packages/vigrel-receiver_*.deb)
archive=$(ls $packages/vigrel-receiver-*-portable-*.tar.gz)

work=$(mktemp -d)
root=$work/root
station=
leave() {
    [ -z "$station" ] || kill -KILL "$station" 2>/dev/null || true
    [ ${#screen[@]} -eq 0 ] || kill "${screen[@]}" 2>/dev/null || true
    [ $keep = no ] || { echo "Kept: $root"; return; }
    remove_root "$root" && rm -rf --one-file-system "$work"
}
trap leave EXIT

# The network is shared with this machine, so the usual port may be taken.
port=$((20000 + RANDOM % 10000))

# as_user USER COMMAND...
surroundings=QT_QPA_PLATFORM=offscreen
as_user() {
    local user=$1
    shift
    inside "$root" setpriv --reuid "$user" --regid "$user" --init-groups env HOME="/home/$user" $surroundings "$@"
}

# start USER PROGRAM: the station, in the background. chroot, setpriv and env become the program: one process.
start() {
    in_background=yes as_user "$@" >"$work/output" 2>&1 &
    station=$!
}

# end: tells the station to end; its exit code is in $code.
end() {
    code=0
    kill -TERM "$station"
    wait "$station" || code=$?
    station=
}

# first_start USER FOLDER PROGRAM: fills the folder. The start goes on behind that, on a port that this machine may use
# already, so it isn't waited for.
first_start() {
    start "$1" "$3"
    check "the first start makes a configuration" until_true has_configuration "$2"
    kill -KILL "$station"
    wait "$station" 2>/dev/null || true
    station=
}
configuration() { find "$1" -maxdepth 1 -iname VigrelReceiver.ini; }
has_configuration() { [ -n "$(configuration "$1")" ]; }

files_in() { (cd "$1" && find . -type f | sort); }

# set_key INI KEY VALUE: in the file as it is, whose lines end with CR LF.
set_key() { LC_ALL=C sed -i "s/^$2=.*/$2=$3\r/" "$1"; }

# use_station USER FOLDER PROGRAMS: a whole life: language, start, alarm, orderly end.
use_station() {
    local user=$1 folder=$2 programs=$3 alarms
    set_key "$(configuration "$folder")" Language 044
    set_key "$(configuration "$folder")" Port $port
    start "$user" "${programs}vigrel-receiver"
    check "the station starts" until_true log_says "$folder" "Port $port is open"
    check "an alarm gets the positive reply" as_user "$user" "${programs}vigrel-send" --port $port \
        --sender PLC1 --t0 "Fan 3 tripped" --t2 Technical
    alarms=("$folder"/Alarms/*.alm)
    check "the alarm has its file" [ ${#alarms[@]} -eq 1 ]
    as_user "$user" "${programs}vigrel-inspect" "${alarms[0]#"$root"}" >"$work/alarm" || true
    check "vigrel-inspect reads it" grep -q "Fan 3 tripped" "$work/alarm"
    end
    check "SIGTERM ends the station in order (exit code 0)" [ $code -eq 0 ]
    check "the log tells the end" log_says "$folder" "ends with the operating system"
}

# use_desktop USER FOLDER PROGRAMS COMMAND...: two days of a user who starts the station by the command, logs out.
use_desktop() {
    local user=$1 folder=$2 programs=$3 before alarms
    shift 3
    rm -rf "$folder/Alarms" "$folder/LogFiles"
    begin_desktop
    surroundings=DISPLAY=$DISPLAY
    as_user "$user" "$@" >"$work/output" 2>&1 &
    check "it asks for the language" until_true find_window "^Vigrel - Select Language$"
    check "the first start makes a configuration" until_true has_configuration "$folder"
    set_key "$(configuration "$folder")" Port $port
    press e Return
    check "it starts in the language chosen" until_true log_says "$folder" "Port $port is open"
    check "its window shows" until_true find_window "^Vigrel Alarm Receiver [(]"
    find_station
    check "an alarm gets the positive reply" as_user "$user" "${programs}vigrel-send" --port $port \
        --sender PLC1 --t0 "Smoke in room 12" --t2 Fire
    check "the alarm has its row" until_true row_shows "$fire" "$work/$user-alarm.png"
    press F9
    check "F9 acknowledges it" until_true log_says "$folder" "Acknowledged: "
    xdotool windowsize --sync "$window" 900 500 windowmove --sync "$window" 120 90
    sleep 1
    before=$(geometry)
    kill -TERM "$station"
    check "the end of the session ends it" until_true has_ended "$station"
    station=
    check "the log tells the end" log_says "$folder" "ends with the operating system"
    end_desktop
    surroundings=QT_QPA_PLATFORM=offscreen

    rm -f "$folder"/LogFiles/*
    begin_desktop
    surroundings=DISPLAY=$DISPLAY
    as_user "$user" "$@" >"$work/output" 2>&1 &
    check "the next day it starts without a question" until_true log_says "$folder" "Start-up finished"
    find_station
    until_true find_window "^Vigrel Alarm Receiver [(]"
    check "the alarm is back" log_says "$folder" "1 alarm(s) loaded"
    check "it has its row" until_true row_shows "$fire" "$work/$user-next-day.png"
    alarms=("$folder"/Alarms/*.alm)
    as_user "$user" "${programs}vigrel-inspect" "${alarms[0]#"$root"}" >"$work/alarm" || true
    check "it is acknowledged" grep -q "observed  *yes" "$work/alarm"
    check "the window is where it was, as large as it was" [ "$(geometry)" = "$before" ]
    kill -TERM "$station"
    check "it ends" until_true has_ended "$station"
    station=
    end_desktop
    surroundings=QT_QPA_PLATFORM=offscreen
}

echo "== a bare Debian"
make_root "$root"
inside "$root" apt-get update -q >"$work/apt"
inside "$root" useradd --create-home keeper
inside "$root" useradd --create-home traveller
files_in "$root/usr" | grep -v -e /__pycache__/ >"$work/usr-before"

echo "== install"
cp "$deb" "$root/tmp/package.deb"
inside "$root" apt-get install -q -y --no-install-recommends /tmp/package.deb >"$work/apt" 2>&1 || { cat "$work/apt"; exit 1; }
inside "$root" dpkg -L vigrel-receiver >"$work/files"
check "the package is installed" grep -q "ok installed" <(inside "$root" dpkg -s vigrel-receiver)
check "nothing lies outside /usr" [ -z "$(grep -v -e '^/\.$' -e '^/usr' "$work/files")" ]
for program in "$root"/usr/bin/vigrel-*; do
    name=$(basename "$program")
    check "$name has a manual page" gzip -t "$root/usr/share/man/man1/$name.1.gz"
    check "$name finds its libraries" [ -z "$(inside "$root" ldd "/usr/bin/$name" | grep 'not found')" ]
done
check "the programs are built hardened" packaging/check-hardening.sh "$root"/usr/bin/vigrel-*
for page in "$root"/usr/share/man/man1/vigrel-*.1.gz; do
    check "$(basename "$page") has its program" [ -x "$root/usr/bin/$(basename "$page" .1.gz)" ]
done
for entry in "$root"/usr/share/applications/vigrel-*.desktop; do
    check "$(basename "$entry") has its program" [ -x "$root/usr/bin/$(sed -n 's/^Exec=//p' "$entry")" ]
    check "$(basename "$entry") has its icon" \
        [ -f "$root/usr/share/icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' "$entry").svg" ]
done
for file in lib/systemd/user/vigrel-receiver.service lib/systemd/user/vigrel-report.service \
    lib/systemd/user/vigrel-report.timer share/vigrel-receiver/examples/vigrel-report-hand-out \
    lib/udev/rules.d/70-vigrel-signal-light.rules \
    share/vigrel-receiver/autostart/vigrel-receiver.desktop share/metainfo/org.vigrel.receiver.metainfo.xml \
    share/vigrel-receiver/Templates/VigrelReceiver.046 share/doc/vigrel-receiver/operator/046.md \
    share/doc/vigrel-receiver/operator/list.046.png share/bash-completion/completions/vigrel-send \
    share/zsh/vendor-completions/_vigrel; do
    check "$file is there" [ -f "$root/usr/$file" ]
done
check "the service is not switched on" \
    [ -z "$(find "$root/etc" "$root/usr/lib/systemd" -path '*.wants/*' -name 'vigrel*')" ]

echo "== first start of a user"
folder=$root/home/keeper/.local/share/VigrelReceiver
first_start keeper "$folder" vigrel-receiver
for file in $(cd "$root/usr/share/vigrel-receiver" && find . -type f -not -path './autostart/*' -not -path './examples/*'); do
    check "$file is as delivered" cmp "$root/usr/share/vigrel-receiver/$file" "$folder/$file"
done
use_station keeper "$folder" /usr/bin/

echo "== upgrade"
# As an installation of an earlier version has them: texts of the operator's own, and a file that lacks new ones.
texts=$folder/Vigrel_Texts.044
echo "; changed by the operator" >>"$(configuration "$folder")"
LC_ALL=C sed -i -e 's/^10000=.*/10000=Harbour House alarms\r/' -e '/^1100[01]=/d' "$texts"
own_texts=$(grep -v '^1100[01]=' "$texts")
users_files() {
    (cd "$folder" && find . -type f -not -path './LogFiles/*' -not -name "$(basename "$texts")" -not -name '*.lock' -print0 |
        sort -z | xargs -0 sha256sum)
}
dpkg-deb -R "$deb" "$work/newer"
version=$(sed -n 's/^Version: //p' "$work/newer/DEBIAN/control")
sed -i "s/^Version: .*/Version: $version+1/" "$work/newer/DEBIAN/control"
printf 'a newer text\n' >"$work/newer/usr/share/vigrel-receiver/Vigrel_Texts.045"
dpkg-deb --root-owner-group -b "$work/newer" "$root/tmp/newer.deb" >/dev/null
send_alarm() {
    as_user keeper vigrel-send --port $port --sender PLC1 --t0 "$1" --t2 Technical
}
rm -f "$folder"/LogFiles/*
start keeper vigrel-receiver
check "the station runs" until_true log_says "$folder" "Port $port is open"
check "it adds the texts that its file lacks, and says so" \
    log_says "$folder" "Vigrel_Texts.044: 2 missing text(s) added: 11000, 11001"
LC_ALL=C sed -i '/^1100[01]=/d' "$texts"  # once more, for the newer version
before=$(users_files)
inside "$root" apt-get install -q -y --no-install-recommends /tmp/newer.deb >"$work/apt" 2>&1 || { cat "$work/apt"; exit 1; }
check "the newer version is installed" grep -q "^Version: $version+1$" <(inside "$root" dpkg -s vigrel-receiver)
check "the station runs on through the upgrade" kill -0 "$station"
check "the user's files are as they were" [ "$before" = "$(users_files)" ]
check "it takes an alarm after it" send_alarm "Pump 2 tripped"
end
check "it ends in order" [ $code -eq 0 ]
before=$(users_files)
rm -f "$folder"/LogFiles/*
start keeper vigrel-receiver
check "the station starts after the upgrade" until_true log_says "$folder" "Port $port is open"
check "it knows its alarms" log_says "$folder" "2 alarm(s) loaded"
check "the log tells the new texts" log_says "$folder" "Vigrel_Texts.044: 2 missing text(s) added: 11000, 11001"
end
check "the user's files are as they were after the new start" [ "$before" = "$(users_files)" ]
check "the new texts are in the user's file" [ "$(grep -c '^1100[01]=.' "$texts")" -eq 2 ]
check "the user's own texts stay" [ "$own_texts" = "$(grep -v '^1100[01]=' "$texts")" ]

echo "== the menu entry, on a screen"
# Starts menu entries, as the menus of desktops do.
inside "$root" apt-get install -q -y --no-install-recommends libglib2.0-bin >"$work/apt" 2>&1 || { cat "$work/apt"; exit 1; }
inside "$root" useradd --create-home watcher
use_desktop watcher "$root/home/watcher/.local/share/VigrelReceiver" /usr/bin/ \
    gio launch /usr/share/applications/vigrel-receiver.desktop
inside "$root" apt-get purge -q -y libglib2.0-bin >"$work/apt" 2>&1

echo "== remove"
inside "$root" apt-get remove -q -y vigrel-receiver >"$work/apt" 2>&1
inside "$root" apt-get purge -q -y vigrel-receiver >"$work/apt" 2>&1
check "the package is gone" [ -z "$(inside "$root" dpkg-query -W -f='${db:Status-Status}' vigrel-receiver 2>/dev/null)" ]
inside "$root" apt-get autoremove -q -y --purge >"$work/apt" 2>&1
check "no file of it is left under /usr" [ -z "$(find "$root/usr" -ipath '*vigrel*')" ]
# Caches that other packages make when they come stay when they go.
files_in "$root/usr" | grep -v -e /__pycache__/ | comm -13 "$work/usr-before" - >"$work/usr-left"
check "only caches of other packages are new under /usr" \
    [ -z "$(grep -v -e '/cache' -e '\.cache$' -e 'mime/' -e 'gschemas.compiled' "$work/usr-left")" ]
check "the alarms of the user stay" [ -n "$(ls "$folder"/Alarms/*.alm)" ]

echo "== portable"
# What every desktop has.
inside "$root" apt-get install -q -y --no-install-recommends libgl1 libegl1 libopengl0 libglx0 libx11-6 libx11-xcb1 \
    libxcb1 libfontconfig1 libfreetype6 libglib2.0-0 libdbus-1-3 libgssapi-krb5-2 libice6 libsm6 libpulse0 libcups2 \
    libudev1 libharfbuzz0b libpng16-16 fonts-dejavu-core >"$work/apt" 2>&1 || { cat "$work/apt"; exit 1; }
check "the toolkit is not installed" [ -z "$(find "$root/usr/lib" -name 'libQt6*')" ]
cp "$archive" "$root/tmp/portable.tar.gz"
as_user traveller mkdir /home/traveller/station
as_user traveller tar xf /tmp/portable.tar.gz --strip-components=1 -C /home/traveller/station
folder=$root/home/traveller/station
check "everything is there for the first five minutes" [ -s "$folder/README.txt" ]
for library in $(cd "$folder" && find lib plugins -name '*.so*'); do
    check "$library finds its libraries" \
        [ -z "$(inside "$root" env LD_LIBRARY_PATH=/home/traveller/station/lib ldd "/home/traveller/station/$library" | grep 'not found')" ]
done
first_start traveller "$folder" /home/traveller/station/vigrel-receiver
use_station traveller "$folder" /home/traveller/station/
inside "$root" useradd --create-home visitor
as_user visitor mkdir /home/visitor/station
as_user visitor tar xf /tmp/portable.tar.gz --strip-components=1 -C /home/visitor/station
use_desktop visitor "$root/home/visitor/station" /home/visitor/station/ /home/visitor/station/vigrel-receiver
for user in traveller visitor; do
    check "nothing of $user lies outside the folder" [ ! -e "$root/home/$user/.local/share/VigrelReceiver" ]
done

echo "$checks passed, 0 failed"
