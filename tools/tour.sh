#!/usr/bin/env bash
# Shows Column Profiler without a display: tour.sh PROGRAM.exe FILE.csv. Runs it on a virtual screen, uses it like a person
# with mouse and keyboard, and leaves what one would have seen in out/*.png.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/lib/common.sh"
# shellcheck source=tools/lib/x.sh
. "$ky_root/tools/lib/x.sh"

program=${1:?usage: tour.sh PROGRAM.exe FILE.csv}
file=${2:?usage: tour.sh PROGRAM.exe FILE.csv}

x_begin
x_start "$program" "$(ky_windows_path "$file")"
x_wait_window 'Column Profiler'
x_shot profiler
x_close 10
x_list_shots
