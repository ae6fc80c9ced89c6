// The pieces of an HTML table, byte for byte.
#include "reportgrid/HtmlText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace htmltext;

TEST(HtmlText, UnitsOutsideTheSurrogatesTakeOneToThreeBytes) {
    EXPECT_EQ(ToUtf8(u""), "");
    EXPECT_EQ(ToUtf8(std::u16string_view(u"\x0000\x0001\x007F", 3)), std::string("\x00\x01\x7F", 3));
    EXPECT_EQ(ToUtf8(u"\x0080\x07FF"), "\xC2\x80\xDF\xBF");
    EXPECT_EQ(ToUtf8(u"\x0800\xD7FF\xE000\xFFFF"), "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF");
    EXPECT_EQ(ToUtf8(u"Größe"), "Gr\xC3\xB6\xC3\x9F"
                                "e");
}

TEST(HtmlText, ASurrogatePairTakesFourBytes) {
    EXPECT_EQ(ToUtf8(u"a\xD800\xDC00z"), "a\xF0\x90\x80\x80z"); // U+10000
    EXPECT_EQ(ToUtf8(u"\xD83D\xDE00"), "\xF0\x9F\x98\x80");     // U+1F600
    EXPECT_EQ(ToUtf8(u"\xDBFF\xDFFF"), "\xF4\x8F\xBF\xBF");     // U+10FFFF
}

TEST(HtmlText, ALowSurrogateAloneIsDropped) {
    EXPECT_EQ(ToUtf8(u"a\xDC00z"), "az");
    EXPECT_EQ(ToUtf8(u"\xDFFF"), "");
    EXPECT_EQ(ToUtf8(u"\xDC00\xDFFFz"), "z");
    EXPECT_EQ(ToUtf8(u"\xD800\xDC00\xDC00z"), "\xF0\x90\x80\x80z");
}

TEST(HtmlText, AHighSurrogateTakesTheUnitBehindItAlong) {
    EXPECT_EQ(ToUtf8(u"a\xD800"
                     u"bc"),
              "ac");
    EXPECT_EQ(ToUtf8(u"a\xDBFFöc"), "ac");
}

TEST(HtmlText, OfTwoHighSurrogatesTheSecondBeginsNoPair) {
    EXPECT_EQ(ToUtf8(u"a\xD800\xD801\xDC00z"), "az");
    EXPECT_EQ(ToUtf8(u"a\xD800\xD801\xD802\xDC00z"), "a\xF0\x90\xA0\x80z");
}

TEST(HtmlText, AHighSurrogateAtTheEndIsDropped) { EXPECT_EQ(ToUtf8(u"a\xD800"), "a"); }

std::string Escaped(std::string_view text) {
    std::string html = "|";
    AppendEscaped(html, text);
    return html.substr(1);
}

TEST(HtmlText, FiveCharactersBecomeEntities) {
    EXPECT_EQ(Escaped("a<b & \"c\" > 'd'"), "a&lt;b &amp; &quot;c&quot; &gt; &#39;d&#39;");
    EXPECT_EQ(Escaped("\t\n\\/;#"), "\t\n\\/;#");
}

TEST(HtmlText, AnAmpersandIsEscapedOnce) {
    EXPECT_EQ(Escaped("&"), "&amp;");
    EXPECT_EQ(Escaped("&lt;"), "&amp;lt;");
    EXPECT_EQ(Escaped("&amp;amp;"), "&amp;amp;amp;");
}

TEST(HtmlText, ColoursAreWrittenRedFirst) {
    EXPECT_EQ(ColorCode(0x0000FF), "ff0000"); // COLORREF: red is the lowest byte
    EXPECT_EQ(ColorCode(0xFF0000), "0000ff");
    EXPECT_EQ(ColorCode(0x00AB0C), "0cab00");
    EXPECT_EQ(ColorCode(0), "000000");
    EXPECT_EQ(ColorCode(0xFFFFFFFF), "ffffff");
}

TEST(HtmlText, NumbersHaveNineSignificantDigits) {
    EXPECT_EQ(FloatText(0.1f), "0.100000001");
    EXPECT_EQ(FloatText(1.0f), "1");
    EXPECT_EQ(FloatText(-2.5f), "-2.5");
    EXPECT_EQ(FloatText(1.0f / 3), "0.333333343");
    EXPECT_EQ(FloatText(123456789.0f), "123456792");
    EXPECT_EQ(FloatText(16777216.0f), "16777216");
    EXPECT_EQ(FloatText(0.0f), "0");
    EXPECT_EQ(FloatText(-0.0f), "-0");
}

TEST(HtmlText, ExponentsHaveTwoDigits) {
    EXPECT_EQ(FloatText(1e-5f), "9.99999975e-06");
    EXPECT_EQ(FloatText(1e10f), "1e+10");
    EXPECT_EQ(FloatText(std::numeric_limits<float>::max()), "3.40282347e+38");
    EXPECT_EQ(FloatText(std::numeric_limits<float>::denorm_min()), "1.40129846e-45");
}

TEST(HtmlText, WhatIsNoNumberIsNamedWithItsSign) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(FloatText(infinity), "inf");
    EXPECT_EQ(FloatText(-infinity), "-inf");
    EXPECT_EQ(FloatText(std::copysign(nan, 1.0f)), "nan");
    EXPECT_EQ(FloatText(std::copysign(nan, -1.0f)), "-nan");
}

std::string Html(const TextCell& cell) {
    std::string html = "|";
    AppendTextCell(html, cell);
    return html;
}

TEST(HtmlText, AFullCellTellsWhatIsNotDefault) {
    EXPECT_EQ(Html({.text = "x"}), "|   <td style=''>x</td>");
    EXPECT_EQ(Html({.text = "x", .background = 0x0000FF}), "|   <td style='background-color: #ff0000;'>x</td>");
    EXPECT_EQ(Html({.text = "x", .background = 0}), "|   <td style='background-color: #000000;'>x</td>");
    EXPECT_EQ(Html({.text = "x", .textColor = 0x00FF00}), "|   <td style=' color: #00ff00;'>x</td>");
    EXPECT_EQ(Html({.text = "<b>", .isBold = true}), "|   <td style=''><strong>&lt;b&gt;</strong></td>");
    EXPECT_EQ(Html({.text = "x", .background = 0x010203, .textColor = 0xFFFFFF, .alignment = 2, .isBold = true}),
              "|   <td style='background-color: #030201; text-align: right; color: #ffffff;'><strong>x</strong></td>");
}

TEST(HtmlText, OnlyCentredAndRightCellsTellTheirAlignment) {
    EXPECT_EQ(Html({.text = "x", .alignment = -1}), "|   <td style=''>x</td>");
    EXPECT_EQ(Html({.text = "x", .alignment = 0}), "|   <td style=''>x</td>");
    EXPECT_EQ(Html({.text = "x", .alignment = 1}), "|   <td style=' text-align: center;'>x</td>");
    EXPECT_EQ(Html({.text = "x", .alignment = 2}), "|   <td style=' text-align: right;'>x</td>");
    EXPECT_EQ(Html({.text = "x", .alignment = 3}), "|   <td style=''>x</td>");
}

TEST(HtmlText, AnEmptyCellTellsAlsoAWhiteBackgroundButNotABlackOne) {
    EXPECT_EQ(Html({}), "|   <td style='background-color: #ffffff;'> </td>");
    EXPECT_EQ(Html({.text = "", .background = 0x0000FF}), "|   <td style='background-color: #ff0000;'> </td>");
    EXPECT_EQ(Html({.text = "", .background = 0}), "|   <td> </td>");
    EXPECT_EQ(Html({.text = "", .textColor = 0xFF, .alignment = 2, .isBold = true}),
              "|   <td style='background-color: #ffffff;'> </td>");
}

TEST(HtmlText, AHeaderCellIsCentredUnlessItIsLeftOrRight) {
    const auto header = [](Alignment alignment) {
        std::string html;
        AppendHeaderCell(html, "a<&", alignment);
        return html;
    };
    EXPECT_EQ(header(0), "   <th style='background-color: #e6e6e6; text-align: left;'>a&lt;&amp;</th>");
    EXPECT_EQ(header(1), "   <th style='background-color: #e6e6e6; text-align: center;'>a&lt;&amp;</th>");
    EXPECT_EQ(header(2), "   <th style='background-color: #e6e6e6; text-align: right;'>a&lt;&amp;</th>");
    EXPECT_EQ(header(7), "   <th style='background-color: #e6e6e6; text-align: center;'>a&lt;&amp;</th>");
}

TEST(HtmlText, AnImageCellTellsABackgroundThatIsNotWhite) {
    const auto image = [](std::uint32_t background) {
        std::string html;
        AppendImageCell(html, "C:\\a&b_0_1.bmp", background);
        return html;
    };
    EXPECT_EQ(image(0xFFFFFF), "   <td style='padding: 0;'> <img src='C:\\a&b_0_1.bmp' border='0'/> </td>");
    EXPECT_EQ(image(0x0000FF),
              "   <td style='padding: 0; background-color: #ff0000;'> <img src='C:\\a&b_0_1.bmp' border='0'/> </td>");
}

} // namespace
