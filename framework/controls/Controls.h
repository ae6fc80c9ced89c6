/// @file
/// The standard controls as classes: thin covers of their messages.
#pragma once

#include "CButton.h"
#include "CComboBox.h"
#include "CEdit.h"
#include "CListBox.h"
#include "CScrollBar.h"
#include "CStatic.h"
