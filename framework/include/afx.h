/// @file
/// Objects, strings, geometry, exceptions, files and archives.
#pragma once

#include "../core/CArchive.h"
#include "../core/CException.h"
#include "../core/CFile.h"
#include "../core/CMemFile.h"
#include "../core/CObject.h"
#include "../core/CString.h"
#include "../core/Diagnostics.h"
#include "../core/Geometry.h"
#include "../core/Module.h"
