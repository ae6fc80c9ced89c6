// The report grid as a contender of the grid benchmark.
#include "GridContender.h"

#include "plotcells/PlotScale.h"

#include <plotcells/KyBarChartRecordItem.h>
#include <plotcells/KyDragLineMinMaxRecordItem.h>
#include <plotcells/KyHistogramRecordItem.h>

namespace {

using benchpicture::Bar;
using benchpicture::BarOf;
using benchpicture::ViewHeight;
using benchpicture::ViewWidth;

int drawCalls = 0;

/// A cell that counts its drawings.
template <class Item>
class Counted : public Item {
public:
    using Item::Item;
    void Draw(XTP_REPORTRECORDITEM_DRAWARGS* args) override {
        ++drawCalls;
        Item::Draw(args);
    }
};

class BarCell : public Counted<KyBarChartRecordItem> {
public:
    BarCell() {
        SetColors(benchpicture::BarDark, benchpicture::BarLight);
        SetDistribution(DistributionCentered, true);
    }
    void Show(const Bar& bar) {
        SetError(bar.target, bar.min, bar.max, bar.lower, bar.upper, bar.errorLow, bar.errorHigh, bar.optimizerLow,
                 bar.optimizerHigh);
    }
};

// The cells of the virtual record take what they show from the row that they are asked about.

class VirtualName : public Counted<CXTPReportRecordItemText> {
public:
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override {
        CXTPReportRecordItemText::GetItemMetrics(args, metrics);
        metrics->strText = benchpicture::NameOf(args->pRow->GetIndex()).c_str();
    }
};

class VirtualNumber : public Counted<CXTPReportRecordItemNumber> {
public:
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override {
        CXTPReportRecordItemNumber::GetItemMetrics(args, metrics);
        metrics->strText = benchpicture::NumberText(args->pRow->GetIndex()).c_str();
    }
};

class VirtualBar : public BarCell {
public:
    explicit VirtualBar(int bar) : m_bar(bar) {}
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS* metrics) override {
        Show(BarOf(args->pRow->GetIndex(), m_bar));
        BarCell::GetItemMetrics(args, metrics);
    }

private:
    int m_bar;
};

template <class Slider>
CXTPReportRecordItem* MakeSlider(const Bar& bar) {
    auto* const slider = new Counted<Slider>;
    slider->SetTargetValues(bar.target, bar.min, bar.max);
    std::vector<std::pair<double, COLORREF>> limits;
    for (const double limit : benchpicture::SliderLimits)
        limits.emplace_back(limit, benchpicture::SliderLimitColor);
    slider->SetLimitValues(limits);
    slider->ShowLimits(true);
    return slider;
}

CXTPReportRecordItem* MakePlot(const benchpicture::Picture& picture, int row, int column) {
    const Bar bar = BarOf(row, column);
    switch (picture.plots[column]) {
    case benchpicture::Plot::Histogram: {
        auto* const histogram = new Counted<KyHistogramRecordItem>;
        histogram->SetColors(benchpicture::BarDark, benchpicture::BarLight);
        histogram->SetError(bar.target, bar.min, bar.max, benchpicture::BinsOf(row, picture.bins), bar.min, bar.max);
        return histogram;
    }
    case benchpicture::Plot::Slider:
        return MakeSlider<KyDragLineRecordItem>(bar);
    case benchpicture::Plot::MinMax:
        return MakeSlider<KyDragLineMinMaxRecordItem>(bar);
    default: {
        auto* const cell = new BarCell;
        cell->Show(bar);
        return cell;
    }
    }
}

CXTPReportRecord* MakeRecord(const benchpicture::Picture& picture, int row) {
    auto* const record = new CXTPReportRecord;
    record->AddItem(new Counted<CXTPReportRecordItemText>(benchpicture::NameOf(row).c_str()));
    record->AddItem(new Counted<CXTPReportRecordItemNumber>(benchpicture::NumberOf(row), _T("%.2f")));
    for (int column = 0; column < benchpicture::BarCount; ++column)
        record->AddItem(MakePlot(picture, row, column));
    return record;
}

CXTPReportRecord* MakeVirtualRecord() {
    auto* const record = new CXTPReportRecord;
    record->AddItem(new VirtualName);
    record->AddItem(new VirtualNumber);
    for (int bar = 0; bar < benchpicture::BarCount; ++bar)
        record->AddItem(new VirtualBar(bar));
    return record;
}

} // namespace

GridContender::GridContender(Rows kind, int rows, const benchpicture::Picture& picture) {
    const CRect rc(0, 0, ViewWidth, ViewHeight);
    m_owner.CreateEx(0, AfxRegisterWndClass(0), _T("grid"), WS_POPUP | WS_VISIBLE, rc, nullptr, 0);
    m_grid.Create(WS_CHILD | WS_VISIBLE, rc, &m_owner, 1);
    m_grid.GetPaintManager()->SetRowHeight(benchpicture::RowHeight);
    for (int i = 0; i < benchpicture::ColumnCount; ++i) {
        auto* const column = new CXTPReportColumn(i, benchpicture::Captions[i], benchpicture::ColumnWidths[i], FALSE);
        column->SetAlignment(i == 1 ? DT_RIGHT : DT_LEFT);
        m_grid.AddColumn(column);
    }
    if (kind == Rows::Virtual) {
        SetVirtualRows(rows);
        return;
    }
    for (int row = 0; row < rows; ++row)
        m_grid.AddRecord(MakeRecord(picture, row));
    m_grid.Populate();
}

GridContender::~GridContender() {
    m_grid.DestroyWindow();
    m_owner.DestroyWindow();
}

void GridContender::SetVirtualRows(int rows) {
    m_grid.SetVirtualMode(MakeVirtualRecord(), rows);
    m_grid.Populate();
}

int GridContender::DrawCalls() { return drawCalls; }

void GridContender::GoToRow(int row) {
    m_grid.SetTopRow(row);
    Show();
}

void GridContender::PageDown() {
    m_grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    Show();
    Pump();
}

void GridContender::HitTest(CPoint point) {
    CRect rc;
    CXTPReportColumn* column = nullptr;
    if (const CXTPReportRow* row = m_grid.HitTest(point))
        row->HitTest(point, &rc, &column);
}

void GridContender::BestFit() { m_grid.GetColumns()->GetAt(0)->GetBestFitWidth(); }

void GridContender::SetNumber(int n) {
    CXTPReportRecordItem* const item = m_grid.GetRecords()->GetAt(n % RecordRows)->GetItem(1);
    static_cast<CXTPReportRecordItemNumber*>(item)->SetValue(n);
}

void GridContender::Update(int n) {
    SetNumber(n);
    m_grid.RedrawControl();
}

CRect GridContender::BarRect(int visibleRow, int bar) {
    const CRect rcColumn = m_grid.GetColumns()->GetAt(2 + bar)->GetRect();
    const int top = m_grid.GetReportRectangle().top + visibleRow * benchpicture::RowHeight;
    return CRect(rcColumn.left, top, rcColumn.right - 1, top + benchpicture::RowHeight - 1);
}

void GridContender::SendMouse(UINT message, WPARAM keys, int dx) {
    m_grid.SendMessage(message, keys, MAKELPARAM(m_mark.x + dx, m_mark.y));
}

void GridContender::BeginDrag() {
    CRect rc = BarRect(DragRow, 0);
    rc.DeflateRect(1, 1);
    const Bar bar = BarOf(m_grid.GetTopRowIndex() + DragRow, 0);
    const double fraction = plotscale::ToFraction(bar.target, {bar.min, bar.max, 0.15});
    m_mark = CPoint(rc.left + static_cast<int>(rc.Width() * fraction), rc.CenterPoint().y);
    SendMouse(WM_LBUTTONDOWN, MK_LBUTTON, 0);
    Show();
}

void GridContender::MoveOfDrag(int step) {
    SendMouse(WM_MOUSEMOVE, MK_LBUTTON, 1 + step % 8);
    Show();
}

void GridContender::EndDrag() {
    SendMouse(WM_LBUTTONUP, 0, 0);
    Show();
}
