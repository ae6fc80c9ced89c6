// A grid of bullet bars. Dragging a target changes the number beside it.
#include "BulletCell.h"

#include <plotcells/KyPlotRecordReportControl.h>

class BulletHost : public CWinApp {
    KyPlotRecordReportControl m_grid;

    void AddRow(LPCTSTR name, double measure, double target, double fair, double good, double max) {
        auto* record = m_grid.AddRecord(new CXTPReportRecord);
        record->AddItem(new CXTPReportRecordItemText(name));
        auto* bullet = new BulletCell(measure, target, fair, good, max);
        record->AddItem(bullet);
        auto* share = new CXTPReportRecordItemNumber(100 * measure / target, _T("%.0f %%"));
        record->AddItem(share);

        // Cells outlive the connection: the grid deletes them together. -99 stands for what was not dragged.
        bullet->m_valueChanged.connect([this, bullet, share](float, float target, float) {
            share->SetValue(target > 0 ? 100 * bullet->GetMeasure() / target : 0);
            m_grid.RedrawControl();
        });
    }

    BOOL InitInstance() override {
        SetRegistryKey(_T("My Company"));
        auto* frame = new CFrameWnd;
        if (!frame->Create(nullptr, _T("Bullet bars"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 740, 310)))
            return FALSE;
        m_pMainWnd = frame;

        m_grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(), frame, AFX_IDW_PANE_FIRST);
        m_grid.AddColumn(new CXTPReportColumn(0, _T("This quarter"), 130));
        m_grid.AddColumn(new CXTPReportColumn(1, _T("Result and target"), 380));
        auto* share = new CXTPReportColumn(2, _T("Reached"), 90);
        share->SetAlignment(DT_RIGHT);
        m_grid.AddColumn(share);
        m_grid.GetPaintManager()->SetRowHeight(m_grid.GetPaintManager()->ScaleForDpi(26));

        AddRow(_T("Revenue"), 270, 250, 150, 225, 300);
        AddRow(_T("Profit"), 22.5, 26, 20, 25, 30);
        AddRow(_T("Order size"), 320, 540, 350, 500, 600);
        AddRow(_T("New customers"), 1650, 2100, 1400, 2000, 2500);
        AddRow(_T("Satisfaction"), 4.7, 4.5, 3.5, 4.2, 5);
        m_grid.Populate();

        frame->RecalcLayout();
        frame->ShowWindow(m_nCmdShow);
        return TRUE;
    }
} theApp;
