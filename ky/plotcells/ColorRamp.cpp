// Colour gradients through hue, saturation and value.
#include "ColorRamp.h"

#include "../common/MissingValue.h"
#include "../common/TolerantCompare.h"
#include "../common/Truncation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace colorramp {
namespace {

constexpr std::uint32_t Black = 0;

std::uint32_t Channel(double channel) {
    return static_cast<std::uint32_t>(Truncate(std::floor(channel * 255.0))) & 0xFFu;
}

std::uint32_t Assemble(double red, double green, double blue) {
    return Channel(red) | Channel(green) << 8 | Channel(blue) << 16;
}

} // namespace

Hsv RgbToHsv(std::uint32_t color) {
    const double red = (color & 0xFFu) / 255.0;
    const double green = (color >> 8 & 0xFFu) / 255.0;
    const double blue = (color >> 16 & 0xFFu) / 255.0;
    const double highest = std::max({red, green, blue});
    const double lowest = std::min({red, green, blue});
    const double range = highest - lowest;

    Hsv hsv{KyMissingValue, 0.0, highest};
    if (!TolerantEqual(highest, 0.0))
        hsv.saturation = range / highest;
    if (TolerantEqual(hsv.saturation, 0.0))
        return hsv;

    double sector = 0.0;
    if (TolerantEqual(red, highest))
        sector = (green - blue) / range;
    else if (TolerantEqual(green, highest))
        sector = 2.0 + (blue - red) / range;
    else
        sector = 4.0 + (red - green) / range;
    hsv.hue = sector * 60.0;
    if (hsv.hue < 0.0)
        hsv.hue += 360.0;
    return hsv;
}

std::uint32_t HsvToRgb(const Hsv& color) {
    const double value = color.value;
    if (TolerantEqual(color.saturation, 0.0)) {
        // Intended: a colour without saturation but with a hue is not grey but black.
        return TolerantEqual(color.hue, KyMissingValue) ? Assemble(value, value, value) : Black;
    }

    const double sectors = (TolerantEqual(color.hue, 360.0) ? 0.0 : color.hue) / 60.0;
    const double sector = std::floor(sectors);
    const double rest = sectors - sector;
    const double p = value * (1.0 - color.saturation);
    const double q = value * (1.0 - rest * color.saturation);
    const double t = value * (1.0 - (1.0 - rest) * color.saturation);
    // Adding up hue steps can leave the circle by a rounding error; it then goes on at the other end.
    switch (((Truncate(sector) % 6) + 6) % 6) {
    case 0:
        return Assemble(value, t, p);
    case 1:
        return Assemble(q, value, p);
    case 2:
        return Assemble(p, value, t);
    case 3:
        return Assemble(p, q, value);
    case 4:
        return Assemble(t, p, value);
    default:
        return Assemble(value, p, q);
    }
}

void Gradient(std::uint32_t first, std::uint32_t last, std::span<std::uint32_t> colors) {
    if (colors.empty())
        return;
    colors.front() = first;
    colors.back() = last;
    const std::size_t steps = colors.size() - 1;
    if (steps <= 1)
        return;

    Hsv running = RgbToHsv(first);
    Hsv end = RgbToHsv(last);
    // A grey has no hue of its own and takes the other end's, so that the gradient does not run through foreign hues.
    if (IsMissing(running.hue))
        running.hue = IsMissing(end.hue) ? 0.0 : end.hue;
    if (IsMissing(end.hue))
        end.hue = running.hue;

    const Hsv step{(end.hue - running.hue) / static_cast<double>(steps),
                   (end.saturation - running.saturation) / static_cast<double>(steps),
                   (end.value - running.value) / static_cast<double>(steps)};
    for (std::size_t i = 1; i < steps; ++i) {
        running.saturation += step.saturation;
        running.value += step.value;
        running.hue += step.hue;
        const bool grey = std::fabs(running.saturation) < std::numeric_limits<float>::epsilon();
        colors[i] = HsvToRgb({grey ? KyMissingValue : running.hue, running.saturation, running.value});
    }
}

std::span<const std::uint32_t> SharedGradient(std::uint32_t first, std::uint32_t last, std::size_t count) {
    struct Ramp {
        std::uint32_t first = 0;
        std::uint32_t last = 0;
        std::vector<std::uint32_t> colors;
    };
    struct Kept {
        std::array<Ramp, 8> ramps;
        std::size_t oldest = 0;
        Kept() {
            for (Ramp& ramp : ramps) // all that is ever kept is taken at once
                ramp.colors.reserve(200);
        }
    };
    thread_local Kept kept;
    for (const Ramp& ramp : kept.ramps) {
        if (ramp.colors.size() == count && ramp.first == first && ramp.last == last)
            return ramp.colors;
    }
    Ramp& ramp = kept.ramps[kept.oldest];
    kept.oldest = (kept.oldest + 1) % kept.ramps.size();
    ramp.colors.assign(count, 0);
    ramp.first = first;
    ramp.last = last;
    Gradient(first, last, ramp.colors);
    return ramp.colors;
}

} // namespace colorramp
