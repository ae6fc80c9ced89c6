/// @file
/// One cell of a record: the base of every cell that a report control shows.
#pragma once

#include "CompactText.h"
#include "XTPReportDefines.h"

#include <memory>

class CXTPPropExchange;

/// A stretch of a cell's text that acts as a hyperlink.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportHyperlink {
public:
    /// A stretch that reaches beyond the text ends with it. See the members.
    CXTPReportHyperlink(int nHyperTextBegin, int nHyperTextLen)
        : m_nHyperTextBegin(nHyperTextBegin), m_nHyperTextLen(nHyperTextLen) {}
    int m_nHyperTextBegin; ///< first character
    int m_nHyperTextLen;   ///< characters; 0 with begin 0: the whole text
    CRect m_rcHyperSpot;   ///< where the link was drawn last, client coordinates
};

/// A cell. Created with `new` (memory comes from the toolkit's record-item heap), owned by its record, reference
/// counted through `InternalAddRef`/`InternalRelease` so that a handler may outlive the removal of its own record.
/// Rarely used properties live apart, so that a plain cell stays small: millions are ordinary.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRecordItem : public CCmdTarget {
    DECLARE_DYNCREATE(CXTPReportRecordItem)
public:
    CXTPReportRecordItem();
    ~CXTPReportRecordItem() override;

    static void* operator new(size_t size);            ///< memory comes from the record-item heap
    static void operator delete(void* p, size_t size); ///< and goes back there

    // --- Text -------------------------------------------------------------------------------------------------
    /// The text to show; the explicit caption when one is set. Setters do not redraw: `RedrawControl` shows the
    /// changes.
    virtual CString GetCaption(CXTPReportColumn* pColumn);
    /// An explicit caption, shown instead of the value's text; empty takes it back.
    void SetCaption(LPCTSTR strCaption);
    /// printf-style format of the value, "%s" or "%f" as the kind of item has it. A format that would read anything but
    /// the one value is kept but not used.
    CString GetFormatString() const;
    void SetFormatString(LPCTSTR strFormat); ///< items with the same format share its text
    CString GetTooltip() const;              ///< empty: the tip is the text, where it is cut off
    void SetTooltip(LPCTSTR strTooltip);     ///< shown while the pointer rests on the cell

    // --- Look -------------------------------------------------------------------------------------------------
    /// COLORREF, or `CXTPPaintManagerColor::Unset` (the default) for the theme's.
    COLORREF GetTextColor() const;
    void SetTextColor(COLORREF clr); ///< gives way to the selection's
    /// COLORREF, or `CXTPPaintManagerColor::Unset` (the default) for that of the row.
    COLORREF GetBackgroundColor() const;
    void SetBackgroundColor(COLORREF clr); ///< gives way to the selection's
    BOOL IsBold() const;                   ///< FALSE at first
    void SetBold(BOOL bBold = TRUE);       ///< uses the paint manager's bold font
    /// DT_LEFT, DT_CENTER, DT_RIGHT, or −1 (the default) for the column's alignment.
    int GetAlignment() const;
    void SetAlignment(int nAlignment); ///< any negative number is the column's alignment

    /// Fills the metrics: text, font and colours of the cell; called before each drawing, after the theme and the
    /// record have filled them. The item's own colours give way to those of a selection.
    virtual void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics);
    /// Draws the whole cell: metrics, background where it differs from the row's, caption. While the caption is drawn
    /// the metrics' font and text colour are selected into the device context, whose background mode is transparent;
    /// what was selected before comes back afterwards.
    virtual void Draw(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs);
    /// Draws what the cell shows inside `pDrawArgs->rcItem`; here the text with its hyperlinks, in the text colour that
    /// the device context has.
    virtual void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics);

    // --- Order ------------------------------------------------------------------------------------------------
    /// <0, 0, >0 as this cell sorts before, with or after the other; here by caption in the user's locale, without
    /// regard to case. `pItem` is null for a record that has no such cell, which sorts first.
    virtual int Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem);

    /// What a screen reader says of a cell that shows no text; empty here. Cells that draw a picture tell its values.
    virtual CString GetAccessibleValue(CXTPReportColumn* pColumn);

    // --- Hyperlinks -------------------------------------------------------------------------------------------
    /// Takes ownership; returns the index, −1 for null.
    int AddHyperlink(CXTPReportHyperlink* pHyperlink);
    int GetHyperlinksCount() const;                        ///< 0 at first
    CXTPReportHyperlink* GetHyperlinkAt(int nIndex) const; ///< null when out of range
    /// Index of the hyperlink drawn at the point (client coordinates), −1 for none.
    virtual int HitTestHyperlink(CPoint ptPoint);

    // --- Mouse; points in client coordinates --------------------------------------------------------------------
    /// Returning TRUE keeps the press from the row (no selection change).
    virtual BOOL OnLButtonDown(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs);
    /// Returning TRUE keeps the release from being a click.
    virtual BOOL OnLButtonUp(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs);
    /// A click on a hyperlink tells the owner (XTP_NM_REPORT_HYPERLINK). NM_CLICK and NM_DBLCLK are the control's
    /// affair.
    virtual void OnClick(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs);
    /// Comes instead of the second press, which follows as `OnLButtonDown` when the button is still down then. Does
    /// nothing here.
    virtual void OnDblClick(XTP_REPORTRECORDITEM_CLICKARGS* pClickArgs);
    /// Every mouse move over the cell; the cursor over a hyperlink is the control's affair.
    virtual void OnMouseMove(UINT nFlags, CPoint point, CXTPReportControl* pReportControl);
    /// The tool under the point: fills `pTI` (never null), that is `pTI->rect` (client coordinates) and `pTI->lpszText`
    /// (allocated with malloc, freed by the caller) and returns an identifier, or −1 when the cell has no tool tip; see
    /// `CXTPToolTipContext::FillInToolInfo`.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI);

    // --- Editing; `pItemArgs` and what it points to last as long as the call -----------------------------------------
    BOOL IsEditable() const { return m_bEditable; } ///< TRUE at first
    /// Whether the cell can be edited where control and column allow it; see `CXTPReportControl::AllowEdit`.
    void SetEditable(BOOL bEditable) { m_bEditable = bEditable != FALSE; }
    /// The user has finished typing; `CXTPReportControl::GetInplaceEdit` still has the text. Here a text that differs
    /// from that at the beginning goes to `OnEditChanged`, and then the owner is told (XTP_NM_REPORT_VALUECHANGED);
    /// else `OnEditCanceled` is called.
    virtual void OnValidateEdit(XTP_REPORTRECORDITEM_ARGS* pItemArgs);
    /// Takes the text that was typed; here it is dropped. In virtual mode `pItemArgs->pRow` tells the row that is
    /// meant; the texts and numbers of this toolkit take nothing then, because their value is that of every row.
    virtual void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* pItemArgs, LPCTSTR szText);
    /// Editing ended without effect. Tells the owner (XTP_NM_REPORT_EDITCANCELED).
    virtual void OnEditCanceled(XTP_REPORTRECORDITEM_ARGS* pItemArgs);

    // --- Property exchange ----------------------------------------------------------------------------------------
    /// Writes or reads caption, tool tip, colours, boldness, alignment and whether the cell can be edited; overrides
    /// call this one and add their value. Properties that stand at their defaults are not written. Hyperlinks and item
    /// data are not exchanged.
    virtual void DoPropExchange(CXTPPropExchange* pPX);

    // --- Place ------------------------------------------------------------------------------------------------
    CXTPReportRecord* GetRecord() const { return m_pRecord; } ///< null when in none
    int GetIndex() const;                                     ///< place in the record, −1 when in none
    /// The control that shows the item's record, or null.
    CXTPReportControl* GetReportControl() const;

    DWORD_PTR GetItemData() const;      ///< 0 at first
    void SetItemData(DWORD_PTR dwData); ///< for the host; never looked at here

private:
    // In this order the members leave no gaps: millions of items are ordinary.
    short m_nAlignment = -1;
    bool m_bBold = false;
    bool m_bEditable = true;

protected:
    /// Sets the format; items with the same one share its text.
    void InternFormatString(LPCTSTR strFormat) { m_formatString = CompactText::Interned(strFormat); }
    /// Writes or reads a text that is empty by default.
    static void ExchangeText(CXTPPropExchange* pPX, LPCTSTR pszPropName, CompactText& strText);
    /// The format without a copy; never null, lives until the format is changed.
    LPCTSTR FormatString() const { return m_formatString.GetString(); }

    CompactText m_strCaption; ///< explicit caption; empty: the value makes the text

private:
    friend class CXTPReportRecord;
    struct Extras; ///< what few cells have: tip, links, data
    Extras& EnsureExtras();

    CXTPReportRecord* m_pRecord = nullptr;
    COLORREF m_clrText = CXTPPaintManagerColor::Unset;
    COLORREF m_clrBackground = CXTPPaintManagerColor::Unset;
    CompactText m_formatString;
    std::unique_ptr<Extras> m_pExtras;
};
