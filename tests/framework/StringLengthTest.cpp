// Tests of the length prefix of archived texts.
#include "core/StringLength.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace stringlength;

namespace {

std::vector<int> BytesOf(const Prefix& prefix) {
    return {prefix.bytes.begin(), prefix.bytes.begin() + static_cast<std::ptrdiff_t>(prefix.size)};
}

struct Decoded {
    Decoder::State state = Decoder::State::Incomplete;
    std::size_t used = 0;
    std::uint64_t length = 0;
    CharacterWidth width = CharacterWidth::OneByte;
};

Decoded Decode(const std::vector<std::uint8_t>& bytes) {
    Decoder decoder;
    Decoded result;
    while (result.used < bytes.size() && result.state == Decoder::State::Incomplete)
        result.state = decoder.Feed(bytes[result.used++]);
    result.length = decoder.Length();
    result.width = decoder.Width();
    return result;
}

} // namespace

TEST(StringLength, ShortNarrowTextsHaveOneByte) {
    EXPECT_EQ(BytesOf(Encode(0, CharacterWidth::OneByte)), (std::vector<int>{0}));
    EXPECT_EQ(BytesOf(Encode(254, CharacterWidth::OneByte)), (std::vector<int>{0xFE}));
}

TEST(StringLength, WideTextsStartWithTheMark) {
    EXPECT_EQ(BytesOf(Encode(3, CharacterWidth::TwoBytes)), (std::vector<int>{0xFF, 0xFE, 0xFF, 3}));
}

TEST(StringLength, LongerTextsEscapeToAWord) {
    EXPECT_EQ(BytesOf(Encode(255, CharacterWidth::OneByte)), (std::vector<int>{0xFF, 0xFF, 0x00}));
    EXPECT_EQ(BytesOf(Encode(0xFFFD, CharacterWidth::OneByte)), (std::vector<int>{0xFF, 0xFD, 0xFF}));
}

TEST(StringLength, TheMarkAndLongerLengthsEscapeToADoubleWord) {
    EXPECT_EQ(BytesOf(Encode(0xFFFE, CharacterWidth::OneByte)),
              (std::vector<int>{0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}));
}

TEST(StringLength, LengthsOfFourGigabytesEscapeToAQuadWord) {
    EXPECT_EQ(BytesOf(Encode(0x1'0000'0000, CharacterWidth::OneByte)),
              (std::vector<int>{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 1, 0, 0, 0}));
}

TEST(StringLength, EveryPrefixIsReadBack) {
    for (const CharacterWidth width : {CharacterWidth::OneByte, CharacterWidth::TwoBytes}) {
        for (const std::uint64_t length : {0ull, 1ull, 254ull, 255ull, 256ull, 0xFFFDull, 0xFFFEull, 0xFFFFull,
                                           0xFFFFFFFEull, 0xFFFFFFFFull, 0xFFFFFFFFFFFFFFFFull}) {
            const Prefix prefix = Encode(length, width);
            const Decoded decoded = Decode({prefix.bytes.begin(), prefix.bytes.begin() + prefix.size});
            EXPECT_EQ(decoded.state, Decoder::State::Complete) << length;
            EXPECT_EQ(decoded.used, prefix.size) << length;
            EXPECT_EQ(decoded.length, length);
            EXPECT_EQ(decoded.width, width) << length;
        }
    }
}

TEST(StringLength, AMarkThatStandsTwiceIsBroken) {
    EXPECT_EQ(Decode({0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF, 1}).state, Decoder::State::Broken);
}

TEST(StringLength, ACutPrefixIsIncomplete) {
    EXPECT_EQ(Decode({0xFF}).state, Decoder::State::Incomplete);
    EXPECT_EQ(Decode({0xFF, 0xFE, 0xFF}).state, Decoder::State::Incomplete);
    EXPECT_EQ(Decode({0xFF, 0xFF, 0xFF, 1, 2, 3}).state, Decoder::State::Incomplete);
}

TEST(StringLength, RandomBytesAlwaysEndWithinTheLongestPrefix) {
    std::mt19937 random(20240611);
    for (int round = 0; round < 20000; ++round) {
        std::vector<std::uint8_t> bytes(20);
        for (std::uint8_t& byte : bytes)
            byte = random() % 3 ? static_cast<std::uint8_t>(0xFE + random() % 2) : static_cast<std::uint8_t>(random());
        EXPECT_NE(Decode(bytes).state, Decoder::State::Incomplete);
    }
}
