// Diagnostics.cpp - assertions and trace output.
#include "core/Diagnostics.h"

#include "core/CObject.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int lineCapacity = 1024;

void StopProgram() {
    if (::IsDebuggerPresent())
        ::DebugBreak();
    std::abort();
}

} // namespace

void AfxAssertFailed(const char* expression, const char* file, int line) {
    char text[lineCapacity];
    std::snprintf(text, lineCapacity, "%s(%d): assertion failed: %s\n", file, line, expression);
    ::OutputDebugStringA(text);
    std::fputs(text, stderr);
    std::fflush(stderr);
    StopProgram();
    std::abort();
}

void AfxTrace(LPCTSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    wchar_t text[lineCapacity];
    __mingw_vsnwprintf(text, lineCapacity, format, arguments);
    va_end(arguments);
    text[lineCapacity - 1] = L'\0';
    ::OutputDebugStringW(text);
}

void AfxTrace(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    char text[lineCapacity];
    __mingw_vsnprintf(text, lineCapacity, format, arguments);
    va_end(arguments);
    ::OutputDebugStringA(text);
}

void AfxAssertValidObject(const CObject* object, const char* file, int line) {
    if (!AfxIsValidAddress(object, sizeof(CObject), FALSE))
        AfxAssertFailed("the object exists", file, line);
    object->AssertValid();
}

BOOL AfxIsValidAddress(const void* p, UINT_PTR bytes, BOOL readWrite) {
    constexpr DWORD readable = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                               PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD writable = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    const DWORD wanted = readWrite ? writable : readable;
    if (!p)
        return FALSE;
    auto next = static_cast<const BYTE*>(p);
    const BYTE* end = next + (bytes ? bytes : 1);
    while (next < end) {
        MEMORY_BASIC_INFORMATION block{};
        if (!::VirtualQuery(next, &block, sizeof(block)) || block.State != MEM_COMMIT || (block.Protect & PAGE_GUARD) ||
            !(block.Protect & wanted))
            return FALSE;
        next = static_cast<const BYTE*>(block.BaseAddress) + block.RegionSize;
    }
    return TRUE;
}
