// The application object of the tests of Column Profiler's windows, and their entry point.
#include "ProfilerTestApp.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

ProfilerTestApp theApplication;

CString TemporaryFolder() {
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPath(MAX_PATH, folder);
    return folder;
}

std::wstring TextOf(const CWnd& window) {
    CString text;
    window.GetWindowText(text);
    return text.GetString();
}

} // namespace

ProfilerTestApp::ProfilerTestApp() : CWinApp(L"Column Profiler Tests") {}

ProfilerTestApp& ProfilerTestApp::Get() { return theApplication; }

int ProfilerTestApp::DoMessageBox(LPCTSTR text, UINT, UINT) {
    m_boxes.push_back(text);
    return IDOK;
}

void ProfilerTestApp::EmptyProfile() {
    const CString path = TemporaryFolder() + L"profiler_tests.ini";
    ::DeleteFile(path);
    std::free(const_cast<LPTSTR>(m_pszProfileName));
    m_pszProfileName = _wcsdup(path);
}

void ProfilerFrameTest::SetUp() {
    ProfilerTestApp::Get().EmptyProfile();
    ProfilerTestApp::Get().m_boxes.clear();
    CreateFrame();
}

void ProfilerFrameTest::TearDown() {
    Close();
    for (const CString& file : m_files)
        ::DeleteFile(file);
    ProfilerTestApp::Get().EmptyProfile();
}

void ProfilerFrameTest::CreateFrame() {
    m_frame = new ProfilerFrame; // deleted with its window
    ProfilerTestApp::Get().m_pMainWnd = m_frame;
    ASSERT_TRUE(m_frame->CreateFrame());
    m_frame->ShowWindow(SW_SHOWNORMAL);
}

void ProfilerFrameTest::Close() {
    m_frame->SendMessage(WM_CLOSE);
    MSG message; // the end of the main window asks the program to end
    while (::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
}

CXTPReportControl& ProfilerFrameTest::Grid() {
    return dynamic_cast<CXTPReportControl&>(*m_frame->GetDlgItem(AFX_IDW_PANE_FIRST));
}

std::wstring ProfilerFrameTest::Status() { return TextOf(*m_frame->GetMessageBar()); }

std::wstring ProfilerFrameTest::Title() { return TextOf(*m_frame); }

std::wstring ProfilerFrameTest::Cell(int row, int item) {
    return Grid().GetRows()->GetAt(row)->GetRecord()->GetItem(item)->GetCaption(nullptr).GetString();
}

int ProfilerFrameTest::Rows() { return Grid().GetRows()->GetCount(); }

void ProfilerFrameTest::Open(const CString& path) {
    m_frame->OpenPath(path);
    WaitUntilRead();
}

void ProfilerFrameTest::OpenShipped(const wchar_t* name) {
    Open((std::filesystem::path(PROFILER_DATA_DIR) / name).c_str());
}

void ProfilerFrameTest::WaitUntilRead() {
    while (m_frame->IsReading())
        AfxPumpMessage();
}

void ProfilerFrameTest::HandleMessagesUntil(UINT kind) {
    do {
        AfxPumpMessage();
    } while (AfxGetCurrentMessage()->message != kind);
}

void ProfilerFrameTest::HandleMessages() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

bool ProfilerFrameTest::PressEscape() {
    MSG message{m_frame->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    return m_frame->PreTranslateMessage(&message) != FALSE;
}

CString ProfilerFrameTest::Write(const wchar_t* name, const std::string& bytes) {
    const CString path = TemporaryFolder() + name;
    std::ofstream(std::filesystem::path(path.GetString()), std::ios::binary) << bytes;
    m_files.push_back(path);
    return path;
}

UINT ProfilerFrameTest::MenuState(int popup, UINT id) {
    CMenu* menu = m_frame->GetMenu()->GetSubMenu(popup);
    m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->GetSafeHmenu()), MAKELPARAM(popup, FALSE));
    for (int i = 0; i < menu->GetMenuItemCount(); ++i) {
        if (CMenu* sub = menu->GetSubMenu(i))
            m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(sub->GetSafeHmenu()), MAKELPARAM(i, FALSE));
    }
    return menu->GetMenuState(id, MF_BYCOMMAND);
}

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    return RUN_ALL_TESTS();
}
