// The plot cell of the documentation at work in a program outside the tree: virtual calls in both directions, signals
// and run-time types cross the DLLs' borders. The exit code is the number of the first step that went wrong, 0 when
// none did.
#include "BulletCell.h"

#include <plotcells/KyPlotRecordReportControl.h>

namespace {

/// The colour at a point of the cell's picture, of 100 x 20 pixels and 24 or 32 bits each; rows stand bottom up.
COLORREF PictureColor(BulletCell& cell, CXTPReportControl& grid, int x) {
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

class BulletCheck : public CWinApp {
    KyPlotRecordReportControl m_grid;
    int m_wrongStep = 0;

    int WrongStep(CFrameWnd& frame) {
        m_grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 100), &frame, AFX_IDW_PANE_FIRST);
        m_grid.AddColumn(new CXTPReportColumn(0, _T("Bullet"), 200));
        auto* cell = new BulletCell(40, 70, 30, 60, 100);
        CXTPReportRecord* record = m_grid.AddRecord(new CXTPReportRecord);
        record->AddItem(cell);
        m_grid.Populate();
        m_grid.UpdateWindow();

        // 40 on 0…100 with margins of 0.02 stands at 1 + floor(98 * 0.404) = 40 of the picture.
        if (PictureColor(*cell, m_grid, 39) != RGB(38, 84, 140))
            return 1;
        if (PictureColor(*cell, m_grid, 41) != RGB(204, 209, 215))
            return 2;

        float told = 0;
        cell->m_valueChanged.connect([&told](float, float target, float) { told = target; });
        m_grid.RedrawControl(); // the picture has left its own rectangle in the cell
        m_grid.UpdateWindow();
        const CRect plot = cell->GetItemRect();
        const auto place = [&plot](double value) {
            return MAKELPARAM(plot.left + static_cast<int>(plot.Width() * (value / 100 * 0.96 + 0.02)),
                              plot.CenterPoint().y);
        };
        m_grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place(70));
        m_grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, place(50));
        if (!cell->IsCenterDragging())
            return 3;
        m_grid.SendMessage(WM_LBUTTONUP, 0, place(50));
        if (told < 49 || told > 51 || static_cast<float>(cell->GetTarget()) != told)
            return 4;

        // An exception of the framework's is thrown in its DLL and caught by its type here.
        try {
            CFile missing(_T("Z:\\there\\is\\no\\such\\file"), CFile::modeRead);
            return 5;
        } catch (CFileException* exception) {
            const bool isSaid =
                exception->m_cause == CFileException::badPath || exception->m_cause == CFileException::fileNotFound;
            exception->Delete();
            if (!isSaid)
                return 6;
        }
        return dynamic_cast<KyPlotRecordItem*>(record->GetItem(0)) == cell ? 0 : 7;
    }

    BOOL InitInstance() override {
        CFrameWnd* frame = new CFrameWnd;
        if (!frame->Create(nullptr, _T("Bullet"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 500, 300))) {
            m_wrongStep = 8;
        } else {
            frame->ShowWindow(SW_SHOW);
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
