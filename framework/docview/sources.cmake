# Frames, views and control bars.
list(APPEND kyframework_docview_SOURCES
    docview/CControlBar.cpp
    docview/CFrameWnd.cpp
    docview/CMDIFrameWnd.cpp
    docview/CStatusBar.cpp
    docview/CView.cpp)
