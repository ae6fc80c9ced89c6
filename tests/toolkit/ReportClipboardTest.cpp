// Copy, cut and paste of rows.
#include "GridWindow.h"

#include "../support/ClipboardContent.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A control that allows cutting and pasting.
class EditableGrid : public CXTPReportControl {
public:
    BOOL CanCut() override { return mayCut; }
    BOOL CanPaste() override { return mayPaste; }
    void OnSelectionChanged() override {
        ++selectionChanges;
        CXTPReportControl::OnSelectionChanged();
    }
    BOOL mayCut = TRUE, mayPaste = TRUE;
    int selectionChanges = 0;
};

class ReportClipboard : public ::testing::Test {
protected:
    ReportClipboard() {
        owner.CreateEx(0, AfxRegisterWndClass(0), _T("owner"), WS_POPUP | WS_VISIBLE, CRect(100, 100, 500, 400),
                       nullptr, 0);
        grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 300), &owner, 1);
        for (const wchar_t* const name : {L"A", L"B", L"C"})
            grid.AddColumn(new CXTPReportColumn(grid.GetColumns()->GetCount(), name, 60));
        ClipboardContent::Clear();
    }
    ~ReportClipboard() override {
        grid.DestroyWindow();
        owner.DestroyWindow();
    }

    CXTPReportRecord* Add(std::initializer_list<const wchar_t*> texts) {
        auto* const record = new CXTPReportRecord;
        for (const wchar_t* const text : texts)
            record->AddItem(new CXTPReportRecordItemText(text));
        return grid.AddRecord(record);
    }
    void AddThree() {
        Add({L"a0", L"b0", L"c0"});
        Add({L"a1", L"b1", L"c1"});
        Add({L"a2", L"b2", L"c2"});
        grid.Populate();
    }
    void Select(std::initializer_list<int> rows) {
        grid.GetSelectedRows()->Clear();
        for (const int row : rows)
            grid.GetSelectedRows()->Add(grid.GetRows()->GetAt(row));
    }
    std::vector<int> Selected() {
        std::vector<int> rows;
        for (int i = 0; i < grid.GetSelectedRows()->GetCount(); ++i)
            rows.push_back(grid.GetSelectedRows()->GetAt(i)->GetIndex());
        return rows;
    }
    /// The texts of the records' first items, in the order of the records.
    std::vector<std::wstring> Records() {
        std::vector<std::wstring> texts;
        for (int i = 0; i < grid.GetRecords()->GetCount(); ++i) {
            const CXTPReportRecord* const record = grid.GetRecords()->GetAt(i);
            texts.emplace_back(record->GetItemCount() ? record->GetItem(0)->GetCaption(nullptr).GetString() : L"-");
        }
        return texts;
    }
    void Key(UINT key, std::initializer_list<int> down) {
        const KeysDown keys(down);
        grid.SendMessage(WM_KEYDOWN, key, 1);
    }
    static UINT RecordFormat() { return ::RegisterClipboardFormat(_T("XTP Report Records")); }

    CWnd owner;
    EditableGrid grid;
};

// --- Copy ------------------------------------------------------------------------------------------------------------

TEST_F(ReportClipboard, SelectedRowsAreCopiedAsALineEach) {
    AddThree();
    Select({0, 2});
    EXPECT_TRUE(grid.CanCopy());
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"a0\tb0\tc0\r\na2\tb2\tc2\r\n");
}

TEST_F(ReportClipboard, ColumnsAreCopiedAsTheyAreShown) {
    AddThree();
    grid.GetColumns()->GetAt(1)->SetVisible(FALSE);
    grid.GetColumns()->ChangeColumnOrder(0, 2);
    Select({1});
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"c1\ta1\r\n");
}

TEST_F(ReportClipboard, RowsAreCopiedInTheOrderInWhichTheyAreShown) {
    AddThree();
    grid.GetColumns()->SetSortColumn(grid.GetColumns()->GetAt(0), FALSE);
    grid.Populate();
    Select({0, 1});
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"a2\tb2\tc2\r\na1\tb1\tc1\r\n");
}

TEST_F(ReportClipboard, TextsThatWouldBreakTheTableAreQuoted) {
    Add({L"a\tb", L"say \"x\"", L"line\nbreak"});
    grid.Populate();
    Select({0});
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"\"a\tb\"\t\"say \"\"x\"\"\"\t\"line\nbreak\"\r\n");
}

TEST_F(ReportClipboard, CellsThatARecordDoesNotHaveAreEmpty) {
    Add({L"alone"});
    grid.Populate();
    Select({0});
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"alone\t\t\r\n");
}

TEST_F(ReportClipboard, WithoutASelectionTheClipboardStaysAsItWas) {
    AddThree();
    ClipboardContent::Put(L"kept");
    EXPECT_FALSE(grid.CanCopy());
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"kept");
}

TEST_F(ReportClipboard, AClipboardThatAnotherProgramHoldsStaysAsItWas) {
    AddThree();
    Select({0});
    ClipboardContent::Put(L"kept");
    {
        const ClipboardContent::HeldByAnother held;
        grid.Copy();
        grid.Paste();
    }
    EXPECT_EQ(ClipboardContent::Text(), L"kept");
    EXPECT_EQ(grid.GetRecords()->GetCount(), 3);
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"a0\tb0\tc0\r\n");
}

TEST_F(ReportClipboard, RowsOfVirtualModeAreCopiedAsTheyAreShown) {
    class RowText : public CXTPReportRecordItemText {
        void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override {
            CXTPReportRecordItemText::GetItemMetrics(args, metrics);
            metrics->strText.Format(_T("row %d"), args->pRow->GetIndex());
        }
    };
    auto* const record = new CXTPReportRecord;
    record->AddItem(new RowText);
    grid.SetVirtualMode(record, 10);
    grid.Populate();
    Select({3, 7});
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"row 3\t\t\r\nrow 7\t\t\r\n");
    EXPECT_EQ(ClipboardContent::Size(RecordFormat()), 0U) << "they are no records";
    grid.Cut();
    grid.Paste();
    EXPECT_EQ(grid.GetRows()->GetCount(), 10);
}

// --- Paste -----------------------------------------------------------------------------------------------------------

TEST_F(ReportClipboard, PastedRecordsStandInFrontOfTheFocusedRowAndAreSelected) {
    AddThree();
    Select({0, 1});
    grid.Copy();
    grid.SetFocusedRow(grid.GetRows()->GetAt(2));
    grid.selectionChanges = 0;
    grid.Paste();
    EXPECT_THAT(Records(), ElementsAre(L"a0", L"a1", L"a0", L"a1", L"a2"));
    EXPECT_EQ(grid.GetRows()->GetCount(), 5);
    EXPECT_THAT(Selected(), ElementsAre(2, 3));
    EXPECT_EQ(grid.GetFocusedRow()->GetIndex(), 2);
    EXPECT_EQ(grid.selectionChanges, 1);
}

TEST_F(ReportClipboard, WithoutAFocusedRowPastedRecordsStandAtTheEnd) {
    AddThree();
    Select({0});
    grid.Copy();
    grid.Paste();
    EXPECT_THAT(Records(), ElementsAre(L"a0", L"a1", L"a2", L"a0"));
}

TEST_F(ReportClipboard, RecordsComeBackWithAllTheyHave) {
    CXTPReportRecord* const record = Add({L"text"});
    record->GetItem(0)->SetBackgroundColor(RGB(255, 0, 0));
    record->AddItem(new CXTPReportRecordItemNumber(1.0 / 3, _T("%.1f")));
    record->GetChilds()->Add(new CXTPReportRecord)->AddItem(new CXTPReportRecordItemText(_T("below")));
    grid.Populate();
    Select({0});
    grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"text\t0.3\t\r\n");
    grid.Paste();
    ASSERT_EQ(grid.GetRecords()->GetCount(), 2);
    CXTPReportRecord* const pasted = grid.GetRecords()->GetAt(1);
    EXPECT_EQ(pasted->GetItem(0)->GetBackgroundColor(), RGB(255, 0, 0));
    const auto* const number = dynamic_cast<CXTPReportRecordItemNumber*>(pasted->GetItem(1));
    ASSERT_NE(number, nullptr);
    EXPECT_EQ(number->GetValue(), 1.0 / 3);
    ASSERT_EQ(pasted->GetChilds()->GetCount(), 1);
    EXPECT_STREQ(pasted->GetChilds()->GetAt(0)->GetItem(0)->GetCaption(nullptr), _T("below"));
}

TEST_F(ReportClipboard, TheLinesOfATextBecomeRecordsOfWhatIsShown) {
    grid.GetColumns()->GetAt(0)->SetVisible(FALSE); // the first item is not shown
    ClipboardContent::Put(L"x\ty\tbeyond\r\n\"tab\t\"\r\n");
    grid.Paste();
    ASSERT_EQ(grid.GetRecords()->GetCount(), 2);
    const CXTPReportRecord* const first = grid.GetRecords()->GetAt(0);
    ASSERT_EQ(first->GetItemCount(), 3);
    EXPECT_STREQ(first->GetItem(0)->GetCaption(nullptr), _T(""));
    EXPECT_STREQ(first->GetItem(1)->GetCaption(nullptr), _T("x"));
    EXPECT_STREQ(first->GetItem(2)->GetCaption(nullptr), _T("y"));
    EXPECT_STREQ(grid.GetRecords()->GetAt(1)->GetItem(1)->GetCaption(nullptr), _T("tab\t"));
    EXPECT_THAT(Selected(), ElementsAre(0, 1));
}

TEST_F(ReportClipboard, RecordsThatAreBrokenPasteNothing) {
    for (const std::wstring broken : {L"", L"x", L"<", L"<Record", L"<Record/>", L"<Records>", L"<Records/>"}) {
        ClipboardContent::Put(RecordFormat(), std::string(reinterpret_cast<const char*>(broken.data()),
                                                          broken.size() * sizeof(wchar_t))); // without a NUL
        grid.Paste();
        EXPECT_EQ(grid.GetRecords()->GetCount(), 0) << std::string(broken.begin(), broken.end());
    }
    ClipboardContent::Put(RecordFormat(), "\xFF"); // half a character
    grid.Paste();
    EXPECT_EQ(grid.GetRecords()->GetCount(), 0);
}

TEST_F(ReportClipboard, RecordsOfAnotherProgramArePastedAsFarAsTheyAreOnes) {
    const std::wstring xml =
        L"<Records><Record><Item Text=\"a\"/></Record><Other/><Record ClassName=\"CWnd\"/></Records>";
    ClipboardContent::Put(RecordFormat(),
                          std::string(reinterpret_cast<const char*>(xml.data()), xml.size() * sizeof(wchar_t)));
    grid.Paste();
    EXPECT_THAT(Records(), ElementsAre(L"a", L"-"));
}

TEST_F(ReportClipboard, AnEmptyClipboardPastesNothing) {
    AddThree();
    grid.Paste();
    EXPECT_THAT(Records(), ElementsAre(L"a0", L"a1", L"a2"));
}

TEST_F(ReportClipboard, ASortedGridShowsPastedRecordsInItsOrder) {
    AddThree();
    grid.GetColumns()->SetSortColumn(grid.GetColumns()->GetAt(0), FALSE);
    grid.Populate();
    ClipboardContent::Put(L"a9\r\na1x\r\n");
    grid.Paste();
    EXPECT_THAT(Records(), ElementsAre(L"a0", L"a1", L"a2", L"a9", L"a1x"));
    EXPECT_THAT(Selected(), ElementsAre(0, 2)) << "a9 a2 a1x a1 a0";
}

TEST_F(ReportClipboard, WithoutMultipleSelectionTheFirstPastedRowIsSelected) {
    AddThree();
    grid.SetMultipleSelection(FALSE);
    ClipboardContent::Put(L"x\r\ny\r\n");
    grid.Paste();
    EXPECT_THAT(Selected(), ElementsAre(3));
}

// --- Cut -------------------------------------------------------------------------------------------------------------

TEST_F(ReportClipboard, CutRecordsGoToTheClipboard) {
    AddThree();
    Select({0, 2});
    grid.selectionChanges = 0;
    grid.Cut();
    EXPECT_THAT(Records(), ElementsAre(L"a1"));
    EXPECT_EQ(grid.GetRows()->GetCount(), 1);
    EXPECT_EQ(ClipboardContent::Text(), L"a0\tb0\tc0\r\na2\tb2\tc2\r\n");
    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_EQ(grid.selectionChanges, 1);
    grid.Paste();
    EXPECT_EQ(grid.GetRecords()->GetCount(), 3);
}

TEST_F(ReportClipboard, RowsCutHereAndThereLeaveTheOthersAsTheyAre) {
    for (int i = 0; i < 30; ++i) {
        CString text;
        text.Format(_T("a%d"), i);
        Add({text});
    }
    grid.Populate();
    std::vector<CXTPReportRow*> others;
    for (const int row : {0, 1, 4, 6, 8, 29})
        others.push_back(grid.GetRows()->GetAt(row));
    grid.SetFocusedRow(grid.GetRows()->GetAt(7));
    grid.SetTopRow(7);
    const int top = grid.GetTopRowIndex();
    Select({2, 3, 5, 7});
    grid.Cut();
    EXPECT_EQ(grid.GetRecords()->GetCount(), 26);
    ASSERT_EQ(grid.GetRows()->GetCount(), 26);
    std::vector<int> places;
    for (const CXTPReportRow* const row : others) {
        ASSERT_EQ(row->GetControl(), &grid) << "the objects of the other rows stay";
        EXPECT_EQ(grid.GetRows()->GetAt(row->GetIndex()), row);
        places.push_back(row->GetIndex());
    }
    EXPECT_THAT(places, ElementsAre(0, 1, 2, 3, 4, 25));
    EXPECT_EQ(grid.GetFocusedRow(), grid.GetRows()->GetAt(4)) << "the one that takes its place";
    EXPECT_EQ(grid.GetTopRowIndex(), top - 3);
    EXPECT_THAT(Selected(), IsEmpty());
    for (int i = 0; i < 26; ++i) {
        EXPECT_EQ(grid.GetRows()->GetAt(i)->GetRecord(), grid.GetRecords()->GetAt(i)) << i;
        EXPECT_EQ(grid.GetRecords()->GetAt(i)->GetIndex(), i);
    }
    grid.Paste();
    EXPECT_THAT(Selected(), ElementsAre(4, 5, 6, 7)) << "in front of the focused row";
    EXPECT_EQ(grid.GetRecords()->GetCount(), 30);
}

TEST_F(ReportClipboard, RemovingSeveralRecordsLeavesThoseOfOtherCollections) {
    AddThree();
    CXTPReportRecords other(nullptr);
    auto* const record = other.Add(new CXTPReportRecord);
    CXTPReportRecord* const second = grid.GetRecords()->GetAt(1);
    grid.GetRecords()->RemoveRecords({second, record, nullptr, second});
    EXPECT_EQ(grid.GetRecords()->GetCount(), 2);
    EXPECT_EQ(other.GetCount(), 1);
    EXPECT_EQ(grid.GetRows()->GetCount(), 2);
    grid.GetRecords()->RemoveRecords({});
    EXPECT_EQ(grid.GetRecords()->GetCount(), 2);
}

TEST_F(ReportClipboard, WhatIsBeingTypedIsCopied) {
    AddThree();
    grid.AllowEdit(TRUE);
    Select({1});
    XTP_REPORTRECORDITEM_ARGS args;
    args.pRow = grid.GetRows()->GetAt(1);
    args.pColumn = grid.GetColumns()->GetAt(0);
    grid.EditItem(&args);
    ASSERT_NE(grid.GetActiveItem(), nullptr);
    for (const wchar_t character : std::wstring(L"typed"))
        grid.GetInplaceEdit()->SendMessage(WM_CHAR, character, 1);
    grid.Copy();
    EXPECT_EQ(grid.GetActiveItem(), nullptr);
    EXPECT_EQ(grid.GetRecords()->GetAt(1)->GetItem(0)->GetCaption(nullptr), _T("typed"));
    EXPECT_EQ(ClipboardContent::Text(), L"typed\tb1\tc1\r\n");
}

TEST_F(ReportClipboard, WhatCannotBeCopiedIsNotCut) {
    AddThree();
    Select({0});
    {
        const ClipboardContent::HeldByAnother held;
        grid.Cut();
    }
    EXPECT_EQ(grid.GetRecords()->GetCount(), 3);
}

TEST_F(ReportClipboard, AControlThatDoesNotAllowItNeitherCutsNorPastes) {
    AddThree();
    Select({0});
    ClipboardContent::Put(L"kept");
    grid.mayCut = grid.mayPaste = FALSE;
    grid.Cut();
    grid.Paste();
    EXPECT_THAT(Records(), ElementsAre(L"a0", L"a1", L"a2"));
    EXPECT_EQ(ClipboardContent::Text(), L"kept");
    EXPECT_FALSE(grid.CXTPReportControl::CanCut());
    EXPECT_FALSE(grid.CXTPReportControl::CanPaste());
}

// --- Keys ------------------------------------------------------------------------------------------------------------

TEST_F(ReportClipboard, CtrlWithCXAndVCopiesCutsAndPastes) {
    AddThree();
    Select({1});
    Key('C', {VK_CONTROL});
    EXPECT_EQ(ClipboardContent::Text(), L"a1\tb1\tc1\r\n");
    Select({0});
    Key('X', {VK_CONTROL});
    EXPECT_THAT(Records(), ElementsAre(L"a1", L"a2"));
    EXPECT_EQ(ClipboardContent::Text(), L"a0\tb0\tc0\r\n");
    Key('V', {VK_CONTROL});
    EXPECT_THAT(Records(), ElementsAre(L"a1", L"a2", L"a0"));
}

TEST_F(ReportClipboard, TheKeysInsertAndDeleteDoTheSame) {
    AddThree();
    Select({1});
    Key(VK_INSERT, {VK_CONTROL});
    EXPECT_EQ(ClipboardContent::Text(), L"a1\tb1\tc1\r\n");
    Select({0});
    Key(VK_DELETE, {VK_SHIFT});
    EXPECT_THAT(Records(), ElementsAre(L"a1", L"a2"));
    Key(VK_INSERT, {VK_SHIFT});
    EXPECT_THAT(Records(), ElementsAre(L"a1", L"a2", L"a0"));
}

TEST_F(ReportClipboard, TheKeysAloneAndWithMoreDoNothing) {
    AddThree();
    Select({1});
    for (const UINT key : {static_cast<UINT>('C'), static_cast<UINT>('X'), static_cast<UINT>('V'),
                           static_cast<UINT>(VK_INSERT), static_cast<UINT>(VK_DELETE)}) {
        Key(key, {});
        Key(key, {VK_CONTROL, VK_SHIFT});
        Key(key, {VK_CONTROL, VK_MENU});
    }
    Key('C', {VK_SHIFT});
    Key(VK_DELETE, {VK_CONTROL});
    EXPECT_EQ(ClipboardContent::Text(), L"");
    EXPECT_EQ(grid.GetRecords()->GetCount(), 3);
}

} // namespace
