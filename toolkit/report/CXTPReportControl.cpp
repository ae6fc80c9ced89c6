// The report control: its parts, its content, its look, and what it tells its owner.
#include "CXTPReportControl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "ReportControlImpl.h"

#include "../../framework/windows/WindowDpi.h"

#include <algorithm>
#include <new>

// Windows 8.1 and 10 send these.
#ifndef WM_DPICHANGED
#define WM_DPICHANGED 0x02E0
#endif
#ifndef WM_DPICHANGED_BEFOREPARENT
#define WM_DPICHANGED_BEFOREPARENT 0x02E2
#define WM_DPICHANGED_AFTERPARENT 0x02E3
#endif

IMPLEMENT_DYNCREATE(CXTPReportControl, CWnd)

BEGIN_MESSAGE_MAP(CXTPReportControl, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_PRINTCLIENT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_CONTEXTMENU()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOUSEHWHEEL()
    ON_WM_SETCURSOR()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_CHAR()
    ON_WM_SYSCHAR()
    ON_WM_GETDLGCODE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_TIMER()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ENABLE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_MESSAGE(WM_DPICHANGED, &CXTPReportControl::OnDpiChanged)
    ON_MESSAGE(WM_DPICHANGED_BEFOREPARENT, &CXTPReportControl::OnDpiChangedAroundParent)
    ON_MESSAGE(WM_DPICHANGED_AFTERPARENT, &CXTPReportControl::OnDpiChangedAroundParent)
    ON_MESSAGE(WM_GETOBJECT, &CXTPReportControl::OnGetObject)
    ON_MESSAGE(WM_SETFONT, &CXTPReportControl::OnSetFont)
    ON_MESSAGE(WM_GETFONT, &CXTPReportControl::OnGetFont)
END_MESSAGE_MAP()

namespace {

constexpr LPCTSTR WindowClassName = _T("XTPReport");

/// Registers the window class when it is not yet.
bool RegisterWindowClass() {
    WNDCLASS windowClass = {};
    const HINSTANCE module = AfxGetInstanceHandle();
    if (::GetClassInfo(module, WindowClassName, &windowClass))
        return true;
    windowClass = {};
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = module;
    windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = WindowClassName;
    return AfxRegisterClass(&windowClass);
}

} // namespace

// --- Lifetime -------------------------------------------------------------------------------------------------------

CXTPReportControl::Impl::Impl(CXTPReportControl& owner)
    : control(owner), paintManager(std::make_unique<CXTPReportPaintManager>()),
      columns(std::make_unique<CXTPReportColumns>(&owner)), rows(std::make_unique<CXTPReportRows>(&owner)),
      selectedRows(std::make_unique<CXTPReportSelectedRows>(&owner)),
      records(std::make_unique<CXTPReportRecords>(&owner)),
      header(std::make_unique<CXTPReportHeader>(&owner, columns.get())), ownEdit(new CXTPReportInplaceEdit, false) {
    paintManager->SetControl(&owner);
}

CXTPReportControl::Impl::~Impl() { DisconnectAccess(); }

CXTPReportControl::CXTPReportControl() : m_impl(std::make_unique<Impl>(*this)) {
    RegisterWindowClass(); // a dialog makes the window before its object is told of it
}

CXTPReportControl::~CXTPReportControl() {
    if (m_hWnd)
        DestroyWindow();
    if (CXTPReportInplaceEdit* const pEdit = std::exchange(m_impl->openEdit, nullptr))
        pEdit->ForgetControl();
    m_impl->isLayingOut = true; // nothing is laid out any more, which may take memory that there is not
    // Emptied while everything still stands, because records and columns tell the control when they go.
    m_impl->records->RemoveAll();
    m_impl->records->SetVirtualMode(nullptr, 0);
    m_impl->rows->Clear();
    m_impl->columns->Clear();
}

BOOL CXTPReportControl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return RegisterWindowClass() && CWnd::Create(WindowClassName, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CXTPReportControl::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    m_impl->FollowDpi(windowdpi::OfWindow(m_hWnd));
    AdjustLayout(); // a window that is taken over gets no WM_CREATE
}

int CXTPReportControl::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_impl->FollowDpi(windowdpi::OfWindow(m_hWnd));
    AdjustLayout();
    return 0;
}

void CXTPReportControl::OnDestroy() {
    m_impl->FinishEdit();
    m_impl->toolTips.CancelToolTips();
    m_impl->CancelGesture();
    m_impl->buffer.Release();
    m_impl->damage = WholeDamage();
    m_impl->barV = m_impl->barH = BarState();
    m_impl->isTrackingLeave = false;
    m_impl->DisconnectAccess();
    CWnd::OnDestroy();
}

// --- Content --------------------------------------------------------------------------------------------------------

void CXTPReportControl::AddColumn(CXTPReportColumn* pColumn) { m_impl->columns->Add(pColumn); }

CXTPReportRecord* CXTPReportControl::AddRecord(CXTPReportRecord* pRecord) { return m_impl->records->Add(pRecord); }

void CXTPReportControl::Populate() {
    if (!m_impl->FinishEdit())
        return;
    m_impl->RemakeRows([this] {
        if (IsVirtualMode())
            m_impl->rows->RebuildVirtual(m_impl->records->GetVirtualRecord(), m_impl->records->GetVirtualCount());
        else
            m_impl->rows->Rebuild(*m_impl->records, *m_impl->columns, m_impl->filter);
    });
}

void CXTPReportControl::ResetContent() {
    if (!OnRecordLeaving(nullptr))
        return;
    m_impl->CancelGesture();
    m_impl->records->RemoveAll();
    m_impl->records->SetVirtualMode(nullptr, 0);
    m_impl->rows->Clear();
    m_impl->selectedRows->Clear();
    OnRowsCleared();
}

void CXTPReportControl::SetVirtualMode(CXTPReportRecord* pVirtualRecord, int nCount) {
    m_impl->records->SetVirtualMode(pVirtualRecord, nCount);
}

BOOL CXTPReportControl::IsVirtualMode() const { return m_impl->records->IsVirtualMode(); }

void CXTPReportControl::OnRowsChanged(int nFirst, int nRemoved, int nInserted) {
    const auto moved = [&](int nRow) {
        if (nRow >= nFirst + nRemoved)
            return nRow + nInserted - nRemoved;
        return std::min(nRow, nFirst);
    };
    try {
        m_impl->SplicePreviews(nFirst, nRemoved, nInserted);
    } catch (const std::bad_alloc&) {
        // The rows have the plain height until the next Populate.
    }
    // A removed row hands the focus to the one that takes its place, so that the keyboard goes on from there.
    const bool movesFocus = m_impl->focusedRow >= nFirst && m_impl->focusedRow < nFirst + nRemoved;
    m_impl->focusedRow = std::min(moved(m_impl->focusedRow), m_impl->rows->GetCount() - 1);
    // Rows that come in at the top stand in view; those that come in above it move nothing.
    if (m_impl->topRow > nFirst)
        m_impl->topRow = moved(m_impl->topRow);
    m_impl->chosenTopRow = m_impl->topRow;
    AdjustLayout();
    m_impl->TellRowsChanged(movesFocus);
}

void CXTPReportControl::OnRowsTakenOut(const RowSelection& gone) {
    try {
        m_impl->MeasurePreviews();
    } catch (const std::bad_alloc&) {
        // The rows have the plain height until the next Populate.
    }
    int& focused = m_impl->focusedRow;
    const bool movesFocus = gone.Contains(focused);
    focused = std::min(focused - gone.CountAbove(focused), m_impl->rows->GetCount() - 1);
    m_impl->topRow -= gone.CountAbove(m_impl->topRow);
    m_impl->chosenTopRow = m_impl->topRow;
    AdjustLayout();
    m_impl->TellRowsChanged(movesFocus);
}

void CXTPReportControl::OnRowsCleared() {
    m_impl->previews.Clear();
    m_impl->focusedRow = -1;
    m_impl->topRow = m_impl->chosenTopRow = 0;
    m_impl->wantedRow = -1;
    AdjustLayout();
    m_impl->TellAccess(EVENT_OBJECT_REORDER);
}

void CXTPReportControl::OnColumnRemoved(CXTPReportColumn* pColumn) {
    if (m_impl->focusedColumn == pColumn)
        m_impl->focusedColumn = nullptr;
    m_impl->header->OnColumnRemoved(pColumn);
}

// --- Parts ----------------------------------------------------------------------------------------------------------

CXTPReportColumns* CXTPReportControl::GetColumns() const { return m_impl->columns.get(); }
CXTPReportRecords* CXTPReportControl::GetRecords() const { return m_impl->records.get(); }
CXTPReportRows* CXTPReportControl::GetRows() const { return m_impl->rows.get(); }
CXTPReportSelectedRows* CXTPReportControl::GetSelectedRows() const { return m_impl->selectedRows.get(); }
CXTPReportHeader* CXTPReportControl::GetReportHeader() const { return m_impl->header.get(); }
CXTPReportPaintManager* CXTPReportControl::GetPaintManager() const { return m_impl->paintManager.get(); }
CXTPToolTipContext* CXTPReportControl::GetToolTipContext() const { return &m_impl->toolTips; }

void CXTPReportControl::SetReportHeader(CXTPReportHeader* pHeader) {
    if (!pHeader || pHeader == m_impl->header.get())
        return;
    m_impl->CancelGesture();
    m_impl->header.reset(pHeader);
    AdjustLayout();
}

void CXTPReportControl::SetPaintManager(CXTPReportPaintManager* pPaintManager) {
    if (!pPaintManager || pPaintManager == m_impl->paintManager.get())
        return;
    m_impl->TakePaintManager(std::unique_ptr<CXTPReportPaintManager>(pPaintManager));
}

void CXTPReportControl::SetTheme(XTPReportPaintTheme theme, BOOL bRedraw) {
    auto paintManager = std::make_unique<CXTPReportPaintManager>(theme);
    paintManager->TakeOver(*m_impl->paintManager);
    m_impl->TakePaintManager(std::move(paintManager));
    if (bRedraw && m_hWnd)
        UpdateWindow();
}

void CXTPReportControl::Impl::TakePaintManager(std::unique_ptr<CXTPReportPaintManager> taken) {
    const int dpi = paintManager->GetDpi();
    paintManager = std::move(taken);
    paintManager->SetControl(&control);
    paintManager->SetDpi(dpi); // that of the window, whatever it was made for
    control.AdjustLayout();
}

void CXTPReportControl::ShowGroupBy(BOOL bShow) {
    if (m_impl->isGroupByShown == (bShow != FALSE))
        return;
    m_impl->CancelGesture();
    m_impl->isGroupByShown = bShow != FALSE;
    AdjustLayout();
}

BOOL CXTPReportControl::IsGroupByVisible() const { return m_impl->isGroupByShown; }

void CXTPReportControl::SetFreezeColumnsCount(int nCount) {
    nCount = std::max(nCount, 0);
    if (m_impl->freezeCount == nCount)
        return;
    m_impl->CancelGesture();
    m_impl->freezeCount = nCount;
    AdjustLayout();
}

int CXTPReportControl::GetFreezeColumnsCount() const { return m_impl->freezeCount; }

// --- Assistive programs ---------------------------------------------------------------------------------------------

LRESULT CXTPReportControl::OnGetObject(WPARAM wParam, LPARAM lParam) {
    // Also when it comes from a program of 32 bits.
    if (static_cast<LONG>(lParam) != OBJID_CLIENT)
        return Default();
    if (!m_impl->accessLink)
        m_impl->accessLink = std::make_shared<ReportAccessLink>(ReportAccessLink{this});
    return reportaccessible::Answer(m_impl->accessLink, wParam);
}

void CXTPReportControl::Impl::DisconnectAccess() {
    if (accessLink)
        accessLink->control = nullptr;
    accessLink.reset();
}

void CXTPReportControl::Impl::TellRowsChanged(bool movesFocus) const {
    TellAccess(EVENT_OBJECT_REORDER);
    if (movesFocus && focusedRow >= 0 && control.HasFocus())
        TellAccess(EVENT_OBJECT_FOCUS, focusedRow);
}

void CXTPReportControl::Impl::TellAccess(DWORD event, int rowIndex) const {
    if (control.m_hWnd)
        ::NotifyWinEvent(event, control.m_hWnd, OBJID_CLIENT, reportaccessible::ChildOfRow(control, rowIndex));
}

// --- What the system changes ----------------------------------------------------------------------------------------

LRESULT CXTPReportControl::OnDpiChanged(WPARAM wParam, LPARAM) {
    m_impl->FollowDpi(LOWORD(wParam));
    return 0;
}

LRESULT CXTPReportControl::OnDpiChangedAroundParent(WPARAM, LPARAM) {
    m_impl->FollowDpi(windowdpi::OfWindow(m_hWnd));
    return 0;
}

void CXTPReportControl::Impl::FollowDpi(int dpi) {
    if (dpi < 1 || dpi > MaxDpi || dpi == paintManager->GetDpi())
        return;
    CancelGesture();
    toolTips.CancelToolTips();
    paintManager->SetDpi(dpi);
    columns->OnDpiChanged();
    control.AdjustLayout();
}

void CXTPReportControl::OnSysColorChange() {
    CWnd::OnSysColorChange();
    m_impl->paintManager->RefreshMetrics();
    AdjustLayout();
}

void CXTPReportControl::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    CWnd::OnSettingChange(uFlags, lpszSection);
    m_impl->paintManager->RefreshMetrics();
    AdjustLayout();
}

void CXTPReportControl::OnEnable(BOOL bEnable) {
    CWnd::OnEnable(bEnable);
    if (!m_impl->FinishEdit())
        return;
    m_impl->CancelGesture();
    RedrawControl();
}

LRESULT CXTPReportControl::OnSetFont(WPARAM wParam, LPARAM lParam) {
    LOGFONT font = {};
    if (::GetObject(reinterpret_cast<HFONT>(wParam), sizeof(font), &font) == sizeof(font)) {
        m_impl->paintManager->SetTextFont(font);
        m_impl->LayOut();
        if (LOWORD(lParam))
            RedrawControl();
    }
    return 0;
}

LRESULT CXTPReportControl::OnGetFont(WPARAM, LPARAM) {
    return reinterpret_cast<LRESULT>(m_impl->paintManager->GetTextFont()->GetSafeHandle());
}

// --- Editing commands -----------------------------------------------------------------------------------------------

BOOL CXTPReportControl::CanCut() { return FALSE; }

BOOL CXTPReportControl::CanCopy() { return m_impl->selectedRows->GetCount() > 0; }

BOOL CXTPReportControl::CanPaste() { return FALSE; }

// --- Notifications --------------------------------------------------------------------------------------------------

LRESULT CXTPReportControl::SendItemNotify(UINT nCode, CPoint pt, CXTPReportRow* pRow, CXTPReportRecordItem* pItem,
                                          CXTPReportColumn* pColumn, int nHyperlink) {
    XTP_NM_REPORTRECORDITEM notify = {};
    notify.pRow = pRow;
    notify.pItem = pItem;
    notify.pColumn = pColumn;
    notify.nHyperlink = nHyperlink;
    notify.pt = pt;
    return SendNotify(nCode, &notify.hdr);
}

LRESULT CXTPReportControl::SendColumnNotify(UINT nCode, CXTPReportColumn* pColumn) {
    XTP_NM_REPORTCOLUMN notify = {};
    notify.pColumn = pColumn;
    return SendNotify(nCode, &notify.hdr);
}

LRESULT CXTPReportControl::SendNotify(UINT nCode, NMHDR* pHeader) {
    const CWnd* owner = m_hWnd ? GetOwner() : nullptr;
    if (!owner || !owner->GetSafeHwnd())
        return 0;
    pHeader->hwndFrom = m_hWnd;
    pHeader->idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    pHeader->code = nCode;
    return owner->SendMessage(WM_NOTIFY, pHeader->idFrom, reinterpret_cast<LPARAM>(pHeader));
}
