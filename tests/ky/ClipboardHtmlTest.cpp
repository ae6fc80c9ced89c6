// The envelope of HTML on the clipboard, byte for byte.
#include "reportgrid/ClipboardHtml.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ClipboardHtml, TheDocumentIsOneLineOfStrictXhtml) {
    EXPECT_EQ(clipboardhtml::Document("<table></table>"),
              "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" "
              "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">"
              "<html><head><style><!--  table {border-collapse: collapse;}  td {      font-family: Arial;"
              "      font-size: 10.0pt;      color: black;      border: 1px solid lightgray;      padding: 2px;}"
              "--></style></head><body><table></table></body> </html>");
}

TEST(ClipboardHtml, TheEnvelopeTellsByteOffsetsFromZeroInEightDigits) {
    // Lines with their line feeds: 12 + 19 + 17 + 23 + 21 = 92 bytes of header, 63 of document type, 35 + 7 + 22 up to
    // the document, 3 + 1 of that, 19 + 8 + 7 behind it.
    EXPECT_EQ(clipboardhtml::Envelope("DOC"), "Version:0.9\n"
                                              "StartHTML:00000155\n"
                                              "EndHTML:00000257\n"
                                              "StartFragment:00000219\n"
                                              "EndFragment:00000223\n"
                                              "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\n"
                                              "<html><head><title></title></head>\n"
                                              "<body>\n"
                                              "<!--StartFragment -->\n"
                                              "DOC\n"
                                              "<!--EndFragment-->\n"
                                              "</body>\n"
                                              "</html>");
}

/// The number behind the key.
std::size_t Offset(const std::string& text, const std::string& key) {
    return std::stoul(text.substr(text.find(key) + key.size(), 8));
}

TEST(ClipboardHtml, OffsetsPointAtWhatTheyName) {
    const std::string document = clipboardhtml::Document("<table>Gr\xC3\xB6\xC3\x9F"
                                                         "e</table>");
    const std::string text = clipboardhtml::Envelope(document);
    EXPECT_EQ(text.substr(Offset(text, "StartFragment:"), document.size()), document);
    EXPECT_EQ(text.substr(Offset(text, "EndFragment:"), 18), "<!--EndFragment-->");
    EXPECT_EQ(Offset(text, "EndFragment:"), Offset(text, "StartFragment:") + document.size() + 1);
    EXPECT_EQ(text.substr(Offset(text, "StartHTML:"), 12), "<html><head>");
    EXPECT_EQ(Offset(text, "EndHTML:"), text.size());
}

TEST(ClipboardHtml, TheOuterHtmlElementIsMeantAlsoWhenTheDocumentHasOne) {
    const std::string text = clipboardhtml::Envelope("<html></html>");
    EXPECT_EQ(Offset(text, "StartHTML:"), text.find("<html>"));
    EXPECT_LT(Offset(text, "StartHTML:"), Offset(text, "StartFragment:"));
}

TEST(ClipboardHtml, OffsetsThatEightDigitsCannotTellGiveNothing) {
    const std::size_t around = clipboardhtml::Envelope("").size();
    EXPECT_EQ(clipboardhtml::Envelope(std::string(99'999'999 - around, 'x')).size(), 99'999'999U);
    EXPECT_EQ(clipboardhtml::Envelope(std::string(100'000'000 - around, 'x')), "");
}

} // namespace
