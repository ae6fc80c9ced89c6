// Tests of the string value.
#include "resource.h"

#include <unordered_set>

namespace {

TEST(String, IsMadeFromWideAndEightBitTexts) {
    EXPECT_EQ(CString(), L"");
    EXPECT_EQ(CString(L"wide"), L"wide");
    EXPECT_EQ(CString("narrow"), L"narrow");
    EXPECT_EQ(CString(L"abcdef", 3), L"abc");
    EXPECT_EQ(CString("abcdef", 2), L"ab");
    EXPECT_EQ(CString(L'x', 4), L"xxxx");
    EXPECT_EQ(CString(L'x', -1), L"");
    EXPECT_EQ(CString(static_cast<LPCWSTR>(nullptr)), L"");
}

TEST(String, EightBitTextsAreInTheAnsiCodePage) {
    char ansi[4] = {};
    const wchar_t wide[] = L"\u00E9";
    WideCharToMultiByte(CP_ACP, 0, wide, 1, ansi, 3, nullptr, nullptr);
    EXPECT_EQ(CString(ansi), L"\u00E9");
}

TEST(String, IsMadeFromAResourceNumber) {
    EXPECT_EQ(CString(MAKEINTRESOURCE(IDS_GREETING)), L"Gr\u00FC\u00DFe");
    EXPECT_EQ(CString(MAKEINTRESOURCE(IDS_ABSENT)), L"");
}

TEST(String, LoadStringKeepsTheTextWhenThereIsNoResource) {
    CString text(L"before");
    EXPECT_FALSE(text.LoadString(IDS_ABSENT));
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(text.LoadString(IDS_GREETING));
    EXPECT_EQ(text.GetLength(), 5);
}

TEST(String, MovingLeavesAnEmptyString) {
    CString from(L"a text that is longer than any small buffer");
    const wchar_t* characters = from.GetString();
    CString to(std::move(from));
    EXPECT_EQ(to.GetString(), characters);
    EXPECT_TRUE(from.IsEmpty());
    CString third;
    third = std::move(to);
    EXPECT_EQ(third.GetString(), characters);
    EXPECT_TRUE(to.IsEmpty());
}

TEST(String, CharactersAreReadAndSetByIndex) {
    CString text(L"grid");
    EXPECT_EQ(text[0], L'g');
    EXPECT_EQ(text.GetAt(3), L'd');
    EXPECT_EQ(text[4], L'\0');
    text.SetAt(1, L'l');
    EXPECT_EQ(text, L"glid");
}

TEST(String, AnIndexOutsideTheTextThrows) {
    CString text(L"ab");
    EXPECT_THROW(text.GetAt(3), CInvalidArgException*);
    EXPECT_THROW(text.GetAt(-1), CInvalidArgException*);
    EXPECT_THROW(text.SetAt(2, L'x'), CInvalidArgException*);
}

TEST(String, BuffersAreWrittenDirectly) {
    CString text;
    LPWSTR buffer = text.GetBuffer(10);
    lstrcpyW(buffer, L"direct");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 6);
    EXPECT_EQ(text, L"direct");

    std::fill_n(text.GetBufferSetLength(3), 3, L'z');
    text.ReleaseBuffer(2);
    EXPECT_EQ(text, L"zz");
}

TEST(String, GetBufferKeepsTheText) {
    CString text(L"kept");
    EXPECT_STREQ(text.GetBuffer(100), L"kept");
    text.ReleaseBuffer();
    EXPECT_EQ(text, L"kept");
}

TEST(String, Joins) {
    CString text(L"a");
    text += L"b";
    text += L'c';
    text += CString(L"d");
    text += "e";
    EXPECT_EQ(text, L"abcde");
    EXPECT_EQ(text + L"f" + CString(L"g") + L'h', L"abcdefgh");
    EXPECT_EQ(L"0" + text, L"0abcde");
    EXPECT_EQ(L'0' + text, L"0abcde");
    text += text;
    EXPECT_EQ(text, L"abcdeabcde");
    text.Append(L"xyz", 1);
    text.AppendChar(L'!');
    EXPECT_EQ(text, L"abcdeabcdex!");
}

TEST(String, Compares) {
    const CString text(L"Mango");
    EXPECT_TRUE(text == L"Mango");
    EXPECT_TRUE(text != L"mango");
    EXPECT_TRUE(L"Mango" == text);
    EXPECT_TRUE(text < L"mango");
    EXPECT_TRUE(CString(L"b") > CString(L"a"));
    EXPECT_TRUE(L"a" < CString(L"b"));
    EXPECT_TRUE(text <= text);
    EXPECT_GT(text.Compare(L"Apple"), 0);
    EXPECT_LT(text.Compare(L"Nut"), 0);
    EXPECT_EQ(text.CompareNoCase(L"mANGO"), 0);
    EXPECT_NE(text.CompareNoCase(L"mang"), 0);
}

TEST(String, CollatesAsTheUserReads) {
    // By code, lower-case letters come behind all upper-case ones; a reader expects them side by side.
    EXPECT_GT(CString(L"a").Compare(L"B"), 0);
    EXPECT_LT(CString(L"a").Collate(L"B"), 0);
    EXPECT_EQ(CString(L"abc").CollateNoCase(L"ABC"), 0);
}

TEST(String, PartsAreBroughtIntoTheText) {
    const CString text(L"abcdef");
    EXPECT_EQ(text.Mid(2), L"cdef");
    EXPECT_EQ(text.Mid(2, 3), L"cde");
    EXPECT_EQ(text.Mid(4, 100), L"ef");
    EXPECT_EQ(text.Mid(100), L"");
    EXPECT_EQ(text.Mid(-3, 2), L"ab");
    EXPECT_EQ(text.Left(2), L"ab");
    EXPECT_EQ(text.Left(-1), L"");
    EXPECT_EQ(text.Left(9), L"abcdef");
    EXPECT_EQ(text.Right(2), L"ef");
    EXPECT_EQ(text.Right(9), L"abcdef");
    EXPECT_EQ(text.SpanIncluding(L"cab"), L"abc");
    EXPECT_EQ(text.SpanExcluding(L"de"), L"abc");
    EXPECT_EQ(text.SpanExcluding(L"xyz"), L"abcdef");
}

TEST(String, Finds) {
    const CString text(L"one two one");
    EXPECT_EQ(text.Find(L"one"), 0);
    EXPECT_EQ(text.Find(L"one", 1), 8);
    EXPECT_EQ(text.Find(L'w'), 5);
    EXPECT_EQ(text.Find(L"three"), -1);
    EXPECT_EQ(text.Find(L'o', 50), -1);
    EXPECT_EQ(text.Find(L'o', -1), -1);
    EXPECT_EQ(text.ReverseFind(L'o'), 8);
    EXPECT_EQ(text.ReverseFind(L'z'), -1);
    EXPECT_EQ(text.FindOneOf(L"wt"), 4);
    EXPECT_EQ(text.FindOneOf(L"xyz"), -1);
}

TEST(String, TrimsWhiteSpaceCharactersAndSets) {
    EXPECT_EQ(CString(L" \t text \r\n").Trim(), L"text");
    EXPECT_EQ(CString(L"  text  ").TrimLeft(), L"text  ");
    EXPECT_EQ(CString(L"  text  ").TrimRight(), L"  text");
    EXPECT_EQ(CString(L"xxtextx").Trim(L'x'), L"text");
    EXPECT_EQ(CString(L"0012.500").TrimRight(L'0').TrimLeft(L'0'), L"12.5");
    EXPECT_EQ(CString(L"([text])").Trim(L"()[]"), L"text");
    EXPECT_EQ(CString(L"   ").Trim(), L"");
    EXPECT_EQ(CString(L"xxx").TrimLeft(L'x'), L"");
    EXPECT_EQ(CString(L"xxx").TrimRight(L"x"), L"");
}

TEST(String, ChangesCase) {
    EXPECT_EQ(CString(L"a\u00E4Z").MakeUpper(), L"A\u00C4Z");
    EXPECT_EQ(CString(L"A\u00C4z").MakeLower(), L"a\u00E4z");
    EXPECT_EQ(CString(L"abc").MakeReverse(), L"cba");
}

TEST(String, Replaces) {
    CString text(L"a,b,c");
    EXPECT_EQ(text.Replace(L',', L';'), 2);
    EXPECT_EQ(text, L"a;b;c");
    EXPECT_EQ(text.Replace(L";", L" and "), 2);
    EXPECT_EQ(text, L"a and b and c");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(L" and ", static_cast<LPCWSTR>(nullptr)), 2);
    EXPECT_EQ(text, L"abc");
    CString doubled(L"aaa");
    EXPECT_EQ(doubled.Replace(L"a", L"aa"), 3);
    EXPECT_EQ(doubled, L"aaaaaa");
}

TEST(String, RemovesInsertsAndDeletes) {
    CString text(L"banana");
    EXPECT_EQ(text.Remove(L'a'), 3);
    EXPECT_EQ(text, L"bnn");
    EXPECT_EQ(text.Insert(1, L"oo"), 5);
    EXPECT_EQ(text, L"boonn");
    EXPECT_EQ(text.Insert(99, L'!'), 6);
    EXPECT_EQ(text.Insert(-4, L'<'), 7);
    EXPECT_EQ(text, L"<boonn!");
    EXPECT_EQ(text.Delete(1, 3), 4);
    EXPECT_EQ(text, L"<nn!");
    EXPECT_EQ(text.Delete(3, 100), 3);
    EXPECT_EQ(text.Delete(50), 3);
    EXPECT_EQ(text, L"<nn");
}

TEST(String, TokenizesSkippingEmptyTokens) {
    const CString text(L"%First Second#Third");
    int start = 0;
    EXPECT_EQ(text.Tokenize(L"% #", start), L"First");
    EXPECT_EQ(start, 7);
    EXPECT_EQ(text.Tokenize(L"% #", start), L"Second");
    EXPECT_EQ(text.Tokenize(L"% #", start), L"Third");
    EXPECT_EQ(text.Tokenize(L"% #", start), L"");
    EXPECT_EQ(start, -1);
    EXPECT_EQ(text.Tokenize(L"% #", start), L"");
}

TEST(String, HashesEqualTextsEqually) {
    std::unordered_set<CString> set;
    set.insert(L"a");
    set.insert(CString("a"));
    set.insert(L"b");
    EXPECT_EQ(set.size(), 2u);
    EXPECT_EQ(set.count(L"b"), 1u);
}

} // namespace
