/// @file
/// Assertions and trace output.
///
/// Assertions are compiled in when NDEBUG is not defined. A failing one writes where it happened to the debugger and to
/// the error stream and then stops the program (in the debugger, if there is one).
#pragma once

#include "Platform.h"

class CObject;

/// @addtogroup framework_objects
/// @{

/// Reports a failed assertion and stops the program. The texts are 8-bit source literals.
[[noreturn]] KY_FRAMEWORK_API void AfxAssertFailed(const char* expression, const char* file, int line);

/// Writes printf-like trace output to the debugger, cut after 1023 characters. Lines end where the text has a line
/// feed. The TRACE macro leaves it out of builds without assertions.
KY_FRAMEWORK_API void AfxTrace(LPCTSTR format, ...);
/// The same for 8-bit texts.
KY_FRAMEWORK_API void AfxTrace(const char* format, ...);

/// Asserts that the object exists and calls its AssertValid, which asserts the rest. `file` and `line` are named when
/// it does not exist.
KY_FRAMEWORK_API void AfxAssertValidObject(const CObject* object, const char* file, int line);

/// True when `bytes` bytes at `p` (at least one) are committed memory of the process that may be written, or with
/// `readWrite` FALSE read. Null is never valid.
KY_FRAMEWORK_API BOOL AfxIsValidAddress(const void* p, UINT_PTR bytes, BOOL readWrite = TRUE);

#ifndef NDEBUG
/// Stops the program when the expression is false. Without assertions the expression is not even evaluated.
#define ASSERT(expression)                                                                                             \
    do {                                                                                                               \
        if (!(expression))                                                                                             \
            AfxAssertFailed(#expression, __FILE__, __LINE__);                                                          \
    } while (false)
/// As ASSERT, but the expression is evaluated in every build.
#define VERIFY(expression) ASSERT(expression)
/// Stops the program when the object is missing or its AssertValid finds a contradiction.
#define ASSERT_VALID(object) AfxAssertValidObject(object, __FILE__, __LINE__)
/// AfxTrace in builds with assertions, else nothing; the arguments are not evaluated then.
#define TRACE(...) AfxTrace(__VA_ARGS__)
#else
#define ASSERT(expression) static_cast<void>(0)
#define VERIFY(expression) static_cast<void>(expression)
#define ASSERT_VALID(object) static_cast<void>(0)
#define TRACE(...) static_cast<void>(0)
#endif

/// @}
