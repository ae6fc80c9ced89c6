// Precompiled.h - the headers that all sources of the framework start from.
#pragma once

#include "gdi/Gdi.h"
#include "include/afx.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>
