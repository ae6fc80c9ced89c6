// atltypes.h - points, sizes and rectangles.
#pragma once

#include "../core/Geometry.h"
