/// @file
/// Points, sizes and rectangles.
#pragma once

#include "../core/Geometry.h"
