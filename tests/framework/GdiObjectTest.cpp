// Tests of GDI objects and of the map from handles to objects.
#include "core/HandleCounts.h"

namespace {

long LiveObjects() { return handlecounts::Live(handlecounts::Kind::GdiObject); }

} // namespace

TEST(GdiObject, OwnsItsHandleAndDeletesIt) {
    const long before = LiveObjects();
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        handle = pen.GetSafeHandle();
        EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_PEN));
        EXPECT_EQ(LiveObjects(), before + 1);
    }
    EXPECT_EQ(GetObjectType(handle), 0u);
    EXPECT_EQ(LiveObjects(), before);
}

TEST(GdiObject, IsFoundByItsHandle) {
    CBrush brush(RGB(1, 2, 3));
    EXPECT_EQ(CBrush::FromHandle(brush), &brush);
    EXPECT_EQ(CGdiObject::FromHandle(brush), &brush);
    EXPECT_EQ(CBrush::FromHandle(nullptr), nullptr);
}

TEST(GdiObject, DetachGivesTheHandleUp) {
    const long before = LiveObjects();
    CBrush brush(RGB(9, 8, 7));
    HBRUSH handle = static_cast<HBRUSH>(brush.Detach());
    EXPECT_EQ(brush.GetSafeHandle(), nullptr);
    EXPECT_EQ(LiveObjects(), before);
    EXPECT_NE(CBrush::FromHandle(handle), &brush);
    EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    CBrush other;
    EXPECT_TRUE(other.Attach(handle));
    EXPECT_EQ(CBrush::FromHandle(handle), &other);
}

TEST(GdiObject, ATemporaryObjectFitsTheTypeOfTheHandleAndOwnsNothing) {
    const long before = LiveObjects();
    HFONT handle = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    CGdiObject* temporary = CGdiObject::FromHandle(handle);
    EXPECT_EQ(temporary->GetRuntimeClass(), RUNTIME_CLASS(CFont));
    EXPECT_EQ(CFont::FromHandle(handle), temporary);
    EXPECT_EQ(LiveObjects(), before);

    HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
    EXPECT_EQ(CPen::FromHandle(pen)->GetSafeHandle(), pen);
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(GetObjectType(pen), static_cast<DWORD>(OBJ_PEN));
    ::DeleteObject(pen);
}

TEST(GdiObject, AThreadHasItsOwnMap) {
    CBrush brush(RGB(1, 2, 3));
    CBrush* seenByOther = nullptr;
    HANDLE thread = CreateThread(
        nullptr, 0,
        [](void* argument) -> DWORD {
            auto* seen = static_cast<std::pair<HBRUSH, CBrush**>*>(argument);
            *seen->second = CBrush::FromHandle(seen->first);
            return 0;
        },
        new std::pair<HBRUSH, CBrush**>(brush, &seenByOther), 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    EXPECT_NE(seenByOther, nullptr);
    EXPECT_NE(seenByOther, &brush);
    EXPECT_EQ(GetObjectType(brush), static_cast<DWORD>(OBJ_BRUSH));
}

TEST(GdiObject, DeleteObjectTellsWhetherThereWasOne) {
    CPen pen;
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_TRUE(pen.CreatePen(PS_DOT, 1, RGB(0, 0, 0)));
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_EQ(pen.GetSafeHandle(), nullptr);
}

TEST(GdiObject, AStockObjectMayBeHeldTwice) {
    const long before = LiveObjects();
    {
        CFont first;
        EXPECT_TRUE(first.CreateStockObject(DEFAULT_GUI_FONT));
        {
            CFont second;
            EXPECT_TRUE(second.CreateStockObject(DEFAULT_GUI_FONT));
            EXPECT_TRUE(first == second);
        }
        EXPECT_EQ(LiveObjects(), before + 1);
    }
    EXPECT_EQ(LiveObjects(), before);
    EXPECT_NE(GetObjectType(GetStockObject(DEFAULT_GUI_FONT)), 0u);
}

TEST(Pen, TellsItsDescription) {
    CPen pen(PS_DASH, 1, RGB(10, 20, 30));
    LOGPEN description{};
    EXPECT_EQ(pen.GetLogPen(&description), static_cast<int>(sizeof(LOGPEN)));
    EXPECT_EQ(description.lopnStyle, static_cast<UINT>(PS_DASH));
    EXPECT_EQ(description.lopnColor, static_cast<COLORREF>(RGB(10, 20, 30)));
}

TEST(Brush, TellsItsDescription) {
    CBrush brush(HS_CROSS, RGB(1, 2, 3));
    LOGBRUSH description{};
    EXPECT_EQ(brush.GetLogBrush(&description), static_cast<int>(sizeof(LOGBRUSH)));
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(description.lbHatch, static_cast<ULONG_PTR>(HS_CROSS));
}

TEST(Brush, AFailedConstructorThrows) {
    CBitmap none;
    EXPECT_THROW(CBrush brush(&none), CResourceException*);
}

TEST(Font, PointSizesAreTenthsOfAPointOfTheScreen) {
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Tahoma"));
    LOGFONT description{};
    EXPECT_GT(font.GetLogFont(&description), 0);
    HDC screen = GetDC(nullptr);
    EXPECT_EQ(description.lfHeight, -MulDiv(GetDeviceCaps(screen, LOGPIXELSY), 90, 720));
    ReleaseDC(nullptr, screen);
    EXPECT_STREQ(description.lfFaceName, L"Tahoma");
}

TEST(Font, PointSizesFollowTheMappingOfTheContext) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(1, 10);
    dc.SetViewportExt(1, 1);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(720, L"Tahoma", &dc));
    LOGFONT description{};
    font.GetLogFont(&description);
    EXPECT_EQ(description.lfHeight, -10 * dc.GetDeviceCaps(LOGPIXELSY));
}

TEST(Font, IsMadeFromADescription) {
    LOGFONT wanted{};
    wanted.lfHeight = -13;
    wanted.lfWeight = FW_BOLD;
    lstrcpyW(wanted.lfFaceName, L"Tahoma");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&wanted));
    LOGFONT description{};
    font.GetLogFont(&description);
    EXPECT_EQ(description.lfHeight, -13);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
}

TEST(Bitmap, TellsItsMeasures) {
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(17, 5, 1, 32, nullptr));
    BITMAP description{};
    EXPECT_EQ(bitmap.GetBitmap(&description), static_cast<int>(sizeof(BITMAP)));
    EXPECT_EQ(description.bmWidth, 17);
    EXPECT_EQ(description.bmHeight, 5);
    EXPECT_EQ(description.bmBitsPixel, 32);
    bitmap.SetBitmapDimension(100, 200);
    EXPECT_EQ(bitmap.GetBitmapDimension().cy, 200);
}

TEST(Palette, HoldsEntries) {
    struct {
        LOGPALETTE palette;
        PALETTEENTRY second;
    } two{};
    two.palette.palVersion = 0x300;
    two.palette.palNumEntries = 2;
    two.palette.palPalEntry[0] = {255, 0, 0, 0};
    (&two.palette.palPalEntry[0])[1] = {0, 0, 255, 0};
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(&two.palette));
    EXPECT_EQ(palette.GetEntryCount(), 2);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(10, 10, 200)), 1u);
}

TEST(Region, CombinesAndTellsItsBox) {
    CRgn a;
    CRgn b;
    CRgn result;
    a.CreateRectRgn(0, 0, 10, 10);
    b.CreateRectRgn(5, 5, 20, 8);
    result.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(result.CombineRgn(&a, &b, RGN_AND), SIMPLEREGION);
    CRect box;
    result.GetRgnBox(box);
    EXPECT_EQ(box, CRect(5, 5, 10, 8));
    EXPECT_EQ(result.CombineRgn(&a, &b, RGN_OR), COMPLEXREGION);
    EXPECT_TRUE(result.PtInRegion(15, 6));
    EXPECT_FALSE(result.PtInRegion(CPoint(15, 2)));
    EXPECT_EQ(result.CopyRgn(&a), SIMPLEREGION);
    EXPECT_TRUE(result.EqualRgn(&a));
    result.OffsetRgn(100, 0);
    EXPECT_TRUE(result.RectInRegion(CRect(105, 5, 106, 6)));
}
