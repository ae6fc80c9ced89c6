// The application object of the library's tests, and fixtures that give each test a profile of its own.
#pragma once

#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include <string>

/// A host application without windows, whose profile a test can point to the registry or to an INI file.
class KyTestApp : public CWinApp {
public:
    KyTestApp();
    static KyTestApp& Get();

    /// HKCU\Software\Ky Controls Tests\KyTest, emptied.
    void UseEmptyRegistry();
    /// An INI file in the temporary folder, emptied.
    void UseEmptyIniFile();
    /// Removes what the profile in use holds.
    void RemoveProfile();
};

/// Runs each test on an empty registry profile.
class ProfileTest : public ::testing::Test {
protected:
    void SetUp() override { KyTestApp::Get().UseEmptyRegistry(); }
    void TearDown() override { KyTestApp::Get().RemoveProfile(); }
};

enum class Store { Registry, IniFile };

/// Runs each test on an empty profile of either kind.
class AnyProfileTest : public ::testing::TestWithParam<Store> {
protected:
    void SetUp() override {
        if (GetParam() == Store::Registry)
            KyTestApp::Get().UseEmptyRegistry();
        else
            KyTestApp::Get().UseEmptyIniFile();
    }
    void TearDown() override { KyTestApp::Get().RemoveProfile(); }
};
