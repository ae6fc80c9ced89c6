// The keyboard in a report control: moving and selecting, scrolling, finding by typing.
#include "ReportControlImpl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"

#include <optional>

namespace {

/// Letters that follow each other within this time belong to one word.
constexpr DWORD TypingPause = 1000;

bool IsKeyDown(int key) { return ::GetKeyState(key) < 0; }

std::optional<gridgeometry::RowMove> MoveOf(UINT key) {
    using gridgeometry::RowMove;
    switch (key) {
    case VK_UP:
        return RowMove::Up;
    case VK_DOWN:
        return RowMove::Down;
    case VK_PRIOR:
        return RowMove::PageUp;
    case VK_NEXT:
        return RowMove::PageDown;
    case VK_HOME:
        return RowMove::Home;
    case VK_END:
        return RowMove::End;
    default:
        return std::nullopt;
    }
}

} // namespace

UINT CXTPReportControl::OnGetDlgCode() {
    // In a dialog Escape belongs to a gesture while there is one.
    const bool isInGesture = m_impl->IsHeaderGesture() || m_impl->mouseMode == xtpReportMouseSelectingRows;
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (isInGesture ? DLGC_WANTALLKEYS : 0);
}

void CXTPReportControl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    m_impl->toolTips.CancelToolTips();
    const WindowGuard guard(*this);
    if (m_impl->MoveByKey(nChar) || m_impl->ScrollByKey(nChar) || m_impl->SelectByKey(nChar) || guard.IsGone())
        return;
    if (nChar == VK_ESCAPE)
        m_impl->CancelGesture();
    CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

bool CXTPReportControl::Impl::MoveByKey(UINT key) {
    const std::optional<gridgeometry::RowMove> move = MoveOf(key);
    if (!move)
        return false;
    searchText.Empty();
    const int target = RowGrid().NextRow(*move, focusedRow, topRow);
    if (target >= 0)
        MoveFocusTo(target, IsKeyDown(VK_SHIFT), IsKeyDown(VK_CONTROL));
    return true;
}

bool CXTPReportControl::Impl::ScrollByKey(UINT key) {
    if (key != VK_LEFT && key != VK_RIGHT)
        return false;
    ScrollSidewaysTo(leftOffset + (key == VK_LEFT ? -SidewaysStep() : SidewaysStep()));
    return true;
}

bool CXTPReportControl::Impl::SelectByKey(UINT key) {
    const bool isCtrl = IsKeyDown(VK_CONTROL);
    if (key == VK_SPACE && (isCtrl || !IsTyping()) && focusedRow >= 0) {
        const UINT flags = (isCtrl ? MK_CONTROL : 0) | (IsKeyDown(VK_SHIFT) ? MK_SHIFT : 0);
        SelectByClick(focusedRow, flags);
        return true;
    }
    if (key == 'A' && isCtrl) {
        if (isMultipleSelection && rows->GetCount() > 0)
            ChangeSelection([this] { selectedRows->SelectBlock(0, rows->GetCount() - 1, TRUE); });
        return true;
    }
    if ((key == VK_ADD || key == VK_OEM_PLUS) && isCtrl) {
        BestFitAll();
        return true;
    }
    return false;
}

void CXTPReportControl::Impl::BestFitAll() {
    if (!header->IsAllowColumnResize())
        return;
    for (int i = 0; i < columns->GetCount(); ++i) {
        CXTPReportColumn* column = columns->GetAt(i);
        if (column->IsVisible() && column->IsResizable())
            header->BestFit(column);
    }
    control.SendColumnNotify(XTP_NM_REPORT_COLUMNWIDTHCHANGED, nullptr);
}

void CXTPReportControl::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const bool isSpaceOfSelection = nChar == ' ' && !m_impl->IsTyping();
    if (nChar < ' ' || isSpaceOfSelection || IsKeyDown(VK_CONTROL)) {
        CWnd::OnChar(nChar, nRepCnt, nFlags);
        return;
    }
    m_impl->FindTyped(static_cast<wchar_t>(nChar));
}

bool CXTPReportControl::Impl::IsTyping() const {
    return !searchText.IsEmpty() && ::GetTickCount() - searchTime <= TypingPause;
}

void CXTPReportControl::Impl::FindTyped(wchar_t character) {
    // The rows of virtual mode share one record: what they show is known to its owner alone.
    const CXTPReportColumn* sorted = columns->GetSortOrder()->GetAt(0);
    CXTPReportColumn* column = columns->GetVisibleAt(0);
    if (sorted && sorted->IsVisible())
        column = columns->GetAt(sorted->GetIndex());
    const int count = rows->GetCount();
    if (control.IsVirtualMode() || !column || count == 0)
        return;
    if (!IsTyping())
        searchText.Empty();
    searchTime = ::GetTickCount();
    searchText += character;
    // The first letter looks behind the focused row, so that typing it again goes on; further ones narrow down.
    const int start = std::max(focusedRow, 0) + (searchText.GetLength() == 1 && focusedRow >= 0 ? 1 : 0);
    for (int i = 0; i < count; ++i) {
        const int index = static_cast<int>((std::int64_t{start} + i) % count);
        const CXTPReportRecord* record = rows->GetRecordAt(index);
        CXTPReportRecordItem* item = record ? record->GetItem(column) : nullptr;
        if (item && item->GetCaption(column).Left(searchText.GetLength()).CollateNoCase(searchText) == 0) {
            MoveFocusTo(index, false, false);
            return;
        }
    }
}
