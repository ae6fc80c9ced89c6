// What ends a run that went wrong: crashes, hangs and broken invariants, told with the seed and the last events.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace sentinel {

/// Runs the program again with the heap's checks on (freed memory is filled, and looked at again) and returns that
/// run's exit code; -1 when the checks are on already or cannot be had.
int RunWithHeapChecks();
bool HasHeapChecks();

/// Watches the calling thread from now on. `replay` is the command that repeats the run.
void Watch(std::string replay);

/// The next event begins; `text` goes to the journal of the last ones.
void Note(std::string text);
std::int64_t EventsNoted();

/// Tells what is wrong, the way back to it and the last events, and ends the process with exit code 1.
[[noreturn]] void Fail(const std::string& what);

/// The most that the calling thread's stack has ever held, and what it may hold; bytes.
struct StackUse {
    std::size_t most;
    std::size_t room;
};
StackUse StackOfThread();

/// Fails when a heap of the process is damaged.
void CheckHeaps();

} // namespace sentinel
