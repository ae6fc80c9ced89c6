// The profile: the same settings through the registry and through an INI file.
#include "TestApplication.h"

#include <filesystem>
#include <fstream>

namespace {

enum class Store { Registry, Ini };

const TCHAR company[] = _T("KyFrameworkTests");

class ProfileTest : public testing::TestWithParam<Store> {
protected:
    void SetUp() override {
        ::RegDeleteTree(HKEY_CURRENT_USER, _T("Software\\KyFrameworkTests"));
        if (GetParam() == Store::Registry) {
            m_app.SetRegistryKey(company);
            return;
        }
        TCHAR folder[MAX_PATH];
        ::GetTempPath(MAX_PATH, folder);
        m_file = CString(folder) + _T("KyFrameworkTests.ini");
        ::DeleteFile(m_file);
        free(const_cast<LPTSTR>(m_app.m_pszProfileName));
        m_app.m_pszProfileName = _tcsdup(m_file);
    }
    void TearDown() override {
        ::RegDeleteTree(HKEY_CURRENT_USER, _T("Software\\KyFrameworkTests"));
        if (!m_file.IsEmpty())
            ::DeleteFile(m_file);
    }

    /// The bytes of an entry; absent entries give nothing.
    std::optional<std::vector<BYTE>> ReadBytes(LPCTSTR section, LPCTSTR entry) {
        LPBYTE data = reinterpret_cast<LPBYTE>(1);
        UINT size = 1;
        if (!m_app.GetProfileBinary(section, entry, &data, &size)) {
            EXPECT_EQ(data, nullptr);
            EXPECT_EQ(size, 0u);
            return std::nullopt;
        }
        std::vector<BYTE> bytes(data, data + size);
        delete[] data;
        return bytes;
    }

    CTestApplication m_app;
    CString m_file;
};

TEST_P(ProfileTest, AbsentEntriesGiveTheDefault) {
    EXPECT_EQ(m_app.GetProfileInt(_T("S"), _T("none"), -7), static_cast<UINT>(-7));
    EXPECT_EQ(m_app.GetProfileString(_T("S"), _T("none"), _T("default")), _T("default"));
    EXPECT_EQ(m_app.GetProfileString(_T("S"), _T("none")), _T(""));
    EXPECT_FALSE(ReadBytes(_T("S"), _T("none")));
}

TEST_P(ProfileTest, WrittenEntriesComeBack) {
    EXPECT_TRUE(m_app.WriteProfileInt(_T("Settings"), _T("Count"), -12));
    EXPECT_TRUE(m_app.WriteProfileString(_T("Settings"), _T("Theme"), _T("Größe 7")));
    EXPECT_TRUE(m_app.WriteProfileString(_T("Settings"), _T("Empty"), _T("")));
    EXPECT_EQ(static_cast<int>(m_app.GetProfileInt(_T("Settings"), _T("Count"), 0)), -12);
    EXPECT_EQ(m_app.GetProfileString(_T("Settings"), _T("Theme")), _T("Größe 7"));
    EXPECT_EQ(m_app.GetProfileString(_T("Settings"), _T("Empty"), _T("default")), _T(""));
}

TEST_P(ProfileTest, BytesComeBackInAnyLength) {
    for (const std::size_t size : {0u, 1u, 255u, 3000u, 15000u}) {
        std::vector<BYTE> bytes(size);
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<BYTE>(i * 7 + 3);
        BYTE none = 0;
        ASSERT_TRUE(
            m_app.WriteProfileBinary(_T("Grid"), _T("State"), size ? bytes.data() : &none, static_cast<UINT>(size)));
        EXPECT_EQ(ReadBytes(_T("Grid"), _T("State")), bytes) << size;
    }
}

TEST_P(ProfileTest, ABackslashMakesASubSection) {
    BYTE own[] = {1, 2, 3};
    BYTE sub[] = {4, 5};
    EXPECT_TRUE(m_app.WriteProfileBinary(_T("Grid"), _T("State"), own, 3));
    EXPECT_TRUE(m_app.WriteProfileBinary(_T("Grid\\DefaultLayout"), _T("State"), sub, 2));
    EXPECT_EQ(ReadBytes(_T("Grid"), _T("State")), (std::vector<BYTE>{1, 2, 3}));
    EXPECT_EQ(ReadBytes(_T("Grid\\DefaultLayout"), _T("State")), (std::vector<BYTE>{4, 5}));
}

TEST_P(ProfileTest, ANullValueRemovesTheEntryAndANullEntryTheSection) {
    m_app.WriteProfileString(_T("S"), _T("a"), _T("1"));
    m_app.WriteProfileString(_T("S"), _T("b"), _T("2"));
    m_app.WriteProfileString(_T("S\\Sub"), _T("c"), _T("3"));
    EXPECT_TRUE(m_app.WriteProfileString(_T("S"), _T("a"), nullptr));
    EXPECT_TRUE(m_app.WriteProfileString(_T("S"), _T("never there"), nullptr));
    EXPECT_EQ(m_app.GetProfileString(_T("S"), _T("a"), _T("-")), _T("-"));
    EXPECT_EQ(m_app.GetProfileString(_T("S"), _T("b"), _T("-")), _T("2"));
    EXPECT_TRUE(m_app.WriteProfileString(_T("S"), nullptr, nullptr));
    EXPECT_EQ(m_app.GetProfileString(_T("S"), _T("b"), _T("-")), _T("-"));
    EXPECT_EQ(m_app.GetProfileString(_T("S\\Sub"), _T("c"), _T("-")), _T("3")); // a section of its own
}

TEST_P(ProfileTest, ANumberIsNoBinaryEntry) {
    m_app.WriteProfileInt(_T("S"), _T("n"), 5);
    EXPECT_FALSE(ReadBytes(_T("S"), _T("n")));
}

INSTANTIATE_TEST_SUITE_P(Stores, ProfileTest, testing::Values(Store::Registry, Store::Ini),
                         [](const auto& info) { return info.param == Store::Registry ? "Registry" : "Ini"; });

// What other programs find --------------------------------------------------------------------------------------------

using RegistryProfileTest = ProfileTest;
INSTANTIATE_TEST_SUITE_P(Registry, RegistryProfileTest, testing::Values(Store::Registry));

TEST_P(RegistryProfileTest, ValuesStandUnderCompanyApplicationAndSection) {
    BYTE bytes[] = {0x10, 0xFE};
    m_app.WriteProfileInt(_T("Grid"), _T("n"), 258);
    m_app.WriteProfileString(_T("Grid"), _T("s"), _T("text"));
    m_app.WriteProfileBinary(_T("Grid\\DefaultLayout"), _T("State"), bytes, 2);

    DWORD number = 0;
    DWORD size = sizeof(number);
    const LPCTSTR section = _T("Software\\KyFrameworkTests\\Framework Tests\\Grid");
    EXPECT_EQ(::RegGetValue(HKEY_CURRENT_USER, section, _T("n"), RRF_RT_REG_DWORD, nullptr, &number, &size), 0);
    EXPECT_EQ(number, 258u);
    TCHAR text[16];
    size = sizeof(text);
    EXPECT_EQ(::RegGetValue(HKEY_CURRENT_USER, section, _T("s"), RRF_RT_REG_SZ, nullptr, text, &size), 0);
    EXPECT_STREQ(text, _T("text"));
    BYTE read[4] = {};
    size = sizeof(read);
    EXPECT_EQ(::RegGetValue(HKEY_CURRENT_USER, _T("Software\\KyFrameworkTests\\Framework Tests\\Grid\\DefaultLayout"),
                            _T("State"), RRF_RT_REG_BINARY, nullptr, read, &size),
              0);
    EXPECT_EQ(size, 2u);
    EXPECT_EQ(read[1], 0xFE);

    HKEY key = m_app.GetSectionKey(_T("Grid"));
    size = sizeof(number);
    EXPECT_EQ(::RegQueryValueEx(key, _T("n"), nullptr, nullptr, reinterpret_cast<BYTE*>(&number), &size), 0);
    ::RegCloseKey(key);
}

TEST_P(RegistryProfileTest, TheSystemsOwnToolReadsThem) {
    BYTE bytes[] = {0xCA, 0xFE};
    m_app.WriteProfileBinary(_T("Grid"), _T("State"), bytes, 2);
    FILE* const pipe = _popen("reg query \"HKCU\\Software\\KyFrameworkTests\\Framework Tests\\Grid\" /v State", "r");
    ASSERT_NE(pipe, nullptr);
    std::string output;
    char line[256];
    while (fgets(line, sizeof(line), pipe) != nullptr)
        output += line;
    EXPECT_EQ(_pclose(pipe), 0);
    EXPECT_NE(output.find("REG_BINARY"), std::string::npos) << output;
    EXPECT_NE(output.find("CAFE"), std::string::npos) << output;
}

TEST_P(RegistryProfileTest, TextsOfOtherWritersMayLackTheirTerminator) {
    HKEY key = m_app.GetSectionKey(_T("Foreign"));
    ::RegSetValueEx(key, _T("s"), 0, REG_SZ, reinterpret_cast<const BYTE*>(L"abc"), 6);
    ::RegCloseKey(key);
    EXPECT_EQ(m_app.GetProfileString(_T("Foreign"), _T("s")), _T("abc"));
}

using IniProfileTest = ProfileTest;
INSTANTIATE_TEST_SUITE_P(Ini, IniProfileTest, testing::Values(Store::Ini));

TEST_P(IniProfileTest, LinesStandInSectionsOfTheFile) {
    BYTE bytes[] = {0x1F, 0xAB};
    m_app.WriteProfileInt(_T("Settings"), _T("Count"), 5);
    m_app.WriteProfileBinary(_T("Grid\\DefaultLayout"), _T("State"), bytes, 2);
    std::ifstream file(std::filesystem::path(m_file.GetString()));
    std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    EXPECT_NE(text.find("[Settings]"), std::string::npos) << text;
    EXPECT_NE(text.find("Count=5"), std::string::npos) << text;
    EXPECT_NE(text.find("[Grid\\DefaultLayout]"), std::string::npos) << text;
    EXPECT_NE(text.find("State=PBLK"), std::string::npos) << text;
}

TEST_P(IniProfileTest, BytesThatAreNoneAreRefused) {
    m_app.WriteProfileString(_T("S"), _T("b"), _T("hello"));
    EXPECT_FALSE(ReadBytes(_T("S"), _T("b")));
}

TEST(ProfileNames, TheRegistryTakesTheApplicationsNameAndTheFileTheProgramsName) {
    CTestApplication app;
    EXPECT_STREQ(app.m_pszProfileName, _T("framework_tests.INI"));
    EXPECT_EQ(app.m_pszRegistryKey, nullptr);
    EXPECT_EQ(app.GetAppRegistryKey(), nullptr);
    app.SetRegistryKey(company);
    EXPECT_STREQ(app.m_pszRegistryKey, company);
    EXPECT_STREQ(app.m_pszProfileName, _T("Framework Tests"));
}

} // namespace
