// A report control in a window, driven by messages, and what it tells its owner.
#include "GridWindow.h"

// --- Probes ---------------------------------------------------------------------------------------------------------

void ProbeItem::Draw(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs) {
    ++drawn;
    drawnAt = pDrawArgs->rcItem;
    CXTPReportRecordItemText::Draw(pDrawArgs);
}

BOOL ProbeItem::OnLButtonDown(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs) {
    ++presses;
    clickedAt = pClickArgs->rcItem;
    return takesPress;
}

BOOL ProbeItem::OnLButtonUp(XTP_REPORTRECORDITEM_CLICKARGS*) {
    ++releases;
    return FALSE;
}

void ProbeItem::OnClick(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs) {
    ++clicks;
    CXTPReportRecordItemText::OnClick(pClickArgs);
    if (const auto action = onClick)
        action();
}

void ProbeItem::OnDblClick(XTP_REPORTRECORDITEM_CLICKARGS*) { ++doubleClicks; }

void ProbeItem::OnEditChanged(XTP_REPORTRECORDITEM_ARGS* pItemArgs, LPCTSTR szText) {
    CXTPReportRecordItemText::OnEditChanged(pItemArgs, szText);
    if (const auto action = onEditChanged)
        action();
}

void ProbeItem::OnMouseMove(UINT, CPoint point, CXTPReportControl*) { moves.push_back(point); }

void ProbeGrid::OnSelectionChanged() {
    ++selectionChanges;
    CXTPReportControl::OnSelectionChanged();
    if (onSelectionChanged)
        onSelectionChanged();
}

void ProbeHeader::OnContextMenu(CPoint ptPoint) {
    CXTPReportHeader::OnContextMenu(ptPoint);
    menus.push_back(ptPoint);
}

BEGIN_MESSAGE_MAP(OwnerWindow, CWnd)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

void OwnerWindow::OnContextMenu(CWnd*, CPoint) { ++contextMenus; }

BOOL OwnerWindow::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    const bool isColumn =
        (header->code <= XTP_NM_REPORT_SORTORDERCHANGED && header->code >= XTP_NM_REPORT_COLUMNWIDTHCHANGED) ||
        header->code == XTP_NM_REPORT_GROUPORDERCHANGED;
    if (isColumn) {
        const auto* notify = reinterpret_cast<const XTP_NM_REPORTCOLUMN*>(lParam);
        notifications.push_back({header->code, -1, nullptr, notify->pColumn});
    } else {
        const auto* notify = reinterpret_cast<const XTP_NM_REPORTRECORDITEM*>(lParam);
        notifications.push_back(
            {header->code, notify->pRow ? notify->pRow->GetIndex() : -1, notify->pItem, notify->pColumn});
    }
    if (refusesEdit && header->code == XTP_NM_REPORT_REQUESTEDIT)
        reinterpret_cast<XTP_NM_REPORTREQUESTEDIT*>(lParam)->bCancel = TRUE;
    if (const auto action = onNotify)
        action(header->code);
    *pResult = answer;
    return TRUE;
}

int OwnerWindow::Count(UINT code) const {
    return static_cast<int>(std::count_if(notifications.begin(), notifications.end(),
                                          [code](const Notification& each) { return each.code == code; }));
}

KeysDown::KeysDown(std::initializer_list<int> keys) {
    ::GetKeyboardState(m_former);
    BYTE state[256];
    std::copy(std::begin(m_former), std::end(m_former), state);
    for (const int key : keys)
        state[key] = 0x80;
    ::SetKeyboardState(state);
}

KeysDown::~KeysDown() { ::SetKeyboardState(m_former); }

// --- The window -----------------------------------------------------------------------------------------------------

GridTest::GridTest() {
    ::SetCursorPos(5, 5); // no window of the test is there
    const CXTPReportPaintManager metrics;
    const CRect rc(0, 0, Width, metrics.GetHeaderHeight() + VisibleRows * metrics.GetRowHeight());
    m_owner.CreateEx(0, AfxRegisterWndClass(0), _T("owner"), WS_POPUP | WS_VISIBLE, CRect(200, 100, 700, 600), nullptr,
                     0);
    m_grid.Create(WS_CHILD | WS_VISIBLE, rc, &m_owner, 42);
    m_header = new ProbeHeader(&m_grid, m_grid.GetColumns());
    m_grid.SetReportHeader(m_header);
    const LPCTSTR names[] = {_T("A"), _T("B"), _T("C")};
    const int widths[] = {100, 80, 60};
    for (int i = 0; i < 3; ++i) {
        m_columns[i] = new CXTPReportColumn(i, names[i], widths[i]);
        m_grid.AddColumn(m_columns[i]);
    }
    m_grid.SetFocus();
    Settle();
}

GridTest::~GridTest() {
    if (m_grid.m_hWnd)
        m_grid.DestroyWindow();
    m_owner.DestroyWindow();
}

void GridTest::AddRecords(int count) {
    for (int i = 0; i < count; ++i) {
        auto* record = new CXTPReportRecord;
        for (const wchar_t letter : {L'A', L'B', L'C'}) {
            CString text;
            text.Format(_T("%c%d"), letter, i);
            record->AddItem(new ProbeItem(text));
        }
        m_grid.AddRecord(record);
    }
    m_grid.Populate();
    Settle();
}

ProbeItem* GridTest::Item(int rowIndex, int itemIndex) const {
    return static_cast<ProbeItem*>(m_grid.GetRows()->GetAt(rowIndex)->GetRecord()->GetItem(itemIndex));
}

CPoint GridTest::Cell(int rowIndex, int visibleColumn) const {
    const CRect rcRow = m_grid.GetRows()->GetAt(rowIndex)->GetRect();
    const CRect rcColumn = m_grid.GetColumns()->GetVisibleAt(visibleColumn)->GetRect();
    return CPoint(rcColumn.CenterPoint().x, rcRow.CenterPoint().y);
}

CPoint GridTest::HeaderOf(int columnIndex) const {
    return m_grid.GetColumns()->GetAt(columnIndex)->GetRect().CenterPoint();
}

CPoint GridTest::DividerOf(int columnIndex) const {
    const CRect rc = m_grid.GetColumns()->GetAt(columnIndex)->GetRect();
    return CPoint(rc.right, rc.CenterPoint().y);
}

// --- Input ----------------------------------------------------------------------------------------------------------

void GridTest::Press(CPoint point, UINT flags) {
    m_grid.SendMessage(WM_LBUTTONDOWN, flags | MK_LBUTTON, MAKELPARAM(point.x, point.y));
}

void GridTest::Move(CPoint point, UINT flags) { m_grid.SendMessage(WM_MOUSEMOVE, flags, MAKELPARAM(point.x, point.y)); }

void GridTest::Release(CPoint point, UINT flags) {
    m_grid.SendMessage(WM_LBUTTONUP, flags, MAKELPARAM(point.x, point.y));
}

void GridTest::Click(CPoint point, UINT flags) {
    Press(point, flags);
    Release(point, flags);
}

void GridTest::DoubleClick(CPoint point) {
    Click(point);
    m_grid.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    Release(point);
}

void GridTest::Key(UINT key) {
    m_grid.SendMessage(WM_KEYDOWN, key, 1);
    m_grid.SendMessage(WM_KEYUP, key, 0xC0000001);
}

void GridTest::Wheel(int delta, UINT flags) {
    m_grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(flags, static_cast<short>(delta)), 0);
}

void GridTest::PutCursor(CPoint point) {
    m_grid.ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
}

void GridTest::Pump(int milliseconds) {
    const DWORD start = ::GetTickCount();
    do {
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (CWnd::WalkPreTranslateTree(nullptr, &message))
                continue;
            ::TranslateMessage(&message);
            ::DispatchMessage(&message);
        }
        if (milliseconds > 0)
            ::Sleep(5);
    } while (static_cast<int>(::GetTickCount() - start) < milliseconds);
}

void GridTest::Settle() {
    m_grid.UpdateWindow();
    const CXTPReportRecords* records = m_grid.GetRecords();
    for (int i = 0; i < records->GetCount(); ++i) {
        for (int item = 0; item < records->GetAt(i)->GetItemCount(); ++item)
            static_cast<ProbeItem*>(records->GetAt(i)->GetItem(item))->drawn = 0;
    }
}

// --- State ----------------------------------------------------------------------------------------------------------

int GridTest::CellsDrawn() const {
    int count = 0;
    const CXTPReportRecords* records = m_grid.GetRecords();
    for (int i = 0; i < records->GetCount(); ++i) {
        for (int item = 0; item < records->GetAt(i)->GetItemCount(); ++item)
            count += static_cast<ProbeItem*>(records->GetAt(i)->GetItem(item))->drawn;
    }
    return count;
}

std::vector<int> GridTest::Selected() const {
    std::vector<int> indices;
    for (int i = 0; i < m_grid.GetSelectedRows()->GetCount(); ++i)
        indices.push_back(m_grid.GetSelectedRows()->GetAt(i)->GetIndex());
    return indices;
}

std::vector<std::wstring> GridTest::Texts(int itemIndex) const {
    std::vector<std::wstring> texts;
    for (int i = 0; i < m_grid.GetRows()->GetCount(); ++i)
        texts.emplace_back(Item(i, itemIndex)->GetValue().GetString());
    return texts;
}

std::unique_ptr<DibCanvas> GridTest::Printed() {
    CRect rc;
    m_grid.GetClientRect(&rc);
    auto canvas = std::make_unique<DibCanvas>(rc.Width(), rc.Height(), RGB(255, 0, 255));
    m_grid.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas->Dc().m_hDC), PRF_CLIENT);
    return canvas;
}

std::unique_ptr<DibCanvas> GridTest::OnScreen() {
    m_grid.UpdateWindow();
    CRect rc;
    m_grid.GetClientRect(&rc);
    auto canvas = std::make_unique<DibCanvas>(rc.Width(), rc.Height(), RGB(255, 0, 255));
    CClientDC dc(&m_grid);
    canvas->Dc().BitBlt(0, 0, rc.Width(), rc.Height(), &dc, 0, 0, SRCCOPY);
    return canvas;
}

void GridTest::UsePlainLetters() {
    LOGFONT font = {};
    m_grid.GetPaintManager()->GetTextFont()->GetLogFont(&font);
    font.lfQuality = NONANTIALIASED_QUALITY;
    m_grid.GetPaintManager()->SetTextFont(font);
    m_grid.AdjustLayout();
}

int GridTest::Difference(const DibCanvas& a, const DibCanvas& b) const {
    CRect rc;
    m_grid.GetClientRect(&rc);
    int count = 0;
    for (int y = 0; y < rc.bottom; ++y) {
        for (int x = 0; x < rc.right; ++x)
            count += a.At(x, y) != b.At(x, y);
    }
    return count;
}
