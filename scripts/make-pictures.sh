#!/usr/bin/env bash
# Makes the pictures of the documents from running stations: docs/operator/list.NNN.png and popup.NNN.png in each
# language. Run twice, it makes the same pictures: the alarms bring their times along.
#
#   scripts/make-pictures.sh [BUILD FOLDER [FOLDER]]      build/release, docs/operator unless given
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
pictures=${2:-docs/operator}
work=$(mktemp -d)
display=:$((200 + RANDOM % 500))
station=
trap 'kill $(jobs -p) 2>/dev/null || true; wait; rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8

# screen SIZE: a display with a window manager.
screen() {
    Xvfb $display -screen 0 "$1x24" -nolisten tcp >/dev/null 2>&1 &
    server=$!
    export DISPLAY=$display
    for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done
    openbox >/dev/null 2>&1 &
    manager=$!
    sleep 1
}
end_screen() {
    kill $manager $server
    wait $manager $server 2>/dev/null || true
}

# start LANGUAGE WIDTH HEIGHT POPUPS: a station on a folder of its own. Its list shows when the alarms happened in the
# column of their arrival, which would be another time in each run.
start() {
    folder=$work/$RANDOM
    port=$((20000 + RANDOM % 10000))
    cp -r "$build/share/vigrel-receiver/." "$folder"
    LC_ALL=C awk -v language="$1" -v width=$(($2 * 15)) -v height=$(($3 * 15)) -v popups="$4" -v port=$port '
        { sub(/\r$/, "") }
        /^\[/ { section = $0 }
        section == "[DateTime]" && /^ColumnText=/ { received = $0 }
        /^Language=/ { $0 = "Language=" language }
        /^Object=/ { $0 = "Object=Harbour House" }
        /^Columns=/ { sub(/DateTime/, "AlarmDateTime") }
        /^ViewPopupForm=/ { $0 = "ViewPopupForm=" popups }
        /^Vigrel_Receiver_Main.Width=/ { $0 = "Vigrel_Receiver_Main.Width=" width }
        /^Vigrel_Receiver_Main.Height=/ { $0 = "Vigrel_Receiver_Main.Height=" height }
        section == "[t1]" && /^ColumnWidth=/ { $0 = "ColumnWidth=160" }
        section == "[t4]" && /^ColumnWidth=/ { $0 = "ColumnWidth=100" }
        /^Port=/ && section == "[TCPIP]" { $0 = "Port=" port }
        { lines[++count] = $0 }
        END {
            for (i = 1; i <= count; ++i) {
                if (lines[i] ~ /^\[/) section = lines[i]
                if (section == "[AlarmDateTime]" && lines[i] ~ /^ColumnText=/) lines[i] = received
                printf "%s\r\n", lines[i]
            }
        }' "$folder/Templates/VigrelReceiver.$1" >"$folder/VigrelReceiver.INI"
    VIGREL_APPLICATION_PATH=$folder "$build/bin/vigrel-receiver" >/dev/null 2>&1 &
    station=$!
    for _ in $(seq 100); do "$build/bin/vigrel-send" --port $port --keepalive --quiet 2>/dev/null && break; sleep 0.1; done
    # The about box comes, and goes by itself. An alarm that came in before would have the list's mark for the keyboard or
    # not, as it happens.
    wait_for_windows 2
    wait_for_windows 1
}
# wait_for_windows COUNT
wait_for_windows() {
    for _ in $(seq 300); do
        [ "$(xprop -root _NET_CLIENT_LIST | grep -o 0x | wc -l)" -eq "$1" ] && return
        sleep 0.1
    done
    echo "There are not $1 windows on the screen." >&2
    exit 1
}
end() {
    kill $station
    wait $station || true
}

# picture FILE [PLACE]: the screen, or a part of it, when nothing moves there any more, without anything that tells when it
# was made.
picture() {
    : >"$work/before.png"
    for _ in $(seq 30); do
        sleep 2
        import -window root ${2:+-crop "$2"} +repage -strip -define png:exclude-chunks=date,time "$1"
        cmp -s "$1" "$work/before.png" && return
        cp "$1" "$work/before.png"
    done
    echo "$1: the screen doesn't come to rest." >&2
    exit 1
}

second=0
# event KIND CATEGORY TEXT PLACE
event() {
    second=$((second + 7))
    "$build/bin/vigrel-send" --port $port --quiet --sender PLC1 --date 2026-03-15 --time "$(printf '14:05:%02d' $second)" \
        --kind "$1" --t2 "$2" --t0 "$3" --t1 "$4"
}
events() {
    second=0
    case $1 in
        044)
            event 0 HVAC "Supply fan back in operation" "AHU 3"
            event 1 Technical "Filter guard, change filter" "AHU 3"
            event 2 Lift "Lift 2 stopped between floors" "Stair B"
            event 1 "Water leak" "Water on the floor" "Plant room 0.12"
            event 1 Fire "Smoke detector 4:17" "Corridor B, level 2" ;;
        045)
            event 0 Ventilation "Indblæsningsventilator i drift igen" "Anlæg 3"
            event 1 Teknik "Filtervagt, skift filter" "Anlæg 3"
            event 2 Elevator "Elevator 2 standset mellem etager" "Trappe B"
            event 1 Vandlækage "Vand på gulvet" "Teknikrum 0.12"
            event 1 Brand "Røgdetektor 4:17" "Gang B, 2. sal" ;;
        046)
            event 0 Ventilation "Tilluftsfläkt åter i drift" "LB03"
            event 1 Teknik "Filtervakt, byt filter" "LB03"
            event 2 Hiss "Hiss 2 stannad mellan våningar" "Trapphus B"
            event 1 Vattenläcka "Vatten på golvet" "Apparatrum 0.12"
            event 1 Brand "Rökdetektor 4:17" "Korridor B, plan 2" ;;
        047)
            event 0 Ventilasjon "Tilluftsvifte i drift igjen" "Aggregat 3"
            event 1 Teknisk "Filtervakt, bytt filter" "Aggregat 3"
            event 2 Heis "Heis 2 stanset mellom etasjer" "Trapp B"
            event 1 Vannlekkasje "Vann på gulvet" "Teknisk rom 0.12"
            event 1 Brann "Røykdetektor 4:17" "Korridor B, 2. etasje" ;;
        049)
            event 0 HLK "Zuluftventilator wieder in Betrieb" "RLT 3"
            event 1 Technik "Filterwächter, Filter wechseln" "RLT 3"
            event 2 Aufzug "Aufzug 2 steht zwischen Etagen" "Treppe B"
            event 1 Wasserleck "Wasser auf dem Boden" "Technikraum 0.12"
            event 1 Brand "Rauchmelder 4:17" "Flur B, 2. OG" ;;
        358)
            event 0 LVI "Tuloilmapuhallin jälleen käynnissä" "IV-kone 3"
            event 1 Tekninen "Suodatinvahti, vaihda suodatin" "IV-kone 3"
            event 2 Hissi "Hissi 2 pysähtynyt kerrosten väliin" "Porras B"
            event 1 Vesivuoto "Vettä lattialla" "Tekninen tila 0.12"
            event 1 Palo "Savuilmaisin 4:17" "Käytävä B, 2. krs" ;;
    esac
}

screen 1120x500
for language in 044 045 046 047 049 358; do
    start $language 1120 260 0
    events $language
    picture $pictures/list.$language.png 1120x260+0+0
    end
    start $language 1120 260 1
    events $language
    # Three are active; the fire's popup is the third, above the others.
    picture $pictures/popup.$language.png 640x210+68+232
    end
done
end_screen
