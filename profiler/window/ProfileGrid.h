// The grid with one row for each column of the file.
#pragma once

#include "plotcells/KyPlotRecordReportControl.h"
#include "statistics/Limits.h"
#include "window/ColumnFile.h"
#include "window/ColumnHistogramItem.h"
#include "window/ColumnPlotItem.h"
#include "window/ColumnScaleItem.h"
#include "window/ColumnTargetItem.h"

#include <functional>
#include <optional>
#include <vector>

class ShareItem;

/// The items of a record, each of which has a column of the grid.
enum ProfileItem {
    NameItem,
    TypeItem,
    CountItem,
    MissingItem,
    MinimumItem,
    MeanItem,
    MaximumItem,
    PlotItem,
    HistogramItem,
    TargetItem,
    InsideItem,
    ScaleItem,
    RequiredItem
};

/// The name of a kind of column, as the user reads it.
CString ColumnTypeText(csv::ColumnType type);

/// Shows the profiles of a file's columns. The user drags the limits of a column in any of its plots; the other plots
/// and the share of the values inside follow, and `SetStatusListener` is told what goes on meanwhile. The scale of a
/// column and the share that is asked for are typed.
class ProfileGrid : public KyPlotRecordReportControl {
public:
    /// Called on the user-interface thread with a sentence for the status bar.
    void SetStatusListener(std::function<void(const CString&)> listener) { m_status = std::move(listener); }

    /// Creates the window and its columns.
    BOOL CreateGrid(CWnd* parent, UINT id);
    /// Restores the layout that the user left; the window's end keeps the one that there is then.
    void RestoreLayout();

    /// Called on the user-interface thread whenever other rows are shown, with the number of columns that have one.
    void SetRowsListener(std::function<void(std::size_t)> listener) { m_rowsShown = std::move(listener); }

    /// Shows the file, which must stay until the next call; null shows an empty grid.
    void Show(const ColumnFile* file);

    /// What an empty grid says; at first how to open a file.
    void SetEmptyText(const CString& text);
    static CString DefaultEmptyText();

    void ApplyTheme(int theme);

    /// The place of the focused row's column in the file; none without a row.
    std::optional<std::size_t> FocusedColumnOfFile() const;

    /// Rows stand in groups by the type of the column. The saved layout keeps it.
    bool IsGroupedByType() const;
    void GroupByType(bool group);

    /// In pixels at 96 DPI; 34 at first.
    int RowHeight() const { return m_rowHeight; }
    void SetRowHeight(int pixels);

    void Populate() override;

protected:
    void OnPlotRecordItemDragCancelled() override;
    LRESULT OnRangeEdited(WPARAM edited, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    /// A row with limits: a column of numbers or dates.
    struct LimitRow {
        const csv::Column* column = nullptr;
        const statistics::ColumnProfile* profile = nullptr;
        ColumnPlotItem* plot = nullptr; ///< null for dates; owned by its record, as the following
        ColumnHistogramItem* histogram = nullptr;
        ColumnTargetItem* target = nullptr;
        ColumnScaleItem* scale = nullptr; ///< null for dates
        ShareItem* inside = nullptr;
        statistics::Limits limits;
    };

    void AddColumns();
    void AddRow(const ColumnFile& file, std::size_t index);
    void AddPlots(CXTPReportRecord& record, const ColumnFile& file, std::size_t index);
    void AddLimits(CXTPReportRecord& record, LimitRow row);
    template <class Plot>
    void Connect(Plot& plot, std::size_t index);
    template <class Slider>
    void ListenTo(Slider& slider, std::size_t index);
    void OnRequired(std::size_t index, float percent);
    void OnLimitsDragged(std::size_t index, float lower, float target, float upper);
    void OnMarkMoved(std::size_t index, LimitMark mark, double value, const KyPlotRecordItem* dragged);
    void TakeMoveBack();
    static void ShowLimits(LimitRow& row, const statistics::Limits& limits, const KyPlotRecordItem* dragged);
    void SetUpPaintManager();
    CString TextWithoutRows() const;
    std::size_t ShownColumns() const;
    void Tell(const CString& sentence);

    std::function<void(const CString&)> m_status;
    std::function<void(std::size_t)> m_rowsShown;
    CString m_emptyText;
    int m_rowHeight = 34;
    std::vector<LimitRow> m_limitRows;
    std::size_t m_movedRow = 0; ///< the row in which a mark was moved last
};
