// The cells of a column's share, and what the details tell of a column.
#include "window/ShareItem.h"
#include "window/ColumnDetailsDialog.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::wstring Text(KyReportRecordItemFloat& cell) { return cell.GetCaption(nullptr).GetString(); }

/// Whether the cell draws itself in red.
bool IsRed(KyReportRecordItemFloat& cell) {
    CClientDC dc(nullptr);
    dc.SetTextColor(RGB(1, 2, 3));
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &dc;
    cell.OnDrawCaption(&args, nullptr); // without a control no pixel is drawn
    return dc.GetTextColor() == RGB(255, 0, 0);
}

TEST(ShareItem, ShowsTheShareAndIsRedBelowWhatIsAskedFor) {
    ShareItem share;
    EXPECT_EQ(Text(share), L"\u2013");
    EXPECT_FALSE(IsRed(share));
    share.SetRequired(90);
    EXPECT_FALSE(IsRed(share)) << "there is none";
    share.SetShare(0.899);
    EXPECT_EQ(Text(share), L"89.9 %");
    EXPECT_TRUE(IsRed(share));
    share.SetShare(0.9);
    EXPECT_FALSE(IsRed(share));
    share.SetRequired(95);
    EXPECT_TRUE(IsRed(share));
    share.SetRequired(-99);
    EXPECT_FALSE(IsRed(share)) << "nothing is asked for";
    share.SetShare(0.00001);
    EXPECT_EQ(Text(share), L"<0.1 %");
    share.SetShare(std::nullopt);
    EXPECT_EQ(Text(share), L"\u2013");
    EXPECT_FALSE(share.IsEditable());
}

TEST(ShareItem, SortsByShareWithThoseWithoutLast) {
    ShareItem low, high, none;
    low.SetShare(0.05);
    high.SetShare(0.9);
    EXPECT_LT(low.Compare(nullptr, &high), 0);
    EXPECT_GT(high.Compare(nullptr, &low), 0);
    EXPECT_GT(none.Compare(nullptr, &low), 0);
    EXPECT_LT(high.Compare(nullptr, &none), 0);
    EXPECT_EQ(none.Compare(nullptr, &none), 0);
}

TEST(RequiredShareItem, IsNinetyPercentUntilTheUserTypesAnother) {
    float told = 0;
    RequiredShareItem required([&told](float percent) { told = percent; });
    EXPECT_EQ(Text(required), L"90 %");
    EXPECT_TRUE(required.IsEditable());
    XTP_REPORTRECORDITEM_ARGS args;
    required.OnEditChanged(&args, L"95%");
    EXPECT_EQ(told, 95.0f);
    EXPECT_EQ(Text(required), L"95 %");
    required.OnEditChanged(&args, L"97,5");
    EXPECT_EQ(told, 97.5f);
    EXPECT_FALSE(IsRed(required));
    required.OnEditChanged(&args, L"120");
    EXPECT_TRUE(IsRed(required)) << "no share is as large";
    required.OnEditChanged(&args, L"");
    EXPECT_EQ(told, -99.0f);
    EXPECT_EQ(Text(required), L"\u2013");
}

TEST(RequiredShareItem, WithoutAShareThereIsNothingToEdit) {
    RequiredShareItem required(nullptr);
    EXPECT_EQ(Text(required), L"\u2013");
    EXPECT_FALSE(required.IsEditable());
    EXPECT_FALSE(IsRed(required));
}

// --- Details --------------------------------------------------------------------------------------------------------

std::wstring ValueOf(const statistics::ColumnProfile& profile, const wchar_t* name) {
    for (const auto& [text, value] : ColumnDetails(profile)) {
        if (text == name)
            return value.GetString();
    }
    return L"(none)";
}

TEST(ColumnDetails, TellTheStatisticsOfNumbers) {
    statistics::ColumnProfile profile;
    profile.type = csv::ColumnType::Number;
    profile.count = 4;
    profile.missing = 1;
    profile.numbers = statistics::Summarize(std::vector<double>{1, 2, 3, 4});
    EXPECT_EQ(ValueOf(profile, L"Type"), L"Number");
    EXPECT_EQ(ValueOf(profile, L"Rows with a value"), L"4");
    EXPECT_EQ(ValueOf(profile, L"Rows without a value"), L"1");
    EXPECT_EQ(ValueOf(profile, L"Median"), L"2.5");
    EXPECT_EQ(ValueOf(profile, L"Lower quartile"), L"1.75");
    EXPECT_EQ(ValueOf(profile, L"Standard deviation"), L"1.29099");
    EXPECT_EQ(ValueOf(profile, L"Different values"), L"(none)");
    profile.numbers = statistics::Summarize(std::vector<double>{7});
    EXPECT_EQ(ValueOf(profile, L"Standard deviation"), L"(none)") << "of one number alone there is none";
}

TEST(ColumnDetails, TellOfDatesAndTexts) {
    statistics::ColumnProfile profile;
    profile.type = csv::ColumnType::Date;
    profile.distinct = 3;
    profile.firstDate = "2024-01-01";
    profile.lastDate = "2024-01-03";
    EXPECT_EQ(ValueOf(profile, L"Different values"), L"3");
    EXPECT_EQ(ValueOf(profile, L"Earliest"), L"2024-01-01");
    EXPECT_EQ(ValueOf(profile, L"Latest"), L"2024-01-03");
    EXPECT_EQ(ValueOf(profile, L"Mean"), L"(none)");
}

} // namespace
