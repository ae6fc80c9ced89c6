// The dialog that tells everything that is known of one column.
#include "window/ColumnDetailsDialog.h"

#include "common/Translation.h"
#include "reportgrid/KyDialogReportControlTheme.h"
#include "statistics/DisplayText.h"
#include "window/DpiScale.h"
#include "window/ProfileGrid.h"
#include "window/WideText.h"

#include <algorithm>

namespace {

// Pixels at 96 DPI.
constexpr CSize kSize(400, 420);
constexpr int kMargin = 11;
constexpr CSize kButton(88, 26);
constexpr int kNameWidth = 190;

constexpr UINT kGridId = 100;

CString Number(double number) { return FromUtf8(statistics::NumberText(number)); }

} // namespace

std::vector<std::pair<CString, CString>> ColumnDetails(const statistics::ColumnProfile& profile) {
    std::vector<std::pair<CString, CString>> details = {
        {Translate("Type"), ColumnTypeText(profile.type)},
        {Translate("Rows with a value"), CountText(profile.count)},
        {Translate("Rows without a value"), CountText(profile.missing)},
    };
    const statistics::Summary& numbers = profile.numbers;
    if (profile.type == csv::ColumnType::Number && numbers.count > 0) {
        details.insert(details.end(), {
                                          {Translate("Minimum"), Number(numbers.minimum)},
                                          {Translate("5th percentile"), Number(numbers.quantile5)},
                                          {Translate("Lower quartile"), Number(numbers.quantile25)},
                                          {Translate("Median"), Number(numbers.median)},
                                          {Translate("Upper quartile"), Number(numbers.quantile75)},
                                          {Translate("95th percentile"), Number(numbers.quantile95)},
                                          {Translate("Maximum"), Number(numbers.maximum)},
                                          {Translate("Mean"), Number(numbers.mean)},
                                      });
        if (numbers.standardDeviation)
            details.emplace_back(Translate("Standard deviation"), Number(*numbers.standardDeviation));
    }
    if (profile.type == csv::ColumnType::Date || profile.type == csv::ColumnType::Text)
        details.emplace_back(Translate("Different values"), CountText(profile.distinct));
    if (!profile.firstDate.empty()) {
        details.emplace_back(Translate("Earliest"), FromUtf8(profile.firstDate));
        details.emplace_back(Translate("Latest"), FromUtf8(profile.lastDate));
    }
    return details;
}

ColumnDetailsDialog::ColumnDetailsDialog(const statistics::ColumnProfile& profile, CWnd* owner) : m_profile(profile) {
    m_pParentWnd = owner;
}

INT_PTR ColumnDetailsDialog::DoModal() {
    // A template without controls; they are made when the resolution is known.
    const struct {
        DLGTEMPLATE header;
        WORD menu, windowClass, title;
    } empty = {{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | DS_MODALFRAME, 0, 0, 0, 0, 100, 100}, 0, 0, 0};
    InitModalIndirect(&empty.header, m_pParentWnd);
    return CDialog::DoModal();
}

BOOL ColumnDetailsDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    SetWindowText(TranslateFormat("Window title", "Details of %1%", FromUtf8(m_profile.name).GetString()));
    const LOGFONT font = MessageFont(DpiOf(m_hWnd));
    m_font.CreateFontIndirect(&font);
    if (!m_grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(), this, kGridId) ||
        !m_close.Create(Translate("Close"), WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, CRect(), this,
                        IDOK)) {
        EndDialog(IDCANCEL);
        return TRUE;
    }
    m_close.SetFont(&m_font);
    auto* const theme = new KyDialogReportControlTheme;
    theme->TakeOver(*m_grid.GetPaintManager());
    m_grid.SetPaintManager(theme);
    PlaceControls();
    AddLines();
    m_grid.SetFocus();
    return FALSE;
}

void ColumnDetailsDialog::PlaceControls() {
    const int dpi = DpiOf(m_hWnd);
    CRect rc(0, 0, ScaledToDpi(kSize.cx, dpi), ScaledToDpi(kSize.cy, dpi));
    const CRect client = rc;
    ::AdjustWindowRectEx(&rc, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, rc.Width(), rc.Height(), SWP_NOMOVE | SWP_NOZORDER);
    CenterWindow(m_pParentWnd);
    const int margin = ScaledToDpi(kMargin, dpi);
    const CSize button(ScaledToDpi(kButton.cx, dpi), ScaledToDpi(kButton.cy, dpi));
    m_close.MoveWindow(client.right - margin - button.cx, client.bottom - margin - button.cy, button.cx, button.cy);
    m_grid.MoveWindow(margin, margin, client.right - 2 * margin, client.bottom - button.cy - 3 * margin);
}

void ColumnDetailsDialog::AddLines() {
    CRect rc;
    m_grid.GetClientRect(&rc);
    const int nameWidth = m_grid.GetPaintManager()->ScaleForDpi(kNameWidth);
    m_grid.AddColumn(new CXTPReportColumn(0, Translate("Statistic"), nameWidth));
    auto* const value = new CXTPReportColumn(1, Translate("Value"), std::max(rc.Width() - nameWidth, nameWidth / 2));
    value->SetAlignment(DT_RIGHT);
    m_grid.AddColumn(value);
    m_grid.GetReportHeader()->AllowColumnSort(FALSE); // the lines have an order of their own
    m_grid.GetReportHeader()->AllowColumnReorder(FALSE);
    for (const auto& [name, text] : ColumnDetails(m_profile)) {
        auto* const record = new CXTPReportRecord;
        record->AddItem(new CXTPReportRecordItemText(name));
        record->AddItem(new CXTPReportRecordItemText(text));
        m_grid.AddRecord(record);
    }
    m_grid.Populate();
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(0));
}
