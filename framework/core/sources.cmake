# Objects, strings, geometry, exceptions, files and archives.
list(APPEND kyframework_core_SOURCES
    core/ArchiveObjects.cpp
    core/CArchive.cpp
    core/CArchiveException.cpp
    core/CException.cpp
    core/CFile.cpp
    core/CFileException.cpp
    core/CMemFile.cpp
    core/CObject.cpp
    core/COleException.cpp
    core/CString.cpp
    core/CStringFormat.cpp
    core/Diagnostics.cpp
    core/Geometry.cpp
    core/HandleCounts.cpp
    core/Module.cpp)
