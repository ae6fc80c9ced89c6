// Property exchange: one piece of an object's code both writes its properties and reads them.
#include "CXTPPropExchange.h"

BOOL CXTPPropExchange::OnBeforeExchange() { return TRUE; }

BOOL PX_String(CXTPPropExchange* pPX, LPCTSTR pszPropName, CString& strValue) {
    return pPX->ExchangeProp(pszPropName, VT_BSTR, &strValue);
}

BOOL PX_String(CXTPPropExchange* pPX, LPCTSTR pszPropName, CString& strValue, LPCTSTR strDefault) {
    const CString strFallback(strDefault);
    return pPX->ExchangeProp(pszPropName, VT_BSTR, &strValue, &strFallback);
}

BOOL PX_DWord(CXTPPropExchange* pPX, LPCTSTR pszPropName, DWORD& dwValue) {
    return pPX->ExchangeProp(pszPropName, VT_UI4, &dwValue);
}

BOOL PX_DWord(CXTPPropExchange* pPX, LPCTSTR pszPropName, DWORD& dwValue, DWORD dwDefault) {
    return pPX->ExchangeProp(pszPropName, VT_UI4, &dwValue, &dwDefault);
}

BOOL PX_Int(CXTPPropExchange* pPX, LPCTSTR pszPropName, int& nValue) {
    return pPX->ExchangeProp(pszPropName, VT_I4, &nValue);
}

BOOL PX_Int(CXTPPropExchange* pPX, LPCTSTR pszPropName, int& nValue, int nDefault) {
    return pPX->ExchangeProp(pszPropName, VT_I4, &nValue, &nDefault);
}

BOOL PX_Bool(CXTPPropExchange* pPX, LPCTSTR pszPropName, BOOL& bValue) {
    return pPX->ExchangeProp(pszPropName, VT_BOOL, &bValue);
}

BOOL PX_Bool(CXTPPropExchange* pPX, LPCTSTR pszPropName, BOOL& bValue, BOOL bDefault) {
    return pPX->ExchangeProp(pszPropName, VT_BOOL, &bValue, &bDefault);
}

BOOL PX_Float(CXTPPropExchange* pPX, LPCTSTR pszPropName, float& fValue) {
    return pPX->ExchangeProp(pszPropName, VT_R4, &fValue);
}

BOOL PX_Float(CXTPPropExchange* pPX, LPCTSTR pszPropName, float& fValue, float fDefault) {
    return pPX->ExchangeProp(pszPropName, VT_R4, &fValue, &fDefault);
}

BOOL PX_Double(CXTPPropExchange* pPX, LPCTSTR pszPropName, double& dValue) {
    return pPX->ExchangeProp(pszPropName, VT_R8, &dValue);
}

BOOL PX_Double(CXTPPropExchange* pPX, LPCTSTR pszPropName, double& dValue, double dDefault) {
    return pPX->ExchangeProp(pszPropName, VT_R8, &dValue, &dDefault);
}
