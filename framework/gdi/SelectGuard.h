// SelectGuard.h - selects GDI objects for the length of a scope.
#pragma once

#include "CDC.h"

/// Selects a pen, brush, font or bitmap and puts back on destruction what was selected before. A null object selects
/// nothing. The context must outlive the guard; guards of one context end in the reverse order of their making.
class KY_FRAMEWORK_API SelectGuard {
public:
    SelectGuard(CDC& dc, HGDIOBJ object);
    SelectGuard(CDC& dc, const CGdiObject& object) : SelectGuard(dc, object.GetSafeHandle()) {}
    SelectGuard(CDC& dc, const CGdiObject* object) : SelectGuard(dc, object ? object->GetSafeHandle() : nullptr) {}
    ~SelectGuard();
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    CDC& m_dc;
    HGDIOBJ m_former;
};

/// Saves the whole state of a context and restores it on destruction.
class KY_FRAMEWORK_API SaveDCGuard {
public:
    explicit SaveDCGuard(CDC& dc) : m_dc(dc), m_saved(dc.SaveDC()) {}
    ~SaveDCGuard() { m_dc.RestoreDC(m_saved); }
    SaveDCGuard(const SaveDCGuard&) = delete;
    SaveDCGuard& operator=(const SaveDCGuard&) = delete;

private:
    CDC& m_dc;
    int m_saved;
};
