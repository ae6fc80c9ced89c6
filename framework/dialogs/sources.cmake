# Dialogs and the exchange of data with their controls.
list(APPEND kyframework_dialogs_SOURCES
    dialogs/CDataExchange.cpp
    dialogs/CDialog.cpp
    dialogs/CFileDialog.cpp)
