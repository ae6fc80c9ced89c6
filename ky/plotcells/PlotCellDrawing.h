// What all plot cells draw alike: background, marks, arrows. Internal to the library.
#pragma once

#include "PixelRow.h"

#include <XTToolkitPro.h>

namespace plotcell {

inline constexpr COLORREF Black = RGB(0, 0, 0);
inline constexpr COLORREF Red = RGB(255, 0, 0);
inline constexpr COLORREF Blue = RGB(0, 0, 255);

/// True when the arguments suffice to draw: a device context, and a control that is a report control.
bool CanDraw(const XTP_REPORTRECORDITEM_DRAWARGS* args);

/// The horizontal extent of the rectangle that a plot is drawn into.
plotspan::Extent ExtentOf(const CRect& rect);

/// The rectangle 1 pixel further inside.
CRect Deflated(CRect rect);

/// What a plot stands on: the item's colour, or the highlight of the paint manager in a selected row (not on paper).
COLORREF BackgroundColor(const XTP_REPORTRECORDITEM_DRAWARGS& args, COLORREF itemColor);

/// Where a plot is drawn and what it stands on.
struct Ground {
    CRect rect;
    COLORREF color;
};

/// Fills the cell's background, 1 pixel further inside.
Ground DrawGround(const XTP_REPORTRECORDITEM_DRAWARGS& args, COLORREF itemColor);

/// Fills the rectangle; one without extent is left alone.
void Fill(CDC& dc, const CRect& rect, COLORREF color);

/// Fills the part of the span that lies inside the rectangle, over the rectangle's full height.
void FillSpan(CDC& dc, const CRect& rect, plotspan::Span span, COLORREF color);

/// The columns of the rectangle that can be seen at all.
plotspan::Span VisibleColumns(const CDC& dc, const CRect& rect);

/// Shows the row over the rectangle's full height, whatever the rectangle's width.
void DrawRow(CDC& dc, const CRect& rect, const plotspan::PixelRow& row);

/// The solid bar of a mark at a fraction of the width; nothing for a missing one.
void DrawMark(CDC& dc, const CRect& rect, double fraction, COLORREF color);

/// The same bar made of dashes.
void DrawDashedMark(CDC& dc, const CRect& rect, double fraction, COLORREF color);

/// On which side of the cell a plot lies that cannot be seen.
enum class Beside { Left, Right };

/// "<<<" or ">>>" at that side of the rectangle. Leaves the text colour black.
void DrawArrows(CDC& dc, const CRect& rect, Beside side);

/// The hyperlink of a plot cell: its first one wherever the pointer is, or -1 without any.
int HitTestHyperlink(const CXTPReportRecordItem& item);

} // namespace plotcell
