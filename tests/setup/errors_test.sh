#!/usr/bin/env bash
# What the setup scripts say and do when the machine does not give them what they need. Stand-ins earlier on PATH play
# the machine: an apt-get without a network, a full disk, a user without rights.
# shellcheck disable=SC2016 # The stand-ins are scripts, expanded when they run.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
# shellcheck source=tests/setup/check.sh
. "$here/check.sh"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The scripts run from a copy, so that what they write stays away from the real build folder.
mkdir -p "$work/checkout"
cp -r "$root/tools" "$root/cmake" "$work/checkout"
setup=$work/checkout/tools/setup

# stand_in NAME: a program from standard input, in a folder that comes first on PATH.
stand_in() {
    mkdir -p "$work/bin"
    { echo '#!/bin/bash'; cat; } >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}
# with_stand_ins COMMAND...: sets output and code.
with_stand_ins() {
    code=0
    output=$(PATH=$work/bin:$PATH "$@" 2>&1) || code=$?
    rm -rf "${work:?}/bin"
}

stand_in apt-get <<<'echo "apt-get $*"; exit 100'
stand_in sudo <<<'echo "sudo $*"; exit 1'
with_stand_ins "$setup/packages.sh"
check_equal "nothing missing: no word, no apt, no network" "0 " "$code $output"

stand_in dpkg <<<'echo arm64'
with_stand_ins "$setup/packages.sh"
check_equal "another architecture is refused" 1 "$code"
check_contains "another architecture is named" "not Debian 12 on a 64-bit PC" "$output"
check_contains "another architecture: the next step" "docker run" "$output"

# xclip is missing in what follows.
missing_xclip() {
    stand_in dpkg-query <<<'[[ "$*" == *" xclip" ]] && exit 1; exec /usr/bin/dpkg-query "$@"'
}

missing_xclip
stand_in id <<<'echo 1000'
stand_in sudo <<<'exit 1'
with_stand_ins "$setup/packages.sh" </dev/null
check_equal "neither root nor sudo is an error" 1 "$code"
check_contains "neither root nor sudo: only what is absent is asked for" "run: apt-get install xclip" "$output"

missing_xclip
stand_in id <<<'echo 0'
stand_in apt-get <<<'echo "Err:1 http://deb.debian.org/debian bookworm InRelease: Temporary failure resolving"; exit 100'
with_stand_ins "$setup/packages.sh"
check_equal "no network is an error" 1 "$code"
check_contains "no network: apt's reason is shown" "Temporary failure resolving" "$output"
check_contains "no network: the next step" "check the network" "$output"

missing_xclip
stand_in id <<<'echo 0'
stand_in apt-get <<<'exit 0'
stand_in apt-cache <<<'exit 100'
with_stand_ins "$setup/packages.sh"
check_equal "an unknown package is an error" 1 "$code"
check_contains "an unknown package is named" "the package xclip cannot be had" "$output"

missing_xclip
stand_in id <<<'echo 0'
stand_in apt-cache <<<'exit 0'
stand_in apt-get <<<'[[ "$*" == *assume-no* ]] || exit 0
echo "Need to get 1,234 MB of archives."
echo "After this operation, 5,678 MB of additional disk space will be used."'
stand_in df <<<'echo Avail; echo 1300'
with_stand_ins "$setup/packages.sh"
check_equal "a full disk is an error before anything is downloaded" 1 "$code"
check_contains "a full disk: what apt needs is said" "needs 7012 MB in /usr, and only 1300 MB are free" "$output"

missing_xclip
stand_in id <<<'echo 0'
stand_in apt-cache <<<'exit 0'
stand_in apt-get <<<'[[ "$*" == *"install xclip"* ]] && [[ "$*" != *assume-no* ]] &&
    { echo "E: Failed to fetch http://deb.debian.org/x.deb  Connection timed out"; exit 100; }
exit 0'
with_stand_ins "$setup/packages.sh"
check_equal "a failing download is an error" 1 "$code"
check_contains "a failing download: apt's reason is shown" "Connection timed out" "$output"
check_contains "a failing download: the next step" "it goes on where it stopped" "$output"

tarball=boost1.81_1.81.0.orig.tar.xz
tarballs() { find "$work/cache/ky-controls" -maxdepth 1 -name '*.tar.xz'; }

# Boost.Locale, with an empty cache and an empty folder of dependencies.
boost() {
    with_stand_ins env XDG_CACHE_HOME="$work/cache" KY_DEPS_DIR="$work/deps" "$setup/boost-locale.sh"
}
stand_in apt-get <<<'[[ "$*" == *update* ]] && exit 100; exit 0'
boost
check_equal "no network for the source lists is an error" 1 "$code"
check_contains "no network for the source lists: the next step" "check the network" "$output"

# archive_with TEXT: an apt that knows the tarball, which has TEXT and its checksum.
archive_with() {
    stand_in apt-get <<<"[[ \"\$*\" == *print-uris* ]] && echo \"'http://archive/tarball' $tarball ${#1} SHA256:$(printf '%s' "$1" | sha256sum | cut -d ' ' -f 1)\"; exit 0"
}
partial=$work/cache/ky-controls/apt/partial/$tarball

stand_in apt-get <<<'exit 0'
boost
check_equal "a source package that the archive does not have is an error" 1 "$code"
check_contains "a source package that the archive does not have is named" "boost1.81" "$output"

archive_with "whole tarball"
stand_in curl <<<'while [ "$1" != --output ]; do shift; done; printf whole >"$2"; echo "curl: (18) transfer closed" >&2; exit 18'
boost
check_equal "an interrupted source download is an error" 1 "$code"
check_contains "an interrupted source download: the next step" "goes on where it broke off" "$output"
check_contains "an interrupted source download: the reason is shown" "transfer closed" "$output"
check_equal "what came of it is kept to be continued" whole "$(cat "$partial")"
check_equal "what came of it is not taken for the whole" "" "$(tarballs)"

archive_with "whole tarball"
stand_in curl <<<'[[ "$*" == *"--continue-at -"* ]] || exit 2
while [ "$1" != --output ]; do shift; done; printf " tarbell" >>"$2"'
boost
check_contains "a download with another checksum is refused" "is not what Debian has signed" "$output"
check_equal "a download with another checksum is removed" "" "$(find "$work/cache/ky-controls" -name "$tarball")"

printf whole >"$partial"
archive_with "whole tarball"
stand_in curl <<<'[[ "$*" == *"--continue-at -"* ]] || exit 2
while [ "$1" != --output ]; do shift; done; printf " tarball" >>"$2"'
boost
check_contains "a continued download is accepted" "building Boost.Locale" "$output"

stand_in df <<<'echo Avail; echo 20'
boost
check_equal "no room for the source download is an error" 1 "$code"
check_contains "no room for the source download is said" "and only 20 MB are free" "$output"

echo "not a tarball" >"$work/cache/ky-controls/$tarball"
boost
check_equal "a damaged tarball is an error" 1 "$code"
check_contains "a damaged tarball is removed" "is damaged and was removed" "$output"
check_equal "a damaged tarball is gone" "" "$(tarballs)"

# The Wine prefix.
stand_in wineboot <<<'echo "wine: could not load kernel32.dll" >&2; exit 1'
with_stand_ins "$setup/wine-prefix.sh" "$work/prefix"
check_equal "a prefix that Wine cannot make is an error" 1 "$code"
check_contains "a prefix that Wine cannot make: Wine's reason is shown" "could not load kernel32.dll" "$output"
check_equal "a half-made prefix is not taken for a whole one" no "$([ -e "$work/prefix" ] && echo yes || echo no)"

check_end
