// The bar above the grid in which the user types what the names of the shown columns contain.
#pragma once

#include <XTToolkitPro.h>
#include <afxext.h>

/// A label, an edit control that filters a grid, and how many of the columns are shown. Hidden until it is opened.
class FilterBar : public CControlBar {
public:
    /// Creates the window, hidden, at the top of the frame. The grid must have its window and outlive the bar's.
    bool Create(CFrameWnd& frame, CXTPReportControl& grid);

    /// Shows the bar and gives it the keyboard.
    void Open();
    /// Hides the bar, shows all rows again and gives the grid the keyboard.
    void Close();
    /// Tells how many there are.
    void ShowCount(std::size_t shown, std::size_t all);

    /// Takes the font and the sizes of a monitor's resolution.
    void UseDpi(int dpi);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void OnSize(UINT type, int width, int height);
    void OnSetFocus(CWnd* old);
    void OnClose();
    DECLARE_MESSAGE_MAP()

private:
    void PlaceControls();

    CXTPReportControl* m_grid = nullptr;
    CFont m_font;
    int m_dpi = 96;
    int m_textHeight = 0; ///< of the font, in pixels
    CStatic m_label;
    CXTPReportFilterEditControl m_text;
    CStatic m_count;
};
