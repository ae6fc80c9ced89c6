// The one macro through which the library exports its classes and functions.
#pragma once

#ifdef KYUI_BUILD
#define KYUI_API __declspec(dllexport)
#else
#define KYUI_API __declspec(dllimport)
#endif
