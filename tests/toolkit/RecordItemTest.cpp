// Cells: their texts, formats, looks, comparisons, links, places; and the heap that they come from.
#include "ToolkitTestApp.h"

#include "report/RecordItemHeap.h"

#include <cmath>
#include <limits>
#include <memory>

namespace {

/// Owns an item that is in no record.
struct Release {
    void operator()(CXTPReportRecordItem* item) const { item->InternalRelease(); }
};
template <class Item>
using Owned = std::unique_ptr<Item, Release>;

Owned<CXTPReportRecordItemText> Text(const wchar_t* text) {
    return Owned<CXTPReportRecordItemText>(new CXTPReportRecordItemText(text));
}
Owned<CXTPReportRecordItemNumber> Number(double value, const wchar_t* format = L"%f") {
    return Owned<CXTPReportRecordItemNumber>(new CXTPReportRecordItemNumber(value, format));
}

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

// --- Texts -----------------------------------------------------------------------------------------------------------

TEST(RecordItem, ATextCellShowsItsText) {
    const auto item = Text(L"Grün");
    EXPECT_EQ(item->GetCaption(nullptr), L"Grün");
    EXPECT_EQ(item->GetValue(), L"Grün");
    item->SetValue(L"");
    EXPECT_EQ(item->GetCaption(nullptr), L"");
}

TEST(RecordItem, ANumberCellShowsItsNumberInItsFormat) {
    EXPECT_EQ(Number(1.5)->GetCaption(nullptr), L"1.500000");
    EXPECT_EQ(Number(1.256, L"%.2f")->GetCaption(nullptr), L"1.26");
    EXPECT_EQ(Number(0.00001, L"%g")->GetCaption(nullptr), L"1e-05");
    EXPECT_EQ(Number(12, L"%.0f %%")->GetCaption(nullptr), L"12 %");
}

TEST(RecordItem, AFormatThatReadsAnythingElseIsNotUsed) {
    EXPECT_EQ(Number(1.5, L"%s")->GetCaption(nullptr), L"1.5");
    EXPECT_EQ(Number(1.5, L"%d %f")->GetCaption(nullptr), L"1.5");
    EXPECT_EQ(Number(1.5, L"none")->GetCaption(nullptr), L"1.5");
    EXPECT_EQ(Number(1.5, nullptr)->GetCaption(nullptr), L"1.5");
    const auto text = Text(L"x");
    text->SetFormatString(L"%d");
    EXPECT_EQ(text->GetCaption(nullptr), L"x");
    EXPECT_EQ(text->GetFormatString(), L"%d");
}

TEST(RecordItem, ATextCellHasAFormatToo) {
    const auto item = Text(L"7");
    EXPECT_EQ(item->GetFormatString(), L"%s");
    item->SetFormatString(L"%s kg");
    EXPECT_EQ(item->GetCaption(nullptr), L"7 kg");
}

TEST(RecordItem, AnExplicitCaptionStandsInFrontOfTheValue) {
    const auto item = Number(1.5, L"%g");
    item->SetCaption(L"one and a half");
    item->SetValue(2.5);
    EXPECT_EQ(item->GetCaption(nullptr), L"one and a half");
    item->SetCaption(L"");
    EXPECT_EQ(item->GetCaption(nullptr), L"2.5");
    item->SetCaption(nullptr);
    EXPECT_EQ(item->GetCaption(nullptr), L"2.5");
}

TEST(RecordItem, PropertiesStartUnsetAndAreKept) {
    const auto item = Text(L"x");
    EXPECT_EQ(item->GetTextColor(), CXTPPaintManagerColor::Unset);
    EXPECT_EQ(item->GetBackgroundColor(), CXTPPaintManagerColor::Unset);
    EXPECT_FALSE(item->IsBold());
    EXPECT_EQ(item->GetAlignment(), -1);
    EXPECT_EQ(item->GetTooltip(), L"");
    EXPECT_EQ(item->GetItemData(), 0U);
    EXPECT_EQ(item->GetIndex(), -1);
    EXPECT_EQ(item->GetRecord(), nullptr);
    EXPECT_EQ(item->GetReportControl(), nullptr);
    item->SetTextColor(RGB(1, 2, 3));
    item->SetBackgroundColor(RGB(4, 5, 6));
    item->SetBold();
    item->SetAlignment(DT_RIGHT);
    item->SetTooltip(L"tip");
    item->SetItemData(42);
    EXPECT_EQ(item->GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(item->GetBackgroundColor(), RGB(4, 5, 6));
    EXPECT_TRUE(item->IsBold());
    EXPECT_EQ(item->GetAlignment(), DT_RIGHT);
    EXPECT_EQ(item->GetTooltip(), L"tip");
    EXPECT_EQ(item->GetItemData(), 42U);
}

TEST(RecordItem, CellsAreMadeByTheirRunTimeClass) {
    for (CRuntimeClass* runtimeClass :
         {RUNTIME_CLASS(CXTPReportRecordItemText), RUNTIME_CLASS(CXTPReportRecordItemNumber)}) {
        const std::size_t before = recorditemheap::LiveItems();
        auto* const item = DYNAMIC_DOWNCAST(CXTPReportRecordItem, runtimeClass->CreateObject());
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(item->IsKindOf(RUNTIME_CLASS(CXTPReportRecordItem)));
        EXPECT_EQ(recorditemheap::LiveItems(), before + 1);
        delete item;
        EXPECT_EQ(recorditemheap::LiveItems(), before);
    }
}

// --- Order -----------------------------------------------------------------------------------------------------------

TEST(RecordItem, NumbersCompareByValueWithNaNFirst) {
    EXPECT_LT(Number(2, L"%g")->Compare(nullptr, Number(10, L"%g").get()), 0) << "not as texts";
    EXPECT_GT(Number(10)->Compare(nullptr, Number(2).get()), 0);
    EXPECT_EQ(Number(-0.0)->Compare(nullptr, Number(0.0).get()), 0);
    EXPECT_LT(Number(NaN)->Compare(nullptr, Number(-INFINITY).get()), 0);
    EXPECT_GT(Number(-INFINITY)->Compare(nullptr, Number(NaN).get()), 0);
    EXPECT_EQ(Number(NaN)->Compare(nullptr, Number(NaN).get()), 0);
}

TEST(RecordItem, TextsCompareInTheLocaleWithoutRegardToCase) {
    EXPECT_EQ(Text(L"abc")->Compare(nullptr, Text(L"ABC").get()), 0);
    EXPECT_LT(Text(L"apple")->Compare(nullptr, Text(L"Banana").get()), 0);
    EXPECT_LT(Text(L"Äpfel")->Compare(nullptr, Text(L"Zebra").get()), 0) << "not by code";
    EXPECT_LT(Text(L"")->Compare(nullptr, Text(L"a").get()), 0);
}

TEST(RecordItem, DifferentKindsCompareByWhatTheyShow) {
    EXPECT_EQ(Number(5, L"%g")->Compare(nullptr, Text(L"5").get()), 0);
    EXPECT_EQ(Text(L"5")->Compare(nullptr, Number(5, L"%g").get()), 0);
}

TEST(RecordItem, EveryCellSortsBehindAMissingOne) {
    EXPECT_GT(Text(L"")->Compare(nullptr, nullptr), 0);
    EXPECT_GT(Number(NaN)->Compare(nullptr, nullptr), 0);
}

// --- Hyperlinks ------------------------------------------------------------------------------------------------------

TEST(RecordItem, HyperlinksAreHitWhereTheyWereDrawn) {
    const auto item = Text(L"see here and there");
    EXPECT_EQ(item->GetHyperlinksCount(), 0);
    EXPECT_EQ(item->HitTestHyperlink(CPoint(0, 0)), -1);
    EXPECT_EQ(item->AddHyperlink(nullptr), -1);
    EXPECT_EQ(item->AddHyperlink(new CXTPReportHyperlink(4, 4)), 0);
    EXPECT_EQ(item->AddHyperlink(new CXTPReportHyperlink(13, 5)), 1);
    EXPECT_EQ(item->HitTestHyperlink(CPoint(0, 0)), -1) << "not drawn yet";
    item->GetHyperlinkAt(0)->m_rcHyperSpot = CRect(20, 5, 40, 15);
    item->GetHyperlinkAt(1)->m_rcHyperSpot = CRect(60, 5, 80, 15);
    EXPECT_EQ(item->HitTestHyperlink(CPoint(20, 5)), 0);
    EXPECT_EQ(item->HitTestHyperlink(CPoint(79, 14)), 1);
    EXPECT_EQ(item->HitTestHyperlink(CPoint(80, 14)), -1);
    EXPECT_EQ(item->GetHyperlinkAt(2), nullptr);
    EXPECT_EQ(item->GetHyperlinkAt(-1), nullptr);
    EXPECT_EQ(item->GetHyperlinkAt(1)->m_nHyperTextBegin, 13);
}

// --- Life ------------------------------------------------------------------------------------------------------------

TEST_F(ReportModelTest, ItemsKnowTheirPlace) {
    CXTPReportRecord* const record = AddTexts(m_control, {L"a", L"b"});
    EXPECT_EQ(record->GetItemCount(), 2);
    EXPECT_EQ(record->GetItem(1)->GetIndex(), 1);
    EXPECT_EQ(record->GetItem(1)->GetRecord(), record);
    EXPECT_EQ(record->GetItem(0)->GetReportControl(), &m_control);
    EXPECT_EQ(record->GetItem(m_columnB), record->GetItem(1));
    EXPECT_EQ(record->GetItem(2), nullptr);
    EXPECT_EQ(record->GetItem(-1), nullptr);
    EXPECT_EQ(record->GetItem(static_cast<CXTPReportColumn*>(nullptr)), nullptr);
    EXPECT_EQ(record->AddItem(nullptr), nullptr);
    EXPECT_EQ(record->GetItemCount(), 2);
}

TEST_F(ReportModelTest, AHeldItemOutlivesItsRecord) {
    const std::size_t before = recorditemheap::LiveItems();
    CXTPReportRecord* const record = AddTexts(m_control, {L"a", L"b"});
    CXTPReportRecordItem* const item = record->GetItem(1);
    item->InternalAddRef();
    record->Delete();
    EXPECT_EQ(recorditemheap::LiveItems(), before + 1);
    EXPECT_EQ(item->GetRecord(), nullptr);
    EXPECT_EQ(item->GetIndex(), -1);
    EXPECT_EQ(item->GetReportControl(), nullptr);
    EXPECT_EQ(item->GetCaption(nullptr), L"b");
    item->InternalRelease();
    EXPECT_EQ(recorditemheap::LiveItems(), before);
}

TEST(RecordItemHeap, HoldsNothingAfterTheControlIsGone) {
    const auto blocks = recorditemheap::GetUsage().blocks;
    const auto items = recorditemheap::LiveItems();
    const auto records = recorditemheap::LiveRecords();
    {
        CXTPReportControl control;
        for (int i = 0; i < 100; ++i) {
            AddTexts(control, {L"a text of some length", L"b"})->GetItem(0)->SetTooltip(L"tip");
            AddNumbers(control, {1.0 * i, 2, 3})->GetItem(0)->AddHyperlink(new CXTPReportHyperlink(0, 1));
        }
        control.Populate();
        EXPECT_EQ(recorditemheap::LiveItems(), items + 500);
        EXPECT_EQ(recorditemheap::LiveRecords(), records + 200);
    }
    EXPECT_EQ(recorditemheap::LiveItems(), items);
    EXPECT_EQ(recorditemheap::LiveRecords(), records);
    // Formats are shared and kept; everything else is given back.
    EXPECT_LE(recorditemheap::GetUsage().blocks, blocks + 2);
}

TEST(RecordItemHeap, CellsAndRecordsAreSmall) {
    EXPECT_LE(sizeof(CXTPReportRecordItemText), 64U);
    EXPECT_LE(sizeof(CXTPReportRecordItemNumber), 64U);
    EXPECT_LE(sizeof(CXTPReportRecord), 64U);
}

} // namespace
