// Pictures of plot cells, and what the tests of their drawing share.
#pragma once

#include "PixelImage.h"
#include "PlotCellProbes.h"

constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Gold = RGB(255, 215, 0);

/// A memory context with a bitmap at the screen's depth, for drawing cells into.
class Surface {
public:
    Surface(int width, int height, COLORREF color) : m_width(width), m_height(height) {
        CClientDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, width, height);
        m_former = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(0, 0, width, height, color);
    }
    ~Surface() { m_dc.SelectObject(m_former); }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    CDC& Dc() { return m_dc; }
    PixelImage Image() const {
        PixelImage image(m_width, m_height, 0);
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                image.Set(x, y, m_dc.GetPixel(x, y));
        return image;
    }

private:
    CBitmap m_bitmap;
    CDC m_dc;
    CBitmap* m_former = nullptr;
    int m_width;
    int m_height;
};

/// The cell drawn into a picture of its own.
inline PixelImage PictureOf(KyPlotRecordItem& cell, CXTPReportControl& grid, int width, int height) {
    void* const block = cell.CreateDIB(grid, width, height);
    if (block == nullptr) {
        ADD_FAILURE() << "there is no picture";
        return PixelImage(width, height, 0);
    }
    const PixelImage image = PixelImage::FromPackedDib(::GlobalLock(block));
    ::GlobalUnlock(block);
    ::GlobalFree(block);
    return image;
}

/// Counts the pixels that blue text leaves on white between two columns: with smoothed edges, but blue throughout.
inline int CountInk(const PixelImage& image, int x0, int x1) {
    int count = 0;
    for (int y = 0; y < image.Height(); ++y) {
        for (int x = x0; x < x1; ++x) {
            if (image.At(x, y) == White)
                continue;
            ++count;
            EXPECT_EQ(GetBValue(image.At(x, y)), 255) << x << ", " << y;
        }
    }
    return count;
}

/// Cells from a common size down to none at all and to one turned around.
inline std::array<CRect, 5> CellsOfEverySize() {
    return {CRect(30, 10, 90, 31), CRect(30, 10, 32, 12), CRect(30, 10, 31, 11), CRect(30, 10, 30, 10),
            CRect(40, 20, 30, 10)};
}

/// Draws the cell at the place, which lies in a picture of 120 x 40 pixels, at rest and during a drag, and plays the
/// mouse on it. Fails when it paints a pixel elsewhere.
template <class Cell>
::testing::AssertionResult StaysInside(Cell& cell, CXTPReportControl& grid, const CRect& place) {
    Surface surface(120, 40, Gold);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &grid;
    args.rcItem = place;
    cell.OnDrawCaption(&args, nullptr);
    cell.BeginDrag(CPoint(60, 20), place);
    cell.OnMouseMove(0, CPoint(70, 20), &grid);
    cell.OnSetCursor(CPoint(70, 20));
    (void)cell.GetInfoTip();
    cell.OnDrawCaption(&args, nullptr);
    cell.EndDrag(CPoint(80, 20), place, true);
    cell.OnDrawCaption(&args, nullptr);

    PixelImage image = surface.Image();
    for (int y = place.top; y < place.bottom; ++y)
        for (int x = place.left; x < place.right; ++x)
            image.Set(x, y, Gold);
    const std::string difference = PixelImage::Difference(image, PixelImage(120, 40, Gold));
    return difference.empty() ? ::testing::AssertionSuccess()
                              : ::testing::AssertionFailure() << difference << ", width " << place.Width();
}
