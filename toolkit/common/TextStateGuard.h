// Keeps what drawing a text changes in a device context.
#pragma once

#include <afxwin.h>

/// Puts back the font, the colours and the background mode of a context at the end of its scope. Saving a whole
/// context, or selecting a font that is selected already, costs more than drawing a cell; this does neither.
class TextStateGuard {
public:
    explicit TextStateGuard(CDC& dc);
    ~TextStateGuard();
    TextStateGuard(const TextStateGuard&) = delete;
    TextStateGuard& operator=(const TextStateGuard&) = delete;

    /// Null leaves the font as it is.
    void UseFont(const CFont* font);

private:
    CDC& m_dc;
    HGDIOBJ m_font;
    COLORREF m_textColor;
    COLORREF m_backColor;
    int m_backMode;
};
