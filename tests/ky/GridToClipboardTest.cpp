// A whole grid on the clipboard.
#include "PlotCellProbes.h"

#include <reportgrid/KyReportControlHelpers.h>

#include "../support/ClipboardContent.h"

#include <string>

namespace {

using KyReportControlHelpers::CopyToClipboard;
using KyReportControlHelpers::SaveAsHtml;

class GridToClipboard : public ::testing::Test {
protected:
    GridToClipboard() {
        for (const wchar_t* const name : {L"one", L"two", L"three"}) {
            auto* const record = new CXTPReportRecord;
            record->AddItem(new CXTPReportRecordItemText(name));
            host.grid.AddRecord(record);
        }
        host.Show();
        ClipboardContent::Clear();
    }
    UINT HtmlFormat() { return ::RegisterClipboardFormat(L"HTML Format"); }
    std::string Html() { return ClipboardContent::Bytes(HtmlFormat()); }
    CXTPReportRow* Row(int index) { return host.grid.GetRows()->GetAt(index); }

    PlotGridHost host;
};

TEST_F(GridToClipboard, AllRowsAreThereAsTextAndAsHtml) {
    CopyToClipboard(host.grid, L"");
    EXPECT_EQ(ClipboardContent::Text(), L"one\t\r\ntwo\t\r\nthree\t\r\n");
    const std::string table = SaveAsHtml(host.grid, L"");
    EXPECT_NE(table.find("three"), std::string::npos);
    const std::string html = Html();
    const std::string document = html.substr(html.find("<!--StartFragment -->\n") + 22);
    EXPECT_EQ(document.substr(0, 63), "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"http:");
    EXPECT_EQ(document.substr(document.find("<body>")),
              "<body>" + table + "</body> </html>\n<!--EndFragment-->\n</body>\n</html>");
}

TEST_F(GridToClipboard, TheOffsetsAreThoseOfTheText) {
    CopyToClipboard(host.grid, L"");
    const std::string html = Html();
    const auto offset = [&](const char* key) { return std::stoul(html.substr(html.find(key) + std::strlen(key), 8)); };
    EXPECT_EQ(html.substr(0, 22), "Version:0.9\nStartHTML:");
    EXPECT_EQ(offset("StartHTML:"), html.find("<html>"));
    EXPECT_EQ(offset("EndHTML:"), html.size());
    EXPECT_EQ(offset("StartFragment:"), html.find("<!--StartFrag") + 22);
    EXPECT_EQ(offset("EndFragment:"), html.find("<!--EndFrag"));
}

TEST_F(GridToClipboard, TheMemoryHasRoomForFourBytesBehindTheText) {
    CopyToClipboard(host.grid, L"");
    EXPECT_EQ(ClipboardContent::Size(HtmlFormat()), Html().size() + 4);
}

TEST_F(GridToClipboard, TheSelectionIsEmptyAfterwardsAndNobodyIsToldOfIt) {
    host.grid.GetSelectedRows()->Select(Row(1));
    CopyToClipboard(host.grid, L"");
    EXPECT_EQ(host.grid.GetSelectedRows()->GetCount(), 0);
    EXPECT_EQ(ClipboardContent::Text(), L"one\t\r\ntwo\t\r\nthree\t\r\n");
}

TEST_F(GridToClipboard, WithoutMultipleSelectionTheTextIsThatOfTheLastRowAndTheHtmlThatOfAll) {
    host.grid.SetMultipleSelection(FALSE);
    CopyToClipboard(host.grid, L"");
    EXPECT_EQ(ClipboardContent::Text(), L"three\t\r\n");
    EXPECT_NE(Html().find("one"), std::string::npos);
}

TEST_F(GridToClipboard, RowsThatAreSortedAreCopiedInTheirOrderAndTheRecordsOfTheHtmlInTheirs) {
    host.grid.GetColumns()->SetSortColumn(host.grid.GetColumns()->GetAt(0), TRUE);
    host.grid.Populate();
    CopyToClipboard(host.grid, L"");
    EXPECT_EQ(ClipboardContent::Text(), L"one\t\r\nthree\t\r\ntwo\t\r\n");
    EXPECT_LT(Html().find("two"), Html().find("three"));
}

TEST_F(GridToClipboard, AnEmptyGridAddsItsTableToWhatTheClipboardHolds) {
    host.grid.ResetContent();
    ClipboardContent::Put(L"kept");
    CopyToClipboard(host.grid, L"");
    EXPECT_EQ(ClipboardContent::Text(), L"kept");
    EXPECT_NE(Html().find("   </tr></table>"), std::string::npos);
}

TEST_F(GridToClipboard, WhileAnotherProgramHoldsTheClipboardNothingHappens) {
    ClipboardContent::Put(L"kept");
    {
        const ClipboardContent::HeldByAnother held;
        CopyToClipboard(host.grid, L"");
    }
    EXPECT_EQ(ClipboardContent::Text(), L"kept");
    EXPECT_EQ(ClipboardContent::Size(HtmlFormat()), 0U);
    EXPECT_EQ(host.grid.GetSelectedRows()->GetCount(), 0);
    CopyToClipboard(host.grid, L"");
    EXPECT_NE(Html().find("two"), std::string::npos);
}

TEST_F(GridToClipboard, TheClipboardIsClosedAgain) {
    CopyToClipboard(host.grid, L"");
    EXPECT_EQ(::GetOpenClipboardWindow(), nullptr);
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::CloseClipboard();
}

} // namespace
