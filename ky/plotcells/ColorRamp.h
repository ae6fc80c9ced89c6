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

} // namespace colorramp
