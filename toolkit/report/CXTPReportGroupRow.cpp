// The row at the head of a group of records.
#include "CXTPReportGroupRow.h"

#include "CXTPReportControl.h"
#include "CXTPReportPaintManager.h"
#include "CXTPReportRows.h"
#include "ReportGroups.h"

CXTPReportGroupRow::CXTPReportGroupRow(CXTPReportRows* pRows, int nIndex) : CXTPReportRow(pRows, nullptr, nIndex) {}

CString CXTPReportGroupRow::GetCaption() const {
    const CXTPReportControl* control = GetControl();
    const ReportGroup* group = control ? GetRows()->GetGroupAt(GetIndex()) : nullptr;
    return group ? control->GetGroupCaption(group->Column(), group->Value(), group->records) : CString();
}

CXTPReportColumn* CXTPReportGroupRow::GetColumn() const {
    const ReportGroup* group = GetRows() ? GetRows()->GetGroupAt(GetIndex()) : nullptr;
    return group && group->Column()->GetControl() ? group->Column() : nullptr;
}

CString CXTPReportGroupRow::GetValue() const {
    const ReportGroup* group = GetRows() ? GetRows()->GetGroupAt(GetIndex()) : nullptr;
    return group ? group->Value() : CString();
}

int CXTPReportGroupRow::GetRecordCount() const {
    const ReportGroup* group = GetRows() ? GetRows()->GetGroupAt(GetIndex()) : nullptr;
    return group ? group->records : 0;
}

CRect CXTPReportGroupRow::GetExpandButtonRect() const {
    const CXTPReportControl* control = GetControl();
    return control && HasChildren() ? control->GetPaintManager()->GetGroupButtonRect(this, GetRect()) : CRect();
}

void CXTPReportGroupRow::Draw(CDC* pDC, const CRect& rcRow, const CRect& rcClip) {
    CXTPReportControl* control = GetControl();
    CRect rcDirty;
    if (!control || !rcDirty.IntersectRect(&rcRow, &rcClip))
        return;
    control->GetPaintManager()->DrawGroupRow(pDC, this, rcRow);
    DrawFocus(pDC, rcRow);
}
