# shellcheck shell=bash
# How this repository runs Wine. Source it after common.sh.

# ky_wine_environment PREFIX: the environment of every Wine process we start.
ky_wine_environment() {
    export WINEPREFIX=$1
    export WINEARCH=win64
    export WINEDEBUG=${WINEDEBUG:--all}
    # Neither .NET nor a browser engine: Wine would offer to download them.
    export WINEDLLOVERRIDES="mscoree,mshtml="
    export FONTCONFIG_FILE=$ky_root/tools/setup/fonts.conf
    export XDG_CACHE_HOME=${KY_FONT_CACHE:-$(dirname "$1")/cache}
}
