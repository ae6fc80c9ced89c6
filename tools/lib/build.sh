# shellcheck shell=bash
# Configures and builds. Source it after common.sh.

# ky_build_preset PRESET PURPOSE [TARGET...]: brings a build folder up to date.
ky_build_preset() {
    local preset=$1 purpose=$2 log=$ky_build/$1.configure.log
    shift 2
    ky_say "building $purpose (first time up to 10 min, later only what changed)"
    if [ ! -f "$ky_build/$preset/.ninja_deps" ]; then
        ky_need_space "$ky_build" 1500 "a first build"
    fi
    if ! (cd "$ky_root" && cmake --preset "$preset" -DKY_DEPS_DIR="$ky_deps") >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        ky_fail "CMake could not configure $preset" "see $log; deleting $ky_build/$preset starts anew"
    fi
    if ! cmake --build "$ky_build/$preset" --target "${@:-all}" >&2; then
        ky_need_space "$ky_build" 50 "the build of $preset"
        ky_fail "the build of $preset failed" "see the compiler's words above"
    fi
}
