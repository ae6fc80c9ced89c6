// Columns, their order, and the order of sorting.
#include "ToolkitTestApp.h"

#include <memory>

namespace {

std::vector<std::wstring> Names(const CXTPReportControl& control) {
    std::vector<std::wstring> names;
    for (int i = 0; i < control.GetColumns()->GetCount(); ++i)
        names.push_back(control.GetColumns()->GetAt(i)->GetInternalName().GetString());
    return names;
}

using Strings = std::vector<std::wstring>;

class ColumnsTest : public ::testing::Test {
protected:
    ColumnsTest() {
        for (const wchar_t* name : {L"a", L"b", L"c", L"d"})
            m_control.AddColumn(new CXTPReportColumn(m_control.GetColumns()->GetCount(), name, 50));
    }
    CXTPReportColumns& Columns() { return *m_control.GetColumns(); }
    CXTPReportColumn& Column(int index) { return *Columns().GetAt(index); }

    CXTPReportControl m_control;
};

TEST_F(ColumnsTest, ACaptionIsAlsoTheInternalNameUnlessThereIsAnother) {
    m_control.AddColumn(new CXTPReportColumn(7, L"Shown", L"inside", 60));
    EXPECT_EQ(Column(0).GetCaption(), L"a");
    EXPECT_EQ(Column(0).GetInternalName(), L"a");
    EXPECT_EQ(Column(4).GetCaption(), L"Shown");
    EXPECT_EQ(Column(4).GetInternalName(), L"inside");
    EXPECT_EQ(Column(4).GetItemIndex(), 7);
    EXPECT_EQ(Column(4).GetIndex(), 4);
}

TEST_F(ColumnsTest, AColumnStartsVisibleSortableRemovableResizable) {
    EXPECT_TRUE(Column(0).IsVisible());
    EXPECT_TRUE(Column(0).IsSortable());
    EXPECT_TRUE(Column(0).IsAllowRemove());
    EXPECT_TRUE(Column(0).IsAllowDragging());
    EXPECT_TRUE(Column(0).IsResizable());
    EXPECT_TRUE(Column(0).IsAutoSize());
    EXPECT_FALSE(Column(0).IsSorted());
    EXPECT_EQ(Column(0).GetAlignment(), DT_LEFT);
    EXPECT_EQ(Column(0).GetIconID(), -1);
}

TEST_F(ColumnsTest, TheHeaderFollowsTheAlignmentUntilItHasItsOwn) {
    Column(0).SetAlignment(DT_RIGHT);
    EXPECT_EQ(Column(0).GetHeaderAlignment(), DT_RIGHT);
    Column(0).SetHeaderAlignment(DT_CENTER);
    Column(0).SetAlignment(DT_LEFT);
    EXPECT_EQ(Column(0).GetHeaderAlignment(), DT_CENTER);
}

TEST_F(ColumnsTest, WidthsStayWithinTheLimits) {
    Column(0).SetMinWidth(30);
    Column(0).SetMaxWidth(200);
    Column(0).SetWidth(10);
    EXPECT_EQ(Column(0).GetWidth(), 30);
    Column(0).SetWidth(5000);
    EXPECT_EQ(Column(0).GetWidth(), 200);
    Column(0).SetMaxWidth(100);
    EXPECT_EQ(Column(0).GetWidth(), 100);
    Column(0).SetMinWidth(150);
    EXPECT_EQ(Column(0).GetMaxWidth(), 150) << "the limit that was set last holds";
    EXPECT_EQ(Column(0).GetWidth(), 150);
    Column(0).SetMaxWidth(20);
    EXPECT_EQ(Column(0).GetMinWidth(), 20);
    EXPECT_EQ(Column(0).GetWidth(), 20);
    Column(0).SetMinWidth(-5);
    EXPECT_EQ(Column(0).GetMinWidth(), 0);
    EXPECT_EQ(std::make_unique<CXTPReportColumn>(0, L"x", -3)->GetWidth(), 10) << "no column comes up unreachable";
}

TEST_F(ColumnsTest, AreFoundByItemIndexAndByInternalName) {
    m_control.AddColumn(new CXTPReportColumn(9, L"Caption", L"name", 50));
    EXPECT_EQ(Columns().Find(9), Columns().GetAt(4));
    EXPECT_EQ(Columns().Find(CString(L"name")), Columns().GetAt(4));
    EXPECT_EQ(Columns().Find(CString(L"Name")), nullptr) << "case counts";
    EXPECT_EQ(Columns().Find(CString(L"Caption")), nullptr);
    EXPECT_EQ(Columns().Find(8), nullptr);
    EXPECT_EQ(Columns().GetAt(5), nullptr);
    EXPECT_EQ(Columns().GetAt(-1), nullptr);
}

TEST_F(ColumnsTest, VisibleOnesAreCountedFromTheLeft) {
    Column(1).SetVisible(FALSE);
    EXPECT_EQ(Columns().GetVisibleColumnsCount(), 3);
    EXPECT_EQ(Columns().GetVisibleAt(1), Columns().GetAt(2));
    EXPECT_EQ(Columns().GetVisibleAt(3), nullptr);
    EXPECT_EQ(Columns().GetVisibleAt(-1), nullptr);
}

TEST_F(ColumnsTest, AColumnIsMovedToAnotherPlace) {
    EXPECT_EQ(Columns().ChangeColumnOrder(2, 0), 2);
    EXPECT_EQ(Names(m_control), (Strings{L"b", L"c", L"a", L"d"}));
    EXPECT_EQ(Columns().ChangeColumnOrder(0, 3), 0);
    EXPECT_EQ(Names(m_control), (Strings{L"d", L"b", L"c", L"a"}));
    EXPECT_EQ(Columns().ChangeColumnOrder(1, 1), 1);
    EXPECT_EQ(Columns().ChangeColumnOrder(99, 0), 3);
    EXPECT_EQ(Names(m_control), (Strings{L"b", L"c", L"a", L"d"}));
    EXPECT_EQ(Columns().ChangeColumnOrder(0, 4), -1);
    EXPECT_EQ(Columns().ChangeColumnOrder(0, -1), -1);
    EXPECT_EQ(Names(m_control), (Strings{L"b", L"c", L"a", L"d"}));
    EXPECT_EQ(Column(2).GetIndex(), 2);
}

TEST_F(ColumnsTest, ARemovedColumnLeavesEveryOrder) {
    Columns().GetSortOrder()->Add(&Column(0));
    Columns().GetSortOrder()->Add(&Column(1));
    Columns().GetGroupsOrder()->Add(&Column(1));
    CXTPReportColumn* const removed = &Column(1);
    removed->InternalAddRef();
    Columns().Remove(removed);
    EXPECT_EQ(Names(m_control), (Strings{L"a", L"c", L"d"}));
    EXPECT_EQ(Columns().GetSortOrder()->GetCount(), 1);
    EXPECT_EQ(Columns().GetGroupsOrder()->GetCount(), 0);
    EXPECT_EQ(removed->GetIndex(), -1);
    EXPECT_EQ(removed->GetControl(), nullptr);
    removed->SetWidth(70);
    EXPECT_FALSE(removed->IsSorted());
    Columns().Remove(removed);
    Columns().Remove(nullptr);
    EXPECT_EQ(Columns().GetCount(), 3);
    removed->InternalRelease();
    Columns().Clear();
    EXPECT_EQ(Columns().GetCount(), 0);
    EXPECT_EQ(Columns().GetSortOrder()->GetCount(), 0);
}

TEST_F(ColumnsTest, TheSortOrderHoldsAColumnOnce) {
    CXTPReportColumnOrder& order = *Columns().GetSortOrder();
    EXPECT_EQ(order.Add(&Column(0), FALSE), 0);
    EXPECT_EQ(order.Add(&Column(1), TRUE), 1);
    EXPECT_TRUE(Column(0).IsSortedDecreasing());
    EXPECT_TRUE(Column(1).IsSortedIncreasing());
    EXPECT_EQ(order.Add(&Column(0), TRUE), 1) << "moves to the end";
    EXPECT_TRUE(Column(0).IsSortedIncreasing());
    EXPECT_EQ(order.GetAt(0), &Column(1));
    EXPECT_EQ(order.GetAt(2), nullptr);
    EXPECT_EQ(order.IndexOf(&Column(2)), -1);
    EXPECT_EQ(order.Add(nullptr), -1);
    Columns().SetSortColumn(&Column(3), FALSE);
    EXPECT_EQ(order.GetCount(), 1);
    EXPECT_TRUE(Column(3).IsSortedDecreasing());
    EXPECT_FALSE(Column(0).IsSorted());
    Columns().SetSortColumn(nullptr, TRUE);
    EXPECT_EQ(order.GetCount(), 0);
}

TEST_F(ColumnsTest, TheNextVisibleColumnPassesOverHiddenOnes) {
    const CXTPReportHeader& header = *m_control.GetReportHeader();
    Column(1).SetVisible(FALSE);
    EXPECT_EQ(header.GetNextVisibleColumn(0), &Column(2));
    EXPECT_EQ(header.GetNextVisibleColumn(0, 1), &Column(2));
    EXPECT_EQ(header.GetNextVisibleColumn(2, -1), &Column(0));
    EXPECT_EQ(header.GetNextVisibleColumn(1, -1), &Column(0)) << "from a hidden one";
    EXPECT_EQ(header.GetNextVisibleColumn(3), nullptr);
    EXPECT_EQ(header.GetNextVisibleColumn(0, -1), nullptr);
    EXPECT_EQ(header.GetNextVisibleColumn(-1), &Column(0));
    EXPECT_EQ(header.GetNextVisibleColumn(4, -1), &Column(3));
    EXPECT_EQ(header.GetNextVisibleColumn(INT_MAX, -1), &Column(3));
    EXPECT_EQ(header.GetNextVisibleColumn(INT_MAX, 1), nullptr);
    EXPECT_EQ(header.GetNextVisibleColumn(INT_MIN, 1), &Column(0));
    EXPECT_EQ(header.GetNextVisibleColumn(INT_MIN, -1), nullptr);
}

} // namespace
