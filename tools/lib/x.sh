# shellcheck shell=bash disable=SC2119,SC2120 # Most arguments have defaults.
# Uses a program on the virtual screen as a person would: real pointer, real keys, pictures of what is seen.
# Source it after common.sh. Positions are pixels from the top left corner of the current window, frame included;
# every function that acts leaves time for the program to answer.
#
#   x_begin                        takes the screen of the prefix (WINEPREFIX, or the checkout's own)
#   x_start PROGRAM.exe [ARG...]   starts a program; its output goes to out/PROGRAM.log
#   x_wait_window TITLE [SECONDS]  waits for a window whose title matches, and makes it the current one
#   x_move X Y; x_click X Y [BUTTON]; x_double_click X Y; x_wheel X Y up|down [CLICKS]
#   x_drag X1 Y1 X2 Y2 [STEPS]     presses, moves in small steps, releases
#   x_press [BUTTON]; x_glide X1 Y1 X2 Y2 [STEPS]; x_release [BUTTON]   the parts of a drag, for what happens in between
#   x_key KEY...; x_type TEXT      key names as xdotool has them: Escape, Return, ctrl+a
#   x_shot NAME                    out/NAME.png, the whole screen
#   x_close [SECONDS]              Alt+F4, then waits; by process id if the program does not go by itself
#   x_list_shots                   names the pictures taken

# shellcheck source=tools/lib/wine.sh
. "$ky_root/tools/lib/wine.sh"
# shellcheck source=tools/lib/screen.sh
. "$ky_root/tools/lib/screen.sh"

x_out=${KY_OUT:-$ky_root/out}
x_pid=
x_window=
x_left=0
x_top=0
x_shots=()

x_begin() {
    local prefix=${WINEPREFIX:-}
    if [ -z "$prefix" ]; then
        prefix=$(ky_prefix screen)
        "$ky_root/tools/setup/wine-prefix.sh" "$prefix" screen
    fi
    ky_wine_environment "$prefix"
    ky_hold_screen "$prefix"
    mkdir -p "$x_out"
    trap x_end_program EXIT
}

x_start() {
    x_log=$x_out/$(basename "$1" .exe).log
    wine "$@" >"$x_log" 2>&1 9>&- &
    x_pid=$!
}

# x_end_program: the last resort, for a program that would outlive the script.
x_end_program() {
    if [ -n "$x_pid" ] && kill -0 "$x_pid" 2>/dev/null; then
        kill "$x_pid" 2>/dev/null || true
        sleep 1
        kill -9 "$x_pid" 2>/dev/null || true
    fi
    x_pid=
}

x_wait_window() {
    local title=$1 seconds=${2:-20} found i
    for ((i = 0; i < seconds * 10; i++)); do
        found=$(xdotool search --onlyvisible --name "$title" 2>/dev/null | tail -n 1 || true)
        if [ -n "$found" ]; then
            x_window=$found
            # Let it paint, then learn where it is; xdotool's own answer counts the parent's position twice.
            sleep 0.5
            xdotool mousemove --window "$x_window" 0 0
            x_left=$(xdotool getmouselocation --shell | sed -n 's/^X=//p')
            x_top=$(xdotool getmouselocation --shell | sed -n 's/^Y=//p')
            return 0
        fi
        if [ -n "$x_pid" ] && ! kill -0 "$x_pid" 2>/dev/null; then
            ky_fail "the program ended before its window '$title' opened: $(tail -n 3 "$x_log")"
        fi
        sleep 0.1
    done
    ky_fail "no window '$title' opened within $seconds s" "see $(x_shot failure && echo "$x_out/failure.png") and $x_log"
}

x_move() {
    xdotool mousemove $((x_left + $1)) $((x_top + $2))
    sleep 0.1
}

x_click() {
    x_move "$1" "$2"
    xdotool click "${3:-1}"
    sleep 0.3
}

x_double_click() {
    x_move "$1" "$2"
    xdotool click --repeat 2 --delay 60 1
    sleep 0.3
}

x_wheel() {
    local button=5
    if [ "$3" = up ]; then button=4; fi
    x_move "$1" "$2"
    xdotool click --repeat "${4:-1}" --delay 40 "$button"
    sleep 0.3
}

x_press() {
    xdotool mousedown "${1:-1}"
    sleep 0.1
}

x_release() {
    xdotool mouseup "${1:-1}"
    sleep 0.3
}

x_glide() {
    local steps=${5:-12} i
    for ((i = 1; i <= steps; i++)); do
        xdotool mousemove $((x_left + $1 + ($3 - $1) * i / steps)) $((x_top + $2 + ($4 - $2) * i / steps))
        sleep 0.02
    done
    sleep 0.1
}

x_drag() {
    x_move "$1" "$2"
    x_press
    x_glide "$@"
    x_release
}

x_key() {
    xdotool key --delay 40 "$@"
    sleep 0.3
}

x_type() {
    xdotool type --delay 40 -- "$1"
    sleep 0.3
}

x_shot() {
    local file=$x_out/$1.png
    "$(ky_imagemagick import)" -window root "$file"
    x_shots+=("$file")
}

x_close() {
    local seconds=${1:-10} i code=0
    xdotool key alt+F4
    for ((i = 0; i < seconds * 10; i++)); do
        if ! kill -0 "$x_pid" 2>/dev/null; then
            wait "$x_pid" || code=$?
            x_pid=
            return "$code"
        fi
        sleep 0.1
    done
    x_shot failure
    x_end_program
    ky_fail "the program did not close within $seconds s" "see $x_out/failure.png"
}

x_list_shots() {
    ky_say "screenshots:"
    printf '%s\n' "${x_shots[@]}"
}
