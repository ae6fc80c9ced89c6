// The layout of packed device-independent bitmaps and of the .bmp files made of them. No window needed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace packeddib {

inline constexpr std::uint32_t InfoHeaderSize = 40;
inline constexpr std::uint32_t FileHeaderSize = 14;
inline constexpr std::uint32_t ColorTableEntrySize = 4;

/// Entries of the colour table that follows the header: 2^bits up to 8 bits per pixel, none above.
std::uint32_t ColorTableEntries(unsigned bitsPerPixel);

/// Bytes of the pixels, rows padded to whole 32-bit words.
std::uint64_t ImageSize(std::uint32_t width, std::uint32_t height, unsigned bitsPerPixel);

/// The file header that turns a packed bitmap of `blockSize` bytes into a .bmp file.
std::array<std::byte, FileHeaderSize> FileHeader(std::uint64_t blockSize, unsigned bitsPerPixel);

} // namespace packeddib
