# Sourced by the tests that look at a station in a bare root on a screen. $work is a folder for scratch files, $root the
# bare root. Needs xvfb, openbox, xdotool, wmctrl, imagemagick on this machine.

station= screen=()
# The ground of active events in the configuration that is delivered: of most categories, and of Fire.
active="rgb(204,51,0)" fire="rgb(166,0,30)"

# until_true COMMAND...: up to a minute.
until_true() {
    local tries
    for tries in $(seq 120); do
        "$@" 2>/dev/null && return
        sleep 0.5
    done
    echo "The station's output:" >&2
    cat "$work/output" >&2
    return 1
}

log_says() { grep -aqs "$2" "$1"/LogFiles/*.[Ll]og; }

# begin_desktop: a screen with a window manager, of this machine: in the root is nothing but what was installed. Its
# processes are in $screen, which the caller ends on its own end.
begin_desktop() {
    : >"$work/display"
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
    screen=($!)
    until_true test -s "$work/display"
    export DISPLAY=:$(cat "$work/display")
    openbox --sm-disable >/dev/null 2>&1 &
    screen+=($!)
    # A window that comes before it would not be seen.
    until_true wmctrl -m >"$work/manager"
}
end_desktop() {
    kill "${screen[@]}" 2>/dev/null || true  # the window manager goes with the screen
    wait "${screen[@]}" 2>/dev/null || true
    screen=()
    unset DISPLAY
}

# find_station: the station that runs in the root, whoever started it.
find_station() {
    local process
    for process in $(pgrep -x vigrel-receiver); do
        [ "$(readlink "/proc/$process/root")" != "$root" ] || station=$process
    done
    [ -n "$station" ]
}
has_ended() { ! kill -0 "$1" 2>/dev/null; }

# find_window TITLE: its number is in $window.
find_window() { window=$(xdotool search --onlyvisible --name "$1" | tail -n 1) && [ -n "$window" ]; }
press() { xdotool windowactivate --sync "$window" key --delay 100 "$@"; }
geometry() { xdotool getwindowgeometry --shell "$window" | grep -v -e WINDOW -e SCREEN; }

# row_shows COLOUR PICTURE: whether the window has a place of the colour as large as a row; the window as a picture.
row_shows() {
    import -window "$window" "$2"
    [ "$(convert "$2" -fill white +opaque "$1" -fill black -opaque "$1" -format '%[fx:int((1-mean)*w*h)]' info:)" -gt 3000 ]
}
