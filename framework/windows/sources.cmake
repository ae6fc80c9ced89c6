# Windows, menus, message maps, the application object.
list(APPEND kyframework_windows_SOURCES
    windows/AfxWndProc.cpp
    windows/CCmdTarget.cpp
    windows/CCmdUI.cpp
    windows/CMenu.cpp
    windows/CWinApp.cpp
    windows/CWinThread.cpp
    windows/CWnd.cpp
    windows/CWndMessages.cpp
    windows/CWndModal.cpp
    windows/CWndPlacement.cpp
    windows/WindowDpi.cpp
    windows/WindowState.cpp)
