/// @file
/// An edit control in which the user types what a report control shows.
#pragma once

#include "XTPReportDefines.h"

/// Filters a report control while the user types, see `CXTPReportControl::SetFilterText`: at once, and in a control
/// with very many records after a short pause. Escape clears the text and shows all records; in an empty edit control
/// it is the dialog's. Down goes into the grid. Texts that the host sets count like typed ones.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportFilterEditControl : public CEdit {
    DECLARE_DYNAMIC(CXTPReportFilterEditControl)
public:
    CXTPReportFilterEditControl();

    /// The control that is filtered, which has to have its window; its filter text is taken over. One that is destroyed
    /// is forgotten. Null filters nothing.
    void SetReportCtrl(CXTPReportControl* pControl);
    CXTPReportControl* GetReportCtrl() const; ///< null when there is none, or its window is gone
    /// Shown while the text is empty; at first the control's `GetText(xtpReportTextFilterCue)`.
    void SetHint(LPCTSTR strHint);
    CString GetHint() const; ///< as it is shown

    /// Takes Escape before a dialog does.
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void OnPaint();  ///< the hint, where the system has none for edit controls
    BOOL OnChange(); ///< filters, or waits for a pause; FALSE: the parent hears of it
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags); ///< Escape and Down
    void OnTimer(UINT_PTR nIDEvent);                       ///< the pause is over
    DECLARE_MESSAGE_MAP()

private:
    bool ClearByEscape();
    bool GoIntoGrid();
    void Apply();
    void ShowHint();

    HWND m_hReport = nullptr; ///< a window may go at any time
    CString m_strHint;
    bool m_bOwnHint = false;    ///< the host has set the hint
    bool m_bSystemHint = false; ///< the system draws it
};
