/// @file
/// One column of a report control.
#pragma once

#include "DpiLength.h"
#include "XTPReportDefines.h"

#include <chrono>

/// A column: its caption, its width in pixels, and which item of each record it shows. Created by the host with `new`
/// and owned by the control's column collection from `CXTPReportControl::AddColumn` on. Setters that change the look
/// ask the control for a redraw, those that change widths or visibility for a new layout; they do nothing when the
/// value stays the same. Widths are pixels at the resolution of the control's paint manager, before the column is added
/// at that of the control which it will have; they follow when that changes, and are the same when it changes back.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportColumn : public CCmdTarget {
    DECLARE_DYNAMIC(CXTPReportColumn)
public:
    /// @param nItemIndex which item of a record the column shows
    /// @param strName    the caption, and the internal name as well
    /// @param nWidth     pixels; clamped to 10…32000, the limits at first
    /// @param bAutoSize  whether the column gets wider and narrower with the view, see `IsAutoSize`
    /// @param nIconID    kept for the host, see `GetIconID`
    /// @param bSortable  whether a click on the header sorts by the column
    /// @param bVisible   whether the column is shown
    CXTPReportColumn(int nItemIndex, LPCTSTR strName, int nWidth, BOOL bAutoSize = TRUE, int nIconID = -1,
                     BOOL bSortable = TRUE, BOOL bVisible = TRUE);
    /// As above with an internal name of its own: the identity under which a saved layout finds the column.
    CXTPReportColumn(int nItemIndex, LPCTSTR strDisplayName, LPCTSTR strInternalName, int nWidth, BOOL bAutoSize = TRUE,
                     int nIconID = -1, BOOL bSortable = TRUE, BOOL bVisible = TRUE);

    int GetItemIndex() const { return m_nItemIndex; } ///< which item of a record the column shows
    /// Place in the column collection, left to right, hidden columns counted; −1 before the column is added.
    int GetIndex() const;

    CString GetCaption() const { return m_strCaption; } ///< what the header shows
    void SetCaption(LPCTSTR strCaption);                ///< the internal name stays
    /// The identity under which a saved layout finds the column; not shown and not translated.
    CString GetInternalName() const { return m_strInternalName; }
    /// To be called before a layout is loaded.
    void SetInternalName(LPCTSTR strInternalName) { m_strInternalName = strInternalName; }
    CString GetTooltip() const { return m_strTooltip; } ///< empty: the tip is the caption, where it is cut off
    void SetTooltip(LPCTSTR strTooltip) { m_strTooltip = strTooltip; } ///< shown while the pointer rests on the header

    /// Pixels. Setting clamps to the minimum and maximum width; so does moving a limit past the width. A minimum above
    /// the maximum moves the maximum, and the other way round. At first 10 and 32000. While the column is sized with
    /// the view (`CXTPReportHeader::SetAutoColumnSizing`), what is set is its share in proportion to those of the
    /// others, and what is told the width that it has by it.
    int GetWidth() const { return m_nWidth; }
    void SetWidth(int nWidth);                      ///< pixels, clamped to the limits
    int GetMinWidth() const { return m_nMinWidth; } ///< pixels
    void SetMinWidth(int nMinWidth);                ///< negative limits count as 0
    int GetMaxWidth() const { return m_nMaxWidth; } ///< pixels
    void SetMaxWidth(int nMaxWidth);                ///< negative limits count as 0
    /// The width together with the resolution for which it was set, to be put back as it was.
    DpiLength GetSetWidth() const { return m_setWidth; }
    void RestoreWidth(const DpiLength& width); ///< as `GetSetWidth` told it; clamped to the limits

    /// DT_LEFT, DT_CENTER or DT_RIGHT for the cells of the column.
    int GetAlignment() const { return m_nAlignment; }
    void SetAlignment(int nAlignment); ///< items may have alignments of their own
    /// The same for the caption; follows `GetAlignment` until it is set.
    int GetHeaderAlignment() const { return m_nHeaderAlignment >= 0 ? m_nHeaderAlignment : m_nAlignment; }
    void SetHeaderAlignment(int nAlignment); ///< any negative number follows the cells again

    BOOL IsVisible() const { return m_bVisible; } ///< a hidden column keeps its place, width and sort
    /// Lays the others out anew. A cell of the column that is being edited takes what was typed first.
    void SetVisible(BOOL bVisible);
    /// What the user may do with the column; each also needs the header's consent (`CXTPReportHeader`). The host's own
    /// calls are not held to it.
    BOOL IsSortable() const { return m_bSortable; }
    void SetSortable(BOOL bSortable) { m_bSortable = bSortable; }     ///< clicking the header sorts
    BOOL IsAllowRemove() const { return m_bAllowRemove; }             ///< a column chooser may hide it; TRUE at first
    void AllowRemove(BOOL bAllow) { m_bAllowRemove = bAllow; }        ///< does not hide or show it
    BOOL IsAllowDragging() const { return m_bAllowDragging; }         ///< it can be moved; TRUE at first
    void SetAllowDragging(BOOL bAllow) { m_bAllowDragging = bAllow; } ///< others may still be dropped before it
    BOOL IsResizable() const { return m_bResizable; }                 ///< its divider can be dragged; TRUE at first
    void SetResizable(BOOL bResizable) { m_bResizable = bResizable; } ///< also keeps it out of "fit all columns"
    BOOL IsEditable() const { return m_bEditable; }                   ///< its cells can be edited; TRUE at first
    void SetEditable(BOOL bEditable) { m_bEditable = bEditable; }     ///< see `CXTPReportControl::AllowEdit`
    /// Whether the filter looks at what the cells show while the column is visible; TRUE at first.
    BOOL IsFiltrable() const { return m_bFiltrable; }
    void SetFiltrable(BOOL bFiltrable) { m_bFiltrable = bFiltrable; } ///< counts from the next `Populate` on
    /// The column shows the outline of the records: a button where there are records below, and an indentation by
    /// depth, which the cells make room for. FALSE at first; several columns may show it.
    BOOL IsTreeColumn() const { return m_bTreeColumn; }
    void SetTreeColumn(BOOL bTreeColumn); ///< rows can be expanded by the user where a visible column shows the tree
    /// The header draws no line between this column and the next one; FALSE at first.
    BOOL IsDividerHidden() const { return m_bDividerHidden; }
    void HideDivider(BOOL bHide); ///< resizing at the divider stays as it was
    /// Whether the column gets wider and narrower with the view, where `CXTPReportHeader::SetAutoColumnSizing` has
    /// columns do so. TRUE at first; a column without it keeps its width.
    BOOL IsAutoSize() const { return m_bAutoSize; }
    void SetAutoSize(BOOL bAutoSize); ///< see `IsAutoSize`
    /// Whether the user may group rows by the column, in the group-by box or by its key; TRUE at first.
    BOOL IsGroupable() const { return m_bGroupable; }
    void SetGroupable(BOOL bGroupable) { m_bGroupable = bGroupable; } ///< does not take it out of the groups
    /// Kept for the host, −1 for none: headers draw no icons.
    int GetIconID() const { return m_nIconID; }

    BOOL IsSorted() const;           ///< the column is in the sort order
    BOOL IsSortedIncreasing() const; ///< in the sort order, smallest first
    BOOL IsSortedDecreasing() const; ///< in the sort order, largest first
    /// The direction that counts when the column is in the sort order.
    BOOL IsSortIncreasing() const { return m_bSortIncreasing; }
    void SetSortIncreasing(BOOL bIncreasing) { m_bSortIncreasing = bIncreasing; } ///< `Populate` sorts, this does not

    /// The header cell in client coordinates, as laid out last; empty while hidden. A part of it may lie outside the
    /// view, or beneath columns that stay while it scrolls (`CXTPReportControl::SetFreezeColumnsCount`).
    CRect GetRect() const { return m_rcColumn; }
    /// The part of `GetRect` that no frozen column covers; empty where all of it is covered.
    CRect GetUncoveredRect() const;
    /// Whether the column stays while others scroll beneath it, as laid out last.
    BOOL IsFrozen() const { return m_bFrozen; }
    void SetRect(const CRect& rc) { m_rcColumn = rc; } ///< for the header as it lays out the columns
    /// The place in the sort order, 1 for the first; 0 while the rows are not sorted by it.
    int GetSortRank() const;
    /// The width at which caption and visible-page texts show without ellipsis, in pixels. A column with cells that
    /// draw something else than a text keeps at least the width it has. Answers within a twentieth of a second: where
    /// texts are slow to come by, those of the upper rows decide.
    int GetBestFitWidth() const;

    CXTPReportColumns* GetColumns() const { return m_pColumns; } ///< null before the column is added
    CXTPReportControl* GetControl() const;                       ///< null before the column is added

private:
    friend class CXTPReportColumns;
    friend class CXTPReportHeader;
    int BestFitWidthBefore(std::chrono::steady_clock::time_point deadline) const;
    enum class Effect { Look, Layout };
    void Changed(Effect effect);
    template <class T, class U>
    void Set(T& member, const U& value, Effect effect);
    int GetDpi() const;
    /// As it was set, whatever the view has made of it.
    int GetOwnWidth() const;
    void KeepLimits(int nOwnWidth);
    /// The view may give the column another width than its own.
    bool IsSizedWithView() const;
    /// Takes the lengths that were set before the column had a control as lengths at the control's resolution, and
    /// works out the present ones; the control lays out afterwards.
    void FollowDpi();

    CXTPReportColumns* m_pColumns = nullptr;
    CString m_strCaption, m_strInternalName, m_strTooltip;
    int m_nItemIndex;
    DpiLength m_setMinWidth{10}, m_setMaxWidth{32000}, m_setWidth;
    int m_nMinWidth = 10, m_nMaxWidth = 32000; // in front of the width, which is clamped to them from the start
    int m_nWidth; ///< the three as they are at the present resolution; the width also as the view has made it
    int m_nAlignment = DT_LEFT;
    int m_nHeaderAlignment = -1;
    int m_nIconID;
    BOOL m_bAutoSize, m_bSortable, m_bVisible;
    BOOL m_bAllowRemove = TRUE, m_bAllowDragging = TRUE, m_bResizable = TRUE, m_bEditable = TRUE;
    BOOL m_bDividerHidden = FALSE;
    BOOL m_bFiltrable = TRUE, m_bTreeColumn = FALSE;
    BOOL m_bGroupable = TRUE, m_bFrozen = FALSE;
    BOOL m_bSortIncreasing = TRUE;
    CRect m_rcColumn;
};
