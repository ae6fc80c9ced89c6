/// @file
/// The one macro through which kyframework.dll exports its classes and functions.
#pragma once

/// @def KY_FRAMEWORK_API
/// Before a class or function: it is in kyframework.dll, exported when that is built and imported by everybody else.
#ifdef KY_FRAMEWORK_BUILD
#define KY_FRAMEWORK_API __declspec(dllexport)
#else
#define KY_FRAMEWORK_API __declspec(dllimport)
#endif
