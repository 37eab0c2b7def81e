#!/usr/bin/env bash
# An hour of a busy station: an event a second, or RATE of them, with every signal on (popup, sound, light, notification icon, window to
# the front, printer), an operator at the keyboard who now and then closes and acknowledges, and a sample of what the
# station holds every 30 s. Everything runs on a display of its own, against a null sink for sound, a stand-in for the
# HID library and a TCP printer.
#
#   bench/soak.sh [SECONDS [FOLDER [RATE]]]     3600 s; the folder keeps samples.csv, the log, what was printed
#
# Beyond an event a second one popup shows at a time: Xvfb does not keep up with fifty new windows a second.
# Ends with 1 where something was refused, or where the last sixth of the time has more memory (a tenth), open files (2) or
# windows of the display (4) than the second sixth.
# Draws memory, open files and what the display holds over time: the folder's samples.svg.
#
# Wants the release build and the packages of scripts/install-packages.sh test; xrestop too, for what the display holds
# for the station.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-3600}
folder=${2:-$(mktemp -d)}
rate=${3:-1}
display=${SOAK_DISPLAY:-:96}
port=12996 printer=12997
every=30  # seconds from sample to sample

mkdir -p "$folder"/{bin,station,lights,runtime}
chmod 700 "$folder/runtime"
# Copies, so that the build folder can be worked in meanwhile.
bin=$folder/bin
cp build/release/bin/vigrel-{receiver,send} build/release/tests/signal_light/stand_in/libhidapi-hidraw.so.0 "$bin/"
started=()
end() {
    for id in "${started[@]}"; do kill "$id" 2>/dev/null || true; done
    wait 2>/dev/null || true
}
trap end EXIT
keep() { started+=("$!"); }

# --- the machine around the station
Xvfb "$display" -screen 0 1280x1024x24 -nolisten tcp -noreset >/dev/null 2>&1 & server=$!; keep
export DISPLAY=$display QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$folder/runtime HOME=$folder/runtime
export PULSE_SERVER=unix:$folder/runtime/native
for _ in $(seq 100); do xprop -root >/dev/null 2>&1 && break; sleep 0.1; done
openbox --sm-disable >/dev/null 2>&1 & keep
trayer --edge bottom --align right --widthtype request --height 24 >/dev/null 2>&1 & keep
pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no \
    -L "module-native-protocol-unix auth-anonymous=1 socket=$folder/runtime/native" \
    -L "module-null-sink sink_name=nul rate=44100 channels=2 norewinds=1" >/dev/null 2>&1 & keep
perl -MIO::Socket::INET -e '
    $listener = IO::Socket::INET->new(LocalAddr => "127.0.0.1", LocalPort => $ARGV[0], Listen => 5, ReuseAddr => 1) or die;
    open($file, ">", $ARGV[1]) or die; $file->autoflush;
    while ($client = $listener->accept) { while (sysread($client, $bytes, 65536)) { print $file $bytes } }
' $printer "$folder/printed" & keep
for _ in $(seq 100); do pactl info >/dev/null 2>&1 && break; sleep 0.1; done
# Counts the seconds in which something was heard.
parec -d nul.monitor --format=u8 --rate=8000 --channels=1 --raw 2>/dev/null |
    perl -e '
        $| = 1;
        while (read(STDIN, $second, 8000)) {
            ++$all;
            ++$loud if $second =~ /[^\x7c-\x84]/;
            open($file, ">", $ARGV[0]); printf $file "%d of %d seconds\n", $loud, $all; close($file);
        }' "$folder/heard" & keep

# --- the station
echo "/dev/hidraw7 4711 good" >"$folder/lights/lights"
cp -r build/release/share/vigrel-receiver/. "$folder/station/"
light() { # light CATEGORY'S CONTROL, the same light for all states
    for state in Inactive Active Acked Message; do
        printf 'USBLED_DeviceName_%s=serial-4711\r\nUSBLED_Control_%s=%s\r\nUSBLED_SyncLeds_%s=1\r\n' \
            $state $state "$1" $state
    done
}
{
    printf '%s\r\n' '[General]' Language=044 Object=Soak MaxEvents=500 ShowInTaskBar=0 DisableShutdown=1 \
        Columns=StateIcon,DateTime,StateText,t2,t0,t1,Observed \
        EventRestore=1 ViewPopupForm=1 ViewOnlyOnePopupForm=$((rate > 1)) EventSoundFileDelay=700 EventSignalStopByNotifyClick=1 KeepForDays=2 \
        BackColor_Active=204,51,0 ForeColor_Active=255,255,255 BackColor_Inactive=226,240,217 \
        BackColor_Acked=255,230,153 EventSignal=2 'EventSoundFile=Sounds\notice.wav' \
        'EventPopupFormat=[T2] [ALARMDATE] [ALARMTIME] [SENDER][13][10][T0]' 'PopupFormTopMostCategory=Fire' \
        '[TCPIP]' Port=$port '[Senders]' PLC1=5 \
        '[Printer]' Port=1 'Format=[ALARMDATE] [ALARMTIME] [SENDER::12] [T2::12] [T0]' \
        '[PrinterPorts]' "1=tcp:127.0.0.1:$printer" \
        '[PopupForm]' X_Size=360 Y_Size=120 WindowPosition=MOVING X_Stop=600 Y_Stop=600
    printf '%s\r\n' '[CategorySpecificSetting_Fire]' EventSignal=3 'EventSoundFile=Sounds\alarm.wav'
    light 0/2/0/0
    printf '%s\r\n' '[CategorySpecificSetting_Door]' EventSignal=1
    light 1/0/0/0
    printf '%s\r\n' '[CategorySpecificSetting_Technical]'
    light 0/0/2/1
} >"$folder/station/VigrelReceiver.INI"
VIGREL_APPLICATION_PATH=$folder/station VIGREL_TEST_LIGHTS=$folder/lights LD_LIBRARY_PATH=$bin \
    "$bin/vigrel-receiver" >"$folder/station.out" 2>&1 & station=$!; keep
for _ in $(seq 100); do "$bin/vigrel-send" --port $port --keepalive --quiet 2>/dev/null && break; sleep 0.1; done

# --- the sender: so many events a second, a new connection every minute, texts of all lengths
categories=(Technical Fire Door Technical Water)
states=(1 1 0 1 2 1 1)
record() { # record NUMBER
    local category=${categories[$(($1 % 5))]} state=${states[$(($1 % 7))]}
    printf 'S%d%(%F|%T)T|Event %d of the hour%*s|Room %d|%s||||\n' $state -1 "$1" $(($1 * 7 % 150)) x \
        $(($1 % 40)) "$category"
}
send() {
    local number=0
    while :; do
        for _ in $(seq $((60 * rate))); do record $((number++)); done >"$folder/records"
        "$bin/vigrel-send" --port $port --sender PLC1 --file "$folder/records" --rate "$rate" --quiet 2>>"$folder/sent" ||
            echo "FAILED" >>"$folder/sent"
        sleep 0.8
    done
}
send & keep

# --- the operator: looks at the screen every few seconds
popups() { xdotool search --onlyvisible --name "$1" 2>/dev/null || true; }
operate() {
    local turn=0 popup
    while sleep 4; do
        case $((++turn % 12)) in
            1 | 4 | 7 | 10) # closes a popup
                popup=$(popups '^Vigrel Alarm Receiver .Soak.$' | tail -1)
                [ -z "$popup" ] || xdotool windowactivate --sync "$popup" key alt+F4 ;;
            2 | 8) xdotool key End Return ;;            # acknowledges the newest in the list
            5) xdotool key alt+f s ;;                   # stops the sound
            6) wmctrl -r Version -b add,hidden ;;       # minimises: the window goes into the icon
            9) xdotool key alt+f l ;;                   # stops the light
            0) xdotool key alt+f p ;;                   # acknowledges all, closes all popups
            3 | 11) xdotool key alt+f Escape ;;         # looks into the menu
        esac
    done
}
operate >/dev/null 2>>"$folder/operator.err" & keep

# --- samples
status() { awk -v key="$1:" '$1 == key { print $2 }' "/proc/$2/status"; }
# What the display holds for the station: windows, pixmaps, all other things, bytes.
resources() {
    command -v xrestop >/dev/null || { echo ",,,"; return; }
    xrestop -b -m 1 2>/dev/null | awk -v id="$station" '
        / PID:/ { ours = $0 ~ "PID: *" id " " || /[Vv]igrel/ }
        !ours || / PID:/ || $1 == "res_base" || $1 == "res_mask" { next }
        $1 == "windows" || $1 == "pixmaps" { count[$1] += $NF; next }
        $1 == "total" { sub("~", "", $NF); bytes += $NF; next }
        $2 == ":" || $1 == "passive" { others += $NF }
        END { printf "%d,%d,%d,%d\n", count["windows"], count["pixmaps"], others, bytes }'
}
sample() { # sample SECONDS
    printf '%d,%d,%d,%d,%d,%d,%d,%s\n' "$1" "$(status VmRSS "$station")" \
        "$(awk '$1 == "Pss:" { print $2 }' "/proc/$station/smaps_rollup")" \
        "$(find "/proc/$station/fd" -mindepth 1 | wc -l)" "$(status Threads "$station")" \
        "$(status VmRSS "$server")" "$(wmctrl -l | wc -l)" "$(resources)"
}
echo "seconds,rss_kb,pss_kb,files,threads,display_rss_kb,windows,x_windows,x_pixmaps,x_others,x_bytes" \
    >"$folder/samples.csv"
start=$SECONDS
for ((next = 0; next <= seconds; next += every)); do
    while ((SECONDS - start < next)); do sleep 0.2; done
    kill -0 "$station" 2>/dev/null || { echo "the station has ended after $next s" >&2; cat "$folder/station.out" >&2; exit 1; }
    sample $next >>"$folder/samples.csv"
done

# --- plots: a line each, from 0 to its most, over time
awk -F, '
    NR == 1 { for (i = 1; i <= NF; ++i) name[i] = $i; fields = NF; next }
    { ++rows; for (i = 1; i <= NF; ++i) { value[rows, i] = $i; if ($i > most[i]) most[i] = $i } }
    END {
        width = 640; height = 80
        printf "<svg xmlns=\"http://www.w3.org/2000/svg\" font-family=\"sans-serif\" font-size=\"11\" viewBox=\"0 0 %d %d\">\n", \
            width + 160, (fields - 1) * (height + 20) + 20
        print "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>"
        for (i = 2; i <= fields; ++i) {
            top = (i - 2) * (height + 20) + 10
            printf "<rect x=\"10\" y=\"%d\" width=\"%d\" height=\"%d\" fill=\"none\" stroke=\"#ccc\"/>\n", top, width, height
            printf "<text x=\"%d\" y=\"%d\">%s</text><text x=\"%d\" y=\"%d\">most %d</text>\n", \
                width + 18, top + 14, name[i], width + 18, top + 30, most[i]
            printf "<polyline fill=\"none\" stroke=\"#06c\" points=\""
            for (row = 1; row <= rows; ++row)
                printf "%.1f,%.1f ", 10 + width * value[row, 1] / (most[1] > 0 ? most[1] : 1), \
                    top + height - height * value[row, i] / (most[i] > 0 ? most[i] : 1)
            print "\"/>"
        }
        print "</svg>"
    }' "$folder/samples.csv" >"$folder/samples.svg"

# --- figures
count() { cat "$@" 2>/dev/null | wc -l; }
awk -F, -v all="$seconds" 'NR == 1 { print "mean of sixth\t" $0; next }
    NR == 2 { print "at the start\t" $0 }
    { sixth = int($1 * 6 / (all + 1)); ++rows[sixth]; for (i = 2; i <= NF; ++i) sum[sixth, i] += $i; fields = NF }
    { for (i = 2; i <= NF; ++i) if ($i > most[i]) most[i] = $i }
    END {
        for (sixth = 0; sixth < 6; ++sixth) {
            if (!rows[sixth]) continue
            line = sixth + 1 "\t"
            for (i = 2; i <= fields; ++i) line = line "," int(sum[sixth, i] / rows[sixth])
            print line
        }
        line = "most\t"; for (i = 2; i <= fields; ++i) line = line "," most[i]; print line
    }' "$folder/samples.csv" | tr , '\t'
echo "processor time of the station: $(awk '{ print ($14 + $15) / 100 }' "/proc/$station/stat") s in $seconds s"
echo "stored alarms: $(find "$folder/station/Alarms" -type f | wc -l), lines printed: $(count "$folder/printed")," \
    "packets to the light: $(count "$folder/lights/packets"), heard: $(cat "$folder/heard" 2>/dev/null)"
refused=$(grep -c FAILED "$folder/sent" || true)
echo "minutes refused or not sent: $refused"
echo "folder: $folder"
awk -F, -v all="$seconds" 'NR == 1 { for (i = 1; i <= NF; ++i) place[$i] = i; next }
    { sixth = int($1 * 6 / (all + 1)); ++rows[sixth]; for (i = 1; i <= NF; ++i) sum[sixth, i] += $i }
    function mean(sixth, name) { return rows[sixth] ? sum[sixth, place[name]] / rows[sixth] : 0 }
    function judge(name, most) {
        if (mean(5, name) <= most) return
        printf "soak.sh: %s grew: %.1f in the second sixth, %.1f in the last\n", name, mean(1, name), mean(5, name)
        grew = 1
    }
    END {
        judge("rss_kb", mean(1, "rss_kb") * 1.1)
        judge("files", mean(1, "files") + 2)
        judge("x_windows", mean(1, "x_windows") + 4)
        exit grew
    }' "$folder/samples.csv" >&2
[ "$refused" -eq 0 ]
