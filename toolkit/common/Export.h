/// @file
/// The one macro through which the toolkit layer exports its classes.
#pragma once

/// Before a class or function: it is in kytoolkit.dll. Programs import it.
#ifdef KY_TOOLKIT_BUILD
#define KY_TOOLKIT_API __declspec(dllexport)
#else
#define KY_TOOLKIT_API __declspec(dllimport)
#endif
