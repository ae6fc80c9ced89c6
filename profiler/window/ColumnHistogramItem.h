// The histogram of one column.
#pragma once

#include "plotcells/KyHistogramRecordItem.h"
#include "statistics/ColumnProfile.h"
#include "window/LimitCell.h"

#include <functional>

/// How often the values of a column come: bins of equal width for numbers and dates, with the limits of the column to
/// be dragged; for texts a bin for each of the most frequent ones, and no limits. Its scale is that of the values and
/// stays when limits are dragged. The tool tip tells the bin under the pointer and its count.
class ColumnHistogramItem : public LimitCell<KyHistogramRecordItem> {
public:
    /// Turns a value of the column into text.
    using ValueText = std::function<CString(double)>;

    /// @param profile  that of the column, which must stay; without values nothing is drawn
    ColumnHistogramItem(const statistics::ColumnProfile& profile, ValueText valueText);

    double GetMin() const override { return m_histMin; }
    double GetMax() const override { return m_histMax; }
    CString GetInfoTip() const override;
    /// How much of everything is in the fullest bin.
    double Rank() const override;

private:
    const statistics::ColumnProfile& m_profile;
    ValueText m_valueText;
};
