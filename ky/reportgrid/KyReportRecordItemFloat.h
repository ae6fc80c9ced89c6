/// @file
/// A number cell that knows limits and missing values.
#pragma once

#include "../common/KyExport.h"
#include "../common/MissingValue.h"

#include <XTToolkitPro.h>

/// A number cell, aligned to the right. Values outside of the limits are red; a missing value (-99) shows a text of the
/// host's choice. Users edit it as other cells (see `CXTPReportControl::AllowEdit`): what they type is kept also when
/// it lies outside of the limits.
/// @ingroup ky_grid
class KYUI_API KyReportRecordItemFloat : public CXTPReportRecordItemNumber {
public:
    /// A number without limits, shown with "%g".
    explicit KyReportRecordItemFloat(float value);
    /// A number with limits, shown with "%g"; -99 leaves a limit out. Mind the order: the upper one comes first.
    KyReportRecordItemFloat(float value, float upper, float lower);
    /// A number without limits, shown with a printf-style format with one directive for a double; any other format
    /// counts as "%g".
    KyReportRecordItemFloat(float value, const wchar_t* format);

    /// The value in single precision; the cell itself keeps it in double precision.
    float GetValue();
    /// What the cell shows while its value is missing; empty at first. Shown at the grid's next redraw.
    void SetMissingRepresentation(CString text);

    /// The explicit caption when there is one, else the number in its format, else the text for a missing value.
    CString GetCaption(CXTPReportColumn* column) override;
    /// Draws the caption, in red while the value is outside of its limits.
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override;
    /// Takes what the user typed, percent signs left out: a number, or nothing for a missing value. -99 is kept as
    /// -99.0001, so that it is not taken for one. Any other text changes nothing.
    void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* args, const wchar_t* text) override;

protected:
    float m_upperLimit = KyMissingValueF; ///< the largest value that is not red; -99: any
    float m_lowerLimit = KyMissingValueF; ///< the smallest one; likewise
    bool m_inRange = true;                ///< the cell is not red
    CString m_missingText;                ///< what a missing value shows

private:
    bool IsWithinLimits(float value) const;
};
