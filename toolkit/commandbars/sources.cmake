# Menus and the frame that has command bars.
list(APPEND kytoolkit_commandbars_SOURCES
    commandbars/CXTPCommandBars.cpp
    commandbars/CXTPMDIFrameWnd.cpp)
