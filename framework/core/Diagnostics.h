// Diagnostics.h - assertions and trace output.
//
// Assertions are compiled in when NDEBUG is not defined. A failing one writes where it happened to the debugger and
// to the error stream and then stops the program (in the debugger, if there is one).
#pragma once

#include "Platform.h"

class CObject;

/// Reports a failed assertion and stops the program. The texts are 8-bit source literals.
[[noreturn]] KY_FRAMEWORK_API void AfxAssertFailed(const char* expression, const char* file, int line);

/// Writes one printf-like line of trace output to the debugger.
KY_FRAMEWORK_API void AfxTrace(LPCTSTR format, ...);
KY_FRAMEWORK_API void AfxTrace(const char* format, ...);

/// Asserts that the object exists and that its own AssertValid finds nothing wrong.
KY_FRAMEWORK_API void AfxAssertValidObject(const CObject* object, const char* file, int line);

/// True when `bytes` bytes at `p` belong to the process and may be read (and written, when asked).
KY_FRAMEWORK_API BOOL AfxIsValidAddress(const void* p, UINT_PTR bytes, BOOL readWrite = TRUE);

#ifndef NDEBUG
#define ASSERT(expression)                                                                                             \
    do {                                                                                                               \
        if (!(expression))                                                                                             \
            AfxAssertFailed(#expression, __FILE__, __LINE__);                                                          \
    } while (false)
#define VERIFY(expression) ASSERT(expression)
#define ASSERT_VALID(object) AfxAssertValidObject(object, __FILE__, __LINE__)
#define TRACE(...) AfxTrace(__VA_ARGS__)
#else
#define ASSERT(expression) static_cast<void>(0)
#define VERIFY(expression) static_cast<void>(expression)
#define ASSERT_VALID(object) static_cast<void>(0)
#define TRACE(...) static_cast<void>(0)
#endif
