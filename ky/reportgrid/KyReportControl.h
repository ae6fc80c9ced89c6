/// @file
/// The report grid that every other grid of an application derives from or uses directly.
#pragma once

#include "../common/KyExport.h"

#include <XTToolkitPro.h>

#include <string>
#include <vector>

/// A report control that keeps its column layout in the application's profile, offers a column chooser on the header's
/// context menu, and follows the application's theme.
///
/// Create the control and its columns in code, which makes the default layout; call `EnableShowHideColumns` if the
/// chooser is wanted; then call `AutoLoadReportState`. The destructor saves. Everything runs on the user-interface
/// thread; a missing or broken stored layout changes nothing and shows no message.
/// @ingroup ky_grid
class KYUI_API KyReportControl : public CXTPReportControl {
    DECLARE_DYNCREATE(KyReportControl)
public:
    KyReportControl();
    ~KyReportControl() override;

    /// Applies the layout stored under the profile section, if there is one. A broken one is ignored.
    virtual void LoadReportState(const std::wstring& section);
    /// Writes the current layout to the profile: entry "State" of the section, a binary value.
    virtual void SaveReportState(const std::wstring& section);

    /// Turns on automatic persistence under the section: keeps the layout as it stands now as the default layout (in
    /// the sub-section "DefaultLayout"; renewed at every call, so it never reflects the user's changes), applies the
    /// layout the user saved last, and has the destructor save.
    void AutoLoadReportState(const std::wstring& section);

    /// Turns on the column chooser. The columns with the given internal names (case matters) are left out of it and so
    /// cannot be hidden by the user. There is no way to turn the chooser off again.
    void EnableShowHideColumns(const std::vector<std::wstring>& fixedColumns);

    /// Selects every row and raises `OnSelectionChanged`, also in an empty grid.
    void SelectAll();

    /** @{ */
    /// The texts of the toolkit's grid in the user's language.
    CString GetText(XTPReportText text) const override;
    CString GetGroupCaption(const CXTPReportColumn* pColumn, const CString& strValue, int nRecords) const override;
    /** @} */

protected:
    /// Shows the column chooser for a right click at the point (client coordinates) and carries out what was chosen.
    /// Nothing shows unless the chooser is on, the point is on a column's header and no mouse gesture is under way.
    virtual void OnColumnHeaderRClick(CPoint point);

    /// Applies the theme that the user has chosen; −1 when the window cannot be made.
    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    /// Answers WM_KYTHEMECHANGED: applies a `KyPaintTheme` (wParam) to the grid and to the look of its tool tips. Tips
    /// that draw markup or HTML keep their look, and Office 2013 deliberately keeps the column style. Always returns 1.
    LRESULT OnThemeChanged(WPARAM theme, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend class KyReportHeader;

    void FillColumnMenu(CMenu& menu);
    void RunColumnCommand(int command);
    std::wstring DefaultLayoutSection() const;

    std::wstring m_stateSection;       // empty until AutoLoadReportState
    bool m_showHideColumns = false;    // the column chooser is on
    bool m_defaultLayoutSaved = false; // there is a default layout to go back to
    std::vector<std::wstring> m_fixedColumns;
};
