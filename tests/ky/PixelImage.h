// Pictures as arrays of pixels: one read from a packed bitmap, one painted by a test as it expects it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

/// A picture; colours are COLORREF without the fourth byte.
class PixelImage {
public:
    PixelImage(int width, int height, COLORREF color)
        : m_width(width), m_height(height), m_pixels(static_cast<std::size_t>(width) * height, color) {}

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    COLORREF At(int x, int y) const { return m_pixels[static_cast<std::size_t>(y) * m_width + x]; }
    void Set(int x, int y, COLORREF color) { m_pixels[static_cast<std::size_t>(y) * m_width + x] = color; }

    /// Fills columns x0…x1-1 and rows y0…y1-1.
    PixelImage& Fill(int x0, int y0, int x1, int y1, COLORREF color) {
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x)
                Set(x, y, color);
        return *this;
    }

    int Count(COLORREF color, int x0, int x1) const {
        int count = 0;
        for (int y = 0; y < m_height; ++y)
            for (int x = x0; x < x1; ++x)
                count += At(x, y) == color;
        return count;
    }

    bool operator==(const PixelImage&) const = default;

    /// Reads a packed 24 or 32 bit bitmap: header, then rows from the bottom up, blue, green, red.
    static PixelImage FromPackedDib(const void* data) {
        const auto* bytes = static_cast<const std::uint8_t*>(data);
        std::int32_t width = 0, height = 0;
        std::uint16_t bits = 0;
        std::memcpy(&width, bytes + 4, 4);
        std::memcpy(&height, bytes + 8, 4);
        std::memcpy(&bits, bytes + 14, 2);
        PixelImage image(width, height, 0);
        const std::size_t stride = (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
        for (int y = 0; y < height; ++y) {
            const std::uint8_t* row = bytes + 40 + stride * (height - 1 - y);
            for (int x = 0; x < width; ++x) {
                const std::uint8_t* pixel = row + static_cast<std::size_t>(x) * (bits / 8);
                image.Set(x, y, RGB(pixel[2], pixel[1], pixel[0]));
            }
        }
        return image;
    }

    /// The picture as a binary PPM file, for programs that compare pictures.
    std::string ToPpm() const {
        std::string ppm = "P6\n" + std::to_string(m_width) + " " + std::to_string(m_height) + "\n255\n";
        for (const COLORREF color : m_pixels) {
            ppm += static_cast<char>(GetRValue(color));
            ppm += static_cast<char>(GetGValue(color));
            ppm += static_cast<char>(GetBValue(color));
        }
        return ppm;
    }

    /// Says where two pictures differ first.
    static std::string Difference(const PixelImage& actual, const PixelImage& expected) {
        if (actual.m_width != expected.m_width || actual.m_height != expected.m_height)
            return "the sizes differ";
        for (int y = 0; y < actual.m_height; ++y)
            for (int x = 0; x < actual.m_width; ++x)
                if (actual.At(x, y) != expected.At(x, y)) {
                    char text[100];
                    std::snprintf(text, sizeof(text), "at (%d, %d) 0x%06lX instead of 0x%06lX", x, y, actual.At(x, y),
                                  expected.At(x, y));
                    return text;
                }
        return {};
    }

private:
    int m_width;
    int m_height;
    std::vector<COLORREF> m_pixels;
};
