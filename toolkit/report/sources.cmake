# The report control. First its model: records, items, columns, rows, selection, saved layout.
list(APPEND kytoolkit_report_SOURCES
    report/CompactText.cpp
    report/CXTPReportColumn.cpp
    report/CXTPReportColumns.cpp
    report/CXTPReportControl_State.cpp
    report/CXTPReportRecord.cpp
    report/CXTPReportRecordItem.cpp
    report/CXTPReportRecordItemNumber.cpp
    report/CXTPReportRecordItemPreview.cpp
    report/CXTPReportRecordItemText.cpp
    report/CXTPReportRecords.cpp
    report/CXTPReportRows.cpp
    report/CXTPReportSelectedRows.cpp
    report/ItemCompare.cpp
    report/RecordItemHeap.cpp
    report/RecordSequence.cpp
    report/ReportGroups.cpp
    report/ReportSort.cpp
    report/RowBuilder.cpp
    report/TextFilter.cpp)
# Then the view: control, header, rows, and the look of it all.
list(APPEND kytoolkit_report_SOURCES
    report/CellText.cpp
    report/CXTPReportControl.cpp
    report/CXTPReportControl_Clipboard.cpp
    report/CXTPReportControl_Edit.cpp
    report/CXTPReportControl_Keyboard.cpp
    report/CXTPReportControl_Mouse.cpp
    report/CXTPReportControl_Outline.cpp
    report/CXTPReportControl_Paint.cpp
    report/CXTPReportControl_Preview.cpp
    report/CXTPReportControl_Scroll.cpp
    report/CXTPReportControl_Selection.cpp
    report/CXTPReportControl_Tips.cpp
    report/CXTPReportFilterEditControl.cpp
    report/CXTPReportGroupRow.cpp
    report/CXTPReportHeader.cpp
    report/CXTPReportHeader_Groups.cpp
    report/CXTPReportHeader_Mouse.cpp
    report/CXTPReportInplaceEdit.cpp
    report/CXTPReportPaintManager.cpp
    report/CXTPReportPaintManager_Header.cpp
    report/CXTPReportPaintManager_Outline.cpp
    report/CXTPReportRow.cpp
    report/CXTPReportThemeResource.cpp
    report/ReportAccessible.cpp
    report/ReportLook.cpp)
