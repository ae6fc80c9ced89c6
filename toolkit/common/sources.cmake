# Themes, paths, tool tips.
list(APPEND kytoolkit_common_SOURCES
    common/BackBuffer.cpp
    common/CXTPColorManager.cpp
    common/CXTPPaintManager.cpp
    common/CXTPSplitPath.cpp
    common/CXTPToolTipContext.cpp
    common/TextStateGuard.cpp
    common/ToolTipWindow.cpp)
