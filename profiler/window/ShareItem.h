// The cells of a column's share: how much of it lies inside the limits, and how much is asked for.
#pragma once

#include "reportgrid/KyReportRecordItemFloat.h"

#include <functional>
#include <optional>

/// The share of a column's values inside its limits, in percent; red below the share that is asked for. A column
/// without limits shows a dash.
class ShareItem : public KyReportRecordItemFloat {
public:
    ShareItem();

    /// From 0 to 1; none for a column without limits. Shown at the grid's next redraw, like what follows.
    void SetShare(std::optional<double> share);
    /// In percent; the missing value asks for nothing.
    void SetRequired(float percent);
    /// What the cell shows.
    CString Text() { return GetCaption(nullptr); }

    /// By share; those without come last.
    int Compare(CXTPReportColumn* column, CXTPReportRecordItem* item) override;

private:
    void Judge();
};

/// The share that is asked for, in percent, which the user edits; nothing asks for nothing.
class RequiredShareItem : public KyReportRecordItemFloat {
public:
    /// 90 %.
    static constexpr float kUsual = 90;

    /// @param changed  called after the user has edited the cell, on the user-interface thread; none: the cell shows a
    ///                 dash and cannot be edited
    explicit RequiredShareItem(std::function<void(float percent)> changed);

    void OnEditChanged(XTP_REPORTRECORDITEM_ARGS* args, const wchar_t* text) override;

private:
    std::function<void(float percent)> m_changed;
};
