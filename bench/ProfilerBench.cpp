// Whether Column Profiler's window answers while it reads a large file, and how much memory that takes:
// profiler_bench FILE.csv
#include "Measure.h"
#include "Results.h"

#include "resource.h"
#include "window/ProfilerFrame.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <string>

namespace {

constexpr Results::Unit Milliseconds{"ms", 1};
constexpr Results::Unit Seconds{"s", 2};
constexpr Results::Unit Megabytes{"MB", 1};
constexpr Results::Unit Plain{"", 0};
constexpr double Mega = 1024 * 1024;

/// Shows no message boxes.
class BenchApp : public CWinApp {
public:
    BenchApp() : CWinApp(L"Column Profiler benchmark") {}
    int DoMessageBox(LPCTSTR, UINT, UINT) override { return IDOK; }
};

BenchApp theApplication;

/// Handles messages as they come, and knows the longest time that one of them has taken: so long does the window look
/// frozen.
class MessageLoop {
public:
    template <class Condition>
    void RunWhile(Condition condition) {
        while (condition()) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, INFINITE, QS_ALLINPUT);
            MSG message;
            while (condition() && ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
                Time([] { AfxPumpMessage(); });
        }
    }
    /// For what is called from outside of a message.
    template <class Action>
    double Time(Action action) {
        const double milliseconds = measure::Microseconds(1, [&](int) { action(); }) / 1000;
        m_longest = std::max(m_longest, milliseconds);
        return milliseconds;
    }
    double Longest() const { return m_longest; }

private:
    double m_longest = 0;
};

ProfilerFrame* OpenFrame() {
    auto* const frame = new ProfilerFrame; // deleted with its window
    theApplication.m_pMainWnd = frame;
    if (!frame->CreateFrame())
        return nullptr;
    frame->ShowWindow(SW_SHOWNORMAL);
    frame->UpdateWindow();
    return frame;
}

/// Runs the loop for some time, or until the file is read.
void ReadFor(MessageLoop& loop, ProfilerFrame& frame, ULONGLONG milliseconds) {
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    loop.RunWhile([&] { return frame.IsReading() && ::GetTickCount64() < end; });
}

/// The memory that a file may take: its numbers twice, as doubles, and each different text once.
double AllowedBytes(const ColumnFile& file) {
    double bytes = 0;
    for (const csv::Column& column : file.table.columns) {
        bytes += 2.0 * sizeof(double) * static_cast<double>(column.numbers.size());
        for (const csv::TextPool::Entry& entry : column.texts.Entries())
            bytes += static_cast<double>(entry.text.size());
    }
    return bytes;
}

void Run(Results& results, const CString& path) {
    ProfilerFrame* frame = OpenFrame();
    if (frame == nullptr)
        return results.Say("The window could not be created.");
    MessageLoop loop;
    ReadFor(loop, *frame, 0);
    const std::size_t empty = measure::WorkingBytes();

    std::set<std::wstring> told;
    const auto begin = std::chrono::steady_clock::now();
    loop.Time([&] { frame->OpenPath(path); });
    loop.RunWhile([&] {
        CString status;
        frame->GetMessageBar()->GetWindowText(status);
        if (status.Find(L"%") >= 0)
            told.insert(status.GetString());
        return frame->IsReading();
    });
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    const double used = static_cast<double>(measure::PeakBytes() - empty);

    // Giving up, another file, and closing, each in the middle of reading.
    loop.Time([&] { frame->OpenPath(path); });
    ReadFor(loop, *frame, 400);
    const bool wasReading = frame->IsReading();
    const double cancelling = loop.Time([&] { frame->SendMessage(WM_COMMAND, ID_FILE_STOP); });
    loop.Time([&] { frame->OpenPath(path); });
    ReadFor(loop, *frame, 300);
    loop.Time([&] { frame->OpenPath(path); });
    ReadFor(loop, *frame, 300);
    const double closing = loop.Time([&] { frame->SendMessage(WM_CLOSE); });

    const ColumnFileResult read = ReadColumnFile(path.GetString(), "Column %1%");
    if (read.file == nullptr)
        return results.Say("The file could not be read.");
    results.Begin("Column Profiler's window while it reads the file", {"", "figure", "at most", ""});
    results.Inform("from opening the file to its profile in the window", taken.count(), Seconds);
    results.Inform("different states of progress told in the status bar", static_cast<double>(told.size()), Plain);
    results.AtMost("longest time in which the window did not answer", loop.Longest(), 100, Milliseconds);
    results.Inform(wasReading ? "of that, giving up in the middle" : "giving up (the file was read already)",
                   cancelling, Milliseconds);
    results.Inform("of that, closing the window in the middle", closing, Milliseconds);
    results.AtMost("peak of memory above the empty program's; at most twice the numbers and the different texts",
                   used / Mega, AllowedBytes(*read.file) / Mega, Megabytes);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 || !AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL)) {
        std::fputs("usage: profiler_bench FILE.csv\n", stderr);
        return 2;
    }
    ::SetConsoleOutputCP(CP_UTF8);
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPath(MAX_PATH, folder);
    const CString profile = CString(folder) + L"profiler_bench.ini";
    theApplication.m_pszProfileName = _wcsdup(profile);
    Results results;
    Run(results, CString(argv[1]));
    ::DeleteFile(profile);
    results.Say(results.Verdict());
    return results.AllMet() ? 0 : 1;
}
