// Texts with %1% places.
#include "common/MessageFormat.h"

#include <gtest/gtest.h>

#include <new>
#include <ostream>

using messageformat::Fill;

namespace {

const std::wstring Pattern = L"Value: %1%.";

std::wstring ValueText(double value) { return Fill(Pattern, Pattern, value); }

TEST(MessageFormat, NumbersHaveSixSignificantDigits) {
    EXPECT_EQ(ValueText(5.0), L"Value: 5.");
    EXPECT_EQ(ValueText(0.5), L"Value: 0.5.");
    EXPECT_EQ(ValueText(1.0 / 3.0), L"Value: 0.333333.");
    EXPECT_EQ(ValueText(1234567.0), L"Value: 1.23457e+06.");
    EXPECT_EQ(ValueText(-2.5), L"Value: -2.5.");
}

TEST(MessageFormat, ExponentsHaveTwoDigits) { EXPECT_EQ(ValueText(1e-5), L"Value: 1e-05."); }

TEST(MessageFormat, ATranslationMayReorderAndRepeatPlaces) {
    EXPECT_EQ(Fill(L"%2% vor %1%", L"%1% after %2%", 1, 2), L"2 vor 1");
    EXPECT_EQ(Fill(L"%1% (%1%)", L"%1%", std::wstring(L"a")), L"a (a)");
}

TEST(MessageFormat, ABrokenTranslationShowsTheOriginal) {
    EXPECT_EQ(Fill(L"Wert ohne Platz", Pattern, 5.0), L"Value: 5.");
    EXPECT_EQ(Fill(L"Wert: %1% %2%", Pattern, 5.0), L"Value: 5.");
    EXPECT_EQ(Fill(L"Wert: %1", Pattern, 5.0), L"Value: 5.");
    EXPECT_EQ(Fill(L"Wert: %", Pattern, 5.0), L"Value: 5.");
    EXPECT_EQ(Fill(L"", Pattern, 5.0), L"Value: 5.");
}

TEST(MessageFormat, AnOriginalThatDoesNotFitComesBackUnfilled) { EXPECT_EQ(Fill(L"%2%", L"%3%", 5.0), L"%3%"); }

/// There is no memory for its text.
struct Hungry {
    friend std::wostream& operator<<(std::wostream&, const Hungry&) { throw std::bad_alloc(); }
};

/// The first letters find room in the stream, the others do not.
struct Cut {
    friend std::wostream& operator<<(std::wostream& stream, const Cut&) {
        stream << L"12";
        stream.setstate(std::ios_base::badbit);
        return stream;
    }
};

TEST(MessageFormat, WantOfMemoryIsToldAndNeverAShorterText) {
    EXPECT_THROW(Fill(Pattern, Pattern, Hungry{}), std::bad_alloc);
    EXPECT_EQ(Fill(Pattern, Pattern, Cut{}), Pattern);
}

} // namespace
