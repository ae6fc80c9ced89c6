// User-visible texts: English literals, translated through a gettext catalogue.
#include "Translation.h"

#include <boost/locale/encoding_utf.hpp>
#include <boost/locale/gnu_gettext.hpp>
#include <boost/locale/message.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <string>
#include <vector>

namespace {

using boost::locale::conv::utf_to_utf;
namespace gettext = boost::locale::gnu_gettext;

/// The locale that carries the catalogue in force. Only its message facet is ever asked; numbers are not its affair.
std::locale& CatalogueLocale() {
    static std::locale locale = std::locale::classic();
    return locale;
}

/// "de_DE" is language and country; anything after them ("de_DE.UTF-8", "de_DE@euro") does not choose a catalogue.
gettext::messages_info CatalogueInfo(const std::wstring& language, const std::wstring& folder) {
    std::string name = utf_to_utf<char>(language);
    name.resize(name.find_first_of(".@") == std::string::npos ? name.size() : name.find_first_of(".@"));
    const std::size_t underscore = name.find('_');

    gettext::messages_info info;
    info.language = name.substr(0, underscore);
    if (underscore != std::string::npos)
        info.country = name.substr(underscore + 1);
    info.encoding = "UTF-8";
    info.paths = {utf_to_utf<char>(folder)};
    info.domains = {gettext::messages_info::domain("kycontrols")};
    return info;
}

std::vector<char> ReadFile(const std::string& utf8Path) {
    std::ifstream file(std::filesystem::path(utf_to_utf<wchar_t>(utf8Path)), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

CString ToCString(const std::string& utf8) { return utf_to_utf<wchar_t>(utf8).c_str(); }

/// The catalogue's text, or else the English one. The catalogue is asked itself: the library's message objects take
/// what is not ASCII out of a text without a translation.
CString Translated(const char* context, const char* text) {
    using Catalogue = boost::locale::message_format<char>;
    const std::locale& locale = CatalogueLocale();
    const char* found = nullptr;
    if (std::has_facet<Catalogue>(locale))
        found = std::use_facet<Catalogue>(locale).get(0, context, text);
    return ToCString(found != nullptr ? found : text);
}

} // namespace

bool SetLanguage(const wchar_t* language, const wchar_t* catalogueFolder) {
    CatalogueLocale() = std::locale::classic();
    if (language == nullptr || *language == L'\0')
        return true;
    try {
        gettext::messages_info info = CatalogueInfo(language, catalogueFolder != nullptr ? catalogueFolder : L"");
        bool found = false;
        // Read here, because the catalogue reader's own way of opening files does not know every folder name.
        info.callback = [&found](const std::string& path, const std::string&) {
            std::vector<char> content = ReadFile(path);
            found = found || !content.empty();
            return content;
        };
        const std::locale locale(std::locale::classic(), gettext::create_messages_facet<char>(info));
        if (found)
            CatalogueLocale() = locale;
        return found;
    } catch (const std::exception&) {
        return false; // A broken catalogue is no catalogue.
    }
}

CString Translate(const char* text) { return Translated(nullptr, text); }

CString Translate(const char* context, const char* text) { return Translated(context, text); }
