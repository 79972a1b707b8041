# Sourced by what runs the program on a virtual display: an X server, a window manager and a home
# folder of their own, with real key and pointer events. All of it goes at the end.
#
# start_display WIDTHxHEIGHT, install_program PROGRAM FOLDER, start_program PROGRAM FOLDER [PICTURE],
# run_program PROGRAM FOLDER [PICTURE [FILE]], await TITLE, picture FILE, small_picture FILE PLACE,
# changes COMMAND..., answer KEY, click_at X Y [BUTTON], fill TEXT, choose MENU ENTRY,
# press TABS, open_shape FILE [TITLE], save_shape_as FILE [DESCRIPTION]

display_folder=$(mktemp -d "${TMPDIR:-/tmp}/velmora-display-XXXXXX")
display_processes=()

stop_display() {
    for process in "${display_processes[@]}"; do
        kill "$process" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    chmod -R u+w "$display_folder" # a test may have made its home read-only
    rm -rf "$display_folder"
}
trap stop_display EXIT

# Waits until a command succeeds; gives up after 30 seconds.
until_done() {
    local end=$((SECONDS + 30))
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

fail() {
    import -window root "${pictures:-$display_folder}/failed.png" || true
    echo "$(basename "$0"): $*" >&2
    exit 1
}

screen_sum() { import -window root -depth 8 rgb:- | md5sum; }
screen_differs() { [[ $(screen_sum) != "$1" ]]; }
screen_rests() {
    local before
    before=$(screen_sum)
    sleep 0.1
    [[ $(screen_sum) == "$before" ]]
}

active_title() { xdotool getactivewindow getwindowname 2>/dev/null; }
is_active() { [[ $(active_title) == $1 ]]; }
# Waits until a window is in front and drawn.
await() {
    until_done is_active "$1" || fail "no window '$1', but '$(active_title)'"
    until_done screen_rests || fail "the screen never rests"
}

# Runs what shall change the screen, and waits until it has.
changes() {
    local before
    before=$(screen_sum)
    "$@"
    until_done screen_differs "$before" || fail "nothing changes by: $*"
}

picture() {
    until_done screen_rests || fail "the screen never rests"
    import -window root "$1"
}

# The caret of a text box blinks, half a second each way: of several looks the darkest has it.
picture_with_caret() {
    local look light darkest=
    for _ in 1 2 3 4 5; do
        look=$display_folder/look.png
        picture "$look"
        light=$(convert "$look" -colorspace gray -format '%[fx:mean*w*h]' info:)
        if [ -z "$darkest" ] || awk "BEGIN { exit !($light < $darkest) }"; then
            darkest=$light
            mv "$look" "$1"
        fi
        sleep 0.1
    done
}

# A part of the screen in few colours, so that the file is small.
small_picture() {
    picture_with_caret "$display_folder/screen.png"
    convert "$display_folder/screen.png" -crop "$2" +repage +dither -colors 48 -strip "PNG8:$1"
}

# The place of the active window with its frame, as convert takes it.
frame_place() {
    local window
    window=$(xdotool getactivewindow)
    { xwininfo -id "$window"; xprop -id "$window" _NET_FRAME_EXTENTS; } | awk -F '[:=,]' '
        /Absolute upper-left X/ {x = $2} /Absolute upper-left Y/ {y = $2}
        /Width:/ {w = $2} /Height:/ {h = $2}
        /_NET_FRAME_EXTENTS/ {left = $2; right = $3; top = $4; bottom = $5}
        END {print w + left + right "x" h + top + bottom "+" x - left "+" y - top}'
}

hidden() { ! xwininfo -id "$1" 2>/dev/null | grep -q IsViewable; }
# Closes the message box in front by a key, again where it came before the box could take it.
answer() {
    local box
    box=$(xdotool getactivewindow)
    until_done answered "$box" "$1" || fail "$1 does not close '$(active_title)'"
}
answered() {
    xdotool key "$2"
    for _ in $(seq 10); do
        hidden "$1" && return 0
        sleep 0.1
    done
    return 1
}

# Clicks at a place of the active window, counted from its upper left corner inside the frame.
click_at() { xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click "${3:-1}"; }

# Puts a text into the box that has the focus, over the one that stands there.
fill() {
    xdotool key ctrl+a
    xdotool type -- "$1"
}

# Opens a menu by its place in the bar and takes an entry by its place in it: not every menu has a
# letter of its own, so the arrows go on from the first.
choose() {
    local down=()
    for _ in $(seq 2 "$2"); do down+=(Down); done
    changes xdotool key alt+a
    for _ in $(seq "$1"); do changes xdotool key Right; done
    [ ${#down[@]} -eq 0 ] || xdotool key "${down[@]}"
    xdotool key Return
}

# Presses the button that so many Tabs lead to.
press() {
    local tabs=()
    for _ in $(seq "$1"); do tabs+=(Tab); done
    xdotool key "${tabs[@]}" space
}

# Opens a file, up to the main window or to the one with another title.
open_shape() {
    xdotool key ctrl+a
    await "Seleccione Fichero a Abrir"
    xdotool type -- "$1"
    xdotool key Return
    await "${2:-Velmora 1.0 (*}"
}

# Save as: path, description, and the box that tells of the file. Without a description the one
# that is offered stays.
save_shape_as() {
    xdotool key F12
    await "Fichero a generar"
    fill "$1"
    xdotool key Return
    await "Velmora 1.0"
    [ -z "${2:-}" ] || fill "$2"
    xdotool key Return
    until_done test -s "$1" || fail "no file was written"
    await "Velmora 1.0"
}

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

# Lays the program out below a folder as an installed one, so that what it writes beside itself goes
# into the home folder, and the build's files stay as they are.
install_program() {
    local from
    from=$(dirname "$1")
    mkdir -p "$2"/{bin,share/velmora}
    cp "$1" "$2/bin/velmora"
    find "$from" -maxdepth 1 -type f ! -perm /111 -exec cp -t "$2/share/velmora" {} +
    local folder
    for folder in help machines; do
        [ ! -d "$from/$folder" ] || cp -r "$from/$folder" "$2/share/velmora"
    done
}

# Installs the program and starts it in a folder.
start_program() {
    install_program "$1" "$display_folder/usr"
    run_program "$display_folder/usr/bin/velmora" "${@:2}"
}

# Starts the program in a folder and clicks its start window away, after a picture of it where one
# is wanted; `running` is the program's process. A file may be named for the program to open.
run_program() {
    (cd "$2" && exec "$1" ${4:+"$4"}) 2>"$display_folder/program.log" &
    running=$!
    display_processes+=("$running")
    local splash
    splash=$(until_done xdotool search --onlyvisible --pid "$running" | tail -n 1) || true
    [ -n "$splash" ] || fail "the program did not start: $(cat "$display_folder/program.log")"
    [ -z "${3:-}" ] || { sleep 0.5; picture "$3"; }
    eval "$(xdotool getwindowgeometry --shell "$splash")"
    xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click 1
    until_done hidden "$splash" || fail "the start window stays"
    # No CAD is running, says a box in front of the main window.
    await "Velmora"
    answer Return
    await "Velmora 1.0 (*"
}
