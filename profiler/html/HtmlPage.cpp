// A table as a whole HTML page that looks right on the screen and on paper.
#include "html/HtmlPage.h"

namespace htmlpage {
namespace {

// Landscape, because a row with plots is wide; browsers print background colours only when they are told to.
constexpr std::string_view kStyle = R"(
  body { font: 10pt "Segoe UI", Arial, sans-serif; margin: 1.5em; color: black; background: white; }
  h1 { font-size: 14pt; font-weight: 600; }
  table { border-collapse: collapse; }
  th, td { border: 1px solid lightgray; padding: 2px 6px; white-space: nowrap; }
  img { display: block; }
  @page { size: A4 landscape; margin: 12mm; }
  @media print {
    body { margin: 0; font-size: 8pt; -webkit-print-color-adjust: exact; print-color-adjust: exact; }
    th, td { padding: 1px 4px; }
    tr { break-inside: avoid; }
    img { width: 65mm; height: 22px; }
  }
)";

bool IsPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~/").find(c) != std::string_view::npos;
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else
            escaped += c;
    }
    return escaped;
}

} // namespace

std::string Url(std::string_view path) {
    std::string url;
    for (const char c : path) {
        if (IsPlain(c)) {
            url += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        url += '%';
        url += "0123456789ABCDEF"[byte >> 4];
        url += "0123456789ABCDEF"[byte & 15];
    }
    return url;
}

std::string WithImagesAt(std::string table, std::string_view prefix, std::string_view place) {
    // Texts of cells have neither a '<' nor a quotation mark of their own.
    const std::string former = "<img src='" + std::string(prefix);
    const std::string now = "<img src='" + std::string(place);
    for (std::size_t at = table.find(former); at != std::string::npos; at = table.find(former, at + now.size()))
        table.replace(at, former.size(), now);
    return table;
}

std::string Page(std::string_view title, std::string_view language, std::string_view table) {
    const std::string name = Escaped(title);
    std::string page = "<!DOCTYPE html>\n<html lang=\"";
    page.append(language).append("\">\n<head>\n<meta charset=\"utf-8\">\n<title>").append(name);
    page.append("</title>\n<style>").append(kStyle).append("</style>\n</head>\n<body>\n<h1>").append(name);
    page.append("</h1>\n").append(table).append("\n</body>\n</html>\n");
    return page;
}

} // namespace htmlpage
