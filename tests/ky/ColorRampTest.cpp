// Colour gradients, against values worked out by hand.
#include "plotcells/ColorRamp.h"
#include "common/TolerantCompare.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

using namespace colorramp;

namespace {

constexpr std::uint32_t Rgb(unsigned red, unsigned green, unsigned blue) { return red | green << 8 | blue << 16; }

constexpr std::uint32_t Dark = Rgb(0, 0, 160);
constexpr std::uint32_t Light = Rgb(220, 235, 255);

std::vector<std::uint32_t> MakeGradient(std::uint32_t first, std::uint32_t last, std::size_t count) {
    std::vector<std::uint32_t> colors(count, 0xDEADBEEF);
    Gradient(first, last, colors);
    return colors;
}

TEST(TolerantCompare, ToleratesASinglePrecisionEpsilonOfTheLargerMagnitude) {
    const double epsilon = std::numeric_limits<float>::epsilon();
    EXPECT_EQ(epsilon, 1.1920928955078125e-7);
    // 1 is 0.5 * 2^1, so the tolerance around 1 is 2 epsilon.
    EXPECT_EQ(TolerantCompare(1.0, 1.0 - 2.0 * epsilon), 0);
    EXPECT_EQ(TolerantCompare(1.0, 1.0 - 2.1 * epsilon), 1);
    EXPECT_EQ(TolerantCompare(1.0 - 2.1 * epsilon, 1.0), -1);
    // 0.9 is 0.9 * 2^0: one epsilon.
    EXPECT_EQ(TolerantCompare(0.9, 0.9 - 0.9 * epsilon), 0);
    EXPECT_EQ(TolerantCompare(0.9, 0.9 - 1.1 * epsilon), 1);
    // The tolerance follows the magnitude: 1000 is 0.97… * 2^10.
    EXPECT_EQ(TolerantCompare(1000.0, 1000.0 - 1023.0 * epsilon), 0);
    EXPECT_EQ(TolerantCompare(-1000.0, -1000.0 + 1025.0 * epsilon), -1);
}

TEST(TolerantCompare, ZeroIsToldFromEverythingElse) {
    EXPECT_EQ(TolerantCompare(0.0, 0.0), 0);
    EXPECT_EQ(TolerantCompare(1e-30, 0.0), 1);
    EXPECT_EQ(TolerantCompare(0.0, 1e-30), -1);
    EXPECT_EQ(TolerantCompare(std::numeric_limits<double>::quiet_NaN(), 0.0), 0);
}

TEST(ColorRamp, HueSaturationAndValueOfTheBarColours) {
    const Hsv dark = RgbToHsv(Dark);
    EXPECT_DOUBLE_EQ(dark.hue, 240.0);
    EXPECT_DOUBLE_EQ(dark.saturation, 1.0);
    EXPECT_DOUBLE_EQ(dark.value, 160.0 / 255.0);
    const Hsv light = RgbToHsv(Light);
    EXPECT_DOUBLE_EQ(light.hue, (4.0 - 15.0 / 35.0) * 60.0);
    EXPECT_DOUBLE_EQ(light.saturation, 35.0 / 255.0);
    EXPECT_DOUBLE_EQ(light.value, 1.0);
}

TEST(ColorRamp, EveryPrimaryHasItsHue) {
    EXPECT_DOUBLE_EQ(RgbToHsv(Rgb(255, 0, 0)).hue, 0.0);
    EXPECT_DOUBLE_EQ(RgbToHsv(Rgb(255, 255, 0)).hue, 60.0);
    EXPECT_DOUBLE_EQ(RgbToHsv(Rgb(0, 255, 0)).hue, 120.0);
    EXPECT_DOUBLE_EQ(RgbToHsv(Rgb(0, 255, 255)).hue, 180.0);
    EXPECT_DOUBLE_EQ(RgbToHsv(Rgb(0, 0, 255)).hue, 240.0);
    EXPECT_DOUBLE_EQ(RgbToHsv(Rgb(255, 0, 255)).hue, 300.0);
    // A negative hue is turned once around: red with a little blue.
    EXPECT_DOUBLE_EQ(RgbToHsv(Rgb(200, 0, 50)).hue, 345.0);
}

TEST(ColorRamp, GreysHaveNoHue) {
    for (const unsigned grey : {0u, 1u, 128u, 255u}) {
        const Hsv hsv = RgbToHsv(Rgb(grey, grey, grey));
        EXPECT_EQ(hsv.hue, -99.0);
        EXPECT_EQ(hsv.saturation, 0.0);
        EXPECT_DOUBLE_EQ(hsv.value, grey / 255.0);
        EXPECT_EQ(HsvToRgb(hsv), Rgb(grey, grey, grey));
    }
}

TEST(ColorRamp, EachSectorOfTheCircle) {
    // Saturation 0.5, value 1 and a hue a quarter into the sector: p = 0.5, q = 0.875, t = 0.625.
    EXPECT_EQ(HsvToRgb({15.0, 0.5, 1.0}), Rgb(255, 159, 127));
    EXPECT_EQ(HsvToRgb({75.0, 0.5, 1.0}), Rgb(223, 255, 127));
    EXPECT_EQ(HsvToRgb({135.0, 0.5, 1.0}), Rgb(127, 255, 159));
    EXPECT_EQ(HsvToRgb({195.0, 0.5, 1.0}), Rgb(127, 223, 255));
    EXPECT_EQ(HsvToRgb({255.0, 0.5, 1.0}), Rgb(159, 127, 255));
    EXPECT_EQ(HsvToRgb({315.0, 0.5, 1.0}), Rgb(255, 127, 223));
}

TEST(ColorRamp, AFullTurnIsRedAgain) {
    EXPECT_EQ(HsvToRgb({360.0, 1.0, 1.0}), Rgb(255, 0, 0));
    EXPECT_EQ(HsvToRgb({0.0, 1.0, 1.0}), Rgb(255, 0, 0));
    // A rounding error below zero stays at the same end of the circle.
    EXPECT_EQ(HsvToRgb({-1e-12, 1.0, 1.0}), Rgb(255, 0, 0));
}

TEST(ColorRamp, WithoutSaturationOnlyTheMissingHueIsGrey) {
    EXPECT_EQ(HsvToRgb({-99.0, 0.0, 0.5}), Rgb(127, 127, 127));
    EXPECT_EQ(HsvToRgb({120.0, 0.0, 0.5}), 0u);
    EXPECT_EQ(HsvToRgb({0.0, 0.0, 1.0}), 0u);
}

TEST(ColorRamp, TheMiddleOfThreeBarColours) {
    // Hue 227.142857, saturation 145/255, value 207.5/255:
    // p = 207.5 (1 - 145/255) = 89.5, q = 207.5 (1 - 0.785714 * 145/255) = 114.8.
    EXPECT_EQ(MakeGradient(Dark, Light, 3), (std::vector<std::uint32_t>{Dark, Rgb(89, 114, 207), Light}));
}

TEST(ColorRamp, FromWhiteToBlackThroughGrey) {
    const std::uint32_t white = Rgb(255, 255, 255);
    EXPECT_EQ(MakeGradient(white, 0, 6), (std::vector<std::uint32_t>{white, Rgb(204, 204, 204), Rgb(153, 153, 153),
                                                                     Rgb(102, 102, 102), Rgb(51, 51, 51), 0}));
}

TEST(ColorRamp, AGreyEndTakesTheOtherEndsHue) {
    // White to pure green: hue 120 throughout, saturation 0.5 in the middle.
    EXPECT_EQ(MakeGradient(Rgb(255, 255, 255), Rgb(0, 255, 0), 3)[1], Rgb(127, 255, 127));
    EXPECT_EQ(MakeGradient(Rgb(0, 255, 0), Rgb(255, 255, 255), 3)[1], Rgb(127, 255, 127));
}

TEST(ColorRamp, HuesRunThroughTheColoursBetween) {
    // Red to blue passes hue 120.
    EXPECT_EQ(MakeGradient(Rgb(255, 0, 0), Rgb(0, 0, 255), 3)[1], Rgb(0, 255, 0));
}

TEST(ColorRamp, TheEndsAreExactHoweverManyColours) {
    for (const std::size_t count : {2u, 3u, 20u, 200u}) {
        const auto colors = MakeGradient(Light, Dark, count);
        EXPECT_EQ(colors.front(), Light);
        EXPECT_EQ(colors.back(), Dark);
    }
    EXPECT_TRUE(MakeGradient(Light, Dark, 0).empty());
    EXPECT_EQ(MakeGradient(Light, Dark, 1), (std::vector<std::uint32_t>{Dark}));
}

TEST(ColorRamp, TheTwentyColoursOfAGradientBar) {
    // Hue 214.2857 to 240, saturation 35/255 to 1, value 1 to 160/255; after 1 of 19 steps V = 250, q = 222.9,
    // p = 204.3. From the second step on the value, added up, falls short of its whole number by a rounding error.
    EXPECT_EQ(MakeGradient(Light, Dark, 20),
              (std::vector<std::uint32_t>{
                  Rgb(220, 235, 255), Rgb(204, 222, 250), Rgb(189, 210, 244), Rgb(174, 198, 239), Rgb(160, 185, 234),
                  Rgb(146, 172, 229), Rgb(132, 159, 224), Rgb(119, 146, 219), Rgb(107, 134, 214), Rgb(95, 121, 209),
                  Rgb(83, 108, 204),  Rgb(72, 95, 199),   Rgb(61, 82, 194),   Rgb(51, 70, 189),   Rgb(42, 58, 184),
                  Rgb(32, 45, 179),   Rgb(23, 34, 174),   Rgb(15, 22, 169),   Rgb(7, 11, 164),    Rgb(0, 0, 160)}));
}

TEST(ColorRamp, ASharedGradientIsTheSameAsOneMadeAnew) {
    const auto shared = [](std::uint32_t first, std::uint32_t last, std::size_t count) {
        const auto colors = SharedGradient(first, last, count);
        return std::vector<std::uint32_t>(colors.begin(), colors.end());
    };
    for (int round = 0; round < 2; ++round) {
        for (std::uint32_t shade = 0; shade < 12; ++shade) { // more than are kept
            EXPECT_EQ(shared(Light, Rgb(0, 0, shade), 20), MakeGradient(Light, Rgb(0, 0, shade), 20));
            EXPECT_EQ(shared(Rgb(0, 0, shade), Light, 20), MakeGradient(Rgb(0, 0, shade), Light, 20));
            EXPECT_EQ(shared(Light, Rgb(0, 0, shade), 200), MakeGradient(Light, Rgb(0, 0, shade), 200));
        }
    }
    EXPECT_TRUE(shared(0, 0, 0).empty());
}

TEST(ColorRamp, AGradientThatIsAskedForAgainIsKept) {
    const auto* const made = SharedGradient(Light, Dark, 200).data();
    for (std::uint32_t shade = 1; shade < 8; ++shade)
        SharedGradient(Light, Rgb(shade, 0, 0), 200);
    EXPECT_EQ(SharedGradient(Light, Dark, 200).data(), made);
}

} // namespace
