// Tests of archives: the bytes they make and the errors they find.
#include <cstring>
#include <limits>
#include <random>

#include <psapi.h>

namespace {

std::vector<int> Stored(const std::function<void(CArchive&)>& write, int bufferSize = 4096) {
    CMemFile file;
    CArchive archive(&file, CArchive::store, bufferSize);
    write(archive);
    archive.Close();
    std::vector<BYTE> bytes(file.GetLength());
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return {bytes.begin(), bytes.end()};
}

/// Reads from the given bytes.
class Loader {
public:
    explicit Loader(const std::vector<int>& bytes, int bufferSize = 4096)
        : m_bytes(bytes.begin(), bytes.end()), m_file(m_bytes.data(), static_cast<UINT>(m_bytes.size())),
          m_archive(&m_file, CArchive::load, bufferSize) {}
    CArchive& operator*() { return m_archive; }
    CArchive* operator->() { return &m_archive; }
    CMemFile& File() { return m_file; }

private:
    std::vector<BYTE> m_bytes;
    CMemFile m_file;
    CArchive m_archive;
};

int CauseOf(const std::function<void()>& action) {
    try {
        action();
    } catch (CArchiveException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return CArchiveException::none;
}

/// The most memory that the process has used so far, in bytes.
SIZE_T PeakMemory() {
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PeakWorkingSetSize;
}

} // namespace

TEST(Archive, NumbersAreStoredInTheirMemoryForm) {
    EXPECT_EQ(Stored([](CArchive& a) { a << BYTE(0xAB); }), (std::vector<int>{0xAB}));
    EXPECT_EQ(Stored([](CArchive& a) { a << WORD(0x1234); }), (std::vector<int>{0x34, 0x12}));
    EXPECT_EQ(Stored([](CArchive& a) { a << 0x01020304; }), (std::vector<int>{4, 3, 2, 1}));
    EXPECT_EQ(Stored([](CArchive& a) { a << DWORD(1) << LONG(-1); }),
              (std::vector<int>{1, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(Stored([](CArchive& a) { a << 1.0; }), (std::vector<int>{0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));
    EXPECT_EQ(Stored([](CArchive& a) { a << 1.0f; }), (std::vector<int>{0, 0, 0x80, 0x3F}));
    EXPECT_EQ(Stored([](CArchive& a) { a << true << false; }), (std::vector<int>{1, 0}));
    EXPECT_EQ(Stored([](CArchive& a) { a << ULONGLONG(0x0102030405060708); }),
              (std::vector<int>{8, 7, 6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(Stored([](CArchive& a) { a << L'\u20AC' << short(-2) << 'c'; }),
              (std::vector<int>{0xAC, 0x20, 0xFE, 0xFF, 'c'}));
}

TEST(Archive, TextsAreStoredWithTheirLengthBehindTheWideMark) {
    EXPECT_EQ(Stored([](CArchive& a) { a << CString(L"H\u00E9"); }),
              (std::vector<int>{0xFF, 0xFE, 0xFF, 2, 'H', 0, 0xE9, 0}));
    EXPECT_EQ(Stored([](CArchive& a) { a << CString(); }), (std::vector<int>{0xFF, 0xFE, 0xFF, 0}));
    const std::vector<int> longText = Stored([](CArchive& a) { a << CString(L'x', 300); });
    EXPECT_EQ(longText.size(), 606u);
    EXPECT_EQ(std::vector<int>(longText.begin(), longText.begin() + 8),
              (std::vector<int>{0xFF, 0xFE, 0xFF, 0xFF, 0x2C, 0x01, 'x', 0}));
}

TEST(Archive, EveryTypeIsReadBackWhateverTheBufferSize) {
    for (const int bufferSize : {1, 128, 129, 131, 4096}) {
        CMemFile file;
        const CString longText(L'q', 70000);
        {
            CArchive archive(&file, CArchive::store, bufferSize);
            for (int i = 0; i < 50; ++i)
                archive << BYTE(i) << WORD(i) << DWORD(i) << LONG(-i) << i << float(i) << double(i) << LONGLONG(-i)
                        << ULONGLONG(i) << short(-i) << char('a') << L'w' << unsigned(i) << (i % 2 == 0)
                        << CString(L"text");
            archive << longText << CRect(1, 2, 3, 4) << CPoint(5, 6) << CSize(7, 8);
        }
        file.SeekToBegin();
        CArchive archive(&file, CArchive::load, bufferSize);
        for (int i = 0; i < 50; ++i) {
            BYTE byte;
            WORD word;
            DWORD doubleWord;
            LONG longNumber;
            int number;
            float single;
            double real;
            LONGLONG big;
            ULONGLONG unsignedBig;
            short small;
            char character;
            wchar_t wide;
            unsigned positive;
            bool even;
            CString text;
            archive >> byte >> word >> doubleWord >> longNumber >> number >> single >> real >> big >> unsignedBig >>
                small >> character >> wide >> positive >> even >> text;
            EXPECT_EQ(byte, i);
            EXPECT_EQ(word, i);
            EXPECT_EQ(doubleWord, static_cast<DWORD>(i));
            EXPECT_EQ(longNumber, -i);
            EXPECT_EQ(number, i);
            EXPECT_EQ(single, static_cast<float>(i));
            EXPECT_EQ(real, i);
            EXPECT_EQ(big, -i);
            EXPECT_EQ(unsignedBig, static_cast<ULONGLONG>(i));
            EXPECT_EQ(small, -i);
            EXPECT_EQ(character, 'a');
            EXPECT_EQ(wide, L'w');
            EXPECT_EQ(positive, static_cast<unsigned>(i));
            EXPECT_EQ(even, i % 2 == 0);
            EXPECT_EQ(text, L"text");
        }
        CString text;
        CRect rect;
        CPoint point;
        CSize size;
        archive >> text >> rect >> point >> size;
        EXPECT_EQ(text, longText);
        EXPECT_EQ(rect, CRect(1, 2, 3, 4));
        EXPECT_EQ(point, CPoint(5, 6));
        EXPECT_EQ(size, CSize(7, 8));
        EXPECT_TRUE(archive.IsBufferEmpty());
    }
}

TEST(Archive, EightBitTextsOfOtherProgramsAreRead) {
    Loader loader({3, 'a', 'b', 'c'});
    CString text;
    *loader >> text;
    EXPECT_EQ(text, L"abc");
}

TEST(Archive, DataThatEndsInsideAValueThrowsEndOfFile) {
    EXPECT_EQ(CauseOf([] {
                  Loader loader({1, 2});
                  int value = 0;
                  *loader >> value;
              }),
              CArchiveException::endOfFile);
    EXPECT_EQ(CauseOf([] {
                  Loader loader({0xFF, 0xFE, 0xFF, 3, 'a', 0});
                  CString value;
                  *loader >> value;
              }),
              CArchiveException::endOfFile);
}

TEST(Archive, AFailedReadLeavesTheValueAlone) {
    Loader loader({1, 2});
    int value = 42;
    EXPECT_EQ(CauseOf([&] { *loader >> value; }), CArchiveException::endOfFile);
    EXPECT_EQ(value, 42);
}

TEST(Archive, ABrokenLengthCostsNoMemory) {
    // 0x7FFFFFFF wide characters are said to follow, four gigabytes.
    Loader loader({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 'a', 0});
    CString text(L"before");
    const SIZE_T peakBefore = PeakMemory();
    ASSERT_GT(peakBefore, 0u);
    EXPECT_EQ(CauseOf([&] { *loader >> text; }), CArchiveException::endOfFile);
    EXPECT_EQ(text, L"before");
    EXPECT_LT(PeakMemory() - peakBefore, SIZE_T(16) << 20);
}

TEST(Archive, ALengthBeyondAllTextsIsBadData) {
    const auto causeOfReading = [](const std::vector<int>& bytes) {
        return CauseOf([&] {
            Loader loader(bytes);
            CString text;
            *loader >> text;
        });
    };
    EXPECT_EQ(causeOfReading({0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF}), CArchiveException::badIndex);
    EXPECT_EQ(causeOfReading({0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF, 1}), CArchiveException::badIndex);
}

TEST(Archive, RandomBytesAreReadOrRefused) {
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 2000; ++round) {
        std::vector<int> bytes(random() % 40);
        for (int& byte : bytes)
            byte = random() % 2 ? 0xFE + static_cast<int>(random() % 2) : static_cast<int>(random() % 256);
        Loader loader(bytes);
        const int cause = CauseOf([&] {
            for (;;) {
                CString text;
                *loader >> text;
            }
        });
        EXPECT_TRUE(cause == CArchiveException::endOfFile || cause == CArchiveException::badIndex);
        refused += cause == CArchiveException::badIndex;
    }
    EXPECT_GT(refused, 0);
}

TEST(Archive, TheWrongDirectionIsRefused) {
    Loader loader({1, 2, 3, 4});
    EXPECT_TRUE(loader->IsLoading());
    EXPECT_FALSE(loader->IsStoring());
    EXPECT_EQ(CauseOf([&] { *loader << 1; }), CArchiveException::readOnly);

    CMemFile file;
    CArchive storing(&file, CArchive::store);
    EXPECT_TRUE(storing.IsStoring());
    int value = 0;
    EXPECT_EQ(CauseOf([&] { storing >> value; }), CArchiveException::writeOnly);
}

TEST(Archive, ReadGivesFewerBytesAtTheEndWhereEnsureReadThrows) {
    Loader loader({1, 2, 3, 4, 5});
    BYTE bytes[4];
    EXPECT_EQ(loader->Read(bytes, 4), 4u);
    EXPECT_EQ(CauseOf([&] { loader->EnsureRead(bytes, 4); }), CArchiveException::endOfFile);
    EXPECT_EQ(loader->Read(bytes, 4), 0u);
}

TEST(Archive, ClosingStoresWhatIsBuffered) {
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    archive << 1;
    EXPECT_EQ(file.GetLength(), 0u);
    archive.Close();
    EXPECT_EQ(file.GetLength(), 4u);
    EXPECT_EQ(archive.GetFile(), nullptr);
    EXPECT_EQ(CauseOf([&] { archive << 2; }), CArchiveException::genericException);
}

TEST(Archive, FlushingStoresWhatIsBuffered) {
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    archive << 1;
    archive.Flush();
    EXPECT_EQ(file.GetLength(), 4u);
    archive << 2;
    archive.Close();
    EXPECT_EQ(file.GetLength(), 8u);
}

TEST(Archive, FlushingALoadingArchiveGivesUnreadBytesBackToTheFile) {
    Loader loader({1, 0, 0, 0, 2, 0, 0, 0});
    int value = 0;
    *loader >> value;
    EXPECT_EQ(loader.File().GetPosition(), 8u);
    loader->Flush();
    EXPECT_EQ(loader.File().GetPosition(), 4u);
    *loader >> value;
    EXPECT_EQ(value, 2);
}

TEST(Archive, DestructionFlushesUnlessToldNotTo) {
    CMemFile file;
    { CArchive(&file, CArchive::store) << 1; }
    EXPECT_EQ(file.GetLength(), 4u);
    { CArchive(&file, CArchive::store | CArchive::bNoFlushOnDelete) << 2; }
    EXPECT_EQ(file.GetLength(), 4u);
}

TEST(Archive, DestructionSwallowsErrors) {
    BYTE tooSmall[2];
    CMemFile file(tooSmall, sizeof(tooSmall));
    { CArchive(&file, CArchive::store) << 1; }
    EXPECT_EQ(file.GetLength(), 2u);
}

TEST(Archive, AbortLosesWhatIsBuffered) {
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    archive << 1;
    archive.Abort();
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST(Archive, UsesTheCallersBuffer) {
    BYTE buffer[256] = {};
    CMemFile file;
    CArchive archive(&file, CArchive::store, sizeof(buffer), buffer);
    archive << 0x11223344;
    EXPECT_EQ(buffer[0], 0x44);
    archive.Close();
    EXPECT_EQ(file.GetLength(), 4u);
}

TEST(Archive, LargeBlocksPassTheBufferInOrder) {
    const std::vector<BYTE> block(1000, 7);
    const std::vector<int> bytes = Stored(
        [&](CArchive& a) {
            a << BYTE(1);
            a.Write(block.data(), 1000);
            a << BYTE(2);
        },
        128);
    ASSERT_EQ(bytes.size(), 1002u);
    EXPECT_EQ(bytes[0], 1);
    EXPECT_EQ(bytes[1], 7);
    EXPECT_EQ(bytes[1000], 7);
    EXPECT_EQ(bytes[1001], 2);

    Loader loader(bytes, 128);
    BYTE first = 0;
    BYTE last = 0;
    std::vector<BYTE> read(1000);
    *loader >> first;
    EXPECT_EQ(loader->Read(read.data(), 1000), 1000u);
    *loader >> last;
    EXPECT_EQ(read, block);
    EXPECT_EQ(last, 2);
}

TEST(Archive, LinesAreWrittenAndReadWithoutTheirEnds) {
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive.WriteString(L"first\r\nsecond\n\nlast");
    }
    EXPECT_EQ(file.GetLength(), 19u * sizeof(wchar_t));
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    CString line;
    EXPECT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, L"first");
    EXPECT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, L"second");
    EXPECT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, L"");
    EXPECT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, L"last");
    EXPECT_FALSE(archive.ReadString(line));
}

TEST(Archive, LongLinesAreReadWholeOrInPieces) {
    for (const int length : {126, 127, 128, 300}) {
        CMemFile file;
        {
            CArchive archive(&file, CArchive::store);
            archive.WriteString(CString(L'x', length) + L"\ny");
        }
        file.SeekToBegin();
        CArchive archive(&file, CArchive::load);
        CString line;
        EXPECT_TRUE(archive.ReadString(line));
        EXPECT_EQ(line.GetLength(), length);
        EXPECT_TRUE(archive.ReadString(line));
        EXPECT_EQ(line, L"y") << length;
    }
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive.WriteString(L"abcdef\n");
    }
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    wchar_t piece[4];
    EXPECT_STREQ(archive.ReadString(piece, 4), L"abc");
    EXPECT_STREQ(archive.ReadString(piece, 4), L"def");
}

TEST(Archive, CountsGrowWithTheirSize) {
    EXPECT_EQ(Stored([](CArchive& a) { a.WriteCount(0xFFFE); }), (std::vector<int>{0xFE, 0xFF}));
    EXPECT_EQ(Stored([](CArchive& a) { a.WriteCount(0x10000); }), (std::vector<int>{0xFF, 0xFF, 0, 0, 1, 0}));
    for (const DWORD_PTR count :
         {DWORD_PTR(0), DWORD_PTR(0xFFFE), DWORD_PTR(0xFFFF), DWORD_PTR(0xFFFFFFFF), DWORD_PTR(0x123456789A)}) {
        Loader loader(Stored([=](CArchive& a) { a.WriteCount(count); }));
        EXPECT_EQ(loader->ReadCount(), count);
    }
}

TEST(Archive, ExceptionsNameTheFileOfTheArchive) {
    CMemFile file;
    file.SetFilePath(L"C:\\state.bin");
    CArchive archive(&file, CArchive::load);
    try {
        int value;
        archive >> value;
        FAIL() << "nothing was thrown";
    } catch (CArchiveException* exception) {
        EXPECT_EQ(exception->m_strFileName, L"C:\\state.bin");
        exception->Delete();
    }
}
