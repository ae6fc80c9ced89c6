// What must hold for the reader of saved layouts, whatever the bytes are.
#include "LayoutStreamCheck.h"

#include "../support/AllocationMeter.h"
#include "report/LayoutStream.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <span>

using namespace layoutstream;

namespace {

void Require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "layout stream: %s\n", what);
        std::abort();
    }
}

const std::vector<LiveColumn>& LiveColumns() {
    static const std::vector<LiveColumn> live = {{u"Name", 0, 100, 10, 500, true},  {u"Count", 1, 60, 20, 200, true},
                                                 {u"Count", 2, 60, 20, 200, false}, {u"", 3, 60, 60, 60, true},
                                                 {u"Mean", 5, 80, 40, 400, true},   {u"New", 4, 40, 0, 32000, false}};
    return live;
}

/// Every live column once, within its limits; keys only of columns that there are, none twice.
void RequireUsablePlan(const Plan& plan, const std::vector<LiveColumn>& live) {
    Require(plan.columns.size() == live.size(), "columns are missing");
    std::vector<bool> seen(live.size(), false);
    for (const Plan::Column& column : plan.columns) {
        Require(column.column >= 0 && column.column < static_cast<int>(live.size()), "a column that there is not");
        Require(!seen[column.column], "a column twice");
        seen[column.column] = true;
        Require(column.width >= live[column.column].minWidth && column.width <= live[column.column].maxWidth,
                "a width beyond its limits");
    }
    for (const auto* keys : {&plan.sortOrder, &plan.groupsOrder}) {
        std::vector<bool> used(live.size(), false);
        for (const Key& key : *keys) {
            Require(key.column >= 0 && key.column < static_cast<int>(live.size()), "a key of no column");
            Require(!used[key.column], "a key twice");
            used[key.column] = true;
        }
    }
}

/// The place of the only saved column of that name, or -1 when there are none or several.
int OnlySaved(const ReportLayout& saved, const std::u16string& name) {
    const auto has = [&name](const ReportLayout::Column& column) { return column.name == name; };
    const auto found = std::find_if(saved.columns.begin(), saved.columns.end(), has);
    if (found == saved.columns.end() || std::find_if(found + 1, saved.columns.end(), has) != saved.columns.end())
        return -1;
    return static_cast<int>(found - saved.columns.begin());
}

bool IsSaved(const ReportLayout& saved, const LiveColumn& column) {
    return std::any_of(saved.columns.begin(), saved.columns.end(),
                       [&column](const ReportLayout::Column& each) { return each.name == column.name; });
}

/// Columns whose names leave no doubt have the saved width and stand in the saved order; new ones stand behind all
/// others, as they are and in the order they have.
void RequireSavedPlan(const ReportLayout& saved, const Plan& plan, const std::vector<LiveColumn>& live) {
    int formerSaved = -1;
    int formerNew = -1;
    for (const Plan::Column& planned : plan.columns) {
        const LiveColumn& column = live[planned.column];
        const int place = OnlySaved(saved, column.name);
        if (place >= 0 && !column.name.empty() && column.name != u"Count") {
            Require(formerNew < 0, "a new column before a saved one");
            Require(place > formerSaved, "columns out of the saved order");
            formerSaved = place;
            Require(planned.width == std::clamp(saved.columns[place].width, column.minWidth, column.maxWidth),
                    "not the saved width");
        } else if (!IsSaved(saved, column)) {
            Require(planned.column > formerNew, "new columns out of their order");
            formerNew = planned.column;
            Require(planned.width == column.width && planned.visible == column.visible, "a new column was changed");
        }
    }
}

/// What a stream of that size may take from the heap, all in all; each column of 17 bytes takes 52.
std::size_t MostMemory(std::size_t size) { return 4 * size + 4096; }

} // namespace

bool CheckLayoutStream(const std::uint8_t* data, std::size_t size) {
    const std::vector<LiveColumn>& live = LiveColumns();
    const AllocationMeter meter;
    const Decoded decoded = Decode(std::span(data, size));
    if (decoded.status != Status::Ok) {
        Require(meter.Bytes() <= MostMemory(size), "too much memory for a broken stream");
        Require(decoded.layout == ReportLayout{}, "a broken stream gave a layout");
        return false;
    }
    const Plan plan = ApplyLayout(decoded.layout, live);
    Require(meter.Bytes() <= MostMemory(size), "too much memory for its size");
    RequireUsablePlan(plan, live);
    RequireSavedPlan(decoded.layout, plan, live);
    Require(Decode(Encode(decoded.layout)).layout == decoded.layout, "written, it reads otherwise");
    return true;
}
