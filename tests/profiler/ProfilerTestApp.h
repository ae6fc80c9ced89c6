// The application object of the tests of Column Profiler's windows.
#pragma once

#include "window/ProfilerFrame.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// A host whose profile is an INI file in the temporary folder, and which keeps message boxes instead of showing them.
class ProfilerTestApp : public CWinApp {
public:
    ProfilerTestApp();
    static ProfilerTestApp& Get();

    int DoMessageBox(LPCTSTR text, UINT type, UINT id) override;

    std::vector<std::wstring> m_boxes; ///< the texts of the message boxes, in order

    void EmptyProfile();
};

/// Runs each test with an empty profile and a frame on the screen.
class ProfilerFrameTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    void CreateFrame();
    /// Destroys the frame as its close button does.
    void Close();
    void Restart() {
        Close();
        CreateFrame();
    }

    ProfilerFrame& Frame() { return *m_frame; }
    CXTPReportControl& Grid();
    std::wstring Status();
    std::wstring Title();
    std::wstring Cell(int row, int item);
    int Rows();

    /// Opens a file and waits until it is read.
    void Open(const CString& path);
    void OpenShipped(const wchar_t* name);
    /// Handles messages until no file is being read any more.
    void WaitUntilRead();
    /// Handles messages until one of that kind has been handled.
    void HandleMessagesUntil(UINT kind);
    /// Handles the messages that wait.
    void HandleMessages();
    /// Whether the frame took the key for itself.
    bool PressEscape();
    /// Writes a file into the temporary folder and returns its path.
    CString Write(const wchar_t* name, const std::string& bytes);
    void Command(UINT id) { m_frame->SendMessage(WM_COMMAND, id, 0); }
    /// The state of a menu item, brought up to date as when its popup opens.
    UINT MenuState(int popup, UINT id);

private:
    ProfilerFrame* m_frame = nullptr;
    std::vector<CString> m_files;
};
