// Colour gradients through hue, saturation and value. Colours are 0x00BBGGRR. No window needed.
#pragma once

#include <cstdint>
#include <span>

namespace colorramp {

/// Hue in degrees 0…360, or the missing-value mark for a grey; saturation and value 0…1.
struct Hsv {
    double hue;
    double saturation;
    double value;
};

Hsv RgbToHsv(std::uint32_t color);
std::uint32_t HsvToRgb(const Hsv& color);

/// Fills `colors` with a gradient whose first and last element are exactly `first` and `last`.
void Gradient(std::uint32_t first, std::uint32_t last, std::span<std::uint32_t> colors);

/// A gradient of that many colours that was not made for this call alone: the cells of a grid mostly share theirs, and
/// the last few are kept. Valid until the thread asks for another one.
std::span<const std::uint32_t> SharedGradient(std::uint32_t first, std::uint32_t last, std::size_t count);

} // namespace colorramp
