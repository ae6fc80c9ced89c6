#!/usr/bin/env bash
# Installs the Debian packages that are missing, and only those; without any it neither asks for rights nor for a network.
# packages.sh [fuzz|bench|readers]: with the argument, also what only the tool of that name needs.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/../lib/common.sh"

# One group per line: purpose, usual time on a fast network, packages. Recommended packages are not installed along, so
# those that are needed are named: Wine loads the X libraries only when they are there.
groups='
cross-compiler for Windows programs|1 min|g++-mingw-w64-x86-64-posix
build tools|30 s|cmake ninja-build ccache
native compiler, for the pure functions under sanitizers|30 s|g++ libc6-dev
clang, the second compiler for programs that use the package|20 s|clang-14
Wine, which runs the Windows programs|1 min|wine wine64 libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1 libxxf86vm1
fonts that measure like those of Windows|5 s|fonts-wine fonts-liberation fonts-dejavu-core
virtual screen with mouse, keyboard, clipboard and screenshots|20 s|xvfb xdotool xclip imagemagick
Boost headers|20 s|libboost1.81-dev
pugixml, for the version of its source and its licence|5 s|libpugixml-dev
GoogleTest, in source|5 s|googletest
gettext, which compiles the translations|10 s|gettext
Doxygen, which makes the reference pages|10 s|doxygen
source packages: continued downloads, unpacking|5 s|curl xz-utils
'
if [ "${1:-}" = fuzz ]; then
    groups+='libFuzzer and the sanitizers of clang|20 s|clang-14 libclang-rt-14-dev
'
fi
if [ "${1:-}" = bench ]; then
    groups+='programs that compute the same statistics, to compare with|20 s|datamash miller
'
fi

if [ "${1:-}" = readers ]; then
    groups+='programs that read what the export writes|2 min|python3 python3-html5lib python3-lxml chromium libreoffice-calc
'
fi

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null ||
    [ "$(dpkg --print-architecture)" != amd64 ] || ! grep -qx 'VERSION_ID="12"' /etc/os-release; then
    ky_fail "this is not Debian 12 on a 64-bit PC (x86-64), the one system on which this is built" \
        "use such a machine, or a container of it, for example: docker run -it -v \"$ky_root:/ky\" debian:12 /ky/test"
fi

missing=()
while IFS='|' read -r purpose duration packages; do
    absent=()
    for package in $packages; do
        is_installed "$package" || absent+=("$package")
    done
    if [ ${#absent[@]} -gt 0 ]; then
        ky_say "to install: ${absent[*]} - $purpose ($duration)"
        missing+=("${absent[@]}")
    fi
done <<<"$groups"
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null || ! { sudo -n true 2>/dev/null || { [ -t 0 ] && sudo -v; }; }; then
        ky_fail "installing packages needs root rights, and here is neither root nor a usable sudo" \
            "have an administrator run: apt-get install ${missing[*]}"
    fi
    as_root=(sudo)
fi

mkdir -p "$ky_build"
log=$ky_build/packages.log
: >"$log"

# apt ARGUMENT...: runs apt-get without questions; its words go to the log.
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get -q -y \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 "$@" </dev/null >>"$log" 2>&1
}

# stop TEXT NEXT-STEP: shows apt's own reason before ours.
stop() {
    grep -E '^(E|W|Err|dpkg): ?|No space left' "$log" | tail -n 5 >&2 || true
    ky_fail "$1" "$2 (the whole story is in $log)"
}

if [ -n "$(dpkg --audit)" ]; then
    ky_say "completing an installation that was interrupted (1 min)"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive dpkg --configure -a </dev/null >>"$log" 2>&1 ||
        stop "an interrupted installation could not be completed" "run 'dpkg --configure -a' as root and this again"
fi
ky_say "reading the package lists (10 s)"
apt update || stop "the package lists cannot be read" "check the network and the sources lists in /etc/apt, then run this again"

for package in "${missing[@]}"; do
    if ! apt-cache show "$package" >/dev/null 2>&1; then
        stop "the package $package cannot be had from this machine's sources" \
            "make sure that /etc/apt names the 'main' component of Debian bookworm, then run this again"
    fi
done

# apt itself tells how much it is going to need, dependencies included.
plan=$("${as_root[@]}" env LC_ALL=C apt-get -q --assume-no --no-install-recommends install "${missing[@]}" 2>/dev/null || true)
# megabytes SED-PATTERN: the number of MB that apt's plan gives, rounded up; 0 when it says nothing.
megabytes() {
    sed -nE "s/.*$1.*/\1 \2/p" <<<"$plan" | tr -d , | awk '{
        n = $1 + 0; if ($2 == "kB") n /= 1000; if ($2 == "GB") n *= 1000; printf "%d", int(n) + (n > int(n)) }'
}
download=$(megabytes 'Need to get ([0-9.,]+) (kB|MB|GB)')
unpacked=$(megabytes 'operation, ([0-9.,]+) (kB|MB|GB) of additional')
ky_need_space /var/cache/apt $((${download:-0} + 50)) "the download of packages"
ky_need_space /usr $((${download:-0} + ${unpacked:-0} + 100)) "the installation of packages"

ky_say "installing ${#missing[@]} packages and what they need: ${download:-0} MB to download, ${unpacked:-0} MB on disk (3 min at most)"
apt --no-install-recommends install "${missing[@]}" ||
    stop "the packages could not be installed" "see the reason above; run this again, it goes on where it stopped"
