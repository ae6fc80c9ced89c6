// A window of the framework alone.
#include <afxwin.h>

class HelloWindow : public CFrameWnd {
    void OnPaint() {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.DrawText(_T("Hello"), &client, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HelloWindow, CFrameWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

class HelloApp : public CWinApp {
    BOOL InitInstance() override {
        auto* window = new HelloWindow; // deletes itself when its window is gone
        m_pMainWnd = window;
        if (!window->Create(nullptr, _T("Framework alone"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 420, 240)))
            return FALSE;
        window->ShowWindow(m_nCmdShow);
        return TRUE;
    }
} theApp;
