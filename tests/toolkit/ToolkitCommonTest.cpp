// Paths, theme colours, the theme of the process, shared texts.
#include "ToolkitTestApp.h"

#include "report/CompactText.h"

namespace {

struct PathCase {
    const wchar_t* path;
    const wchar_t* drive;
    const wchar_t* dir;
    const wchar_t* title;
    const wchar_t* ext;
};

class SplitPathTest : public ::testing::TestWithParam<PathCase> {};

TEST_P(SplitPathTest, GivesThePiecesOfThePath) {
    const CXTPSplitPath path(GetParam().path);
    EXPECT_EQ(path.GetDrive(), GetParam().drive);
    EXPECT_EQ(path.GetDir(), GetParam().dir);
    EXPECT_EQ(path.GetFileTitle(), GetParam().title);
    EXPECT_EQ(path.GetExt(), GetParam().ext);
    EXPECT_EQ(path.GetFileName(), CString(GetParam().title) + GetParam().ext);
    EXPECT_EQ(path.GetFullPath(), GetParam().path);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, SplitPathTest,
    ::testing::Values(PathCase{L"C:\\data\\cars.csv", L"C:", L"\\data\\", L"cars", L".csv"},
                      PathCase{L"cars.csv", L"", L"", L"cars", L".csv"}, PathCase{L"", L"", L"", L"", L""},
                      PathCase{L"\\\\server\\share\\a.b.c", L"", L"\\\\server\\share\\", L"a.b", L".c"},
                      PathCase{L"C:\\my.folder\\file", L"C:", L"\\my.folder\\", L"file", L""},
                      PathCase{L"D:relative/x.", L"D:", L"relative/", L"x", L"."},
                      PathCase{L"C:\\only\\folder\\", L"C:", L"\\only\\folder\\", L"", L""},
                      PathCase{L".profile", L"", L"", L"", L".profile"}));

TEST(ColorManager, AnswersWithTheSystemsColours) {
    ASSERT_NE(XTPColorManager(), nullptr);
    EXPECT_EQ(XTPColorManager(), XTPColorManager());
    const int index = COLOR_BTNFACE;
    const COLORREF former = ::GetSysColor(index);
    EXPECT_EQ(XTPColorManager()->GetColor(index), former);
    const COLORREF other = former ^ RGB(1, 2, 3);
    ::SetSysColors(1, &index, &other);
    EXPECT_EQ(XTPColorManager()->GetColor(index), other); // as it is now
    ::SetSysColors(1, &index, &former);
    EXPECT_EQ(XTPColorManager()->GetColor(-1), 0u);
}

TEST(PaintManagerColor, ACustomValueStandsInFrontOfTheStandardOne) {
    CXTPPaintManagerColor color(RGB(1, 2, 3));
    EXPECT_EQ(COLORREF(color), RGB(1, 2, 3));
    color = RGB(9, 9, 9);
    EXPECT_EQ(COLORREF(color), RGB(9, 9, 9));
    EXPECT_FALSE(color.IsDefaultValue());
    color.SetStandardValue(RGB(4, 5, 6));
    EXPECT_EQ(COLORREF(color), RGB(9, 9, 9));
    color.SetDefaultValue();
    EXPECT_EQ(COLORREF(color), RGB(4, 5, 6));
    EXPECT_EQ(COLORREF(CXTPPaintManagerColor()), CXTPPaintManagerColor::Unset);
}

TEST(PaintManager, TheProcessHasOneThatSetThemeReplaces) {
    CXTPPaintManager::SetTheme(xtpThemeOffice2013);
    CXTPPaintManager* const first = CXTPPaintManager::s_pInstance;
    EXPECT_EQ(XTPPaintManager(), first);
    EXPECT_EQ(XTPPaintManager()->GetCurrentTheme(), xtpThemeOffice2013);
    first->InternalAddRef();
    CXTPPaintManager::SetTheme(xtpThemeRibbon);
    EXPECT_NE(CXTPPaintManager::s_pInstance, first);
    EXPECT_EQ(XTPPaintManager()->GetCurrentTheme(), xtpThemeRibbon);
    EXPECT_EQ(first->GetCurrentTheme(), xtpThemeOffice2013);
    first->InternalRelease();
}

TEST(CompactText, CopiesShareTheCharacters) {
    CompactText a(L"text");
    const CompactText b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
    a = L"other";
    EXPECT_STREQ(b.GetString(), L"text");
    EXPECT_STREQ(a.GetString(), L"other");
    EXPECT_EQ(a.GetLength(), 5);
    CompactText c = std::move(a);
    EXPECT_STREQ(c.GetString(), L"other");
    EXPECT_STREQ(a.GetString(), L"");
    c = static_cast<const CompactText&>(c);
    EXPECT_STREQ(c.GetString(), L"other");
    c.Empty();
    EXPECT_TRUE(c.IsEmpty());
    EXPECT_TRUE(CompactText(nullptr).IsEmpty());
    EXPECT_EQ(CString(b), L"text");
}

TEST(CompactText, InternedTextsAreOne) {
    EXPECT_EQ(CompactText::Interned(L"%.2f").GetString(), CompactText::Interned(L"%.2f").GetString());
    EXPECT_NE(CompactText::Interned(L"%.3f").GetString(), CompactText::Interned(L"%.2f").GetString());
    const CompactText kept = CompactText::Interned(L"kept");
    const LPCWSTR keptCharacters = kept.GetString();
    for (int i = 0; i < 2000; ++i) {
        CString text;
        text.Format(L"number %d", i);
        EXPECT_STREQ(CompactText::Interned(text).GetString(), text);
    }
    EXPECT_EQ(CompactText::Interned(L"kept").GetString(), keptCharacters) << "texts in use are not swept away";
    EXPECT_TRUE(CompactText::Interned(L"").IsEmpty());
}

} // namespace
