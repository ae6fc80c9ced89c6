# shellcheck shell=bash
# What every script of this repository shares: where things are, and how it speaks to the user.
# Source it; it defines functions and paths only.

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
