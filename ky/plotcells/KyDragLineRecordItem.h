/// @file
/// A grid cell that shows one value as a slider.
#pragma once

#include "KyPlotRecordItem.h"

#include <utility>
#include <vector>

/// A slider: a thin track from the minimum to the maximum of a scale, coloured limit marks on it if wanted, and a
/// handle at the value, which the user can drag. The value is the base's target, so `GetTarget` and `SetTarget` are
/// its, too. Anything that is -99 is left out; a range end of -99 does not limit the drag.
///
/// The slider follows the mouse in a way of its own: the value itself changes with every move, and the release puts it
/// under the pointer, held within the scale. That is so for every release that the grid hands to the cell: also for a
/// click beside the handle, and for one over another cell. `m_valueChanged` is not fired; a host that wants to know
/// overrides `OnMouseMove` and `EndDrag`. Escape puts the former value back.
/// @ingroup ky_cells
class KYUI_API KyDragLineRecordItem : public KyPlotRecordItem {
    DECLARE_DYNCREATE(KyDragLineRecordItem)
public:
    KyDragLineRecordItem();
    ~KyDragLineRecordItem() override;

    /// Sets the value and both ends of the scale; -99 leaves one out. Nothing is put in order, and the value is not
    /// held within the scale. Shown at the grid's next redraw, like all that is set here.
    void SetTargetValues(double value, double min, double max);
    /// Replaces the limit marks: values on the scale with the colour of each (COLORREF 0x00BBGGRR). Later marks cover
    /// earlier ones.
    void SetLimitValues(const std::vector<std::pair<double, COLORREF>>& limits);
    /// Whether the limit marks are drawn (they are not at first).
    void ShowLimits(bool show);
    /// Keeps two colours for the interface's sake. Intended: they have no effect.
    void SetColors(COLORREF first, COLORREF second);

    /// 0 when the cell has a hyperlink, wherever the point is: the whole plot is the link. −1 when it has none.
    int HitTestHyperlink(CPoint point) override;
    /// Remembers where the pointer is and, during a drag, moves the value there, held within the scale. Asks `control`
    /// for a redraw when that changes something; null: nobody is asked.
    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override;
    /// Starts dragging when the point is nearer to the handle than 0.02 of the cell width. A handle beyond the cell is
    /// taken hold of at the cell's edge, that of a missing value at the left one.
    void BeginDrag(CPoint point, CRect cell) override;
    /// Puts the value under the point, held within the scale, whatever `apply` is; a missing value stays missing.
    void EndDrag(CPoint point, CRect cell, bool apply) override;
    /// The sizing arrow on the handle and during a drag; FALSE, and no cursor, everywhere else.
    BOOL OnSetCursor(CPoint point) override;
    /// The left end of the scale; -99 when it has none.
    double GetMin() const override;
    /// The right end of the scale; -99 when it has none.
    double GetMax() const override;
    /// The scale value under the pointer, which need not be the slider's; empty while the pointer is not over the cell.
    CString GetInfoTip() const override;
    /// The handle, unless the value is missing.
    std::vector<double> GetMarkPositions() const override;
    /// The slider's value; empty when there is none.
    CString GetAccessibleValue(CXTPReportColumn* column) override;
    virtual void SetMin(double min); ///< moves the left end of the scale; -99 leaves it out
    virtual void SetMax(double max); ///< moves the right end of the scale; -99 leaves it out

protected:
    /// Draws the slider into `args->rcItem`. Does nothing without a report control in `args`; needs neither row nor
    /// column nor metrics, so that it draws into pictures as well.
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override;
    /// The drawing for a slider that is only a part of the cell: it takes the place that the mouse is compared with.
    /// The background is filled 1 pixel inside `slider`; what is higher than it, as the handle may be, is drawn as far
    /// as the cell `args.rcItem` reaches.
    /// @param args   must have a device context and a report control
    /// @param slider client coordinates, as `args.rcItem`
    void DrawSlider(const XTP_REPORTRECORDITEM_DRAWARGS& args, const CRect& slider);

    std::vector<std::pair<double, COLORREF>> m_limits; ///< limit marks: values with their colours, drawn in this order
    double m_rangeMin = KyMissingValue;                ///< the left end of the scale that is drawn
    double m_rangeMax = KyMissingValue;                ///< the right end of the scale that is drawn
    COLORREF m_colorSecond = RGB(84, 113, 139);        ///< without effect
    COLORREF m_colorFirst = RGB(255, 0, 0);            ///< without effect
    bool m_showLimits = false;                         ///< the limit marks are drawn

private:
    void HoldWithinScale();
};
