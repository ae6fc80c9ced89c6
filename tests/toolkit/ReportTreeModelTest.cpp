// Records below records, against a model in the plainest code: everything at once, in any order.
#include "OutlineGrid.h"

#include <algorithm>
#include <random>

namespace {

/// The rows as the plainest code makes them.
class NaiveTree {
public:
    explicit NaiveTree(CXTPReportControl& grid) : m_grid(grid) {}
    std::vector<CXTPReportRecord*> Rows() const {
        std::vector<CXTPReportRecord*> rows;
        Append(*m_grid.GetRecords(), rows);
        return rows;
    }

private:
    void Append(CXTPReportRecords& records, std::vector<CXTPReportRecord*>& rows) const {
        std::vector<CXTPReportRecord*> sorted = records.GetRecords();
        if (CXTPReportColumn* const column = m_grid.GetColumns()->GetSortOrder()->GetAt(0))
            std::stable_sort(sorted.begin(), sorted.end(), [column](CXTPReportRecord* a, CXTPReportRecord* b) {
                const int order = a->GetItem(column)->Compare(column, b->GetItem(column));
                return column->IsSortIncreasing() ? order < 0 : order > 0;
            });
        for (CXTPReportRecord* const record : sorted) {
            if (!record->IsVisible())
                continue;
            rows.push_back(record);
            if (record->IsExpanded() && record->HasChildren())
                Append(*record->GetChilds(), rows);
        }
    }
    CXTPReportControl& m_grid;
};

class TreeModelTest : public OutlineTest {
protected:
    TreeModelTest() { m_columns[0]->SetTreeColumn(TRUE); }
};

TEST_F(TreeModelTest, AgreesWithANaiveTreeOverRandomOperations) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        std::mt19937 random(seed);
        const auto upTo = [&random](int last) { return std::uniform_int_distribution<int>(0, last)(random); };
        m_grid.ResetContent();
        m_grid.GetColumns()->ResetSortOrder();
        std::vector<CXTPReportRecord*> all;
        const auto addOne = [&] {
            CString text;
            text.Format(_T("%d"), upTo(9));
            all.push_back(
                Add(all.empty() || upTo(2) == 0 ? nullptr : all[upTo(static_cast<int>(all.size()) - 1)], text));
        };
        const auto findAll = [&] {
            all.clear();
            std::vector<CXTPReportRecords*> rest{m_grid.GetRecords()};
            while (!rest.empty()) {
                CXTPReportRecords* const records = rest.back();
                rest.pop_back();
                for (CXTPReportRecord* const record : records->GetRecords()) {
                    all.push_back(record);
                    rest.push_back(record->GetChilds());
                }
            }
        };
        /// Selection and focus stay with those records that are left.
        const auto remove = [&](const std::vector<CXTPReportRecord*>& some) {
            m_grid.GetSelectedRows()->Clear();
            for (int i = 0; i < m_grid.GetRows()->GetCount(); ++i)
                if (upTo(1))
                    m_grid.GetSelectedRows()->Add(Row(i));
            const auto isGone = [&some](const CXTPReportRecord* record) {
                for (; record; record = record->GetParentRecord())
                    if (std::find(some.begin(), some.end(), record) != some.end())
                        return true;
                return false;
            };
            std::vector<CXTPReportRecord*> left;
            for (int i = 0; i < m_grid.GetSelectedRows()->GetCount(); ++i)
                if (CXTPReportRecord* const record = m_grid.GetSelectedRows()->GetAt(i)->GetRecord(); !isGone(record))
                    left.push_back(record);
            CXTPReportRecord* const focused = Focused() >= 0 ? Row(Focused())->GetRecord() : nullptr;
            const bool staysFocused = focused && !isGone(focused);
            (some.empty() ? m_grid.GetRecords() : some[0]->GetRecords())->RemoveRecords(some);
            ASSERT_EQ(m_grid.GetSelectedRows()->GetCount(), static_cast<int>(left.size()));
            for (int i = 0; i < static_cast<int>(left.size()); ++i)
                ASSERT_EQ(m_grid.GetSelectedRows()->GetAt(i)->GetRecord(), left[i]);
            if (staysFocused) {
                ASSERT_EQ(Row(Focused())->GetRecord(), focused);
            }
        };
        for (int i = 0; i < 25; ++i)
            addOne();
        m_grid.Populate();
        const NaiveTree naive(m_grid);
        for (int step = 0; step < 60; ++step) {
            CXTPReportControl& grid = m_grid;
            const int count = grid.GetRows()->GetCount();
            CXTPReportRow* const row = count ? Row(upTo(count - 1)) : nullptr;
            switch (upTo(9)) {
            case 0:
                grid.GetColumns()->SetSortColumn(m_columns[0], upTo(1));
                grid.Populate();
                break;
            case 1:
                addOne();
                grid.Populate();
                break;
            case 2:
                if (row) {
                    row->GetRecord()->Delete();
                    findAll();
                }
                break;
            case 3:
                grid.ExpandAll();
                break;
            case 4:
                if (upTo(3) == 0)
                    grid.CollapseAll();
                break;
            case 5:
                if (row) {
                    CXTPReportRecords* const records = row->GetRecord()->GetRecords();
                    std::vector<CXTPReportRecord*> some;
                    std::copy_if(records->GetRecords().begin(), records->GetRecords().end(), std::back_inserter(some),
                                 [&upTo](const CXTPReportRecord*) { return upTo(2) == 0; });
                    remove(some);
                    findAll();
                }
                break;
            default:
                if (row)
                    row->SetExpanded(!row->IsExpanded());
            }
            if (row && row->GetControl() && upTo(2) == 0)
                grid.SetFocusedRow(row, upTo(1));
            const std::vector<CXTPReportRecord*> expected = naive.Rows();
            ASSERT_EQ(grid.GetRows()->GetCount(), static_cast<int>(expected.size())) << seed << ", step " << step;
            for (int i = 0; i < static_cast<int>(expected.size()); ++i) {
                ASSERT_EQ(Row(i)->GetRecord(), expected[i]) << "seed " << seed << ", step " << step << ", row " << i;
                ASSERT_EQ(Row(i)->GetIndex(), i);
                ASSERT_EQ(grid.GetRows()->IndexOf(expected[i]), i);
                ASSERT_EQ(Row(i)->IsExpanded() != FALSE, expected[i]->IsExpanded() && expected[i]->HasChildren());
            }
            ASSERT_LT(Focused(), static_cast<int>(expected.size()));
        }
    }
}

} // namespace
