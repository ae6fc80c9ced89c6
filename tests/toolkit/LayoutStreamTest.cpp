// Saved layouts as bytes, and their application to the columns of a grid.
#include "report/LayoutStream.h"
#include "../support/AllocationMeter.h"
#include "LayoutStreamCheck.h"

#include <gtest/gtest.h>

#include <random>

using namespace layoutstream;

namespace {

ReportLayout ThreeColumns() {
    return {{{u"Name", 0, 120, true}, {u"Mean", 2, 80, false}, {u"Zähl\xD800", 1, 60, true}},
            {{2, false}, {0, true}},
            {{1, true}}};
}

std::vector<LiveColumn> LiveThree() {
    return {{u"Name", 0, 100, 10, 500, true}, {u"Zähl\xD800", 1, 100, 10, 500, true}, {u"Mean", 2, 100, 10, 500, true}};
}

/// The layout with another field written over `bytes`, little-endian.
std::vector<std::uint8_t> Patched(std::vector<std::uint8_t> bytes, std::size_t at, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i)
        bytes[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    return bytes;
}

std::vector<int> ColumnsOf(const Plan& plan) {
    std::vector<int> columns;
    for (const auto& column : plan.columns)
        columns.push_back(column.column);
    return columns;
}

// --- Bytes -----------------------------------------------------------------------------------------------------------

TEST(LayoutStream, ReadsBackWhatItWrote) {
    const Decoded decoded = Decode(Encode(ThreeColumns()));
    ASSERT_EQ(decoded.status, Status::Ok);
    EXPECT_EQ(decoded.layout, ThreeColumns());
}

TEST(LayoutStream, ReadsBackALayoutWithoutColumns) {
    const Decoded decoded = Decode(Encode({}));
    ASSERT_EQ(decoded.status, Status::Ok);
    EXPECT_EQ(decoded.layout, ReportLayout{});
}

TEST(LayoutStream, HasTheDocumentedBytes) {
    const ReportLayout layout = {{{u"A", 7, 258, true}}, {{0, true}}, {}};
    const std::vector<std::uint8_t> expected = {
        'K', 'Y', 'R', 'L', 1, 0, 55, 0, 0,   0,                // header: version 1, 55 bytes follow
        1,   0,   23,  0,   0, 0, 1,  0, 0,   0,                // columns: 23 bytes, one column
        15,  0,   0,   0,   1, 0, 0,  0, 'A', 0,                // a record of 15 bytes, a name of one unit
        7,   0,   0,   0,   2, 1, 0,  0, 1,                     // item index 7, width 258, visible
        2,   0,   9,   0,   0, 0, 1,  0, 0,   0, 0, 0, 0, 0, 1, // sort order: column 0, increasing
        3,   0,   4,   0,   0, 0, 0,  0, 0,   0};               // no groups
    auto bytes = Encode(layout);
    EXPECT_EQ(bytes.size(), HeaderSize + DecodeHeader(bytes).payloadSize);
    EXPECT_EQ(bytes, Patched(expected, 6, static_cast<std::uint32_t>(expected.size() - HeaderSize), 4));
}

TEST(LayoutStream, KeepsTheResolutionBehindTheSectionsThatOlderReadersKnow) {
    ReportLayout layout = ThreeColumns();
    const auto without = Encode(layout);
    layout.dpi = 144;
    const auto with = Encode(layout);
    EXPECT_EQ(Decode(with).layout, layout);
    const std::vector<std::uint8_t> section = {4, 0, 4, 0, 0, 0, 144, 0, 0, 0};
    ASSERT_EQ(with.size(), without.size() + section.size());
    EXPECT_TRUE(std::equal(section.begin(), section.end(), with.end() - 10));
    EXPECT_TRUE(std::equal(without.begin() + HeaderSize, without.end(), with.begin() + HeaderSize));
    EXPECT_EQ(Decode(without).layout.dpi, 0) << "a stream of before";
}

TEST(LayoutStream, RefusesAResolutionThatIsNone) {
    ReportLayout layout = ThreeColumns();
    layout.dpi = 96;
    const auto bytes = Encode(layout);
    for (const int dpi : {0, MaxDpi + 1, -1})
        EXPECT_EQ(Decode(Patched(bytes, bytes.size() - 4, dpi, 4)).status, Status::Broken) << dpi;
    EXPECT_EQ(Decode(Patched(bytes, bytes.size() - 4, MaxDpi, 4)).status, Status::Ok);
}

TEST(LayoutStream, KeepsTheViewBehindTheSectionsThatOlderReadersKnow) {
    ReportLayout layout = ThreeColumns();
    layout.dpi = 96;
    const auto without = Encode(layout);
    EXPECT_EQ(Decode(without).layout.view, std::nullopt) << "a stream of before";
    layout.view = {3, true};
    const auto with = Encode(layout);
    EXPECT_EQ(Decode(with).layout, layout);
    const std::vector<std::uint8_t> section = {5, 0, 5, 0, 0, 0, 3, 0, 0, 0, 1};
    ASSERT_EQ(with.size(), without.size() + section.size());
    EXPECT_TRUE(std::equal(section.begin(), section.end(), with.end() - 11));
    EXPECT_TRUE(std::equal(without.begin() + HeaderSize, without.end(), with.begin() + HeaderSize));
    EXPECT_EQ(Decode(Patched(with, with.size() - 1, 0xFE, 1)).layout.view, (ReportLayout::View{3, false}))
        << "bits that this version does not know";
}

TEST(LayoutStream, RefusesACountOfFrozenColumnsThatIsNone) {
    ReportLayout layout = ThreeColumns();
    layout.view = {0x7FFFFFFF, false};
    const auto bytes = Encode(layout);
    EXPECT_EQ(Decode(bytes).status, Status::Ok);
    for (const int count : {-1, static_cast<int>(0x80000000)})
        EXPECT_EQ(Decode(Patched(bytes, bytes.size() - 5, count, 4)).status, Status::Broken) << count;
    EXPECT_EQ(Decode(Patched(bytes, bytes.size() - 9, 4, 4)).status, Status::Broken) << "without its flags";
}

TEST(LayoutStream, ScalesWidthsToTheResolutionOfTheGrid) {
    ReportLayout layout = ThreeColumns(); // 120, 80 and 60 pixels wide
    layout.dpi = 144;
    const auto widths = [&layout](int dpi) {
        std::vector<int> result;
        for (const auto& column : ApplyLayout(layout, LiveThree(), dpi).columns)
            result.push_back(column.width);
        return result;
    };
    EXPECT_EQ(widths(96), (std::vector<int>{80, 53, 40}));
    EXPECT_EQ(widths(144), (std::vector<int>{120, 80, 60}));
    EXPECT_EQ(widths(288), (std::vector<int>{240, 160, 120}));
    EXPECT_EQ(widths(0), (std::vector<int>{120, 80, 60})) << "not known";
    layout.columns[0].width = 2000000000;
    EXPECT_EQ(widths(9600)[0], 500) << "the column's largest width";
    layout.columns[0].width = -2000000000;
    EXPECT_EQ(widths(9600)[0], 10);
    layout.dpi = 0;
    layout.columns[0].width = 120;
    EXPECT_EQ(widths(96)[0], 120) << "a layout of before";
}

TEST(LayoutStream, LeavesWhatFollowsTheStreamAlone) {
    auto bytes = Encode(ThreeColumns());
    bytes.push_back(0xFF);
    EXPECT_EQ(Decode(bytes).layout, ThreeColumns());
}

TEST(LayoutStream, EveryTruncationIsReportedAsOne) {
    const auto bytes = Encode(ThreeColumns());
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        const Decoded decoded = Decode(std::span(bytes).first(size));
        EXPECT_EQ(decoded.status, Status::Truncated) << size;
        EXPECT_EQ(decoded.layout, ReportLayout{}) << size;
    }
}

TEST(LayoutStream, RefusesAnotherVersion) {
    EXPECT_EQ(Decode(Patched(Encode(ThreeColumns()), 4, 2, 2)).status, Status::OtherVersion);
    EXPECT_EQ(Decode(Patched(Encode(ThreeColumns()), 4, 0, 2)).status, Status::OtherVersion);
}

TEST(LayoutStream, RefusesWhatIsNotALayout) {
    EXPECT_EQ(Decode(Patched(Encode(ThreeColumns()), 0, 'X', 1)).status, Status::Broken);
    const std::vector<std::uint8_t> zeros(100, 0);
    EXPECT_EQ(Decode(zeros).status, Status::Broken);
    const std::vector<std::uint8_t> shortGarbage = {'K', 'Z'};
    EXPECT_EQ(Decode(shortGarbage).status, Status::Broken);
}

TEST(LayoutStream, RefusesAPayloadBeyondTheLimitBeforeReadingIt) {
    EXPECT_EQ(DecodeHeader(Patched(Encode({}), 6, MaxPayloadSize, 4)).status, Status::Ok);
    EXPECT_EQ(DecodeHeader(Patched(Encode({}), 6, MaxPayloadSize + 1, 4)).status, Status::Broken);
}

TEST(LayoutStream, RefusesCountsThatTheBytesCannotHold) {
    const auto bytes = Encode(ThreeColumns());
    constexpr std::size_t columnCount = HeaderSize + 6;
    constexpr std::size_t nameUnits = columnCount + 4 + 4;
    EXPECT_EQ(Decode(Patched(bytes, columnCount, 0xFFFFFFFF, 4)).status, Status::Broken);
    EXPECT_EQ(Decode(Patched(bytes, columnCount, 4, 4)).status, Status::Broken);
    EXPECT_EQ(Decode(Patched(bytes, nameUnits, 0x7FFFFFFF, 4)).status, Status::Broken);
    EXPECT_EQ(Decode(Patched(bytes, nameUnits, 0x80000000, 4)).status, Status::Broken);
    EXPECT_EQ(Decode(Patched(bytes, HeaderSize + 2, 0xFFFFFFF0, 4)).status, Status::Broken);
}

TEST(LayoutStream, RefusesKeysOfColumnsThatItDoesNotList) {
    ReportLayout layout = ThreeColumns();
    layout.sortOrder = {{3, true}};
    EXPECT_EQ(Decode(Encode(layout)).status, Status::Broken);
    layout.sortOrder = {{-1, true}};
    EXPECT_EQ(Decode(Encode(layout)).status, Status::Broken);
    layout.sortOrder.clear();
    layout.groupsOrder = {{3, true}};
    EXPECT_EQ(Decode(Encode(layout)).status, Status::Broken);
}

TEST(LayoutStream, RefusesAStreamWithoutColumns) {
    const std::vector<std::uint8_t> bytes = {'K', 'Y', 'R', 'L', 1, 0, 0, 0, 0, 0};
    EXPECT_EQ(Decode(bytes).status, Status::Broken);
}

TEST(LayoutStream, SkipsSectionsAndFieldsThatItDoesNotKnow) {
    const std::vector<std::uint8_t> bytes = {'K', 'Y', 'R', 'L', 1, 0, 41,   0,    0,   0, // 41 bytes follow
                                             99,  0,   2,   0,   0, 0, 0xAB, 0xCD,         // an unknown section
                                             1,   0,   27,  0,   0, 0, 1,    0,    0,   0, // one column
                                             19,  0,   0,   0,   1, 0, 0,    0,    'A', 0, 7, 0,
                                             0,   0,   50,  0,   0, 0, 1,    1,    2,   3, 4}; // with four bytes more
    const Decoded decoded = Decode(bytes);
    ASSERT_EQ(decoded.status, Status::Ok);
    EXPECT_EQ(decoded.layout, (ReportLayout{{{u"A", 7, 50, true}}, {}, {}}));
}

TEST(LayoutStream, TwentyThousandMutationsNeverComeOutWrong) {
    std::mt19937 random(20240229);
    const auto original = Encode(ThreeColumns());
    const auto pick = [&random](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    int accepted = 0;
    for (int i = 0; i < 20000; ++i) {
        auto bytes = original;
        for (std::size_t changes = pick(4) + 1; changes > 0; --changes) {
            switch (pick(5)) {
            case 0:
                bytes[pick(bytes.size())] ^= static_cast<std::uint8_t>(1U << pick(8));
                break;
            case 1:
                bytes[pick(bytes.size())] = static_cast<std::uint8_t>(pick(256));
                break;
            case 2:
                bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(pick(bytes.size())));
                break;
            case 3:
                bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(pick(bytes.size() + 1)),
                             static_cast<std::uint8_t>(pick(256)));
                break;
            default: {
                const std::uint8_t extreme[] = {0x00, 0x7F, 0x80, 0xFF};
                bytes[HeaderSize + pick(bytes.size() - HeaderSize)] = extreme[pick(4)];
            }
            }
        }
        accepted += CheckLayoutStream(bytes.data(), bytes.size()) ? 1 : 0;
    }
    EXPECT_GT(accepted, 1000) << "enough mutations must reach the application of the layout";
    EXPECT_LT(accepted, 19000) << "enough mutations must break the stream";
}

TEST(LayoutStream, MemoryIsCountedWhereTheAllocatorTells) {
    if (!AllocationMeter::IsReal())
        GTEST_SKIP() << "only AddressSanitizer tells";
    const AllocationMeter meter;
    const std::vector<std::uint8_t> taken(5000);
    EXPECT_EQ(meter.Bytes(), taken.size());
}

// --- Applying --------------------------------------------------------------------------------------------------------

TEST(ApplyLayout, PutsColumnsIntoTheSavedOrderWithWidthAndVisibility) {
    const Plan plan = ApplyLayout(ThreeColumns(), LiveThree());
    EXPECT_EQ(plan.columns, (std::vector<Plan::Column>{{0, 120, true}, {2, 80, false}, {1, 60, true}}));
    EXPECT_EQ(plan.sortOrder, (std::vector<Key>{{1, false}, {0, true}}));
    EXPECT_EQ(plan.groupsOrder, (std::vector<Key>{{2, true}}));
}

TEST(ApplyLayout, DropsColumnsThatAreGoneWithTheirKeys) {
    const Plan plan = ApplyLayout(ThreeColumns(), {{u"Mean", 2, 100, 10, 500, true}, {u"Name", 0, 100, 10, 500, true}});
    EXPECT_EQ(plan.columns, (std::vector<Plan::Column>{{1, 120, true}, {0, 80, false}}));
    EXPECT_EQ(plan.sortOrder, (std::vector<Key>{{1, true}}));
}

TEST(ApplyLayout, AppendsNewColumnsInTheStateTheyHave) {
    auto live = LiveThree();
    live.insert(live.begin(), {u"New", 9, 33, 10, 500, true});
    live.insert(live.begin() + 2, {u"Newer", 10, 44, 10, 500, false});
    const Plan plan = ApplyLayout(ThreeColumns(), live);
    EXPECT_EQ(ColumnsOf(plan), (std::vector<int>{1, 4, 3, 0, 2}));
    EXPECT_EQ(plan.columns[3], (Plan::Column{0, 33, true}));
    EXPECT_EQ(plan.columns[4], (Plan::Column{2, 44, false}));
}

TEST(ApplyLayout, BringsWidthsWithinTheColumnsLimits) {
    const ReportLayout saved = {{{u"A", 0, -5, true}, {u"B", 1, 2000000000, true}, {u"C", 2, 0, true}}, {}, {}};
    const Plan plan =
        ApplyLayout(saved, {{u"A", 0, 50, 10, 100, true}, {u"B", 1, 50, 10, 100, true}, {u"C", 2, 50, 70, 70, true}});
    EXPECT_EQ(plan.columns, (std::vector<Plan::Column>{{0, 10, true}, {1, 100, true}, {2, 70, true}}));
}

TEST(ApplyLayout, TheItemIndexTellsColumnsOfOneNameApart) {
    const ReportLayout saved = {{{u"X", 2, 20, true}, {u"X", 1, 10, true}}, {}, {}};
    const std::vector<LiveColumn> live = {{u"X", 1, 99, 1, 500, true}, {u"X", 2, 99, 1, 500, true}};
    EXPECT_EQ(ApplyLayout(saved, live).columns, (std::vector<Plan::Column>{{1, 20, true}, {0, 10, true}}));
}

TEST(ApplyLayout, ANameFindsItsColumnWhenTheRecordsWereRearranged) {
    const ReportLayout saved = {{{u"B", 1, 20, true}, {u"A", 0, 10, true}}, {}, {}};
    const std::vector<LiveColumn> live = {{u"A", 5, 99, 1, 500, true}, {u"B", 6, 99, 1, 500, true}};
    EXPECT_EQ(ApplyLayout(saved, live).columns, (std::vector<Plan::Column>{{1, 20, true}, {0, 10, true}}));
}

TEST(ApplyLayout, AnExactMatchIsNotTakenAwayByALooserOne) {
    const ReportLayout saved = {{{u"X", 7, 70, true}, {u"X", 1, 10, true}}, {}, {}};
    const std::vector<LiveColumn> live = {{u"X", 1, 99, 1, 500, true}, {u"X", 2, 99, 1, 500, true}};
    EXPECT_EQ(ApplyLayout(saved, live).columns, (std::vector<Plan::Column>{{1, 70, true}, {0, 10, true}}));
}

TEST(ApplyLayout, ColumnsWithoutANameAreMatchedByItemIndexOnly) {
    const ReportLayout saved = {{{u"", 3, 30, true}, {u"", 4, 40, true}}, {}, {}};
    const std::vector<LiveColumn> live = {{u"", 4, 99, 1, 500, true}, {u"", 5, 99, 1, 500, true}};
    EXPECT_EQ(ApplyLayout(saved, live).columns, (std::vector<Plan::Column>{{0, 40, true}, {1, 99, true}}));
}

TEST(ApplyLayout, ColumnsListedTwiceCountOnce) {
    const ReportLayout saved = {{{u"A", 0, 20, true}, {u"A", 0, 30, true}, {u"B", 1, 40, true}},
                                {{0, true}, {1, false}, {2, true}, {2, false}},
                                {}};
    const std::vector<LiveColumn> live = {{u"B", 1, 99, 1, 500, true}, {u"A", 0, 99, 1, 500, true}};
    const Plan plan = ApplyLayout(saved, live);
    EXPECT_EQ(plan.columns, (std::vector<Plan::Column>{{1, 20, true}, {0, 40, true}}));
    EXPECT_EQ(plan.sortOrder, (std::vector<Key>{{1, true}, {0, true}}));
}

TEST(ApplyLayout, ALayoutSavedWithAllColumnsHiddenIsRestoredSo) {
    ReportLayout saved = ThreeColumns();
    for (auto& column : saved.columns)
        column.visible = false;
    for (const auto& column : ApplyLayout(saved, LiveThree()).columns)
        EXPECT_FALSE(column.visible);
}

TEST(ApplyLayout, ANewSetOfColumnsNeverComesUpEmpty) {
    const ReportLayout saved = {{{u"Gone", 0, 20, true}, {u"Kept", 1, 30, false}}, {}, {}};
    const Plan plan = ApplyLayout(saved, {{u"Kept", 1, 99, 1, 500, true}});
    EXPECT_EQ(plan.columns, (std::vector<Plan::Column>{{0, 30, true}}));
    const Plan withNew = ApplyLayout(saved, {{u"Kept", 1, 99, 1, 500, true}, {u"New", 2, 50, 1, 500, true}});
    EXPECT_EQ(withNew.columns, (std::vector<Plan::Column>{{0, 30, false}, {1, 50, true}}))
        << "one column to look at is enough for the saved choice to hold";
}

TEST(ApplyLayout, AGridWithoutColumnsGetsNone) {
    EXPECT_TRUE(ApplyLayout(ThreeColumns(), {}).columns.empty());
    EXPECT_EQ(ColumnsOf(ApplyLayout({}, LiveThree())), (std::vector<int>{0, 1, 2}));
}

} // namespace
