// Saved layouts with errors in them, read by a control with a window: it takes all of one or nothing, and goes on.
#include "Rig.h"

#include "../support/LayoutBytes.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <random>

namespace {

using Bytes = std::vector<BYTE>;

/// A sentence about what no layout may bring about, or nothing.
std::string Unusable(CXTPReportControl& control) {
    CXTPReportColumns& columns = *control.GetColumns();
    if (columns.GetCount() != 3)
        return "columns came or went";
    for (const wchar_t* name : {L"name", L"number", L"bar"}) {
        const CXTPReportColumn* const column = columns.Find(CString(name));
        if (column == nullptr)
            return "a column is gone";
        if (column->GetWidth() < column->GetMinWidth() || column->GetWidth() > column->GetMaxWidth())
            return "a width beyond its limits";
    }
    for (CXTPReportColumnOrder* const order : {columns.GetSortOrder(), columns.GetGroupsOrder()}) {
        for (int i = 0; i < order->GetCount(); ++i) {
            if (columns.IndexOf(order->GetAt(i)) < 0 || order->IndexOf(order->GetAt(i)) != i)
                return "a key twice, or of no column";
        }
    }
    int records = 0; // a layout may group the rows
    for (int row = 0; row < control.GetRows()->GetCount(); ++row)
        records += control.GetRows()->GetRecordAt(row) != nullptr;
    return records == control.GetRecords()->GetCount() ? "" : "rows came or went";
}

class Mutator {
public:
    explicit Mutator(unsigned seed) : m_random(seed) {}

    Bytes operator()(Bytes bytes, const Bytes& other) {
        for (std::size_t changes = Pick(4) + 1; changes > 0; --changes) {
            const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(Pick(bytes.size()));
            switch (Pick(6)) {
            case 0:
                *at ^= static_cast<BYTE>(1U << Pick(8));
                break;
            case 1:
                *at = static_cast<BYTE>(Pick(256));
                break;
            case 2:
                *at = "\x00\x7F\x80\xFF"[Pick(4)];
                break;
            case 3:
                bytes.erase(at);
                break;
            case 4:
                bytes.insert(at, static_cast<BYTE>(Pick(256)));
                break;
            default: // the end of another layout
                bytes.erase(at, bytes.end());
                bytes.insert(bytes.end(), other.begin() + static_cast<std::ptrdiff_t>(Pick(other.size())), other.end());
            }
            if (bytes.empty())
                bytes.push_back('K');
        }
        return bytes;
    }
    std::size_t Pick(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }

private:
    std::mt19937 m_random;
};

TEST(LayoutStreams, MutatedOnesAreTakenInFullOrNotAtAll) {
    GridRig rig;
    CXTPReportColumns& columns = *rig.grid->GetColumns();
    std::vector<Bytes> layouts = {SaveLayout(*rig.grid)};
    columns.GetAt(1)->SetVisible(FALSE);
    columns.ChangeColumnOrder(0, 2);
    columns.SetSortColumn(columns.GetAt(0), FALSE);
    layouts.push_back(SaveLayout(*rig.grid));
    columns.GetSortOrder()->Add(columns.GetAt(2), TRUE);
    columns.GetGroupsOrder()->Add(columns.GetAt(1), FALSE);
    columns.GetAt(2)->SetWidth(311);
    layouts.push_back(SaveLayout(*rig.grid));

    // What a whole layout takes; a broken one may take that, and a few times its own size.
    long long taken = calltable::TakenBytes();
    ASSERT_EQ(LoadLayout(*rig.grid, layouts[2]), CArchiveException::none);
    const long long usual = calltable::TakenBytes() - taken;
    Mutator mutate(20261121);
    int accepted = 0;
    long long most = 0;
    const int count = Repetitions(10000, 1000);
    for (int i = 0; i < count; ++i) {
        Bytes bytes = mutate(layouts[mutate.Pick(3)], layouts[mutate.Pick(3)]);
        const Bytes before = SaveLayout(*rig.grid);
        taken = calltable::TakenBytes();
        const bool isRead = LoadLayout(*rig.grid, bytes) == CArchiveException::none;
        const long long extra = calltable::TakenBytes() - taken - usual;
        most = std::max(most, extra - 8 * static_cast<long long>(bytes.size()));
        ASSERT_EQ(Unusable(*rig.grid), "") << "layout " << i;
        if (!isRead) {
            ASSERT_EQ(SaveLayout(*rig.grid), before) << "layout " << i << " was refused and changed something";
        }
        accepted += isRead;
        if (i % 100 == 0)
            rig.Paint();
    }
    EXPECT_LE(most, 8 * 1024) << "bytes beyond the usual and eight times the stream";
    EXPECT_GT(accepted, count / 20);
    EXPECT_LT(accepted, count * 19 / 20);
    ASSERT_EQ(LoadLayout(*rig.grid, layouts[1]), CArchiveException::none);
    EXPECT_EQ(SaveLayout(*rig.grid).size(), layouts[1].size());
    std::cout << "[ mutated  ] layouts: " << count << ", " << accepted << " still layouts" << std::endl;
}

} // namespace
