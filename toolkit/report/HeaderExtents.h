// How the columns of a header and the buttons of its group-by box stand, in the terms of the grid arithmetic.
#pragma once

#include "GridGeometry.h"

#include <vector>

class CXTPReportColumn;
class CXTPReportColumns;
class CXTPReportHeader;

/// The visible columns from left to right, in client coordinates as laid out last: what is seen of them beside frozen
/// ones, and which can be resized.
std::vector<gridgeometry::ColumnExtent> HeaderExtents(const CXTPReportHeader& header);

/// The buttons of the group-by box from left to right, in client coordinates.
std::vector<gridgeometry::ColumnExtent> GroupExtents(const CXTPReportHeader& header);

/// The column's place among the visible ones; −1 when it is not one of them.
int VisibleIndexOf(const CXTPReportColumns& columns, const CXTPReportColumn* column);
