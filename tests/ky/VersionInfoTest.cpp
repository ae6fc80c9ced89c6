// What the DLLs say about themselves in their version resources.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<BYTE> VersionResource(const std::wstring& dll) {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(::GetModuleHandleW(dll.c_str()), path, MAX_PATH);
    std::vector<BYTE> resource(::GetFileVersionInfoSizeW(path, nullptr));
    if (!resource.empty() && !::GetFileVersionInfoW(path, 0, static_cast<DWORD>(resource.size()), resource.data()))
        resource.clear();
    return resource;
}

std::wstring Text(const std::vector<BYTE>& resource, const std::wstring& name) {
    void* text = nullptr;
    UINT length = 0;
    const std::wstring path = L"\\StringFileInfo\\040904b0\\" + name;
    if (!::VerQueryValueW(resource.data(), path.c_str(), &text, &length))
        return L"";
    return static_cast<const wchar_t*>(text);
}

class VersionInfo : public testing::TestWithParam<const wchar_t*> {};

TEST_P(VersionInfo, NamesTheDllAndTheVersionOfTheProject) {
    const std::wstring name = GetParam();
    const std::vector<BYTE> resource = VersionResource(name + L".dll");
    ASSERT_FALSE(resource.empty());
    EXPECT_EQ(Text(resource, L"InternalName"), name);
    EXPECT_EQ(Text(resource, L"OriginalFilename"), name + L".dll");
    EXPECT_EQ(Text(resource, L"ProductName"), L"Ky Controls");
    EXPECT_NE(Text(resource, L"FileDescription"), L"");

    const std::string version = KY_PROJECT_VERSION;
    EXPECT_EQ(Text(resource, L"FileVersion"), std::wstring(version.begin(), version.end()));
    VS_FIXEDFILEINFO* numbers = nullptr;
    UINT length = 0;
    ASSERT_TRUE(::VerQueryValueW(resource.data(), L"\\", reinterpret_cast<void**>(&numbers), &length));
    EXPECT_EQ(std::to_string(HIWORD(numbers->dwFileVersionMS)) + "." +
                  std::to_string(LOWORD(numbers->dwFileVersionMS)) + "." +
                  std::to_string(HIWORD(numbers->dwFileVersionLS)),
              version);
    EXPECT_EQ(numbers->dwFileType, static_cast<DWORD>(VFT_DLL));
}

INSTANTIATE_TEST_SUITE_P(EachDll, VersionInfo, testing::Values(L"kyframework", L"kytoolkit", L"kyui"));

} // namespace
