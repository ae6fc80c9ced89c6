/// @file
/// Base of the grid cells that draw a small plot and let the user drag marks on it.
#pragma once

#include "../common/KyExport.h"
#include "../common/MissingValue.h"

#include <XTToolkitPro.h>

#include <boost/signals2/signal.hpp>

#include <vector>

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
/// @ingroup ky_cells
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

    /// The target in the scale's unit; -99 when there is none. While it is being dragged this is still the former
    /// value.
    double GetTarget() const;
    /// Not held within the scale, and no signal is fired. Shown at the grid's next redraw.
    void SetTarget(double target);
    /// COLORREF 0x00BBGGRR; RGB(255, 215, 0) at first.
    unsigned long GetTargetColor() const;
    void SetTargetColor(unsigned long color); ///< shown at the grid's next redraw
    /// False keeps the target where it is; the lower and the upper value can be dragged all the same.
    bool IsSupportDragTarget() const;
    /// Whether the target can be dragged (it can at first).
    void SetSupportDragTarget(bool support);

    /// The rectangle that the plot was last drawn into; all zero before the first drawing.
    CRect GetItemRect() const;
    /// True while the target is being dragged and the last mouse move moved it.
    bool IsCenterDragging() const;

    /// Where marks can be taken hold of, as fractions of the cell width from left to right, held within the cell; for
    /// dragging by keys. Empty while the cell does not react to the mouse.
    virtual std::vector<double> GetMarkPositions() const;

    /// The cell drawn into a packed device-independent bitmap at the screen's colour depth.
    /// `GetItemRect` is the image's afterwards, until the grid draws the cell again.
    /// @param control        whose theme the cell is drawn with; the cell need not be in it
    /// @param width, height  in pixels; there is no bitmap without both being positive
    /// @return a global memory block that the caller frees with `GlobalFree`, or null on failure
    void* CreateDIB(CXTPReportControl& control, int width, int height);
    /// Writes the cell as a .bmp file, created or overwritten.
    /// @return whether the path ends in ".bmp" (in any case), and nothing else: also true when no file could be written
    bool SaveAs(CXTPReportControl& control, const wchar_t* path, int width, int height);

    /// Always -1: the base has no hyperlinks.
    int HitTestHyperlink(CPoint point) override;
    /// Remembers where the pointer is and, during a drag, moves the mark there: an end no farther than the target.
    /// Asks `control` for a redraw when that changes something; null: nobody is asked.
    void OnMouseMove(UINT flags, CPoint point, CXTPReportControl* control) override;
    /// Starts dragging the mark near the point (nearer than 0.02 of the cell width), if there is one. On the outer side
    /// of an end that end is taken, between the ends the nearest mark, and the target when two are equally near.
    /// @param point the place of the press
    /// @param cell  the cell's rectangle in the grid
    virtual void BeginDrag(CPoint point, CRect cell);
    /// Puts the dragged value back to what it was when the drag began, asks the grid for a redraw and for the cursor to
    /// be chosen anew. Fires no signal.
    virtual void CancelDrag();
    /// Ends a drag; when `apply` is set, the position under the point becomes the value and is reported. It is not held
    /// within the scale, but an end stops at the target, and what stands in the way of the target or of the other end
    /// is pushed along. Without a drag nothing happens.
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
    /// What a screen reader says: the values that there are, lower, target and upper.
    CString GetAccessibleValue(CXTPReportColumn* column) override;

protected:
    void StopDragging(); ///< clears the three dragging flags; no value changes

    double m_dragPos = KyMissingValue; ///< where the pointer was last, as a fraction of the cell width
    double m_lower = KyMissingValue;   ///< in the scale's unit, like the two that follow
    double m_upper = KyMissingValue;   ///< subclasses fill it from setters of their own, as the lower value
    double m_target = KyMissingValue;  ///< the wall that neither end is dragged across
    unsigned long m_targetColor = RGB(255, 215, 0); ///< COLORREF, for the subclass to draw the target with
    double m_dragStartValue = KyMissingValue;       ///< what `CancelDrag` restores
    double m_margin = 0.15;                         ///< fraction of the cell width kept free at each end
    bool m_draggingLower = false;                   ///< at most one of the three flags is set
    bool m_draggingUpper = false;                   ///< while it is set, the upper mark is drawn at `m_dragPos`
    bool m_draggingCenter = false;                  ///< while it is set, the target is drawn at `m_dragPos`
    bool m_dragMoved = false;                       ///< the last mouse move during a drag changed `m_dragPos`
    /// Where the plot was drawn last; every `OnDrawCaption` has to store it, because pointer positions are worked out
    /// on it.
    CRect m_itemRect{0, 0, 0, 0};
    bool m_allowInteraction = true;  ///< the cell reacts to the mouse at all
    bool m_supportDragTarget = true; ///< the target can be dragged

private:
    struct Marks;

    bool IsDragging() const;
    double FractionOf(double value) const;
    Marks ReachableMarks() const;
    bool* ChooseDrag(const Marks& marks);
    void ApplyDrag(double value);
};
