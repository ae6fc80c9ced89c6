/// @file
/// A length that keeps its size on monitors of any resolution.
#pragma once

#include <cstdint>
#include <limits>

/// Resolutions beyond this, in dots per inch, are no monitor's: who tells of one is broken.
constexpr int MaxDpi = 9600;

/// Pixels together with the resolution (dots per inch) for which they were set. What is shown elsewhere is worked out
/// from them anew each time, so that going to another resolution and back gives the same pixels.
/// @ingroup toolkit_report
struct DpiLength {
    int pixels = 0; ///< as set
    int dpi = 0;    ///< 0: not known yet; the length counts as it stands

    /// The length at another resolution, rounded to whole pixels and held within an int.
    constexpr int At(int otherDpi) const {
        if (dpi <= 0 || otherDpi <= 0 || otherDpi == dpi)
            return pixels;
        const std::int64_t scaled = static_cast<std::int64_t>(pixels) * otherDpi;
        const std::int64_t rounded = (scaled + (scaled < 0 ? -dpi : dpi) / 2) / dpi;
        constexpr std::int64_t lowest = std::numeric_limits<int>::min(), highest = std::numeric_limits<int>::max();
        return static_cast<int>(rounded < lowest ? lowest : rounded > highest ? highest : rounded);
    }
    bool operator==(const DpiLength&) const = default; ///< the same pixels for the same resolution
};
