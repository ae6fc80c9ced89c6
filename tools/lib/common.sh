# shellcheck shell=bash
# What every script of this repository shares: where things are, and how it speaks to the user.
# Source it; it defines functions and paths only.
# shellcheck disable=SC2034 # The paths are for those who source it.

# A user without a home (a container's) gets one here: compilers, Wine and fontconfig keep caches in it.
if [ -z "${HOME:-}" ] || [ ! -w "$HOME" ]; then
    HOME=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/build/home
    mkdir -p "$HOME"
    export HOME
fi

ky_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
ky_build=$ky_root/build
# Libraries that are built once and shared by all build folders of a checkout.
ky_deps=${KY_DEPS_DIR:-$ky_build/deps}
# Downloads outlive a checkout: a second one needs no network.
ky_cache=${XDG_CACHE_HOME:-$HOME/.cache}/ky-controls

# ky_say TEXT: one line that tells what is done now, why, and how long it usually takes.
ky_say() {
    printf '== %s\n' "$*" >&2
}

# ky_fail TEXT NEXT-STEP: ends the script with what went wrong and what to do about it.
ky_fail() {
    printf 'error: %s\n' "$1" >&2
    if [ $# -gt 1 ]; then
        printf '       next step: %s\n' "$2" >&2
    fi
    exit 1
}

# ky_need_space FOLDER MEGABYTES PURPOSE: fails early rather than in the middle of a half-written file.
ky_need_space() {
    local folder=$1 free
    while [ ! -d "$folder" ]; do folder=$(dirname "$folder"); done
    free=$(df --output=avail -m "$folder" | tail -n 1 | tr -d ' ')
    if [ "$free" -lt "$2" ]; then
        ky_fail "$3 needs $2 MB in $folder, and only $free MB are free" \
            "free some space there (build/ in the checkout may be deleted at any time) and run this again"
    fi
}

# ky_prefix KIND: the Wine prefix of this checkout for virtual screens ('screen') or for the user's display ('desktop').
# Two, because what tests and tours leave behind in the registry is not the user's.
ky_prefix() {
    if [ "$1" = desktop ]; then
        echo "$ky_build/wineprefix-desktop"
    else
        echo "$ky_build/wineprefix"
    fi
}

# ky_windows_path FILE: the path as a program under Wine has it.
ky_windows_path() {
    local path
    path=$(realpath -m -- "$1")
    printf 'Z:%s\n' "${path//\//\\}"
}

# ky_imagemagick TOOL: the path of ImageMagick's own TOOL, whatever else has that name on PATH.
ky_imagemagick() {
    local candidate
    for candidate in "/usr/bin/$1-im6.q16" "/usr/bin/$1-im6" "/usr/bin/$1"; do
        if [ -x "$candidate" ]; then
            echo "$candidate"
            return 0
        fi
    done
    ky_fail "ImageMagick's $1 is not installed" "run ./test or ./run, which install it"
}
