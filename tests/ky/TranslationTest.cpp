// Texts in the language chosen, and the number parser on framework strings.
#include <common/KyMessages.h>
#include <common/ParseDouble.h>
#include <common/Translation.h>
#include <plotcells/KyBarChartRecordItem.h>
#include <plotcells/KyHistogramRecordItem.h>
#include <reportgrid/KyReportControl.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Message {
    std::string id; ///< with its context in front, separated by '\4'
    std::string translation;
};

/// A compiled catalogue of these messages, which must be in the order of their ids.
std::string CompiledCatalogue(const std::vector<Message>& messages) {
    const auto count = static_cast<std::uint32_t>(messages.size());
    std::string head, texts;
    const auto put = [](std::string& to, std::uint32_t number) {
        for (int i = 0; i < 4; ++i)
            to += static_cast<char>(number >> (8 * i));
    };
    const std::uint32_t textStart = 28 + 16 * count;
    for (const std::uint32_t number : {0x950412DEu, 0u, count, 28u, 28u + 8 * count, 0u, textStart})
        put(head, number);
    for (const bool translations : {false, true}) {
        for (const Message& message : messages) {
            const std::string& text = translations ? message.translation : message.id;
            put(head, static_cast<std::uint32_t>(text.size()));
            put(head, textStart + static_cast<std::uint32_t>(texts.size()));
            texts += text + '\0';
        }
    }
    return head + texts;
}

/// Catalogues in a folder of their own; English again afterwards.
class TranslationTest : public ::testing::Test {
protected:
    TranslationTest() : folder(fs::temp_directory_path() / L"ky catalogues \u00e4\u03b1") { fs::remove_all(folder); }
    ~TranslationTest() override {
        SetLanguage(nullptr, nullptr);
        fs::remove_all(folder);
    }

    void Write(const wchar_t* language, const std::string& content) {
        const fs::path path = folder / language / L"LC_MESSAGES" / L"kycontrols.mo";
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
    }
    void Write(const wchar_t* language, const std::vector<Message>& messages) {
        std::vector<Message> all = {{"", "Content-Type: text/plain; charset=UTF-8\n"}};
        all.insert(all.end(), messages.begin(), messages.end());
        Write(language, CompiledCatalogue(all));
    }

    fs::path folder;
};

const std::string ValueId = "Plot value\4Value: %1%.";

} // namespace

TEST_F(TranslationTest, WithoutACatalogueTextsAreEnglish) {
    EXPECT_EQ(Translate("Restore default layout"), CString(L"Restore default layout"));
    EXPECT_EQ(Translate("Plot value", "Value: %1%."), CString(L"Value: %1%."));
    EXPECT_EQ(TranslateFormat("Plot value", "Value: %1%.", 2.5), CString(L"Value: 2.5."));
}

TEST_F(TranslationTest, ACatalogueIsFoundByLanguage) {
    Write(L"de", {{"Hello", "Gr\xC3\xBC\xC3\x9F Gott"}, {ValueId, "Wert: %1%."}});
    ASSERT_TRUE(SetLanguage(L"de", folder.c_str()));
    EXPECT_EQ(Translate("Hello"), CString(L"Gr\u00fc\u00df Gott"));
    EXPECT_EQ(TranslateFormat("Plot value", "Value: %1%.", 2.5), CString(L"Wert: 2.5."));
    EXPECT_EQ(Translate("Not in the catalogue"), CString(L"Not in the catalogue"));
    ASSERT_TRUE(SetLanguage(L"de_AT.UTF-8", folder.c_str())); // the language's own when the country has none
    EXPECT_EQ(Translate("Hello"), CString(L"Gr\u00fc\u00df Gott"));
}

TEST_F(TranslationTest, WhatIsNotAsciiStaysWithoutATranslation) {
    EXPECT_EQ(Translate("Mean ± deviation …"), CString(L"Mean \u00b1 deviation \u2026"));
    Write(L"de", {{"Hello", "Hallo"}});
    ASSERT_TRUE(SetLanguage(L"de", folder.c_str()));
    EXPECT_EQ(Translate("Plot", "Mean ± deviation …"), CString(L"Mean \u00b1 deviation \u2026"));
}

TEST_F(TranslationTest, TheContextIsPartOfTheText) {
    Write(L"de", {{ValueId, "Wert: %1%."}});
    ASSERT_TRUE(SetLanguage(L"de", folder.c_str()));
    EXPECT_EQ(Translate("Value: %1%."), CString(L"Value: %1%."));
    EXPECT_EQ(Translate("Histogram bin", "Value: %1%."), CString(L"Value: %1%."));
}

TEST_F(TranslationTest, ABrokenTranslationFallsBackToEnglish) {
    Write(L"de", {{ValueId, "Wert: %1% von %2%."}});
    ASSERT_TRUE(SetLanguage(L"de", folder.c_str()));
    EXPECT_EQ(TranslateFormat("Plot value", "Value: %1%.", 2.5), CString(L"Value: 2.5."));
}

TEST_F(TranslationTest, AMissingOrBrokenCatalogueIsNone) {
    EXPECT_FALSE(SetLanguage(L"de", folder.c_str()));
    EXPECT_FALSE(SetLanguage(L"de", nullptr));
    Write(L"de", "this is no catalogue at all, only some text that is long enough");
    EXPECT_FALSE(SetLanguage(L"de", folder.c_str()));
    const std::string whole = CompiledCatalogue({{"", "Content-Type: text/plain; charset=UTF-8\n"}, {"a", "b"}});
    for (std::size_t size = 1; size + 1 < whole.size(); ++size) {
        Write(L"de", whole.substr(0, size));
        SetLanguage(L"de", folder.c_str());
        EXPECT_FALSE(Translate("a").IsEmpty()) << size;
    }
    EXPECT_EQ(Translate("Hello"), CString(L"Hello"));
}

TEST_F(TranslationTest, TheLastChoiceHolds) {
    Write(L"de", {{"Hello", "Hallo"}});
    Write(L"fr", {{"Hello", "Bonjour"}});
    ASSERT_TRUE(SetLanguage(L"de", folder.c_str()));
    ASSERT_TRUE(SetLanguage(L"fr", folder.c_str()));
    EXPECT_EQ(Translate("Hello"), CString(L"Bonjour"));
    ASSERT_TRUE(SetLanguage(L"", folder.c_str()));
    EXPECT_EQ(Translate("Hello"), CString(L"Hello"));
}

TEST_F(TranslationTest, TheBarChartsTipSpeaksTheLanguage) {
    Write(L"de", {{ValueId, "Wert: %1%."}});
    ASSERT_TRUE(SetLanguage(L"de", folder.c_str()));
    KyBarChartRecordItem bar;
    bar.SetError(5, 0, 10, 3, 7, -99, -99, -99, -99);
    CXTPReportControl control;
    void* const block = bar.CreateDIB(control, 402, 22); // the drawing tells the cell where it is
    ::GlobalFree(block);
    bar.OnMouseMove(0, CPoint(201, 10), &control);
    EXPECT_EQ(bar.GetInfoTip(), CString(L"Wert: 5."));
}

TEST_F(TranslationTest, TheShippedGermanCatalogueHasTheLibrarysTexts) {
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    const fs::path catalogues = fs::path(program).parent_path() / L"locale";
    ASSERT_TRUE(SetLanguage(L"de", catalogues.c_str()));
    EXPECT_EQ(TranslateFormat("Plot value", "Value: %1%.", 2.5), CString(L"Wert: 2.5."));
    EXPECT_EQ(Translate("Restore default layout"), CString(L"Standardlayout wiederherstellen"));
    // The tip of a histogram is put together from two texts.
    CXTPReportControl control;
    KyHistogramRecordItem histogram;
    std::vector<double> bins = {7, 8};
    histogram.SetError(5, 0, 10, bins, 0, 10);
    ::GlobalFree(histogram.CreateDIB(control, 402, 22));
    histogram.OnMouseMove(0, CPoint(201, 10), &control);
    EXPECT_EQ(histogram.GetInfoTip(), CString(L"Wert: 5, Anzahl: 7."));
}

TEST_F(TranslationTest, TheGridTellsItsOwnTextsInTheLanguage) {
    KyReportControl grid;
    const CXTPReportControl plain;
    auto* const column = new CXTPReportColumn(0, _T("Art"), 50);
    grid.AddColumn(column);
    EXPECT_EQ(grid.GetGroupCaption(column, _T("100 %1%"), 3), CString(L"Art: 100 %1% (3)"));
    EXPECT_EQ(grid.GetGroupCaption(column, _T(""), 1), CString(L"Art: (none) (1)"));
    for (const XTPReportText text :
         {xtpReportTextSort, xtpReportTextJump, xtpReportTextEdit, xtpReportTextOpen, xtpReportTextExpand,
          xtpReportTextCollapse, xtpReportTextNoValue, xtpReportTextFilterCue})
        EXPECT_EQ(grid.GetText(text), plain.GetText(text));
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    const fs::path catalogues = fs::path(program).parent_path() / L"locale";
    ASSERT_TRUE(SetLanguage(L"de", catalogues.c_str()));
    EXPECT_EQ(grid.GetGroupCaption(column, _T(""), 1), CString(L"Art: (ohne) (1)"));
    EXPECT_EQ(grid.GetText(xtpReportTextExpand), CString(L"Aufklappen"));
}

TEST(ParseDouble, ReadsFrameworkStrings) {
    double value = 1.0;
    EXPECT_TRUE(ParseDouble(CString(L" 2,5 "), value));
    EXPECT_EQ(value, 2.5);
    EXPECT_FALSE(ParseDouble(CString(L"2,5 m"), value));
    EXPECT_EQ(value, 2.5);
    EXPECT_FALSE(ParseDouble(CString(L"  "), value));
    EXPECT_EQ(value, -99.0);
}

TEST(Messages, HaveTheirNumbers) { EXPECT_EQ(WM_KYTHEMECHANGED, 0x08B1u); }
