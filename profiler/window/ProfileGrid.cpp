// The grid with one row for each column of the file.
#include "window/ProfileGrid.h"

#include "common/KyMessages.h"
#include "common/Translation.h"
#include "reportgrid/KyInPlaceEdit.h"
#include "statistics/DisplayText.h"
#include "window/ShareItem.h"
#include "window/ValueItem.h"
#include "window/WideText.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr wchar_t kSection[] = L"Columns";
constexpr wchar_t kNameColumn[] = L"Name";

CString Number(double number) { return FromUtf8(statistics::NumberText(number)); }

/// How the column's values are written. Dates of a few days only have their time.
ColumnHistogramItem::ValueText ValueTextOf(const statistics::ColumnProfile& profile) {
    if (profile.type != csv::ColumnType::Date)
        return Number;
    constexpr double kFewDays = 10;
    const bool few = profile.daySummary.maximum - profile.daySummary.minimum < kFewDays;
    const auto detail = few ? statistics::DateDetail::Minute : statistics::DateDetail::Day;
    return [detail](double days) { return FromUtf8(statistics::DateText(days, detail)); };
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

CString MarkText(LimitMark mark) {
    switch (mark) {
    case LimitMark::Lower:
        return Translate("Dragged mark", "lower limit");
    case LimitMark::Upper:
        return Translate("Dragged mark", "upper limit");
    default:
        return Translate("Dragged mark", "target");
    }
}

} // namespace

CString ColumnTypeText(csv::ColumnType type) {
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

BEGIN_MESSAGE_MAP(ProfileGrid, KyPlotRecordReportControl)
    ON_MESSAGE(WM_KYRANGEEDITED, &ProfileGrid::OnRangeEdited)
END_MESSAGE_MAP()

BOOL ProfileGrid::CreateGrid(CWnd* parent, UINT id) {
    if (!Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), parent, id))
        return FALSE;
    SetMultipleSelection(FALSE);
    AllowEdit(TRUE);
    SetInplaceEdit(new KyInPlaceEdit);
    AddColumns();
    SetUpPaintManager();
    SetEmptyText(DefaultEmptyText());
    EnableShowHideColumns({kNameColumn});
    return TRUE;
}

void ProfileGrid::RestoreLayout() { AutoLoadReportState(kSection); }

void ProfileGrid::AddColumns() {
    struct Layout {
        ProfileItem item;
        const wchar_t* name; // kept in saved layouts, never shown
        CString caption;
        int width; // pixels at 96 DPI
        int alignment;
        CString tip;
    };
    const Layout layouts[] = {
        {NameItem, kNameColumn, Translate("Column"), 130, DT_LEFT, Translate("The column's name in the file")},
        {TypeItem, L"Type", Translate("Type"), 58, DT_LEFT, Translate("What most of the column's cells are")},
        {CountItem, L"Count", Translate("Count"), 52, DT_RIGHT, Translate("Rows with a value")},
        {MissingItem, L"Missing", Translate("Missing"), 60, DT_RIGHT, Translate("Rows without a value")},
        {MinimumItem, L"Minimum", Translate("Minimum"), 70, DT_RIGHT, Translate("The smallest value")},
        {MeanItem, L"Mean", Translate("Mean"), 66, DT_RIGHT, Translate("The arithmetic mean")},
        {MaximumItem, L"Maximum", Translate("Maximum"), 70, DT_RIGHT, Translate("The largest value")},
        {PlotItem, L"Plot", Translate("Distribution"), 230, DT_LEFT,
         // xgettext:no-c-format
         Translate("Bar: mean ± standard deviation. Whiskers: 5 % and 95 % quantiles. Gold: median. Red: minimum and "
                   "maximum. Drag the bar's ends and the median. Sorts by how much of the scale the bar takes.")},
        {HistogramItem, L"Histogram", Translate("Histogram"), 140, DT_LEFT,
         Translate("How often values come, the darker the more often. Red: limits. Gold: target. All three can be "
                   "dragged. Of texts the most frequent ones are shown. Sorts by the share of the fullest column.")},
        {TargetItem, L"Target", Translate("Target"), 90, DT_LEFT,
         Translate("The target from minimum to maximum, to be dragged. Marks: quartiles. Sorts by its place there.")},
        {ScaleItem, L"Scale", Translate("Scale"), 110, DT_LEFT,
         Translate(
             "The target on a scale of your own: click one of its ends and type another. Enter or a click elsewhere "
             "takes it. Sorts by the target's place on the scale.")},
        {InsideItem, L"Inside", Translate("Inside"), 58, DT_RIGHT,
         Translate("The share of the column's values from the lower to the upper limit; red when it is too small")},
        {RequiredItem, L"Required", Translate("Limit"), 56, DT_RIGHT,
         Translate("The smallest share that is not red. F2, a double click or typing edits it.")},
    };
    for (const Layout& layout : layouts) {
        auto* column = new CXTPReportColumn(layout.item, layout.caption, layout.name,
                                            GetPaintManager()->ScaleForDpi(layout.width));
        column->SetAlignment(layout.alignment);
        const bool isPlot = layout.item == PlotItem || layout.item == HistogramItem || layout.item == TargetItem ||
                            layout.item == ScaleItem;
        column->SetMinWidth(GetPaintManager()->ScaleForDpi(isPlot ? 80 : 40));
        column->SetTooltip(layout.tip);
        column->AllowRemove(layout.item != NameItem);
        column->SetEditable(layout.item == RequiredItem);
        column->SetFiltrable(layout.item == NameItem);
        column->SetGroupable(layout.item == TypeItem || layout.item == CountItem || layout.item == MissingItem);
        AddColumn(column);
    }
    SetFreezeColumnsCount(1); // the name stays in sight
}

CString ProfileGrid::DefaultEmptyText() { return Translate("Open a CSV file (Ctrl+O) or drop one here."); }

void ProfileGrid::SetEmptyText(const CString& text) {
    m_emptyText = text;
    GetPaintManager()->SetNoItemText(TextWithoutRows());
    if (GetRows()->GetCount() == 0)
        RedrawControl();
}

/// Theme changes make a new paint manager.
void ProfileGrid::SetUpPaintManager() {
    GetPaintManager()->SetRowHeight(GetPaintManager()->ScaleForDpi(m_rowHeight));
    GetPaintManager()->SetNoItemText(TextWithoutRows());
}

CString ProfileGrid::TextWithoutRows() const {
    return GetRecords()->GetCount() == 0 ? m_emptyText : Translate("No column has such a name.");
}

void ProfileGrid::Populate() {
    GetPaintManager()->SetNoItemText(TextWithoutRows());
    KyPlotRecordReportControl::Populate();
    if (m_rowsShown)
        m_rowsShown(ShownColumns());
}

/// Those that the filter leaves, in collapsed groups as well.
std::size_t ProfileGrid::ShownColumns() const {
    std::size_t columns = 0;
    for (int i = 0; i < GetRows()->GetCount(); ++i) {
        const CXTPReportRow* const row = GetRows()->GetAt(i);
        if (row->GetParentRow() != nullptr)
            continue; // counted with its group
        const auto* const group = dynamic_cast<const CXTPReportGroupRow*>(row);
        columns += group != nullptr ? group->GetRecordCount() : 1;
    }
    return columns;
}

void ProfileGrid::ApplyTheme(int theme) {
    SendMessage(WM_KYTHEMECHANGED, static_cast<WPARAM>(theme), 0);
    SetUpPaintManager();
    AdjustLayout();
}

bool ProfileGrid::IsGroupedByType() const {
    return GetColumns()->GetGroupsOrder()->IndexOf(GetColumns()->Find(TypeItem)) >= 0;
}

void ProfileGrid::GroupByType(bool group) {
    CXTPReportColumnOrder& groups = *GetColumns()->GetGroupsOrder();
    groups.Clear();
    if (group)
        groups.Add(GetColumns()->Find(TypeItem));
    Populate();
}

void ProfileGrid::SetRowHeight(int pixels) {
    m_rowHeight = pixels;
    GetPaintManager()->SetRowHeight(GetPaintManager()->ScaleForDpi(m_rowHeight));
    if (GetSafeHwnd() != nullptr)
        AdjustLayout();
    RedrawControl();
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
    record->AddItem(new CXTPReportRecordItemText(ColumnTypeText(profile.type)));
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
    AddPlots(*record, file, index);
    AddRecord(record);
}

/// The plots, and the share inside, which only rows with limits have.
void ProfileGrid::AddPlots(CXTPReportRecord& record, const ColumnFile& file, std::size_t index) {
    const statistics::ColumnProfile& profile = file.profiles[index];
    const bool hasLimits = ColumnPlotItem::CanShow(profile.ValueSummary());
    LimitRow row;
    row.column = &file.table.columns[index];
    row.profile = &profile;
    if (hasLimits && profile.type == csv::ColumnType::Number)
        record.AddItem(row.plot = new ColumnPlotItem(profile.numbers));
    else
        record.AddItem(new PlotTextItem(PlotText(profile)));
    if (profile.count > 0)
        record.AddItem(row.histogram = new ColumnHistogramItem(profile, ValueTextOf(profile)));
    else
        record.AddItem(new PlotTextItem);
    if (hasLimits) {
        AddLimits(record, row);
    } else {
        record.AddItem(new PlotTextItem);
        record.AddItem(new ShareItem);
        record.AddItem(new PlotTextItem);
        record.AddItem(new RequiredShareItem(nullptr));
    }
}

void ProfileGrid::AddLimits(CXTPReportRecord& record, LimitRow row) {
    const std::size_t index = m_limitRows.size();
    const statistics::Summary& values = row.profile->ValueSummary();
    row.limits = ColumnPlotItem::InitialLimits(values);
    row.target = new ColumnTargetItem(values, ValueTextOf(*row.profile));
    ListenTo(*row.target, index);
    record.AddItem(row.target);
    row.inside = new ShareItem;
    row.inside->SetRequired(RequiredShareItem::kUsual);
    record.AddItem(row.inside);
    if (row.profile->type == csv::ColumnType::Number) {
        row.scale = new ColumnScaleItem(values);
        ListenTo(*row.scale, index);
        record.AddItem(row.scale);
    } else {
        record.AddItem(new PlotTextItem);
    }
    record.AddItem(new RequiredShareItem([this, index](float percent) { OnRequired(index, percent); }));
    if (row.plot != nullptr)
        Connect(*row.plot, index);
    Connect(*row.histogram, index);
    m_limitRows.push_back(row);
    ShowLimits(m_limitRows.back(), row.limits, nullptr);
}

template <class Slider>
void ProfileGrid::ListenTo(Slider& slider, std::size_t index) {
    slider.SetListener(
        {[this, index, &slider](double target) { OnMarkMoved(index, LimitMark::Target, target, &slider); },
         [this, index](double target) {
             OnLimitsDragged(index, KyMissingValueF, PlotValue(target), KyMissingValueF);
         }});
}

template <class Plot>
void ProfileGrid::Connect(Plot& plot, std::size_t index) {
    plot.m_valueChanged.connect(
        [this, index](float lower, float target, float upper) { OnLimitsDragged(index, lower, target, upper); });
    plot.SetListener({[this, index, &plot](LimitMark mark, double value) { OnMarkMoved(index, mark, value, &plot); },
                      [this] {
                          TakeMoveBack();
                          Tell(Translate("The mark was released outside of its plot: nothing has changed."));
                      }});
}

/// Shows limits in every plot of the row, apart from one that is being dragged and shows its marks itself, and the
/// share inside them.
void ProfileGrid::ShowLimits(LimitRow& row, const statistics::Limits& limits, const KyPlotRecordItem* dragged) {
    if (row.plot != nullptr && row.plot != dragged)
        row.plot->SetLimits(limits);
    if (row.histogram != dragged)
        row.histogram->SetLimits(limits);
    if (row.target != dragged)
        row.target->SetTarget(PlotValue(limits.target));
    if (row.scale != nullptr && row.scale != dragged)
        row.scale->SetTarget(PlotValue(limits.target));
    row.inside->SetShare(
        statistics::ShareInside(statistics::ValuesOf(*row.column, *row.profile), limits.lower, limits.upper));
}

/// A drag has come to its end: the limits are others now.
void ProfileGrid::OnLimitsDragged(std::size_t index, float lower, float target, float upper) {
    LimitRow& row = m_limitRows[index];
    // The signal tells only of what was dragged; what that pushed along is worked out here as the plot does it.
    if (lower != KyMissingValueF)
        row.limits.MoveLower(lower);
    if (target != KyMissingValueF)
        row.limits.MoveTarget(target);
    if (upper != KyMissingValueF)
        row.limits.MoveUpper(upper);
    ShowLimits(row, row.limits, nullptr);
    RedrawControl();
    const auto text = ValueTextOf(*row.profile);
    Tell(TranslateFormat("Status bar", "%1%: %2% of the values lie from %3% to %4%.",
                         FromUtf8(row.column->name).GetString(), row.inside->Text().GetString(),
                         text(row.limits.lower).GetString(), text(row.limits.upper).GetString()));
}

void ProfileGrid::OnRequired(std::size_t index, float percent) {
    LimitRow& row = m_limitRows[index];
    row.inside->SetRequired(percent);
    RedrawControl();
    const CString name = FromUtf8(row.column->name);
    if (percent == KyMissingValueF)
        Tell(TranslateFormat("Status bar", "%1%: any share will do.", name.GetString()));
    else
        Tell(TranslateFormat("Status bar", "%1%: %2% of the values lie inside, %3% %% are asked for.", name.GetString(),
                             row.inside->Text().GetString(), Number(percent).GetString()));
}

/// The user has typed an end of a scale.
LRESULT ProfileGrid::OnRangeEdited(WPARAM edited, LPARAM) {
    const auto& range = *reinterpret_cast<const KyRangeEdited*>(edited);
    const auto at = std::ranges::find(m_limitRows, range.item, [](const LimitRow& row) {
        return static_cast<const KyDragLineMinMaxRecordItem*>(row.scale);
    });
    if (at == m_limitRows.end() || range.item == nullptr)
        return 0;
    ColumnScaleItem& scale = *at->scale;
    const double minimum = range.isMinimum ? range.value : scale.GetMin();
    const double maximum = range.isMinimum ? scale.GetMax() : range.value;
    const CString name = FromUtf8(at->column->name), from = Number(scale.GetMin()), to = Number(scale.GetMax());
    if (!std::isfinite(range.value)) {
        Tell(TranslateFormat("Status bar",
                             "%1%: an end of a scale must be finite. The scale still runs from %2% to %3%.",
                             name.GetString(), from.GetString(), to.GetString()));
    } else if (!(minimum < maximum)) {
        Tell(TranslateFormat("Status bar",
                             "%1%: the minimum %2% is not below the maximum %3%. The scale still runs from %4% to %5%.",
                             name.GetString(), Number(minimum).GetString(), Number(maximum).GetString(),
                             from.GetString(), to.GetString()));
    } else {
        scale.SetMin(minimum);
        scale.SetMax(maximum);
        RedrawControl();
        Tell(TranslateFormat("Status bar", "%1%: the scale now runs from %2% to %3%.", name.GetString(),
                             Number(minimum).GetString(), Number(maximum).GetString()));
    }
    return 0;
}

std::optional<std::size_t> ProfileGrid::FocusedColumnOfFile() const {
    const CXTPReportRow* const row = GetFocusedRow();
    const CXTPReportRecord* const record = row != nullptr ? row->GetRecord() : nullptr;
    if (record == nullptr)
        return std::nullopt;
    return static_cast<std::size_t>(record->GetIndex()); // records stand in the order of the file's columns
}

/// During a drag the limits stay as they were, and everything shows what they would be.
void ProfileGrid::OnMarkMoved(std::size_t index, LimitMark mark, double value, const KyPlotRecordItem* dragged) {
    LimitRow& row = m_limitRows[index];
    m_movedRow = index;
    statistics::Limits limits = row.limits;
    if (mark == LimitMark::Lower)
        limits.MoveLower(value);
    else if (mark == LimitMark::Upper)
        limits.MoveUpper(value);
    else
        limits.MoveTarget(value);
    ShowLimits(row, limits, dragged);
    Tell(TranslateFormat("Status bar", "%1%: %2% at %3%. Escape cancels.", FromUtf8(row.column->name).GetString(),
                         MarkText(mark).GetString(), ValueTextOf(*row.profile)(value).GetString()));
}

/// Shows the limits that hold in place of those that the last drag would have made.
void ProfileGrid::TakeMoveBack() {
    if (m_movedRow < m_limitRows.size())
        ShowLimits(m_limitRows[m_movedRow], m_limitRows[m_movedRow].limits, nullptr);
    RedrawControl();
}

void ProfileGrid::OnPlotRecordItemDragCancelled() {
    TakeMoveBack();
    Tell(Translate("Cancelled: the mark is back where it was."));
}

void ProfileGrid::Tell(const CString& sentence) {
    if (m_status)
        m_status(sentence);
}
