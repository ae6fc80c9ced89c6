// The main window: what the grid shows leaves the program.
#include "window/ProfilerFrame.h"

#include "common/Translation.h"
#include "window/HtmlExport.h"

#include <afxdlgs.h>
#include <shellapi.h>

namespace {

/// What a page about the file is called.
CString PageTitle(const ColumnFile& file) { return CString(file.path.filename().c_str()); }

} // namespace

void ProfilerFrame::OnFileExportHtml() {
    if (m_file == nullptr)
        return;
    const CString filter = Translate("HTML pages") + L" (*.html)|*.html|" + Translate("All files") + L" (*.*)|*.*||";
    const CString proposed(m_file->path.stem().c_str());
    CFileDialog dialog(FALSE, L"html", proposed, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, filter, this);
    if (dialog.DoModal() != IDOK)
        return;
    const CString path = dialog.GetPathName();
    const CWaitCursor wait;
    if (ExportHtml(m_grid, PageTitle(*m_file), path.GetString())) {
        ShowStatus(TranslateFormat("Status bar", "%1% is written.", path.GetString()));
        return;
    }
    const CString error = TranslateFormat("Export", "%1% cannot be written.", path.GetString());
    ShowStatus(error);
    AfxMessageBox(error, MB_OK | MB_ICONWARNING);
}

void ProfilerFrame::OnFileViewInBrowser() {
    if (m_file == nullptr)
        return;
    const CWaitCursor wait;
    const std::filesystem::path page = ExportTemporaryHtml(m_grid, PageTitle(*m_file));
    constexpr INT_PTR kLargestError = 32;
    if (!page.empty() && reinterpret_cast<INT_PTR>(::ShellExecute(m_hWnd, L"open", page.c_str(), nullptr, nullptr,
                                                                  SW_SHOWNORMAL)) > kLargestError) {
        ShowStatus(Translate("The page is open in the browser."));
        return;
    }
    const CString error = Translate("The page cannot be shown: there is no browser, or no room for temporary files.");
    ShowStatus(error);
    AfxMessageBox(error, MB_OK | MB_ICONWARNING);
}

void ProfilerFrame::OnEditCopyGrid() {
    if (m_file == nullptr)
        return;
    const CWaitCursor wait;
    ShowStatus(CopyGrid(m_grid) ? Translate("The table is on the clipboard.")
                                : Translate("Another program uses the clipboard. Try again."));
}

void ProfilerFrame::OnUpdateExport(CCmdUI* item) { item->Enable(m_file != nullptr); }
