// The saved layout of a report control: its columns and their order, sorting and grouping, frozen columns, and the
// group-by box.
#include "CXTPReportControl.h"

#include "CXTPReportColumn.h"
#include "CXTPReportColumns.h"
#include "CXTPReportPaintManager.h"
#include "LayoutStream.h"

#include <algorithm>
#include <vector>

namespace {

using namespace layoutstream;

std::u16string ToUtf16(const CString& text) {
    return std::u16string(reinterpret_cast<const char16_t*>(text.GetString()),
                          static_cast<std::size_t>(text.GetLength()));
}

std::vector<Key> DescribeOrder(const CXTPReportColumnOrder& order) {
    std::vector<Key> keys;
    for (int i = 0; i < order.GetCount(); ++i)
        keys.push_back({order.GetAt(i)->GetIndex(), order.GetAt(i)->IsSortIncreasing() != FALSE});
    return keys;
}

ReportLayout DescribeLayout(const CXTPReportControl& control) {
    CXTPReportColumns& columns = *control.GetColumns();
    ReportLayout layout;
    layout.dpi = control.GetPaintManager()->GetDpi();
    layout.view = {control.GetFreezeColumnsCount(), control.IsGroupByVisible() != FALSE};
    for (int i = 0; i < columns.GetCount(); ++i) {
        const CXTPReportColumn* const column = columns.GetAt(i);
        layout.columns.push_back({ToUtf16(column->GetInternalName()), column->GetItemIndex(), column->GetWidth(),
                                  column->IsVisible() != FALSE});
    }
    layout.sortOrder = DescribeOrder(*columns.GetSortOrder());
    layout.groupsOrder = DescribeOrder(*columns.GetGroupsOrder());
    return layout;
}

std::vector<LiveColumn> DescribeLiveColumns(const CXTPReportColumns& columns) {
    std::vector<LiveColumn> live;
    for (int i = 0; i < columns.GetCount(); ++i) {
        const CXTPReportColumn* const column = columns.GetAt(i);
        live.push_back({ToUtf16(column->GetInternalName()), column->GetItemIndex(), column->GetWidth(),
                        column->GetMinWidth(), column->GetMaxWidth(), column->IsVisible() != FALSE});
    }
    return live;
}

CXTPReportColumnOrder MakeOrder(const std::vector<Key>& keys, const std::vector<CXTPReportColumn*>& live) {
    CXTPReportColumnOrder order;
    for (const Key& key : keys)
        order.Add(live[key.column]);
    return order;
}

void ApplyDirections(const std::vector<Key>& keys, const std::vector<CXTPReportColumn*>& live) {
    for (const Key& key : keys)
        live[key.column]->SetSortIncreasing(key.increasing);
}

/// All or nothing: memory is taken first, and what follows needs none.
void ApplyPlan(const Plan& plan, CXTPReportColumns& columns) {
    std::vector<CXTPReportColumn*> live;
    for (int i = 0; i < columns.GetCount(); ++i)
        live.push_back(columns.GetAt(i));
    std::vector<CXTPReportColumn*> arranged;
    for (const Plan::Column& planned : plan.columns)
        arranged.push_back(live[planned.column]);
    CXTPReportColumnOrder groups = MakeOrder(plan.groupsOrder, live);
    CXTPReportColumnOrder sorting = MakeOrder(plan.sortOrder, live);

    for (const Plan::Column& planned : plan.columns) {
        live[planned.column]->SetWidth(planned.width);
        live[planned.column]->SetVisible(planned.visible);
    }
    columns.Arrange(arranged);
    *columns.GetGroupsOrder() = std::move(groups);
    *columns.GetSortOrder() = std::move(sorting);
    ApplyDirections(plan.groupsOrder, live);
    // Last: a column that is in both has the direction of its place in the sort order.
    ApplyDirections(plan.sortOrder, live);
}

void ThrowUnlessOk(Status status, const CArchive& ar) {
    if (status == Status::Ok)
        return;
    AfxThrowArchiveException(status == Status::Truncated ? CArchiveException::endOfFile : CArchiveException::badSchema,
                             ar.m_strFileName);
}

/// Reads in small steps, so that a size that the archive cannot hold costs no memory.
std::vector<std::uint8_t> ReadPayload(CArchive& ar, std::uint32_t size) {
    constexpr std::size_t step = 4 * 1024;
    std::vector<std::uint8_t> payload;
    while (payload.size() < size) {
        const std::size_t begin = payload.size();
        const std::size_t part = std::min(step, size - begin);
        payload.resize(begin + part);
        ar.EnsureRead(payload.data() + begin, static_cast<UINT>(part));
    }
    return payload;
}

ReportLayout ReadLayout(CArchive& ar) {
    std::uint8_t bytes[HeaderSize];
    const UINT read = ar.Read(bytes, sizeof(bytes));
    const Header header = DecodeHeader(std::span(bytes, read));
    ThrowUnlessOk(header.status, ar);
    Decoded decoded = DecodePayload(ReadPayload(ar, header.payloadSize));
    ThrowUnlessOk(decoded.status, ar);
    return std::move(decoded.layout);
}

} // namespace

void CXTPReportControl::SerializeState(CArchive& ar) {
    if (ar.IsStoring()) {
        const std::vector<std::uint8_t> bytes = Encode(DescribeLayout(*this));
        ar.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        return;
    }
    const ReportLayout layout = ReadLayout(ar);
    const HWND hWnd = m_hWnd;
    EditItem(nullptr); // first, because its hooks may change the columns
    if (hWnd && !::IsWindow(hWnd))
        return;
    CXTPReportColumns& columns = *GetColumns();
    ApplyPlan(ApplyLayout(layout, DescribeLiveColumns(columns), GetPaintManager()->GetDpi()), columns);
    if (layout.view) {
        SetFreezeColumnsCount(layout.view->frozenColumns);
        ShowGroupBy(layout.view->isGroupByShown);
    }
    Populate();
}
