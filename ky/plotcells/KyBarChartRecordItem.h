/// @file
/// A grid cell that shows an interval as a bar on a scale.
#pragma once

#include "KyPlotRecordItem.h"

/// A bar from a lower to an upper value with the target as a vertical mark, error whiskers, two dashed optimizer marks
/// and red marks at the ends of the scale. Anything that is -99 is left out. The bar's ends and the target can be
/// dragged; while an end is dragged, the bar can stay symmetric about the target. A bar beside the visible scale shows
/// as "<<<" or ">>>".
/// @ingroup ky_cells
class KYUI_API KyBarChartRecordItem : public KyPlotRecordItem {
    DECLARE_DYNCREATE(KyBarChartRecordItem)
public:
    /// The shape of the bar. With the first two, the bar is kept symmetric about the target while it is dragged.
    enum EDistribution : int {
        DistributionNone = 0,     ///< one colour
        DistributionCentered = 1, ///< two-sided gradient, darkest at the middle of the bar
        DistributionTarget = 2    ///< two-sided gradient, darkest at the target (any greater number means the same)
    };

    KyBarChartRecordItem();
    ~KyBarChartRecordItem() override;

    /// Sets every value at once; -99 leaves one out. Nothing is put in order: with the lower end above the upper one
    /// there is no bar. The cell shows it at the grid's next redraw.
    /// @param target                      place of the target mark
    /// @param min, max                    ends of the scale; nothing has a place on a scale with equal ends
    /// @param lower, upper                ends of the bar
    /// @param errorLow, errorHigh         ends of the whiskers
    /// @param optimizerLow, optimizerHigh places of the dashed marks
    void SetError(float target, float min, float max, float lower, float upper, float errorLow, float errorHigh,
                  float optimizerLow, float optimizerHigh);
    /// Takes values away. 1: the target; 2: the scale's left end; 3: its right end; 4: the bar; 5: all of these and the
    /// whiskers, but not the optimizer marks; any other number: nothing.
    void RemoveError(int what);

    /// The colours of the bar (COLORREF 0x00BBGGRR): RGB(0, 0, 160) and RGB(220, 235, 255) at first. A gradient runs
    /// from `light` at its ends to `dark`; a bar in one colour has the one half-way between them.
    void SetColors(unsigned long dark, unsigned long light);
    /// Gives the bar its shape, which also decides whether a dragged end takes the other one along.
    /// @param distribution  the shape; the symmetry while dragging follows it even when `enabled` is not set
    /// @param enabled       whether a bar with a gradient shape is drawn with its gradient, else in one colour
    void SetDistribution(EDistribution distribution, bool enabled);
    /// The colour of the lower dashed mark (COLORREF 0x00BBGGRR); green at first.
    unsigned long GetOptimizerFacLowColor() const;
    void SetOptimizerFacLowColor(unsigned long color); ///< shown at the grid's next redraw
    /// The colour of the upper dashed mark (COLORREF 0x00BBGGRR); green at first.
    unsigned long GetOptimizerFacHighColor() const;
    void SetOptimizerFacHighColor(unsigned long color); ///< shown at the grid's next redraw

    /// 0 when the cell has a hyperlink, wherever the point is: the whole plot is the link. −1 when it has none.
    int HitTestHyperlink(CPoint point) override;
    /// The left end of the scale as `SetError` gave it; -99 when it has none.
    double GetMin() const override;
    /// The right end of the scale as `SetError` gave it; -99 when it has none.
    double GetMax() const override;
    /// The scale value under the pointer; empty while the pointer is not over the cell.
    CString GetInfoTip() const override;

protected:
    /// Draws the plot 1 pixel inside `args->rcItem`, over its background. Does nothing without a report control in
    /// `args`; needs neither row nor column nor metrics, so that it draws into pictures as well.
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override;

    float m_scaleMin = KyMissingValueF;      ///< value at the left end of the scale
    float m_scaleMax = KyMissingValueF;      ///< value at its right end
    float m_optimizerLow = KyMissingValueF;  ///< value of the lower dashed mark
    float m_optimizerHigh = KyMissingValueF; ///< value of the upper dashed mark
    float m_errorLow = KyMissingValueF;      ///< left end of the whiskers; the line runs from here to the target
    float m_errorHigh = KyMissingValueF;     ///< right end of the whiskers
    EDistribution m_distribution = DistributionNone;   ///< the shape, whether or not it is drawn
    bool m_distributionEnabled = false;                ///< the shape's gradient is drawn
    COLORREF m_barColor = RGB(0, 0, 160);              ///< dark end of the gradient
    COLORREF m_barLightColor = RGB(220, 235, 255);     ///< light end of the gradient
    COLORREF m_optimizerFacLowColor = RGB(0, 255, 0);  ///< of the mark at `m_optimizerLow`
    COLORREF m_optimizerFacHighColor = RGB(0, 255, 0); ///< of the mark at `m_optimizerHigh`
};
