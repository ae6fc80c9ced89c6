// One column of a report control.
#pragma once

#include "XTPReportDefines.h"

/// A column: its caption, its width in pixels, and which item of each record it shows. Created by the host with `new`
/// and owned by the control's column collection from `CXTPReportControl::AddColumn` on. Setters that change the look
/// ask the control for a redraw, those that change widths or visibility for a new layout; they do nothing when the
/// value stays the same.
class KY_TOOLKIT_API CXTPReportColumn : public CCmdTarget {
    DECLARE_DYNAMIC(CXTPReportColumn)
public:
    /// @param nItemIndex which item of a record the column shows
    /// @param strName    the caption, and the internal name as well
    /// @param nWidth     pixels
    /// @param bAutoSize  whether the column takes part in automatic column sizing
    CXTPReportColumn(int nItemIndex, LPCTSTR strName, int nWidth, BOOL bAutoSize = TRUE, int nIconID = -1,
                     BOOL bSortable = TRUE, BOOL bVisible = TRUE);
    /// As above with an internal name of its own: the identity under which a saved layout finds the column.
    CXTPReportColumn(int nItemIndex, LPCTSTR strDisplayName, LPCTSTR strInternalName, int nWidth, BOOL bAutoSize = TRUE,
                     int nIconID = -1, BOOL bSortable = TRUE, BOOL bVisible = TRUE);

    int GetItemIndex() const { return m_nItemIndex; }
    /// Place in the column collection, left to right, hidden columns counted; −1 before the column is added.
    int GetIndex() const;

    CString GetCaption() const { return m_strCaption; }
    void SetCaption(LPCTSTR strCaption);
    CString GetInternalName() const { return m_strInternalName; }
    void SetInternalName(LPCTSTR strInternalName) { m_strInternalName = strInternalName; }
    CString GetTooltip() const { return m_strTooltip; }
    void SetTooltip(LPCTSTR strTooltip) { m_strTooltip = strTooltip; }

    /// Pixels. Setting clamps to the minimum and maximum width; so does moving a limit past the width. A minimum above
    /// the maximum moves the maximum, and the other way round. At first 10 and 32000.
    int GetWidth() const { return m_nWidth; }
    void SetWidth(int nWidth);
    int GetMinWidth() const { return m_nMinWidth; }
    void SetMinWidth(int nMinWidth);
    int GetMaxWidth() const { return m_nMaxWidth; }
    void SetMaxWidth(int nMaxWidth);

    /// DT_LEFT, DT_CENTER or DT_RIGHT for the cells of the column.
    int GetAlignment() const { return m_nAlignment; }
    void SetAlignment(int nAlignment);
    /// The same for the caption; follows `GetAlignment` until it is set.
    int GetHeaderAlignment() const { return m_nHeaderAlignment >= 0 ? m_nHeaderAlignment : m_nAlignment; }
    void SetHeaderAlignment(int nAlignment);

    BOOL IsVisible() const { return m_bVisible; }
    void SetVisible(BOOL bVisible);
    BOOL IsSortable() const { return m_bSortable; }
    void SetSortable(BOOL bSortable) { m_bSortable = bSortable; }
    BOOL IsAllowRemove() const { return m_bAllowRemove; }
    void AllowRemove(BOOL bAllow) { m_bAllowRemove = bAllow; }
    BOOL IsAllowDragging() const { return m_bAllowDragging; }
    void SetAllowDragging(BOOL bAllow) { m_bAllowDragging = bAllow; }
    BOOL IsResizable() const { return m_bResizable; }
    void SetResizable(BOOL bResizable) { m_bResizable = bResizable; }
    BOOL IsAutoSize() const { return m_bAutoSize; }
    void SetAutoSize(BOOL bAutoSize) { m_bAutoSize = bAutoSize; }
    int GetIconID() const { return m_nIconID; }

    /// Direction of the sort when the column is in the sort order. Setting does not sort; `Populate` does.
    BOOL IsSorted() const;
    BOOL IsSortedIncreasing() const;
    BOOL IsSortedDecreasing() const;
    BOOL IsSortIncreasing() const { return m_bSortIncreasing; }
    void SetSortIncreasing(BOOL bIncreasing) { m_bSortIncreasing = bIncreasing; }

    /// The header cell in client coordinates, as laid out last; empty while hidden.
    CRect GetRect() const { return m_rcColumn; }
    void SetRect(const CRect& rc) { m_rcColumn = rc; }
    /// The width at which caption and visible-page texts show without ellipsis, in pixels.
    int GetBestFitWidth() const;

    CXTPReportColumns* GetColumns() const { return m_pColumns; }
    CXTPReportControl* GetControl() const;

private:
    friend class CXTPReportColumns;
    enum class Effect { Look, Layout };
    void Changed(Effect effect);
    template <class T, class U>
    void Set(T& member, const U& value, Effect effect);

    CXTPReportColumns* m_pColumns = nullptr;
    CString m_strCaption, m_strInternalName, m_strTooltip;
    int m_nItemIndex;
    int m_nMinWidth = 10, m_nMaxWidth = 32000; // in front of the width, which is clamped to them from the start
    int m_nWidth;
    int m_nAlignment = DT_LEFT;
    int m_nHeaderAlignment = -1;
    int m_nIconID;
    BOOL m_bAutoSize, m_bSortable, m_bVisible;
    BOOL m_bAllowRemove = TRUE, m_bAllowDragging = TRUE, m_bResizable = TRUE;
    BOOL m_bSortIncreasing = TRUE;
    CRect m_rcColumn;
};
