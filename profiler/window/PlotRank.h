// The order of rows that are sorted by a column of plots.
#pragma once

#include <XTToolkitPro.h>

/// A plot that rows can be sorted by.
class PlotRank {
public:
    /// What the plot shows, as a share: free of units, so that columns of different measures can be compared.
    virtual double Rank() const = 0;

protected:
    ~PlotRank() = default;
};

/// Answers `Compare` of a plot: smaller shares come first, and what is no plot last.
inline int ComparePlots(const PlotRank& plot, const CXTPReportRecordItem* item) {
    const auto* const other = dynamic_cast<const PlotRank*>(item);
    if (other == nullptr)
        return -1;
    const double left = plot.Rank(), right = other->Rank();
    return left < right ? -1 : left > right ? 1 : 0;
}

/// The text, perhaps an empty one, in place of a plot; comes after the plots.
class PlotTextItem : public CXTPReportRecordItemText {
public:
    explicit PlotTextItem(LPCTSTR text = _T("")) : CXTPReportRecordItemText(text) {}

    int Compare(CXTPReportColumn* column, CXTPReportRecordItem* item) override {
        return dynamic_cast<const PlotRank*>(item) != nullptr ? 1 : CXTPReportRecordItemText::Compare(column, item);
    }
};
