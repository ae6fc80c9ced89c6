/// @file
/// The global paint manager: which theme the toolkit's components follow.
#pragma once

#include "Export.h"
#include "XTPThemes.h"

#include <afxwin.h>

/// One instance per process, made on first use; `SetTheme` replaces it.
/// @ingroup toolkit_common
class KY_TOOLKIT_API CXTPPaintManager : public CCmdTarget {
public:
    /// The instance in force; null until the first `SetTheme`.
    static CXTPPaintManager* s_pInstance;
    /// Switches the theme of the process, making the instance when there is none.
    static void SetTheme(XTPPaintTheme theme);

    /// The theme that `SetTheme` was given, also when it is none of the enumerators.
    XTPPaintTheme GetCurrentTheme() const { return m_theme; }
    virtual ~CXTPPaintManager() override;

protected:
    /// Instances are made by `SetTheme` alone.
    explicit CXTPPaintManager(XTPPaintTheme theme) : m_theme(theme) {}

private:
    XTPPaintTheme m_theme;
};

/// The instance, made with theme 0 when there is none.
/// @ingroup toolkit_common
KY_TOOLKIT_API CXTPPaintManager* XTPPaintManager();
