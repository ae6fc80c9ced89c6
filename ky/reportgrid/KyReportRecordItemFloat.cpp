// A number cell that knows limits and missing values.
#include "KyReportRecordItemFloat.h"

#include "../common/MessageFormat.h"
#include "../common/ParseDouble.h"

#include <cmath>

namespace {

constexpr const wchar_t* defaultFormat = L"%g";
constexpr COLORREF outOfRangeColor = RGB(255, 0, 0);
constexpr double typedMissingMark = -99.0001; // a -99 that was typed is a value

} // namespace

KyReportRecordItemFloat::KyReportRecordItemFloat(float value) : KyReportRecordItemFloat(value, defaultFormat) {}

KyReportRecordItemFloat::KyReportRecordItemFloat(float value, float upper, float lower)
    : KyReportRecordItemFloat(value, defaultFormat) {
    m_upperLimit = upper;
    m_lowerLimit = lower;
    m_inRange = IsWithinLimits(value);
}

KyReportRecordItemFloat::KyReportRecordItemFloat(float value, const wchar_t* format)
    : CXTPReportRecordItemNumber(value, format) {
    SetAlignment(DT_RIGHT);
}

/// In the precision of the limits, so that a number that is typed as a limit was given is within it.
bool KyReportRecordItemFloat::IsWithinLimits(float value) const {
    const bool hasLower = m_lowerLimit != KyMissingValueF, hasUpper = m_upperLimit != KyMissingValueF;
    return (!hasLower || value >= m_lowerLimit) && (!hasUpper || value <= m_upperLimit);
}

float KyReportRecordItemFloat::GetValue() { return static_cast<float>(m_dValue); }

void KyReportRecordItemFloat::SetMissingRepresentation(CString text) { m_missingText = text; }

CString KyReportRecordItemFloat::GetCaption(CXTPReportColumn*) {
    if (!m_strCaption.IsEmpty())
        return m_strCaption;
    if (IsMissing(m_dValue))
        return m_missingText;
    return messageformat::Fill(GetFormatString().GetString(), defaultFormat, m_dValue).c_str();
}

void KyReportRecordItemFloat::OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args,
                                            XTP_REPORTRECORDITEM_METRICS* metrics) {
    if (!m_inRange)
        args->pDC->SetTextColor(outOfRangeColor);
    else if (args->pDC->GetTextColor() == outOfRangeColor) // left by a cell drawn before
        args->pDC->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    CXTPReportRecordItem::OnDrawCaption(args, metrics);
}

void KyReportRecordItemFloat::OnEditChanged(XTP_REPORTRECORDITEM_ARGS*, const wchar_t* text) {
    CString typed(text);
    typed.Remove(L'%');
    typed.Trim();
    if (typed.IsEmpty()) {
        SetValue(KyMissingValue);
        return; // intended: the colour stays that of the last number
    }
    if (typed == L"-99") {
        SetValue(typedMissingMark);
        return; // intended, likewise
    }
    double value = 0.0;
    if (!ParseDouble(typed, value))
        return;
    SetValue(value);
    // Intended: unlike a number that a cell is made with, a typed "nan" is neither below nor above a limit.
    const auto typedValue = static_cast<float>(value);
    m_inRange = std::isnan(typedValue) || IsWithinLimits(typedValue);
}
