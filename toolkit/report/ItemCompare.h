// How cells compare when rows are sorted.
#pragma once

#include "../common/Export.h"

#include <afxwin.h>

#include <cstdint>

namespace itemcompare {

/// The locale comparison that texts are sorted by: the user's locale, without regard to case.
constexpr DWORD TextFlags = LINGUISTIC_IGNORECASE;

int Texts(const CString& left, const CString& right);
/// A NaN comes before every number and equals another NaN.
int Numbers(double left, double right);
/// A whole number for each number, in the same order: equal for equal ones, 0 for NaN.
std::uint64_t NumberRank(double number);

} // namespace itemcompare
