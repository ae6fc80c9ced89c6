// CWinApp: the application object, with its profile and command line.
#pragma once

#include "CWinThread.h"

class CCommandLineInfo;

/// The application. A program defines one object of its own derived class at file scope; linking kyframework_main gives
/// it an entry point that calls InitInstance and Run. A program with an entry point of its own may construct one, too,
/// and use everything but Run.
///
/// Profile: after SetRegistryKey the entries are values under HKEY_CURRENT_USER\Software\company\application\section;
/// before, they stand in an INI file, m_pszProfileName, which is the program's name with ".INI" in the Windows folder
/// unless set to something else. A backslash in a section names a sub-section in both: a sub-key, or an INI section
/// whose name has the backslash.
class KY_FRAMEWORK_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    /// Null: the program's title resource, else its file name.
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine; ///< What follows the program's name on the command line.
    int m_nCmdShow = SW_SHOWNORMAL;

    // Each of these is null or a string from _tcsdup; the destructor frees them.
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr; ///< The program's file name without folder and extension.
    LPCTSTR m_pszRegistryKey = nullptr;
    LPCTSTR m_pszProfileName = nullptr;

    virtual BOOL InitApplication() { return TRUE; }
    int Run() override;
    BOOL OnIdle(LONG lCount) override;

    /// The profile moves to the registry: company name, or the string resource that holds it.
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);

    /// What is absent gives the default.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// On success `*ppData` is an array that the caller frees with delete[]. FALSE, null and 0 bytes when absent or
    /// of another kind.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    /// A null value removes the entry; a null entry removes the section. Its sub-sections are sections of their own
    /// and stay.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    /// The application's registry key, opened for the caller to close; null without SetRegistryKey or on failure.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(nullptr, lpszCursorName); }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }

    /// Feeds every word of the command line to `rCmdInfo`.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);

protected:
    /// Closes the main window as its close button would.
    afx_msg void OnAppExit();
    DECLARE_MESSAGE_MAP()
};

/// What a command line asks for.
class KY_FRAMEWORK_API CCommandLineInfo : public CObject {
public:
    enum ShellCommand { FileNew, FileOpen, FileNothing = -1 };

    ShellCommand m_nShellCommand = FileNew;
    CString m_strFileName; ///< The first word that is no option; it makes the command FileOpen.

    /// One word without its leading '-' or '/', which `bFlag` stands for. `bLast`: no more follow.
    virtual void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast);
};

/// The state of the module that runs. The pointer stays valid; its contents are those of the moment of the call.
struct AFX_MODULE_STATE {
    CWinApp* m_pCurrentWinApp;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
    LPCTSTR m_lpszCurrentAppName;
};
KY_FRAMEWORK_API AFX_MODULE_STATE* AfxGetModuleState();

KY_FRAMEWORK_API CWinApp* AfxGetApp();
KY_FRAMEWORK_API CWnd* AfxGetMainWnd();
KY_FRAMEWORK_API LPCTSTR AfxGetAppName();

/// A message box in the application's name; the answer is the pressed button's id.
KY_FRAMEWORK_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
KY_FRAMEWORK_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = UINT(-1));

/// Prepares the application object of a program that has an entry point of its own.
KY_FRAMEWORK_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// The whole run of the application: AfxWinInit, InitApplication, InitInstance, Run. Returns the exit code.
KY_FRAMEWORK_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Ends the message loop of the current thread.
KY_FRAMEWORK_API void AfxPostQuitMessage(int nExitCode);

/// Registers a window class and returns its name, the same one for the same arguments. The name stands in a buffer of
/// the thread until the next call. Throws CResourceException* when it cannot be registered.
KY_FRAMEWORK_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                             HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// RegisterClass, but a class that exists already counts as success.
KY_FRAMEWORK_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);

/// The window procedure of all windows that belong to a CWnd.
KY_FRAMEWORK_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
/// Makes the next window that the current thread creates belong to `pWnd`, from its first message on. Unhooking says
/// whether that happened.
KY_FRAMEWORK_API void AfxHookWindowCreate(CWnd* pWnd);
KY_FRAMEWORK_API BOOL AfxUnhookWindowCreate();
