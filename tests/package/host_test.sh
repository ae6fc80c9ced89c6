#!/usr/bin/env bash
# Strangers use the package: host_test.sh zip|build|run gcc|clang BUILD-FOLDER DEPS-FOLDER.
#
# zip    makes the zip, unpacks it far from the tree, in a folder with blanks and umlauts, and compares what is in it with
#        what docs/using.md says.
# build  builds what the documents tell to build, to the letter, against the unpacked package, and every header of it
#        alone and in several orders. Needs no screen.
# run    runs the programs.
#
# The folder has the same name each time, so that the compiler cache knows what was compiled there before.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tests/setup/check.sh
. "$here/../setup/check.sh"
# shellcheck source=tools/lib/common.sh
. "$here/../../tools/lib/common.sh"
# shellcheck source=tools/lib/x.sh
. "$ky_root/tools/lib/x.sh"
# shellcheck source=tools/lib/package.sh
. "$ky_root/tools/lib/package.sh"

step=$1
compiler=$2
build=$3
deps=$4

# Outside of the tree, so that nothing of it is found by accident.
work=${TMPDIR:-/tmp}/ky-package-$(id -u)-$(cksum <<<"$build" | cut -d ' ' -f 1)
unpacked="$work/Fremde für Ky"
host="$unpacked/$compiler"
name=$(basename "$(ky_package_name "$build")" .zip)
package="$unpacked/$name"
log=$work/$compiler.log

# run WHAT COMMAND...: shows the command's output only when it fails.
run() {
    local what=$1
    shift
    if "$@" >"$log" 2>&1; then
        passed "$what"
    else
        failed "$what"
        tail -n 40 "$log"
        exit 1
    fi
}

# documented DOCUMENT FILE: the code block of the document that is that file.
documented() {
    grep -qxF "<!-- file: $2 -->" "$package/share/doc/kycontrols/$1" || ky_fail "$1 does not show $2"
    awk -v mark="<!-- file: $2 -->" '$0 == mark { found = 1; next } found && /^```/ { if (open) exit; open = 1; next }
        open { print }' "$package/share/doc/kycontrols/$1"
}

# --- The zip ---------------------------------------------------------------------------------------------------------

# documented_content: one line per file or folder that docs/using.md says is in the package.
documented_content() {
    awk -F '|' '/^<!-- the package.s list/ { inside = 1; next } inside && /^$/ { exit }
        inside && $2 ~ /`/ { folder = $2; gsub(/[ `]/, "", folder); content = $3; found = 0
            while (match(content, /`[^`]*`/)) {
                print folder "/" substr(content, RSTART + 1, RLENGTH - 2); found = 1
                content = substr(content, RSTART + RLENGTH)
            }
            if (!found) print folder }' "$ky_root/docs/using.md" | grep -v 'index.html$' |
        sed 's|^lib/cmake/KyControls/find_package$|lib/cmake/KyControls|' | LC_ALL=C sort -u
}

# content: the same of the package itself, without what is inside of folders that are listed as a whole.
content() {
    (cd "$package" && find README.md bin/* lib/*.a lib/cmake/* include/kycontrols/* share/doc/kycontrols/* \
        share/doc/kycontrols/licenses/* -maxdepth 0 ! -name licenses ! -name reference | LC_ALL=C sort)
}

zip_step() {
    rm -rf "$work"
    mkdir -p "$unpacked"
    run "the zip is made" ky_make_package "$build" "$work"
    run "the zip is unpacked" cmake -E chdir "$unpacked" cmake -E tar xf "$work/$name.zip"
    check_equal "all is in one folder" "$name" "$(ls "$unpacked")"
    # The reference pages are made by tools/package, and are perhaps not there.
    check_equal "what is in it is what docs/using.md says" "$(documented_content | grep -v '/reference$')" "$(content)"
    local dll
    for dll in "$package"/bin/*.dll; do
        check_contains "$(basename "$dll") is stripped" "no symbols" "$(x86_64-w64-mingw32-objdump -t "$dll")"
    done
    check_equal "no file names a path of this machine" "" \
        "$(grep -rlaF -e "$ky_root" -e "$build" -e "$deps" "$package" || true)"
    local version=${name#KyControls-}
    version=${version%-win64}
    for dll in kyframework kytoolkit kyui; do
        # In UTF-16, as version resources have it.
        check_contains "$dll.dll says its version" "FileVersion $version" \
            "$(strings -el "$package/bin/$dll.dll" | paste -sd ' ')"
    done
    check_contains "the notice of the compiler's runtime has its exception" "GCC Runtime Library Exception" \
        "$(tr '\n' ' ' <"$package/share/doc/kycontrols/licenses/libstdc++-and-libgcc.txt")"
    check_contains "the notice of pugixml is its licence" "Permission is hereby granted, free of charge" \
        "$(cat "$package/share/doc/kycontrols/licenses/pugixml.txt")"
    check_contains "the notice of Boost is its licence" "Boost Software License - Version 1.0" \
        "$(cat "$package/share/doc/kycontrols/licenses/libboost_locale.txt")"
}

# --- The build -------------------------------------------------------------------------------------------------------

# write_header_tests: each installed header alone (twice: a second inclusion is harmless), and all of them forwards,
# backwards and in three orders that are the same each time. With g++, which takes longer, only those headers alone that
# programs include.
write_header_tests() {
    local header order
    mkdir -p "$host/headers"
    (cd "$package/include/kycontrols" && find . -name '*.h' -printf '%P\n' | LC_ALL=C sort) >"$host/headers.txt"
    check_contains "the list of headers has the framework's" "framework/include/afxwin.h" "$(cat "$host/headers.txt")"
    check_contains "the list of headers has the library's" "ky/themes/Themes.h" "$(cat "$host/headers.txt")"
    if [ "$compiler" = gcc ]; then
        grep -E '^(framework|toolkit)/include/|^ky/' "$host/headers.txt" >"$host/alone.txt"
    else
        cp "$host/headers.txt" "$host/alone.txt"
    fi
    while read -r header; do
        printf '#include "%s"\n#include "%s"\n' "$header" "$header" >"$host/headers/${header//\//_}.cpp"
    done <"$host/alone.txt"
    cp "$host/headers.txt" "$host/forwards"
    tac "$host/headers.txt" >"$host/backwards"
    for order in 1 2 3; do
        shuf --random-source=<(yes "$order") "$host/headers.txt" >"$host/shuffled_$order"
    done
    for order in forwards backwards shuffled_1 shuffled_2 shuffled_3; do
        sed 's/.*/#include "&"/' "$host/$order" >"$host/headers/all_$order.cpp"
    done
}

# A project of the documented lines, and what is tested beside them.
write_host() {
    documented using.md "$compiler.cmake" >"$host/toolchain.cmake"
    documented using.md CMakeLists.txt >"$host/CMakeLists.txt"
    cp "$package/share/doc/kycontrols/examples/minimal_host.cpp" "$host"
    cp -r "$package/share/doc/kycontrols/examples" "$host"
    cp "$here/bullet_check.cpp" "$host/examples"
    cat >>"$host/CMakeLists.txt" <<'END'
add_subdirectory(examples)
add_executable(bullet_check WIN32 examples/bullet_check.cpp)
target_link_libraries(bullet_check PRIVATE KyControls::kyui KyControls::kyframework_main)

file(GLOB headers headers/*.cpp)
add_library(headers OBJECT ${headers})
set_target_properties(headers PROPERTIES NO_SYSTEM_FROM_IMPORTED ON) # warnings of our headers count
target_include_directories(headers PRIVATE ${KyControls_DIR}/../../../include/kycontrols)
target_link_libraries(headers PRIVATE KyControls::kyui)
target_compile_options(headers PRIVATE -O0 -Wall -Wextra -Wno-unused-parameter -Werror
    # Null objects and operations that hide those of the base are part of the documented interface.
    "$<$<CXX_COMPILER_ID:Clang>:-Wno-tautological-undefined-compare;-Wno-overloaded-virtual>")
END
}

# Requests that are met and that are not. Nothing is compiled, and no Boost is there.
write_requests() {
    mkdir -p "$host/requests"
    cat >"$host/requests/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(Requests LANGUAGES NONE)
foreach(request 0.0 0.2 1.0 "0.1;COMPONENTS;kygrid")
    find_package(KyControls ${request} QUIET)
    if(KyControls_FOUND)
        message(FATAL_ERROR "a request for ${request} was met")
    endif()
endforeach()
find_package(KyControls 0.1 REQUIRED COMPONENTS kyframework kytoolkit OPTIONAL_COMPONENTS kygrid)
if(NOT TARGET KyControls::kytoolkit OR KyControls_kygrid_FOUND)
    message(FATAL_ERROR "the components that were found are not those there are")
endif()
END
}

build_step() {
    rm -rf "$host"
    mkdir -p "$host/layers" "$host/commands"
    write_header_tests
    write_host
    run "find_package finds the package" cmake -G Ninja -S "$host" -B "$host/build" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$host/toolchain.cmake" -DCMAKE_PREFIX_PATH="$package" \
        -DKyControls_BOOST_INCLUDE_DIR="$deps/include" -DCMAKE_CXX_COMPILER_LAUNCHER="$(command -v ccache)"
    run "the hosts and every header, alone and in any order, compile" ninja -C "$host/build"

    documented layers.md "layers/$compiler.sh" >"$host/commands/build.sh"
    if [ "$compiler" = clang ]; then # the settings stand with the first of the two compilers
        documented layers.md layers/gcc.sh | sed '/^x86_64/,$d' | cat - "$host/commands/build.sh" >"$host/commands/both"
        mv "$host/commands/both" "$host/commands/build.sh"
    fi
    cp "$host/examples/framework_only.cpp" "$host/commands"
    run "the commands without CMake build a program" \
        env --chdir="$host/commands" P="$package" bash -eu ./build.sh
    check_contains "they call the compiler" "hello.exe" "$(ls "$host/commands")"

    if [ "$compiler" = gcc ]; then
        write_requests
        run "other versions and unknown components are refused" \
            cmake -S "$host/requests" -B "$host/requests/build" -DCMAKE_PREFIX_PATH="$package"
        documented layers.md layers/CMakeLists.txt >"$host/layers/CMakeLists.txt"
        cp "$host/examples/framework_only.cpp" "$host/layers"
        run "the framework is found without Boost" cmake -G Ninja -S "$host/layers" -B "$host/layers/build" \
            -DCMAKE_TOOLCHAIN_FILE="$host/toolchain.cmake" -DCMAKE_PREFIX_PATH="$package"
        run "the framework alone makes a program" ninja -C "$host/layers/build"
        check_equal "beside it stands what it needs" \
            "kyframework.dll libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll" \
            "$(find "$host/layers/build" -name '*.dll' -printf '%f\n' | LC_ALL=C sort | paste -sd ' ')"
    fi
}

# --- The run ---------------------------------------------------------------------------------------------------------

# opens PROGRAM TITLE: the program opens its window, and closes with Alt+F4.
opens() {
    x_start "$1"
    x_wait_window "$2"
    local code=0
    x_close 10 || code=$?
    check_equal "$(basename "$1") opens its window and closes" 0 "$code"
}

run_step() {
    unset DISPLAY
    export LC_ALL=C.UTF-8 # the name of the folder is, whatever the machine speaks
    x_out=$work
    x_begin
    local code=0
    (cd "$host/build" && timeout 60 wine bullet_check.exe 9>&-) || code=$?
    check_equal "the documented cell draws and drags (number of the first wrong step)" 0 "$code"
    cp "$package"/bin/{kyframework,libstdc++-6,libgcc_s_seh-1,libwinpthread-1}.dll "$host/commands"
    opens "$host/commands/hello.exe" 'Framework alone'
    opens "$host/build/my_host.exe" 'Drag the bar'
    opens "$host/build/examples/readings_host.exe" 'Readings'
    if [ "$compiler" = gcc ]; then
        opens "$host/layers/build/hello.exe" 'Framework alone'
        opens "$host/build/examples/toolkit_only.exe" 'Toolkit alone'
        opens "$host/build/examples/bullet_host.exe" 'Bullet bars'
    fi
}

"${step}_step"
if [ "$checks_failed" -ne 0 ]; then
    echo "see $work"
fi
check_end
