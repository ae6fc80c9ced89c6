// The grid with one row for each column of the file.
#include "window/ProfileGrid.h"

#include "common/KyMessages.h"
#include "common/Translation.h"
#include "statistics/DisplayText.h"
#include "window/ValueItem.h"
#include "window/WideText.h"

#include <cmath>
#include <limits>

namespace {

/// Items of a record, and at first the columns from left to right.
enum Item { NameItem, TypeItem, CountItem, MissingItem, MinimumItem, MeanItem, MaximumItem, PlotItem, InsideItem };

constexpr wchar_t kSection[] = L"Columns";
constexpr wchar_t kNameColumn[] = L"Name";
constexpr int kRowHeight = 24; // pixels at 96 DPI

CString Number(double number) { return FromUtf8(statistics::NumberText(number)); }

CString TypeText(csv::ColumnType type) {
    switch (type) {
    case csv::ColumnType::Number:
        return Translate("Column type", "Number");
    case csv::ColumnType::Date:
        return Translate("Column type", "Date");
    case csv::ColumnType::Text:
        return Translate("Column type", "Text");
    default:
        return Translate("Column type", "Empty");
    }
}

/// What stands in place of a plot.
CString PlotText(const statistics::ColumnProfile& profile) {
    const bool one = profile.distinct == 1;
    switch (profile.type) {
    case csv::ColumnType::Number:
        return profile.count == 0 ? Translate("No values") : Translate("All values are the same");
    case csv::ColumnType::Date:
        return one ? Translate("1 date")
                   : TranslateFormat("Instead of a plot", "%1% different dates", profile.distinct);
    case csv::ColumnType::Text:
        return one ? Translate("1 text")
                   : TranslateFormat("Instead of a plot", "%1% different texts", profile.distinct);
    default:
        return Translate("No values");
    }
}

CString MarkText(ColumnPlotItem::Mark mark) {
    switch (mark) {
    case ColumnPlotItem::Mark::Lower:
        return Translate("Dragged mark", "lower limit");
    case ColumnPlotItem::Mark::Upper:
        return Translate("Dragged mark", "upper limit");
    default:
        return Translate("Dragged mark", "target");
    }
}

} // namespace

BOOL ProfileGrid::CreateGrid(CWnd* parent, UINT id) {
    if (!Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), parent, id))
        return FALSE;
    SetMultipleSelection(FALSE);
    AddColumns();
    SetUpPaintManager();
    SetEmptyText(DefaultEmptyText());
    EnableShowHideColumns({kNameColumn});
    AutoLoadReportState(kSection);
    return TRUE;
}

void ProfileGrid::AddColumns() {
    struct Layout {
        Item item;
        const wchar_t* name; // kept in saved layouts, never shown
        CString caption;
        int width; // pixels at 96 DPI
        int alignment;
        CString tip;
    };
    const Layout layouts[] = {
        {NameItem, kNameColumn, Translate("Column"), 190, DT_LEFT, Translate("The column's name in the file")},
        {TypeItem, L"Type", Translate("Type"), 72, DT_LEFT, Translate("What most of the column's cells are")},
        {CountItem, L"Count", Translate("Count"), 72, DT_RIGHT, Translate("Rows with a value")},
        {MissingItem, L"Missing", Translate("Missing"), 72, DT_RIGHT, Translate("Rows without a value")},
        {MinimumItem, L"Minimum", Translate("Minimum"), 88, DT_RIGHT, Translate("The smallest value")},
        {MeanItem, L"Mean", Translate("Mean"), 88, DT_RIGHT, Translate("The arithmetic mean")},
        {MaximumItem, L"Maximum", Translate("Maximum"), 88, DT_RIGHT, Translate("The largest value")},
        {PlotItem, L"Plot", Translate("Distribution"), 400, DT_LEFT,
         // xgettext:no-c-format
         Translate("Bar: mean ± standard deviation. Whiskers: 5 % and 95 % quantiles. Gold: median. Red: minimum and "
                   "maximum. Drag the bar's ends and the median.")},
        {InsideItem, L"Inside", Translate("Inside"), 84, DT_RIGHT,
         Translate("The share of the column's values from the lower to the upper end of the bar")},
    };
    for (const Layout& layout : layouts) {
        auto* column = new CXTPReportColumn(layout.item, layout.caption, layout.name,
                                            GetPaintManager()->ScaleForDpi(layout.width));
        column->SetAlignment(layout.alignment);
        column->SetMinWidth(GetPaintManager()->ScaleForDpi(layout.item == PlotItem ? 120 : 40));
        column->SetTooltip(layout.tip);
        column->SetSortable(layout.item != PlotItem);
        column->AllowRemove(layout.item != NameItem);
        AddColumn(column);
    }
}

CString ProfileGrid::DefaultEmptyText() { return Translate("Open a CSV file (Ctrl+O) or drop one here."); }

void ProfileGrid::SetEmptyText(const CString& text) {
    m_emptyText = text;
    GetPaintManager()->SetNoItemText(text);
    if (GetRows()->GetCount() == 0)
        RedrawControl();
}

/// Theme changes make a new paint manager.
void ProfileGrid::SetUpPaintManager() {
    GetPaintManager()->SetRowHeight(GetPaintManager()->ScaleForDpi(kRowHeight));
    GetPaintManager()->SetNoItemText(m_emptyText);
}

void ProfileGrid::ApplyTheme(int theme) {
    SendMessage(WM_KYTHEMECHANGED, static_cast<WPARAM>(theme), 0);
    SetUpPaintManager();
    AdjustLayout();
}

void ProfileGrid::Show(const ColumnFile* file) {
    ResetContent();
    m_limitRows.clear();
    if (file != nullptr) {
        for (std::size_t i = 0; i < file->profiles.size(); ++i)
            AddRow(*file, i);
    }
    Populate();
    if (GetRows()->GetCount() > 0)
        SetFocusedRow(GetRows()->GetAt(0));
}

void ProfileGrid::AddRow(const ColumnFile& file, std::size_t index) {
    const statistics::ColumnProfile& profile = file.profiles[index];
    const statistics::Summary& numbers = profile.numbers;
    auto* record = new CXTPReportRecord;
    record->AddItem(new CXTPReportRecordItemText(FromUtf8(profile.name)));
    record->AddItem(new CXTPReportRecordItemText(TypeText(profile.type)));
    record->AddItem(new ValueItem(std::to_wstring(profile.count).c_str(), static_cast<double>(profile.count)));
    record->AddItem(new ValueItem(std::to_wstring(profile.missing).c_str(), static_cast<double>(profile.missing)));
    if (profile.type == csv::ColumnType::Number && numbers.count > 0) {
        for (const double number : {numbers.minimum, numbers.mean, numbers.maximum})
            record->AddItem(new ValueItem(number));
    } else {
        record->AddItem(new ValueItem(FromUtf8(profile.firstDate)));
        record->AddItem(new ValueItem(L""));
        record->AddItem(new ValueItem(FromUtf8(profile.lastDate)));
    }
    if (ColumnPlotItem::CanShow(numbers)) {
        AddLimits(*record, file.table.columns[index], numbers);
    } else {
        record->AddItem(new CXTPReportRecordItemText(PlotText(profile)));
        record->AddItem(new ValueItem(L""));
    }
    AddRecord(record);
}

void ProfileGrid::AddLimits(CXTPReportRecord& record, const csv::Column& column, const statistics::Summary& numbers) {
    const std::size_t index = m_limitRows.size();
    LimitRow row;
    row.column = &column;
    row.limits = ColumnPlotItem::InitialLimits(numbers);
    row.plot = new ColumnPlotItem(numbers);
    row.inside = new ValueItem(L"");
    row.plot->m_valueChanged.connect(
        [this, index](float lower, float target, float upper) { OnLimitsMoved(index, lower, target, upper); });
    row.plot->SetListener(
        {[this, index](ColumnPlotItem::Mark mark, double value) { TellMove(index, mark, value); },
         [this] { Tell(Translate("The mark was released outside of its plot: nothing has changed.")); }});
    record.AddItem(row.plot);
    record.AddItem(row.inside);
    m_limitRows.push_back(row);
    ShowShare(m_limitRows.back());
}

void ProfileGrid::ShowShare(LimitRow& row) {
    const std::optional<double> share =
        statistics::ShareInside(row.column->numbers, row.limits.lower, row.limits.upper);
    row.inside->Set(FromUtf8(statistics::ShareText(share)), share.value_or(std::numeric_limits<double>::quiet_NaN()));
}

void ProfileGrid::OnLimitsMoved(std::size_t index, float lower, float target, float upper) {
    LimitRow& row = m_limitRows[index];
    // The signal tells only of what was dragged; what that pushed along is worked out here as the plot does it.
    if (lower != KyMissingValueF)
        row.limits.MoveLower(lower);
    if (target != KyMissingValueF)
        row.limits.MoveTarget(target);
    if (upper != KyMissingValueF)
        row.limits.MoveUpper(upper);
    ShowShare(row);
    RedrawControl();
    Tell(TranslateFormat("Status bar", "%1%: %2% of the values lie from %3% to %4%.",
                         FromUtf8(row.column->name).GetString(), row.inside->GetValue().GetString(),
                         Number(row.limits.lower).GetString(), Number(row.limits.upper).GetString()));
}

void ProfileGrid::TellMove(std::size_t index, ColumnPlotItem::Mark mark, double value) {
    Tell(TranslateFormat("Status bar", "%1%: %2% at %3%. Escape cancels.",
                         FromUtf8(m_limitRows[index].column->name).GetString(), MarkText(mark).GetString(),
                         Number(value).GetString()));
}

void ProfileGrid::OnPlotRecordItemDragCancelled() { Tell(Translate("Cancelled: the mark is back where it was.")); }

void ProfileGrid::Tell(const CString& sentence) {
    if (m_status)
        m_status(sentence);
}
