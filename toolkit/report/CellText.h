// What a cell shows as text, outside of its drawing: for best fit and tool tips.
#pragma once

#include "XTPReportDefines.h"

#include <chrono>

/// So long may best fit keep the user waiting. A host's texts may be slow to come by.
constexpr std::chrono::milliseconds BestFitTime(40);

/// The metrics with which the item would be drawn in that row and column.
XTP_REPORTRECORDITEM_METRICS CellMetrics(CXTPReportControl& control, CXTPReportRow* row, CXTPReportColumn* column,
                                         CXTPReportRecordItem* item);

/// The width of the metrics' text in one line, in pixels, in the metrics' font.
int CellTextWidth(const XTP_REPORTRECORDITEM_METRICS& metrics);
