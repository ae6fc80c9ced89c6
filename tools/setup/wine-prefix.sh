#!/usr/bin/env bash
# Makes a Wine prefix in which programs look and measure the same on every machine.
#
#   wine-prefix.sh FOLDER [screen|desktop]
#
# screen   for virtual screens (the default): every program runs inside Wine's own virtual desktop of 1280 x 800.
#          A bare X server has no window manager: without one Wine gives top-level windows neither frame nor caption,
#          and activation follows the pointer. Its virtual desktop is a window manager inside the process group:
#          frames, captions, minimising and activation happen synchronously, as on Windows, so a test never has to
#          wait for another program's answer. (An X window manager draws frames of its own and answers later.)
# desktop  for the user's own display: windows are windows of the user's desktop.
#
# The prefix is made in a temporary folder and renamed when it is complete, so an interrupted run leaves nothing half-made.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/../lib/common.sh"
# shellcheck source=tools/lib/wine.sh
. "$ky_root/tools/lib/wine.sh"

prefix=${1:?usage: wine-prefix.sh FOLDER [screen|desktop]}
kind=${2:-screen}
case $kind in
    screen | desktop) ;;
    *) ky_fail "wine-prefix.sh knows the kinds 'screen' and 'desktop', not '$kind'" ;;
esac

# A prefix made by an older recipe is made again.
recipe="$kind $(cksum <"${BASH_SOURCE[0]}" | cut -d ' ' -f 1)"
stamp=ky-recipe

mkdir -p "$(dirname "$prefix")"
exec 8>"$prefix.lock"
flock 8
if [ -e "$prefix/$stamp" ] && [ "$(cat "$prefix/$stamp")" = "$recipe" ]; then
    exit 0
fi
command -v wine >/dev/null || ky_fail "Wine is not installed" "run ./test or ./run, which install it"

ky_say "making a Wine prefix in $prefix, so that your own Wine settings stay untouched (20 s)"
ky_need_space "$(dirname "$prefix")" 800 "a Wine prefix"

# logfont HEIGHT WEIGHT FACE: a LOGFONTW as the registry's hex bytes.
logfont() {
    local height=$1 weight=$2 face=$3 i hex
    hex=$(printf '%02x,ff,ff,ff,00,00,00,00,00,00,00,00,00,00,00,00' $((256 - height)))
    hex+=$(printf ',%02x,%02x,00,00,00,00,00,01,00,00,05,00' $((weight % 256)) $((weight / 256)))
    for ((i = 0; i < 32; i++)); do
        if [ "$i" -lt ${#face} ]; then
            hex+=$(printf ',%02x,00' "'${face:i:1}")
        else
            hex+=',00,00'
        fi
    done
    printf 'hex:%s' "$hex"
}

# settings: everything that Wine would otherwise take from the machine it runs on.
settings() {
    local ui
    ui=$(logfont 12 400 'Segoe UI')
        cat <<END
Windows Registry Editor Version 5.00

; No program may take windows, menus or files of the user's own desktop.
[HKEY_CURRENT_USER\\Software\\Wine\\DllOverrides]
"winemenubuilder.exe"=""

; Pages open in the browser of the machine. Wine says so only where it has a browser engine of its own.
[HKEY_CLASSES_ROOT\\.html]
@="htmlfile"

; Fonts: Debian's Liberation family has the widths of Arial, Times New Roman and Courier New, and stands in for
; Segoe UI; Wine's own Tahoma has the widths of Tahoma. tools/setup/fonts.conf keeps the machine's other fonts away.
[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]
"Segoe UI"="Liberation Sans"
"Segoe UI Semibold"="Liberation Sans"
"Arial"="Liberation Sans"
"Microsoft Sans Serif"="Liberation Sans"
"Helvetica"="Liberation Sans"
"Verdana"="DejaVu Sans"
"Calibri"="Liberation Sans"
"Times New Roman"="Liberation Serif"
"Courier New"="Liberation Mono"
"Consolas"="Liberation Mono"

[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\FontSubstitutes]
"MS Shell Dlg"="Tahoma"
"MS Shell Dlg 2"="Tahoma"

[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"LogPixels"=dword:00000060
"FontSmoothing"="2"
"FontSmoothingType"=dword:00000002
"FontSmoothingGamma"=dword:00000578
"FontSmoothingOrientation"=dword:00000001

[HKEY_CURRENT_CONFIG\\Software\\Fonts]
"LogPixels"=dword:00000060

; The colours of Windows itself.
[HKEY_CURRENT_USER\\Control Panel\\Colors]
"ActiveBorder"="180 180 180"
"ActiveTitle"="153 180 209"
"AppWorkSpace"="171 171 171"
"Background"="37 111 149"
"ButtonDkShadow"="105 105 105"
"ButtonFace"="240 240 240"
"ButtonHilight"="255 255 255"
"ButtonLight"="227 227 227"
"ButtonShadow"="160 160 160"
"ButtonText"="0 0 0"
"GradientActiveTitle"="185 209 234"
"GradientInactiveTitle"="215 228 242"
"GrayText"="109 109 109"
"Hilight"="0 120 215"
"HilightText"="255 255 255"
"HotTrackingColor"="0 102 204"
"InactiveBorder"="244 247 252"
"InactiveTitle"="191 205 219"
"InactiveTitleText"="0 0 0"
"InfoText"="0 0 0"
"InfoWindow"="255 255 225"
"Menu"="240 240 240"
"MenuBar"="240 240 240"
"MenuHilight"="0 120 215"
"MenuText"="0 0 0"
"Scrollbar"="200 200 200"
"TitleText"="0 0 0"
"Window"="255 255 255"
"WindowFrame"="100 100 100"
"WindowText"="0 0 0"

[HKEY_CURRENT_USER\\Control Panel\\Desktop\\WindowMetrics]
"CaptionFont"=$ui
"SmCaptionFont"=$ui
"MenuFont"=$ui
"StatusFont"=$ui
"MessageFont"=$ui
"IconFont"=$ui
END
    if [ "$kind" = screen ]; then
        cat <<'END'

[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="Default"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"Default"="1280x800"
END
    fi
}

making=$prefix.making
log=$prefix.log
# A prefix being replaced may still have its server running.
if [ -d "$prefix" ]; then
    WINEPREFIX=$prefix wineserver -k 2>/dev/null || true
    rm -rf "$prefix"
fi
rm -rf "$making"
ky_wine_environment "$making"
unset DISPLAY
if ! wineboot --init >"$log" 2>&1 8>&-; then
    ky_fail "Wine could not make its prefix; it said: $(tail -n 3 "$log")" "see $log"
fi
settings >"$making/drive_c/ky-settings.reg"
if ! wine regedit /S 'C:\ky-settings.reg' >>"$log" 2>&1 8>&-; then
    ky_fail "Wine could not take its settings; it said: $(tail -n 3 "$log")" "see $log"
fi
# Nothing in the prefix leads into the user's home folder.
for link in "$making"/drive_c/users/*/*; do
    if [ -L "$link" ]; then
        rm "$link"
        mkdir "$link"
    fi
done
rm -f "$making/dosdevices/z:.tmp"
wineserver -w 8>&-
printf '%s\n' "$recipe" >"$making/$stamp"
mv "$making" "$prefix"
rm -f "$log"
