// A program without an entry point of its own: its exit code says whether kyframework_main ran it as it should.
#include <afxwin.h>

namespace {

class CEntryApp : public CWinApp {
public:
    CEntryApp() : CWinApp(_T("Entry")) {}

    BOOL InitInstance() override {
        CCommandLineInfo info;
        ParseCommandLine(info);
        const bool right = CString(m_lpCmdLine) == _T("-quiet \"some file.csv\"") &&
                           info.m_strFileName == _T("some file.csv") && m_hInstance == ::GetModuleHandle(nullptr);
        m_started = right;
        auto* frame = new CFrameWnd;
        if (!frame->Create(nullptr, _T("Entry")))
            return FALSE;
        m_pMainWnd = frame;
        frame->PostMessage(WM_CLOSE);
        return TRUE;
    }
    int ExitInstance() override { return m_started && m_pMainWnd == nullptr ? 0 : 1; }

private:
    bool m_started = false;
};

CEntryApp theApp;

} // namespace
