// A cell with a number or a short text.
#pragma once

#include <XTToolkitPro.h>

#include <limits>

/// Shows a text and sorts by the number behind it: numbers by value, then texts without a number, then empty cells.
class ValueItem : public CXTPReportRecordItemText {
public:
    /// A number as the grid shows numbers.
    explicit ValueItem(double number);
    /// A text for a number, such as a share in percent; the number only sorts.
    ValueItem(LPCTSTR text, double number);
    /// A text alone, which may be empty.
    explicit ValueItem(LPCTSTR text);

    void Set(LPCTSTR text, double number);

    int Compare(CXTPReportColumn* column, CXTPReportRecordItem* item) override;

private:
    int Rank() const;

    double m_number = std::numeric_limits<double>::quiet_NaN();
};
