// SelectGuard.cpp - selects GDI objects for the length of a scope.
#include "gdi/SelectGuard.h"

SelectGuard::SelectGuard(CDC& dc, HGDIOBJ object) : m_dc(dc), m_former(object ? dc.SelectObject(object) : nullptr) {}

SelectGuard::~SelectGuard() {
    if (m_former)
        m_dc.SelectObject(m_former);
}
