// Base of the grid cells that draw a small plot and let the user drag marks on it.
#pragma once

#include "../common/KyExport.h"
#include "../common/MissingValue.h"

#include <XTToolkitPro.h>

#include <boost/signals2/signal.hpp>

/// A plot cell: a horizontal scale with up to three positions on it, a lower value, a target (also called the centre)
/// and an upper value, which the user can drag with the mouse.
///
/// A subclass supplies the ends of the scale and draws the plot in `OnDrawCaption`, where it must store the rectangle
/// it draws into as `m_itemRect`. The mouse reaches the cell through `KyPlotRecordReportControl`, which calls
/// `GetAllowInteraction` and `BeginDrag` on a press, `OnMouseMove` on every move, `EndDrag` on release and `CancelDrag`
/// on Escape. During a drag only `m_dragPos` changes; the values change in `EndDrag`, which fires `m_valueChanged`.
///
/// A value of exactly -99.0 is no value: it is not drawn, nothing is near to it, and it limits nothing. Positions are
/// fractions of the cell width, 0 at the left and 1 at the right edge; points and rectangles are in client coordinates
/// of the grid; colours are COLORREF. Everything runs on the thread that owns the grid's window.
class KYUI_API KyPlotRecordItem : public CXTPReportRecordItemText {
public:
    /// Fired at the end of a drag that is applied, with (lower, target, upper); -99.0f stands for the two that were not
    /// dragged, also when the drag pushed one of them along. Slots run inside `EndDrag` and may remove the cell.
    boost::signals2::signal<void(float lower, float target, float upper)> m_valueChanged;

    KyPlotRecordItem();
    ~KyPlotRecordItem() override;

    /// Switches every reaction to the mouse on or off (on at first).
    void SetAllowInteraction(bool allow);
    /// The fraction of the cell width kept free at each end of the scale (0.15 at first); below 0.5.
    void SetMargin(double margin);

    double GetTarget() const;
    void SetTarget(double target);
    unsigned long GetTargetColor() const;
    void SetTargetColor(unsigned long color);
    bool IsSupportDragTarget() const;
    /// Whether the target can be dragged (it can at first).
    void SetSupportDragTarget(bool support);

    /// The rectangle that the plot was last drawn into; all zero before the first drawing.
    CRect GetItemRect() const;
    /// True while the target is being dragged and the last mouse move moved it.
    bool IsCenterDragging() const;

    /// The cell drawn into a packed device-independent bitmap at the screen's colour depth.
    /// `GetItemRect` is the image's afterwards, until the grid draws the cell again.
    /// @param width, height  in pixels; there is no bitmap without both being positive
    /// @return a global memory block that the caller frees with `GlobalFree`, or null on failure
    void* CreateDIB(CXTPReportControl& control, int width, int height);
    /// Writes the cell as a .bmp file, created or overwritten.
    /// @return whether the path ends in ".bmp" (in any case), and nothing else: also true when no file could be written
    bool SaveAs(CXTPReportControl& control, const wchar_t* path, int width, int height);

    /// Always -1: the base has no hyperlinks.
    int HitTestHyperlink(CPoint point) override;
    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override;
    /// Starts dragging the mark near the point, if there is one.
    /// @param cell  the cell's rectangle in the grid
    virtual void BeginDrag(CPoint point, CRect cell);
    /// Puts the dragged value back to what it was when the drag began.
    virtual void CancelDrag();
    /// Ends a drag; when `apply` is set, the position under the point becomes the value and is reported.
    virtual void EndDrag(CPoint point, CRect cell, bool apply);
    /// Chooses the cursor for the place of the last mouse move; FALSE leaves the choice to the grid.
    virtual BOOL OnSetCursor(CPoint point);
    /// Whether a press at the point may be handled; `capture` says whether the grid is to route a drag to the cell.
    virtual bool GetAllowInteraction(CPoint point, bool& capture) const;
    /// The value at the left end of the scale.
    virtual double GetMin() const = 0;
    /// The value at the right end of the scale.
    virtual double GetMax() const = 0;
    /// The text of the cell's tool tip; empty for none.
    virtual CString GetInfoTip() const = 0;

protected:
    double m_dragPos = KyMissingValue; ///< where the pointer was last, as a fraction of the cell width
    double m_lower = KyMissingValue;
    double m_upper = KyMissingValue;
    double m_target = KyMissingValue;
    unsigned long m_targetColor = RGB(255, 215, 0);
    double m_dragStartValue = KyMissingValue; ///< what `CancelDrag` restores
    double m_margin = 0.15;
    bool m_draggingLower = false; ///< at most one of the three flags is set
    bool m_draggingUpper = false;
    bool m_draggingCenter = false;
    bool m_dragMoved = false; ///< the last mouse move during a drag changed `m_dragPos`
    CRect m_itemRect{0, 0, 0, 0};
    bool m_allowInteraction = true;
    bool m_supportDragTarget = true;

private:
    struct Marks;

    bool IsDragging() const;
    double FractionOf(double value) const;
    Marks ReachableMarks() const;
    bool* ChooseDrag(const Marks& marks);
    void StopDragging();
    void ApplyDrag(double value);
};
