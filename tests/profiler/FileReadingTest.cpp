// Reading on a thread of its own.
#include "window/FileReading.h"
#include "window/WideText.h"

#include <gtest/gtest.h>

#include <fstream>
#include <future>

namespace {

class FileReadingTest : public ::testing::Test {
protected:
    void TearDown() override { std::filesystem::remove(m_path); }

    /// Reads `bytes` as a file; returns when they are read.
    void Read(const std::string& bytes) {
        std::ofstream(m_path, std::ios::binary) << bytes;
        std::promise<void> done;
        m_reading = std::make_unique<FileReading>(m_path, "Spalte %1%", [&] { done.set_value(); });
        done.get_future().wait();
    }

    const std::filesystem::path m_path = std::filesystem::temp_directory_path() / "reading_test.csv";
    std::unique_ptr<FileReading> m_reading;
};

TEST_F(FileReadingTest, GivesTheFileWithItsProfiles) {
    Read("a,\n1,x\n2,y\n4,y\n");
    EXPECT_TRUE(m_reading->IsDone());
    const ColumnFileResult result = m_reading->TakeResult();
    ASSERT_NE(result.file, nullptr);
    EXPECT_FALSE(result.error.has_value());
    EXPECT_EQ(result.file->path, m_path);
    EXPECT_EQ(result.file->table.rows, 3u);
    ASSERT_EQ(result.file->profiles.size(), 2u);
    EXPECT_EQ(result.file->profiles[0].numbers.median, 2);
    EXPECT_EQ(result.file->profiles[1].name, "Spalte 2");
    EXPECT_EQ(result.file->profiles[1].distinct, 2u);
}

TEST_F(FileReadingTest, KnowsHowFarItCame) {
    std::string bytes = "a,b,c,d,e\n";
    for (int i = 0; i < 50'000; ++i)
        bytes += "1,2,3,4,5\n";
    Read(bytes);
    EXPECT_EQ(m_reading->State().rows, 50'000u);
    EXPECT_DOUBLE_EQ(m_reading->State().fraction, 0.95); // four of five columns were done when it was told last
}

TEST_F(FileReadingTest, GivesAnErrorInsteadOfAFile) {
    Read("");
    const ColumnFileResult result = m_reading->TakeResult();
    EXPECT_EQ(result.file, nullptr);
    ASSERT_TRUE(result.error.has_value());
    EXPECT_EQ(csv::Text(*result.error),
              "reading_test.csv, line 1: the file is empty. Its first line must name the columns.");
}

TEST_F(FileReadingTest, WhatReadingThrowsComesWithTheResult) {
    std::promise<void> done;
    // Half a character cannot be written in a sentence about the file.
    m_reading = std::make_unique<FileReading>(L"\xD800.csv", "Column %1%", [&] { done.set_value(); });
    done.get_future().wait();
    EXPECT_THROW(m_reading->TakeResult(), std::exception);
}

TEST_F(FileReadingTest, ProgressCanGiveUpAtAnyPoint) {
    std::ofstream(m_path, std::ios::binary) << "a,b\n1,2\n3,4\n";
    int whole = 0;
    const auto read = [&](int patience) {
        int calls = 0;
        ColumnFileResult result =
            ReadColumnFile(m_path, "Column %1%", [&](const csv::ReadState&) { return ++calls <= patience; });
        whole = calls;
        return result;
    };
    ASSERT_NE(read(1'000'000).file, nullptr);
    const int all = whole;
    ASSERT_GE(all, 4); // the file's beginning, the file, two columns
    for (int patience = 0; patience < all; ++patience) {
        const ColumnFileResult result = read(patience);
        EXPECT_EQ(result.file, nullptr);
        EXPECT_FALSE(result.error.has_value());
    }
}

TEST(CountText, GroupsDigitsInThrees) {
    wchar_t separator[8] = L"";
    ::GetLocaleInfo(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, 8);
    const CString s(separator);
    EXPECT_STREQ(CountText(0), L"0");
    EXPECT_STREQ(CountText(999), L"999");
    EXPECT_STREQ(CountText(1000), CString(L"1") + s + L"000");
    EXPECT_STREQ(CountText(123456), CString(L"123") + s + L"456");
    EXPECT_STREQ(CountText(1234567), CString(L"1") + s + L"234" + s + L"567");
}

} // namespace
