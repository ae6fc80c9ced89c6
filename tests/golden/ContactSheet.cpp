// Shows the looks of the report control: contact_sheet FOLDER writes one picture for each theme, column style and
// resolution, theme-THEME-style-STYLE-DPI.bmp, with the states that a grid can be in side by side. With --golden it
// writes those that are kept as golden pictures: every theme and style at 96 dots per inch, each theme's own style at
// 144, with letters whose edges are not smoothed, so that the colours of a picture fit into a palette. Pictures more:
// editing-DPI.bmp shows open editors and the look of grids on dialogs, previews-DPI.bmp preview texts in every theme,
// columns-DPI.bmp group-by boxes, a frozen column and two sort keys, dragging-DPI.bmp headers on the way into the box,
// outline-DPI.bmp groups and trees.
//
// Every picture is what real controls draw when real messages have brought them into these states.
#include <XTToolkitPro.h>

#include "../framework/DibCanvas.h"
#include "plotcells/KyBarChartRecordItem.h"
#include "reportgrid/KyDialogReportControlTheme.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

// Pixels at 96 DPI.
constexpr CSize PanelSize(216, 148);
constexpr int Gap = 10;
constexpr int LabelHeight = 16;

struct Theme {
    XTPReportPaintTheme theme;
    const wchar_t* name;
};
constexpr Theme Themes[] = {{xtpReportThemeDefault, L"0 default"},
                            {xtpReportThemeOfficeXP, L"1 Office XP"},
                            {xtpReportThemeOffice2013, L"4 Office 2013"},
                            {xtpReportThemeWindows7, L"8 Windows 7"},
                            {xtpReportThemeResource, L"9 resource"}};
constexpr const wchar_t* ColumnStyles[] = {L"0 shaded", L"1 flat", L"2 explorer", L"3 Office 2003", L"4 resource"};
constexpr int Resolutions[] = {96, 144};

int Scaled(int pixels, int dpi) { return ::MulDiv(pixels, dpi, 96); }

/// The letters' edges; never coloured, as that depends on the pixels of the screen.
BYTE letterQuality = ANTIALIASED_QUALITY;

LOGFONT TextFont(int dpi) {
    LOGFONT font{};
    font.lfHeight = -Scaled(12, dpi);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = letterQuality;
    ::lstrcpyn(font.lfFaceName, L"Segoe UI", LF_FACESIZE);
    return font;
}

/// A grid of three columns and a few rows, in a window of its own that may have the focus.
class Panel {
public:
    Panel(const Theme& theme, int columnStyle, int dpi) {
        m_owner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0);
        const CRect place(0, 0, Scaled(PanelSize.cx, dpi), Scaled(PanelSize.cy, dpi));
        m_grid.Create(WS_CHILD | WS_VISIBLE, place, &m_owner, 1);
        m_grid.SetTheme(theme.theme);
        Look().SetColumnStyle(static_cast<XTPReportColumnStyle>(columnStyle));
        Look().SetTextFont(TextFont(96));
        m_grid.AddColumn(new CXTPReportColumn(0, L"Name", 78));
        m_grid.AddColumn(new CXTPReportColumn(1, L"Value", 60));
        m_grid.AddColumn(new CXTPReportColumn(2, L"Plot", 70));
        Column(1).SetAlignment(DT_RIGHT);
        m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi));
    }
    ~Panel() {
        m_grid.DestroyWindow();
        m_owner.DestroyWindow();
    }

    CXTPReportControl& Grid() { return m_grid; }
    CXTPReportPaintManager& Look() { return *m_grid.GetPaintManager(); }
    CXTPReportColumn& Column(int index) { return *m_grid.GetColumns()->GetAt(index); }
    CPoint HeaderOf(int index) { return Column(index).GetRect().CenterPoint(); }
    void Mouse(UINT message, CPoint point, WPARAM keys = 0) {
        m_grid.SendMessage(message, keys, MAKELPARAM(point.x, point.y));
    }

    void AddRows() {
        const wchar_t* const names[] = {L"Adelie", L"Biscoe", L"Chinstrap", L"Dream", L"Gentoo"};
        for (int i = 0; i < 5; ++i) {
            auto* record = new CXTPReportRecord;
            record->AddItem(new CXTPReportRecordItemText(names[i]));
            record->AddItem(new CXTPReportRecordItemNumber(3.75 * (i + 1), L"%.2f"));
            auto* plot = new KyBarChartRecordItem;
            plot->SetError(4.0f, 0.0f, 10.0f, 1.5f + i / 2.0f, 5.5f + i / 2.0f, 0.5f, 8.5f, KyMissingValueF,
                           KyMissingValueF);
            record->AddItem(plot);
            m_grid.AddRecord(record);
        }
        m_grid.GetRecords()->GetAt(4)->GetItem(0)->AddHyperlink(new CXTPReportHyperlink(0, 0));
        m_grid.Populate();
    }
    /// Records in groups, with others below them.
    void AddOutline() {
        const auto add = [](CXTPReportRecords* records, const wchar_t* name, double value) {
            CXTPReportRecord* const record = records->Add(new CXTPReportRecord);
            record->AddItem(new CXTPReportRecordItemText(name));
            record->AddItem(new CXTPReportRecordItemNumber(value, L"%.1f"));
            record->AddItem(new CXTPReportRecordItemText(value < 5 ? L"low" : L"high"));
            record->SetExpanded(TRUE);
            return record;
        };
        CXTPReportRecord* const penguins = add(m_grid.GetRecords(), L"Biscoe", 1);
        CXTPReportRecord* const first = add(penguins->GetChilds(), L"North", 2);
        add(first->GetChilds(), L"Shore", 3);
        first->SetExpanded(FALSE);
        add(penguins->GetChilds(), L"South", 4);
        CXTPReportRecord* const other = add(m_grid.GetRecords(), L"Dream", 4);
        add(other->GetChilds(), L"East", 4.5);
        other->SetExpanded(FALSE);
        add(m_grid.GetRecords(), L"Gentoo", 9);
        Column(0).SetTreeColumn(TRUE);
        m_grid.GetColumns()->GetGroupsOrder()->Add(&Column(2), FALSE);
        m_grid.Populate();
    }
    void SortByName(BOOL increasing) {
        m_grid.GetColumns()->SetSortColumn(&Column(0), increasing);
        m_grid.Populate();
    }
    void SelectRows(bool withFocus) {
        (withFocus ? static_cast<CWnd&>(m_grid) : m_owner).SetFocus();
        m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(1));
        m_grid.GetSelectedRows()->Add(m_grid.GetRows()->GetAt(2));
    }
    void TakeFocusAway() { m_owner.SetFocus(); }
    void UseDialogTheme() {
        auto* const look = new KyDialogReportControlTheme;
        look->TakeOver(Look());
        m_grid.SetPaintManager(look);
    }
    /// Opens an editor whose text is partly selected.
    void EditValue(int row) {
        m_grid.SetFocus();
        m_grid.AllowEdit(TRUE);
        XTP_REPORTRECORDITEM_ARGS args;
        args.pRow = m_grid.GetRows()->GetAt(row);
        args.pColumn = &Column(1);
        m_grid.EditItem(&args);
        m_grid.GetInplaceEdit()->SetSel(0, 2);
        ::HideCaret(m_grid.GetInplaceEdit()->m_hWnd);
    }
    void DrawInto(CDC& dc, CPoint place) {
        CRect client;
        m_grid.GetClientRect(&client);
        DibCanvas canvas(client.Width(), client.Height(), RGB(255, 0, 255));
        m_grid.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc().m_hDC), PRF_CLIENT);
        dc.BitBlt(place.x, place.y, client.Width(), client.Height(), &canvas.Dc(), 0, 0, SRCCOPY);
        if (m_grid.GetActiveItem())
            DrawEditorInto(dc, place);
        CRect frame(place, client.Size());
        frame.InflateRect(1, 1);
        dc.Draw3dRect(&frame, RGB(130, 130, 130), RGB(130, 130, 130));
    }

private:
    /// As it stands on the screen, because a window of its own is not part of the grid's drawing.
    void DrawEditorInto(CDC& dc, CPoint place) {
        CXTPReportInplaceEdit& editor = *m_grid.GetInplaceEdit();
        editor.UpdateWindow();
        CRect rc;
        editor.GetWindowRect(&rc);
        m_grid.ScreenToClient(&rc);
        CWindowDC window(&editor);
        dc.BitBlt(place.x + rc.left, place.y + rc.top, rc.Width(), rc.Height(), &window, 0, 0, SRCCOPY);
    }

    CWnd m_owner;
    CXTPReportControl m_grid;
};

// --- States ---------------------------------------------------------------------------------------------------------

void ShowFocus(Panel& panel) {
    panel.AddRows();
    panel.SortByName(TRUE);
    panel.SelectRows(true);
    panel.Mouse(WM_MOUSEMOVE, panel.HeaderOf(1));
}

void ShowNoFocus(Panel& panel) {
    panel.AddRows();
    panel.SortByName(FALSE);
    panel.SelectRows(false);
    panel.Look().UseAlternateRowBackground(TRUE);
    panel.Look().SetGridStyle(TRUE, xtpReportGridNoLines);
    panel.Look().SetGridStyle(FALSE, xtpReportGridLargeDots);
    panel.Mouse(WM_LBUTTONDOWN, panel.HeaderOf(1), MK_LBUTTON);
    panel.TakeFocusAway();
}

void ShowDrag(Panel& panel) {
    panel.AddRows();
    panel.Look().UseAlternateRowBackground(TRUE);
    panel.Look().SetGridStyle(TRUE, xtpReportGridSmallDots);
    panel.Look().SetGridStyle(FALSE, xtpReportGridDashes);
    const CPoint from = panel.HeaderOf(0);
    panel.Mouse(WM_LBUTTONDOWN, from, MK_LBUTTON);
    panel.Mouse(WM_MOUSEMOVE, from + CSize(20, 2), MK_LBUTTON);
    panel.Mouse(WM_MOUSEMOVE, CPoint(panel.Column(1).GetRect().right - 12, from.y + 6), MK_LBUTTON);
}

void ShowDisabled(Panel& panel) {
    panel.AddRows();
    panel.SortByName(TRUE);
    panel.SelectRows(false);
    panel.Grid().EnableWindow(FALSE);
}

void ShowEmpty(Panel& panel) { panel.Grid().Populate(); }

void ShowEditor(Panel& panel) {
    panel.AddRows();
    panel.SelectRows(true);
    panel.EditValue(1);
}

void ShowOutline(Panel& panel) {
    panel.AddOutline();
    panel.Grid().GetRows()->GetAt(5)->SetExpanded(FALSE);
    panel.SelectRows(true);
}

void ShowDialogTheme(Panel& panel) {
    panel.UseDialogTheme();
    panel.AddRows();
    panel.SortByName(TRUE);
    panel.SelectRows(true);
    panel.Mouse(WM_MOUSEMOVE, panel.HeaderOf(1)); // of which nothing is seen
}

void ShowDialogThemeWithoutDivider(Panel& panel) {
    panel.UseDialogTheme();
    panel.AddRows();
    panel.Column(0).HideDivider(TRUE);
    panel.SelectRows(false);
}

/// Rows without and with a preview, one of them selected; the last one is cut off.
void ShowPreviews(Panel& panel) {
    panel.AddRows();
    const wchar_t* const texts[] = {
        L"A short one.",
        L"Breeds on ice-free coasts; wrapped between words, and cut off where it needs more "
        L"than three lines, as this one does, which goes on for a while.",
        nullptr, L"Two\nlines", nullptr};
    for (int i = 0; i < 5; ++i)
        if (texts[i])
            panel.Grid().GetRecords()->GetAt(i)->SetPreviewItem(new CXTPReportRecordItemPreview(texts[i]));
    panel.Grid().EnablePreviewMode(TRUE);
    panel.Look().UseAlternateRowBackground(TRUE);
    panel.Grid().SetFocus();
    panel.Grid().SetFocusedRow(panel.Grid().GetRows()->GetAt(0));
}

/// Two groups, of which one is hot, two sort keys, and a frozen column from beneath which another one comes.
void ShowGroups(Panel& panel) {
    panel.AddRows();
    CXTPReportColumns& columns = *panel.Grid().GetColumns();
    columns.GetSortOrder()->Add(&panel.Column(1), FALSE);
    columns.GetSortOrder()->Add(&panel.Column(0), TRUE);
    columns.GetGroupsOrder()->Add(&panel.Column(2), TRUE);
    columns.GetGroupsOrder()->Add(&panel.Column(0));
    panel.Grid().Populate();
    panel.Grid().SetFreezeColumnsCount(1);
    panel.Grid().ShowGroupBy();
    panel.Column(2).SetWidth(2 * panel.Column(2).GetWidth());
    panel.Grid().SetLeftOffset(panel.Column(1).GetWidth() / 2);
    panel.Mouse(WM_MOUSEMOVE, panel.Grid().GetReportHeader()->GetGroupRect(&panel.Column(0)).CenterPoint());
}

/// A header on its way into an empty box.
void ShowEmptyBox(Panel& panel) {
    panel.AddRows();
    panel.Grid().ShowGroupBy();
    const CPoint from = panel.HeaderOf(1);
    panel.Mouse(WM_LBUTTONDOWN, from, MK_LBUTTON);
    panel.Mouse(WM_MOUSEMOVE, from + CSize(0, -20), MK_LBUTTON);
    panel.Mouse(WM_MOUSEMOVE, panel.Grid().GetGroupByRect().CenterPoint() + CSize(60, 0), MK_LBUTTON);
}

struct State {
    const wchar_t* name;
    void (*show)(Panel&);
};
constexpr State States[] = {{L"focus, sorted, hot", ShowFocus},
                            {L"no focus, alternate rows, pressed", ShowNoFocus},
                            {L"dragged; dotted, dashed lines", ShowDrag},
                            {L"disabled", ShowDisabled},
                            {L"empty", ShowEmpty}};

/// What a picture shows in which the themes stand side by side.
struct ThemedState {
    const wchar_t* name;
    int theme; ///< place in Themes
    void (*show)(Panel&);
};
constexpr ThemedState EditingStates[] = {{L"editor, default", 0, ShowEditor},
                                         {L"editor, Office 2013", 2, ShowEditor},
                                         {L"editor, resource", 4, ShowEditor},
                                         {L"dialog", 4, ShowDialogTheme},
                                         {L"dialog, a divider hidden", 4, ShowDialogThemeWithoutDivider}};
constexpr ThemedState PreviewStates[] = {{L"previews, default", 0, ShowPreviews},
                                         {L"Office XP", 1, ShowPreviews},
                                         {L"Office 2013", 2, ShowPreviews},
                                         {L"Windows 7", 3, ShowPreviews},
                                         {L"resource", 4, ShowPreviews}};
constexpr ThemedState ColumnsStates[] = {{L"groups, default", 0, ShowGroups},
                                         {L"Office XP", 1, ShowGroups},
                                         {L"Office 2013", 2, ShowGroups},
                                         {L"Windows 7", 3, ShowGroups},
                                         {L"resource", 4, ShowGroups}};
constexpr ThemedState DraggingStates[] = {{L"into an empty box", 0, ShowEmptyBox},
                                          {L"Office XP", 1, ShowEmptyBox},
                                          {L"Office 2013", 2, ShowEmptyBox},
                                          {L"Windows 7", 3, ShowEmptyBox},
                                          {L"resource", 4, ShowEmptyBox}};
static_assert(std::size(EditingStates) == std::size(States)); // the same strip
static_assert(std::size(PreviewStates) == std::size(States));
static_assert(std::size(ColumnsStates) == std::size(States));
static_assert(std::size(DraggingStates) == std::size(States));
constexpr ThemedState OutlineStates[] = {{L"groups and a tree, default", 0, ShowOutline},
                                         {L"Office XP", 1, ShowOutline},
                                         {L"Office 2013", 2, ShowOutline},
                                         {L"Windows 7", 3, ShowOutline},
                                         {L"resource", 4, ShowOutline}};
static_assert(std::size(OutlineStates) == std::size(States));

// --- Pictures -------------------------------------------------------------------------------------------------------

/// The places of the panels in a picture: side by side, under a line that says what they show.
struct Strip {
    int dpi;
    int Left(int panel) const { return Scaled(Gap + panel * (PanelSize.cx + Gap), dpi); }
    int Top() const { return Scaled(Gap / 2 + LabelHeight, dpi); }
    CSize Size() const {
        return CSize(Left(static_cast<int>(std::size(States))), Top() + Scaled(PanelSize.cy + Gap / 2, dpi));
    }
};

template <class Labels>
void DrawLabels(CDC& dc, const Strip& strip, const Labels& states, const std::wstring& title) {
    CFont font;
    const LOGFONT textFont = TextFont(strip.dpi);
    font.CreateFontIndirect(&textFont);
    CFont* const former = dc.SelectObject(&font);
    dc.SetBkMode(TRANSPARENT);
    for (int i = 0; i < static_cast<int>(std::size(States)); ++i) {
        std::wstring text = i == 0 && !title.empty() ? title : states[i].name;
        if (i == static_cast<int>(std::size(States)) - 1)
            text += L"; " + std::to_wstring(strip.dpi) + L" dpi";
        dc.TextOut(strip.Left(i), Scaled(Gap / 2, strip.dpi), text.c_str());
    }
    dc.SelectObject(former);
}

bool Save(const DibCanvas& canvas, const std::wstring& path) {
    if (canvas.SaveAs(path.c_str()))
        return true;
    std::fwprintf(stderr, L"error: %ls cannot be written\n", path.c_str());
    return false;
}

bool WritePicture(const Theme& theme, int style, int dpi, const std::wstring& folder) {
    const Strip strip{dpi};
    DibCanvas canvas(strip.Size().cx, strip.Size().cy, RGB(205, 205, 205));
    DrawLabels(canvas.Dc(), strip, States, std::wstring(L"theme ") + theme.name + L", style " + ColumnStyles[style]);
    for (int i = 0; i < static_cast<int>(std::size(States)); ++i) {
        Panel panel(theme, style, dpi);
        States[i].show(panel);
        panel.DrawInto(canvas.Dc(), CPoint(strip.Left(i), strip.Top()));
    }
    return Save(canvas, folder + L"\\theme-" + std::to_wstring(theme.theme) + L"-style-" + std::to_wstring(style) +
                            L"-" + std::to_wstring(dpi) + L".bmp");
}

template <class ThemedStates>
bool WriteThemedPicture(const std::wstring& name, const ThemedStates& states, int dpi, const std::wstring& folder) {
    const Strip strip{dpi};
    DibCanvas canvas(strip.Size().cx, strip.Size().cy, RGB(205, 205, 205));
    DrawLabels(canvas.Dc(), strip, states, std::wstring());
    for (int i = 0; i < static_cast<int>(std::size(states)); ++i) {
        const Theme& theme = Themes[states[i].theme];
        Panel panel(theme, CXTPReportPaintManager(theme.theme).GetColumnStyle(), dpi);
        states[i].show(panel);
        panel.DrawInto(canvas.Dc(), CPoint(strip.Left(i), strip.Top()));
    }
    return Save(canvas, folder + L"\\" + name + L"-" + std::to_wstring(dpi) + L".bmp");
}

CWinApp theApp;

} // namespace

int main(int argc, char** argv) {
    const bool isGolden = argc == 3 && std::strcmp(argv[2], "--golden") == 0;
    if (argc != 2 && !isGolden) {
        std::fprintf(stderr, "usage: contact_sheet FOLDER [--golden]\n");
        return 2;
    }
    if (isGolden)
        letterQuality = NONANTIALIASED_QUALITY;
    const std::wstring folder(CString(argv[1]).GetString());
    bool isWhole = true;
    for (const Theme& theme : Themes) {
        for (int style = 0; style < static_cast<int>(std::size(ColumnStyles)); ++style) {
            const bool isOwn = style == CXTPReportPaintManager(theme.theme).GetColumnStyle();
            for (const int dpi : Resolutions) {
                if (!isGolden || isOwn || dpi == 96)
                    isWhole = WritePicture(theme, style, dpi, folder) && isWhole;
            }
        }
    }
    for (const int dpi : Resolutions) {
        isWhole = WriteThemedPicture(L"columns", ColumnsStates, dpi, folder) && isWhole;
        isWhole = WriteThemedPicture(L"outline", OutlineStates, dpi, folder) && isWhole;
        if (isGolden && dpi != 96)
            continue;
        isWhole = WriteThemedPicture(L"editing", EditingStates, dpi, folder) && isWhole;
        isWhole = WriteThemedPicture(L"previews", PreviewStates, dpi, folder) && isWhole;
        isWhole = WriteThemedPicture(L"dragging", DraggingStates, dpi, folder) && isWhole;
    }
    return isWhole ? 0 : 1;
}
