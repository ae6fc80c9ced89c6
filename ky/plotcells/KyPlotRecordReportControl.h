// The report grid in which plot cells can be dragged.
#pragma once

#include "../reportgrid/KyReportControl.h"

class KyPlotRecordItem;

/// A report grid that routes the mouse to its plot cells: it asks the pressed cell whether it accepts interaction,
/// captures the mouse for the drag, keeps the pointer inside the dragged cell while the button is down, ends the drag
/// on release or when the pointer leaves, and cancels it on Escape. Value changes are told by the cells' own signals.
/// Cut and paste are off.
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

    void OnLButtonDown(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

    KyPlotRecordItem* m_pDragItem = nullptr; ///< the cell that a drag is routed to, or null
    CRect m_rcDragItem{0, 0, 0, 0};          ///< its rectangle when the drag began, in client coordinates

private:
    void RouteDragTo(KyPlotRecordItem* item);
    void ForgetRemovedDragItem();
    CPoint PulledIntoDragItem(CPoint point) const;
    CPoint CursorPosition() const;
};
