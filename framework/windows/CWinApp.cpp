// CWinApp.cpp - the application object and the run of the program.
#include <afxwin.h>

#include "WindowState.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

namespace {

CWinApp* g_app = nullptr;

/// The program's file name without folder and extension.
CString ProgramName() {
    TCHAR path[MAX_PATH];
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    CString name(path);
    name = name.Mid(name.ReverseFind(_T('\\')) + 1);
    const int dot = name.ReverseFind(_T('.'));
    return dot > 0 ? name.Left(dot) : name;
}

void Free(LPCTSTR& text) {
    std::free(const_cast<LPTSTR>(text));
    text = nullptr;
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_hInstance(AfxGetInstanceHandle()), m_lpCmdLine(const_cast<LPTSTR>(_T(""))) {
    const CString program = ProgramName();
    CString title;
    if (lpszAppName == nullptr && !title.LoadString(AFX_IDS_APP_TITLE))
        title = program;
    m_pszExeName = _tcsdup(program);
    m_pszAppName = _tcsdup(lpszAppName != nullptr ? lpszAppName : title.GetString());
    m_pszProfileName = _tcsdup(program + _T(".INI"));
    g_app = this;
}

CWinApp::~CWinApp() {
    if (g_app == this)
        g_app = nullptr;
    Free(m_pszAppName);
    Free(m_pszExeName);
    Free(m_pszRegistryKey);
    Free(m_pszProfileName);
}

int CWinApp::Run() {
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0); // nothing would ever end the loop
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG lCount) { return CWinThread::OnIdle(lCount); }

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

// Command line --------------------------------------------------------------------------------------------------------

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo) {
    int count = 0;
    const LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (words == nullptr)
        return;
    for (int i = 1; i < count; ++i) {
        LPCTSTR word = words[i];
        const bool isOption = word[0] == _T('-') || word[0] == _T('/');
        if (isOption)
            ++word;
        rCmdInfo.ParseParam(word, isOption, i + 1 == count);
    }
    ::LocalFree(const_cast<LPWSTR*>(words));
}

void CCommandLineInfo::ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast) {
    if (!bFlag && m_strFileName.IsEmpty())
        m_strFileName = pszParam;
    if (bLast && !m_strFileName.IsEmpty() && m_nShellCommand == FileNew)
        m_nShellCommand = FileOpen;
}

// The program ---------------------------------------------------------------------------------------------------------

AFX_MODULE_STATE* AfxGetModuleState() {
    static AFX_MODULE_STATE state;
    state = {g_app, AfxGetInstanceHandle(), AfxGetResourceHandle(), AfxGetAppName()};
    return &state;
}

CWinApp* AfxGetApp() { return g_app; }

CWnd* AfxGetMainWnd() {
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

LPCTSTR AfxGetAppName() { return g_app != nullptr && g_app->m_pszAppName != nullptr ? g_app->m_pszAppName : _T(""); }

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinThread* thread = AfxGetThread())
        return thread->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBox(::GetActiveWindow(), lpszText, AfxGetAppName(), nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    if (!text.LoadString(nIDPrompt))
        TRACE(_T("No string resource %u for a message box.\n"), nIDPrompt);
    return AfxMessageBox(text.GetString(), nType, nIDHelp == UINT(-1) ? nIDPrompt : nIDHelp);
}

void AfxPostQuitMessage(int nExitCode) { ::PostQuitMessage(nExitCode); }

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    AfxSetInstanceHandle(hInstance);
    AfxSetResourceHandle(hInstance);
    if (CWinApp* app = AfxGetApp()) {
        app->m_hInstance = hInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
    }
    return TRUE;
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    CWinApp* const app = AfxGetApp();
    if (app == nullptr || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) || !app->InitApplication())
        return -1;
    if (app->InitInstance())
        return app->Run();
    if (app->m_pMainWnd != nullptr)
        app->m_pMainWnd->DestroyWindow();
    return app->ExitInstance();
}
