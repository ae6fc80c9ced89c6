// The figures of a benchmark as Markdown tables.
#pragma once

#include <optional>
#include <string>
#include <vector>

/// Prints one line for each figure as it comes in, with "met" or "MISSED" behind those that have a target, and
/// remembers whether all targets were met.
class Results {
public:
    /// A number with its unit: "ms", "bytes"; empty for none.
    struct Unit {
        const char* name;
        int decimals;
    };

    /// A heading with a table below it. The first column holds names, the last one the verdict.
    void Begin(const std::string& heading, const std::vector<std::string>& columns);

    /// One line with a cell for each column between the first and the last one. `met` is nothing for a line that only
    /// informs.
    void Line(const std::string& name, const std::vector<std::string>& cells, std::optional<bool> met = {});

    /// A line "figure, at most" in a table of these two columns.
    void AtMost(const std::string& name, double figure, double limit, Unit unit);
    /// A line with a figure only in such a table.
    void Inform(const std::string& name, double figure, Unit unit);

    /// A sentence between tables.
    void Say(const std::string& sentence);

    bool AllMet() const { return m_missed == 0; }
    /// "All 12 targets are met." or how many are not.
    std::string Verdict() const;

private:
    int m_targets = 0;
    int m_missed = 0;
};

/// A number as the tables show it: "12,345.6 ms".
std::string NumberText(double number, Results::Unit unit);
