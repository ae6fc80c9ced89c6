// The entry through which a fuzzer, or the mutation test, feeds bytes to the reader of saved layouts.
#include "LayoutStreamFuzz.h"

#include "report/LayoutStream.h"

#include <cstdlib>
#include <span>

using namespace layoutstream;

namespace {

void Require(bool condition) {
    if (!condition)
        std::abort();
}

void RequireUsablePlan(const Plan& plan, const std::vector<LiveColumn>& live) {
    Require(plan.columns.size() == live.size());
    std::vector<bool> seen(live.size(), false);
    for (const Plan::Column& column : plan.columns) {
        Require(column.column >= 0 && column.column < static_cast<int>(live.size()));
        Require(!seen[column.column]);
        seen[column.column] = true;
        Require(column.width >= live[column.column].minWidth && column.width <= live[column.column].maxWidth);
    }
    for (const auto* keys : {&plan.sortOrder, &plan.groupsOrder}) {
        std::vector<bool> used(live.size(), false);
        for (const Key& key : *keys) {
            Require(key.column >= 0 && key.column < static_cast<int>(live.size()));
            Require(!used[key.column]);
            used[key.column] = true;
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Decoded decoded = Decode(std::span(data, size));
    if (decoded.status != Status::Ok) {
        Require(decoded.layout == ReportLayout{});
        return 0;
    }
    const std::vector<LiveColumn> live = {{u"Name", 0, 100, 10, 500, true},
                                          {u"Count", 1, 60, 20, 200, true},
                                          {u"Count", 2, 60, 20, 200, false},
                                          {u"", 3, 60, 60, 60, true},
                                          {u"New", 4, 40, 0, 32000, false}};
    RequireUsablePlan(ApplyLayout(decoded.layout, live), live);
    Require(Decode(Encode(decoded.layout)).layout == decoded.layout);
    return 1;
}
