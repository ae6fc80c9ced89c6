// Menus, the standard controls and tool tips.
#include "TestApplication.h"

#include <afxcmn.h>

#include "core/HandleCounts.h"
#include "windows_resource.h"

namespace {

class ControlsTest : public WindowTest {
protected:
    void SetUp() override { ASSERT_TRUE(m_parent.CreateTop(WS_POPUP)); }
    CTestWindow m_parent;
    const CRect m_rect{0, 0, 120, 60};
};

// Menus ---------------------------------------------------------------------------------------------------------------

TEST_F(ControlsTest, AMenuOwnsItsHandle) {
    const long before = handlecounts::Live(handlecounts::Kind::Menu);
    HMENU handle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        EXPECT_FALSE(menu.CreatePopupMenu()); // it holds one
        handle = menu.m_hMenu;
        EXPECT_EQ(CMenu::FromHandle(handle), &menu);
        EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Menu), before + 1);
    }
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_EQ(handlecounts::Live(handlecounts::Kind::Menu), before);
    CMenu given;
    given.Attach(::CreateMenu());
    handle = given.Detach();
    EXPECT_TRUE(::IsMenu(handle));
    ::DestroyMenu(handle);
    CMenu* none = nullptr;
    EXPECT_EQ(none->GetSafeHmenu(), nullptr);
}

TEST_F(ControlsTest, ItemsAreAddedChangedAndRemoved) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 10, _T("Ten")));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 5, _T("Five")));
    EXPECT_EQ(menu.GetMenuItemCount(), 3);
    EXPECT_EQ(menu.GetMenuItemID(0), 5u);
    EXPECT_EQ(menu.GetMenuItemID(2), 0u);
    EXPECT_TRUE(menu.ModifyMenu(5, MF_BYCOMMAND | MF_STRING, 6, _T("Six, a rather long text for an item")));
    CString text;
    EXPECT_EQ(menu.GetMenuString(6, text, MF_BYCOMMAND), 35);
    EXPECT_EQ(text, _T("Six, a rather long text for an item"));
    EXPECT_EQ(menu.CheckMenuItem(10, MF_BYCOMMAND | MF_CHECKED), static_cast<UINT>(MF_UNCHECKED));
    EXPECT_EQ(menu.GetMenuState(10, MF_BYCOMMAND), static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(menu.EnableMenuItem(10, MF_BYCOMMAND | MF_GRAYED), static_cast<UINT>(MF_ENABLED));
    EXPECT_EQ(menu.GetMenuState(10, MF_BYCOMMAND), static_cast<UINT>(MF_CHECKED | MF_GRAYED));
    EXPECT_TRUE(menu.DeleteMenu(0, MF_BYPOSITION));
    EXPECT_EQ(menu.GetMenuItemCount(), 2);
    EXPECT_EQ(menu.GetMenuState(99, MF_BYCOMMAND), static_cast<UINT>(-1));
}

TEST_F(ControlsTest, MenusAreLoadedWithTheirPopups) {
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDM_CONTEXT));
    CMenu* const popup = menu.GetSubMenu(0);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetMenuItemID(1), 402u);
    EXPECT_EQ(menu.GetMenuItemID(0), static_cast<UINT>(-1));
    EXPECT_EQ(popup->GetSubMenu(0), nullptr);
    CMenu absent;
    EXPECT_FALSE(absent.LoadMenu(9999));
}

// Controls ------------------------------------------------------------------------------------------------------------

TEST_F(ControlsTest, EditsSelectReplaceAndUndo) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, m_rect, &m_parent, 1));
    edit.SetWindowText(_T("0123456789"));
    edit.SetSel(2, 5);
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 5);
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(2, 5)));
    EXPECT_FALSE(edit.GetModify());
    edit.ReplaceSel(_T("x"), TRUE);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, _T("01x56789"));
    EXPECT_TRUE(edit.GetModify());
    ASSERT_TRUE(edit.CanUndo());
    edit.Undo();
    edit.GetWindowText(text);
    EXPECT_EQ(text, _T("0123456789"));
    edit.SetSel(0, -1);
    edit.GetSel(start, end);
    EXPECT_EQ(end, 10);
    edit.LimitText(12);
    EXPECT_EQ(edit.GetLimitText(), 12u);
    edit.SetReadOnly();
    EXPECT_NE(edit.GetStyle() & ES_READONLY, 0u);
    edit.SetMargins(3, 4);
    EXPECT_EQ(edit.GetMargins(), static_cast<DWORD>(MAKELONG(3, 4)));
}

TEST_F(ControlsTest, ButtonsKeepTheirCheck) {
    CButton check;
    ASSERT_TRUE(check.Create(_T("c"), WS_CHILD | BS_AUTO3STATE, m_rect, &m_parent, 1));
    EXPECT_EQ(check.GetCheck(), BST_UNCHECKED);
    check.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(check.GetCheck(), BST_INDETERMINATE);
    check.SendMessage(BM_CLICK);
    EXPECT_EQ(check.GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(check.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_AUTO3STATE));
}

TEST_F(ControlsTest, ListsHoldTextsAndData) {
    CListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE, m_rect, &m_parent, 1));
    EXPECT_EQ(list.AddString(_T("one")), 0);
    EXPECT_EQ(list.AddString(_T("three")), 1);
    EXPECT_EQ(list.InsertString(1, _T("two")), 1);
    list.SetItemData(1, 222);
    EXPECT_EQ(list.GetItemData(1), 222u);
    CString text;
    list.GetText(2, text);
    EXPECT_EQ(text, _T("three"));
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    list.SetCurSel(1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(list.FindStringExact(-1, _T("two")), 1);
    list.DeleteString(0);
    EXPECT_EQ(list.GetCount(), 2);
    list.GetText(7, text);
    EXPECT_EQ(text, _T(""));
}

TEST_F(ControlsTest, CombosHoldTextsAndData) {
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, m_rect, &m_parent, 1));
    combo.AddString(_T("red"));
    combo.AddString(_T("green"));
    combo.SetItemData(1, 5);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.SelectString(-1, _T("gr")), 1);
    EXPECT_EQ(combo.GetItemData(combo.GetCurSel()), 5u);
    CString text;
    combo.GetLBText(0, text);
    EXPECT_EQ(text, _T("red"));
    EXPECT_EQ(combo.GetCount(), 2);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
}

// A list that draws its own items asks its object through the parent.
class CDrawnList : public CListBox {
public:
    UINT m_measured = 0;
    int m_deleted = 0;
    int m_compared = 0;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
        ++m_measured;
        item->itemHeight = 33;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override {
        ++m_compared;
        return item->itemData1 < item->itemData2 ? -1 : item->itemData1 > item->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++m_deleted; }
    void DrawItem(LPDRAWITEMSTRUCT) override {}
};

TEST_F(ControlsTest, OwnerDrawnListsMeasureCompareAndDeleteForThemselves) {
    CDrawnList list;
    ASSERT_TRUE(list.Create(WS_CHILD | LBS_OWNERDRAWFIXED | LBS_SORT | LBS_NOTIFY, m_rect, &m_parent, 9));
    EXPECT_EQ(list.m_measured, 1u);
    EXPECT_EQ(list.GetItemHeight(0), 33);
    list.AddString(reinterpret_cast<LPCTSTR>(30));
    list.AddString(reinterpret_cast<LPCTSTR>(10));
    EXPECT_GE(list.m_compared, 1);
    EXPECT_EQ(list.GetItemData(0), 10u);
    list.DeleteString(0);
    EXPECT_EQ(list.m_deleted, 1);
}

// Progress ------------------------------------------------------------------------------------------------------------

TEST_F(ControlsTest, AProgressBarStaysWithinItsRange) {
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | PBS_SMOOTH, m_rect, &m_parent, 3));
    int lower = -1, upper = -1;
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 100);
    bar.SetRange32(-10, 100000); // beyond 16 bits
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, -10);
    EXPECT_EQ(upper, 100000);
    bar.SetPos(70000);
    EXPECT_EQ(bar.SetPos(200000), 70000);
    EXPECT_EQ(bar.GetPos(), 100000);
    bar.SetPos(-50);
    EXPECT_EQ(bar.GetPos(), -10);
}

// Tool tips -----------------------------------------------------------------------------------------------------------

TEST_F(ControlsTest, ToolTipsKnowTheirTools) {
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent, TTS_ALWAYSTIP));
    ASSERT_TRUE(tips.AddTool(&m_parent, _T("first"), CRect(0, 0, 10, 10), 1));
    ASSERT_TRUE(tips.AddTool(&m_parent, IDS_TIP, CRect(20, 0, 30, 10), 2));
    CButton button;
    ASSERT_TRUE(button.Create(_T("b"), WS_CHILD, m_rect, &m_parent, 4));
    ASSERT_TRUE(tips.AddTool(&button, _T("a whole window")));
    EXPECT_EQ(tips.GetToolCount(), 3);
    CString text;
    tips.GetText(text, &m_parent, 2);
    EXPECT_EQ(text, _T("A tip"));
    tips.GetText(text, &button);
    EXPECT_EQ(text, _T("a whole window"));
    tips.UpdateTipText(_T("changed"), &m_parent, 1);
    tips.GetText(text, &m_parent, 1);
    EXPECT_EQ(text, _T("changed"));
    tips.SetToolRect(&m_parent, 1, CRect(1, 2, 3, 4));
    TOOLINFO info{};
    ASSERT_TRUE(tips.GetToolInfo(info, &m_parent, 1));
    EXPECT_EQ(CRect(info.rect), CRect(1, 2, 3, 4));
    tips.DelTool(&m_parent, 1);
    EXPECT_EQ(tips.GetToolCount(), 2);
    tips.SetMaxTipWidth(400);
    EXPECT_EQ(tips.GetMaxTipWidth(), 400);
    EXPECT_EQ(tips.GetOwner(), &m_parent);
}

TEST_F(ControlsTest, ATrackingTipShowsWhereItIsTold) {
    m_parent.ShowWindow(SW_SHOWNOACTIVATE);
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent, TTS_ALWAYSTIP));
    TOOLINFO info{};
    info.cbSize = TTTOOLINFO_V1_SIZE;
    info.uFlags = TTF_TRACK | TTF_ABSOLUTE;
    info.hwnd = m_parent.m_hWnd;
    info.uId = 1;
    info.lpszText = const_cast<LPTSTR>(_T("here"));
    tips.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info));
    CPoint place(150, 120);
    tips.TrackPosition(&place);
    tips.TrackActivate(&info, TRUE);
    EXPECT_TRUE(tips.IsWindowVisible());
    CRect rect;
    tips.GetWindowRect(&rect);
    EXPECT_NEAR(rect.left, place.x, 1); // its border may stand outside
    EXPECT_NEAR(rect.top, place.y, 1);
    tips.TrackActivate(&info, FALSE);
    EXPECT_FALSE(tips.IsWindowVisible());
}

} // namespace
