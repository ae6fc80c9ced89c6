// The plot cell of docs/using.md at work in a program outside the tree. The exit code is the number of the first step
// that went wrong, 0 when none did.
#include "LevelCell.h"

#include <plotcells/KyPlotRecordReportControl.h>

namespace {

/// The colour at a point of the cell's picture, of 100 x 20 pixels and 24 or 32 bits each; rows stand bottom up.
COLORREF PictureColor(LevelCell& cell, CXTPReportControl& grid, int x) {
    const HGLOBAL dib = static_cast<HGLOBAL>(cell.CreateDIB(grid, 100, 20));
    if (dib == nullptr)
        return CLR_INVALID;
    const auto* header = static_cast<const BITMAPINFOHEADER*>(::GlobalLock(dib));
    const int bytes = header->biBitCount / 8;
    const auto* pixel =
        reinterpret_cast<const BYTE*>(header) + header->biSize + 10 * ((100 * bytes + 3) / 4 * 4) + x * bytes;
    const COLORREF color = RGB(pixel[2], pixel[1], pixel[0]);
    ::GlobalUnlock(dib);
    ::GlobalFree(dib);
    return color;
}

class LevelHost : public CWinApp {
    KyPlotRecordReportControl m_grid;
    int m_wrongStep = 0;

    int WrongStep(CFrameWnd& frame) {
        m_grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 100), &frame, AFX_IDW_PANE_FIRST);
        m_grid.AddColumn(new CXTPReportColumn(0, _T("Level"), 200));
        auto* cell = new LevelCell(30);
        m_grid.AddRecord(new CXTPReportRecord)->AddItem(cell);
        m_grid.Populate();

        // 30 on 0…100 with margins of 0.15 stands at 0.15 + 0.3 * 0.7 = 0.36.
        if (PictureColor(*cell, m_grid, 35) != RGB(70, 130, 180))
            return 1;
        if (PictureColor(*cell, m_grid, 37) != RGB(255, 255, 255))
            return 2;

        float told = 0;
        cell->m_valueChanged.connect([&told](float, float target, float) { told = target; });
        const CRect place = cell->GetItemRect();
        cell->OnMouseMove(0, CPoint(place.left + 36, place.top + 5), &m_grid);
        cell->BeginDrag(CPoint(place.left + 36, place.top + 5), place);
        cell->OnMouseMove(MK_LBUTTON, CPoint(place.left + 50, place.top + 5), &m_grid);
        if (!cell->IsCenterDragging())
            return 3;
        cell->EndDrag(CPoint(place.left + 50, place.top + 5), place, true);
        if (told < 49.9f || told > 50.1f || cell->GetInfoTip() != _T("50.0 %"))
            return 4;
        return 0;
    }

    BOOL InitInstance() override {
        CFrameWnd* frame = new CFrameWnd;
        if (!frame->Create(nullptr, _T("Level"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 500, 300)))
            m_wrongStep = 5;
        else {
            m_wrongStep = WrongStep(*frame);
            frame->DestroyWindow();
        }
        return FALSE;
    }

    int ExitInstance() override {
        CWinApp::ExitInstance();
        return m_wrongStep;
    }
} theApp;

} // namespace
