// Report grids as HTML tables, byte for byte.
#include "PlotCellProbes.h"

#include <reportgrid/KyReportControlHelpers.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>

namespace {

namespace fs = std::filesystem;

using KyReportControlHelpers::SaveAsHtml;

/// A grid without a window: data is all that the export looks at.
class HtmlExport : public ::testing::Test {
protected:
    std::string Html() { return SaveAsHtml(grid, L""); }

    /// What stands between the header row and the end of the table.
    std::string Rows() {
        const std::string html = Html();
        const std::string head = "<table>   <tr>   </tr>", tail = "</table>";
        EXPECT_EQ(html.substr(0, head.size()), head);
        EXPECT_EQ(html.substr(html.size() - tail.size()), tail);
        return html.substr(head.size(), html.size() - head.size() - tail.size());
    }

    CXTPReportRecord* AddRecord() { return grid.AddRecord(new CXTPReportRecord); }
    CXTPReportRecordItem* AddItem(CXTPReportRecordItem* item) { return AddRecord()->AddItem(item); }
    CXTPReportRecordItem* AddText(LPCTSTR text) { return AddItem(new CXTPReportRecordItemText(text)); }
    CXTPReportRecordItem* AddNumber(double number) { return AddItem(new CXTPReportRecordItemNumber(number)); }

    CXTPReportControl grid;
};

std::string Row(const std::string& cells) { return "<tr height='22'>" + cells + "</tr>"; }
std::string Cell(const std::string& text) { return "   <td style=''>" + text + "</td>"; }
const std::string EmptyCell = "   <td style='background-color: #ffffff;'> </td>";

// --- The table -------------------------------------------------------------------------------------------------------

TEST_F(HtmlExport, WithoutColumnsAndRecordsThereIsAnEmptyHeaderRow) {
    EXPECT_EQ(Html(), "<table>   <tr>   </tr></table>");
}

TEST_F(HtmlExport, EveryColumnHasAHeaderCellAlsoAHiddenOne) {
    grid.AddColumn(new CXTPReportColumn(1, L"Left", 50));
    auto* const hidden = new CXTPReportColumn(0, L"Hidden", 50);
    hidden->SetVisible(FALSE);
    hidden->SetAlignment(DT_RIGHT);
    grid.AddColumn(hidden);
    auto* const centred = new CXTPReportColumn(2, L"Centred", 50);
    centred->SetHeaderAlignment(DT_CENTER);
    grid.AddColumn(centred);
    EXPECT_EQ(Html(), "<table>   <tr>"
                      "   <th style='background-color: #e6e6e6; text-align: left;'>Left</th>"
                      "   <th style='background-color: #e6e6e6; text-align: right;'>Hidden</th>"
                      "   <th style='background-color: #e6e6e6; text-align: center;'>Centred</th>"
                      "   </tr></table>");
}

TEST_F(HtmlExport, CaptionsAreEscapedAndInUtf8) {
    grid.AddColumn(new CXTPReportColumn(0,
                                        L"a<b & Gr\x00F6\x00DF"
                                        L"e",
                                        50));
    EXPECT_EQ(Html(), "<table>   <tr>"
                      "   <th style='background-color: #e6e6e6; text-align: left;'>a&lt;b &amp; Gr\xC3\xB6\xC3\x9F"
                      "e</th>   </tr></table>");
}

TEST_F(HtmlExport, ARecordWithoutItemsIsARowWithABlank) {
    AddRecord();
    EXPECT_EQ(Rows(), "<tr height='22'><td>&nbsp;</td></tr>");
}

TEST_F(HtmlExport, RecordsThatAreNotVisibleAreLeftOut) {
    AddText(L"first");
    AddText(L"second")->GetRecord()->SetVisible(FALSE);
    AddText(L"third");
    EXPECT_EQ(Rows(), Row(Cell("first")) + Row(Cell("third")));
}

TEST_F(HtmlExport, SortingAndMovedOrHiddenColumnsChangeNeitherRowsNorCells) {
    grid.AddColumn(new CXTPReportColumn(1, L"B", 50));
    grid.AddColumn(new CXTPReportColumn(0, L"A", 50));
    for (const wchar_t* const name : {L"b", L"a", L"c"})
        AddText(name)->GetRecord()->AddItem(new CXTPReportRecordItemText(L"second"));
    const std::string before = Html();
    EXPECT_NE(before.find(Row(Cell("b") + Cell("second")) + Row(Cell("a") + Cell("second"))), std::string::npos);
    grid.GetColumns()->SetSortColumn(grid.GetColumns()->GetAt(1), TRUE);
    grid.GetColumns()->GetAt(0)->SetVisible(FALSE);
    grid.Populate();
    EXPECT_EQ(Html(), before);
}

TEST_F(HtmlExport, RecordsThatWereNeverPopulatedAreThereAsWell) {
    AddText(L"new");
    ASSERT_EQ(grid.GetRows()->GetCount(), 0);
    EXPECT_EQ(Rows(), Row(Cell("new")));
}

// --- Text cells ------------------------------------------------------------------------------------------------------

TEST_F(HtmlExport, ATextThatLooksLikeMarkupIsEscaped) {
    AddText(L"<a href=\"x\">Tom & 'Jerry'</a>");
    EXPECT_EQ(Rows(), Row(Cell("&lt;a href=&quot;x&quot;&gt;Tom &amp; &#39;Jerry&#39;&lt;/a&gt;")));
}

TEST_F(HtmlExport, BrokenSurrogatesReachTheDocumentByTheSameRulesAsCaptions) {
    AddText(L"a\xDC00z");
    AddText(L"a\xD800"
            L"bc");
    AddText(L"a\xD800");
    AddText(L"\xD83D\xDE00\x00F6");
    AddText(L"\xDC00");
    EXPECT_EQ(Rows(), Row(Cell("az")) + Row(Cell("ac")) + Row(Cell("a")) + Row(Cell("\xF0\x9F\x98\x80\xC3\xB6")) +
                          Row(EmptyCell));
}

TEST_F(HtmlExport, BlanksTabsAndLineBreaksStayAsTheyAre) {
    AddText(L" a\tb\r\nc  ");
    EXPECT_EQ(Rows(), Row(Cell(" a\tb\r\nc  ")));
}

TEST_F(HtmlExport, ColoursAreThoseOfTheItem) {
    AddText(L"red")->SetBackgroundColor(RGB(255, 0, 0));
    AddText(L"blue")->SetTextColor(RGB(0, 0, 255));
    auto* const both = AddText(L"both");
    both->SetBackgroundColor(RGB(1, 2, 3));
    both->SetTextColor(RGB(171, 205, 239));
    EXPECT_EQ(Rows(), Row("   <td style='background-color: #ff0000;'>red</td>") +
                          Row("   <td style=' color: #0000ff;'>blue</td>") +
                          Row("   <td style='background-color: #010203; color: #abcdef;'>both</td>"));
}

TEST_F(HtmlExport, AWhiteBackgroundAndABlackTextAreNotTold) {
    auto* const item = AddText(L"x");
    item->SetBackgroundColor(RGB(255, 255, 255));
    item->SetTextColor(RGB(0, 0, 0));
    EXPECT_EQ(Rows(), Row(Cell("x")));
}

TEST_F(HtmlExport, AnEmptyCellTellsAlsoAWhiteBackgroundButNotABlackOne) {
    AddText(L"");
    AddText(L"")->SetBackgroundColor(RGB(255, 0, 0));
    AddText(L"")->SetBackgroundColor(RGB(0, 0, 0));
    EXPECT_EQ(Rows(), Row(EmptyCell) + Row("   <td style='background-color: #ff0000;'> </td>") + Row("   <td> </td>"));
}

TEST_F(HtmlExport, BoldTextsAreStrong) {
    AddText(L"<b>")->SetBold();
    EXPECT_EQ(Rows(), Row(Cell("<strong>&lt;b&gt;</strong>")));
}

TEST_F(HtmlExport, TheAlignmentIsTheItemsOwnAndNotThatOfItsColumn) {
    auto* const column = new CXTPReportColumn(0, L"C", 50);
    column->SetAlignment(DT_RIGHT);
    grid.AddColumn(column);
    AddText(L"as the column");
    AddText(L"left")->SetAlignment(DT_LEFT);
    AddText(L"centred")->SetAlignment(DT_CENTER);
    AddText(L"right")->SetAlignment(DT_RIGHT);
    const std::string html = Html();
    EXPECT_EQ(html.substr(html.find("</tr>") + 5),
              Row(Cell("as the column")) + Row(Cell("left")) + Row("   <td style=' text-align: center;'>centred</td>") +
                  Row("   <td style=' text-align: right;'>right</td>") + "</table>");
}

TEST_F(HtmlExport, AFormatOfATextCellMakesItNoNumber) {
    AddText(L"3")->SetFormatString(L"%s kg");
    EXPECT_EQ(Rows(), Row(Cell("3")));
}

TEST_F(HtmlExport, TheTextOfACellIsItsValueAndNotACaptionInFrontOfIt) {
    AddText(L"value")->SetCaption(L"caption");
    EXPECT_EQ(Rows(), Row(Cell("value")));
}

// --- Numbers ---------------------------------------------------------------------------------------------------------

TEST_F(HtmlExport, NumbersAreToldInFullPrecisionWhateverTheirFormatShows) {
    AddItem(new CXTPReportRecordItemNumber(1.0 / 3, L"%.1f"));
    AddItem(new CXTPReportRecordItemNumber(0.1, L"%.0f kg"));
    AddItem(new CXTPReportRecordItemNumber(-2.5, L""));
    AddItem(new CXTPReportRecordItemNumber(0, L"%f"));
    EXPECT_EQ(Rows(), Row(Cell("0.333333343")) + Row(Cell("0.100000001")) + Row(Cell("-2.5")) + Row(Cell("0")));
}

TEST_F(HtmlExport, NumbersAreFloats) {
    AddNumber(123456789.0);
    AddNumber(1e300);
    AddNumber(-1e300);
    AddNumber(1e-300);
    AddNumber(1e-5);
    EXPECT_EQ(Rows(), Row(Cell("123456792")) + Row(Cell("inf")) + Row(Cell("-inf")) + Row(Cell("0")) +
                          Row(Cell("9.99999975e-06")));
}

TEST_F(HtmlExport, TheMissingValueMarkIsAnEmptyCell) {
    AddNumber(-99.0);
    AddNumber(-99.0)->SetBackgroundColor(RGB(0, 255, 0));
    AddNumber(-99.0001);
    EXPECT_EQ(Rows(),
              Row(EmptyCell) + Row("   <td style='background-color: #00ff00;'> </td>") + Row(Cell("-99.0000992")));
}

TEST_F(HtmlExport, InfinitiesAndNaNAreNamedWithTheirSign) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    AddNumber(std::numeric_limits<double>::infinity());
    AddNumber(-std::numeric_limits<double>::infinity());
    AddNumber(std::copysign(nan, 1.0));
    AddNumber(std::copysign(nan, -1.0));
    EXPECT_EQ(Rows(), Row(Cell("inf")) + Row(Cell("-inf")) + Row(Cell("nan")) + Row(Cell("-nan")));
}

TEST_F(HtmlExport, ANumberHasTheLookOfItsCell) {
    auto* const item = AddNumber(7);
    item->SetBold();
    item->SetAlignment(DT_RIGHT);
    item->SetTextColor(RGB(255, 0, 0));
    item->SetCaption(L"not told");
    EXPECT_EQ(Rows(), Row("   <td style=' text-align: right; color: #ff0000;'><strong>7</strong></td>"));
}

TEST_F(HtmlExport, WhatARecordWritesOfItselfIsWhatIsExported) {
    class Masked : public CXTPReportRecordItemText {
    public:
        Masked() : CXTPReportRecordItemText(L"secret") {}
        void DoPropExchange(CXTPPropExchange* exchange) override {
            CString text = L"***";
            PX_String(exchange, L"Text", text);
            DWORD red = RGB(255, 0, 0);
            PX_DWord(exchange, L"TextColor", red);
        }
    };
    class Short : public CXTPReportRecord {
    public:
        void DoPropExchange(CXTPPropExchange*) override {} // no section for its item
    };
    AddItem(new Masked)->SetBackgroundColor(RGB(0, 0, 255));
    grid.AddRecord(new Short)->AddItem(new CXTPReportRecordItemText(L"not written"));
    EXPECT_EQ(Rows(), Row("   <td style=' color: #ff0000;'>***</td>") + Row(EmptyCell));
}

// --- Child records ---------------------------------------------------------------------------------------------------

CXTPReportRecord* AddChild(CXTPReportRecord& above, CXTPReportRecordItem* item) {
    CXTPReportRecord* const child = above.GetChilds()->Add(new CXTPReportRecord);
    child->AddItem(item);
    return child;
}

TEST_F(HtmlExport, ChildRecordsFollowTheirRecordThreeDeepAndInOrder) {
    CXTPReportRecord* const first = AddText(L"1")->GetRecord();
    CXTPReportRecord* const child = AddChild(*first, new CXTPReportRecordItemText(L"1.1"));
    AddChild(*child, new CXTPReportRecordItemText(L"1.1.1"));
    AddChild(*child, new CXTPReportRecordItemText(L"1.1.2"));
    AddChild(*first, new CXTPReportRecordItemText(L"1.2"));
    AddText(L"2");
    EXPECT_EQ(Rows(), Row(Cell("1")) + Row(Cell("1.1")) + Row(Cell("1.1.1")) + Row(Cell("1.1.2")) + Row(Cell("1.2")) +
                          Row(Cell("2")));
}

TEST_F(HtmlExport, ChildRowsShowCaptionsWithoutColours) {
    CXTPReportRecord* const above = AddText(L"above")->GetRecord();
    auto* const item = new CXTPReportRecordItemNumber(1.0 / 3, L"%.2f");
    item->SetBackgroundColor(RGB(255, 0, 0));
    item->SetTextColor(RGB(0, 255, 0));
    item->SetBold();
    item->SetAlignment(DT_RIGHT);
    CXTPReportRecord* const child = AddChild(*above, item);
    child->AddItem(new CXTPReportRecordItemNumber(-99.0, L"%.0f"));
    auto* const empty = new CXTPReportRecordItemText(L"");
    empty->SetBackgroundColor(RGB(0, 0, 0));
    child->AddItem(empty);
    auto* const captioned = new CXTPReportRecordItemText(L"value");
    captioned->SetCaption(L"caption");
    child->AddItem(captioned);
    EXPECT_EQ(Rows(), Row(Cell("above")) + Row("   <td style=' text-align: right;'><strong>0.33</strong></td>" +
                                               Cell("-99") + EmptyCell + Cell("caption")));
}

TEST_F(HtmlExport, AChildWithoutItemsIsAnEmptyRowAndOneThatIsNotVisibleIsThere) {
    CXTPReportRecord* const above = AddRecord(); // has no items itself
    above->GetChilds()->Add(new CXTPReportRecord);
    AddChild(*above, new CXTPReportRecordItemText(L"hidden"))->SetVisible(FALSE);
    EXPECT_EQ(Rows(), Row("<td>&nbsp;</td>") + Row("") + Row(Cell("hidden")));
}

TEST_F(HtmlExport, ChildrenOfARecordThatIsNotVisibleAreLeftOut) {
    CXTPReportRecord* const above = AddText(L"above")->GetRecord();
    AddChild(*above, new CXTPReportRecordItemText(L"below"));
    above->SetVisible(FALSE);
    EXPECT_EQ(Rows(), "");
}

// --- Plot cells ------------------------------------------------------------------------------------------------------

/// A folder that is empty at first and gone afterwards.
class Folder {
public:
    explicit Folder(const wchar_t* name) : m_path(fs::temp_directory_path() / name) {
        fs::remove_all(m_path);
        fs::create_directories(m_path);
    }
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    std::wstring operator/(const wchar_t* name) const { return (m_path / name).wstring(); }

    std::vector<std::wstring> Files() const {
        std::vector<std::wstring> names;
        for (const auto& entry : fs::directory_iterator(m_path))
            names.push_back(entry.path().filename().wstring());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    fs::path m_path;
};

std::string Ascii(const std::wstring& text) { return std::string(text.begin(), text.end()); }

std::string ImageCell(const std::string& file) {
    return "   <td style='padding: 0;'> <img src='" + file + "' border='0'/> </td>";
}

/// The bytes of a bitmap file from the 19th on: width and height, 32 bits each.
std::pair<int, int> SizeOf(const std::wstring& file) {
    std::ifstream stream(fs::path(file), std::ios::binary);
    std::int32_t size[2] = {};
    stream.seekg(18);
    stream.read(reinterpret_cast<char*>(size), sizeof(size));
    return {size[0], size[1]};
}

TEST_F(HtmlExport, APlotCellIsAPictureNamedByRecordAndItem) {
    const Folder folder(L"ky export");
    AddText(L"first");
    CXTPReportRecord* const record = AddText(L"second")->GetRecord();
    record->AddItem(new ProbeCell);
    record->AddItem(new CXTPReportRecordItemText(L"behind"));
    const std::wstring prefix = folder / L"plots of today";
    const std::string html = SaveAsHtml(grid, prefix.c_str());
    const std::string file = Ascii(prefix) + "_1_1.bmp";
    EXPECT_EQ(html, "<table>   <tr>   </tr>" + Row(Cell("first")) +
                        Row(Cell("second") + ImageCell(file) + Cell("behind")) + "</table>");
    EXPECT_EQ(folder.Files(), std::vector<std::wstring>{L"plots of today_1_1.bmp"});
    EXPECT_EQ(SizeOf(prefix + L"_1_1.bmp"), std::pair(400, 22));
}

TEST_F(HtmlExport, PlotsAreNumberedByTheirPlaceAmongAllRecords) {
    const Folder folder(L"ky export");
    AddText(L"not visible")->GetRecord()->SetVisible(FALSE);
    AddItem(new ProbeCell);
    SaveAsHtml(grid, (folder / L"p").c_str());
    EXPECT_EQ(folder.Files(), std::vector<std::wstring>{L"p_1_0.bmp"});
}

TEST_F(HtmlExport, APlotTellsABackgroundThatIsNotWhite) {
    const Folder folder(L"ky export");
    AddItem(new ProbeCell)->SetBackgroundColor(RGB(255, 0, 0));
    const std::wstring prefix = folder / L"p";
    EXPECT_EQ(SaveAsHtml(grid, prefix.c_str()),
              "<table>   <tr>   </tr>" +
                  Row("   <td style='padding: 0; background-color: #ff0000;'> <img src='" + Ascii(prefix) +
                      "_0_0.bmp' border='0'/> </td>") +
                  "</table>");
}

TEST_F(HtmlExport, ItemsBehindAPlotKeepTheirOwnSection) {
    const Folder folder(L"ky export");
    CXTPReportRecord* const record = AddItem(new ProbeCell)->GetRecord();
    record->AddItem(new CXTPReportRecordItemNumber(5));
    EXPECT_NE(SaveAsHtml(grid, (folder / L"p").c_str()).find(Cell("5")), std::string::npos);
}

TEST_F(HtmlExport, APathWithOtherLettersIsWrittenInUtf8AndNotEscaped) {
    const Folder folder(L"ky \x00F6\x00DF & 'it'");
    AddItem(new ProbeCell);
    const std::wstring prefix = folder / L"\x4E2D";
    const std::string html = SaveAsHtml(grid, prefix.c_str());
    EXPECT_NE(html.find("ky \xC3\xB6\xC3\x9F & 'it'\\\xE4\xB8\xAD_0_0.bmp' border='0'/>"), std::string::npos) << html;
    EXPECT_EQ(folder.Files(), std::vector<std::wstring>{L"\x4E2D_0_0.bmp"});
}

TEST_F(HtmlExport, AFolderThatDoesNotExistCostsThePictureAndNotThePage) {
    const Folder folder(L"ky export");
    AddItem(new ProbeCell);
    const std::wstring prefix = folder / L"missing\\p";
    EXPECT_EQ(SaveAsHtml(grid, prefix.c_str()),
              "<table>   <tr>   </tr>" + Row(ImageCell(Ascii(prefix) + "_0_0.bmp")) + "</table>");
    EXPECT_TRUE(folder.Files().empty());
}

TEST_F(HtmlExport, AFileThatAnotherProgramHoldsStaysAsItIs) {
    const Folder folder(L"ky export");
    const std::wstring prefix = folder / L"p", file = prefix + L"_0_0.bmp";
    std::ofstream(fs::path(file)) << "kept";
    const HANDLE held =
        ::CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    AddItem(new ProbeCell);
    EXPECT_EQ(SaveAsHtml(grid, prefix.c_str()),
              "<table>   <tr>   </tr>" + Row(ImageCell(Ascii(prefix) + "_0_0.bmp")) + "</table>");
    ::CloseHandle(held);
    EXPECT_EQ(fs::file_size(fs::path(file)), 4U);
}

TEST_F(HtmlExport, AFolderThatTakesNoFilesCostsThePictureAndNotThePage) {
    const Folder folder(L"ky export");
    std::ofstream(fs::path(folder / L"file")) << "kept";
    AddItem(new ProbeCell);
    const std::wstring prefix = folder / L"file\\p"; // what should be the folder is a file
    EXPECT_EQ(SaveAsHtml(grid, prefix.c_str()),
              "<table>   <tr>   </tr>" + Row(ImageCell(Ascii(prefix) + "_0_0.bmp")) + "</table>");
    EXPECT_EQ(folder.Files(), std::vector<std::wstring>{L"file"});
}

TEST_F(HtmlExport, APlotInAChildRowIsItsCaption) {
    AddChild(*AddText(L"above")->GetRecord(), new ProbeCell);
    EXPECT_EQ(Rows(), Row(Cell("above")) + Row(EmptyCell));
}

TEST(HtmlExportOfAWindow, TheGridIsAsItWas) {
    const Folder folder(L"ky export");
    PlotGridHost host;
    ProbeCell* const cell = host.AddRow(new ProbeCell);
    host.AddRow(new ProbeCell);
    host.Show();
    host.grid.GetSelectedRows()->Select(host.grid.GetRows()->GetAt(1));
    const CXTPReportRow* const row = host.grid.GetRows()->GetAt(0);
    const std::string html = SaveAsHtml(host.grid, (folder / L"p").c_str());
    EXPECT_EQ(folder.Files(), (std::vector<std::wstring>{L"p_0_1.bmp", L"p_1_1.bmp"}));
    EXPECT_EQ(SaveAsHtml(host.grid, (folder / L"p").c_str()), html);
    EXPECT_EQ(host.grid.GetRows()->GetAt(0), row);
    EXPECT_TRUE(host.grid.GetSelectedRows()->Contains(1));
    host.Draw();
    EXPECT_EQ(cell->GetItemRect().left, host.CellRect(0).left + 1);
}

TEST_F(HtmlExport, WithoutAPrefixFilesAreNamedByNumbersAlone) {
    const Folder folder(L"ky export");
    const fs::path former = fs::current_path();
    fs::current_path(fs::path(folder / L""));
    AddItem(new ProbeCell);
    EXPECT_EQ(SaveAsHtml(grid, nullptr), "<table>   <tr>   </tr>" + Row(ImageCell("_0_0.bmp")) + "</table>");
    EXPECT_EQ(folder.Files(), std::vector<std::wstring>{L"_0_0.bmp"});
    fs::current_path(former);
}

} // namespace
