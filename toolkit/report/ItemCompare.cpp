// How cells compare when rows are sorted.
#include "ItemCompare.h"

#include <cmath>

namespace itemcompare {

int Texts(const CString& left, const CString& right) {
    const int order = ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, TextFlags, left, left.GetLength(), right,
                                        right.GetLength(), nullptr, nullptr, 0);
    return order - CSTR_EQUAL;
}

int Numbers(double left, double right) {
    if (std::isnan(left) || std::isnan(right))
        return static_cast<int>(std::isnan(right)) - static_cast<int>(std::isnan(left));
    return left < right ? -1 : static_cast<int>(left > right);
}

} // namespace itemcompare
