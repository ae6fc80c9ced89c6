// What assistive programs are told about a report control, its headers, rows, cells and group-by buttons.
#include "AccessibleElement.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportControl.h"
#include "CXTPReportGroupRow.h"
#include "CXTPReportHeader.h"
#include "CXTPReportRecord.h"
#include "CXTPReportRecordItem.h"
#include "CXTPReportRecordItemPreview.h"
#include "CXTPReportRow.h"
#include "CXTPReportRows.h"
#include "CellText.h"

#include <oleacc.h>

#include <algorithm>

namespace reportaccessible {

namespace {

CString TextOf(CXTPReportControl& control, const Element& cell) {
    CXTPReportRecordItem* const item = cell.Item();
    if (!item)
        return CString();
    // The metrics come first: an item of a virtual grid learns from them which row it stands for.
    const CString text = CellMetrics(control, cell.row, cell.column, item).strText;
    return text.IsEmpty() ? item->GetAccessibleValue(cell.column) : text;
}

/// Calls `visit` for the cell in each visible column, from the left, until it returns false.
template <class Visit>
void ForCells(const CXTPReportControl& control, CXTPReportRow* row, Visit visit) {
    const CXTPReportColumns& columns = *control.GetColumns();
    for (int i = 0; i < columns.GetCount(); ++i) {
        CXTPReportColumn* const column = columns.GetAt(i);
        if (column->IsVisible() && !visit(Element{row, column}))
            return;
    }
}

/// What stands below the cells of the row.
CString PreviewOf(const CXTPReportControl& control, const CXTPReportRow& row) {
    const CXTPReportRecord* const record = row.GetRecord();
    const bool isShown = control.IsPreviewMode() && record && record->GetItemPreview();
    return isShown ? record->GetItemPreview()->GetPreviewText().Trim() : CString();
}

bool IsFocused(const CXTPReportControl& control, const Element& element) {
    if (!control.HasFocus() || element.IsHeader() || element.isGroupButton)
        return false;
    if (element.IsGrid())
        return control.GetFocusedRow() == nullptr;
    const bool isColumnFocused = control.IsColumnFocusVisible() != FALSE;
    return element.row->IsFocused() &&
           (element.column ? isColumnFocused && control.GetFocusedColumn() == element.column : !isColumnFocused);
}

bool IsEditable(const CXTPReportControl& control, const Element& element) {
    const CXTPReportRecordItem* const item = element.Item();
    return item && control.IsAllowEdit() && element.column->IsEditable() && item->IsEditable();
}

void Edit(CXTPReportControl& control, const Element& cell) {
    XTP_REPORTRECORDITEM_ARGS args;
    args.pControl = &control;
    args.pRow = cell.row;
    args.pColumn = cell.column;
    args.pItem = cell.Item();
    control.EditItem(&args);
}

} // namespace

const CXTPReportGroupRow* Element::Group() const {
    return IsRow() && row->IsGroupRow() ? static_cast<const CXTPReportGroupRow*>(row) : nullptr;
}

CXTPReportRecordItem* Element::Item() const {
    return IsCell() && row->GetRecord() ? row->GetRecord()->GetItem(column) : nullptr;
}

CString NameOf(CXTPReportControl& control, const Element& element) {
    CString name;
    if (element.IsGrid())
        control.GetWindowText(name);
    else if (const CXTPReportGroupRow* const group = element.Group())
        name = group->GetCaption();
    else if (element.column)
        name = element.column->GetCaption();
    else
        ForCells(control, element.row, [&](const Element& cell) {
            name = TextOf(control, cell);
            return name.IsEmpty();
        });
    return name;
}

CString ValueOf(CXTPReportControl& control, const Element& element) {
    if (!element.IsRow() || !control.GetRows()->IsOutline())
        return TextOf(control, element);
    CString level;
    level.Format(_T("%d"), element.row->GetGroupLevel() + element.row->GetTreeDepth());
    return level;
}

CString DescriptionOf(CXTPReportControl& control, const Element& element) {
    CString description;
    if (!element.IsRow())
        return description;
    ForCells(control, element.row, [&](const Element& cell) {
        const CString text = TextOf(control, cell);
        if (!text.IsEmpty())
            description +=
                (description.IsEmpty() ? CString() : CString(_T("; "))) + cell.column->GetCaption() + _T(": ") + text;
        return true;
    });
    const CString preview = PreviewOf(control, *element.row);
    return preview.IsEmpty() ? description : description + (description.IsEmpty() ? _T("") : _T("; ")) + preview;
}

LONG RoleOf(const CXTPReportControl& control, const Element& element) {
    if (element.IsGrid())
        return ROLE_SYSTEM_TABLE;
    if (element.isGroupButton)
        return ROLE_SYSTEM_PUSHBUTTON;
    if (element.IsHeader())
        return ROLE_SYSTEM_COLUMNHEADER;
    if (!element.IsRow())
        return ROLE_SYSTEM_CELL;
    return control.GetRows()->IsOutline() ? ROLE_SYSTEM_OUTLINEITEM : ROLE_SYSTEM_ROW;
}

CRect RectOf(const CXTPReportControl& control, const Element& element) {
    CRect rc;
    if (element.IsGrid()) {
        control.GetClientRect(&rc);
    } else if (element.isGroupButton) {
        rc = control.GetReportHeader()->GetGroupRect(element.column);
    } else if (element.IsHeader()) {
        rc = element.column->GetRect();
    } else {
        rc = element.column ? element.row->GetCellsRect() : element.row->GetRect();
        if (element.column) {
            const CRect rcColumn = element.column->GetRect();
            rc.left = rcColumn.left;
            rc.right = rcColumn.right;
        }
    }
    return rc;
}

namespace {

bool IsSeen(const CXTPReportControl& control, const Element& element) {
    if (element.isGroupButton)
        return !RectOf(control, element).IsRectEmpty();
    CRect rcView = element.row ? control.GetReportRectangle() : control.GetHeaderRect();
    if (element.column) {
        const CRect rcUncovered = element.column->GetUncoveredRect();
        rcView.left = std::max(rcView.left, rcUncovered.left);
        rcView.right = std::min(rcView.right, rcUncovered.right);
    }
    CRect rcSeen;
    return element.IsGrid() || rcSeen.IntersectRect(RectOf(control, element), rcView);
}

} // namespace

LONG StateOf(const CXTPReportControl& control, const Element& element) {
    LONG state = 0;
    const auto add = [&state](bool condition, LONG bits) { state |= condition ? bits : 0; };
    add(!control.IsWindowEnabled(), STATE_SYSTEM_UNAVAILABLE);
    add(!control.IsWindowVisible(), STATE_SYSTEM_INVISIBLE);
    add(!IsSeen(control, element), STATE_SYSTEM_OFFSCREEN);
    add(!element.IsHeader() && !element.isGroupButton, STATE_SYSTEM_FOCUSABLE);
    add(IsFocused(control, element), STATE_SYSTEM_FOCUSED);
    add(element.IsGrid() && control.IsMultipleSelection(), STATE_SYSTEM_MULTISELECTABLE | STATE_SYSTEM_EXTSELECTABLE);
    add(element.row, STATE_SYSTEM_SELECTABLE);
    add(element.row && element.row->IsSelected(), STATE_SYSTEM_SELECTED);
    if (element.IsRow() && element.row->HasChildren())
        add(true, element.row->IsExpanded() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
    const CXTPReportRecordItem* const item = element.Item();
    add(item && item->GetHyperlinksCount() > 0, STATE_SYSTEM_LINKED);
    add(element.IsCell() && !IsEditable(control, element), STATE_SYSTEM_READONLY);
    return state;
}

CString DefaultActionOf(const CXTPReportControl& control, const Element& element) {
    if (element.IsGrid())
        return CString();
    if (element.isGroupButton)
        return control.GetText(xtpReportTextSort);
    if (element.IsHeader()) {
        const bool sorts = control.GetReportHeader()->IsAllowColumnSort() && element.column->IsSortable();
        return sorts ? control.GetText(xtpReportTextSort) : CString();
    }
    if (element.IsRow() && element.row->HasChildren())
        return control.GetText(element.row->IsExpanded() ? xtpReportTextCollapse : xtpReportTextExpand);
    if (element.row->IsGroupRow())
        return CString(); // its cells
    const CXTPReportRecordItem* const item = element.Item();
    if (item && item->GetHyperlinksCount() > 0)
        return control.GetText(xtpReportTextJump);
    return control.GetText(IsEditable(control, element) ? xtpReportTextEdit : xtpReportTextOpen);
}

void Act(CXTPReportControl& control, const Element& element) {
    if (element.isGroupButton) {
        control.GetReportHeader()->TurnGroup(element.column);
        return;
    }
    if (element.IsHeader()) {
        control.GetReportHeader()->Sort(element.column, FALSE);
        return;
    }
    if (element.IsRow() && element.row->HasChildren()) {
        element.row->SetExpanded(!element.row->IsExpanded());
        return;
    }
    CXTPReportRecordItem* const item = element.Item();
    const CPoint point = RectOf(control, element).CenterPoint();
    if (item && item->GetHyperlinksCount() > 0)
        control.SendItemNotify(XTP_NM_REPORT_HYPERLINK, point, element.row, item, element.column, 0);
    else if (IsEditable(control, element))
        Edit(control, element);
    else
        control.SendItemNotify(NM_RETURN, point, element.row, item, element.column);
}

} // namespace reportaccessible
