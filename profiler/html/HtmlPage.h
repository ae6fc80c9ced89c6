// A table as a whole HTML page that looks right on the screen and on paper. No window needed.
#pragma once

#include <string>
#include <string_view>

namespace htmlpage {

/// The path as it stands in a page: percent signs for what is no letter, digit or one of - . _ ~ /. All is UTF-8.
std::string Url(std::string_view path);

/// The table with pictures beside the page: every image whose name begins with `prefix` is looked for at `place`, which
/// is the prefix as the page has to have it.
std::string WithImagesAt(std::string table, std::string_view prefix, std::string_view place);

/// The page. `title` is any text in UTF-8, `language` a code such as "en", `table` is markup.
std::string Page(std::string_view title, std::string_view language, std::string_view table);

} // namespace htmlpage
