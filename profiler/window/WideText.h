// Texts of the CSV reader and the statistics, which are UTF-8, as the windows need them.
#pragma once

#include "csv/Message.h"

#include <afxwin.h>

#include <string>

CString FromUtf8(const std::string& text);
std::string ToUtf8(const CString& text);

/// The sentence in the user's language.
CString Sentence(const csv::Message& message);
