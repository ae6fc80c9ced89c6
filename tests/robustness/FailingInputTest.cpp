// One call fails, and each in turn, while the user drags, types and uses menus.
#include "Scenario.h"

#include <reportgrid/KyInPlaceEdit.h>

#include <memory>
#include <string>

namespace {

// --- The column chooser ----------------------------------------------------------------------------------------------

/// Leaves the next menu of this thread with a key, from a timer that the menu's own loop dispatches. Takes no memory.
class MenuLeaver {
public:
    MenuLeaver() { m_timer = ::SetTimer(nullptr, 0, 10, &OnTimer); }
    ~MenuLeaver() { ::KillTimer(nullptr, m_timer); }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        const calltable::Pause pause;
        const HWND menu = ::FindWindowW(L"#32768", nullptr);
        if (menu == nullptr || !::IsWindowVisible(menu))
            return;
        for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN})
            ::PostMessageW(menu, WM_KEYDOWN, key, 1);
    }
    UINT_PTR m_timer;
};

/// The column chooser hides the second column, or shows it again.
class Chooser : public Scenario {
public:
    Chooser() : Scenario("column chooser") {
        m_rig.grid->EnableShowHideColumns({});
        m_wasVisible = IsVisible();
    }
    void Act() override {
        m_wasVisible = IsVisible();
        {
            const calltable::Pause pause;
            m_leaver = std::make_unique<MenuLeaver>();
        }
        struct Done {
            Chooser& chooser;
            ~Done() {
                const calltable::Pause pause;
                chooser.m_leaver.reset();
            }
        } const done{*this};
        const CPoint point = m_rig.HeaderOf(0);
        ::SendMessageW(m_rig.grid->m_hWnd, WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        m_rig.Paint();
    }
    std::string Wrong() override { return IsVisible() != m_wasVisible ? "" : "the column was not toggled"; }

private:
    bool IsVisible() { return m_rig.grid->GetColumns()->GetAt(1)->IsVisible() != FALSE; }
    GridRig m_rig;
    std::unique_ptr<MenuLeaver> m_leaver;
    bool m_wasVisible = false;
};

TEST(FailingCalls, ColumnChooser) { Try<Chooser>(); }

// --- Dragging --------------------------------------------------------------------------------------------------------

/// The target of a bar is dragged by a few pixels, one way and then the other.
class DragMark : public Scenario {
public:
    DragMark() : Scenario("drag a mark") { m_connection = Connect(); }
    void Act() override {
        {
            const calltable::Pause pause; // each time from the same place, whatever a failed drag has left
            m_rig.Bar(3).SetTarget(50);
            m_rig.Paint();
        }
        const CRect rect = m_rig.BarRect(3);
        const int y = rect.CenterPoint().y;
        const int from = rect.left + rect.Width() / 2;
        m_reported = 0;
        m_rig.Mouse(WM_MOUSEMOVE, CPoint(from, y));
        m_rig.Mouse(WM_LBUTTONDOWN, CPoint(from, y));
        for (int x = from + 2; x <= from + 20; x += 6) {
            m_rig.Mouse(WM_MOUSEMOVE, CPoint(x, y));
            m_rig.grid->UpdateWindow();
        }
        m_rig.Mouse(WM_LBUTTONUP, CPoint(from + 20, y));
        m_rig.Paint();
    }
    std::string Broken() override {
        const double target = m_rig.Bar(3).GetTarget();
        return target >= 50 && target < 70 ? "" : "a target nobody dragged to: " + std::to_string(target);
    }
    std::string Wrong() override {
        return m_rig.Bar(3).GetTarget() > 55 && m_reported == 1 ? "" : "the mark was not dragged";
    }

private:
    boost::signals2::scoped_connection Connect() {
        return m_rig.Bar(3).m_valueChanged.connect([this](float, float, float) { ++m_reported; });
    }
    GridRig m_rig;
    int m_reported = 0;
    boost::signals2::scoped_connection m_connection;
};

TEST(FailingCalls, DraggingAMark) { Try<DragMark>(); }

/// A column is dragged before another one, and back.
class DragColumn : public Scenario {
public:
    DragColumn() : Scenario("drag a column") { m_expected = m_rig.ColumnsAsText(); }
    void Act() override {
        {
            const calltable::Pause pause;
            CXTPReportColumns& columns = *m_rig.grid->GetColumns();
            columns.ChangeColumnOrder(0, columns.IndexOf(columns.Find(CString(L"name"))));
            m_rig.Paint();
        }
        const CPoint from = m_rig.HeaderOf(0);
        const CPoint to = m_rig.HeaderOf(1) + CPoint(30, 0);
        m_rig.Mouse(WM_LBUTTONDOWN, from);
        for (int step = 1; step <= 4; ++step) {
            m_rig.Mouse(WM_MOUSEMOVE, CPoint(from.x + (to.x - from.x) * step / 4, from.y));
            m_rig.grid->UpdateWindow();
        }
        m_rig.Mouse(WM_LBUTTONUP, to);
        m_rig.Paint();
    }
    std::string Broken() override {
        return m_rig.grid->GetMouseMode() == xtpReportMouseNothing ? "" : "a gesture goes on";
    }
    std::string Wrong() override {
        return m_rig.grid->GetColumns()->GetAt(1)->GetInternalName() == L"name" ? ""
                                                                                : "not moved: " + m_rig.ColumnsAsText();
    }

private:
    GridRig m_rig;
    std::string m_expected;
};

TEST(FailingCalls, DraggingAColumn) { Try<DragColumn>(); }

// --- Editing ---------------------------------------------------------------------------------------------------------

/// A text is typed into a cell by keys, then a number into the one beside it, which is reached by Tab.
class EditCells : public Scenario {
public:
    EditCells() : Scenario("edit two cells") {
        m_rig.grid->AllowEdit(TRUE);
        m_rig.grid->SetInplaceEdit(new KyInPlaceEdit);
        // A view whose size is not to be had scrolls, and the list of moved rows keeps its memory.
        m_rig.grid->SetTopRow(1);
        m_rig.grid->SetTopRow(0);
    }
    void Act() override {
        {
            const calltable::Pause pause;
            ++m_count;
            m_typed.Format(L"%d", 1000 + m_count);
            m_rig.grid->EditItem(nullptr); // whatever a failure has left
            Text().SetValue(L"former");
            Number().SetValue(-1);
            m_rig.grid->SetFocus();
            m_rig.grid->SetFocusedRow(m_rig.grid->GetRows()->GetAt(2));
            m_rig.grid->SetFocusedColumn(m_rig.grid->GetColumns()->GetAt(0));
        }
        ::SendMessageW(m_rig.grid->m_hWnd, WM_KEYDOWN, VK_F2, 1);
        Type(VK_TAB);
        Type(VK_RETURN);
        m_rig.Paint();
    }
    std::string Broken() override {
        if (m_rig.grid->GetActiveItem() != nullptr && m_rig.grid->GetInplaceEdit()->m_hWnd == nullptr)
            return "an editor without a window";
        const CString text = Text().GetValue();
        return text == L"former" || text == m_typed ? "" : "a text that nobody typed";
    }
    std::string Wrong() override {
        const bool isTaken = Text().GetValue() == m_typed && Number().GetValue() == 1000 + m_count;
        return isTaken && m_rig.grid->GetActiveItem() == nullptr ? "" : "the cells were not edited";
    }

private:
    CXTPReportRecord& Record() { return *m_rig.grid->GetRows()->GetAt(2)->GetRecord(); }
    CXTPReportRecordItemText& Text() { return static_cast<CXTPReportRecordItemText&>(*Record().GetItem(0)); }
    CXTPReportRecordItemNumber& Number() { return static_cast<CXTPReportRecordItemNumber&>(*Record().GetItem(1)); }
    void Type(WPARAM key) {
        if (m_rig.grid->GetActiveItem() == nullptr)
            return;
        const HWND edit = m_rig.grid->GetInplaceEdit()->m_hWnd;
        ::SendMessageW(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(m_typed.GetString()));
        ::SendMessageW(edit, WM_KEYDOWN, key, 1);
    }
    GridRig m_rig;
    CString m_typed;
    int m_count = 0;
};

TEST(FailingCalls, EditingCells) { Try<EditCells>(); }

} // namespace
