// Bytes as letters: the form of binary entries in INI files.
#include "profile/ProfileText.h"

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(ProfileText, EachByteIsItsLowAndThenItsHighHalfAsLetters) {
    const Bytes bytes{0x00, 0x1F, 0xF0, 0xAB, 0xFF};
    EXPECT_EQ(profiletext::EncodeBytes(bytes.data(), bytes.size()), L"AAPBAPLKPP");
    EXPECT_EQ(profiletext::EncodeBytes(nullptr, 0), L"");
}

TEST(ProfileText, EveryByteComesBack) {
    Bytes bytes;
    for (int value = 0; value < 256; ++value)
        bytes.push_back(static_cast<std::uint8_t>(value));
    EXPECT_EQ(profiletext::DecodeBytes(profiletext::EncodeBytes(bytes.data(), bytes.size())), bytes);
}

TEST(ProfileText, OtherTextsAreRefused) {
    EXPECT_EQ(profiletext::DecodeBytes(L""), Bytes());
    EXPECT_EQ(profiletext::DecodeBytes(L"A"), std::nullopt);
    EXPECT_EQ(profiletext::DecodeBytes(L"AQ"), std::nullopt);
    EXPECT_EQ(profiletext::DecodeBytes(L"ab"), std::nullopt);
    EXPECT_EQ(profiletext::DecodeBytes(L"@A"), std::nullopt);
    EXPECT_EQ(profiletext::DecodeBytes(L"A\x0141"), std::nullopt);
}

} // namespace
