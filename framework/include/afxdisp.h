/// @file
/// COM support: the exception of failed COM calls.
#pragma once

#include "afx.h"

#include "../core/COleException.h"
