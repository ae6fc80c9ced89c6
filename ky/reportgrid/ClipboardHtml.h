// An HTML document in the envelope that the clipboard's "HTML Format" asks for. No window needed.
#pragma once

#include <string>
#include <string_view>

namespace clipboardhtml {

/// A whole document, in one line, around what stands in its body.
std::string Document(std::string_view body);

/// The document, doctype and all, as the fragment of an outer one, with a header that tells the byte offsets of both.
/// Intended: readers take what is between the markers. Empty when an offset needs more than the header's eight digits.
std::string Envelope(std::string_view document);

} // namespace clipboardhtml
