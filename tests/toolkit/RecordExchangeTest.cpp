// Records and items write and read themselves, with the records below them.
#include <XTToolkitPro.h>

#include <report/RecordItemHeap.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

namespace {

/// What an object writes of itself.
template <class T>
CString Written(T& object) {
    CXTPPropExchangeXMLNode writing(FALSE, nullptr, _T("Root"));
    EXPECT_TRUE(writing.OnBeforeExchange());
    object.DoPropExchange(&writing);
    return writing.GetXML();
}

template <class T>
void Read(LPCTSTR xml, T& object) {
    CXTPPropExchangeXMLNode reading(TRUE, nullptr, _T("Root"));
    ASSERT_TRUE(reading.LoadFromString(xml));
    ASSERT_TRUE(reading.OnBeforeExchange());
    object.DoPropExchange(&reading);
}

CXTPReportRecord* NewRecord(LPCTSTR text) {
    auto* const record = new CXTPReportRecord;
    record->AddItem(new CXTPReportRecordItemText(text));
    return record;
}

CString TextOf(const CXTPReportRecord& record, int item = 0) { return record.GetItem(item)->GetCaption(nullptr); }

// --- Preview ---------------------------------------------------------------------------------------------------------

TEST(RecordExchange, ARecordWithoutAPreviewWritesNothingOfIt) {
    const std::unique_ptr<CXTPReportRecord> record(NewRecord(_T("a")));
    EXPECT_EQ(Written(*record).Find(_T("Preview")), -1);
}

TEST(RecordExchange, ARecordReadsThePreviewThatItHasWritten) {
    const std::unique_ptr<CXTPReportRecord> record(NewRecord(_T("a"))), read(NewRecord(_T("b")));
    record->SetPreviewItem(new CXTPReportRecordItemPreview(_T("below\nthe cells")));
    record->GetItemPreview()->SetTextColor(RGB(1, 2, 3));
    read->SetPreviewItem(new CXTPReportRecordItemPreview(_T("former")));
    Read(Written(*record), *read);
    ASSERT_NE(read->GetItemPreview(), nullptr);
    EXPECT_STREQ(read->GetItemPreview()->GetPreviewText(), _T("below\nthe cells"));
    EXPECT_EQ(read->GetItemPreview()->GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(read->GetItemPreview()->GetRecord(), read.get());
    EXPECT_EQ(read->GetItemCount(), 1) << "it is no cell";

    const std::unique_ptr<CXTPReportRecord> plain(NewRecord(_T("c")));
    Read(Written(*plain), *read);
    EXPECT_EQ(read->GetItemPreview(), nullptr) << "the former one goes";
}

TEST(RecordExchange, APreviewOfAClassThatNobodyCanMakeBecomesAPlainOne) {
    CXTPReportRecord read;
    Read(_T("<Root><Preview ClassName=\"CXTPReportRecord\" Text=\"t\"/></Root>"), read);
    ASSERT_NE(read.GetItemPreview(), nullptr);
    EXPECT_STREQ(read.GetItemPreview()->GetPreviewText(), _T("t"));
}

// --- Items -----------------------------------------------------------------------------------------------------------

TEST(RecordExchange, APlainItemWritesNothingButItsValue) {
    CXTPReportRecordItem item;
    EXPECT_STREQ(Written(item), L"<Root/>");
    CXTPReportRecordItemText text(_T("a"));
    EXPECT_STREQ(Written(text), L"<Root Text=\"a\"/>");
    CXTPReportRecordItemNumber number(0.0);
    EXPECT_STREQ(Written(number), L"<Root Format=\"%f\" Value=\"0\"/>");
}

TEST(RecordExchange, TheLookOfAnItemIsWritten) {
    CXTPReportRecordItemText item(_T("a"));
    item.SetCaption(_T("c"));
    item.SetTooltip(_T("t"));
    item.SetTextColor(RGB(255, 0, 0));
    item.SetBackgroundColor(RGB(0, 0, 0));
    item.SetBold();
    item.SetAlignment(DT_LEFT);
    item.SetFormatString(_T("<%s>"));
    EXPECT_STREQ(Written(item),
                 L"<Root Caption=\"c\" Tooltip=\"t\" TextColor=\"255\" BackgroundColor=\"0\" BoldText=\"1\" "
                 L"Alignment=\"0\" Text=\"a\" TextFormat=\"&lt;%s>\"/>");
}

TEST(RecordExchange, ATextItemReadsWhatItHasWritten) {
    CXTPReportRecordItemText item(_T("a\tb\xD800")), read(_T("former"));
    item.SetCaption(_T("c"));
    item.SetTooltip(_T("t"));
    item.SetTextColor(RGB(1, 2, 3));
    item.SetBackgroundColor(RGB(255, 255, 255));
    item.SetBold();
    item.SetAlignment(DT_CENTER);
    item.SetFormatString(_T("%s!"));
    Read(Written(item), read);
    EXPECT_STREQ(read.GetValue(), _T("a\tb\xD800"));
    EXPECT_STREQ(read.GetCaption(nullptr), _T("c"));
    EXPECT_STREQ(read.GetTooltip(), _T("t"));
    EXPECT_EQ(read.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(read.GetBackgroundColor(), RGB(255, 255, 255));
    EXPECT_TRUE(read.IsBold());
    EXPECT_EQ(read.GetAlignment(), DT_CENTER);
    EXPECT_STREQ(read.GetFormatString(), _T("%s!"));
}

TEST(RecordExchange, ANumberItemReadsItsValueBitByBit) {
    for (const double value : {1.0 / 3, -0.0, -99.0, std::numeric_limits<double>::infinity(), 5e-324}) {
        CXTPReportRecordItemNumber item(value, _T("%.3f kg")), read(7);
        Read(Written(item), read);
        const double back = read.GetValue();
        EXPECT_EQ(std::memcmp(&back, &value, sizeof(value)), 0) << value;
        EXPECT_STREQ(read.GetFormatString(), _T("%.3f kg"));
    }
}

TEST(RecordExchange, ReadingTakesBackWhatIsNotWritten) {
    CXTPReportRecordItemText read(_T("former"));
    read.SetCaption(_T("c"));
    read.SetTooltip(_T("t"));
    read.SetTextColor(0);
    read.SetBackgroundColor(0);
    read.SetBold();
    read.SetAlignment(DT_RIGHT);
    read.SetFormatString(_T("%s!"));
    Read(_T("<Root/>"), read);
    EXPECT_STREQ(read.GetCaption(nullptr), _T(""));
    EXPECT_STREQ(read.GetTooltip(), _T(""));
    EXPECT_EQ(read.GetTextColor(), CXTPPaintManagerColor::Unset);
    EXPECT_EQ(read.GetBackgroundColor(), CXTPPaintManagerColor::Unset);
    EXPECT_FALSE(read.IsBold());
    EXPECT_EQ(read.GetAlignment(), -1);
    EXPECT_STREQ(read.GetFormatString(), _T("%s"));
}

TEST(RecordExchange, ABrokenItemTakesDefaultsAndABrokenNumberStays) {
    CXTPReportRecordItemNumber read(7, _T("%g"));
    Read(_T("<Root Value=\"x\" TextColor=\"red\" BoldText=\"yes\" Alignment=\"1e9\" Format=\"%s%n\"/>"), read);
    EXPECT_EQ(read.GetValue(), 7);
    EXPECT_EQ(read.GetTextColor(), CXTPPaintManagerColor::Unset);
    EXPECT_FALSE(read.IsBold());
    EXPECT_EQ(read.GetAlignment(), -1);
    EXPECT_STREQ(read.GetCaption(nullptr), _T("7")) << "a format that reads anything else is not used";
}

// --- Records ---------------------------------------------------------------------------------------------------------

TEST(RecordExchange, ARecordIsItsItemsWithTheirClasses) {
    CXTPReportRecord record;
    record.AddItem(new CXTPReportRecordItemText(_T("a")));
    record.AddItem(new CXTPReportRecordItemNumber(1.5, _T("%g")));
    record.SetVisible(FALSE);
    EXPECT_STREQ(Written(record),
                 L"<Root Visible=\"0\"><Item ClassName=\"CXTPReportRecordItemText\" Text=\"a\"/>"
                 L"<Item ClassName=\"CXTPReportRecordItemNumber\" Format=\"%g\" Value=\"1.5\"/></Root>");
}

TEST(RecordExchange, ReadingReplacesTheItems) {
    const std::size_t items = recorditemheap::LiveItems();
    {
        CXTPReportRecord record, read;
        record.AddItem(new CXTPReportRecordItemText(_T("a")));
        record.AddItem(new CXTPReportRecordItemNumber(1.5, _T("%g")));
        record.AddItem(new CXTPReportRecordItem);
        read.AddItem(new CXTPReportRecordItemText(_T("former")));
        read.SetVisible(FALSE);
        Read(Written(record), read);
        EXPECT_TRUE(read.IsVisible());
        ASSERT_EQ(read.GetItemCount(), 3);
        EXPECT_STREQ(TextOf(read), _T("a"));
        ASSERT_TRUE(read.GetItem(1)->IsKindOf(RUNTIME_CLASS(CXTPReportRecordItemNumber)));
        EXPECT_STREQ(TextOf(read, 1), _T("1.5"));
        EXPECT_EQ(read.GetItem(2)->GetRuntimeClass(), RUNTIME_CLASS(CXTPReportRecordItem));
        EXPECT_EQ(read.GetItem(1)->GetRecord(), &read);
        EXPECT_EQ(read.GetItem(1)->GetIndex(), 1);
    }
    EXPECT_EQ(recorditemheap::LiveItems(), items);
}

TEST(RecordExchange, AnItemOfAClassThatNobodyCanMakeIsATextItem) {
    CXTPReportRecord read;
    Read(_T("<Root><Item Text=\"no class\"/><Item ClassName=\"Unheard\" Text=\"unknown\"/>")
         _T("<Item ClassName=\"CXTPReportRecord\" Text=\"not an item\"/><Item ClassName=\"CCmdTarget\" ")
         _T("Text=\"x\"/></Root>"),
         read);
    ASSERT_EQ(read.GetItemCount(), 4);
    EXPECT_STREQ(TextOf(read, 0), _T("no class"));
    EXPECT_STREQ(TextOf(read, 1), _T("unknown"));
    EXPECT_STREQ(TextOf(read, 2), _T("not an item"));
    EXPECT_STREQ(TextOf(read, 3), _T("x"));
}

// --- Child records ---------------------------------------------------------------------------------------------------

TEST(ChildRecords, AreOwnedByTheirRecordAndKnowIt) {
    const std::size_t records = recorditemheap::LiveRecords();
    {
        CXTPReportControl grid;
        CXTPReportRecord* const above = grid.AddRecord(NewRecord(_T("above")));
        EXPECT_FALSE(above->HasChildren());
        EXPECT_EQ(above->GetParentRecord(), nullptr);
        CXTPReportRecord* const child = above->GetChilds()->Add(NewRecord(_T("child")));
        CXTPReportRecord* const second = above->GetChilds()->Add(NewRecord(_T("second")));
        CXTPReportRecord* const grandchild = child->GetChilds()->Add(NewRecord(_T("grandchild")));
        EXPECT_TRUE(above->HasChildren());
        EXPECT_EQ(above->GetChilds()->GetCount(), 2);
        EXPECT_EQ(second->GetIndex(), 1);
        EXPECT_EQ(child->GetParentRecord(), above);
        EXPECT_EQ(grandchild->GetParentRecord(), child);
        EXPECT_EQ(grandchild->GetRecords()->GetControl(), &grid);
        EXPECT_EQ(grandchild->GetItem(0)->GetReportControl(), &grid);
        EXPECT_EQ(recorditemheap::LiveRecords(), records + 4);
        child->Delete();
        EXPECT_EQ(above->GetChilds()->GetCount(), 1);
        EXPECT_EQ(recorditemheap::LiveRecords(), records + 2);
    }
    EXPECT_EQ(recorditemheap::LiveRecords(), records);
}

TEST(ChildRecords, HaveNoRowsAndTakeNoneAway) {
    CXTPReportControl grid;
    CXTPReportRecord* const above = grid.AddRecord(NewRecord(_T("above")));
    CXTPReportRecord* const child = above->GetChilds()->Add(NewRecord(_T("child")));
    grid.Populate();
    ASSERT_EQ(grid.GetRows()->GetCount(), 1);
    EXPECT_EQ(grid.GetRows()->IndexOf(child), -1);
    above->GetChilds()->RemoveAll();
    EXPECT_EQ(grid.GetRows()->GetCount(), 1);
    EXPECT_EQ(grid.GetRows()->GetRecordAt(0), above);
}

TEST(ChildRecords, WithoutAControlHaveNone) {
    CXTPReportRecord above;
    CXTPReportRecord* const child = above.GetChilds()->Add(NewRecord(_T("child")));
    EXPECT_EQ(child->GetRecords()->GetControl(), nullptr);
    EXPECT_EQ(child->GetItem(0)->GetReportControl(), nullptr);
}

TEST(ChildRecords, AreWrittenAndReadWithTheirRecordThreeDeep) {
    CXTPReportRecord above, read;
    CXTPReportRecord* const child = above.GetChilds()->Add(NewRecord(_T("1")));
    child->GetChilds()->Add(NewRecord(_T("1.1")))->GetChilds()->Add(NewRecord(_T("1.1.1")));
    above.GetChilds()->Add(NewRecord(_T("2")))->SetVisible(FALSE);
    read.GetChilds()->Add(NewRecord(_T("former")));
    Read(Written(above), read);
    ASSERT_EQ(read.GetChilds()->GetCount(), 2);
    const CXTPReportRecord* const second = read.GetChilds()->GetAt(1);
    EXPECT_STREQ(TextOf(*second), _T("2"));
    EXPECT_FALSE(second->IsVisible());
    CXTPReportRecord* level = read.GetChilds()->GetAt(0);
    for (const wchar_t* const text : {L"1", L"1.1", L"1.1.1"}) {
        ASSERT_NE(level, nullptr);
        EXPECT_STREQ(TextOf(*level), text);
        level = level->GetChilds()->GetAt(0);
    }
    EXPECT_EQ(level, nullptr);
}

TEST(ChildRecords, ReadingWithoutAnyTakesThoseAwayThatWereThere) {
    CXTPReportRecord read;
    read.GetChilds()->Add(NewRecord(_T("former")));
    Read(_T("<Root/>"), read);
    EXPECT_FALSE(read.HasChildren());
}

TEST(RecordExchange, ACollectionReplacesItsRecords) {
    CXTPReportControl grid;
    grid.AddRecord(NewRecord(_T("a")));
    grid.AddRecord(NewRecord(_T("b")));
    CXTPReportRecords read(nullptr);
    read.Add(NewRecord(_T("former")));
    Read(Written(*grid.GetRecords()), read);
    ASSERT_EQ(read.GetCount(), 2);
    EXPECT_STREQ(TextOf(*read.GetAt(0)), _T("a"));
    EXPECT_STREQ(TextOf(*read.GetAt(1)), _T("b"));
}

TEST(RecordExchange, ADocumentAsDeepAsItMayBeIsReadAndDies) {
    std::wstring xml = L"<Root>";
    for (int level = 0; level < 512; ++level)
        xml += L"<Record>";
    for (int level = 0; level < 512; ++level)
        xml += L"</Record>";
    xml += L"</Root>";
    CXTPReportRecords read(nullptr);
    Read(xml.c_str(), read);
    int depth = 0;
    for (CXTPReportRecord* record = read.GetAt(0); record; record = record->GetChilds()->GetAt(0))
        ++depth;
    EXPECT_EQ(depth, 512);
}

} // namespace
