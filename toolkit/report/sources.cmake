# The report control. First its model: records, items, columns, rows, selection, saved layout.
list(APPEND kytoolkit_report_SOURCES
    report/CompactText.cpp
    report/CXTPReportColumn.cpp
    report/CXTPReportColumns.cpp
    report/CXTPReportControl_State.cpp
    report/CXTPReportRecord.cpp
    report/CXTPReportRecordItem.cpp
    report/CXTPReportRecordItemNumber.cpp
    report/CXTPReportRecordItemText.cpp
    report/CXTPReportRecords.cpp
    report/CXTPReportRows.cpp
    report/CXTPReportSelectedRows.cpp
    report/ItemCompare.cpp
    report/RecordItemHeap.cpp
    report/RecordSequence.cpp
    report/ReportSort.cpp)
