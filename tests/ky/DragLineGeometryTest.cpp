// Where a slider draws its track and its handle.
#include "plotcells/DragLineGeometry.h"

#include <gtest/gtest.h>

#include <limits>

using namespace draglinegeometry;
using plotspan::Extent;
using plotspan::Span;

namespace {

constexpr double Missing = -99.0;
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

TEST(DragLineGeometry, TheTrackReachesOnePixelBeyondTheEndsOfTheScale) {
    EXPECT_EQ(Track({10, 110}, 0.15, 0.85), (Span{24, 96}));
    EXPECT_EQ(Track({10, 110}, 0.0, 1.0), (Span{9, 111}));
    EXPECT_EQ(Track({10, 110}, 0.159, 0.859), (Span{24, 96})); // places are cut to whole pixels
    EXPECT_EQ(Track({10, 110}, 0.5, 0.5), (Span{59, 61}));
}

TEST(DragLineGeometry, AMissingEndOfTheTrackLiesOnePixelInside) {
    EXPECT_EQ(Track({10, 110}, Missing, 0.85), (Span{11, 96}));
    EXPECT_EQ(Track({10, 110}, 0.15, Missing), (Span{24, 109}));
    EXPECT_EQ(Track({10, 110}, Missing, Missing), (Span{11, 109}));
}

TEST(DragLineGeometry, ATrackWithoutPlaceIsEmptyOrSaturates) {
    EXPECT_TRUE(Track({10, 110}, 0.15, NaN).IsEmpty());
    EXPECT_EQ(Track({10, 110}, -Infinity, Infinity), (Span{Lowest + 9, Highest}));
    EXPECT_EQ(Track({10, 110}, NaN, 1e300), (Span{Lowest + 9, Highest}));
}

TEST(DragLineGeometry, TheTrackIsFourRowsAroundTheMiddle) {
    EXPECT_EQ(TrackRows(1, 21), (Span{8, 12}));
    EXPECT_EQ(TrackRows(1, 22), (Span{8, 12})); // the middle is cut to a whole pixel
    EXPECT_EQ(TrackRows(100, 146), (Span{120, 124}));
}

TEST(DragLineGeometry, TheHandleStandsOnThePixelOfItsFraction) {
    EXPECT_EQ(HandleColumn({10, 110}, 0.0), 10);
    EXPECT_EQ(HandleColumn({10, 110}, 0.509), 60);
    EXPECT_EQ(HandleColumn({10, 110}, 1.0), 110);
    EXPECT_EQ(HandleColumn({10, 110}, -0.019), 9); // towards zero from either side
    EXPECT_EQ(HandleColumn({10, 110}, Infinity), Highest);
    EXPECT_EQ(HandleColumn({-10, 110}, -Infinity), Lowest);
    EXPECT_EQ(HandleColumn({10, 110}, NaN), Lowest + 10);
}

TEST(DragLineGeometry, TheHandleIsVerticallyCentred) {
    EXPECT_EQ(HandleTop(1, 21), 4);
    EXPECT_EQ(HandleTop(1, 20), 4);
    EXPECT_EQ(HandleTop(1, 14), 1);
    EXPECT_EQ(HandleTop(4, 7), -1); // lower than the handle: it reaches beyond on both sides
}

} // namespace
