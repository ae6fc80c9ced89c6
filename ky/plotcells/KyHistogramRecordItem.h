/// @file
/// A grid cell that shows a histogram as a strip of coloured bins.
#pragma once

#include "KyPlotRecordItem.h"

#include <vector>

/// A strip of bins side by side, the darker the fuller, with red marks at a lower and an upper value and a gold one at
/// the target; all three can be dragged. Anything that is -99 is left out.
///
/// The scale is spanned by the lower and the upper value themselves, which stand at the margins; the bins have their
/// place on it. After a drag of an end, the scale is therefore another one. A cell whose scale is to stay overrides
/// `GetMin` and `GetMax`. Bins beside the visible scale show as "<<<" or ">>>".
/// @ingroup ky_cells
class KYUI_API KyHistogramRecordItem : public KyPlotRecordItem {
    DECLARE_DYNCREATE(KyHistogramRecordItem)
public:
    KyHistogramRecordItem();
    ~KyHistogramRecordItem() override;

    /// Sets every value at once; -99 leaves one out. The cell shows it at the grid's next redraw.
    /// @param target       place of the gold mark
    /// @param lower, upper places of the red marks
    /// @param bins         how much is in each bin, from left to right; copied. None of it should be negative.
    /// @param min, max     the left edge of the first and the right edge of the last bin; the wrong way round, there is
    ///                     nothing to see of several bins
    void SetError(double target, double lower, double upper, std::vector<double>& bins, double min, double max);
    /// The colours of the fullest and of the least full bins (COLORREF 0x00BBGGRR): RGB(0, 0, 160) and
    /// RGB(220, 235, 255) at first. A bin with nothing in it has the background's.
    void SetColors(unsigned long full, unsigned long empty);

    /// 0 when the cell has a hyperlink, wherever the point is: the whole plot is the link. −1 when it has none.
    int HitTestHyperlink(CPoint point) override;
    /// The lower value; without one as far below the target as the upper value is above it, and without these two the
    /// left edge of the bins.
    double GetMin() const override;
    /// The upper value; without one as far above the target as the lower value is below it, and without these two the
    /// right edge of the bins.
    double GetMax() const override;
    /// The scale value under the pointer and the count of a bin; empty while the pointer is not over the cell. The bin
    /// is intentionally that at the pointer's fraction of the whole cell, not the one that is drawn there.
    CString GetInfoTip() const override;

protected:
    /// Draws the plot 1 pixel inside `args->rcItem`, over its background. Does nothing without a report control in
    /// `args`; needs neither row nor column nor metrics, so that it draws into pictures as well.
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override;

    std::vector<double> m_bins;                 ///< counts from left to right; `SetError` sets them
    double m_histMin = KyMissingValue;          ///< value at the left edge of the first bin
    double m_histMax = KyMissingValue;          ///< value at the right edge of the last bin
    COLORREF m_fullColor = RGB(0, 0, 160);      ///< of the fullest bin
    COLORREF m_emptyColor = RGB(220, 235, 255); ///< of the least full bins

private:
    struct Drawing;

    void DrawBins(const Drawing& drawing) const;

    double m_largestCount = 0.0; ///< of `m_bins`: no drawing has to look at each of them
};
