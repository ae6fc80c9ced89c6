// TestApplication.h - an application object without a program, and plain windows, for tests of windows.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Constructed in a test it is the process's application object; it records what would otherwise show a message box.
class CTestApplication : public CWinApp {
public:
    CTestApplication() : CWinApp(_T("Framework Tests")) {}

    std::vector<std::wstring> m_messageBoxes;
    int m_answer = IDOK;
    std::vector<std::wstring> m_exceptions; ///< Messages of the exceptions that ended here.
    MSG m_exceptionMessage{};               ///< The message whose handler threw last.
    bool m_handleExceptionsAsDefault = false;

    int DoMessageBox(LPCTSTR text, UINT type, UINT id) override {
        m_messageBoxes.emplace_back(text);
        return m_answer;
    }

    LRESULT ProcessWndProcException(CException* exception, const MSG* message) override {
        TCHAR text[256] = {};
        exception->GetErrorMessage(text, 256);
        m_exceptions.emplace_back(text);
        m_exceptionMessage = *message;
        return m_handleExceptionsAsDefault ? CWinApp::ProcessWndProcException(exception, message) : 77;
    }
};

/// A hidden top-level window of the framework's own class.
class CTestWindow : public CWnd {
public:
    BOOL CreateTop(DWORD style = WS_OVERLAPPEDWINDOW, const CRect& rect = CRect(0, 0, 300, 200)) {
        return CreateEx(0, nullptr, _T("Test"), style, rect, nullptr, 0);
    }
    BOOL CreateChild(CWnd& parent, UINT id, const CRect& rect = CRect(0, 0, 100, 50)) {
        return Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, rect, &parent, id);
    }
};

/// A main window's end asks the message loop to end; the next test must not see that.
inline void ForgetQuit() {
    MSG message;
    while (::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
}

/// Tests that need an application object.
class WindowTest : public testing::Test {
protected:
    void TearDown() override { ForgetQuit(); }

    CTestApplication m_app;
};

/// Dispatches what is in the queue, without waiting.
inline void DrainMessages() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) && message.message != WM_QUIT)
        AfxPumpMessage();
}
