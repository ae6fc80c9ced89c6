// A cell with a number or a short text.
#include "window/ValueItem.h"

#include "statistics/DisplayText.h"
#include "window/WideText.h"

#include <cmath>

ValueItem::ValueItem(double number) : ValueItem(FromUtf8(statistics::NumberText(number)), number) {}

ValueItem::ValueItem(LPCTSTR text, double number) : CXTPReportRecordItemText(text), m_number(number) {
    SetAlignment(DT_RIGHT); // as its column, and also where there is none: in an exported page
}

ValueItem::ValueItem(LPCTSTR text) : ValueItem(text, std::numeric_limits<double>::quiet_NaN()) {}

void ValueItem::Set(LPCTSTR text, double number) {
    SetValue(text);
    m_number = number;
}

int ValueItem::Rank() const {
    if (!std::isnan(m_number))
        return 0;
    return GetValue().IsEmpty() ? 2 : 1;
}

int ValueItem::Compare(CXTPReportColumn* column, CXTPReportRecordItem* item) {
    const auto* other = dynamic_cast<const ValueItem*>(item);
    if (other == nullptr)
        return CXTPReportRecordItemText::Compare(column, item);
    if (Rank() != other->Rank())
        return Rank() < other->Rank() ? -1 : 1;
    if (Rank() != 0)
        return CXTPReportRecordItemText::Compare(column, item);
    return m_number < other->m_number ? -1 : m_number > other->m_number ? 1 : 0;
}
