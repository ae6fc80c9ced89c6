// Records and the rows that show them: adding, sorting, removing at any time, virtual mode.
#include "ToolkitTestApp.h"

#include "report/RecordItemHeap.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <random>

namespace {

using Texts = std::vector<std::wstring>;

// --- Records --------------------------------------------------------------------------------------------------------

TEST_F(ReportModelTest, RecordsKnowTheirPlaceInTheCollection) {
    CXTPReportRecord* const a = AddTexts(m_control, {L"a"});
    CXTPReportRecord* const c = AddTexts(m_control, {L"c"});
    auto* const b = new CXTPReportRecord;
    EXPECT_EQ(b->GetIndex(), -1);
    m_control.GetRecords()->InsertAt(1, b);
    EXPECT_EQ(a->GetIndex(), 0);
    EXPECT_EQ(b->GetIndex(), 1);
    EXPECT_EQ(c->GetIndex(), 2);
    auto* const first = new CXTPReportRecord;
    auto* const last = new CXTPReportRecord;
    m_control.GetRecords()->InsertAt(-5, first);
    m_control.GetRecords()->InsertAt(99, last);
    EXPECT_EQ(first->GetIndex(), 0);
    EXPECT_EQ(last->GetIndex(), 4);
    EXPECT_EQ(m_control.GetRecords()->GetAt(4), last);
    EXPECT_EQ(m_control.GetRecords()->GetAt(5), nullptr);
    EXPECT_EQ(m_control.GetRecords()->GetAt(-1), nullptr);
    EXPECT_EQ(m_control.GetRecords()->Add(nullptr), nullptr);
    EXPECT_EQ(m_control.GetRecords()->GetCount(), 5);
}

TEST_F(ReportModelTest, OnlyItsOwnRecordsAreRemoved) {
    CXTPReportControl other;
    CXTPReportRecord* const foreign = AddTexts(other, {L"x"});
    AddTexts(m_control, {L"a"});
    EXPECT_FALSE(m_control.GetRecords()->RemoveRecord(foreign));
    EXPECT_FALSE(m_control.GetRecords()->RemoveRecord(nullptr));
    m_control.GetRecords()->RemoveAt(7);
    EXPECT_EQ(m_control.GetRecords()->GetCount(), 1);
    EXPECT_EQ(other.GetRecords()->GetCount(), 1);
}

TEST_F(ReportModelTest, ARecordInNoCollectionDeletesItself) {
    const std::size_t before = recorditemheap::LiveRecords();
    auto* const record = new CXTPReportRecord;
    EXPECT_EQ(recorditemheap::LiveRecords(), before + 1);
    record->Delete();
    EXPECT_EQ(recorditemheap::LiveRecords(), before);
}

// --- Rows -----------------------------------------------------------------------------------------------------------

TEST_F(ReportModelTest, RowsShowTheVisibleRecordsAfterPopulate) {
    AddTexts(m_control, {L"a"});
    AddTexts(m_control, {L"b"})->SetVisible(FALSE);
    AddTexts(m_control, {L"c"});
    EXPECT_EQ(m_control.GetRows()->GetCount(), 0);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"a", L"c"}));
    EXPECT_EQ(m_control.GetRows()->GetAt(1)->GetIndex(), 1);
    EXPECT_EQ(m_control.GetRows()->GetAt(1)->GetControl(), &m_control);
    EXPECT_EQ(m_control.GetRows()->GetAt(2), nullptr);
    EXPECT_EQ(m_control.GetRows()->GetAt(-1), nullptr);
}

TEST_F(ReportModelTest, ARowIsFoundByItsRecord) {
    CXTPReportRecord* const a = AddTexts(m_control, {L"a"});
    CXTPReportRecord* const hidden = AddTexts(m_control, {L"b"});
    hidden->SetVisible(FALSE);
    CXTPReportRecord* const c = AddTexts(m_control, {L"c"});
    EXPECT_EQ(m_control.GetRows()->Find(a), nullptr) << "not populated yet";
    m_control.Populate();
    EXPECT_EQ(m_control.GetRows()->Find(c), m_control.GetRows()->GetAt(1));
    EXPECT_EQ(m_control.GetRows()->Find(hidden), nullptr);
    EXPECT_EQ(m_control.GetRows()->Find(nullptr), nullptr);
}

TEST_F(ReportModelTest, ARowObjectStaysTheSameUntilTheNextPopulate) {
    AddTexts(m_control, {L"a"});
    m_control.Populate();
    CXTPReportRow* const row = m_control.GetRows()->GetAt(0);
    EXPECT_EQ(m_control.GetRows()->GetAt(0), row);
    row->InternalAddRef();
    m_control.Populate();
    EXPECT_EQ(row->GetControl(), nullptr);
    EXPECT_EQ(row->GetRecord(), nullptr);
    EXPECT_NE(m_control.GetRows()->GetAt(0), row);
    EXPECT_FALSE(row->IsSelected());
    row->InternalRelease();
}

TEST_F(ReportModelTest, DeletingARecordTakesItsRowOutAtOnce) {
    AddTexts(m_control, {L"a"});
    CXTPReportRecord* const b = AddTexts(m_control, {L"b"});
    AddTexts(m_control, {L"c"});
    m_control.Populate();
    CXTPReportRow* const rowB = m_control.GetRows()->GetAt(1);
    CXTPReportRow* const rowC = m_control.GetRows()->GetAt(2);
    rowB->InternalAddRef();
    b->Delete();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"a", L"c"}));
    EXPECT_EQ(rowB->GetRecord(), nullptr);
    EXPECT_EQ(rowB->GetControl(), nullptr);
    EXPECT_EQ(rowC->GetIndex(), 1);
    EXPECT_EQ(m_control.GetRows()->GetAt(1), rowC);
    rowB->InternalRelease();
}

TEST_F(ReportModelTest, RowsThatWereLookedAtMoveUpWhenRecordsGo) {
    for (int i = 0; i < 1000; ++i)
        AddNumbers(m_control, {1.0 * i});
    m_control.Populate();
    const CXTPReportRows& rows = *m_control.GetRows();
    std::vector<CXTPReportRow*> looked;
    for (int i = 0; i < 1000; ++i)
        if (i < 3 || (i > 250 && i < 260) || i == 512 || i > 998)
            looked.push_back(rows.GetAt(i));
    std::vector<const CXTPReportRecord*> records;
    for (const CXTPReportRow* const row : looked)
        records.push_back(row->GetRecord());
    for (const int removed : {20, 700, 0}) {
        m_control.GetRecords()->GetAt(removed)->Delete();
        if (removed == 0) {
            looked.erase(looked.begin());
            records.erase(records.begin());
        }
        for (std::size_t i = 0; i < looked.size(); ++i) {
            ASSERT_EQ(looked[i]->GetRecord(), records[i]);
            ASSERT_EQ(looked[i]->GetIndex(), records[i]->GetIndex());
            ASSERT_EQ(rows.GetAt(looked[i]->GetIndex()), looked[i]);
        }
    }
}

TEST_F(ReportModelTest, ThousandsOfRecordsAreRemovedInAnyOrder) {
    std::vector<CXTPReportRecord*> records;
    for (int i = 0; i < 5000; ++i)
        records.push_back(AddNumbers(m_control, {1.0 * i}));
    m_control.Populate();
    std::mt19937 random(7);
    std::shuffle(records.begin(), records.end(), random);
    while (records.size() > 100) {
        records.back()->Delete();
        records.pop_back();
    }
    std::sort(records.begin(), records.end(), [](CXTPReportRecord* a, CXTPReportRecord* b) {
        return a->GetItem(0)->Compare(nullptr, b->GetItem(0)) < 0;
    });
    ASSERT_EQ(m_control.GetRecords()->GetCount(), 100);
    ASSERT_EQ(m_control.GetRows()->GetCount(), 100);
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(m_control.GetRecords()->GetAt(i), records[i]);
        ASSERT_EQ(records[i]->GetIndex(), i);
        ASSERT_EQ(m_control.GetRows()->Find(records[i])->GetIndex(), i);
    }
}

TEST_F(ReportModelTest, RecordsMayComeAndGoBetweenEachOther) {
    std::vector<CXTPReportRecord*> expected;
    std::mt19937 random(3);
    for (int step = 0; step < 4000; ++step) {
        const int count = static_cast<int>(expected.size());
        const int at = count ? static_cast<int>(random() % count) : 0;
        if (random() % 3 != 0) {
            auto* const record = new CXTPReportRecord;
            m_control.GetRecords()->InsertAt(at, record);
            expected.insert(expected.begin() + at, record);
        } else if (count) {
            expected[at]->Delete();
            expected.erase(expected.begin() + at);
        }
    }
    ASSERT_EQ(m_control.GetRecords()->GetCount(), static_cast<int>(expected.size()));
    for (int i = 0; i < static_cast<int>(expected.size()); ++i) {
        ASSERT_EQ(m_control.GetRecords()->GetAt(i), expected[i]);
        ASSERT_EQ(expected[i]->GetIndex(), i);
    }
}

TEST_F(ReportModelTest, ResetContentLeavesNoRowAndNoRecord) {
    const std::size_t before = recorditemheap::LiveRecords();
    for (int i = 0; i < 10; ++i)
        AddTexts(m_control, {L"a"});
    m_control.Populate();
    m_control.GetSelectedRows()->SelectBlock(0, 9);
    m_control.ResetContent();
    EXPECT_EQ(m_control.GetRows()->GetCount(), 0);
    EXPECT_EQ(m_control.GetSelectedRows()->GetCount(), 0);
    EXPECT_EQ(m_control.GetFocusedRow(), nullptr);
    EXPECT_EQ(recorditemheap::LiveRecords(), before);
}

// --- Sorting ---------------------------------------------------------------------------------------------------------

TEST_F(ReportModelTest, RowsAreSortedByTheSortColumn) {
    for (const wchar_t* text : {L"pear", L"Apple", L"fig", L"apple", L"Ärger", L"zoo"})
        AddTexts(m_control, {text});
    m_control.GetColumns()->SetSortColumn(m_columnA, TRUE);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"Apple", L"apple", L"Ärger", L"fig", L"pear", L"zoo"}));
    m_control.GetColumns()->SetSortColumn(m_columnA, FALSE);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"zoo", L"pear", L"fig", L"Ärger", L"Apple", L"apple"}))
        << "equal ones keep the order of the records";
    m_control.GetColumns()->ResetSortOrder();
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"pear", L"Apple", L"fig", L"apple", L"Ärger", L"zoo"}));
}

TEST_F(ReportModelTest, NumbersAreSortedByValueWithNaNFirst) {
    for (const double number : {10.0, 9.0, std::numeric_limits<double>::quiet_NaN(), -1.0, double{INFINITY}})
        AddNumbers(m_control, {number});
    m_control.GetColumns()->SetSortColumn(m_columnA, TRUE);
    m_control.Populate();
    const Texts texts = RowTexts(m_control);
    EXPECT_EQ(Texts(texts.begin() + 1, texts.end()), (Texts{L"-1", L"9", L"10", L"inf"}));
    EXPECT_TRUE(std::isnan(
        static_cast<CXTPReportRecordItemNumber*>(m_control.GetRows()->GetAt(0)->GetRecord()->GetItem(0))->GetValue()));
}

TEST_F(ReportModelTest, NumbersOfAllKindsAreSortedInBothDirections) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const std::vector<double> numbers{2.5, -0.0, inf, -1e-300, 0.0, -inf, 5e-324, -2.5, 1e300, 0.0, -0.0, -1e300};
    for (const double number : numbers)
        AddNumbers(m_control, {number});
    for (const bool increasing : {true, false}) {
        std::vector<double> expected = numbers;
        std::stable_sort(expected.begin(), expected.end(),
                         [increasing](double a, double b) { return increasing ? a < b : a > b; });
        m_control.GetColumns()->SetSortColumn(m_columnA, increasing);
        m_control.Populate();
        for (int row = 0; row < m_control.GetRows()->GetCount(); ++row) {
            const auto* const item =
                dynamic_cast<CXTPReportRecordItemNumber*>(m_control.GetRows()->GetRecordAt(row)->GetItem(0));
            EXPECT_EQ(item->GetValue(), expected[row]) << row;
            EXPECT_EQ(std::signbit(item->GetValue()), std::signbit(expected[row]))
                << "equal ones stay in order " << row;
        }
    }
}

TEST_F(ReportModelTest, ManyRecordsAreSortedAsFewAre) {
    // Numbers of all sizes among few that occur often; the second column tells those apart, or nothing does.
    std::mt19937_64 random(5);
    constexpr int count = 20000;
    for (int i = 0; i < count; ++i) {
        const double often = static_cast<int>(random() % 3) - 1.0;
        const double any =
            std::ldexp(static_cast<double>(random() % 2000) - 1000, static_cast<int>(random() % 60) - 30);
        AddNumbers(m_control, {i % 2 ? often : any, static_cast<double>(random() % 100)});
    }
    const auto value = [](const CXTPReportRecord* record, int item) {
        return static_cast<CXTPReportRecordItemNumber*>(record->GetItem(item))->GetValue();
    };
    for (const bool increasing : {true, false}) {
        m_control.GetColumns()->GetSortOrder()->Clear();
        m_control.GetColumns()->GetSortOrder()->Add(m_columnA, increasing);
        m_control.GetColumns()->GetSortOrder()->Add(m_columnB, TRUE);
        m_control.Populate();
        std::vector<CXTPReportRecord*> expected;
        for (int i = 0; i < count; ++i)
            expected.push_back(m_control.GetRecords()->GetAt(i));
        std::stable_sort(expected.begin(), expected.end(), [&](CXTPReportRecord* a, CXTPReportRecord* b) {
            if (value(a, 0) != value(b, 0))
                return increasing ? value(a, 0) < value(b, 0) : value(a, 0) > value(b, 0);
            return value(a, 1) < value(b, 1);
        });
        for (int row = 0; row < count; ++row)
            ASSERT_EQ(m_control.GetRows()->GetRecordAt(row), expected[row]) << row << ", " << increasing;
    }
}

TEST_F(ReportModelTest, LaterColumnsDecideAmongEqualOnes) {
    AddNumbers(m_control, {2, 1});
    AddNumbers(m_control, {1, 1});
    AddNumbers(m_control, {2, 3});
    AddNumbers(m_control, {1, 2});
    m_control.GetColumns()->GetSortOrder()->Add(m_columnA, TRUE);
    m_control.GetColumns()->GetSortOrder()->Add(m_columnB, FALSE);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control, 0), (Texts{L"1", L"1", L"2", L"2"}));
    EXPECT_EQ(RowTexts(m_control, 1), (Texts{L"2", L"1", L"3", L"1"}));
}

TEST_F(ReportModelTest, RecordsWithoutACellComeFirst) {
    AddTexts(m_control, {L"a", L"x"});
    AddTexts(m_control, {L"b"});
    AddTexts(m_control, {L"c", L"m"});
    m_control.GetColumns()->SetSortColumn(m_columnB, TRUE);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"b", L"c", L"a"}));
    m_control.GetColumns()->SetSortColumn(m_columnB, FALSE);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"a", L"c", L"b"}));
}

/// Compares by the last character alone.
class LastCharacterItem : public CXTPReportRecordItemText {
public:
    using CXTPReportRecordItemText::CXTPReportRecordItemText;
    int Compare(CXTPReportColumn* pColumn, CXTPReportRecordItem* pItem) override {
        const CString other = pItem->GetCaption(pColumn);
        return m_strText.GetString()[m_strText.GetLength() - 1] - other[other.GetLength() - 1];
    }
};

TEST_F(ReportModelTest, CellsOfOneOwnKindSortAsTheyCompare) {
    for (const wchar_t* text : {L"ac", L"bb", L"ca"}) {
        auto* const record = new CXTPReportRecord;
        record->AddItem(new LastCharacterItem(text));
        m_control.AddRecord(record);
    }
    m_control.GetColumns()->SetSortColumn(m_columnA, TRUE);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"ca", L"bb", L"ac"}));
}

TEST_F(ReportModelTest, TextsSortLikeTheirComparison) {
    // The fast way of sorting plain texts has to agree with comparing them.
    std::mt19937 random(11);
    const std::wstring letters = L"aAbBzZäÄöß0129 -_'.éñ";
    for (int i = 0; i < 400; ++i) {
        std::wstring text;
        for (unsigned length = random() % 6; length > 0; --length)
            text += letters[random() % letters.size()];
        AddTexts(m_control, {text.c_str()});
    }
    m_control.GetColumns()->SetSortColumn(m_columnA, TRUE);
    m_control.Populate();
    for (int i = 0; i + 1 < m_control.GetRows()->GetCount(); ++i) {
        CXTPReportRecord* const upper = m_control.GetRows()->GetRecordAt(i);
        CXTPReportRecord* const lower = m_control.GetRows()->GetRecordAt(i + 1);
        const int order = upper->GetItem(0)->Compare(m_columnA, lower->GetItem(0));
        ASSERT_LE(order, 0) << upper->GetItem(0)->GetCaption(nullptr).GetString() << L" / "
                            << lower->GetItem(0)->GetCaption(nullptr).GetString();
        ASSERT_TRUE(order < 0 || upper->GetIndex() < lower->GetIndex()) << "stable";
    }
}

TEST_F(ReportModelTest, TextsOfAnyLengthAreSorted) {
    const std::wstring longText(5000, L'm');
    for (const std::wstring& text :
         {longText + L"b", std::wstring(L"n"), longText + L"a", std::wstring(L"l"), std::wstring()})
        AddTexts(m_control, {text.c_str()});
    m_control.GetColumns()->SetSortColumn(m_columnA, TRUE);
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"", L"l", longText + L"a", longText + L"b", L"n"}));
}

// --- Selection -------------------------------------------------------------------------------------------------------

class SelectionTest : public ReportModelTest {
protected:
    SelectionTest() {
        for (int i = 0; i < 10; ++i)
            m_records.push_back(AddNumbers(m_control, {1.0 * i, 1.0 * (9 - i)}));
        m_control.Populate();
    }
    CXTPReportSelectedRows& Selected() { return *m_control.GetSelectedRows(); }
    CXTPReportRow* Row(int index) { return m_control.GetRows()->GetAt(index); }

    std::vector<CXTPReportRecord*> m_records;
};

TEST_F(SelectionTest, ABlockIsGivenInEitherDirectionAndClamped) {
    Selected().SelectBlock(5, 3);
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{3, 4, 5}));
    Selected().SelectBlock(8, 100, FALSE);
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{3, 4, 5, 8, 9}));
    Selected().SelectBlock(-4, 0);
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{0}));
    EXPECT_EQ(Selected().GetAt(1), nullptr);
    EXPECT_EQ(Selected().GetAt(-1), nullptr);
}

TEST_F(SelectionTest, RowsAreAddedRemovedInvertedAndChosenAlone) {
    Selected().Add(Row(2));
    Selected().Add(Row(4));
    Selected().Invert(Row(4));
    Selected().Invert(Row(6));
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{2, 6}));
    EXPECT_TRUE(Selected().Contains(Row(2)));
    EXPECT_TRUE(Row(6)->IsSelected());
    EXPECT_FALSE(Row(4)->IsSelected());
    Selected().Remove(Row(2));
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{6}));
    Selected().Select(Row(7));
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{7}));
    Row(8)->SetSelected(TRUE);
    Row(7)->SetSelected(FALSE);
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{8}));
    Selected().Select(nullptr);
    EXPECT_EQ(Selected().GetCount(), 0);
}

TEST_F(SelectionTest, WithoutMultipleSelectionOneRowIsSelected) {
    m_control.SetMultipleSelection(FALSE);
    Selected().SelectBlock(2, 5);
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{5}));
    Selected().Add(Row(8));
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{8}));
    Selected().Invert(Row(8));
    EXPECT_EQ(Selected().GetCount(), 0);
}

TEST_F(SelectionTest, NothingIsSelectedInAnEmptyControl) {
    CXTPReportControl empty;
    empty.GetSelectedRows()->SelectBlock(0, 5);
    EXPECT_EQ(empty.GetSelectedRows()->GetCount(), 0);
    EXPECT_FALSE(empty.GetSelectedRows()->Contains(Row(0))) << "a row of another control";
}

TEST_F(SelectionTest, StaysWithItsRecordsWhenTheRowsAreSorted) {
    Selected().SelectBlock(1, 3);
    Selected().SetAnchor(1);
    m_control.SetFocusedRow(Row(3), FALSE);
    m_control.GetColumns()->SetSortColumn(m_columnB, TRUE);
    m_control.Populate();
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{6, 7, 8}));
    EXPECT_EQ(m_control.GetFocusedRow()->GetRecord(), m_records[3]);
    EXPECT_EQ(Selected().GetAnchor(), 8);
}

TEST_F(SelectionTest, ForgetsRecordsThatAreHidden) {
    Selected().SelectBlock(1, 3);
    m_control.SetFocusedRow(Row(2), FALSE);
    m_records[2]->SetVisible(FALSE);
    m_control.Populate();
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{1, 2}));
    EXPECT_EQ(Row(2)->GetRecord(), m_records[3]);
    EXPECT_EQ(m_control.GetFocusedRow(), nullptr);
}

TEST_F(SelectionTest, MovesUpWhenARowAboveIsDeleted) {
    Selected().SelectBlock(4, 6);
    Selected().SetAnchor(4);
    m_control.SetFocusedRow(Row(6), FALSE);
    m_records[5]->Delete();
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{4, 5}));
    m_records[0]->Delete();
    EXPECT_EQ(SelectedIndices(m_control), (std::vector<int>{3, 4}));
    EXPECT_EQ(Selected().GetAnchor(), 3);
    EXPECT_EQ(m_control.GetFocusedRow()->GetRecord(), m_records[6]);
}

TEST_F(SelectionTest, DeletingEveryRecordOneByOneLeavesNothingBehind) {
    Selected().SelectBlock(0, 9);
    m_control.SetFocusedRow(Row(9), FALSE);
    for (CXTPReportRecord* const record : m_records) {
        record->Delete();
        const CXTPReportRow* const focused = m_control.GetFocusedRow();
        EXPECT_TRUE(!focused || focused->GetRecord());
        EXPECT_EQ(Selected().GetCount(), m_control.GetRows()->GetCount());
    }
    EXPECT_EQ(m_control.GetRows()->GetCount(), 0);
    EXPECT_EQ(m_control.GetFocusedRow(), nullptr);
}

// --- Virtual mode ----------------------------------------------------------------------------------------------------

/// Shows the index of the row that is drawn.
class RowNumberItem : public CXTPReportRecordItem {
public:
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics) override {
        CXTPReportRecordItem::GetItemMetrics(pDrawArgs, pMetrics);
        pMetrics->strText.Format(L"row %d", pDrawArgs->pRow->GetIndex());
    }
};

TEST_F(ReportModelTest, InVirtualModeOneRecordStandsForAllRows) {
    const std::size_t before = recorditemheap::LiveRecords();
    AddTexts(m_control, {L"gone"});
    auto* const record = new CXTPReportRecord;
    record->AddItem(new RowNumberItem);
    m_control.SetVirtualMode(record, std::numeric_limits<int>::max());
    m_control.Populate();
    EXPECT_TRUE(m_control.IsVirtualMode());
    EXPECT_EQ(recorditemheap::LiveRecords(), before + 1) << "it takes the place of the records that were there";
    EXPECT_EQ(m_control.GetRows()->GetCount(), std::numeric_limits<int>::max());
    CXTPReportRow* const row = m_control.GetRows()->GetAt(2000000000);
    EXPECT_EQ(row->GetRecord(), record);
    EXPECT_EQ(row->GetIndex(), 2000000000);
    EXPECT_EQ(record->GetItem(0)->GetReportControl(), &m_control);
    EXPECT_EQ(record->GetIndex(), -1);

    XTP_REPORTRECORDITEM_DRAWARGS args;
    XTP_REPORTRECORDITEM_METRICS metrics;
    args.pControl = &m_control;
    args.pRow = row;
    record->GetItem(0)->GetItemMetrics(&args, &metrics);
    EXPECT_EQ(metrics.strText, L"row 2000000000");
}

TEST_F(ReportModelTest, AVirtualSelectionCostsNoMoreThanItsRanges) {
    m_control.SetVirtualMode(new CXTPReportRecord, 2000000000);
    m_control.Populate();
    m_control.GetSelectedRows()->SelectBlock(0, 1999999999);
    EXPECT_EQ(m_control.GetSelectedRows()->GetCount(), 2000000000);
    EXPECT_EQ(m_control.GetSelectedRows()->GetAt(1999999999)->GetIndex(), 1999999999);
    m_control.SetFocusedRow(m_control.GetRows()->GetAt(1500000000), FALSE);
    m_control.Populate();
    EXPECT_EQ(m_control.GetSelectedRows()->GetCount(), 2000000000) << "it stays with the row indices";
    EXPECT_EQ(m_control.GetFocusedRow()->GetIndex(), 1500000000);
    m_control.SetVirtualMode(m_control.GetRecords()->GetVirtualRecord(), 100);
    m_control.Populate();
    EXPECT_EQ(m_control.GetSelectedRows()->GetCount(), 100);
    EXPECT_EQ(m_control.GetFocusedRow(), nullptr);
}

TEST_F(ReportModelTest, VirtualModeEnds) {
    const std::size_t before = recorditemheap::LiveRecords();
    m_control.SetVirtualMode(new CXTPReportRecord, 50);
    m_control.Populate();
    m_control.SetVirtualMode(nullptr, 0);
    m_control.Populate();
    EXPECT_FALSE(m_control.IsVirtualMode());
    EXPECT_EQ(recorditemheap::LiveRecords(), before);
    AddTexts(m_control, {L"a"});
    m_control.Populate();
    EXPECT_EQ(RowTexts(m_control), (Texts{L"a"}));
}

TEST_F(ReportModelTest, DeletingTheVirtualRecordEndsVirtualMode) {
    auto* const record = new CXTPReportRecord;
    m_control.SetVirtualMode(record, 50);
    m_control.Populate();
    CXTPReportRow* const row = m_control.GetRows()->GetAt(3);
    row->InternalAddRef();
    record->Delete();
    EXPECT_FALSE(m_control.IsVirtualMode());
    EXPECT_EQ(m_control.GetRows()->GetCount(), 0);
    EXPECT_EQ(row->GetRecord(), nullptr);
    row->InternalRelease();
}

} // namespace
