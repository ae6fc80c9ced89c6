// A grid whose cells can be edited, driven by key messages through the queue; the ground of the tests of editing.
#pragma once

#include "GridWindow.h"

/// Editing is allowed, and the record 2 of twelve has the focus.
class EditTest : public GridTest {
protected:
    EditTest();

    CXTPReportInplaceEdit* Editor() const { return m_grid.GetInplaceEdit(); }
    bool IsEditing() const { return m_grid.GetActiveItem() != nullptr; }
    /// Edits the cell as a call of the host does.
    void Edit(int rowIndex, int columnIndex = 0);
    /// Puts a key into the queue of whoever has the focus, with the characters that it makes, and dispatches.
    void TypeKey(UINT key);
    void Type(const wchar_t* letters);
    CString EditorText() const;
    /// The codes of editing that the owner has heard since the last call.
    std::vector<UINT> EditCodes();
    bool HasGridFocus() const { return ::GetFocus() == m_grid.m_hWnd; }
};
