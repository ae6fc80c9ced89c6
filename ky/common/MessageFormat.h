/// @file
/// Texts with %1%, %2% places: a translated pattern filled with values, safe against broken translations.
#pragma once

#include <boost/format.hpp>

#include <exception>
#include <string>

namespace messageformat {

/// Fills the pattern's %1%, %2% … with the arguments as a wide stream writes them (a double with six significant
/// digits). A translated pattern whose places do not fit the arguments is replaced by the original one: a mistake in a
/// catalogue shows as an untranslated text, never as an exception. An original that does not fit comes back unfilled.
template <class... Args>
std::wstring Fill(const std::wstring& translated, const std::wstring& original, const Args&... args) {
    for (const std::wstring* pattern : {&translated, &original}) {
        try {
            boost::wformat format(*pattern);
            (format % ... % args);
            return format.str();
        } catch (const std::exception&) {
            // The next pattern is tried.
        }
    }
    return original;
}

} // namespace messageformat
