// The number cell with limits: its text, its colour, and what it takes from the user.
#include "PlotPictures.h"

#include <reportgrid/KyReportRecordItemFloat.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace {

constexpr float M = -99.0f; // no value, no limit

/// What the editor hands to a cell.
void Type(KyReportRecordItemFloat& cell, const wchar_t* text) {
    XTP_REPORTRECORDITEM_ARGS args;
    args.pItem = &cell;
    cell.OnEditChanged(&args, text);
}

std::wstring Caption(KyReportRecordItemFloat& cell) { return cell.GetCaption(nullptr).GetString(); }

/// The double that the cell keeps.
double Exact(const KyReportRecordItemFloat& cell) {
    return static_cast<const CXTPReportRecordItemNumber&>(cell).GetValue();
}

class FloatCellTest : public ProfileTest {
protected:
    /// The colour in which the cell leaves the context after its caption.
    COLORREF ColorOf(KyReportRecordItemFloat& cell, COLORREF former) {
        Surface surface(100, 30, White);
        surface.Dc().SetTextColor(former);
        XTP_REPORTRECORDITEM_DRAWARGS args;
        args.pDC = &surface.Dc();
        args.pControl = &grid;
        args.pItem = &cell;
        args.rcItem = CRect(0, 0, 100, 30);
        XTP_REPORTRECORDITEM_METRICS metrics;
        metrics.strText = cell.GetCaption(nullptr);
        cell.OnDrawCaption(&args, &metrics);
        drawn = surface.Image();
        return metrics.clrForeground;
    }
    bool IsRed(KyReportRecordItemFloat& cell) { return ColorOf(cell, Black) == Red; }

    CXTPReportControl grid;
    PixelImage drawn{1, 1, 0};
};

// --- Text -----------------------------------------------------------------------------------------------------------

TEST_F(FloatCellTest, EveryCellIsAlignedToTheRight) {
    EXPECT_EQ(KyReportRecordItemFloat(1).GetAlignment(), DT_RIGHT);
    EXPECT_EQ(KyReportRecordItemFloat(1, 2, 0).GetAlignment(), DT_RIGHT);
    EXPECT_EQ(KyReportRecordItemFloat(1, L"%.1f").GetAlignment(), DT_RIGHT);
    EXPECT_EQ(DT_RIGHT, 2);
}

TEST_F(FloatCellTest, TheNumberShowsInItsFormat) {
    KyReportRecordItemFloat general(1234567.0f);
    EXPECT_EQ(Caption(general), L"1.23457e+06") << "six significant digits";
    KyReportRecordItemFloat limited(0.5f, 1, 0);
    EXPECT_EQ(Caption(limited), L"0.5");
    KyReportRecordItemFloat fixed(1.25f, L"%.1f %%");
    EXPECT_EQ(Caption(fixed), L"1.2 %");
    KyReportRecordItemFloat small(0.00001f);
    EXPECT_EQ(Caption(small), L"1e-05");
}

TEST_F(FloatCellTest, AFormatThatDoesNotFitCountsAsGeneral) {
    for (const wchar_t* format : {L"", L"no number", L"%1% and %2%", L"%", L"%g %g"}) {
        KyReportRecordItemFloat cell(2.5f, format);
        EXPECT_EQ(Caption(cell), L"2.5") << CString(format).GetString();
    }
}

TEST_F(FloatCellTest, AMissingValueShowsTheTextForIt) {
    KyReportRecordItemFloat cell(M);
    EXPECT_EQ(Caption(cell), L"");
    cell.SetMissingRepresentation(L"\u2013");
    EXPECT_EQ(Caption(cell), L"\u2013");
    cell.SetValue(-99.0001);
    EXPECT_EQ(Caption(cell), L"-99.0001");
}

TEST_F(FloatCellTest, AnExplicitCaptionComesFirst) {
    KyReportRecordItemFloat cell(M);
    cell.SetMissingRepresentation(L"none");
    cell.SetCaption(L"caption");
    EXPECT_EQ(Caption(cell), L"caption");
}

TEST_F(FloatCellTest, TheValueIsKeptInDoublePrecisionAndToldInSingle) {
    KyReportRecordItemFloat cell(0);
    Type(cell, L"0.1");
    EXPECT_EQ(Exact(cell), 0.1);
    EXPECT_EQ(cell.GetValue(), 0.1f);
}

// --- Limits ---------------------------------------------------------------------------------------------------------

TEST_F(FloatCellTest, ValuesOutsideTheirLimitsAreRed) {
    KyReportRecordItemFloat above(5, 4, 1);
    EXPECT_TRUE(IsRed(above));
    KyReportRecordItemFloat inside(3, 4, 1);
    EXPECT_FALSE(IsRed(inside));
    KyReportRecordItemFloat below(0.5f, 4, 1);
    EXPECT_TRUE(IsRed(below));
    for (const float limit : {4.0f, 1.0f}) {
        KyReportRecordItemFloat at(limit, 4, 1);
        EXPECT_FALSE(IsRed(at)) << limit;
    }
}

TEST_F(FloatCellTest, AMissingLimitHoldsNothing) {
    KyReportRecordItemFloat noUpper(1000, M, 1), noLower(-1000, 4, M), none(1000, M, M);
    EXPECT_FALSE(IsRed(noUpper));
    EXPECT_FALSE(IsRed(noLower));
    EXPECT_FALSE(IsRed(none));
    KyReportRecordItemFloat belowLower(0, M, 1), aboveUpper(5, 4, M);
    EXPECT_TRUE(IsRed(belowLower));
    EXPECT_TRUE(IsRed(aboveUpper));
}

TEST_F(FloatCellTest, ARedLeftByAnotherCellDoesNotLeak) {
    KyReportRecordItemFloat cell(3, 4, 1);
    EXPECT_EQ(ColorOf(cell, Red), ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(ColorOf(cell, Blue), Blue) << "any other colour stays";
    KyReportRecordItemFloat red(5, 4, 1);
    EXPECT_EQ(ColorOf(red, Blue), Red);
}

TEST_F(FloatCellTest, TheCaptionIsDrawnInThatColour) {
    KyReportRecordItemFloat cell(5, 4, 1);
    cell.SetCaption(L"HHHH");
    IsRed(cell);
    int ink = 0; // smoothed letters are red throughout, more or less
    for (int y = 0; y < drawn.Height(); ++y)
        for (int x = 0; x < drawn.Width(); ++x)
            if (drawn.At(x, y) != White) {
                ++ink;
                EXPECT_EQ(GetRValue(drawn.At(x, y)), 255) << x << ", " << y;
            }
    EXPECT_GT(ink, 10);
}

TEST_F(FloatCellTest, NothingThatIsNoNumberIsWithinLimits) {
    KyReportRecordItemFloat cell(std::numeric_limits<float>::quiet_NaN(), 4, 1);
    EXPECT_TRUE(IsRed(cell));
    KyReportRecordItemFloat infinite(std::numeric_limits<float>::infinity(), 4, 1);
    EXPECT_TRUE(IsRed(infinite));
}

TEST_F(FloatCellTest, ATypedNaNIsNeitherBelowNorAboveALimit) {
    KyReportRecordItemFloat cell(5, 4, 1);
    Type(cell, L"nan");
    EXPECT_TRUE(std::isnan(cell.GetValue()));
    EXPECT_FALSE(IsRed(cell));
    Type(cell, L"inf");
    EXPECT_TRUE(IsRed(cell));
}

// --- Typed ----------------------------------------------------------------------------------------------------------

TEST_F(FloatCellTest, PercentSignsAndWhiteSpaceAreLeftOut) {
    KyReportRecordItemFloat cell(1);
    Type(cell, L"50%");
    EXPECT_EQ(cell.GetValue(), 50.0f);
    Type(cell, L" %% 6%0 % ");
    EXPECT_EQ(cell.GetValue(), 60.0f);
}

TEST_F(FloatCellTest, NothingTypedIsAMissingValueAndLeavesTheColour) {
    for (const wchar_t* text : {L"", L"  ", L"%", L" % "}) {
        KyReportRecordItemFloat cell(5, 4, 1);
        cell.SetMissingRepresentation(L"missing");
        Type(cell, text);
        EXPECT_EQ(Exact(cell), -99.0);
        EXPECT_EQ(Caption(cell), L"missing");
        EXPECT_TRUE(IsRed(cell));
    }
}

TEST_F(FloatCellTest, ATypedMissingMarkIsAValueAndLeavesTheColour) {
    KyReportRecordItemFloat cell(5, 4, 1);
    Type(cell, L" -99 ");
    EXPECT_EQ(Exact(cell), -99.0001);
    EXPECT_TRUE(IsRed(cell));
    KyReportRecordItemFloat inside(3, 4, 1);
    Type(inside, L"-99%");
    EXPECT_EQ(Exact(inside), -99.0001);
    EXPECT_FALSE(IsRed(inside));
    Type(inside, L"-99.0"); // only that very text is
    EXPECT_EQ(Exact(inside), -99.0);
}

TEST_F(FloatCellTest, ANumberOutsideTheLimitsIsKeptAndRed) {
    KyReportRecordItemFloat cell(3, 4, 1);
    Type(cell, L"0.5");
    EXPECT_EQ(cell.GetValue(), 0.5f);
    EXPECT_TRUE(IsRed(cell));
    Type(cell, L"4.5");
    EXPECT_TRUE(IsRed(cell));
    Type(cell, L"2");
    EXPECT_EQ(cell.GetValue(), 2.0f);
    EXPECT_FALSE(IsRed(cell));
}

TEST_F(FloatCellTest, ALimitThatIsTypedIsWithinIt) {
    KyReportRecordItemFloat cell(3, 10, 0.1f);
    Type(cell, L"0.1"); // less than the nearest float, which the limit is
    EXPECT_FALSE(IsRed(cell));
}

TEST_F(FloatCellTest, WhatIsNoNumberChangesNothing) {
    KyReportRecordItemFloat cell(5, 4, 1);
    for (const wchar_t* text : {L"abc", L"1.2.3", L"1 2", L"1e999", L"-"}) {
        Type(cell, text);
        EXPECT_EQ(cell.GetValue(), 5.0f) << CString(text).GetString();
        EXPECT_TRUE(IsRed(cell));
    }
}

TEST_F(FloatCellTest, BothSeparatorsAreTaken) {
    KyReportRecordItemFloat cell(0);
    Type(cell, L"1,5");
    EXPECT_EQ(cell.GetValue(), 1.5f);
    Type(cell, L"2.5");
    EXPECT_EQ(cell.GetValue(), 2.5f);
}

TEST_F(FloatCellTest, BothSeparatorsAreTakenWithADecimalCommaInTheLocale) {
    const std::string former = std::setlocale(LC_NUMERIC, nullptr);
    if (!std::setlocale(LC_NUMERIC, "German") && !std::setlocale(LC_NUMERIC, "de-DE"))
        GTEST_SKIP() << "no locale with a decimal comma here";
    KyReportRecordItemFloat cell(0);
    Type(cell, L"1,5");
    EXPECT_EQ(cell.GetValue(), 1.5f);
    Type(cell, L"2.5");
    EXPECT_EQ(cell.GetValue(), 2.5f);
    const std::wstring shown = Caption(cell);
    std::setlocale(LC_NUMERIC, former.c_str());
    EXPECT_EQ(shown, L"2.5");
}

} // namespace
