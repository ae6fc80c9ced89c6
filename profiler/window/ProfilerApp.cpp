// The application object: command line, profile, language, main window.
#include "window/ProfilerApp.h"

#include "common/Translation.h"
#include "statistics/ProfileTable.h"
#include "window/HtmlExport.h"
#include "window/ProfilerFrame.h"
#include "window/WideText.h"

#include <filesystem>
#include <fstream>

namespace {

ProfilerApp theApplication;

/// The options of the command line. An option is told by its leading dash, its value is the next word.
class CommandLine : public CCommandLineInfo {
public:
    CString m_iniFile;
    CString m_language;
    CString m_export;

    void ParseParam(LPCTSTR word, BOOL flag, BOOL last) override {
        if (m_awaited != nullptr) {
            *m_awaited = flag ? L"/" + CString(word) : CString(word); // a path may begin like an option
            m_awaited = nullptr;
            return;
        }
        // One dash has been taken off already.
        const CString option = flag ? word : L"";
        if (option == L"-ini")
            m_awaited = &m_iniFile;
        else if (option == L"-language")
            m_awaited = &m_language;
        else if (option == L"-export")
            m_awaited = &m_export;
        else
            CCommandLineInfo::ParseParam(word, flag, last);
    }

private:
    CString* m_awaited = nullptr;
};

/// The folder of the program.
std::filesystem::path ProgramFolder() {
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileName(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return std::filesystem::path(path).parent_path();
}

CString UserLanguage() {
    wchar_t code[16] = L"";
    ::GetLocaleInfo(MAKELCID(::GetUserDefaultUILanguage(), SORT_DEFAULT), LOCALE_SISO639LANGNAME, code,
                    static_cast<int>(std::size(code)));
    return code;
}

/// To the standard error stream: a program without a console has one when it was redirected.
void TellError(const CString& sentence) {
    const std::string line = ToUtf8(sentence) + "\r\n";
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

bool IsHtml(const std::filesystem::path& path) {
    const CString extension(path.extension().c_str());
    return extension.CompareNoCase(L".html") == 0 || extension.CompareNoCase(L".htm") == 0;
}

bool WriteTable(const ColumnFile& from, const std::filesystem::path& path) {
    std::ofstream file(path, std::ios::binary);
    file << statistics::ProfileTable(from.profiles);
    file.close();
    return !file.fail();
}

/// Plots are drawn by the grid, in a window that is never shown.
bool WritePage(const ColumnFile& from, const std::filesystem::path& path) {
    CWnd owner;
    if (!owner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 0, 0), nullptr, 0))
        return false;
    bool isWritten = false;
    {
        ProfileGrid grid;
        if (grid.CreateGrid(&owner, AFX_IDW_PANE_FIRST)) {
            grid.Show(&from);
            isWritten = ExportHtml(grid, from.path.filename().c_str(), path);
        }
    }
    owner.DestroyWindow();
    return isWritten;
}

} // namespace

ProfilerApp::ProfilerApp() : CWinApp(L"Column Profiler") {}

BOOL ProfilerApp::InitInstance() {
    CommandLine commandLine;
    ParseCommandLine(commandLine);
    if (commandLine.m_iniFile.IsEmpty())
        SetRegistryKey(L"Ky Controls");
    else
        UseIniFile(commandLine.m_iniFile);
    ChooseLanguage(commandLine.m_language);
    if (!commandLine.m_export.IsEmpty()) {
        m_failed = !Export(commandLine.m_strFileName, commandLine.m_export);
        return FALSE;
    }

    auto* frame = new ProfilerFrame; // deleted with its window
    m_pMainWnd = frame;
    if (!frame->CreateFrame())
        return FALSE;
    frame->ShowWindow(m_nCmdShow);
    frame->UpdateWindow();
    if (!commandLine.m_strFileName.IsEmpty())
        frame->OpenPath(commandLine.m_strFileName);
    return TRUE;
}

int ProfilerApp::ExitInstance() {
    const int code = CWinApp::ExitInstance();
    return m_failed ? 1 : code;
}

bool ProfilerApp::Export(const CString& from, const CString& to) {
    if (from.IsEmpty()) {
        TellError(Translate("There is no file to profile: profiler --export OUT.html FILE.csv"));
        return false;
    }
    const ColumnFileResult result = ReadColumnFile(from.GetString(), ToUtf8(Translate("Column %1%")));
    if (result.file == nullptr) {
        TellError(Sentence(*result.error));
        return false;
    }
    for (const csv::Message& warning : result.file->warnings)
        TellError(Sentence(warning));
    const std::filesystem::path path(to.GetString());
    const bool isWritten = IsHtml(path) ? WritePage(*result.file, path) : WriteTable(*result.file, path);
    if (!isWritten)
        TellError(TranslateFormat("Export", "%1% cannot be written.", to.GetString()));
    return isWritten;
}

void ProfilerApp::UseIniFile(const CString& path) {
    // The system looks for a relative name in its own folder, not in the current one.
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path.GetString(), error);
    std::free(const_cast<LPTSTR>(m_pszProfileName));
    m_pszProfileName = _wcsdup(error ? path.GetString() : absolute.c_str());
}

void ProfilerApp::ChooseLanguage(CString code) {
    if (code.IsEmpty())
        code = UserLanguage();
    SetLanguage(code == L"en" ? nullptr : code.GetString(), (ProgramFolder() / L"locale").c_str());
}
