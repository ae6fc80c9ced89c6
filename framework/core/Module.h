// Module.h - the module handles from which the application's code and resources come.
#pragma once

#include "Platform.h"

/// The application's instance handle; the executable's unless it was set.
KY_FRAMEWORK_API HINSTANCE AfxGetInstanceHandle();
KY_FRAMEWORK_API void AfxSetInstanceHandle(HINSTANCE instance);

/// The module in which resources are looked up first; the executable unless it was set.
KY_FRAMEWORK_API HINSTANCE AfxGetResourceHandle();
KY_FRAMEWORK_API void AfxSetResourceHandle(HINSTANCE module);

/// Adds a module to those in which resources are looked up after the first; the latest added is asked first.
KY_FRAMEWORK_API void AfxAddResourceModule(HINSTANCE module);
KY_FRAMEWORK_API void AfxRemoveResourceModule(HINSTANCE module);

/// The module that holds the resource of that name and type: the resource module, then the added ones. When none has
/// it, the resource module, so that loading from it fails in the usual way.
KY_FRAMEWORK_API HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type);

/// Copies a string resource into the buffer of `bufferLength` characters; the number copied, 0 when there is none.
KY_FRAMEWORK_API int AfxLoadString(UINT id, LPTSTR buffer, UINT bufferLength = 256);
