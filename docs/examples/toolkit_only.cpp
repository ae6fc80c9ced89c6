// A grid of the toolkit alone: sorted by a click on a header, columns moved and resized by dragging them.
#include <XTToolkitPro.h>

class PlanetApp : public CWinApp {
    CXTPReportControl m_grid;

    void AddPlanet(LPCTSTR name, double diameter) {
        CXTPReportRecord* record = m_grid.AddRecord(new CXTPReportRecord);
        record->AddItem(new CXTPReportRecordItemText(name));
        record->AddItem(new CXTPReportRecordItemNumber(diameter, _T("%.0f km")));
    }

    BOOL InitInstance() override {
        auto* frame = new CFrameWnd;
        if (!frame->Create(nullptr, _T("Toolkit alone"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 420, 300)))
            return FALSE;
        m_pMainWnd = frame;

        m_grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(), frame, AFX_IDW_PANE_FIRST);
        m_grid.SetTheme(xtpReportThemeWindows7);
        m_grid.AddColumn(new CXTPReportColumn(0, _T("Planet"), 120));
        auto* diameter = new CXTPReportColumn(1, _T("Diameter"), 120);
        diameter->SetAlignment(DT_RIGHT);
        m_grid.AddColumn(diameter);
        AddPlanet(_T("Mercury"), 4879);
        AddPlanet(_T("Venus"), 12104);
        AddPlanet(_T("Earth"), 12756);
        AddPlanet(_T("Mars"), 6792);
        m_grid.GetColumns()->SetSortColumn(diameter, FALSE); // the largest first
        m_grid.Populate();

        frame->RecalcLayout(); // gives the grid the room of the frame
        frame->ShowWindow(m_nCmdShow);
        return TRUE;
    }
} theApp;
