/// @file
/// CWinApp: the application object, with its profile and command line.
#pragma once

#include "CWinThread.h"

class CCommandLineInfo;

/// The application. A program defines one object of its own derived class at file scope; linking kyframework_main gives
/// it an entry point that calls InitInstance and Run. A program with an entry point of its own may construct one, too,
/// and use everything but Run.
///
/// Profile: after SetRegistryKey the entries are values under
/// `HKEY_CURRENT_USER\Software\company\application\section`; before, they stand in an INI file, m_pszProfileName,
/// which is the program's name with ".INI" in the Windows folder unless set to something else. A backslash in a section
/// names a sub-section in both: a sub-key, or an INI section whose name has the backslash.
/// @ingroup framework_application
class KY_FRAMEWORK_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    /// `lpszAppName`, which is copied, is the title of message boxes and the name in the registry. Null: the program's
    /// title resource (AFX_IDS_APP_TITLE), else its file name.
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override; ///< AfxGetApp gives null afterwards.

    HINSTANCE m_hInstance;          ///< The program's module.
    LPTSTR m_lpCmdLine;             ///< What follows the program's name on the command line.
    int m_nCmdShow = SW_SHOWNORMAL; ///< How the main window shall be shown first, for CWnd::ShowWindow.

    // Each of these is null or a string from _tcsdup; the destructor frees them.

    /// The title of message boxes and the name in the registry. This and the following texts are null or from _tcsdup;
    /// the destructor frees them.
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;     ///< The program's file name without folder and extension.
    LPCTSTR m_pszRegistryKey = nullptr; ///< The company; null while the profile is an INI file.
    LPCTSTR m_pszProfileName = nullptr; ///< The INI file, or the application's name in the registry.

    /// Called before InitInstance; FALSE ends the program with exit code -1.
    virtual BOOL InitApplication() { return TRUE; }
    /// As CWinThread::Run. Without a main window the loop ends at once.
    int Run() override;
    /// As CWinThread::OnIdle.
    BOOL OnIdle(LONG lCount) override;

    /** @{ */
    /// The profile moves to the registry, under the company's name, given as text or as the string resource that holds
    /// it (without which nothing happens). Call it before the first profile entry is read.
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    /** @} */

    /// What is absent gives the default.
    /// A number of the profile; the default when it is absent or of another kind.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    /// A text of the profile; the default (null: an empty text) when it is absent or of another kind.
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// On success `*ppData` is an array that the caller frees with delete[]. FALSE, null and 0 bytes when absent or
    /// of another kind.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    /// Stores a number, making the section where needed. FALSE on failure.
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    /// Stores a text, making the section where needed. A null value removes the entry; a null entry removes the
    /// section. Its sub-sections are sections of their own and stay. FALSE on failure.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// Stores bytes: a binary value in the registry, letters in an INI file. FALSE on failure.
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    /// The application's registry key, made where needed and opened for the caller to close; null without
    /// SetRegistryKey or on failure.
    HKEY GetAppRegistryKey();
    /// As GetAppRegistryKey, for a section.
    HKEY GetSectionKey(LPCTSTR lpszSection);

    /** @{ */
    /// A cursor resource from the application's resource modules, which the system frees; null when there is none.
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
    /** @} */
    /// One of the system's own cursors, by its IDC_ name.
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(nullptr, lpszCursorName); }
    /** @{ */
    /// An icon resource, in the system's size of icons, from the application's resource modules. The system frees it;
    /// null when there is none.
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
    /** @} */
    /// One of the system's own icons, by its IDI_ name.
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }

    /// Feeds every word of the command line but the program's own name to CCommandLineInfo::ParseParam.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);

protected:
    /// ID_APP_EXIT: closes the main window as its close button would.
    afx_msg void OnAppExit();
    DECLARE_MESSAGE_MAP()
};

/// What a command line asks for. Derive from it to understand options; this class knows none.
/// @ingroup framework_application
class KY_FRAMEWORK_API CCommandLineInfo : public CObject {
public:
    /// What the program shall begin with.
    enum ShellCommand {
        FileNew,         ///< An empty document.
        FileOpen,        ///< The document m_strFileName.
        FileNothing = -1 ///< None.
    };

    ShellCommand m_nShellCommand = FileNew; ///< FileOpen once there is a file name.
    CString m_strFileName;                  ///< The first word that is no option; it makes the command FileOpen.

    /// One word without its leading '-' or '/', which `bFlag` stands for. `bLast`: no more follow.
    virtual void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast);
};

/// The state of the program as AfxGetModuleState finds it. The pointer stays valid; its contents are those of the
/// moment of the call.
/// @ingroup framework_application
struct AFX_MODULE_STATE {
    CWinApp* m_pCurrentWinApp;          ///< As AfxGetApp.
    HINSTANCE m_hCurrentInstanceHandle; ///< As AfxGetInstanceHandle.
    HINSTANCE m_hCurrentResourceHandle; ///< As AfxGetResourceHandle.
    LPCTSTR m_lpszCurrentAppName;       ///< As AfxGetAppName.
};
/// @addtogroup framework_application
/// @{

/// Never null. For the user-interface thread.
KY_FRAMEWORK_API AFX_MODULE_STATE* AfxGetModuleState();

/// The application object made last; null before and after its life.
KY_FRAMEWORK_API CWinApp* AfxGetApp();
/// The current thread's main window; null when it has none.
KY_FRAMEWORK_API CWnd* AfxGetMainWnd();
/// The application's name; an empty text without an application object.
KY_FRAMEWORK_API LPCTSTR AfxGetAppName();

/// A message box in the application's name, with an exclamation mark unless `nType` names another picture; the answer
/// is the pressed button's id. The current thread's CWinThread::DoMessageBox shows it.
KY_FRAMEWORK_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// As above with a string resource; an empty text when there is none.
KY_FRAMEWORK_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = UINT(-1));

/// Prepares the application object of a program that has an entry point of its own: instance, command line, first show
/// state. Always TRUE.
KY_FRAMEWORK_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// The whole run of the application: AfxWinInit, InitApplication, InitInstance, Run. Returns the exit code.
KY_FRAMEWORK_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Ends the message loop of the current thread.
KY_FRAMEWORK_API void AfxPostQuitMessage(int nExitCode);

/// Registers a window class and returns its name, the same one for the same arguments. The name stands in a buffer of
/// the thread until the next call. Throws CResourceException* when it cannot be registered.
KY_FRAMEWORK_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                             HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// RegisterClass, but a class of that name that exists already counts as success. FALSE when the system refuses.
KY_FRAMEWORK_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);

/// The window procedure of all windows that belong to a CWnd. For a window without a permanent object it does what the
/// system does by default.
KY_FRAMEWORK_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
/// Makes the next window that the current thread creates belong to `pWnd`, from its first message on. CWnd::CreateEx
/// does so by itself. Throws CMemoryException* when it cannot be arranged.
KY_FRAMEWORK_API void AfxHookWindowCreate(CWnd* pWnd);
/// Ends what AfxHookWindowCreate began. FALSE when no window came into being; the object then is without one.
KY_FRAMEWORK_API BOOL AfxUnhookWindowCreate();

/// @}
