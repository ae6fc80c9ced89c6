// Something that a user or a host does, tried with every call failing in turn.
#pragma once

#include "Rig.h"

#include <string>

/// Something that a user or a host does, again and again.
class Scenario {
public:
    explicit Scenario(const char* name) : m_name(name) {}
    virtual ~Scenario() = default;
    const char* Name() const { return m_name; }

    /// What is done while a call fails. May throw what the libraries let pass to a host.
    virtual void Act() = 0;
    /// What must hold after a failure; a sentence about what does not, or nothing.
    virtual std::string Broken() { return {}; }
    /// What must hold when no call has failed; a sentence about what does not, or nothing.
    virtual std::string Wrong() = 0;

private:
    const char* m_name;
};

/// Runs it undisturbed, and then once for each call that may fail, with that one failing. After each failure the mouse
/// is free, what must hold holds, the next time it succeeds, and nothing is left open. As a test, a slice of that.
void FailEachCall(Scenario& scenario);

template <class S>
void Try() {
    S scenario;
    FailEachCall(scenario);
}
