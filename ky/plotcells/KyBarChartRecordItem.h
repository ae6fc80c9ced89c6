// A grid cell that shows an interval as a bar on a scale.
#pragma once

#include "KyPlotRecordItem.h"

/// A bar from a lower to an upper value with the target as a vertical mark, error whiskers, two dashed optimizer marks
/// and red marks at the ends of the scale. Anything that is -99 is left out. The bar's ends and the target can be
/// dragged; while an end is dragged, the bar can stay symmetric about the target. A bar beside the visible scale shows
/// as "<<<" or ">>>".
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

    /// Sets every value at once; -99 leaves one out.
    /// @param min, max                    ends of the scale
    /// @param lower, upper                ends of the bar
    /// @param errorLow, errorHigh         ends of the whiskers
    /// @param optimizerLow, optimizerHigh places of the dashed marks
    void SetError(float target, float min, float max, float lower, float upper, float errorLow, float errorHigh,
                  float optimizerLow, float optimizerHigh);
    /// Takes values away. 1: the target; 2: the scale's left end; 3: its right end; 4: the bar; 5: all of these and the
    /// whiskers, but not the optimizer marks; any other number: nothing.
    void RemoveError(int what);

    void SetColors(unsigned long dark, unsigned long light);
    /// @param enabled  whether a bar with a gradient shape is drawn with its gradient, else in one colour
    void SetDistribution(EDistribution distribution, bool enabled);
    unsigned long GetOptimizerFacLowColor() const;
    void SetOptimizerFacLowColor(unsigned long color);
    unsigned long GetOptimizerFacHighColor() const;
    void SetOptimizerFacHighColor(unsigned long color);

    int HitTestHyperlink(CPoint point) override;
    double GetMin() const override;
    double GetMax() const override;
    /// The scale value under the pointer; empty while the pointer is not over the cell.
    CString GetInfoTip() const override;

protected:
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override;

    float m_scaleMin = KyMissingValueF;
    float m_scaleMax = KyMissingValueF;
    float m_optimizerLow = KyMissingValueF;
    float m_optimizerHigh = KyMissingValueF;
    float m_errorLow = KyMissingValueF;
    float m_errorHigh = KyMissingValueF;
    EDistribution m_distribution = DistributionNone;
    bool m_distributionEnabled = false;
    COLORREF m_barColor = RGB(0, 0, 160);
    COLORREF m_barLightColor = RGB(220, 235, 255);
    COLORREF m_optimizerFacLowColor = RGB(0, 255, 0);
    COLORREF m_optimizerFacHighColor = RGB(0, 255, 0);
};
