// Tests of files in memory.

namespace {

/// Tells the size of the block, which is otherwise the file's own affair.
class MemFileProbe : public CMemFile {
public:
    using CMemFile::CMemFile;
    SIZE_T BufferSize() const { return m_nBufferSize; }
};

} // namespace

TEST(MemFile, WhatIsWrittenIsReadBack) {
    CMemFile file;
    file.Write("memory", 6);
    EXPECT_EQ(file.GetLength(), 6u);
    EXPECT_EQ(file.GetPosition(), 6u);
    file.SeekToBegin();
    char buffer[16] = {};
    EXPECT_EQ(file.Read(buffer, 16), 6u);
    EXPECT_STREQ(buffer, "memory");
    EXPECT_EQ(file.Read(buffer, 16), 0u);
}

TEST(MemFile, GrowsByMultiplesOfItsStep) {
    MemFileProbe file(10);
    EXPECT_EQ(file.BufferSize(), 0u);
    file.Write("x", 1);
    EXPECT_EQ(file.BufferSize(), 10u);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.BufferSize(), 20u);
    file.SetLength(35);
    EXPECT_EQ(file.BufferSize(), 40u);
    EXPECT_EQ(file.GetLength(), 35u);
}

TEST(MemFile, DetachHandsTheBlockToTheCaller) {
    CMemFile file(1024);
    EXPECT_EQ(file.Detach(), nullptr);
    file.Write("kept", 5);
    BYTE* block = file.Detach();
    EXPECT_STREQ(reinterpret_cast<char*>(block), "kept");
    EXPECT_EQ(file.GetLength(), 0u);
    EXPECT_EQ(file.GetPosition(), 0u);
    file.Write("new", 3);
    EXPECT_STREQ(reinterpret_cast<char*>(block), "kept");
    std::free(block);
}

TEST(MemFile, AnAttachedBlockIsTheContent) {
    BYTE block[] = {1, 2, 3, 4};
    CMemFile file;
    file.Attach(block, sizeof(block));
    EXPECT_EQ(file.GetLength(), 4u);
    BYTE value[4];
    EXPECT_EQ(file.Read(value, 4), 4u);
    EXPECT_EQ(value[3], 4);
    file.SeekToBegin();
    const BYTE nine = 9;
    file.Write(&nine, 1);
    EXPECT_EQ(block[0], 9);
}

TEST(MemFile, AnAttachedBlockWithoutAStepCannotGrow) {
    BYTE block[2] = {};
    CMemFile file(block, sizeof(block));
    EXPECT_THROW(file.Write("abc", 3), CMemoryException*);
    EXPECT_EQ(file.GetLength(), 2u);
    EXPECT_EQ(block[0], 0);
    EXPECT_THROW(file.SetLength(3), CMemoryException*);
}

TEST(MemFile, AnAttachedBlockWithAStepStartsEmptyAndGrows) {
    auto* block = static_cast<BYTE*>(std::malloc(4));
    CMemFile file;
    file.Attach(block, 4, 16);
    EXPECT_EQ(file.GetLength(), 0u);
    file.Write("longer than four", 17);
    EXPECT_EQ(file.GetLength(), 17u);
    BYTE* grown = file.Detach();
    EXPECT_STREQ(reinterpret_cast<char*>(grown), "longer than four");
    std::free(grown);
}

TEST(MemFile, SeekingBehindTheEndLeavesAGapOfZeros) {
    CMemFile file(4);
    file.Write("\xFF\xFF\xFF\xFF", 4);
    file.SetLength(1);
    EXPECT_EQ(file.GetPosition(), 1u);
    EXPECT_EQ(file.Seek(2, CFile::end), 3);
    file.Write("z", 1);
    BYTE bytes[4];
    file.SeekToBegin();
    EXPECT_EQ(file.Read(bytes, 4), 4u);
    EXPECT_THAT(bytes, testing::ElementsAre(0xFF, 0, 0, 'z'));
}

TEST(MemFile, SeekingBeforeTheBeginThrows) {
    CMemFile file;
    file.Write("ab", 2);
    EXPECT_EQ(file.Seek(-2, CFile::current), 0);
    try {
        file.Seek(-1, CFile::current);
        FAIL() << "nothing was thrown";
    } catch (CFileException* exception) {
        EXPECT_EQ(exception->m_cause, CFileException::badSeek);
        exception->Delete();
    }
    EXPECT_EQ(file.GetPosition(), 0u);
}
