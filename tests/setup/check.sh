# shellcheck shell=bash
# The few words that the shell tests are written in.

checks_failed=0

# passed TEXT, failed TEXT: one line of the test's report.
passed() { echo "ok      $1"; }
failed() {
    echo "FAILED  $1"
    checks_failed=$((checks_failed + 1))
}

# check_equal NAME EXPECTED ACTUAL
check_equal() {
    if [ "$2" = "$3" ]; then
        passed "$1"
    else
        failed "$1: expected '$2', got '$3'"
    fi
}

# check_contains NAME PART WHOLE
check_contains() {
    if [[ $3 == *"$2"* ]]; then
        passed "$1"
    else
        failed "$1: expected a text with '$2', got '$3'"
    fi
}

# check_end: the test's exit code.
check_end() {
    [ "$checks_failed" -eq 0 ]
}
