// The program's table as an HTML page and on the clipboard.
#include "window/HtmlExport.h"

#include "ProfilerTestApp.h"

#include "resource.h"

#include "../support/ClipboardContent.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <regex>

namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

std::string ReadAll(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The places of all images of the page.
std::vector<std::string> Images(const std::string& page) {
    std::vector<std::string> places;
    const std::regex image("<img src='([^']*)'");
    for (std::sregex_iterator it(page.begin(), page.end(), image), end; it != end; ++it)
        places.push_back((*it)[1]);
    return places;
}

class HtmlExportTest : public ProfilerFrameTest {
protected:
    void SetUp() override {
        ProfilerFrameTest::SetUp();
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
        ProfilerFrameTest::TearDown();
    }
    fs::path folder = fs::temp_directory_path() / L"profiler \u00F6 export";
};

TEST_F(HtmlExportTest, ThePageHasARowForEachColumnAndItsPicturesBesideIt) {
    OpenShipped(L"penguins.csv");
    ASSERT_TRUE(ExportHtml(Grid(), L"penguins.csv", folder / L"pen guins.html"));
    const std::string page = ReadAll(folder / L"pen guins.html");
    EXPECT_THAT(page, HasSubstr("<title>penguins.csv</title>"));
    EXPECT_THAT(page, HasSubstr(">Beak Length (mm)</td>"));
    EXPECT_THAT(page, HasSubstr("<td style=' text-align: right;'>43.9219</td>"));
    const std::vector<std::string> images = Images(page);
    ASSERT_FALSE(images.empty());
    for (const std::string& place : images) {
        EXPECT_EQ(place.substr(0, 23), "pen%20guins-plots/plot_");
        const fs::path file = folder / L"pen guins-plots" / place.substr(place.find('/') + 1);
        EXPECT_TRUE(fs::exists(file)) << place;
    }
}

TEST_F(HtmlExportTest, HeadersStandAboveTheirCellsWhereverTheUserHasMovedTheColumns) {
    OpenShipped(L"penguins.csv");
    ASSERT_TRUE(ExportHtml(Grid(), L"x", folder / L"a.html"));
    CXTPReportColumns& columns = *Grid().GetColumns();
    columns.ChangeColumnOrder(0, 4);
    columns.ChangeColumnOrder(3, 1);
    columns.GetAt(2)->SetVisible(FALSE);
    const auto order = [&] {
        std::vector<int> items;
        for (int i = 0; i < columns.GetCount(); ++i)
            items.push_back(columns.GetAt(i)->GetItemIndex());
        return items;
    };
    const std::vector<int> moved = order();
    ASSERT_EQ(moved.front(), 4);
    ASSERT_TRUE(ExportHtml(Grid(), L"x", folder / L"b.html"));
    EXPECT_EQ(order(), moved);
    EXPECT_FALSE(columns.GetAt(2)->IsVisible());
    std::string a = ReadAll(folder / L"a.html"), b = ReadAll(folder / L"b.html");
    b = std::regex_replace(b, std::regex("b-plots"), "a-plots");
    EXPECT_EQ(a, b);
}

TEST_F(HtmlExportTest, AnEmptyGridIsAPageToo) {
    ASSERT_TRUE(ExportHtml(Grid(), L"nothing", folder / L"e.html"));
    EXPECT_TRUE(Images(ReadAll(folder / L"e.html")).empty());
    EXPECT_FALSE(fs::exists(folder / L"e-plots"));
}

TEST_F(HtmlExportTest, APageThatCannotBeWrittenIsTold) {
    OpenShipped(L"penguins.csv");
    EXPECT_FALSE(ExportHtml(Grid(), L"x", folder / L"missing" / L"a.html"));
    EXPECT_FALSE(fs::exists(folder / L"missing"));
}

TEST_F(HtmlExportTest, TheWholeTableGoesToTheClipboardAndTheSelectionStays) {
    OpenShipped(L"penguins.csv");
    Grid().SetFocusedRow(Grid().GetRows()->GetAt(2));
    ClipboardContent::Clear();
    Command(ID_EDIT_COPY_GRID);
    EXPECT_EQ(Status(), L"The table is on the clipboard.");
    const std::wstring text = ClipboardContent::Text();
    EXPECT_EQ(std::count(text.begin(), text.end(), L'\n'), 7);
    EXPECT_THAT(text, HasSubstr(L"Beak Length (mm)\tNumber\t342\t2\t32.1\t43.9219\t59.6\t"));
    const std::string html = ClipboardContent::Bytes(::RegisterClipboardFormat(L"HTML Format"));
    EXPECT_THAT(html, HasSubstr(">43.9219</td>"));
    EXPECT_EQ(Grid().GetSelectedRows()->GetCount(), 1);
    EXPECT_TRUE(Grid().GetSelectedRows()->Contains(2));
    EXPECT_FALSE(Grid().IsMultipleSelection());
}

TEST_F(HtmlExportTest, AClipboardInUseIsTold) {
    OpenShipped(L"penguins.csv");
    const ClipboardContent::HeldByAnother held;
    Command(ID_EDIT_COPY_GRID);
    EXPECT_EQ(Status(), L"Another program uses the clipboard. Try again.");
}

TEST_F(HtmlExportTest, TheCommandsNeedAFile) {
    for (const UINT id : {ID_FILE_EXPORT_HTML, ID_FILE_VIEW_IN_BROWSER})
        EXPECT_TRUE(MenuState(0, id) & MF_GRAYED);
    EXPECT_TRUE(MenuState(1, ID_EDIT_COPY_GRID) & MF_GRAYED);
    OpenShipped(L"penguins.csv");
    for (const UINT id : {ID_FILE_EXPORT_HTML, ID_FILE_VIEW_IN_BROWSER})
        EXPECT_FALSE(MenuState(0, id) & MF_GRAYED);
    EXPECT_FALSE(MenuState(1, ID_EDIT_COPY_GRID) & MF_GRAYED);
}

} // namespace
