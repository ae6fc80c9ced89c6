// What a million real records cost.
#pragma once

class Results;

namespace recordbench {

/// Fills, sorts and fits grids of a million records, beside the list view and a bare loop whose host keeps the same
/// records in a vector.
void Run(Results& results);

} // namespace recordbench
