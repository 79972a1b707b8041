# Sourced by what runs the program on a virtual display: an X server, a window manager and a home
# folder of their own, with real key and pointer events. All of it goes at the end.
#
# start_display WIDTHxHEIGHT, start_program PROGRAM FOLDER [PICTURE], await TITLE, picture FILE

display_folder=$(mktemp -d "${TMPDIR:-/tmp}/velmora-display-XXXXXX")
display_processes=()

stop_display() {
    for process in "${display_processes[@]}"; do
        kill "$process" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$display_folder"
}
trap stop_display EXIT

# Waits until a command succeeds; gives up after 30 seconds.
until_done() {
    for _ in $(seq 300); do
        "$@" && return 0
        sleep 0.1
    done
    return 1
}

fail() {
    picture "${pictures:-$display_folder}/failed.png" || true
    echo "$(basename "$0"): $*" >&2
    exit 1
}

picture() { import -window root "$1"; }
active_title() { xdotool getactivewindow getwindowname 2>/dev/null; }
is_active() { [[ $(active_title) == $1 ]]; }
await() { until_done is_active "$1" || fail "no window '$1', but '$(active_title)'"; }

start_display() {
    mkdir -p "$display_folder"/{home,run}
    chmod 700 "$display_folder/run"
    unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS QT_STYLE_OVERRIDE
    export HOME=$display_folder/home XDG_RUNTIME_DIR=$display_folder/run
    export XDG_DATA_HOME=$HOME/data XDG_CONFIG_HOME=$HOME/config XDG_CACHE_HOME=$HOME/cache
    export XDG_STATE_HOME=$HOME/state XDG_CURRENT_DESKTOP=
    export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset \
        3>"$display_folder/display" 2>"$display_folder/xvfb.log" &
    display_processes+=($!)
    until_done test -s "$display_folder/display" || fail "no display"
    DISPLAY=:$(cat "$display_folder/display")
    export DISPLAY
    openbox >"$display_folder/openbox.log" 2>&1 &
    display_processes+=($!)
    until_done xdotool get_desktop >/dev/null 2>&1 || fail "no window manager"
}

# Starts the program in a folder and clicks its start window away, after a picture of it where one
# is wanted; `running` is the program's process.
start_program() {
    (cd "$2" && exec "$1") 2>"$display_folder/program.log" &
    running=$!
    display_processes+=("$running")
    local splash
    splash=$(until_done xdotool search --onlyvisible --pid "$running" | tail -n 1) || true
    [ -n "$splash" ] || fail "the program did not start: $(cat "$display_folder/program.log")"
    [ -z "${3:-}" ] || { sleep 0.5; picture "$3"; }
    eval "$(xdotool getwindowgeometry --shell "$splash")"
    xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click 1
    # No CAD is running, says a box in front of the main window.
    await "Velmora"
    xdotool key Return
    await "Velmora 1.0 (*"
}
