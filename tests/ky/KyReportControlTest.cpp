// Saved layouts, column chooser, select all and theme of the report grid.
#include "KyTestApp.h"

#include "../support/MenuDriver.h"

#include <common/KyMessages.h>
#include <reportgrid/KyReportControl.h>
#include <themes/KyPaintTheme.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

constexpr const wchar_t* section = L"Grid";
constexpr const wchar_t* defaultSection = L"Grid\\DefaultLayout";

// Counts selection changes and opens the protected operations to the tests.
class ProbedGrid : public KyReportControl {
public:
    using KyReportControl::OnColumnHeaderRClick;
    void OnSelectionChanged() override {
        ++selectionChanges;
        KyReportControl::OnSelectionChanged();
    }
    int selectionChanges = 0;
};

// A frame with a grid of five columns: Name (100 px), Count, Mean, Plot, and one without a caption.
class Host {
public:
    explicit Host(int columnCount = 5) {
        frame.CreateEx(0, AfxRegisterWndClass(0), _T("host"), WS_POPUP | WS_VISIBLE, CRect(0, 0, 640, 400), nullptr, 0);
        grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 640, 400), &frame, 100);
        const TCHAR* names[] = {_T("Name"), _T("Count"), _T("Mean"), _T("Plot")};
        for (int i = 0; i < columnCount; ++i) {
            CString name, caption;
            name.Format(_T("column%d"), i);
            caption = i < 4 ? CString(names[i]) : CString();
            grid.AddColumn(new CXTPReportColumn(i, caption, name, 100));
        }
    }
    ~Host() {
        grid.DestroyWindow();
        frame.DestroyWindow();
    }

    CXTPReportColumn* Column(int itemIndex) { return grid.GetColumns()->Find(itemIndex); }
    CPoint HeaderPoint(int itemIndex) { return Column(itemIndex)->GetRect().CenterPoint(); }

    void AddRecords(int count) {
        for (int i = 0; i < count; ++i) {
            auto* record = new CXTPReportRecord;
            record->AddItem(new CXTPReportRecordItemNumber(i));
            grid.AddRecord(record);
        }
        grid.Populate();
    }

    CWnd frame;
    ProbedGrid grid;
};

std::vector<BYTE> StoredState(const wchar_t* ofSection) {
    BYTE* data = nullptr;
    UINT size = 0;
    if (!AfxGetApp()->GetProfileBinary(ofSection, L"State", &data, &size))
        return {};
    std::vector<BYTE> bytes(data, data + size);
    delete[] data;
    return bytes;
}

LRESULT SendTheme(CWnd& grid, int theme) { return grid.SendMessage(WM_KYTHEMECHANGED, static_cast<WPARAM>(theme), 0); }

} // namespace

class KyReportControlTest : public ProfileTest {};
class SavedLayoutTest : public AnyProfileTest {};
INSTANTIATE_TEST_SUITE_P(Stores, SavedLayoutTest, ::testing::Values(Store::Registry, Store::IniFile),
                         [](const auto& info) { return info.param == Store::Registry ? "Registry" : "IniFile"; });

// --- Saved layouts --------------------------------------------------------------------------------------------------

TEST_F(KyReportControlTest, IsCreatedByItsRuntimeClass) {
    std::unique_ptr<CObject> object(RUNTIME_CLASS(KyReportControl)->CreateObject());
    ASSERT_TRUE(object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CXTPReportControl)));
}

TEST_P(SavedLayoutTest, ComesBackInTheNextLifetime) {
    {
        Host host;
        host.grid.AutoLoadReportState(section);
        host.Column(2)->SetVisible(FALSE);
        host.Column(1)->SetWidth(177);
        host.grid.GetColumns()->ChangeColumnOrder(0, 3);
    }
    Host host;
    EXPECT_TRUE(host.Column(2)->IsVisible());
    host.grid.AutoLoadReportState(section);
    EXPECT_FALSE(host.Column(2)->IsVisible());
    EXPECT_EQ(host.Column(1)->GetWidth(), 177);
    EXPECT_EQ(host.Column(3)->GetIndex(), 0);
    EXPECT_EQ(host.Column(0)->GetIndex(), 1);
}

TEST_P(SavedLayoutTest, IsNotTouchedWithoutAutoLoad) {
    {
        Host host;
        host.Column(1)->SetWidth(177);
    }
    EXPECT_TRUE(StoredState(section).empty());
}

TEST_P(SavedLayoutTest, DefaultLayoutIsCapturedAtEveryAutoLoadAndNeverHoldsTheUsersChanges) {
    std::vector<BYTE> firstDefault;
    {
        Host host;
        host.grid.AutoLoadReportState(section);
        firstDefault = StoredState(defaultSection);
        EXPECT_FALSE(firstDefault.empty());
        host.Column(1)->SetVisible(FALSE);
    }
    Host host;
    host.grid.AutoLoadReportState(section);
    EXPECT_FALSE(host.Column(1)->IsVisible());
    EXPECT_EQ(StoredState(defaultSection), firstDefault);

    host.Column(1)->SetVisible(TRUE);
    host.Column(0)->SetWidth(60); // as a newer build of the program would
    host.grid.AutoLoadReportState(section);
    EXPECT_NE(StoredState(defaultSection), firstDefault);
}

TEST_P(SavedLayoutTest, SavesOnRequestUnderAnySection) {
    Host host;
    host.Column(4)->SetVisible(FALSE);
    host.grid.SaveReportState(L"Other\\Deep");
    host.Column(4)->SetVisible(TRUE);
    host.grid.LoadReportState(L"Other\\Deep");
    EXPECT_FALSE(host.Column(4)->IsVisible());
}

TEST_P(SavedLayoutTest, MissingValueChangesNothing) {
    Host host;
    host.Column(0)->SetWidth(123);
    host.grid.LoadReportState(L"Nowhere");
    EXPECT_EQ(host.Column(0)->GetWidth(), 123);
}

TEST_P(SavedLayoutTest, BrokenValueIsSwallowedAndTheGridGoesOn) {
    Host host;
    host.grid.SaveReportState(section);
    const std::vector<BYTE> whole = StoredState(section);
    for (size_t length = 0; length < whole.size(); ++length) {
        std::vector<BYTE> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        cut.resize(std::max<size_t>(length, 1)); // the registry keeps no empty value
        AfxGetApp()->WriteProfileBinary(section, L"State", cut.data(), static_cast<UINT>(cut.size()));
        host.Column(0)->SetWidth(123);
        host.grid.LoadReportState(section);
        ASSERT_EQ(host.Column(0)->GetWidth(), 123) << "cut after " << length << " bytes";
        ASSERT_EQ(host.grid.GetColumns()->GetCount(), 5);
    }
}

// --- Column chooser -------------------------------------------------------------------------------------------------

TEST_F(KyReportControlTest, ChooserIsOffAtFirst) {
    Host host;
    MenuDriver menu;
    host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    EXPECT_FALSE(menu.Shown());
}

TEST_F(KyReportControlTest, ChooserShowsNothingBesideTheColumns) {
    Host host(2); // the header goes on right of the columns
    host.grid.EnableShowHideColumns({});
    MenuDriver menu;
    const CRect header = host.grid.GetHeaderRect();
    host.grid.OnColumnHeaderRClick(CPoint(header.right - 5, header.CenterPoint().y));
    host.grid.OnColumnHeaderRClick(CPoint(20, header.bottom + 5));
    EXPECT_FALSE(menu.Shown());
}

TEST_F(KyReportControlTest, ChooserOpensByKeyboardAndTogglesTheChosenColumn) {
    Host host;
    host.grid.EnableShowHideColumns({});
    host.grid.SetFocusedColumn(host.Column(3));
    BYTE former[256], alt[256] = {};
    ::GetKeyboardState(former);
    alt[VK_MENU] = 0x80;
    {
        MenuDriver menu(3 + 2);
        ::SetKeyboardState(alt);
        host.grid.SendMessage(WM_SYSKEYDOWN, VK_DOWN, 0x20000001);
        ::SetKeyboardState(former);
        EXPECT_TRUE(menu.Shown());
    }
    EXPECT_FALSE(host.Column(3)->IsVisible());
    EXPECT_EQ(host.grid.GetFocusedColumn(), host.Column(4)) << "its neighbour goes on";
    {
        MenuDriver menu(3 + 2);
        host.grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(host.grid.m_hWnd), MAKELPARAM(-1, -1));
        EXPECT_TRUE(menu.Shown());
    }
    EXPECT_TRUE(host.Column(3)->IsVisible());
}

TEST_F(KyReportControlTest, ChooserShowsNothingDuringAColumnDrag) {
    Host host;
    host.grid.EnableShowHideColumns({});
    host.grid.SetMouseMode(xtpReportMouseColumnResize);
    MenuDriver menu;
    host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    host.grid.SetMouseMode(xtpReportMouseNothing);
    EXPECT_FALSE(menu.Shown());
}

TEST_F(KyReportControlTest, ChooserListsColumnsWithIdentifiersByIndexAndWithoutTheFixedOnes) {
    Host host;
    host.Column(2)->SetVisible(FALSE);
    host.Column(3)->AllowRemove(FALSE);
    host.grid.EnableShowHideColumns({L"column1", L"COLUMN0"});
    MenuDriver menu;
    host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    ASSERT_TRUE(menu.Shown());
    ASSERT_EQ(menu.Items().size(), 4u); // no separator and no restore item yet
    EXPECT_EQ(menu.Items()[0].text, L"Name");
    EXPECT_EQ(menu.Items()[0].id, 2u);
    EXPECT_TRUE(menu.Items()[0].checked);
    EXPECT_EQ(menu.Items()[1].text, L"Mean");
    EXPECT_EQ(menu.Items()[1].id, 4u);
    EXPECT_FALSE(menu.Items()[1].checked);
    EXPECT_EQ(menu.Items()[2].text, L"Plot");
    EXPECT_EQ(menu.Items()[2].id, 5u);
    EXPECT_FALSE(menu.Items()[2].enabled);
    EXPECT_EQ(menu.Items()[3].text, L"column4"); // no caption: the internal name
    EXPECT_EQ(menu.Items()[3].id, 6u);
}

TEST_F(KyReportControlTest, ChooserItemsAreDisabledWhenTheHeaderAllowsNoRemoval) {
    Host host;
    host.grid.EnableShowHideColumns({});
    host.grid.GetReportHeader()->AllowColumnRemove(FALSE);
    MenuDriver menu;
    host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    ASSERT_EQ(menu.Items().size(), 5u);
    for (const MenuItem& item : menu.Items())
        EXPECT_FALSE(item.enabled);
}

TEST_F(KyReportControlTest, ChoosingAColumnTogglesIt) {
    Host host;
    host.grid.EnableShowHideColumns({L"column0"});
    {
        MenuDriver menu(3);
        host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    }
    EXPECT_FALSE(host.Column(1)->IsVisible());
    {
        MenuDriver menu(3);
        host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    }
    EXPECT_TRUE(host.Column(1)->IsVisible());
}

TEST_F(KyReportControlTest, LeavingTheChooserChangesNothing) {
    Host host;
    host.grid.EnableShowHideColumns({});
    MenuDriver menu;
    host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    EXPECT_TRUE(menu.Shown());
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(host.Column(i)->IsVisible());
}

TEST_F(KyReportControlTest, OnlyTheFirst98ColumnsCanBeToggled) {
    Host host(101);
    host.grid.EnableShowHideColumns({});
    for (const auto& [index, toggles] : {std::pair{97, true}, {98, false}, {100, false}}) {
        MenuDriver menu(static_cast<UINT>(index + 2));
        host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
        ASSERT_EQ(menu.Items().size(), 101u);
        EXPECT_EQ(menu.Items()[static_cast<size_t>(index)].id, static_cast<UINT>(index + 2));
        EXPECT_EQ(host.Column(index)->IsVisible(), !toggles) << "column " << index;
    }
}

TEST_F(KyReportControlTest, ARightClickOnTheHeaderOpensTheChooser) {
    Host host;
    host.grid.EnableShowHideColumns({});
    MenuDriver menu;
    const CPoint point = host.HeaderPoint(1);
    CPoint screen = point;
    host.grid.ClientToScreen(&screen);
    SetCursorPos(screen.x, screen.y);
    host.grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
    host.grid.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_TRUE(menu.Shown());
}

TEST_F(KyReportControlTest, RestoreDefaultLayoutShowsHiddenColumnsAndStoresThatAtOnce) {
    Host host;
    host.grid.EnableShowHideColumns({L"column0"});
    host.grid.AutoLoadReportState(section);
    host.Column(1)->SetVisible(FALSE);
    host.Column(2)->SetVisible(FALSE);
    host.Column(3)->SetWidth(222);
    host.grid.SaveReportState(section);
    ASSERT_NE(StoredState(section), StoredState(defaultSection));

    MenuDriver menu(1);
    host.grid.OnColumnHeaderRClick(host.HeaderPoint(0));
    ASSERT_EQ(menu.Items().size(), 6u);
    EXPECT_TRUE(menu.Items()[4].separator);
    EXPECT_EQ(menu.Items()[5].text, L"Restore default layout");
    EXPECT_TRUE(host.Column(1)->IsVisible());
    EXPECT_TRUE(host.Column(2)->IsVisible());
    EXPECT_EQ(host.Column(3)->GetWidth(), 100);
    EXPECT_EQ(StoredState(section), StoredState(defaultSection));
}

// --- Selection ------------------------------------------------------------------------------------------------------

TEST_F(KyReportControlTest, SelectAllSelectsEveryRowAndTells) {
    Host host;
    host.AddRecords(7);
    host.grid.selectionChanges = 0;
    host.grid.SelectAll();
    EXPECT_EQ(host.grid.GetSelectedRows()->GetCount(), 7);
    EXPECT_EQ(host.grid.selectionChanges, 1);
}

TEST_F(KyReportControlTest, SelectAllOnAnEmptyGridSelectsNothingButTells) {
    Host host;
    host.grid.selectionChanges = 0;
    host.grid.SelectAll();
    EXPECT_EQ(host.grid.GetSelectedRows()->GetCount(), 0);
    EXPECT_EQ(host.grid.selectionChanges, 1);
}

// --- Theme ----------------------------------------------------------------------------------------------------------

TEST_F(KyReportControlTest, TheConstructorTakesTipStyleFromTheProfileAndATipWidthOf400) {
    AfxGetApp()->WriteProfileString(_T("Settings"), _T("RibbonTheme"), _T("Office2013"));
    KyReportControl grid;
    EXPECT_EQ(static_cast<int>(grid.GetToolTipContext()->GetStyle()), 8);
    EXPECT_EQ(grid.GetToolTipContext()->GetMaxTipWidth(), 400);
}

TEST_F(KyReportControlTest, CreationAppliesTheProfileTheme) {
    AfxGetApp()->WriteProfileString(_T("Settings"), _T("RibbonTheme"), _T("OfficeXP"));
    Host host;
    EXPECT_EQ(static_cast<int>(host.grid.GetPaintManager()->GetTheme()), 1);
    EXPECT_EQ(static_cast<int>(host.grid.GetPaintManager()->GetColumnStyle()), 1);
    EXPECT_EQ(static_cast<int>(host.grid.GetToolTipContext()->GetStyle()), 0);
}

TEST_F(KyReportControlTest, EveryThemeValueSetsReportThemeColumnStyleAndTipStyle) {
    Host host;
    const int reportTheme[] = {9, 1, 1, 1, 9, 9, 9, 9, 9, 9, 9, 4, 8, 9, 9};
    const int columnStyle[] = {4, 0, 1, 3, 4, 4, 4, 4, 4, 4, 4, -1, 2, 4, 4};
    const int tipStyle[] = {5, 0, 0, 0, 5, 5, 5, 5, 5, 5, 5, 8, 5, 5, 5};
    for (int theme = -1; theme <= 13; ++theme) {
        const int before = host.grid.GetPaintManager()->GetColumnStyle();
        EXPECT_EQ(SendTheme(host.grid, theme), 1);
        EXPECT_EQ(static_cast<int>(host.grid.GetPaintManager()->GetTheme()), reportTheme[theme + 1]) << theme;
        EXPECT_EQ(static_cast<int>(host.grid.GetPaintManager()->GetColumnStyle()),
                  columnStyle[theme + 1] < 0 ? before : columnStyle[theme + 1])
            << theme;
        EXPECT_EQ(static_cast<int>(host.grid.GetToolTipContext()->GetStyle()), tipStyle[theme + 1]) << theme;
    }
}

TEST_F(KyReportControlTest, Office2013LeavesEveryColumnStyleAsItWas) {
    Host host;
    for (int style = 0; style <= 4; ++style) {
        host.grid.GetPaintManager()->SetColumnStyle(static_cast<XTPReportColumnStyle>(style));
        SendTheme(host.grid, 10);
        EXPECT_EQ(static_cast<int>(host.grid.GetPaintManager()->GetColumnStyle()), style);
    }
}

TEST_F(KyReportControlTest, TipStyles6And7AreKeptWhateverTheTheme) {
    Host host;
    for (int style : {6, 7}) {
        host.grid.GetToolTipContext()->SetStyle(static_cast<XTPToolTipStyle>(style));
        for (int theme : {0, 10, 11, -1}) {
            EXPECT_EQ(SendTheme(host.grid, theme), 1);
            EXPECT_EQ(static_cast<int>(host.grid.GetToolTipContext()->GetStyle()), style);
        }
    }
}
