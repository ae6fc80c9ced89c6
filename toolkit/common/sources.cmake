# Themes, paths, tool tips.
list(APPEND kytoolkit_common_SOURCES
    common/CXTPPaintManager.cpp
    common/CXTPSplitPath.cpp)
