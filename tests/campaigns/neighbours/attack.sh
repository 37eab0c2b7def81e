#!/usr/bin/env bash
# Attacks running programs from the disk and from other users of the machine, and looks that they live.
set -uo pipefail

usage() {
    cat <<'HELP'
tests/campaigns/neighbours/attack.sh [--short] PROGRAMS ATTACK...

PROGRAMS is a folder with the built programs, such as build/dev/bin. The attacks:

  files      what is no ordinary file, has no end or can't be read, in place of each file of a station
  names      folders whose names are in other scripts, or no text at all; senders whose texts are markup or formulas
  users      what another user of the machine can read, lock, and plant
  portable   an installation that can't be written

  --short    one foreign thing of each kind in the most important places, as every test run does it

Run by root it attacks as two users without rights, and all of "users" is tried; run by somebody else it leaves out
what asks for a second user, and says so.
HELP
}

short=no
[ "${1:-}" = --short ] && { short=yes; shift; }
[ $# -ge 2 ] || { usage; exit 2; }
programs=$(realpath "$1")
shift

station_user=65534 other_user=65533
work=$(mktemp -d)
mkdir -m 700 "$work/run"
[ "$(id -u)" -ne 0 ] || chown $station_user "$work" "$work/run"
chmod 755 "$work"
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS XDG_DATA_HOME XDG_CONFIG_HOME VIGREL_APPLICATION_PATH
export XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 HOME=$work/home

pid= helper=
leave() {
    [ -z "$pid" ] || kill -KILL "$pid" 2>/dev/null
    [ -z "$helper" ] || kill -KILL "$helper" 2>/dev/null
    chmod -R u+rwX "$work" 2>/dev/null
    rm -rf --one-file-system "$work"
}
trap leave EXIT

passed=0 failed=0
# check WHAT COMMAND...
check() {
    local what=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL $what ($*)"
        tail -qn3 "$work/output" "$work/station" 2>/dev/null | sed 's/^/     | /'
    fi
}
not() { ! "$@"; }

# as USER COMMAND...: becomes the command, without any right of root's.
as() {
    local user=$1
    shift
    if [ "$(id -u)" -ne 0 ]; then exec "$@"; fi
    exec setpriv --reuid "$user" --regid "$user" --clear-groups --bounding-set -all "$@"
}
run() { (as $station_user timeout 20 "$@") >"$work/output" 2>&1; }

# until_true SECONDS COMMAND...
until_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.05
    done
}
gone() { ! kill -0 "$pid" 2>/dev/null; }

free_port() {
    local port
    while port=$((20000 + RANDOM % 12000)); do
        (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || { echo $port; return; }
    done
}

# make_station FOLDER: what a station needs to start without a question.
make_station() {
    local id
    folder=$1 port=$(free_port)
    mkdir -p "$folder/LogFiles" "$folder/Alarms"
    {
        printf '0=Test\r\n'
        for id in $(seq 10000 10060) $(seq 11000 11020) 141 208; do printf '%s=T%s\r\n' "$id" "$id"; done
    } >"$folder/Vigrel_Texts.046"
    printf '[General]\r\nLanguage=046\r\n[TCPIP]\r\nPort=%s\r\n' "$port" >"$folder/VigrelReceiver.INI"
    own "$folder"
}
own() { [ "$(id -u)" -ne 0 ] || chown -hR $station_user:$station_user "$@"; }

# launch [VARIABLE=VALUE]...: the station, in the background.
launch() {
    [ -z "$pid" ] || kill -KILL "$pid" 2>/dev/null  # one that should have ended
    (as $station_user env VIGREL_APPLICATION_PATH="$folder" "$@" "$programs/vigrel-receiver") >"$work/station" 2>&1 &
    pid=$!
}
answers() { run "$programs/vigrel-send" --port "$port" --sender PLC1 --t0 Test --quiet; }
# ends CODE: told to, within ten seconds, with the code.
ends() {
    local code=0
    kill -TERM "$pid" 2>/dev/null
    until_true 10 gone || { kill -KILL "$pid"; wait "$pid" 2>/dev/null; pid=; return 1; }
    wait "$pid" || code=$?
    pid=
    [ "$code" = "$1" ] && return
    echo "exit code $code" >>"$work/station"
    return 1
}
# refuses PATTERN CODE: ends by itself with the code, and says why.
refuses() {
    local code=0
    until_true 10 gone || return 1
    wait "$pid" || code=$?
    pid=
    echo "exit code $code" >>"$work/station"
    [ "$code" = "$2" ] && grep -qs "$1" "$work/station"
}
# gives CODE COMMAND...: the code with which a program ends.
gives() {
    local expected=$1 code=0
    shift
    run "$@" || code=$?
    echo "exit code $code" >>"$work/output"
    [ "$code" = "$expected" ]
}
alarm() { find "$folder/Alarms" -name 'A*.alm' | head -1; }
log_says() { cat "$folder"/LogFiles/*.Log 2>/dev/null | grep -aqF "$1"; }
lives() {
    check "$1: the station answers" until_true 15 answers
    check "$1: it ends in order" ends 0
}

# plant KIND PATH
plant() {
    rm -rf "$2"
    case $1 in
        pipe) mkfifo -m 666 "$2" ;;
        folder) mkdir "$2" ;;
        device) ln -s /dev/zero "$2" ;;
        endless) ln -s /proc/self/pagemap "$2" ;;
        circle) ln -s "$(basename "$2")" "$2" ;;
        sparse) truncate -s 40G "$2" ;;
        unreadable) touch "$2" && chmod 000 "$2" ;;
    esac
    own "$2"
}
kinds="pipe folder device sparse unreadable"
[ $short = yes ] || kinds="$kinds endless circle"

# waits_in_open: the program stands in a call that opens a file.
waits_in_open() {
    local call
    { read -r call _ <"/proc/$pid/syscall"; } 2>/dev/null || return 1
    [ "$call" = 257 ] || [ "$call" = 2 ]
}

attack_alarms() {
    make_station "$work/alarms"
    launch
    check "a first alarm is stored" until_true 15 answers
    check "and the station ended" ends 0
    local number=0 kind
    for kind in $kinds; do plant "$kind" "$folder/Alarms/A000000$((++number)).alm"; done
    launch
    lives "foreign alarms"
    check "they are counted and named once" log_says "$number T11004 A000000"
    check "the readable one is loaded" log_says "1 T10041"
    check "vigrel-receiver-check tells each" gives 2 "$programs/vigrel-receiver-check" --files-only "$folder"
    check "as what the station leaves out" [ "$(grep -c '\[alarm-unreadable\]' "$work/output")" = $number ]
    check "vigrel-inspect exports the others" gives 1 "$programs/vigrel-inspect" --alarms --csv "$folder"
}

# attack_places KIND
attack_places() {
    local kind=$1 place log
    log=LogFiles/$(date +%Y%m%d).Log
    make_station "$work/ini-$kind"
    plant "$kind" "$folder/VigrelReceiver.INI"
    launch
    check "$kind as configuration: the start ends and names it" refuses VigrelReceiver.INI 69
    for place in VigrelReceiver.INI Vigrel_Texts.046; do
        plant "$kind" "$folder/$place"
        run "$programs/vigrel-receiver-check" --files-only "$folder"
        check "$kind as $place: vigrel-receiver-check tells it" [ $? -eq 2 ]
    done

    make_station "$work/texts-$kind"
    plant "$kind" "$folder/Vigrel_Texts.046"
    launch
    sleep 1
    check "$kind as texts: nothing waits for it" not waits_in_open
    case $kind in
        sparse | unreadable | endless) lives "$kind as texts" ;;
        *) check "$kind as texts: the start is refused for want of a language" refuses "No language" 69 ;;
    esac

    make_station "$work/others-$kind"
    mkdir "$folder/Templates" "$folder/Receivers" "$folder/Profiles"
    for place in Templates/Other.oni Receivers/Receiver_0001.dat Profiles/Profile_0001.dat ColourRules.txt "$log"; do
        plant "$kind" "$folder/$place"
    done
    own "$folder"
    launch
    lives "$kind in every other place"
    for place in Receivers/Receiver_0001.dat Profiles/Profile_0001.dat VigrelReceiver.INI; do
        plant "$kind" "$folder/$place"
        run "$programs/vigrel-inspect" "$folder/$place"
        check "$kind as $place: vigrel-inspect says so" [ $? -eq 1 ]
    done
    plant "$kind" "$folder/batch"
    if [ "$kind" = pipe ]; then
        # One that is written to is a batch like any other, and nobody listens on port 1.
        (: >"$folder/batch") &
        check "pipe as a batch: vigrel-send reads it" gives 3 "$programs/vigrel-send" --port 1 --file "$folder/batch"
        wait $!
    else
        check "$kind as a batch: vigrel-send refuses it" gives 2 "$programs/vigrel-send" --port 1 --file "$folder/batch"
    fi
    for place in Plan.sch Calendar.cal ColourRules.txt; do
        plant "$kind" "$folder/$place"
        (as $station_user env VIGREL_APPLICATION_PATH="$work/editor" "$programs/vigrel-definitions" "$folder/$place") \
            >"$work/output" 2>&1 &
        pid=$!
        sleep 1
        check "$kind as $place: the editor runs" not gone
        check "$kind as $place: the editor does not wait for it" not waits_in_open
        kill -KILL $pid
        wait $pid 2>/dev/null
        pid=
    done
}

attack_files() {
    local kind
    attack_alarms
    for kind in $kinds; do attack_places "$kind"; done
}

# The report of a folder whose name is odd, into the same folder.
attack_report_names() {
    local shown=${name//$'\xff'/\\xFF} page=$folder/page.html
    run "$programs/vigrel-report" --language en --last 1 "$folder"
    check "$name: vigrel-report names it in a text" grep -qF "Alarm report: ${folder%/*}/$shown/" "$work/output"
    run "$programs/vigrel-report" --language en --last 1 --json "$folder"
    check "$name: in JSON" grep -qF "\"plant\": \"${folder%/*}/${shown//\\/\\\\}/\"" "$work/output"
    check "$name: it writes a page there" run "$programs/vigrel-report" --language en --last 1 --html "$page" "$folder"
    check "$name: that names the folder" grep -qF "<h1>Alarm report – ${folder%/*}/$shown/</h1>" "$page"
    check "$name: and tables" run "$programs/vigrel-report" --last 1 --csv "$folder" "$folder"
    check "$name: that name it too" grep -qF "\"${folder%/*}/$shown/\"" "$folder/stations.csv"
    rm -f "$page" "$folder"/*.csv
}

# finds PATTERN FILE...: as grep -P does, in bytes.
finds() { LC_ALL=C grep -aqP -- "$@"; }

# Senders whose names and texts are markup, formulas, and commands for a terminal.
attack_report_texts() {
    local evil today
    today=$(date +%F)
    make_station "$work/texts"
    printf '[General]\r\nLanguage=046\r\nObject=@<b>\033[2J\r\n[TCPIP]\r\nPort=%s\r\n' "$port" >"$folder/VigrelReceiver.INI"
    launch
    check "hostile texts: the station answers" until_true 15 answers
    for evil in '<script>alert(1)</script>' '"><img src=x onerror=y>' '=1+cmd' '+1+1' '-1+1' '@SUM(1)' \
        $'\e[31m\e]0;x\a' "</title></style>' & \\" '{1}{2}' '",=1,"'; do
        check "a record of $(printf %q "$evil")" run "$programs/vigrel-send" --port "$port" --quiet \
            --sender "$evil" --t0 "$evil" --t1 "$evil" --t2 "$evil"
    done
    check "hostile texts: it ends in order" ends 0
    sleep 1
    local report=("$programs/vigrel-report" --quiet --language en --from "$today")
    check "its page" run "${report[@]}" --html "$folder/page.html" "$folder"
    check "holds the texts" finds '&lt;script&gt;alert\(1\)' "$folder/page.html"
    check "as no markup" not finds '<(script|img|b>)|</title>.*</title>' "$folder/page.html"
    check "without control characters" not finds '[\x00-\x09\x0B-\x1F\x7F]' "$folder/page.html"
    check "its tables" run "${report[@]}" --csv "$folder" "$folder"
    check "hold the texts" finds "\"'=1\\+cmd\"" "$folder/sources.csv"
    check "as no formulas" not finds '(^|",)"([=+@]|-[^0-9])|(^|",)"-1\+' "$folder"/*.csv
    check "each as one cell" finds "\"'\"\",=1,\"\"\"|\"\"\",=1,\"\"\"" "$folder/sources.csv"
    check "its JSON" run "${report[@]}" --json "$folder"
    check "holds the texts" finds '"alarm": "\\"><img src=x onerror=y>"' "$work/output"
    check "without control characters" not finds '[\x00-\x09\x0B-\x1F\x7F]' "$work/output"
    check "its text" run "${report[@]}" "$folder"
    check "steers no terminal" not finds '[\x00-\x09\x0B-\x1F\x7F]' "$work/output"
}

attack_names() {
    local name before
    for name in иван Łódź 日本 'back\slash' $'no\xfftext' "?"; do
        mkdir "$work/names"
        make_station "$work/names/$name"
        echo x >"$folder/batch"
        before=$(ls -A "$work/names")
        launch
        lives "$name"
        check "$name: the alarm is there" [ -n "$(alarm)" ]
        check "$name: nothing lies beside the folder" [ "$before" = "$(ls -A "$work/names")" ]
        check "$name: vigrel-inspect reads it" run "$programs/vigrel-inspect" "$(alarm)"
        check "$name: vigrel-inspect exports it" run "$programs/vigrel-inspect" --alarms --csv "$folder"
        check "$name: vigrel-receiver-check reads it" gives 2 "$programs/vigrel-receiver-check" --files-only "$folder"
        run "$programs/vigrel-receiver-check" --json --files-only "$folder"
        case $name in
            *$'\xff'*) ;;
            *) check "$name: it names the folder" grep -qF "${name//\\/\\\\}" "$work/output" ;;
        esac
        attack_report_names
        run "$programs/vigrel-send" --port 1 --file "$folder/none"
        check "$name: vigrel-send names a file" grep -qF "${name//$'\xff'/\\xFF}" "$work/output"
        rm -rf "$work/names"

        # The user's own folder, filled at the first start.
        mkdir -p "$work/names/$name"
        own "$work/names"
        (as $station_user env HOME="$work/names/$name" "$programs/vigrel-definitions") >"$work/output" 2>&1 &
        pid=$!
        folder=$work/names/$name/.local/share/VigrelReceiver
        check "$name: the editor fills the folder of that user" until_true 15 [ -e "$folder/Vigrel_Texts.044" ]
        check "$name: it makes none beside" [ "$(ls -A "$work/names")" = "$name" ]
        kill -KILL $pid
        wait $pid 2>/dev/null
        pid=
        rm -rf "$work/names"
    done
    attack_report_texts
}

# modes FOLDER: of what is in it.
modes() { find "$1" -mindepth 1 -printf '%m %y\n' | sort -u | tr '\n' ';'; }

attack_users() {
    local target=$work/target umask
    for umask in 022 000 027; do
        mkdir -p "$work/users/home"
        own "$work/users"
        (umask $umask && folder= && as $station_user env HOME="$work/users/home" "$programs/vigrel-definitions") \
            >"$work/output" 2>&1 &
        pid=$!
        folder=$work/users/home/.local/share/VigrelReceiver
        check "umask $umask: the first start fills the folder" until_true 15 [ -e "$folder/Sounds" ]
        sleep 1
        kill -KILL $pid
        wait $pid 2>/dev/null
        case $umask in
            027) check "umask 027: the group may read" [ "$(modes "$work/users/home/.local")" = "640 f;750 d;" ] ;;
            *) check "umask $umask: all is the owner's" [ "$(modes "$work/users/home/.local")" = "600 f;700 d;" ] ;;
        esac
        pid=
        rm -rf "$work/users"
    done

    make_station "$work/planted"
    echo "mine" >"$target"
    own "$target"
    ln -s "$target" "$folder/LogFiles/$(date +%Y%m%d).Log"
    ln -s "$target" "$folder/VigrelReceiver.lock"
    own "$folder"
    launch
    lives "links in place of log and lock"
    check "what they lead to is as it was" [ "$(cat "$target")" = mine ]
    check "alarms are the owner's" [ "$(find "$folder/Alarms" -type f -printf '%m ')" = "600 " ]

    [ "$(id -u)" -eq 0 ] || { echo "Left out, since it asks for root: a second user who locks the folder."; return; }
    make_station "$work/locked"
    launch
    check "a first start makes its lock" until_true 15 answers
    check "and ends in order" ends 0
    chmod -R a+rX "$folder"
    (as $other_user flock --nonblock --no-fork "$folder" sleep 30) >/dev/null 2>&1 &
    helper=$!
    sleep 0.2
    launch
    lives "a user who may read the folder holds a lock on it"
    kill $helper
    helper=
}

attack_portable() {
    local stick=$work/stick name
    mkdir -p "$stick/Templates" "$stick/Sounds" "$work/home"
    make_station "$work/unused"
    mv "$folder/VigrelReceiver.INI" "$stick/Templates/VigrelReceiver.oni"
    mv "$folder/Vigrel_Texts.046" "$stick"
    for name in vigrel-receiver vigrel-send; do
        ln "$programs/$name" "$stick/$name" 2>/dev/null || cp "$programs/$name" "$stick/$name"
    done
    own "$stick" "$work/home"
    chmod -R a-w "$stick/Templates" "$stick/Sounds" && chmod a-w "$stick"
    folder=$work/home/.local/share/VigrelReceiver
    (as $station_user "$stick/vigrel-receiver") >"$work/station" 2>&1 &
    pid=$!
    check "from a medium that can't be written the station starts" until_true 15 answers
    check "it says where its files are" grep -qF "$folder" "$work/station"
    check "it ends in order" ends 0
    check "no program was copied" [ -z "$(find "$work/home" -name 'vigrel-*')" ]
    check "the alarm is where it said" [ -n "$(alarm)" ]
}

for attack; do
    case $attack in
        files | names | users | portable) "attack_$attack" ;;
        *) usage; exit 2 ;;
    esac
done
echo "$passed passed, $failed failed"
[ $failed -eq 0 ]
