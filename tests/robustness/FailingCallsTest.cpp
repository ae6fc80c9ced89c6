// One call of the system or of the heap fails, and each in turn: nothing crashes, nothing is lost, no mouse stays
// captured, nothing is half written, and the next time everything works.
#include "Rig.h"

#include "../support/ClipboardContent.h"

#include <reportgrid/KyInPlaceEdit.h>
#include <reportgrid/KyReportControlHelpers.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <new>

namespace {

namespace fs = std::filesystem;

/// Something that a user or a host does, again and again.
class Scenario {
public:
    explicit Scenario(const char* name) : m_name(name) {}
    virtual ~Scenario() = default;
    const char* Name() const { return m_name; }

    /// What is done while a call fails. May throw what the libraries let pass to a host.
    virtual void Act() = 0;
    /// What must hold after a failure; a sentence about what does not, or nothing.
    virtual std::string Broken() { return {}; }
    /// What must hold when no call has failed; a sentence about what does not, or nothing.
    virtual std::string Wrong() = 0;

private:
    const char* m_name;
};

/// Does it as a host would, with exceptions that the libraries let pass caught. False when there was one.
bool Done(Scenario& scenario) {
    try {
        scenario.Act();
        return true;
    } catch (CException* exception) {
        const calltable::Pause pause;
        exception->Delete();
    } catch (const std::exception&) {
    }
    return false;
}

class Trial {
public:
    explicit Trial(Scenario& scenario) : m_scenario(scenario) {}

    void Run() {
        for (int i = 0; i < 3; ++i) { // what is made once per process is made
            ASSERT_TRUE(Done(m_scenario)) << m_scenario.Name();
            BecomeIdle();
            ASSERT_EQ(m_scenario.Wrong(), "") << m_scenario.Name();
        }
        BecomeIdle();
        calltable::Begin(0);
        Done(m_scenario);
        const unsigned calls = calltable::End().calls;
        BecomeIdle();
        ASSERT_EQ(m_scenario.Wrong(), "") << m_scenario.Name();
        ASSERT_GT(calls, 0u) << m_scenario.Name();
        const unsigned step = IsLong() || calls <= ShortScenario ? 1 : calls / SliceOfCalls;
        unsigned failed = 0;
        // Beyond the count as well: a failure may lead to calls that success does without.
        for (unsigned call = 1; call <= calls + calls / 8; call += step)
            failed += Fail(call);
        std::cout << "[ failing  ] " << m_scenario.Name() << ": " << calls << " calls, " << failed << " made to fail"
                  << std::endl;
        EXPECT_GT(failed, 0u);
    }

private:
    // As a test, every call of a short scenario fails, and so many calls of a longer one.
    static constexpr unsigned ShortScenario = 100;
    static constexpr unsigned SliceOfCalls = 40;

    unsigned Fail(unsigned call) {
        BecomeIdle();
        const Counts before;
        calltable::Begin(call);
        Done(m_scenario);
        const calltable::Outcome outcome = calltable::End();
        if (outcome.failed == nullptr)
            return 0;
        const auto what = [&] {
            return std::string(m_scenario.Name()) + ", call " + std::to_string(call) + ", " + outcome.failed +
                   " fails, called by " + outcome.Where();
        };
        BecomeIdle();
        EXPECT_EQ(::GetCapture(), nullptr) << what();
        ::ReleaseCapture();
        EXPECT_EQ(m_scenario.Broken(), "") << what();
        EXPECT_TRUE(Done(m_scenario)) << what();
        BecomeIdle();
        EXPECT_EQ(m_scenario.Wrong(), "") << what();
        BecomeIdle();
        EXPECT_EQ(Counts().ChangesSince(before), "") << what();
        return 1;
    }

    Scenario& m_scenario;
};

template <class S>
void Try() {
    S scenario;
    Trial(scenario).Run();
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

/// The whole grid is painted anew.
class Draw : public Scenario {
public:
    explicit Draw(const char* name = "draw") : Scenario(name) {
        m_rig.Paint();
        m_expected = m_rig.Picture();
    }
    void Act() override { m_rig.Paint(); }
    std::string Wrong() override { return m_rig.Picture() == m_expected ? "" : "another picture"; }

protected:
    GridRig m_rig;
    std::vector<std::uint32_t> m_expected;
};

TEST(FailingCalls, Drawing) { Try<Draw>(); }

TEST(FailingCalls, PlotsLookTheSameOnADeviceThatShowsNoBitmaps) {
    GridRig rig;
    rig.Paint();
    const auto expected = rig.Picture();
    int failed = 0;
    for (unsigned call = 1; failed < 3; ++call) {
        calltable::Begin(call);
        rig.Paint();
        const calltable::Outcome outcome = calltable::End();
        ASSERT_NE(outcome.failed, nullptr) << "no call beyond " << call;
        if (std::string_view(outcome.failed) != "StretchDIBits")
            continue;
        ++failed;
        EXPECT_TRUE(rig.Picture() == expected) << "call " << call;
    }
}

/// A window with a grid is made, painted and closed; the grid loads its layout and saves it when it goes.
class Life : public Scenario {
public:
    Life() : Scenario("life of a grid") {
        m_expected = m_rig.Picture();
        m_rig.Destroy();
    }
    void Act() override {
        const Closing closing{m_rig};
        m_rig.Create();
        m_rig.grid->AutoLoadReportState(L"Life");
        m_rig.Paint();
        const calltable::Pause pause;
        m_picture = m_rig.grid->m_hWnd ? m_rig.Picture() : std::vector<std::uint32_t>();
    }
    std::string Wrong() override {
        const std::string wrong = m_picture == m_expected ? "" : "another picture";
        m_picture = std::vector<std::uint32_t>();
        return wrong;
    }

private:
    struct Closing {
        GridRig& rig;
        ~Closing() { rig.Destroy(); }
    };
    GridRig m_rig;
    std::vector<std::uint32_t> m_expected, m_picture;
};

/// The theme changes, and back, each time with a painting.
class ThemeChange : public Draw {
public:
    ThemeChange() : Draw("theme change") {
        // The first one brings the theme that the grid comes back to.
        Change(3);
        Change(11);
        m_expected = m_rig.Picture();
    }
    void Act() override {
        Change(3);
        Change(11);
    }

private:
    void Change(int theme) {
        m_rig.grid->SendMessage(0x08B1, static_cast<WPARAM>(theme), 0);
        m_rig.Paint();
    }
};

TEST(FailingCalls, ThemeChange) { Try<ThemeChange>(); }

// --- Saving a bitmap -------------------------------------------------------------------------------------------------

std::string ReadAll(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

class SaveBitmap : public Scenario {
public:
    SaveBitmap() : Scenario("save a bitmap") {
        m_path = fs::temp_directory_path() / "robustness.bmp";
        m_rig.Bar(0).SaveAs(*m_rig.grid, m_path.c_str(), 100, 22);
        m_expected = ReadAll(m_path);
    }
    ~SaveBitmap() override { Remove(); }
    void Act() override {
        Remove();
        m_rig.Bar(0).SaveAs(*m_rig.grid, m_path.c_str(), 100, 22);
    }
    std::string Broken() override {
        const std::string bytes = ReadAll(m_path);
        // A file that is there may show less than it should, but it is a whole bitmap.
        return bytes.empty() && !fs::exists(m_path) ? ""
               : bytes.size() == m_expected.size()  ? ""
                                                    : "a file of " + std::to_string(bytes.size()) + " bytes";
    }
    std::string Wrong() override { return ReadAll(m_path) == m_expected ? "" : "another file"; }

private:
    void Remove() {
        const calltable::Pause pause;
        ::DeleteFileW(m_path.c_str());
    }
    GridRig m_rig;
    fs::path m_path;
    std::string m_expected;
};

TEST(FailingCalls, SavingABitmap) { Try<SaveBitmap>(); }

// --- Export ----------------------------------------------------------------------------------------------------------

/// The grid as an HTML table, with its bars as pictures.
class SaveAsHtml : public Scenario {
public:
    SaveAsHtml() : Scenario("save as HTML") {
        m_prefix = (fs::temp_directory_path() / "robustness").wstring();
        m_rig.grid->GetRecords()->GetAt(0)->GetChilds()->Add(new CXTPReportRecord);
        m_expected = KyReportControlHelpers::SaveAsHtml(*m_rig.grid, m_prefix.c_str());
    }
    ~SaveAsHtml() override { RemovePictures(m_prefix); }
    void Act() override { m_html = KyReportControlHelpers::SaveAsHtml(*m_rig.grid, m_prefix.c_str()); }
    std::string Broken() override {
        const std::string html = std::exchange(m_html, std::string());
        if (m_rig.grid->GetRows()->GetCount() != m_rig.grid->GetRecords()->GetCount())
            return "rows are missing";
        return html == m_expected || html == "<table>" ? "" : "half a table: " + html;
    }
    std::string Wrong() override { return std::exchange(m_html, std::string()) == m_expected ? "" : "another table"; }

private:
    GridRig m_rig;
    std::wstring m_prefix;
    std::string m_expected, m_html;
};

TEST(FailingCalls, SavingAsHtml) { Try<SaveAsHtml>(); }

/// The whole grid goes to the clipboard.
class CopyGrid : public Scenario {
public:
    CopyGrid() : Scenario("copy") {
        KyReportControlHelpers::CopyToClipboard(*m_rig.grid, m_prefix.c_str());
        m_text = ClipboardContent::Text();
        m_html = Html();
    }
    ~CopyGrid() override { RemovePictures(m_prefix); }
    void Act() override {
        {
            const calltable::Pause pause;
            ClipboardContent::Put(L"former");
        }
        KyReportControlHelpers::CopyToClipboard(*m_rig.grid, m_prefix.c_str());
    }
    std::string Broken() override {
        const calltable::Pause pause;
        if (::GetOpenClipboardWindow() != nullptr)
            return "the clipboard is still open";
        if (m_rig.grid->GetSelectedRows()->GetCount() != 0)
            return "rows are still selected";
        const std::wstring text = ClipboardContent::Text();
        const std::string html = Html();
        // What could not be put there is missing as a whole.
        if (text != m_text && text != L"former" && !text.empty())
            return "another text";
        return html == m_html || html.empty() || html.find("<body><table></body>") != std::string::npos
                   ? ""
                   : "half a document";
    }
    std::string Wrong() override {
        const calltable::Pause pause;
        return ClipboardContent::Text() == m_text && Html() == m_html ? "" : "not the whole grid";
    }

private:
    static std::string Html() { return ClipboardContent::Bytes(::RegisterClipboardFormatW(L"HTML Format")); }

    GridRig m_rig;
    std::wstring m_prefix = (fs::temp_directory_path() / "robustness").wstring();
    std::wstring m_text;
    std::string m_html;
};

TEST(FailingCalls, CopyingToTheClipboard) { Try<CopyGrid>(); }

/// Rows are cut, and pasted again.
class CutAndPaste : public Scenario {
public:
    CutAndPaste() : Scenario("cut and paste") {
        m_owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 300, 200), nullptr, 0);
        m_grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_owner, 1);
        m_grid.AddColumn(new CXTPReportColumn(0, L"text", 100));
        for (int i = 0; i < RowCount; ++i)
            m_grid.AddRecord(new CXTPReportRecord)->AddItem(new CXTPReportRecordItemText(std::to_wstring(i).c_str()));
        m_grid.Populate();
    }
    ~CutAndPaste() override {
        m_grid.DestroyWindow();
        m_owner.DestroyWindow();
    }
    void Act() override {
        {
            const calltable::Pause pause; // each time from the same rows, whatever a failure has left
            while (m_grid.GetRecords()->GetCount() > RowCount)
                m_grid.GetRecords()->RemoveAt(0);
            while (m_grid.GetRecords()->GetCount() < RowCount)
                m_grid.AddRecord(new CXTPReportRecord)->AddItem(new CXTPReportRecordItemText(L"more"));
            m_grid.Populate();
            m_grid.GetSelectedRows()->SelectBlock(1, 2);
            ClipboardContent::Put(L"former");
        }
        m_cut = -1;
        m_grid.Cut();
        m_cut = m_grid.GetRecords()->GetCount();
        m_grid.Paste();
    }
    std::string Broken() override {
        if (::GetOpenClipboardWindow() != nullptr)
            return "the clipboard is still open";
        const int left = m_cut < 0 ? m_grid.GetRecords()->GetCount() : m_cut;
        // Rows that are gone from the grid are on the clipboard.
        if (left == RowCount - 2) {
            const calltable::Pause pause;
            const std::wstring text = ClipboardContent::Text();
            if (std::count(text.begin(), text.end(), L'\n') != 2 &&
                ClipboardContent::Size(::RegisterClipboardFormatW(L"XTP Report Records")) == 0)
                return "rows were lost";
        }
        return left == RowCount || left == RowCount - 2 ? "" : "one row was cut";
    }
    std::string Wrong() override {
        return m_cut == RowCount - 2 && m_grid.GetRecords()->GetCount() == RowCount ? "" : "not cut and pasted";
    }

private:
    class Grid : public CXTPReportControl {
        BOOL CanCut() override { return TRUE; }
        BOOL CanPaste() override { return TRUE; }
    };
    static constexpr int RowCount = 5;
    CWnd m_owner;
    Grid m_grid;
    int m_cut = 0;
};

TEST(FailingCalls, CuttingAndPasting) { Try<CutAndPaste>(); }

// --- Rows below each other -------------------------------------------------------------------------------------------

/// A grid of records with children, whose rows are looked at afterwards.
class Outline : public Scenario {
public:
    explicit Outline(const char* name) : Scenario(name) {
        m_owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 300, 400), nullptr, 0);
        m_grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 400), &m_owner, 1);
        m_grid.AddColumn(new CXTPReportColumn(0, L"text", 100));
        m_grid.AddColumn(new CXTPReportColumn(1, L"kind", 100));
        m_grid.GetColumns()->GetAt(0)->SetTreeColumn(TRUE);
        AddRecords();
        m_grid.Populate();
    }
    ~Outline() override {
        m_grid.DestroyWindow();
        m_owner.DestroyWindow();
    }
    std::string Broken() override {
        CXTPReportRows& rows = *m_grid.GetRows();
        for (int i = 0; i < rows.GetCount(); ++i) {
            CXTPReportRow* const row = rows.GetAt(i);
            if (!row || row->GetIndex() != i || (row->GetRecord() && rows.Find(row->GetRecord()) != row))
                return "a row is not where it should be";
            if (row->GetParentRow() && row->GetParentRow()->GetIndex() >= i)
                return "a row stands above its parent";
        }
        if (m_grid.GetSelectedRows()->GetRanges().Contains(rows.GetCount()))
            return "more rows are selected than there are";
        return !m_grid.GetFocusedRow() || m_grid.GetFocusedRow()->GetIndex() < rows.GetCount() ? "" : "no such row";
    }

protected:
    void AddRecords() {
        for (int i = 0; i < 6; ++i) {
            CXTPReportRecord* const record = Add(m_grid.GetRecords(), i);
            if (i % 2 == 0)
                Add(record->GetChilds(), 10 + i);
        }
    }
    static CXTPReportRecord* Add(CXTPReportRecords* records, int number) {
        CXTPReportRecord* const record = records->Add(new CXTPReportRecord);
        record->AddItem(new CXTPReportRecordItemText(std::to_wstring(number).c_str()));
        record->AddItem(new CXTPReportRecordItemText(number % 3 ? L"some" : L"third"));
        return record;
    }
    CWnd m_owner;
    CXTPReportControl m_grid;
};

/// Rows are grouped, expanded and collapsed, one by one and all at once.
class GroupAndExpand : public Outline {
public:
    GroupAndExpand() : Outline("group and expand") {}
    void Act() override {
        CXTPReportColumns& columns = *m_grid.GetColumns();
        {
            const calltable::Pause pause; // each time from the same rows, whatever a failure has left
            columns.GetGroupsOrder()->Clear();
            m_grid.CollapseAll();
            m_grid.Populate();
            m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(1));
        }
        columns.GetGroupsOrder()->Add(columns.GetAt(1));
        m_grid.Populate();
        m_grid.ExpandAll();
        m_grid.GetRows()->GetAt(0)->SetExpanded(FALSE);
        m_grid.UpdateWindow();
        m_grid.GetRows()->GetAt(0)->SetExpanded(TRUE);
        m_grid.SendMessage(WM_KEYDOWN, VK_MULTIPLY, 1);
        m_grid.UpdateWindow();
    }
    std::string Wrong() override { return m_grid.GetRows()->GetCount() == 2 + 6 + 3 ? "" : "other rows"; }
};

TEST(FailingCalls, GroupingAndExpanding) { Try<GroupAndExpand>(); }

/// Records of several groups go at once, all those of one group among them.
class RemoveSeveral : public Outline {
public:
    RemoveSeveral() : Outline("remove several records") {}
    void Act() override {
        {
            const calltable::Pause pause;
            m_grid.ResetContent();
            AddRecords();
            CXTPReportColumnOrder& groups = *m_grid.GetColumns()->GetGroupsOrder();
            groups.Clear();
            groups.Add(m_grid.GetColumns()->GetAt(1));
            m_grid.Populate();
            m_grid.ExpandAll();
            m_grid.GetSelectedRows()->SelectBlock(1, 9);
            m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(4));
        }
        CXTPReportRecords& records = *m_grid.GetRecords();
        records.RemoveRecords({records.GetAt(0), records.GetAt(2), records.GetAt(3)});
        m_grid.UpdateWindow();
    }
    std::string Broken() override {
        const int records = m_grid.GetRecords()->GetCount(), rows = m_grid.GetRows()->GetCount();
        // 14 below 4 has a row besides, and so have the groups.
        if (!(records == 6 && rows == 2 + 6 + 3) && !(records == 3 && rows == 1 + 3 + 1))
            return "some of them are gone";
        return Outline::Broken();
    }
    std::string Wrong() override { return m_grid.GetRecords()->GetCount() == 3 ? Broken() : "all are there"; }
};

TEST(FailingCalls, RemovingSeveral) { Try<RemoveSeveral>(); }

/// A filter is typed and cleared.
class Filter : public Outline {
public:
    Filter() : Outline("filter") {
        m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 380, 100, 400), &m_owner, 2);
        m_edit.SetReportCtrl(&m_grid);
    }
    ~Filter() override { m_edit.DestroyWindow(); }
    void Act() override {
        {
            const calltable::Pause pause;
            m_edit.SetWindowText(L"");
            m_grid.SetFilterText(L"");
            m_grid.Populate();
        }
        m_found = -1;
        m_edit.SetWindowText(L"third");
        m_found = m_grid.GetRows()->GetCount();
        m_edit.SetWindowText(L"");
        m_grid.UpdateWindow();
    }
    std::string Wrong() override {
        // 0 and 3, and 2 above 12; 10 and 14 are none.
        return m_found == 4 && m_grid.GetRows()->GetCount() == 6 ? "" : "other rows";
    }

private:
    CXTPReportFilterEditControl m_edit;
    int m_found = 0;
};

TEST(FailingCalls, Filtering) { Try<Filter>(); }

// --- Layouts ---------------------------------------------------------------------------------------------------------

constexpr wchar_t section[] = L"Layout";

/// Columns as "name width visible", from left to right.
std::string Describe(GridRig& rig) {
    std::string text;
    CXTPReportColumns& columns = *rig.grid->GetColumns();
    for (int i = 0; i < columns.GetCount(); ++i) {
        const CString name = columns.GetAt(i)->GetInternalName();
        text += std::string(name.GetString(), name.GetString() + name.GetLength()) + " " +
                std::to_string(columns.GetAt(i)->GetWidth()) + (columns.GetAt(i)->IsVisible() ? "+ " : "- ");
    }
    return text + "sorted by " + std::to_string(columns.GetSortOrder()->GetCount());
}

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
        m_expected = Describe(m_rig);
        Arrange(false);
        m_former = Describe(m_rig);
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
        const std::string now = Describe(m_rig);
        return now == m_expected || now == m_former ? "" : "neither layout: " + now;
    }
    std::string Wrong() override {
        const std::string now = Describe(m_rig);
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

// --- The column chooser ----------------------------------------------------------------------------------------------

/// Leaves the next menu of this thread with a key, from a timer that the menu's own loop dispatches. Takes no memory.
class MenuLeaver {
public:
    MenuLeaver() { m_timer = ::SetTimer(nullptr, 0, 10, &OnTimer); }
    ~MenuLeaver() { ::KillTimer(nullptr, m_timer); }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        const calltable::Pause pause;
        const HWND menu = ::FindWindowW(L"#32768", nullptr);
        if (menu == nullptr || !::IsWindowVisible(menu))
            return;
        for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN})
            ::PostMessageW(menu, WM_KEYDOWN, key, 1);
    }
    UINT_PTR m_timer;
};

/// The column chooser hides the second column, or shows it again.
class Chooser : public Scenario {
public:
    Chooser() : Scenario("column chooser") {
        m_rig.grid->EnableShowHideColumns({});
        m_wasVisible = IsVisible();
    }
    void Act() override {
        m_wasVisible = IsVisible();
        {
            const calltable::Pause pause;
            m_leaver = std::make_unique<MenuLeaver>();
        }
        struct Done {
            Chooser& chooser;
            ~Done() {
                const calltable::Pause pause;
                chooser.m_leaver.reset();
            }
        } const done{*this};
        const CPoint point = m_rig.HeaderOf(0);
        ::SendMessageW(m_rig.grid->m_hWnd, WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        m_rig.Paint();
    }
    std::string Wrong() override { return IsVisible() != m_wasVisible ? "" : "the column was not toggled"; }

private:
    bool IsVisible() { return m_rig.grid->GetColumns()->GetAt(1)->IsVisible() != FALSE; }
    GridRig m_rig;
    std::unique_ptr<MenuLeaver> m_leaver;
    bool m_wasVisible = false;
};

TEST(FailingCalls, ColumnChooser) { Try<Chooser>(); }

// --- Dragging --------------------------------------------------------------------------------------------------------

/// The target of a bar is dragged by a few pixels, one way and then the other.
class DragMark : public Scenario {
public:
    DragMark() : Scenario("drag a mark") { m_connection = Connect(); }
    void Act() override {
        {
            const calltable::Pause pause; // each time from the same place, whatever a failed drag has left
            m_rig.Bar(3).SetTarget(50);
            m_rig.Paint();
        }
        const CRect rect = m_rig.BarRect(3);
        const int y = rect.CenterPoint().y;
        const int from = rect.left + rect.Width() / 2;
        m_reported = 0;
        m_rig.Mouse(WM_MOUSEMOVE, CPoint(from, y));
        m_rig.Mouse(WM_LBUTTONDOWN, CPoint(from, y));
        for (int x = from + 2; x <= from + 20; x += 6) {
            m_rig.Mouse(WM_MOUSEMOVE, CPoint(x, y));
            m_rig.grid->UpdateWindow();
        }
        m_rig.Mouse(WM_LBUTTONUP, CPoint(from + 20, y));
        m_rig.Paint();
    }
    std::string Broken() override {
        const double target = m_rig.Bar(3).GetTarget();
        return target >= 50 && target < 70 ? "" : "a target nobody dragged to: " + std::to_string(target);
    }
    std::string Wrong() override {
        return m_rig.Bar(3).GetTarget() > 55 && m_reported == 1 ? "" : "the mark was not dragged";
    }

private:
    boost::signals2::scoped_connection Connect() {
        return m_rig.Bar(3).m_valueChanged.connect([this](float, float, float) { ++m_reported; });
    }
    GridRig m_rig;
    int m_reported = 0;
    boost::signals2::scoped_connection m_connection;
};

TEST(FailingCalls, DraggingAMark) { Try<DragMark>(); }

/// A column is dragged before another one, and back.
class DragColumn : public Scenario {
public:
    DragColumn() : Scenario("drag a column") { m_expected = Describe(m_rig); }
    void Act() override {
        {
            const calltable::Pause pause;
            CXTPReportColumns& columns = *m_rig.grid->GetColumns();
            columns.ChangeColumnOrder(0, columns.IndexOf(columns.Find(CString(L"name"))));
            m_rig.Paint();
        }
        const CPoint from = m_rig.HeaderOf(0);
        const CPoint to = m_rig.HeaderOf(1) + CPoint(30, 0);
        m_rig.Mouse(WM_LBUTTONDOWN, from);
        for (int step = 1; step <= 4; ++step) {
            m_rig.Mouse(WM_MOUSEMOVE, CPoint(from.x + (to.x - from.x) * step / 4, from.y));
            m_rig.grid->UpdateWindow();
        }
        m_rig.Mouse(WM_LBUTTONUP, to);
        m_rig.Paint();
    }
    std::string Broken() override {
        return m_rig.grid->GetMouseMode() == xtpReportMouseNothing ? "" : "a gesture goes on";
    }
    std::string Wrong() override {
        return m_rig.grid->GetColumns()->GetAt(1)->GetInternalName() == L"name" ? "" : "not moved: " + Describe(m_rig);
    }

private:
    GridRig m_rig;
    std::string m_expected;
};

TEST(FailingCalls, DraggingAColumn) { Try<DragColumn>(); }

// --- Editing ---------------------------------------------------------------------------------------------------------

/// A text is typed into a cell by keys, then a number into the one beside it, which is reached by Tab.
class EditCells : public Scenario {
public:
    EditCells() : Scenario("edit two cells") {
        m_rig.grid->AllowEdit(TRUE);
        m_rig.grid->SetInplaceEdit(new KyInPlaceEdit);
        // A view whose size is not to be had scrolls, and the list of moved rows keeps its memory.
        m_rig.grid->SetTopRow(1);
        m_rig.grid->SetTopRow(0);
    }
    void Act() override {
        {
            const calltable::Pause pause;
            ++m_count;
            m_typed.Format(L"%d", 1000 + m_count);
            m_rig.grid->EditItem(nullptr); // whatever a failure has left
            Text().SetValue(L"former");
            Number().SetValue(-1);
            m_rig.grid->SetFocus();
            m_rig.grid->SetFocusedRow(m_rig.grid->GetRows()->GetAt(2));
            m_rig.grid->SetFocusedColumn(m_rig.grid->GetColumns()->GetAt(0));
        }
        ::SendMessageW(m_rig.grid->m_hWnd, WM_KEYDOWN, VK_F2, 1);
        Type(VK_TAB);
        Type(VK_RETURN);
        m_rig.Paint();
    }
    std::string Broken() override {
        if (m_rig.grid->GetActiveItem() != nullptr && m_rig.grid->GetInplaceEdit()->m_hWnd == nullptr)
            return "an editor without a window";
        const CString text = Text().GetValue();
        return text == L"former" || text == m_typed ? "" : "a text that nobody typed";
    }
    std::string Wrong() override {
        const bool isTaken = Text().GetValue() == m_typed && Number().GetValue() == 1000 + m_count;
        return isTaken && m_rig.grid->GetActiveItem() == nullptr ? "" : "the cells were not edited";
    }

private:
    CXTPReportRecord& Record() { return *m_rig.grid->GetRows()->GetAt(2)->GetRecord(); }
    CXTPReportRecordItemText& Text() { return static_cast<CXTPReportRecordItemText&>(*Record().GetItem(0)); }
    CXTPReportRecordItemNumber& Number() { return static_cast<CXTPReportRecordItemNumber&>(*Record().GetItem(1)); }
    void Type(WPARAM key) {
        if (m_rig.grid->GetActiveItem() == nullptr)
            return;
        const HWND edit = m_rig.grid->GetInplaceEdit()->m_hWnd;
        ::SendMessageW(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(m_typed.GetString()));
        ::SendMessageW(edit, WM_KEYDOWN, key, 1);
    }
    GridRig m_rig;
    CString m_typed;
    int m_count = 0;
};

TEST(FailingCalls, EditingCells) { Try<EditCells>(); }

// --- Previews --------------------------------------------------------------------------------------------------------

/// Texts below the cells are measured, and wrapped for another width and back.
class ShowPreviews : public Scenario {
public:
    ShowPreviews() : Scenario("previews") {
        for (int i = 0; i < Grid().GetRecords()->GetCount(); i += 2)
            Grid().GetRecords()->GetAt(i)->SetPreviewItem(new CXTPReportRecordItemPreview(
                _T("words that are wrapped in as many lines as they need, or in three")));
        Grid().EnablePreviewMode(TRUE);
        Grid().GetSelectedRows()->Clear(); // want of memory may cost the selection
        m_rig.Paint();
        m_expected = Tops();
    }
    void Act() override {
        Grid().Populate();
        CRect rc;
        Grid().GetWindowRect(&rc);
        Grid().SetWindowPos(nullptr, 0, 0, rc.Width() / 2, rc.Height(), SWP_NOMOVE | SWP_NOZORDER);
        m_rig.Paint();
        Grid().SetWindowPos(nullptr, 0, 0, rc.Width(), rc.Height(), SWP_NOMOVE | SWP_NOZORDER);
        m_rig.Paint();
    }
    std::string Broken() override {
        for (int i = 1; i < Grid().GetRows()->GetCount(); ++i)
            if (Grid().GetRowRect(i).top != Grid().GetRowRect(i - 1).bottom)
                return "rows do not stand under each other";
        return Grid().GetRows()->GetCount() == Grid().GetRecords()->GetCount() ? "" : "rows came or went";
    }
    std::string Wrong() override { return Tops() == m_expected ? "" : "other heights"; }

private:
    CXTPReportControl& Grid() { return *m_rig.grid; }
    std::vector<int> Tops() {
        std::vector<int> tops;
        for (int i = 0; i < Grid().GetRows()->GetCount(); ++i)
            tops.push_back(Grid().GetRowRect(i).top);
        return tops;
    }
    GridRig m_rig;
    std::vector<int> m_expected;
};

TEST(FailingCalls, Previews) { Try<ShowPreviews>(); }

TEST(FailingCalls, LifeOfAGrid) { Try<Life>(); }

} // namespace
