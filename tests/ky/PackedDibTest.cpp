// The layout of packed bitmaps and .bmp files.
#include "plotcells/PackedDib.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace packeddib;

namespace {

std::vector<int> Bytes(std::uint64_t blockSize, unsigned bits) {
    const auto header = FileHeader(blockSize, bits);
    std::vector<int> bytes;
    std::transform(header.begin(), header.end(), std::back_inserter(bytes),
                   [](std::byte value) { return std::to_integer<int>(value); });
    return bytes;
}

TEST(PackedDib, OnlyUpToEightBitsHaveAColourTable) {
    EXPECT_EQ(ColorTableEntries(1), 2u);
    EXPECT_EQ(ColorTableEntries(4), 16u);
    EXPECT_EQ(ColorTableEntries(8), 256u);
    EXPECT_EQ(ColorTableEntries(16), 0u);
    EXPECT_EQ(ColorTableEntries(24), 0u);
    EXPECT_EQ(ColorTableEntries(32), 0u);
}

TEST(PackedDib, RowsArePaddedToWholeWords) {
    EXPECT_EQ(ImageSize(400, 22, 32), 400u * 22 * 4);
    EXPECT_EQ(ImageSize(3, 2, 24), 12u * 2);
    EXPECT_EQ(ImageSize(4, 2, 24), 12u * 2);
    EXPECT_EQ(ImageSize(1, 5, 1), 4u * 5);
    EXPECT_EQ(ImageSize(33, 1, 1), 8u);
}

TEST(PackedDib, TheFileHeaderIsLittleEndianAndPacked) {
    // 40 + 400 * 22 * 4 = 35240 = 0x89A8; with the file header 35254 = 0x89B6.
    EXPECT_EQ(Bytes(35240, 32), (std::vector<int>{'B', 'M', 0xB6, 0x89, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0}));
}

TEST(PackedDib, ThePixelsFollowTheColourTable) {
    // 14 + 40 + 4 * 256 = 1078 = 0x0436.
    EXPECT_EQ(Bytes(2000, 8), (std::vector<int>{'B', 'M', 0xDE, 0x07, 0, 0, 0, 0, 0, 0, 0x36, 0x04, 0, 0}));
}

} // namespace
