// Reading a file while the windows go on working.
#pragma once

#include "window/ColumnFile.h"

#include <atomic>
#include <exception>
#include <functional>
#include <thread>

/// One reading of a file on a thread of its own. Destroying the object gives the reading up; that waits for the end of
/// the chunk or the column that is being worked on.
class FileReading {
public:
    /// Begins. `whenDone` is called on the reading thread when `IsDone` has become true; it must not touch windows, but
    /// may post a message.
    FileReading(std::filesystem::path path, std::string unnamedColumn, std::function<void()> whenDone);

    const std::filesystem::path& Path() const { return m_path; }

    csv::ReadState State() const { return {m_fraction, m_rows}; }
    bool IsDone() const { return m_done; }

    /// What came of it; call it once, when `IsDone`. Throws what reading threw.
    ColumnFileResult TakeResult();

private:
    void Run(const std::stop_token& stop);

    std::filesystem::path m_path;
    std::string m_unnamedColumn;
    std::function<void()> m_whenDone;
    std::atomic<double> m_fraction = 0;
    std::atomic<std::size_t> m_rows = 0;
    std::atomic<bool> m_done = false;
    ColumnFileResult m_result; ///< the reading thread's until it is done, as the following
    std::exception_ptr m_exception;
    std::jthread m_thread; ///< the last member: it uses the others
};
