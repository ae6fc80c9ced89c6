/// @file
/// Texts with %1%, %2% places: a translated pattern filled with values, safe against broken translations.
#pragma once

#include <boost/format.hpp>

#include <exception>
#include <new>
#include <ostream>
#include <string>

namespace messageformat {

/// A value that does not lose its end in silence when the memory for its text cannot be had: streams do, unless asked.
template <class Value>
struct Whole {
    const Value& value; ///< not owned

    /// Throws when the stream fails.
    friend std::wostream& operator<<(std::wostream& stream, const Whole& whole) {
        stream.exceptions(std::ios_base::badbit);
        return stream << whole.value;
    }
};

/// Fills the pattern's %1%, %2% … with the arguments as a wide stream writes them (a double with six significant
/// digits). A translated pattern whose places do not fit the arguments is replaced by the original one: a mistake in a
/// catalogue shows as an untranslated text, never as an exception. An original that does not fit comes back unfilled.
/// Throws std::bad_alloc for want of memory.
template <class... Args>
std::wstring Fill(const std::wstring& translated, const std::wstring& original, const Args&... args) {
    for (const std::wstring* pattern : {&translated, &original}) {
        try {
            boost::wformat format(*pattern);
            (format % ... % Whole<Args>{args});
            return format.str();
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception&) {
            // The next pattern is tried.
        }
    }
    return original;
}

} // namespace messageformat
