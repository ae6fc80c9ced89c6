// afxstr.h - the string class.
#pragma once

#include "../core/CString.h"
