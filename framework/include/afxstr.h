/// @file
/// The string class.
#pragma once

#include "../core/CString.h"
