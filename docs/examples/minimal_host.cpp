#include <plotcells/KyBarChartRecordItem.h>
#include <plotcells/KyPlotRecordReportControl.h>

class MinimalHost : public CWinApp {
    KyPlotRecordReportControl m_grid;

    BOOL InitInstance() override {
        SetRegistryKey(_T("My Company"));
        auto* frame = new CFrameWnd;
        frame->Create(nullptr, _T("Drag the bar"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 740, 300));
        m_pMainWnd = frame;

        m_grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(), frame, AFX_IDW_PANE_FIRST);
        m_grid.AddColumn(new CXTPReportColumn(0, _T("Name"), 120));
        m_grid.AddColumn(new CXTPReportColumn(1, _T("Range"), 480));

        auto* bar = new KyBarChartRecordItem; // target 5 on the scale 0…10, bar 3…7, whiskers 2…8, no optimizer marks
        bar->SetError(5, 0, 10, 3, 7, 2, 8, -99, -99);
        bar->m_valueChanged.connect([frame](float lower, float target, float upper) { // -99: was not dragged
            CString text;
            text.Format(_T("lower %g, target %g, upper %g"), lower, target, upper);
            frame->SetWindowText(text);
        });
        CXTPReportRecord* record = m_grid.AddRecord(new CXTPReportRecord);
        record->AddItem(new CXTPReportRecordItemText(_T("Temperature")));
        record->AddItem(bar);
        m_grid.Populate();

        frame->RecalcLayout();
        frame->ShowWindow(m_nCmdShow);
        return TRUE;
    }
} theApp;
