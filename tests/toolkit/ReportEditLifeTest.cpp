// An editor is open while the grid changes under it: it never outlives its cell, and the text goes to the item for
// which it was typed, or the owner hears that it went nowhere.
#include "EditWindow.h"

#include "../../framework/core/HandleCounts.h"
#include "../support/QueuedKeys.h"

#include <cstring>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EditLifeTest : public EditTest {
protected:
    EditLifeTest() {
        Edit(2);
        Editor()->ReplaceSel(_T("typed"));
        EditCodes();
    }
    void ExpectTaken() {
        EXPECT_FALSE(IsEditing());
        EXPECT_EQ(Editor()->m_hWnd, nullptr);
        EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_VALUECHANGED));
    }
    CRect EditorPlace() const {
        CRect rc;
        Editor()->GetWindowRect(&rc);
        m_grid.ScreenToClient(&rc);
        return rc;
    }
};

// --- Records and rows -----------------------------------------------------------------------------------------------

TEST_F(EditLifeTest, RemovingTheRecordClosesTheEditorAndTellsTheOwner) {
    const CXTPReportRecordItem* const item = Item(2, 0);
    bool wasThere = false;
    m_owner.onNotify = [&](UINT code) {
        if (code == XTP_NM_REPORT_EDITCANCELED)
            wasThere = m_owner.notifications.back().item == item && m_owner.notifications.back().rowIndex == 2;
    };
    m_grid.GetRecords()->RemoveAt(2);
    EXPECT_TRUE(wasThere);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Editor()->m_hWnd, nullptr);
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_EDITCANCELED));
    EXPECT_EQ(Texts()[2], L"A3") << "nothing is written into the record that has taken the place";
    EXPECT_TRUE(HasGridFocus());
}

TEST_F(EditLifeTest, RemovingAnotherRecordMovesTheEditorWithItsRow) {
    m_grid.GetRecords()->RemoveAt(0);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(m_grid.GetActiveItem(), Item(1, 0));
    EXPECT_EQ(EditorPlace(), m_grid.GetRows()->GetAt(1)->GetItemRect(Item(1, 0)));
    EXPECT_EQ(EditorText(), _T("typed"));
    TypeKey(VK_RETURN);
    EXPECT_EQ(Texts()[1], L"typed");
    EXPECT_EQ(Texts()[0], L"A1");
    EXPECT_EQ(Texts()[2], L"A3");
}

TEST_F(EditLifeTest, ResetContentAndVirtualModeTellTheOwner) {
    m_grid.ResetContent();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Editor()->m_hWnd, nullptr);
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_EDITCANCELED));
    AddRecords(3);
    Edit(1);
    EditCodes();
    auto* const record = new CXTPReportRecord;
    record->AddItem(new CXTPReportRecordItemText(_T("every row")));
    m_grid.SetVirtualMode(record, 5);
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_EDITCANCELED));
    m_grid.ResetContent();
}

TEST_F(EditLifeTest, PopulatingTakesTheTextFirst) {
    m_grid.Populate();
    ExpectTaken();
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
}

TEST_F(EditLifeTest, SortingTakesTheTextIntoItsOwnRecordAndSortsByIt) {
    Editor()->SetWindowText(_T("A2")); // the text of the beginning again
    Editor()->SetSel(0, -1);
    Editor()->ReplaceSel(_T("zzz"));
    m_grid.GetReportHeader()->Sort(m_columns[0], FALSE);
    ExpectTaken();
    EXPECT_EQ(Texts().back(), L"zzz");
    EXPECT_EQ(Item(11, 1)->GetValue(), _T("B2")) << "in its own record";
}

// --- Columns --------------------------------------------------------------------------------------------------------

TEST_F(EditLifeTest, HidingTheColumnTakesTheText) {
    m_columns[0]->SetVisible(FALSE);
    ExpectTaken();
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
    EXPECT_FALSE(m_columns[0]->IsVisible());
}

TEST_F(EditLifeTest, HidingAnotherColumnMovesTheEditor) {
    Edit(2, 2);
    Editor()->ReplaceSel(_T("third"));
    m_columns[0]->SetVisible(FALSE);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorPlace(), m_grid.GetRows()->GetAt(2)->GetItemRect(Item(2, 2)));
    EXPECT_EQ(EditorText(), _T("third"));
}

TEST_F(EditLifeTest, DeletingTheColumnTakesTheText) {
    const ProbeItem* const item = Item(2, 0);
    m_grid.GetColumns()->Remove(m_columns[0]);
    ExpectTaken();
    EXPECT_EQ(item->GetValue(), _T("typed"));
    Edit(2, 1);
    Editor()->ReplaceSel(_T("more"));
    m_grid.GetColumns()->Clear();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 1)->GetValue(), _T("more"));
}

TEST_F(EditLifeTest, AColumnThatIsDeletedWhenTheOwnerHearsOfTheFocusIsNeitherFocusedNorEdited) {
    const CXTPReportColumn* const gone = m_columns[1];
    m_owner.onNotify = [this, gone](UINT code) {
        CXTPReportColumns& columns = *m_grid.GetColumns();
        if (code == XTP_NM_REPORT_FOCUSCHANGED && columns.IndexOf(gone) >= 0)
            columns.Remove(m_columns[1]);
    };
    Edit(4, 1);
    EXPECT_EQ(m_grid.GetColumns()->GetCount(), 2);
    EXPECT_FALSE(IsEditing());
    EXPECT_NE(m_grid.GetFocusedColumn(), gone);
    Key(VK_RIGHT);
    m_grid.UpdateWindow();
}

TEST_F(EditLifeTest, MovingAndResizingTheColumnMovesTheEditor) {
    m_grid.GetColumns()->ChangeColumnOrder(2, 0);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorPlace().left, m_columns[0]->GetRect().left);
    m_columns[0]->SetWidth(137);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorPlace().Width(), 136) << "without the grid line";
    EXPECT_EQ(EditorText(), _T("typed"));
    TypeKey(VK_RETURN);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
}

TEST_F(EditLifeTest, ALayoutThatIsReadTakesTheTextFirst) {
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        m_grid.SerializeState(archive);
    }
    ASSERT_TRUE(IsEditing()) << "writing a layout changes nothing";
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    m_grid.SerializeState(archive);
    ExpectTaken();
}

// --- The control ----------------------------------------------------------------------------------------------------

TEST_F(EditLifeTest, AnotherThemeMovesTheEditorAndGivesItItsColours) {
    m_grid.SetTheme(xtpReportThemeOffice2013, TRUE); // other heights
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorText(), _T("typed"));
    EXPECT_EQ(EditorPlace(), m_grid.GetRows()->GetAt(2)->GetItemRect(Item(2, 0)));
    Editor()->UpdateWindow();
    CWindowDC dc(Editor());
    EXPECT_EQ(dc.GetPixel(0, 0), RGB(0x2A, 0x8D, 0xD4));
    LOGFONT font = {}, ofGrid = {};
    Editor()->GetFont()->GetLogFont(&font);
    m_grid.GetPaintManager()->GetTextFont()->GetLogFont(&ofGrid);
    EXPECT_EQ(font.lfHeight, ofGrid.lfHeight);
    TypeKey(VK_RETURN);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
}

TEST_F(EditLifeTest, AnotherResolutionGivesTheEditorAnotherFontAndPlace) {
    m_grid.SendMessage(0x02E0 /*WM_DPICHANGED*/, MAKEWPARAM(144, 144), 0);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorPlace(), m_grid.GetRows()->GetAt(2)->GetItemRect(Item(2, 0)));
    LOGFONT font = {}, ofGrid = {};
    Editor()->GetFont()->GetLogFont(&font);
    m_grid.GetPaintManager()->GetTextFont()->GetLogFont(&ofGrid);
    EXPECT_EQ(font.lfHeight, ofGrid.lfHeight);
}

TEST_F(EditLifeTest, AViewThatBecomesTooSmallClipsTheEditor) {
    m_grid.SetWindowPos(nullptr, 0, 0, Width, HeaderHeight() + RowHeight() / 2, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(EditorPlace().Height() == 0 || !IsEditing());
    m_grid.SetWindowPos(nullptr, 0, 0, Width, HeaderHeight() + 10 * RowHeight(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(EditorPlace(), m_grid.GetRows()->GetAt(2)->GetItemRect(Item(2, 0)));
    EXPECT_EQ(EditorText(), _T("typed"));
}

TEST_F(EditLifeTest, DisablingTheControlTakesTheText) {
    m_grid.EnableWindow(FALSE);
    ExpectTaken();
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
    Edit(2);
    EXPECT_FALSE(IsEditing()) << "nor does a new one open";
}

TEST_F(EditLifeTest, ForbiddingToEditTakesTheText) {
    m_grid.AllowEdit(FALSE);
    ExpectTaken();
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
}

TEST_F(EditLifeTest, DestroyingTheWindowTakesTheText) {
    const ProbeItem* const item = Item(2, 0);
    m_grid.DestroyWindow();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Editor()->m_hWnd, nullptr);
    EXPECT_EQ(item->GetValue(), _T("typed"));
}

TEST_F(EditLifeTest, DestroyingTheWindowAboveTakesTheText) {
    const ProbeItem* const item = Item(2, 0);
    m_owner.DestroyWindow();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(item->GetValue(), _T("typed"));
}

TEST_F(EditLifeTest, DestroyingTheEditorsWindowTakesTheText) {
    Editor()->DestroyWindow();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
    Edit(3);
    EXPECT_TRUE(IsEditing());
}

TEST_F(EditLifeTest, AnEditorThatNeverHadTheKeyboardKeepsTheTextAsWell) {
    m_grid.EditItem(nullptr);
    m_owner.ShowWindow(SW_HIDE);
    ::SetFocus(nullptr);
    Edit(3);
    ASSERT_TRUE(IsEditing());
    ::SetFocus(nullptr);
    Edit(4);
    Editor()->ReplaceSel(_T("unseen"));
    Editor()->DestroyWindow();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(4, 0)->GetValue(), _T("unseen"));
}

TEST_F(EditLifeTest, AnotherEditorTakesTheText) {
    auto* const another = new CXTPReportInplaceEdit;
    m_grid.SetInplaceEdit(another);
    EXPECT_EQ(Editor(), another);
    ExpectTaken();
    m_grid.SetInplaceEdit(nullptr);
    m_grid.SetInplaceEdit(another);
    EXPECT_EQ(Editor(), another);
    Edit(3);
    EXPECT_EQ(another->GetItem(), Item(3, 0));
}

TEST_F(EditLifeTest, DeletingTheControlLeavesNothingBehind) {
    m_grid.EditItem(nullptr);
    const long windows = handlecounts::Live(handlecounts::Kind::Window);
    {
        CXTPReportControl grid;
        grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), &m_owner, 43);
        grid.AllowEdit(TRUE);
        grid.AddColumn(new CXTPReportColumn(0, _T("A"), 100));
        auto* const record = new CXTPReportRecord;
        record->AddItem(new ProbeItem(_T("text")));
        grid.AddRecord(record);
        grid.Populate();
        XTP_REPORTRECORDITEM_ARGS args;
        args.pRow = grid.GetRows()->GetAt(0);
        args.pColumn = grid.GetColumns()->GetAt(0);
        grid.EditItem(&args);
        ASSERT_NE(grid.GetActiveItem(), nullptr);
    }
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Window), windows);
}

// --- From within the hooks ------------------------------------------------------------------------------------------

TEST_F(EditLifeTest, TheHookMayRemoveTheRecord) {
    Item(2, 0)->onEditChanged = [this] { m_grid.GetRecords()->RemoveAt(2); };
    TypeKey(VK_RETURN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Editor()->m_hWnd, nullptr);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 11);
    ASSERT_EQ(m_owner.Count(XTP_NM_REPORT_VALUECHANGED), 1);
    EXPECT_EQ(m_owner.notifications.back().item, nullptr) << "what has gone is not named";
    EXPECT_EQ(m_owner.notifications.back().rowIndex, -1);
}

TEST_F(EditLifeTest, TheHookMayPopulateAndSort) {
    Item(2, 0)->onEditChanged = [this] {
        m_grid.GetColumns()->SetSortColumn(m_columns[0], FALSE);
        m_grid.Populate();
    };
    TypeKey(VK_RETURN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Texts()[0], L"typed");
    EXPECT_EQ(Editor()->m_hWnd, nullptr);
}

TEST_F(EditLifeTest, TheHookMayEditAnotherCell) {
    Item(2, 0)->onEditChanged = [this] { Edit(4, 1); };
    TypeKey(VK_RETURN);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
    ASSERT_EQ(m_grid.GetActiveItem(), Item(4, 1));
    EXPECT_EQ(EditorText(), _T("B4"));
    EXPECT_EQ(::GetFocus(), Editor()->m_hWnd);
    TypeKey(VK_ESCAPE);
    EXPECT_FALSE(IsEditing());
}

TEST_F(EditLifeTest, TheHookMayDeleteTheColumn) {
    Item(2, 0)->onEditChanged = [this] { m_grid.GetColumns()->Remove(m_columns[0]); };
    m_columns[0]->SetVisible(FALSE);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(m_grid.GetColumns()->GetCount(), 2);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("typed"));
}

TEST_F(EditLifeTest, TheHookMayTakeTheFocus) {
    Item(2, 0)->onEditChanged = [this] { m_owner.SetFocus(); };
    TypeKey(VK_RETURN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(::GetFocus(), m_owner.m_hWnd);
}

TEST_F(EditLifeTest, TheHookMayDestroyTheControlWhicheverWayTheEditingEnds) {
    const std::function<void()> ends[] = {
        [this] { TypeKey(VK_RETURN); },
        [this] { TypeKey(VK_TAB); },
        [this] { TypeKey(VK_DOWN); },
        [this] { Press(Cell(5)); },
        [this] { Wheel(-WHEEL_DELTA); },
        [this] { m_grid.Populate(); },
        [this] { m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(7)); },
        [this] { m_columns[0]->SetVisible(FALSE); },
        [this] { m_grid.GetColumns()->Clear(); },
        [this] { m_grid.EnableWindow(FALSE); },
        [this] { m_owner.SetFocus(); },
        [this] { Edit(3); },
        [this] { m_grid.SetInplaceEdit(new CXTPReportInplaceEdit); },
        [this] { m_grid.DestroyWindow(); },
    };
    int way = 0;
    for (const auto& end : ends) {
        SCOPED_TRACE(way++);
        if (!m_grid.m_hWnd) {
            m_grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, Width, 200), &m_owner, 42);
            m_grid.GetColumns()->Clear();
            for (int i = 0; i < 3; ++i) {
                m_columns[i] = new CXTPReportColumn(i, _T("A"), 60);
                m_grid.AddColumn(m_columns[i]);
            }
            m_grid.Populate();
            Item(2, 0)->SetValue(_T("before"));
            Edit(2);
            ASSERT_TRUE(IsEditing());
            Editor()->ReplaceSel(_T("again"));
        }
        ProbeItem* const item = Item(2, 0);
        item->onEditChanged = [this] { m_grid.DestroyWindow(); };
        end();
        item->onEditChanged = nullptr;
        EXPECT_EQ(m_grid.m_hWnd, nullptr);
        EXPECT_FALSE(IsEditing());
        EXPECT_EQ(item->GetValue(), way == 1 ? _T("typed") : _T("again"));
    }
}

/// A grid whose memory is overwritten when it is deleted: whoever still reads its members finds pointers that lead
/// nowhere.
class MortalGrid : public CXTPReportControl {
public:
    static void operator delete(void* memory, std::size_t size) {
        std::memset(memory, 0xEE, size);
        Graveyard().push_back(memory);
    }
    static std::vector<void*>& Graveyard() {
        static std::vector<void*> memory;
        return memory;
    }
};

TEST_F(EditLifeTest, TheHookMayDeleteTheControlWhicheverWayTheEditingEnds) {
    MortalGrid* grid = nullptr;
    CXTPReportColumn* column = nullptr;
    const std::function<void()> ends[] = {
        [] { ::TypeKey(VK_RETURN); },
        [] { ::TypeKey(VK_TAB); },
        [] { ::TypeKey(VK_DOWN); },
        [&] { grid->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 60)); },
        [&] { grid->SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(40, 60)); },
        [&] { grid->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0); },
        [&] { grid->SendMessage(WM_VSCROLL, SB_LINEDOWN, 0); },
        [&] { grid->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(40, 60)); },
        [&] { grid->Populate(); },
        [&] { grid->SetTopRow(1); },
        [&] { grid->SetFocusedRow(grid->GetRows()->GetAt(1)); },
        [&] { grid->SetFocusedColumn(column); },
        [&] { column->SetVisible(FALSE); },
        [&] { grid->GetColumns()->Remove(column); },
        [&] { grid->GetColumns()->Clear(); },
        [&] { grid->GetReportHeader()->Sort(column, FALSE); },
        [&] { grid->EnableWindow(FALSE); },
        [&] { grid->AllowEdit(FALSE); },
        [&] { grid->EditItem(nullptr); },
        [&] { grid->SetInplaceEdit(new CXTPReportInplaceEdit); },
        [&] { m_owner.SetFocus(); },
        [&] {
            CMemFile file;
            {
                CArchive archive(&file, CArchive::store);
                grid->SerializeState(archive);
            }
            file.SeekToBegin();
            CArchive archive(&file, CArchive::load);
            grid->SerializeState(archive);
        },
    };
    int way = 0;
    for (const auto& end : ends) {
        SCOPED_TRACE(way++);
        grid = new MortalGrid;
        grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), &m_owner, 43);
        grid->AllowEdit(TRUE);
        column = new CXTPReportColumn(0, _T("A"), 100);
        grid->AddColumn(column);
        for (int i = 0; i < 3; ++i) {
            auto* const item = new ProbeItem(_T("text"));
            item->onEditChanged = [&] { delete std::exchange(grid, nullptr); };
            auto* const record = new CXTPReportRecord;
            record->AddItem(item);
            grid->AddRecord(record);
        }
        grid->Populate();
        XTP_REPORTRECORDITEM_ARGS args;
        args.pRow = grid->GetRows()->GetAt(0);
        args.pColumn = column;
        grid->EditItem(&args);
        ASSERT_NE(grid->GetActiveItem(), nullptr);
        grid->GetInplaceEdit()->ReplaceSel(_T("typed"));
        end();
        EXPECT_EQ(grid, nullptr);
        delete std::exchange(grid, nullptr);
    }
    for (void* const memory : MortalGrid::Graveyard())
        ::operator delete(memory);
    MortalGrid::Graveyard().clear();
}

TEST_F(EditLifeTest, TheOwnerMayDeleteTheControlWhenARecordLeaves) {
    for (const int way : {0, 1, 2}) {
        SCOPED_TRACE(way);
        auto* grid = new MortalGrid;
        grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), &m_owner, 43);
        grid->AllowEdit(TRUE);
        grid->AddColumn(new CXTPReportColumn(0, _T("A"), 100));
        auto* const record = new CXTPReportRecord;
        record->AddItem(new CXTPReportRecordItemText(_T("text")));
        grid->AddRecord(record);
        grid->Populate();
        XTP_REPORTRECORDITEM_ARGS args;
        args.pRow = grid->GetRows()->GetAt(0);
        args.pColumn = grid->GetColumns()->GetAt(0);
        m_owner.onNotify = nullptr;
        grid->EditItem(&args);
        ASSERT_NE(grid->GetActiveItem(), nullptr);
        m_owner.onNotify = [&](UINT code) {
            if (code == XTP_NM_REPORT_EDITCANCELED)
                delete std::exchange(grid, nullptr);
        };
        if (way == 0)
            grid->GetRecords()->RemoveAt(0);
        else if (way == 1)
            grid->ResetContent();
        else
            grid->SetVirtualMode(new CXTPReportRecord, 3);
        EXPECT_EQ(grid, nullptr);
    }
    for (void* const memory : MortalGrid::Graveyard())
        ::operator delete(memory);
    MortalGrid::Graveyard().clear();
}

TEST_F(EditLifeTest, TheOwnerMayChangeTheContentWhenItIsAsked) {
    m_grid.EditItem(nullptr);
    m_owner.onNotify = [this](UINT code) {
        if (code == XTP_NM_REPORT_REQUESTEDIT)
            m_grid.GetRecords()->RemoveAt(4);
    };
    Edit(4);
    EXPECT_FALSE(IsEditing()) << "the cell that was asked for is gone";
    m_owner.onNotify = [this](UINT code) {
        if (code == XTP_NM_REPORT_REQUESTEDIT)
            m_grid.DestroyWindow();
    };
    Edit(4);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(m_grid.m_hWnd, nullptr);
}

TEST_F(EditLifeTest, AHookThatThrowsLeavesNoEditorOpen) {
    Item(2, 0)->onEditChanged = [] { throw std::runtime_error("host"); };
    EXPECT_THROW(m_grid.EditItem(nullptr), std::runtime_error);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Editor()->m_hWnd, nullptr);
}

// --- Virtual mode ---------------------------------------------------------------------------------------------------

/// Keeps a text for every row.
class VirtualItem : public CXTPReportRecordItemText {
public:
    std::vector<CString> texts = std::vector<CString>(100, CString(_T("row")));
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override {
        CXTPReportRecordItemText::GetItemMetrics(args, metrics);
        metrics->strText = texts[args->pRow->GetIndex()];
    }
    void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* args, LPCTSTR text) override { texts[args->pRow->GetIndex()] = text; }
};

class VirtualEditTest : public EditTest {
protected:
    VirtualEditTest() : m_item(new VirtualItem), m_plain(new CXTPReportRecordItemText(_T("every row"))) {
        auto* const record = new CXTPReportRecord;
        record->AddItem(m_item);
        record->AddItem(m_plain);
        m_grid.SetVirtualMode(record, 100);
        m_grid.Populate();
    }
    void Settle() {}
    VirtualItem* m_item;
    CXTPReportRecordItemText* m_plain;
};

TEST_F(VirtualEditTest, TheItemTakesTheTextOfItsRow) {
    Edit(70);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorText(), _T("row"));
    Type(L"seventy");
    TypeKey(VK_RETURN);
    EXPECT_EQ(m_item->texts[70], _T("seventy"));
    EXPECT_EQ(m_item->texts[69], _T("row"));
    EXPECT_EQ(m_owner.notifications.back().rowIndex, 70);
    Edit(71);
    EXPECT_EQ(EditorText(), _T("row")) << "of that row";
}

TEST_F(VirtualEditTest, APlainItemDoesNotTakeATextForEveryRow) {
    Edit(5, 1);
    Type(L"five");
    TypeKey(VK_RETURN);
    EXPECT_EQ(m_plain->GetValue(), _T("every row"));
}

} // namespace
