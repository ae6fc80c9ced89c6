# shellcheck shell=bash disable=SC2034 # The colours are for those who source it.
# Finds the marks of Column Profiler's plots on the screen. Source it after x.sh.

# The colours that the marks have, and no other part of the window but those of the histograms, right of the plots.
plot_bar='#A8C8F0'    # the ends of a bar
plot_target='#FFD700' # gold
plot_scale='#FF0000'  # the ends of the scale
# Where the column of plots ends, and that of histograms, with every column in its place.
plot_right=742
plot_histogram_right=882

# plot_find Y COLOUR first|last [FROM TO]: the x of the first or last pixel of the colour in the window's line Y from FROM
# up to TO (the plots' without them), as it shows now. Prints nothing and fails when there is none.
plot_find() {
    local line=$x_out/line.txt
    "$(ky_imagemagick import)" -window root -crop "1280x1+0+$((x_top + $1))" +repage -depth 8 "txt:$line"
    awk -v colour="$2" -v which="$3" -v left="$x_left" -v from="${4:-0}" -v to="${5:-$plot_right}" '
        index($0, colour) {
            split($1, at, ","); at[1] -= left
            if (at[1] >= from && at[1] < to && (which == "last" || x == "")) x = at[1]
        }
        END { if (x == "") exit 1; print x }' "$line"
}

# plot_row N: the y at which the marks of the window's Nth row are looked for and dragged (rows count from 1): above the
# whisker, which runs through the middle of the plot.
plot_row() {
    local first_row=67 row_height=34
    echo $((first_row + ($1 - 1) * row_height + 6))
}
