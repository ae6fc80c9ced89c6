// What ends a run that went wrong: crashes, hangs and broken invariants, told with the seed and the last events.
#include "Sentinel.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

constexpr std::size_t LastEvents = 50;
/// An event that takes longer is a hang. Machines that run the tests are busy with much else.
constexpr DWORD HangTime = 60000;
constexpr int LargestStack = 40;
constexpr DWORD TailAndFreeChecks = 0x30; // flags of the system's heap

std::string g_replay;
std::array<std::string, LastEvents> g_journal;
std::atomic<std::int64_t> g_events{0};
std::atomic<bool> g_isFailing{false};
HANDLE g_thread = nullptr;

/// A crash waits here to be told by the watching thread: the one that crashed may have no stack left to do it.
struct Crash {
    HANDLE hasCome = nullptr;
    std::atomic<bool> isTaken{false};
    DWORD code = 0;
    DWORD64 address = 0;
    CONTEXT context = {};
} g_crash;
/// What the unused part of the watched thread's stack is filled with, so that one can see how far down it was used.
constexpr BYTE StackPaint = 0xA7;
/// So much stack is kept for the handler of an overflow.
constexpr ULONG StackOfHandlers = 64 * 1024;

/// "module+0x1234", as the addresses of the linker's map and of addr2line have it.
std::string PlaceOf(DWORD64 address) {
    HMODULE module = nullptr;
    char text[MAX_PATH + 32] = "";
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCSTR>(address), &module);
    char path[MAX_PATH] = "?";
    if (module)
        ::GetModuleFileNameA(module, path, MAX_PATH);
    const char* name = std::strrchr(path, '\\');
    std::snprintf(text, sizeof(text), "%s+0x%llx", name ? name + 1 : path,
                  static_cast<unsigned long long>(address - reinterpret_cast<DWORD64>(module)));
    return text;
}

std::vector<DWORD64> StackOf(CONTEXT context) {
    std::vector<DWORD64> stack;
    while (context.Rip != 0 && stack.size() < LargestStack) {
        stack.push_back(context.Rip);
        DWORD64 base = 0;
        RUNTIME_FUNCTION* function = ::RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (!function) {
            // A function without unwind data has called nothing: its caller's address is on top.
            if (::IsBadReadPtr(reinterpret_cast<void*>(context.Rsp), sizeof(DWORD64)))
                break;
            context.Rip = *reinterpret_cast<DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
            continue;
        }
        void* data = nullptr;
        DWORD64 frame = 0;
        ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &data, &frame, nullptr);
    }
    return stack;
}

[[noreturn]] void End(const char* what, const CONTEXT* context) {
    if (g_isFailing.exchange(true))
        ::Sleep(INFINITE); // the first failure is being told
    const std::int64_t last = g_events;
    std::fprintf(stderr, "\nmonkey: FAILED at event %lld: %s\n", static_cast<long long>(last), what);
    std::fprintf(stderr, "replay with: %s\nlast events:\n", g_replay.c_str());
    for (std::int64_t i = last > std::int64_t{LastEvents} ? last - std::int64_t{LastEvents} : 0; i < last; ++i)
        std::fprintf(stderr, "  %lld %s\n", static_cast<long long>(i + 1), g_journal[i % LastEvents].c_str());
    if (context) {
        std::fprintf(stderr, "stack:\n");
        for (const DWORD64 address : StackOf(*context))
            std::fprintf(stderr, "  %s\n", PlaceOf(address).c_str());
    }
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), 1);
    ::Sleep(INFINITE);
    std::abort();
}

/// Sees a crash first: a handler further out may swallow it, as that of window procedures does.
LONG CALLBACK OnException(EXCEPTION_POINTERS* pointers) {
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    switch (record.ExceptionCode) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_STACK_OVERFLOW:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_BREAKPOINT:
    case 0xC0000374: // a damaged heap
        break;
    default:
        return EXCEPTION_CONTINUE_SEARCH;
    }
    if (!g_crash.isTaken.exchange(true)) {
        g_crash.code = record.ExceptionCode;
        g_crash.address = record.NumberParameters > 1 ? record.ExceptionInformation[1] : 0;
        g_crash.context = *pointers->ContextRecord;
        ::SetEvent(g_crash.hasCome);
    }
    ::Sleep(INFINITE);
    return EXCEPTION_CONTINUE_SEARCH;
}

/// What the watched thread waits for, as far as the system tells: menus and captures are loops of their own.
std::string LoopOfThread() {
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    if (!::GetGUIThreadInfo(::GetThreadId(g_thread), &info))
        return "its windows cannot be asked";
    const auto describe = [](const char* role, HWND window) {
        if (!window)
            return std::string();
        char name[64] = "", text[160];
        ::GetClassNameA(window, name, sizeof(name));
        std::snprintf(text, sizeof(text), ", %s %s%s%s", role, name, ::IsWindowVisible(window) ? "" : " (not visible)",
                      ::GetUpdateRect(window, nullptr, FALSE) ? " (to be painted)" : "");
        return std::string(text);
    };
    char flags[32];
    std::snprintf(flags, sizeof(flags), "flags 0x%lx", info.flags);
    return flags + describe("active", info.hwndActive) + describe("focus", info.hwndFocus) +
           describe("capture", info.hwndCapture) + describe("menu of", info.hwndMenuOwner) +
           describe("sizing", info.hwndMoveSize);
}

[[noreturn]] void TellCrash() {
    char what[160];
    std::snprintf(what, sizeof(what), "crash 0x%08lx at %s, address 0x%llx", g_crash.code,
                  PlaceOf(g_crash.context.Rip).c_str(), static_cast<unsigned long long>(g_crash.address));
    End(what, &g_crash.context);
}

DWORD WINAPI WatchForTrouble(void*) {
    std::int64_t seen = -1;
    DWORD since = ::GetTickCount();
    const HANDLE troubles[] = {g_crash.hasCome, g_thread};
    for (;;) {
        switch (::WaitForMultipleObjects(2, troubles, FALSE, 200)) {
        case WAIT_OBJECT_0:
            TellCrash();
        case WAIT_OBJECT_0 + 1:
            End("the thread has ended", nullptr);
        default:
            break;
        }
        const std::int64_t now = g_events;
        if (now != seen) {
            seen = now;
            since = ::GetTickCount();
        } else if (::GetTickCount() - since > HangTime) {
            const std::string what = "hang: the event does not end; " + LoopOfThread();
            ::SuspendThread(g_thread);
            CONTEXT context = {};
            context.ContextFlags = CONTEXT_FULL;
            ::GetThreadContext(g_thread, &context);
            End(what.c_str(), &context);
        }
    }
}

/// The part of the thread's stack that is committed, without a guard; Wine commits all of it.
MEMORY_BASIC_INFORMATION CommittedStack() {
    MEMORY_BASIC_INFORMATION memory = {};
    ::VirtualQuery(&memory, &memory, sizeof(memory));
    ::VirtualQuery(memory.AllocationBase, &memory, sizeof(memory));
    while (memory.State != MEM_COMMIT || (memory.Protect & (PAGE_GUARD | PAGE_NOACCESS)) != 0)
        ::VirtualQuery(static_cast<BYTE*>(memory.BaseAddress) + memory.RegionSize, &memory, sizeof(memory));
    return memory;
}

void PaintStack() {
    const MEMORY_BASIC_INFORMATION stack = CommittedStack();
    constexpr std::uintptr_t inUse = 16 * 1024; // by this function and those that it calls
    const auto begin = reinterpret_cast<std::uintptr_t>(stack.BaseAddress);
    std::memset(stack.BaseAddress, StackPaint, reinterpret_cast<std::uintptr_t>(&stack) - inUse - begin);
}

} // namespace

namespace sentinel {

bool HasHeapChecks() {
    using GetFlags = ULONG(NTAPI*)();
    const auto flags = reinterpret_cast<GetFlags>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("ntdll"), "RtlGetNtGlobalFlags")));
    return flags && (flags() & TailAndFreeChecks) == TailAndFreeChecks;
}

int RunWithHeapChecks() {
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    const wchar_t* name = std::wcsrchr(path, L'\\') + 1;
    const std::wstring key =
        std::wstring(L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options\\") + name;
    const DWORD value = TailAndFreeChecks;
    constexpr const wchar_t* Second = L"KY_MONKEY_CHECKED"; // never a third run, whatever the flags say
    if (HasHeapChecks() || ::GetEnvironmentVariableW(Second, nullptr, 0) != 0 ||
        !::SetEnvironmentVariableW(Second, L"1") ||
        ::RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), L"GlobalFlag", REG_DWORD, &value, sizeof(value)) != 0)
        return -1;
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    std::wstring commandLine = ::GetCommandLineW();
    DWORD code = static_cast<DWORD>(-1);
    if (::CreateProcessW(path, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process)) {
        ::WaitForSingleObject(process.hProcess, INFINITE);
        ::GetExitCodeProcess(process.hProcess, &code);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }
    // Only this program's own runs want it, and each asks anew.
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
    return static_cast<int>(code);
}

void Watch(std::string replay) {
    g_replay = std::move(replay);
    ULONG stack = StackOfHandlers;
    ::SetThreadStackGuarantee(&stack);
    PaintStack();
    g_crash.hasCome = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);
    ::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentThread(), ::GetCurrentProcess(), &g_thread, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    ::AddVectoredExceptionHandler(1, &OnException);
    ::CloseHandle(::CreateThread(nullptr, 0, &WatchForTrouble, nullptr, 0, nullptr));
}

void Note(std::string text) {
    g_journal[g_events % LastEvents] = std::move(text);
    ++g_events;
}

std::int64_t EventsNoted() { return g_events; }

void Fail(const std::string& what) {
    CONTEXT context;
    ::RtlCaptureContext(&context);
    End(what.c_str(), &context);
}

StackUse StackOfThread() {
    const MEMORY_BASIC_INFORMATION stack = CommittedStack();
    const auto* const begin = static_cast<const BYTE*>(stack.BaseAddress);
    const BYTE* const end = begin + stack.RegionSize;
    const BYTE* const touched = std::find_if(begin, end, [](BYTE byte) { return byte != StackPaint; });
    return {static_cast<std::size_t>(end - touched), stack.RegionSize};
}

void CheckHeaps() {
    HANDLE heaps[64];
    const DWORD count = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
    for (DWORD i = 0; i < count; ++i) {
        if (!::HeapValidate(heaps[i], 0, nullptr))
            Fail("a heap is damaged");
    }
}

} // namespace sentinel
