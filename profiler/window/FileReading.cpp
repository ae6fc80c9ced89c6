// Reading a file while the windows go on working.
#include "window/FileReading.h"

FileReading::FileReading(std::filesystem::path path, std::string unnamedColumn, std::function<void()> whenDone)
    : m_path(std::move(path)), m_unnamedColumn(std::move(unnamedColumn)), m_whenDone(std::move(whenDone)),
      m_thread([this](const std::stop_token& stop) { Run(stop); }) {}

void FileReading::Run(const std::stop_token& stop) {
    try {
        m_result = ReadColumnFile(m_path, m_unnamedColumn, [&](const csv::ReadState& state) {
            m_fraction = state.fraction;
            m_rows = state.rows;
            return !stop.stop_requested();
        });
    } catch (...) {
        m_exception = std::current_exception();
    }
    m_done = true;
    m_whenDone();
}

ColumnFileResult FileReading::TakeResult() {
    m_thread.join();
    if (m_exception)
        std::rethrow_exception(m_exception);
    return std::move(m_result);
}
