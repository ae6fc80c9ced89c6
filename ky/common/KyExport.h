/// @file
/// The one macro through which the library exports its classes and functions.
#pragma once

/// Before a class or function: it is in kyui.dll. Programs import it.
#ifdef KYUI_BUILD
#define KYUI_API __declspec(dllexport)
#else
#define KYUI_API __declspec(dllimport)
#endif
