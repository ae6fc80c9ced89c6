/// @file
/// User-visible texts: English literals, translated through a gettext catalogue, with %1% places for values.
#pragma once

#include "KyExport.h"
#include "MessageFormat.h"

#include <afxwin.h>

/// @addtogroup ky_common
/// @{

/// Chooses the language of the library's texts. Without a call they are English, and no catalogue is needed.
/// To be called on the user-interface thread, usually once at start; texts already shown are not changed.
///
/// @param language         a language code as in "de" or "de_DE"; null or empty returns to English
/// @param catalogueFolder  the folder that holds LANGUAGE/LC_MESSAGES/kycontrols.mo
/// @return true when a catalogue was found and read (or English was asked for); otherwise the texts are English
KYUI_API bool SetLanguage(const wchar_t* language, const wchar_t* catalogueFolder);

/// The translation of an English text (7-bit or UTF-8); the text itself when the catalogue has none.
KYUI_API CString Translate(const char* text);

/// The same for a text whose meaning needs a context word, such as "Plot value".
KYUI_API CString Translate(const char* context, const char* text);

/// The translation of a text in its context with %1%, %2% … filled by the arguments (numbers, wide strings).
/// Never throws on a catalogue's mistakes; see `messageformat::Fill`.
template <class... Args>
CString TranslateFormat(const char* context, const char* text, const Args&... args) {
    const CString translated = Translate(context, text);
    const CString original(text);
    return messageformat::Fill(translated.GetString(), original.GetString(), args...).c_str();
}

/// @}
