// Opening files and the reasons why that fails.
#include "csv/ByteSource.h"
#include "csv/TableReader.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

/// A folder that is removed with all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
        m_path = fs::temp_directory_path() / ("profiler-test-" + std::to_string(now));
        fs::create_directories(m_path);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    fs::path Write(const fs::path& name, const std::string& bytes) const {
        std::ofstream(m_path / name, std::ios::binary) << bytes;
        return m_path / name;
    }

    const fs::path& Path() const { return m_path; }

private:
    fs::path m_path;
};

std::string TheError(const csv::ReadResult& result) {
    EXPECT_EQ(result.outcome, csv::ReadResult::Outcome::Failed);
    EXPECT_TRUE(result.table.columns.empty());
    if (result.messages.size() != 1)
        return "not one message";
    EXPECT_EQ(result.messages[0].severity, csv::Severity::Error);
    return Text(result.messages[0]);
}

TEST(FileSource, ReadsAFileFromFrontToEndAndAgain) {
    const TemporaryFolder folder;
    const std::string bytes("a,b\r\n1\x1A,2\r\n\0x", 14); // no byte ends a file early
    const csv::FileSource::OpenResult opened = csv::FileSource::Open(folder.Write("f.csv", bytes));
    ASSERT_NE(opened.source, nullptr);
    EXPECT_EQ(opened.source->Size(), bytes.size());
    for (int round = 0; round < 2; ++round) {
        std::string read;
        char buffer[5];
        for (;;) {
            const std::optional<std::size_t> count = opened.source->Read(buffer, sizeof buffer);
            ASSERT_TRUE(count.has_value());
            if (*count == 0)
                break;
            read.append(buffer, *count);
        }
        EXPECT_EQ(read, bytes);
        EXPECT_TRUE(opened.source->Rewind());
    }
}

TEST(FileSource, AFileThatIsNotThereIsTold) {
    const TemporaryFolder folder;
    const fs::path path = folder.Path() / "missing.csv";
    EXPECT_EQ(TheError(csv::ReadFile(path)), csv::PathText(path) + " cannot be found. Check its name and its folder.");
}

TEST(FileSource, AFolderIsTold) {
    const TemporaryFolder folder;
    EXPECT_EQ(TheError(csv::ReadFile(folder.Path())),
              csv::PathText(folder.Path()) + " is a folder. Choose a CSV file in it.");
}

#ifndef _WIN32
TEST(FileSource, AFileThatCannotBeOpenedIsTold) {
    const TemporaryFolder folder;
    const fs::path path = folder.Path() / "loop.csv";
    fs::create_symlink(path, path);
    EXPECT_EQ(TheError(csv::ReadFile(path)), csv::PathText(path) + " cannot be opened. Check that it is an ordinary "
                                                                   "file and can be reached.");
}

TEST(FileSource, AReadErrorIsTold) {
    // The first page of a process is never mapped.
    EXPECT_EQ(TheError(csv::ReadFile("/proc/self/mem")),
              "mem, line 1: the file cannot be read. Check the disk or the connection.");
}
#endif

TEST(FileSource, NamesOutsideOfTheSystemsCodePageWork) {
    const TemporaryFolder folder;
    const fs::path path = folder.Write(u8"M\u00E4rz \u2603.csv", "a\n1\nx\n2\n");
    const csv::ReadResult result = csv::ReadFile(path);
    EXPECT_EQ(result.outcome, csv::ReadResult::Outcome::Read);
    ASSERT_EQ(result.messages.size(), 1u);
    EXPECT_EQ(Text(result.messages[0]),
              "M\u00E4rz \u2603.csv, line 3, column \"a\": \"x\" is not a number. It counts as missing.");
}

} // namespace
