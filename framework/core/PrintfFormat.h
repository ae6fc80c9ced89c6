// PrintfFormat.h - the dialect of wide printf formats.
#pragma once

#include <string>
#include <string_view>

namespace printfformat {

/// Rewrites a format of Windows' wide printf for a C99 one: there, %s and %c take wide arguments and %S, %C, %hs and
/// %hc 8-bit ones; in C99 the plain forms take 8-bit arguments and wide ones need the length `l`. A `w` length is `l`,
/// too. Everything else stays as it is.
std::wstring ToC99(std::wstring_view format);

} // namespace printfformat
