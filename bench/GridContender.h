// The report grid as a contender of the grid benchmark.
#pragma once

#include "Contender.h"

#include <plotcells/KyPlotRecordReportControl.h>

/// Where the rows of the grid come from.
enum class Rows {
    Records, ///< a record of its own for every row
    Virtual  ///< one record that answers for all rows
};

class GridContender : public Contender {
public:
    /// Rows of a virtual record show bars, whatever the picture is.
    GridContender(Rows kind, int rows, const benchpicture::Picture& picture = {});
    ~GridContender() override;

    CWnd& Window() override { return m_grid; }
    void GoToRow(int row) override;
    void PageDown() override;
    void MoveOfDrag(int step) override;
    /// Presses the button on a mark; only a grid of records can be dragged in.
    void BeginDrag() override;
    void EndDrag() override;
    void HitTest(CPoint point) override;
    void BestFit() override;
    void Update(int n) override;
    CRect BarRect(int visibleRow, int bar) override;

    CXTPReportControl& Grid() { return m_grid; }
    /// Changes the number of a row without asking for a redraw.
    void SetNumber(int n);
    /// Changes how many rows the virtual record stands for.
    void SetVirtualRows(int rows);
    /// How often `CXTPReportRecordItem::Draw` was called in this process.
    static int DrawCalls();

private:
    void SendMouse(UINT message, WPARAM keys, int dx);

    CWnd m_owner;
    KyPlotRecordReportControl m_grid;
    CPoint m_mark; ///< where the drag began
};
