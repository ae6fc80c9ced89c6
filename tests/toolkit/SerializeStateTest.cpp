// The layout of a control, written to an archive and read back.
#include "ToolkitTestApp.h"

#include "../support/LayoutBytes.h"

#include <memory>
#include <random>

namespace {

using Bytes = std::vector<BYTE>;

/// "name width visible" of each column from left to right, then the sort order.
std::vector<std::wstring> Describe(const CXTPReportControl& control) {
    std::vector<std::wstring> lines;
    CXTPReportColumns* const columns = control.GetColumns();
    for (int i = 0; i < columns->GetCount(); ++i) {
        const CXTPReportColumn* const column = columns->GetAt(i);
        CString line;
        line.Format(L"%s %d %s", column->GetInternalName(), column->GetWidth(), column->IsVisible() ? L"+" : L"-");
        lines.push_back(line.GetString());
    }
    for (int i = 0; i < columns->GetSortOrder()->GetCount(); ++i) {
        const CXTPReportColumn* const column = columns->GetSortOrder()->GetAt(i);
        lines.push_back(std::wstring(L"sort ") + column->GetInternalName().GetString() +
                        (column->IsSortIncreasing() ? L" up" : L" down"));
    }
    for (int i = 0; i < columns->GetGroupsOrder()->GetCount(); ++i)
        lines.push_back(std::wstring(L"group ") + columns->GetGroupsOrder()->GetAt(i)->GetInternalName().GetString());
    return lines;
}

using Lines = std::vector<std::wstring>;

class SerializeStateTest : public ::testing::Test {
protected:
    SerializeStateTest() { AddColumns(m_control); }

    static void AddColumns(CXTPReportControl& control) {
        control.AddColumn(new CXTPReportColumn(0, L"Name", 100));
        control.AddColumn(new CXTPReportColumn(1, L"Größe", 80));
        control.AddColumn(new CXTPReportColumn(2, L"Shown", L"inner", 60));
    }
    /// Inner first and hidden, the others widened, sorted by two columns, grouped by one.
    static void Rearrange(CXTPReportControl& control) {
        CXTPReportColumns& columns = *control.GetColumns();
        columns.ChangeColumnOrder(0, 2);
        columns.GetAt(0)->SetVisible(FALSE);
        columns.GetAt(1)->SetWidth(130);
        columns.GetAt(2)->SetWidth(33);
        columns.GetSortOrder()->Add(columns.GetAt(2), FALSE);
        columns.GetSortOrder()->Add(columns.GetAt(1), TRUE);
        columns.GetGroupsOrder()->Add(columns.GetAt(1));
    }
    const Lines m_rearranged = {L"inner 60 -",      L"Name 130 +",   L"Größe 33 +",
                                L"sort Größe down", L"sort Name up", L"group Name"};
    const Lines m_original = {L"Name 100 +", L"Größe 80 +", L"inner 60 +"};

    CXTPReportControl m_control;
};

TEST_F(SerializeStateTest, RestoresOrderWidthVisibilitySortingAndGrouping) {
    const Bytes original = SaveLayout(m_control);
    Rearrange(m_control);
    ASSERT_EQ(Describe(m_control), m_rearranged);
    const Bytes rearranged = SaveLayout(m_control);
    EXPECT_EQ(LoadLayout(m_control, original), CArchiveException::none);
    EXPECT_EQ(Describe(m_control), m_original);
    EXPECT_EQ(LoadLayout(m_control, rearranged), CArchiveException::none);
    EXPECT_EQ(Describe(m_control), m_rearranged);
    EXPECT_EQ(SaveLayout(m_control), rearranged);
}

TEST_F(SerializeStateTest, RestoresIntoAnotherControl) {
    Rearrange(m_control);
    CXTPReportControl other;
    AddColumns(other);
    EXPECT_EQ(LoadLayout(other, SaveLayout(m_control)), CArchiveException::none);
    EXPECT_EQ(Describe(other), m_rearranged);
}

TEST_F(SerializeStateTest, RestoresFrozenColumnsAndTheGroupByBox) {
    const Bytes plain = SaveLayout(m_control);
    m_control.SetFreezeColumnsCount(2);
    m_control.ShowGroupBy();
    const Bytes frozen = SaveLayout(m_control);
    EXPECT_EQ(LoadLayout(m_control, plain), CArchiveException::none);
    EXPECT_EQ(m_control.GetFreezeColumnsCount(), 0);
    EXPECT_FALSE(m_control.IsGroupByVisible());
    EXPECT_EQ(LoadLayout(m_control, frozen), CArchiveException::none);
    EXPECT_EQ(m_control.GetFreezeColumnsCount(), 2);
    EXPECT_TRUE(m_control.IsGroupByVisible());
    EXPECT_EQ(SaveLayout(m_control), frozen);
}

TEST_F(SerializeStateTest, ALayoutOfBeforeLeavesFrozenColumnsAndTheBoxAlone) {
    Bytes bytes = SaveLayout(m_control);
    constexpr std::size_t viewSection = 2 + 4 + 4 + 1;
    bytes.resize(bytes.size() - viewSection);
    bytes[6] = static_cast<BYTE>(bytes[6] - viewSection);
    m_control.SetFreezeColumnsCount(1);
    m_control.ShowGroupBy();
    EXPECT_EQ(LoadLayout(m_control, bytes), CArchiveException::none);
    EXPECT_EQ(m_control.GetFreezeColumnsCount(), 1);
    EXPECT_TRUE(m_control.IsGroupByVisible());
}

TEST_F(SerializeStateTest, SortsTheRowsAsTheLayoutSays) {
    for (const wchar_t* text : {L"b", L"a", L"c"})
        AddTexts(m_control, {text});
    m_control.Populate();
    const Bytes unsorted = SaveLayout(m_control);
    m_control.GetColumns()->SetSortColumn(m_control.GetColumns()->GetAt(0), FALSE);
    const Bytes sorted = SaveLayout(m_control);
    EXPECT_EQ(LoadLayout(m_control, sorted), CArchiveException::none);
    EXPECT_EQ(RowTexts(m_control), (Lines{L"c", L"b", L"a"}));
    EXPECT_EQ(LoadLayout(m_control, unsorted), CArchiveException::none);
    EXPECT_EQ(RowTexts(m_control), (Lines{L"b", L"a", L"c"}));
}

TEST_F(SerializeStateTest, KeepsNewColumnsAndDropsUnknownOnes) {
    Rearrange(m_control);
    const Bytes bytes = SaveLayout(m_control);
    CXTPReportControl other;
    other.AddColumn(new CXTPReportColumn(0, L"New", 45));
    other.AddColumn(new CXTPReportColumn(2, L"Name", 100));
    other.AddColumn(new CXTPReportColumn(1, L"inner", 100));
    EXPECT_EQ(LoadLayout(other, bytes), CArchiveException::none);
    EXPECT_EQ(Describe(other), (Lines{L"inner 60 -", L"Name 130 +", L"New 45 +", L"sort Name up", L"group Name"}));
}

TEST_F(SerializeStateTest, BringsWidthsWithinTheLimitsOfToday) {
    Rearrange(m_control);
    const Bytes bytes = SaveLayout(m_control);
    m_control.GetColumns()->Find(CString(L"Name"))->SetMaxWidth(90);
    m_control.GetColumns()->Find(CString(L"Größe"))->SetMinWidth(50);
    EXPECT_EQ(LoadLayout(m_control, bytes), CArchiveException::none);
    EXPECT_EQ(m_control.GetColumns()->Find(CString(L"Name"))->GetWidth(), 90);
    EXPECT_EQ(m_control.GetColumns()->Find(CString(L"Größe"))->GetWidth(), 50);
}

TEST_F(SerializeStateTest, EveryTruncationThrowsEndOfFileAndChangesNothing) {
    CXTPReportControl source;
    AddColumns(source);
    Rearrange(source);
    const Bytes bytes = SaveLayout(source);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        ASSERT_EQ(LoadLayout(m_control, Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size))),
                  CArchiveException::endOfFile)
            << size;
        ASSERT_EQ(Describe(m_control), m_original) << size;
    }
}

TEST_F(SerializeStateTest, AnotherVersionOrGarbageThrowsBadSchemaAndChangesNothing) {
    CXTPReportControl source;
    AddColumns(source);
    Rearrange(source);
    Bytes otherVersion = SaveLayout(source);
    otherVersion[4] = 2;
    EXPECT_EQ(LoadLayout(m_control, otherVersion), CArchiveException::badSchema);
    EXPECT_EQ(LoadLayout(m_control, Bytes(200, 0xA5)), CArchiveException::badSchema);
    Bytes tooManyColumns = SaveLayout(source);
    tooManyColumns[16] = 0xFF;
    EXPECT_EQ(LoadLayout(m_control, tooManyColumns), CArchiveException::badSchema);
    Bytes hugeSize = SaveLayout(source);
    hugeSize[9] = 0x7F;
    EXPECT_EQ(LoadLayout(m_control, hugeSize), CArchiveException::badSchema);
    EXPECT_EQ(Describe(m_control), m_original);
}

TEST_F(SerializeStateTest, LeavesTheArchiveBehindTheLayout) {
    CMemFile file;
    CArchive store(&file, CArchive::store);
    m_control.SerializeState(store);
    store << 4711;
    store.Close();
    file.SeekToBegin();
    CArchive load(&file, CArchive::load);
    m_control.SerializeState(load);
    int behind = 0;
    load >> behind;
    EXPECT_EQ(behind, 4711);
}

TEST_F(SerializeStateTest, NoMutationLeavesTheControlUnusable) {
    Rearrange(m_control);
    const Bytes bytes = SaveLayout(m_control);
    std::mt19937 random(5);
    for (int i = 0; i < 2000; ++i) {
        Bytes mutated = bytes;
        for (unsigned changes = random() % 3 + 1; changes > 0; --changes)
            mutated[random() % mutated.size()] = static_cast<BYTE>(random());
        LoadLayout(m_control, mutated);
        CXTPReportColumns& columns = *m_control.GetColumns();
        ASSERT_EQ(columns.GetCount(), 3);
        for (const wchar_t* name : {L"Name", L"Größe", L"inner"}) {
            const CXTPReportColumn* const column = columns.Find(CString(name));
            ASSERT_NE(column, nullptr);
            ASSERT_GE(column->GetWidth(), column->GetMinWidth());
            ASSERT_LE(column->GetWidth(), column->GetMaxWidth());
        }
    }
    EXPECT_EQ(LoadLayout(m_control, bytes), CArchiveException::none);
    EXPECT_EQ(Describe(m_control), m_rearranged);
}

} // namespace
