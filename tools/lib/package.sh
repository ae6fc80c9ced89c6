# shellcheck shell=bash
# Makes the zip of what a build folder has built. Source it after common.sh.

# ky_package_name BUILD-FOLDER: the name that the zip gets.
ky_package_name() {
    sed -nE 's/^set\(CPACK_PACKAGE_FILE_NAME "(.*)"\)$/\1.zip/p' "$1/CPackConfig.cmake"
}

# ky_make_package BUILD-FOLDER TARGET-FOLDER
ky_make_package() {
    local name
    name=$(ky_package_name "$1")
    cpack --config "$1/CPackConfig.cmake" -B "$2/making" >&2
    mv "$2/making/$name" "$2/"
    rm -rf "$2/making"
}
