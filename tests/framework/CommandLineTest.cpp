// What a command line asks for.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

TEST(CommandLine, WithoutAFileANewOneIsWanted) {
    CCommandLineInfo info;
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNew);
    info.ParseParam(_T("quiet"), TRUE, TRUE);
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNew);
}

TEST(CommandLine, TheFirstWordThatIsNoOptionIsTheFile) {
    CCommandLineInfo info;
    info.ParseParam(_T("quiet"), TRUE, FALSE);
    info.ParseParam(_T("C:\\birds.csv"), FALSE, FALSE);
    info.ParseParam(_T("other.csv"), FALSE, TRUE);
    EXPECT_EQ(info.m_strFileName, _T("C:\\birds.csv"));
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileOpen);
}

} // namespace
