// The system's functions that the libraries call, as entries of import tables.
#include "CallTable.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <malloc.h>
#include <type_traits>

namespace calltable {
namespace {

// --- The switch ------------------------------------------------------------------------------------------------------

/// Written by the thread that tests; other threads' calls pass through.
struct Switch {
    bool active = false;
    DWORD thread = 0;
    unsigned failing = 0;
    Outcome outcome;
};
Switch theSwitch;

bool MustFail(const char* function) {
    if (!theSwitch.active || ::GetCurrentThreadId() != theSwitch.thread)
        return false;
    Outcome& outcome = theSwitch.outcome;
    if (++outcome.calls != theSwitch.failing)
        return false;
    outcome.failed = function;
    outcome.frameCount = ::RtlCaptureStackBackTrace(2, std::size(outcome.frames), outcome.frames, nullptr);
    return true;
}

// --- The ledger ------------------------------------------------------------------------------------------------------

constexpr const char* KindNames[] = {"GDI object", "device context", "window's device context",
                                     "painting",   "menu",           "global block",
                                     "file",       "registry key",   "hook",
                                     "heap block", "heap byte"};

/// Open handles, in a table without an allocation of its own. Only handles that were seen coming are counted going: a
/// stock object may be "deleted" at will.
class Handles {
public:
    void Add(Kind kind, const void* handle) {
        if (handle == nullptr)
            return;
        Entry* entry = &m_entries[Place(handle)];
        while (entry->handle != nullptr)
            entry = Next(entry);
        *entry = {true, kind, handle};
        ++m_open[static_cast<int>(kind)];
    }
    void Remove(Kind kind, const void* handle) {
        if (handle == nullptr)
            return; // which is what entries hold whose handle has gone
        for (Entry* entry = &m_entries[Place(handle)]; entry->isUsed; entry = Next(entry)) {
            if (entry->handle == handle && entry->kind == kind) {
                entry->handle = nullptr; // it stays used: searches go on over it
                --m_open[static_cast<int>(kind)];
                return;
            }
        }
    }
    long Open(Kind kind) {
        if (kind == Kind::Menu)
            ForgetDeadMenus();
        return m_open[static_cast<int>(kind)];
    }

private:
    struct Entry {
        bool isUsed = false;
        Kind kind = Kind::Count;
        const void* handle = nullptr;
    };
    static constexpr std::size_t Size = std::size_t(1) << 16;

    static std::size_t Place(const void* handle) {
        return (reinterpret_cast<std::uintptr_t>(handle) * 0x9E3779B97F4A7C15ull) >> 48;
    }
    /// Menus go with the window or the menu that they were put into, without a call that could be seen.
    void ForgetDeadMenus() {
        if (m_open[static_cast<int>(Kind::Menu)] == 0)
            return;
        for (Entry& entry : m_entries) {
            if (entry.kind == Kind::Menu && entry.handle != nullptr &&
                !::IsMenu(static_cast<HMENU>(const_cast<void*>(entry.handle))))
                Remove(Kind::Menu, entry.handle);
        }
    }
    Entry* Next(Entry* entry) { return entry + 1 == m_entries + Size ? m_entries : entry + 1; }

    Entry m_entries[Size];
    long m_open[static_cast<int>(Kind::Count)] = {};
};
Handles handles;
long heapBlocks = 0;
long heapBytes = 0;
long long takenBytes = 0;

void NoteBlock(void* block, int direction) {
    if (block == nullptr)
        return;
    ::InterlockedExchangeAdd(&heapBlocks, direction);
    const auto size = static_cast<long>(::_msize(block));
    ::InterlockedExchangeAdd(&heapBytes, direction * size);
    if (direction > 0)
        ::InterlockedExchangeAdd64(&takenBytes, size);
}

// --- The functions ---------------------------------------------------------------------------------------------------

/// What a function does with a resource.
enum class Effect { None, Makes, Drops };

template <class Tag, class Function>
struct Thunk;

template <class Tag, class Result, class... Arguments>
struct Thunk<Tag, Result (*)(Arguments...)> {
    static Result Call(Arguments... arguments) {
        if constexpr (Tag::effect != Effect::Drops) {
            if (MustFail(Tag::name)) {
                ::SetLastError(Tag::error);
                return (Result)Tag::Failure();
            }
        }
        if constexpr (Tag::effect == Effect::Drops)
            handles.Remove(Tag::kind, Tag::Handle(arguments...));
        const Result result = Tag::original(arguments...);
        if constexpr (Tag::effect == Effect::Makes)
            handles.Add(Tag::kind, reinterpret_cast<const void*>(result));
        return result;
    }
};

struct Entry {
    const char* name;
    void* replacement;
    void** original;
};

template <class First, class... Rest>
const void* FirstOf(First first, Rest...) {
    return reinterpret_cast<const void*>(first);
}
template <class First, class Second, class... Rest>
const void* SecondOf(First, Second second, Rest...) {
    return reinterpret_cast<const void*>(second);
}

// The failing result is cast to the function's own type, as a C program would.
#define DESCRIBE(function, effect_, kind_, failure, error_, handle)                                                    \
    struct Tag_##function {                                                                                            \
        using Function = std::decay_t<decltype(::function)>;                                                           \
        static constexpr const char* name = #function;                                                                 \
        static constexpr Effect effect = Effect::effect_;                                                              \
        static constexpr Kind kind = Kind::kind_;                                                                      \
        static constexpr DWORD error = error_;                                                                         \
        static inline Function original = nullptr;                                                                     \
        static auto Failure() { return failure; }                                                                      \
        template <class... A>                                                                                          \
        static const void* Handle([[maybe_unused]] A... a) {                                                           \
            return handle;                                                                                             \
        }                                                                                                              \
    };
#define FAILS(function, failure, error) DESCRIBE(function, None, Count, failure, error, nullptr)
#define MAKES(function, kind, failure) DESCRIBE(function, Makes, kind, failure, ERROR_NOT_ENOUGH_MEMORY, nullptr)
#define DROPS(function, kind, handle) DESCRIBE(function, Drops, kind, 0, 0, handle)
#include "CallTable.inc"
#undef FAILS
#undef MAKES
#undef DROPS

// --- Functions that need words of their own --------------------------------------------------------------------------

// The functions that the thunks below replace.
decltype(&::RegCreateKeyExW) regCreateKey;
decltype(&::RegOpenKeyExW) regOpenKey;
decltype(&::GlobalReAlloc) globalReAlloc;
decltype(&::SetClipboardData) setClipboardData;
decltype(&::BeginPaint) beginPaint;
decltype(&::EndPaint) endPaint;
decltype(&::WriteFile) writeFile;
decltype(&::CreateFileW) createFile;
decltype(&std::malloc) heapMalloc;
decltype(&std::calloc) heapCalloc;
decltype(&std::realloc) heapRealloc;
decltype(&std::free) heapFree;
decltype(&::_wcsdup) heapWcsdup;

LSTATUS WINAPI RegCreateKeyExThunk(HKEY key, LPCWSTR path, DWORD reserved, LPWSTR className, DWORD options,
                                   REGSAM access, const LPSECURITY_ATTRIBUTES security, PHKEY made, LPDWORD created) {
    if (MustFail("RegCreateKeyExW"))
        return ERROR_NOT_ENOUGH_MEMORY;
    const LSTATUS status = regCreateKey(key, path, reserved, className, options, access, security, made, created);
    if (status == ERROR_SUCCESS)
        handles.Add(Kind::Key, *made);
    return status;
}

LSTATUS WINAPI RegOpenKeyExThunk(HKEY key, LPCWSTR path, DWORD options, REGSAM access, PHKEY made) {
    if (MustFail("RegOpenKeyExW"))
        return ERROR_NOT_ENOUGH_MEMORY;
    const LSTATUS status = regOpenKey(key, path, options, access, made);
    if (status == ERROR_SUCCESS)
        handles.Add(Kind::Key, *made);
    return status;
}

HGLOBAL WINAPI GlobalReAllocThunk(HGLOBAL block, SIZE_T size, UINT flags) {
    if (MustFail("GlobalReAlloc")) {
        ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const HGLOBAL grown = globalReAlloc(block, size, flags);
    if (grown != nullptr) {
        handles.Remove(Kind::Global, block);
        handles.Add(Kind::Global, grown);
    }
    return grown;
}

/// What the clipboard takes is its own from then on.
HANDLE WINAPI SetClipboardDataThunk(UINT format, HANDLE block) {
    if (MustFail("SetClipboardData")) {
        ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const HANDLE taken = setClipboardData(format, block);
    if (taken != nullptr)
        handles.Remove(Kind::Global, block);
    return taken;
}

HDC WINAPI BeginPaintThunk(HWND window, LPPAINTSTRUCT paint) {
    if (MustFail("BeginPaint"))
        return nullptr;
    const HDC dc = beginPaint(window, paint);
    handles.Add(Kind::Painting, dc);
    return dc;
}

BOOL WINAPI EndPaintThunk(HWND window, const PAINTSTRUCT* paint) {
    handles.Remove(Kind::Painting, paint->hdc);
    return endPaint(window, paint);
}

/// Fails as a full disk does: a part is written before.
BOOL WINAPI WriteFileThunk(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED overlapped) {
    if (MustFail("WriteFile")) {
        writeFile(file, bytes, count / 2, written, overlapped);
        ::SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    return writeFile(file, bytes, count, written, overlapped);
}

HANDLE WINAPI CreateFileThunk(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security, DWORD creation,
                              DWORD attributes, HANDLE pattern) {
    if (MustFail("CreateFileW")) {
        ::SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
    }
    const HANDLE file = createFile(path, access, sharing, security, creation, attributes, pattern);
    if (file != INVALID_HANDLE_VALUE)
        handles.Add(Kind::File, file);
    return file;
}

void* MallocThunk(std::size_t size) {
    if (MustFail("malloc"))
        return nullptr;
    void* const block = heapMalloc(size);
    NoteBlock(block, 1);
    return block;
}

void* CallocThunk(std::size_t count, std::size_t size) {
    if (MustFail("calloc"))
        return nullptr;
    void* const block = heapCalloc(count, size);
    NoteBlock(block, 1);
    return block;
}

void* ReallocThunk(void* former, std::size_t size) {
    if (MustFail("realloc"))
        return nullptr;
    NoteBlock(former, -1);
    void* const block = heapRealloc(former, size);
    NoteBlock(block != nullptr || size == 0 ? block : former, 1);
    return block;
}

void FreeThunk(void* block) {
    NoteBlock(block, -1);
    heapFree(block);
}

wchar_t* WcsdupThunk(const wchar_t* text) {
    if (MustFail("_wcsdup"))
        return nullptr;
    wchar_t* const block = heapWcsdup(text);
    NoteBlock(block, 1);
    return block;
}

// --- The tables ------------------------------------------------------------------------------------------------------

#define DESCRIBE_ENTRY(function)                                                                                       \
    {#function, reinterpret_cast<void*>(&Thunk<Tag_##function, Tag_##function::Function>::Call),                       \
     reinterpret_cast<void**>(&Tag_##function::original)},
#define FAILS(function, failure, error) DESCRIBE_ENTRY(function)
#define MAKES(function, kind, failure) DESCRIBE_ENTRY(function)
#define DROPS(function, kind, handle) DESCRIBE_ENTRY(function)
const Entry systemEntries[] = {
#include "CallTable.inc"
    {"RegCreateKeyExW", reinterpret_cast<void*>(&RegCreateKeyExThunk), reinterpret_cast<void**>(&regCreateKey)},
    {"RegOpenKeyExW", reinterpret_cast<void*>(&RegOpenKeyExThunk), reinterpret_cast<void**>(&regOpenKey)},
    {"GlobalReAlloc", reinterpret_cast<void*>(&GlobalReAllocThunk), reinterpret_cast<void**>(&globalReAlloc)},
    {"SetClipboardData", reinterpret_cast<void*>(&SetClipboardDataThunk), reinterpret_cast<void**>(&setClipboardData)},
    {"BeginPaint", reinterpret_cast<void*>(&BeginPaintThunk), reinterpret_cast<void**>(&beginPaint)},
    {"EndPaint", reinterpret_cast<void*>(&EndPaintThunk), reinterpret_cast<void**>(&endPaint)},
    {"WriteFile", reinterpret_cast<void*>(&WriteFileThunk), reinterpret_cast<void**>(&writeFile)},
    {"CreateFileW", reinterpret_cast<void*>(&CreateFileThunk), reinterpret_cast<void**>(&createFile)},
};
const Entry heapEntries[] = {
    {"malloc", reinterpret_cast<void*>(&MallocThunk), reinterpret_cast<void**>(&heapMalloc)},
    {"calloc", reinterpret_cast<void*>(&CallocThunk), reinterpret_cast<void**>(&heapCalloc)},
    {"realloc", reinterpret_cast<void*>(&ReallocThunk), reinterpret_cast<void**>(&heapRealloc)},
    {"free", reinterpret_cast<void*>(&FreeThunk), reinterpret_cast<void**>(&heapFree)},
    {"_wcsdup", reinterpret_cast<void*>(&WcsdupThunk), reinterpret_cast<void**>(&heapWcsdup)},
};

template <std::size_t Count>
void Patch(HMODULE module, const Entry (&entries)[Count]) {
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); library->Name != 0;
         ++library) {
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* address = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++address) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto* const imported = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            for (const Entry& entry : entries) {
                if (std::strcmp(entry.name, reinterpret_cast<const char*>(imported->Name)) != 0)
                    continue;
                DWORD protection = 0;
                ::VirtualProtect(address, sizeof(*address), PAGE_READWRITE, &protection);
                *entry.original = reinterpret_cast<void*>(address->u1.Function);
                address->u1.Function = reinterpret_cast<ULONGLONG>(entry.replacement);
                ::VirtualProtect(address, sizeof(*address), protection, &protection);
            }
        }
    }
}

/// "module.dll+offset", for a table of symbols.
std::string Describe(const void* frame) {
    HMODULE module = nullptr;
    char path[MAX_PATH] = "?";
    if (::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                             static_cast<LPCSTR>(frame), &module))
        ::GetModuleFileNameA(module, path, MAX_PATH);
    const char* const name = std::strrchr(path, '\\');
    char text[MAX_PATH + 32];
    std::snprintf(text, sizeof(text), "%s+%llx", name ? name + 1 : path,
                  static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(frame) -
                                                  reinterpret_cast<std::uintptr_t>(module)));
    return text;
}

} // namespace

void Install() {
    for (const wchar_t* name : {L"kyframework.dll", L"kytoolkit.dll", L"kyui.dll"}) {
        Patch(::GetModuleHandleW(name), systemEntries);
        Patch(::GetModuleHandleW(name), heapEntries);
    }
    // operator new and delete live in the compiler's runtime; the program's own memory is to be balanced, too.
    Patch(::GetModuleHandleW(L"libstdc++-6.dll"), heapEntries);
    Patch(::GetModuleHandleW(nullptr), heapEntries);
}

long Open(Kind kind) {
    if (kind == Kind::HeapBlock)
        return heapBlocks;
    return kind == Kind::HeapByte ? heapBytes : handles.Open(kind);
}

long long TakenBytes() { return takenBytes; }

const char* NameOf(Kind kind) { return KindNames[static_cast<int>(kind)]; }

void Begin(unsigned failing) {
    theSwitch = Switch();
    theSwitch.failing = failing;
    theSwitch.thread = ::GetCurrentThreadId();
    theSwitch.active = true;
}

Outcome End() {
    theSwitch.active = false;
    return theSwitch.outcome;
}

std::string Outcome::Where() const {
    std::string text;
    for (int i = 0; i < frameCount; ++i)
        text += (i > 0 ? " " : "") + Describe(frames[i]);
    return text;
}

void TellCrashes() {
    ::SetUnhandledExceptionFilter([](EXCEPTION_POINTERS* exception) -> LONG {
        theSwitch.active = false;
        Outcome crash;
        crash.frameCount = ::RtlCaptureStackBackTrace(0, std::size(crash.frames), crash.frames, nullptr);
        const Outcome& outcome = theSwitch.outcome;
        std::fprintf(stderr, "crash %08lx at %s, by %s\nafter call %u, %s, called by %s\n",
                     exception->ExceptionRecord->ExceptionCode,
                     Describe(exception->ExceptionRecord->ExceptionAddress).c_str(), crash.Where().c_str(),
                     outcome.calls, outcome.failed ? outcome.failed : "no failure", outcome.Where().c_str());
        std::fflush(stderr);
        ::TerminateProcess(::GetCurrentProcess(), 3);
        return EXCEPTION_EXECUTE_HANDLER;
    });
}

Pause::Pause() : m_wasActive(theSwitch.active) { theSwitch.active = false; }

Pause::~Pause() { theSwitch.active = m_wasActive; }

} // namespace calltable
