// The grid with one row for each column of the file.
#pragma once

#include "plotcells/KyPlotRecordReportControl.h"
#include "statistics/Limits.h"
#include "window/ColumnFile.h"
#include "window/ColumnPlotItem.h"

#include <functional>
#include <vector>

class ValueItem;

/// Shows the profiles of a file's columns. The user drags the limits of a plot; the share of the column's values inside
/// follows when the mark is released, and `SetStatusListener` is told what goes on meanwhile.
class ProfileGrid : public KyPlotRecordReportControl {
public:
    /// Called on the user-interface thread with a sentence for the status bar.
    void SetStatusListener(std::function<void(const CString&)> listener) { m_status = std::move(listener); }

    /// Creates the window and its columns, and restores the layout that the user left.
    BOOL CreateGrid(CWnd* parent, UINT id);

    /// Shows the file, which must stay until the next call; null shows an empty grid.
    void Show(const ColumnFile* file);

    /// What an empty grid says; at first how to open a file.
    void SetEmptyText(const CString& text);
    static CString DefaultEmptyText();

    void ApplyTheme(int theme);

protected:
    void OnPlotRecordItemDragCancelled() override;

private:
    /// A row with limits: a column of numbers.
    struct LimitRow {
        const csv::Column* column = nullptr;
        ColumnPlotItem* plot = nullptr; ///< owned by its record, as the following
        ValueItem* inside = nullptr;
        statistics::Limits limits;
    };

    void AddColumns();
    void AddRow(const ColumnFile& file, std::size_t index);
    void AddLimits(CXTPReportRecord& record, const csv::Column& column, const statistics::Summary& numbers);
    void OnLimitsMoved(std::size_t index, float lower, float target, float upper);
    void ShowShare(LimitRow& row);
    void TellMove(std::size_t index, ColumnPlotItem::Mark mark, double value);
    void SetUpPaintManager();
    void Tell(const CString& sentence);

    std::function<void(const CString&)> m_status;
    CString m_emptyText;
    std::vector<LimitRow> m_limitRows;
};
