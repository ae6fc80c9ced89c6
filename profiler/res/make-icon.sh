#!/usr/bin/env bash
# Draws profiler.ico: a card with three bars on their scales, as the grid shows them; limits red, medians gold.
# Drawn on a grid of 16 x 16 squares, so that each size is crisp. Run it after changing the drawing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=tools/lib/common.sh
. ../../tools/lib/common.sh
convert=$(ky_imagemagick convert)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One rectangle per line: left top right bottom (exclusive), colour.
shapes='
0 1 16 15 #2F4B7C
1 2 15 14 #FFFFFF
2 3 3 13 #D8332A
13 3 14 13 #D8332A
4 3 10 5 #9DBCE8
6 3 10 5 #2F5FB3
4 7 12 9 #9DBCE8
4 7 8 9 #2F5FB3
6 11 11 13 #9DBCE8
8 11 11 13 #2F5FB3
9 3 10 5 #F2B600
7 7 8 9 #F2B600
9 11 10 13 #F2B600
'
images=()
for size in 16 32 48 64 256; do
    unit=$((size / 16))
    drawing=()
    while read -r left top right bottom colour; do
        [ -n "$left" ] || continue
        drawing+=(-fill "$colour" -draw
            "rectangle $((left * unit)),$((top * unit)) $((right * unit - 1)),$((bottom * unit - 1))")
    done <<<"$shapes"
    "$convert" -size "${size}x${size}" xc:none +antialias "${drawing[@]}" "PNG32:$work/$size.png"
    images+=("$work/$size.png")
done
"$convert" "${images[@]}" profiler.ico
