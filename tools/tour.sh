#!/usr/bin/env bash
# Shows Column Profiler without a display: tour.sh PROGRAM.exe FILE.csv. Runs it on a virtual screen, uses it like a person
# with mouse and keyboard, and leaves what one would have seen in out/*.png.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/lib/common.sh"
# shellcheck source=tools/lib/x.sh
. "$ky_root/tools/lib/x.sh"
# shellcheck source=tools/lib/plots.sh
. "$ky_root/tools/lib/plots.sh"

program=${1:?usage: tour.sh PROGRAM.exe FILE.csv}
file=${2:?usage: tour.sh PROGRAM.exe FILE.csv}
header_y=53

start() {
    x_start "$program" --ini "$(ky_windows_path "$x_out/tour.ini")" "$(ky_windows_path "$file")"
    x_wait_window 'Column Profiler'
    sleep 1
}

# first_plot: the row of the first plot in sight.
first_plot() {
    local row
    for ((row = 1; row <= 25; row++)); do
        if plot_find "$(plot_row "$row")" "$plot_target" first >/dev/null; then
            echo "$row"
            return 0
        fi
    done
    return 1
}

# drag_mark NAME X Y DISTANCE: drags and takes two pictures, one before the release and one after it.
drag_mark() {
    x_move "$2" "$3"
    x_press
    x_glide "$2" "$3" $(($2 + $4)) "$3"
    x_shot "$1-dragging"
    x_release
    x_shot "$1-released"
}

drag_inside() {
    local y=$1 x
    x=$(plot_find "$y" "$plot_target" first)
    x_move "$x" "$y"
    sleep 1
    x_shot 02-tip
    drag_mark 03-lower-limit "$(plot_find "$y" "$plot_bar" first)" "$y" -30
    drag_mark 04-upper-limit "$(plot_find "$y" "$plot_bar" last)" "$y" 30
    drag_mark 05-target "$(plot_find "$y" "$plot_target" first)" "$y" 40
}

# The pointer leaves cell and window; Escape; releases elsewhere.
drag_away() {
    local y=$1 below=$2 x
    x=$(plot_find "$y" "$plot_bar" first)
    x_move "$x" "$y"
    x_press
    x_glide "$x" "$y" $((x - 40)) 400
    x_shot 06-pointer-left-the-cell
    x_glide $((x - 40)) 400 $((x - 40)) 745
    x_shot 07-pointer-left-the-window
    x_glide $((x - 40)) 745 "$x" 400
    x_key Escape
    x_shot 08-escape
    x_release

    x=$(plot_find "$y" "$plot_bar" last)
    x_drag "$x" "$y" $((x + 20)) $((y + 24))
    x_shot 09-released-over-another-row
    x=$(plot_find "$y" "$plot_bar" last)
    x_drag "$x" "$y" $((x - 20)) "$below"
    x_shot 10-released-below-the-last-row
}

x_begin
rm -f "$x_out/tour.ini"
start
x_shot 01-open
if row=$(first_plot); then
    y=$(plot_row "$row")
    drag_inside "$y"
    drag_away "$y" 600
fi

# The column chooser is answered by keyboard: the third entry is "Missing".
x_click 100 "$header_y" 3
x_shot 11-column-chooser
x_key Down Down Down Return
x_shot 12-column-hidden
x_click 100 "$header_y"
x_shot 13-sorted
x_close 10

start
x_shot 14-started-again
x_click 100 "$header_y" 3
x_key Up Return
x_shot 15-default-layout
x_key alt+v
x_key t
x_shot 16-themes
x_key Escape Escape Escape
x_key F1
x_shot 17-keys
x_key Return
x_key ctrl+m
x_shot 18-messages
x_key Escape
x_close 10
x_list_shots
