# Themes, paths, property exchange, tool tips.
list(APPEND kytoolkit_common_SOURCES
    common/BackBuffer.cpp
    common/CXTPColorManager.cpp
    common/CXTPPaintManager.cpp
    common/CXTPPropExchange.cpp
    common/CXTPPropExchangeXMLNode.cpp
    common/CXTPSplitPath.cpp
    common/CXTPToolTipContext.cpp
    common/TextStateGuard.cpp
    common/ToolTipWindow.cpp)
