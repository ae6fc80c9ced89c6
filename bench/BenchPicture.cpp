// The picture that every contender of the grid benchmark shows, and its drawing with nothing but GDI.
#include "BenchPicture.h"

#include "common/MissingValue.h"
#include "plotcells/BarGeometry.h"
#include "plotcells/ColorRamp.h"
#include "plotcells/PlotScale.h"
#include "plotcells/PlotSpans.h"

#include <array>
#include <cwchar>

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

void DrawRow(HDC dc, int top, std::int64_t row) {
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
            DrawBar(dc, cell, BarOf(row, column - 2));
        Fill(dc, {right - 1, top, right, top + RowHeight}, GridLine);
        left = right;
    }
    Fill(dc, {0, top + RowHeight - 1, ViewWidth, top + RowHeight}, GridLine);
}

} // namespace benchpicture
