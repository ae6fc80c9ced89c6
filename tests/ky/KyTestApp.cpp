// The application object of the library's tests and the entry point of the test program.
#include "KyTestApp.h"

#include <cstdlib>
#include <cwchar>

namespace {

constexpr const wchar_t* company = L"Ky Controls Tests";

KyTestApp theApp;

LPCTSTR Duplicate(const CString& text) { return _wcsdup(text.GetString()); }

void Release(LPCTSTR& text) {
    std::free(const_cast<LPTSTR>(text));
    text = nullptr;
}

} // namespace

KyTestApp::KyTestApp() : CWinApp(_T("KyTest")) {}

KyTestApp& KyTestApp::Get() { return theApp; }

void KyTestApp::UseEmptyRegistry() {
    SetRegistryKey(company);
    RemoveProfile();
}

void KyTestApp::UseEmptyIniFile() {
    TCHAR folder[MAX_PATH];
    GetTempPath(MAX_PATH, folder);
    Release(m_pszRegistryKey);
    Release(m_pszProfileName);
    m_pszProfileName = Duplicate(CString(folder) + _T("ky_tests.ini"));
    RemoveProfile();
}

void KyTestApp::RemoveProfile() {
    if (m_pszRegistryKey)
        RegDeleteTree(HKEY_CURRENT_USER, CString(_T("Software\\")) + company);
    else
        DeleteFile(m_pszProfileName);
}

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    return RUN_ALL_TESTS();
}
