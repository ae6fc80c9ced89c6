// How a cell draws itself: colours, font, alignment, and what an override finds in the device context.
#include "ToolkitTestApp.h"

#include "../framework/DibCanvas.h"

namespace {

constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Yellow = RGB(255, 255, 0);
constexpr COLORREF Green = RGB(0, 128, 0);
constexpr COLORREF Red = RGB(255, 0, 0);

/// One row with one cell of a hundred by twenty pixels, drawn into a picture without the rest of the control.
class CellDrawTest : public ReportModelTest {
protected:
    CellDrawTest() {
        AddTexts(m_control, {L"HHHH"});
        m_control.Populate();
        // Unsmoothed letters have pure colours.
        LOGFONT font = {};
        m_control.GetPaintManager()->GetTextFont()->GetLogFont(&font);
        font.lfQuality = NONANTIALIASED_QUALITY;
        m_control.GetPaintManager()->SetTextFont(font);
    }
    CXTPReportRow* Row() { return m_control.GetRows()->GetAt(0); }
    CXTPReportRecordItem* Item() { return Row()->GetRecord()->GetItem(0); }
    void Draw(CXTPReportRecordItem* item) {
        XTP_REPORTRECORDITEM_DRAWARGS args;
        args.pDC = &m_canvas.Dc();
        args.pControl = &m_control;
        args.pRow = Row();
        args.pColumn = m_columnA;
        args.pItem = item;
        args.rcItem = Cell;
        item->Draw(&args);
    }

    const CRect Cell = CRect(10, 5, 110, 25);
    DibCanvas m_canvas{120, 30};
};

TEST_F(CellDrawTest, ItsOwnColoursFillTheCellAndItsText) {
    Item()->SetBackgroundColor(Yellow);
    Item()->SetTextColor(Green);
    Draw(Item());
    EXPECT_EQ(m_canvas.BoxOf(Yellow), Cell);
    EXPECT_GT(m_canvas.Count(Green), 20);
    EXPECT_EQ(m_canvas.Count(Yellow) + m_canvas.Count(Green), Cell.Width() * Cell.Height());
}

TEST_F(CellDrawTest, WithoutColoursOfItsOwnItLeavesTheRowsBackground) {
    Draw(Item());
    const COLORREF text = m_control.GetPaintManager()->m_clrWindowText;
    EXPECT_GT(m_canvas.Count(text), 20);
    EXPECT_EQ(m_canvas.Count(White) + m_canvas.Count(text), 120 * 30);
}

TEST_F(CellDrawTest, ASelectionKeepsItsColours) {
    Item()->SetBackgroundColor(Yellow);
    Item()->SetTextColor(Green);
    Row()->SetSelected(TRUE);
    Draw(Item());
    EXPECT_EQ(m_canvas.Count(Yellow), 0);
    EXPECT_EQ(m_canvas.Count(Green), 0);
    EXPECT_GT(m_canvas.Count(m_control.GetPaintManager()->m_clrInactiveHighlightText), 20);
}

TEST_F(CellDrawTest, ItsAlignmentStandsInFrontOfTheColumns) {
    Item()->SetTextColor(Green);
    const int padding = m_control.GetPaintManager()->GetCellPadding();
    Draw(Item());
    EXPECT_LT(m_canvas.BoxOf(Green).left - (Cell.left + padding), 3);
    DibCanvas right(120, 30);
    m_columnA->SetAlignment(DT_RIGHT);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &right.Dc();
    args.pControl = &m_control;
    args.pRow = Row();
    args.pColumn = m_columnA;
    args.pItem = Item();
    args.rcItem = Cell;
    Item()->Draw(&args);
    EXPECT_LT(Cell.right - padding - right.BoxOf(Green).right, 3);
    EXPECT_EQ(args.nTextAlign, DT_RIGHT);
    Item()->SetAlignment(DT_CENTER);
    XTP_REPORTRECORDITEM_METRICS metrics;
    Item()->GetItemMetrics(&args, &metrics);
    EXPECT_EQ(metrics.nColumnAlignment, DT_CENTER);
    EXPECT_EQ(args.nTextAlign, DT_CENTER);
}

TEST_F(CellDrawTest, BoldTextUsesTheBoldFont) {
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pControl = &m_control;
    args.pRow = Row();
    XTP_REPORTRECORDITEM_METRICS metrics;
    Item()->GetItemMetrics(&args, &metrics);
    EXPECT_EQ(metrics.pFont, nullptr) << "the theme's stays";
    Item()->SetBold();
    Item()->GetItemMetrics(&args, &metrics);
    EXPECT_EQ(metrics.pFont, m_control.GetPaintManager()->GetTextBoldFont());
}

/// Sets its own text colour before the text is drawn, and notes what it found.
class ColorSettingItem : public CXTPReportRecordItemText {
public:
    ColorSettingItem() : CXTPReportRecordItemText(L"HHHH") {}
    COLORREF m_found = 0;
    int m_mode = 0;
    HFONT m_font = nullptr;

protected:
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics) override {
        m_found = pDrawArgs->pDC->GetTextColor();
        m_mode = pDrawArgs->pDC->GetBkMode();
        m_font = static_cast<HFONT>(::GetCurrentObject(pDrawArgs->pDC->GetSafeHdc(), OBJ_FONT));
        pDrawArgs->pDC->SetTextColor(Red);
        CXTPReportRecordItemText::OnDrawCaption(pDrawArgs, pMetrics);
    }
};

TEST_F(CellDrawTest, AnOverrideFindsFontAndColourSelectedAndMayChangeThem) {
    auto* const item = new ColorSettingItem;
    Row()->GetRecord()->AddItem(item);
    item->SetTextColor(Green);
    item->SetBold();
    const HGDIOBJ former = ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT);
    m_canvas.Dc().SetTextColor(RGB(1, 2, 3));
    m_canvas.Dc().SetBkMode(OPAQUE);
    Draw(item);
    EXPECT_EQ(item->m_found, Green);
    EXPECT_EQ(item->m_mode, TRANSPARENT);
    EXPECT_EQ(item->m_font, static_cast<HFONT>(m_control.GetPaintManager()->GetTextBoldFont()->GetSafeHandle()));
    EXPECT_GT(m_canvas.Count(Red), 20);
    EXPECT_EQ(m_canvas.Count(Green), 0);
    EXPECT_EQ(m_canvas.Dc().GetTextColor(), RGB(1, 2, 3)) << "the context is as it was";
    EXPECT_EQ(m_canvas.Dc().GetBkMode(), OPAQUE);
    EXPECT_EQ(::GetCurrentObject(m_canvas.Dc(), OBJ_FONT), former);
}

/// Gives all cells of the record one background.
class ColoredRecord : public CXTPReportRecord {
public:
    void GetItemMetrics(XTP_REPORTRECORDITEM_DRAWARGS* pDrawArgs, XTP_REPORTRECORDITEM_METRICS* pMetrics) override {
        pMetrics->clrBackground = Yellow;
    }
};

TEST_F(CellDrawTest, ARecordMayChangeTheLookOfItsCells) {
    auto* const record = new ColoredRecord;
    CXTPReportRecordItem* const plain = record->AddItem(new CXTPReportRecordItemText(L""));
    CXTPReportRecordItem* const own = record->AddItem(new CXTPReportRecordItemText(L""));
    own->SetBackgroundColor(Green);
    m_control.AddRecord(record);
    Draw(plain);
    EXPECT_EQ(m_canvas.BoxOf(Yellow), Cell);
    Draw(own);
    EXPECT_EQ(m_canvas.BoxOf(Green), Cell) << "the cell's own colour comes after the record's";
    EXPECT_EQ(m_canvas.Count(Yellow), 0);
}

TEST_F(CellDrawTest, ACellIsDrawnOutsideAGridToo) {
    Item()->SetTextColor(Green);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &m_canvas.Dc();
    args.pControl = &m_control;
    args.pItem = Item();
    args.rcItem = Cell;
    Item()->Draw(&args);
    EXPECT_GT(m_canvas.Count(Green), 20);
    DibCanvas nowhere(120, 30);
    args.pDC = &nowhere.Dc();
    args.pControl = nullptr;
    Item()->Draw(&args);
    EXPECT_EQ(nowhere.Count(White), 120 * 30) << "without a control there is no theme to draw with";
}

} // namespace
