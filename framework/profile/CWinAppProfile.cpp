// CWinAppProfile.cpp - the application object's profile, over whichever store it is set to.
#include <afxwin.h>

#include "ProfileStore.h"

namespace {

CString RegistryRoot(const CWinApp& app) {
    return CString(_T("Software\\")) + app.m_pszRegistryKey + _T('\\') + app.m_pszProfileName;
}

std::unique_ptr<ProfileStore> StoreOf(const CWinApp& app) {
    if (app.m_pszRegistryKey != nullptr)
        return MakeRegistryStore(RegistryRoot(app));
    return MakeIniStore(app.m_pszProfileName);
}

void Assign(LPCTSTR& member, LPCTSTR text) {
    const LPCTSTR copy = _tcsdup(text);
    std::free(const_cast<LPTSTR>(member));
    member = copy;
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    Assign(m_pszRegistryKey, lpszRegistryKey);
    Assign(m_pszProfileName, m_pszAppName);
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey) {
    CString company;
    if (company.LoadString(nIDRegistryKey))
        SetRegistryKey(company);
}

HKEY CWinApp::GetAppRegistryKey() {
    HKEY key = nullptr;
    if (m_pszRegistryKey != nullptr)
        ::RegCreateKeyEx(HKEY_CURRENT_USER, RegistryRoot(*this), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key,
                         nullptr);
    return key;
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection) {
    const HKEY app = GetAppRegistryKey();
    if (app == nullptr)
        return nullptr;
    HKEY key = nullptr;
    ::RegCreateKeyEx(app, lpszSection, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
    ::RegCloseKey(app);
    return key;
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    return StoreOf(*this)->ReadInt(lpszSection, lpszEntry).value_or(static_cast<UINT>(nDefault));
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    if (auto text = StoreOf(*this)->ReadString(lpszSection, lpszEntry))
        return *text;
    return lpszDefault == nullptr ? CString() : CString(lpszDefault);
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    const auto bytes = StoreOf(*this)->ReadBytes(lpszSection, lpszEntry);
    if (!bytes)
        return FALSE;
    *ppData = new BYTE[bytes->size()];
    *pBytes = static_cast<UINT>(bytes->size());
    std::copy(bytes->begin(), bytes->end(), *ppData);
    return TRUE;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    return StoreOf(*this)->WriteInt(lpszSection, lpszEntry, nValue);
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    const auto store = StoreOf(*this);
    if (lpszEntry == nullptr)
        return store->RemoveSection(lpszSection);
    if (lpszValue == nullptr)
        return store->RemoveEntry(lpszSection, lpszEntry);
    return store->WriteString(lpszSection, lpszEntry, lpszValue);
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    return StoreOf(*this)->WriteBytes(lpszSection, lpszEntry, pData, nBytes);
}
