// The layout of packed device-independent bitmaps and of the .bmp files made of them.
#include "PackedDib.h"

namespace packeddib {

std::uint32_t ColorTableEntries(unsigned bitsPerPixel) { return bitsPerPixel <= 8 ? 1u << bitsPerPixel : 0u; }

std::uint64_t ImageSize(std::uint32_t width, std::uint32_t height, unsigned bitsPerPixel) {
    const std::uint64_t rowBits = (std::uint64_t{width} * bitsPerPixel + 31) / 32 * 32;
    return rowBits / 8 * height;
}

std::array<std::byte, FileHeaderSize> FileHeader(std::uint64_t blockSize, unsigned bitsPerPixel) {
    std::array<std::byte, FileHeaderSize> header{};
    const auto put32 = [&header](std::size_t offset, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            header[offset + i] = static_cast<std::byte>(value >> (8 * i) & 0xFFu);
    };
    header[0] = std::byte{'B'};
    header[1] = std::byte{'M'};
    put32(2, static_cast<std::uint32_t>(blockSize + FileHeaderSize));
    put32(10, FileHeaderSize + InfoHeaderSize + ColorTableEntrySize * ColorTableEntries(bitsPerPixel));
    return header;
}

} // namespace packeddib
