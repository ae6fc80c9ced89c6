// The application object.
#pragma once

#include <afxwin.h>

/// Column Profiler: profiler [--ini FILE] [--language CODE] [--export OUT.csv|OUT.html] [FILE.csv]
///
/// With --export the program writes the file's statistics to OUT.csv, or the table with its plots as a page to OUT.html
/// (by the name's ending; .htm is as good), shows no window, and ends with exit code 0, or
/// with 1 after a sentence to the standard error stream.
///
/// The layout of the grid and the place of the window are kept in the registry, or in the INI file that --ini names.
/// Texts are in the user's language where there is a catalogue for it, or in the language that --language names.
class ProfilerApp : public CWinApp {
public:
    ProfilerApp();

    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    void UseIniFile(const CString& path);
    void ChooseLanguage(CString code);
    bool Export(const CString& from, const CString& to);

    bool m_failed = false;
};
