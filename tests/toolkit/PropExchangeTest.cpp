// Property exchange with an XML document: what is written is read back, and what is broken takes its default.
#include <XTToolkitPro.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

/// A document that is being written.
class Writing : public CXTPPropExchangeXMLNode {
public:
    Writing() : CXTPPropExchangeXMLNode(FALSE, nullptr, _T("Root")) { EXPECT_TRUE(OnBeforeExchange()); }
};

/// The document of a text, being read.
class Reading : public CXTPPropExchangeXMLNode {
public:
    explicit Reading(LPCTSTR xml) : CXTPPropExchangeXMLNode(TRUE, nullptr, _T("Root")) {
        EXPECT_TRUE(LoadFromString(xml));
        EXPECT_TRUE(OnBeforeExchange());
    }
};

TEST(PropExchange, PropertiesAreAttributesOfTheirSection) {
    Writing writing;
    CString text = _T("a");
    DWORD dword = 4294967295;
    int number = -5;
    BOOL yes = TRUE;
    float single = 0.5f;
    double precise = 0.1;
    EXPECT_TRUE(PX_String(&writing, _T("Text"), text));
    EXPECT_TRUE(PX_DWord(&writing, _T("DWord"), dword));
    EXPECT_TRUE(PX_Int(&writing, _T("Int"), number));
    EXPECT_TRUE(PX_Bool(&writing, _T("Bool"), yes));
    EXPECT_TRUE(PX_Float(&writing, _T("Float"), single));
    EXPECT_TRUE(PX_Double(&writing, _T("Double"), precise));
    EXPECT_STREQ(writing.GetXML(), L"<Root Text=\"a\" DWord=\"4294967295\" Int=\"-5\" Bool=\"1\" Float=\"0.5\" "
                                   L"Double=\"0.1\"/>");
}

TEST(PropExchange, WhatIsWrittenIsReadBack) {
    Writing writing;
    CString text = _T("a");
    DWORD dword = 4294967295;
    int number = std::numeric_limits<int>::min();
    BOOL yes = 7; // every number but 0 is true
    float single = 0.1f;
    double precise = 1.0 / 3;
    PX_String(&writing, _T("Text"), text);
    PX_DWord(&writing, _T("DWord"), dword);
    PX_Int(&writing, _T("Int"), number);
    PX_Bool(&writing, _T("Bool"), yes);
    PX_Float(&writing, _T("Float"), single);
    PX_Double(&writing, _T("Double"), precise);

    Reading reading(writing.GetXML());
    CString readText;
    DWORD readDWord = 0;
    int readNumber = 0;
    BOOL readYes = FALSE;
    float readSingle = 0;
    double readPrecise = 0;
    EXPECT_TRUE(PX_String(&reading, _T("Text"), readText));
    EXPECT_TRUE(PX_DWord(&reading, _T("DWord"), readDWord));
    EXPECT_TRUE(PX_Int(&reading, _T("Int"), readNumber));
    EXPECT_TRUE(PX_Bool(&reading, _T("Bool"), readYes));
    EXPECT_TRUE(PX_Float(&reading, _T("Float"), readSingle));
    EXPECT_TRUE(PX_Double(&reading, _T("Double"), readPrecise));
    EXPECT_STREQ(readText, text);
    EXPECT_EQ(readDWord, dword);
    EXPECT_EQ(readNumber, number);
    EXPECT_EQ(readYes, TRUE);
    EXPECT_EQ(readSingle, single);
    EXPECT_EQ(readPrecise, precise);
}

TEST(PropExchange, TextsComeBackUnitByUnit) {
    for (const wchar_t* const text :
         {L"", L" a b ", L"\t\r\n\x01\x1F", L"<&>\"'", L"]]>", L"&#65;", L"\x00F6\x00DF\x4E2D", L"\xD83D\xDE00",
          L"a\xD800", L"\xDC00z", L"\xFFFE\xFFFF"}) {
        Writing writing;
        CString written = text, read = _T("?");
        PX_String(&writing, _T("Text"), written);
        Reading reading(writing.GetXML());
        EXPECT_TRUE(PX_String(&reading, _T("Text"), read));
        EXPECT_STREQ(read, text);
    }
}

TEST(PropExchange, AFloatIsReadBackBitByBit) {
    using Limits = std::numeric_limits<float>;
    for (float written :
         {0.0f, -0.0f, -99.0f, Limits::max(), Limits::denorm_min(), Limits::infinity(), -Limits::infinity(),
          std::copysign(Limits::quiet_NaN(), 1.0f), std::copysign(Limits::quiet_NaN(), -1.0f)}) {
        Writing writing;
        PX_Float(&writing, _T("Value"), written);
        Reading reading(writing.GetXML());
        float read = 5;
        EXPECT_TRUE(PX_Float(&reading, _T("Value"), read));
        EXPECT_EQ(std::memcmp(&read, &written, sizeof(read)), 0) << written;
    }
}

TEST(PropExchange, AValueThatEqualsItsDefaultIsNotWritten) {
    Writing writing;
    CString text = _T("x");
    DWORD dword = 5;
    int number = -1;
    BOOL yes = TRUE;
    float single = 2;
    double precise = std::numeric_limits<double>::quiet_NaN();
    PX_String(&writing, _T("Text"), text, _T("x"));
    PX_DWord(&writing, _T("DWord"), dword, 5);
    PX_Int(&writing, _T("Int"), number, -1);
    PX_Bool(&writing, _T("Bool"), yes, 2);
    PX_Float(&writing, _T("Float"), single, 2);
    PX_Double(&writing, _T("Double"), precise, precise);
    EXPECT_STREQ(writing.GetXML(), L"<Root/>");
    number = 0;
    PX_Int(&writing, _T("Int"), number, -1);
    EXPECT_STREQ(writing.GetXML(), L"<Root Int=\"0\"/>");
    number = -1;
    PX_Int(&writing, _T("Int"), number, -1);
    EXPECT_STREQ(writing.GetXML(), L"<Root/>") << "the value of before is not left behind";
}

TEST(PropExchange, AMissingPropertyTakesItsDefaultOrStaysAsItIs) {
    Reading reading(_T("<Root/>"));
    CString text = _T("kept");
    int number = 3;
    EXPECT_FALSE(PX_String(&reading, _T("Text"), text));
    EXPECT_FALSE(PX_Int(&reading, _T("Int"), number));
    EXPECT_STREQ(text, _T("kept"));
    EXPECT_EQ(number, 3);
    DWORD dword = 0;
    BOOL yes = FALSE;
    float single = 0;
    double precise = 0;
    EXPECT_FALSE(PX_String(&reading, _T("Text"), text, _T("default")));
    EXPECT_FALSE(PX_Int(&reading, _T("Int"), number, -7));
    EXPECT_FALSE(PX_DWord(&reading, _T("DWord"), dword, 8));
    EXPECT_FALSE(PX_Bool(&reading, _T("Bool"), yes, TRUE));
    EXPECT_FALSE(PX_Float(&reading, _T("Float"), single, 1.5f));
    EXPECT_FALSE(PX_Double(&reading, _T("Double"), precise, 2.5));
    EXPECT_STREQ(text, _T("default"));
    EXPECT_EQ(number, -7);
    EXPECT_EQ(dword, 8U);
    EXPECT_EQ(yes, TRUE);
    EXPECT_EQ(single, 1.5f);
    EXPECT_EQ(precise, 2.5);
}

TEST(PropExchange, ABrokenNumberTakesItsDefaultOrStaysAsItIs) {
    for (const wchar_t* const broken : {L"", L"x", L"1x", L" 1", L"1e999", L"99999999999999999999"}) {
        CString xml;
        xml.Format(_T("<Root V=\"%s\"/>"), broken);
        Reading reading(xml);
        DWORD dword = 3;
        int number = 3;
        double precise = 3;
        float single = 3;
        EXPECT_FALSE(PX_DWord(&reading, _T("V"), dword)) << broken;
        EXPECT_FALSE(PX_Int(&reading, _T("V"), number, 4)) << broken;
        EXPECT_EQ(dword, 3U);
        EXPECT_EQ(number, 4);
        if (std::wcschr(broken, L'9') == broken)
            continue; // a number after all, for those that have a fraction
        EXPECT_FALSE(PX_Double(&reading, _T("V"), precise)) << broken;
        EXPECT_FALSE(PX_Float(&reading, _T("V"), single, 4)) << broken;
        EXPECT_EQ(precise, 3);
        EXPECT_EQ(single, 4);
    }
}

TEST(PropExchange, NumbersOutOfTheirRangeAreBroken) {
    Reading reading(_T("<Root A=\"4294967296\" B=\"-1\" C=\"2147483648\" D=\"2\" E=\"1e300\" F=\"true\"/>"));
    DWORD dword = 3;
    int number = 3;
    BOOL yes = TRUE;
    float single = 3;
    EXPECT_FALSE(PX_DWord(&reading, _T("A"), dword));
    EXPECT_FALSE(PX_DWord(&reading, _T("B"), dword));
    EXPECT_FALSE(PX_Int(&reading, _T("C"), number));
    EXPECT_FALSE(PX_Bool(&reading, _T("D"), yes, FALSE));
    EXPECT_EQ(yes, FALSE);
    EXPECT_FALSE(PX_Bool(&reading, _T("F"), yes, FALSE));
    EXPECT_TRUE(PX_Float(&reading, _T("E"), single));
    EXPECT_EQ(single, std::numeric_limits<float>::infinity());
    EXPECT_EQ(dword, 3U);
    EXPECT_EQ(number, 3);
}

TEST(PropExchange, OtherTypesAreNotExchanged) {
    Writing writing;
    LONGLONG value = 1;
    EXPECT_FALSE(writing.ExchangeProp(_T("V"), VT_I8, &value));
    EXPECT_STREQ(writing.GetXML(), L"<Root/>");
}

TEST(PropExchange, SectionsHoldSections) {
    Writing writing;
    int one = 1, two = 2;
    {
        const CXTPPropExchangeSection outer(writing.GetSection(_T("Outer")));
        PX_Int(&outer, _T("V"), one);
        const CXTPPropExchangeSection inner(outer->GetSection(_T("Inner")));
        PX_Int(&inner, _T("V"), two);
        const CXTPPropExchangeSection again(writing.GetSection(_T("Outer")));
        PX_Int(&again, _T("W"), two);
    }
    EXPECT_STREQ(writing.GetXML(), L"<Root><Outer V=\"1\" W=\"2\"><Inner V=\"2\"/></Outer></Root>");
    Reading reading(writing.GetXML());
    const CXTPPropExchangeSection outer(reading.GetSection(_T("Outer")));
    const CXTPPropExchangeSection inner(outer->GetSection(_T("Inner")));
    int read = 0;
    EXPECT_TRUE(PX_Int(&inner, _T("V"), read));
    EXPECT_EQ(read, 2);
    EXPECT_TRUE(inner->IsLoading());
}

TEST(PropExchange, ASectionThatIsMissingReadsAsAnEmptyOne) {
    Reading reading(_T("<Root/>"));
    const CXTPPropExchangeSection missing(reading.GetSection(_T("Missing")));
    const CXTPPropExchangeSection below(missing->GetSection(_T("Below")));
    int number = 0;
    EXPECT_FALSE(PX_Int(&below, _T("V"), number, 5));
    EXPECT_EQ(number, 5);
    const CXTPPropExchangeEnumeratorPtr many(below->GetEnumerator(_T("Item")));
    POSITION none = many->GetPosition();
    EXPECT_EQ(none, nullptr);
    const CXTPPropExchangeSection behind(many->GetNext(none));
    EXPECT_FALSE(PX_Int(&behind, _T("V"), number, 6));
    EXPECT_EQ(number, 6);
}

TEST(PropExchange, AnEnumeratorGoesThroughTheSectionsOfItsName) {
    Writing writing;
    {
        const CXTPPropExchangeEnumeratorPtr items(writing.GetEnumerator(_T("Item")));
        POSITION pos = items->GetPosition(3);
        for (int i = 0; i < 3; ++i) {
            ASSERT_NE(pos, nullptr);
            const CXTPPropExchangeSection item(items->GetNext(pos));
            PX_Int(&item, _T("V"), i);
        }
        EXPECT_EQ(pos, nullptr);
        EXPECT_EQ(items->GetPosition(0), nullptr);
    }
    EXPECT_STREQ(writing.GetXML(), L"<Root><Item V=\"0\"/><Item V=\"1\"/><Item V=\"2\"/></Root>");

    Reading reading(_T("<Root><Item V=\"4\"/><Other V=\"5\"/><Item V=\"6\"/>text<Item/></Root>"));
    const CXTPPropExchangeEnumeratorPtr items(reading.GetEnumerator(_T("Item")));
    std::vector<int> values;
    for (POSITION pos = items->GetPosition(); pos;) {
        const CXTPPropExchangeSection item(items->GetNext(pos));
        int value = 0;
        PX_Int(&item, _T("V"), value, -1);
        values.push_back(value);
    }
    EXPECT_THAT(values, ::testing::ElementsAre(4, 6, -1));
}

TEST(PropExchange, SectionsOfANameCanBeRemoved) {
    Writing writing;
    int value = 1;
    for (const wchar_t* const name : {L"Gone", L"Kept", L"Gone"}) {
        const CXTPPropExchangeEnumeratorPtr sections(writing.GetEnumerator(name));
        POSITION pos = sections->GetPosition(1);
        const CXTPPropExchangeSection section(sections->GetNext(pos));
        PX_Int(&section, _T("V"), value);
        const CXTPPropExchangeSection below(section->GetSection(_T("Below")));
    }
    writing.EmptySection(_T("Gone"));
    EXPECT_STREQ(writing.GetXML(), L"<Root><Kept V=\"1\"><Below/></Kept></Root>");
    writing.EmptySection(_T("Missing"));
    EXPECT_STREQ(writing.GetXML(), L"<Root><Kept V=\"1\"><Below/></Kept></Root>");
}

TEST(PropExchange, SectionsOutliveTheOneTheyWereHadFrom) {
    auto* const writing = new Writing;
    const CXTPPropExchangeSection section(writing->GetSection(_T("S")));
    writing->InternalRelease();
    int value = 4, read = 0;
    EXPECT_TRUE(PX_Int(&section, _T("V"), value));
    const CXTPPropExchangeSection below(section->GetSection(_T("Below")));
    EXPECT_TRUE(PX_Int(&below, _T("V"), value));
    (void)read;
}

TEST(PropExchange, ADocumentIsReadWhileItIsBeingWritten) {
    Writing writing;
    CXTPPropExchangeXMLNode reading(TRUE, &writing, _T("Root"));
    ASSERT_TRUE(reading.OnBeforeExchange());
    int value = 4, read = 0;
    PX_Int(&writing, _T("V"), value);
    EXPECT_TRUE(PX_Int(&reading, _T("V"), read));
    EXPECT_EQ(read, 4);
}

TEST(PropExchange, BeforeItBeginsNothingIsExchanged) {
    CXTPPropExchangeXMLNode writing(FALSE, nullptr, _T("Root"));
    int value = 4;
    EXPECT_FALSE(PX_Int(&writing, _T("V"), value));
    EXPECT_STREQ(writing.GetXML(), L"");
    CXTPPropExchangeXMLNode reading(TRUE, nullptr, _T("Root"));
    EXPECT_FALSE(reading.OnBeforeExchange());
}

TEST(PropExchange, ADocumentWithAnotherElementIsNotTaken) {
    CXTPPropExchangeXMLNode reading(TRUE, nullptr, _T("Root"));
    ASSERT_TRUE(reading.LoadFromString(_T("<Other/>")));
    EXPECT_FALSE(reading.OnBeforeExchange());
    Writing other;
    CXTPPropExchangeXMLNode writing(FALSE, &other, _T("Other"));
    EXPECT_FALSE(writing.OnBeforeExchange());
    EXPECT_STREQ(other.GetXML(), L"<Root/>");
    EXPECT_FALSE(CXTPPropExchangeXMLNode(FALSE, nullptr, _T("")).OnBeforeExchange());
}

TEST(PropExchange, ATextThatIsNotWellFormedLeavesTheDocument) {
    Reading reading(_T("<Root V=\"4\"/>"));
    for (const wchar_t* const broken :
         {L"", L" ", L"x", L"<", L"<Root", L"<Root>", L"<Root V=4/>", L"<Root></Other>", L"<Root V=\"4\"", L"</Root>"})
        EXPECT_FALSE(reading.LoadFromString(broken)) << broken;
    EXPECT_FALSE(reading.LoadFromString(nullptr));
    int value = 0;
    EXPECT_TRUE(PX_Int(&reading, _T("V"), value));
    EXPECT_EQ(value, 4);
}

std::wstring Nested(int levels) {
    std::wstring xml = L"<Root>";
    for (int level = 0; level < levels; ++level)
        xml += L"<R>";
    for (int level = 0; level < levels; ++level)
        xml += L"</R>";
    return xml + L"</Root>";
}

TEST(PropExchange, ATextWithMoreLevelsThanAnythingNeedsIsBroken) {
    CXTPPropExchangeXMLNode reading(TRUE, nullptr, _T("Root"));
    EXPECT_TRUE(reading.LoadFromString(Nested(512).c_str()));
    EXPECT_FALSE(reading.LoadFromString(Nested(513).c_str()));
    EXPECT_FALSE(reading.LoadFromString(Nested(200000).c_str()));
    const std::wstring wide = L"<Root>" + Nested(300) + Nested(300) + L"</Root>";
    EXPECT_TRUE(reading.LoadFromString(wide.c_str()));
}

} // namespace
