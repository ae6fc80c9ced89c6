# shellcheck shell=bash
# The virtual screen that belongs to a Wine prefix. Source it after common.sh and wine.sh.
#
# All programs of one prefix share one window server, one desktop and one clipboard, so they must also share one X
# screen: a prefix has exactly one. It is started by the first program that needs it, lives while any program holds it,
# and ends by itself a few seconds after the last one, together with the Wine processes of that prefix.
# Who needs a desktop of his own takes a prefix of his own.

# ky_hold_screen PREFIX: exports DISPLAY of the prefix's screen and keeps it alive until the calling shell ends.
# (The hold is a shared lock on descriptor 9; close it in children that outlive the caller.)
ky_hold_screen() {
    local prefix=$1 state
    state=$prefix/ky-screen
    exec 9>>"$prefix/ky-screen.lock"
    flock -s 9
    # Only one holder at a time looks and, if need be, starts; the keeper ends a screen only under the exclusive lock.
    exec 7>>"$prefix/ky-screen.start"
    flock 7
    if ! ky_screen_is_alive "$state"; then
        rm -f "$state"
        # Nobody's child: who ends a program that hangs, with all its children, must not end the others' screen.
        (setsid "$ky_root/tools/lib/screen-keeper" "$prefix" </dev/null >/dev/null 2>"$prefix/ky-screen.log" 7>&- 9>&- &)
        local waited=0
        until [ -s "$state" ]; do
            sleep 0.1
            waited=$((waited + 1))
            if [ "$waited" -gt 300 ]; then
                ky_fail "the virtual screen did not start within 30 s: $(tail -n 3 "$prefix/ky-screen.log")" \
                    "see $prefix/ky-screen.log"
            fi
        done
    fi
    exec 7>&-
    DISPLAY=:$(cut -d ' ' -f 2 "$state")
    export DISPLAY
    unset XAUTHORITY WAYLAND_DISPLAY
}

# ky_screen_is_alive STATE-FILE: the file holds the keeper's process id and the display number.
ky_screen_is_alive() {
    local keeper display
    [ -s "$1" ] || return 1
    read -r keeper display <"$1"
    [ -n "$display" ] && kill -0 "$keeper" 2>/dev/null &&
        grep -q screen-keeper "/proc/$keeper/cmdline" 2>/dev/null
}
