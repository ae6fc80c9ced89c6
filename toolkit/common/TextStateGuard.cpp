// Keeps what drawing a text changes in a device context.
#include "TextStateGuard.h"

TextStateGuard::TextStateGuard(CDC& dc)
    : m_dc(dc), m_font(::GetCurrentObject(dc.m_hDC, OBJ_FONT)), m_textColor(dc.GetTextColor()),
      m_backColor(dc.GetBkColor()), m_backMode(dc.GetBkMode()) {}

TextStateGuard::~TextStateGuard() {
    if (::GetCurrentObject(m_dc.m_hDC, OBJ_FONT) != m_font)
        m_dc.SelectObject(m_font);
    m_dc.SetTextColor(m_textColor);
    m_dc.SetBkColor(m_backColor);
    m_dc.SetBkMode(m_backMode);
}

void TextStateGuard::UseFont(const CFont* font) {
    const HGDIOBJ wanted = font ? font->GetSafeHandle() : nullptr;
    if (wanted && ::GetCurrentObject(m_dc.m_hDC, OBJ_FONT) != wanted)
        m_dc.SelectObject(wanted);
}
