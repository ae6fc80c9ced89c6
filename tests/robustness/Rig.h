// What the tests of robustness share: the application object, a grid with every kind of cell, and what is counted.
#pragma once

#include <plotcells/KyBarChartRecordItem.h>
#include <plotcells/KyDragLineMinMaxRecordItem.h>
#include <plotcells/KyDragLineRecordItem.h>
#include <plotcells/KyHistogramRecordItem.h>
#include <plotcells/KyPlotRecordReportControl.h>
#include <reportgrid/KyReportRecordItemFloat.h>

#include "CallTable.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The application object; its profile is a registry key of its own or an INI file, empty at first.
class RobustnessApp : public CWinApp {
public:
    RobustnessApp();
    static RobustnessApp& Get();
    void UseRegistry();
    void UseIniFile();
    void RemoveProfile();
    /// Boxes would wait for a user; their texts are kept instead.
    int DoMessageBox(LPCTSTR text, UINT type, UINT help) override;
    int boxes = 0;
};

/// True when everything is to be tried, as tools/soak asks for, and not only the slice that fits into ./test.
bool IsLong();
/// The first in a long run, else the second.
int Repetitions(int longRun, int slice);

/// Everything that could leak, counted. Takes no memory, and so does not count itself.
class Counts {
public:
    Counts();
    long Of(std::string_view name) const;
    /// "name former -> now; …" of what is not as it was.
    std::string ChangesSince(const Counts& former) const;

private:
    static constexpr int OwnCounters = 7;
    static const char* NameOf(int counter);
    std::array<long, static_cast<int>(calltable::Kind::Count) + OwnCounters> m_values;
};
/// What a program does when it is idle: messages are dispatched, temporary objects go.
void BecomeIdle();

/// Removes the pictures that an export under that prefix has left.
void RemovePictures(const std::wstring& prefix);

/// A window with a grid: a text, a number and a plot column; eight records with bars of every shape, then two
/// with histograms and two with sliders, one of them with a scale that can be typed.
class GridRig {
public:
    explicit GridRig(bool visible = true);
    ~GridRig();
    GridRig(const GridRig&) = delete;
    GridRig& operator=(const GridRig&) = delete;

    void Create();
    void Destroy();
    void Paint();
    void SelectThirdRow();
    /// The client area as it stands on the screen, 0x00RRGGBB.
    std::vector<std::uint32_t> Picture();
    /// One of the first eight rows, as long as they are not sorted.
    KyBarChartRecordItem& Bar(int row);
    /// The part of the window that shows the bar of that row.
    CRect BarRect(int row);
    CPoint HeaderOf(int column);
    /// "name width visible" of each, from left to right, and by how many the grid is sorted.
    std::string ColumnsAsText();
    void Mouse(UINT message, CPoint point);

    class Grid : public KyPlotRecordReportControl {
    public:
        using KyPlotRecordReportControl::OnColumnHeaderRClick;
        using KyPlotRecordReportControl::OnThemeChanged;
    };
    Grid* grid = nullptr; ///< made by Create
    CWnd owner;

private:
    template <class Plot>
    Plot* AddPlot();
    void Fill();
    bool m_visible;
};
