// What a screen reader learns of a report control, asked in its way: through oleacc.
#include "GridWindow.h"

#include <oleacc.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

/// Holds a reference to a COM object.
template <class Interface>
class Holder {
public:
    Holder() = default;
    explicit Holder(Interface* object) : m_object(object) {}
    Holder(Holder&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ~Holder() {
        if (m_object)
            m_object->Release();
    }
    Interface* operator->() const { return m_object; }
    Interface** Out() { return &m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    Interface* Get() const { return m_object; }

private:
    Interface* m_object = nullptr;
};
using Accessible = Holder<IAccessible>;

VARIANT Child(LONG number) {
    VARIANT child = {};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

Accessible AsAccessible(IDispatch* object) {
    Accessible result;
    if (object) {
        object->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(result.Out()));
        object->Release();
    }
    return result;
}

/// The text that a method gives; "(none)" where it says that there is none.
using TextMethod = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
std::wstring Text(const Accessible& object, TextMethod method, LONG child = CHILDID_SELF) {
    BSTR text = nullptr;
    const HRESULT result = (object.Get()->*method)(Child(child), &text);
    const std::wstring copy = text ? std::wstring(text, ::SysStringLen(text)) : L"(none)";
    ::SysFreeString(text);
    EXPECT_EQ(result, copy == L"(none)" ? S_FALSE : S_OK);
    return copy;
}
std::wstring Name(const Accessible& object, LONG child = CHILDID_SELF) {
    return Text(object, &IAccessible::get_accName, child);
}
std::wstring Value(const Accessible& object, LONG child = CHILDID_SELF) {
    return Text(object, &IAccessible::get_accValue, child);
}
std::wstring DefaultAction(const Accessible& object, LONG child = CHILDID_SELF) {
    return Text(object, &IAccessible::get_accDefaultAction, child);
}

LONG Number(const Accessible& object, HRESULT (STDMETHODCALLTYPE IAccessible::*method)(VARIANT, VARIANT*), LONG child) {
    VARIANT result = {};
    EXPECT_EQ((object.Get()->*method)(Child(child), &result), S_OK);
    EXPECT_EQ(result.vt, VT_I4);
    return result.lVal;
}
LONG Role(const Accessible& object, LONG child = CHILDID_SELF) {
    return Number(object, &IAccessible::get_accRole, child);
}
LONG State(const Accessible& object, LONG child = CHILDID_SELF) {
    return Number(object, &IAccessible::get_accState, child);
}

CRect Location(const Accessible& object, LONG child = CHILDID_SELF) {
    LONG left = 0, top = 0, width = 0, height = 0;
    EXPECT_EQ(object->accLocation(&left, &top, &width, &height, Child(child)), S_OK);
    return CRect(left, top, left + width, top + height);
}

LONG ChildCount(const Accessible& object) {
    LONG count = -1;
    EXPECT_EQ(object->get_accChildCount(&count), S_OK);
    return count;
}

/// The object of a child; none for a simple element.
Accessible ChildObject(const Accessible& object, LONG child) {
    IDispatch* dispatch = nullptr;
    object->get_accChild(Child(child), &dispatch);
    return AsAccessible(dispatch);
}

class AccessibleTest : public GridTest {
protected:
    static constexpr LONG Columns = 3; // headers come first

    /// What a screen reader is given for the window.
    Accessible Grid() const {
        Accessible grid;
        EXPECT_EQ(::AccessibleObjectFromWindow(m_grid.m_hWnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                               reinterpret_cast<void**>(grid.Out())),
                  S_OK);
        return grid;
    }
    Accessible Row(int index) const { return ChildObject(Grid(), Columns + 1 + index); }
    CRect OnScreenRect(CRect rc) const {
        m_grid.ClientToScreen(&rc);
        return rc;
    }
    /// The names of the events that the system tells of the grid while `act` runs, with the children.
    template <class Action>
    static std::vector<std::pair<DWORD, LONG>> Events(HWND window, Action act) {
        s_events.clear();
        s_window = window;
        const HWINEVENTHOOK hook = ::SetWinEventHook(EVENT_OBJECT_REORDER, EVENT_OBJECT_STATECHANGE, nullptr, Hear,
                                                     ::GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
        act();
        MSG msg;
        for (const DWORD start = ::GetTickCount(); ::GetTickCount() - start < 100; ::Sleep(5))
            while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
                ::DispatchMessage(&msg);
        ::UnhookWinEvent(hook);
        return s_events;
    }

private:
    static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD) {
        if (window == s_window && object == OBJID_CLIENT)
            s_events.emplace_back(event, child);
    }
    static inline std::vector<std::pair<DWORD, LONG>> s_events;
    static inline HWND s_window;
};

// --- The tree -------------------------------------------------------------------------------------------------------

TEST_F(AccessibleTest, AWalkThroughTheTreeFindsEveryCell) {
    AddRecords(25);
    m_columns[1]->SetVisible(FALSE);
    m_grid.SetWindowText(_T("Weather"));
    const Accessible grid = Grid();
    ASSERT_TRUE(grid);
    EXPECT_EQ(Role(grid), ROLE_SYSTEM_TABLE);
    EXPECT_EQ(Name(grid), L"Weather");
    CRect rcClient;
    m_grid.GetClientRect(&rcClient);
    EXPECT_EQ(Location(grid), OnScreenRect(rcClient));

    // Children as clients ask for them, all at once.
    std::vector<VARIANT> children(ChildCount(grid));
    ASSERT_EQ(children.size(), 2u + 25u) << "two columns are visible";
    LONG obtained = 0;
    ASSERT_EQ(::AccessibleChildren(grid.Get(), 0, static_cast<LONG>(children.size()), children.data(), &obtained),
              S_OK);
    ASSERT_EQ(obtained, 27);
    for (LONG header : {1, 2}) {
        const CXTPReportColumn* const column = m_columns[header == 1 ? 0 : 2];
        EXPECT_EQ(children[header - 1].vt, VT_I4) << "a simple element";
        EXPECT_EQ(Role(grid, header), ROLE_SYSTEM_COLUMNHEADER);
        EXPECT_EQ(Name(grid, header), column->GetCaption().GetString());
        EXPECT_EQ(Location(grid, header), OnScreenRect(column->GetRect()));
        EXPECT_EQ(State(grid, header), 0);
    }
    for (int index = 0; index < 25; ++index) {
        ASSERT_EQ(children[2 + index].vt, VT_DISPATCH);
        const Accessible row = AsAccessible(children[2 + index].pdispVal);
        ASSERT_TRUE(row);
        const CXTPReportRow* const shown = m_grid.GetRows()->GetAt(index);
        EXPECT_EQ(Role(row), ROLE_SYSTEM_ROW);
        EXPECT_EQ(Name(row), Item(index, 0)->GetCaption(nullptr).GetString()) << "its first text";
        EXPECT_EQ(Location(row), OnScreenRect(shown->GetRect()));
        EXPECT_EQ((State(row) & STATE_SYSTEM_OFFSCREEN) != 0, index >= VisibleRows) << index;
        ASSERT_EQ(ChildCount(row), 2);
        for (LONG cell : {1, 2}) {
            const int item = cell == 1 ? 0 : 2;
            EXPECT_FALSE(ChildObject(row, cell)) << "a simple element";
            EXPECT_EQ(Role(row, cell), ROLE_SYSTEM_CELL);
            EXPECT_EQ(Name(row, cell), m_columns[item]->GetCaption().GetString());
            EXPECT_EQ(Value(row, cell), Item(index, item)->GetCaption(nullptr).GetString());
            const CRect rcColumn = m_columns[item]->GetRect();
            EXPECT_EQ(Location(row, cell), OnScreenRect(CRect(rcColumn.left, shown->GetRect().top, rcColumn.right,
                                                              shown->GetRect().bottom)));
        }
    }
}

TEST_F(AccessibleTest, ARowIsReadInOneGo) {
    AddRecords(2);
    EXPECT_EQ(Text(Row(1), &IAccessible::get_accDescription), L"A: A1; B: B1; C: C1");
    Item(1, 0)->SetCaption(_T("first"));
    EXPECT_EQ(Name(Row(1)), L"first");
    auto* const record = new CXTPReportRecord;
    record->AddItem(new CXTPReportRecordItemText(_T("")));
    record->AddItem(new CXTPReportRecordItemText(_T("only")));
    m_grid.AddRecord(record);
    m_grid.Populate();
    EXPECT_EQ(Name(Row(2)), L"only");
    EXPECT_EQ(Text(Row(2), &IAccessible::get_accDescription), L"B: only");
    m_grid.GetRecords()->GetAt(2)->SetPreviewItem(new CXTPReportRecordItemPreview(_T(" below\n")));
    EXPECT_EQ(Text(Row(2), &IAccessible::get_accDescription), L"B: only") << "not in preview mode";
    m_grid.EnablePreviewMode(TRUE);
    EXPECT_EQ(Text(Row(2), &IAccessible::get_accDescription), L"B: only; below");
    m_grid.Populate();
    const CXTPReportRow* const high = m_grid.GetRows()->GetAt(2);
    ASSERT_GT(high->GetRect().Height(), RowHeight());
    EXPECT_EQ(Location(Row(2)), OnScreenRect(high->GetRect()));
    EXPECT_EQ(Location(Row(2), 1).Height(), RowHeight()) << "a cell ends above the preview";
    EXPECT_EQ(Value(Row(2), 1), L"(none)");
    EXPECT_EQ(Value(Row(2), 3), L"(none)") << "the record has no such cell";
    EXPECT_EQ(Name(Row(2), 3), L"C");
}

/// A cell that shows no text.
class PictureItem : public CXTPReportRecordItem {
public:
    CString GetAccessibleValue(CXTPReportColumn* column) override { return column->GetCaption() + _T(": a picture"); }
};

TEST_F(AccessibleTest, ACellWithoutATextTellsWhatItShows) {
    auto* const record = new CXTPReportRecord;
    record->AddItem(new PictureItem);
    m_grid.AddRecord(record);
    m_grid.Populate();
    EXPECT_EQ(Value(Row(0), 1), L"A: a picture");
}

/// Tells which row it stands for.
class RowNumberItem : public CXTPReportRecordItemText {
public:
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override {
        CXTPReportRecordItemText::GetItemMetrics(args, metrics);
        metrics->strText.Format(_T("row %d"), args->pRow->GetIndex());
    }
};

TEST_F(AccessibleTest, AVirtualGridTellsEachRowsText) {
    auto* const record = new CXTPReportRecord;
    record->AddItem(new RowNumberItem);
    m_grid.SetVirtualMode(record, 1000000);
    m_grid.Populate();
    EXPECT_EQ(ChildCount(Grid()), Columns + 1000000);
    EXPECT_EQ(Value(Row(999999), 1), L"row 999999");
    EXPECT_EQ(Value(Row(7), 1), L"row 7");
}

TEST_F(AccessibleTest, NumbersThatMeanNoChildAreRefused) {
    AddRecords(2);
    const Accessible grid = Grid(), row = Row(0);
    BSTR name = nullptr;
    for (const LONG number : {-1L, Columns + 3L, std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::min()})
        EXPECT_EQ(grid->get_accName(Child(number), &name), E_INVALIDARG) << number;
    EXPECT_EQ(row->get_accName(Child(Columns + 1), &name), E_INVALIDARG);
    EXPECT_EQ(name, nullptr);
    VARIANT text = {};
    text.vt = VT_BSTR;
    EXPECT_EQ(grid->get_accName(text, &name), E_INVALIDARG);
    EXPECT_EQ(grid->get_accName(Child(1), nullptr), E_POINTER);
}

TEST_F(AccessibleTest, OtherPartsOfTheWindowAreTheSystems) {
    Accessible window;
    ASSERT_EQ(::AccessibleObjectFromWindow(m_grid.m_hWnd, static_cast<DWORD>(OBJID_WINDOW), __uuidof(IAccessible),
                                           reinterpret_cast<void**>(window.Out())),
              S_OK);
    EXPECT_TRUE(window) << "the frame with the scroll bars";
    AddRecords(1);
    IDispatch* parent = nullptr;
    ASSERT_EQ(Grid()->get_accParent(&parent), S_OK);
    EXPECT_TRUE(AsAccessible(parent));
    ASSERT_EQ(Row(0)->get_accParent(&parent), S_OK);
    EXPECT_EQ(Role(AsAccessible(parent)), ROLE_SYSTEM_TABLE);
}

// --- Places ---------------------------------------------------------------------------------------------------------

TEST_F(AccessibleTest, APointMeansTheElementThatStandsThere) {
    AddRecords(3);
    const Accessible grid = Grid(), second = Row(1);
    const auto hit = [this](const Accessible& object, CPoint point, VARIANT& result) {
        m_grid.ClientToScreen(&point);
        result = {};
        return object->accHitTest(point.x, point.y, &result);
    };
    VARIANT found;
    EXPECT_EQ(hit(grid, HeaderOf(1), found), S_OK);
    EXPECT_EQ(found.vt, VT_I4);
    EXPECT_EQ(found.lVal, 2);
    EXPECT_EQ(hit(grid, Cell(1, 2), found), S_OK);
    ASSERT_EQ(found.vt, VT_DISPATCH);
    EXPECT_EQ(Name(AsAccessible(found.pdispVal)), L"A1");
    EXPECT_EQ(hit(grid, CPoint(5, HeaderHeight() + 3 * RowHeight() + 5), found), S_OK);
    EXPECT_EQ(found.lVal, CHILDID_SELF) << "below the rows";
    EXPECT_EQ(hit(grid, CPoint(-5, 5), found), S_FALSE);
    EXPECT_EQ(found.vt, VT_EMPTY);
    EXPECT_EQ(hit(second, Cell(1, 2), found), S_OK);
    EXPECT_EQ(found.lVal, 3);
    EXPECT_EQ(hit(second, CPoint(Width - 5, Cell(1).y), found), S_OK);
    EXPECT_EQ(found.lVal, CHILDID_SELF) << "right of the columns";
    EXPECT_EQ(hit(second, Cell(0, 2), found), S_FALSE) << "another row";
}

TEST_F(AccessibleTest, NeighboursAreFound) {
    AddRecords(3);
    const Accessible grid = Grid();
    const auto go = [](const Accessible& from, LONG direction, LONG start = CHILDID_SELF) {
        VARIANT end = {};
        const HRESULT result = from->accNavigate(direction, Child(start), &end);
        if (result != S_OK)
            return std::wstring(end.vt == VT_EMPTY ? L"-" : L"?");
        return end.vt == VT_I4 ? std::to_wstring(end.lVal) : Name(AsAccessible(end.pdispVal));
    };
    EXPECT_EQ(go(grid, NAVDIR_FIRSTCHILD), L"1");
    EXPECT_EQ(go(grid, NAVDIR_LASTCHILD), L"A2");
    EXPECT_EQ(go(grid, NAVDIR_NEXT, 2), L"3");
    EXPECT_EQ(go(grid, NAVDIR_NEXT, 3), L"A0") << "the rows follow the headers";
    EXPECT_EQ(go(grid, NAVDIR_PREVIOUS, 4), L"3");
    EXPECT_EQ(go(grid, NAVDIR_PREVIOUS, 1), L"-");
    EXPECT_EQ(go(grid, NAVDIR_NEXT, 6), L"-");
    EXPECT_EQ(go(grid, NAVDIR_NEXT), L"-");
    EXPECT_EQ(go(Row(0), NAVDIR_DOWN), L"A1");
    EXPECT_EQ(go(Row(2), NAVDIR_UP), L"A1");
    EXPECT_EQ(go(Row(0), NAVDIR_UP), L"-");
    EXPECT_EQ(go(Row(2), NAVDIR_NEXT), L"-");
    EXPECT_EQ(go(Row(0), NAVDIR_RIGHT), L"-");
    EXPECT_EQ(go(Row(1), NAVDIR_FIRSTCHILD), L"1");
    EXPECT_EQ(go(Row(1), NAVDIR_RIGHT, 1), L"2");
    EXPECT_EQ(go(Row(1), NAVDIR_RIGHT, 3), L"-");
    VARIANT end = {};
    EXPECT_EQ(grid->accNavigate(99, Child(CHILDID_SELF), &end), E_INVALIDARG);
}

// --- Selection, focus, actions --------------------------------------------------------------------------------------

TEST_F(AccessibleTest, SelectedRowsAreTold) {
    AddRecords(20);
    const Accessible grid = Grid();
    VARIANT selection = {};
    EXPECT_EQ(grid->get_accSelection(&selection), S_FALSE);
    EXPECT_EQ(selection.vt, VT_EMPTY);
    m_grid.GetSelectedRows()->Select(m_grid.GetRows()->GetAt(4));
    ASSERT_EQ(grid->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_DISPATCH);
    EXPECT_EQ(Name(AsAccessible(selection.pdispVal)), L"A4");
    EXPECT_TRUE(State(Row(4)) & STATE_SYSTEM_SELECTED);
    EXPECT_TRUE(State(Row(4), 2) & STATE_SYSTEM_SELECTED);
    EXPECT_FALSE(State(Row(5)) & STATE_SYSTEM_SELECTED);
    EXPECT_TRUE(State(Row(5)) & STATE_SYSTEM_SELECTABLE);

    m_grid.GetSelectedRows()->SelectBlock(2, 3);
    m_grid.GetSelectedRows()->Add(m_grid.GetRows()->GetAt(15));
    ASSERT_EQ(grid->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_UNKNOWN);
    Holder<IEnumVARIANT> rows;
    selection.punkVal->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(rows.Out()));
    selection.punkVal->Release();
    VARIANT given[4] = {};
    ULONG count = 0;
    EXPECT_EQ(rows->Next(2, given, &count), S_OK);
    EXPECT_EQ(rows->Next(2, given + 2, &count), S_FALSE);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(given[0].lVal, Columns + 1 + 2);
    EXPECT_EQ(given[1].lVal, Columns + 1 + 3);
    EXPECT_EQ(given[2].lVal, Columns + 1 + 15);
    EXPECT_EQ(rows->Reset(), S_OK);
    EXPECT_EQ(rows->Skip(2), S_OK);
    Holder<IEnumVARIANT> clone;
    EXPECT_EQ(rows->Clone(clone.Out()), S_OK);
    EXPECT_EQ(rows->Skip(2), S_FALSE);
    EXPECT_EQ(clone->Next(1, given, nullptr), S_OK);
    EXPECT_EQ(given[0].lVal, Columns + 1 + 15);
}

TEST_F(AccessibleTest, RowsCanBeSelected) {
    AddRecords(6);
    const Accessible grid = Grid();
    const auto select = [&](LONG flags, int row) { return grid->accSelect(flags, Child(Columns + 1 + row)); };
    EXPECT_EQ(select(SELFLAG_TAKESELECTION, 1), S_OK);
    EXPECT_EQ(Selected(), std::vector<int>{1});
    EXPECT_EQ(m_grid.selectionChanges, 1);
    EXPECT_EQ(select(SELFLAG_ADDSELECTION, 4), S_OK);
    EXPECT_EQ(Selected(), (std::vector<int>{1, 4}));
    EXPECT_EQ(select(SELFLAG_EXTENDSELECTION, 2), S_OK) << "from the row selected last";
    EXPECT_EQ(Selected(), (std::vector<int>{2, 3, 4}));
    EXPECT_EQ(select(SELFLAG_REMOVESELECTION, 3), S_OK);
    EXPECT_EQ(Selected(), (std::vector<int>{2, 4}));
    EXPECT_EQ(m_grid.selectionChanges, 4);
    EXPECT_EQ(select(SELFLAG_REMOVESELECTION, 3), S_OK);
    EXPECT_EQ(m_grid.selectionChanges, 4) << "nothing changed";
    EXPECT_EQ(grid->accSelect(SELFLAG_TAKESELECTION, Child(1)), E_INVALIDARG) << "a header";
    EXPECT_EQ(grid->accSelect(SELFLAG_TAKESELECTION, Child(CHILDID_SELF)), E_INVALIDARG);
}

TEST_F(AccessibleTest, TheFocusIsToldAndCanBeTaken) {
    AddRecords(6);
    const Accessible grid = Grid();
    m_owner.SetFocus();
    VARIANT focus = {};
    EXPECT_EQ(grid->get_accFocus(&focus), S_FALSE);
    EXPECT_EQ(focus.vt, VT_EMPTY);
    EXPECT_EQ(Row(3)->accSelect(SELFLAG_TAKEFOCUS, Child(CHILDID_SELF)), S_OK);
    EXPECT_EQ(::GetFocus(), m_grid.m_hWnd);
    EXPECT_EQ(m_grid.GetFocusedRow(), m_grid.GetRows()->GetAt(3));
    EXPECT_TRUE(Selected().empty());
    ASSERT_EQ(grid->get_accFocus(&focus), S_OK);
    ASSERT_EQ(focus.vt, VT_DISPATCH);
    const Accessible row = AsAccessible(focus.pdispVal);
    EXPECT_EQ(Name(row), L"A3");
    EXPECT_TRUE(State(row) & STATE_SYSTEM_FOCUSED);
    ASSERT_EQ(row->get_accFocus(&focus), S_OK);
    EXPECT_EQ(focus.lVal, CHILDID_SELF) << "the row as a whole";

    EXPECT_EQ(row->accSelect(SELFLAG_TAKEFOCUS, Child(2)), S_OK);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[1]);
    ASSERT_EQ(row->get_accFocus(&focus), S_OK);
    EXPECT_EQ(focus.lVal, 2);
    EXPECT_TRUE(State(row, 2) & STATE_SYSTEM_FOCUSED);
    EXPECT_FALSE(State(row) & STATE_SYSTEM_FOCUSED);
    EXPECT_EQ(Row(2)->get_accFocus(&focus), S_FALSE);
}

TEST_F(AccessibleTest, DefaultActionsDoWhatMouseAndKeysDo) {
    AddRecords(3);
    const Accessible grid = Grid();
    EXPECT_EQ(DefaultAction(grid), L"(none)");
    EXPECT_EQ(grid->accDoDefaultAction(Child(CHILDID_SELF)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(DefaultAction(grid, 1), L"Sort");
    EXPECT_EQ(grid->accDoDefaultAction(Child(1)), S_OK);
    EXPECT_EQ(grid->accDoDefaultAction(Child(1)), S_OK);
    EXPECT_EQ(Texts(), (std::vector<std::wstring>{L"A2", L"A1", L"A0"}));
    m_columns[0]->SetSortable(FALSE);
    EXPECT_EQ(DefaultAction(grid, 1), L"(none)");
    EXPECT_EQ(grid->accDoDefaultAction(Child(1)), DISP_E_MEMBERNOTFOUND);

    Item(0, 1)->AddHyperlink(new CXTPReportHyperlink(0, 0));
    EXPECT_EQ(DefaultAction(Row(0), 2), L"Jump");
    EXPECT_TRUE(State(Row(0), 2) & STATE_SYSTEM_LINKED);
    EXPECT_EQ(Row(0)->accDoDefaultAction(Child(2)), S_OK);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_HYPERLINK), 1);
    EXPECT_EQ(DefaultAction(Row(0), 1), L"Open");
    EXPECT_EQ(Row(0)->accDoDefaultAction(Child(1)), S_OK);
    EXPECT_EQ(m_owner.Count(NM_RETURN), 1);
    EXPECT_EQ(m_owner.notifications.back().item, Item(0, 0));
    EXPECT_TRUE(State(Row(0), 1) & STATE_SYSTEM_READONLY);
    m_grid.AllowEdit(TRUE);
    EXPECT_FALSE(State(Row(0), 1) & STATE_SYSTEM_READONLY);
    m_columns[2]->SetEditable(FALSE);
    EXPECT_TRUE(State(Row(0), 3) & STATE_SYSTEM_READONLY);
    EXPECT_EQ(DefaultAction(Row(0), 1), L"Edit");
    EXPECT_EQ(Row(0)->accDoDefaultAction(Child(1)), S_OK);
    EXPECT_EQ(m_grid.GetActiveItem(), Item(0, 0));
    EXPECT_EQ(m_owner.Count(NM_RETURN), 1);
    m_grid.AllowEdit(FALSE);

    m_grid.EnableWindow(FALSE);
    EXPECT_TRUE(State(Row(0)) & STATE_SYSTEM_UNAVAILABLE);
    EXPECT_EQ(Row(0)->accDoDefaultAction(Child(1)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(m_owner.Count(NM_RETURN), 1);
}

TEST_F(AccessibleTest, ChangesAreToldAsEvents) {
    AddRecords(5);
    m_grid.SetFocus();
    using Told = std::vector<std::pair<DWORD, LONG>>;
    EXPECT_EQ(Events(m_grid.m_hWnd, [this] { Click(Cell(2)); }),
              (Told{{EVENT_OBJECT_FOCUS, Columns + 3}, {EVENT_OBJECT_SELECTION, Columns + 3}}));
    EXPECT_EQ(Events(m_grid.m_hWnd, [this] { Click(Cell(4), MK_CONTROL); }),
              (Told{{EVENT_OBJECT_FOCUS, Columns + 5}, {EVENT_OBJECT_SELECTIONWITHIN, CHILDID_SELF}}));
    EXPECT_EQ(Events(m_grid.m_hWnd, [this] { Key(VK_RIGHT); }), (Told{{EVENT_OBJECT_FOCUS, Columns + 5}}))
        << "a cell of it";
    EXPECT_EQ(Events(m_grid.m_hWnd, [this] { m_grid.Populate(); }), (Told{{EVENT_OBJECT_REORDER, CHILDID_SELF}}));
}

TEST_F(AccessibleTest, RowsThatAreTakenOutAreToldAndWhereTheFocusIsThen) {
    AddRecords(6);
    m_grid.SetFocus();
    Click(Cell(4));
    using Told = std::vector<std::pair<DWORD, LONG>>;
    const auto remove = [this](std::vector<int> places) {
        std::vector<CXTPReportRecord*> records;
        for (const int place : places)
            records.push_back(m_grid.GetRecords()->GetAt(place));
        return Events(m_grid.m_hWnd, [&] { m_grid.GetRecords()->RemoveRecords(records); });
    };
    const Told onlyRows = {{EVENT_OBJECT_REORDER, CHILDID_SELF}};
    EXPECT_EQ(remove({0}), onlyRows);
    EXPECT_EQ(remove({1}), onlyRows);
    EXPECT_EQ(remove({2}), (Told{{EVENT_OBJECT_REORDER, CHILDID_SELF}, {EVENT_OBJECT_FOCUS, Columns + 3}}))
        << "the focused one";
    EXPECT_EQ(remove({1, 2}), (Told{{EVENT_OBJECT_REORDER, CHILDID_SELF}, {EVENT_OBJECT_FOCUS, Columns + 1}}));
}

// --- Objects that are kept ------------------------------------------------------------------------------------------

TEST_F(AccessibleTest, ARowThatIsGoneIsToldToBe) {
    AddRecords(3);
    const Accessible grid = Grid(), row = Row(1);
    m_grid.Populate();
    BSTR name = nullptr;
    EXPECT_EQ(row->get_accName(Child(CHILDID_SELF), &name), CO_E_OBJNOTCONNECTED);
    LONG left = 0, top = 0, width = 0, height = 0;
    EXPECT_EQ(row->accLocation(&left, &top, &width, &height, Child(1)), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(row->accDoDefaultAction(Child(CHILDID_SELF)), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(ChildCount(grid), Columns + 3) << "the grid is there";
}

TEST_F(AccessibleTest, ObjectsOutliveTheControl) {
    AddRecords(3);
    const Accessible grid = Grid(), row = Row(1);
    m_grid.DestroyWindow();
    LONG count = -1;
    EXPECT_EQ(grid->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(row->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(count, 0);
    VARIANT result;
    EXPECT_EQ(grid->get_accFocus(&result), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(result.vt, VT_EMPTY);
}

TEST_F(AccessibleTest, AnOwnerMayDestroyTheControlInAnAnswer) {
    AddRecords(3);
    const Accessible row = Row(1);
    m_owner.onNotify = [this](UINT code) {
        if (code == NM_RETURN || code == XTP_NM_REPORT_FOCUSCHANGED)
            m_grid.DestroyWindow();
    };
    EXPECT_EQ(row->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(CHILDID_SELF)), S_OK);
    EXPECT_EQ(row->accDoDefaultAction(Child(CHILDID_SELF)), CO_E_OBJNOTCONNECTED);
}

// --- Outlines -------------------------------------------------------------------------------------------------------

class AccessibleOutlineTest : public AccessibleTest {
protected:
    AccessibleOutlineTest() {
        AddRecords(2);
        auto* child = new CXTPReportRecord;
        for (const LPCTSTR text : {_T("child"), _T("B0"), _T("C0")})
            child->AddItem(new ProbeItem(text));
        m_grid.GetRecords()->GetAt(0)->GetChilds()->Add(child);
        m_columns[0]->SetTreeColumn(TRUE);
        m_grid.Populate();
    }
    void Group() {
        m_grid.GetColumns()->GetGroupsOrder()->Add(m_columns[1]);
        m_grid.Populate();
    }
};

TEST_F(AccessibleOutlineTest, RowsTellTheirLevelAndWhetherTheyAreExpanded) {
    EXPECT_EQ(Role(Row(0)), ROLE_SYSTEM_OUTLINEITEM);
    EXPECT_EQ(Name(Row(0)), L"A0");
    EXPECT_EQ(Value(Row(0)), L"0");
    EXPECT_TRUE(State(Row(0)) & STATE_SYSTEM_COLLAPSED);
    EXPECT_FALSE(State(Row(0)) & STATE_SYSTEM_EXPANDED);
    EXPECT_FALSE(State(Row(1)) & (STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_EXPANDED));
    m_grid.ExpandAll();
    EXPECT_TRUE(State(Row(0)) & STATE_SYSTEM_EXPANDED);
    EXPECT_FALSE(State(Row(0)) & STATE_SYSTEM_COLLAPSED);
    EXPECT_EQ(Name(Row(1)), L"child");
    EXPECT_EQ(Value(Row(1)), L"1");
    EXPECT_EQ(Value(Row(1), 1), L"child") << "cells have their texts";
}

TEST_F(AccessibleOutlineTest, ADefaultActionExpandsAndCollapses) {
    EXPECT_EQ(DefaultAction(Row(0)), L"Expand");
    EXPECT_EQ(DefaultAction(Row(1)), L"Open");
    EXPECT_EQ(DefaultAction(Row(0), 1), L"Open") << "a cell does what enter does";
    EXPECT_EQ(Row(0)->accDoDefaultAction(Child(CHILDID_SELF)), S_OK);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
    EXPECT_EQ(DefaultAction(Row(0)), L"Collapse");
    EXPECT_EQ(Row(0)->accDoDefaultAction(Child(CHILDID_SELF)), S_OK);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 2);
}

TEST_F(AccessibleOutlineTest, AnExpansionIsTold) {
    const auto events = Events(m_grid.m_hWnd, [this] { m_grid.GetRows()->GetAt(0)->SetExpanded(TRUE); });
    EXPECT_THAT(events, ::testing::ElementsAre(std::pair<DWORD, LONG>(EVENT_OBJECT_REORDER, CHILDID_SELF),
                                               std::pair<DWORD, LONG>(EVENT_OBJECT_STATECHANGE, Columns + 1)));
}

TEST_F(AccessibleOutlineTest, ButtonsOfTheGroupByBoxComeLast) {
    Group();
    m_grid.GetColumns()->GetGroupsOrder()->Add(m_columns[2]);
    m_grid.Populate();
    const LONG children = Columns + m_grid.GetRows()->GetCount();
    EXPECT_EQ(ChildCount(Grid()), children) << "there is no box";
    m_grid.ShowGroupBy();
    const Accessible grid = Grid();
    ASSERT_EQ(ChildCount(grid), children + 2);
    EXPECT_EQ(Role(grid, children), ROLE_SYSTEM_OUTLINEITEM) << "the last row";
    EXPECT_FALSE(ChildObject(grid, children + 1));
    EXPECT_EQ(Name(grid, children + 1), L"B");
    EXPECT_EQ(Name(grid, children + 2), L"C");
    EXPECT_EQ(Value(grid, children + 1), L"(none)");
    EXPECT_EQ(Role(grid, children + 1), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(State(grid, children + 1), 0);
    const CRect rcButton = OnScreenRect(m_grid.GetReportHeader()->GetGroupRect(m_columns[2]));
    EXPECT_EQ(Location(grid, children + 2), rcButton);
    VARIANT hit = {};
    EXPECT_EQ(grid->accHitTest(rcButton.CenterPoint().x, rcButton.CenterPoint().y, &hit), S_OK);
    EXPECT_EQ(hit.vt, VT_I4);
    EXPECT_EQ(hit.lVal, children + 2);
    EXPECT_EQ(grid->accNavigate(NAVDIR_LASTCHILD, Child(CHILDID_SELF), &hit), S_OK);
    EXPECT_EQ(hit.lVal, children + 2);
    BSTR name = nullptr;
    EXPECT_EQ(grid->get_accName(Child(children + 3), &name), E_INVALIDARG);

    EXPECT_EQ(Name(Row(0)), L"B: B0 (2)");
    EXPECT_EQ(DefaultAction(grid, children + 1), L"Sort");
    EXPECT_EQ(grid->accDoDefaultAction(Child(children + 1)), S_OK);
    EXPECT_EQ(Name(Row(0)), L"B: B1 (1)") << "the groups are turned round";
}

TEST_F(AccessibleOutlineTest, ARowOfAGroupHasItsCaptionAndEmptyCells) {
    Group();
    EXPECT_EQ(Name(Row(0)), L"B: B0 (2)");
    EXPECT_EQ(Role(Row(0)), ROLE_SYSTEM_OUTLINEITEM);
    EXPECT_EQ(Value(Row(0)), L"0");
    EXPECT_TRUE(State(Row(0)) & STATE_SYSTEM_EXPANDED);
    EXPECT_EQ(Value(Row(1)), L"1");
    EXPECT_EQ(Value(Row(0), 2), L"(none)");
    EXPECT_EQ(DefaultAction(Row(0), 2), L"(none)");
    EXPECT_EQ(DefaultAction(Row(0)), L"Collapse");
    EXPECT_EQ(Row(0)->accDoDefaultAction(Child(1)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(Row(0)->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(CHILDID_SELF)), S_OK);
    EXPECT_THAT(Selected(), ::testing::ElementsAre(0));
    EXPECT_TRUE(State(Row(0)) & STATE_SYSTEM_SELECTED);
}

TEST_F(AccessibleOutlineTest, AGridWithoutAnOutlineHasRows) {
    m_grid.ResetContent();
    AddRecords(2);
    EXPECT_EQ(Role(Row(0)), ROLE_SYSTEM_ROW);
    EXPECT_EQ(Value(Row(0)), L"(none)");
}

} // namespace
