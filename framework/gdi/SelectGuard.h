/// @file
/// Selects GDI objects for the length of a scope.
#pragma once

#include "CDC.h"

/// Selects a pen, brush, font or bitmap and puts back on destruction what was selected before. A null object selects
/// nothing. The context must outlive the guard; guards of one context end in the reverse order of their making.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API SelectGuard {
public:
    /** @{ */
    /// Selects the object, which must live as long as the guard.
    SelectGuard(CDC& dc, HGDIOBJ object);
    SelectGuard(CDC& dc, const CGdiObject& object) : SelectGuard(dc, object.GetSafeHandle()) {}
    SelectGuard(CDC& dc, const CGdiObject* object) : SelectGuard(dc, object ? object->GetSafeHandle() : nullptr) {}
    /** @} */
    /// Selects what was selected before, if anything was selected.
    ~SelectGuard();
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    CDC& m_dc;
    HGDIOBJ m_former;
};

/// Saves the whole state of a context, with clipping, mapping and all that is selected, and restores it on destruction.
/// The context must outlive the guard.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API SaveDCGuard {
public:
    /// Saves the state.
    explicit SaveDCGuard(CDC& dc) : m_dc(dc), m_saved(dc.SaveDC()) {}
    /// Restores the state, also over later saves that were left open.
    ~SaveDCGuard() { m_dc.RestoreDC(m_saved); }
    SaveDCGuard(const SaveDCGuard&) = delete;
    SaveDCGuard& operator=(const SaveDCGuard&) = delete;

private:
    CDC& m_dc;
    int m_saved;
};
