// The rows that `CXTPReportControl::Populate` makes: which records are shown, in which order, and below what.
#pragma once

#include "XTPReportDefines.h"

#include <vector>

class TextFilter;
struct ReportGroups;

/// What has a row when everything is expanded, from the top.
struct RowList {
    /// Records, and a `ReportGroup` for each group.
    std::vector<CXTPReportRecord*> records;
    /// The place of what stands above each of them, −1 for none. Empty when nothing stands above anything: then all of
    /// them are shown, as in a grid without groups and child records.
    std::vector<int> parents;
};

namespace rowbuilder {

/// The visible records that the filter lets pass, and those above one that passes. Records below one record, and those
/// of a group, stand in the sort order. Groups are those of the grouping columns, most significant first: one for each
/// text that records show there, in the order in which the columns' cells compare, each column in its direction. The
/// group without a text comes first, in a decreasing column last. Child records stay with the records above them,
/// whatever they show in grouping columns.
RowList Build(const CXTPReportRecords& records, CXTPReportColumns& columns, const TextFilter& filter,
              ReportGroups& groups);

} // namespace rowbuilder
