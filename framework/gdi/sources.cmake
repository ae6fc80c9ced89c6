# Device contexts and GDI objects.
list(APPEND kyframework_gdi_SOURCES
    gdi/CBitmap.cpp
    gdi/CBrush.cpp
    gdi/CDC.cpp
    gdi/CDCDrawing.cpp
    gdi/CFont.cpp
    gdi/CGdiObject.cpp
    gdi/CPalette.cpp
    gdi/CPen.cpp
    gdi/CRgn.cpp
    gdi/SelectGuard.cpp
    gdi/WindowDCs.cpp)
