// Tests of exceptions.

namespace {

CString MessageOf(const CException& exception) {
    wchar_t text[256];
    return exception.GetErrorMessage(text, ARRAYSIZE(text)) ? CString(text) : CString();
}

/// Counts how many of its objects live.
class CountedException : public CException {
public:
    explicit CountedException(BOOL autoDelete) : CException(autoDelete) { ++s_live; }
    ~CountedException() override { --s_live; }
    static int s_live;
};
int CountedException::s_live = 0;

} // namespace

TEST(Exception, AreCaughtThroughTheirBaseAcrossTheLibrary) {
    try {
        AfxThrowFileException(CFileException::accessDenied, 5, L"C:\\a.txt");
    } catch (CException* exception) {
        EXPECT_EQ(exception->GetRuntimeClass(), RUNTIME_CLASS(CFileException));
        EXPECT_NE(dynamic_cast<CFileException*>(exception), nullptr);
        exception->Delete();
        return;
    }
    FAIL() << "nothing was thrown";
}

TEST(Exception, DeleteFreesHeapObjectsOnly) {
    auto* heap = new CountedException(TRUE);
    EXPECT_EQ(CountedException::s_live, 1);
    heap->Delete();
    EXPECT_EQ(CountedException::s_live, 0);
    {
        CountedException scoped(FALSE);
        scoped.Delete();
        EXPECT_EQ(CountedException::s_live, 1);
    }
}

TEST(Exception, TheCommonOnesAreThrownWithoutNeedingMemory) {
    const auto thrownTwice = [](auto throwIt) {
        CException* first = nullptr;
        for (int i = 0; i < 2; ++i) {
            try {
                throwIt();
            } catch (CSimpleException* exception) {
                EXPECT_FALSE(exception->m_bAutoDelete);
                EXPECT_FALSE(MessageOf(*exception).IsEmpty());
                exception->Delete();
                EXPECT_TRUE(!first || first == exception);
                first = exception;
            }
        }
        return first->GetRuntimeClass();
    };
    EXPECT_EQ(thrownTwice([] { AfxThrowMemoryException(); }), RUNTIME_CLASS(CMemoryException));
    EXPECT_EQ(thrownTwice([] { AfxThrowNotSupportedException(); }), RUNTIME_CLASS(CNotSupportedException));
    EXPECT_EQ(thrownTwice([] { AfxThrowResourceException(); }), RUNTIME_CLASS(CResourceException));
    EXPECT_EQ(thrownTwice([] { AfxThrowUserException(); }), RUNTIME_CLASS(CUserException));
    EXPECT_EQ(thrownTwice([] { AfxThrowInvalidArgException(); }), RUNTIME_CLASS(CInvalidArgException));
}

TEST(Exception, APlainExceptionHasNoMessage) {
    CException exception(FALSE);
    wchar_t text[8] = L"before";
    UINT helpContext = 9;
    EXPECT_FALSE(exception.GetErrorMessage(text, ARRAYSIZE(text), &helpContext));
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(helpContext, 0u);
}

TEST(Exception, MessagesAreCutToTheBuffer) {
    const CMemoryException exception;
    wchar_t text[7];
    EXPECT_TRUE(exception.GetErrorMessage(text, ARRAYSIZE(text)));
    EXPECT_STREQ(text, L"Memory");
}

TEST(FileException, NamesTheFileInItsMessage) {
    EXPECT_EQ(MessageOf(CFileException(CFileException::fileNotFound, 2, L"C:\\rows.csv")),
              L"C:\\rows.csv was not found.");
    EXPECT_EQ(MessageOf(CFileException(CFileException::diskFull)), L"The disk is full; The file could not be written.");
}

TEST(FileException, SystemErrorsHaveCauses) {
    const struct {
        LONG error;
        int cause;
    } expectations[] = {
        {NO_ERROR, CFileException::none},
        {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
        {ERROR_PATH_NOT_FOUND, CFileException::badPath},
        {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
        {ERROR_ACCESS_DENIED, CFileException::accessDenied},
        {ERROR_INVALID_HANDLE, CFileException::invalidFile},
        {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
        {ERROR_SEEK, CFileException::badSeek},
        {ERROR_WRITE_FAULT, CFileException::hardIO},
        {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
        {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
        {ERROR_DISK_FULL, CFileException::diskFull},
        {ERROR_HANDLE_EOF, CFileException::endOfFile},
        {ERROR_INVALID_FUNCTION, CFileException::genericException},
    };
    for (const auto& expectation : expectations)
        EXPECT_EQ(CFileException::OsErrorToException(expectation.error), expectation.cause) << expectation.error;
}

TEST(FileException, IsThrownForASystemError) {
    try {
        CFileException::ThrowOsError(ERROR_SHARING_VIOLATION, L"x.bin");
    } catch (CFileException* exception) {
        EXPECT_EQ(exception->m_cause, CFileException::sharingViolation);
        EXPECT_EQ(exception->m_lOsError, ERROR_SHARING_VIOLATION);
        EXPECT_EQ(exception->m_strFileName, L"x.bin");
        exception->Delete();
        return;
    }
    FAIL() << "nothing was thrown";
}

TEST(ArchiveException, HasItsDocumentedCauseNumbers) {
    EXPECT_EQ(CArchiveException::none, 0);
    EXPECT_EQ(CArchiveException::readOnly, 2);
    EXPECT_EQ(CArchiveException::endOfFile, 3);
    EXPECT_EQ(CArchiveException::badIndex, 5);
    EXPECT_EQ(CArchiveException::bufferFull, 8);
    EXPECT_EQ(MessageOf(CArchiveException(CArchiveException::badIndex, L"layout")), L"layout is damaged.");
}

TEST(OleException, CarriesTheStatusCode) {
    try {
        AfxThrowOleException(E_NOINTERFACE);
    } catch (COleException* exception) {
        EXPECT_EQ(exception->m_sc, E_NOINTERFACE);
        EXPECT_EQ(COleException::Process(exception), E_NOINTERFACE);
        EXPECT_FALSE(MessageOf(*exception).IsEmpty());
        exception->Delete();
    }
    const CMemoryException memory;
    EXPECT_EQ(COleException::Process(&memory), E_OUTOFMEMORY);
    const CUserException user;
    EXPECT_EQ(COleException::Process(&user), E_FAIL);
}

TEST(OleException, NamesACodeThatTheSystemDoesNotKnow) {
    COleException exception;
    exception.m_sc = static_cast<SCODE>(0xA1234567);
    EXPECT_EQ(MessageOf(exception), L"A component failed with code 0xA1234567.");
}
