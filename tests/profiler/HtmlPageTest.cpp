// A table as a whole HTML page.
#include "html/HtmlPage.h"

#include <gtest/gtest.h>

namespace {

using namespace htmlpage;

TEST(HtmlPage, APathIsPercentEncodedButForItsSlashes) {
    EXPECT_EQ(Url("plots/plot_0_7.bmp"), "plots/plot_0_7.bmp");
    EXPECT_EQ(Url("100% 'x' #1?-._~"), "100%25%20%27x%27%20%231%3F-._~");
    EXPECT_EQ(Url("Gr\xC3\xB6\xC3\x9F"
                  "e"),
              "Gr%C3%B6%C3%9Fe");
}

TEST(HtmlPage, ImagesAreLookedForBesideThePage) {
    EXPECT_EQ(WithImagesAt("a <img src='C:\\x\\plot_0_1.bmp'/> b <img src='C:\\x\\plot_1_1.bmp'/> C:\\x\\plot",
                           "C:\\x\\plot", "x/plot"),
              "a <img src='x/plot_0_1.bmp'/> b <img src='x/plot_1_1.bmp'/> C:\\x\\plot");
    EXPECT_EQ(WithImagesAt("<img src='other'>", "C:\\x", "x"), "<img src='other'>");
    EXPECT_EQ(WithImagesAt("<img src='x_0'>", "x", "xx"), "<img src='xx_0'>")
        << "what was put in is not looked at again";
}

TEST(HtmlPage, ThePageTellsItsEncodingLanguageAndTitle) {
    const std::string page = Page("a<b & c", "de", "<table></table>");
    EXPECT_EQ(page.substr(0, page.find("/title>")),
              "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n"
              "<title>a&lt;b &amp; c<");
    EXPECT_NE(page.find("<h1>a&lt;b &amp; c</h1>\n<table></table>\n</body>\n</html>\n"), std::string::npos);
}

} // namespace
