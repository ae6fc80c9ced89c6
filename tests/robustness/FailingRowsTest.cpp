// One call fails, and each in turn, while rows are grouped, expanded, filtered and removed, and previews shown.
#include "Scenario.h"

#include <string>

namespace {

// --- Rows below each other -------------------------------------------------------------------------------------------

/// A grid of records with children, whose rows are looked at afterwards.
class Outline : public Scenario {
public:
    explicit Outline(const char* name) : Scenario(name) {
        m_owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 300, 400), nullptr, 0);
        m_grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 400), &m_owner, 1);
        m_grid.AddColumn(new CXTPReportColumn(0, L"text", 100));
        m_grid.AddColumn(new CXTPReportColumn(1, L"kind", 100));
        m_grid.GetColumns()->GetAt(0)->SetTreeColumn(TRUE);
        AddRecords();
        m_grid.Populate();
    }
    ~Outline() override {
        m_grid.DestroyWindow();
        m_owner.DestroyWindow();
    }
    std::string Broken() override {
        CXTPReportRows& rows = *m_grid.GetRows();
        for (int i = 0; i < rows.GetCount(); ++i) {
            CXTPReportRow* const row = rows.GetAt(i);
            if (!row || row->GetIndex() != i || (row->GetRecord() && rows.Find(row->GetRecord()) != row))
                return "a row is not where it should be";
            if (row->GetParentRow() && row->GetParentRow()->GetIndex() >= i)
                return "a row stands above its parent";
        }
        if (m_grid.GetSelectedRows()->GetRanges().Contains(rows.GetCount()))
            return "more rows are selected than there are";
        return !m_grid.GetFocusedRow() || m_grid.GetFocusedRow()->GetIndex() < rows.GetCount() ? "" : "no such row";
    }

protected:
    void AddRecords() {
        for (int i = 0; i < 6; ++i) {
            CXTPReportRecord* const record = Add(m_grid.GetRecords(), i);
            if (i % 2 == 0)
                Add(record->GetChilds(), 10 + i);
        }
    }
    static CXTPReportRecord* Add(CXTPReportRecords* records, int number) {
        CXTPReportRecord* const record = records->Add(new CXTPReportRecord);
        record->AddItem(new CXTPReportRecordItemText(std::to_wstring(number).c_str()));
        record->AddItem(new CXTPReportRecordItemText(number % 3 ? L"some" : L"third"));
        return record;
    }
    CWnd m_owner;
    CXTPReportControl m_grid;
};

/// Rows are grouped, expanded and collapsed, one by one and all at once.
class GroupAndExpand : public Outline {
public:
    GroupAndExpand() : Outline("group and expand") {}
    void Act() override {
        CXTPReportColumns& columns = *m_grid.GetColumns();
        {
            const calltable::Pause pause; // each time from the same rows, whatever a failure has left
            columns.GetGroupsOrder()->Clear();
            m_grid.CollapseAll();
            m_grid.Populate();
            m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(1));
        }
        columns.GetGroupsOrder()->Add(columns.GetAt(1));
        m_grid.Populate();
        m_grid.ExpandAll();
        m_grid.GetRows()->GetAt(0)->SetExpanded(FALSE);
        m_grid.UpdateWindow();
        m_grid.GetRows()->GetAt(0)->SetExpanded(TRUE);
        m_grid.SendMessage(WM_KEYDOWN, VK_MULTIPLY, 1);
        m_grid.UpdateWindow();
    }
    std::string Wrong() override { return m_grid.GetRows()->GetCount() == 2 + 6 + 3 ? "" : "other rows"; }
};

TEST(FailingCalls, GroupingAndExpanding) { Try<GroupAndExpand>(); }

/// Records of several groups go at once, all those of one group among them.
class RemoveSeveral : public Outline {
public:
    RemoveSeveral() : Outline("remove several records") {}
    void Act() override {
        {
            const calltable::Pause pause;
            m_grid.ResetContent();
            AddRecords();
            CXTPReportColumnOrder& groups = *m_grid.GetColumns()->GetGroupsOrder();
            groups.Clear();
            groups.Add(m_grid.GetColumns()->GetAt(1));
            m_grid.Populate();
            m_grid.ExpandAll();
            m_grid.GetSelectedRows()->SelectBlock(1, 9);
            m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(4));
        }
        CXTPReportRecords& records = *m_grid.GetRecords();
        records.RemoveRecords({records.GetAt(0), records.GetAt(2), records.GetAt(3)});
        m_grid.UpdateWindow();
    }
    std::string Broken() override {
        const int records = m_grid.GetRecords()->GetCount(), rows = m_grid.GetRows()->GetCount();
        // 14 below 4 has a row besides, and so have the groups.
        if (!(records == 6 && rows == 2 + 6 + 3) && !(records == 3 && rows == 1 + 3 + 1))
            return "some of them are gone";
        return Outline::Broken();
    }
    std::string Wrong() override { return m_grid.GetRecords()->GetCount() == 3 ? Broken() : "all are there"; }
};

TEST(FailingCalls, RemovingSeveral) { Try<RemoveSeveral>(); }

/// A filter is typed and cleared.
class Filter : public Outline {
public:
    Filter() : Outline("filter") {
        m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 380, 100, 400), &m_owner, 2);
        m_edit.SetReportCtrl(&m_grid);
    }
    ~Filter() override { m_edit.DestroyWindow(); }
    void Act() override {
        {
            const calltable::Pause pause;
            m_edit.SetWindowText(L"");
            m_grid.SetFilterText(L"");
            m_grid.Populate();
        }
        m_found = -1;
        m_edit.SetWindowText(L"third");
        m_found = m_grid.GetRows()->GetCount();
        m_edit.SetWindowText(L"");
        m_grid.UpdateWindow();
    }
    std::string Wrong() override {
        // 0 and 3, and 2 above 12; 10 and 14 are none.
        return m_found == 4 && m_grid.GetRows()->GetCount() == 6 ? "" : "other rows";
    }

private:
    CXTPReportFilterEditControl m_edit;
    int m_found = 0;
};

TEST(FailingCalls, Filtering) { Try<Filter>(); }

// --- Previews --------------------------------------------------------------------------------------------------------

/// Texts below the cells are measured, and wrapped for another width and back.
class ShowPreviews : public Scenario {
public:
    ShowPreviews() : Scenario("previews") {
        for (int i = 0; i < Grid().GetRecords()->GetCount(); i += 2)
            Grid().GetRecords()->GetAt(i)->SetPreviewItem(new CXTPReportRecordItemPreview(
                _T("words that are wrapped in as many lines as they need, or in three")));
        Grid().EnablePreviewMode(TRUE);
        Grid().GetSelectedRows()->Clear(); // want of memory may cost the selection
        m_rig.Paint();
        m_expected = Tops();
    }
    void Act() override {
        Grid().Populate();
        CRect rc;
        Grid().GetWindowRect(&rc);
        Grid().SetWindowPos(nullptr, 0, 0, rc.Width() / 2, rc.Height(), SWP_NOMOVE | SWP_NOZORDER);
        m_rig.Paint();
        Grid().SetWindowPos(nullptr, 0, 0, rc.Width(), rc.Height(), SWP_NOMOVE | SWP_NOZORDER);
        m_rig.Paint();
    }
    std::string Broken() override {
        for (int i = 1; i < Grid().GetRows()->GetCount(); ++i)
            if (Grid().GetRowRect(i).top != Grid().GetRowRect(i - 1).bottom)
                return "rows do not stand under each other";
        return Grid().GetRows()->GetCount() == Grid().GetRecords()->GetCount() ? "" : "rows came or went";
    }
    std::string Wrong() override { return Tops() == m_expected ? "" : "other heights"; }

private:
    CXTPReportControl& Grid() { return *m_rig.grid; }
    std::vector<int> Tops() {
        std::vector<int> tops;
        for (int i = 0; i < Grid().GetRows()->GetCount(); ++i)
            tops.push_back(Grid().GetRowRect(i).top);
        return tops;
    }
    GridRig m_rig;
    std::vector<int> m_expected;
};

TEST(FailingCalls, Previews) { Try<ShowPreviews>(); }

} // namespace
