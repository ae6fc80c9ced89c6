// Rows in groups: which groups there are, their order, their rows, and what the user does with them.
#include "OutlineGrid.h"

#include "../support/ClipboardContent.h"

#include <map>
#include <random>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GroupTest : public OutlineTest {
protected:
    GroupTest() {
        m_pear = Add(nullptr, _T("pear"), _T("fruit"), _T("x"));
        m_leek = Add(nullptr, _T("leek"), _T("greens"), _T("y"));
        m_plum = Add(nullptr, _T("plum"), _T("fruit"), _T("y"));
        m_salt = Add(nullptr, _T("salt"), _T(""), _T("x"));
        m_kale = Add(nullptr, _T("kale"), _T("greens"), _T("y"));
        m_grid.GetColumns()->GetGroupsOrder()->Add(m_columns[1]);
        m_grid.Populate();
        Settle();
    }
    CXTPReportColumnOrder& Groups() { return *m_grid.GetColumns()->GetGroupsOrder(); }
    const CXTPReportGroupRow* Group(int row) const { return dynamic_cast<CXTPReportGroupRow*>(Row(row)); }

    CXTPReportRecord *m_pear, *m_leek, *m_plum, *m_salt, *m_kale;
};

// --- Which groups there are ------------------------------------------------------------------------------------------

TEST_F(GroupTest, RecordsStandBelowARowForEachTextOfTheColumn) {
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L".salt", L"[B: fruit (2)]", L".pear", L".plum",
                                     L"[B: greens (2)]", L".leek", L".kale"));
    ASSERT_TRUE(Group(2));
    EXPECT_EQ(Group(2)->GetColumn(), m_columns[1]);
    EXPECT_EQ(Group(2)->GetValue(), _T("fruit"));
    EXPECT_EQ(Group(2)->GetRecordCount(), 2);
    EXPECT_EQ(Group(2)->GetRecord(), nullptr);
    EXPECT_TRUE(Group(2)->IsExpanded());
    EXPECT_EQ(Group(2)->GetGroupLevel(), 0);
    EXPECT_EQ(RowOf(m_plum)->GetGroupLevel(), 1);
    EXPECT_EQ(RowOf(m_plum)->GetTreeDepth(), 0);
    EXPECT_EQ(RowOf(m_plum)->GetParentRow(), Row(2));
    EXPECT_EQ(Row(2)->GetNextSiblingRow(), Row(5));
    EXPECT_TRUE(m_columns[1]->IsVisible()) << "a grouping column stays as it was";
}

TEST_F(GroupTest, TheDirectionOfTheColumnIsThatOfItsGroups) {
    m_columns[1]->SetSortIncreasing(FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: greens (2)]", L".leek", L".kale", L"[B: fruit (2)]", L".pear", L".plum",
                                     L"[B: (none) (1)]", L".salt"));
}

TEST_F(GroupTest, RecordsAreSortedWithinTheirGroup) {
    m_grid.GetColumns()->SetSortColumn(m_columns[0], FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L".salt", L"[B: fruit (2)]", L".plum", L".pear",
                                     L"[B: greens (2)]", L".leek", L".kale"));
}

TEST_F(GroupTest, GroupsHaveSeveralLevels) {
    Groups().Add(m_columns[2], FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(),
                ElementsAre(L"[B: (none) (1)]", L".[C: x (1)]", L"..salt", L"[B: fruit (2)]", L".[C: y (1)]", L"..plum",
                            L".[C: x (1)]", L"..pear", L"[B: greens (2)]", L".[C: y (2)]", L"..leek", L"..kale"));
    EXPECT_EQ(Row(4)->GetGroupLevel(), 1);
    EXPECT_EQ(RowOf(m_plum)->GetGroupLevel(), 2);
    EXPECT_EQ(RowOf(m_plum)->GetTreeDepth(), 0);
    Groups().Clear();
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"pear", L"leek", L"plum", L"salt", L"kale"));
}

TEST_F(GroupTest, NumbersAreGroupedByWhatTheyShowAndOrderedByTheirValue) {
    m_grid.ResetContent();
    for (const double value : {10.0, 9.0, 10.2, 100.0}) {
        auto* record = m_grid.AddRecord(new CXTPReportRecord);
        record->AddItem(new ProbeItem(_T("n")));
        record->AddItem(new CXTPReportRecordItemNumber(value, _T("%.0f")));
    }
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: 9 (1)]", L".n", L"[B: 10 (2)]", L".n", L".n", L"[B: 100 (1)]", L".n"));
}

TEST_F(GroupTest, ARecordWithoutTheCellIsInTheGroupWithoutAText) {
    auto* record = m_grid.AddRecord(new CXTPReportRecord);
    record->AddItem(new ProbeItem(_T("short")));
    m_grid.Populate();
    EXPECT_EQ(Shown()[0], L"[B: (none) (2)]");
    EXPECT_EQ(Shown()[2], L".short");
}

TEST_F(GroupTest, ChildRecordsStayBelowTheirRecordAndCount) {
    Add(m_pear, _T("pip"), _T("greens"));
    m_pear->SetExpanded(TRUE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L".salt", L"[B: fruit (3)]", L".pear", L"..pip", L".plum",
                                     L"[B: greens (2)]", L".leek", L".kale"));
    EXPECT_EQ(RowOf(m_pear->GetChilds()->GetAt(0))->GetTreeDepth(), 1);
}

TEST_F(GroupTest, AGroupKnowsItsColumnAsLongAsThereIsOne) {
    m_columns[1]->SetCaption(_T("Kind"));
    EXPECT_EQ(Shown()[2], L"[Kind: fruit (2)]");
    m_grid.GetColumns()->Remove(m_columns[1]);
    EXPECT_EQ(Group(2)->GetColumn(), nullptr);
    m_grid.UpdateWindow();
    m_grid.Populate();
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
}

TEST_F(GroupTest, ASavedLayoutBringsTheGroupsBack) {
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        m_grid.SerializeState(ar);
    }
    Groups().Clear();
    m_grid.Populate();
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    m_grid.SerializeState(ar);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 8);
}

TEST_F(GroupTest, VirtualModeHasNoGroupsButKeepsThemForALayout) {
    auto* record = new CXTPReportRecord;
    for (int i = 0; i < 3; ++i)
        record->AddItem(new ProbeItem(_T("v")));
    m_grid.SetVirtualMode(record, 20);
    m_grid.Populate();
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 20);
    EXPECT_FALSE(Row(0)->IsGroupRow());
    EXPECT_EQ(Groups().GetCount(), 1);
    m_grid.SetVirtualMode(nullptr, 0);
}

// --- What is expanded ------------------------------------------------------------------------------------------------

TEST_F(GroupTest, WhatIsCollapsedSurvivesPopulateByItsCaption) {
    Row(2)->SetExpanded(FALSE);
    EXPECT_THAT(Shown(),
                ElementsAre(L"[B: (none) (1)]", L".salt", L"[B: fruit (2)]", L"[B: greens (2)]", L".leek", L".kale"));
    m_pear->SetVisible(FALSE);
    m_plum->SetVisible(FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L".salt", L"[B: greens (2)]", L".leek", L".kale"));
    m_plum->SetVisible(TRUE);
    m_grid.Populate();
    EXPECT_EQ(Shown()[2], L"[B: fruit (1)]") << "collapsed as it was, and with one record";
    EXPECT_EQ(Shown()[3], L"[B: greens (2)]");
}

TEST_F(GroupTest, TheSameCaptionBelowAnotherGroupIsAnotherGroup) {
    Groups().Add(m_columns[2]);
    m_grid.Populate();
    Row(1)->SetExpanded(FALSE); // (none), x
    m_grid.Populate();
    EXPECT_THAT(Shown(),
                ElementsAre(L"[B: (none) (1)]", L".[C: x (1)]", L"[B: fruit (2)]", L".[C: x (1)]", L"..pear",
                            L".[C: y (1)]", L"..plum", L"[B: greens (2)]", L".[C: y (2)]", L"..leek", L"..kale"));
}

TEST_F(GroupTest, AllGroupsAreCollapsedAndExpandedAtOnce) {
    Groups().Add(m_columns[2]);
    m_grid.Populate();
    m_grid.SetFocusedRow(RowOf(m_plum));
    m_grid.CollapseAll();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L"[B: fruit (2)]", L"[B: greens (2)]"));
    EXPECT_EQ(Focused(), 1);
    m_grid.ExpandAll();
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 12);
    EXPECT_EQ(Focused(), 3) << "the group, where it stands now";
}

TEST_F(GroupTest, VeryManyGroupsThatAreGoneAreForgotten) {
    m_grid.ResetContent();
    const auto fill = [this](int from) {
        m_grid.ResetContent();
        for (int i = 0; i < 5000; ++i) {
            CString text;
            text.Format(_T("%d"), from + i);
            Add(nullptr, _T("x"), text);
        }
        m_grid.Populate();
    };
    fill(0);
    m_grid.CollapseAll();
    fill(10'000);
    fill(20'000);
    fill(0);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 10'000) << "nobody remembers that they were collapsed";
}

// --- Selection, focus and removal ------------------------------------------------------------------------------------

TEST_F(GroupTest, GroupRowsAreFocusedAndSelectedLikeOthersAndKeepThat) {
    Click(CPoint(150, Row(2)->GetRect().CenterPoint().y));
    EXPECT_EQ(Focused(), 2);
    EXPECT_THAT(Selected(), ElementsAre(2));
    EXPECT_EQ(m_owner.notifications.back().code, NM_CLICK);
    EXPECT_EQ(m_owner.notifications.back().item, nullptr);
    m_salt->Delete();
    EXPECT_EQ(Focused(), 0) << "the group without a text has gone with its only record";
    m_columns[1]->SetSortIncreasing(FALSE);
    m_grid.Populate();
    EXPECT_EQ(Focused(), 3);
    EXPECT_THAT(Selected(), ElementsAre(3));
    EXPECT_EQ(Shown()[3], L"[B: fruit (2)]");
}

TEST_F(GroupTest, ARemovedRecordLeavesTheCountAndTheLastOneTakesTheGroupAlong) {
    Groups().Add(m_columns[2]);
    m_grid.Populate();
    m_plum->Delete();
    EXPECT_EQ(Shown()[3], L"[B: fruit (1)]");
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L".[C: x (1)]", L"..salt", L"[B: fruit (1)]", L".[C: x (1)]",
                                     L"..pear", L"[B: greens (2)]", L".[C: y (2)]", L"..leek", L"..kale"));
    Row(3)->SetExpanded(FALSE);
    m_pear->Delete();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L".[C: x (1)]", L"..salt", L"[B: greens (2)]", L".[C: y (2)]",
                                     L"..leek", L"..kale"));
    m_grid.GetRecords()->RemoveAll();
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(GroupTest, ARemovedRecordTakesThoseBelowItOutOfTheCount) {
    Add(m_pear, _T("pip"), _T("greens"));
    Add(m_plum, _T("stone"));
    m_grid.Populate();
    EXPECT_EQ(Shown()[2], L"[B: fruit (4)]");
    m_pear->Delete();
    EXPECT_EQ(Shown()[2], L"[B: fruit (2)]");
    m_plum->Delete();
    EXPECT_THAT(Shown(), ElementsAre(L"[B: (none) (1)]", L".salt", L"[B: greens (2)]", L".leek", L".kale"));
}

// --- Mouse and keyboard ----------------------------------------------------------------------------------------------

TEST_F(GroupTest, TheButtonAndADoubleClickCollapseAGroup) {
    Click(ButtonOf(2));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 6);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_ROWEXPANDED), 1);
    EXPECT_EQ(Focused(), -1);
    const CPoint caption(150, Row(2)->GetRect().CenterPoint().y);
    DoubleClick(caption);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 8);
    EXPECT_EQ(m_owner.Count(NM_DBLCLK), 1);
    EXPECT_EQ(Focused(), 2);
}

TEST_F(GroupTest, TheButtonStandsFartherRightForALowerGroup) {
    Groups().Add(m_columns[2]);
    m_grid.Populate();
    const CRect rc = Row(1)->GetRect();
    EXPECT_EQ(Row(1)->GetExpandButtonRect(), CRect(Step(), rc.top, 2 * Step(), rc.bottom - 1));
    m_columns[0]->SetWidth(500);
    m_grid.SetLeftOffset(100);
    EXPECT_EQ(Row(1)->GetExpandButtonRect().left, Step()) << "groups are not scrolled sideways";
}

TEST_F(GroupTest, LeftAndRightCollapseAndExpandAGroupInEveryColumn) {
    m_grid.SetFocusedColumn(m_columns[2]);
    Focus(2);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 6);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[2]) << "a group has no cells to go to";
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 8);
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 3);
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 3);
    Key(VK_LEFT);
    Key(VK_LEFT);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[0]) << "a record's cells are moved among";
    Focus(2);
    Sign(VK_SUBTRACT, '-');
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 6);
    Key(VK_RETURN);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 8);
    m_grid.AllowEdit(TRUE);
    Key(VK_F2);
    m_grid.SendMessage(WM_CHAR, 'x', 1);
    EXPECT_EQ(m_grid.GetActiveItem(), nullptr) << "there is nothing to edit";
}

TEST_F(GroupTest, LeftInATreeColumnGoesToTheGroup) {
    m_columns[0]->SetTreeColumn(TRUE);
    m_grid.SetFocusedRow(RowOf(m_plum));
    Key(VK_LEFT);
    EXPECT_EQ(Focused(), 2);
}

TEST_F(GroupTest, TypingFindsRecordsAndTabEditsThem) {
    Focus(0);
    m_grid.SendMessage(WM_CHAR, 'k', 1);
    EXPECT_EQ(m_grid.GetFocusedRow(), RowOf(m_kale));
    m_grid.AllowEdit(TRUE);
    Focus(1);
    m_grid.SetFocusedColumn(m_columns[2]);
    m_grid.SendMessage(WM_CHAR, VK_TAB, 1);
    EXPECT_EQ(m_grid.GetActiveItem(), m_pear->GetItem(0)) << "the row of the group is passed over";
}

// --- Drawing --------------------------------------------------------------------------------------------------------

TEST_F(GroupTest, AGroupRowIsABandOverTheFullWidth) {
    CXTPReportPaintManager& look = *m_grid.GetPaintManager();
    look.m_clrGroupRow.SetCustomValue(RGB(1, 0, 0));
    look.m_clrGroupRowText.SetCustomValue(RGB(0, 200, 50));
    look.m_clrGroupRowLine.SetCustomValue(RGB(3, 0, 0));
    m_grid.CollapseAll();
    const auto picture = Printed();
    const CRect rc(0, Row(0)->GetRect().top, Width, Row(2)->GetRect().bottom);
    EXPECT_EQ(picture->BoxOf(RGB(1, 0, 0)), CRect(rc.left, rc.top, rc.right, rc.bottom - 1));
    EXPECT_EQ(picture->Count(RGB(3, 0, 0)), 3 * Width);
    EXPECT_EQ(picture->BoxOf(RGB(3, 0, 0)).bottom, rc.bottom);
    EXPECT_GT(picture->Count(RGB(0, 200, 50)), 20);
    EXPECT_GE(picture->BoxOf(RGB(0, 200, 50)).left, Step());
}

TEST_F(GroupTest, ASelectedGroupHasTheColoursOfTheSelection) {
    CXTPReportPaintManager& look = *m_grid.GetPaintManager();
    look.m_clrHighlight.SetCustomValue(RGB(0, 200, 50));
    look.m_clrInactiveHighlight.SetCustomValue(RGB(0, 200, 50));
    Focus(2);
    const auto picture = Printed();
    const CRect rc = Row(2)->GetRect();
    EXPECT_EQ(picture->BoxOf(RGB(0, 200, 50)).left, 0);
    EXPECT_EQ(picture->BoxOf(RGB(0, 200, 50)).right, Width);
    EXPECT_EQ(picture->BoxOf(RGB(0, 200, 50)).bottom, rc.bottom - 1);
    EXPECT_GT(picture->Count(RGB(0, 200, 50)), Width * rc.Height() / 2);
}

TEST_F(GroupTest, OnScreenIsWhatIsDrawnAnew) {
    Click(ButtonOf(2));
    Key(VK_DOWN);
    Pump();
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    m_plum->Delete();
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0) << "the count of a collapsed group";
}

// --- What works on records -------------------------------------------------------------------------------------------

TEST_F(GroupTest, CopyingLeavesOutTheRowsOfGroups) {
    m_grid.GetSelectedRows()->SelectBlock(1, 3);
    m_grid.Copy();
    EXPECT_EQ(ClipboardContent::Text(), L"salt\t\tx\r\npear\tfruit\tx\r\n");
}

TEST_F(GroupTest, WhatAsksForARecordBearsThatThereIsNone) {
    Focus(2);
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    EXPECT_EQ(m_grid.OnToolHitTest(Row(2)->GetRect().CenterPoint(), &tool), -1);
    EXPECT_EQ(Row(2)->HitTest(Row(2)->GetRect().CenterPoint()), nullptr);
    EXPECT_TRUE(Row(2)->GetItemRect(m_pear->GetItem(0)).IsRectEmpty());
    EXPECT_FALSE(Row(2)->IsItemsVisible());
    EXPECT_EQ(m_grid.GetRows()->GetRecordAt(2), nullptr);
    XTP_REPORTRECORDITEM_ARGS args;
    args.pControl = &m_grid;
    args.pRow = Row(2);
    args.pColumn = m_columns[0];
    m_grid.AllowEdit(TRUE);
    m_grid.EditItem(&args);
    EXPECT_EQ(m_grid.GetActiveItem(), nullptr);
    m_grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_grid.m_hWnd), -1);
    Move(Row(2)->GetRect().CenterPoint(), 0);
    m_columns[0]->GetBestFitWidth();
    {
        const KeysDown ctrl({VK_CONTROL});
        Key(VK_F1);
    }
}

// --- Everything at once ---------------------------------------------------------------------------------------------

TEST_F(GroupTest, AgreesWithANaiveGroupingOverRandomOperations) {
    std::map<std::pair<std::wstring, std::wstring>, bool> collapsed; // by the texts of both levels
    for (unsigned seed = 1; seed <= 12; ++seed) {
        std::mt19937 random(seed);
        const auto upTo = [&random](int last) { return std::uniform_int_distribution<int>(0, last)(random); };
        m_grid.ResetContent();
        m_grid.GetColumns()->ResetSortOrder();
        std::vector<CXTPReportRecord*> all;
        Groups().Clear();
        Groups().Add(m_columns[1], TRUE);
        Groups().Add(m_columns[2], TRUE);
        const auto letter = [&] { return CString(static_cast<wchar_t>('a' + upTo(3))); };
        const auto addOne = [&] { all.push_back(Add(nullptr, letter(), letter(), letter())); };
        for (int i = 0; i < 20; ++i)
            addOne();
        m_grid.Populate();
        for (int step = 0; step < 40; ++step) {
            switch (upTo(6)) {
            case 0:
                addOne();
                m_grid.Populate();
                break;
            case 1:
                if (!all.empty()) {
                    const int gone = upTo(static_cast<int>(all.size()) - 1);
                    all[gone]->Delete();
                    all.erase(all.begin() + gone);
                }
                break;
            case 3:
                if (!all.empty()) {
                    const auto gone = std::stable_partition(all.begin(), all.end(), [&](auto*) { return upTo(3) > 0; });
                    m_grid.GetRecords()->RemoveRecords({gone, all.end()});
                    all.erase(gone, all.end());
                }
                break;
            case 2:
                m_grid.GetColumns()->SetSortColumn(m_columns[0], TRUE);
                m_grid.Populate();
                break;
            default:
                if (const int count = m_grid.GetRows()->GetCount()) {
                    CXTPReportRow* const row = Row(upTo(count - 1));
                    if (!row->IsGroupRow())
                        break;
                    const auto valueOf = [](const CXTPReportRow* group) {
                        return std::wstring(static_cast<const CXTPReportGroupRow*>(group)->GetValue());
                    };
                    const CXTPReportRow* const above = row->GetParentRow();
                    collapsed[{above ? valueOf(above) : valueOf(row), above ? valueOf(row) : std::wstring()}] =
                        row->IsExpanded() != FALSE;
                    row->SetExpanded(!row->IsExpanded());
                }
            }
            // Sorted maps are groups in order.
            std::map<CString, std::map<CString, std::vector<CXTPReportRecord*>>> groups;
            for (CXTPReportRecord* const record : all)
                groups[static_cast<ProbeItem*>(record->GetItem(1))->GetValue()]
                      [static_cast<ProbeItem*>(record->GetItem(2))->GetValue()]
                          .push_back(record);
            std::vector<std::wstring> expected;
            const bool isSorted = m_columns[0]->IsSorted() != FALSE;
            for (auto& [b, inner] : groups) {
                std::size_t count = 0;
                for (const auto& [c, records] : inner)
                    count += records.size();
                expected.push_back(L"[B: " + std::wstring(b) + L" (" + std::to_wstring(count) + L")]");
                if (collapsed[{std::wstring(b), std::wstring()}])
                    continue;
                for (auto& [c, records] : inner) {
                    expected.push_back(L".[C: " + std::wstring(c) + L" (" + std::to_wstring(records.size()) + L")]");
                    if (collapsed[{std::wstring(b), std::wstring(c)}])
                        continue;
                    std::vector<std::wstring> texts;
                    for (CXTPReportRecord* const record : records)
                        texts.push_back(L".." + std::wstring(static_cast<ProbeItem*>(record->GetItem(0))->GetValue()));
                    if (isSorted)
                        std::sort(texts.begin(), texts.end());
                    expected.insert(expected.end(), texts.begin(), texts.end());
                }
            }
            ASSERT_EQ(Shown(), expected) << "seed " << seed << ", step " << step;
        }
    }
}

} // namespace
