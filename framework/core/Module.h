/// @file
/// The module handles from which the application's code and resources come.
#pragma once

#include "Platform.h"

/// @addtogroup framework_application
/// @{

/// The application's instance handle; the executable's unless AfxSetInstanceHandle or AfxWinInit set it.
KY_FRAMEWORK_API HINSTANCE AfxGetInstanceHandle();
/// Sets what AfxGetInstanceHandle gives; null goes back to the executable.
KY_FRAMEWORK_API void AfxSetInstanceHandle(HINSTANCE instance);

/// The module in which resources are looked up first; the instance handle unless it was set.
KY_FRAMEWORK_API HINSTANCE AfxGetResourceHandle();
/// Sets what AfxGetResourceHandle gives, for example a DLL with translated resources; null goes back to the instance
/// handle. The module must stay loaded.
KY_FRAMEWORK_API void AfxSetResourceHandle(HINSTANCE module);

/// Adds a module to those in which resources are looked up after the first; the latest added is asked first. The module
/// must stay loaded until AfxRemoveResourceModule.
KY_FRAMEWORK_API void AfxAddResourceModule(HINSTANCE module);
/// Takes the module out of the list; one that is not in it is ignored.
KY_FRAMEWORK_API void AfxRemoveResourceModule(HINSTANCE module);

/// The module that holds the resource of that name and type: the resource module, then the added ones. When none has
/// it, the resource module, so that loading from it fails in the usual way.
KY_FRAMEWORK_API HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type);

/// Copies a string resource into the buffer of `bufferLength` characters, the terminator included; a longer one is cut.
/// Returns the number of characters copied, 0 and an empty text when no module has the string.
KY_FRAMEWORK_API int AfxLoadString(UINT id, LPTSTR buffer, UINT bufferLength = 256);

/// @}
