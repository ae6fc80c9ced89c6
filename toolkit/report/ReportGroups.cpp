// The groups of a report control's rows.
#include "ReportGroups.h"

ReportGroup::ReportGroup(CXTPReportColumn* column, const CString& value) : m_column(column), m_value(value) {
    m_bGroup = true;
    SetExpanded(TRUE);
}

ReportGroup& ReportGroup::Below(CXTPReportColumn* column, const CString& value) {
    const std::wstring_view text(value.GetString(), static_cast<std::size_t>(value.GetLength()));
    if (const auto it = m_below.find(KeyView(column, text)); it != m_below.end())
        return *it->second;
    auto group = std::make_unique<ReportGroup>(column, value);
    return *m_below.emplace(Key{column, std::wstring(text)}, std::move(group)).first->second;
}

std::size_t ReportGroup::CountBelow() const {
    std::size_t count = m_below.size();
    for (const auto& [key, group] : m_below)
        count += group->CountBelow();
    return count;
}

void ReportGroup::ForgetUnused(int lastUse) {
    std::erase_if(m_below, [lastUse](const auto& entry) { return entry.second->use != lastUse; });
    for (const auto& [key, group] : m_below)
        group->ForgetUnused(lastUse);
}

void ReportGroups::BeginUse() {
    constexpr std::size_t mostKept = 4096;
    // A building that was given up has marked groups that the rows of before still show.
    if (isShown && root.CountBelow() > mostKept)
        root.ForgetUnused(use);
    isShown = false;
    ++use;
}
