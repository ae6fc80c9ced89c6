// The editor with the keys of a spreadsheet, in a grid of numbers, by keys through the queue.
#include "PlotCellProbes.h"

#include "../support/QueuedKeys.h"

#include <reportgrid/KyInPlaceEdit.h>
#include <reportgrid/KyReportControl.h>
#include <reportgrid/KyReportRecordItemFloat.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// A grid of two columns of numbers, 10, 11, … and 20, 21, …, with the editor; the first cell has the focus.
class InPlaceEditTest : public ProfileTest {
protected:
    InPlaceEditTest() {
        frame.CreateEx(0, AfxRegisterWndClass(0), _T("host"), WS_POPUP | WS_VISIBLE, CRect(20, 30, 520, 330), nullptr,
                       0);
        grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 500, 300), &frame, 100);
        grid.AddColumn(new CXTPReportColumn(0, _T("A"), 100));
        grid.AddColumn(new CXTPReportColumn(1, _T("B"), 100));
        for (int i = 0; i < 4; ++i) {
            auto* const record = new CXTPReportRecord;
            for (const int first : {10, 20})
                record->AddItem(new KyReportRecordItemFloat(static_cast<float>(first + i), 100, 0));
            grid.AddRecord(record);
        }
        grid.Populate();
        grid.AllowEdit(TRUE);
        grid.SetInplaceEdit(new KyInPlaceEdit);
        grid.SetFocus();
        grid.SetFocusedRow(grid.GetRows()->GetAt(0));
        grid.SetFocusedColumn(grid.GetColumns()->GetAt(0));
    }
    ~InPlaceEditTest() override {
        grid.DestroyWindow();
        frame.DestroyWindow();
    }
    KyReportRecordItemFloat& Cell(int row, int item = 0) const {
        return *static_cast<KyReportRecordItemFloat*>(grid.GetRows()->GetAt(row)->GetRecord()->GetItem(item));
    }
    bool IsEditing() const { return grid.GetActiveItem() != nullptr; }
    CString EditorText() const {
        CString text;
        grid.GetInplaceEdit()->GetWindowText(text);
        return text;
    }
    int FocusedRow() const { return grid.GetFocusedRow()->GetIndex(); }

    CWnd frame;
    KyReportControl grid;
};

TEST_F(InPlaceEditTest, IsCreatedByItsRuntimeClass) {
    CObject* const object = RUNTIME_CLASS(KyInPlaceEdit)->CreateObject();
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CXTPReportInplaceEdit)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CEdit)));
    delete object;
}

TEST_F(InPlaceEditTest, EnterTakesTheTextAndMovesTheSelectionOneRowDown) {
    TypeText(L"42");
    EXPECT_TRUE(IsEditing());
    TypeKey(VK_RETURN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Cell(0).GetValue(), 42.0f);
    EXPECT_EQ(FocusedRow(), 1);
    EXPECT_TRUE(grid.GetRows()->GetAt(1)->IsSelected());
    EXPECT_EQ(grid.GetSelectedRows()->GetCount(), 1);
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    TypeText(L"43"); // and goes on as in a spreadsheet
    TypeKey(VK_RETURN);
    EXPECT_EQ(Cell(1).GetValue(), 43.0f);
    EXPECT_EQ(FocusedRow(), 2);
}

TEST_F(InPlaceEditTest, UpAndDownTakeTheTextAndMove) {
    TypeText(L"42");
    TypeKey(VK_DOWN);
    EXPECT_EQ(Cell(0).GetValue(), 42.0f);
    EXPECT_EQ(FocusedRow(), 1);
    TypeText(L"43");
    TypeKey(VK_UP);
    EXPECT_EQ(Cell(1).GetValue(), 43.0f);
    EXPECT_EQ(FocusedRow(), 0);
    TypeText(L"44");
    TypeKey(VK_UP); // nothing is above
    EXPECT_EQ(Cell(0).GetValue(), 44.0f);
    EXPECT_FALSE(IsEditing());
}

TEST_F(InPlaceEditTest, TabTakesTheTextAndEditsTheNextCell) {
    TypeText(L"42");
    TypeKey(VK_TAB);
    EXPECT_EQ(Cell(0).GetValue(), 42.0f);
    ASSERT_EQ(grid.GetActiveItem(), &Cell(0, 1));
    EXPECT_EQ(EditorText(), L"20");
    TypeText(L"50%");
    TypeKey(VK_TAB);
    EXPECT_EQ(Cell(0, 1).GetValue(), 50.0f);
    ASSERT_EQ(grid.GetActiveItem(), &Cell(1, 0));
    const HeldKey shift(VK_SHIFT);
    TypeKey(VK_TAB);
    EXPECT_EQ(grid.GetActiveItem(), &Cell(0, 1));
}

TEST_F(InPlaceEditTest, EscapePutsTheTextBackAndGoesOnEditing) {
    TypeKey(VK_F2);
    TypeText(L"42");
    EXPECT_EQ(EditorText(), L"42");
    TypeKey(VK_ESCAPE);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorText(), L"10");
    TypeText(L"7");
    EXPECT_EQ(EditorText(), L"7") << "the text is selected, so that typing begins anew";
    TypeKey(VK_ESCAPE);
    TypeKey(VK_RETURN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Cell(0).GetValue(), 10.0f);
}

TEST_F(InPlaceEditTest, AClearedCellShowsTheMissingText) {
    Cell(0).SetMissingRepresentation(L"none");
    TypeKey(VK_F2);
    TypeKey(VK_DELETE);
    TypeKey(VK_RETURN);
    EXPECT_EQ(Cell(0).GetCaption(nullptr), L"none");
}

TEST_F(InPlaceEditTest, OtherKeysAreTheEditControls) {
    TypeKey(VK_F2);
    TypeKey(VK_HOME);
    TypeText(L"9");
    TypeKey(VK_END);
    TypeKey(VK_BACK);
    EXPECT_EQ(EditorText(), L"91");
}

TEST_F(InPlaceEditTest, WithoutAGridEveryKeyIsTheEditControls) {
    auto edit = std::make_unique<KyInPlaceEdit>();
    edit->CEdit::Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &frame, 7);
    edit->SetWindowText(_T("text"));
    edit->SetFocus();
    TypeKey(VK_RETURN);
    TypeKey(VK_ESCAPE);
    TypeKey(VK_TAB);
    EXPECT_EQ(::GetFocus(), edit->m_hWnd);
    edit->DestroyWindow();
}

TEST_F(InPlaceEditTest, PlotsAreNotTypedOverAndTheirKeysEditNothing) {
    PlotGridHost host;
    auto* const cell = host.AddRow(new KyDragLineRecordItem);
    cell->SetTargetValues(5, 0, 10);
    host.Show();
    host.grid.AllowEdit(TRUE);
    host.grid.SetFocus();
    host.grid.SetFocusedRow(host.grid.GetRows()->GetAt(0));
    host.grid.SetFocusedColumn(host.grid.GetColumns()->GetAt(1));
    EXPECT_FALSE(cell->IsEditable());
    TypeKey(VK_F2); // takes hold of the handle
    TypeKey(VK_RIGHT);
    TypeKey(VK_TAB);
    EXPECT_EQ(host.grid.GetActiveItem(), nullptr);
    TypeKey(VK_ESCAPE);
    TypeText(L"x");
    EXPECT_EQ(host.grid.GetActiveItem(), nullptr);
    host.grid.SetFocusedColumn(host.grid.GetColumns()->GetAt(0));
    TypeText(L"x");
    EXPECT_NE(host.grid.GetActiveItem(), nullptr) << "the text beside it is edited";
}

/// A grid whose cells' hooks do what a test wants.
class HookCell : public KyReportRecordItemFloat {
public:
    HookCell() : KyReportRecordItemFloat(1) {}
    void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* args, const wchar_t* text) override {
        KyReportRecordItemFloat::OnEditChanged(args, text);
        args->pControl->DestroyWindow();
    }
};

TEST_F(InPlaceEditTest, AHookMayDestroyTheGridWhicheverKeyEndsTheEditing) {
    for (const UINT key : {VK_RETURN, VK_TAB, VK_UP, VK_DOWN}) {
        auto* const record = new CXTPReportRecord;
        auto* const cell = new HookCell;
        record->AddItem(cell);
        grid.AddRecord(record);
        if (!grid.m_hWnd)
            grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 500, 300), &frame, 100);
        grid.Populate();
        grid.SetFocus();
        grid.SetFocusedColumn(grid.GetColumns()->GetAt(0));
        grid.SetFocusedRow(grid.GetRows()->Find(record));
        TypeText(L"42");
        TypeKey(key);
        EXPECT_EQ(grid.m_hWnd, nullptr) << key;
        EXPECT_EQ(cell->GetValue(), 42.0f);
    }
}

} // namespace
