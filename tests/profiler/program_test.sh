#!/usr/bin/env bash
# The whole program, used with a real mouse and real keys: program_test.sh PROFILER.exe PROGRAM_TEXTS.exe FOLDER
# FOLDER takes pictures and the INI file. Shares are counted again here, with awk, from the file itself.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/lib/common.sh"
# shellcheck source=tools/lib/x.sh
. "$ky_root/tools/lib/x.sh"
# shellcheck source=tools/lib/plots.sh
. "$ky_root/tools/lib/plots.sh"

program=$1
texts=$2
x_out=$3
data=$ky_root/profiler/data/penguins.csv
ini=$x_out/program_test.ini
header_y=53
failures=0

# --- What is expected -------------------------------------------------------------------------------------------------

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    failures=$((failures + 1))
    x_shot "failure-$failures"
}

# says WHAT: what the program says now, WHAT being title, status or box.
says() {
    wine "$texts" 9>&- | tr -d '\r' | sed -n "s/^$1: //p"
}

# expect WHAT PATTERN PURPOSE: the text matches the extended regular expression as a whole.
expect() {
    local text
    text=$(says "$1")
    if [[ $text =~ ^$2$ ]]; then
        printf 'ok: %s\n' "$3"
    else
        fail "$3: the $1 is '$text', expected '$2'"
    fi
}

number='-?[0-9.]+(e[-+][0-9]+)?'
share_pattern="(.*): ([<>]?[0-9.]+) % of the values lie from ($number) to ($number)\\."

# expect_share COLUMN-INDEX PURPOSE: the status bar tells a share; it is the one that the file has. Leaves its limits in
# lower and upper.
expect_share() {
    local text told counted
    text=$(says status)
    if ! [[ $text =~ ^$share_pattern$ ]]; then
        fail "$2: the status bar tells no share but '$text'"
        return
    fi
    told=${BASH_REMATCH[2]}
    lower=${BASH_REMATCH[3]}
    upper=${BASH_REMATCH[5]}
    counted=$(awk -F, -v column="$1" -v lower="$lower" -v upper="$upper" '
        NR > 1 && $column != "" { count++; inside += $column >= lower + 0 && $column <= upper + 0 }
        END { printf "%.1f", 100 * inside / count }' "$data")
    if [ "$told" = "$counted" ]; then
        printf 'ok: %s (%s %% from %s to %s)\n' "$2" "$told" "$lower" "$upper"
    else
        fail "$2: $told % told, $counted % counted from $lower to $upper"
    fi
}

# expect_order A B C... PURPOSE: the numbers do not fall.
expect_order() {
    local purpose=${*: -1}
    if printf '%s\n' "${@:1:$#-1}" | sort -gc 2>/dev/null; then
        printf 'ok: %s\n' "$purpose"
    else
        fail "$purpose: ${*:1:$#-1}"
    fi
}

# expect_moved FROM TO WANTED PURPOSE: a mark's x moved by WANTED pixels, two more or less: the pointer is not exactly on
# the mark when it is pressed.
expect_moved() {
    local off=$(($2 - $1 - $3))
    if [ "${off#-}" -le 2 ]; then
        printf 'ok: %s\n' "$4"
    else
        fail "$4: moved from $1 to $2, expected by $3"
    fi
}

# expect_value X Y MINIMUM MAXIMUM TOLD PURPOSE: the value told is the one at X on the scale that the red marks of line Y
# show, give or take a pixel. A mark covers the pixel left of its place and the one at it.
expect_value() {
    local left right
    left=$(($(plot_find "$2" "$plot_scale" first) + 1))
    right=$(plot_find "$2" "$plot_scale" last)
    if awk -v x="$1" -v l="$left" -v r="$right" -v min="$3" -v max="$4" -v told="$5" 'BEGIN {
            pixel = (max - min) / (r - l); off = told - (min + (x - l) * pixel)
            exit !(off < 1.5 * pixel && off > -1.5 * pixel) }'; then
        printf 'ok: %s\n' "$6"
    else
        fail "$6: $5 told at $1 between $left and $right"
    fi
}

# point_nowhere: takes the pointer to where no header gets hot and no tip covers a plot.
point_nowhere() {
    x_move 400 500
    sleep 0.3
}

# grid_picture NAME: the grid alone, without title bar and status bar, with the first row selected.
grid_picture() {
    point_nowhere
    x_key Home
    "$(ky_imagemagick import)" -window root -crop "1190x600+$((x_left + 5))+$((x_top + 43))" +repage "$x_out/$1.png"
}

same_picture() {
    [ "$("$(ky_imagemagick compare)" -metric AE "$x_out/$1.png" "$x_out/$2.png" null: 2>&1)" = 0 ]
}

# state SECTION: the layout that the INI file holds.
state() {
    tr -d '\r' <"$ini" | awk -v section="$1" '/^\[/ { inside = $0 == "[" section "]" } inside && /^State=/'
}

start() {
    x_start "$program" --language en --ini "$(ky_windows_path "$ini")" "$@"
    x_wait_window 'Column Profiler'
    sleep 0.5
}

# --- What is done -----------------------------------------------------------------------------------------------------

drag_each_mark() {
    local y x after
    y=$(plot_row 3)
    x=$(plot_find "$y" "$plot_bar" first)
    x_move "$x" "$y"
    x_press
    x_glide "$x" "$y" $((x - 25)) "$y"
    expect status "Beak Length \\(mm\\): lower limit at $number\\. Escape cancels\\." "a dragged lower limit tells its value"
    after=$(plot_find "$y" "$plot_bar" first)
    expect_moved "$x" "$after" -25 "the lower end follows the pointer"
    x_release
    expect_share 3 "the share follows the lower limit"
    expect_value $((x - 25)) "$y" 32.1 59.6 "$lower" "the limit is the value under the pointer"

    x=$(plot_find "$y" "$plot_bar" last)
    x_drag "$x" "$y" $((x + 25)) "$y"
    expect_share 3 "the share follows the upper limit"
    after=$(plot_find "$y" "$plot_bar" last)
    expect_moved "$x" "$after" 25 "the upper end stays where it was dragged"

    x=$(plot_find "$y" "$plot_target" first)
    x_move "$x" "$y"
    x_press
    x_glide "$x" "$y" $((x + 40)) "$y"
    expect status "Beak Length \\(mm\\): target at $number\\. Escape cancels\\." "a dragged target tells its value"
    x_release
    after=$(plot_find "$y" "$plot_target" first)
    expect_moved "$x" "$after" 40 "the target stays where it was dragged"
    expect_share 3 "a target between the limits leaves the share"
}

# The same limits in the histogram, the target also as a slider.
drag_in_other_plots() {
    local y x
    y=$(plot_row 3)
    x=$(plot_find "$y" "$plot_scale" first "$plot_right" "$plot_histogram_right")
    x_move "$x" "$y"
    x_press
    x_glide "$x" "$y" $((x + 12)) "$y"
    expect status "Beak Length \\(mm\\): lower limit at $number\\. Escape cancels\\." "a histogram's mark tells its value"
    x_release
    expect_share 3 "the share follows the mark in the histogram"
    expect_value "$(plot_find "$y" "$plot_bar" first)" "$y" 32.1 59.6 "$lower" "the bar begins at the same limit"
    x=$(plot_find "$y" "$plot_target" first)
    x_click $((plot_histogram_right + 15)) "$y"
    expect_share 3 "a click beside the slider's handle sets the target"
    expect_order "$lower" 36.3 "a target below it takes the lower limit along"
    if [ "$(plot_find "$y" "$plot_target" first)" -lt $((x - 20)) ]; then
        echo "ok: the gold mark follows the slider"
    else
        fail "the gold mark follows the slider"
    fi
}

# The ends of a scale, and the share that is asked for, by keys.
type_numbers() {
    local y=$(($(plot_row 3) + 20)) minimum_x=982 maximum_x=1070 limit_x=1170
    x_click "$minimum_x" "$y"
    x_type 20
    x_shot typing-a-minimum
    x_key Return
    expect status 'Beak Length \(mm\): the scale now runs from 20 to 59\.6\.' "a typed minimum becomes the scale's"
    x_click "$maximum_x" "$y"
    x_type 10
    x_key Return
    expect status 'Beak Length \(mm\): the minimum 20 is not below the maximum 10\. The scale still runs from 20 to 59\.6\.' \
        "a maximum below it does not"
    x_click "$maximum_x" "$y"
    x_type 7
    x_key Escape
    x_type 80,5
    x_key Return
    expect status 'Beak Length \(mm\): the scale now runs from 20 to 80\.5\.' \
        "Escape puts the number back and editing goes on; a comma is as good as a point"
    x_click "$minimum_x" "$y"
    x_type 1
    x_click "$maximum_x" "$y"
    expect status 'Beak Length \(mm\): the scale now runs from 1 to 80\.5\.' "a click elsewhere takes the number"
    x_key Return

    x_click "$limit_x" "$y"
    x_type 50
    x_shot typing-a-limit
    x_key Return
    expect status 'Beak Length \(mm\): [0-9.]+ % of the values lie inside, 50 % are asked for\.' "typing edits a limit"
    x_type 60%
    x_key Up
    expect status 'Beak Depth \(mm\): [0-9.]+ % of the values lie inside, 60 % are asked for\.' \
        "Enter has gone on to the next row"
    x_key F2
    x_type 70
    x_key Tab
    x_type 80
    x_key Return
    expect status 'Beak Depth \(mm\): [0-9.]+ % of the values lie inside, 80 % are asked for\.' \
        "Up has gone to the row above, and Tab to the next limit"
}

look_at_the_details() {
    x_click 60 "$(plot_row 3)"
    x_key alt+Return
    x_wait_window 'Details of Beak Length'
    x_shot details
    x_key Escape
    if xdotool search --onlyvisible --name 'Details of' >/dev/null 2>&1; then
        fail "Escape closes the details"
    else
        echo "ok: Escape closes the details"
    fi
    x_wait_window 'penguins\.csv' # whose place counts again
}

choose_the_row_height() {
    local y
    grid_picture medium
    x_key alt+v r h
    expect status 'Rows are 48 pixels high\.' "the menu makes rows higher"
    y=$((67 + 2 * 48 + 40))
    if plot_find "$y" "$plot_target" first >/dev/null; then
        echo "ok: the plots use the room"
    else
        fail "the plots use the room"
    fi
    x_key alt+v r m
    grid_picture medium_again
    if same_picture medium medium_again; then echo "ok: and lower again"; else fail "and lower again"; fi
}

drag_against_the_wall() {
    local y target
    y=$(plot_row 4)
    target=$(plot_find "$y" "$plot_target" first)
    x_drag "$(plot_find "$y" "$plot_bar" first)" "$y" $((target + 60)) "$y"
    expect_share 4 "a lower limit dragged across the target"
    expect_order "$lower" 17.3 17.3 "it ends at the target"
    y=$(plot_row 5)
    x_drag "$(plot_find "$y" "$plot_target" first)" "$y" $(($(plot_find "$y" "$plot_bar" last) + 30)) "$y"
    expect_share 5 "a target dragged across the upper limit"
    expect_order 214.977 "$upper" 231 "it pushes the upper limit along"
}

leave_and_cancel() {
    local y x after before
    y=$(plot_row 6)
    x=$(plot_find "$y" "$plot_bar" last)
    before=$(plot_find "$y" "$plot_bar" first)
    x_move "$x" "$y"
    x_press
    x_glide "$x" "$y" $((x + 15)) 500
    expect status "Body Mass \\(g\\): upper limit at $number\\. Escape cancels\\." "the drag goes on below the cell"
    after=$(plot_find "$y" "$plot_bar" last)
    expect_moved "$x" "$after" 15 "the mark follows a pointer that left its cell"
    x_glide $((x + 15)) 500 $((x + 20)) -30
    after=$(plot_find "$y" "$plot_bar" last)
    expect_moved "$x" "$after" 20 "the mark follows a pointer that left the window"
    x_key Escape
    expect status "Cancelled: the mark is back where it was\\." "Escape cancels"
    after=$(plot_find "$y" "$plot_bar" last)
    expect_moved "$x" "$after" 0 "the mark is back"
    x_release
    expect status "Cancelled: the mark is back where it was\\." "the release after Escape changes nothing"
    x_glide $((x + 20)) -30 "$before" 500
    after=$(plot_find "$y" "$plot_bar" first)
    expect_moved "$before" "$after" 0 "nothing is dragged any more"
}

release_elsewhere() {
    local y x
    y=$(plot_row 6)
    x=$(plot_find "$y" "$plot_bar" first)
    x_drag "$x" "$y" $((x - 18)) "$(plot_row 5)"
    point_nowhere
    expect_share 6 "a release over another row applies the drag to its own row"
    expect_moved "$x" "$(plot_find "$y" "$plot_bar" first)" -18 "at the pointer's place"
    x=$(plot_find "$y" "$plot_bar" first)
    x_drag "$x" "$y" $((x - 10)) 500
    expect_share 6 "so does a release below the last row"
    expect_moved "$x" "$(plot_find "$y" "$plot_bar" first)" -10 "at the pointer's place"
    x=$(plot_find "$y" "$plot_bar" last)
    x_drag "$x" "$y" $((x + 10)) 750
    expect_share 6 "so does a release outside of the window"
}

# expect_plots WANTED PURPOSE: of the first nine rows those that show a plot with a target, from the top.
expect_plots() {
    local row found=
    for row in 1 2 3 4 5 6 7 8 9; do
        if plot_find "$(plot_row "$row")" "$plot_target" first >/dev/null; then
            found+=$row
        fi
    done
    if [ "$found" = "$1" ]; then printf 'ok: %s\n' "$2"; else fail "$2: plots in rows $found, expected $1"; fi
}

filter_by_name() {
    grid_picture unfiltered
    expect_plots 3456 "four of seven columns have a plot"
    x_key ctrl+f
    x_type 'BEAK (mm)'
    point_nowhere
    expect_plots 23 "the filter leaves the columns with both words" # one lower, below the bar
    x_shot filtered
    x_key Down Down # into the grid
    x_key alt+Return
    x_wait_window 'Details of Beak Depth'
    x_key Escape
    x_wait_window 'penguins\.csv'
    echo "ok: Down goes into the grid"
    x_key ctrl+f
    x_key Escape Escape
    grid_picture unfiltered_again
    if same_picture unfiltered unfiltered_again; then echo "ok: Escape shows all"; else fail "Escape shows all"; fi
}

group_by_type() {
    x_key ctrl+t
    point_nowhere
    expect_plots 2345 "the group of numbers comes first"
    x_shot grouped
    x_key Home Left
    point_nowhere
    expect_plots '' "Left collapses it"
    x_click 60 $(($(plot_row 1) + 8))
    x_key Return
    point_nowhere
    expect_plots 2345 "Enter expands it"
    x_click 12 $(($(plot_row 1) + 11))
    point_nowhere
    expect_plots '' "so does a click on its button, the other way round"
    x_key ctrl+t
    grid_picture ungrouped
    if same_picture unfiltered ungrouped; then echo "ok: and back"; else fail "and back"; fi
}

change_the_layout() {
    grid_picture default
    x_click 100 "$header_y" 3
    x_key Down Down Down Return # Type, Count, Missing
    x_click 100 "$header_y"     # sort by name
    grid_picture changed
    if same_picture default changed; then fail "hiding a column and sorting show"; else echo "ok: hiding a column and sorting show"; fi
    if plot_find "$(plot_row 1)" "$plot_target" first >/dev/null; then
        echo "ok: Beak Depth comes first by name"
    else
        fail "Beak Depth comes first by name"
    fi
}

find_the_layout_again() {
    start "$(ky_windows_path "$data")"
    x_click 100 "$header_y" 3
    x_key Escape
    grid_picture restarted
    x_click 100 "$header_y" 3
    x_key Up Return
    grid_picture restored
    x_close
}

# --- The test ---------------------------------------------------------------------------------------------------------

mkdir -p "$x_out"
rm -f "$ini"
x_begin

start "$(ky_windows_path "$data")"
expect title 'penguins\.csv – Column Profiler' "the title names the file"
expect status 'penguins\.csv is open\.' "the status bar says that the file is open"
drag_each_mark
drag_in_other_plots
drag_against_the_wall
leave_and_cancel
release_elsewhere
x_key F5
expect status 'penguins\.csv is open\.' "F5 reads the file again"
grid_picture fresh
type_numbers
look_at_the_details
x_key F5
expect status 'penguins\.csv is open\.' "F5 reads the file again"
choose_the_row_height
filter_by_name
group_by_type
change_the_layout
if same_picture fresh default; then echo "ok: limits begin anew"; else fail "limits begin anew"; fi
x_close

changed_state=$(state Columns)
default_state=$(state 'Columns\\DefaultLayout')
if [ -n "$changed_state" ] && [ "$changed_state" != "$default_state" ]; then
    echo "ok: the INI file holds the layout and the default one"
else
    fail "the INI file holds the layout and the default one"
fi
find_the_layout_again
if same_picture changed restarted; then echo "ok: the layout is there after a restart"; else fail "the layout is there after a restart"; fi
if same_picture default restored; then echo "ok: the default layout can be restored"; else fail "the default layout can be restored"; fi
if [ "$(state Columns)" = "$default_state" ]; then echo "ok: and is what the INI file holds then"; else fail "and is what the INI file holds then"; fi

printf 'a,b\n1,2\n3\n4,x\n5,6\n7,8\n' >"$x_out/odd.csv"
start "$(ky_windows_path "$x_out/odd.csv")"
expect status 'odd\.csv, line 3: 1 field where the header has 2\. The others count as missing\.' "a ragged row is told"
rm "$x_out/odd.csv"
x_key F5
expect box '.*odd\.csv cannot be found\. Check its name and its folder\.' "a file that is gone is told"
x_key Return
expect title 'odd\.csv – Column Profiler' "and stays open as it was read"
x_key ctrl+o
sleep 1
x_type "$(ky_windows_path "$ky_root/profiler/data/seattle-weather.csv")"
x_key Return
sleep 0.5
expect title 'seattle-weather\.csv – Column Profiler' "the menu opens another file"
x_close

start "$(ky_windows_path "$x_out")"
expect box '.* is a folder\. Choose a CSV file in it\.' "a folder is told"
x_key Return
expect status '.* is a folder\. Choose a CSV file in it\.' "and the program goes on"
x_close

# The clipboard, as a program on the X side has it, and the page that the browser is given.
mkdir -p "$x_out/bin"
printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s/browser.txt"\n' "$x_out" >"$x_out/bin/xdg-open"
chmod +x "$x_out/bin/xdg-open"
rm -f "$x_out/browser.txt"
PATH=$x_out/bin:$PATH start "$(ky_windows_path "$data")"
x_key ctrl+shift+c
expect status 'The table is on the clipboard\.' "the table can be copied"
xclip -selection clipboard -t text/html -o >"$x_out/clipboard.html" || true
if [ "$(head -c 63 "$x_out/clipboard.html")" = '<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Strict//EN" "http:' ] &&
    [ "$(tail -n 1 "$x_out/clipboard.html" | tail -c 24)" = '</table></body> </html>' ]; then
    echo "ok: the clipboard holds the document between the markers, and nothing else"
else
    fail "the clipboard holds the document between the markers, and nothing else"
fi
x_key ctrl+b
expect status 'The page is open in the browser\.' "the table can be opened in the browser"
for ((i = 0; i < 30; i++)); do [ -s "$x_out/browser.txt" ] && break || sleep 0.1; done
if grep -q 'profile\.html$' "$x_out/browser.txt"; then
    echo "ok: the browser is given the page"
else
    fail "the browser is given the page"
fi
x_key alt+f
x_key e
sleep 1
x_type "$(ky_windows_path "$x_out/saved.html")"
rm -rf "$x_out/saved.html"
x_key Return
expect status '.*saved\.html is written\.' "the menu exports a page"
x_close

# Reading this takes more than a second, and Escape ends it.
big=$x_out/big.csv
{ echo 'a,b,c,d' && yes '123.456789012,123.456789012,123.456789012,123.456789012'; } 2>/dev/null |
    head -c 250M >"$big" || true
start "$(ky_windows_path "$big")"
x_wait_window 'big\.csv'
x_key F5
expect status 'Reading big\.csv: [0-9]+ %, [0-9,]+ rows\. Escape cancels\.' "the status bar tells how far reading has come"
x_shot reading
x_key Escape
expect status 'Cancelled: the file was not opened\.' "Escape gives up reading"
expect title 'big\.csv – Column Profiler' "and the file that was open stays"
x_key F5
x_close
rm "$big"

exported=$x_out/exported.csv
rm -f "$exported"
if wine "$program" --export "$(ky_windows_path "$exported")" "$(ky_windows_path "$data")" 9>&- &&
    tr -d '\r' <"$exported" | grep -qx 'Body Mass (g),number,342,2,,2700,6300,4201\.75.*,3150,3550,4050,4750,5650'; then
    echo "ok: the statistics can be exported without a window"
else
    fail "the statistics can be exported without a window"
fi
page=$x_out/exported.html
rm -rf "$page" "$x_out/exported-plots"
rm -f "$x_out/export.ini"
if wine "$program" --ini "$(ky_windows_path "$x_out/export.ini")" --language en \
    --export "$(ky_windows_path "$page")" "$(ky_windows_path "$data")" 9>&- &&
    [ ! -e "$x_out/export.ini" ] &&
    grep -q '<title>penguins\.csv</title>' "$page" && grep -q "<td style=''>Body Mass (g)</td>" "$page" &&
    grep -q "<img src='exported-plots/plot_2_" "$page"; then
    echo "ok: the table can be exported as a page without a window, and leaves the profile alone"
else
    fail "the table can be exported as a page without a window"
fi
sizes=$("$(ky_imagemagick identify)" -format '%m %wx%h\n' "$x_out"/exported-plots/*.bmp | sort -u)
if [[ $sizes =~ ^BMP3?\ 400x22$ ]]; then
    echo "ok: its plots are bitmaps of 400 x 22 pixels"
else
    fail "its plots are bitmaps of 400 x 22 pixels, not: $sizes"
fi
if wine "$program" --export "$(ky_windows_path "$exported")" no-such-file.csv 9>&- 2>"$x_out/export.log"; then
    fail "an export that fails says so with its exit code"
elif grep -q '^no-such-file\.csv cannot be found' "$x_out/export.log"; then
    echo "ok: an export that fails says why"
else
    fail "an export that fails says why"
fi

if [ "$failures" -gt 0 ]; then
    printf '%s expectations failed; pictures are in %s\n' "$failures" "$x_out" >&2
    exit 1
fi
