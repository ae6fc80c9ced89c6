// The drag line cell: values, the mouse on its handle, tool tip, and its picture pixel by pixel.
#include "PlotPictures.h"

#include "../support/PointerPlace.h"

#include <common/Translation.h>

#include <limits>
#include <memory>

namespace {

constexpr double M = -99.0; // no value
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr COLORREF TrackColor = 0x00E7EAEA; // 234, 234, 231
constexpr COLORREF TrackFrame = 0x00D6D6D6;

/// A drag line cell with its members and its drawing opened.
class ProbeLine : public KyDragLineRecordItem {
public:
    using KyDragLineRecordItem::DrawSlider;
    using KyDragLineRecordItem::m_allowInteraction;
    using KyDragLineRecordItem::m_colorFirst;
    using KyDragLineRecordItem::m_colorSecond;
    using KyDragLineRecordItem::m_draggingCenter;
    using KyDragLineRecordItem::m_draggingLower;
    using KyDragLineRecordItem::m_draggingUpper;
    using KyDragLineRecordItem::m_dragMoved;
    using KyDragLineRecordItem::m_dragPos;
    using KyDragLineRecordItem::m_dragStartValue;
    using KyDragLineRecordItem::m_itemRect;
    using KyDragLineRecordItem::m_limits;
    using KyDragLineRecordItem::m_lower;
    using KyDragLineRecordItem::m_rangeMax;
    using KyDragLineRecordItem::m_rangeMin;
    using KyDragLineRecordItem::m_showLimits;
    using KyDragLineRecordItem::m_target;
    using KyDragLineRecordItem::m_upper;
    using KyDragLineRecordItem::OnDrawCaption;
};

/// The handle as GDI draws its outline: filled with the face colour, then outlined.
class HandleByGdi {
public:
    static PixelImage Draw(PixelImage picture, int x, int top) {
        Surface surface(picture.Width(), picture.Height(), White);
        for (int y = 0; y < picture.Height(); ++y)
            for (int column = 0; column < picture.Width(); ++column)
                surface.Dc().SetPixel(column, y, picture.At(column, y));
        const int bottom = top + 13;
        const POINT outline[] = {{x - 4, top}, {x + 4, top},        {x + 4, bottom - 4},
                                 {x, bottom},  {x - 4, bottom - 4}, {x - 4, top}};
        CBrush face(::GetSysColor(COLOR_BTNFACE));
        CPen facePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNFACE));
        CPen shadowPen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW));
        CDC& dc = surface.Dc();
        CBrush* const formerBrush = dc.SelectObject(&face);
        CPen* const formerPen = dc.SelectObject(&facePen);
        dc.Polygon(outline, 6);
        dc.SelectObject(&shadowPen);
        dc.Polyline(outline, 6);
        dc.SelectObject(formerPen);
        dc.SelectObject(formerBrush);
        return surface.Image();
    }
};

/// A cell 402 pixels wide and 22 high draws into x 1…400 and y 1…20. Without a margin and on the scale 0…100, the value
/// v stands at x = 1 + 4 v.
class DragLineTest : public ::testing::Test {
protected:
    DragLineTest() { line.SetMargin(0.0); }

    /// The track from `left` up to `right` (rows 8 to 11), framed.
    static PixelImage TrackFrom(int left, int right, COLORREF background = White) {
        PixelImage image(402, 22, background);
        return image.Fill(left, 8, right, 12, TrackFrame).Fill(left + 1, 9, right - 1, 11, TrackColor);
    }
    /// The empty slider on the whole scale, whose frame stands in the outermost pixel columns of the cell.
    static PixelImage WholeTrack() { return TrackFrom(0, 402); }
    static PixelImage WithHandle(const PixelImage& image, int x) { return HandleByGdi::Draw(image, x, 4); }

    PixelImage Draw() { return PictureOf(line, host.grid, 402, 22); }
    void ExpectPicture(const PixelImage& expected) { EXPECT_EQ(PixelImage::Difference(Draw(), expected), ""); }

    static CPoint At(int value) { return CPoint(1 + 4 * value, 10); }
    /// Presses at the value, as the grid tells the cell.
    void Press(int value) {
        Draw();
        line.BeginDrag(At(value), cell);
    }
    void Move(int value) { line.OnMouseMove(MK_LBUTTON, At(value), &host.grid); }
    void Release(int value, bool apply = true) { line.EndDrag(At(value), cell, apply); }

    PlotGridHost host;
    ProbeLine line;
    const CRect cell{0, 0, 402, 22};
};

} // namespace

// --- Class and values ------------------------------------------------------------------------------------------------

TEST(DragLineRecordItem, IsCreatedByItsRunTimeClass) {
    std::unique_ptr<CObject> object(RUNTIME_CLASS(KyDragLineRecordItem)->CreateObject());
    ASSERT_TRUE(object);
    EXPECT_NE(dynamic_cast<KyDragLineRecordItem*>(object.get()), nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CXTPReportRecordItemText)));
    EXPECT_STREQ(object->GetRuntimeClass()->m_lpszClassName, "KyDragLineRecordItem");
}

TEST(DragLineRecordItem, StartsWithoutValuesAndLimits) {
    const ProbeLine line;
    for (const double value : {line.m_rangeMin, line.m_rangeMax, line.GetMin(), line.GetMax(), line.GetTarget()})
        EXPECT_EQ(value, -99.0);
    EXPECT_TRUE(line.m_limits.empty());
    EXPECT_FALSE(line.m_showLimits);
    EXPECT_EQ(line.m_colorSecond, 0x008B7154u);
    EXPECT_EQ(line.m_colorFirst, 0x000000FFu);
}

TEST(DragLineRecordItem, TargetValuesAreTheValueAndBothPairsOfEnds) {
    ProbeLine line;
    line.SetTargetValues(5.5, 1.5, 9.5);
    EXPECT_EQ(line.GetTarget(), 5.5);
    EXPECT_EQ(line.GetMin(), 1.5);
    EXPECT_EQ(line.GetMax(), 9.5);
    EXPECT_EQ(line.m_lower, 1.5);
    EXPECT_EQ(line.m_rangeMin, 1.5);
    EXPECT_EQ(line.m_upper, 9.5);
    EXPECT_EQ(line.m_rangeMax, 9.5);
}

TEST(DragLineRecordItem, AScreenReaderIsToldTheValue) {
    KyDragLineRecordItem line;
    EXPECT_EQ(line.GetAccessibleValue(nullptr), CString());
    line.SetTargetValues(12.5, 0.0, 50.0);
    EXPECT_EQ(line.GetAccessibleValue(nullptr), CString(L"Value: 12.5."));
}

TEST(DragLineRecordItem, EachEndIsSetTogetherWithTheDrawnOne) {
    ProbeLine line;
    line.SetTargetValues(5, 0, 10);
    line.SetMin(-3);
    line.SetMax(33);
    EXPECT_EQ(line.GetMin(), -3.0);
    EXPECT_EQ(line.m_rangeMin, -3.0);
    EXPECT_EQ(line.GetMax(), 33.0);
    EXPECT_EQ(line.m_rangeMax, 33.0);
    EXPECT_EQ(line.GetTarget(), 5.0);
}

TEST(DragLineRecordItem, LimitsAreACopy) {
    ProbeLine line;
    std::vector<std::pair<double, COLORREF>> limits = {{1.0, Red}, {2.0, Blue}};
    line.SetLimitValues(limits);
    limits.clear();
    EXPECT_EQ(line.m_limits, (std::vector<std::pair<double, COLORREF>>{{1.0, Red}, {2.0, Blue}}));
    line.SetLimitValues({});
    EXPECT_TRUE(line.m_limits.empty());
}

TEST(DragLineRecordItem, ItsFirstHyperlinkIsEverywhere) {
    ProbeLine line;
    EXPECT_EQ(line.HitTestHyperlink(CPoint(5, 5)), -1);
    line.AddHyperlink(new CXTPReportHyperlink(0, 0));
    EXPECT_EQ(line.HitTestHyperlink(CPoint(-5000, 5)), 0);
}

// --- Press -----------------------------------------------------------------------------------------------------------

TEST_F(DragLineTest, APressNearerThanTwoHundredthsOfTheWidthStartsADrag) {
    line.SetTargetValues(50, 0, 100);
    const CRect wide(0, 0, 1002, 22); // the handle stands at 501
    for (const int distance : {19, -19, 0}) {
        line.BeginDrag(CPoint(501 + distance, 10), wide);
        EXPECT_TRUE(line.m_draggingCenter) << distance;
        line.CancelDrag();
    }
    for (const int distance : {21, -21, 20}) {
        line.BeginDrag(CPoint(501 + distance, 10), wide);
        EXPECT_FALSE(line.m_draggingCenter) << distance;
        EXPECT_EQ(line.m_dragPos, (500.0 + distance) / 1000.0); // where the press was is kept all the same
    }
    EXPECT_EQ(line.m_dragStartValue, 50.0);
    EXPECT_FALSE(line.m_draggingLower || line.m_draggingUpper);
}

TEST_F(DragLineTest, AHandleBeyondTheCellIsTakenHoldOfAtTheEdge) {
    line.SetTargetValues(150, 0, 100);
    Press(99);
    EXPECT_TRUE(line.m_draggingCenter);
    line.CancelDrag();
    line.SetTargetValues(-50, 0, 100);
    Press(1);
    EXPECT_TRUE(line.m_draggingCenter);
    line.CancelDrag();
    Press(50);
    EXPECT_FALSE(line.m_draggingCenter);
}

TEST_F(DragLineTest, AMissingValueIsTakenHoldOfAtTheLeftEdge) {
    line.SetTargetValues(M, 0, 100);
    Press(1);
    EXPECT_TRUE(line.m_draggingCenter);
    EXPECT_EQ(line.m_dragStartValue, -99.0);
}

TEST_F(DragLineTest, TheGridAndNotTheCellAsksWhetherInteractionIsAllowed) {
    line.SetTargetValues(50, 0, 100);
    line.SetAllowInteraction(false);
    bool capture = false;
    EXPECT_FALSE(line.GetAllowInteraction(At(50), capture));
    Press(50);
    EXPECT_TRUE(line.m_draggingCenter);
}

// --- Move ------------------------------------------------------------------------------------------------------------

TEST_F(DragLineTest, TheValueFollowsEveryMove) {
    line.SetTargetValues(50, 0, 100);
    Press(50);
    EXPECT_FALSE(line.IsCenterDragging());
    Move(75);
    EXPECT_EQ(line.GetTarget(), 75.0);
    EXPECT_TRUE(line.IsCenterDragging());
    Move(75);
    EXPECT_FALSE(line.IsCenterDragging()); // the last move moved nothing
    Move(25);
    EXPECT_EQ(line.GetTarget(), 25.0);
}

TEST_F(DragLineTest, WithoutADragAMoveOnlyRemembersThePlace) {
    line.SetTargetValues(50, 0, 100);
    Draw();
    Move(75);
    EXPECT_EQ(line.m_dragPos, 0.75);
    EXPECT_EQ(line.GetTarget(), 50.0);
    EXPECT_FALSE(line.m_dragMoved);
}

TEST_F(DragLineTest, PlacesAreOfSinglePrecisionWhileMovingAndAtTheRelease) {
    // A hundred and a third of it in a cell of 302 pixels: 1/3 in single precision is 11184811 / 2^25.
    constexpr double third = 11184811.0 / 33554432.0;
    const CRect narrow(0, 0, 302, 22);
    line.SetTargetValues(33, 0, 100);
    PictureOf(line, host.grid, 302, 22);
    line.BeginDrag(CPoint(101, 10), narrow);
    EXPECT_EQ(line.m_dragPos, 100.0 / 300.0); // the press alone is exact
    EXPECT_NE(line.m_dragPos, third);
    line.OnMouseMove(MK_LBUTTON, CPoint(101, 10), &host.grid);
    EXPECT_EQ(line.m_dragPos, third);
    EXPECT_EQ(line.GetTarget(), third * 100.0);
    EXPECT_TRUE(line.m_dragMoved); // from the exact place to the quantised one
    line.EndDrag(CPoint(201, 10), narrow, true);
    EXPECT_EQ(line.m_dragPos, static_cast<double>(200.0f / 300.0f));
    EXPECT_EQ(line.GetTarget(), static_cast<double>(200.0f / 300.0f) * 100.0);
}

TEST_F(DragLineTest, ADragStopsAtTheEndsOfTheScale) {
    line.SetMargin(0.1);
    line.SetTargetValues(50, 0, 100);
    Press(50);
    Move(95);
    EXPECT_DOUBLE_EQ(line.m_dragPos, 0.9);
    EXPECT_DOUBLE_EQ(line.GetTarget(), 100.0);
    Move(3);
    EXPECT_DOUBLE_EQ(line.m_dragPos, 0.1);
    EXPECT_NEAR(line.GetTarget(), 0.0, 1e-13);
    Release(200);
    EXPECT_DOUBLE_EQ(line.GetTarget(), 100.0);
    EXPECT_DOUBLE_EQ(line.m_dragPos, 0.9);
    Press(90);
    Release(-50);
    EXPECT_NEAR(line.GetTarget(), 0.0, 1e-13);
}

TEST_F(DragLineTest, AMissingRightEndPinsTheHandleToTheLeftOne) {
    line.SetTargetValues(50, 0, M); // the scale runs from 0 to -99: 50 stands at -50/99
    Press(0);
    ASSERT_TRUE(line.m_draggingCenter);
    Move(60);
    EXPECT_EQ(line.m_dragPos, 0.0);
    EXPECT_EQ(line.GetTarget(), 0.0);
    Release(70);
    EXPECT_EQ(line.m_dragPos, 0.0);
    EXPECT_EQ(line.GetTarget(), 0.0);
}

TEST_F(DragLineTest, AMissingLeftEndHoldsNothingBack) {
    line.SetTargetValues(0.5, M, 1); // the scale runs from -99 to 1: 0.5 stands at 0.995
    Press(100);
    ASSERT_TRUE(line.m_draggingCenter);
    Move(-50); // -0.5 of the width
    EXPECT_EQ(line.m_dragPos, -0.5);
    EXPECT_EQ(line.GetTarget(), -149.0);
    Move(150);
    EXPECT_EQ(line.m_dragPos, 1.0);
}

TEST_F(DragLineTest, WithBothEndsMissingTheHandleIsPinnedToTheMark) {
    line.SetTargetValues(5, M, M);
    line.m_draggingCenter = true;
    Draw();
    Move(60);
    EXPECT_EQ(line.m_dragPos, -99.0);
    EXPECT_EQ(line.GetTarget(), -99.0);
}

TEST_F(DragLineTest, AMissingValueIsWrittenByAMoveButNotByARelease) {
    line.SetTargetValues(M, 0, 100);
    Press(1);
    Release(60);
    EXPECT_EQ(line.GetTarget(), -99.0);
    EXPECT_FALSE(line.m_draggingCenter);
    Press(1);
    Move(-10); // not held within the scale: there was no value yet
    EXPECT_FLOAT_EQ(static_cast<float>(line.GetTarget()), -10.0f);
    Move(-20);
    EXPECT_EQ(line.GetTarget(), 0.0);
}

// --- Release and Escape ----------------------------------------------------------------------------------------------

TEST_F(DragLineTest, AReleasePutsTheValueThereWhetherItIsToBeAppliedOrNot) {
    line.SetTargetValues(50, 0, 100);
    for (const bool apply : {true, false}) {
        Press(static_cast<int>(line.GetTarget()));
        ASSERT_TRUE(line.m_draggingCenter);
        line.m_draggingLower = line.m_draggingUpper = line.m_dragMoved = true;
        Release(apply ? 75 : 25, apply);
        EXPECT_EQ(line.GetTarget(), apply ? 75.0 : 25.0);
        EXPECT_FALSE(line.m_draggingCenter || line.m_draggingLower || line.m_draggingUpper || line.m_dragMoved);
    }
}

TEST_F(DragLineTest, AReleaseAfterAPressBesideTheHandleBringsTheHandleThere) {
    line.SetTargetValues(50, 0, 100);
    Press(75);
    ASSERT_FALSE(line.m_draggingCenter);
    Move(75);
    EXPECT_EQ(line.GetTarget(), 50.0);
    Release(75);
    EXPECT_EQ(line.GetTarget(), 75.0);
}

TEST_F(DragLineTest, NoSignalIsFired) {
    Reports reports(line);
    line.SetTargetValues(50, 0, 100);
    Press(50);
    Move(75);
    Release(80);
    EXPECT_EQ(line.GetTarget(), static_cast<double>(0.8f) * 100.0);
    EXPECT_TRUE(reports.all.empty());
}

TEST_F(DragLineTest, CancellingBringsTheFormerValueBack) {
    line.SetTargetValues(50, 0, 100);
    Press(50);
    Move(75);
    line.CancelDrag();
    EXPECT_EQ(line.GetTarget(), 50.0);
    EXPECT_EQ(line.m_dragPos, -99.0);
    EXPECT_FALSE(line.m_draggingCenter);
}

// --- Cursor ----------------------------------------------------------------------------------------------------------

TEST_F(DragLineTest, OnTheHandleTheCursorIsTheSizingArrow) {
    line.SetTargetValues(50, 0, 100); // in the cell's own 402 pixels the handle's half is x = 201
    Draw();
    const auto cursorAt = [this](int x) {
        ::SetCursor(StandardCursor(IDC_CROSS));
        const BOOL chosen = line.OnSetCursor(CPoint(x, 10));
        EXPECT_EQ(::GetCursor(), StandardCursor(chosen ? IDC_SIZEWE : IDC_CROSS)) << x;
        return chosen;
    };
    EXPECT_TRUE(cursorAt(201));
    EXPECT_TRUE(cursorAt(201 + 8)); // 8 / 402 is 0.0199
    EXPECT_TRUE(cursorAt(201 - 8));
    EXPECT_FALSE(cursorAt(201 + 9));
    EXPECT_FALSE(cursorAt(201 - 9));
    line.m_draggingCenter = true;
    EXPECT_TRUE(cursorAt(5));
    line.SetAllowInteraction(false);
    EXPECT_FALSE(cursorAt(201));
}

TEST_F(DragLineTest, AHandleBeyondTheCellHasNoCursorAtTheEdge) {
    Draw();
    for (const double value : {150.0, M, NaN}) {
        line.SetTargetValues(value, 0, 100);
        for (const int x : {0, 201, 402})
            EXPECT_FALSE(line.OnSetCursor(CPoint(x, 10))) << value << " at " << x;
    }
}

// --- Tool tip --------------------------------------------------------------------------------------------------------

TEST_F(DragLineTest, TheTipTellsTheValueUnderThePointerAndNotTheSlidersOwn) {
    line.SetTargetValues(50, 0, 100);
    EXPECT_EQ(line.GetInfoTip(), CString()); // the pointer was not here yet
    Draw();
    Move(25);
    EXPECT_EQ(line.GetInfoTip(), CString(L"Value: 25."));
    line.m_dragPos = 0.12345678;
    EXPECT_EQ(line.GetInfoTip(), CString(L"Value: 12.3457."));
    line.m_dragPos = 1.0;
    EXPECT_EQ(line.GetInfoTip(), CString(L"Value: 100."));
    for (const double outside : {1.0001, -0.0001, -99.0, NaN, Infinity}) {
        line.m_dragPos = outside;
        EXPECT_EQ(line.GetInfoTip(), CString()) << outside;
    }
}

TEST_F(DragLineTest, TheTipIsEmptyLeftOfTheDeflatedCell) {
    line.SetTargetValues(50, 0, 100);
    Draw();
    line.OnMouseMove(0, CPoint(0, 10), &host.grid);
    EXPECT_EQ(line.GetInfoTip(), CString());
    line.OnMouseMove(0, CPoint(1, 10), &host.grid);
    EXPECT_EQ(line.GetInfoTip(), CString(L"Value: 0."));
}

// --- Picture: track and background -----------------------------------------------------------------------------------

TEST_F(DragLineTest, WithoutValuesThereIsATrackFromEdgeToEdge) {
    line.SetBackgroundColor(RGB(1, 2, 3));
    // The bitmap has the background around the cell's as well, so that nothing shows where it ends.
    ExpectPicture(TrackFrom(2, 400, RGB(1, 2, 3)));
    EXPECT_EQ(line.GetItemRect(), cell); // unlike other plots, the whole cell
}

TEST_F(DragLineTest, TheBackgroundEndsOnePixelInsideTheCell) {
    Surface surface(12, 10, Gold);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &host.grid;
    args.rcItem.SetRect(2, 2, 10, 8);
    line.SetTargetValues(M, 200, 300);
    line.SetMargin(2.0); // the track would run backwards: there is none
    line.OnDrawCaption(&args, nullptr);
    PixelImage expected(12, 10, Gold);
    EXPECT_EQ(PixelImage::Difference(surface.Image(), expected.Fill(3, 3, 9, 7, White)), "");
}

TEST_F(DragLineTest, TheTrackRunsBetweenTheEndsOfTheScale) {
    line.SetTargetValues(M, 0, 100);
    ExpectPicture(WholeTrack());
    line.SetMargin(0.15); // 60 and 340 of 400
    ExpectPicture(TrackFrom(60, 342));
}

TEST_F(DragLineTest, AMissingEndOfTheTrackLiesInsideTheEdge) {
    line.SetMargin(0.15);
    line.SetTargetValues(M, 0, M);
    ExpectPicture(TrackFrom(60, 400));
    line.SetTargetValues(M, M, 100);
    ExpectPicture(TrackFrom(2, 342));
}

TEST_F(DragLineTest, InAHigherCellTrackAndHandleStayInTheMiddle) {
    line.SetTargetValues(50, 0, 100);
    PixelImage expected(402, 48, White);
    expected.Fill(0, 21, 402, 25, TrackFrame).Fill(1, 22, 401, 24, TrackColor); // the middle of 1…47 is 24
    EXPECT_EQ(PixelImage::Difference(PictureOf(line, host.grid, 402, 48), HandleByGdi::Draw(expected, 201, 17)), "");
}

// --- Picture: handle -------------------------------------------------------------------------------------------------

TEST_F(DragLineTest, TheHandleIsATagAtTheValue) {
    line.SetTargetValues(50, 0, 100);
    ExpectPicture(WithHandle(WholeTrack(), 201));
    line.SetTargetValues(25.2, 0, 100); // 100.8 pixels, cut
    ExpectPicture(WithHandle(WholeTrack(), 101));
}

TEST_F(DragLineTest, TheHandleOfTheMinimumStandsAtTheMargin) {
    line.SetMargin(0.1);
    line.SetTargetValues(0, 0, 100);
    ExpectPicture(WithHandle(TrackFrom(40, 362), 41)); // 40 of 400
    line.SetTargetValues(100, 0, 100);
    ExpectPicture(WithHandle(TrackFrom(40, 362), 361));
}

TEST_F(DragLineTest, AMissingValueHasNoHandle) {
    line.SetTargetValues(M, -200, 100);
    ExpectPicture(WholeTrack());
}

TEST_F(DragLineTest, DuringADragTheHandleStandsUnderThePointer) {
    line.SetTargetValues(50, 0, 100);
    Press(51); // a press moves the handle there already
    ExpectPicture(WithHandle(WholeTrack(), 205));
    Move(75);
    ExpectPicture(WithHandle(WholeTrack(), 301));
    line.m_dragPos = -99.0;
    ExpectPicture(WholeTrack());
}

TEST_F(DragLineTest, AHandleAtTheEdgeIsCutThere) {
    for (const double value : {0.0, 100.0, -0.7, 100.9, 103.0}) {
        line.SetTargetValues(value, 0, 100);
        ExpectPicture(WithHandle(WholeTrack(), 1 + static_cast<int>(4 * value)));
    }
}

// --- Picture: limits and colours -------------------------------------------------------------------------------------

TEST_F(DragLineTest, LimitMarksAreDrawnOnlyWhenTheyAreSwitchedOn) {
    line.SetTargetValues(M, 0, 100);
    line.SetLimitValues({{20, Red}, {80, Blue}});
    ExpectPicture(WholeTrack());
    line.ShowLimits(true);
    PixelImage expected = WholeTrack(); // from one row above the slider to its last row
    ExpectPicture(expected.Fill(80, 0, 82, 21, Red).Fill(320, 0, 322, 21, Blue));
    line.ShowLimits(false);
    ExpectPicture(WholeTrack());
}

TEST_F(DragLineTest, LaterLimitMarksCoverEarlierOnesAndTheHandleAll) {
    line.SetTargetValues(M, 0, 100);
    line.ShowLimits(true);
    line.SetLimitValues({{50, Red}, {50.375, Blue}});
    PixelImage expected = WholeTrack();
    expected.Fill(200, 0, 202, 21, Red).Fill(201, 0, 203, 21, Blue);
    ExpectPicture(expected);
    line.SetTarget(50);
    ExpectPicture(WithHandle(expected, 201));
}

TEST_F(DragLineTest, LimitMarksAreCutAtTheEdgesAndLeftOutBeyond) {
    line.SetTargetValues(M, 0, 100);
    line.ShowLimits(true);
    line.SetLimitValues(
        {{0, Red}, {100, Blue}, {-1, Green}, {101, Green}, {M, Green}, {NaN, Green}, {Infinity, Green}});
    PixelImage expected = WholeTrack();
    ExpectPicture(expected.Fill(1, 0, 2, 21, Red).Fill(400, 0, 401, 21, Blue));
}

TEST_F(DragLineTest, ColoursChangeNothingOnScreen) {
    line.SetTargetValues(50, 0, 100);
    line.ShowLimits(true);
    line.SetLimitValues({{20, Red}});
    const PixelImage before = Draw();
    line.SetColors(RGB(1, 2, 3), RGB(4, 5, 6));
    line.SetTargetColor(RGB(7, 8, 9));
    EXPECT_EQ(line.m_colorFirst, RGB(1, 2, 3));
    EXPECT_EQ(line.m_colorSecond, RGB(4, 5, 6));
    ExpectPicture(before);
}

// --- Picture: surroundings -------------------------------------------------------------------------------------------

TEST_F(DragLineTest, ASliderThatIsAPartOfTheCellIsDrawnThere) {
    Surface surface(102, 40, Gold);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &host.grid;
    args.rcItem.SetRect(0, 0, 102, 30);
    line.SetTargetValues(50, 0, 100);
    line.DrawSlider(args, CRect(0, 3, 102, 8)); // rows 4 to 6: the handle reaches from -1 to 12
    EXPECT_EQ(line.GetItemRect(), CRect(0, 3, 102, 8));
    PixelImage expected(102, 40, Gold);
    expected.Fill(1, 4, 101, 7, White).Fill(0, 2, 102, 6, TrackFrame).Fill(1, 3, 101, 5, TrackColor);
    EXPECT_EQ(PixelImage::Difference(surface.Image(), HandleByGdi::Draw(expected, 51, -1)), "");
}

TEST(DragLineInRow, ASelectedRowHasTheHighlightBehindTheSlider) {
    PlotGridHost host;
    auto* const line = host.AddRow(new ProbeLine);
    host.Show();
    Surface surface(40, 20, Gold);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &host.grid;
    args.pRow = host.grid.GetRows()->GetAt(0);
    args.rcItem.SetRect(0, 0, 40, 20);
    const auto drawn = [&] {
        line->OnDrawCaption(&args, nullptr);
        return surface.Dc().GetPixel(20, 3);
    };
    EXPECT_EQ(drawn(), White);
    args.pRow->SetSelected(TRUE);
    host.grid.GetPaintManager()->m_clrHighlight.SetCustomValue(RGB(11, 22, 33));
    EXPECT_EQ(drawn(), RGB(11, 22, 33));
    surface.Dc().m_bPrinting = TRUE;
    EXPECT_EQ(drawn(), White);
    args.pControl = nullptr;
    surface.Dc().FillSolidRect(0, 0, 40, 20, Gold);
    EXPECT_EQ(drawn(), Gold);
}

TEST(DragLineRobustness, NothingIsEverDrawnOutsideTheCell) {
    constexpr double huge = std::numeric_limits<double>::max();
    const std::array<std::array<double, 4>, 10> values = {{
        // value, min, max, limit
        {5, 0, 10, 20},
        {-0.2, 0, 10, -0.5},
        {10.4, 0, 10, 10.1},
        {5, 5, 5, 5},
        {6, 5, 5, 4},
        {NaN, NaN, NaN, NaN},
        {Infinity, -Infinity, Infinity, -Infinity},
        {0, -huge, huge, huge},
        {huge, 0, 1e-300, -huge},
        {5, 10, 0, 1},
    }};
    PlotGridHost host;
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (const double margin : {0.0, 0.15, 0.5, -3.0, NaN, Infinity}) {
            for (const CRect& cell : CellsOfEverySize()) {
                const auto& v = values[i];
                ProbeLine line;
                line.SetMargin(margin);
                line.SetTargetValues(v[0], v[1], v[2]);
                line.SetLimitValues({{v[3], Red}});
                line.ShowLimits(true);
                EXPECT_TRUE(StaysInside(line, host.grid, cell)) << "values " << i << ", margin " << margin;
            }
        }
    }
}

// --- In the grid -----------------------------------------------------------------------------------------------------

namespace {

/// Two rows with sliders of 50 on the scale 0…100 without margin, driven by the mouse's messages.
class DragLineInGridTest : public ::testing::Test {
protected:
    DragLineInGridTest() {
        for (auto*& line : lines) {
            line = host.AddRow(new ProbeLine);
            line->SetMargin(0.0);
            line->SetTargetValues(50, 0, 100);
        }
        host.Show();
    }

    CPoint At(int row, double value) {
        CRect rect = host.CellRect(row);
        rect.InflateRect(-1, -1);
        return CPoint(rect.left + static_cast<int>(rect.Width() * value / 100.0 + 0.5), rect.CenterPoint().y);
    }
    /// The value at a point of the row, as single precision has it.
    double ValueAt(int row, CPoint point) {
        CRect rect = host.CellRect(row);
        rect.InflateRect(-1, -1);
        return static_cast<double>(static_cast<float>(point.x - rect.left) / static_cast<float>(rect.Width())) * 100.0;
    }
    void Send(UINT message, CPoint point, WPARAM keys = 0) {
        host.grid.SendMessage(message, keys, MAKELPARAM(point.x, point.y));
    }
    void Press(CPoint point) { Send(WM_LBUTTONDOWN, point, MK_LBUTTON); }
    void Move(CPoint point) { Send(WM_MOUSEMOVE, point, MK_LBUTTON); }
    void Release(CPoint point) { Send(WM_LBUTTONUP, point); }

    PlotGridHost host;
    ProbeLine* lines[2] = {};
};

} // namespace

TEST_F(DragLineInGridTest, TheMouseDragsTheHandle) {
    Press(At(1, 50));
    Move(At(1, 60));
    EXPECT_EQ(lines[1]->GetTarget(), ValueAt(1, At(1, 60)));
    Release(At(1, 80));
    EXPECT_EQ(lines[1]->GetTarget(), ValueAt(1, At(1, 80)));
    EXPECT_EQ(host.grid.m_pDragItem, nullptr);
    EXPECT_EQ(lines[0]->GetTarget(), 50.0);
}

TEST_F(DragLineInGridTest, FarOutsideTheHandleStaysWithinTheScale) {
    Press(At(1, 50));
    Move(CPoint(At(1, 60).x, -300));
    EXPECT_EQ(lines[1]->GetTarget(), ValueAt(1, At(1, 60)));
    Move(CPoint(5000, -300));
    EXPECT_EQ(lines[1]->GetTarget(), 100.0);
    Move(CPoint(-5000, 2000));
    EXPECT_EQ(lines[1]->GetTarget(), 0.0);
    Release(CPoint(-5000, 2000));
    EXPECT_EQ(lines[1]->GetTarget(), 0.0);
}

TEST_F(DragLineInGridTest, EscapeBringsTheFormerValueBackAndTellsTheHost) {
    Press(At(1, 50));
    Move(At(1, 60));
    MSG msg{};
    msg.hwnd = host.grid.m_hWnd;
    msg.message = WM_KEYDOWN;
    msg.wParam = VK_ESCAPE;
    host.grid.PreTranslateMessage(&msg);
    EXPECT_EQ(lines[1]->GetTarget(), 50.0);
    EXPECT_EQ(host.grid.cancelled, 1);
    Release(At(1, 70));
    EXPECT_EQ(lines[1]->GetTarget(), 50.0);
}

TEST_F(DragLineInGridTest, AClickBesideTheHandleBringsItThere) {
    Press(At(0, 20));
    EXPECT_FALSE(lines[0]->m_draggingCenter);
    Release(At(0, 20));
    EXPECT_EQ(lines[0]->GetTarget(), ValueAt(0, At(0, 20)));
}

TEST_F(DragLineInGridTest, WithoutInteractionAClickChangesNothing) {
    lines[0]->SetAllowInteraction(false);
    Press(At(0, 50));
    Move(At(0, 60));
    Release(At(0, 60));
    EXPECT_EQ(lines[0]->GetTarget(), 50.0);
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_NO));
}

TEST_F(DragLineInGridTest, EachMoveIsDrawn) {
    Press(At(1, 50));
    Move(At(1, 60));
    host.grid.UpdateWindow();
    CRect rect = host.CellRect(1);
    rect.InflateRect(-1, -1);
    CClientDC dc(&host.grid);
    // The handle's outline at its left, in the row of the track's middle.
    const int column = rect.left + static_cast<int>(rect.Width() * lines[1]->m_dragPos);
    EXPECT_EQ(dc.GetPixel(column - 4, (rect.top + rect.bottom) / 2), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(dc.GetPixel(column, (rect.top + rect.bottom) / 2), ::GetSysColor(COLOR_BTNFACE));
}
