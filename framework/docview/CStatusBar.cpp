// CStatusBar.cpp - panes on the common status bar control.
#include <afxext.h>
#include <afxpriv.h>

#include "../windows/WindowDpi.h"
#include "../windows/WindowState.h"

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_SIZE()
    ON_MESSAGE(WM_DPICHANGED, &CStatusBar::OnDpiChanged)
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &CStatusBar::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::OnGetTextLength)
END_MESSAGE_MAP()

namespace {

constexpr int textMargin = 3; // between a pane's border and its text, on each side
constexpr int separatorWidth = 100;

} // namespace

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) { return CreateEx(pParentWnd, 0, dwStyle, nID); }

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    LoadCommonControls(ICC_BAR_CLASSES);
    SetBarStyle(dwStyle & CBRS_ALL);
    // The frame lays the bar out, so the control must not move itself.
    DWORD style = (dwStyle & ~CBRS_ALL) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    if ((pParentWnd->GetStyle() & WS_THICKFRAME) != 0)
        style |= SBARS_SIZEGRIP;
    return CWnd::CreateEx(0, STATUSCLASSNAME, nullptr, style, CRect(), pParentWnd, nID);
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    if (nIDCount < 1 || m_hWnd == nullptr)
        return FALSE;
    BOOL complete = TRUE;
    std::vector<Pane> panes(static_cast<std::size_t>(nIDCount));
    for (int i = 0; i < nIDCount && lpIDArray != nullptr; ++i) {
        Pane& pane = panes[static_cast<std::size_t>(i)];
        pane.id = lpIDArray[i];
        if (pane.id == ID_SEPARATOR) {
            pane.width = separatorWidth;
            if (i == 0)
                pane.style = SBPS_STRETCH | SBPS_NOBORDERS;
        } else if (pane.text.LoadString(pane.id)) {
            pane.width = TextWidth(pane.text);
        } else {
            complete = FALSE;
        }
    }
    m_panes = std::move(panes);
    LayOutPanes();
    for (int i = 0; i < GetCount(); ++i)
        ShowPane(i);
    return complete;
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    for (int i = 0; i < GetCount(); ++i) {
        if (GetItemID(i) == nIDFind)
            return i;
    }
    return -1;
}

UINT CStatusBar::GetItemID(int nIndex) const { return IsPane(nIndex) ? m_panes[std::size_t(nIndex)].id : 0; }

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    ::SetRectEmpty(lpRect);
    SendMessage(SB_GETRECT, nIndex, reinterpret_cast<LPARAM>(lpRect));
}

CString CStatusBar::GetPaneText(int nIndex) const {
    return IsPane(nIndex) ? m_panes[std::size_t(nIndex)].text : CString();
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    if (!IsPane(nIndex))
        return FALSE;
    Pane& pane = m_panes[std::size_t(nIndex)];
    const LPCTSTR text = lpszNewText == nullptr ? _T("") : lpszNewText;
    if (pane.text == text)
        return TRUE;
    pane.text = text;
    if (bUpdate)
        ShowPane(nIndex);
    return TRUE;
}

UINT CStatusBar::GetPaneStyle(int nIndex) const { return IsPane(nIndex) ? m_panes[std::size_t(nIndex)].style : 0; }

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    if (!IsPane(nIndex))
        return;
    Pane& pane = m_panes[std::size_t(nIndex)];
    if (pane.style == nStyle)
        return;
    const bool stretchChanges = ((pane.style ^ nStyle) & SBPS_STRETCH) != 0;
    pane.style = nStyle;
    if (stretchChanges)
        LayOutPanes();
    ShowPane(nIndex);
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    const Pane pane = IsPane(nIndex) ? m_panes[std::size_t(nIndex)] : Pane();
    nID = pane.id;
    nStyle = pane.style;
    cxWidth = pane.width;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    if (!IsPane(nIndex))
        return;
    Pane& pane = m_panes[std::size_t(nIndex)];
    pane.id = nID;
    pane.style = nStyle;
    pane.width = cxWidth;
    LayOutPanes();
    ShowPane(nIndex);
}

// Layout --------------------------------------------------------------------------------------------------------------

int CStatusBar::TextWidth(const CString& text) const {
    const HDC screen = ::GetDC(nullptr);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT));
    const HGDIOBJ before = font != nullptr ? ::SelectObject(screen, font) : nullptr;
    SIZE size{};
    ::GetTextExtentPoint32(screen, text, text.GetLength(), &size);
    if (before != nullptr)
        ::SelectObject(screen, before);
    ::ReleaseDC(nullptr, screen);
    return size.cx;
}

void CStatusBar::LayOutPanes() {
    if (m_panes.empty() || m_hWnd == nullptr)
        return;
    int borders[3]{};
    SendMessage(SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(borders));
    const int gap = borders[2];
    CRect client;
    GetClientRect(&client);
    const bool hasGrip = (GetStyle() & SBARS_SIZEGRIP) != 0 && !GetTopLevelParent()->IsZoomed();
    const int available = client.Width() - borders[0] - (hasGrip ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);

    // The stretching panes share what the fixed ones leave.
    int fixed = gap * (GetCount() - 1);
    int stretching = 0;
    for (const Pane& pane : m_panes) {
        if ((pane.style & SBPS_STRETCH) != 0)
            ++stretching;
        else
            fixed += pane.width + 2 * textMargin;
    }
    const int shared = std::max(available - fixed, 0);
    const bool reachesGrip = hasGrip && (m_panes.back().style & SBPS_STRETCH) != 0;

    std::vector<int> rightEdges;
    int right = borders[0];
    int stretched = 0;
    for (const Pane& pane : m_panes) {
        if ((pane.style & SBPS_STRETCH) != 0) {
            right += shared * (stretched + 1) / stretching - shared * stretched / stretching;
            ++stretched;
        } else {
            right += pane.width + 2 * textMargin;
        }
        rightEdges.push_back(right);
        right += gap;
    }
    if (reachesGrip)
        rightEdges.back() = -1; // to the edge of the bar, under the grip
    SendMessage(SB_SETPARTS, rightEdges.size(), reinterpret_cast<LPARAM>(rightEdges.data()));
}

void CStatusBar::ShowPane(int index) {
    if (m_hWnd == nullptr)
        return;
    const Pane& pane = m_panes[std::size_t(index)];
    const UINT drawing = pane.style & (SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW);
    const bool hidesText = (pane.style & SBPS_DISABLED) != 0 && (pane.style & SBPS_OWNERDRAW) == 0;
    const LPCTSTR text = hidesText ? _T("") : pane.text.GetString();
    DefWindowProc(SB_SETTEXT, static_cast<WPARAM>(index) | drawing, reinterpret_cast<LPARAM>(text));
}

CSize CStatusBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    // The height of a text line with the control's own borders around it.
    const HDC screen = ::GetDC(nullptr);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT));
    const HGDIOBJ before = font != nullptr ? ::SelectObject(screen, font) : nullptr;
    TEXTMETRIC metrics{};
    ::GetTextMetrics(screen, &metrics);
    if (before != nullptr)
        ::SelectObject(screen, before);
    ::ReleaseDC(nullptr, screen);

    int borders[3]{};
    SendMessage(SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(borders));
    CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
    size.cy = metrics.tmHeight + metrics.tmInternalLeading + 2 * borders[1] + 2 * ::GetSystemMetrics(SM_CYBORDER) + 2;
    return size;
}

void CStatusBar::OnSize(UINT nType, int cx, int cy) {
    CControlBar::OnSize(nType, cx, cy);
    LayOutPanes();
}

LRESULT CStatusBar::OnDpiChanged(WPARAM wParam, LPARAM) {
    NONCLIENTMETRICS metrics;
    if (!windowdpi::ReadNonClientMetrics(metrics, LOWORD(wParam)))
        return 0;
    CFont font;
    font.CreateFontIndirect(&metrics.lfStatusFont);
    SetFont(&font);
    m_font.DeleteObject();
    m_font.Attach(font.Detach());
    LayOutPanes();
    return 0;
}

// The window's text is that of the first pane.

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    if (m_panes.empty())
        return Default();
    return SetPaneText(0, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::OnGetText(WPARAM wParam, LPARAM lParam) {
    if (m_panes.empty())
        return Default();
    if (wParam == 0)
        return 0;
    const CString& text = m_panes.front().text;
    const int capacity = static_cast<int>(wParam);
    ::lstrcpyn(reinterpret_cast<LPTSTR>(lParam), text, capacity);
    return std::min(text.GetLength(), capacity - 1);
}

LRESULT CStatusBar::OnGetTextLength(WPARAM, LPARAM) {
    return m_panes.empty() ? Default() : m_panes.front().text.GetLength();
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CControlBar::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT) {
    ASSERT(FALSE); // a bar with owner-drawn panes overrides this
}

// Command interface ---------------------------------------------------------------------------------------------------

namespace {

/// One pane as the item of a command: enabled shows its text, checked draws it raised.
class CPaneUI : public CCmdUI {
public:
    explicit CPaneUI(CStatusBar& bar) : m_bar(bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        ChangeStyle(SBPS_DISABLED, bOn ? 0 : SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override { ChangeStyle(SBPS_POPOUT, nCheck != 0 ? SBPS_POPOUT : 0); }
    void SetText(LPCTSTR lpszText) override { m_bar.SetPaneText(Index(), lpszText); }

private:
    int Index() const { return static_cast<int>(m_nIndex); }
    void ChangeStyle(UINT remove, UINT add) {
        m_bar.SetPaneStyle(Index(), (m_bar.GetPaneStyle(Index()) & ~remove) | add);
    }

    CStatusBar& m_bar;
};

} // namespace

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    CPaneUI pane(*this);
    pane.m_nIndexMax = static_cast<UINT>(GetCount());
    for (pane.m_nIndex = 0; pane.m_nIndex < pane.m_nIndexMax; ++pane.m_nIndex) {
        pane.m_nID = GetItemID(static_cast<int>(pane.m_nIndex));
        // The bar itself may know how to update its panes.
        if (CCmdTarget::OnCmdMsg(pane.m_nID, CN_UPDATE_COMMAND_UI, &pane, nullptr))
            continue;
        pane.DoUpdate(pTarget, bDisableIfNoHndler);
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
