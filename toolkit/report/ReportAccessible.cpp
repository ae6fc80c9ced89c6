// The objects through which screen readers and other assistive programs see a report control.
#include "ReportAccessible.h"

#include "AccessibleElement.h"
#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportHeader.h"
#include "CXTPReportRow.h"
#include "CXTPReportRows.h"
#include "CXTPReportSelectedRows.h"

#include <oleacc.h>

#include <algorithm>
#include <atomic>
#include <new>

namespace reportaccessible {

namespace {

/// Runs a method's body; what it throws for want of memory must not leave a COM method.
template <class Body>
HRESULT Guarded(Body body) noexcept {
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (CException* exception) {
        exception->Delete();
        return E_FAIL;
    }
}

HRESULT GiveText(const CString& text, BSTR* result) {
    if (text.IsEmpty())
        return S_FALSE;
    *result = ::SysAllocStringLen(text, static_cast<UINT>(text.GetLength()));
    return *result ? S_OK : E_OUTOFMEMORY;
}

void GiveNumber(LONG number, VARIANT* result) {
    result->vt = VT_I4;
    result->lVal = number;
}

/// Keeps a row object, or none, in memory.
class RowReference {
public:
    explicit RowReference(CXTPReportRow* row) : m_row(row) {
        if (m_row)
            m_row->InternalAddRef();
    }
    ~RowReference() {
        if (m_row)
            m_row->InternalRelease();
    }
    RowReference(const RowReference&) = delete;
    RowReference& operator=(const RowReference&) = delete;

private:
    CXTPReportRow* const m_row;
};

// --- The selected rows of a grid -------------------------------------------------------------------------------------

/// The numbers of the children that are selected, as they were when it was made.
class SelectionEnumerator final : public IEnumVARIANT {
public:
    SelectionEnumerator(RowSelection rows, LONG firstChild) : m_rows(std::move(rows)), m_firstChild(firstChild) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object)
            return E_POINTER;
        const bool isOurs = iid == IID_IUnknown || iid == IID_IEnumVARIANT;
        *object = isOurs ? static_cast<IEnumVARIANT*>(this) : nullptr;
        if (isOurs)
            AddRef();
        return isOurs ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP Next(ULONG count, VARIANT* children, ULONG* fetched) override {
        if (!children)
            return E_POINTER;
        ULONG given = 0;
        for (; given < count && m_next < m_rows.Count(); ++given, ++m_next)
            GiveNumber(m_firstChild + m_rows.RowAt(m_next), &children[given]);
        if (fetched)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override {
        const std::int64_t left = m_rows.Count() - m_next;
        m_next += std::min<std::int64_t>(count, left);
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        m_next = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumVARIANT** clone) override {
        return Guarded([&] {
            if (!clone)
                return E_POINTER;
            auto* const copy = new SelectionEnumerator(m_rows, m_firstChild);
            copy->m_next = m_next;
            *clone = copy;
            return S_OK;
        });
    }

private:
    std::atomic<ULONG> m_references = 1;
    const RowSelection m_rows;
    const LONG m_firstChild;
    std::int64_t m_next = 0;
};

// --- The grid, or one row --------------------------------------------------------------------------------------------

class ReportAccessible final : public IAccessible {
public:
    /// `row` is null for the grid itself.
    explicit ReportAccessible(std::shared_ptr<ReportAccessLink> link, CXTPReportRow* row = nullptr)
        : m_link(std::move(link)), m_row(row), m_rowKept(row) {}

    // --- IUnknown, IDispatch ----------------------------------------------------------------------------------------
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object)
            return E_POINTER;
        const bool isOurs = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IAccessible);
        *object = isOurs ? static_cast<IAccessible*>(this) : nullptr;
        if (isOurs)
            AddRef();
        return isOurs ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }
    // Clients call through IAccessible; those that can only dispatch are not served.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    // --- The tree ---------------------------------------------------------------------------------------------------
    STDMETHODIMP get_accParent(IDispatch** parent) override {
        return Tell(parent, [&] {
            if (m_row)
                return GiveObject(nullptr, parent);
            return ::AccessibleObjectFromWindow(Control().m_hWnd, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                                reinterpret_cast<void**>(parent));
        });
    }
    STDMETHODIMP get_accChildCount(LONG* count) override {
        return Tell(count, [&] {
            *count = ColumnCount() + (m_row ? 0 : Control().GetRows()->GetCount() + GroupButtonCount());
            return S_OK;
        });
    }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
        return TellOf(child, object, [&](const Element& element) {
            const bool isSelf = element.row == m_row && !element.column;
            if (!isSelf && !element.IsRow())
                return S_FALSE; // a simple element
            return GiveObject(element.row, object);
        });
    }
    STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return TellOf(start, end, [&](const Element&) { return Navigate(direction, start.lVal, end); });
    }
    STDMETHODIMP accHitTest(LONG x, LONG y, VARIANT* hit) override {
        return Tell(hit, [&] {
            CPoint point(x, y);
            Control().ScreenToClient(&point);
            return HitTest(point, hit);
        });
    }

    // --- What an element is -----------------------------------------------------------------------------------------
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        return TellOf(child, name, [&](const Element& element) { return GiveText(NameOf(Control(), element), name); });
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        return TellOf(child, value,
                      [&](const Element& element) { return GiveText(ValueOf(Control(), element), value); });
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override {
        return TellOf(child, description,
                      [&](const Element& element) { return GiveText(DescriptionOf(Control(), element), description); });
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        return TellOf(child, role, [&](const Element& element) {
            GiveNumber(RoleOf(Control(), element), role);
            return S_OK;
        });
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        return TellOf(child, state, [&](const Element& element) {
            GiveNumber(StateOf(Control(), element), state);
            return S_OK;
        });
    }
    STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
        if (!left || !top || !width || !height)
            return E_POINTER;
        *left = *top = *width = *height = 0;
        return With(child, [&](const Element& element) {
            CRect rc = RectOf(Control(), element);
            Control().ClientToScreen(&rc);
            *left = rc.left;
            *top = rc.top;
            *width = rc.Width();
            *height = rc.Height();
            return S_OK;
        });
    }
    STDMETHODIMP get_accHelp(VARIANT, BSTR* help) override { return Nothing(help); }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT, LONG*) override { return Nothing(file); }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR* shortcut) override { return Nothing(shortcut); }
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

    // --- Focus, selection, actions ----------------------------------------------------------------------------------
    STDMETHODIMP get_accFocus(VARIANT* focus) override {
        return Tell(focus, [&] {
            CXTPReportRow* const row = Control().HasFocus() ? Control().GetFocusedRow() : nullptr;
            if (!m_row && row)
                return GiveRow(row, focus);
            if (m_row ? m_row != row : !Control().HasFocus())
                return S_FALSE;
            const bool isCell = row && Control().IsColumnFocusVisible();
            GiveNumber(isCell ? NumberOf(Control().GetFocusedColumn()) : CHILDID_SELF, focus);
            return S_OK;
        });
    }
    STDMETHODIMP get_accSelection(VARIANT* selection) override {
        return Tell(selection, [&] {
            const CXTPReportSelectedRows& selected = *Control().GetSelectedRows();
            if (m_row || selected.GetCount() == 0)
                return S_FALSE;
            if (selected.GetCount() == 1)
                return GiveRow(selected.GetAt(0), selection);
            selection->punkVal = new SelectionEnumerator(selected.GetRanges(), ColumnCount() + 1);
            selection->vt = VT_UNKNOWN;
            return S_OK;
        });
    }
    STDMETHODIMP accSelect(LONG flags, VARIANT child) override {
        return With(child, [&](const Element& element) { return Select(flags, element); });
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        return TellOf(child, action,
                      [&](const Element& element) { return GiveText(DefaultActionOf(Control(), element), action); });
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        return With(child, [&](const Element& element) {
            if (!Control().IsWindowEnabled() || DefaultActionOf(Control(), element).IsEmpty())
                return DISP_E_MEMBERNOTFOUND;
            Act(Control(), element);
            return S_OK;
        });
    }

private:
    ~ReportAccessible() = default; // by Release

    /// False once the window or the row is gone.
    bool IsConnected() const { return m_link->control && (!m_row || m_row->GetControl() == m_link->control); }
    CXTPReportControl& Control() const { return *m_link->control; }
    int ColumnCount() const { return Control().GetColumns()->GetVisibleColumnsCount(); }
    int GroupButtonCount() const {
        return Control().IsGroupByVisible() ? Control().GetColumns()->GetGroupsOrder()->GetCount() : 0;
    }

    // --- Frames of methods: arguments are checked, results emptied, and nothing is thrown ----------------------------
    static void Empty(BSTR* result) { *result = nullptr; }
    static void Empty(LONG* result) { *result = 0; }
    static void Empty(IDispatch** result) { *result = nullptr; }
    static void Empty(VARIANT* result) { ::VariantInit(result); }

    template <class Result>
    static HRESULT Nothing(Result* result) {
        if (!result)
            return E_POINTER;
        Empty(result);
        return S_FALSE;
    }

    template <class Result, class Body>
    HRESULT Tell(Result* result, Body body) noexcept {
        if (!result)
            return E_POINTER;
        Empty(result);
        return IsConnected() ? Guarded(body) : CO_E_OBJNOTCONNECTED;
    }
    template <class Result, class Body>
    HRESULT TellOf(const VARIANT& child, Result* result, Body body) noexcept {
        if (!result)
            return E_POINTER;
        Empty(result);
        return With(child, body);
    }
    /// Runs the body with the element that the number means for this object.
    template <class Body>
    HRESULT With(const VARIANT& child, Body body) noexcept {
        if (!IsConnected())
            return CO_E_OBJNOTCONNECTED;
        if (child.vt != VT_I4)
            return E_INVALIDARG;
        return Guarded([&]() -> HRESULT {
            const Element element = ElementOf(child.lVal);
            if (child.lVal != CHILDID_SELF && element.row == m_row && !element.column)
                return E_INVALIDARG;
            return body(element);
        });
    }

    // --- Numbers of children, from 1 ---------------------------------------------------------------------------------
    /// The element of this object itself where the number means nothing.
    Element ElementOf(LONG number) const {
        const int columns = ColumnCount();
        if (number >= 1 && number <= columns)
            return {m_row, Control().GetColumns()->GetVisibleAt(number - 1)};
        const int rows = Control().GetRows()->GetCount();
        if (!m_row && number > columns && number - columns <= rows)
            return {Control().GetRows()->GetAt(number - columns - 1), nullptr};
        if (!m_row && number > columns && number - columns - rows <= GroupButtonCount())
            return {nullptr, Control().GetColumns()->GetGroupsOrder()->GetAt(number - columns - rows - 1), true};
        return {m_row, nullptr};
    }
    LONG NumberOf(const CXTPReportColumn* column) const {
        LONG number = 1;
        while (Control().GetColumns()->GetVisibleAt(number - 1) != column)
            ++number;
        return number;
    }

    // --- Results -----------------------------------------------------------------------------------------------------
    HRESULT GiveObject(CXTPReportRow* row, IDispatch** object) {
        *object = new ReportAccessible(m_link, row);
        return S_OK;
    }
    HRESULT GiveRow(CXTPReportRow* row, VARIANT* result) {
        const HRESULT answer = GiveObject(row, &result->pdispVal);
        result->vt = VT_DISPATCH;
        return answer;
    }
    /// An object for a row, else the number; nothing where there is no such child.
    HRESULT GiveChild(LONG number, VARIANT* result) {
        const Element element = number >= 1 ? ElementOf(number) : Element{m_row, nullptr};
        if (element.row == m_row && !element.column)
            return S_FALSE;
        if (element.IsRow())
            return GiveRow(element.row, result);
        GiveNumber(number, result);
        return S_OK;
    }

    HRESULT Navigate(LONG direction, LONG start, VARIANT* end) {
        LONG last = 0;
        get_accChildCount(&last);
        const bool isForward = direction == NAVDIR_NEXT || direction == NAVDIR_DOWN || direction == NAVDIR_RIGHT;
        switch (direction) {
        case NAVDIR_FIRSTCHILD:
        case NAVDIR_LASTCHILD:
            return start == CHILDID_SELF ? GiveChild(direction == NAVDIR_FIRSTCHILD ? 1 : last, end) : S_FALSE;
        case NAVDIR_NEXT:
        case NAVDIR_PREVIOUS:
        case NAVDIR_UP:
        case NAVDIR_DOWN:
        case NAVDIR_LEFT:
        case NAVDIR_RIGHT:
            break;
        default:
            return E_INVALIDARG;
        }
        if (start != CHILDID_SELF)
            return GiveChild(start + (isForward ? 1 : -1), end);
        if (!m_row || direction == NAVDIR_LEFT || direction == NAVDIR_RIGHT)
            return S_FALSE;
        CXTPReportRow* const next = Control().GetRows()->GetAt(m_row->GetIndex() + (isForward ? 1 : -1));
        return next ? GiveRow(next, end) : S_FALSE;
    }

    HRESULT HitTest(CPoint point, VARIANT* hit) {
        if (!RectOf(Control(), {m_row, nullptr}).PtInRect(point))
            return S_FALSE;
        LONG number = CHILDID_SELF;
        if (m_row) {
            for (LONG cell = 1; cell <= ColumnCount() && number == CHILDID_SELF; ++cell)
                if (RectOf(Control(), ElementOf(cell)).PtInRect(point))
                    number = cell;
        } else if (const CXTPReportColumn* const column = Control().GetReportHeader()->HitTest(point)) {
            number = NumberOf(column);
        } else if (const CXTPReportColumn* const grouped = Control().GetReportHeader()->HitTestGroup(point)) {
            number = ColumnCount() + Control().GetRows()->GetCount() + 1 +
                     Control().GetColumns()->GetGroupsOrder()->IndexOf(grouped);
        } else if (CXTPReportRow* const row = Control().HitTest(point)) {
            return GiveRow(row, hit);
        }
        GiveNumber(number, hit);
        return S_OK;
    }

    HRESULT Select(LONG flags, const Element& element) {
        CXTPReportControl& control = Control();
        const RowReference kept(element.row); // the owner hears of the focus and may do anything
        if (flags & SELFLAG_TAKEFOCUS) {
            control.SetFocus();
            if (m_link->control && element.row)
                control.SetFocusedRow(element.row, FALSE);
            if (m_link->control && element.IsCell())
                control.SetFocusedColumn(element.column);
        }
        constexpr LONG selecting =
            SELFLAG_TAKESELECTION | SELFLAG_EXTENDSELECTION | SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION;
        if (!m_link->control || (flags & selecting) == 0)
            return S_OK;
        if (!element.IsRow() || element.row->GetControl() != m_link->control)
            return E_INVALIDARG;
        CXTPReportSelectedRows& rows = *control.GetSelectedRows();
        const RowSelection former = rows.GetRanges();
        const int index = element.row->GetIndex();
        if (flags & SELFLAG_TAKESELECTION)
            rows.Select(element.row);
        if (flags & SELFLAG_EXTENDSELECTION)
            rows.SelectBlock(std::max(rows.GetAnchor(), 0), index, (flags & SELFLAG_ADDSELECTION) == 0);
        else if (flags & SELFLAG_ADDSELECTION)
            rows.Add(element.row);
        if (flags & SELFLAG_REMOVESELECTION)
            rows.Remove(element.row);
        if ((flags & SELFLAG_EXTENDSELECTION) == 0)
            rows.SetAnchor(index);
        if (former != rows.GetRanges())
            control.OnSelectionChanged();
        return S_OK;
    }

    std::atomic<ULONG> m_references = 1;
    const std::shared_ptr<ReportAccessLink> m_link;
    CXTPReportRow* const m_row;
    const RowReference m_rowKept;
};

} // namespace

LRESULT Answer(const std::shared_ptr<ReportAccessLink>& link, WPARAM wParam) {
    auto* const object = new (std::nothrow) ReportAccessible(link);
    if (!object)
        return 0;
    const LRESULT answer = ::LresultFromObject(__uuidof(IAccessible), wParam, object);
    object->Release();
    return answer;
}

LONG ChildOfRow(const CXTPReportControl& control, int rowIndex) {
    return rowIndex < 0 ? CHILDID_SELF : control.GetColumns()->GetVisibleColumnsCount() + 1 + rowIndex;
}

} // namespace reportaccessible
