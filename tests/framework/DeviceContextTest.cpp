// Tests of device contexts: ownership, what is selected, attributes, mapping, clipping.
#include "DibCanvas.h"
#include "core/HandleCounts.h"

namespace {

long LiveContexts() { return handlecounts::Live(handlecounts::Kind::DeviceContext); }

} // namespace

TEST(DeviceContext, OwnsItsHandleAndDeletesIt) {
    const long before = LiveContexts();
    HDC handle = nullptr;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        handle = dc;
        EXPECT_EQ(dc.m_hAttribDC, handle);
        EXPECT_EQ(CDC::FromHandle(handle), &dc);
        EXPECT_EQ(LiveContexts(), before + 1);
    }
    EXPECT_EQ(GetObjectType(handle), 0u);
    EXPECT_EQ(LiveContexts(), before);
}

TEST(DeviceContext, ATemporaryObjectOwnsNothing) {
    const long before = LiveContexts();
    HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* temporary = CDC::FromHandle(handle);
    EXPECT_EQ(temporary->GetSafeHdc(), handle);
    EXPECT_EQ(CDC::FromHandle(handle), temporary);
    CDC::DeleteTempMap();
    EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_MEMDC));
    EXPECT_EQ(LiveContexts(), before);
    ::DeleteDC(handle);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST(DeviceContext, AttachesAndDetaches) {
    HDC handle = ::CreateCompatibleDC(nullptr);
    CDC dc;
    EXPECT_FALSE(dc.Attach(nullptr));
    EXPECT_TRUE(dc.Attach(handle));
    EXPECT_EQ(dc.Detach(), handle);
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    EXPECT_TRUE(::DeleteDC(handle));
}

TEST(DeviceContext, SelectingGivesBackTheFormerObject) {
    DibCanvas canvas(4, 4);
    CDC& dc = canvas.Dc();
    CPen red(PS_SOLID, 1, RGB(255, 0, 0));
    CPen blue(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* former = dc.SelectObject(&red);
    EXPECT_EQ(former->GetSafeHandle(), GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.SelectObject(&blue), &red);
    EXPECT_EQ(dc.GetCurrentPen(), &blue);
    EXPECT_EQ(dc.SelectObject(former), &blue);
    EXPECT_EQ(dc.GetCurrentPen()->GetSafeHandle(), GetStockObject(BLACK_PEN));
}

TEST(DeviceContext, SelectsStockObjects) {
    DibCanvas canvas(4, 4);
    canvas.Dc().SelectStockObject(NULL_BRUSH);
    EXPECT_EQ(canvas.Dc().GetCurrentBrush()->GetSafeHandle(), GetStockObject(NULL_BRUSH));
}

TEST(SelectGuard, PutsBackWhatWasSelected) {
    DibCanvas canvas(4, 4);
    CDC& dc = canvas.Dc();
    CFont font;
    font.CreatePointFont(100, L"Tahoma");
    HGDIOBJ before = ::GetCurrentObject(dc, OBJ_FONT);
    {
        const SelectGuard guard(dc, font);
        EXPECT_EQ(dc.GetCurrentFont(), &font);
        {
            const SelectGuard nothing(dc, static_cast<CPen*>(nullptr));
            EXPECT_EQ(dc.GetCurrentFont(), &font);
        }
    }
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), before);
}

TEST(SelectGuard, SaveDCGuardRestoresEverything) {
    DibCanvas canvas(4, 4);
    CDC& dc = canvas.Dc();
    dc.SetTextColor(RGB(1, 2, 3));
    {
        const SaveDCGuard guard(dc);
        dc.SetTextColor(RGB(9, 9, 9));
        dc.IntersectClipRect(0, 0, 1, 1);
    }
    EXPECT_EQ(dc.GetTextColor(), static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_TRUE(dc.PtVisible(3, 3));
}

TEST(DeviceContext, AttributesGiveBackTheFormerValue) {
    DibCanvas canvas(4, 4);
    CDC& dc = canvas.Dc();
    EXPECT_EQ(dc.SetTextColor(RGB(1, 2, 3)), 0u);
    EXPECT_EQ(dc.SetTextColor(0), static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_EQ(dc.SetBkColor(RGB(5, 5, 5)), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(dc.GetBkColor(), static_cast<COLORREF>(RGB(5, 5, 5)));
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(dc.SetROP2(R2_XORPEN), R2_COPYPEN);
    EXPECT_EQ(dc.SetPolyFillMode(WINDING), ALTERNATE);
}

TEST(DeviceContext, MapsLogicalToDeviceUnits) {
    DibCanvas canvas(10, 10);
    CDC& dc = canvas.Dc();
    EXPECT_EQ(dc.SetViewportOrg(3, 4), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetViewportOrg(1, 1), CPoint(3, 4));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(4, 5));
    CPoint point(1, 1);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(5, 6));
    EXPECT_EQ(dc.SetWindowOrg(1, 1), CPoint(0, 0));
    point = CPoint(4, 5);
    dc.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(1, 1));
    EXPECT_EQ(dc.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    dc.SetWindowExt(1, 1);
    dc.SetViewportExt(2, 3);
    CSize size(10, 10);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(20, 30));
    dc.DPtoLP(&size);
    EXPECT_EQ(size, CSize(10, 10));
}

TEST(DeviceContext, ClipsToRectanglesAndRegions) {
    DibCanvas canvas(10, 10);
    CDC& dc = canvas.Dc();
    EXPECT_EQ(dc.IntersectClipRect(CRect(2, 2, 8, 8)), SIMPLEREGION);
    CRect box;
    dc.GetClipBox(box);
    EXPECT_EQ(box, CRect(2, 2, 8, 8));
    EXPECT_EQ(dc.ExcludeClipRect(2, 2, 4, 8), SIMPLEREGION);
    EXPECT_TRUE(dc.RectVisible(CRect(0, 0, 5, 5)));
    EXPECT_FALSE(dc.RectVisible(CRect(0, 0, 4, 4)));
    EXPECT_FALSE(dc.PtVisible(CPoint(3, 3)));
    CRgn region;
    region.CreateRectRgn(1, 1, 3, 3);
    EXPECT_EQ(dc.SelectClipRgn(&region), SIMPLEREGION);
    dc.FillSolidRect(CRect(0, 0, 10, 10), RGB(255, 0, 0));
    EXPECT_EQ(canvas.Count(RGB(255, 0, 0)), 4);
    dc.SelectClipRgn(nullptr);
    EXPECT_TRUE(dc.PtVisible(9, 9));
}

TEST(DeviceContext, QuestionsGoToTheAttributeContext) {
    DibCanvas output(4, 4);
    CDC attributes;
    ASSERT_TRUE(attributes.CreateCompatibleDC(nullptr));
    CDC& dc = output.Dc();
    HDC own = dc.m_hAttribDC;
    dc.SetAttribDC(attributes);
    dc.SetTextColor(RGB(4, 5, 6));
    EXPECT_EQ(attributes.GetTextColor(), static_cast<COLORREF>(RGB(4, 5, 6)));
    EXPECT_EQ(::GetTextColor(dc.m_hDC), static_cast<COLORREF>(RGB(4, 5, 6)));
    CFont font;
    font.CreatePointFont(200, L"Tahoma");
    {
        const SelectGuard guard(dc, font);
        EXPECT_EQ(attributes.GetCurrentFont(), &font);
        EXPECT_EQ(dc.GetTextExtent(L"Wide", 4), attributes.GetTextExtent(L"Wide", 4));
    }
    EXPECT_NE(attributes.GetCurrentFont(), &font);
    dc.SetAttribDC(own);
}

TEST(DeviceContext, BothContextsAreSavedAndRestoredTogether) {
    DibCanvas output(4, 4);
    CDC attributes;
    ASSERT_TRUE(attributes.CreateCompatibleDC(nullptr));
    CDC& dc = output.Dc();
    HDC own = dc.m_hAttribDC;
    dc.SetAttribDC(attributes);
    const int saved = dc.SaveDC();
    dc.SetBkColor(RGB(9, 9, 9));
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(::GetBkColor(dc.m_hDC), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(attributes.GetBkColor(), static_cast<COLORREF>(RGB(255, 255, 255)));
    dc.SetAttribDC(own);
}

TEST(DeviceContext, IsMadeForADeviceByName) {
    CDC dc;
    ASSERT_TRUE(dc.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(dc.GetDeviceCaps(TECHNOLOGY), DT_RASDISPLAY);
    CDC information;
    ASSERT_TRUE(information.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(information.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(HORZRES));
}

TEST(DeviceContext, ABitmapIsSelectedAndTakenOutAgain) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 1, nullptr));
    CBitmap* former = dc.SelectObject(&bitmap);
    ASSERT_NE(former, nullptr);
    EXPECT_EQ(dc.GetCurrentBitmap(), &bitmap);
    // A monochrome picture has only these two colours.
    EXPECT_EQ(dc.GetNearestColor(RGB(240, 250, 240)), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(dc.SelectObject(former), &bitmap);
}

TEST(DeviceContext, SelectingAPaletteGivesBackTheFormerOne) {
    DibCanvas canvas(4, 4);
    LOGPALETTE one{0x300, 1, {{1, 2, 3, 0}}};
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(&one));
    CPalette* former = canvas.Dc().SelectPalette(&palette, FALSE);
    EXPECT_EQ(former->GetSafeHandle(), GetStockObject(DEFAULT_PALETTE));
    EXPECT_EQ(canvas.Dc().GetCurrentPalette(), &palette);
    EXPECT_NE(canvas.Dc().RealizePalette(), GDI_ERROR);
    EXPECT_EQ(canvas.Dc().SelectPalette(former, TRUE), &palette);
}

TEST(DeviceContext, ClipRegionsCombineAndMove) {
    DibCanvas canvas(20, 20);
    CDC& dc = canvas.Dc();
    CRgn left;
    CRgn right;
    left.CreateRectRgn(0, 0, 4, 4);
    right.CreateRectRgn(10, 0, 14, 4);
    EXPECT_EQ(dc.SelectObject(&left), SIMPLEREGION);
    EXPECT_EQ(dc.SelectClipRgn(&right, RGN_OR), COMPLEXREGION);
    EXPECT_TRUE(dc.PtVisible(12, 1));
    EXPECT_FALSE(dc.PtVisible(6, 1));
    dc.OffsetClipRgn(CSize(0, 10));
    EXPECT_FALSE(dc.PtVisible(12, 1));
    EXPECT_TRUE(dc.PtVisible(12, 11));
}

TEST(DeviceContext, MapsRectangles) {
    DibCanvas canvas(10, 10);
    canvas.Dc().SetViewportOrg(CPoint(5, 7));
    CRect rect(1, 1, 3, 3);
    canvas.Dc().LPtoDP(rect);
    EXPECT_EQ(rect, CRect(6, 8, 8, 10));
    canvas.Dc().DPtoLP(rect);
    EXPECT_EQ(rect, CRect(1, 1, 3, 3));
    EXPECT_EQ(canvas.Dc().OffsetWindowOrg(2, 3), CPoint(0, 0));
    EXPECT_EQ(canvas.Dc().GetWindowOrg(), CPoint(2, 3));
}

TEST(DeviceContext, ANullPointerHasNoHandle) {
    CDC* volatile dc = nullptr;
    CPen* volatile pen = nullptr;
    EXPECT_EQ(dc->GetSafeHdc(), nullptr);
    EXPECT_EQ(pen->GetSafeHandle(), nullptr);
}
