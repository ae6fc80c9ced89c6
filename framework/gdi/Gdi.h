/// @file
/// All device contexts and GDI objects.
#pragma once

#include "CBitmap.h"
#include "CBrush.h"
#include "CDC.h"
#include "CFont.h"
#include "CGdiObject.h"
#include "CPalette.h"
#include "CPen.h"
#include "CRgn.h"
#include "SelectGuard.h"
#include "WindowDCs.h"
