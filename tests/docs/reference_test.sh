#!/usr/bin/env bash
# tools/reference finds nothing to complain about in the public headers, and complains where it should:
# reference_test.sh BUILD-FOLDER.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
# shellcheck source=tests/setup/check.sh
. "$here/../setup/check.sh"

code=0
output=$("$root/tools/reference" -o "$1/reference" 2>&1) || code=$?
if [ "$code" -eq 0 ]; then
    passed "every public and protected member of every house is documented"
else
    failed "undocumented, or documented wrongly:"
    echo "$output"
fi
if [ -s "$1/reference/html/classCWnd.html" ] && [ -s "$1/reference/html/classKyPlotRecordItem.html" ]; then
    passed "there are pages of the lowest and of the highest house"
else
    failed "there are no pages of CWnd or KyPlotRecordItem"
fi

# A house of one header, in a copy of what the command needs.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/framework/include"
cp -r "$root/tools" "$root/cmake" "$root/docs" "$root/CMakeLists.txt" "$work"

# reference_of: sets output and code, for the header on standard input.
reference_of() {
    cat >"$work/framework/include/afx.h"
    code=0
    output=$("$work/tools/reference" framework 2>&1) || code=$?
}

reference_of <<'END'
/// @file
/// A house.

/// A hut.
class Hut {
public:
    /// Lets `guests` in. @param guests their number
    void Enter(int guests);
    void Leave();

protected:
    int m_guests;

private:
    int m_secret;
};

/// Builds one.
/// @param size in metres; see @ref nowhere
/// @param colour of the walls
void Build(int size);

constexpr int huts = 1;
END
check_equal "a house with gaps fails" 1 "$code"
check_contains "a public member" "framework/include/afx.h:9: error: Member Leave()" "$output"
check_contains "a protected member" "framework/include/afx.h:12: error: Member m_guests" "$output"
check_contains "a constant outside of classes" "framework/include/afx.h:23: error: Member huts" "$output"
check_contains "a parameter that does not exist" "argument 'colour' of command @param is not found" "$output"
check_contains "a reference that leads nowhere" "'nowhere'" "$output"
if [[ $output == *m_secret* ]]; then
    failed "private members need no documentation"
else
    passed "private members need no documentation"
fi

reference_of <<'END'
/// A hut.
class Hut {};
int huts();
END
check_equal "a header without a @file comment fails" 1 "$code"
check_contains "the header is named" "framework/include/afx.h:1: has no @file comment" "$output"

reference_of <<'END'
/// @file
/// Houses.

///@{
/// Warm ones.
int huts();
int sheds();
///@}

/// @addtogroup framework
/// @{

/** @{ */
/// Cold ones.
int barns();
int stables();
/** @} */

/// @}

/** @{ */
/// Small ones.
/// @ingroup framework
int tents();
int kennels();
/** @} */
END
check_equal "words that members share, written so that Doxygen mixes them up, fail" 1 "$code"
check_contains "the short mark" "framework/include/afx.h:4: members that share their words stand between" "$output"
check_contains "inside a topic" "framework/include/afx.h:13: members that share their words cannot do so" "$output"
check_contains "naming a topic" "framework/include/afx.h:23: members that share their words cannot name" "$output"

check_end
