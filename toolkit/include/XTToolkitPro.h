/// @file
/// Umbrella header of the toolkit layer: the one header that the library and its hosts include.
#pragma once

#include <afxcmn.h>
#include <afxext.h>
#include <afxwin.h>

#include "../common/CXTPColorManager.h"
#include "../common/CXTPPaintManager.h"
#include "../common/CXTPPaintManagerColor.h"
#include "../common/CXTPPropExchange.h"
#include "../common/CXTPPropExchangeXMLNode.h"
#include "../common/CXTPSplitPath.h"
#include "../common/CXTPToolTipContext.h"
#include "../common/XTPThemes.h"

#include "../commandbars/CXTPCommandBars.h"
#include "../commandbars/CXTPMDIFrameWnd.h"

#include "../report/CXTPReportColumn.h"
#include "../report/CXTPReportColumns.h"
#include "../report/CXTPReportControl.h"
#include "../report/CXTPReportFilterEditControl.h"
#include "../report/CXTPReportGroupRow.h"
#include "../report/CXTPReportHeader.h"
#include "../report/CXTPReportInplaceEdit.h"
#include "../report/CXTPReportPaintManager.h"
#include "../report/CXTPReportRecord.h"
#include "../report/CXTPReportRecordItem.h"
#include "../report/CXTPReportRecordItemNumber.h"
#include "../report/CXTPReportRecordItemPreview.h"
#include "../report/CXTPReportRecordItemText.h"
#include "../report/CXTPReportRecords.h"
#include "../report/CXTPReportRow.h"
#include "../report/CXTPReportRows.h"
#include "../report/CXTPReportSelectedRows.h"
#include "../report/CXTPReportThemeResource.h"
#include "../report/XTPReportDefines.h"
