// Tests of files.

namespace {

/// A folder of its own for each test, removed with its files afterwards.
class File : public testing::Test {
protected:
    void SetUp() override {
        wchar_t temporary[MAX_PATH];
        GetTempPath(MAX_PATH, temporary);
        m_folder.Format(L"%sframework_tests_%u", temporary, GetCurrentProcessId());
        CreateDirectory(m_folder, nullptr);
    }

    void TearDown() override {
        for (const wchar_t* name : {L"a.bin", L"b.bin"})
            DeleteFile(Path(name));
        RemoveDirectory(m_folder);
    }

    CString Path(LPCTSTR name) const { return m_folder + L"\\" + name; }

    void WriteFile(LPCTSTR name, const std::string& content) const {
        CFile file(Path(name), CFile::modeCreate | CFile::modeWrite);
        file.Write(content.data(), static_cast<UINT>(content.size()));
    }

    std::string Content(LPCTSTR name) const {
        CFile file(Path(name), CFile::modeRead);
        std::string content(file.GetLength(), '\0');
        content.resize(file.Read(content.data(), static_cast<UINT>(content.size())));
        return content;
    }

    CString m_folder;
};

int CauseOf(const std::function<void()>& action) {
    try {
        action();
    } catch (CFileException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return CFileException::none;
}

} // namespace

TEST_F(File, WhatIsWrittenIsReadBack) {
    WriteFile(L"a.bin", "some bytes");
    EXPECT_EQ(Content(L"a.bin"), "some bytes");
}

TEST_F(File, ReadGivesFewerBytesAtTheEndOnly) {
    WriteFile(L"a.bin", "12345");
    CFile file(Path(L"a.bin"), CFile::modeRead);
    char buffer[4];
    EXPECT_EQ(file.Read(buffer, 4), 4u);
    EXPECT_EQ(file.Read(buffer, 4), 1u);
    EXPECT_EQ(buffer[0], '5');
    EXPECT_EQ(file.Read(buffer, 4), 0u);
}

TEST_F(File, CreatingEmptiesAnExistingFileUnlessToldNotTo) {
    WriteFile(L"a.bin", "long content");
    {
        CFile file(Path(L"a.bin"), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
        file.Write("LONG", 4);
    }
    EXPECT_EQ(Content(L"a.bin"), "LONG content");
    WriteFile(L"a.bin", "x");
    EXPECT_EQ(Content(L"a.bin"), "x");
}

TEST_F(File, SeeksFromBeginCurrentAndEnd) {
    WriteFile(L"a.bin", "0123456789");
    CFile file(Path(L"a.bin"), CFile::modeReadWrite);
    EXPECT_EQ(file.Seek(3, CFile::begin), 3);
    EXPECT_EQ(file.Seek(2, CFile::current), 5);
    EXPECT_EQ(file.Seek(-1, CFile::end), 9);
    EXPECT_EQ(file.GetPosition(), 9u);
    EXPECT_EQ(file.SeekToEnd(), 10u);
    file.SeekToBegin();
    EXPECT_EQ(file.GetPosition(), 0u);
    EXPECT_EQ(CauseOf([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
}

TEST_F(File, LengthIsSet) {
    WriteFile(L"a.bin", "0123456789");
    {
        CFile file(Path(L"a.bin"), CFile::modeReadWrite);
        file.SetLength(4);
        EXPECT_EQ(file.GetLength(), 4u);
    }
    EXPECT_EQ(Content(L"a.bin"), "0123");
}

TEST_F(File, OpeningAMissingFileTellsWhy) {
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(Path(L"absent.bin"), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_lOsError, ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(error.m_strFileName, Path(L"absent.bin"));
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_FALSE(file.Open(Path(L"no\\such\\folder.bin"), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::badPath);
    EXPECT_FALSE(file.Open(Path(L"absent.bin"), CFile::modeRead));
}

TEST_F(File, TheOpeningConstructorThrows) {
    EXPECT_EQ(CauseOf([&] { CFile file(Path(L"absent.bin"), CFile::modeRead); }), CFileException::fileNotFound);
}

TEST_F(File, WithoutSharingASecondOpenFails) {
    WriteFile(L"a.bin", "x");
    CFile first(Path(L"a.bin"), CFile::modeReadWrite | CFile::shareExclusive);
    CFile second;
    CFileException error;
    EXPECT_FALSE(second.Open(Path(L"a.bin"), CFile::modeRead | CFile::shareDenyNone, &error));
    EXPECT_EQ(error.m_cause, CFileException::sharingViolation);
    first.Close();
    EXPECT_TRUE(second.Open(Path(L"a.bin"), CFile::modeRead | CFile::shareDenyNone));
}

TEST_F(File, DenyWriteLetsOthersRead) {
    WriteFile(L"a.bin", "x");
    CFile first(Path(L"a.bin"), CFile::modeRead | CFile::shareDenyWrite);
    CFile second;
    EXPECT_TRUE(second.Open(Path(L"a.bin"), CFile::modeRead | CFile::shareDenyNone));
    second.Close();
    EXPECT_FALSE(second.Open(Path(L"a.bin"), CFile::modeReadWrite | CFile::shareDenyNone));
}

TEST_F(File, WritingToAFileOpenForReadingThrows) {
    WriteFile(L"a.bin", "x");
    CFile file(Path(L"a.bin"), CFile::modeRead);
    EXPECT_EQ(CauseOf([&] { file.Write("y", 1); }), CFileException::accessDenied);
}

TEST_F(File, KnowsItsNames) {
    WriteFile(L"a.bin", "x");
    CFile file(Path(L"a.bin"), CFile::modeRead);
    EXPECT_EQ(file.GetFilePath(), Path(L"a.bin"));
    EXPECT_EQ(file.GetFileName(), L"a.bin");
    EXPECT_EQ(file.GetFileTitle(), L"a");
}

TEST_F(File, RenamesRemovesAndTellsTheStatus) {
    WriteFile(L"a.bin", "12345");
    CFile::Rename(Path(L"a.bin"), Path(L"b.bin"));
    CFileStatus status;
    EXPECT_FALSE(CFile::GetStatus(Path(L"a.bin"), status));
    ASSERT_TRUE(CFile::GetStatus(Path(L"b.bin"), status));
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_EQ(status.m_szFullName, Path(L"b.bin"));
    CFile::Remove(Path(L"b.bin"));
    EXPECT_EQ(CauseOf([&] { CFile::Remove(Path(L"b.bin")); }), CFileException::fileNotFound);
    EXPECT_EQ(CauseOf([&] { CFile::Rename(Path(L"b.bin"), Path(L"a.bin")); }), CFileException::fileNotFound);
}

TEST_F(File, ClosesItsHandleWhenItDies) {
    WriteFile(L"a.bin", "x");
    { CFile file(Path(L"a.bin"), CFile::modeReadWrite | CFile::shareExclusive); }
    EXPECT_TRUE(DeleteFile(Path(L"a.bin")));
}

TEST_F(File, AClosedFileMayBeClosedAgain) {
    WriteFile(L"a.bin", "x");
    CFile file(Path(L"a.bin"), CFile::modeRead);
    file.Close();
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    file.Close();
    EXPECT_EQ(file.GetFilePath(), L"");
}
