// An edit control in which the user types what a report control shows.
#include "CXTPReportFilterEditControl.h"

#include "CXTPReportControl.h"
#include "CXTPReportRecords.h"
#include "CXTPReportRows.h"

#include "../../framework/gdi/SelectGuard.h"

IMPLEMENT_DYNAMIC(CXTPReportFilterEditControl, CEdit)

BEGIN_MESSAGE_MAP(CXTPReportFilterEditControl, CEdit)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CXTPReportFilterEditControl::OnChange)
    ON_WM_PAINT()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
END_MESSAGE_MAP()

namespace {

/// More records than these are filtered when the user pauses: it takes longer than the time between two letters.
constexpr int ManyRecords = 20'000;
constexpr UINT Pause = 250; // ms
constexpr UINT_PTR PauseTimer = 0x7E61;

} // namespace

CXTPReportFilterEditControl::CXTPReportFilterEditControl() = default;

CXTPReportControl* CXTPReportFilterEditControl::GetReportCtrl() const {
    return dynamic_cast<CXTPReportControl*>(m_hReport ? CWnd::FromHandlePermanent(m_hReport) : nullptr);
}

void CXTPReportFilterEditControl::SetReportCtrl(CXTPReportControl* pControl) {
    m_hReport = pControl ? pControl->m_hWnd : nullptr;
    ShowHint();
    if (pControl && m_hWnd)
        SetWindowText(pControl->GetFilterText());
}

void CXTPReportFilterEditControl::SetHint(LPCTSTR strHint) {
    m_strHint = strHint;
    m_bOwnHint = true;
    ShowHint();
}

CString CXTPReportFilterEditControl::GetHint() const {
    const CXTPReportControl* const pControl = GetReportCtrl();
    return m_bOwnHint || !pControl ? m_strHint : pControl->GetText(xtpReportTextFilterCue);
}

void CXTPReportFilterEditControl::ShowHint() {
    if (!m_hWnd)
        return;
    m_bSystemHint = SendMessage(EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(GetHint().GetString())) != FALSE;
    Invalidate();
}

/// Edit controls of programs without the newer common controls know no hints.
void CXTPReportFilterEditControl::OnPaint() {
    Default();
    if (m_bSystemHint || GetWindowTextLength() > 0)
        return;
    CRect rcText;
    GetRect(&rcText);
    ::HideCaret(m_hWnd);
    {
        CClientDC dc(this);
        const SaveDCGuard saved(dc);
        if (CFont* const pFont = GetFont())
            dc.SelectObject(pFont);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
        dc.DrawText(GetHint(), &rcText, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    ::ShowCaret(m_hWnd);
}

void CXTPReportFilterEditControl::Apply() {
    KillTimer(PauseTimer);
    CXTPReportControl* const pControl = GetReportCtrl();
    CString strText;
    GetWindowText(strText);
    if (!pControl || strText == pControl->GetFilterText())
        return;
    pControl->SetFilterText(strText);
    pControl->Populate();
}

BOOL CXTPReportFilterEditControl::OnChange() {
    if (!m_bSystemHint)
        Invalidate(); // the hint comes or goes with the text
    const CXTPReportControl* const pControl = GetReportCtrl();
    if (pControl && pControl->GetRecords()->GetCount() > ManyRecords && SetTimer(PauseTimer, Pause))
        return FALSE;
    Apply();
    return FALSE;
}

void CXTPReportFilterEditControl::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == PauseTimer)
        Apply();
    else
        CEdit::OnTimer(nIDEvent);
}

BOOL CXTPReportFilterEditControl::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == m_hWnd && pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE && ClearByEscape())
        return TRUE;
    return CEdit::PreTranslateMessage(pMsg);
}

void CXTPReportFilterEditControl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if ((nChar == VK_ESCAPE && ClearByEscape()) || (nChar == VK_DOWN && GoIntoGrid()))
        return;
    CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
}

bool CXTPReportFilterEditControl::ClearByEscape() {
    if (GetWindowTextLength() == 0)
        return false;
    const HWND hWnd = m_hWnd;
    SetWindowText(_T(""));
    if (::IsWindow(hWnd))
        Apply(); // nobody waits for all records
    return true;
}

/// To the row that had the focus, else to the first one.
bool CXTPReportFilterEditControl::GoIntoGrid() {
    CXTPReportControl* pControl = GetReportCtrl();
    if (!pControl)
        return false;
    Apply();
    pControl = GetReportCtrl();
    if (!pControl)
        return true;
    pControl->SetFocus();
    pControl = GetReportCtrl();
    if (pControl && !pControl->GetFocusedRow())
        pControl->SetFocusedRow(pControl->GetRows()->GetAt(0));
    return true;
}
