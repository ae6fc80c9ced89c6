/// @file
/// The report grid in which plot cells can be dragged.
#pragma once

#include "../reportgrid/KyReportControl.h"

class KyPlotRecordItem;

/// A report grid that routes the mouse to its plot cells: it asks the pressed cell whether it accepts interaction,
/// captures the mouse for the drag, keeps the pointer inside the dragged cell while the button is down, ends the drag
/// on release or when the pointer leaves, and cancels it on Escape. Value changes are told by the cells' own signals.
/// Cut and paste are off.
///
/// F2 takes hold of a mark of the focused plot cell by keyboard: left and right move it by a pixel, with ctrl by ten,
/// home and end to the ends of the cell; tab goes to the next mark, Escape puts it back, and everything else that goes
/// on elsewhere (Enter, F2, up, down, a press, another window) leaves it where it is now, as a release of the mouse
/// does.
/// @ingroup ky_cells
class KYUI_API KyPlotRecordReportControl : public KyReportControl {
    DECLARE_DYNCREATE(KyPlotRecordReportControl)
public:
    KyPlotRecordReportControl();
    ~KyPlotRecordReportControl() override;

    /// Any message whose wParam is 27 cancels a drag.
    BOOL PreTranslateMessage(MSG* msg) override;
    /// Always FALSE.
    BOOL CanCut() override;
    /// Always FALSE.
    BOOL CanPaste() override;

protected:
    /// Called after a drag was cancelled with Escape, when the cell has its old value back. Does nothing here.
    virtual void OnPlotRecordItemDragCancelled();

    /// Selects as every report control, then hands the press to a plot cell under the point. A cell that does not allow
    /// interaction shows the not-allowed cursor.
    void OnLButtonDown(UINT flags, CPoint point);
    /// Ends the drag: applied over the dragged cell, unapplied over another one. Deliberately, a release where there is
    /// no row (which clears the selection) or no cell leaves the drag routed until the next release, Escape or leave.
    void OnLButtonUp(UINT flags, CPoint point);
    /// During a drag the point is pulled into the dragged cell before the toolkit routes it, so that the mark follows
    /// the pointer also far outside.
    void OnMouseMove(UINT flags, CPoint point);
    /// Lets the plot cell under the pointer choose the cursor.
    BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    /// Applies a drag at the place where the pointer left.
    void OnMouseLeave();
    void OnKeyDown(UINT key, UINT repeat, UINT flags); ///< marks first, then as every report control
    void OnChar(UINT key, UINT repeat, UINT flags);    ///< drops those of the keys that move a mark
    UINT OnGetDlgCode();                               ///< every key while one of them drags
    void OnKillFocus(CWnd* newWnd);                    ///< applies a drag by keys
    DECLARE_MESSAGE_MAP()

    KyPlotRecordItem* m_pDragItem = nullptr; ///< the cell that a drag is routed to, or null
    CRect m_rcDragItem{0, 0, 0, 0};          ///< its rectangle when the drag began, in client coordinates

private:
    /// A drag by keys, while `m_pDragItem` is there.
    struct KeyDrag {
        int mark = -1; ///< among the cell's `GetMarkPositions` as it began; −1: no such drag
        CPoint point;  ///< where the mouse would be
        bool hasMoved = false;
    };

    bool IsDraggedByKeys() const { return m_keyDrag.mark >= 0; }
    bool BeginKeyDrag(int mark);
    bool DragByKey(UINT key);
    void FollowKeyDragCell();
    void MoveKeyDrag(int x);
    void EndKeyDrag(bool apply);

    KeyDrag m_keyDrag;

    void RouteDragTo(KyPlotRecordItem* item);
    void ForgetRemovedDragItem();
    CPoint PulledIntoDragItem(CPoint point) const;
    CPoint CursorPosition() const;
};
