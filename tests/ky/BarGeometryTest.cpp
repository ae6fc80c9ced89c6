// Where a bar chart cell draws its bar.
#include "plotcells/BarGeometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

using namespace bargeometry;
using plotspan::Extent;
using plotspan::Span;

namespace {

constexpr double Missing = -99.0;
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr Marks Rest{0.25, 0.5, 0.625};

TEST(BarGeometry, AtRestTheMarksStandWhereTheyAre) {
    EXPECT_EQ(WhileDragging(Rest, Drag::None, 0.9, Symmetry::Kept), Rest);
}

TEST(BarGeometry, ADraggedTargetTakesASymmetricBarAlong) {
    EXPECT_EQ(WhileDragging(Rest, Drag::Target, 0.625, Symmetry::Kept), (Marks{0.375, 0.625, 0.75}));
    EXPECT_EQ(WhileDragging(Rest, Drag::Target, 0.625, Symmetry::Free), (Marks{0.25, 0.625, 0.625}));
    EXPECT_EQ(WhileDragging({Missing, 0.5, 0.625}, Drag::Target, 0.625, Symmetry::Kept), (Marks{Missing, 0.625, 0.75}));
    EXPECT_EQ(WhileDragging({0.25, 0.5, Missing}, Drag::Target, 0.625, Symmetry::Kept), (Marks{0.375, 0.625, Missing}));
}

TEST(BarGeometry, ATargetFromNowhereMovesNoBar) {
    EXPECT_EQ(WhileDragging({0.25, Missing, 0.25}, Drag::Target, 0.5, Symmetry::Kept), (Marks{0.25, 0.5, 0.25}));
}

TEST(BarGeometry, ADraggedEndIsMirroredByTheOther) {
    EXPECT_EQ(WhileDragging(Rest, Drag::Lower, 0.375, Symmetry::Kept), (Marks{0.375, 0.5, 0.625}));
    EXPECT_EQ(WhileDragging(Rest, Drag::Upper, 0.875, Symmetry::Kept), (Marks{0.125, 0.5, 0.875}));
    EXPECT_EQ(WhileDragging(Rest, Drag::Lower, 0.0, Symmetry::Free), (Marks{0.0, 0.5, 0.625}));
    EXPECT_EQ(WhileDragging(Rest, Drag::Upper, 1.0, Symmetry::Free), (Marks{0.25, 0.5, 1.0}));
}

TEST(BarGeometry, ThereIsNoMirrorWithoutATargetOrTheOtherEnd) {
    EXPECT_EQ(WhileDragging({0.25, Missing, 0.75}, Drag::Lower, 0.0, Symmetry::Kept), (Marks{0.0, Missing, 0.75}));
    EXPECT_EQ(WhileDragging({0.25, 0.5, Missing}, Drag::Lower, 0.0, Symmetry::Kept), (Marks{0.0, 0.5, Missing}));
    EXPECT_EQ(WhileDragging({Missing, 0.5, 0.75}, Drag::Upper, 1.0, Symmetry::Kept), (Marks{Missing, 0.5, 1.0}));
}

TEST(BarGeometry, ABarBesideTheCellIsToldFromOneInside) {
    EXPECT_EQ(PlaceOf({0.2, 0.5, 0.8}), BarPlace::Inside);
    EXPECT_EQ(PlaceOf({Missing, 0.5, 0.8}), BarPlace::Nowhere);
    EXPECT_EQ(PlaceOf({0.2, 0.5, Missing}), BarPlace::Nowhere);
    EXPECT_EQ(PlaceOf({-0.5, 0.5, -0.001}), BarPlace::Below);
    EXPECT_EQ(PlaceOf({-0.5, 0.5, 0.0}), BarPlace::Inside);
    EXPECT_EQ(PlaceOf({1.001, 0.5, 2.0}), BarPlace::Above);
    EXPECT_EQ(PlaceOf({1.0, 0.5, 2.0}), BarPlace::Inside);
}

TEST(BarGeometry, APlainBarSpansItsFractions) {
    // A cell of 100 pixels: deflated 1…99, w = 98; 1 + 98 * 0.36 = 36.28, 1 + 98 * 0.64 = 63.72.
    EXPECT_EQ(PlainBar({1, 99}, {0.36, 0.5, 0.64}), (Span{36, 63}));
}

TEST(BarGeometry, APlainBarEndsAtTheCell) {
    EXPECT_EQ(PlainBar({1, 99}, {-3.0, 0.5, 0.5}), (Span{1, 50}));
    EXPECT_EQ(PlainBar({1, 99}, {0.5, 0.5, 7.0}), (Span{50, 99}));
    EXPECT_EQ(PlainBar({1, 99}, {-Infinity, 0.5, Infinity}), (Span{1, 99}));
    EXPECT_TRUE(PlainBar({1, 99}, {0.6, 0.5, 0.4}).IsEmpty());
    EXPECT_TRUE(PlainBar({1, 99}, {NotANumber, 0.5, NotANumber}).IsEmpty());
}

TEST(BarGeometry, ACentredGradientHasTwentyPiecesOnEachSide) {
    // w = 400, bar 80…320 with the middle at 200: steps of 6 pixels, each piece one pixel wider than its step.
    const auto pieces = GradientBar({0, 400}, {0.2, Missing, 0.8}, Darkest::AtTarget);
    ASSERT_EQ(pieces.size(), 40u);
    EXPECT_EQ(pieces[0], (Piece{{80, 87}, 0}));
    EXPECT_EQ(pieces[1], (Piece{{86, 93}, 1}));
    EXPECT_EQ(pieces[19], (Piece{{194, 201}, 19}));
    EXPECT_EQ(pieces[20], (Piece{{200, 207}, 19}));
    EXPECT_EQ(pieces[39], (Piece{{314, 321}, 0}));
}

TEST(BarGeometry, ATargetGradientIsDarkestAtTheTarget) {
    // Left half 100…140 (step 2), right half 140…300 (step 8).
    const auto pieces = GradientBar({0, 400}, {0.25, 0.35, 0.75}, Darkest::AtTarget);
    EXPECT_EQ(pieces[19], (Piece{{138, 141}, 19}));
    EXPECT_EQ(pieces[20], (Piece{{140, 149}, 19}));
    EXPECT_EQ(pieces[39], (Piece{{292, 301}, 0}));
    // The same bar, darkest at its middle: 100…200…300.
    EXPECT_EQ(GradientBar({0, 400}, {0.25, 0.35, 0.75}, Darkest::AtMiddle)[20], (Piece{{200, 206}, 19}));
}

TEST(BarGeometry, TheRightHalfStepsInSinglePrecision) {
    // A right half of 84 pixels from 32 on steps by 4.2. Fifteen steps are 63 in double precision, but in single
    // precision 4.2 is 4.19999980926513671875 and fifteen of it round to 62.9999961853.
    const auto pieces = GradientBar({0, 256}, {0.0, 32.0 / 256, 116.0 / 256}, Darkest::AtTarget);
    ASSERT_EQ(pieces.size(), 40u);
    EXPECT_EQ(pieces[20 + 14], (Piece{{90, 95}, 5}));
    EXPECT_EQ(pieces[20 + 15], (Piece{{94, 99}, 4}));
    EXPECT_EQ(pieces[20 + 16], (Piece{{99, 104}, 3}));
}

TEST(BarGeometry, TheLeftHalfStepsInDoublePrecision) {
    const auto pieces = GradientBar({0, 256}, {32.0 / 256, 116.0 / 256, 1.0}, Darkest::AtTarget);
    ASSERT_EQ(pieces.size(), 40u);
    EXPECT_EQ(pieces[15], (Piece{{95, 100}, 15}));
}

TEST(BarGeometry, PiecesStayInsideTheCell) {
    for (const Marks& marks : {Marks{-0.5, 0.5, 1.5}, Marks{-20.0, -10.0, 0.02}, Marks{0.99, 3.0, 4.0}}) {
        for (const Darkest darkest : {Darkest::AtMiddle, Darkest::AtTarget}) {
            const auto pieces = GradientBar({10, 90}, marks, darkest);
            EXPECT_FALSE(pieces.empty());
            for (const Piece& piece : pieces) {
                EXPECT_GE(piece.span.begin, 10);
                EXPECT_LE(piece.span.end, 90);
                EXPECT_FALSE(piece.span.IsEmpty());
            }
        }
    }
}

TEST(BarGeometry, ATargetOutsideTheBarStillDrawsOnlyForwardPieces) {
    // The target left of the bar: the left half runs backwards and gives no pieces, the right half spans target…upper.
    const auto pieces = GradientBar({0, 400}, {0.5, 0.25, 0.75}, Darkest::AtTarget);
    ASSERT_EQ(pieces.size(), 20u);
    EXPECT_EQ(pieces.front(), (Piece{{100, 111}, 19}));
    EXPECT_EQ(pieces.back(), (Piece{{290, 301}, 0}));
}

TEST(BarGeometry, ExtremeMarksAreHarmless) {
    for (const double low : {-1e300, -Infinity, NotANumber, 0.2, 1e300}) {
        for (const double target : {-1e300, Missing, NotANumber, 0.5, Infinity}) {
            for (const double high : {-1e300, NotANumber, 0.8, 1e300, Infinity}) {
                const Marks marks{low, target, high};
                const Span bar = PlainBar({1, 99}, marks);
                EXPECT_TRUE(bar.IsEmpty() || (bar.begin >= 1 && bar.end <= 99));
                for (const Piece& piece : GradientBar({1, 99}, marks, Darkest::AtTarget))
                    EXPECT_TRUE(piece.span.begin >= 1 && piece.span.end <= 99);
                const Span line = WhiskerLine({1, 99}, low, high);
                EXPECT_TRUE(line.IsEmpty() || (line.begin >= 1 && line.end <= 99));
            }
        }
    }
}

TEST(BarGeometry, ACellWithoutWidthDrawsNothing) {
    EXPECT_TRUE(PlainBar({5, 5}, {0.1, 0.5, 0.9}).IsEmpty());
    EXPECT_TRUE(PlainBar({6, 4}, {0.1, 0.5, 0.9}).IsEmpty());
    EXPECT_TRUE(GradientBar({6, 4}, {0.1, 0.5, 0.9}, Darkest::AtMiddle).empty());
}

TEST(BarGeometry, AWhiskerLineRunsToTheTarget) {
    EXPECT_EQ(WhiskerLine({0, 100}, 0.2, 0.5), (Span{20, 50}));
    EXPECT_TRUE(WhiskerLine({0, 100}, 0.6, 0.5).IsEmpty());
    EXPECT_EQ(WhiskerLine({0, 100}, -0.2, 0.5), (Span{0, 50}));
    EXPECT_TRUE(WhiskerLine({0, 100}, 0.2, Missing).IsEmpty());
    EXPECT_TRUE(WhiskerLine({0, 100}, Missing, 0.8).IsEmpty());
}

} // namespace
