// How cells compare when rows are sorted.
#pragma once

#include "../common/Export.h"

#include <afxwin.h>

namespace itemcompare {

/// The locale comparison that texts are sorted by: the user's locale, without regard to case.
constexpr DWORD TextFlags = LINGUISTIC_IGNORECASE;

int Texts(const CString& left, const CString& right);
/// A NaN comes before every number and equals another NaN.
int Numbers(double left, double right);

} // namespace itemcompare
