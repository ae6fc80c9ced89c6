// The edit control in which the text of a cell is typed.
//
// Hooks of the host run while a session ends: they may populate, open another editor, delete the record or the control.
// So whoever ends a session holds it, and all that it needs of the cell, and looks afterwards at what is left.
#include "CXTPReportInplaceEdit.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CellText.h"
#include "ReportControlImpl.h"

#include "../../framework/gdi/SelectGuard.h"

#include <algorithm>
#include <exception>
#include <imm.h>

IMPLEMENT_DYNCREATE(CXTPReportInplaceEdit, CEdit)

BEGIN_MESSAGE_MAP(CXTPReportInplaceEdit, CEdit)
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_CTLCOLOR_REFLECT()
    ON_MESSAGE(WM_SETTEXT, &CXTPReportInplaceEdit::OnSetText)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

constexpr UINT EditId = 1;
constexpr int FrameWidth = 1;
constexpr UINT CharSelectAll = 1; // of ctrl+A

bool IsKeyDown(int key) { return ::GetKeyState(key) < 0; }

/// Keys that belong to a text that is being typed, whatever accelerators there are.
bool IsTypingKey(UINT key) {
    const bool isAltGr = IsKeyDown(VK_CONTROL) && IsKeyDown(VK_MENU);
    if (!IsKeyDown(VK_CONTROL) || isAltGr)
        return key < VK_F1 || key > VK_F24;
    constexpr UINT withCtrl[] = {'A',     'C',    'V',     'X',       'Z',       VK_LEFT,    VK_RIGHT,
                                 VK_HOME, VK_END, VK_BACK, VK_INSERT, VK_DELETE, VK_CONTROL, VK_SHIFT};
    return std::find(std::begin(withCtrl), std::end(withCtrl), key) != std::end(withCtrl);
}

} // namespace

/// One editing of one cell. The references keep the objects in memory, not in the control.
struct CXTPReportInplaceEdit::Session {
    explicit Session(const XTP_REPORTRECORDITEM_ARGS& cell)
        : args(cell), row(cell.pRow), column(cell.pColumn), item(cell.pItem) {}

    XTP_REPORTRECORDITEM_ARGS args;
    boost::intrusive_ptr<CXTPReportRow> row;
    boost::intrusive_ptr<CXTPReportColumn> column;
    boost::intrusive_ptr<CXTPReportRecordItem> item;
    CRect rcCell;         ///< the whole cell, to which args.rcItem belongs
    bool isWhole = false; ///< args.rcItem is the whole cell
    CString startText;
    CFont font; ///< the editor's own: the theme's goes with the theme
    CBrush background;
    COLORREF textColor = 0, backColor = 0;
    int textHeight = 0;
    bool isEnding = false;
    bool hasLostWindow = false; ///< the window is being destroyed by somebody else
};

CXTPReportInplaceEdit::CXTPReportInplaceEdit() = default;

CXTPReportInplaceEdit::~CXTPReportInplaceEdit() {
    InternalAddRef(); // the handlers that run as the window goes hold references, whose end deletes nothing
    if (m_session)
        Close(m_session);
}

BOOL CXTPReportInplaceEdit::IsEditing() const { return m_session != nullptr; }
CXTPReportControl* CXTPReportInplaceEdit::GetControl() const { return m_session ? m_session->args.pControl : nullptr; }
CXTPReportRow* CXTPReportInplaceEdit::GetRow() const { return m_session ? m_session->args.pRow : nullptr; }
CXTPReportColumn* CXTPReportInplaceEdit::GetColumn() const { return m_session ? m_session->args.pColumn : nullptr; }
CXTPReportRecordItem* CXTPReportInplaceEdit::GetItem() const { return m_session ? m_session->args.pItem : nullptr; }
CString CXTPReportInplaceEdit::GetStartText() const { return m_session ? m_session->startText : CString(); }

// --- Begin ----------------------------------------------------------------------------------------------------------

BOOL CXTPReportInplaceEdit::Create(XTP_REPORTRECORDITEM_ARGS* pItemArgs) {
    if (!pItemArgs || !pItemArgs->pControl || !pItemArgs->pControl->m_hWnd || !pItemArgs->pRow || !pItemArgs->pColumn ||
        !pItemArgs->pItem)
        return FALSE;
    const auto session = std::make_shared<Session>(*pItemArgs);
    CXTPReportControl& control = *pItemArgs->pControl;
    const boost::intrusive_ptr<CXTPReportInplaceEdit> alive(this);
    if (!control.m_impl->FinishEdit())
        return FALSE;
    if (m_session) // from within its own end
        Close(std::shared_ptr<Session>(m_session));
    const CXTPReportRecord* const record = session->item->GetRecord();
    if (!record || session->row->GetRecord() != record || session->row->GetControl() != &control ||
        session->column->GetControl() != &control)
        return FALSE;

    session->rcCell = CellRect(*session->row, *session->column);
    session->isWhole = session->args.rcItem == session->rcCell;
    const XTP_REPORTRECORDITEM_METRICS metrics =
        CellMetrics(control, session->args.pRow, session->args.pColumn, session->args.pItem);
    session->startText = metrics.strText;
    m_session = session;
    const struct Unfinished { // want of memory leaves no half an editor behind
        CXTPReportInplaceEdit& edit;
        const std::shared_ptr<Session>& session;
        int exceptions = std::uncaught_exceptions();
        ~Unfinished() {
            if (std::uncaught_exceptions() > exceptions && edit.m_session == session)
                edit.Close(session);
        }
    } unfinished{*this, session};
    TakeLook();
    const int alignment = metrics.nColumnAlignment;
    const DWORD style = WS_CHILD | ES_AUTOHSCROLL |
                        (alignment & DT_RIGHT    ? ES_RIGHT
                         : alignment & DT_CENTER ? ES_CENTER
                                                 : ES_LEFT);
    const CRect rc = PlaceInControl();
    control.ModifyStyle(0, WS_CLIPCHILDREN); // rows are drawn around the editor
    control.m_impl->openEdit = this;
    if (!CEdit::Create(style, rc, &control, EditId)) {
        if (m_session == session)
            Close(session);
        return FALSE;
    }
    SendMessage(EM_SETIMESTATUS, EMSIS_COMPOSITIONSTRING, EIMES_COMPLETECOMPSTRKILLFOCUS);
    FollowCell();
    SetWindowText(session->startText);
    SetSel(0, -1);
    ShowWindow(SW_SHOWNA);
    SetFocus(); // whoever loses the keyboard may act on it
    return m_session == session;
}

/// Font and colours of the cell as they are now.
void CXTPReportInplaceEdit::TakeLook() {
    Session& session = *m_session;
    CXTPReportControl& control = *session.args.pControl;
    const XTP_REPORTRECORDITEM_METRICS metrics =
        CellMetrics(control, session.args.pRow, session.args.pColumn, session.args.pItem);
    LOGFONT font = {};
    if (metrics.pFont)
        metrics.pFont->GetLogFont(&font);
    CFont fresh;
    fresh.CreateFontIndirect(&font);
    if (m_hWnd)
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(fresh.GetSafeHandle()), FALSE);
    session.font.DeleteObject();
    session.font.Attach(fresh.Detach());

    CClientDC dc(nullptr);
    const SelectGuard select(dc, session.font);
    TEXTMETRIC text = {};
    dc.GetTextMetrics(&text);
    session.textHeight = text.tmHeight;

    const CXTPReportPaintManager& look = *control.GetPaintManager();
    session.textColor = look.m_clrWindowText;
    session.backColor = look.m_clrWindow;
    session.background.DeleteObject();
    session.background.CreateSolidBrush(session.backColor);
}

/// Where the window stands in the control: the cell, or the part of it that was asked for, as far as it is in view.
CRect CXTPReportInplaceEdit::PlaceInControl() const {
    Session& session = *m_session;
    const CRect rcNow = CellRect(*session.row, *session.column);
    if (session.isWhole)
        session.args.rcItem = rcNow;
    else
        session.args.rcItem.OffsetRect(rcNow.TopLeft() - session.rcCell.TopLeft());
    session.rcCell = rcNow;
    // Neither over the header nor over columns that stay while the cell's column scrolls beneath them.
    CRect rcView = session.args.pControl->GetReportRectangle();
    rcView.left = std::max(rcView.left, session.column->GetUncoveredRect().left);
    CRect rcShown;
    if (!rcNow.IsRectEmpty())
        rcShown.IntersectRect(&session.args.rcItem, rcView);
    return rcShown;
}

void CXTPReportInplaceEdit::FollowCell() {
    if (!m_session || m_session->isEnding || !m_hWnd)
        return;
    Session& session = *m_session;
    CXTPReportControl& control = *session.args.pControl;
    if (!session.row->GetControl()) { // its row object was made anew
        CXTPReportRow* const row = control.GetRows()->Find(session.item->GetRecord());
        if (!row)
            return;
        session.row = session.args.pRow = row;
    }
    TakeLook();
    const CRect rc = PlaceInControl();
    SetWindowPos(nullptr, rc.left, rc.top, rc.Width(), rc.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    // Letters stand where the cell draws them; the frame has taken a part of the way. Parts of a cell have no padding.
    const int padding = session.isWhole ? control.GetPaintManager()->GetCellPadding() : 0;
    const int margin = std::max(padding - FrameWidth, 0);
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE);
}

// --- End ------------------------------------------------------------------------------------------------------------

void CXTPReportInplaceEdit::EndEdit(BOOL bApply) {
    if (!m_session || m_session->isEnding)
        return;
    const boost::intrusive_ptr<CXTPReportInplaceEdit> alive(this);
    const std::shared_ptr<Session> session = m_session;
    session->isEnding = true;
    const struct End { // also when a hook throws
        CXTPReportInplaceEdit& edit;
        const std::shared_ptr<Session>& session;
        ~End() {
            if (edit.m_session == session)
                edit.Close(session);
        }
    } end{*this, session};
    if (bApply)
        session->item->OnValidateEdit(&session->args);
    else
        session->item->OnEditCanceled(&session->args);
}

/// Takes the window away, and the editor out of the control. No hook runs, except that the control gets the keyboard.
void CXTPReportInplaceEdit::Close(const std::shared_ptr<Session>& session) {
    session->isEnding = true;
    CXTPReportControl* const control = session->args.pControl;
    if (control && control->m_impl->openEdit == this)
        control->m_impl->openEdit = nullptr;
    const HWND hWnd = m_hWnd;
    if (control && hWnd && ::GetFocus() == hWnd && control->IsWindowEnabled() && control->IsWindowVisible())
        control->SetFocus();
    if (m_hWnd && m_hWnd == hWnd && !session->hasLostWindow)
        DestroyWindow();
    if (m_session == session)
        m_session.reset();
}

/// The control is being deleted, by a hook that the end of the editing has called.
void CXTPReportInplaceEdit::ForgetControl() {
    if (m_session)
        m_session->args.pControl = nullptr;
}

void CXTPReportInplaceEdit::OnDestroy() {
    const boost::intrusive_ptr<CXTPReportInplaceEdit> alive(this);
    if (m_session && !m_session->isEnding) { // nobody has asked, but the text is still there
        m_session->hasLostWindow = true;
        EndEdit(TRUE);
    }
    CEdit::OnDestroy();
}

void CXTPReportInplaceEdit::OnKillFocus(CWnd* pNewWnd) {
    const boost::intrusive_ptr<CXTPReportInplaceEdit> alive(this);
    CEdit::OnKillFocus(pNewWnd);
    EndEdit(TRUE);
}

// --- Keys -----------------------------------------------------------------------------------------------------------

BOOL CXTPReportInplaceEdit::PreTranslateMessage(MSG* pMsg) {
    const bool isKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_KEYUP;
    const bool isCharacter = pMsg->message == WM_CHAR || pMsg->message == WM_DEADCHAR;
    if (pMsg->hwnd == m_hWnd && m_hWnd && (isCharacter || (isKey && IsTypingKey(static_cast<UINT>(pMsg->wParam))))) {
        ::TranslateMessage(pMsg);
        ::DispatchMessage(pMsg);
        return TRUE;
    }
    return CEdit::PreTranslateMessage(pMsg);
}

UINT CXTPReportInplaceEdit::OnGetDlgCode() { return CEdit::OnGetDlgCode() | DLGC_WANTALLKEYS; }

void CXTPReportInplaceEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    CXTPReportControl* const control = GetControl();
    if (!control) {
        CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    const WindowGuard guard(*control);
    switch (nChar) {
    case VK_RETURN:
        EndEdit(TRUE);
        break;
    case VK_ESCAPE:
        EndEdit(FALSE);
        break;
    case VK_TAB:
        control->m_impl->EditNextCell(IsKeyDown(VK_SHIFT) ? -1 : 1);
        break;
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
        EndEdit(TRUE);
        if (!guard.IsGone())
            control->SendMessage(WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags));
        break;
    case 'A':
        if (IsKeyDown(VK_CONTROL) && !IsKeyDown(VK_MENU)) {
            SetSel(0, -1);
            break;
        }
        [[fallthrough]];
    default:
        CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
        break;
    }
}

void CXTPReportInplaceEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    // The keys have acted already; the system would beep.
    if (nChar != VK_RETURN && nChar != VK_ESCAPE && nChar != VK_TAB && nChar != CharSelectAll)
        CEdit::OnChar(nChar, nRepCnt, nFlags);
}

LRESULT CXTPReportInplaceEdit::OnSetText(WPARAM, LPARAM lParam) {
    const LRESULT result = Default();
    if (m_session)
        m_session->startText = reinterpret_cast<LPCTSTR>(lParam);
    return result;
}

// --- Look -----------------------------------------------------------------------------------------------------------

void CXTPReportInplaceEdit::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) {
    if (!m_session) {
        CEdit::OnNcCalcSize(bCalcValidRects, lpncsp);
        return;
    }
    // An edit control begins at the top of its client area; cells show their text in the middle.
    CRect rc(lpncsp->rgrc[0]);
    const int height = std::min<int>(m_session->textHeight, std::max<int>(rc.Height(), 0));
    rc.top += (rc.Height() - height) / 2;
    rc.bottom = rc.top + height;
    if (rc.Width() >= 2 * FrameWidth)
        rc.DeflateRect(FrameWidth, 0);
    lpncsp->rgrc[0] = rc;
}

void CXTPReportInplaceEdit::OnNcPaint() {
    if (!m_session) {
        CEdit::OnNcPaint();
        return;
    }
    CWindowDC dc(this);
    CRect rcWindow, rcClient;
    GetWindowRect(&rcWindow);
    GetClientRect(&rcClient);
    ClientToScreen(&rcClient);
    rcClient.OffsetRect(-rcWindow.left, -rcWindow.top);
    rcWindow.OffsetRect(-rcWindow.left, -rcWindow.top);
    dc.ExcludeClipRect(&rcClient);
    m_session->args.pControl->GetPaintManager()->DrawEditedCell(&dc, rcWindow);
}

HBRUSH CXTPReportInplaceEdit::CtlColor(CDC* pDC, UINT) {
    if (!m_session)
        return nullptr;
    pDC->SetTextColor(m_session->textColor);
    pDC->SetBkColor(m_session->backColor);
    return static_cast<HBRUSH>(m_session->background.GetSafeHandle());
}
