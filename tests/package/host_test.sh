#!/usr/bin/env bash
# A program outside the tree uses the installed package: host_test.sh build|run gcc|clang BUILD-FOLDER DEPS-FOLDER.
#
# build  installs into a temporary folder, takes the CMakeLists.txt and the plot cell from docs/using.md to the letter,
#        builds the minimal host, the cell and every public header alone. Needs no screen.
# run    runs the programs, and removes the folder.
# Exit code 77: there is no clang.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tests/setup/check.sh
. "$here/../setup/check.sh"
# shellcheck source=tools/lib/common.sh
. "$here/../../tools/lib/common.sh"
# shellcheck source=tools/lib/x.sh
. "$ky_root/tools/lib/x.sh"

step=$1
compiler=$2
build=$3
deps=$4
if [ "$compiler" = clang ] && ! command -v clang++ >/dev/null; then
    echo "skipped: there is no clang on this machine"
    exit 77
fi

# The folder is outside the tree, so that nothing of the tree is found by accident.
memory=$build/package-host-$compiler.folder
if [ "$step" = build ]; then
    if [ -f "$memory" ]; then
        rm -rf "$(cat "$memory")"
    fi
    mktemp -d --suffix .ky-package >"$memory"
fi
work=$(cat "$memory")
package=$work/package
host=$work/host

# run WHAT COMMAND...: shows the command's output only when it fails.
run() {
    local what=$1
    shift
    if "$@" >"$work/log" 2>&1; then
        passed "$what"
    else
        failed "$what"
        tail -n 40 "$work/log"
        exit 1
    fi
}

# documented FILE: the code block of docs/using.md that is that file.
documented() {
    awk -v mark="<!-- file: $1 -->" '$0 == mark { found = 1; next } found && /^```/ { if (open) exit; open = 1; next }
        open { print }' "$ky_root/docs/using.md"
}

# The headers that programs include: each alone (twice: a second inclusion is harmless), all in order and backwards.
# The order is enough for the second compiler.
write_header_tests() {
    local headers
    headers=$(cd "$package/include/kycontrols" && {
        find framework/include toolkit/include -name '*.h' ! -name 'afxmsg_.h' -printf '%f\n'
        cmake -DHOUSES=ky -DLIST="$work/ky_headers" -P "$ky_root/cmake/KyPublicHeaders.cmake"
        sed 's|^ky/||' "$work/ky_headers"
    } | LC_ALL=C sort)
    check_contains "the list of headers has the framework's" "afxwin.h" "$headers"
    check_contains "the list of headers has the library's" "themes/Themes.h" "$headers"
    if [ "$compiler" = gcc ]; then
        while read -r header; do
            printf '#include <%s>\n#include <%s>\n' "$header" "$header" >"$host/headers/${header//\//_}.cpp"
        done <<<"$headers"
    fi
    cat <<<"$headers" | sed 's/.*/#include <&>/' >"$host/headers/all_forwards.cpp"
    tac <<<"$headers" | sed 's/.*/#include <&>/' >"$host/headers/all_backwards.cpp"
}

write_toolchain() {
    toolchain=$ky_root/cmake/mingw-w64.cmake
    if [ "$compiler" = clang ]; then
        toolchain=$work/clang.cmake
        libraries=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
        # clang does not find the headers and libraries of Debian's GCC by itself, because of the name of their folder.
        cat >"$toolchain" <<END
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_FLAGS_INIT "-isystem $libraries/include/c++ -isystem $libraries/include/c++/x86_64-w64-mingw32")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-B$libraries -L$libraries")
END
    fi
}

build_step() {
    run "the package is installed" cmake --install "$build" --prefix "$package" --strip

    mkdir -p "$host/headers"
    documented CMakeLists.txt >"$host/CMakeLists.txt"
    documented LevelCell.h >"$host/LevelCell.h"
    cp "$ky_root/docs/examples/minimal_host.cpp" "$here/level_host.cpp" "$host"

    write_header_tests
    cat >>"$host/CMakeLists.txt" <<'END'
add_executable(level_host WIN32 level_host.cpp)
target_link_libraries(level_host PRIVATE KyControls::kyui KyControls::kyframework_main)
file(GLOB headers headers/*.cpp)
add_library(headers OBJECT ${headers})
set_target_properties(headers PROPERTIES NO_SYSTEM_FROM_IMPORTED ON) # warnings of our headers count
target_link_libraries(headers PRIVATE KyControls::kyui)
target_compile_options(headers PRIVATE -Wall -Wextra -Wno-unused-parameter -Werror -fsyntax-only
    # Null objects and operations that hide those of the base are part of the documented interface.
    "$<$<CXX_COMPILER_ID:Clang>:-Wno-tautological-undefined-compare;-Wno-overloaded-virtual>")
END
    write_toolchain
    run "find_package finds the package" cmake -G Ninja -S "$host" -B "$host/build" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_PREFIX_PATH="$package" -DKyControls_BOOST_INCLUDE_DIR="$deps/include"
    run "the host, the documented cell and every header alone compile" ninja -C "$host/build"
}

run_step() {
    unset DISPLAY
    x_out=$work
    x_begin
    local code=0
    (cd "$host/build" && timeout 60 wine level_host.exe 9>&-) || code=$?
    check_equal "the documented cell draws and drags (number of the first wrong step)" 0 "$code"
    x_start "$host/build/my_host.exe"
    x_wait_window 'Drag the bar'
    code=0
    x_close 10 || code=$?
    check_equal "the host opens its window and closes" 0 "$code"
}

"${step}_step"
if [ "$checks_failed" -ne 0 ]; then
    echo "see $work"
elif [ "$step" = run ]; then
    rm -rf "$work" "$memory"
fi
check_end
