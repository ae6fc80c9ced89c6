// The base of the plot cells: properties, dragging, cursors, signal.
#include "PlotCellProbes.h"

#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

constexpr double Missing = -99.0;
constexpr float MissingF = -99.0f;

/// The cell rectangle that leaves a drawing rectangle of exactly 100 pixels from x = 1 on.
const CRect Cell(0, 0, 102, 22);

/// The point at `percent` of the drawing rectangle's width.
CPoint At(int percent) { return CPoint(1 + percent, 10); }

/// The fraction there, as single precision gives it.
double Fraction(int percent) { return static_cast<float>(percent) / 100.0f; }

enum class Dragged { Nothing, Lower, Target, Upper };

Dragged WhatIsDragged(const ProbeCell& cell) {
    EXPECT_LE(cell.m_draggingLower + cell.m_draggingUpper + cell.m_draggingCenter, 1);
    if (cell.m_draggingLower)
        return Dragged::Lower;
    if (cell.m_draggingUpper)
        return Dragged::Upper;
    return cell.m_draggingCenter ? Dragged::Target : Dragged::Nothing;
}

/// A cell as it stands in a grid after its first drawing.
class PlotRecordItemTest : public ::testing::Test {
protected:
    PlotRecordItemTest() { cell.m_itemRect.SetRect(1, 1, 101, 21); }

    void Press(int percent) { cell.BeginDrag(At(percent), Cell); }
    void Move(int percent) { cell.OnMouseMove(MK_LBUTTON, At(percent), &control); }
    void Release(int percent) { cell.EndDrag(At(percent), Cell, true); }

    ProbeCell cell;
    CXTPReportControl control;
    Reports reports{cell};
};

} // namespace

// --- Construction and properties -------------------------------------------------------------------------------------

TEST(PlotRecordItem, StartsWithoutValuesAndWithTheStandardLook) {
    struct Untouched : KyPlotRecordItem {
        double GetMin() const override { return 0.0; }
        double GetMax() const override { return 1.0; }
        CString GetInfoTip() const override { return CString(); }
        void Check() const {
            EXPECT_EQ(m_dragPos, -99.0);
            EXPECT_EQ(m_lower, -99.0);
            EXPECT_EQ(m_upper, -99.0);
            EXPECT_EQ(m_target, -99.0);
            EXPECT_EQ(m_targetColor, 0x0000D7FFu);
            EXPECT_EQ(m_margin, 0.15);
            EXPECT_FALSE(m_draggingLower);
            EXPECT_FALSE(m_draggingUpper);
            EXPECT_FALSE(m_draggingCenter);
            EXPECT_FALSE(m_dragMoved);
            EXPECT_EQ(m_itemRect, CRect(0, 0, 0, 0));
            EXPECT_TRUE(m_allowInteraction);
            EXPECT_TRUE(m_supportDragTarget);
        }
    } cell;
    cell.Check();
    EXPECT_TRUE(cell.m_valueChanged.empty());
    EXPECT_EQ(cell.GetBackgroundColor(), 0x00FFFFFFu);
    EXPECT_EQ(cell.GetCaption(nullptr), CString());
}

TEST(PlotRecordItem, IsAbstractAndSharesTheTextCellsRunTimeClass) {
    EXPECT_TRUE(std::is_abstract_v<KyPlotRecordItem>);
    const ProbeCell cell;
    EXPECT_EQ(cell.GetRuntimeClass(), RUNTIME_CLASS(CXTPReportRecordItemText));
}

TEST(PlotRecordItem, PropertiesAreWhatWasSet) {
    ProbeCell cell;
    cell.SetTarget(12.5);
    EXPECT_EQ(cell.GetTarget(), 12.5);
    EXPECT_EQ(cell.m_target, 12.5);
    cell.SetTargetColor(0x00123456);
    EXPECT_EQ(cell.GetTargetColor(), 0x00123456u);
    EXPECT_TRUE(cell.IsSupportDragTarget());
    cell.SetSupportDragTarget(false);
    EXPECT_FALSE(cell.IsSupportDragTarget());
    cell.SetMargin(0.25);
    EXPECT_EQ(cell.m_margin, 0.25);
    cell.m_itemRect.SetRect(1, 2, 3, 4);
    EXPECT_EQ(cell.GetItemRect(), CRect(1, 2, 3, 4));
}

TEST(PlotRecordItem, InteractionIsAskedForWithCaptureWhereverThePointIs) {
    ProbeCell cell;
    bool capture = false;
    EXPECT_TRUE(cell.GetAllowInteraction(CPoint(-500, 900), capture));
    EXPECT_TRUE(capture);
    cell.SetAllowInteraction(false);
    capture = false;
    EXPECT_FALSE(cell.GetAllowInteraction(CPoint(1, 1), capture));
    EXPECT_TRUE(capture);
}

TEST(PlotRecordItem, HasNoHyperlinkAnywhere) {
    ProbeCell cell;
    EXPECT_EQ(cell.HitTestHyperlink(CPoint(0, 0)), -1);
    cell.AddHyperlink(new CXTPReportHyperlink(0, 0));
    EXPECT_EQ(cell.HitTestHyperlink(CPoint(5, 5)), -1);
}

// --- What a press drags ----------------------------------------------------------------------------------------------

namespace {

struct PressCase {
    const char* name;
    double lower, target, upper;
    int press;
    bool supportTarget;
    Dragged expected;
};

class PressTest : public ::testing::TestWithParam<PressCase> {};

} // namespace

TEST_P(PressTest, DragsTheRightMark) {
    const PressCase& param = GetParam();
    ProbeCell cell;
    cell.SetValues(param.lower, param.target, param.upper);
    cell.SetSupportDragTarget(param.supportTarget);
    ::SetCursor(StandardCursor(IDC_ARROW));
    cell.BeginDrag(At(param.press), Cell);

    EXPECT_EQ(WhatIsDragged(cell), param.expected);
    EXPECT_EQ(cell.m_dragPos, Fraction(param.press));
    const double start = param.expected == Dragged::Lower   ? param.lower
                         : param.expected == Dragged::Upper ? param.upper
                                                            : param.target;
    EXPECT_EQ(cell.m_dragStartValue, start);
    const bool drags = param.expected != Dragged::Nothing;
    EXPECT_EQ(::GetCursor(), StandardCursor(drags ? IDC_SIZEWE : IDC_ARROW));
    EXPECT_FALSE(cell.IsCenterDragging());
}

INSTANTIATE_TEST_SUITE_P(
    Marks, PressTest,
    ::testing::Values(PressCase{"NoValues", Missing, Missing, Missing, 50, true, Dragged::Nothing},
                      PressCase{"FarFromEveryMark", 30, 50, 70, 40, true, Dragged::Nothing},
                      // The nearest mark between the ends.
                      PressCase{"InsideTheLowerEnd", 30, 50, 70, 31, true, Dragged::Lower},
                      PressCase{"InsideTheUpperEnd", 30, 50, 70, 69, true, Dragged::Upper},
                      PressCase{"OnTheTarget", 30, 50, 70, 50, true, Dragged::Target},
                      PressCase{"OnTheLowerEnd", 30, 50, 70, 30, true, Dragged::Lower},
                      PressCase{"OnTheUpperEnd", 30, 50, 70, 70, true, Dragged::Upper},
                      PressCase{"TargetAlone", Missing, 50, Missing, 51, true, Dragged::Target},
                      PressCase{"LowerAlone", 30, Missing, Missing, 31, true, Dragged::Lower},
                      PressCase{"UpperAlone", Missing, Missing, 70, 69, true, Dragged::Upper},
                      // On its outer side an end wins over everything.
                      PressCase{"LeftOfTheLowerEndWithTheTargetNearer", 30, 29, 70, 29, true, Dragged::Lower},
                      PressCase{"RightOfTheUpperEndWithTheTargetNearer", 30, 71, 70, 71, true, Dragged::Upper},
                      PressCase{"OnATargetFarLeftOfTheLowerEnd", 90, 50, Missing, 50, true, Dragged::Lower},
                      PressCase{"OnATargetFarRightOfTheUpperEnd", Missing, 50, 10, 50, true, Dragged::Upper},
                      // 0.52 is 0.51999998… in single precision and 0.48 is 0.47999999…: just near, and just not.
                      PressCase{"TwoPercentRightOfTheTarget", Missing, 50, Missing, 52, true, Dragged::Target},
                      PressCase{"TwoPercentLeftOfTheTarget", Missing, 50, Missing, 48, true, Dragged::Nothing},
                      // Ends outside the cell are grabbed at its edges.
                      PressCase{"LowerEndLeftOfTheCell", -20, 50, Missing, 1, true, Dragged::Lower},
                      PressCase{"UpperEndRightOfTheCell", Missing, 50, 130, 99, true, Dragged::Upper},
                      PressCase{"LowerEndRightOfTheCell", 110, Missing, Missing, 99, true, Dragged::Nothing},
                      PressCase{"TargetRightOfTheCell", Missing, 110, Missing, 99, true, Dragged::Nothing},
                      // Ties go to the target, even to one that is not there.
                      PressCase{"EndsMeetWithoutATarget", 50, Missing, 50, 50, true, Dragged::Target},
                      PressCase{"LowerEndOnTheTarget", 50, 50, 70, 51, true, Dragged::Target},
                      PressCase{"UpperEndOnTheTarget", 30, 50, 50, 49, true, Dragged::Target},
                      // A target that cannot be dragged.
                      PressCase{"OnAFixedTarget", 30, 50, 70, 50, false, Dragged::Nothing},
                      PressCase{"LowerEndOnAFixedTarget", 50, 50, 70, 51, false, Dragged::Nothing},
                      PressCase{"LowerEndWithAFixedTarget", 30, 50, 70, 31, false, Dragged::Lower}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(PlotRecordItemTest, APressWithDefaultMarginIsMeasuredOnTheMarginedScale) {
    cell.SetMargin(0.15);
    cell.SetValues(Missing, 100.0, Missing); // at 85 %
    Press(85);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Target);
}

TEST_F(PlotRecordItemTest, WithoutInteractionAPressDoesNothing) {
    cell.SetValues(30, 50, 70);
    cell.SetAllowInteraction(false);
    Press(50);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
    EXPECT_EQ(cell.m_dragPos, Missing);
}

TEST_F(PlotRecordItemTest, ASecondPressReplacesADragThatGotNoEnd) {
    cell.SetValues(30, 50, 70);
    Press(30);
    Press(70);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Upper);
    EXPECT_EQ(cell.m_dragStartValue, 70);
}

TEST_F(PlotRecordItemTest, ThePressIsMeasuredInTheCellDeflatedByOnePixel) {
    cell.SetValues(Missing, 50, Missing);
    cell.BeginDrag(CPoint(34, 5), CRect(0, 0, 102, 22)); // 33 of 100
    EXPECT_EQ(cell.m_dragPos, static_cast<double>(33.0f / 100.0f));
    EXPECT_NE(cell.m_dragPos, 0.33);
    cell.BeginDrag(CPoint(134, 5), CRect(100, 0, 202, 22));
    EXPECT_EQ(cell.m_dragPos, static_cast<double>(33.0f / 100.0f));
}

// --- Moving ----------------------------------------------------------------------------------------------------------

TEST_F(PlotRecordItemTest, AnIdleMoveOnlyStoresWhereThePointerIs) {
    cell.SetValues(30, 50, 70);
    Move(33);
    EXPECT_EQ(cell.m_dragPos, static_cast<double>(33.0f / 100.0f));
    EXPECT_FALSE(cell.m_dragMoved);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
}

TEST_F(PlotRecordItemTest, AMoveIsMeasuredOnTheDrawnRectangleWithoutDeflation) {
    cell.m_itemRect.SetRect(0, 0, 300, 20);
    cell.OnMouseMove(0, CPoint(100, 5), &control);
    EXPECT_EQ(cell.m_dragPos, static_cast<double>(100.0f / 300.0f));
    cell.OnMouseMove(0, CPoint(-30, 5), &control);
    EXPECT_EQ(cell.m_dragPos, static_cast<double>(-30.0f / 300.0f));
}

TEST_F(PlotRecordItemTest, WithoutInteractionAMoveStoresNothing) {
    cell.SetAllowInteraction(false);
    Move(50);
    EXPECT_EQ(cell.m_dragPos, Missing);
}

TEST_F(PlotRecordItemTest, AMoveDuringADragLeavesTheValues) {
    cell.SetValues(30, 50, 70);
    Press(30);
    Move(40);
    EXPECT_EQ(cell.m_dragPos, Fraction(40));
    EXPECT_TRUE(cell.m_dragMoved);
    EXPECT_EQ(cell.m_lower, 30.0);
    EXPECT_TRUE(reports.all.empty());
}

TEST_F(PlotRecordItemTest, TheTargetIsAWallForTheLowerEnd) {
    cell.SetValues(30, 50, 70);
    Press(30);
    Move(60);
    EXPECT_EQ(cell.m_dragPos, 0.5);
    Move(45);
    EXPECT_EQ(cell.m_dragPos, Fraction(45));
}

TEST_F(PlotRecordItemTest, TheTargetIsAWallForTheUpperEnd) {
    cell.SetValues(30, 50, 70);
    Press(70);
    Move(20);
    EXPECT_EQ(cell.m_dragPos, 0.5);
}

TEST_F(PlotRecordItemTest, WithoutATargetThereIsNoWall) {
    cell.SetValues(30, Missing, 70);
    Press(30);
    Move(90);
    EXPECT_EQ(cell.m_dragPos, Fraction(90));
}

TEST_F(PlotRecordItemTest, TheEndsAreNoWallForTheTarget) {
    cell.SetValues(30, 50, 70);
    Press(50);
    Move(95);
    EXPECT_EQ(cell.m_dragPos, Fraction(95));
}

TEST_F(PlotRecordItemTest, AMoveToTheSamePlaceIsNone) {
    cell.SetValues(30, 50, 70);
    Press(30);
    Move(40);
    Move(40);
    EXPECT_FALSE(cell.m_dragMoved);
}

TEST_F(PlotRecordItemTest, WithoutAControlADragFollowsButHasNotMoved) {
    cell.SetValues(30, 50, 70);
    Press(30);
    cell.OnMouseMove(0, At(40), nullptr);
    EXPECT_EQ(cell.m_dragPos, Fraction(40));
    EXPECT_FALSE(cell.m_dragMoved);
}

TEST_F(PlotRecordItemTest, CenterDraggingIsTrueFromTheFirstMoveThatMoves) {
    cell.SetValues(30, 50, 70);
    Press(50);
    EXPECT_FALSE(cell.IsCenterDragging());
    Move(50);
    EXPECT_FALSE(cell.IsCenterDragging());
    Move(51);
    EXPECT_TRUE(cell.IsCenterDragging());
    Release(51);
    EXPECT_FALSE(cell.IsCenterDragging());
}

TEST_F(PlotRecordItemTest, DraggingAnEndIsNotCenterDragging) {
    cell.SetValues(30, 50, 70);
    Press(30);
    Move(35);
    EXPECT_TRUE(cell.m_dragMoved);
    EXPECT_FALSE(cell.IsCenterDragging());
}

TEST(PlotRecordItem, AMoveBeforeTheFirstDrawingIsHarmless) {
    ProbeCell cell;
    CXTPReportControl control;
    cell.SetValues(30, 50, 70);
    cell.OnMouseMove(0, CPoint(5, 5), &control);
    EXPECT_TRUE(std::isinf(cell.m_dragPos));
    cell.OnMouseMove(0, CPoint(0, 0), &control);
    EXPECT_TRUE(std::isnan(cell.m_dragPos));
    ::SetCursor(nullptr);
    EXPECT_TRUE(cell.OnSetCursor(CPoint()));
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_ARROW));
}

// --- Ending a drag ---------------------------------------------------------------------------------------------------

namespace {

struct ReleaseCase {
    const char* name;
    double lower, target, upper;
    int press, release;
    double lowerAfter, targetAfter, upperAfter;
    std::array<float, 3> report;
};

class ReleaseTest : public ::testing::TestWithParam<ReleaseCase> {};

double Value(int percent) { return Fraction(percent) * 100.0; }
float ValueF(int percent) { return static_cast<float>(Value(percent)); }

} // namespace

TEST_P(ReleaseTest, StoresPushesAndReports) {
    const ReleaseCase& param = GetParam();
    ProbeCell cell;
    Reports reports(cell);
    cell.SetValues(param.lower, param.target, param.upper);
    cell.BeginDrag(At(param.press), Cell);
    cell.EndDrag(At(param.release), Cell, true);

    EXPECT_EQ(cell.m_lower, param.lowerAfter);
    EXPECT_EQ(cell.m_target, param.targetAfter);
    EXPECT_EQ(cell.m_upper, param.upperAfter);
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_EQ(reports.all[0], param.report);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
    EXPECT_EQ(cell.m_dragPos, Fraction(param.release));
}

INSTANTIATE_TEST_SUITE_P(
    Marks, ReleaseTest,
    ::testing::Values(
        ReleaseCase{"Lower", 30, 50, 70, 30, 20, Value(20), 50, 70, {ValueF(20), MissingF, MissingF}},
        ReleaseCase{"LowerPastTheTarget", 30, 50, 70, 30, 60, 50, 50, 70, {50.0f, MissingF, MissingF}},
        ReleaseCase{"LowerWithoutTargetPushesUpper",
                    30,
                    Missing,
                    70,
                    30,
                    90,
                    Value(90),
                    Missing,
                    Value(90),
                    {ValueF(90), MissingF, MissingF}},
        ReleaseCase{
            "LowerAlone", 30, Missing, Missing, 30, 90, Value(90), Missing, Missing, {ValueF(90), MissingF, MissingF}},
        ReleaseCase{"LowerToATargetAboveUpperPushesUpper", 30, 50, 40, 30, 60, 50, 50, 50, {50.0f, MissingF, MissingF}},
        ReleaseCase{"Upper", 30, 50, 70, 70, 80, 30, 50, Value(80), {MissingF, MissingF, ValueF(80)}},
        ReleaseCase{"UpperPastTheTarget", 30, 50, 70, 70, 10, 30, 50, 50, {MissingF, MissingF, 50.0f}},
        ReleaseCase{"UpperWithoutTargetPushesLower",
                    30,
                    Missing,
                    70,
                    70,
                    10,
                    Value(10),
                    Missing,
                    Value(10),
                    {MissingF, MissingF, ValueF(10)}},
        ReleaseCase{
            "UpperAlone", Missing, Missing, 70, 70, 10, Missing, Missing, Value(10), {MissingF, MissingF, ValueF(10)}},
        ReleaseCase{"Target", 30, 50, 70, 50, 60, 30, Value(60), 70, {MissingF, ValueF(60), MissingF}},
        ReleaseCase{"TargetAboveUpperRaisesUpper",
                    30,
                    50,
                    70,
                    50,
                    90,
                    30,
                    Value(90),
                    Value(90),
                    {MissingF, ValueF(90), MissingF}},
        ReleaseCase{"TargetBelowLowerSinksLower",
                    30,
                    50,
                    70,
                    50,
                    10,
                    Value(10),
                    Value(10),
                    70,
                    {MissingF, ValueF(10), MissingF}},
        ReleaseCase{
            "TargetAlone", Missing, 50, Missing, 50, 10, Missing, Value(10), Missing, {MissingF, ValueF(10), MissingF}},
        ReleaseCase{
            "BeyondTheScale", Missing, 50, Missing, 50, 250, Missing, 250.0, Missing, {MissingF, 250.0f, MissingF}},
        ReleaseCase{
            "BeforeTheScale", Missing, 50, Missing, 50, -50, Missing, -50.0, Missing, {MissingF, -50.0f, MissingF}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(PlotRecordItemTest, TheReleasedFractionIsTurnedBackWithTheMargin) {
    cell.SetMargin(0.15);
    cell.SetValues(Missing, 50, Missing);
    Press(50);
    Release(85);
    const double fraction = static_cast<float>(85) / 100.0f;
    EXPECT_EQ(cell.m_target, (fraction - 0.15) / (1.0 - 2.0 * 0.15) * (100.0 - 0.0) + 0.0);
    EXPECT_NEAR(cell.m_target, 100.0, 1e-5);
}

TEST_F(PlotRecordItemTest, AnUnappliedEndLeavesEverything) {
    cell.SetValues(30, 50, 70);
    Press(30);
    Move(40);
    cell.EndDrag(At(45), Cell, false);
    EXPECT_EQ(cell.m_lower, 30.0);
    EXPECT_EQ(cell.m_target, 50.0);
    EXPECT_EQ(cell.m_upper, 70.0);
    EXPECT_EQ(cell.m_dragPos, Fraction(40)); // the move's, not the release's
    EXPECT_FALSE(cell.m_dragMoved);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
    EXPECT_TRUE(reports.all.empty());
}

TEST_F(PlotRecordItemTest, AnEndWithoutADragReportsNothing) {
    cell.SetValues(30, 50, 70);
    Release(40);
    EXPECT_EQ(cell.m_lower, 30.0);
    EXPECT_EQ(cell.m_dragPos, Fraction(40));
    EXPECT_TRUE(reports.all.empty());
}

TEST_F(PlotRecordItemTest, SlotsRunInsideTheEndWithTheValuesStored) {
    cell.SetValues(30, 50, 70);
    double seen = 0.0;
    cell.m_valueChanged.connect([&](float, float, float) { seen = cell.m_lower; });
    Press(30);
    Release(20);
    EXPECT_EQ(seen, Value(20));
}

TEST_F(PlotRecordItemTest, ASlotThatThrowsLeavesNoDragBehind) {
    cell.SetValues(30, 50, 70);
    cell.m_valueChanged.connect([](float, float, float) { throw std::runtime_error("from the host"); });
    Press(30);
    EXPECT_THROW(Release(20), std::runtime_error);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
}

TEST_F(PlotRecordItemTest, ACellWithoutSlotsReportsToNobody) {
    ProbeCell lonely;
    lonely.SetValues(30, 50, 70);
    lonely.BeginDrag(At(30), Cell);
    lonely.EndDrag(At(20), Cell, true);
    EXPECT_EQ(lonely.m_lower, Value(20));
}

TEST_F(PlotRecordItemTest, ADragOnAScaleWithoutExtentIsHarmless) {
    cell.min = cell.max = 50.0;
    cell.SetValues(50, 50, 50);
    Press(50); // every fraction is 0/0: nothing is near
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
    cell.m_draggingLower = true;
    Move(10);
    Release(10);
    EXPECT_EQ(cell.m_lower, 50.0);
}

TEST_F(PlotRecordItemTest, HugeScalesAreHarmless) {
    cell.min = -std::numeric_limits<double>::max();
    cell.max = std::numeric_limits<double>::max(); // the extent itself overflows
    cell.SetValues(0, 1, 2);
    Press(50);
    Move(60);
    Release(70);
    EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
}

// --- Cancelling ------------------------------------------------------------------------------------------------------

TEST_F(PlotRecordItemTest, CancellingRestoresTheDraggedValue) {
    for (const int press : {30, 50, 70}) {
        cell.SetValues(30, 50, 70);
        Press(press);
        Move(press + 5);
        // What a host does to the value in between is undone as well.
        (press == 30 ? cell.m_lower : press == 50 ? cell.m_target : cell.m_upper) = 1.0;
        cell.CancelDrag();
        EXPECT_EQ(cell.m_lower, 30.0) << press;
        EXPECT_EQ(cell.m_target, 50.0) << press;
        EXPECT_EQ(cell.m_upper, 70.0) << press;
        EXPECT_EQ(cell.m_dragPos, -99.0) << press;
        EXPECT_FALSE(cell.m_dragMoved);
        EXPECT_EQ(WhatIsDragged(cell), Dragged::Nothing);
    }
    EXPECT_TRUE(reports.all.empty());
}

TEST_F(PlotRecordItemTest, CancellingWithoutADragKeepsTheValues) {
    cell.SetValues(30, 50, 70);
    cell.m_dragStartValue = 1.0;
    Move(40);
    cell.CancelDrag();
    EXPECT_EQ(cell.m_lower, 30.0);
    EXPECT_EQ(cell.m_target, 50.0);
    EXPECT_EQ(cell.m_upper, 70.0);
    EXPECT_EQ(cell.m_dragPos, -99.0);
}

// --- Cursor ----------------------------------------------------------------------------------------------------------

namespace {

struct CursorCase {
    const char* name;
    double lower, target, upper;
    int pointer;
    bool supportTarget;
    LPCTSTR cursor;
};

class CursorTest : public ::testing::TestWithParam<CursorCase> {};

} // namespace

TEST_P(CursorTest, IsChosenByTheLastMove) {
    const CursorCase& param = GetParam();
    ProbeCell cell;
    cell.m_itemRect.SetRect(1, 1, 101, 21);
    cell.SetValues(param.lower, param.target, param.upper);
    cell.SetSupportDragTarget(param.supportTarget);
    cell.OnMouseMove(0, At(param.pointer), nullptr);
    ::SetCursor(StandardCursor(IDC_WAIT));
    EXPECT_TRUE(cell.OnSetCursor(CPoint(-1000, -1000))); // the point does not matter
    EXPECT_EQ(::GetCursor(), StandardCursor(param.cursor));
}

INSTANTIATE_TEST_SUITE_P(Marks, CursorTest,
                         ::testing::Values(CursorCase{"NoValues", Missing, Missing, Missing, 50, true, IDC_ARROW},
                                           CursorCase{"AwayFromMarks", 30, 50, 70, 40, true, IDC_ARROW},
                                           CursorCase{"LowerEnd", 30, 50, 70, 31, true, IDC_SIZEWE},
                                           CursorCase{"UpperEnd", 30, 50, 70, 69, true, IDC_SIZEWE},
                                           CursorCase{"Target", 30, 50, 70, 51, true, IDC_HAND},
                                           CursorCase{"FixedTarget", 30, 50, 70, 51, false, IDC_ARROW},
                                           CursorCase{"EndBeforeTarget", 50, 50, 70, 50, true, IDC_SIZEWE},
                                           CursorCase{"LowerEndLeftOfTheCell", -20, 50, 70, 1, true, IDC_SIZEWE},
                                           CursorCase{"UpperEndRightOfTheCell", 30, 50, 170, 99, true, IDC_SIZEWE},
                                           CursorCase{"TargetRightOfTheCell", 30, 170, Missing, 99, true, IDC_ARROW}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(PlotRecordItemTest, DuringADragTheCursorIsTheResizeCursorEverywhere) {
    cell.SetValues(30, 50, 70);
    for (const int press : {30, 50, 70}) {
        Press(press);
        Move(100);
        ::SetCursor(StandardCursor(IDC_WAIT));
        EXPECT_TRUE(cell.OnSetCursor(At(100)));
        EXPECT_EQ(::GetCursor(), StandardCursor(IDC_SIZEWE));
        cell.CancelDrag();
    }
}

TEST_F(PlotRecordItemTest, WithoutInteractionTheCursorIsTheControlsAffair) {
    cell.SetValues(30, 50, 70);
    Move(50);
    cell.SetAllowInteraction(false);
    ::SetCursor(StandardCursor(IDC_WAIT));
    EXPECT_FALSE(cell.OnSetCursor(At(50)));
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_WAIT));
}

TEST_F(PlotRecordItemTest, BeforeThePointerCameTheCursorIsTheArrow) {
    ::SetCursor(StandardCursor(IDC_WAIT));
    EXPECT_TRUE(cell.OnSetCursor(CPoint())); // no value and no pointer position: both carry the same mark
    EXPECT_EQ(::GetCursor(), StandardCursor(IDC_ARROW));
}
