// Profiles as a table for other programs.
#pragma once

#include "statistics/ColumnProfile.h"

#include <span>
#include <string>

namespace statistics {

/// The profiles as a CSV file in UTF-8: a header and one record for each column. Numbers have a decimal point and as
/// many digits as bring them back exactly; what a column does not have is empty.
std::string ProfileTable(std::span<const ColumnProfile> profiles);

} // namespace statistics
