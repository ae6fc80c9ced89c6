// An HTML document in the envelope that the clipboard's "HTML Format" asks for.
#include "ClipboardHtml.h"

namespace clipboardhtml {
namespace {

constexpr std::string_view DocumentHead = "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" "
                                          "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">"
                                          "<html><head><style><!--"
                                          "  table {border-collapse: collapse;}"
                                          "  td {"
                                          "      font-family: Arial;"
                                          "      font-size: 10.0pt;"
                                          "      color: black;"
                                          "      border: 1px solid lightgray;"
                                          "      padding: 2px;}"
                                          "--></style></head><body>";
constexpr std::string_view DocumentTail = "</body> </html>";

constexpr std::string_view EnvelopeHead =
    "Version:0.9\nStartHTML:00000000\nEndHTML:00000000\nStartFragment:00000000\nEndFragment:00000000\n"
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\n"
    "<html><head><title></title></head>\n<body>\n<!--StartFragment -->\n";
constexpr std::string_view EnvelopeTail = "\n<!--EndFragment-->\n</body>\n</html>";

constexpr std::size_t MostBytes = 99'999'999;

void FillOffset(std::string& text, std::string_view key, std::size_t offset) {
    std::size_t place = text.find(key) + key.size() + 8;
    for (int digit = 0; digit < 8; ++digit, offset /= 10)
        text[--place] = static_cast<char>('0' + offset % 10);
}

} // namespace

std::string Document(std::string_view body) {
    std::string document;
    document.reserve(DocumentHead.size() + body.size() + DocumentTail.size());
    return document.append(DocumentHead).append(body).append(DocumentTail);
}

std::string Envelope(std::string_view document) {
    const std::size_t size = EnvelopeHead.size() + document.size() + EnvelopeTail.size();
    if (size > MostBytes)
        return std::string();
    std::string text;
    text.reserve(size);
    text.append(EnvelopeHead).append(document).append(EnvelopeTail);
    FillOffset(text, "StartHTML:", EnvelopeHead.find("<html>"));
    FillOffset(text, "EndHTML:", size);
    FillOffset(text, "StartFragment:", EnvelopeHead.size());
    FillOffset(text, "EndFragment:", text.find("<!--EndFrag"));
    return text;
}

} // namespace clipboardhtml
