#!/usr/bin/env bash
# Puts pugixml, which reads and writes XML for the toolkit, where the builds find it: $KY_DEPS_DIR (build/deps).
# It is linked into the toolkit's DLL. Debian has no pugixml for Windows, but its source.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/../lib/common.sh"
# shellcheck source=tools/lib/debian-source.sh
. "$ky_root/tools/lib/debian-source.sh"

recipe_folder=$ky_root/tools/setup/pugixml
tarball=pugixml_1.13.orig.tar.gz

mkdir -p "$ky_deps"
exec 8>"$ky_deps/pugixml.lock"
flock 8

recipe=$(cat "$recipe_folder/CMakeLists.txt" "$ky_root/cmake/mingw-w64.cmake" | cksum | cut -d ' ' -f 1)
stamp=$ky_deps/pugixml.recipe
if [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$recipe" ]; then
    exit 0
fi

if [ ! -f "$ky_cache/$tarball" ]; then
    ky_say "downloading the source of pugixml (1 MB, kept in $ky_cache), because Debian has it for Linux only (10 s)"
fi
version=$(dpkg-query -W -f '${source:Version}' libpugixml-dev) ||
    ky_fail "pugixml's own package, with its licence, is not installed" "run ./test or ./run, which install it"
archive=$(ky_debian_source pugixml "$version" "$tarball" 2)

ky_say "building pugixml for Windows, which reads and writes XML (10 s)"
ky_need_space "$ky_deps" 20 "pugixml"
source=$ky_deps/src/pugixml
build=$ky_deps/src/pugixml-build
log=$ky_deps/pugixml.log
rm -rf "$source" "$build"
mkdir -p "$source"
if ! tar -xzf "$archive" -C "$source" --strip-components=1; then
    rm -f "$archive"
    ky_fail "$archive is damaged and was removed" "run this again, it is downloaded anew"
fi
if ! {
    cmake -G Ninja -S "$recipe_folder" -B "$build" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$ky_root/cmake/mingw-w64.cmake" \
        -DKY_PUGIXML_SOURCE="$source" -DCMAKE_INSTALL_PREFIX="$ky_deps" &&
        ninja -C "$build" install
} >"$log" 2>&1; then
    grep -E 'error|FAILED|No space' "$log" | head -n 5 >&2 || true
    ky_fail "pugixml could not be built" "see $log"
fi
rm -rf "$source" "$build"
rmdir --ignore-fail-on-non-empty "$ky_deps/src"
printf '%s\n' "$recipe" >"$stamp"
rm -f "$log"
