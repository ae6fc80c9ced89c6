// A grid whose rows stand below each other; the ground of the tests of trees, groups and filters.
#pragma once

#include "GridWindow.h"

class OutlineTest : public GridTest {
protected:
    /// Adds a record of three texts; below another one when that is not null.
    CXTPReportRecord* Add(CXTPReportRecord* parent, LPCTSTR a, LPCTSTR b = _T(""), LPCTSTR c = _T("")) {
        auto* record = new CXTPReportRecord;
        for (const LPCTSTR text : {a, b, c})
            record->AddItem(new ProbeItem(text));
        (parent ? parent->GetChilds() : m_grid.GetRecords())->Add(record);
        return record;
    }
    static CString TextOf(const CXTPReportRow* row, int item = 0) {
        return static_cast<ProbeItem*>(row->GetRecord()->GetItem(item))->GetValue();
    }
    /// What stands below each other: a group as "[caption]", a record as its first text behind a point for each level.
    std::vector<std::wstring> Shown() const {
        std::vector<std::wstring> shown;
        for (int i = 0; i < m_grid.GetRows()->GetCount(); ++i) {
            const CXTPReportRow* row = m_grid.GetRows()->GetAt(i);
            const CString text = row->IsGroupRow()
                                     ? _T("[") + static_cast<const CXTPReportGroupRow*>(row)->GetCaption() + _T("]")
                                     : TextOf(row);
            shown.push_back(std::wstring(row->GetGroupLevel() + row->GetTreeDepth(), L'.') + text.GetString());
        }
        return shown;
    }
    CXTPReportRow* Row(int index) const { return m_grid.GetRows()->GetAt(index); }
    CXTPReportRow* RowOf(CXTPReportRecord* record) const { return m_grid.GetRows()->Find(record); }
    CPoint ButtonOf(int row) const { return Row(row)->GetExpandButtonRect().CenterPoint(); }
    int Step() const { return m_grid.GetPaintManager()->GetTreeIndent(); }
    int Focused() const { return m_grid.GetFocusedRow() ? m_grid.GetFocusedRow()->GetIndex() : -1; }
    void Focus(int row) { m_grid.SetFocusedRow(Row(row)); }
    /// A key and the character that the system makes of it.
    void Sign(UINT key, wchar_t character) {
        m_grid.SendMessage(WM_KEYDOWN, key, 1);
        m_grid.SendMessage(WM_CHAR, character, 1);
        m_grid.SendMessage(WM_KEYUP, key, 0xC0000001);
    }
};
