// The histogram of one column.
#include "window/ColumnHistogramItem.h"

#include "common/Translation.h"
#include "window/ColumnPlotItem.h"
#include "window/WideText.h"

#include <algorithm>

namespace {

constexpr double kMargin = 0.06; // room for limits beyond the values

} // namespace

ColumnHistogramItem::ColumnHistogramItem(const statistics::ColumnProfile& profile, ValueText valueText)
    : m_profile(profile), m_valueText(std::move(valueText)) {
    SetMargin(kMargin);
    SetColors(RGB(22, 62, 128), RGB(214, 228, 246));
    if (profile.type == csv::ColumnType::Text) {
        std::vector<double> counts;
        for (const statistics::FrequentText& text : profile.frequent)
            counts.push_back(static_cast<double>(text.count));
        SetError(KyMissingValue, KyMissingValue, KyMissingValue, counts, 0, static_cast<double>(counts.size()));
        return;
    }
    std::vector<double> counts = profile.histogram.counts;
    SetError(KyMissingValue, KyMissingValue, KyMissingValue, counts, PlotValue(profile.histogram.minimum),
             PlotValue(profile.histogram.maximum));
    if (ColumnPlotItem::CanShow(profile.ValueSummary()))
        SetLimits(ColumnPlotItem::InitialLimits(profile.ValueSummary()));
}

double ColumnHistogramItem::Rank() const {
    const auto fullest = std::ranges::max_element(m_bins);
    return fullest != m_bins.end() ? *fullest / static_cast<double>(m_profile.count) : 0;
}

CString ColumnHistogramItem::GetInfoTip() const {
    const double place = (m_dragPos - m_margin) / (1 - 2 * m_margin);
    if (m_bins.empty() || !(place >= 0 && place <= 1))
        return CString();
    const std::size_t last = m_bins.size() - 1;
    const std::size_t bin = std::min(static_cast<std::size_t>(place * static_cast<double>(m_bins.size())), last);
    const CString count = CountText(static_cast<std::size_t>(m_bins[bin]));
    if (m_profile.type == csv::ColumnType::Text)
        return TranslateFormat("Histogram tip", "%1%: %2%", FromUtf8(m_profile.frequent[bin].text).GetString(),
                               count.GetString());
    return TranslateFormat("Histogram tip", "%1% to %2%: %3%", m_valueText(m_profile.histogram.Edge(bin)).GetString(),
                           m_valueText(m_profile.histogram.Edge(bin + 1)).GetString(), count.GetString());
}
