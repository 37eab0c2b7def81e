#!/usr/bin/env bash
# Makes docs/screenshot.png: a station of the release build under a display of its own, with a few alarms.
set -euo pipefail
cd "$(dirname "$0")/.."
bin=build/release/bin
folder=$(mktemp -d)
display=:97
trap 'kill $(jobs -p) 2>/dev/null; wait; rm -rf "$folder"' EXIT

Xvfb $display -screen 0 1280x720x24 -nolisten tcp >/dev/null 2>&1 &
export DISPLAY=$display QT_QPA_PLATFORM=xcb
for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done
openbox >/dev/null 2>&1 &
sleep 1

cp -r build/release/share/vigrel-receiver/. "$folder/"
port=12999
LC_ALL=C awk -v port=$port '
    /^Language=/ { print "Language=044\r"; next }
    /^Object=/ { print "Object=Harbour House\r"; next }
    /^Port=/ && tcpip { print "Port=" port "\r"; next }
    { tcpip = /^\[/ ? /^\[TCPIP\]/ : tcpip; print }
' "$folder/Templates/VigrelReceiver.044" >"$folder/VigrelReceiver.INI"
VIGREL_APPLICATION_PATH=$folder $bin/vigrel-receiver >/dev/null 2>&1 &
for _ in $(seq 100); do $bin/vigrel-send --port $port --keepalive --quiet 2>/dev/null && break; sleep 0.1; done

send() { $bin/vigrel-send --port $port --quiet "$@"; }
send --sender AHU --kind 0 --t0 "Supply fan back in operation" --t1 "AHU 3" --t2 Technical
send --sender AHU --t0 "Filter guard, change filter" --t1 "AHU 3" --t2 Technical
send --sender BMS --kind 2 --t0 "Lift 2 stopped between floors" --t1 "Stair B" --t2 Lift
send --sender BMS --t0 "Water on the floor" --t1 "Plant room 0.12" --t2 "Water leak"
send --sender FIRE --t0 "Smoke detector 4:17" --t1 "Corridor B, level 2" --t2 Fire
sleep 12 # the about box goes by itself
import -window root docs/screenshot.png
