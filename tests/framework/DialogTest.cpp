// Dialogs: modal and not, their data, their keyboard, the command route; and the file dialog's parts.
#include "TestApplication.h"

#include <afxdlgs.h>
#include <afxpriv.h>

#include "windows_resource.h"

namespace {

class CSampleDialog : public CDialog {
public:
    explicit CSampleDialog(CWnd* parent = nullptr) : CDialog(IDD_SAMPLE, parent) {}

    CEdit m_edit;
    CString m_name = _T("before");
    int m_flag = BST_CHECKED;
    int m_choice = 1;
    bool m_refuses = false;
    int m_kicks = 0;
    std::function<void(CSampleDialog&)> m_whenShown; ///< Runs once, from the modal loop.
    std::function<void(CSampleDialog&)> m_whenInitialised;

    BOOL OnInitDialog() override {
        SendDlgItemMessage(m_hWnd, IDC_CHOICE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(_T("red")));
        SendDlgItemMessage(m_hWnd, IDC_CHOICE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(_T("green")));
        CDialog::OnInitDialog();
        if (m_whenInitialised)
            m_whenInitialised(*this);
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_NAME, m_edit);
        DDX_Text(exchange, IDC_NAME, m_name);
        DDX_Check(exchange, IDC_FLAG, m_flag);
        DDX_CBIndex(exchange, IDC_CHOICE, m_choice);
        if (m_refuses && exchange->m_bSaveAndValidate) {
            exchange->PrepareEditCtrl(IDC_NAME);
            exchange->Fail();
        }
    }
    LRESULT OnKickIdle(WPARAM, LPARAM) {
        ++m_kicks;
        if (auto script = std::exchange(m_whenShown, nullptr))
            script(*this);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSampleDialog, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &CSampleDialog::OnKickIdle)
END_MESSAGE_MAP()

class DialogTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_main.CreateTop(WS_POPUP | WS_VISIBLE));
        m_app.m_pMainWnd = &m_main;
    }
    void TearDown() override {
        m_app.m_pMainWnd = nullptr;
        m_main.DestroyWindow();
        WindowTest::TearDown();
    }
    CTestWindow m_main;
};

TEST_F(DialogTest, RunsUntilItIsEndedAndDisablesItsOwner) {
    CSampleDialog dialog;
    dialog.m_whenShown = [this](CSampleDialog& d) {
        EXPECT_TRUE(d.IsWindowVisible());
        EXPECT_FALSE(m_main.IsWindowEnabled());
        EXPECT_EQ(d.GetTopLevelParent(), &m_main);
        d.PostMessage(WM_COMMAND, IDOK);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(m_main.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_GE(dialog.m_kicks, 1);
}

TEST_F(DialogTest, ControlsAndMembersExchangeTheirValues) {
    CSampleDialog dialog;
    dialog.m_whenShown = [](CSampleDialog& d) {
        CString shown;
        d.GetDlgItemText(IDC_NAME, shown);
        EXPECT_EQ(shown, _T("before"));
        EXPECT_EQ(d.IsDlgButtonChecked(IDC_FLAG), static_cast<UINT>(BST_CHECKED));
        EXPECT_EQ(d.GetDlgItem(IDC_NAME), &d.m_edit);
        d.m_edit.SetWindowText(_T("after"));
        d.CheckDlgButton(IDC_FLAG, BST_UNCHECKED);
        ::SendDlgItemMessage(d.m_hWnd, IDC_CHOICE, CB_SETCURSEL, 0, 0);
        d.PostMessage(WM_COMMAND, IDOK);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_name, _T("after"));
    EXPECT_EQ(dialog.m_flag, BST_UNCHECKED);
    EXPECT_EQ(dialog.m_choice, 0);
    EXPECT_EQ(dialog.m_edit.m_hWnd, nullptr);
}

TEST_F(DialogTest, CancellingKeepsTheMembers) {
    CSampleDialog dialog;
    dialog.m_whenShown = [](CSampleDialog& d) {
        d.m_edit.SetWindowText(_T("after"));
        d.PostMessage(WM_COMMAND, IDCANCEL);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_name, _T("before"));
}

TEST_F(DialogTest, RefusedDataKeepTheDialogOpen) {
    CSampleDialog dialog;
    dialog.m_refuses = true;
    dialog.m_whenShown = [](CSampleDialog& d) {
        d.SendMessage(WM_COMMAND, IDOK);
        EXPECT_TRUE(d.ContinueModal());
        EXPECT_TRUE(::IsWindow(d.m_hWnd));
        d.m_refuses = false;
        d.PostMessage(WM_COMMAND, IDOK);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST_F(DialogTest, EscapeAndEnterPressTheDialogsButtons) {
    CSampleDialog escaped;
    escaped.m_whenShown = [](CSampleDialog& d) { d.m_edit.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1); };
    EXPECT_EQ(escaped.DoModal(), IDCANCEL);
    CSampleDialog entered;
    entered.m_whenShown = [](CSampleDialog& d) { d.m_edit.PostMessage(WM_KEYDOWN, VK_RETURN, 1); };
    EXPECT_EQ(entered.DoModal(), IDOK);
}

TEST_F(DialogTest, MayEndWhileItIsBeingInitialised) {
    CSampleDialog dialog;
    dialog.m_whenInitialised = [](CSampleDialog& d) { d.EndDialog(42); };
    EXPECT_EQ(dialog.DoModal(), 42);
    EXPECT_TRUE(m_main.IsWindowEnabled());
}

TEST_F(DialogTest, WithoutATemplateThereIsNoDialog) {
    CDialog dialog(9999);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(m_main.IsWindowEnabled());
}

TEST_F(DialogTest, WithoutAModeItLivesBesideTheOthers) {
    CSampleDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SAMPLE, &m_main));
    EXPECT_TRUE(m_main.IsWindowEnabled());
    EXPECT_EQ(dialog.GetDlgItem(IDC_NAME), &dialog.m_edit);
    EXPECT_EQ(dialog.GetDefID() & 0xFFFF, static_cast<DWORD>(IDOK));
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_edit.m_hWnd, nullptr);
}

TEST_F(DialogTest, CommandsGoOnToTheApplicationNotificationsDoNot) {
    class CRouteApp : public CTestApplication {
    public:
        std::vector<UINT> m_asked;
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            m_asked.push_back(id);
            return CTestApplication::OnCmdMsg(id, code, extra, info);
        }
    };
    CRouteApp app;
    CSampleDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SAMPLE, &m_main));
    dialog.OnCmdMsg(0x8005, CN_COMMAND, nullptr, nullptr);
    dialog.OnCmdMsg(0x0005, CN_COMMAND, nullptr, nullptr);
    dialog.OnCmdMsg(0x8005, EN_CHANGE, nullptr, nullptr);
    EXPECT_EQ(app.m_asked, std::vector<UINT>{0x8005});
    dialog.DestroyWindow();
}

// File dialog ---------------------------------------------------------------------------------------------------------

TEST_F(DialogTest, FiltersBecomeTheSystemsPairs) {
    CFileDialog dialog(TRUE, _T("csv"), _T("C:\\data\\birds.v2.csv"), OFN_HIDEREADONLY,
                       _T("Tables (*.csv)|*.csv|All files|*.*||"));
    const OPENFILENAME& request = dialog.GetOFN();
    const TCHAR expected[] = _T("Tables (*.csv)\0*.csv\0All files\0*.*\0");
    EXPECT_EQ(memcmp(request.lpstrFilter, expected, sizeof(expected)), 0);
    EXPECT_STREQ(request.lpstrDefExt, _T("csv"));
    EXPECT_TRUE(request.Flags & OFN_HIDEREADONLY);
    EXPECT_EQ(dialog.GetPathName(), _T("C:\\data\\birds.v2.csv"));
    EXPECT_EQ(dialog.GetFileName(), _T("birds.v2.csv"));
    EXPECT_EQ(dialog.GetFileTitle(), _T("birds.v2"));
    EXPECT_EQ(dialog.GetFileExt(), _T("csv"));
    EXPECT_EQ(dialog.GetFolderPath(), _T("C:\\data"));
}

} // namespace
