// The picture that every contender of the grid benchmark shows, and its drawing with nothing but GDI.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace benchpicture {

inline constexpr int ViewWidth = 1200;
inline constexpr int ViewHeight = 800;
inline constexpr int RowHeight = 22;

inline constexpr int BarCount = 3;
inline constexpr int ColumnCount = 2 + BarCount; ///< name, number, plots

/// What the cell of a plot column shows.
enum class Plot { Bar, Histogram, Slider, MinMax };

/// What the rows show behind name and number.
struct Picture {
    std::array<Plot, BarCount> plots = {Plot::Bar, Plot::Bar, Plot::Bar};
    int bins = 0; ///< of the histograms
};

inline constexpr int ColumnWidths[ColumnCount] = {200, 120, 280, 280, 280};
inline constexpr const wchar_t* Captions[ColumnCount] = {L"Name", L"Value", L"First", L"Second", L"Third"};
inline constexpr int CellPadding = 5;

inline constexpr COLORREF BarDark = RGB(0, 0, 160);
inline constexpr COLORREF BarLight = RGB(220, 235, 255);

/// The values of one bar chart cell, in the order in which the cell takes them.
struct Bar {
    float target, min, max, lower, upper, errorLow, errorHigh, optimizerLow, optimizerHigh;
};

std::wstring NameOf(std::int64_t row);
double NumberOf(std::int64_t row);
std::wstring NumberText(std::int64_t row);
Bar BarOf(std::int64_t row, int bar);

/// The counts of a row's histogram, which the reference outlives.
std::vector<double>& BinsOf(std::int64_t row, int bins);
/// The limit marks of every slider: two values of one colour.
inline constexpr double SliderLimits[] = {25, 75};
inline constexpr COLORREF SliderLimitColor = RGB(0, 128, 0);

/// Draws a bar chart cell pixel for pixel as the grid does. `cell` lies inside the grid lines.
void DrawBar(HDC dc, const RECT& cell, const Bar& bar);

/// Draws the cell of a plot column pixel for pixel as the grid does; histograms and sliders are those of the bar's
/// target on its scale.
void DrawPlot(HDC dc, const RECT& cell, const Picture& picture, std::int64_t row, int column);

/// Draws a whole row with its grid lines at the height `top`; the font is the one selected into `dc`.
void DrawRow(HDC dc, int top, const Picture& picture, std::int64_t row);

} // namespace benchpicture
