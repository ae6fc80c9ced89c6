// Keeping an object alive while code of the host runs that may remove it.
#pragma once

#include <afxwin.h>

/// Holds a reference to a counted object for its own lifetime.
class KeepAlive {
public:
    explicit KeepAlive(CCmdTarget& target) : m_target(target) { m_target.InternalAddRef(); }
    ~KeepAlive() { m_target.InternalRelease(); }
    KeepAlive(const KeepAlive&) = delete;
    KeepAlive& operator=(const KeepAlive&) = delete;

private:
    CCmdTarget& m_target;
};
