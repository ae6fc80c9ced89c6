// Leads a right click on the header to the column chooser.
#include "KyReportHeader.h"

#include "KyReportControl.h"

KyReportHeader::KyReportHeader(CXTPReportControl* control, CXTPReportColumns* columns)
    : CXTPReportHeader(control, columns) {}

void KyReportHeader::OnContextMenu(CPoint point) {
    CXTPReportHeader::OnContextMenu(point);
    if (KyReportControl* control = DYNAMIC_DOWNCAST(KyReportControl, GetControl()))
        control->OnColumnHeaderRClick(point);
}
