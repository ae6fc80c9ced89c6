#!/usr/bin/env bash
# The virtual screen behaves like a person's desktop: frames, activation, mouse, keyboard, clipboard, exit codes.
# Wine's own editor is the program; what it did is read back from its file, the X clipboard and the picture.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tests/setup/check.sh
. "$here/check.sh"
# shellcheck source=tools/lib/common.sh
. "$here/../../tools/lib/common.sh"
# shellcheck source=tools/lib/x.sh
. "$ky_root/tools/lib/x.sh"

unset DISPLAY
work=$(mktemp -d)
x_out=$work
x_begin

printf 'first\r\n' >"$work/note.txt"
x_start notepad.exe "$(ky_windows_path "$work/note.txt")"
x_wait_window 'note\.txt'

x_key ctrl+End
x_type 'second'
x_key ctrl+s
check_equal "what is typed reaches the active window" $'first\r\nsecond' "$(cat "$work/note.txt")"

x_key ctrl+a ctrl+c
check_equal "the clipboard is the X screen's" $'first\nsecond' \
    "$(xclip -selection clipboard -o -t UTF8_STRING | tr -d '\r')"

left=$x_left
top=$x_top
x_drag 200 10 240 60
x_wait_window 'note\.txt'
check_equal "dragging the caption moves the window" "40 50" "$((x_left - left)) $((x_top - top))"

x_shot moved
# Inside the caption, right of the title and left of the buttons, the frame has its gradient: not the desktop's colour,
# not the white of a window without a frame.
caption=$("$(ky_imagemagick convert)" "$work/moved.png" -format "%[pixel:p{$((x_left + 300)),$((x_top + 10))}]" info:)
desktop=$("$(ky_imagemagick convert)" "$work/moved.png" -format "%[pixel:p{1270,790}]" info:)
check_equal "the desktop has its fixed colour" "srgb(37,111,149)" "$desktop"
if [ "$caption" != "$desktop" ] && [ "$caption" != "white" ] && [ "$caption" != "srgb(255,255,255)" ]; then
    passed "windows have a caption"
else
    failed "windows have a caption: its pixel is $caption"
fi

code=0
x_close 10 || code=$?
check_equal "Alt+F4 closes the program" 0 "$code"

code=0
"$ky_root/tools/wine-run" cmd.exe /c exit 42 || code=$?
check_equal "wine-run passes the exit code on" 42 "$code"
# A pipe ends with the program, although Wine's services live on.
check_equal "wine-run lets go of the caller's pipe" "hello" \
    "$(timeout 20 "$ky_root/tools/wine-run" cmd.exe /c echo hello | tr -d '\r')"

rm -rf "$work"
check_end
