// A grid whose cells can be edited, driven by key messages through the queue.
#include "EditWindow.h"

#include "../support/QueuedKeys.h"

EditTest::EditTest() {
    AddRecords(12);
    m_grid.AllowEdit(TRUE);
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(2));
    Settle();
    m_owner.notifications.clear();
}

void EditTest::Edit(int rowIndex, int columnIndex) {
    XTP_REPORTRECORDITEM_ARGS args;
    args.pRow = m_grid.GetRows()->GetAt(rowIndex);
    args.pColumn = m_columns[columnIndex];
    m_grid.EditItem(&args);
}

void EditTest::TypeKey(UINT key) { ::TypeKey(key); }

void EditTest::Type(const wchar_t* letters) { ::TypeText(letters); }

CString EditTest::EditorText() const {
    CString text;
    if (Editor()->m_hWnd)
        Editor()->GetWindowText(text);
    return text;
}

std::vector<UINT> EditTest::EditCodes() {
    std::vector<UINT> codes;
    for (const OwnerWindow::Notification& each : m_owner.notifications)
        if (each.code <= XTP_NM_REPORT_REQUESTEDIT && each.code >= XTP_NM_REPORT_EDITCANCELED)
            codes.push_back(each.code);
    m_owner.notifications.clear();
    return codes;
}
