// How cells compare when rows are sorted.
#include "ItemCompare.h"

#include <bit>
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

std::uint64_t NumberRank(double number) {
    if (std::isnan(number))
        return 0;
    // The bits of positive numbers are in order, those of negative ones in reverse order; the sum makes -0 a 0.
    constexpr std::uint64_t sign = std::uint64_t(1) << 63;
    const auto bits = std::bit_cast<std::uint64_t>(number + 0.0);
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

} // namespace itemcompare
