// Saved layouts, column chooser and theme of the report grid.
#include "KyReportControl.h"

#include "../common/KyMessages.h"
#include "../common/Translation.h"
#include "../common/WindowLife.h"
#include "../themes/Themes.h"
#include "KyReportHeader.h"

#include <afxdisp.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <memory>

namespace {

constexpr const wchar_t* stateEntry = L"State";
constexpr UINT archiveBufferSize = 4096;
constexpr int maxTipWidth = 400;

// Commands of the column chooser. Identifiers are bounded on purpose: a column beyond the last one gets an item, but
// choosing it does nothing.
constexpr int commandRestoreDefault = 1;
constexpr int commandFirstColumn = 2;
constexpr int commandLastColumn = 99;

struct FreeDeleter {
    void operator()(BYTE* p) const { std::free(p); }
};

} // namespace

IMPLEMENT_DYNCREATE(KyReportControl, CXTPReportControl)

BEGIN_MESSAGE_MAP(KyReportControl, CXTPReportControl)
    ON_WM_CREATE()
    ON_MESSAGE(WM_KYTHEMECHANGED, &KyReportControl::OnThemeChanged)
END_MESSAGE_MAP()

KyReportControl::KyReportControl() {
    CXTPToolTipContext* tips = GetToolTipContext();
    tips->SetStyle(Themes::ToXTPToolTipStyle(Themes::GetProfileTheme()));
    tips->SetMaxTipWidth(maxTipWidth);
    SetReportHeader(new KyReportHeader(this, GetColumns()));
    GetPaintManager()->SetNoGroupByText(Translate("Drag a column header here to group by that column."));
}

KyReportControl::~KyReportControl() {
    if (m_stateSection.empty())
        return;
    try {
        SaveReportState(m_stateSection);
    } catch (CException* e) {
        e->Delete(); // for want of memory; the layout saved before stays
    } catch (const std::exception&) {
    }
}

// --- Layout ---------------------------------------------------------------------------------------------------------

void KyReportControl::SaveReportState(const std::wstring& section) {
    CWinApp* app = AfxGetApp();
    if (!app)
        return;
    CMemFile file(1024);
    CArchive archive(&file, CArchive::store, archiveBufferSize);
    SerializeState(archive);
    archive.Close();
    const UINT length = static_cast<UINT>(file.GetLength());
    const std::unique_ptr<BYTE, FreeDeleter> state(file.Detach());
    app->WriteProfileBinary(section.c_str(), stateEntry, state.get(), length);
}

void KyReportControl::LoadReportState(const std::wstring& section) {
    CWinApp* app = AfxGetApp();
    BYTE* data = nullptr;
    UINT size = 0;
    if (!app || !app->GetProfileBinary(section.c_str(), stateEntry, &data, &size))
        return;
    const std::unique_ptr<BYTE[]> state(data);
    try {
        CMemFile file(data, size);
        CArchive archive(&file, CArchive::load, archiveBufferSize);
        SerializeState(archive);
    } catch (CArchiveException* e) {
        e->Delete(); // a layout that cannot be read leaves the columns as they are
    } catch (COleException* e) {
        e->Delete();
    }
}

void KyReportControl::AutoLoadReportState(const std::wstring& section) {
    m_stateSection = section;
    SaveReportState(DefaultLayoutSection());
    LoadReportState(m_stateSection);
    m_defaultLayoutSaved = true;
}

std::wstring KyReportControl::DefaultLayoutSection() const { return m_stateSection + L"\\DefaultLayout"; }

// --- Column chooser -------------------------------------------------------------------------------------------------

void KyReportControl::EnableShowHideColumns(const std::vector<std::wstring>& fixedColumns) {
    m_showHideColumns = true;
    m_fixedColumns = fixedColumns;
}

void KyReportControl::OnColumnHeaderRClick(CPoint point) {
    if (!m_showHideColumns || !GetHeaderRect().PtInRect(point) || GetMouseMode() != xtpReportMouseNothing ||
        !GetReportHeader()->HitTest(point))
        return;

    CMenu menu;
    menu.CreatePopupMenu();
    FillColumnMenu(menu);

    CXTPMDIFrameWnd* frame = DYNAMIC_DOWNCAST(CXTPMDIFrameWnd, AfxGetMainWnd());
    CPoint screen = point;
    ClientToScreen(&screen);
    const WindowLife life(*this);
    const int command =
        CXTPCommandBars::TrackPopupMenu(&menu, TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD, screen.x, screen.y, this,
                                        nullptr, this, frame ? frame->GetCommandBars() : nullptr);
    if (!life.HasEnded()) // anything may happen while a menu is open
        RunColumnCommand(command);
}

void KyReportControl::FillColumnMenu(CMenu& menu) {
    const BOOL headerAllowsRemoval = GetReportHeader()->IsAllowColumnRemove();
    const CXTPReportColumns* columns = GetColumns();
    for (int i = 0; i < columns->GetCount(); ++i) {
        const CXTPReportColumn* column = columns->GetAt(i);
        const CString name = column->GetInternalName();
        if (std::find(m_fixedColumns.begin(), m_fixedColumns.end(), name.GetString()) != m_fixedColumns.end())
            continue;
        const CString caption = column->GetCaption();
        UINT flags = MF_STRING | (column->IsVisible() ? MF_CHECKED : MF_UNCHECKED);
        if (!headerAllowsRemoval || !column->IsAllowRemove())
            flags |= MF_DISABLED;
        menu.AppendMenu(flags, static_cast<UINT_PTR>(i + commandFirstColumn), caption.IsEmpty() ? name : caption);
    }
    if (m_defaultLayoutSaved) {
        menu.AppendMenu(MF_SEPARATOR);
        menu.AppendMenu(MF_STRING, commandRestoreDefault, Translate("Restore default layout"));
    }
}

void KyReportControl::RunColumnCommand(int command) {
    if (command == commandRestoreDefault) {
        LoadReportState(DefaultLayoutSection());
        SaveReportState(m_stateSection); // the restored layout is the user's from now on
    } else if (command >= commandFirstColumn && command <= commandLastColumn) {
        if (CXTPReportColumn* column = GetColumns()->GetAt(command - commandFirstColumn))
            column->SetVisible(!column->IsVisible());
    }
}

// --- Selection ------------------------------------------------------------------------------------------------------

void KyReportControl::SelectAll() {
    const int count = GetRows()->GetCount();
    if (count > 0) {
        GetSelectedRows()->Clear();
        GetSelectedRows()->SelectBlock(0, count - 1, TRUE);
    }
    OnSelectionChanged();
}

// --- Texts ----------------------------------------------------------------------------------------------------------

CString KyReportControl::GetText(XTPReportText text) const {
    switch (text) {
    case xtpReportTextSort:
        return Translate("Screen reader action", "Sort");
    case xtpReportTextJump:
        return Translate("Screen reader action", "Jump");
    case xtpReportTextEdit:
        return Translate("Screen reader action", "Edit");
    case xtpReportTextOpen:
        return Translate("Screen reader action", "Open");
    case xtpReportTextExpand:
        return Translate("Screen reader action", "Expand");
    case xtpReportTextCollapse:
        return Translate("Screen reader action", "Collapse");
    case xtpReportTextNoValue:
        return Translate("Group without a value", "(none)");
    case xtpReportTextFilterCue:
        return Translate("Filter cue", "Filter");
    case xtpReportTextSortRank:
        // Translators: %1 is the place of a column in the sort order, %2 the number of columns there.
        return Translate("Sort order: %1 of %2");
    }
    return CXTPReportControl::GetText(text);
}

CString KyReportControl::GetGroupCaption(const CXTPReportColumn* pColumn, const CString& strValue, int nRecords) const {
    const CString caption = pColumn != nullptr ? pColumn->GetCaption() : CString();
    const CString value = strValue.IsEmpty() ? GetText(xtpReportTextNoValue) : strValue;
    // Translators: the row of a group; column caption, value, number of records
    return TranslateFormat("Group", "%1%: %2% (%3%)", std::wstring(caption), std::wstring(value), nRecords);
}

// --- Theme ----------------------------------------------------------------------------------------------------------

int KyReportControl::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CXTPReportControl::OnCreate(lpCreateStruct) == -1)
        return -1;
    OnThemeChanged(static_cast<WPARAM>(Themes::GetProfileTheme()), 0);
    return 0;
}

LRESULT KyReportControl::OnThemeChanged(WPARAM wParam, LPARAM) {
    const auto theme = static_cast<KyPaintTheme>(static_cast<int>(wParam));
    const XTPReportColumnStyle columnStyleBefore = GetPaintManager()->GetColumnStyle();
    SetTheme(Themes::ToXTPReportPaintTheme(theme), FALSE);
    // Office 2013 leaves the column style as it was, on purpose.
    GetPaintManager()->SetColumnStyle(theme == KyPaintTheme::Office2013 ? columnStyleBefore
                                                                        : Themes::ToXTPReportColumnStyle(theme));

    CXTPToolTipContext* tips = GetToolTipContext();
    const XTPToolTipStyle style = tips->GetStyle();
    if (style != xtpToolTipMarkup && style != xtpToolTipHTML) // a host that draws its own tips keeps them
        tips->SetStyle(Themes::ToXTPToolTipStyle(theme));
    return 1;
}
