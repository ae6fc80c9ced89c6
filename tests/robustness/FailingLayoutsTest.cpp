// One call fails, and each in turn, while layouts are saved and loaded.
#include "Scenario.h"

#include <string>
#include <vector>

namespace {

constexpr wchar_t section[] = L"Layout";

/// Two layouts, and what the profile holds of them.
class Layouts : public Scenario {
public:
    explicit Layouts(const char* name) : Scenario(name) {
        Arrange(false);
        m_first = Stored();
        Arrange(true);
        m_second = Stored();
    }
    ~Layouts() override { RobustnessApp::Get().RemoveProfile(); }

protected:
    using Bytes = std::vector<BYTE>;

    void Arrange(bool second) {
        CXTPReportColumns& columns = *m_rig.grid->GetColumns();
        columns.Find(CString(L"name"))->SetWidth(second ? 77 : 100);
        columns.Find(CString(L"number"))->SetVisible(!second);
        columns.SetSortColumn(columns.Find(CString(L"name")), second);
    }
    Bytes Stored() {
        m_rig.grid->SaveReportState(section);
        return Value();
    }
    static Bytes Value() {
        const calltable::Pause pause;
        BYTE* data = nullptr;
        UINT size = 0;
        if (!AfxGetApp()->GetProfileBinary(section, L"State", &data, &size))
            return {};
        const Bytes bytes(data, data + size);
        delete[] data;
        return bytes;
    }
    GridRig m_rig;
    Bytes m_first, m_second;
};

/// Another layout is written over the one in the profile.
class SaveLayout : public Layouts {
public:
    explicit SaveLayout(const char* name) : Layouts(name) {}
    void Act() override {
        {
            const calltable::Pause pause;
            m_isSecond = !m_isSecond;
            Arrange(m_isSecond);
            m_rig.Paint();
        }
        m_rig.grid->SaveReportState(section);
    }
    std::string Broken() override {
        const Bytes value = Value();
        return value == m_first || value == m_second ? "" : "a value that nobody wrote";
    }
    std::string Wrong() override { return Value() == (m_isSecond ? m_second : m_first) ? "" : "the former value"; }

private:
    bool m_isSecond = false;
};

class SaveLayoutInRegistry : public SaveLayout {
public:
    SaveLayoutInRegistry() : SaveLayout("save a layout, registry") {}
};

class SaveLayoutInIniFile : public SaveLayout {
public:
    SaveLayoutInIniFile() : SaveLayout("save a layout, INI file") {}
};

TEST(FailingCalls, SavingALayoutInTheRegistry) {
    RobustnessApp::Get().UseRegistry();
    Try<SaveLayoutInRegistry>();
}

TEST(FailingCalls, SavingALayoutInAnIniFile) {
    RobustnessApp::Get().UseIniFile();
    Try<SaveLayoutInIniFile>();
    RobustnessApp::Get().UseRegistry();
}

/// The layout in the profile is applied to a grid that looks otherwise.
class LoadLayout : public Layouts {
public:
    explicit LoadLayout(const char* name) : Layouts(name) {
        m_expected = m_rig.ColumnsAsText();
        Arrange(false);
        m_former = m_rig.ColumnsAsText();
    }
    void Act() override {
        {
            const calltable::Pause pause;
            Arrange(false);
            m_rig.grid->Populate();
            m_rig.SelectThirdRow(); // want of memory may have cost the selection
            m_rig.Paint();
        }
        m_rig.grid->LoadReportState(section);
        m_rig.Paint();
    }
    std::string Broken() override {
        const std::string now = m_rig.ColumnsAsText();
        return now == m_expected || now == m_former ? "" : "neither layout: " + now;
    }
    std::string Wrong() override {
        const std::string now = m_rig.ColumnsAsText();
        return now == m_expected ? "" : "not the saved layout: " + now;
    }

private:
    std::string m_expected, m_former;
};

class LoadLayoutFromRegistry : public LoadLayout {
public:
    LoadLayoutFromRegistry() : LoadLayout("load a layout, registry") {}
};

class LoadLayoutFromIniFile : public LoadLayout {
public:
    LoadLayoutFromIniFile() : LoadLayout("load a layout, INI file") {}
};

TEST(FailingCalls, LoadingALayoutFromTheRegistry) {
    RobustnessApp::Get().UseRegistry();
    Try<LoadLayoutFromRegistry>();
}

TEST(FailingCalls, LoadingALayoutFromAnIniFile) {
    RobustnessApp::Get().UseIniFile();
    Try<LoadLayoutFromIniFile>();
    RobustnessApp::Get().UseRegistry();
}

} // namespace
