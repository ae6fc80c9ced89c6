// What a million real records cost: time and memory to make them, to sort them, to fit a column to them.
#include "RecordBench.h"

#include "Measure.h"
#include "RecordContenders.h"
#include "Results.h"

#include <XTToolkitPro.h>

#include <algorithm>
#include <numeric>

namespace recordbench {

namespace {

constexpr Results::Unit Seconds{"s", 3};
constexpr Results::Unit Milliseconds{"ms", 1};
constexpr Results::Unit Bytes{"bytes", 1};
constexpr Results::Unit Ratio{"", 2};

using Key = RecordContender::Key;

struct Costs {
    double fill = 0, number = 0, text = 0; ///< seconds, medians
    double bytes = 0;                      ///< of each record
};

/// Fills and sorts all contenders in turn.
std::vector<Costs> Compare(const std::vector<RecordContender*>& contenders) {
    constexpr int rounds = 3;
    constexpr int sorts = 3; // in each round
    std::vector<Costs> costs(contenders.size());
    std::vector<std::vector<double>> fills(contenders.size()), numbers(contenders.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            RecordContender& contender = *contenders[i];
            fills[i].push_back(measure::Microseconds(1, [&](int) { contender.Fill(); }));
            costs[i].bytes = contender.HostBytes() / benchrecords::Count;
            for (int sort = 0; sort < sorts; ++sort) {
                numbers[i].push_back(measure::Microseconds(1, [&](int) { contender.Sort(Key::Number); }));
                contender.Sort(Key::None);
            }
            if (round == 0) // it takes seconds, and only informs
                costs[i].text = measure::Microseconds(1, [&](int) { contender.Sort(Key::Text); }) / 1e6;
            contender.Clear();
        }
    }
    for (std::size_t i = 0; i < contenders.size(); ++i) {
        costs[i].fill = measure::Median(fills[i]) / 1e6;
        costs[i].number = measure::Median(numbers[i]) / 1e6;
    }
    return costs;
}

void Tell(Results& results, const char* name, const std::vector<Costs>& costs, double Costs::*cost,
          Results::Unit unit) {
    const double grid = costs[0].*cost, list = costs[1].*cost, bare = costs[2].*cost;
    results.Line(name, {NumberText(grid, unit), NumberText(list, unit), NumberText(bare, unit),
                        NumberText(grid / list, Ratio), NumberText(grid / bare, Ratio)});
}

/// Seconds of `std::sort` on an array of indices, by the numbers of the records.
double SortOfIndices() {
    std::vector<double> keys;
    for (int i = 0; i < benchrecords::Count; ++i)
        keys.push_back(benchrecords::NumberOf(i));
    std::vector<std::uint32_t> indices(keys.size());
    std::iota(indices.begin(), indices.end(), 0U);
    return measure::Microseconds(1,
                                 [&](int) {
                                     std::sort(indices.begin(), indices.end(),
                                               [&keys](auto a, auto b) { return keys[a] < keys[b]; });
                                 }) /
           1e6;
}

/// A cell whose host takes its time to answer.
class SlowItem : public CXTPReportRecordItemText {
public:
    CString GetCaption(CXTPReportColumn*) override {
        ::Sleep(5);
        return _T("a text");
    }
};

/// Returns the bytes of each record.
double MeasureGrid(Results& results, RecordGrid& contender) {
    CXTPReportControl& grid = contender.Grid();
    std::vector<double> fills, sorts, references;
    const std::size_t before = measure::PrivateBytes();
    contender.Fill();
    const auto bytes = [before] { return static_cast<double>(measure::PrivateBytes() - before) / benchrecords::Count; };
    const double filled = bytes();
    for (int i = 0; i < grid.GetRows()->GetCount(); ++i)
        grid.GetRows()->GetAt(i);
    const double asked = bytes();
    contender.Sort(Key::None);
    // The two take turns, so that a passing load of the machine meets both.
    for (int round = 0; round < 9; ++round) {
        references.push_back(SortOfIndices());
        sorts.push_back(measure::Microseconds(1, [&](int) { contender.Sort(Key::Number); }) / 1e6);
        contender.Sort(Key::None);
    }
    const double fit = measure::Microseconds(1, [&](int) { grid.GetColumns()->GetAt(0)->GetBestFitWidth(); }) / 1000;
    contender.Clear();
    for (int round = 0; round < 3; ++round) {
        fills.push_back(measure::Microseconds(1, [&](int) { contender.Fill(); }) / 1e6);
        contender.Clear();
    }

    results.AtMost("1,000,000 records of three items made, added, populated and shown", measure::Median(fills), 1.5,
                   Seconds);
    results.AtMost("memory of each record with its items and its place among the rows", filled, 400, Bytes);
    results.AtMost("the same after the host asked for every row", asked, 400, Bytes);
    results.Inform("sorted by a number, populated and shown", measure::Median(sorts), Seconds);
    results.Inform("`std::sort` of an array of indices by the same numbers", measure::Median(references), Seconds);
    results.AtMost("ratio of the two", measure::Median(sorts) / measure::Median(references), 1.5, Ratio);
    results.AtMost("best fit of a column of 1,000,000 records", fit, 50, Milliseconds);
    return filled;
}

void MeasureSlowTexts(Results& results, RecordGrid& contender) {
    CXTPReportControl& grid = contender.Grid();
    for (int i = 0; i < 1000; ++i) {
        auto* const record = new CXTPReportRecord;
        for (int item = 0; item < grid.GetColumns()->GetCount(); ++item)
            record->AddItem(new SlowItem);
        grid.AddRecord(record);
    }
    grid.SetRedraw(FALSE); // painting would ask for the texts as well
    grid.Populate();
    const double one = measure::Microseconds(1, [&](int) { grid.GetColumns()->GetAt(0)->GetBestFitWidth(); }) / 1000;
    const double all = measure::Microseconds(1, [&](int) { grid.GetReportHeader()->BestFitAll(); }) / 1000;
    contender.Clear();
    grid.SetRedraw(TRUE);
    results.AtMost("best fit of a column whose host takes 5 ms for each text", one, 50, Milliseconds);
    results.AtMost("best fit of three such columns", all, 50, Milliseconds);
}

} // namespace

void Run(Results& results) {
    const auto grid = MakeRecordGrid();
    benchrecords::Mixed();
    results.Begin("A million records", {"median", "figure", "at most", ""});
    const double bytes = MeasureGrid(results, *grid);
    MeasureSlowTexts(results, *grid);

    const auto list = MakeRecordListView();
    const auto bare = MakeBareRecords();
    std::vector<Costs> costs = Compare({grid.get(), list.get(), bare.get()});
    costs[0].bytes = bytes;
    results.Begin("A million records, beside hosts that keep them in a vector",
                  {"median", "our grid", "list view", "bare loop", "ours / list view", "ours / bare loop", ""});
    Tell(results, "records made, taken over and shown", costs, &Costs::fill, Seconds);
    Tell(results, "memory of each record (a vector's without what the heap adds)", costs, &Costs::bytes, Bytes);
    Tell(results, "sorted by a number and shown", costs, &Costs::number, Seconds);
    Tell(results, "sorted by a text and shown", costs, &Costs::text, Seconds);
}

} // namespace recordbench
