/// @file
/// A slider with the ends of its scale shown and editable.
#pragma once

#include "../common/KyMessages.h"
#include "KyDragLineRecordItem.h"

class KyInPlaceEdit;

/// A slider in the upper half of the cell; in the lower half the ends of its scale as numbers, the minimum at the left
/// and the maximum at the right. A click on one of them opens an editor over it. What the user has typed there changes
/// nothing in the cell: the grid's window gets `WM_KYRANGEEDITED`, and the host changes the scale with `SetMin` and
/// `SetMax` if it likes. Text that is no number is dropped.
/// @ingroup ky_cells
class KYUI_API KyDragLineMinMaxRecordItem : public KyDragLineRecordItem {
    DECLARE_DYNCREATE(KyDragLineMinMaxRecordItem)
public:
    /// With the format "%g".
    KyDragLineMinMaxRecordItem();
    /// @param format of both numbers: printf-style, with one directive for a double and no other; null counts as empty
    explicit KyDragLineMinMaxRecordItem(const wchar_t* format);
    /// An open editor closes, and what was typed in it is gone; the grid closes it before it deletes a record.
    ~KyDragLineMinMaxRecordItem() override;

    void SetFormat(const wchar_t* format);   ///< as the constructor's
    void SetSliderTooltip(CString tooltip);  ///< of the upper half; empty, as at first: no tip
    void SetMinimumTooltip(CString tooltip); ///< of the minimum's quarter, likewise
    void SetMaximumTooltip(CString tooltip); ///< of the maximum's quarter, likewise

    /// Fills `toolInfo` with the tip of the part under the point, if it has one. Intended: 1 in every case.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* toolInfo) override;
    /// On a number it opens the editor, elsewhere it starts to drag the handle.
    void BeginDrag(CPoint point, CRect cell) override;
    void EndDrag(CPoint point, CRect cell, bool apply) override; ///< as the slider's
    /// The text cursor over a number (or the 10 pixels where it would stand), the slider's cursors over the slider.
    BOOL OnSetCursor(CPoint point) override;

protected:
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override;
    /// Sends WM_KYRANGEEDITED when the text is a number other than the present minimum. Intended: the maximum is
    /// compared with the minimum as well. -99 is told as -99.0001.
    void OnValidateEdit(XTP_REPORTRECORDITEM_ARGS* args) override;
    /// Always true; without a drag (`allow` false) over the numbers.
    bool GetAllowInteraction(CPoint point, bool& allow) const override;

private:
    enum EditTarget { EditNothing = 0, EditMinimum = 1, EditMaximum = 2 };

    CString NumberText(double value) const;
    CRect MinimumZone() const;
    CRect MaximumZone() const;
    void OpenEditor(CPoint point, EditTarget target);
    void CloseEditor();

    CRect m_sliderRect{0, 0, 0, 0};                                 ///< as drawn last, like the four that follow
    CRect m_minTextRect{0, 0, 0, 0}, m_maxTextRect{0, 0, 0, 0};     ///< the halves of the lower area
    CRect m_minTextExtent{0, 0, 0, 0}, m_maxTextExtent{0, 0, 0, 0}; ///< of which only the widths count
    KyInPlaceEdit* m_edit = nullptr;                                ///< open over a number, or closed again; owned
    int m_editTarget = EditNothing;                                 ///< which end is being edited
    CString m_format;
    CString m_sliderTooltip, m_minimumTooltip, m_maximumTooltip;
};
