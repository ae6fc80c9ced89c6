// Tests that the drawing operations pass their parameters on in the right order: each is set beside the call of the
// system that it stands for, and both must leave the same picture.
#include "DibCanvas.h"

namespace {

constexpr int width = 40;
constexpr int height = 30;

struct Case {
    const char* name;
    std::function<void(CDC&)> wrapped;
    std::function<void(HDC)> plain;
};

void PrintTo(const Case& drawing, std::ostream* out) { *out << drawing.name; }

class WrappedDrawing : public testing::TestWithParam<Case> {};

/// Objects that all cases share.
struct Tools {
    CPen pen{PS_SOLID, 1, RGB(200, 0, 0)};
    CBrush brush{RGB(0, 0, 200)};
    CBrush other{RGB(0, 150, 0)};
    CRgn region;
    HICON icon = ::LoadIconW(nullptr, IDI_WARNING);
    DibCanvas source{8, 8, RGB(10, 200, 30)};

    Tools() {
        region.CreateEllipticRgn(3, 4, 33, 24);
        source.Dc().FillSolidRect(0, 0, 8, 3, RGB(255, 0, 255));
    }
};

Tools& Shared() {
    static Tools tools;
    return tools;
}

/// A canvas with a picture below, so that operations that mix with it show.
std::unique_ptr<DibCanvas> Canvas() {
    auto canvas = std::make_unique<DibCanvas>(width, height, RGB(250, 250, 240));
    canvas->Dc().FillSolidRect(20, 0, 20, 30, RGB(90, 120, 150));
    ::SelectObject(canvas->Dc(), Shared().pen.GetSafeHandle());
    ::SelectObject(canvas->Dc(), Shared().brush.GetSafeHandle());
    return canvas;
}

const POINT curve[] = {{2, 2}, {10, 28}, {30, 1}, {37, 27}};
const CRect box(3, 4, 33, 24);

const Case cases[] = {
    {"Arc", [](CDC& dc) { dc.Arc(box, CPoint(33, 10), CPoint(3, 12)); },
     [](HDC dc) { ::Arc(dc, 3, 4, 33, 24, 33, 10, 3, 12); }},
    {"PolyBezier", [](CDC& dc) { dc.PolyBezier(curve, 4); }, [](HDC dc) { ::PolyBezier(dc, curve, 4); }},
    {"Ellipse", [](CDC& dc) { dc.Ellipse(box); }, [](HDC dc) { ::Ellipse(dc, 3, 4, 33, 24); }},
    {"RoundRect", [](CDC& dc) { dc.RoundRect(box, CPoint(10, 6)); },
     [](HDC dc) { ::RoundRect(dc, 3, 4, 33, 24, 10, 6); }},
    {"InvertRect", [](CDC& dc) { dc.InvertRect(box); }, [](HDC dc) { ::InvertRect(dc, box); }},
    {"FillRgn", [](CDC& dc) { dc.FillRgn(&Shared().region, &Shared().other); },
     [](HDC dc) { ::FillRgn(dc, Shared().region, Shared().other); }},
    {"FrameRgn", [](CDC& dc) { dc.FrameRgn(&Shared().region, &Shared().other, 3, 1); },
     [](HDC dc) { ::FrameRgn(dc, Shared().region, Shared().other, 3, 1); }},
    {"PaintRgn", [](CDC& dc) { dc.PaintRgn(&Shared().region); }, [](HDC dc) { ::PaintRgn(dc, Shared().region); }},
    {"DrawFocusRect", [](CDC& dc) { dc.DrawFocusRect(box); }, [](HDC dc) { ::DrawFocusRect(dc, box); }},
    {"DrawEdge",
     [](CDC& dc) {
         CRect rect(box);
         dc.DrawEdge(rect, EDGE_RAISED, BF_RECT | BF_ADJUST);
         dc.FillSolidRect(rect, 0);
     },
     [](HDC dc) {
         CRect rect(box);
         ::DrawEdge(dc, rect, EDGE_RAISED, BF_RECT | BF_ADJUST);
         ::SetBkColor(dc, 0);
         ::ExtTextOutW(dc, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
     }},
    {"DrawFrameControl",
     [](CDC& dc) {
         CRect rect(box);
         dc.DrawFrameControl(rect, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED);
     },
     [](HDC dc) {
         CRect rect(box);
         ::DrawFrameControl(dc, rect, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED);
     }},
    {"DrawIcon", [](CDC& dc) { dc.DrawIcon(CPoint(2, -3), Shared().icon); },
     [](HDC dc) { ::DrawIcon(dc, 2, -3, Shared().icon); }},
    {"DrawStateIcon", [](CDC& dc) { dc.DrawState(CPoint(4, 2), CSize(20, 24), Shared().icon, DSS_DISABLED); },
     [](HDC dc) {
         ::DrawStateW(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(Shared().icon), 0, 4, 2, 20, 24,
                      DST_ICON | DSS_DISABLED);
     }},
    {"DrawStateBitmap",
     [](CDC& dc) {
         CBitmap bitmap;
         bitmap.CreateCompatibleBitmap(&dc, 12, 9);
         dc.DrawState(CPoint(4, 2), CSize(12, 9), bitmap, DSS_NORMAL);
     },
     [](HDC dc) {
         HBITMAP bitmap = ::CreateCompatibleBitmap(dc, 12, 9);
         ::DrawStateW(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(bitmap), 0, 4, 2, 12, 9, DST_BITMAP | DSS_NORMAL);
         ::DeleteObject(bitmap);
     }},
    {"TransparentBlt",
     [](CDC& dc) { dc.TransparentBlt(4, 6, 24, 16, &Shared().source.Dc(), 0, 1, 8, 6, RGB(255, 0, 255)); },
     [](HDC dc) { ::TransparentBlt(dc, 4, 6, 24, 16, Shared().source.Dc(), 0, 1, 8, 6, RGB(255, 0, 255)); }},
    {"StretchBlt",
     [](CDC& dc) {
         dc.SetStretchBltMode(COLORONCOLOR);
         dc.StretchBlt(4, 6, 24, 16, &Shared().source.Dc(), 1, 2, 5, 4, SRCINVERT);
     },
     [](HDC dc) {
         ::SetStretchBltMode(dc, COLORONCOLOR);
         ::StretchBlt(dc, 4, 6, 24, 16, Shared().source.Dc(), 1, 2, 5, 4, SRCINVERT);
     }},
    {"BrushOrigin",
     [](CDC& dc) {
         CBrush hatched(HS_BDIAGONAL, RGB(1, 2, 3));
         dc.SetBrushOrg(3, 1);
         dc.FillRect(box, &hatched);
     },
     [](HDC dc) {
         HBRUSH hatched = ::CreateHatchBrush(HS_BDIAGONAL, RGB(1, 2, 3));
         ::SetBrushOrgEx(dc, 3, 1, nullptr);
         ::FillRect(dc, box, hatched);
         ::DeleteObject(hatched);
     }},
    {"ExtTextOutWithWidths",
     [](CDC& dc) {
         int widths[] = {12, 9, 5};
         dc.ExtTextOut(3, 5, ETO_CLIPPED, box, CString(L"abc"), widths);
     },
     [](HDC dc) {
         const int widths[] = {12, 9, 5};
         ::ExtTextOutW(dc, 3, 5, ETO_CLIPPED, box, L"abc", 3, widths);
     }},
};

} // namespace

TEST_P(WrappedDrawing, LeavesThePictureOfTheSystemsCall) {
    const auto untouched = Canvas();
    const auto wrapped = Canvas();
    const auto plain = Canvas();
    GetParam().wrapped(wrapped->Dc());
    GetParam().plain(plain->Dc());
    int changed = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            ASSERT_EQ(wrapped->At(x, y), plain->At(x, y)) << x << ',' << y;
            changed += wrapped->At(x, y) != untouched->At(x, y);
        }
    }
    EXPECT_GT(changed, 10);
}

INSTANTIATE_TEST_SUITE_P(Operations, WrappedDrawing, testing::ValuesIn(cases),
                         [](const testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });
