// The application object.
#pragma once

#include <afxwin.h>

/// Column Profiler: profiler [--ini FILE] [--language CODE] [FILE.csv]
///
/// The layout of the grid and the place of the window are kept in the registry, or in the INI file that --ini names.
/// Texts are in the user's language where there is a catalogue for it, or in the language that --language names.
class ProfilerApp : public CWinApp {
public:
    ProfilerApp();

    BOOL InitInstance() override;

private:
    void UseIniFile(const CString& path);
    void ChooseLanguage(CString code);
};
