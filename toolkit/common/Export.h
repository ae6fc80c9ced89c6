// The one macro through which the toolkit layer exports its classes.
#pragma once

#ifdef KY_TOOLKIT_BUILD
#define KY_TOOLKIT_API __declspec(dllexport)
#else
#define KY_TOOLKIT_API __declspec(dllimport)
#endif
