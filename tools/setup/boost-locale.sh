#!/usr/bin/env bash
# Puts Boost where the builds find it: boost-locale.sh, into $KY_DEPS_DIR (build/deps).
#
# include/boost            a symlink to Debian's headers. /usr/include itself must not be on a cross-compiler's path.
# bin, lib                 Boost.Locale, the one part of Boost that is compiled, as a DLL with its import library.
#                          Only one copy of it may be in a process: it owns the locale facets' identities.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/../lib/common.sh"
# shellcheck source=tools/lib/debian-source.sh
. "$ky_root/tools/lib/debian-source.sh"

recipe_folder=$ky_root/tools/setup/boost-locale
tarball=boost1.81_1.81.0.orig.tar.xz

mkdir -p "$ky_deps"
exec 8>"$ky_deps/boost.lock"
flock 8

mkdir -p "$ky_deps/include"
ln -sfn /usr/include/boost "$ky_deps/include/boost"

recipe=$(cat "$recipe_folder/CMakeLists.txt" "$ky_root/cmake/mingw-w64.cmake" | cksum | cut -d ' ' -f 1)
stamp=$ky_deps/boost-locale.recipe
if [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$recipe" ]; then
    exit 0
fi

if [ ! -f "$ky_cache/$tarball" ]; then
    ky_say "downloading the source of Boost 1.81 (74 MB, kept in $ky_cache), because Debian has no Boost.Locale for Windows (10 s on a fast network)"
fi
version=$(dpkg-query -W -f '${source:Version}' libboost1.81-dev) ||
    ky_fail "the Boost headers are not installed" "run ./test or ./run, which install them"
archive=$(ky_debian_source boost1.81 "$version" "$tarball" 80)

ky_say "building Boost.Locale for Windows, which translates every text of the library (1 min)"
ky_need_space "$ky_deps" 100 "Boost.Locale"
source=$ky_deps/src/boost-locale
build=$ky_deps/src/boost-locale-build
log=$ky_deps/boost-locale.log
rm -rf "$source" "$build"
mkdir -p "$source"
if ! tar -xJf "$archive" -C "$source" --strip-components=3 boost/libs/locale; then
    rm -f "$archive"
    ky_fail "$archive is damaged and was removed" "run this again, it is downloaded anew"
fi
if ! {
    cmake -G Ninja -S "$recipe_folder" -B "$build" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$ky_root/cmake/mingw-w64.cmake" \
        -DKY_BOOST_LOCALE_SOURCE="$source" -DKY_BOOST_INCLUDE="$ky_deps/include" \
        -DCMAKE_INSTALL_PREFIX="$ky_deps" &&
        ninja -C "$build" install
} >"$log" 2>&1; then
    grep -E 'error|FAILED|No space' "$log" | head -n 5 >&2 || true
    ky_fail "Boost.Locale could not be built" "see $log"
fi
rm -rf "$ky_deps/src"
printf '%s\n' "$recipe" >"$stamp"
rm -f "$log"
