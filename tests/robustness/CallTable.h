// The system's functions that the libraries call, with a switch that lets one call fail, and a ledger of what they have
// taken and not given back. Works on the import tables of the loaded DLLs: the libraries are tested as they are.
//
// Tables are patched once, by `Install`. Calls of the test program itself neither fail nor stand in the ledger, except
// that its memory comes from the same heap.
#pragma once

#include <cstddef>
#include <string>

namespace calltable {

/// Puts the switch and the ledger between the libraries and the system. Call it once, before anything is counted.
void Install();

/// What can be taken from the system and given back; the last two are the C heap, which is operator new's too.
enum class Kind {
    GdiObject,
    Context,
    WindowContext,
    Painting,
    Menu,
    Global,
    File,
    Key,
    Hook,
    HeapBlock,
    HeapByte,
    Count
};
/// How much of it has been taken and not given back. Takes no memory itself.
long Open(Kind kind);
const char* NameOf(Kind kind);
/// The bytes taken from the heap so far, whether or not they were given back.
long long TakenBytes();

/// What happened between `Begin` and `End`.
struct Outcome {
    unsigned calls = 0;           ///< of functions that may fail
    const char* failed = nullptr; ///< the function whose call failed; null when none did
    void* frames[14] = {};        ///< the callers of that call, innermost first
    int frameCount = 0;
    /// The callers as text, for a table of symbols: "kytoolkit.dll+1a2b …".
    std::string Where() const;
};
/// From now on, the current thread's `failing`-th call of a function that may fail fails as documented for it: with
/// its return value for failure and its error code, and without any effect. Calls count from 1; with 0 they are only
/// counted.
void Begin(unsigned failing);
Outcome End();

/// A program that crashes says where, and which call failed before, and ends.
void TellCrashes();

/// While one lives, calls neither count nor fail: for what a test itself does meanwhile.
class Pause {
public:
    Pause();
    ~Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

private:
    bool m_wasActive;
};

} // namespace calltable
