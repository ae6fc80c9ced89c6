// The picture that every contender of the grid benchmark shows, and its drawing with nothing but GDI.
#include "BenchPicture.h"

#include "common/MissingValue.h"
#include "plotcells/BarGeometry.h"
#include "plotcells/ColorRamp.h"
#include "plotcells/DragLineGeometry.h"
#include "plotcells/HistogramGeometry.h"
#include "plotcells/PlotScale.h"
#include "plotcells/PlotSpans.h"

#include <array>
#include <cwchar>
#include <map>

namespace benchpicture {
namespace {

using plotspan::Span;

constexpr double Margin = 0.15;
constexpr COLORREF GridLine = RGB(224, 224, 224);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Gold = RGB(255, 215, 0);

void Fill(HDC dc, const RECT& rect, COLORREF color) {
    ::SetBkColor(dc, color);
    ::ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
}

void FillSpan(HDC dc, const RECT& rect, Span span, COLORREF color) {
    const Span visible = Clip(span, rect.left, rect.right);
    if (!visible.IsEmpty())
        Fill(dc, {visible.begin, rect.top, visible.end, rect.bottom}, color);
}

void DrawMark(HDC dc, const RECT& rect, double fraction, COLORREF color) {
    FillSpan(dc, rect, plotspan::MarkAt({rect.left, rect.right}, fraction), color);
}

void DrawDashes(HDC dc, const RECT& rect, double fraction, COLORREF color) {
    for (const Span& dash : plotspan::Dashes(rect.top, rect.bottom))
        DrawMark(dc, {rect.left, dash.begin, rect.right, dash.end}, fraction, color);
}

void DrawWhiskerLine(HDC dc, const RECT& rect, double from, double to) {
    const int middle = (rect.top + rect.bottom) / 2;
    FillSpan(dc, {rect.left, middle - 1, rect.right, middle},
             bargeometry::WhiskerLine({rect.left, rect.right}, from, to), Black);
}

const auto& BarColors() {
    static const auto colors = [] {
        std::array<std::uint32_t, bargeometry::GradientColors> made{};
        colorramp::Gradient(BarLight, BarDark, made);
        return made;
    }();
    return colors;
}

const auto& HistogramColors() {
    static const auto colors = [] {
        std::array<std::uint32_t, histogramgeometry::GradientColors> made{};
        colorramp::Gradient(BarLight, BarDark, made);
        return made;
    }();
    return colors;
}

/// Bin by bin, as one does with nothing but GDI.
void DrawHistogram(HDC dc, const RECT& cell, const Bar& bar, const std::vector<double>& bins) {
    const RECT rect = {cell.left + 1, cell.top + 1, cell.right - 1, cell.bottom - 1};
    const plotscale::Scale scale{bar.min, bar.max, Margin};
    Fill(dc, rect, White);
    const double largest = histogramgeometry::LargestCount(bins);
    const histogramgeometry::BinPlaces places({rect.left, rect.right}, plotscale::ToFraction(bar.min, scale),
                                              plotscale::ToFraction(bar.max, scale), bins.size());
    for (std::size_t bin = 0; bin < bins.size(); ++bin) {
        if (bins[bin] != 0.0)
            FillSpan(dc, rect,
                     {places.Edge(static_cast<std::int64_t>(bin)), places.Edge(static_cast<std::int64_t>(bin) + 1)},
                     HistogramColors()[histogramgeometry::ColorOf(bins[bin], largest)]);
    }
    DrawMark(dc, rect, plotscale::ToFraction(bar.min, scale), Red);
    DrawMark(dc, rect, plotscale::ToFraction(bar.target, scale), Gold);
    DrawMark(dc, rect, plotscale::ToFraction(bar.max, scale), Red);
}

/// Pens and brush of the sliders' handle, kept for good.
struct HandleTools {
    HBRUSH face = ::CreateSolidBrush(::GetSysColor(COLOR_BTNFACE));
    HPEN facePen = ::CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNFACE));
    HPEN shadowPen = ::CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW));
};

void DrawSlider(HDC dc, const RECT& cell, const Bar& bar) {
    static const HandleTools tools;
    const RECT rect = {cell.left + 1, cell.top + 1, cell.right - 1, cell.bottom - 1};
    const plotspan::Extent extent{rect.left, rect.right};
    const plotscale::Scale scale{bar.min, bar.max, Margin};
    Fill(dc, rect, White);
    const Span track =
        draglinegeometry::Track(extent, plotscale::ToFraction(bar.min, scale), plotscale::ToFraction(bar.max, scale));
    const Span rows = draglinegeometry::TrackRows(rect.top, rect.bottom);
    Fill(dc, {track.begin, rows.begin, track.end, rows.end}, 0x00D6D6D6);
    Fill(dc, {track.begin + 1, rows.begin + 1, track.end - 1, rows.end - 1}, 0x00E7EAEA);
    for (const double limit : SliderLimits)
        DrawMark(dc, {rect.left, rect.top - 1, rect.right, rect.bottom}, plotscale::ToFraction(limit, scale),
                 SliderLimitColor);

    const int x = draglinegeometry::HandleColumn(extent, plotscale::ToFraction(bar.target, scale));
    const int top = draglinegeometry::HandleTop(rect.top, rect.bottom);
    const int bottom = top + static_cast<int>(draglinegeometry::HandleReach.size()) - 1;
    const POINT outline[] = {{x - 4, top}, {x + 4, top},        {x + 4, bottom - 4},
                             {x, bottom},  {x - 4, bottom - 4}, {x - 4, top}};
    const HGDIOBJ formerBrush = ::SelectObject(dc, tools.face);
    const HGDIOBJ formerPen = ::SelectObject(dc, tools.facePen);
    ::Polygon(dc, outline, static_cast<int>(std::size(outline)));
    ::SelectObject(dc, tools.shadowPen);
    ::Polyline(dc, outline, static_cast<int>(std::size(outline)));
    ::SelectObject(dc, formerPen);
    ::SelectObject(dc, formerBrush);
}

void DrawText(HDC dc, const RECT& cell, const std::wstring& text, UINT alignment) {
    RECT place = {cell.left + CellPadding, cell.top, cell.right - CellPadding, cell.bottom};
    SIZE extent;
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &extent);
    const int x = alignment == DT_RIGHT ? place.right - extent.cx : place.left;
    const int y = place.top + (place.bottom - place.top - extent.cy) / 2;
    ::ExtTextOutW(dc, x, y, ETO_CLIPPED, &place, text.c_str(), static_cast<UINT>(text.size()), nullptr);
}

} // namespace

std::wstring NameOf(std::int64_t row) {
    wchar_t text[32];
    return std::wstring(text, std::swprintf(text, std::size(text), L"Column %lld", static_cast<long long>(row)));
}

double NumberOf(std::int64_t row) { return static_cast<double>(row % 9973) * 1.25; }

std::wstring NumberText(std::int64_t row) {
    wchar_t text[32];
    return std::wstring(text, std::swprintf(text, std::size(text), L"%.2f", NumberOf(row)));
}

Bar BarOf(std::int64_t row, int bar) {
    const float target = static_cast<float>(35 + (row * 7 + bar * 13) % 30);
    const float half = static_cast<float>(8 + (row * 3 + bar) % 12);
    return {target, 0, 100, target - half, target + half, target - half - 6, target + half + 6, 10, 90};
}

std::vector<double>& BinsOf(std::int64_t row, int bins) {
    constexpr std::int64_t different = 16; // rows share their counts
    static std::map<std::pair<std::int64_t, int>, std::vector<double>> made;
    std::vector<double>& counts = made[{row % different, bins}];
    for (int bin = static_cast<int>(counts.size()); bin < bins; ++bin) {
        const double place = static_cast<double>(bin) / bins;
        counts.push_back(static_cast<double>((bin * 31 + row % different * 7) % 90) + 300 * place * (1 - place) + 1);
    }
    return counts;
}

void DrawBar(HDC dc, const RECT& cell, const Bar& bar) {
    const RECT rect = {cell.left + 1, cell.top + 1, cell.right - 1, cell.bottom - 1};
    const plotscale::Scale scale{bar.min, bar.max, Margin};
    const auto fraction = [&scale](double value) { return plotscale::ToFraction(value, scale); };
    const bargeometry::Marks marks{fraction(bar.lower), fraction(bar.target), fraction(bar.upper)};

    Fill(dc, rect, White);
    for (const auto& piece : GradientBar({rect.left, rect.right}, marks, bargeometry::Darkest::AtMiddle))
        FillSpan(dc, rect, piece.span, BarColors()[piece.color]);
    const double errorLow = fraction(bar.errorLow), errorHigh = fraction(bar.errorHigh);
    DrawMark(dc, rect, errorLow, Black);
    DrawWhiskerLine(dc, rect, errorLow, marks.target);
    DrawMark(dc, rect, errorHigh, Black);
    DrawWhiskerLine(dc, rect, marks.target, errorHigh);
    DrawDashes(dc, rect, fraction(bar.optimizerLow), Green);
    DrawDashes(dc, rect, fraction(bar.optimizerHigh), Green);
    DrawMark(dc, rect, fraction(bar.min), Red);
    DrawMark(dc, rect, fraction(bar.max), Red);
    DrawMark(dc, rect, marks.target, Gold);
}

namespace {

/// A slider in the upper half of the cell, the ends of its scale in the lower one.
void DrawMinMax(HDC dc, const RECT& cell, const Bar& bar) {
    const int halfHeight = (cell.bottom - cell.top) / 2, halfWidth = (cell.right - cell.left) / 2;
    Fill(dc, cell, White);
    const int saved = ::SaveDC(dc);
    ::IntersectClipRect(dc, cell.left, cell.top, cell.right, cell.bottom); // the handle is higher than its half
    DrawSlider(dc, {cell.left, cell.top + 3, cell.right, cell.bottom - 3 - halfHeight}, bar);
    ::RestoreDC(dc, saved);
    ::SetTextColor(dc, Black);
    ::SetBkMode(dc, TRANSPARENT);
    RECT place = {cell.left + 1, cell.top + 1 + halfHeight, cell.right - 1 - halfWidth, cell.bottom - 1};
    wchar_t text[32];
    ::DrawTextW(dc, text, std::swprintf(text, std::size(text), L"%g", bar.min), &place, DT_SINGLELINE | DT_VCENTER);
    ::OffsetRect(&place, halfWidth, 0);
    ::DrawTextW(dc, text, std::swprintf(text, std::size(text), L"%g", bar.max), &place,
                DT_SINGLELINE | DT_VCENTER | DT_RIGHT);
}

} // namespace

void DrawPlot(HDC dc, const RECT& cell, const Picture& picture, std::int64_t row, int column) {
    const Bar bar = BarOf(row, column);
    switch (picture.plots[column]) {
    case Plot::Bar:
        return DrawBar(dc, cell, bar);
    case Plot::Histogram:
        return DrawHistogram(dc, cell, bar, BinsOf(row, picture.bins));
    case Plot::Slider:
        return DrawSlider(dc, cell, bar);
    case Plot::MinMax:
        return DrawMinMax(dc, cell, bar);
    }
}

void DrawRow(HDC dc, int top, const Picture& picture, std::int64_t row) {
    Fill(dc, {0, top, ViewWidth, top + RowHeight}, White);
    ::SetTextColor(dc, Black);
    ::SetBkMode(dc, TRANSPARENT);
    int left = 0;
    for (int column = 0; column < ColumnCount; ++column) {
        const int right = left + ColumnWidths[column];
        const RECT cell = {left, top, right - 1, top + RowHeight - 1};
        if (column == 0)
            DrawText(dc, cell, NameOf(row), DT_LEFT);
        else if (column == 1)
            DrawText(dc, cell, NumberText(row), DT_RIGHT);
        else
            DrawPlot(dc, cell, picture, row, column - 2);
        Fill(dc, {right - 1, top, right, top + RowHeight}, GridLine);
        left = right;
    }
    Fill(dc, {0, top + RowHeight - 1, ViewWidth, top + RowHeight}, GridLine);
}

} // namespace benchpicture
