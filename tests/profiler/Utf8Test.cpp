// Well-formed UTF-8 and everything that is none.
#include "csv/Utf8.h"

#include <gtest/gtest.h>

namespace {

using utf8::IsValid;
using utf8::Repaired;

TEST(Utf8, CharactersOfEachLengthAreValid) {
    EXPECT_TRUE(IsValid(""));
    EXPECT_TRUE(IsValid("plain"));
    EXPECT_TRUE(IsValid("\u00E4"));
    EXPECT_TRUE(IsValid("\u20AC"));
    EXPECT_TRUE(IsValid("\U0001F427"));
    EXPECT_TRUE(IsValid("\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF"));
}

TEST(Utf8, OverlongFormsSurrogatesAndBeyondTheLastCharacterAreInvalid) {
    EXPECT_FALSE(IsValid("\xC0\xAF"));
    EXPECT_FALSE(IsValid("\xE0\x80\xAF"));
    EXPECT_FALSE(IsValid("\xF0\x80\x80\xAF"));
    EXPECT_FALSE(IsValid("\xED\xA0\x80"));
    EXPECT_FALSE(IsValid("\xF4\x90\x80\x80"));
    EXPECT_FALSE(IsValid("\xF5\x80\x80\x80"));
}

TEST(Utf8, CutAndStrayBytesAreInvalid) {
    EXPECT_FALSE(IsValid("\x80"));
    EXPECT_FALSE(IsValid("\xC3"));
    EXPECT_FALSE(IsValid("\xE2\x82"));
    EXPECT_FALSE(IsValid("\xF0\x9F\x90"));
    EXPECT_FALSE(IsValid("M\xFCller"));
}

TEST(Utf8, AZeroByteIsInvalid) { EXPECT_FALSE(IsValid(std::string_view("a\0b", 3))); }

TEST(Utf8, RepairReplacesEachWrongByteAndKeepsTheRest) {
    EXPECT_EQ(Repaired("M\xFCller"), "M\uFFFDller");
    EXPECT_EQ(Repaired("\xE2\x82"), "\uFFFD\uFFFD");
    EXPECT_EQ(Repaired("\u20AC\x80\u20AC"), "\u20AC\uFFFD\u20AC");
    EXPECT_EQ(Repaired(std::string_view("a\0b", 3)), "a\uFFFDb");
    EXPECT_EQ(Repaired("fine"), "fine");
}

} // namespace
