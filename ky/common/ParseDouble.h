/// @file
/// The number parser that every value-entry control and numeric cell shares.
#pragma once

#include "KyExport.h"

#include <afxwin.h>

/// @addtogroup ky_common
/// @{

/// Reads the whole text as one number; both '.' and ',' are taken for the decimal separator.
/// @return true when the text is one number within double's range; the number is then in `value`. An empty or blank
/// text
///         fails and sets `value` to the missing-value mark (-99.0); any other failure leaves `value` as it was.
KYUI_API bool ParseDouble(const CString& text, double& value);

/// @}
