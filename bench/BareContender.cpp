// A bare GDI loop: what the picture costs when nothing but the picture is drawn.
#include "Contender.h"

namespace {

using benchpicture::RowHeight;
using benchpicture::ViewHeight;
using benchpicture::ViewWidth;

class BareWindow : public CWnd {
public:
    BareWindow(int headerHeight, const benchpicture::Picture& picture)
        : m_headerHeight(headerHeight), m_picture(picture) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(info.bmiHeader), ViewWidth, -ViewHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_dc.CreateCompatibleDC(nullptr);
        m_formerBitmap = m_dc.SelectObject(&m_bitmap);
        NONCLIENTMETRICS metrics = {};
        metrics.cbSize = sizeof(metrics);
        ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
        m_font.CreateFontIndirect(&metrics.lfMessageFont);
        m_formerFont = m_dc.SelectObject(&m_font);
    }
    ~BareWindow() override {
        m_dc.SelectObject(m_formerFont);
        m_dc.SelectObject(m_formerBitmap);
    }

    /// Draws the rows that meet the rectangle and copies it.
    void Draw(CDC& dc, const CRect& rc) {
        if (rc.top < m_headerHeight)
            m_dc.FillSolidRect(0, 0, ViewWidth, m_headerHeight, RGB(240, 240, 240));
        for (int row = 0; RowTop(row) < ViewHeight; ++row) {
            if (RowTop(row) < rc.bottom && RowTop(row + 1) > rc.top)
                benchpicture::DrawRow(m_dc.m_hDC, RowTop(row), m_picture, std::int64_t{topRow} + row);
        }
        dc.BitBlt(rc.left, rc.top, rc.Width(), rc.Height(), &m_dc, rc.left, rc.top, SRCCOPY);
    }
    int RowTop(int row) const { return m_headerHeight + row * RowHeight; }

    int topRow = 0;

protected:
    void OnPaint() {
        CPaintDC dc(this);
        Draw(dc, CRect(dc.m_ps.rcPaint));
    }
    DECLARE_MESSAGE_MAP()

private:
    int m_headerHeight;
    benchpicture::Picture m_picture;
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_formerBitmap;
    CFont m_font;
    CFont* m_formerFont;
};

BEGIN_MESSAGE_MAP(BareWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

class BareContender : public Contender {
public:
    BareContender(int headerHeight, const benchpicture::Picture& picture) : m_window(headerHeight, picture) {
        m_window.CreateEx(0, AfxRegisterWndClass(0), _T("bare"), WS_POPUP | WS_VISIBLE,
                          CRect(0, 0, ViewWidth, ViewHeight), nullptr, 0);
    }
    ~BareContender() override { m_window.DestroyWindow(); }

    CWnd& Window() override { return m_window; }
    void GoToRow(int row) override {
        m_window.topRow = row;
        Repaint();
    }
    void PageDown() override {
        m_window.topRow += (ViewHeight - m_window.RowTop(0)) / RowHeight;
        Repaint();
        Pump();
    }
    void MoveOfDrag(int) override {
        CClientDC dc(&m_window);
        m_window.Draw(dc, CRect(0, m_window.RowTop(DragRow), ViewWidth, m_window.RowTop(DragRow + 1)));
        ::GdiFlush();
    }
    void Update(int) override { m_window.Invalidate(FALSE); }
    CRect BarRect(int visibleRow, int bar) override {
        int left = 0;
        for (int column = 0; column < 2 + bar; ++column)
            left += benchpicture::ColumnWidths[column];
        const int top = m_window.RowTop(visibleRow);
        return CRect(left, top, left + benchpicture::ColumnWidths[2 + bar] - 1, top + RowHeight - 1);
    }

private:
    BareWindow m_window;
};

} // namespace

std::unique_ptr<Contender> MakeBareContender(int headerHeight, const benchpicture::Picture& picture) {
    return std::make_unique<BareContender>(headerHeight, picture);
}
