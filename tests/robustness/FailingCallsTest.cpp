// One call of the system or of the heap fails, and each in turn: nothing crashes, nothing is lost, no mouse stays
// captured, nothing is half written, and the next time everything works. Here: drawing, pictures and pages, clipboard.
#include "Scenario.h"

#include "../support/ClipboardContent.h"

#include <reportgrid/KyReportControlHelpers.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

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

TEST(FailingCalls, LifeOfAGrid) { Try<Life>(); }

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

} // namespace
