#!/usr/bin/env bash
# Reads the .bmp file of a plot cell with ImageMagick: its size, its pixels, and nothing left over.
set -euo pipefail
folder=${1:?usage: pictures_test.sh FOLDER}
bmp=$folder/bar.BMP
ppm=$folder/bar.ppm

size=$(identify -format '%m %w %h' "bmp:$bmp")
if [ "$size" != 'BMP 400 22' ] && [ "$size" != 'BMP3 400 22' ]; then
    echo "ImageMagick reads $bmp as '$size' instead of a bitmap of 400 x 22" >&2
    exit 1
fi
# compare prints the number of pixels that differ, and fails when there are any.
if ! different=$(compare -metric AE "bmp:$bmp" "ppm:$ppm" null: 2>&1); then
    echo "$bmp and $ppm differ in $different pixels" >&2
    exit 1
fi
if convert "bmp:$bmp" null: 2>&1 | grep .; then
    echo "ImageMagick has something to say about $bmp" >&2
    exit 1
fi
echo "$bmp: $size, all pixels as expected"
