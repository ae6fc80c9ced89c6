// Export.h - the one macro through which kyframework.dll exports its classes and functions.
#pragma once

#ifdef KY_FRAMEWORK_BUILD
#define KY_FRAMEWORK_API __declspec(dllexport)
#else
#define KY_FRAMEWORK_API __declspec(dllimport)
#endif
