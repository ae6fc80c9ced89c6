// What assistive programs are told about a report control, its headers, rows, cells and group-by buttons.
#pragma once

#include <afxwin.h>

class CXTPReportColumn;
class CXTPReportControl;
class CXTPReportGroupRow;
class CXTPReportRecordItem;
class CXTPReportRow;

namespace reportaccessible {

/// One thing that can be told about. Row and column both null: the grid itself.
struct Element {
    CXTPReportRow* row = nullptr;
    CXTPReportColumn* column = nullptr;
    bool isGroupButton = false; ///< that of the column in the group-by box

    bool IsGrid() const { return !row && !column; }
    bool IsHeader() const { return !row && column && !isGroupButton; }
    bool IsRow() const { return row && !column; }
    bool IsCell() const { return row && column; }
    const CXTPReportGroupRow* Group() const; ///< null but for the row of a group
    CXTPReportRecordItem* Item() const;      ///< null where the record has no such cell
};

CString NameOf(CXTPReportControl& control, const Element& element);
/// Of a cell its text. Of a row in an outline its level, from 0 on, as trees of the system tell it.
CString ValueOf(CXTPReportControl& control, const Element& element);
/// A row's cells with their columns and its preview, to be read in one go.
CString DescriptionOf(CXTPReportControl& control, const Element& element);
/// ROLE_SYSTEM_...
LONG RoleOf(const CXTPReportControl& control, const Element& element);
/// STATE_SYSTEM_...
LONG StateOf(const CXTPReportControl& control, const Element& element);
/// In client coordinates, also where it is scrolled out of view.
CRect RectOf(const CXTPReportControl& control, const Element& element);

/// Pressing a header sorts, a button in the group-by box turns the order of its groups round. A row that others stand
/// below is expanded or collapsed; another one, and a cell, does what enter does for it.
CString DefaultActionOf(const CXTPReportControl& control, const Element& element);
/// Does it. The owner hears of it and may do anything.
void Act(CXTPReportControl& control, const Element& element);

} // namespace reportaccessible
