// Texts of the CSV reader and the statistics, which are UTF-8, as the windows need them.
#pragma once

#include "csv/Message.h"

#include <afxwin.h>

#include <string>

CString FromUtf8(const std::string& text);
std::string ToUtf8(const CString& text);

/// A count with its digits grouped as the user's system does it.
CString CountText(std::size_t count);

/// The sentence in the user's language.
CString Sentence(const csv::Message& message);
