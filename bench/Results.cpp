// The figures of a benchmark as Markdown tables.
#include "Results.h"

#include <cstdio>

std::string NumberText(double number, Results::Unit unit) {
    char text[64];
    std::snprintf(text, sizeof(text), "%.*f", unit.decimals, number);
    std::string grouped = text;
    const std::size_t point = grouped.find('.');
    const std::size_t first = grouped[0] == '-' ? 1 : 0;
    for (std::size_t at = point == std::string::npos ? grouped.size() : point; at > first + 3;)
        grouped.insert(at -= 3, 1, ',');
    return *unit.name == '\0' ? grouped : grouped + " " + unit.name;
}

void Results::Begin(const std::string& heading, const std::vector<std::string>& columns) {
    std::printf("\n### %s\n\n|", heading.c_str());
    for (const std::string& column : columns)
        std::printf(" %s |", column.c_str());
    std::printf("\n| --- |");
    for (std::size_t i = 2; i < columns.size(); ++i)
        std::printf(" ---: |");
    std::printf(" --- |\n");
    std::fflush(stdout);
}

void Results::Line(const std::string& name, const std::vector<std::string>& cells, std::optional<bool> met) {
    std::printf("| %s |", name.c_str());
    for (const std::string& cell : cells)
        std::printf(" %s |", cell.c_str());
    std::printf(" %s |\n", !met ? "" : *met ? "met" : "**MISSED**");
    std::fflush(stdout);
    m_targets += met ? 1 : 0;
    m_missed += met && !*met ? 1 : 0;
}

void Results::AtMost(const std::string& name, double figure, double limit, Unit unit) {
    const Unit limitUnit{unit.name, limit == static_cast<double>(static_cast<long long>(limit)) ? 0 : unit.decimals};
    Line(name, {NumberText(figure, unit), NumberText(limit, limitUnit)}, figure <= limit);
}

void Results::Inform(const std::string& name, double figure, Unit unit) { Line(name, {NumberText(figure, unit), ""}); }

void Results::Say(const std::string& sentence) {
    std::printf("\n%s\n", sentence.c_str());
    std::fflush(stdout);
}

std::string Results::Verdict() const {
    if (AllMet())
        return "All " + std::to_string(m_targets) + " targets are met.";
    return std::to_string(m_missed) + " of " + std::to_string(m_targets) + " targets are missed.";
}
