// Resource and command identifiers of Column Profiler. Only preprocessor constants, for the resource script.
#ifndef PROFILER_RESOURCE_H
#define PROFILER_RESOURCE_H

#define IDR_MAINFRAME 128

#define ID_FILE_RELOAD 32771
#define ID_FILE_STOP 32774
#define ID_VIEW_DETAILS 32779
#define ID_VIEW_MESSAGES 32772
#define ID_HELP_KEYS 32773
#define ID_FILE_EXPORT_HTML 32775
#define ID_FILE_VIEW_IN_BROWSER 32776
#define ID_EDIT_COPY_GRID 32777
#define ID_VIEW_THEME_FIRST 32780
#define ID_VIEW_THEME_LAST 32791
#define ID_VIEW_ROW_HEIGHT_FIRST 32800
#define ID_VIEW_ROW_HEIGHT_LAST 32802

#endif
