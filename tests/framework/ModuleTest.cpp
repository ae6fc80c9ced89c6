// Tests of the modules from which resources come.
#include "resource.h"

TEST(Module, TheProgramIsTheFirstModule) {
    EXPECT_EQ(AfxGetInstanceHandle(), GetModuleHandle(nullptr));
    EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandle(nullptr));
}

TEST(Module, StringsAreCopiedIntoABuffer) {
    wchar_t text[16];
    EXPECT_EQ(AfxLoadString(IDS_GREETING, text, ARRAYSIZE(text)), 5);
    EXPECT_STREQ(text, L"Gr\u00FC\u00DFe");
    EXPECT_EQ(AfxLoadString(IDS_ABSENT, text, ARRAYSIZE(text)), 0);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(AfxLoadString(IDS_GREETING, text, 3), 2);
    EXPECT_STREQ(text, L"Gr");
}

TEST(Module, AddedModulesAreAskedAfterTheFirst) {
    const HINSTANCE program = GetModuleHandle(nullptr);
    const HINSTANCE other = GetModuleHandle(L"kyframework.dll");
    const LPCTSTR block = MAKEINTRESOURCE((IDS_GREETING >> 4) + 1);
    ASSERT_NE(other, nullptr);
    AfxSetResourceHandle(other);
    EXPECT_EQ(AfxFindResourceHandle(block, RT_STRING), other);
    EXPECT_EQ(CString(MAKEINTRESOURCE(IDS_GREETING)), L"");
    AfxAddResourceModule(program);
    EXPECT_EQ(AfxFindResourceHandle(block, RT_STRING), program);
    EXPECT_EQ(CString(MAKEINTRESOURCE(IDS_GREETING)), L"Gr\u00FC\u00DFe");
    AfxRemoveResourceModule(program);
    EXPECT_EQ(AfxFindResourceHandle(block, RT_STRING), other);
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), program);
}
