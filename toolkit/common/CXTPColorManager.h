/// @file
/// The colours that controls share, whatever they are.
#pragma once

#include "Export.h"

#include <windows.h>

/// Answers with the user's system colours. There is one for the whole process: `XTPColorManager()`.
/// @ingroup toolkit_common
class KY_TOOLKIT_API CXTPColorManager {
public:
    CXTPColorManager(const CXTPColorManager&) = delete;
    CXTPColorManager& operator=(const CXTPColorManager&) = delete;

    /// The colour of a COLOR_ number as it is now (COLORREF 0x00BBGGRR); black for a number that the system does not
    /// know.
    COLORREF GetColor(int nIndex) const;

private:
    CXTPColorManager() = default;
    friend KY_TOOLKIT_API CXTPColorManager* XTPColorManager();
};

/// The process's colour manager; never null.
/// @ingroup toolkit_common
KY_TOOLKIT_API CXTPColorManager* XTPColorManager();
