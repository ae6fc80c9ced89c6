// The window in which a tool tip shows.
#pragma once

#include "XTPThemes.h"

#include <afxwin.h>

/// What a tip looks like beside its text.
struct TipAppearance {
    XTPToolTipStyle style = xtpToolTipStandard;
    int maxTextWidth = -1; ///< pixels; −1: one line
    CRect margin;          ///< from the border to the text
};

/// A popup that shows a text and is never hit by the mouse nor activated.
class ToolTipWindow : public CWnd {
public:
    /// The messages of its timers are handed to this.
    class Timers {
    public:
        virtual void OnTipTimer(UINT_PTR timer) = 0;

    protected:
        ~Timers() = default;
    };
    explicit ToolTipWindow(Timers& timers) : m_timers(timers) {}
    ~ToolTipWindow() override;

    /// Makes the hidden window when there is none; `host` becomes its owner, whose resolution the tip has.
    bool Ensure(CWnd* host);
    /// Shows the text below the point (screen coordinates), or above it where there is no room.
    void ShowAt(CPoint point, const CString& text, const TipAppearance& appearance);
    /// Another text at the same place.
    void ChangeText(const CString& text, const TipAppearance& appearance);
    void Hide();
    CString GetText() const { return m_text; }

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnTimer(UINT_PTR nIDEvent);
    LRESULT OnNcHitTest(CPoint point);
    LRESULT OnPrintClient(CDC* pDC, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    void Place(CPoint topLeft);
    void Draw(CDC& dc);
    CSize Measure();
    void UseDpi(int dpi);
    int Scale(int pixels) const; ///< pixels at 96 DPI

    Timers& m_timers;
    CString m_text;
    TipAppearance m_appearance;
    CFont m_font;
    int m_dpi = 0; ///< for which the font was made
    CPoint m_anchor;
};
