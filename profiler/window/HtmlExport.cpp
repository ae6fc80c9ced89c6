// The grid as an HTML page with pictures beside it, and over the clipboard.
#include "window/HtmlExport.h"

#include "common/Translation.h"
#include "html/HtmlPage.h"
#include "reportgrid/KyReportControlHelpers.h"
#include "window/WideText.h"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// An export writes headers in the order of the columns and cells in that of the items. As long as one lives, the two
/// are the same, wherever the user has moved the columns, and nothing of it is seen.
class ColumnsInItemOrder {
public:
    explicit ColumnsInItemOrder(CXTPReportControl& grid) : m_grid(grid) {
        const CXTPReportColumns& columns = *grid.GetColumns();
        for (int i = 0; i < columns.GetCount(); ++i)
            m_former.push_back(columns.GetAt(i));
        std::vector<CXTPReportColumn*> sorted = m_former;
        std::stable_sort(sorted.begin(), sorted.end(), [](const CXTPReportColumn* a, const CXTPReportColumn* b) {
            return a->GetItemIndex() < b->GetItemIndex();
        });
        m_wasVisible = grid.IsWindowVisible() != FALSE;
        if (m_wasVisible)
            grid.SetRedraw(FALSE);
        Arrange(sorted);
    }
    ~ColumnsInItemOrder() {
        Arrange(m_former);
        if (!m_wasVisible)
            return;
        m_grid.SetRedraw(TRUE);
        m_grid.RedrawControl();
    }
    ColumnsInItemOrder(const ColumnsInItemOrder&) = delete;
    ColumnsInItemOrder& operator=(const ColumnsInItemOrder&) = delete;

private:
    void Arrange(const std::vector<CXTPReportColumn*>& wanted) {
        CXTPReportColumns& columns = *m_grid.GetColumns();
        for (std::size_t i = 0; i < wanted.size(); ++i)
            columns.ChangeColumnOrder(static_cast<int>(i), wanted[i]->GetIndex());
    }

    CXTPReportControl& m_grid;
    std::vector<CXTPReportColumn*> m_former;
    bool m_wasVisible = false;
};

CString AsText(const fs::path& path) { return path.c_str(); }

/// A folder of the program's own in the user's temporary one; empty when there is none.
fs::path TemporaryFolder() {
    std::error_code error;
    fs::path folder = fs::temp_directory_path(error);
    if (error)
        return {};
    folder /= L"Column Profiler";
    fs::create_directories(folder, error);
    return error ? fs::path() : folder;
}

} // namespace

bool ExportHtml(CXTPReportControl& grid, const CString& title, const fs::path& file) {
    std::error_code error;
    const fs::path page = fs::absolute(file, error);
    if (error)
        return false;
    const std::wstring folderName = page.stem().wstring() + L"-plots";
    const fs::path folder = page.parent_path() / folderName;
    fs::create_directory(folder, error);
    const fs::path prefix = folder / L"plot";

    std::string table;
    {
        const ColumnsInItemOrder ordered(grid);
        table = KyReportControlHelpers::SaveAsHtml(grid, prefix.c_str());
    }
    table = htmlpage::WithImagesAt(std::move(table), ToUtf8(AsText(prefix)),
                                   htmlpage::Url(ToUtf8(CString(folderName.c_str())) + "/plot"));
    fs::remove(folder, error); // does so only when it is empty

    std::ofstream stream(page, std::ios::binary);
    // Translators: the code of your language, as HTML has it: en, de, ...
    stream << htmlpage::Page(ToUtf8(title), ToUtf8(Translate("HTML", "en")), table);
    stream.close();
    return !stream.fail();
}

fs::path ExportTemporaryHtml(CXTPReportControl& grid, const CString& title) {
    const fs::path folder = TemporaryFolder();
    if (folder.empty())
        return {};
    const fs::path page = folder / L"profile.html";
    return ExportHtml(grid, title, page) ? page : fs::path();
}

bool CopyGrid(CXTPReportControl& grid) {
    const DWORD former = ::GetClipboardSequenceNumber();
    const fs::path prefix = TemporaryFolder() / L"clipboard";
    const BOOL wasMultiple = grid.IsMultipleSelection();
    {
        const ColumnsInItemOrder ordered(grid);
        grid.SetMultipleSelection(TRUE); // all rows are copied by being selected
        KyReportControlHelpers::CopyToClipboard(grid, prefix.c_str());
        grid.SetMultipleSelection(wasMultiple);
    }
    if (CXTPReportRow* const focused = grid.GetFocusedRow())
        grid.GetSelectedRows()->Select(focused);
    return ::GetClipboardSequenceNumber() != former;
}
